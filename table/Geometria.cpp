// The layout of the table: the zones of the seats, the trick in the middle, the chip piles, the
// stock, the pile and the trump, the fan of a hand, and the step of a flying card. Places given
// with halves round to the even neighbour, as a whole expression, the way the old integer
// assignments did.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Dibujo.h"
#include "table/PartesMesa.h"
#include "table/DibujoComun.h"
#include "table/Sugerencia.h"

#include <QPainter>
#include <QLinearGradient>
#include <cstdlib>

namespace {

constexpr int LARGO_HILERA = 250; // a hand is a fan on a line this long
constexpr int ALTO_MINIMO = 600, ANCHO_MINIMO = 800;
constexpr unsigned COLOR_BOTONERA = 0x1E3A28;

// The six piles of a block as the pot shows them, upright in 76 by 140: 5 and 6 on top, 1 and
// 2 at the bottom, odd piles on the left. A seat's block is this pattern turned like its cards.
constexpr int PILA_DX[7] = {0, 0, 38, 0, 38, 0, 38};
constexpr int PILA_DY[7] = {0, 81, 81, 43, 43, 5, 5};
constexpr int LADO_FICHA = 33;

void ColocaZonas() {
    ZonaIzquierda[1] = 0;
    ZonaDerecha[1] = 160;
    ZonaArriba[1] = Redondea((AltoVentana - 250) / 2.0);
    ZonaAbajo[1] = ZonaArriba[1] + 249;

    ZonaIzquierda[2] = Redondea((AnchoMesa - 250) / 2.0);
    ZonaDerecha[2] = ZonaIzquierda[2] + 249;
    ZonaArriba[2] = 0;
    ZonaAbajo[2] = 160;

    ZonaIzquierda[3] = AnchoMesa - 161;
    ZonaDerecha[3] = AnchoMesa;
    ZonaArriba[3] = ZonaArriba[1];
    ZonaAbajo[3] = ZonaAbajo[1];

    ZonaIzquierda[4] = ZonaIzquierda[2];
    ZonaDerecha[4] = ZonaDerecha[2];
    ZonaArriba[4] = AltoVentana - 162;
    ZonaAbajo[4] = AltoVentana - 1;
}

void ColocaBaza() {
    CartaCentroX[1] = CentroMesaX - 96;
    CartaCentroY[1] = Redondea(CentroMesaY - 70.5);
    CartaCentroX[2] = Redondea(CentroMesaX - 50.5);
    CartaCentroY[2] = CentroMesaY - 136;
    CartaCentroX[3] = CentroMesaX - 5;
    CartaCentroY[3] = Redondea(CentroMesaY - 70.5);
    CartaCentroX[4] = Redondea(CentroMesaX - 50.5);
    CartaCentroY[4] = CentroMesaY - 5;
}

// Lays the six piles of a slot in a block whose corner is bx, by, turned as the seat sees.
void ColocaBloque(int slot, int bx, int by, int orientacion) {
    for (int p = 1; p <= 6; ++p) {
        const int dx = PILA_DX[p], dy = PILA_DY[p];
        int x = dx, y = dy;
        if (orientacion == 2) {
            x = 140 - LADO_FICHA - dy;
            y = dx;
        } else if (orientacion == 3) {
            x = 76 - LADO_FICHA - dx;
            y = 140 - LADO_FICHA - dy;
        } else if (orientacion == 4) {
            x = dy;
            y = 76 - LADO_FICHA - dx;
        }
        PilaX[slot][p] = bx + x;
        PilaY[slot][p] = by + y;
    }
}

void ColocaPilas() {
    for (auto& fila : PilaX) std::fill(std::begin(fila), std::end(fila), 0);
    for (auto& fila : PilaY) std::fill(std::begin(fila), std::end(fila), 0);
    // The pot: three rows of two, from a base 39 left of the middle and 79.5 above it.
    for (int p = 1; p <= 6; ++p) {
        const int columna = p % 2 == 1 ? 4 : 42;
        const int fila = p <= 2 ? 101 : (p <= 4 ? 63 : 25);
        PilaX[0][p] = Redondea(CentroMesaX - 39.0 + columna);
        PilaY[0][p] = Redondea(CentroMesaY - 79.5 + fila);
    }
    // Each seat's block stands in the corner at its right hand, clear of its cards: the person's
    // right of its fan, leaving the left for the betting panel; seat 2's close to its cards, so
    // that on the narrowest table it still clears the trump lying in the top left corner.
    const int bloqueX[5] = {0, 0, ZonaIzquierda[2] - 77, AnchoMesa - 140, ZonaDerecha[4] + 10};
    const int bloqueY[5] = {0, ZonaAbajo[1] + 10, 0, ZonaArriba[3] - 86, AltoVentana - 140};
    for (int s = 1; s <= 4; ++s) ColocaBloque(s, bloqueX[s], bloqueY[s], OrientacionSeat[s]);

    // The stake lies between the seat's cards and the middle, to the seat's right hand, beyond
    // the row of the seat's action buttons, so that neither hides the other.
    constexpr int FILA_PULSADORES = 30;
    PilaX[11][1] = ZonaDerecha[1] + 5 + FILA_PULSADORES;
    PilaY[11][1] = CentroMesaY + 60;
    PilaX[12][1] = CentroMesaX - 93;
    PilaY[12][1] = ZonaAbajo[2] + 5 + FILA_PULSADORES;
    PilaX[13][1] = ZonaIzquierda[3] - 38 - FILA_PULSADORES;
    PilaY[13][1] = CentroMesaY - 93;
    PilaX[14][1] = CentroMesaX + 60;
    PilaY[14][1] = ZonaArriba[4] - 38 - FILA_PULSADORES;

    // The frames of the stones of Mus take the places of the chip blocks.
    PilaX[21][1] = bloqueX[1];
    PilaY[21][1] = bloqueY[1] + 17;
    PilaX[22][1] = bloqueX[2] + 17;
    PilaY[22][1] = bloqueY[2];
    PilaX[23][1] = AnchoMesa - 141;
    PilaY[23][1] = bloqueY[3] + 17;
    PilaX[24][1] = bloqueX[4] + 17;
    PilaY[24][1] = AltoVentana - 141;
}

void PreparaBarra() {
    DimensionaCaja(Pic_Botonera, ANCHO_BOTONERA, AltoVentana, COLOR_BOTONERA);
    QPainter p(&Pic_Botonera.Imagen);
    QLinearGradient g(0, 0, ANCHO_BOTONERA, 0);
    g.setColorAt(0, QColor(0x14, 0x2A, 0x1C));
    g.setColorAt(0.5, QColor::fromRgb(COLOR_BOTONERA));
    g.setColorAt(1, QColor(0x12, 0x26, 0x19));
    p.fillRect(Pic_Botonera.Imagen.rect(), g);
    p.setPen(QColor(0x0A, 0x16, 0x0E));
    p.drawLine(0, 0, 0, AltoVentana - 1);
    p.end();
    Pic_Botonera.X = AnchoMesa;
    Pic_Botonera.Y = 0;
    Pic_Botonera.Visible = true;
}

void PonPalabras() {
    const char* const juegos[9] = {"Póker",     "Black Jack", "Tute",     "Brisca", "Siete y media",
                                   "Cinquillo", "Mus",        "Chinchón", "Pumba"};
    for (int j = 0; j < 9; ++j) NombreJuego[JUEGO_POKER + j] = QString::fromUtf8(juegos[j]);
    const char* const numeros[7] = {"Una", "Dos", "Tres", "Cuatro", "Cinco", "Seis", "Siete"};
    for (int n = 0; n < 7; ++n) NombreNumero[n + 1] = QString::fromUtf8(numeros[n]);
}

} // namespace

