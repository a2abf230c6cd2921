// Figures of the Siete y media table: automatic hands per second, with the table drawn and with
// the game alone.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"

void BenchSieteYMedia() {
    std::printf("Siete y media, manos automáticas por segundo con la mesa pintada y con el juego "
                "solo:\n");
    const MesaAutomatica mesa{JUEGO_SIETEYMEDIA, 4, false, nullptr};
    const double pintada = ManosPorSegundo(mesa, 1000);
    PinturaOmitida = true;
    const double sola = ManosPorSegundo(mesa, 2000);
    PinturaOmitida = false;
    std::printf("  Siete y media: %8.1f %8.1f\n", pintada, sola);
}
