// The court cards of the French deck: a jack, a queen and a crowned king, each drawn as the
// upper half of a double-headed figure in a frame, and turned over for the lower half.
#include "Arte.h"

#include <cmath>

namespace {

const QColor ORO(242, 196, 48), TINTA(28, 24, 30), ACERO(205, 212, 222), ROJO(200, 30, 42),
    AZUL(38, 68, 168), PIEL(252, 222, 188);

// The frame that holds the figure, and the half of it that is drawn.
constexpr double MARCO_X = 16, MARCO_Y = 12, MARCO_ANCHO = 69, MARCO_ALTO = 117;
constexpr double MEDIO = MARCO_ALTO / 2;

// The two halves meet on a slanted line, as on printed court cards.
constexpr double INCLINACION = 7;

QPainterPath MitadSuperior() {
    QPainterPath m;
    m.moveTo(MARCO_X, MARCO_Y);
    m.lineTo(MARCO_X + MARCO_ANCHO, MARCO_Y);
    m.lineTo(MARCO_X + MARCO_ANCHO, MARCO_Y + MEDIO - INCLINACION);
    m.lineTo(MARCO_X, MARCO_Y + MEDIO + INCLINACION);
    m.closeSubpath();
    return m;
}

Ropa RopaDe(int palo, int valor) {
    // Red and blue swap between neighbouring suits, as on printed decks, so that the twelve
    // figures don't look alike.
    const bool rojo = (palo + valor) % 2 == 0;
    const QColor pelos[] = {QColor(226, 172, 58), QColor(122, 74, 34), QColor(70, 46, 30),
                            QColor(214, 160, 60)};
    return {rojo ? ROJO : AZUL, rojo ? AZUL : ROJO, ORO, pelos[palo - 1]};
}

// The robe: square shoulders, a shawl over them and a patterned breast.
void DibujaCuerpo(QPainter& p, const Ropa& r, bool armino) {
    const double bajo = MEDIO + 10;
    QPainterPath cuello;
    cuello.addRect(QRectF(30, 28, 9, 7));
    RellenaForma(p, cuello, PIEL, 0.4);
    QPainterPath manto;
    manto.moveTo(3, bajo);
    manto.lineTo(3, 43);
    manto.cubicTo(3, 36, 10, 33, 22, 32);
    manto.lineTo(47, 32);
    manto.cubicTo(59, 33, 66, 36, 66, 43);
    manto.lineTo(66, bajo);
    manto.closeSubpath();
    RellenaForma(p, manto, r.Manto);
    // A lattice of the lining colour on the sides of the robe, like brocade.
    p.save();
    p.setClipPath(manto, Qt::IntersectClip);
    for (int i = -6; i < 12; ++i) {
        QPainterPath d;
        d.moveTo(i * 6.0, 36);
        d.lineTo(i * 6.0 + 32, bajo + 4);
        d.moveTo(i * 6.0 + 32, 36);
        d.lineTo(i * 6.0, bajo + 4);
        TrazaLinea(p, d, 0.7, r.Forro);
    }
    p.restore();
    QPainterPath pecho; // the patterned breast between the sides of the robe
    pecho.addRect(QRectF(26, 33, 17, bajo - 33));
    RellenaForma(p, pecho, r.Forro);
    for (double y = 40; y < bajo - 2; y += 6) { // a row of golden lozenges
        QPainterPath rombo;
        rombo.moveTo(34.5, y - 2.6);
        rombo.lineTo(37.4, y);
        rombo.lineTo(34.5, y + 2.6);
        rombo.lineTo(31.6, y);
        rombo.closeSubpath();
        RellenaForma(p, rombo, ORO, 0.3);
    }
    for (double x : {27.0, 42.0}) {
        QPainterPath banda;
        banda.moveTo(x, 33);
        banda.lineTo(x, bajo);
        TrazaLinea(p, banda, 2.0, ORO);
        for (double y = 36; y < bajo; y += 3) {
            p.setPen(Qt::NoPen);
            p.setBrush(TINTA);
            p.drawEllipse(QPointF(x, y), 0.45, 0.45);
        }
    }
    // The shawl over the shoulders: ermine for the crowned, plain white for the jack.
    QPainterPath chal;
    chal.moveTo(9, 37);
    chal.cubicTo(14, 31, 24, 29.5, 34.5, 29.5);
    chal.cubicTo(45, 29.5, 55, 31, 60, 37);
    chal.cubicTo(52, 35, 44, 34, 34.5, 37);
    chal.cubicTo(25, 34, 17, 35, 9, 37);
    chal.closeSubpath();
    RellenaForma(p, chal, Qt::white, 0.45);
    if (armino) {
        p.setPen(Qt::NoPen);
        p.setBrush(TINTA);
        const double xs[] = {15, 21, 27, 42, 48, 54};
        for (double x : xs) p.drawEllipse(QPointF(x, 33.2), 0.55, 1.0);
    }
}

// The hand that holds the object comes out of the wide sleeve through a golden cuff.
void DibujaPuno(QPainter& p, QPointF mano) {
    QPainterPath puno;
    puno.addRoundedRect(QRectF(mano.x() - 4.2, mano.y() + 1.6, 8.4, 3.2), 1.2, 1.2);
    RellenaForma(p, puno, ORO, 0.4);
}

void DibujaEspada(QPainter& p, double x, double punta, double empunadura) {
    QPainterPath hoja;
    hoja.moveTo(x, punta);
    hoja.lineTo(x + 1.6, punta + 3);
    hoja.lineTo(x + 1.6, empunadura);
    hoja.lineTo(x - 1.6, empunadura);
    hoja.lineTo(x - 1.6, punta + 3);
    hoja.closeSubpath();
    RellenaForma(p, hoja, ACERO, 0.4);
    QPainterPath guarda;
    guarda.addRoundedRect(QRectF(x - 5, empunadura, 10, 1.8), 0.8, 0.8);
    RellenaForma(p, guarda, ORO, 0.4);
    QPainterPath puno;
    puno.addRect(QRectF(x - 1, empunadura + 1.8, 2, 5));
    RellenaForma(p, puno, QColor(120, 60, 30), 0.3);
    QPainterPath pomo;
    pomo.addEllipse(QPointF(x, empunadura + 7.6), 1.5, 1.5);
    RellenaForma(p, pomo, ORO, 0.3);
}

void DibujaHacha(QPainter& p, double x, double arriba, double abajo) {
    QPainterPath asta;
    asta.addRect(QRectF(x - 0.9, arriba, 1.8, abajo - arriba));
    RellenaForma(p, asta, QColor(140, 84, 40), 0.35);
    QPainterPath filo;
    filo.moveTo(x, arriba + 2);
    filo.cubicTo(x + 9, arriba - 1, x + 10, arriba + 9, x + 8, arriba + 12);
    filo.lineTo(x, arriba + 8);
    filo.closeSubpath();
    RellenaForma(p, filo, ACERO, 0.4);
    QPainterPath pica;
    pica.moveTo(x - 1.2, arriba);
    pica.lineTo(x, arriba - 4);
    pica.lineTo(x + 1.2, arriba);
    pica.closeSubpath();
    RellenaForma(p, pica, ACERO, 0.35);
}

void DibujaCetro(QPainter& p, double x, double arriba, double abajo) {
    QPainterPath vara;
    vara.addRect(QRectF(x - 0.9, arriba, 1.8, abajo - arriba));
    RellenaForma(p, vara, ORO, 0.35);
    QPainterPath flor; // a fleur-de-lis on top
    flor.moveTo(x, arriba - 6);
    flor.cubicTo(x + 2.5, arriba - 3, x + 1.5, arriba - 1, x, arriba);
    flor.cubicTo(x - 1.5, arriba - 1, x - 2.5, arriba - 3, x, arriba - 6);
    flor.moveTo(x, arriba - 1);
    flor.cubicTo(x + 3, arriba - 5, x + 5, arriba - 2, x + 3.5, arriba + 0.5);
    flor.moveTo(x, arriba - 1);
    flor.cubicTo(x - 3, arriba - 5, x - 5, arriba - 2, x - 3.5, arriba + 0.5);
    RellenaForma(p, flor, ORO, 0.35);
}

void DibujaFlor(QPainter& p, QPointF c) {
    p.save(); // drawn small and enlarged, so that the rose reads at the size of a card
    p.translate(c);
    p.scale(1.7, 1.7);
    p.translate(-c);
    QPainterPath tallo;
    tallo.moveTo(c);
    tallo.cubicTo(c + QPointF(-1, 6), c + QPointF(-4, 10), c + QPointF(-6, 14));
    TrazaLinea(p, tallo, 0.8, QColor(40, 120, 50));
    QPainterPath hojaV;
    hojaV.moveTo(c + QPointF(-2, 7));
    hojaV.quadTo(c + QPointF(3, 6), c + QPointF(4, 10));
    hojaV.quadTo(c + QPointF(0, 10), c + QPointF(-2, 7));
    RellenaForma(p, hojaV, QColor(60, 150, 60), 0.3);
    for (int i = 0; i < 5; ++i) {
        p.save();
        p.translate(c);
        p.rotate(i * 72);
        QPainterPath petalo;
        petalo.addEllipse(QRectF(-1.6, -3.6, 3.2, 3.6));
        RellenaForma(p, petalo, ROJO, 0.3);
        p.restore();
    }
    p.setPen(Qt::NoPen);
    p.setBrush(ORO);
    p.drawEllipse(c, 1.0, 1.0);
    p.restore();
}

void DibujaMano(QPainter& p, QPointF c) {
    QPainterPath mano;
    mano.addEllipse(c, 2.4, 2.1);
    RellenaForma(p, mano, PIEL, 0.35);
}

void DibujaSombrero(QPainter& p, const Ropa& r) {
    // The jack's cap: a soft beret with a brim and a long feather.
    QPainterPath pluma;
    pluma.moveTo(42, 7);
    pluma.cubicTo(50, -1, 56, 0, 62, -3);
    pluma.cubicTo(59, 4, 52, 7, 43, 9.5);
    pluma.closeSubpath();
    RellenaForma(p, pluma, Qt::white, 0.4);
    QPainterPath copa;
    copa.moveTo(22.5, 10.5);
    copa.cubicTo(22, -0.5, 47, -1.5, 46.5, 10);
    copa.closeSubpath();
    RellenaForma(p, copa, r.Forro, 0.45);
    QPainterPath ala;
    ala.addRoundedRect(QRectF(21.5, 8.5, 26, 3.6), 1.6, 1.6);
    RellenaForma(p, ala, ORO, 0.4);
}

void DibujaMitad(QPainter& p, int palo, int valor) {
    const Ropa r = RopaDe(palo, valor);
    const bool rey = valor == 13, reina = valor == 12;
    const bool derecha = palo % 2;
    const double xObjeto = derecha ? 55 : 14;
    DibujaCuerpo(p, r, rey || reina);
    // The held object stands in front of the robe, in the hand that comes out of the sleeve.
    if (rey) {
        if (palo == 1)
            DibujaHacha(p, xObjeto, 6, 62);
        else if (palo == 2)
            DibujaEspada(p, xObjeto, 1, 42);
        else
            DibujaCetro(p, xObjeto, 8, 62);
    } else if (!reina) {
        if (derecha)
            DibujaCetro(p, xObjeto, 8, 62);
        else
            DibujaHacha(p, xObjeto, 6, 62);
    }
    const QPointF cabeza(34.5, rey ? 19.5 : 20);
    DibujaCara(p, cabeza, rey ? 17.5 : 16.5, rey ? 21 : 20, r.Pelo, rey, reina);
    if (rey)
        DibujaCorona(p, QRectF(24.5, -0.5, 20, 13.5), 5, true);
    else if (reina)
        DibujaCorona(p, QRectF(26.5, 2, 16, 9.5), 5, false);
    else
        DibujaSombrero(p, r);
    if (reina) {
        const QPointF flor(derecha ? 48 : 21, 40);
        DibujaFlor(p, flor);
        DibujaMano(p, flor + QPointF(0, 6.5));
        DibujaPuno(p, flor + QPointF(0, 6.5));
    } else {
        DibujaMano(p, QPointF(xObjeto, 47));
        DibujaPuno(p, QPointF(xObjeto, 47));
    }
}

} // namespace

