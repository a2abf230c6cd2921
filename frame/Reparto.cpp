// The shuffle, the deal by turns, and the draws from the stock and from the pile.
#include "frame/Baraja.h"

#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/OrdenaMano.h"
#include "frame/RepartoInterno.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <algorithm>
#include <cstring>

namespace {

bool EsBlackJack() {
    return JuegoActual == JUEGO_BLACKJACK;
}

// In the Siete y media every dealt card starts covered, seen in full only by its owner.
int MarcaDeReparto() {
    return JuegoActual == JUEGO_SIETEYMEDIA ? 1 : 0;
}

int PrimerHueco(int seat, int serie, int desde = 1) {
    int pos = desde;
    while (pos < MAX_MANO && CartasJugador[seat][serie][pos][CAMPO_PALO] != 0) ++pos;
    return pos;
}

void VuelaDesdeMazo(int seat, int pos, int total) {
    const auto& c = CartasJugador[seat][SerieActual][pos];
    PosicionCarta(seat, pos, total);
    MueveCarta(c[CAMPO_PALO], c[CAMPO_VALOR], MazoX, MazoY, 1, c[CAMPO_CARA], CartaX, CartaY,
               OrientacionSeat[seat], c[CAMPO_CARA], c[CAMPO_MARCA]);
}

// Whether the seat gets cards in this deal; round is the first card of the round.
bool SeatServido(int seat, int ronda) {
    switch (JuegoActual) {
    case JUEGO_POKER:
        return ApuestaAcumulada(seat, 1) > 0 || (RestoJugador(seat) > 0 && ApuestaMinima == 0);
    case JUEGO_BLACKJACK:
        // The bank takes its second card at its own turn.
        if (seat == JugadorBanca) return ronda == 1;
        return ApuestaAcumulada(seat, 1) > 0;
    case JUEGO_SIETEYMEDIA:
        return RestoJugador(seat) > 0;
    case JUEGO_CHINCHON:
    case JUEGO_PUMBA:
        return JuegaMano[seat];
    default:
        return EstadoJugador[seat] == ESTADO_ACTIVADO;
    }
}

void DaCartaDelMazo(int seat) {
    // The shoe of the Black Jack runs on from hand to hand and is shuffled when it runs out.
    if (EsBlackJack() && CartasEnMazo <= 0) BarajaMazo();
    const int pos = NumCartas[seat][1] + 1;
    auto& c = CartasJugador[seat][1][pos];
    c[CAMPO_PALO] = Baraja[PosicionMazo][CAMPO_PALO];
    c[CAMPO_VALOR] = Baraja[PosicionMazo][CAMPO_VALOR];
    c[CAMPO_CARA] = CartasVisibles[seat];
    c[CAMPO_ESTADO] = 2;
    c[CAMPO_MARCA] = MarcaDeReparto();
    NumCartas[seat][1] = pos;
    SeatUltimoReparto = seat; // Tute for three or four turns up the last card dealt
    --CartasEnMazo;
    ++PosicionMazo;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    // Each card flies straight to its place in the finished fan.
    VuelaDesdeMazo(seat, pos, std::max(pos, CartasPorJugador));
    if (CartasSiempreOrdenadas) OrdenaMano(seat);
    BombeaEventos();
    Pausa(40);
}

void ReparteAutomatico() {
    Repartiendo = true;
    if (!EsBlackJack() || CartasEnMazo <= 0) BarajaMazo();
    for (int ronda = 1; ronda <= CartasPorJugador; ronda += CartasPorTanda) {
        int seat = JugadorMano;
        // At most one lap of the table, even if the leader has left it.
        for (int vuelta = 0; vuelta < 4; ++vuelta) {
            if (SeatServido(seat, ronda))
                for (int k = 0; k < CartasPorTanda; ++k) DaCartaDelMazo(seat);
            SiguienteJugador(seat);
            if (seat == JugadorMano) break;
            if (EsBlackJack() && ronda == 2 && seat == JugadorBanca) break;
        }
    }
    Repartiendo = false;
}

// The discards but the n that the seat has just thrown go behind the end of the stock, in a
// random order; the n stay in the pile.
void MezclaDescartes(int n) {
    Mensaje(QStringLiteral("Mezclar cartas descartadas"),
            QStringLiteral("Como no hay suficientes cartas en el mazo para cubrir  el  descarte de "
                           "este jugador  se  va a proceder a mezclar las cartas de los descartes "
                           "anteriores."),
            3, 1);
    const int k = CartasEnPozo - n;
    if (k <= 0) return;
    // The stock ends at CartasBaraja on the first refill; a later one in the same hand puts the
    // old discards behind what the earlier one left, moved to the front when room runs out.
    if (PosicionMazo + CartasEnMazo - 1 + k > MAX_BARAJA) {
        for (int i = 0; i < CartasEnMazo; ++i)
            for (int f = 1; f <= 2; ++f) Baraja[1 + i][f] = Baraja[PosicionMazo + i][f];
        PosicionMazo = 1;
    }
    const int fin = PosicionMazo + CartasEnMazo - 1;
    for (int pos = fin + 1; pos <= MAX_BARAJA; ++pos) Baraja[pos][1] = Baraja[pos][2] = 0;
    for (int i = 1; i <= k; ++i) ColocaAlAzar(Pozo[i][1], Pozo[i][2], fin, k);
    for (int i = 1; i <= n; ++i)
        for (int f = 1; f <= 2; ++f) Pozo[i][f] = Pozo[k + i][f];
    for (int i = n + 1; i <= CartasEnPozo; ++i) Pozo[i][1] = Pozo[i][2] = 0;
    CartasEnPozo -= k;
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    CartasEnMazo += k;
}

} // namespace

