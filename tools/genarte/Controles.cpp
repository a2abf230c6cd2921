// The skin of the action buttons (Pic_BmpContr) and the digits of the betting board
// (Pic_NumerosCristal).
#include "Arte.h"

namespace {

// The action buttons are 23 high; the ends are 8 wide and the column between them is the
// one that is repeated.
constexpr int ALTO_PIEL = 23, EXTREMO = 8, ANCHO_PIEL = 2 * EXTREMO + 1;
constexpr int ANCHO_CIFRA = 10, ALTO_CIFRA = 17;

// One state of the skin: a golden plaque with round ends on the table's green. The program
// copies the left end, repeats the middle column and closes with the right end.
void DibujaPiel(QPainter& p, bool pulsado) {
    p.fillRect(QRectF(0, 0, ANCHO_PIEL, ALTO_PIEL), QColor(COLOR_MESA));
    QPainterPath placa;
    placa.addRoundedRect(QRectF(0.5, 0.5, ANCHO_PIEL - 1, ALTO_PIEL - 1), 7.5, 7.5);
    QLinearGradient g(0, 0, 0, ALTO_PIEL);
    g.setColorAt(0, pulsado ? QColor(200, 146, 40) : QColor(255, 240, 180));
    g.setColorAt(0.5, pulsado ? QColor(222, 172, 64) : QColor(246, 206, 100));
    g.setColorAt(1, pulsado ? QColor(246, 210, 120) : QColor(206, 150, 40));
    p.fillPath(placa, g);
    p.strokePath(placa, QPen(QColor(90, 56, 16), 1));
    QPainterPath brillo;
    brillo.addRoundedRect(QRectF(2, 2, ANCHO_PIEL - 4, ALTO_PIEL - 4), 6, 6);
    p.strokePath(brillo,
                 QPen(pulsado ? QColor(150, 100, 20, 160) : QColor(255, 255, 240, 170), 0.8));
}

// The seven segments of a digit: which are lit for 0 to 9, as a, b, c, d, e, f, g.
const char* const SEGMENTOS[] = {"abcdef", "bc",     "abged", "abgcd",   "fgbc",
                                 "afgcd",  "afgedc", "abc",   "abcdefg", "abcdfg"};

constexpr double G = 1.15; // half the thickness of a segment

QPainterPath Segmento(char s) {
    // A segment is a long hexagon; the horizontal ones at the top, middle and bottom.
    auto horizontal = [](double y) {
        QPainterPath h;
        h.moveTo(2.6, y);
        h.lineTo(2.6 + G, y - G);
        h.lineTo(7.4 - G, y - G);
        h.lineTo(7.4, y);
        h.lineTo(7.4 - G, y + G);
        h.lineTo(2.6 + G, y + G);
        h.closeSubpath();
        return h;
    };
    auto vertical = [](double x, double y0, double y1) {
        QPainterPath v;
        v.moveTo(x, y0);
        v.lineTo(x + G, y0 + G);
        v.lineTo(x + G, y1 - G);
        v.lineTo(x, y1);
        v.lineTo(x - G, y1 - G);
        v.lineTo(x - G, y0 + G);
        v.closeSubpath();
        return v;
    };
    switch (s) {
    case 'a':
        return horizontal(1.8);
    case 'g':
        return horizontal(8.5);
    case 'd':
        return horizontal(15.2);
    case 'f':
        return vertical(1.9, 2.2, 8.1);
    case 'b':
        return vertical(8.1, 2.2, 8.1);
    case 'e':
        return vertical(1.9, 8.9, 14.8);
    default:
        return vertical(8.1, 8.9, 14.8);
    }
}

} // namespace

QImage HojaContr(double escala) {
    QImage hoja = NuevaImagen(ANCHO_PIEL, 2 * ALTO_PIEL, escala, QColor(COLOR_MESA));
    QPainter p(&hoja);
    PreparaPintor(p, escala);
    DibujaPiel(p, false);
    p.translate(0, ALTO_PIEL);
    DibujaPiel(p, true);
    return hoja;
}

QImage HojaNumeros(double escala) {
    // Digits 0 to 9, then a blank (all segments dark) and a minus sign for the board's figures.
    QImage hoja = NuevaImagen(12 * ANCHO_CIFRA, ALTO_CIFRA, escala, QColor(8, 24, 14));
    QPainter p(&hoja);
    PreparaPintor(p, escala);
    for (int cifra = 0; cifra <= 11; ++cifra) {
        p.save();
        p.translate(cifra * ANCHO_CIFRA, 0);
        // Unlit segments show faintly through the glass, as on a real display.
        for (char s : QByteArray("abcdefg")) {
            const bool encendido = QByteArray(SEGMENTOS[cifra]).contains(s);
            p.fillPath(Segmento(s), encendido ? QColor(150, 255, 160) : QColor(26, 60, 36));
        }
        p.restore();
    }
    return hoja;
}
