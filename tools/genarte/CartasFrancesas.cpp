// The French deck: suit pips, corner indices and the pip cards, laid out as printed cards are.
#include "Arte.h"

#include <vector>

namespace {

const QColor ROJO(206, 18, 38), NEGRO(22, 22, 30);

// Pip centres of the number cards. Columns and rows as on a printed deck: three columns, the
// outer ones at a quarter of the width, and pips below the middle are printed upside down.
constexpr double COL_IZQ = 27.5, COL_MED = 50.5, COL_DER = 73.5;
constexpr double FILA_ALTA = 26, FILA_BAJA = 115, FILA_MEDIA = (FILA_ALTA + FILA_BAJA) / 2;
constexpr double TERCIO = (FILA_BAJA - FILA_ALTA) / 3;

struct Pip {
    double X, Y;
};

std::vector<Pip> PipsDeValor(int valor) {
    const double a = FILA_ALTA, b = FILA_BAJA, m = FILA_MEDIA;
    const double t1 = a + TERCIO, t2 = a + 2 * TERCIO;
    std::vector<Pip> pips;
    auto pares = [&](std::initializer_list<double> filas) {
        for (double y : filas) {
            pips.push_back({COL_IZQ, y});
            pips.push_back({COL_DER, y});
        }
    };
    switch (valor) {
    case 2:
        pips = {{COL_MED, a}, {COL_MED, b}};
        break;
    case 3:
        pips = {{COL_MED, a}, {COL_MED, m}, {COL_MED, b}};
        break;
    case 4:
        pares({a, b});
        break;
    case 5:
        pares({a, b});
        pips.push_back({COL_MED, m});
        break;
    case 6:
        pares({a, m, b});
        break;
    case 7:
        pares({a, m, b});
        pips.push_back({COL_MED, (a + m) / 2});
        break;
    case 8:
        pares({a, m, b});
        pips.push_back({COL_MED, (a + m) / 2});
        pips.push_back({COL_MED, (m + b) / 2});
        break;
    case 9:
        pares({a, t1, t2, b});
        pips.push_back({COL_MED, m});
        break;
    case 10:
        pares({a, t1, t2, b});
        pips.push_back({COL_MED, (a + t1) / 2});
        pips.push_back({COL_MED, (t2 + b) / 2});
        break;
    }
    return pips;
}

QString LetraRango(int valor) {
    switch (valor) {
    case 1:
        return "A";
    case 11:
        return "J";
    case 12:
        return "Q";
    case 13:
        return "K";
    default:
        return QString::number(valor);
    }
}

// The index of a corner: the rank over a small pip, in the corner strip that the manual deal
// shows as a thumbnail (x 2 to 15, y 2 to 34).
void DibujaIndice(QPainter& p, int palo, int valor) {
    const QFont f = Fuente("DejaVu Serif Condensed", 20, true);
    PintaTextoEnCaja(p, LetraRango(valor), f, QRectF(3, 4.5, 13, 14), ColorPaloFrances(palo), true);
    DibujaPaloFrances(p, palo, QPointF(9.5, 27), 11, false);
}

void DibujaAs(QPainter& p, int palo) {
    const QPointF centro(ANCHO_CARTA / 2.0, ALTO_CARTA / 2.0);
    if (palo != 3) {
        DibujaPaloFrances(p, palo, centro, 40, false);
        return;
    }
    // The ace of spades is the showpiece of the deck: a large pip in a thin ornamental ring.
    p.save();
    p.setPen(QPen(NEGRO, 1.1));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(centro, 31, 31);
    p.setPen(QPen(NEGRO, 0.6));
    p.drawEllipse(centro, 28.5, 28.5);
    for (int i = 0; i < 16; ++i) {
        p.save();
        p.translate(centro);
        p.rotate(i * 22.5);
        p.setBrush(NEGRO);
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPointF(0, -31), 1.6, 1.6);
        p.restore();
    }
    p.restore();
    DibujaPaloFrances(p, palo, centro, 48, false);
    QPainterPath brillo; // a white vein, as engraved aces have
    brillo.moveTo(centro + QPointF(0, -17));
    brillo.cubicTo(centro + QPointF(6, -8), centro + QPointF(14, -2), centro + QPointF(14, 6));
    p.setPen(QPen(Qt::white, 1.2, Qt::SolidLine, Qt::RoundCap));
    p.drawPath(brillo);
}

} // namespace

