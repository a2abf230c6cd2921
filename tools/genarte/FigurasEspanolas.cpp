// The figures of the Spanish deck, full length as printed: the sota (a page standing), the
// caballo (a rider on his horse) and the rey (a crowned king in a long robe), each holding
// the sign of his suit.
#include "Arte.h"

namespace {

const QColor TINTA(40, 30, 28), ORO(242, 196, 48), PIEL(252, 222, 188), BLANCO(252, 250, 244);

struct Colores {
    QColor Tunica, Calzas, Capa, Pelo, Caballo;
};

Colores ColoresDe(int palo) {
    switch (palo) {
    case 1:
        return {QColor(200, 36, 40), QColor(40, 80, 170), QColor(60, 140, 70), QColor(200, 150, 60),
                QColor(206, 146, 84)};
    case 2:
        return {QColor(40, 80, 170), QColor(200, 36, 40), QColor(236, 186, 40), QColor(110, 66, 30),
                QColor(240, 236, 226)};
    case 3:
        return {QColor(60, 140, 70), QColor(236, 186, 40), QColor(200, 36, 40), QColor(70, 46, 30),
                QColor(140, 92, 56)};
    default:
        return {QColor(236, 170, 40), QColor(60, 140, 70), QColor(40, 80, 170),
                QColor(160, 100, 50), QColor(196, 198, 204)};
    }
}

// A limb: a thick stroke with a dark edge, as the printed figures are outlined.
void Miembro(QPainter& p, QPointF a, QPointF b, double grosor, QColor color) {
    QPainterPath l;
    l.moveTo(a);
    l.lineTo(b);
    p.strokePath(l, QPen(TINTA, grosor + 1, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(l, QPen(color, grosor, Qt::SolidLine, Qt::RoundCap));
}

void Mano(QPainter& p, QPointF c) {
    QPainterPath m;
    m.addEllipse(c, 2.6, 2.4);
    RellenaForma(p, m, PIEL, 0.4);
}

void Gorro(QPainter& p, QPointF cabeza, QColor color) {
    // The page's flat bonnet with a feather.
    QPainterPath pluma;
    pluma.moveTo(cabeza + QPointF(5, -9));
    pluma.cubicTo(cabeza + QPointF(12, -16), cabeza + QPointF(16, -14), cabeza + QPointF(20, -18));
    pluma.cubicTo(cabeza + QPointF(17, -11), cabeza + QPointF(12, -8), cabeza + QPointF(6, -7));
    pluma.closeSubpath();
    RellenaForma(p, pluma, BLANCO, 0.4);
    QPainterPath g;
    g.moveTo(cabeza + QPointF(-10, -6));
    g.cubicTo(cabeza + QPointF(-11, -16), cabeza + QPointF(11, -17), cabeza + QPointF(10, -6));
    g.closeSubpath();
    RellenaForma(p, g, color, 0.45);
    QPainterPath ala;
    ala.addRoundedRect(QRectF(cabeza.x() - 11, cabeza.y() - 7.5, 22, 3.2), 1.5, 1.5);
    RellenaForma(p, ala, ORO, 0.4);
}

// Where the sign is held and how large it is drawn, by suit, from the hand that holds it.
void SignoEnMano(QPainter& p, int palo, QPointF mano, double tamano) {
    switch (palo) {
    case 1:
        DibujaSignoEspanol(p, 1, mano + QPointF(0, -tamano * 0.5), tamano * 0.95);
        break;
    case 2:
        DibujaSignoEspanol(p, 2, mano + QPointF(0, -tamano * 0.42), tamano * 1.1);
        break;
    case 3:
        DibujaSignoEspanol(p, 3, mano + QPointF(0, -tamano * 0.85), tamano * 2.4);
        break;
    case 4:
        DibujaSignoEspanol(p, 4, mano + QPointF(0, -tamano * 0.35), tamano * 2.8, 8);
        break;
    }
}

void DibujaSota(QPainter& p, int palo) {
    const Colores c = ColoresDe(palo);
    const QPointF cabeza(50.5, 26);
    // Legs in hose, with shoes.
    Miembro(p, QPointF(45, 88), QPointF(43, 124), 6.5, c.Calzas);
    Miembro(p, QPointF(56, 88), QPointF(59, 124), 6.5, c.Calzas);
    for (double x : {41.5, 60.5}) {
        QPainterPath zapato;
        zapato.addEllipse(QPointF(x, 127), 5, 2.8);
        RellenaForma(p, zapato, QColor(80, 50, 30), 0.4);
    }
    // A short cape hanging behind the left shoulder.
    QPainterPath capa;
    capa.moveTo(38, 38);
    capa.cubicTo(30, 50, 27, 70, 28, 84);
    capa.lineTo(40, 80);
    capa.lineTo(44, 40);
    capa.closeSubpath();
    RellenaForma(p, capa, c.Capa);
    // The tunic, belted, with a golden hem.
    QPainterPath tunica;
    tunica.moveTo(40, 37);
    tunica.lineTo(61, 37);
    tunica.cubicTo(65, 50, 68, 75, 69, 90);
    tunica.lineTo(32, 90);
    tunica.cubicTo(33, 75, 36, 50, 40, 37);
    tunica.closeSubpath();
    RellenaForma(p, tunica, c.Tunica);
    p.save();
    p.setClipPath(tunica);
    p.fillRect(QRectF(20, 85, 60, 6), ORO);
    p.fillRect(QRectF(20, 60, 60, 3.6), QColor(110, 66, 30));
    for (double x = 34; x < 70; x += 6) { // folds of the skirt
        QPainterPath pliegue;
        pliegue.moveTo(x + 2, 64);
        pliegue.lineTo(x, 85);
        TrazaLinea(p, pliegue, 0.5, c.Tunica.darker(140));
    }
    p.restore();
    p.strokePath(tunica, QPen(TINTA, 0.5));
    QPainterPath hebilla;
    hebilla.addRect(QRectF(48.5, 59.6, 4, 4.4));
    RellenaForma(p, hebilla, ORO, 0.4);
    // A white collar and the head.
    QPainterPath cuello;
    cuello.addEllipse(QPointF(50.5, 37.5), 9, 3);
    RellenaForma(p, cuello, BLANCO, 0.4);
    DibujaCara(p, cabeza, 13, 16, c.Pelo, false, false);
    Gorro(p, cabeza, c.Capa);
    // Left arm down to the belt, right arm holding the sign.
    Miembro(p, QPointF(40, 40), QPointF(38, 58), 5.5, c.Tunica);
    Mano(p, QPointF(38.5, 60));
    const QPointF mano(palo == 4 ? 70 : 69, palo >= 3 ? 66 : 58);
    Miembro(p, QPointF(61, 40), mano + QPointF(-1, -2), 5.5, c.Tunica);
    if (palo == 4)
        DibujaSignoEspanol(p, 4, QPointF(72, 92), 70, -4); // the club rests on the ground
    else
        SignoEnMano(p, palo, mano, 26);
    Mano(p, mano);
}

void DibujaRey(QPainter& p, int palo) {
    const Colores c = ColoresDe(palo);
    const QPointF cabeza(48, 28);
    // A long cloak behind, then the robe down to the feet with an ermine hem.
    QPainterPath manto;
    manto.moveTo(36, 40);
    manto.cubicTo(26, 60, 22, 100, 22, 128);
    manto.lineTo(78, 128);
    manto.cubicTo(76, 100, 72, 60, 62, 40);
    manto.closeSubpath();
    RellenaForma(p, manto, c.Capa);
    QPainterPath tunica;
    tunica.moveTo(38, 39);
    tunica.lineTo(59, 39);
    tunica.cubicTo(64, 60, 67, 100, 68, 124);
    tunica.lineTo(29, 124);
    tunica.cubicTo(30, 100, 33, 60, 38, 39);
    tunica.closeSubpath();
    RellenaForma(p, tunica, c.Tunica);
    p.save();
    p.setClipPath(tunica);
    p.fillRect(QRectF(20, 117, 60, 8), BLANCO);
    p.setPen(Qt::NoPen);
    p.setBrush(TINTA);
    for (double x = 31; x < 68; x += 5) p.drawEllipse(QPointF(x, 121), 0.6, 1.3);
    p.fillRect(QRectF(46, 39, 5, 80), ORO); // an embroidered band down the front
    p.setBrush(c.Calzas);
    for (double y = 48; y < 116; y += 8) p.drawEllipse(QPointF(48.5, y), 1.6, 2.2);
    p.fillRect(QRectF(20, 68, 60, 3.6), ORO);
    p.restore();
    p.strokePath(tunica, QPen(TINTA, 0.5));
    for (double x : {40.0, 57.0}) {
        QPainterPath pie;
        pie.addEllipse(QPointF(x, 126.5), 5, 2.5);
        RellenaForma(p, pie, QColor(90, 40, 30), 0.4);
    }
    QPainterPath cuello; // ermine collar
    cuello.moveTo(34, 41);
    cuello.cubicTo(40, 36, 57, 36, 63, 41);
    cuello.cubicTo(57, 45, 40, 45, 34, 41);
    RellenaForma(p, cuello, BLANCO, 0.45);
    p.setPen(Qt::NoPen);
    p.setBrush(TINTA);
    for (double x = 38; x < 61; x += 4.5) p.drawEllipse(QPointF(x, 41), 0.5, 1.0);
    DibujaCara(p, cabeza, 14, 17, c.Pelo, true, false);
    DibujaCorona(p, QRectF(cabeza.x() - 8.5, cabeza.y() - 21, 17, 13), 5, true);
    // Left hand at the belt, right hand holding the sign.
    Miembro(p, QPointF(38, 44), QPointF(36, 66), 6, c.Tunica);
    Mano(p, QPointF(37, 68));
    const QPointF mano(68, palo >= 3 ? 70 : 62);
    Miembro(p, QPointF(59, 44), mano + QPointF(-1.5, -2), 6, c.Tunica);
    if (palo == 4)
        DibujaSignoEspanol(p, 4, QPointF(70, 90), 70, -4);
    else
        SignoEnMano(p, palo, mano, 28);
    Mano(p, mano);
}

void DibujaCaballo(QPainter& p, int palo) {
    const Colores c = ColoresDe(palo);
    const QColor crin = c.Caballo.lightness() > 200 ? QColor(170, 170, 170) : QColor(60, 36, 24);
    // Legs behind the body first: the far ones darker.
    Miembro(p, QPointF(47, 104), QPointF(52, 128), 4.2, c.Caballo.darker(125));
    Miembro(p, QPointF(68, 104), QPointF(64, 128), 4.2, c.Caballo.darker(125));
    QPainterPath cola;
    cola.moveTo(79, 90);
    cola.cubicTo(90, 96, 88, 112, 84, 120);
    cola.cubicTo(82, 110, 82, 100, 77, 96);
    cola.closeSubpath();
    RellenaForma(p, cola, crin, 0.45);
    QPainterPath cuerpo; // the horse, facing left
    cuerpo.moveTo(33, 96);
    cuerpo.cubicTo(29, 88, 29, 78, 26, 70);
    cuerpo.lineTo(16, 77);
    cuerpo.cubicTo(12, 76, 12, 71, 15, 68);
    cuerpo.lineTo(23, 60);
    cuerpo.lineTo(24, 54);
    cuerpo.lineTo(28, 58);
    cuerpo.cubicTo(36, 61, 42, 74, 46, 83);
    cuerpo.lineTo(70, 83);
    cuerpo.cubicTo(79, 83, 83, 90, 81, 98);
    cuerpo.cubicTo(79, 106, 71, 108, 61, 108);
    cuerpo.lineTo(44, 108);
    cuerpo.cubicTo(38, 108, 34, 104, 33, 96);
    cuerpo.closeSubpath();
    RellenaForma(p, cuerpo, c.Caballo, 0.6);
    QPainterPath melena;
    melena.moveTo(28, 58);
    melena.cubicTo(36, 60, 42, 72, 46, 83);
    melena.lineTo(42, 84);
    melena.cubicTo(39, 74, 34, 66, 27, 62);
    melena.closeSubpath();
    RellenaForma(p, melena, crin, 0.4);
    p.setPen(Qt::NoPen);
    p.setBrush(TINTA);
    p.drawEllipse(QPointF(21, 65), 1.1, 1.1); // eye
    p.drawEllipse(QPointF(15.5, 72.5), 0.8, 0.6);
    QPainterPath brida; // bridle and reins
    brida.moveTo(16, 70);
    brida.lineTo(25, 66);
    brida.lineTo(24, 60);
    brida.moveTo(19, 73);
    brida.cubicTo(30, 78, 40, 78, 50, 76);
    TrazaLinea(p, brida, 0.7, QColor(110, 40, 30));
    // The near legs, with dark hooves.
    Miembro(p, QPointF(40, 104), QPointF(37, 128), 4.6, c.Caballo);
    Miembro(p, QPointF(74, 102), QPointF(76, 128), 4.6, c.Caballo);
    for (QPointF casco : {QPointF(37, 129), QPointF(52, 129), QPointF(64, 129), QPointF(76, 129)}) {
        QPainterPath h;
        h.addRect(QRectF(casco.x() - 2.6, casco.y() - 2, 5.2, 3));
        RellenaForma(p, h, QColor(50, 40, 36), 0.3);
    }
    // Saddle cloth with a golden fringe.
    QPainterPath manta;
    manta.moveTo(48, 82);
    manta.lineTo(70, 82);
    manta.lineTo(72, 100);
    manta.lineTo(46, 100);
    manta.closeSubpath();
    RellenaForma(p, manta, c.Capa);
    p.fillRect(QRectF(46.5, 98, 25, 2.4), ORO);
    // The rider: body, leg down the horse's side, head with a hat, arm raising the sign.
    QPainterPath torso;
    torso.moveTo(51, 84);
    torso.lineTo(52, 58);
    torso.cubicTo(56, 55, 62, 55, 65, 58);
    torso.lineTo(66, 84);
    torso.closeSubpath();
    RellenaForma(p, torso, c.Tunica);
    p.fillRect(QRectF(51.5, 74, 14, 3), ORO);
    Miembro(p, QPointF(59, 84), QPointF(57, 101), 6, c.Calzas);
    QPainterPath bota;
    bota.addRoundedRect(QRectF(53, 99, 8, 9), 2, 2);
    RellenaForma(p, bota, QColor(90, 50, 30), 0.4);
    const QPointF cabeza(58.5, 45);
    DibujaCara(p, cabeza, 12, 14.5, c.Pelo, false, false);
    Gorro(p, cabeza + QPointF(0, 1), c.Capa);
    Miembro(p, QPointF(54, 61), QPointF(46, 75), 4.6, c.Tunica); // holding the reins
    Mano(p, QPointF(46, 76));
    const QPointF mano(73, palo >= 3 ? 56 : 44);
    Miembro(p, QPointF(63, 61), mano + QPointF(-1.5, 1.5), 4.8, c.Tunica);
    if (palo == 3)
        DibujaSignoEspanol(p, 3, mano + QPointF(2, -19), 58, 10);
    else if (palo == 4)
        DibujaSignoEspanol(p, 4, mano + QPointF(1, -14), 54, 14);
    else
        SignoEnMano(p, palo, mano, 22);
    Mano(p, mano);
}

} // namespace

void DibujaFiguraEspanola(QPainter& p, int palo, int valor) {
    switch (valor) {
    case 10:
        DibujaSota(p, palo);
        break;
    case 11:
        DibujaCaballo(p, palo);
        break;
    case 12:
        DibujaRey(p, palo);
        break;
    }
}
