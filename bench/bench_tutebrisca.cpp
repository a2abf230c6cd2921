// Figures of Tute and Brisca: automatic hands per second, and the worst time of the end-game
// search for each game and seat count.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"
#include "platform/CajaImagen.h"

namespace {

void DaMano(int seat, const int (*cartas)[2], int n) {
    for (int p = 1; p <= n; ++p) {
        CartasJugador[seat][1][p][CAMPO_PALO] = cartas[p - 1][0];
        CartasJugador[seat][1][p][CAMPO_VALOR] = cartas[p - 1][1];
    }
    NumCartas[seat][1] = n;
}

// The longest search the table allows: the most cards in hand with an empty stock, and each
// seat holding a suit of its own, so that no seat is ever bound and every line is legal.
double PeorSimulacion(int juego, int jugadores, int cartas, int repeticiones) {
    PreparaPartidaAutomatica({juego, jugadores, false, nullptr});
    CartasEnMazo = 0;
    PaloTriunfo = 1;
    JugadorSalida = 1;
    ModalidadPareja = 1;
    for (int s = 1; s <= 4; ++s) TantosJugador[s][1] = 0;
    const int valores[] = {1, 3, 12, 11, 10, 7, 6, 5, 4};
    for (int s = 1; s <= jugadores; ++s) {
        int mano[12][2];
        for (int p = 0; p < cartas; ++p) {
            mano[p][0] = s;
            mano[p][1] = valores[p];
        }
        DaMano(s, mano, cartas);
    }
    const double inicio = SegundosDeProceso();
    for (int r = 0; r < repeticiones; ++r) SimulaFinal();
    return (SegundosDeProceso() - inicio) * 1e3 / repeticiones;
}

} // namespace

void BenchTuteBrisca() {
    std::printf("Búsqueda del final (SimulaFinal), peor caso, ms por búsqueda:\n");
    const struct {
        int juego, jugadores, cartas;
        const char* nombre;
    } casos[] = {{JUEGO_TUTE, 2, 5, "Tute"},     {JUEGO_TUTE, 3, 4, "Tute"},
                 {JUEGO_TUTE, 4, 3, "Tute"},     {JUEGO_BRISCA, 2, 3, "Brisca"},
                 {JUEGO_BRISCA, 3, 3, "Brisca"}, {JUEGO_BRISCA, 4, 3, "Brisca"}};
    for (const auto& c : casos)
        std::printf("  %-6s %d jugadores, %d cartas: %10.3f ms\n", c.nombre, c.jugadores, c.cartas,
                    PeorSimulacion(c.juego, c.jugadores, c.cartas, 5));

    BenchTuteBriscaManos(1);
}

void BenchTuteBriscaManos(int repeticion, bool soloSinPintar) {
    std::printf("Manos automáticas por segundo (pausas a cero, sin vuelos, mesa sin ventana),\n"
                "con la mesa pintada y con el juego solo (sin pintar):\n");
    for (int jugadores = 2; jugadores <= 4; ++jugadores) {
        for (const int juego : {JUEGO_TUTE, JUEGO_BRISCA}) {
            const MesaAutomatica mesa{juego, jugadores, false, [] { LimitePartida = 5; }};
            const int manos = (juego == JUEGO_TUTE ? 400 : 2000) * repeticion;
            const long long pixeles = PixelesPintados;
            const double pintada = soloSinPintar ? 0 : ManosPorSegundo(mesa, manos);
            const long long porMano = (PixelesPintados - pixeles) / manos;
            PinturaOmitida = true;
            const double sola = ManosPorSegundo(mesa, manos);
            PinturaOmitida = false;
            std::printf("  %-6s %d jugadores: %8.1f %8.1f   %5.2f millones de píxeles por mano\n",
                        juego == JUEGO_TUTE ? "Tute" : "Brisca", jugadores, pintada, sola,
                        porMano / 1e6);
        }
    }
}
