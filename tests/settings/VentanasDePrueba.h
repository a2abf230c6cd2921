// The person's hands on a settings window: the window is opened from its bar button as the
// person would, and the test acts on it with mouse and key events once it is up.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <functional>

#include "settings/Formulario.h"
#include "table/Botonera.h"

namespace prueba {

// Opens the window of a bar button and runs the test's hands on it. Returns whether the window
// had closed by the end of them; one left open is closed, so that no test hangs on it.
inline bool AbreYActua(int boton, const std::function<void()>& manos) {
    bool cerrada = true;
    QTimer::singleShot(0, [&] {
        manos();
        if (auto* ventana = qobject_cast<QDialog*>(VentanaAjustesActiva())) {
            cerrada = false;
            ventana->done(0);
        }
    });
    PulsaBoton(boton);
    return cerrada;
}

inline void Raton(QEvent::Type tipo, QPoint punto, Qt::MouseButtons botones, bool enCola = false) {
    QWidget* ventana = VentanaAjustesActiva();
    if (!ventana) return;
    const QPointF p = PuntoDeVentana(punto.x(), punto.y());
    const Qt::MouseButton boton = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    if (enCola) {
        QCoreApplication::postEvent(ventana, new QMouseEvent(tipo, p, ventana->mapToGlobal(p),
                                                             boton, botones, Qt::NoModifier));
        return;
    }
    QMouseEvent evento(tipo, p, ventana->mapToGlobal(p), boton, botones, Qt::NoModifier);
    QApplication::sendEvent(ventana, &evento);
}

// A click: the release waits in the queue, so that an arrow held by the press is let go at
// the first turn of the event pump, as a quick click does.
inline void Clic(QPoint punto) {
    Raton(QEvent::MouseButtonRelease, punto, Qt::NoButton, true);
    Raton(QEvent::MouseButtonPress, punto, Qt::LeftButton);
}

inline void Arrastra(QPoint desde, QPoint hasta) {
    Raton(QEvent::MouseButtonPress, desde, Qt::LeftButton);
    Raton(QEvent::MouseMove, hasta, Qt::LeftButton);
}

inline void Tecla(int tecla, const QString& texto = QString(),
                  Qt::KeyboardModifiers mod = Qt::NoModifier) {
    QWidget* ventana = VentanaAjustesActiva();
    if (!ventana) return;
    QKeyEvent evento(QEvent::KeyPress, tecla, mod, texto);
    QApplication::sendEvent(ventana, &evento);
}

inline void Escribe(const QString& texto) {
    for (QChar c : texto) Tecla(c.isLetter() ? int(c.toUpper().unicode()) : int(c.unicode()), c);
}

// The control of a window by its kind and index; nullptr when it isn't there.
inline ControlPintado* Control(Formulario& f, TipoControl tipo, int indice = 0) {
    for (ControlPintado& c : f.Controles)
        if (c.Tipo == tipo && c.Indice == indice) return &c;
    return nullptr;
}

// Where a press acts on a control: the arrow of a selector, the upper or lower arrow of a spin,
// the middle of anything else.
inline QPoint Punto(Formulario& f, TipoControl tipo, int indice, int direccion = 1) {
    ControlPintado* c = Control(f, tipo, indice);
    return c ? PuntoDeAccion(*c, direccion) : QPoint(-100, -100);
}

inline void Pulsa(Formulario& f, TipoControl tipo, int indice, int direccion = 1) {
    Clic(Punto(f, tipo, indice, direccion));
}

} // namespace prueba