void DibujaFiguraFrancesa(QPainter& p, int palo, int valor) {
    const QRectF marco(MARCO_X, MARCO_Y, MARCO_ANCHO, MARCO_ALTO);
    p.fillRect(marco, QColor(255, 252, 240));
    for (int giro = 0; giro < 2; ++giro) {
        p.save();
        if (giro == 1) {
            p.translate(ANCHO_CARTA, ALTO_CARTA);
            p.rotate(180);
        }
        p.save();
        p.setClipPath(MitadSuperior(), Qt::IntersectClip);
        p.translate(MARCO_X, MARCO_Y);
        DibujaMitad(p, palo, valor);
        p.restore();
        // The suit beside the head, as on printed court cards.
        DibujaPaloFrances(p, palo, QPointF(MARCO_X + 7.5, MARCO_Y + 8), 10, false);
        p.restore();
    }
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(TINTA, 0.6));
    p.drawLine(QPointF(MARCO_X, MARCO_Y + MEDIO + INCLINACION),
               QPointF(MARCO_X + MARCO_ANCHO, MARCO_Y + MEDIO - INCLINACION));
    p.setPen(QPen(TINTA, 0.9));
    p.drawRect(marco);
    p.setPen(QPen(ColorPaloFrances(palo), 0.5));
    p.drawRect(marco.adjusted(1.6, 1.6, -1.6, -1.6));
}
