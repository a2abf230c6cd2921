// The faces of the Mus: a head, what marks seats 1 and 3, a woman's hair, a frame, and one
// overlay for each gaze and each gesture between partners. Cells of 170 by 141 on a clear
// ground, ten to a row, numbered from 1; the table lays the head and one overlay together.
// Every overlay first covers the eyes or the mouth of the head with skin, then draws its own,
// so that any overlay sits on any head.
#include "Arte.h"

#include <cmath>

namespace {

constexpr int ANCHO = 170, ALTO = 141, POR_FILA = 10, FILAS = 7;
const QColor PIEL(240, 200, 160), SOMBRA_PIEL(214, 164, 124), TINTA(40, 26, 20);
const QColor PELO(70, 44, 28), LABIO(190, 80, 80), LENGUA(226, 96, 110), DIENTE(252, 250, 240);
const QColor CAMISA(60, 96, 150), IRIS(70, 110, 60);
const QPointF CENTRO(85, 70);
// Where the features of the head lie.
constexpr double OJO_Y = 62, OJO_DX = 15, CEJA_Y = 51, BOCA_Y = 95;

QPen Trazo(double grosor, QColor color = TINTA) {
    return QPen(color, grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// ---- The head ----

void Ojo(QPainter& p, double x, double dx, double dy, double abierto = 1.0) {
    p.setPen(Trazo(1.2));
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(x, OJO_Y), 7, 4.6 * abierto);
    p.setPen(Qt::NoPen);
    p.setBrush(IRIS);
    p.drawEllipse(QPointF(x + dx, OJO_Y + dy), 3.2, 3.2 * std::min(1.0, abierto + 0.2));
    p.setBrush(TINTA);
    p.drawEllipse(QPointF(x + dx, OJO_Y + dy), 1.5, 1.5);
}

void Ojos(QPainter& p, double dx, double dy, double abierto = 1.0) {
    Ojo(p, CENTRO.x() - OJO_DX, dx, dy, abierto);
    Ojo(p, CENTRO.x() + OJO_DX, dx, dy, abierto);
}

void Ceja(QPainter& p, double x, double alto, double inclinacion = 0) {
    p.setPen(Trazo(2.6, PELO));
    p.setBrush(Qt::NoBrush);
    QPainterPath c;
    c.moveTo(x - 8, CEJA_Y - alto + inclinacion);
    c.quadTo(x, CEJA_Y - alto - 4, x + 8, CEJA_Y - alto - inclinacion);
    p.drawPath(c);
}

void Cejas(QPainter& p, double alto = 0) {
    Ceja(p, CENTRO.x() - OJO_DX, alto);
    Ceja(p, CENTRO.x() + OJO_DX, alto);
}

void BocaNeutra(QPainter& p) {
    p.setPen(Trazo(1.8, LABIO.darker(130)));
    p.setBrush(Qt::NoBrush);
    QPainterPath b;
    b.moveTo(CENTRO.x() - 11, BOCA_Y);
    b.quadTo(CENTRO.x(), BOCA_Y + 4, CENTRO.x() + 11, BOCA_Y);
    p.drawPath(b);
}

void Cabeza(QPainter& p) {
    // Shoulders and neck.
    QPainterPath hombros;
    hombros.moveTo(20, ALTO);
    hombros.cubicTo(24, 118, 50, 112, 72, 110);
    hombros.lineTo(98, 110);
    hombros.cubicTo(120, 112, 146, 118, 150, ALTO);
    hombros.closeSubpath();
    p.setPen(Trazo(1.2));
    p.setBrush(CAMISA);
    p.drawPath(hombros);
    p.setBrush(SOMBRA_PIEL);
    p.drawRect(QRectF(74, 98, 22, 16));
    // Ears, face and short hair.
    p.setBrush(PIEL);
    p.drawEllipse(QPointF(CENTRO.x() - 35, 68), 6, 10);
    p.drawEllipse(QPointF(CENTRO.x() + 35, 68), 6, 10);
    p.drawEllipse(QRectF(CENTRO.x() - 35, 24, 70, 86));
    QPainterPath pelo;
    pelo.moveTo(CENTRO.x() - 36, 56);
    pelo.cubicTo(CENTRO.x() - 40, 14, CENTRO.x() + 40, 14, CENTRO.x() + 36, 56);
    pelo.cubicTo(CENTRO.x() + 30, 36, CENTRO.x() - 30, 36, CENTRO.x() - 36, 56);
    p.setBrush(PELO);
    p.drawPath(pelo);
    // Nose, and the face looking straight ahead: at the partner.
    p.setPen(Trazo(1.4, SOMBRA_PIEL.darker(120)));
    p.setBrush(Qt::NoBrush);
    QPainterPath nariz;
    nariz.moveTo(CENTRO.x() - 1, 66);
    nariz.quadTo(CENTRO.x() - 6, 80, CENTRO.x() + 3, 82);
    p.drawPath(nariz);
    Ojos(p, 0, 0);
    Cejas(p);
    BocaNeutra(p);
}

// Skin over the eyes and brows, or over the mouth, of the head below.
void TapaOjos(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(PIEL);
    p.drawEllipse(QPointF(CENTRO.x(), 59), 28, 16);
}

void TapaBoca(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(PIEL);
    p.drawEllipse(QPointF(CENTRO.x(), BOCA_Y + 1), 17, 9);
}

// ---- Gazes ----

void Mirada(QPainter& p, int mirada) {
    TapaOjos(p);
    switch (mirada) {
    case 1: // down: lids half shut, eyes on the cards
        Ojos(p, 0, 2, 0.55);
        p.setPen(Trazo(1.6));
        for (double s : {-1.0, 1.0})
            p.drawLine(QPointF(CENTRO.x() + s * OJO_DX - 7, OJO_Y - 1),
                       QPointF(CENTRO.x() + s * OJO_DX + 7, OJO_Y - 1));
        Cejas(p, -1);
        break;
    case 2: // aside
        Ojos(p, 3.5, 0);
        Cejas(p);
        break;
    default: // up
        Ojos(p, 0, -2.2);
        Cejas(p, 2);
        break;
    }
}

// ---- Hands ----

void Mano(QPainter& p, QPointF base, int dedos, bool pulgar, bool mujer) {
    p.setPen(Trazo(1.2));
    p.setBrush(PIEL);
    // The palm, and the wrist in a sleeve.
    p.drawRoundedRect(QRectF(base.x() - 10, base.y() - 14, 20, 20), 6, 6);
    p.setBrush(mujer ? QColor(170, 40, 90) : CAMISA);
    p.drawRect(QRectF(base.x() - 9, base.y() + 5, 18, 40));
    p.setBrush(PIEL);
    for (int d = 0; d < dedos; ++d) {
        const double x = base.x() - 6 + d * 6 + (dedos == 2 ? d * 2 : 0);
        const double inclina = dedos == 2 ? (d == 0 ? -4 : 4) : 0;
        QPainterPath dedo;
        dedo.moveTo(x - 2.5, base.y() - 12);
        dedo.lineTo(x - 2.5 + inclina, base.y() - 32);
        dedo.quadTo(x + inclina, base.y() - 36, x + 2.5 + inclina, base.y() - 32);
        dedo.lineTo(x + 2.5, base.y() - 12);
        p.drawPath(dedo);
        if (mujer) {
            p.setBrush(QColor(200, 20, 60));
            p.drawEllipse(QPointF(x + inclina, base.y() - 32), 2, 2.5);
            p.setBrush(PIEL);
        }
    }
    if (pulgar) {
        QPainterPath dedo;
        dedo.moveTo(base.x() - 4, base.y() - 12);
        dedo.lineTo(base.x() - 4, base.y() - 34);
        dedo.quadTo(base.x(), base.y() - 39, base.x() + 4, base.y() - 34);
        dedo.lineTo(base.x() + 4, base.y() - 12);
        p.drawPath(dedo);
    }
}

// ---- Gestures ----

void Gesto(QPainter& p, int celda) {
    const double cx = CENTRO.x();
    switch (celda) {
    case 1: { // nothing at all: eyes shut
        TapaOjos(p);
        p.setPen(Trazo(2));
        p.setBrush(Qt::NoBrush);
        for (double s : {-1.0, 1.0}) {
            QPainterPath c;
            c.moveTo(cx + s * OJO_DX - 7, OJO_Y);
            c.quadTo(cx + s * OJO_DX, OJO_Y + 4, cx + s * OJO_DX + 7, OJO_Y);
            p.drawPath(c);
        }
        Cejas(p, -1);
        break;
    }
    case 3: // a par of aces: the tip of the tongue
        TapaBoca(p);
        BocaNeutra(p);
        p.setPen(Trazo(1.2, LENGUA.darker(140)));
        p.setBrush(LENGUA);
        p.drawChord(QRectF(cx - 6, BOCA_Y - 3, 12, 12), 180 * 16, 180 * 16);
        break;
    case 4: { // a par of kings: biting the lower lip
        TapaBoca(p);
        p.setPen(Trazo(1.2, LABIO.darker(140)));
        p.setBrush(LABIO);
        p.drawEllipse(QPointF(cx, BOCA_Y + 3), 11, 4);
        p.setBrush(DIENTE);
        p.setPen(Trazo(1, TINTA));
        p.drawRect(QRectF(cx - 8, BOCA_Y - 2, 16, 5));
        p.drawLine(QPointF(cx, BOCA_Y - 2), QPointF(cx, BOCA_Y + 3));
        break;
    }
    case 5: // medias: cheeks puffed, lips shut round
        TapaBoca(p);
        p.setPen(Trazo(1, SOMBRA_PIEL));
        p.setBrush(SOMBRA_PIEL.lighter(108));
        p.drawEllipse(QPointF(cx - 22, 86), 9, 10);
        p.drawEllipse(QPointF(cx + 22, 86), 9, 10);
        p.setPen(Trazo(1.4, LABIO.darker(130)));
        p.setBrush(LABIO);
        p.drawEllipse(QPointF(cx, BOCA_Y), 5, 4);
        break;
    case 6: { // medias of aces: the tongue out to one side
        TapaBoca(p);
        BocaNeutra(p);
        p.setPen(Trazo(1.2, LENGUA.darker(140)));
        p.setBrush(LENGUA);
        QPainterPath lengua;
        lengua.moveTo(cx + 4, BOCA_Y + 1);
        lengua.cubicTo(cx + 14, BOCA_Y + 2, cx + 22, BOCA_Y + 8, cx + 16, BOCA_Y + 11);
        lengua.cubicTo(cx + 12, BOCA_Y + 12, cx + 6, BOCA_Y + 6, cx + 2, BOCA_Y + 2);
        p.drawPath(lengua);
        break;
    }
    case 7: { // medias of kings: the mouth twisted to one side
        TapaBoca(p);
        p.setPen(Trazo(2, LABIO.darker(130)));
        p.setBrush(Qt::NoBrush);
        QPainterPath b;
        b.moveTo(cx - 8, BOCA_Y + 4);
        b.cubicTo(cx, BOCA_Y + 2, cx + 8, BOCA_Y - 2, cx + 15, BOCA_Y - 8);
        p.drawPath(b);
        break;
    }
    case 8: // duples: brows high, eyes wide
        TapaOjos(p);
        Ojos(p, 0, 0, 1.35);
        Cejas(p, 7);
        break;
    case 9: // juego: one brow raised
        TapaOjos(p);
        Ojos(p, 0, 0);
        Ceja(p, cx - OJO_DX, 0);
        Ceja(p, cx + OJO_DX, 8, 2);
        break;
    case 10: { // la 31: a wink and half a smile
        TapaOjos(p);
        Ojo(p, cx - OJO_DX, 0, 0);
        p.setPen(Trazo(2));
        p.setBrush(Qt::NoBrush);
        QPainterPath guino;
        guino.moveTo(cx + OJO_DX - 7, OJO_Y + 1);
        guino.quadTo(cx + OJO_DX, OJO_Y - 4, cx + OJO_DX + 7, OJO_Y + 1);
        p.drawPath(guino);
        Ceja(p, cx - OJO_DX, 0);
        Ceja(p, cx + OJO_DX, -2);
        TapaBoca(p);
        p.setPen(Trazo(2, LABIO.darker(130)));
        QPainterPath b;
        b.moveTo(cx - 11, BOCA_Y);
        b.quadTo(cx + 2, BOCA_Y + 4, cx + 13, BOCA_Y - 5);
        p.drawPath(b);
        break;
    }
    case 11:
    case 12:
    case 13: { // punto 29: lips pursed, eyes on the partner (right, down, left by seat)
        const double dx = celda == 11 ? 3.5 : celda == 13 ? -3.5 : 0;
        TapaOjos(p);
        Ojos(p, dx, celda == 12 ? 2.5 : 0);
        Cejas(p);
        TapaBoca(p);
        p.setPen(Trazo(1.6, LABIO.darker(140)));
        p.setBrush(LABIO);
        p.drawEllipse(QPointF(cx, BOCA_Y), 4, 5);
        p.setBrush(TINTA);
        p.drawEllipse(QPointF(cx, BOCA_Y), 1.4, 2);
        break;
    }
    case 14:
    case 15:
    case 16: { // punto 30: the tongue pushing a cheek out, eyes on the partner
        const double dx = celda == 14 ? 3.5 : celda == 16 ? -3.5 : 0;
        TapaOjos(p);
        Ojos(p, dx, celda == 15 ? 2.5 : 0);
        Cejas(p);
        TapaBoca(p);
        p.setPen(Trazo(1.8, LABIO.darker(130)));
        p.setBrush(Qt::NoBrush);
        p.drawLine(QPointF(cx - 9, BOCA_Y), QPointF(cx + 7, BOCA_Y));
        p.setPen(Trazo(1.2, SOMBRA_PIEL.darker(120)));
        p.setBrush(PIEL);
        p.drawEllipse(QPointF(cx + 28, BOCA_Y - 4), 9, 8);
        break;
    }
    case 17:
    case 18: // cut the mus: two fingers open like scissors beside the face
        Mano(p, QPointF(cx + 50, 104), 2, false, celda == 18);
        break;
    case 19:
    case 20: // envite: the thumb up beside the face
        Mano(p, QPointF(cx + 50, 104), 0, true, celda == 20);
        break;
    case 21:
    case 22: // a par: a finger on the cheek
        Mano(p, QPointF(cx + 34, 112), 1, false, celda == 22);
        break;
    default:
        break;
    }
}

// ---- What marks the seats, the woman's hair, the frame ----

void Boina(QPainter& p) { // seat 1
    p.setPen(Trazo(1.2));
    p.setBrush(QColor(30, 40, 80));
    p.drawEllipse(QRectF(CENTRO.x() - 42, 14, 80, 30));
    p.drawEllipse(QPointF(CENTRO.x() - 2, 13), 3, 4);
}

void Gorra(QPainter& p) { // seat 3
    p.setPen(Trazo(1.2));
    p.setBrush(QColor(180, 40, 30));
    p.drawChord(QRectF(CENTRO.x() - 36, 14, 72, 52), 0, 180 * 16);
    p.drawRoundedRect(QRectF(CENTRO.x() - 8, 36, 56, 8), 4, 4);
}

void MelenaDetras(QPainter& p) {
    p.setPen(Trazo(1.2));
    p.setBrush(QColor(120, 60, 30));
    QPainterPath m;
    m.moveTo(CENTRO.x() - 40, 40);
    m.cubicTo(CENTRO.x() - 56, 80, CENTRO.x() - 52, 110, CENTRO.x() - 44, 124);
    m.lineTo(CENTRO.x() + 44, 124);
    m.cubicTo(CENTRO.x() + 52, 110, CENTRO.x() + 56, 80, CENTRO.x() + 40, 40);
    m.closeSubpath();
    p.drawPath(m);
}

void Flequillo(QPainter& p) {
    p.setPen(Trazo(1.2));
    p.setBrush(QColor(120, 60, 30));
    QPainterPath f;
    f.moveTo(CENTRO.x() - 38, 62);
    f.cubicTo(CENTRO.x() - 42, 12, CENTRO.x() + 42, 12, CENTRO.x() + 38, 62);
    f.cubicTo(CENTRO.x() + 30, 40, CENTRO.x() + 6, 36, CENTRO.x() - 4, 42);
    f.cubicTo(CENTRO.x() - 16, 38, CENTRO.x() - 30, 44, CENTRO.x() - 38, 62);
    p.drawPath(f);
    // Earrings.
    p.setBrush(QColor(230, 190, 40));
    p.drawEllipse(QPointF(CENTRO.x() - 36, 80), 2.5, 2.5);
    p.drawEllipse(QPointF(CENTRO.x() + 36, 80), 2.5, 2.5);
}

void Marco(QPainter& p) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(200, 160, 60), 3));
    p.drawRoundedRect(QRectF(15.5, 1.5, ANCHO - 31, ALTO - 3), 12, 12);
}

QImage Celda(int n, double escala) {
    QImage img = NuevaImagen(ANCHO, ALTO, escala, Qt::transparent);
    QPainter p(&img);
    PreparaPintor(p, escala);
    switch (n) {
    case 51:
        Cabeza(p);
        break;
    case 52:
        Boina(p);
        break;
    case 53:
        Gorra(p);
        break;
    case 54:
        MelenaDetras(p);
        break;
    case 55:
        Flequillo(p);
        break;
    case 61:
    case 62:
    case 63:
        Mirada(p, n - 60);
        break;
    case 70:
        Marco(p);
        break;
    default:
        Gesto(p, n);
        break;
    }
    return img;
}

} // namespace

QImage HojaSenas(double escala) {
    QImage hoja = NuevaImagen(POR_FILA * ANCHO, FILAS * ALTO, escala, Qt::transparent);
    for (int n = 1; n <= POR_FILA * FILAS; ++n)
        PegaEn(hoja, Celda(n, escala), (n - 1) % POR_FILA * ANCHO, (n - 1) / POR_FILA * ALTO,
               escala);
    return hoja;
}
