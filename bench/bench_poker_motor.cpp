// Figures of the Póker's engine: one evaluation of every hand of the largest deck, and the worst
// time of a betting decision.
#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

#include "bench/Secciones.h"
#include "betting/Fichas.h"
#include "frame/Fases.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Jugador.h"
#include "games/poker/Recorrido.h"

namespace {

constexpr int DESDE_EL_2 = 1, DOS_COMODINES = 3;

// Every hand of the 54 cards through EvaluaJugada and OrdenJugada, checked against the table of
// counts as it goes.
void Enumeracion() {
    PonBarajaPoker(DESDE_EL_2, DOS_COMODINES);
    std::vector<long> cuenta(NUM_JUGADAS + 1, 0);
    long manos = 0;
    long long suma = 0;
    const double inicio = SegundosDeProceso();
    RecorreManos([&](int seat) {
        ++cuenta[JugadaJugador[seat]];
        suma += OrdenJugada(JugadaJugador[seat], seat);
        ++manos;
    });
    const double segundos = SegundosDeProceso() - inicio;
    bool iguales = manos == TotalCombinaciones;
    for (int c = PRIMERA_JUGADA_HECHA; c <= NUM_JUGADAS; ++c)
        iguales = iguales && cuenta[c] == CombinacionesJugada[c];
    std::printf("  %ld manos de 52 cartas y 2 comodines, evaluadas y ordenadas: %.2f s "
                "(%.2f us por mano), cuentas %s\n",
                manos, segundos, segundos * 1e6 / manos,
                iguales ? "iguales a la tabla" : "DISTINTAS");
    (void)suma;
}

// Second round, four seats in the hand with two jokers in the deck, every seat at level 100 so
// that the rivals' hands are read: the costliest turn. Each position is timed over many calls.
void PeorDecision() {
    PonBarajaPoker(DESDE_EL_2, DOS_COMODINES);
    std::mt19937 azar(51);
    std::vector<std::pair<int, int>> baraja;
    for (int p = 1; p <= 4; ++p)
        for (int v = 1; v <= 13; ++v) baraja.push_back({p, v});
    baraja.push_back({PALO_COMODIN, 91});
    baraja.push_back({PALO_COMODIN, 92});
    constexpr int POSICIONES = 400, VECES = 50;
    double peor = 0, total = 0;
    for (int n = 0; n < POSICIONES; ++n) {
        std::shuffle(baraja.begin(), baraja.end(), azar);
        ApuestaMaxima = 25;
        FaseJuego = n % 2 ? FASE_POKER_APUESTA2 : FASE_POKER_APUESTA1;
        ApuestaMaxRonda = n % 3 == 0 ? 0 : 5;
        JugadorActual = 4;
        for (int s = 1; s <= 4; ++s) {
            for (int p = 1; p <= 5; ++p) {
                CartasJugador[s][1][p][CAMPO_PALO] = baraja[s * 5 + p].first;
                CartasJugador[s][1][p][CAMPO_VALOR] = baraja[s * 5 + p].second;
            }
            NumCartas[s][1] = 5;
            NivelJugador[s] = 100;
            CaracterJugador[s] = 1 + (s + n) % 3;
            RecomponeFichas(s, 100);
            for (int f = 0; f < 6; ++f) Apuesta[s][1][f] = 0;
            Apuesta[s][1][FASE_POKER_ENTRADA] = 5;
            Apuesta[s][1][FaseJuego] = s == 4 ? 0 : ApuestaMaxRonda;
            JugadaMinEstimada[s] = JugadaPareja;
            JugadaMaxEstimada[s] = JugadaTrio;
        }
        const double inicio = SegundosDeProceso();
        for (int v = 0; v < VECES; ++v) {
            AzarJugada = (v + 0.5) / VECES;
            DecideApuesta();
        }
        const double cada = (SegundosDeProceso() - inicio) / VECES;
        peor = std::max(peor, cada);
        total += cada;
    }
    std::printf("  DecideApuesta, 4 asientos, nivel 100: peor posición %.2f us, media %.2f us\n",
                peor * 1e6, total / POSICIONES * 1e6);
}

} // namespace

void BenchPokerMotor() {
    std::printf("Póker, evaluación de jugadas y jugador del ordenador:\n");
    Enumeracion();
    PeorDecision();
    BenchPokerNiveles(1000, 200);
}
