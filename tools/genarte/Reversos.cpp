// The eight card backs, the mask of the rounded corners (cell 0 of the strip) and the reduced
// back of the won tricks. Every back has a white margin and a patterned panel, symmetric under
// a half turn so that it reads the same from both sides of the table.
#include "Arte.h"

#include <cmath>

namespace {

const QRectF PANEL(6, 6, ANCHO_CARTA - 12, ALTO_CARTA - 12);
constexpr double RADIO_PANEL = 4;

QPainterPath Panel(double margen = 0) {
    QPainterPath t;
    t.addRoundedRect(PANEL.adjusted(margen, margen, -margen, -margen), RADIO_PANEL, RADIO_PANEL);
    return t;
}

// Lattice of crossing lines, the classic back of a casino deck.
void Celosia(QPainter& p, QColor fondo, QColor linea, double paso, double grosor) {
    p.fillPath(Panel(), fondo);
    p.save();
    p.setClipPath(Panel(), Qt::IntersectClip);
    p.setPen(QPen(linea, grosor));
    for (double d = -ALTO_CARTA; d < ANCHO_CARTA + ALTO_CARTA; d += paso) {
        p.drawLine(QPointF(d, 0), QPointF(d + ALTO_CARTA, ALTO_CARTA));
        p.drawLine(QPointF(d, ALTO_CARTA), QPointF(d + ALTO_CARTA, 0));
    }
    p.restore();
}

void Marco(QPainter& p, QColor color, double margen, double grosor) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(color, grosor));
    p.drawPath(Panel(margen));
}

void Medallon(QPainter& p, QPointF c, double r, QColor fondo, QColor linea) {
    QPainterPath m;
    m.addEllipse(c, r, r * 1.25);
    p.fillPath(m, fondo);
    p.setPen(QPen(linea, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawPath(m);
    p.drawEllipse(c, r - 3, r * 1.25 - 3);
}

void Estrella(QPainter& p, QPointF c, double r, int puntas, QColor color, double giro = -90) {
    QPainterPath e;
    for (int i = 0; i < 2 * puntas; ++i) {
        const double a = (giro + i * 180.0 / puntas) * M_PI / 180;
        const double rr = i % 2 ? r * 0.45 : r;
        const QPointF q = c + QPointF(rr * std::cos(a), rr * std::sin(a));
        if (i == 0)
            e.moveTo(q);
        else
            e.lineTo(q);
    }
    e.closeSubpath();
    p.fillPath(e, color);
}

// 1: red lattice with a white double frame.
void Reverso1(QPainter& p) {
    Celosia(p, QColor(176, 22, 34), QColor(255, 255, 255, 200), 7, 0.8);
    Marco(p, Qt::white, 2.5, 1.4);
    Marco(p, Qt::white, 5, 0.6);
}

// 2: blue lattice with a medallion and a star.
void Reverso2(QPainter& p) {
    Celosia(p, QColor(26, 60, 150), QColor(160, 190, 255, 170), 6, 0.7);
    Marco(p, Qt::white, 2.5, 1.4);
    const QPointF c(ANCHO_CARTA / 2.0, ALTO_CARTA / 2.0);
    Medallon(p, c, 22, QColor(18, 40, 110), Qt::white);
    Estrella(p, c, 15, 8, QColor(250, 214, 90));
    Estrella(p, c, 7, 8, Qt::white, -67.5);
}

// 3: green tartan.
void Reverso3(QPainter& p) {
    p.fillPath(Panel(), QColor(22, 92, 52));
    p.save();
    p.setClipPath(Panel(), Qt::IntersectClip);
    // Wide dark bands first, then the thin coloured threads over them.
    for (int i = 0; i < 12; ++i) {
        p.fillRect(QRectF(4 + i * 9, 0, 4, ALTO_CARTA), QColor(10, 40, 80, 140));
        p.fillRect(QRectF(0, 4.5 + i * 12, ANCHO_CARTA, 5), QColor(10, 40, 80, 140));
    }
    for (int i = 0; i < 12; ++i) {
        p.fillRect(QRectF(9.6 + i * 9, 0, 0.8, ALTO_CARTA), QColor(230, 200, 60, 220));
        p.fillRect(QRectF(0, 11.4 + i * 12, ANCHO_CARTA, 0.8), QColor(210, 40, 50, 220));
    }
    p.restore();
    Marco(p, QColor(250, 240, 210), 2.5, 1.4);
}

// 4: burgundy with a golden rosette in the middle and fans in the corners.
void Reverso4(QPainter& p) {
    QRadialGradient g(QPointF(ANCHO_CARTA / 2.0, ALTO_CARTA / 2.0), 80);
    g.setColorAt(0, QColor(150, 20, 50));
    g.setColorAt(1, QColor(80, 8, 28));
    p.fillPath(Panel(), g);
    const QColor oro(236, 190, 80);
    const QPointF c(ANCHO_CARTA / 2.0, ALTO_CARTA / 2.0);
    p.save();
    p.setClipPath(Panel(), Qt::IntersectClip);
    p.setPen(QPen(oro, 0.7));
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 24; ++i) { // petals of the rosette
        p.save();
        p.translate(c);
        p.rotate(i * 15);
        p.drawEllipse(QPointF(0, -16), 5, 16);
        p.restore();
    }
    for (int esquina = 0; esquina < 4; ++esquina) { // fans in the corners
        const QPointF e(esquina % 2 ? PANEL.right() : PANEL.left(),
                        esquina / 2 ? PANEL.bottom() : PANEL.top());
        for (double r = 6; r < 30; r += 5) p.drawEllipse(e, r, r);
    }
    p.restore();
    Estrella(p, c, 8, 8, oro);
    Marco(p, oro, 2.5, 1.2);
    Marco(p, oro, 4.5, 0.5);
}

// 5: night blue with a field of golden stars.
void Reverso5(QPainter& p) {
    p.fillPath(Panel(), QColor(18, 26, 70));
    p.save();
    p.setClipPath(Panel(), Qt::IntersectClip);
    for (int fila = 0; fila < 11; ++fila)
        for (int col = 0; col < 7 - fila % 2; ++col) {
            const QPointF c(14 + col * 12.2 + (fila % 2) * 6.1, 14 + fila * 11.3);
            Estrella(p, c, 3.6, 5, QColor(240, 200, 80));
        }
    p.restore();
    Marco(p, QColor(240, 200, 80), 2.5, 1.2);
}

// 6: concentric frames in burgundy and gold, like an engraved banknote.
void Reverso6(QPainter& p) {
    p.fillPath(Panel(), QColor(120, 24, 40));
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 16; ++i) {
        const double m = 2.5 + i * 2.6;
        if (PANEL.width() - 2 * m < 4) break;
        p.setPen(QPen(i % 2 ? QColor(236, 196, 110) : QColor(255, 235, 190), i % 2 ? 0.5 : 0.9));
        QPainterPath t;
        t.addRoundedRect(PANEL.adjusted(m, m, -m, -m), RADIO_PANEL + i * 0.4,
                         RADIO_PANEL + i * 0.4);
        p.drawPath(t);
    }
    const QPointF c(ANCHO_CARTA / 2.0, ALTO_CARTA / 2.0);
    QPainterPath rombo;
    rombo.moveTo(c + QPointF(0, -18));
    rombo.lineTo(c + QPointF(11, 0));
    rombo.lineTo(c + QPointF(0, 18));
    rombo.lineTo(c + QPointF(-11, 0));
    rombo.closeSubpath();
    p.fillPath(rombo, QColor(236, 196, 110));
}

