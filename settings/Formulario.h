// A settings window as its thin widget sees it: a size in its own pixels, its painted controls,
// and the routines of the window that draw it and answer the mouse and the keys. The widget
// shows the window modally, scaled to the size it is given, and hands every event over in the
// window's pixels. The keys are handled here for every window alike: Tab walks the controls,
// the arrows and the space bar step the one that has the focus, and the text boxes take what is
// typed.
#pragma once

#include "settings/Controles.h"

#include <QPointF>
#include <QString>
#include <functional>
#include <vector>

class QWidget;

struct Formulario {
    QString Titulo;
    int Ancho = 0, Alto = 0;
    std::vector<ControlPintado> Controles;
    int Foco = -1;   // position in Controles of the control that takes the keys, -1 none
    QString Edicion; // the text of the focused box while it is typed
    int Cursor = 0;  // the caret in it
    bool Abierto = false;

    std::function<void(QPainter&)> Pinta;    // the whole window
    std::function<void(int x, int y)> Pulsa; // left button down
    std::function<void(int x, int y, bool boton)> Mueve;
    std::function<void(int x, int y)> Suelta;
    std::function<void(int posicion, int direccion)> Paso; // a key steps a control
    std::function<void(int posicion)> TextoNombre;         // a name box was typed in
    std::function<void(int posicion)> TextoSpin;           // a spin's box is left
    std::function<void()> Salir;                           // exit button, Esc, closing
};

// Shows the window modally and returns when it has closed.
void MuestraFormulario(Formulario& f);
// Closes it: the text being typed is taken first.
void CierraFormulario(Formulario& f);
// Draws the window at once, as a press or a step of a spin must be seen before a pause.
void RepintaFormulario();
void PonCursorFormulario(int forma);

// The topmost visible control under the point, or -1.
int ControlEn(const Formulario& f, int x, int y);
// The keys go to this control; the text typed in the one that had them is taken.
void PonFoco(Formulario& f, int posicion);
void MueveFoco(Formulario& f, bool adelante);
// What the text box of the focused control shows while it is not being typed in.
void RecargaEdicion(Formulario& f);
// A key on the window. Returns whether it was taken.
bool TeclaFormulario(Formulario& f, int tecla, const QString& texto, bool mayusculas);
// The caret for a press at x in a text box.
int CursorEnCaja(const QRect& caja, const QString& texto, int x, bool derecha);

// Draws a control with the value it stands for, and the frame of the focus.
void PintaControl(QPainter& p, const Formulario& f, int posicion, int valor);
void PintaFoco(QPainter& p, const Formulario& f);
// A selector steps: its click, the value to the next one (to the previous one going back) in a
// ring over the texts of OpcionSelector, the arrow drawn pressed for a moment, its release.
void CambiaSelector(Formulario& f, int posicion, int& valor, int direccion = 1);
// A button is pressed and comes up again, with its sounds.
void HundePulsador(Formulario& f, int posicion);
// The arrows of a spin while the mouse button stays down on one (sentido 1 up, -1 down): a
// step, then another every 70 ms times the speed factor, until the release or a limit. A key
// gives one step.
void PulsaSpin(Formulario& f, int posicion, int sentido, bool soloUnPaso = false);

// The widget of the window on show, for a test that sends it events; and the point of the
// widget where a point of the window lies.
QWidget* VentanaAjustesActiva();
QPointF PuntoDeVentana(int x, int y);
