// Figures of the Mus: automatic hands per second, and the shares of the hands of the deck that
// hold each class of pares, juego, la 31 and punto, by both ways of counting the 3 and the 2.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/Baraja.h"
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"
#include "platform/CajaImagen.h"

namespace {

// Every four cards of the 40 once, through the evaluator.
void FrecuenciasMus(int tipo) {
    PreparaPartidaAutomatica({JUEGO_MUS, 4, true, [tipo] { TipoMus = tipo; }});
    ParametrosJuego();
    int cartas[40][2], n = 0;
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12})
            cartas[n][0] = palo, cartas[n++][1] = valor;
    double clases[4] = {}, juego = 0, la31 = 0, punto = 0, manos = 0;
    const double inicio = SegundosDeProceso();
    for (int a = 0; a < 40; ++a)
        for (int b = a + 1; b < 40; ++b)
            for (int c = b + 1; c < 40; ++c)
                for (int d = c + 1; d < 40; ++d) {
                    const int mano[4] = {a, b, c, d};
                    for (int k = 0; k < 4; ++k) {
                        CartasEvaluadas[k + 1][1] = cartas[mano[k]][0];
                        CartasEvaluadas[k + 1][2] = cartas[mano[k]][1];
                    }
                    EvaluaManoMus(0, true);
                    const ValorMano& v = ValoresMusActual;
                    ++clases[v.ClasePares];
                    juego += v.TotalJuego != 0;
                    la31 += v.TotalJuego == 31;
                    punto += v.Punto != 0;
                    ++manos;
                }
    const double segundos = SegundosDeProceso() - inicio;
    std::printf("  %s (%.0f manos, %.0f evaluaciones por segundo):\n",
                tipo == 1 ? "Mus a 4 Reyes" : "Mus a 8 Reyes", manos, manos / segundos);
    std::printf("    pares %6.2f %%  medias %5.2f %%  duples %5.2f %%  juego %6.2f %%  "
                "la 31 %5.2f %%  punto %6.2f %%\n",
                clases[1] * 100 / manos, clases[2] * 100 / manos, clases[3] * 100 / manos,
                juego * 100 / manos, la31 * 100 / manos, punto * 100 / manos);
}

} // namespace

void BenchMus() {
    std::printf("Mus, manos de la baraja con cada jugada:\n");
    FrecuenciasMus(1);
    FrecuenciasMus(2);
    std::printf(
        "Mus, manos automáticas por segundo (pausas a cero, sin vuelos, mesa sin ventana):\n");
    for (int tipo = 1; tipo <= 2; ++tipo)
        std::printf("  %s: %8.1f\n", tipo == 1 ? "Mus a 4 Reyes" : "Mus a 8 Reyes",
                    ManosPorSegundo({JUEGO_MUS, 4, true, [tipo] { TipoMus = tipo; }}, 300));
}