// 7: teal fish scales.
void Reverso7(QPainter& p) {
    p.fillPath(Panel(), QColor(0, 110, 120));
    p.save();
    p.setClipPath(Panel(), Qt::IntersectClip);
    p.setBrush(Qt::NoBrush);
    const double r = 6;
    for (int fila = 0; fila < 26; ++fila)
        for (int col = -1; col < 10; ++col) {
            const QPointF c(col * 2 * r + (fila % 2) * r + 4, fila * r);
            p.setPen(QPen(QColor(170, 235, 230), 0.8));
            p.drawArc(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), 180 * 16, 180 * 16);
        }
    p.restore();
    Marco(p, Qt::white, 2.5, 1.4);
}

// 8: black and gold sunburst.
void Reverso8(QPainter& p) {
    p.fillPath(Panel(), QColor(26, 24, 28));
    const QColor oro(214, 170, 70);
    const QPointF c(ANCHO_CARTA / 2.0, ALTO_CARTA / 2.0);
    p.save();
    p.setClipPath(Panel(), Qt::IntersectClip);
    for (int i = 0; i < 36; ++i) {
        const double a0 = i * 10 * M_PI / 180, a1 = (i * 10 + 5) * M_PI / 180;
        QPainterPath rayo;
        rayo.moveTo(c);
        rayo.lineTo(c + QPointF(120 * std::cos(a0), 120 * std::sin(a0)));
        rayo.lineTo(c + QPointF(120 * std::cos(a1), 120 * std::sin(a1)));
        rayo.closeSubpath();
        p.fillPath(rayo, QColor(oro.red(), oro.green(), oro.blue(), 90));
    }
    p.restore();
    QPainterPath disco;
    disco.addEllipse(c, 13, 13);
    p.fillPath(disco, QColor(26, 24, 28));
    p.setPen(QPen(oro, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawPath(disco);
    Estrella(p, c, 9, 4, oro, -90);
    Marco(p, oro, 2.5, 1.2);
}

void DibujaReverso(QPainter& p, int diseno) {
    switch (diseno) {
    case 1:
        Reverso1(p);
        break;
    case 2:
        Reverso2(p);
        break;
    case 3:
        Reverso3(p);
        break;
    case 4:
        Reverso4(p);
        break;
    case 5:
        Reverso5(p);
        break;
    case 6:
        Reverso6(p);
        break;
    case 7:
        Reverso7(p);
        break;
    case 8:
        Reverso8(p);
        break;
    }
}

} // namespace

QImage Reverso(int diseno, double escala) {
    if (diseno == 0) return MascaraCarta(false, escala);
    return PintaCarta(escala, [&](QPainter& p) { DibujaReverso(p, diseno); });
}

QImage ReversoReducido(double escala) {
    // Drawn at full size and reduced by area, so that the fine lattice doesn't turn into a
    // moiré. It is laid on the table with a plain copy, so its corners take the table's colour.
    const int ancho = int(76 * escala + 0.5), alto = int(107 * escala + 0.5);
    QImage reducido = Reverso(1, 4 * escala)
                          .scaled(ancho, alto, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                          .convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < alto; ++y)
        for (int x = 0; x < ancho; ++x)
            if (!DentroCarta(x, y, ancho, alto, 4.5 * escala)) reducido.setPixel(x, y, COLOR_MESA);
    return reducido;
}
