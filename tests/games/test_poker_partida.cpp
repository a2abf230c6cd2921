// Whole matches of Póker at a table without a window: the money never changes hands but through
// the pot, the match ends with one seat holding all of it, and the showdown shares the pot as a
// table worked out by hand says.
#include "betting/Fichas.h"
#include "bench/Automatica.h"
#include "frame/Coherencia.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Dibujo.h"
#include "support/MesaDePrueba.h"
#include "table/Mensajes.h"

#include <cstdio>

#include <gtest/gtest.h>

namespace {} // namespace

namespace {

// An automatic match whose messages stay to be read afterwards.
int JuegaConMensajes(unsigned semilla) {
    PausasACero = VuelosOmitidos = true;
    SemillaFija = semilla;
    PersonaGuionada = [] { EsperandoPersona = false; };
    RespuestasGuionadas.assign(4, false);
    MensajesVistos.clear();
    NuevaPartida();
    RespuestasGuionadas.clear();
    PersonaGuionada = nullptr;
    SemillaFija = 0;
    PausasACero = VuelosOmitidos = false;
    return NumeroMano;
}

} // namespace

// Seeded automatic matches at several rule settings, the table checked after every move: each
// ends with one seat holding every chip, each hand ends with a result or a redeal, and a hand
// shown at the showdown reads as a play of five cards.
TEST(PokerPartida, AutomaticMatchesKeepTheMoneyAndEndWithOneSeatHoldingIt) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const struct {
        int jugadores, ley, comodines, cartaMinima, descartes, resto, minima, maxima;
    } casos[] = {
        {4, 14, 1, 1, 5, 40, 5, 25}, {4, 10, 1, 1, 5, 40, 5, 25}, {3, 1, 3, 6, 3, 40, 2, 40},
        {2, 13, 2, 4, 0, 30, 5, 25}, {4, 7, 2, 1, 2, 40, 1, 10},
    };
    const bool antes = ComprobarCoherencia;
    ComprobarCoherencia = true;
    int manos = 0, redeals = 0;
    for (const auto& c : casos)
        for (unsigned semilla = 1; semilla <= 3; ++semilla) {
            PreparaPartidaAutomatica({JUEGO_POKER, c.jugadores, false, [&c] {
                                          LeyApertura = c.ley;
                                          OpcionComodines = c.comodines;
                                          CartaMinimaPoker = c.cartaMinima;
                                          LimiteDescartes = c.descartes;
                                          RestoInicial = c.resto;
                                          ApuestaMinima = c.minima;
                                          ApuestaMaxima = c.maxima;
                                      }});
            const int jugadas = JuegaConMensajes(semilla);
            // The computer seats stake within the limits: no refusal is ever shown for them.
            for (const auto& m : MensajesVistos)
                EXPECT_TRUE(m.Titulo != "Límite sobrepasado" &&
                            m.Titulo != "No puede subir la apuesta")
                    << m.Titulo.toStdString() << " semilla " << semilla;
            const std::string caso =
                "ley " + std::to_string(c.ley) + " semilla " + std::to_string(semilla);
            manos += jugadas;
            ASSERT_GE(GanadorPartida, 1) << caso;
            EXPECT_EQ(RestoJugador(GanadorPartida), c.jugadores * c.resto) << caso;
            EXPECT_EQ(ValorBote(), 0) << caso;
            // A hand without a pot in its record was dealt again: nobody staked.
            for (int m = 1; m <= jugadas && m <= MAX_MANOS; ++m) {
                const RegistroMano& r = RegistroManos[m];
                int primeros = 0;
                for (int s = 1; s <= 4; ++s) {
                    primeros += r.Gana[s][1] == 1;
                    if (r.Detalle[s].isEmpty() || r.Detalle[s] == "aceptado") continue;
                    EXPECT_EQ(r.Detalle[s].split(' ').size(), 5) << caso << " mano " << m;
                }
                if (r.Banca == 0)
                    ++redeals;
                else
                    EXPECT_GE(primeros, 1) << caso << " mano " << m;
            }
        }
    ComprobarCoherencia = antes;
    std::printf("[          ] %d manos, %d sin apuestas\n", manos, redeals);
    EXPECT_GT(redeals, 0) << "some hand was dealt again when nobody could open";
}
