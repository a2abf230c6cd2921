// Figures of the Pumba: automatic hands per second by the seats at the table, and what level 100
// wins against level 0.
#include <cmath>
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"

namespace {

constexpr int PARTIDAS_NIVEL = 400;

// Level 100 against level 0, of one character, the seats taking turns at each level from match
// to match: with two seats one against one, with four two against two. The share of the matches
// and of the hands the level 100 seats win, each with its standard error under no difference,
// and the points a hand each level is left with (the winner's -5 counted, seats out of the match
// not).
void NivelCienFrenteACero(int jugadores) {
    int partidas = 0, partidasAlto = 0, manos = 0, manosAlto = 0;
    long puntos[2] = {}, cuenta[2] = {};
    JuegaNivelesAlternos(JUEGO_PUMBA, jugadores, nullptr, [&](int jugadas) {
        if (GanadorPartida >= 1 && NivelJugador[GanadorPartida] == NIVEL_ALTO) ++partidasAlto;
        for (int m = 1; m <= jugadas; ++m)
            for (int s = 1; s <= jugadores; ++s) {
                const RegistroMano& r = RegistroManos[m];
                const bool alto = NivelJugador[s] == NIVEL_ALTO;
                if (r.Gana[s][1] == 1) manosAlto += alto;
                if (r.Resultado[s] == "0") continue; // out of the match
                puntos[alto] += r.Resultado[s].toInt();
                ++cuenta[alto];
            }
        manos += jugadas;
        return ++partidas < PARTIDAS_NIVEL;
    });
    const double pp = double(partidasAlto) / partidas, pm = double(manosAlto) / manos;
    std::printf("  Pumba %d jugadores, nivel 100 contra nivel 0 (%d partidas, %d manos): el nivel "
                "100 gana el %4.1f%% ± %3.1f%% de las partidas y el %4.1f%% ± %3.1f%% de las "
                "manos; puntos por mano: nivel 100 %5.2f, nivel 0 %5.2f\n",
                jugadores, partidas, manos, 100 * pp, 100 * std::sqrt(0.25 / partidas), 100 * pm,
                100 * std::sqrt(0.25 / manos), double(puntos[1]) / cuenta[1],
                double(puntos[0]) / cuenta[0]);
}

} // namespace

void BenchPumba() {
    for (int jugadores = 2; jugadores <= 4; ++jugadores) {
        const MesaAutomatica mesa{JUEGO_PUMBA, jugadores, false, nullptr};
        const double pintada = ManosPorSegundo(mesa, 2000);
        PinturaOmitida = true;
        const double sola = ManosPorSegundo(mesa, 2000);
        PinturaOmitida = false;
        std::printf("  Pumba     %d jugadores: %8.1f %8.1f\n", jugadores, pintada, sola);
    }
    NivelCienFrenteACero(2);
    NivelCienFrenteACero(4);
}
