// The painted controls of the settings windows: the selector that steps through texts, the
// lamp that switches a boolean, the spin with its arrows and text box, the knob on its scale,
// the buttons and the name boxes. They are drawn by the program in the window's own pixels at
// whatever scale the window shows them, and they answer the mouse and the keys alike.
#pragma once

#include <QPainter>
#include <QRect>
#include <QString>
#include <array>
#include <vector>

enum class TipoControl {
    Selector,      // Pic_Selector: a frame with its caption, an arrow and the value's text
    Buleano,       // Pic_Buleano: a lamp and its caption
    Spin,          // Pic_Spin with its Tex_Spin: caption, text box and two arrows
    Potenciometro, // Pic_Potenciometro: a knob that slides along a scale of 0 to 100
    Pulsador,      // Pic_Pulsador: a button with its caption
    Nombre,        // Txt_Nombre: the name of a seat, a text box
    Ayuda,         // Pic_BotAyuda
    Salir,         // Pic_BotSalir
    Cerrar,        // Lab_Cerrar of the voice panel
};

struct ControlPintado {
    TipoControl Tipo = TipoControl::Selector;
    int Indice = 0; // index of its control array; for a name box, the seat
    QRect Zona;     // in the window's pixels
    bool Visible = true;
    bool Hundido = false;     // drawn pressed: a selector's arrow, a button
    int FlechaHundida = 0;    // a spin's arrow drawn pressed: 1 up, -1 down
    bool SoloLectura = false; // a name box that takes no input
};

// Heights of the controls; their widths are the window's.
// The I-beam over a text box: a standard pointer, as those below 20 are.
constexpr int CURSOR_TEXTO = 3;

constexpr int ALTO_SELECTOR = 40, ALTO_BULEANO = 20, ALTO_SPIN = 30, ALTO_POTENCIOMETRO = 44,
              ALTO_PULSADOR = 23, ALTO_NOMBRE = 20, LADO_BOTON = 48;

// ---- Data of the settings windows ----

// The texts of the selectors, by selector index 1 to 40 and value 0 to 15, each 28 characters.
// A value whose trimmed text is empty ends the list.
constexpr int LARGO_OPCION = 28;
inline QString OpcionSelector[41][16];

struct FilaSpin {
    float Minimo = 0, Maximo = 0, Paso = 0;
    const char* Formato = "";
};
// The rows of the spins 71 to 76: their limits, their step and how the value is written.
extern const std::array<FilaSpin, 77> AjusteSpin;

inline int JuegoAlAbrir = 0;            // JuegoActual when Normas opened
inline bool SpinPulsado = false;        // a mouse button is down on an arrow of a spin
inline bool JugadoresCambiados = false; // Personal changed the active seats
inline int JugadorModiVoz = 1;          // the seat whose voice the voice panel shows
inline int AnclaPotenciometro = 0;      // x of the last drag step of a knob
inline int CursorAjustes = 0;           // the pointer shape over a settings window

// Blanks the whole table of selector texts, then writes the texts and captions of every control
// of both windows.
void LlenaTextosAjustes();

// The settings a control stands for: nullptr for an index that has none of its kind.
int* AjusteDeSelector(int indice);
bool* AjusteDeBuleano(int indice);
int* AjusteDePotenciometro(int indice);
int* AjusteDeSpin(int indice);
// The value a control shows now (a lamp 1 or 0).
int ValorControl(const ControlPintado& c);

// ---- Drawing, in the window's pixels ----
void DibujaSelector(QPainter& p, const ControlPintado& c, int valor);
// The caption starts margen pixels from the lamp's left edge.
void DibujaBuleano(QPainter& p, const ControlPintado& c, bool valor, int margen = 20);
void DibujaSpin(QPainter& p, const ControlPintado& c, const QString& textoCaja, bool editando,
                int cursor);
void DibujaPotenciometro(QPainter& p, const ControlPintado& c, int valor);
void DibujaPulsadorAjustes(QPainter& p, const ControlPintado& c);
void DibujaNombre(QPainter& p, const ControlPintado& c, const QString& texto, bool editando,
                  int cursor);
void DibujaBotonCara(QPainter& p, const ControlPintado& c);
void DibujaCerrar(QPainter& p, const ControlPintado& c);
// The dotted frame round the control that takes the keys.
void DibujaFoco(QPainter& p, const ControlPintado& c);
// A sunken frame with a caption on its top edge, as the panels of the windows have.
// A second caption may stand at the right of the top edge.
void DibujaMarco(QPainter& p, const QRect& zona, const QString& titulo,
                 const QString& tituloDerecha = QString());
// The window's ground.
void DibujaFondoAjustes(QPainter& p, int ancho, int alto);
QFont LetraAjustes(int pixeles, bool negrita = false);

// ---- Zones ----
// Whether a point of the control (relative to its corner) lies where a press acts.
bool EnFlechaSelector(int x, int y);
// 1 on the upper arrow of a spin, -1 on the lower one, 0 elsewhere (the line between them too).
int FlechaSpinEn(const ControlPintado& c, int x, int y);
bool EnCajaSpin(const ControlPintado& c, int x, int y);
QRect CajaDeSpin(const ControlPintado& c); // the text box, in the window's pixels
bool EnPomo(int valor, int x, int y);      // the knob of a scale at that value
// The pointer a move over the control asks for, the point relative to the control.
int PunteroDeControl(const ControlPintado& c, int x, int y);
// A point of the control where a press does what a key asks of it: the arrow of a selector,
// the upper or lower arrow of a spin, the middle of anything else.
QPoint PuntoDeAccion(const ControlPintado& c, int direccion);

// ---- The spins ----
QString FormatoSpin(int indice, int valor);
void GuardaSpin(int indice, int valor);
// The value a typed text stands for: its leading digits (0 when there are none), kept within the
// spin's limits.
int ValorTecleado(int indice, const QString& texto);

// ---- The knobs ----
// A drag step: the value follows the pointer by whole pixels from the anchor, within 0 and 100;
// beyond an end it waits until the pointer comes back to where it left.
int ArrastraPotenciometro(int valor, int x);

// The sounds of the controls, heard by a test through the table's listener.
void SuenaAjustes(int modo, int id);
