// The end-game search of Tute and Brisca. Every legal line from the trick now starting is played
// out with the real hands, all lines weighing the same, and the lines won and tantos gained are
// counted by the first cards of that trick. No minimax: it reads as if every seat played any
// legal card at random.
#include "games/tutebrisca/Simulacion.h"

#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Reglas.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr int SERIE = 1;                // the trick games hold one series per seat
constexpr int MAX_POS = 12;             // hand positions the tables can index
constexpr int MAX_RONDAS = MAX_POS + 1; // rounds, plus the tantos after the last one
constexpr int PASADO = 99;              // a turn counter beyond the last card
constexpr int LIBRE_JUGADA = 0;         // LibreSim: the card was played in an earlier round
constexpr int LIBRE_SI = 1;             // in hand and legal in this round
constexpr int LIBRE_NO = 2;             // in hand, but the obligation forbids it
constexpr int SEAT_NINGUNO = 0;         // no seat gained anything in the line
constexpr int BONO_ULTIMA_SIM = 10;     // the search adds the last trick's ten in both games
constexpr int LIMITE_TUTE = 7;          // Tute searches hands of at most 7 - NumJugadores

// ---- Working tables of one run, 16-bit, no allocation while it runs ----
std::int16_t ManoSim[3][MAX_POS + 1][5];               // [1 suit, 2 value][position][seat]
std::int16_t TantosSim[5][MAX_RONDAS + 1];             // [seat][round]; round 1 is now
std::int16_t SalidaSim[MAX_RONDAS + 1];                // leader of the round
std::int16_t TurnoSim[5][MAX_RONDAS + 1];              // [turn][round]: seat at that turn
std::int16_t EleccionSim[5][MAX_RONDAS + 1];           // [turn][round]: position being tried
std::int16_t LibreSim[MAX_POS + 1][5][MAX_RONDAS + 1]; // [position][seat][round]

// Fixed for a run: cards a hand, rounds laid out, turns a trick, the seat order from each leader.
int CartasSim = 0, ProfundidadSim = 0, TurnosSim = 0;
int AsientosDesde[5][5];            // [leader][turn]: seat
int PuntosCartaSim[MAX_POS + 1][5]; // [position][seat]: points of the card

bool EnParejas() {
    return ModalidadPareja == 2 && NumJugadores == 4;
}

// The seats of a trick in playing order from each possible leader, walked once before the search.
void PreparaAsientos() {
    for (int lider = 1; lider <= 4; ++lider) {
        int seat = lider;
        AsientosDesde[lider][1] = lider;
        for (int t = 2; t <= TurnosSim; ++t) {
            SiguienteJugador(seat);
            AsientosDesde[lider][t] = seat;
        }
    }
}

// Step 2: the real hands and tantos become round 1, every card in hand free.
void CopiaMesa() {
    for (int s = 1; s <= 4; ++s) {
        for (int p = 1; p <= MAX_POS; ++p) {
            const bool enMano = p <= CartasSim && p <= NumCartas[s][SERIE];
            const int palo = enMano ? CartasJugador[s][SERIE][p][CAMPO_PALO] : 0;
            const int valor = enMano ? CartasJugador[s][SERIE][p][CAMPO_VALOR] : 0;
            ManoSim[1][p][s] = static_cast<std::int16_t>(palo);
            ManoSim[2][p][s] = static_cast<std::int16_t>(valor);
            PuntosCartaSim[p][s] = enMano ? Redondea(PuntosValor[valor]) : 0;
            // A seat short of cards can't play the gap: it is marked as already played.
            LibreSim[p][s][1] = enMano ? LIBRE_SI : LIBRE_JUGADA;
        }
        TantosSim[s][1] = static_cast<std::int16_t>(Redondea(TantosJugador[s][1]));
    }
}

// Step 3: the seats of round r from its leader.
void PonTurnos(int r) {
    for (int t = 1; t <= TurnosSim; ++t) TurnoSim[t][r] = AsientosDesde[SalidaSim[r]][t];
}

