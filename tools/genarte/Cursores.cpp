// The pointer shapes of the table, 32 by 32 with transparency. The hands are built from
// rounded pieces joined into one outline, so that they read on green cloth and on cards.
#include "Arte.h"

#include <cmath>

namespace {

const QColor TINTA(20, 20, 24), BLANCO(255, 255, 255);

QPainterPath Pieza(double x, double y, double ancho, double alto, double giro = 0) {
    QPainterPath pieza;
    const double r = std::min(ancho, alto) / 2;
    pieza.addRoundedRect(QRectF(-ancho / 2, -alto / 2, ancho, alto), r, r);
    QTransform t;
    t.translate(x + ancho / 2, y + alto / 2);
    t.rotate(giro);
    return t.map(pieza);
}

QPainterPath Une(std::initializer_list<QPainterPath> piezas) {
    QPainterPath todo;
    for (const QPainterPath& p : piezas) todo = todo.united(p);
    return todo;
}

void PintaMano(QPainter& p, const QPainterPath& mano, QColor color) {
    p.strokePath(mano, QPen(TINTA, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(mano, color);
}

// A hand with the index finger up: its tip is the hot spot.
QPainterPath ManoIndice() {
    // One pixel down from the top, so that the outline of the fingertip starts on row 1.
    return QTransform::fromTranslate(0, 1).map(
        Une({Pieza(9, 1, 5.4, 17), Pieza(7, 13, 17, 15), Pieza(13.6, 11, 4.6, 8.5),
             Pieza(17.8, 12, 4.4, 8.5), Pieza(21.2, 13.6, 3.8, 8), Pieza(2.5, 16, 9, 4.8, 35),
             Pieza(8, 25, 15, 5)}));
}

QPainterPath ManoAbierta() {
    return Une({Pieza(8, 13, 17, 15), Pieza(8.4, 4, 4, 13), Pieza(12.6, 2, 4, 14),
                Pieza(16.8, 3, 4, 13), Pieza(21, 6, 3.8, 12), Pieza(1.5, 14, 10, 4.4, 40),
                Pieza(9, 25, 15, 6)});
}

QPainterPath ManoCerrada() {
    return Une({Pieza(8, 11, 17, 15), Pieza(8, 8, 4.4, 7), Pieza(12.2, 7.5, 4.4, 7),
                Pieza(16.4, 7.8, 4.4, 7), Pieza(20.6, 9, 4.2, 6.5), Pieza(4.5, 14, 10, 4.6, 15),
                Pieza(9, 23, 15, 6)});
}

QImage Lienzo(double escala, const std::function<void(QPainter&)>& dibujo) {
    QImage img = NuevaImagen(32, 32, escala, Qt::transparent);
    QPainter p(&img);
    PreparaPintor(p, escala);
    dibujo(p);
    return img;
}

void Prohibido(QPainter& p) {
    const QPointF c(16, 16);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(BLANCO, 6));
    p.drawEllipse(c, 11, 11);
    p.setPen(QPen(QColor(210, 20, 30), 3.6));
    p.drawEllipse(c, 11, 11);
    QPainterPath barra;
    barra.moveTo(c + QPointF(-7.5, -7.5));
    barra.lineTo(c + QPointF(7.5, 7.5));
    p.strokePath(barra, QPen(BLANCO, 6, Qt::SolidLine, Qt::FlatCap));
    p.strokePath(barra, QPen(QColor(210, 20, 30), 3.6, Qt::SolidLine, Qt::FlatCap));
}

void FichaPequena(QPainter& p, QPointF c) {
    p.setPen(QPen(TINTA, 1.2));
    p.setBrush(QColor(204, 32, 44));
    p.drawEllipse(c, 6, 6);
    p.setPen(QPen(BLANCO, 1.6, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(c, 4.3, 4.3);
}

void RelojArena(QPainter& p) {
    QPainterPath vidrio;
    vidrio.moveTo(9, 5);
    vidrio.lineTo(23, 5);
    vidrio.cubicTo(23, 12, 17, 14, 17, 16);
    vidrio.cubicTo(17, 18, 23, 20, 23, 27);
    vidrio.lineTo(9, 27);
    vidrio.cubicTo(9, 20, 15, 18, 15, 16);
    vidrio.cubicTo(15, 14, 9, 12, 9, 5);
    vidrio.closeSubpath();
    p.strokePath(vidrio, QPen(TINTA, 2.2));
    p.fillPath(vidrio, QColor(230, 240, 255));
    QPainterPath arena;
    arena.moveTo(11.5, 26);
    arena.quadTo(16, 19, 20.5, 26);
    arena.closeSubpath();
    arena.moveTo(12, 9);
    arena.lineTo(20, 9);
    arena.quadTo(17, 13, 16, 14.5);
    arena.quadTo(15, 13, 12, 9);
    p.fillPath(arena, QColor(226, 170, 60));
    for (double y : {3.0, 27.0}) {
        QPainterPath tapa;
        tapa.addRoundedRect(QRectF(6, y, 20, 3), 1, 1);
        p.strokePath(tapa, QPen(TINTA, 1.2));
        p.fillPath(tapa, QColor(150, 90, 40));
    }
}

// Two arrows that chase each other round a circle: the swap of a card.
void Cambiar(QPainter& p) {
    const QPointF c(16, 16);
    for (int i = 0; i < 2; ++i) {
        p.save();
        p.translate(c);
        p.rotate(i * 180);
        QPainterPath arco;
        arco.arcMoveTo(QRectF(-10, -10, 20, 20), 200);
        arco.arcTo(QRectF(-10, -10, 20, 20), 200, -130);
        const QColor color = i ? QColor(40, 110, 220) : QColor(240, 140, 20);
        p.strokePath(arco, QPen(TINTA, 5.6, Qt::SolidLine, Qt::FlatCap));
        p.strokePath(arco, QPen(color, 3.4, Qt::SolidLine, Qt::FlatCap));
        QPainterPath punta; // the head at the end of the arc, at 70 degrees
        const double a = 70 * M_PI / 180;
        const QPointF e(10 * std::cos(a), -10 * std::sin(a));
        punta.moveTo(e + QPointF(-5, -3.5));
        punta.lineTo(e + QPointF(5, 0.5));
        punta.lineTo(e + QPointF(-3, 5));
        punta.closeSubpath();
        p.strokePath(punta, QPen(TINTA, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.fillPath(punta, color);
        p.restore();
    }
}

void NaipeDiminuto(QPainter& p, QRectF r, bool dorso) {
    QPainterPath n;
    n.addRoundedRect(r, 1.6, 1.6);
    p.strokePath(n, QPen(TINTA, 1.8));
    p.fillPath(n, dorso ? QColor(176, 22, 34) : BLANCO);
    if (!dorso) DibujaPaloFrances(p, 2, r.center(), std::min(r.width(), r.height()) * 0.6, false);
}

// A card half turned, under an arrow that turns it over.
void Voltear(QPainter& p) {
    NaipeDiminuto(p, QRectF(5, 12, 11, 16), true);
    NaipeDiminuto(p, QRectF(17, 12, 11, 16), false);
    QPainterPath arco;
    arco.moveTo(9, 10);
    arco.cubicTo(11, 2, 21, 2, 23, 8);
    p.strokePath(arco, QPen(TINTA, 4.4, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(arco, QPen(QColor(40, 170, 70), 2.4, Qt::SolidLine, Qt::RoundCap));
    QPainterPath punta;
    punta.moveTo(19, 7);
    punta.lineTo(26, 6);
    punta.lineTo(23.5, 12.5);
    punta.closeSubpath();
    p.strokePath(punta, QPen(TINTA, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(punta, QColor(40, 170, 70));
}

// Two cards pulled apart: the pair opens into two series.
void Abrirse(QPainter& p) {
    NaipeDiminuto(p, QRectF(5.5, 9, 9, 14), false);
    NaipeDiminuto(p, QRectF(17.5, 9, 9, 14), false);
    for (int lado : {-1, 1}) {
        QPainterPath f;
        const double x = 16 + lado * 4;
        f.moveTo(x, 26.5);
        f.lineTo(x + lado * 9, 26.5);
        f.moveTo(x + lado * 6, 23.5);
        f.lineTo(x + lado * 9.5, 26.5);
        f.lineTo(x + lado * 6, 29.5);
        p.strokePath(f, QPen(TINTA, 3.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.strokePath(f,
                     QPen(QColor(250, 210, 40), 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

} // namespace

std::vector<Cursor> Cursores(double escala) {
    const QColor verde(130, 226, 120), rojo(246, 120, 116), guante(255, 255, 255);
    const auto mano = [&](const QPainterPath& forma, QColor color) {
        return Lienzo(escala, [&](QPainter& p) { PintaMano(p, forma, color); });
    };
    return {
        {12, Lienzo(escala, Prohibido), 16, 16, "no se puede: el botón o la acción está vedado"},
        {21, mano(ManoIndice(), guante), 11, 1, "se puede pulsar: una ficha, un jugador"},
        {22, mano(ManoIndice(), verde), 11, 1, "esta carta se puede jugar"},
        {23, mano(ManoIndice(), rojo), 11, 1, "esta carta no se puede jugar"},
        {24,
         Lienzo(escala,
                [&](QPainter& p) {
                    PintaMano(p, ManoIndice(), guante);
                    FichaPequena(p, QPointF(24, 24));
                }),
         11, 1, "apostar: poner una ficha"},
        {25, Lienzo(escala, RelojArena), 16, 16, "espera"},
        {26, mano(ManoCerrada(), guante), 16, 14, "se está arrastrando algo"},
        {27, mano(ManoAbierta(), guante), 16, 14, "se puede tomar"},
        {41, Lienzo(escala, Cambiar), 16, 16, "el cambio propio del juego"},
        {42, Lienzo(escala, Voltear), 16, 16, "la carta se puede volver"},
        {43, Lienzo(escala, Abrirse), 16, 16, "la pareja se puede abrir"},
    };
}
