// A seat brought up to date: its action buttons, its cards, its phrase and its stake.
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Frases.h"
#include "table/PartesMesa.h"
#include "table/Pulsadores.h"

#include <cstdlib>

namespace {

constexpr unsigned COLOR_ROTULO_SERIE = 0xFFFF00; // the series label: written, never spoken
constexpr int PRIMER_PULSADOR = 81, ULTIMO_PULSADOR = 102;

// The buttons that follow the seat on turn; the manual deal's and Pumba's have their owners.
bool PulsadorDelTurno(int indice) {
    return (indice <= 88 && indice != 87) || indice >= 96;
}

void OcultaNoQueridos(const bool quiere[103]) {
    for (int i = PRIMER_PULSADOR; i <= ULTIMO_PULSADOR; ++i)
        if (PulsadorDelTurno(i) && !quiere[i]) Pic_Pulsador[i].Visible = false;
}

void MuestraQueridos(int seat, const bool quiere[103]) {
    for (int i = PRIMER_PULSADOR; i <= ULTIMO_PULSADOR; ++i)
        if (PulsadorDelTurno(i) && quiere[i]) ColocaPulsador(seat, i);
}

// Where stakes stay in front of the seats, a seat's stake shows: not the bank's, not during a
// manual deal, and not while the seat's first card is raised over that place.
bool ApuestaALaVista(int seat) {
    return ApuestaDelante && seat != JugadorBanca && !AnularReparto &&
           CartasJugador[seat][SerieActual][1][CAMPO_ESTADO] != 1;
}

// The rectangle the seat's row of cards covers, raised cards included.
QRect ExtensionFila(int seat) {
    QRect fila;
    const int total = NumCartas[seat][SerieActual];
    const bool tumbada = OrientacionSeat[seat] == 2 || OrientacionSeat[seat] == 4;
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA, alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    for (int p = 1; p <= total; ++p) {
        PosicionCarta(seat, p, total);
        fila = fila.united(QRect(CartaX, CartaY, ancho, alto));
    }
    return fila;
}

// Whether the card at that position is drawn in the row: not an empty slot, not the card that
// hangs from the pointer.
bool CartaEnFila(int seat, int p) {
    return CartasJugador[seat][SerieActual][p][CAMPO_PALO] != 0 &&
           !(ArrastrandoCarta && p == PosicionOrigen);
}

// The rows of the seats at the top and the bottom run across the table; the sides' run down it.
bool FilaHorizontal(int seat) {
    return OrientacionSeat[seat] == 1 || OrientacionSeat[seat] == 3;
}

// The band that a row of cards hides whole, when its cards lie in one line edge to edge or
// overlapping: the wipe under it is then not needed. Empty when the row has a gap or a card
// out of line.
QRect BandaDeFila(int seat) {
    const int total = NumCartas[seat][SerieActual];
    const bool horizontal = FilaHorizontal(seat);
    QRect banda;
    int ultima = 0;
    for (int p = 1; p <= total; ++p) {
        if (!CartaEnFila(seat, p)) return QRect();
        PosicionCarta(seat, p, total);
        const QRect b = BandaOpaca(CartaX, CartaY, OrientacionSeat[seat], horizontal);
        if (b.isEmpty()) return QRect();
        if (banda.isNull()) {
            banda = b;
            ultima = horizontal ? b.left() : b.top();
            continue;
        }
        // Every card at the same height (or column), each touching the last.
        if (horizontal ? (b.top() != banda.top() || b.height() != banda.height())
                       : (b.left() != banda.left() || b.width() != banda.width()))
            return QRect();
        const int inicio = horizontal ? b.left() : b.top();
        const int largo = horizontal ? b.width() : b.height();
        if (std::abs(inicio - ultima) > largo) return QRect();
        ultima = inicio;
        banda = banda.united(b);
    }
    return banda;
}

bool SenasEnLaZona(int seat) {
    return JuegoActual == JUEGO_MUS && SenasVisibles[seat];
}

// What the seat's row shows: its cards with their faces, marks and places, the sheets they are
// drawn from, and the area wiped under them.
quint64 FirmaFila(int seat, const QRect& limpia) {
    FirmaParte firma;
    const int total = NumCartas[seat][SerieActual];
    firma << seat << SerieActual << total << OrientacionSeat[seat] << ReversoCartas
          << (JuegoActual == JUEGO_SIETEYMEDIA) << limpia;
    for (int p = 1; p <= total; ++p) {
        const auto& c = CartasJugador[seat][SerieActual][p];
        firma << CartaEnFila(seat, p) << c[CAMPO_PALO] << c[CAMPO_VALOR] << c[CAMPO_CARA]
              << c[CAMPO_ESTADO] << c[CAMPO_MARCA];
    }
    for (int o = 1; o <= 4; ++o)
        firma << Pic_Baraja[o].Imagen.cacheKey() << Pic_Comodin[o].Imagen.cacheKey();
    firma << Pic_BarReversos[1].Imagen.cacheKey() << Pic_BarReversos[2].Imagen.cacheKey();
    return firma.Valor;
}

bool HayCartaLevantada(int seat) {
    for (int p = 1; p <= NumCartas[seat][SerieActual]; ++p)
        if (CartaEnFila(seat, p) && CartasJugador[seat][SerieActual][p][CAMPO_ESTADO] == 1)
            return true;
    return false;
}

void DibujaCartas(int seat) {
    const QRect zona(ZonaIzquierda[seat], ZonaArriba[seat],
                     ZonaDerecha[seat] - ZonaIzquierda[seat] + 1,
                     ZonaAbajo[seat] - ZonaArriba[seat] + 1);
    if (SenasEnLaZona(seat)) {
        // The face with the signs lies there; the cards show only while a manual deal runs.
        // The strip of its phrase is wiped all the same, as the phrase is written afresh.
        const QRect franja = FranjaFrase(seat);
        BorraZona(franja.x(), franja.y(), franja.width(), franja.height());
        if (AnularReparto) PintaCartasSeat(Pic_Mesa.Imagen, seat);
        return;
    }
    // A long row (ten or twelve cards) runs a few pixels past the zone at either end, as its
    // step is rounded: what the last row covered is wiped with the zone.
    static QRect filaAnterior[5];
    const QRect limpia = zona.united(filaAnterior[seat]);
    const QRect fila = ExtensionFila(seat);
    filaAnterior[seat] = fila;
    const quint64 firma = FirmaFila(seat, limpia);
    bool levantada;
    if (ParteIntacta(PARTE_SEAT + seat, firma)) {
        levantada = HayCartaLevantada(seat);
    } else {
        BorraZonaBajo(limpia, BandaDeFila(seat));
        levantada = PintaCartasSeat(Pic_Mesa.Imagen, seat);
        AnotaParte(PARTE_SEAT + seat, limpia.united(fila), firma);
    }
    if (levantada) SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SUBE);
}