// Step 4: what turns 2 onward may play against the card tried at turn 1. Lowest class present
// is free: 1 overtakes the led card, 2 follows suit, 3 trumps, 4 anything else.
void MarcaLegales(int r) {
    const int lider = TurnoSim[1][r], posSalida = EleccionSim[1][r];
    const int paloSalida = ManoSim[1][posSalida][lider];
    const int ordenSalida = OrdenValor[ManoSim[2][posSalida][lider]];
    for (int t = 2; t <= TurnosSim; ++t) {
        const int s = TurnoSim[t][r];
        int clase[MAX_POS + 1] = {};
        int minima = 5;
        for (int p = 1; p <= CartasSim; ++p) {
            if (LibreSim[p][s][r] == LIBRE_JUGADA) continue;
            const int palo = ManoSim[1][p][s];
            if (palo == paloSalida)
                clase[p] = OrdenValor[ManoSim[2][p][s]] > ordenSalida ? 1 : 2;
            else
                clase[p] = palo == PaloTriunfo ? 3 : 4;
            if (clase[p] < minima) minima = clase[p];
        }
        for (int p = 1; p <= CartasSim; ++p)
            if (LibreSim[p][s][r] != LIBRE_JUGADA)
                LibreSim[p][s][r] = clase[p] == minima ? LIBRE_SI : LIBRE_NO;
    }
}

// Moves turn t of round r to its next free card; false when it runs past the last one.
bool AvanzaTurno(int t, int r) {
    const int s = TurnoSim[t][r];
    for (int p = EleccionSim[t][r] + 1; p <= CartasSim; ++p)
        if (LibreSim[p][s][r] == LIBRE_SI) {
            EleccionSim[t][r] = static_cast<std::int16_t>(p);
            return true;
        }
    return false;
}

// Step 8 within one round: the odometer over the turns, the last turn the fastest digit. A new
// card at turn 1 changes what the others may play, and they restart at their first free card.
// False when turn 1 has run through its hand.
bool SiguienteCombinacion(int r) {
    int t = TurnosSim;
    while (t >= 1) {
        if (!AvanzaTurno(t, r)) {
            --t;
            continue;
        }
        if (t == 1) MarcaLegales(r);
        int u = t + 1;
        for (; u <= TurnosSim; ++u) {
            EleccionSim[u][r] = 0;
            if (!AvanzaTurno(u, r)) break;
        }
        if (u > TurnosSim) return true;
        t = u - 1; // a turn with nothing to play: try the next card of the turn before it
    }
    return false;
}

// Step 5: the trick of round r as chosen; the winner's tantos go on to round r + 1.
int JuegaBazaSim(int r) {
    const int paloSalida = ManoSim[1][EleccionSim[1][r]][TurnoSim[1][r]];
    int puntos = r == CartasSim ? BONO_ULTIMA_SIM : 0;
    int ganador = 0, mejor = -1;
    for (int t = 1; t <= TurnosSim; ++t) {
        const int s = TurnoSim[t][r], p = EleccionSim[t][r];
        const int palo = ManoSim[1][p][s];
        int fuerza = OrdenValor[ManoSim[2][p][s]];
        if (palo == PaloTriunfo)
            fuerza += 20;
        else if (palo == paloSalida)
            fuerza += 10;
        if (fuerza > mejor) {
            mejor = fuerza;
            ganador = s;
        }
        puntos += PuntosCartaSim[p][s];
    }
    for (int s = 1; s <= 4; ++s)
        TantosSim[s][r + 1] =
            static_cast<std::int16_t>(TantosSim[s][r] + (s == ganador ? puntos : 0));
    return ganador;
}