void ColocaAlAzar(int palo, int valor, int base, int cuenta) {
    int pos;
    do {
        pos = base + Ent(Rnd() * cuenta + 1);
    } while (Baraja[pos][CAMPO_PALO] != 0);
    Baraja[pos][CAMPO_PALO] = palo;
    Baraja[pos][CAMPO_VALOR] = valor;
}

void BarajaMazo() {
    Sonido(SONIDO_SINCRONO, SONIDO_BARAJA);
    Pausa(400);
    CartasEnMazo = CartasBaraja;
    CartasEnPozo = 0;
    PosicionMazo = 1;
    if (!EsBlackJack()) DibujaMazo(MazoX, MazoY, CartasEnMazo);
    std::memset(Baraja, 0, sizeof Baraja);
    Randomiza();
    ++VecesBarajado;
    // A Black Jack shoe shuffled in the middle of a hand leaves out the cards the seats hold:
    // no card is ever twice on the table.
    int enMano[5][14] = {};
    if (EsBlackJack())
        for (const auto& s : CartasJugador)
            for (const auto& e : s)
                for (const auto& c : e)
                    if (c[CAMPO_PALO] >= 1 && c[CAMPO_PALO] <= 4 && c[CAMPO_VALOR] >= 1 &&
                        c[CAMPO_VALOR] <= 13) {
                        ++enMano[c[CAMPO_PALO]][c[CAMPO_VALOR]];
                        --CartasEnMazo;
                    }
    // Each card takes a random empty place: rejection is the whole method, with no swaps.
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= CartasPorPalo; ++valor) {
            if (!ValorEnJuego[valor]) continue;
            for (int b = enMano[palo][valor]; b < NumBarajas; ++b)
                ColocaAlAzar(palo, valor, 0, CartasEnMazo);
        }
    for (int n = 1; n <= NumComodines; ++n) ColocaAlAzar(PALO_COMODIN, 90 + n, 0, CartasBaraja);
}

