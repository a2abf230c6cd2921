// The rounded outline shared by every card: the mask, the faces, the backs and the joker.
// The table shows through the corners because the mask is white there and the pictures are
// black there: AND with the mask keeps the table, XOR with the picture leaves it as it was.
#include "Arte.h"

#include <algorithm>

namespace {
const QColor COLOR_BORDE(20, 20, 20); // the thin edge of a card, as printed card stock shows
}

bool DentroCarta(int x, int y, int ancho, int alto, double radio) {
    const double px = x + 0.5, py = y + 0.5;
    const double cx = std::clamp(px, radio, ancho - radio);
    const double cy = std::clamp(py, radio, alto - radio);
    return (px - cx) * (px - cx) + (py - cy) * (py - cy) <= radio * radio;
}

QImage MascaraCarta(bool tumbada, double escala) {
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA;
    const int alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    QImage mascara = NuevaImagen(ancho, alto, escala, Qt::white);
    for (int y = 0; y < mascara.height(); ++y)
        for (int x = 0; x < mascara.width(); ++x)
            if (DentroCarta(x, y, mascara.width(), mascara.height(), RADIO_ESQUINA * escala))
                mascara.setPixel(x, y, qRgb(0, 0, 0));
    return mascara;
}

QImage PintaCartaEn(int anchoPx, int altoPx, double radioPx,
                    const std::function<void(QPainter&)>& dibujo, QColor fondo, QRgb fuera) {
    QImage cara(anchoPx, altoPx, QImage::Format_ARGB32);
    cara.fill(COLOR_BORDE);
    {
        QPainter p(&cara);
        p.setRenderHint(QPainter::Antialiasing, true);
        p.scale(double(anchoPx) / ANCHO_CARTA, double(altoPx) / ALTO_CARTA);
        // The edge fades into the ground over a few pixels: it reads as the thickness of the
        // card, and a soft step keeps the JPEG coder from ringing into the black corners.
        const int grises[] = {140, 205};
        QPainterPath cuerpo;
        for (int i = 0; i < 3; ++i) {
            const double d = i + 1;
            cuerpo = QPainterPath();
            cuerpo.addRoundedRect(QRectF(d, d, ANCHO_CARTA - 2 * d, ALTO_CARTA - 2 * d),
                                  RADIO_ESQUINA - d * 0.8, RADIO_ESQUINA - d * 0.8);
            p.fillPath(cuerpo, i < 2 ? QColor(grises[i], grises[i], grises[i]) : fondo);
        }
        p.setClipPath(cuerpo);
        dibujo(p);
    }
    for (int y = 0; y < altoPx; ++y)
        for (int x = 0; x < anchoPx; ++x)
            if (!DentroCarta(x, y, anchoPx, altoPx, radioPx)) cara.setPixel(x, y, fuera);
    return cara;
}

QImage PintaCarta(double escala, const std::function<void(QPainter&)>& dibujo, QColor fondo) {
    const int ancho = int(ANCHO_CARTA * escala + 0.5), alto = int(ALTO_CARTA * escala + 0.5);
    return PintaCartaEn(ancho, alto, RADIO_ESQUINA * escala, dibujo, fondo, qRgb(0, 0, 0));
}
