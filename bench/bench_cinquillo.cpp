// Figures of the Cinquillo: automatic hands per second, with the table drawn and with the game
// alone, and what level 100 wins against level 0.
#include <cmath>
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"

namespace {

constexpr int PARTIDAS_NIVEL = 400;

// Seats 1 and 3 at level 100 against 2 and 4 at level 0, and the other way round in every other
// match, all of one character: the share of the hands the level 100 seats win (a half if the
// level did nothing) with its standard error, and the points a hand of each level, the winner's
// collection counted as a gain and the cards left as a loss.
void NivelCienFrenteACero() {
    int manos = 0, ganadas = 0;
    long neto[2] = {}; // [0] level 0, [1] level 100
    int partidas = 0;
    JuegaNivelesAlternos(
        JUEGO_CINQUILLO, 4, [] { LimitePartida = 5; },
        [&](int jugadas) {
            for (int m = 1; m <= jugadas; ++m)
                for (int s = 1; s <= 4; ++s) {
                    const bool alto = NivelJugador[s] == NIVEL_ALTO;
                    const int puntos = RegistroManos[m].Resultado[s].toInt();
                    const bool gana = RegistroManos[m].Gana[s][1] == 1;
                    neto[alto] += gana ? puntos : -puntos;
                    if (gana && alto) ++ganadas;
                }
            manos += jugadas;
            return ++partidas < PARTIDAS_NIVEL;
        });
    const double parte = double(ganadas) / manos;
    std::printf("  Cinquillo, nivel 100 contra nivel 0 (2 y 2 asientos, %d manos): el nivel 100 "
                "gana el %4.1f%% ± %3.1f%% de las manos; puntos por mano y asiento: nivel 100 "
                "%+5.2f, nivel 0 %+5.2f\n",
                manos, 100 * parte, 100 * std::sqrt(0.25 / manos), neto[1] / (2.0 * manos),
                neto[0] / (2.0 * manos));
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
    NivelCienFrenteACero();
}
