// Picture boxes: persistent off-screen pictures that keep what is drawn on them, as the old
// desktop's picture controls did. Drawing is done by block transfers with raster operations.
#pragma once

#include <QImage>
#include <QString>

struct CajaImagen {
    QImage Imagen;    // the picture, in logical pixels
    int X = 0, Y = 0; // place on the window when the box is a control of it
    bool Visible = false;
    QString Texto; // caption or tooltip, for the boxes that carry one

    int Ancho() const { return Imagen.width(); }
    int Alto() const { return Imagen.height(); }
};

enum class OpRaster { Copia, And, Xor, Or };

// Gives the box a new size, filled with a colour; what it held is lost.
void DimensionaCaja(CajaImagen& caja, int ancho, int alto, unsigned colorRgb = 0x000000);

// BitBlt: copies a w by h block from (xs, ys) of the source to (x, y) of the target,
// combining every pixel with the raster operation. Parts outside either picture are clipped.
void Transfiere(QImage& destino, int x, int y, int ancho, int alto, const QImage& origen, int xs,
                int ys, OpRaster op);

// A quarter turn clockwise: pixel (x, y) goes to (height - 1 - y, x) of the turned picture, so
// the sheet of a seat on the left reads from the table's middle.
QImage GiraCuarto(const QImage& imagen);

// Loads a picture of the program's folder, or of the resources; a null image when missing.
QImage CargaImagen(const QString& ruta);