void PreparaMesa() {
    // A screen lower than the table needs is laid out as if it were tall enough.
    AnchoVentana = std::max(AnchoVentana, ANCHO_MINIMO);
    AltoVentana = std::max(AltoVentana, ALTO_MINIMO);
    CentroVentanaX = Redondea(AnchoVentana / 2.0);
    CentroVentanaY = Redondea(AltoVentana / 2.0);
    AnchoMesa = AnchoVentana - ANCHO_BOTONERA;
    CentroMesaX = Redondea(AnchoMesa / 2.0);
    CentroMesaY = CentroVentanaY;

    ColocaZonas();
    ColocaBaza();
    ColocaPilas();
    PozoX = Redondea((ZonaIzquierda[3] - CentroMesaX - 101) / 2.0 + CentroMesaX + 10);
    PozoY = CentroVentanaY - 70;
    ColocaMazo();
    ColocaTriunfo();

    DimensionaCaja(Pic_Mesa, AnchoVentana, AltoVentana, COLOR_MESA);
    VigilaMesa();
    DimensionaCaja(Pic_Espejo, AnchoVentana, AltoVentana, COLOR_MESA);
    for (int s = 1; s <= 4; ++s) {
        DimensionaCaja(Pic_Tantos[s], 44, 23, COLOR_MESA);
        Pic_Tantos[s].Visible = false;
    }
    PreparaBarra();
    PonPalabras();
    CargaLaminas();
    IniciaTextosInformacion();
}