// Step 6: the line is complete. Each turn of round 1 is credited at the entry of the first cards
// up to its own, and in pairs its partner's result is added at the same entry.
void CuentaLinea(int r) {
    int ganancia[5] = {};
    int tope = SEAT_NINGUNO, mejor = 0;
    for (int s = 1; s <= 4; ++s) {
        ganancia[s] = TantosSim[s][r + 1] - TantosSim[s][1];
        if (ganancia[s] > mejor) {
            mejor = ganancia[s];
            tope = s;
        }
    }
    const bool parejas = EnParejas();
    int ruta[5] = {};
    for (int t = 1; t <= TurnosSim; ++t) {
        ruta[t] = EleccionSim[t][1];
        int& ganadas = GanadasSim[ruta[1]][ruta[2]][ruta[3]][ruta[4]];
        int& margen = MargenSim[ruta[1]][ruta[2]][ruta[3]][ruta[4]];
        const int x = TurnoSim[t][1];
        margen += ganancia[x];
        if (x == tope) ++ganadas;
        if (parejas) {
            const int y = TurnoSim[CompaneroDe[t]][1];
            margen += ganancia[y];
            if (y == tope) ++ganadas;
        }
    }
}

// Step 7: round r + 1 starts from what is left, led by the winner of round r.
void BajaRonda(int r, int ganador) {
    for (int s = 1; s <= 4; ++s)
        for (int p = 1; p <= CartasSim; ++p)
            LibreSim[p][s][r + 1] = LibreSim[p][s][r] == LIBRE_JUGADA ? LIBRE_JUGADA : LIBRE_SI;
    for (int t = 1; t <= TurnosSim; ++t)
        LibreSim[EleccionSim[t][r]][TurnoSim[t][r]][r + 1] = LIBRE_JUGADA;
    // Counters beyond the last card make the first step of the odometer land on the first line.
    for (int t = 1; t <= TurnosSim; ++t) EleccionSim[t][r + 1] = PASADO;
    EleccionSim[1][r + 1] = 0;
    SalidaSim[r + 1] = static_cast<std::int16_t>(ganador);
    PonTurnos(r + 1);
}

// ---- ConsultaSimulacion ----

// Lines won and tantos gained under the first card of the route: the entries on the way down to
// turn T and all below it. Indices in the middle left at 0 hold nothing, so 0 can join every range;
// no line reaches a position beyond the cards the search laid out.
void SumaSubarbol(const int ruta[5], int T, long long& ganadas, long long& margen) {
    ganadas = margen = 0;
    const int ultima = CartasSim < MAX_POS ? CartasSim : MAX_POS;
    int segundo[MAX_POS + 2], tercero[MAX_POS + 2];
    int n2 = 0, n3 = 0;
    segundo[n2++] = 0;
    if (T > 2)
        segundo[n2++] = ruta[2];
    else
        for (int p = 1; p <= ultima; ++p) segundo[n2++] = p;
    tercero[n3++] = 0;
    if (T > 3)
        tercero[n3++] = ruta[3];
    else
        for (int p = 1; p <= ultima; ++p) tercero[n3++] = p;
    const int a = ruta[1];
    for (int i2 = 0; i2 < n2; ++i2)
        for (int i3 = 0; i3 < n3; ++i3)
            for (int d = 0; d <= ultima; ++d) {
                ganadas += GanadasSim[a][segundo[i2]][tercero[i3]][d];
                margen += MargenSim[a][segundo[i2]][tercero[i3]][d];
            }
}

// Where the position stands in the chooser's list: the cheaper the card, the earlier.
int EntradaCandidata(int pos, int H) {
    for (int j = 1; j <= H; ++j)
        if (Candidatas[j][CAND_POSICION] == pos) return j;
    return H;
}

double Porcentaje(long long parte, long long total) {
    return total == 0 ? 0.0 : static_cast<double>(parte) * 100.0 / static_cast<double>(total);
}

QString ClaveSimulada(double pct1, double pct2, int orden) {
    // With cards still to draw in Brisca only the trick is laid out: its tantos say little.
    if (JuegoActual == JUEGO_BRISCA && CartasEnMazo > 0)
        return Formato(pct1, "000.00") + "/" + Formato(orden, "00");
    return Formato(pct1, "000.00") + "/" + Formato(pct2, "000.00") + "/" + Formato(orden, "00");
}

} // namespace

