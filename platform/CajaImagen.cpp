#include "platform/CajaImagen.h"

#include <algorithm>
#include <cstring>

QImage NuevaImagen(int ancho, int alto, unsigned colorRgb) {
    QImage imagen(std::max(ancho, 1) * EscalaMesa, std::max(alto, 1) * EscalaMesa,
                  QImage::Format_RGB32);
    imagen.setDevicePixelRatio(EscalaMesa);
    imagen.fill(QColor::fromRgb(0xFF000000u | colorRgb));
    return imagen;
}

void DimensionaCaja(CajaImagen& caja, int ancho, int alto, unsigned colorRgb) {
    caja.Imagen = NuevaImagen(ancho, alto, colorRgb);
}

QImage CopiaLogica(const QImage& imagen, int x, int y, int ancho, int alto) {
    const double k = imagen.devicePixelRatio();
    QImage parte = imagen.copy(qRound(x * k), qRound(y * k), qRound(ancho * k), qRound(alto * k));
    parte.setDevicePixelRatio(k);
    return parte;
}

QImage AEscalaMesa(const QImage& sencilla, const QImage& doble) {
    if (sencilla.isNull() || EscalaMesa == 1) return sencilla;
    QImage resultado;
    if (!doble.isNull() && doble.width() == sencilla.width() * EscalaMesa &&
        doble.height() == sencilla.height() * EscalaMesa)
        resultado = doble.convertToFormat(QImage::Format_RGB32);
    else
        resultado = sencilla
                        .scaled(sencilla.width() * EscalaMesa, sencilla.height() * EscalaMesa,
                                Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_RGB32);
    resultado.setDevicePixelRatio(EscalaMesa);
    return resultado;
}

void Transfiere(QImage& destino, int x, int y, int ancho, int alto, const QImage& origen, int xs,
                int ys, OpRaster op) {
    if (destino.isNull() || origen.isNull()) return;
    // Table pixels to picture pixels; a source of another resolution is brought to the target's.
    const int k = qRound(destino.devicePixelRatio());
    QImage ajustada;
    const QImage* base = &origen;
    if (qRound(origen.devicePixelRatio()) != k) {
        const double f = k / origen.devicePixelRatio();
        ajustada = origen.scaled(qRound(origen.width() * f), qRound(origen.height() * f),
                                 Qt::IgnoreAspectRatio, Qt::FastTransformation);
        base = &ajustada;
    }
    x *= k;
    y *= k;
    ancho *= k;
    alto *= k;
    xs *= k;
    ys *= k;
    const QImage& origenPixeles = *base;
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
    ancho = std::min({ancho, destino.width() - x, origenPixeles.width() - xs});
    alto = std::min({alto, destino.height() - y, origenPixeles.height() - ys});
    if (ancho <= 0 || alto <= 0) return;
    const QImage fuente = origenPixeles.format() == QImage::Format_RGB32 ||
                                  origenPixeles.format() == QImage::Format_ARGB32
                              ? origenPixeles
                              : origenPixeles.convertToFormat(QImage::Format_RGB32);
    if (destino.format() != QImage::Format_RGB32 && destino.format() != QImage::Format_ARGB32) {
        destino = destino.convertToFormat(QImage::Format_RGB32);
        destino.setDevicePixelRatio(k);
    }
    for (int j = 0; j < alto; ++j) {
        auto* d = reinterpret_cast<QRgb*>(destino.scanLine(y + j)) + x;
        const auto* s = reinterpret_cast<const QRgb*>(fuente.constScanLine(ys + j)) + xs;
        switch (op) {
        case OpRaster::Copia:
            // An RGB32 row already carries its opaque alpha: it is copied whole.
            if (fuente.format() == QImage::Format_RGB32)
                std::memcpy(d, s, sizeof(QRgb) * static_cast<size_t>(ancho));
            else
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
    girada.setDevicePixelRatio(imagen.devicePixelRatio());
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
