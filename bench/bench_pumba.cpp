// Figures of the Pumba: automatic hands per second by the seats at the table, and the matches
// each level wins.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"

namespace {

// Seats 1 to 4 play at levels 100, 75, 50 and 0: the share of the matches each one wins, the
// last seat under the limit.
void PartidasGanadasPorNivel() {
    constexpr int PARTIDAS = 200;
    int ganadas[5] = {};
    for (unsigned semilla = 1; semilla <= PARTIDAS; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_PUMBA, 4, false, [] { LimitePartida = 30; }});
        JuegaPartidaAutomatica(semilla);
        if (GanadorPartida >= 1 && GanadorPartida <= 4) ++ganadas[GanadorPartida];
    }
    std::printf("  Pumba, partidas ganadas por nivel 100/75/50/0 en %d: %4.1f%% %4.1f%% %4.1f%% "
                "%4.1f%%\n",
                PARTIDAS, 100.0 * ganadas[1] / PARTIDAS, 100.0 * ganadas[2] / PARTIDAS,
                100.0 * ganadas[3] / PARTIDAS, 100.0 * ganadas[4] / PARTIDAS);
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
    PartidasGanadasPorNivel();
}