bool ProcedeSimulacion() {
    const int n = NumCartas[JugadorSalida][SERIE];
    if (n < 2) return false;
    return JuegoActual != JUEGO_TUTE || n <= LIMITE_TUTE - NumJugadores;
}

void SimulaFinal() {
    // A run writes no entry beyond the positions it laid out: only those of the last run are
    // cleared (all of them the first time).
    static int ultimaAntes = MAX_POS;
    for (int a = 0; a <= ultimaAntes; ++a)
        for (int b = 0; b <= ultimaAntes; ++b)
            for (int c = 0; c <= ultimaAntes; ++c) {
                std::memset(GanadasSim[a][b][c], 0, sizeof(int) * (ultimaAntes + 1));
                std::memset(MargenSim[a][b][c], 0, sizeof(int) * (ultimaAntes + 1));
            }
    CartasSim = NumCartas[JugadorSalida][SERIE];
    if (CartasSim > MAX_POS) CartasSim = MAX_POS;
    ultimaAntes = CartasSim < 0 ? 0 : CartasSim;
    TurnosSim = NumJugadores < 4 ? NumJugadores : 4;
    if (CartasSim < 1 || TurnosSim < 1) return;
    // Paso 1. With cards still to draw only the current trick is laid out.
    ProfundidadSim = CartasEnMazo == 0 ? CartasSim : 1;

    // Paso 2. Round 1 is the table as it stands.
    PreparaAsientos();
    CopiaMesa();
    SalidaSim[1] = static_cast<std::int16_t>(JugadorSalida);
    PonTurnos(1);
    for (int t = 1; t <= TurnosSim; ++t) EleccionSim[t][1] = PASADO;
    EleccionSim[1][1] = 0;

    // Pasos 3 a 8. Each legal combination of a round is played; a full line is counted, a
    // shorter one goes down a round; a round run through goes back up to the one before.
    int r = 1;
    while (true) {
        if (!SiguienteCombinacion(r)) {
            if (r == 1) break;
            --r;
            continue;
        }
        const int ganador = JuegaBazaSim(r);
        if (r == ProfundidadSim) {
            CuentaLinea(r);
        } else {
            BajaRonda(r, ganador);
            ++r;
        }
    }
}

void ConsultaSimulacion() {
    CartaSimulada = 0;
    Lis_GanadasSim.Limpia();
    const int seat = JugadorActual, T = CartasEnBaza;
    const int H = NumCartas[seat][SERIE] < MAX_POS ? NumCartas[seat][SERIE] : MAX_POS;
    if (T < 1 || T > 4) return;
    int ruta[5] = {};
    for (int t = 1; t < T; ++t) ruta[t] = OrdenJugadas[t];
    const bool parejas = EnParejas();

    for (int i = 1; i <= H; ++i) {
        ruta[T] = i;
        const int ganadas = GanadasSim[ruta[1]][ruta[2]][ruta[3]][ruta[4]];
        const int margen = MargenSim[ruta[1]][ruta[2]][ruta[3]][ruta[4]];
        long long totalGanadas, totalMargen;
        SumaSubarbol(ruta, T, totalGanadas, totalMargen);
        // Pairs were counted at both partners' entries.
        if (parejas) {
            totalGanadas = Redondea(static_cast<double>(totalGanadas) / 2);
            totalMargen = Redondea(static_cast<double>(totalMargen) / 2);
        }
        const double pct1 = Porcentaje(ganadas, totalGanadas);
        const double pct2 = Porcentaje(margen, totalMargen);
        if (pct1 == 0 && pct2 == 0) continue; // no line plays it: not a legal card here
        const int orden = H - EntradaCandidata(i, H);
        Lis_GanadasSim.Agrega(ClaveSimulada(pct1, pct2, orden), i);
    }

    if (Lis_GanadasSim.Cuenta() >= 2 && Ent(AzarJugada * 100 + 1) <= NivelJugador[seat])
        CartaSimulada = Lis_GanadasSim.DatoUltimo();
}
