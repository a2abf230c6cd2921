// Figures of the Black Jack table: automatic hands per second, and what the seats lose per unit
// staked at level 100 and at level 0, over whole seeded matches at the table.
#include <cstdio>

#include "bench/Secciones.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/blackjack/PartidaBlackJack.h"
#include "platform/CajaImagen.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

namespace {

// Matches are cut short so that the seats stay rich and the bank can always pay: the rate is
// the table's, not that of a seat on its last chips.
constexpr int MANOS_POR_PARTIDA = 60;

struct Tasa {
    double Perdida = 0;
    long long Manos = 0;
};

Tasa TasaPerdida(int nivel, long long manos) {
    double ganaBanca = 0, apostado = 0;
    long long jugadas = 0;
    unsigned semilla = 5000;
    PinturaOmitida = true; // the game alone: the rate doesn't depend on the drawing
    while (jugadas < manos) {
        PreparaPartidaAutomatica({JUEGO_BLACKJACK, 4, false, [] {
                                      RestoInicial = 995;
                                      ApuestaMaxima = 30;
                                  }});
        for (int s = 1; s <= 4; ++s) {
            NivelJugador[s] = nivel;
            CaracterJugador[s] = 3;
        }
        PausasACero = VuelosOmitidos = true;
        SemillaFija = ++semilla;
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (FaseJuego != FASE_FIN_MANO) return;
            ganaBanca += RegistroManos[NumeroMano].Banca;
            apostado += ApuestasDeLaMano;
            ++jugadas;
            if (NumeroMano >= MANOS_POR_PARTIDA || jugadas >= manos) PartidaViva = false;
        };
        RespuestasGuionadas.assign(4, false);
        NuevaPartida();
        RespuestasGuionadas.clear();
        MensajesVistos.clear();
        PersonaGuionada = nullptr;
    }
    SemillaFija = 0;
    PausasACero = VuelosOmitidos = PinturaOmitida = false;
    return {apostado > 0 ? ganaBanca / apostado : 0, jugadas};
}

} // namespace

void BenchBlackJackTasas(long long manos) {
    std::printf("Black Jack, pérdida por unidad apostada (jugadores agresivos, sin quedar cortos "
                "de dinero):\n");
    for (int nivel : {100, 0}) {
        const Tasa t = TasaPerdida(nivel, manos);
        std::printf("  nivel %3d: %7.4f  en %lld manos\n", nivel, t.Perdida, t.Manos);
    }
}

void BenchBlackJackManos() {
    std::printf("Black Jack, manos automáticas por segundo con la mesa pintada y con el juego "
                "solo:\n");
    const MesaAutomatica mesa{JUEGO_BLACKJACK, 4, false, nullptr};
    const double pintada = ManosPorSegundo(mesa, 1000);
    PinturaOmitida = true;
    const double sola = ManosPorSegundo(mesa, 2000);
    PinturaOmitida = false;
    std::printf("  Black Jack: %8.1f %8.1f\n", pintada, sola);
}

void BenchBlackJack() {
    BenchBlackJackManos();
    BenchBlackJackTasas(1000000);
}