QColor ColorPaloFrances(int palo) {
    return palo <= 2 ? ROJO : NEGRO;
}

QPainterPath TrazoPaloFrances(int palo) {
    QPainterPath t;
    t.setFillRule(Qt::WindingFill);
    switch (palo) {
    case 1: // diamonds: a rhombus with gently hollow sides
        t.moveTo(0, -50);
        t.quadTo(14, -20, 38, 0);
        t.quadTo(14, 20, 0, 50);
        t.quadTo(-14, 20, -38, 0);
        t.quadTo(-14, -20, 0, -50);
        break;
    case 2: // hearts
        t.moveTo(0, 46);
        t.cubicTo(-16, 30, -48, 8, -48, -17);
        t.cubicTo(-48, -37, -34, -47, -22, -47);
        t.cubicTo(-10, -47, -2, -39, 0, -29);
        t.cubicTo(2, -39, 10, -47, 22, -47);
        t.cubicTo(34, -47, 48, -37, 48, -17);
        t.cubicTo(48, 8, 16, 30, 0, 46);
        break;
    case 3: // spades: a heart turned over, on a flared stem
        t.moveTo(0, -50);
        t.cubicTo(14, -30, 46, -14, 46, 10);
        t.cubicTo(46, 26, 35, 34, 23, 34);
        t.cubicTo(13, 34, 6, 28, 3, 22);
        t.cubicTo(4, 34, 9, 43, 18, 50);
        t.lineTo(-18, 50);
        t.cubicTo(-9, 43, -4, 34, -3, 22);
        t.cubicTo(-6, 28, -13, 34, -23, 34);
        t.cubicTo(-35, 34, -46, 26, -46, 10);
        t.cubicTo(-46, -14, -14, -30, 0, -50);
        break;
    case 4: // clubs: three leaves on a flared stem
        t.addEllipse(QPointF(0, -27), 21, 21);
        t.addEllipse(QPointF(-25, 9), 21, 21);
        t.addEllipse(QPointF(25, 9), 21, 21);
        t.addEllipse(QPointF(0, 2), 10, 12);
        {
            QPainterPath tallo;
            tallo.moveTo(-3, 4);
            tallo.cubicTo(-3, 30, -9, 42, -18, 50);
            tallo.lineTo(18, 50);
            tallo.cubicTo(9, 42, 3, 30, 3, 4);
            tallo.closeSubpath();
            t.addPath(tallo);
        }
        break;
    }
    return t;
}

void DibujaPaloFrances(QPainter& p, int palo, QPointF centro, double alto, bool invertido) {
    p.save();
    p.translate(centro);
    if (invertido) p.rotate(180);
    p.scale(alto / 100.0, alto / 100.0);
    p.fillPath(TrazoPaloFrances(palo), ColorPaloFrances(palo));
    p.restore();
}

QImage CartaFrancesa(int palo, int valor, double escala) {
    return PintaCarta(escala, [&](QPainter& p) {
        for (int giro = 0; giro < 2; ++giro) {
            p.save();
            if (giro == 1) {
                p.translate(ANCHO_CARTA, ALTO_CARTA);
                p.rotate(180);
            }
            DibujaIndice(p, palo, valor);
            p.restore();
        }
        if (valor == 1)
            DibujaAs(p, palo);
        else if (valor >= 11)
            DibujaFiguraFrancesa(p, palo, valor);
        else
            for (const Pip& pip : PipsDeValor(valor))
                DibujaPaloFrances(p, palo, QPointF(pip.X, pip.Y), 19, pip.Y > FILA_MEDIA + 0.1);
    });
}