void ColocaMazo() {
    double x = CentroMesaX - 50.5, y = CentroVentanaY - 70.5;
    switch (JuegoActual) {
    case JUEGO_POKER:
    case JUEGO_MUS:
    case JUEGO_CHINCHON:
        x = (CentroMesaX - ZonaDerecha[1] - 101) / 2.0 + ZonaDerecha[1] - 10;
        break;
    case JUEGO_BLACKJACK:
        y = ZonaAbajo[2] + 11;
        break;
    case JUEGO_SIETEYMEDIA:
        // Beside the banker; before a banker is known, in the middle.
        if (JugadorBanca == 1) {
            x = ZonaDerecha[1] + 18;
        } else if (JugadorBanca == 2) {
            y = ZonaAbajo[2] + 11;
        } else if (JugadorBanca == 3) {
            x = ZonaIzquierda[3] - 127;
        } else if (JugadorBanca == 4) {
            y = ZonaArriba[4] - 167;
        }
        break;
    default:
        break;
    }
    MazoBaseX = Redondea(x);
    MazoBaseY = Redondea(y);
}

void ColocaTriunfo() {
    TriunfoX = 30;
    TriunfoY = 2;
    if (NumJugadores >= 4) return;
    // The trump takes the place of the first empty seat, so the middle stays free for the trick.
    for (int s = 1; s <= 4; ++s) {
        if (EstadoJugador[s] != ESTADO_DESACTIVADO) continue;
        if (s == 1) {
            TriunfoX = 30;
            TriunfoY = Redondea(CentroVentanaY - 70.5);
        } else if (s == 2) {
            TriunfoX = Redondea(CentroVentanaX - 50.5);
            TriunfoY = 2;
        } else if (s == 3) {
            TriunfoX = AnchoMesa - 131;
            TriunfoY = Redondea(CentroVentanaY - 70.5);
        } else {
            TriunfoX = Redondea(CentroVentanaX - 50.5);
            TriunfoY = AltoVentana - 156;
        }
        return;
    }
}

void PosicionCarta(int seat, int posicion, int total) {
    int paso = ANCHO_CARTA;
    if (total > 1) paso = std::min(Redondea(149.0 / (total - 1)), ANCHO_CARTA);
    HileraLargo[seat] = paso * (total - 1) + ANCHO_CARTA;
    const int alzada = CartasJugador[seat][SerieActual][posicion][CAMPO_ESTADO] == 1 ? 20 : 0;
    const double margen = (LARGO_HILERA - HileraLargo[seat]) / 2.0;
    const int avance = (posicion - 1) * paso;
    // A raised card moves towards the middle of the table.
    switch (seat) {
    case 1:
        HileraInicio[1] = Redondea(ZonaArriba[1] + margen);
        CartaX = ZonaIzquierda[1] + alzada;
        CartaY = HileraInicio[1] + avance;
        break;
    case 2:
        HileraInicio[2] = Redondea(ZonaDerecha[2] - margen);
        CartaX = HileraInicio[2] - ANCHO_CARTA - avance + 1;
        CartaY = ZonaArriba[2] + alzada;
        break;
    case 3:
        HileraInicio[3] = Redondea(ZonaAbajo[3] - margen);
        CartaX = ZonaIzquierda[3] + 20 - alzada;
        CartaY = HileraInicio[3] - ANCHO_CARTA - avance;
        break;
    default:
        HileraInicio[4] = Redondea(ZonaIzquierda[4] + margen);
        CartaX = HileraInicio[4] + avance;
        CartaY = ZonaArriba[4] + 20 - alzada;
        break;
    }
}

