// The Spanish deck: the frame with its breaks that tell the suit, the corner numbers and the
// pip cards from 1 to 9.
#include "Arte.h"

#include <vector>

namespace {

// The frame of the picture, inside the corner numbers; its top and bottom lines are broken
// once for copas, twice for espadas and three times for bastos, as on printed decks.
constexpr double MARCO_X = 16, MARCO_Y = 5, MARCO_DER = 85, MARCO_ABAJO = 136;
constexpr double CENTRO_X = (MARCO_X + MARCO_DER) / 2, CENTRO_Y = (MARCO_Y + MARCO_ABAJO) / 2;

struct Signo {
    double X, Y, Angulo;
};

void DibujaLineaConCortes(QPainter& p, double y, int cortes) {
    const double ancho = MARCO_DER - MARCO_X, hueco = 4.5;
    double x = MARCO_X;
    for (int i = 1; i <= cortes; ++i) {
        const double c = MARCO_X + ancho * i / (cortes + 1);
        p.drawLine(QPointF(x, y), QPointF(c - hueco / 2, y));
        x = c + hueco / 2;
    }
    p.drawLine(QPointF(x, y), QPointF(MARCO_DER, y));
}

void DibujaMarco(QPainter& p, int palo) {
    p.setPen(QPen(ColorPaloEspanol(palo), 0.9));
    for (double y : {MARCO_Y, MARCO_ABAJO}) DibujaLineaConCortes(p, y, palo - 1);
    p.drawLine(QPointF(MARCO_X, MARCO_Y), QPointF(MARCO_X, MARCO_ABAJO));
    p.drawLine(QPointF(MARCO_DER, MARCO_Y), QPointF(MARCO_DER, MARCO_ABAJO));
}

// The number of a corner over a small sign, in the strip that the manual deal shows as a
// thumbnail (x 2 to 15, y 2 to 44).
void DibujaIndice(QPainter& p, int palo, int valor) {
    const QFont f = Fuente("DejaVu Sans Condensed", 20, true);
    PintaTextoEnCaja(p, QString::number(valor), f, QRectF(2.5, 4, 12, 15), ColorPaloEspanol(palo),
                     true);
    const double altos[] = {12, 16, 22, 22};
    const double alto = altos[palo - 1];
    DibujaSignoEspanol(p, palo, QPointF(8.5, 22 + alto / 2), alto);
}

std::vector<Signo> Rejilla(std::initializer_list<double> columnas,
                           std::initializer_list<double> filas, double inclinacion = 0) {
    std::vector<Signo> s;
    int i = 0;
    for (double y : filas)
        for (double x : columnas) s.push_back({x, y, (i++ % 2 ? -1 : 1) * inclinacion});
    return s;
}

// Places of the signs of a number card, and the height of each sign.
std::vector<Signo> SignosDeValor(int palo, int valor, double& alto) {
    const bool largos = palo >= 3; // swords and clubs are long and thin
    const double cx = CENTRO_X, cy = CENTRO_Y;
    const double izq = 34, der = 67, iz3 = 27, de3 = 74;
    const double f4[] = {23, 54.3, 86.7, 118};
    switch (valor) {
    case 2:
        alto = largos ? 112 : 36;
        if (largos) return {{cx, cy, 24}, {cx, cy, -24}};
        return {{cx, 37, 0}, {cx, 104, 0}};
    case 3:
        alto = largos ? 112 : 32;
        if (largos) return {{cx, cy, 26}, {cx, cy, -26}, {cx, cy, 0}};
        return {{cx, 27, 0}, {cx, cy, 0}, {cx, 114, 0}};
    case 4:
        alto = largos ? 58 : 30;
        return Rejilla({izq, der}, {largos ? 39.0 : 37.0, largos ? 102.0 : 104.0}, largos ? 10 : 0);
    case 5: {
        alto = largos ? 50 : 28;
        auto s =
            Rejilla({izq, der}, {largos ? 33.0 : 31.0, largos ? 108.0 : 110.0}, largos ? 10 : 0);
        s.push_back({cx, cy, 0});
        return s;
    }
    case 6:
        alto = largos ? 40 : 28;
        return Rejilla({izq, der}, {27, cy, 114}, largos ? 8 : 0);
    case 7: {
        alto = largos ? 32 : 25;
        std::vector<Signo> s = {{izq, f4[0], 0}, {der, f4[0], 0}, {cx, f4[1], 0}, {izq, f4[2], 0},
                                {der, f4[2], 0}, {izq, f4[3], 0}, {der, f4[3], 0}};
        if (largos)
            for (size_t i = 0; i < s.size(); ++i) s[i].Angulo = (i % 2 ? -8 : 8);
        return s;
    }
    case 8:
        alto = largos ? 31 : 25;
        return Rejilla({izq, der}, {f4[0], f4[1], f4[2], f4[3]}, largos ? 8 : 0);
    case 9:
        alto = largos ? 40 : 21.5;
        return Rejilla({iz3, cx, de3}, {27, cy, 114}, largos ? 6 : 0);
    }
    alto = 0;
    return {};
}

void DibujaAs(QPainter& p, int palo) {
    const QPointF c(CENTRO_X, CENTRO_Y);
    switch (palo) {
    case 1:
        DibujaSignoEspanol(p, 1, c, 68);
        break;
    case 2:
        DibujaSignoEspanol(p, 2, c, 92);
        break;
    default:
        DibujaSignoEspanol(p, palo, c, 122);
        break;
    }
}

} // namespace

QImage CartaEspanola(int palo, int valor, double escala) {
    return PintaCarta(escala, [&](QPainter& p) {
        DibujaMarco(p, palo);
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
        else if (valor >= 10)
            DibujaFiguraEspanola(p, palo, valor);
        else {
            double alto = 0;
            for (const Signo& s : SignosDeValor(palo, valor, alto))
                DibujaSignoEspanol(p, palo, QPointF(s.X, s.Y), alto, s.Angulo);
        }
    });
}
