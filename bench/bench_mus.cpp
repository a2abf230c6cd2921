// Figures of the Mus: automatic hands per second, and the shares of the hands of the deck that
// hold each class of pares, juego, la 31 and punto, by both ways of counting the 3 and the 2.
#include <algorithm>
#include <ctime>
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/Baraja.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/JugadorMus.h"
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

// The computer player's decisions on random deals: every phase, every lance, and the signs of
// the four seats; the mean and the worst time of one call.
void TiemposDecision() {
    PreparaPartidaAutomatica({JUEGO_MUS, 4, true, [] { TipoMus = 1; }});
    ParametrosJuego();
    SemillaFija = 4242;
    SiembraPartida();
    // Times of this thread's own work: a wait for the processor while other programs run is not
    // the decision's.
    auto cpu = [] {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return t.tv_sec + t.tv_nsec / 1e9;
    };
    double peor = 0, suma = 0, peorSenas = 0;
    int llamadas = 0;
    auto mide = [&](int seat) {
        const double inicio = cpu();
        PiensaMus(seat);
        const double s = cpu() - inicio;
        peor = std::max(peor, s);
        suma += s;
        ++llamadas;
    };
    for (int reparto = 0; reparto < 2000; ++reparto) {
        // Four hands from a shuffled deck.
        int cartas[40][2], n = 0;
        for (int palo = 1; palo <= 4; ++palo)
            for (int valor : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12})
                cartas[n][0] = palo, cartas[n++][1] = valor;
        for (int i = 39; i > 0; --i) std::swap(cartas[i], cartas[int(Rnd() * (i + 1))]);
        for (int s = 1; s <= 4; ++s) {
            NumCartas[s][1] = 4;
            for (int p = 1; p <= 4; ++p) {
                CartasJugador[s][1][p][CAMPO_PALO] = cartas[(s - 1) * 4 + p - 1][0];
                CartasJugador[s][1][p][CAMPO_VALOR] = cartas[(s - 1) * 4 + p - 1][1];
            }
        }
        for (auto& lance : LanceMus) lance = LanceDeMus{};
        JugadorMano = JugadorActual = reparto % 4 + 1;
        AzarFrase = Rnd();
        FaseJuego = FASE_MUS_MUS;
        for (int s = 1; s <= 4; ++s) mide(s);
        FaseJuego = FASE_MUS_DESCARTE;
        for (int s = 1; s <= 4; ++s) mide(s);
        FaseJuego = FASE_MUS_ENVITE;
        for (int s = 1; s <= 4; ++s) EvaluaManoMus(s);
        for (LanceActual = LANCE_GRANDE; LanceActual <= LANCE_PUNTO; ++LanceActual) {
            ApuestaMaxRonda = reparto % 3 == 0 ? 0 : reparto % 3 == 1 ? 2 : ORDAGO;
            ApuestaPersona = ApuestaMaxRonda == 0 ? 2 : ApuestaMaxRonda;
            JugadorMaxApuesta = ApuestaMaxRonda == 0 ? 0 : JugadorMano;
            TurnosDesdeSubida = 2;
            for (int s = 1; s <= 4; ++s) mide(s);
        }
        const double inicio = cpu();
        PreparaSenas();
        GestosSenas();
        peorSenas = std::max(peorSenas, cpu() - inicio);
    }
    SemillaFija = 0;
    std::printf("  %d decisiones: media %.1f us, la peor %.1f us; las señas de los cuatro, la peor "
                "vez %.1f us (tiempo de proceso)\n",
                llamadas, suma / llamadas * 1e6, peor * 1e6, peorSenas * 1e6);
}

// Whole games of one match, the pair at level 100 against the pair at level 0 (both sides).
void NivelContraNivel(int partidas) {
    int ganadas = 0, jugadas = 0;
    for (int lado = 1; lado <= 2; ++lado)
        for (int k = 1; k <= partidas / 2; ++k) {
            PreparaPartidaAutomatica({JUEGO_MUS, 4, true, [lado] {
                                          TipoMus = 1;
                                          JuegosPartidaMus = 1;
                                          PiedrasJuego = 30;
                                          for (int s = 1; s <= 4; ++s) {
                                              NivelJugador[s] = ParejaDe[s] == lado ? 100 : 0;
                                              CaracterJugador[s] = 2;
                                          }
                                      }});
            JuegaPartidaAutomatica(50000u + 1000u * lado + k);
            ganadas += JuegosGanados[lado] > 0;
            ++jugadas;
        }
    std::printf("  pareja de nivel 100 contra pareja de nivel 0: %d de %d juegos (%.1f %%)\n",
                ganadas, jugadas, 100.0 * ganadas / jugadas);
}

} // namespace

void BenchMus() {
    std::printf("Mus, manos de la baraja con cada jugada:\n");
    FrecuenciasMus(1);
    FrecuenciasMus(2);
    std::printf("Mus, manos automáticas por segundo (pausas a cero, sin vuelos, mesa sin ventana; "
                "pintando y sin pintar):\n");
    for (int tipo = 1; tipo <= 2; ++tipo) {
        const MesaAutomatica mesa{JUEGO_MUS, 4, true, [tipo] { TipoMus = tipo; }};
        const double pintada = ManosPorSegundo(mesa, 300);
        PinturaOmitida = true;
        const double sola = ManosPorSegundo(mesa, 600);
        PinturaOmitida = false;
        std::printf("  %s: %8.1f %8.1f\n", tipo == 1 ? "Mus a 4 Reyes" : "Mus a 8 Reyes", pintada,
                    sola);
    }
    std::printf("Mus, el jugador del ordenador:\n");
    TiemposDecision();
    NivelContraNivel(400);
}
