// Picture boxes: persistent off-screen pictures that keep what is drawn on them, as the old
// desktop's picture controls did. Drawing is done by block transfers with raster operations.
#pragma once

#include <QImage>
#include <QRect>
#include <QString>

// Pixels of the screen for each pixel of the table: 2 on a dense screen, where every picture
// is kept at double resolution so that cards stay sharp. Drawing always speaks of table pixels.
inline int EscalaMesa = 1;

struct CajaImagen {
    QImage Imagen;    // the picture, EscalaMesa screen pixels for each table pixel
    int X = 0, Y = 0; // place on the window when the box is a control of it
    bool Visible = false;
    QString Texto; // caption or tooltip, for the boxes that carry one

    int Ancho() const { return AnchoLogico(Imagen); }
    int Alto() const { return AltoLogico(Imagen); }
    static int AnchoLogico(const QImage& i) { return qRound(i.width() / i.devicePixelRatio()); }
    static int AltoLogico(const QImage& i) { return qRound(i.height() / i.devicePixelRatio()); }
};

// A new picture of a size in table pixels, at the table's resolution, filled with a colour.
QImage NuevaImagen(int ancho, int alto, unsigned colorRgb = 0x000000);
// A part of a picture, given in table pixels; it keeps the picture's resolution.
QImage CopiaLogica(const QImage& imagen, int x, int y, int ancho, int alto);
// A sheet made in table pixels, brought to the table's resolution: its double-size drawing when
// there is one of the right size, else the same picture enlarged.
QImage AEscalaMesa(const QImage& sencilla, const QImage& doble = QImage());

// While true, nothing is painted on any picture box: the benchmark times the games alone with it.
// Play and tests never set it; the table's picture is then whatever was last painted.
inline bool PinturaOmitida = false;

// Table pixels written by the transfers and fills so far: the benchmark tells what a hand draws.
inline long long PixelesPintados = 0;

enum class OpRaster { Copia, And, Xor, Or };

// Gives the box a new size, filled with a colour; what it held is lost.
void DimensionaCaja(CajaImagen& caja, int ancho, int alto, unsigned colorRgb = 0x000000);

// BitBlt: copies a w by h block from (xs, ys) of the source to (x, y) of the target,
// combining every pixel with the raster operation. Parts outside either picture are clipped.
// Coordinates are table pixels; both pictures are taken at the target's resolution.
void Transfiere(QImage& destino, int x, int y, int ancho, int alto, const QImage& origen, int xs,
                int ys, OpRaster op);

// The two transfers of a masked picture in one pass: AND with the mask at (xm, ym), then XOR
// with the picture at (xi, yi). The same pixels as the two transfers one after the other.
void TransfiereConMascara(QImage& destino, int x, int y, int ancho, int alto, const QImage& mascara,
                          int xm, int ym, const QImage& imagen, int xi, int yi);

// Fills a block, in table pixels, with one colour; parts outside the picture are clipped.
void Rellena(QImage& destino, int x, int y, int ancho, int alto, unsigned colorRgb);

// One picture may be watched: every block drawn on it is told, in table pixels, to the routine
// given, so the table knows which of its parts still show what it last drew there. Drawing by
// other means (a painter writing text) tells it with AvisaEscritura.
void VigilaEscrituras(const QImage* imagen, void (*aviso)(const QRect& zona));
void AvisaEscritura(const QImage& destino, const QRect& zona);

// A quarter turn clockwise: pixel (x, y) goes to (height - 1 - y, x) of the turned picture, so
// the sheet of a seat on the left reads from the table's middle.
QImage GiraCuarto(const QImage& imagen);

// Loads a picture of the program's folder, or of the resources; a null image when missing.
QImage CargaImagen(const QString& ruta);
