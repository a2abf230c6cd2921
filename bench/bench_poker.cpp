// Figures of the Póker table: automatic hands per second, for each count of seats.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"

void BenchPoker() {
    std::printf("Manos automáticas por segundo (pausas a cero, sin vuelos, mesa sin ventana):\n");
    for (int jugadores = 2; jugadores <= 4; ++jugadores)
        std::printf("  Póker  %d jugadores: %8.1f\n", jugadores,
                    ManosPorSegundo({JUEGO_POKER, jugadores, false, nullptr}, 2000));
}
