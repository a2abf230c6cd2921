// Figures of the Chinchón: automatic hands per second, and the worst time of one choice of the
// computer player, the draw of a seat at level 100 that holds the joker.
#include <QElapsedTimer>
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/GblChinchon.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Eleccion.h"

namespace {

// Seat 1 draws in the middle of a hand: the most trials are made when it holds the joker and
// sees every other hand, and the pile is short, so that almost every card could come.
double PeorEleccion(bool comodin, int repeticiones, double& peor) {
    PreparaPartidaAutomatica({JUEGO_CHINCHON, 4, false, [comodin] { AsOrosComodin = comodin; }});
    NivelJugador[1] = 100;
    CaracterJugador[1] = 3;
    // Seat 1: the As de Oros and six scattered cards; the others, runs and gaps of one suit each.
    static constexpr int Manos[5][8][2] = {
        {},
        {{}, {1, 1}, {3, 3}, {4, 5}, {1, 7}, {2, 9}, {3, 11}, {4, 12}},
        {{}, {2, 2}, {2, 3}, {2, 4}, {2, 5}, {2, 6}, {2, 7}, {2, 8}},
        {{}, {3, 4}, {3, 5}, {3, 6}, {3, 7}, {3, 8}, {3, 9}, {3, 10}},
        {{}, {4, 1}, {4, 2}, {4, 3}, {4, 4}, {4, 6}, {4, 7}, {4, 8}}};
    for (int s = 1; s <= 4; ++s) {
        NumCartas[s][1] = 7;
        JuegaMano[s] = true;
        for (int p = 1; p <= 7; ++p) {
            CartasJugador[s][1][p][CAMPO_PALO] = Manos[s][p][0];
            CartasJugador[s][1][p][CAMPO_VALOR] = Manos[s][p][1];
        }
    }
    JugadoresMano = 4;
    CartasEnPozo = 1;
    Pozo[1][1] = 2;
    Pozo[1][2] = 12;
    CartasEnMazo = 19;
    VaciaRegistroDescartes();
    NumeroDescarte = 9;
    JugadorActual = 1;
    FaseJuego = FASE_CHINCHON_TOMA;
    AzarJugada = 0.5;
    peor = 0;
    QElapsedTimer total;
    total.start();
    for (int r = 0; r < repeticiones; ++r) {
        QElapsedTimer reloj;
        reloj.start();
        EligeChinchon();
        peor = std::max(peor, reloj.nsecsElapsed() / 1e6);
    }
    return total.nsecsElapsed() / 1e6 / repeticiones;
}

} // namespace

void BenchChinchon() {
    std::printf("Chinchón, una elección de EligeChinchon (robo a nivel 100), ms:\n");
    for (bool comodin : {false, true}) {
        double peor = 0;
        const double media = PeorEleccion(comodin, comodin ? 5 : 50, peor);
        std::printf("  %s: media %8.3f, peor %8.3f\n",
                    comodin ? "con el As de Oros comodín" : "sin comodín             ", media,
                    peor);
    }
    std::printf("Manos automáticas por segundo (pausas a cero, sin vuelos, mesa sin ventana):\n");
    for (int jugadores = 2; jugadores <= 4; ++jugadores)
        std::printf(
            "  Chinchón %d jugadores:              %8.1f\n", jugadores,
            ManosPorSegundo({JUEGO_CHINCHON, jugadores, false, [] { LimitePartida = 50; }}, 60));
    std::printf("  Chinchón 4 jugadores, 40 cartas:    %8.1f\n",
                ManosPorSegundo({JUEGO_CHINCHON, 4, false, [] { TipoBarajaEspanola = 2; }}, 60));
    std::printf("  Chinchón 4 jugadores, con comodín:  %8.1f\n",
                ManosPorSegundo({JUEGO_CHINCHON, 4, false, [] { AsOrosComodin = true; }}, 20));
}
