#include "table/Mesa.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Raton.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <memory>

namespace {

std::unique_ptr<VentanaMesa> LaMesa;

// The controls that lie over the table, bottom first.
std::vector<const CajaImagen*> ControlesVisibles() {
    std::vector<const CajaImagen*> lista{&Pic_Botonera};
    for (int i = 1; i <= 8; ++i) lista.push_back(&Pic_Boton[i]);
    lista.push_back(&Pic_BotContinuar);
    for (int i = 1; i <= 4; ++i) lista.push_back(&Pic_Tantos[i]);
    for (int i = 81; i <= 102; ++i) lista.push_back(&Pic_Pulsador[i]);
    lista.push_back(&Pic_Sugerencia);
    lista.push_back(&Pic_Apostadora);
    lista.push_back(&Pic_SelOpciones);
    lista.push_back(&Pic_Mover);
    return lista;
}

} // namespace

VentanaMesa::VentanaMesa() {
    setWindowTitle(QStringLiteral("Trufal"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(800, 600);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QRectF VentanaMesa::AreaMesa() const {
    if (AnchoVentana <= 0 || AltoVentana <= 0) return rect();
    const double escala = std::min(width() / double(AnchoVentana), height() / double(AltoVentana));
    const double w = AnchoVentana * escala, h = AltoVentana * escala;
    return QRectF((width() - w) / 2, (height() - h) / 2, w, h);
}

QPointF VentanaMesa::ALaMesa(const QPointF& punto) const {
    const QRectF area = AreaMesa();
    if (area.width() <= 0) return punto;
    return QPointF((punto.x() - area.left()) * AnchoVentana / area.width(),
                   (punto.y() - area.top()) * AltoVentana / area.height());
}

void VentanaMesa::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), QColor(0, 60, 0));
    if (Pic_Mesa.Imagen.isNull()) return;
    const QRectF area = AreaMesa();
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.translate(area.topLeft());
    p.scale(area.width() / AnchoVentana, area.height() / AltoVentana);
    p.drawImage(0, 0, Pic_Mesa.Imagen);
    for (const CajaImagen* c : ControlesVisibles())
        if (c->Visible && !c->Imagen.isNull()) p.drawImage(c->X, c->Y, c->Imagen);
}

void VentanaMesa::mousePressEvent(QMouseEvent* e) {
    const QPointF m = ALaMesa(e->position());
    RatonPulsado(int(m.x()), int(m.y()), e->button() == Qt::RightButton ? 2 : 1,
                 e->modifiers() & Qt::ControlModifier);
}

void VentanaMesa::mouseMoveEvent(QMouseEvent* e) {
    const QPointF m = ALaMesa(e->position());
    RatonMovido(int(m.x()), int(m.y()), e->buttons() != Qt::NoButton);
}

void VentanaMesa::mouseReleaseEvent(QMouseEvent* e) {
    const QPointF m = ALaMesa(e->position());
    RatonSoltado(int(m.x()), int(m.y()), e->button() == Qt::RightButton ? 2 : 1);
}

void VentanaMesa::keyPressEvent(QKeyEvent* e) {
    if (!TeclaMesa(e->key(), e->modifiers() & Qt::ControlModifier)) QWidget::keyPressEvent(e);
}

void VentanaMesa::closeEvent(QCloseEvent* e) {
    // Closing the window is the exit button: it asks the same, and is refused the same way.
    e->ignore();
    PulsaBoton(8);
}

bool VentanaMesa::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        auto* ayuda = static_cast<QHelpEvent*>(e);
        const QPointF m = ALaMesa(ayuda->pos());
        const QString texto = TextoAyudaEn(int(m.x()), int(m.y()));
        if (texto.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(ayuda->globalPos(), texto, this);
        return true;
    }
    return QWidget::event(e);
}

void CargaMesa() {
    if (!LaMesa) LaMesa = std::make_unique<VentanaMesa>();
}

void MuestraMesa() {
    CargaMesa();
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    const QRect disponible = pantalla ? pantalla->availableGeometry() : QRect(0, 0, 1024, 768);
    if (disponible.width() >= AnchoVentana && disponible.height() >= AltoVentana)
        LaMesa->showMaximized();
    else
        LaMesa->show();
    LaMesa->raise();
    LaMesa->activateWindow();
}

VentanaMesa* Mesa() {
    return LaMesa.get();
}

void RefrescaMesa() {
    if (LaMesa && LaMesa->isVisible()) LaMesa->repaint();
}

void PonCursor(int forma) {
    CursorActual = forma;
    if (!LaMesa) return;
    if (forma == 12)
        LaMesa->setCursor(Qt::ForbiddenCursor);
    else if (forma == 11)
        LaMesa->setCursor(Qt::WaitCursor);
    else if (forma == 21)
        LaMesa->setCursor(Qt::PointingHandCursor);
    else if (forma == 26)
        LaMesa->setCursor(Qt::ClosedHandCursor);
    else if (forma == 27)
        LaMesa->setCursor(Qt::OpenHandCursor);
    else
        LaMesa->setCursor(Qt::ArrowCursor);
}
