// The sheet of assorted small pictures (Pic_BmpVario): the seat icons, the pass mark, the
// round mask of the chips, the two faces of the big button, small suit marks and the arrows of
// the series buttons. Everything that is copied plainly onto the table has the table's green
// round it.
#include "Arte.h"

#include <cmath>

namespace {

const QColor TINTA(24, 24, 28), ORO_CLARO(255, 232, 130), ORO(232, 176, 40),
    ORO_OSCURO(160, 104, 16);

// The icon of a seat: a golden medal with the seat's number, on a ribbon of its own colour.
void DibujaMedalla(QPainter& p, int seat) {
    const QColor cintas[] = {QColor(200, 36, 44), QColor(40, 90, 200), QColor(140, 60, 170),
                             QColor(240, 140, 30)};
    const QColor cinta = cintas[seat - 1];
    for (int lado : {-1, 1}) {
        QPainterPath c;
        c.moveTo(16 + lado * 3, 1);
        c.lineTo(16 + lado * 10, 1);
        c.lineTo(16 + lado * 5, 15);
        c.lineTo(16 - lado * 1, 15);
        c.closeSubpath();
        RellenaForma(p, c, lado < 0 ? cinta : cinta.darker(130), 0.6);
    }
    const QPointF c(16, 19.5);
    QRadialGradient g(c + QPointF(-3, -4), 13);
    g.setColorAt(0, ORO_CLARO);
    g.setColorAt(0.7, ORO);
    g.setColorAt(1, ORO_OSCURO);
    QPainterPath disco;
    for (int i = 0; i < 24; ++i) { // a scalloped rim
        const double a = i * M_PI / 12, r = i % 2 ? 11.2 : 12.2;
        const QPointF q = c + QPointF(r * std::cos(a), r * std::sin(a));
        if (i == 0)
            disco.moveTo(q);
        else
            disco.lineTo(q);
    }
    disco.closeSubpath();
    RellenaForma(p, disco, g, 0.7);
    p.setPen(QPen(ORO_OSCURO, 0.7));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(c, 8.6, 8.6);
    PintaTextoEnCaja(p, QString::number(seat), Fuente("DejaVu Sans", 20, true),
                     QRectF(c.x() - 5, c.y() - 6, 10, 12), QColor(110, 60, 0), true);
}

// The pass mark: a round red sign with a white bar, as a road's no-entry sign.
void DibujaMarcaPaso(QPainter& p) {
    const QPointF c(16, 16);
    QRadialGradient g(c + QPointF(-4, -5), 18);
    g.setColorAt(0, QColor(240, 80, 80));
    g.setColorAt(1, QColor(170, 10, 20));
    QPainterPath disco;
    disco.addEllipse(c, 14, 14);
    RellenaForma(p, disco, g, 1.0);
    p.setPen(QPen(Qt::white, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(c, 12.2, 12.2);
    QPainterPath barra;
    barra.addRoundedRect(QRectF(6, 13, 20, 6), 1.5, 1.5);
    RellenaForma(p, barra, Qt::white, 0.5);
}

// The big button of the bar: a green bevelled plate; the program writes its lines on it.
void DibujaContinuar(QPainter& p, bool pulsado) {
    const QRectF r(0, 0, 86, 36);
    QLinearGradient g(0, 0, 0, 36);
    g.setColorAt(0, pulsado ? QColor(40, 140, 50) : QColor(150, 230, 140));
    g.setColorAt(0.5, pulsado ? QColor(60, 160, 66) : QColor(90, 196, 90));
    g.setColorAt(1, pulsado ? QColor(90, 190, 90) : QColor(40, 140, 50));
    p.fillRect(r, g);
    const QColor claro(220, 255, 210), oscuro(10, 70, 20);
    p.setPen(QPen(pulsado ? oscuro : claro, 2));
    p.drawLine(QPointF(1, 1), QPointF(85, 1));
    p.drawLine(QPointF(1, 1), QPointF(1, 35));
    p.setPen(QPen(pulsado ? claro : oscuro, 2));
    p.drawLine(QPointF(1, 35), QPointF(85, 35));
    p.drawLine(QPointF(85, 1), QPointF(85, 35));
    p.setPen(QPen(TINTA, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(0.5, 0.5, 85, 35));
}

// The Spanish signs at 7 by 7 are reduced to their silhouettes: a coin, a cup, a sword and
// a club, each in its suit's colour, since the full drawings blur at that size.
void DibujaSignoDiminuto(QPainter& p, int palo, QPointF c) {
    const QColor color = ColorPaloEspanol(palo);
    QPainterPath s;
    switch (palo) {
    case 1:
        s.addEllipse(c, 3.1, 3.1);
        p.fillPath(s, QColor(236, 178, 36));
        p.strokePath(s, QPen(color.darker(120), 0.8));
        return;
    case 2:
        s.moveTo(c + QPointF(-3, -3.2));
        s.lineTo(c + QPointF(3, -3.2));
        s.quadTo(c + QPointF(3, 0.5), c + QPointF(0.6, 0.6));
        s.lineTo(c + QPointF(0.6, 2.2));
        s.lineTo(c + QPointF(2.2, 3.3));
        s.lineTo(c + QPointF(-2.2, 3.3));
        s.lineTo(c + QPointF(-0.6, 2.2));
        s.lineTo(c + QPointF(-0.6, 0.6));
        s.quadTo(c + QPointF(-3, 0.5), c + QPointF(-3, -3.2));
        p.fillPath(s, color);
        return;
    case 3:
        s.moveTo(c + QPointF(3, -3));
        s.lineTo(c + QPointF(-2, 2));
        TrazaLinea(p, s, 1.5, color);
        s = QPainterPath();
        s.moveTo(c + QPointF(-2.6, -0.2));
        s.lineTo(c + QPointF(0.2, 2.6));
        TrazaLinea(p, s, 1.1, QColor(190, 120, 0));
        return;
    default:
        s.moveTo(c + QPointF(2.6, -2.6));
        s.lineTo(c + QPointF(-2.4, 2.4));
        TrazaLinea(p, s, 2.3, color);
        return;
    }
}

void DibujaFlecha(QPainter& p, bool derecha) {
    QPainterPath f;
    const double s = derecha ? 1 : -1;
    f.moveTo(8 - s * 5, 5.5);
    f.lineTo(8, 5.5);
    f.lineTo(8, 2);
    f.lineTo(8 + s * 6.5, 8);
    f.lineTo(8, 14);
    f.lineTo(8, 10.5);
    f.lineTo(8 - s * 5, 10.5);
    f.closeSubpath();
    RellenaForma(p, f, QColor(255, 226, 60), 0.9);
}

} // namespace

QImage HojaVario(double escala) {
    QImage hoja = NuevaImagen(369, 56, escala, QColor(COLOR_MESA));
    QPainter p(&hoja);
    PreparaPintor(p, escala);
    for (int seat = 1; seat <= 4; ++seat) {
        p.save();
        p.translate((seat - 1) * 32, 0);
        DibujaMedalla(p, seat);
        p.restore();
    }
    p.save();
    p.translate(129, 0);
    DibujaMarcaPaso(p);
    p.restore();
    for (int pulsado = 0; pulsado < 2; ++pulsado) {
        p.save();
        p.translate(196 + pulsado * 87, 0);
        DibujaContinuar(p, pulsado);
        p.restore();
    }
    // Suit marks of 7 by 7 for the statistics pages, French then Spanish.
    for (int palo = 1; palo <= 4; ++palo) {
        p.fillRect(QRectF((palo - 1) * 8, 40, 7, 7), Qt::white);
        DibujaPaloFrances(p, palo, QPointF((palo - 1) * 8 + 3.5, 43.5), 6.4, false);
        p.fillRect(QRectF(32 + (palo - 1) * 8, 40, 7, 7), Qt::white);
        DibujaSignoDiminuto(p, palo, QPointF(32 + (palo - 1) * 8 + 3.5, 43.5));
    }
    for (int derecha = 0; derecha < 2; ++derecha) {
        p.save();
        p.translate(64 + derecha * 17, 40);
        DibujaFlecha(p, derecha);
        p.restore();
    }
    p.end();
    PegaEn(hoja, MascaraFicha(escala), 162, 0, escala);
    return hoja;
}
