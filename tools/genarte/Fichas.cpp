// The chips of the betting games, the stone of the Mus, and the round mask that both are
// drawn through: black inside the round and white outside, the faces black outside.
#include "Arte.h"

#include <cmath>
#include <cstdint>

namespace {

constexpr int LADO = 33; // a chip is 33 by 33
const QColor TINTA(30, 26, 28);

bool DentroFicha(int x, int y, double escala) {
    const double r = LADO * escala / 2, px = x + 0.5 - r, py = y + 0.5 - r;
    return px * px + py * py <= r * r;
}

void RecortaRedondo(QImage& imagen, double escala) {
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (!DentroFicha(x, y, escala)) imagen.setPixel(x, y, qRgb(0, 0, 0));
}

struct Denominacion {
    int Valor;
    QColor Cuerpo, Marcas, Cifra;
};
const Denominacion FICHAS[] = {
    {1, QColor(236, 236, 230), QColor(40, 90, 190), QColor(30, 60, 150)},
    {2, QColor(246, 200, 40), QColor(255, 255, 255), QColor(110, 60, 0)},
    {5, QColor(204, 32, 44), QColor(255, 255, 255), QColor(255, 255, 255)},
    {10, QColor(34, 84, 186), QColor(255, 255, 255), QColor(255, 255, 255)},
    {20, QColor(30, 140, 64), QColor(255, 255, 255), QColor(255, 255, 255)},
    {50, QColor(40, 36, 44), QColor(236, 178, 50), QColor(246, 206, 90)},
};

QImage PintaFicha(const Denominacion& d, double escala) {
    QImage img = NuevaImagen(LADO, LADO, escala, QColor(20, 20, 20));
    {
        QPainter p(&img);
        PreparaPintor(p, escala);
        const QPointF c(16.5, 16.5);
        QRadialGradient g(c + QPointF(-5, -6), 22);
        g.setColorAt(0, d.Cuerpo.lighter(125));
        g.setColorAt(1, d.Cuerpo.darker(125));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(c, 15.8, 15.8);
        // Six inserts round the edge, the mark of a casino chip.
        p.setBrush(d.Marcas);
        for (int i = 0; i < 6; ++i) {
            p.save();
            p.translate(c);
            p.rotate(i * 60);
            p.drawRoundedRect(QRectF(-2.6, -15.8, 5.2, 4.6), 0.8, 0.8);
            p.restore();
        }
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(d.Cuerpo.darker(150), 0.6));
        p.drawEllipse(c, 11, 11);
        p.setPen(QPen(QColor(255, 255, 255, 90), 0.8, Qt::DashLine));
        p.drawEllipse(c, 9.6, 9.6);
        const QFont f = Fuente("DejaVu Sans Condensed", 20, true);
        const QString cifra = QString::number(d.Valor);
        const double ancho = cifra.size() == 1 ? 8 : 13;
        PintaTextoEnCaja(p, cifra, f, QRectF(c.x() - ancho / 2 + 0.5, c.y() - 5 + 0.5, ancho, 10),
                         QColor(0, 0, 0, 110), true);
        PintaTextoEnCaja(p, cifra, f, QRectF(c.x() - ancho / 2, c.y() - 5, ancho, 10), d.Cifra,
                         true);
    }
    RecortaRedondo(img, escala);
    return img;
}

// A small generator of our own, so that the speckles of the stone are the same on every run.
uint32_t Siguiente(uint32_t& semilla) {
    semilla = semilla * 1664525u + 1013904223u;
    return semilla >> 8;
}

QImage PintaPiedra(double escala) {
    // The stone of the Mus: a round polished pebble that fills the whole round, so the mask
    // shows no black ring round it.
    QImage img = NuevaImagen(LADO, LADO, escala, QColor(60, 56, 50));
    {
        QPainter p(&img);
        PreparaPintor(p, escala);
        const QPointF c(16.5, 16.5);
        QRadialGradient g(c + QPointF(-5, -6), 24);
        g.setColorAt(0, QColor(222, 214, 196));
        g.setColorAt(0.55, QColor(168, 156, 136));
        g.setColorAt(1, QColor(88, 80, 70));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(c, 15.9, 15.9);
        uint32_t semilla = 57;
        p.save();
        QPainterPath dentro;
        dentro.addEllipse(c, 15.5, 15.5);
        p.setClipPath(dentro);
        for (int i = 0; i < 90; ++i) {
            const double a = (Siguiente(semilla) % 3600) * M_PI / 1800;
            const double r = std::sqrt((Siguiente(semilla) % 1000) / 1000.0) * 15;
            const double tam = 0.3 + (Siguiente(semilla) % 100) / 200.0;
            const int tono = 90 + int(Siguiente(semilla) % 120);
            p.setBrush(QColor(tono, tono - 8, tono - 20, 90));
            p.drawEllipse(c + QPointF(r * std::cos(a), r * std::sin(a)), tam, tam);
        }
        p.restore();
        QRadialGradient brillo(c + QPointF(-6, -7), 7);
        brillo.setColorAt(0, QColor(255, 255, 255, 150));
        brillo.setColorAt(1, QColor(255, 255, 255, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(brillo);
        p.drawEllipse(c + QPointF(-6, -7), 7, 7);
    }
    RecortaRedondo(img, escala);
    return img;
}

} // namespace

QImage MascaraFicha(double escala) {
    QImage m = NuevaImagen(LADO, LADO, escala, Qt::white);
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x)
            if (DentroFicha(x, y, escala)) m.setPixel(x, y, qRgb(0, 0, 0));
    return m;
}

QImage HojaFichas(double escala) {
    QImage hoja = NuevaImagen(7 * LADO, LADO, escala, Qt::black);
    for (int i = 0; i < 6; ++i) PegaEn(hoja, PintaFicha(FICHAS[i], escala), i * LADO, 0, escala);
    PegaEn(hoja, PintaPiedra(escala), 6 * LADO, 0, escala);
    return hoja;
}