void EscribeFraseDelSeat(int seat) {
    QString& frase = FraseJugador[seat][SerieActual];
    const bool muda = ColorFrase[seat][SerieActual] == COLOR_ROTULO_SERIE;
    const int veces = ParpadeoFrase[seat][SerieActual];
    if (veces <= 0) {
        EscribeFrase(seat, muda ? 2 : 1);
        return;
    }
    if (!muda && !TutorEnCurso) EscribeFrase(seat);
    const QString texto = frase;
    for (int vuelta = 1; vuelta <= veces; ++vuelta) {
        frase = texto;
        RefrescaMesa();
        Pausa(150);
        EscribeFrase(seat, 2);
        if (TutorEnCurso) SuenaMesa(SONIDO_ASINCRONO, SONIDO_TUTOR);
        RefrescaMesa();
        Pausa(600);
        frase.clear();
        EscribeFrase(seat, 2);
    }
    RefrescaMesa();
}

void DibujaApuestaDelante(int seat) {
    const int n = NumHistorial[seat][SerieActual];
    const int x = PilaX[seat + 10][1], y = PilaY[seat + 10][1];
    if (n > 0) {
        DibujaFicha(x, y, HistorialFichas[seat][SerieActual][n], OrientacionSeat[seat]);
        CifraApuesta(seat, QString::number(ApuestaAcumulada(seat, SerieActual)));
    } else if (SerieCerrada[seat][SerieActual]) {
        Transfiere(Pic_Mesa.Imagen, x, y, 32, 32, Pic_BmpVario.Imagen, 129, 0, OpRaster::Copia);
    }
}

} // namespace

bool PintaCartasSeat(QImage& destino, int seat, int dx, int dy) {
    bool levantada = false;
    const int total = NumCartas[seat][SerieActual];
    int dibujadas[MAX_MANO + 1], n = 0;
    for (int p = 1; p <= total && n <= MAX_MANO; ++p)
        if (CartaEnFila(seat, p)) dibujadas[n++] = p;
    for (int i = 0; i < n; ++i) {
        const auto& carta = CartasJugador[seat][SerieActual][dibujadas[i]];
        PosicionCarta(seat, dibujadas[i], total);
        const int x = CartaX - dx, y = CartaY - dy;
        // The next card of the row hides most of this one: only what shows of it is drawn.
        QRect encima;
        if (i + 1 < n) {
            PosicionCarta(seat, dibujadas[i + 1], total);
            encima =
                BandaOpaca(CartaX - dx, CartaY - dy, OrientacionSeat[seat], FilaHorizontal(seat));
        }
        // Only Siete y media uses the mark of a card to half cover it.
        const int parcial = JuegoActual == JUEGO_SIETEYMEDIA ? carta[CAMPO_MARCA] : 0;
        DibujaCartaBajo(destino, x, y, OrientacionSeat[seat], carta[CAMPO_PALO], carta[CAMPO_VALOR],
                        carta[CAMPO_CARA], parcial, encima);
        if (carta[CAMPO_ESTADO] == 1) levantada = true;
    }
    return levantada;
}

void DibujaJugador(int seat) {
    if (seat < 1 || seat > 4 || Pic_Mesa.Imagen.isNull()) return;
    // Paso 1. Which action buttons the seat should show.
    bool quiere[103] = {};
    DecidePulsadores(seat, quiere);
    // Paso 2. The stake in front of the seat is wiped, to be drawn again at step 8.
    if (ApuestaALaVista(seat)) BorraPila(seat + 10);
    // Paso 3. The seat on turn loses the buttons it doesn't want.
    if (seat == JugadorActual) OcultaNoQueridos(quiere);
    // Paso 4. The cards of the series in play.
    DibujaCartas(seat);
    // Paso 5. A phrase takes the place of the buttons that would hide it.
    const bool conFrase = !FraseJugador[seat][SerieActual].isEmpty();
    if (conFrase) {
        for (int i : {85, 86, 102}) {
            quiere[i] = false;
            Pic_Pulsador[i].Visible = false;
        }
    }
    // Pasos 6 y 7. The phrase, blinking or still.
    if (conFrase) EscribeFraseDelSeat(seat);
    // Paso 8. The stake, or the mark of a closed series with no stake.
    if (ApuestaALaVista(seat)) DibujaApuestaDelante(seat);
    // Paso 9. The wanted buttons, against the seat.
    if (seat == JugadorActual) MuestraQueridos(seat, quiere);
    // Paso 10. Black Jack keeps the value of the hand on its panel.
    if (JuegoActual == JUEGO_BLACKJACK && Pic_Tantos[seat].Visible) DibujaBazas(seat);
}
