// Figures of the Cinquillo: automatic hands per second.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"

void BenchCinquillo() {
    std::printf("Manos automáticas por segundo (pausas a cero, sin vuelos, mesa sin ventana):\n");
    std::printf("  Cinquillo 4 jugadores: %8.1f\n",
                ManosPorSegundo({JUEGO_CINQUILLO, 4, false, [] { LimitePartida = 5; }}, 2000));
}
