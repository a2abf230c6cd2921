// Parts shared by the court cards of both decks: faces, crowns and the outlined shapes of
// printed court cards (flat colours inside a fine dark line).
#include "Arte.h"

#include <cmath>

namespace {
const QColor PIEL(252, 222, 188), TINTA(28, 24, 30), LABIOS(196, 52, 60);
}

void RellenaForma(QPainter& p, const QPainterPath& forma, const QBrush& relleno, double linea) {
    p.fillPath(forma, relleno);
    if (linea > 0)
        p.strokePath(forma, QPen(TINTA, linea, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void TrazaLinea(QPainter& p, const QPainterPath& linea, double grosor, QColor color) {
    p.strokePath(linea, QPen(color, grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void DibujaCara(QPainter& p, QPointF c, double ancho, double alto, QColor pelo, bool barba,
                bool mujer) {
    const double w = ancho / 2, h = alto / 2;
    // Hair behind the face: long and falling for a queen, short at the sides for the men.
    QPainterPath melena;
    if (mujer) {
        melena.moveTo(c + QPointF(-w * 1.05, -h * 0.4));
        melena.cubicTo(c + QPointF(-w * 1.5, h * 0.6), c + QPointF(-w * 1.55, h * 1.2),
                       c + QPointF(-w * 1.25, h * 1.55));
        melena.lineTo(c + QPointF(w * 1.25, h * 1.55));
        melena.cubicTo(c + QPointF(w * 1.55, h * 1.2), c + QPointF(w * 1.5, h * 0.6),
                       c + QPointF(w * 1.05, -h * 0.4));
        melena.closeSubpath();
    } else {
        melena.addEllipse(QRectF(c.x() - w * 1.18, c.y() - h * 1.02, w * 2.36, h * 1.75));
    }
    RellenaForma(p, melena, pelo, 0.5);

    QPainterPath rostro;
    rostro.addEllipse(QRectF(c.x() - w, c.y() - h, 2 * w, 2 * h));
    RellenaForma(p, rostro, PIEL, 0.5);
    // Hair over the brow.
    QPainterPath flequillo;
    flequillo.moveTo(c + QPointF(-w * 1.02, -h * 0.15));
    flequillo.cubicTo(c + QPointF(-w * 0.9, -h * 1.1), c + QPointF(w * 0.9, -h * 1.1),
                      c + QPointF(w * 1.02, -h * 0.15));
    flequillo.cubicTo(c + QPointF(w * 0.5, -h * 0.55), c + QPointF(-w * 0.5, -h * 0.55),
                      c + QPointF(-w * 1.02, -h * 0.15));
    RellenaForma(p, flequillo, pelo, 0.4);

    // Eyes, brows, nose and mouth, drawn with the fine line of an engraving.
    const double ojoY = c.y() - h * 0.08, ojoX = w * 0.42;
    for (int lado : {-1, 1}) {
        const QPointF ojo(c.x() + lado * ojoX, ojoY);
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::white);
        p.drawEllipse(ojo, w * 0.2, h * 0.09);
        p.setBrush(QColor(40, 60, 110));
        p.drawEllipse(ojo, w * 0.1, h * 0.085);
        QPainterPath ceja;
        ceja.moveTo(ojo + QPointF(-w * 0.24, -h * 0.17));
        ceja.quadTo(ojo + QPointF(0, -h * 0.27), ojo + QPointF(w * 0.24, -h * 0.15));
        TrazaLinea(p, ceja, std::max(0.35, h * 0.05), mujer ? QColor(90, 60, 40) : TINTA);
    }
    QPainterPath nariz;
    nariz.moveTo(c + QPointF(-w * 0.02, -h * 0.05));
    nariz.quadTo(c + QPointF(-w * 0.16, h * 0.28), c + QPointF(w * 0.06, h * 0.3));
    TrazaLinea(p, nariz, std::max(0.3, h * 0.04), QColor(150, 90, 70));
    QPainterPath boca;
    boca.moveTo(c + QPointF(-w * 0.22, h * 0.52));
    boca.quadTo(c + QPointF(0, h * 0.6), c + QPointF(w * 0.22, h * 0.52));
    TrazaLinea(p, boca, std::max(0.5, h * 0.07), LABIOS);
    if (mujer) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(240, 150, 150, 110));
        p.drawEllipse(c + QPointF(-w * 0.55, h * 0.3), w * 0.18, h * 0.1);
        p.drawEllipse(c + QPointF(w * 0.55, h * 0.3), w * 0.18, h * 0.1);
    }
    if (barba) {
        QPainterPath b; // moustache and a full beard that frames the chin
        b.moveTo(c + QPointF(-w * 1.0, h * 0.05));
        b.cubicTo(c + QPointF(-w * 1.0, h * 1.2), c + QPointF(-w * 0.5, h * 1.75),
                  c + QPointF(0, h * 1.85));
        b.cubicTo(c + QPointF(w * 0.5, h * 1.75), c + QPointF(w * 1.0, h * 1.2),
                  c + QPointF(w * 1.0, h * 0.05));
        b.cubicTo(c + QPointF(w * 0.8, h * 0.55), c + QPointF(w * 0.45, h * 0.72),
                  c + QPointF(w * 0.3, h * 0.5));
        b.cubicTo(c + QPointF(w * 0.15, h * 0.4), c + QPointF(-w * 0.15, h * 0.4),
                  c + QPointF(-w * 0.3, h * 0.5));
        b.cubicTo(c + QPointF(-w * 0.45, h * 0.72), c + QPointF(-w * 0.8, h * 0.55),
                  c + QPointF(-w * 1.0, h * 0.05));
        RellenaForma(p, b, pelo, 0.45);
        QPainterPath bigote;
        bigote.moveTo(c + QPointF(-w * 0.5, h * 0.5));
        bigote.quadTo(c + QPointF(0, h * 0.2), c + QPointF(w * 0.5, h * 0.5));
        bigote.quadTo(c + QPointF(0, h * 0.36), c + QPointF(-w * 0.5, h * 0.5));
        RellenaForma(p, bigote, pelo.darker(130), 0.3);
        QPainterPath rizos; // a few strokes give the beard its curls
        for (int i = -2; i <= 2; ++i) {
            rizos.moveTo(c + QPointF(i * w * 0.3, h * 0.95));
            rizos.quadTo(c + QPointF(i * w * 0.3 + w * 0.1, h * 1.25),
                         c + QPointF(i * w * 0.25, h * 1.5));
        }
        TrazaLinea(p, rizos, std::max(0.3, h * 0.035), pelo.darker(150));
    }
}

void DibujaCorona(QPainter& p, QRectF caja, int puntas, bool alta) {
    const QColor ORO(242, 196, 48);
    const double base = caja.bottom(), arriba = caja.top(), alto = caja.height();
    const double banda = alto * (alta ? 0.32 : 0.42);
    QPainterPath corona;
    corona.moveTo(caja.left(), base);
    corona.lineTo(caja.left(), base - banda);
    for (int i = 0; i < puntas; ++i) {
        const double x1 = caja.left() + caja.width() * (i + 0.5) / puntas;
        const double x2 = caja.left() + caja.width() * (i + 1) / puntas;
        corona.lineTo(x1, arriba + alto * 0.12);
        corona.lineTo(x2, base - banda);
    }
    corona.lineTo(caja.right(), base);
    corona.closeSubpath();
    RellenaForma(p, corona, ORO, 0.5);
    p.setPen(Qt::NoPen);
    for (int i = 0; i < puntas; ++i) {
        const double x1 = caja.left() + caja.width() * (i + 0.5) / puntas;
        p.setBrush(ORO);
        p.drawEllipse(QPointF(x1, arriba + alto * 0.1), alto * 0.09, alto * 0.09);
    }
    // Jewels on the band, red and blue by turns.
    for (int i = 0; i < puntas; ++i) {
        const double x1 = caja.left() + caja.width() * (i + 0.5) / puntas;
        p.setBrush(i % 2 ? QColor(40, 70, 170) : QColor(200, 30, 40));
        p.drawEllipse(QPointF(x1, base - banda * 0.5), alto * 0.08, banda * 0.28);
    }
    p.setPen(QPen(TINTA, 0.35));
    p.drawLine(QPointF(caja.left(), base - banda), QPointF(caja.right(), base - banda));
}
