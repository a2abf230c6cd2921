// The joker: a jester in a three-pointed cap with bells and a harlequin coat, with the word
// COMODÍN standing in the corners in place of an index.
#include "Arte.h"

namespace {

const QColor TINTA(40, 30, 28), ROJO(204, 30, 44), AZUL(38, 84, 176), ORO(244, 196, 46),
    VERDE(46, 146, 70), BLANCO(255, 252, 244);

void DibujaIndiceComodin(QPainter& p) {
    const QString palabra = QString::fromUtf8("COMODÍN");
    const QFont f = Fuente("DejaVu Sans Condensed", 20, true);
    for (int i = 0; i < palabra.size(); ++i)
        PintaTextoEnCaja(p, palabra.mid(i, 1), f, QRectF(3, 5 + i * 9.4, 10, 8.2),
                         i % 2 ? AZUL : ROJO, false);
}

void Cascabel(QPainter& p, QPointF c) {
    QPainterPath b;
    b.addEllipse(c, 3.6, 3.6);
    QRadialGradient g(c + QPointF(-1.2, -1.2), 4);
    g.setColorAt(0, QColor(255, 240, 170));
    g.setColorAt(1, QColor(200, 140, 20));
    RellenaForma(p, b, g, 0.5);
    QPainterPath ranura;
    ranura.moveTo(c + QPointF(-1.8, 0.8));
    ranura.lineTo(c + QPointF(1.8, 0.8));
    TrazaLinea(p, ranura, 0.6, TINTA);
}

void DibujaGorro(QPainter& p) {
    // Three floppy points, each a different colour, ending in a bell.
    struct Punta {
        QPointF Base1, Control1, Control2, Extremo, Control3, Control4, Base2;
        QColor Color;
    };
    const Punta puntas[] = {
        {{40, 46}, {30, 34}, {16, 32}, {21, 56}, {24, 44}, {34, 44}, {44, 52}, ROJO},
        {{80 - 19.5, 46}, {70 + 1, 34}, {85, 32}, {80, 56}, {77, 44}, {67, 44}, {57, 52}, AZUL},
        {{38, 45}, {38, 28}, {46, 14}, {50.5, 13}, {55, 14}, {63, 28}, {63, 45}, ORO},
    };
    for (const Punta& t : puntas) {
        QPainterPath c;
        c.moveTo(t.Base1);
        c.cubicTo(t.Control1, t.Control2, t.Extremo);
        c.cubicTo(t.Control3, t.Control4, t.Base2);
        c.closeSubpath();
        RellenaForma(p, c, t.Color, 0.7);
    }
    Cascabel(p, QPointF(21, 57));
    Cascabel(p, QPointF(80, 57));
    Cascabel(p, QPointF(50.5, 12));
    QPainterPath banda; // the band round the head
    banda.addRoundedRect(QRectF(37, 43, 27, 6), 2.5, 2.5);
    RellenaForma(p, banda, VERDE, 0.6);
    for (double x = 40; x < 63; x += 5.5) {
        p.setPen(Qt::NoPen);
        p.setBrush(ORO);
        p.drawEllipse(QPointF(x, 46), 1.2, 1.2);
    }
}

void DibujaTraje(QPainter& p) {
    QPainterPath traje;
    traje.moveTo(24, 132);
    traje.cubicTo(24, 100, 28, 80, 40, 75);
    traje.lineTo(61, 75);
    traje.cubicTo(73, 80, 77, 100, 77, 132);
    traje.closeSubpath();
    p.fillPath(traje, ROJO);
    p.save();
    p.setClipPath(traje);
    const QColor colores[] = {ROJO, ORO, AZUL, VERDE};
    for (int fila = 0; fila < 8; ++fila) // harlequin lozenges
        for (int col = -1; col < 6; ++col) {
            const QPointF c(24 + col * 11 + (fila % 2) * 5.5, 76 + fila * 8);
            QPainterPath r;
            r.moveTo(c + QPointF(0, -8));
            r.lineTo(c + QPointF(5.5, 0));
            r.lineTo(c + QPointF(0, 8));
            r.lineTo(c + QPointF(-5.5, 0));
            r.closeSubpath();
            p.fillPath(r, colores[(fila + col * 2 + 8) % 4]);
            p.strokePath(r, QPen(TINTA, 0.35));
        }
    p.restore();
    p.strokePath(traje, QPen(TINTA, 0.7));
    QPainterPath golilla; // a pleated ruff
    for (int i = 0; i < 12; ++i) {
        const double x = 33 + i * 3.1;
        golilla.moveTo(x, 73);
        golilla.lineTo(x + 1.55, 80);
        golilla.lineTo(x + 3.1, 73);
    }
    QPainterPath base;
    base.addRoundedRect(QRectF(32, 70, 37.5, 7), 3, 3);
    RellenaForma(p, base, BLANCO, 0.6);
    TrazaLinea(p, golilla, 0.6, TINTA);
}

void DibujaNaipes(QPainter& p) {
    // A small fan of cards in the jester's hand.
    const QPointF mano(68, 104);
    for (int i = -1; i <= 1; ++i) {
        p.save();
        p.translate(mano);
        p.rotate(i * 16);
        QPainterPath n;
        n.addRoundedRect(QRectF(-5, -20, 10, 14), 1.2, 1.2);
        RellenaForma(p, n, BLANCO, 0.5);
        DibujaPaloFrances(p, i + 3 > 2 ? 2 : 3 - i, QPointF(0, -13), 6, false);
        p.restore();
    }
    QPainterPath m;
    m.addEllipse(mano + QPointF(0, -4), 3.8, 3.4);
    RellenaForma(p, m, QColor(252, 222, 188), 0.5);
}

} // namespace

QImage Comodin(double escala) {
    return PintaCarta(escala, [](QPainter& p) {
        for (int giro = 0; giro < 2; ++giro) {
            p.save();
            if (giro == 1) {
                p.translate(ANCHO_CARTA, ALTO_CARTA);
                p.rotate(180);
            }
            DibujaIndiceComodin(p);
            p.restore();
        }
        p.setPen(QPen(ORO, 1.0));
        p.setBrush(Qt::NoBrush);
        p.drawRect(QRectF(16, 5, 69, 131));
        DibujaTraje(p);
        DibujaCara(p, QPointF(50.5, 58), 20, 23, QColor(200, 70, 40), false, false);
        QPainterPath sonrisa; // a jester's wide grin over the plain mouth
        sonrisa.moveTo(43, 62);
        sonrisa.cubicTo(46, 68, 55, 68, 58, 62);
        sonrisa.cubicTo(55, 65, 46, 65, 43, 62);
        RellenaForma(p, sonrisa, QColor(160, 30, 40), 0.5);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(240, 110, 110, 150));
        p.drawEllipse(QPointF(42, 60), 2.6, 1.8);
        p.drawEllipse(QPointF(59, 60), 2.6, 1.8);
        DibujaGorro(p);
        DibujaNaipes(p);
    });
}