void CalculaPaso(int x1, int y1, int x2, int y2, int largo) {
    const int dx = x1 - x2, dy = y1 - y2;
    PasoX = Signo(dx) * largo;
    PasoY = dx == 0 ? 0 : Redondea(dy / (std::abs(dx) / double(largo)));
    if (std::abs(PasoY) > largo) {
        // Both steps shrink together, so the card keeps its line.
        const double factor = std::abs(PasoY) / double(largo);
        PasoX = Redondea(PasoX / factor);
        PasoY = Redondea(PasoY / factor);
    }
    if (dx != 0 && PasoX == 0) PasoX = dx;
    if (dy != 0 && PasoY == 0) PasoY = dy;
    if (PasoX == dx && PasoY == 0 && std::abs(PasoX) >= largo) PasoX = Signo(dx) * largo;
    if (PasoY == dy && PasoX == 0 && std::abs(PasoY) >= largo) PasoY = Signo(dy) * largo;
}

int RotuloMesaY() {
    // Where the stock stands in the middle, the banner goes below it.
    if (JuegoActual == JUEGO_MUS || JuegoActual == JUEGO_CHINCHON || JuegoActual == JUEGO_PUMBA)
        return Redondea(CentroMesaY + 70.5 + 13);
    return CentroMesaY - 30;
}

int OrientacionDe(int seat) {
    if (seat >= 21) seat -= 20;
    if (seat >= 11) seat -= 10;
    return seat >= 1 && seat <= 4 ? OrientacionSeat[seat] : 1;
}

QRect BloquePila(int zona) {
    if (zona >= 21 && zona <= 24) {
        const int s = zona - 20;
        return QRect(PilaX[zona][1], PilaY[zona][1], AnchoMarco[s], AltoMarco[s]);
    }
    switch (zona) {
    case 0:
    case 4:
        return QRect(PilaX[zona][5], PilaY[zona][5] - 5, 76, 140);
    case 1:
        return QRect(0, PilaY[1][1], 140, 76);
    case 2:
        return QRect(PilaX[2][2] - 5, 0, 76, 140);
    case 3:
        return QRect(PilaX[3][6] - 5, PilaY[3][6] - 6, 140, 76);
    default:
        break;
    }
    if (zona >= 11 && zona <= 14) return QRect(PilaX[zona][1], PilaY[zona][1], 33, 33);
    return QRect();
}

QRect AreaBorrado(int zona) {
    QRect area = BloquePila(zona);
    // The stacks lean left and, for seats 1 and 2, up, else down, by up to 5 pixels; seat 3's
    // piles sit a pixel lower in their block than the others.
    switch (zona) {
    case 0:
    case 4:
        return area.adjusted(-5, 0, 0, 0);
    case 1:
        return area.adjusted(0, -5, 0, 0);
    case 3:
        return area.adjusted(0, 0, 0, 6);
    default:
        return area;
    }
}

QRect CajaCifraResto(int seat) {
    const QRect b = BloquePila(seat);
    switch (seat) {
    case 0:
        return QRect(b.x(), PilaY[0][1] + 40, 76, 16);
    case 1:
        return QRect(b.x(), b.bottom() + 3, 140, 16);
    case 2:
        return QRect(b.x(), b.y() + 4, 76, 16);
    case 3:
        return QRect(b.x(), b.y() - 20, 140, 16);
    default:
        return QRect(b.x(), b.y() + 120, 76, 16);
    }
}

QRect CajaCifraApuesta(int seat) {
    const int x = PilaX[seat + 10][1], y = PilaY[seat + 10][1];
    switch (seat) {
    case 1:
        return QRect(x, y + 36, 56, 16);
    case 2:
        return QRect(x - 58, y + 9, 56, 16);
    case 3:
        return QRect(x - 23, y - 19, 56, 16);
    default:
        return QRect(x + 36, y + 9, 56, 16);
    }
}