void ReparteCartas() {
    // The shoe of six decks can't be laid out by hand: its cards aren't one of each.
    if (ModoReparto == 2 && !EsBlackJack())
        ReparteManual();
    else
        ReparteAutomatico();
}

void RobaCartas(int seat, int n, int marca) {
    if (n > CartasEnMazo) {
        if (JuegoActual == JUEGO_MUS || JuegoActual == JUEGO_POKER)
            MezclaDescartes(n);
        else if (EsBlackJack())
            BarajaMazo();
        // Elsewhere an exhausted stock ends the drawing.
        if (n > CartasEnMazo) n = CartasEnMazo;
        DibujaMazo(MazoX, MazoY, CartasEnMazo);
    }
    const int serie = SerieActual;
    int slot = PrimerHueco(seat, serie);
    for (int i = 0; i < n; ++i) {
        auto& c = CartasJugador[seat][serie][slot];
        c[CAMPO_PALO] = Baraja[PosicionMazo + i][CAMPO_PALO];
        c[CAMPO_VALOR] = Baraja[PosicionMazo + i][CAMPO_VALOR];
        // In the Siete y media a card drawn uncovered is seen by everybody.
        c[CAMPO_CARA] =
            (JuegoActual == JUEGO_SIETEYMEDIA && marca == 0) ? CARA_VISIBLE : CartasVisibles[seat];
        c[CAMPO_ESTADO] = 2;
        c[CAMPO_MARCA] = marca;
        ++NumCartas[seat][serie];
        --CartasEnMazo;
        DibujaMazo(MazoX, MazoY, CartasEnMazo);
        // The seat is drawn whole right after: in automatic play the landing is a frame nobody
        // sees. The Mus draws no cards over the faces in the zone, and keeps it.
        if (FotogramaVisible() || JuegoActual == JUEGO_MUS)
            VuelaDesdeMazo(seat, slot, NumCartas[seat][serie]);
        DibujaJugador(seat);
        slot = PrimerHueco(seat, serie, slot + 1);
        Pausa(60);
    }
    PosicionMazo += n;
}

void RobaDelPozo(int seat) {
    if (CartasEnPozo <= 0) return;
    const int slot = PrimerHueco(seat, 1);
    auto& c = CartasJugador[seat][1][slot];
    c[CAMPO_PALO] = Pozo[CartasEnPozo][1];
    c[CAMPO_VALOR] = Pozo[CartasEnPozo][2];
    c[CAMPO_CARA] = CartasVisibles[seat];
    c[CAMPO_ESTADO] = 2;
    c[CAMPO_MARCA] = 0;
    Pozo[CartasEnPozo][1] = Pozo[CartasEnPozo][2] = 0;
    ++NumCartas[seat][1];
    --CartasEnPozo;
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    PosicionCarta(seat, slot, NumCartas[seat][1]);
    MueveCarta(c[CAMPO_PALO], c[CAMPO_VALOR], PozoX, PozoY, 1, CARA_VISIBLE, CartaX, CartaY,
               OrientacionSeat[seat], c[CAMPO_CARA]);
    DibujaJugador(seat);
}

void CompactaMano(int seat) {
    auto& mano = CartasJugador[seat][SerieActual];
    // While a card hangs from the pointer its slot still holds it, one place less to close.
    const int ultima = std::min(MaxCartasMano + 1 - (ArrastrandoCarta ? 2 : 1), MAX_MANO - 1);
    for (int pos = 1; pos <= ultima; ++pos) {
        if (mano[pos][CAMPO_PALO] != 0) continue;
        int sig = pos + 1;
        while (sig <= MAX_MANO && mano[sig][CAMPO_PALO] == 0) ++sig;
        if (sig > MAX_MANO) break;
        for (int f = 1; f <= 5; ++f) {
            mano[pos][f] = mano[sig][f];
            mano[sig][f] = 0;
        }
    }
    if (!ArrastrandoCarta) DibujaJugador(seat);
}
