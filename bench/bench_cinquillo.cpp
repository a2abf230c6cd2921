// Figures of the Cinquillo: automatic hands per second, with the table drawn and with the game
// alone, and the hands each level wins.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"

namespace {

// Seats 1 to 4 play at levels 100, 75, 50 and 0: the share of the hands each one wins.
void ManosGanadasPorNivel() {
    int ganadas[5] = {}, manos = 0;
    for (unsigned semilla = 1; semilla <= 200; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_CINQUILLO, 4, false, [] { LimitePartida = 5; }});
        const int jugadas = JuegaPartidaAutomatica(semilla);
        for (int m = 1; m <= jugadas; ++m)
            for (int s = 1; s <= 4; ++s) ganadas[s] += RegistroManos[m].Gana[s][1];
        manos += jugadas;
    }
    std::printf("  Cinquillo, manos ganadas por nivel 100/75/50/0 en %d manos: %4.1f%% %4.1f%% "
                "%4.1f%% %4.1f%%\n",
                manos, 100.0 * ganadas[1] / manos, 100.0 * ganadas[2] / manos,
                100.0 * ganadas[3] / manos, 100.0 * ganadas[4] / manos);
}

} // namespace

void BenchCinquillo() {
    std::printf("Cinquillo y Pumba, manos automáticas por segundo con la mesa pintada y con el "
                "juego solo:\n");
    const MesaAutomatica mesa{JUEGO_CINQUILLO, 4, false, [] { LimitePartida = 5; }};
    const double pintada = ManosPorSegundo(mesa, 2000);
    PinturaOmitida = true;
    const double sola = ManosPorSegundo(mesa, 2000);
    PinturaOmitida = false;
    std::printf("  Cinquillo 4 jugadores: %8.1f %8.1f\n", pintada, sola);
    ManosGanadasPorNivel();
}
