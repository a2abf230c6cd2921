// The faces of the buttons (Pic_BmpBoton): the eight of the bar in the first row, and the
// answers of the message box in the second. Each face is a bevelled tile of 48 by 48 with a
// picture that says what the button does.
#include "Arte.h"

#include <cmath>

namespace {

constexpr int LADO = 48, PASO = 49;
const QColor TINTA(30, 30, 36), ROJO(200, 36, 44), VERDE(40, 150, 60), AZUL(40, 90, 190),
    ORO(240, 190, 50), PAPEL(252, 250, 240);

void DibujaBaldosa(QPainter& p) {
    QLinearGradient g(0, 0, LADO, LADO);
    g.setColorAt(0, QColor(238, 241, 246));
    g.setColorAt(1, QColor(168, 176, 190));
    p.fillRect(QRectF(0, 0, LADO, LADO), g);
    p.setPen(QPen(Qt::white, 1.5));
    p.drawLine(QPointF(1, 1), QPointF(LADO - 1, 1));
    p.drawLine(QPointF(1, 1), QPointF(1, LADO - 1));
    p.setPen(QPen(QColor(100, 108, 122), 1.5));
    p.drawLine(QPointF(1, LADO - 1), QPointF(LADO - 1, LADO - 1));
    p.drawLine(QPointF(LADO - 1, 1), QPointF(LADO - 1, LADO - 1));
    p.setPen(QPen(TINTA, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(0.5, 0.5, LADO - 1, LADO - 1));
}

void Leyenda(QPainter& p, const QString& texto) {
    PintaTextoEnCaja(p, texto, Fuente("DejaVu Sans", 20, true), QRectF(3, 36, 42, 9), TINTA);
}

void Naipe(QPainter& p, QPointF c, double giro, bool dorso) {
    p.save();
    p.translate(c);
    p.rotate(giro);
    QPainterPath n;
    n.addRoundedRect(QRectF(-10, -14, 20, 28), 2.5, 2.5);
    RellenaForma(p, n, dorso ? QColor(176, 22, 34) : PAPEL, 0.9);
    if (dorso) {
        p.setPen(QPen(QColor(255, 255, 255, 180), 0.6));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(-7.5, -11.5, 15, 23), 1.5, 1.5);
    } else {
        DibujaPaloFrances(p, 3, QPointF(0, 1), 14, false);
        PintaTextoEnCaja(p, "A", Fuente("DejaVu Serif", 20, true), QRectF(-8.5, -12.5, 5, 6), TINTA,
                         true);
    }
    p.restore();
}

void IconoNuevaPartida(QPainter& p) {
    Naipe(p, QPointF(18, 21), -14, true);
    Naipe(p, QPointF(28, 22), 10, false);
    QPainterPath boton;
    boton.addEllipse(QPointF(35, 36), 8, 8);
    RellenaForma(p, boton, VERDE, 0.9);
    QPainterPath play;
    play.moveTo(32.5, 31.5);
    play.lineTo(40, 36);
    play.lineTo(32.5, 40.5);
    play.closeSubpath();
    p.fillPath(play, Qt::white);
}

void Persona(QPainter& p, QPointF c, QColor color) {
    QPainterPath cuerpo;
    cuerpo.addRoundedRect(QRectF(c.x() - 5.5, c.y() + 2, 11, 8), 4, 4);
    RellenaForma(p, cuerpo, color, 0.7);
    QPainterPath cabeza;
    cabeza.addEllipse(c + QPointF(0, -1.5), 3.6, 3.6);
    RellenaForma(p, cabeza, QColor(252, 222, 188), 0.7);
}

void IconoPersonalizar(QPainter& p) {
    Persona(p, QPointF(24, 5), AZUL);
    Persona(p, QPointF(7, 20), ROJO);
    Persona(p, QPointF(41, 20), QColor(150, 70, 170));
    QPainterPath mesa;
    mesa.addEllipse(QPointF(24, 25), 12, 8);
    RellenaForma(p, mesa, QColor(0, 128, 0), 0.9);
    Persona(p, QPointF(24, 33), QColor(240, 150, 30));
}

void IconoNormas(QPainter& p) {
    for (int lado : {-1, 1}) { // an open book
        QPainterPath hoja;
        hoja.moveTo(24, 12);
        hoja.cubicTo(24 + lado * 8, 8, 24 + lado * 16, 8, 24 + lado * 20, 10);
        hoja.lineTo(24 + lado * 20, 38);
        hoja.cubicTo(24 + lado * 16, 36, 24 + lado * 8, 36, 24, 40);
        hoja.closeSubpath();
        RellenaForma(p, hoja, PAPEL, 0.9);
        for (int i = 0; i < 5; ++i) {
            QPainterPath linea;
            const double y = 16 + i * 4.5;
            linea.moveTo(24 + lado * 4, y);
            linea.lineTo(24 + lado * 16, y - 1);
            TrazaLinea(p, linea, 0.9, i == 0 ? ROJO : QColor(110, 110, 120));
        }
    }
    QPainterPath lomo;
    lomo.moveTo(24, 12);
    lomo.lineTo(24, 40);
    TrazaLinea(p, lomo, 1.0, TINTA);
}

void IconoTutor(QPainter& p) {
    QRadialGradient halo(QPointF(24, 18), 20);
    halo.setColorAt(0, QColor(255, 240, 120, 200));
    halo.setColorAt(1, QColor(255, 240, 120, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(halo);
    p.drawEllipse(QPointF(24, 18), 20, 20);
    QPainterPath bombilla;
    bombilla.moveTo(18.5, 30);
    bombilla.cubicTo(18, 25, 12, 22, 12, 16);
    bombilla.cubicTo(12, 9, 18, 5, 24, 5);
    bombilla.cubicTo(30, 5, 36, 9, 36, 16);
    bombilla.cubicTo(36, 22, 30, 25, 29.5, 30);
    bombilla.closeSubpath();
    QRadialGradient g(QPointF(21, 12), 16);
    g.setColorAt(0, QColor(255, 255, 220));
    g.setColorAt(1, QColor(250, 206, 40));
    RellenaForma(p, bombilla, g, 1.0);
    QPainterPath filamento;
    filamento.moveTo(21, 30);
    filamento.lineTo(21, 21);
    filamento.lineTo(24, 17);
    filamento.lineTo(27, 21);
    filamento.lineTo(27, 30);
    TrazaLinea(p, filamento, 0.9, QColor(200, 110, 20));
    QPainterPath rosca;
    rosca.addRoundedRect(QRectF(18.5, 30, 11, 7), 1.5, 1.5);
    RellenaForma(p, rosca, QColor(170, 176, 186), 0.9);
    for (double y : {32.3, 34.6}) {
        QPainterPath l;
        l.moveTo(18.5, y);
        l.lineTo(29.5, y);
        TrazaLinea(p, l, 0.6, TINTA);
    }
    QPainterPath punta;
    punta.addEllipse(QPointF(24, 38.5), 3, 2);
    RellenaForma(p, punta, TINTA, 0);
}

void IconoEstadisticas(QPainter& p) {
    const QColor colores[] = {AZUL, VERDE, ORO, ROJO};
    const double altos[] = {14, 24, 18, 30};
    for (int i = 0; i < 4; ++i) {
        QPainterPath barra;
        barra.addRect(QRectF(9 + i * 8, 38 - altos[i], 6, altos[i]));
        QLinearGradient g(9 + i * 8, 0, 15 + i * 8, 0);
        g.setColorAt(0, colores[i].lighter(140));
        g.setColorAt(1, colores[i]);
        RellenaForma(p, barra, g, 0.8);
    }
    QPainterPath ejes;
    ejes.moveTo(6, 6);
    ejes.lineTo(6, 39);
    ejes.lineTo(42, 39);
    TrazaLinea(p, ejes, 1.4, TINTA);
}

void IconoMarcador(QPainter& p) {
    // The scoreboard is a report on rolling paper: a sheet that comes off a roll.
    QPainterPath hoja;
    hoja.addRect(QRectF(11, 6, 24, 30));
    RellenaForma(p, hoja, PAPEL, 0.9);
    for (int i = 0; i < 5; ++i) {
        const double y = 11 + i * 5;
        QPainterPath l;
        l.moveTo(14, y);
        l.lineTo(24, y);
        TrazaLinea(p, l, 1.0, QColor(110, 110, 120));
        PintaTextoEnCaja(p, QString::number((i * 7 + 3) % 10), Fuente("DejaVu Sans", 20, true),
                         QRectF(27, y - 2.2, 5, 4.4), i % 2 ? ROJO : AZUL);
    }
    QPainterPath rollo;
    rollo.addRoundedRect(QRectF(8, 34, 30, 7), 3.5, 3.5);
    QLinearGradient g(0, 34, 0, 41);
    g.setColorAt(0, QColor(255, 255, 250));
    g.setColorAt(1, QColor(190, 186, 170));
    RellenaForma(p, rollo, g, 0.9);
    QPainterPath eje;
    eje.addEllipse(QPointF(38, 37.5), 2, 3.2);
    RellenaForma(p, eje, QColor(160, 150, 130), 0.7);
}

void IconoAyuda(QPainter& p) {
    QPainterPath disco;
    disco.addEllipse(QPointF(24, 20), 15, 15);
    QRadialGradient g(QPointF(19, 14), 20);
    g.setColorAt(0, QColor(120, 170, 250));
    g.setColorAt(1, AZUL);
    RellenaForma(p, disco, g, 1.0);
    PintaTextoEnCaja(p, "?", Fuente("DejaVu Sans", 20, true), QRectF(17, 10, 14, 20), Qt::white,
                     true);
}

void IconoSalir(QPainter& p) {
    QPainterPath marco;
    marco.addRect(QRectF(8, 6, 20, 34));
    RellenaForma(p, marco, QColor(90, 60, 40), 1.0);
    QPainterPath puerta; // the door stands open into the room
    puerta.moveTo(10, 8);
    puerta.lineTo(22, 11);
    puerta.lineTo(22, 42);
    puerta.lineTo(10, 38);
    puerta.closeSubpath();
    RellenaForma(p, puerta, QColor(196, 132, 70), 1.0);
    p.setPen(Qt::NoPen);
    p.setBrush(ORO);
    p.drawEllipse(QPointF(19.5, 26), 1.3, 1.3);
    QPainterPath flecha;
    flecha.moveTo(26, 20);
    flecha.lineTo(34, 20);
    flecha.lineTo(34, 15);
    flecha.lineTo(43, 23.5);
    flecha.lineTo(34, 32);
    flecha.lineTo(34, 27);
    flecha.lineTo(26, 27);
    flecha.closeSubpath();
    RellenaForma(p, flecha, ROJO, 0.9);
}

void Visto(QPainter& p, QColor color) {
    QPainterPath v;
    v.moveTo(10, 19);
    v.lineTo(20, 29);
    v.lineTo(38, 8);
    p.strokePath(v, QPen(TINTA, 8.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.strokePath(v, QPen(color, 6.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void IconoSi(QPainter& p) {
    Visto(p, VERDE);
    Leyenda(p, QString::fromUtf8("Sí"));
}

void IconoNo(QPainter& p) {
    QPainterPath x;
    x.moveTo(13, 7);
    x.lineTo(35, 29);
    x.moveTo(35, 7);
    x.lineTo(13, 29);
    p.strokePath(x, QPen(TINTA, 8.5, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(x, QPen(ROJO, 6.5, Qt::SolidLine, Qt::RoundCap));
    Leyenda(p, "No");
}

void IconoAyudaMensaje(QPainter& p) {
    p.save();
    p.translate(24, 18);
    p.scale(0.85, 0.85);
    p.translate(-24, -20);
    IconoAyuda(p);
    p.restore();
    Leyenda(p, "Ayuda");
}

void IconoAceptar(QPainter& p) {
    Visto(p, AZUL);
    Leyenda(p, "Aceptar");
}

void PintaCara(QPainter& p, int x, int y, void (*icono)(QPainter&)) {
    p.save();
    p.translate(x, y);
    DibujaBaldosa(p);
    icono(p);
    p.restore();
}

} // namespace

QImage HojaBotones(double escala) {
    QImage hoja = NuevaImagen(8 * PASO - 1, 2 * PASO - 1, escala, QColor(128, 128, 128));
    QPainter p(&hoja);
    PreparaPintor(p, escala);
    void (*barra[])(QPainter&) = {IconoNuevaPartida, IconoPersonalizar, IconoNormas, IconoTutor,
                                  IconoEstadisticas, IconoMarcador,     IconoAyuda,  IconoSalir};
    for (int i = 0; i < 8; ++i) PintaCara(p, i * PASO, 0, barra[i]);
    PintaCara(p, 0, PASO, IconoSi);
    PintaCara(p, PASO, PASO, IconoNo);
    PintaCara(p, 294, PASO, IconoAyudaMensaje);
    PintaCara(p, 343, PASO, IconoAceptar);
    return hoja;
}

QImage IconoPrograma(int lado) {
    QImage icono(lado, lado, QImage::Format_ARGB32);
    icono.fill(Qt::transparent);
    QPainter p(&icono);
    PreparaPintor(p, lado / double(LADO));
    // A corner of green baize with a back and an ace on it, as the table looks.
    QPainterPath tapete;
    tapete.addRoundedRect(QRectF(2, 2, 44, 44), 9, 9);
    RellenaForma(p, tapete, QColor(0, 128, 0), 1.2);
    Naipe(p, QPointF(19, 24), -14, true);
    Naipe(p, QPointF(29, 25), 10, false);
    return icono;
}
