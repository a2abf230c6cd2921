// The level of a Póker seat tells in chips: the same matches are played twice, once with one seat
// at level 100 and once with it at level 0, every card of every hand the same in both, and the
// seat at level 100 must win clearly more.
#include "bench/Automatica.h"
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/Fases.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"
#include "support/ManosPoker.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <cmath>
#include <cstdio>
#include <vector>

#include <gtest/gtest.h>

namespace {

// A bold table, where stakes grow big enough for the level's folds to tell: four Agresivo seats,
// a limit of 100 a hand, the entry of 5 and the most money the rules allow, so that nobody is
// ruined within a match.
constexpr int JUGADORES = 4, AGRESIVO = 3, APUESTA_MAXIMA = 100, RESTO = 995;
constexpr int PARTIDAS = 80, MANOS_POR_PARTIDA = 25;
constexpr double ERRORES = 3; // the margin the level must win by, in standard errors

// The chips a hand won by the seat under test in each match, with that seat at the level given
// and the others at level 0; the seat changes place from one match to the next. After each
// showdown the stream is seeded from the match and the hand, so both runs deal the same cards
// and only the decisions of the seat under test tell them apart.
std::vector<double> GananciaPorPartida(int nivel) {
    std::vector<double> porPartida;
    for (int partida = 0; partida < PARTIDAS; ++partida) {
        const int asiento = partida % JUGADORES + 1;
        PreparaPartidaAutomatica({JUEGO_POKER, JUGADORES, false, [&] {
                                      RestoInicial = RESTO;
                                      ApuestaMaxima = APUESTA_MAXIMA;
                                      for (int s = 1; s <= 4; ++s) {
                                          NivelJugador[s] = s == asiento ? nivel : NIVEL_BAJO;
                                          CaracterJugador[s] = AGRESIVO;
                                      }
                                  }});
        PausasACero = VuelosOmitidos = true;
        SemillaFija = 100 + partida;
        int manoVista = 0, manos = 0, ahora = RESTO;
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (FaseJuego != FASE_FIN_MANO || ManoViva || NumeroMano == manoVista) return;
            // The showdown, its shares worked out and not yet paid.
            manoVista = NumeroMano;
            ahora = RestoJugador(asiento) + Ganancia[asiento];
            RandomizaCon(1000u * (partida + 1) + ++manos);
            if (manos >= MANOS_POR_PARTIDA) PartidaViva = false;
        };
        RespuestasGuionadas.assign(4, false);
        NuevaPartida();
        RespuestasGuionadas.clear();
        MensajesVistos.clear();
        PersonaGuionada = nullptr;
        SemillaFija = 0;
        porPartida.push_back(double(ahora - RESTO) / MANOS_POR_PARTIDA);
    }
    PausasACero = VuelosOmitidos = false;
    return porPartida;
}

} // namespace

// The level-100 seat's mean winnings a hand beat the level-0 seat's, on the same deals, by more
// than three standard errors of the difference, worked out from the matches themselves.
TEST(PokerNivel, ElNivel100GanaMasFichasQueElNivel0ConLasMismasCartas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    PinturaOmitida = true;
    const std::vector<double> alto = GananciaPorPartida(NIVEL_ALTO);
    const std::vector<double> bajo = GananciaPorPartida(NIVEL_BAJO);
    PinturaOmitida = false;
    RecogeMesaDePoker();
    double suma = 0, cuadrados = 0, sumaAlto = 0;
    for (int p = 0; p < PARTIDAS; ++p) {
        const double d = alto[p] - bajo[p];
        suma += d;
        cuadrados += d * d;
        sumaAlto += alto[p];
    }
    const double media = suma / PARTIDAS;
    const double error =
        std::sqrt((cuadrados - suma * suma / PARTIDAS) / (PARTIDAS - 1) / PARTIDAS);
    std::printf("[          ] nivel 100 %+.2f, nivel 0 %+.2f fichas por mano: %+.2f ± %.2f\n",
                sumaAlto / PARTIDAS, (sumaAlto - suma) / PARTIDAS, media, error);
    EXPECT_GT(error, 0) << "the two levels played alike";
    EXPECT_GT(media, ERRORES * error);
}
