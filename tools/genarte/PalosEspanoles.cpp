// The four signs of the Spanish deck: the golden coin, the cup, the sword and the club, each
// drawn standing in a box 100 high centred on 0, 0 and scaled by the caller.
#include "Arte.h"

#include <cmath>

namespace {

const QColor TINTA(40, 30, 28), ORO_CLARO(255, 228, 110), ORO(236, 178, 36),
    ORO_OSCURO(176, 108, 18), ROJO(196, 32, 36), AZUL(36, 86, 176), AZUL_CLARO(120, 170, 230),
    MADERA_OSCURA(120, 70, 30);

QBrush Degradado(QPointF a, QPointF b, QColor claro, QColor oscuro) {
    QLinearGradient g(a, b);
    g.setColorAt(0, claro);
    g.setColorAt(1, oscuro);
    return g;
}

void DibujaOro(QPainter& p) {
    QRadialGradient g(QPointF(-14, -16), 70);
    g.setColorAt(0, ORO_CLARO);
    g.setColorAt(0.6, ORO);
    g.setColorAt(1, ORO_OSCURO);
    QPainterPath disco;
    disco.addEllipse(QPointF(0, 0), 49, 49);
    RellenaForma(p, disco, g, 2.2);
    // A rim of beads, an inner ring and a sun in the middle, as struck on the old coins.
    p.setPen(QPen(ROJO, 3.2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(0, 0), 41, 41);
    p.setPen(Qt::NoPen);
    p.setBrush(ORO_OSCURO);
    for (int i = 0; i < 24; ++i) {
        const double a = i * M_PI / 12;
        p.drawEllipse(QPointF(45.3 * std::cos(a), 45.3 * std::sin(a)), 1.9, 1.9);
    }
    QPainterPath sol;
    for (int i = 0; i < 16; ++i) {
        const double a = i * M_PI / 8, b = a + M_PI / 16, c = a - M_PI / 16;
        const double r = i % 2 ? 27 : 33;
        sol.moveTo(11 * std::cos(c), 11 * std::sin(c));
        sol.lineTo(r * std::cos(a), r * std::sin(a));
        sol.lineTo(11 * std::cos(b + M_PI / 16), 11 * std::sin(b + M_PI / 16));
    }
    sol.setFillRule(Qt::WindingFill);
    RellenaForma(p, sol, ROJO, 0.8);
    QPainterPath centro;
    centro.addEllipse(QPointF(0, 0), 13, 13);
    RellenaForma(p, centro, Degradado(QPointF(-8, -8), QPointF(8, 8), ORO_CLARO, ORO), 1.4);
    p.setBrush(AZUL);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(0, 0), 5, 5);
}

void DibujaCopa(QPainter& p) {
    // Cup: a wide bowl with a red band, a knotted stem and a round foot.
    QPainterPath pie;
    pie.moveTo(-24, 50);
    pie.cubicTo(-24, 40, -10, 38, -6, 30);
    pie.lineTo(6, 30);
    pie.cubicTo(10, 38, 24, 40, 24, 50);
    pie.closeSubpath();
    RellenaForma(p, pie, Degradado(QPointF(-24, 0), QPointF(24, 0), ORO_CLARO, ORO_OSCURO), 1.8);
    QPainterPath tallo;
    tallo.addRect(QRectF(-5, 2, 10, 29));
    RellenaForma(p, tallo, Degradado(QPointF(-5, 0), QPointF(5, 0), ORO_CLARO, ORO_OSCURO), 1.6);
    QPainterPath nudo;
    nudo.addEllipse(QPointF(0, 15), 10, 6.5);
    RellenaForma(p, nudo, Degradado(QPointF(-10, 0), QPointF(10, 0), AZUL_CLARO, AZUL), 1.6);
    QPainterPath caliz;
    caliz.moveTo(-31, -44);
    caliz.lineTo(31, -44);
    caliz.cubicTo(31, -14, 22, 2, 0, 4);
    caliz.cubicTo(-22, 2, -31, -14, -31, -44);
    caliz.closeSubpath();
    RellenaForma(p, caliz, Degradado(QPointF(-31, 0), QPointF(31, 0), ORO_CLARO, ORO_OSCURO), 2.0);
    QPainterPath banda;
    banda.moveTo(-30.5, -36);
    banda.lineTo(30.5, -36);
    banda.lineTo(29.5, -26);
    banda.lineTo(-29.5, -26);
    banda.closeSubpath();
    RellenaForma(p, banda, ROJO, 1.2);
    p.setPen(Qt::NoPen);
    for (int i = -2; i <= 2; ++i) { // gems on the band
        p.setBrush(i % 2 ? ORO_CLARO : AZUL_CLARO);
        p.drawEllipse(QPointF(i * 11.5, -31), 3.2, 3.2);
    }
    QPainterPath boca; // the open mouth of the cup
    boca.addEllipse(QPointF(0, -44), 31, 5.5);
    RellenaForma(p, boca, QColor(120, 20, 30), 1.6);
    QPainterPath brillo;
    brillo.moveTo(-20, -20);
    brillo.quadTo(-18, -6, -8, -2);
    TrazaLinea(p, brillo, 3, QColor(255, 245, 200));
}

void DibujaEspada(QPainter& p) {
    // Sword: a blue blade with a ridge, a golden cross-guard and a red grip.
    QPainterPath hoja;
    hoja.moveTo(0, -50);
    hoja.lineTo(6, -40);
    hoja.lineTo(6, 20);
    hoja.lineTo(-6, 20);
    hoja.lineTo(-6, -40);
    hoja.closeSubpath();
    RellenaForma(p, hoja, Degradado(QPointF(-6, 0), QPointF(6, 0), AZUL_CLARO, AZUL), 1.6);
    QPainterPath nervio;
    nervio.moveTo(0, -44);
    nervio.lineTo(0, 18);
    TrazaLinea(p, nervio, 1.2, QColor(230, 240, 255));
    QPainterPath guarda;
    guarda.moveTo(-20, 18);
    guarda.cubicTo(-14, 24, 14, 24, 20, 18);
    guarda.lineTo(20, 24);
    guarda.cubicTo(14, 30, -14, 30, -20, 24);
    guarda.closeSubpath();
    RellenaForma(p, guarda, Degradado(QPointF(0, 18), QPointF(0, 30), ORO_CLARO, ORO_OSCURO), 1.5);
    p.setPen(Qt::NoPen);
    p.setBrush(ROJO);
    p.drawEllipse(QPointF(-20, 21), 3, 3);
    p.drawEllipse(QPointF(20, 21), 3, 3);
    QPainterPath puno;
    puno.addRoundedRect(QRectF(-4, 27, 8, 15), 2, 2);
    RellenaForma(p, puno, ROJO, 1.3);
    for (double y = 30; y < 41; y += 3.5) {
        QPainterPath vuelta;
        vuelta.moveTo(-4, y);
        vuelta.lineTo(4, y + 1.5);
        TrazaLinea(p, vuelta, 0.9, QColor(120, 10, 20));
    }
    QPainterPath pomo;
    pomo.addEllipse(QPointF(0, 45.5), 5.5, 4.5);
    RellenaForma(p, pomo, Degradado(QPointF(-5, 42), QPointF(5, 50), ORO_CLARO, ORO_OSCURO), 1.3);
}

void DibujaBasto(QPainter& p) {
    // Club: a knotty stick, thicker at the head, with the stubs of cut branches.
    QPainterPath palo;
    palo.moveTo(-6, 49);
    palo.cubicTo(-8, 20, -13, -10, -14, -36);
    palo.cubicTo(-14, -48, 14, -50, 13, -36);
    palo.cubicTo(12, -10, 7, 20, 6, 49);
    palo.closeSubpath();
    for (int i = 0; i < 5; ++i) { // stubs, left and right by turns
        const double y = -30 + i * 15, lado = i % 2 ? 1 : -1;
        const double x = lado * (12 - i * 1.2);
        QPainterPath brote;
        brote.addEllipse(QPointF(x + lado * 3, y - 3), 5.5, 4.5);
        palo.addPath(brote);
    }
    palo.setFillRule(Qt::WindingFill);
    RellenaForma(p, palo.simplified(),
                 Degradado(QPointF(-14, 0), QPointF(14, 0), QColor(222, 168, 92), MADERA_OSCURA),
                 1.8);
    for (int i = 0; i < 5; ++i) { // the cut faces of the stubs, showing green wood
        const double y = -30 + i * 15, lado = i % 2 ? 1 : -1;
        const double x = lado * (12 - i * 1.2);
        QPainterPath corte;
        corte.addEllipse(QPointF(x + lado * 5.5, y - 4), 2.6, 2.2);
        RellenaForma(p, corte, QColor(170, 210, 110), 0.9);
    }
    QPainterPath vetas; // grain of the wood
    vetas.moveTo(-3, -38);
    vetas.cubicTo(-5, -10, -3, 20, -2, 44);
    vetas.moveTo(4, -30);
    vetas.cubicTo(3, -6, 3, 16, 2, 40);
    TrazaLinea(p, vetas, 1.0, QColor(140, 84, 36));
    QPainterPath cabeza;
    cabeza.addEllipse(QPointF(0, -40), 8, 4);
    RellenaForma(p, cabeza, QColor(236, 200, 130), 0.9);
}

} // namespace

QColor ColorPaloEspanol(int palo) {
    switch (palo) {
    case 1:
        return QColor(190, 120, 0);
    case 2:
        return QColor(200, 26, 34);
    case 3:
        return QColor(30, 74, 170);
    default:
        return QColor(34, 120, 48);
    }
}

void DibujaSignoEspanol(QPainter& p, int palo, QPointF centro, double alto, double angulo) {
    p.save();
    p.translate(centro);
    p.rotate(angulo);
    p.scale(alto / 100.0, alto / 100.0);
    switch (palo) {
    case 1:
        DibujaOro(p);
        break;
    case 2:
        DibujaCopa(p);
        break;
    case 3:
        DibujaEspada(p);
        break;
    case 4:
        p.scale(0.8, 1); // the club is slender, as the cut of a branch
        DibujaBasto(p);
        break;
    }
    p.restore();
}
