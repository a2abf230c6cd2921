// The art generator: every sheet of the table drawn from vector sources of our own with
// QPainter. Drawing routines work in the logical pixels of the sheet (a card is 101 by 141)
// and take a scale, so that the same source gives the sheets for a device ratio of 2.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <functional>
#include <vector>

constexpr int ANCHO_CARTA = 101, ALTO_CARTA = 141;
constexpr double RADIO_ESQUINA = 6.0; // the rounded corner of every card, in logical pixels
constexpr QRgb COLOR_MESA = qRgb(0, 128, 0);

// ---- Common (Comun.cpp) ----
void CargaFuentes();
QFont Fuente(const QString& familia, double pixeles, bool negrita = false);
QPainterPath TrazoTexto(const QString& texto, const QFont& fuente);
// Fills the text centred in the box, shrunk to fit it; with estirar the text also takes the
// whole height of the box (for corner indices that must read at a glance).
void PintaTextoEnCaja(QPainter& p, const QString& texto, const QFont& fuente, const QRectF& caja,
                      const QBrush& relleno, bool estirar = false);
void PreparaPintor(QPainter& p, double escala); // antialiased, in logical units
QImage NuevaImagen(int ancho, int alto, double escala, QColor fondo);
// Copies a whole picture into a sheet at a logical place.
void PegaEn(QImage& hoja, const QImage& celda, int x, int y, double escala);

// ---- The card outline (Contorno.cpp) ----
// Whether the centre of physical pixel (x, y) lies inside the rounded shape of a card of
// ancho by alto physical pixels. The mask and every face use this one test, so that the
// AND of the mask and the XOR of the face meet without a seam.
bool DentroCarta(int x, int y, int ancho, int alto, double radio);
QImage MascaraCarta(bool tumbada, double escala); // black inside the card, white outside
// A card face: the border, a white ground, then the drawing, and black outside the corners.
QImage PintaCarta(double escala, const std::function<void(QPainter&)>& dibujo,
                  QColor fondo = QColor(255, 255, 255));
// The same at any size in physical pixels, with the given colour outside the corners.
QImage PintaCartaEn(int anchoPx, int altoPx, double radioPx,
                    const std::function<void(QPainter&)>& dibujo, QColor fondo, QRgb fuera);

// ---- French deck (CartasFrancesas.cpp, FigurasFrancesas.cpp) ----
// Suits 1 diamonds, 2 hearts, 3 spades, 4 clubs: the French suits that descend from oros,
// copas, espadas and bastos, so that the names of the Spanish suits still fit them.
QColor ColorPaloFrances(int palo);
QPainterPath TrazoPaloFrances(int palo); // in a box of 100 by 100 centred on 0, 0
void DibujaPaloFrances(QPainter& p, int palo, QPointF centro, double alto, bool invertido);
QImage CartaFrancesa(int palo, int valor, double escala);
void DibujaFiguraFrancesa(QPainter& p, int palo, int valor);

// ---- Spanish deck (CartasEspanolas.cpp, PalosEspanoles.cpp, FigurasEspanolas.cpp) ----
QColor ColorPaloEspanol(int palo);
// One suit sign standing in a box of alto high, centred, turned by angulo degrees.
void DibujaSignoEspanol(QPainter& p, int palo, QPointF centro, double alto, double angulo = 0);
QImage CartaEspanola(int palo, int valor, double escala);
void DibujaFiguraEspanola(QPainter& p, int palo, int valor);

// ---- Shared figure parts (Personajes.cpp) ----
struct Ropa {
    QColor Manto, Forro, Adorno, Pelo;
};
void RellenaForma(QPainter& p, const QPainterPath& forma, const QBrush& relleno,
                  double linea = 0.5);
void TrazaLinea(QPainter& p, const QPainterPath& linea, double grosor, QColor color);
void DibujaCara(QPainter& p, QPointF centro, double ancho, double alto, QColor pelo, bool barba,
                bool mujer);
void DibujaCorona(QPainter& p, QRectF caja, int puntas, bool alta);

// ---- Backs and joker (Reversos.cpp, Comodin.cpp) ----
QImage Reverso(int diseno, double escala); // diseno 0 the mask, 1 to 8 the designs
QImage ReversoReducido(double escala);
QImage Comodin(double escala);

// ---- Small sheets (Fichas.cpp, Vario.cpp, Botones.cpp, Controles.cpp, Cursores.cpp) ----
QImage HojaFichas(double escala);
QImage MascaraFicha(double escala);
QImage HojaVario(double escala);
QImage HojaBotones(double escala);
QImage IconoPrograma(int lado); // the program's icon for the desktop, transparent around
QImage HojaContr(double escala);
QImage HojaNumeros(double escala);
QImage HojaSenas(double escala); // the faces of the Mus (Senas.cpp)
struct Cursor {
    int Numero;
    QImage Imagen;
    int PuntoX, PuntoY; // the hot spot
    const char* Significado;
};
std::vector<Cursor> Cursores(double escala);
