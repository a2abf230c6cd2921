#include "platform/CajaImagen.h"

#include <algorithm>

void DimensionaCaja(CajaImagen& caja, int ancho, int alto, unsigned colorRgb) {
    caja.Imagen = QImage(std::max(ancho, 1), std::max(alto, 1), QImage::Format_RGB32);
    caja.Imagen.fill(QColor::fromRgb(0xFF000000u | colorRgb));
}

void Transfiere(QImage& destino, int x, int y, int ancho, int alto, const QImage& origen, int xs,
                int ys, OpRaster op) {
    if (destino.isNull() || origen.isNull()) return;
    // Clip to both pictures, moving the two corners together.
    if (x < 0) {
        xs -= x;
        ancho += x;
        x = 0;
    }
    if (y < 0) {
        ys -= y;
        alto += y;
        y = 0;
    }
    if (xs < 0) {
        x -= xs;
        ancho += xs;
        xs = 0;
    }
    if (ys < 0) {
        y -= ys;
        alto += ys;
        ys = 0;
    }
    ancho = std::min({ancho, destino.width() - x, origen.width() - xs});
    alto = std::min({alto, destino.height() - y, origen.height() - ys});
    if (ancho <= 0 || alto <= 0) return;
    const QImage fuente =
        origen.format() == QImage::Format_RGB32 || origen.format() == QImage::Format_ARGB32
            ? origen
            : origen.convertToFormat(QImage::Format_RGB32);
    if (destino.format() != QImage::Format_RGB32 && destino.format() != QImage::Format_ARGB32)
        destino = destino.convertToFormat(QImage::Format_RGB32);
    for (int j = 0; j < alto; ++j) {
        auto* d = reinterpret_cast<QRgb*>(destino.scanLine(y + j)) + x;
        const auto* s = reinterpret_cast<const QRgb*>(fuente.constScanLine(ys + j)) + xs;
        switch (op) {
        case OpRaster::Copia:
            for (int i = 0; i < ancho; ++i) d[i] = s[i] | 0xFF000000u;
            break;
        case OpRaster::And:
            for (int i = 0; i < ancho; ++i) d[i] = (d[i] & s[i]) | 0xFF000000u;
            break;
        case OpRaster::Xor:
            for (int i = 0; i < ancho; ++i) d[i] = (d[i] ^ s[i]) | 0xFF000000u;
            break;
        case OpRaster::Or:
            for (int i = 0; i < ancho; ++i) d[i] = (d[i] | s[i]) | 0xFF000000u;
            break;
        }
    }
}

QImage GiraCuarto(const QImage& imagen) {
    const QImage fuente = imagen.convertToFormat(QImage::Format_RGB32);
    const int w = fuente.width(), h = fuente.height();
    QImage girada(h, w, QImage::Format_RGB32);
    // The old picture rows ran bottom-up, where the turn reads (x, y) -> (y, h - 1 - x);
    // on our top-down rows that is a clockwise turn: (x, y) -> (h - 1 - y, x).
    for (int y = 0; y < h; ++y) {
        const auto* s = reinterpret_cast<const QRgb*>(fuente.constScanLine(y));
        for (int x = 0; x < w; ++x) reinterpret_cast<QRgb*>(girada.scanLine(x))[h - 1 - y] = s[x];
    }
    return girada;
}

QImage CargaImagen(const QString& ruta) {
    QImage imagen(ruta);
    if (imagen.isNull()) return imagen;
    return imagen.convertToFormat(QImage::Format_RGB32);
}
