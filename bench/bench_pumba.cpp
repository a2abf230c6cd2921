// Figures of the Pumba: automatic hands per second, by the seats at the table.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"

void BenchPumba() {
    for (int jugadores = 2; jugadores <= 4; ++jugadores)
        std::printf("  Pumba     %d jugadores: %8.1f\n", jugadores,
                    ManosPorSegundo({JUEGO_PUMBA, jugadores, false, nullptr}, 2000));
}
