// Whole matches of Póker at a table without a window: the money never changes hands but through
// the pot, the match ends with one seat holding all of it, and the showdown shares the pot as a
// table worked out by hand says.
#include "betting/Apostadora.h"
#include "betting/Fichas.h"
#include "bench/Automatica.h"
#include "frame/Coherencia.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "frame/Ficheros.h"
#include "table/Dibujo.h"
#include "games/poker/MesaPoker.h"
#include "support/ManosPoker.h"
#include "support/MesaDePrueba.h"
#include "table/Mensajes.h"

#include <cstdio>
#include <cstring>

#include <gtest/gtest.h>

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
    RecogeMesaDePoker();
    std::printf("[          ] %d manos, %d sin apuestas\n", manos, redeals);
    EXPECT_GT(redeals, 0) << "some hand was dealt again when nobody could open";
}

// The showdown shares the pot as worked out by hand: a short all-in winner takes only what it
// could match and the rest goes to second place, equal hands split whatever their suits (the
// odd chip to the first winner in seat order), and a folded stake stays for the winner.
TEST(PokerPartida, TheShowdownSharesThePotAsWorkedOutByHand) {
    MesaDePrueba mesa;
    const struct {
        const char* manos[4]; // "" has folded
        int apuesta[4], resto[4], cobra[4];
    } casos[] = {
        // Seat 1 all in for 10 with the best hand; 30 each from seats 2 and 3.
        {{"KO KC 2E 5B 8O", "QO QC 3E 6B 9O", "AO JC 4E 7B 10E", ""},
         {10, 30, 30, 0},
         {0, 50, 50, 80},
         {30, 40, 0, 0}},
        // Kings and nines, the same in two suits: 45 split 23 and 22.
        {{"KO KC 9E 7B 4O", "KE KB 9O 7C 4E", "QO QC 3E 6B 9B", ""},
         {15, 15, 15, 0},
         {20, 20, 20, 80},
         {23, 22, 0, 0}},
        // Seat 4 folded its 5; seat 2's straight beats seat 1's two pairs.
        {{"KO KC 9E 9B 4O", "5O 6C 7E 8B 9C", "", ""},
         {20, 20, 0, 5},
         {30, 30, 40, 40},
         {0, 45, 0, 0}},
    };
    for (const auto& c : casos) {
        ReiniciaEstado();
        JuegoActual = JUEGO_POKER;
        ParametrosJuego();
        std::memset(Apuesta, 0, sizeof Apuesta);
        PartidaViva = true;
        NumeroMano = 1;
        JugadorMano = 1;
        PersonaGuionada = [] { EsperandoPersona = false; };
        int bote = 0;
        for (int s = 1; s <= 4; ++s) {
            EstadoJugador[s] = ESTADO_ACTIVADO;
            NumCartas[s][1] = 0;
            if (*c.manos[s - 1]) PonMano(s, c.manos[s - 1]);
            Apuesta[s][1][FASE_POKER_APUESTA1] = c.apuesta[s - 1];
            bote += c.apuesta[s - 1];
            RecomponeFichas(s, c.resto[s - 1]);
        }
        RecomponeFichas(0, bote);
        FinalManoPoker();
        for (int s = 1; s <= 4; ++s)
            EXPECT_EQ(RestoJugador(s), c.resto[s - 1] + c.cobra[s - 1])
                << c.manos[0] << " seat " << s;
        EXPECT_EQ(ValorBote(), 0);
        PersonaGuionada = nullptr;
        PartidaViva = false;
    }
}

// The panel's call button, pressed by the person: the difference is staked at once; a call that
// would pass the hand's limit shows the refusal and leaves no chip on the table; all the seat's
// money ends the turn.
TEST(PokerPartida, TheCallButtonStakesTheDifferenceOrNothing) {
    MesaDePrueba mesa;
    const struct {
        int entrada, resto, subida; // seat 4's entry and money; seat 2 raised to this in round 1
        const char* rotulo;
        int apostado;
        bool termina;
        const char* mensaje;
    } casos[] = {
        {5, 100, 10, "Igualar a 10", 10, false, ""},
        // An entry of 20 kept from a hand dealt again: 20 + 7 passes 25; the 5 chip alone wouldn't.
        {20, 100, 7, "Igualar a 7", 0, false, "Límite sobrepasado"},
        {5, 8, 10, "Voy con mi resto", 8, true, ""},
    };
    for (const auto& c : casos) {
        ReiniciaEstado();
        JuegoActual = JUEGO_POKER;
        ParametrosJuego();
        std::memset(Apuesta, 0, sizeof Apuesta);
        ApuestaMaxima = 25;
        LeyApertura = 14;
        FaseJuego = FASE_POKER_APUESTA1;
        SerieActual = 1;
        JugadorActual = 4;
        PonMano(2, "KO KC 2E 5B 8O");
        PonMano(4, "QO QC 3E 6B 9O");
        Apuesta[2][1][FASE_POKER_ENTRADA] = 5;
        Apuesta[2][1][FASE_POKER_APUESTA1] = ApuestaMaxRonda = c.subida;
        Apuesta[4][1][FASE_POKER_ENTRADA] = c.entrada;
        RecomponeFichas(2, 100);
        RecomponeFichas(4, c.resto);
        RecomponeFichas(0, 5 + c.subida + c.entrada);
        ApuestaPersona = 0;
        JugadaHecha = false;
        EsperandoPersona = true;
        MensajesVistos.clear();
        DibujaApostadora();
        ASSERT_EQ(NombreBotonApostadora[AP_IGUALAR], c.rotulo);
        const BotonApostadora& b = BotonesApostadora[AP_IGUALAR];
        PulsaApostadora(b.X + 5, b.Y + 5);
        EXPECT_EQ(Apuesta[4][1][FASE_POKER_APUESTA1], c.apostado) << c.rotulo;
        EXPECT_EQ(RestoJugador(4), c.resto - c.apostado) << c.rotulo;
        EXPECT_EQ(ValorBote(), 5 + c.subida + c.entrada + c.apostado) << c.rotulo;
        EXPECT_EQ(JugadaHecha, c.termina) << c.rotulo;
        EXPECT_EQ(MensajesVistos.empty() ? QString() : MensajesVistos[0].Titulo, QString(c.mensaje))
            << c.rotulo;
        EsperandoPersona = false;
    }
}

// A match left in the first round of a hand and taken up again from its file: the money goes
// back as it stood when the hand began, with the pot of a hand dealt again and without the pot of
// a hand already paid out, and the match resumes with every chip of it on the table.
TEST(PokerPartida, AMatchPostponedMidHandResumesWithEveryChipAsItWas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    constexpr int RESTO = 200, JUGADORES = 4, MANO = 3;
    const auto dineroEnMesa = [] {
        int dinero = ValorBote();
        for (int s = 1; s <= 4; ++s) dinero += RestoJugador(s);
        return dinero;
    };
    int pagadas = 0, repartidas = 0;
    for (unsigned semilla = 1; semilla <= 4; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_POKER, JUGADORES, false, [] {
                                      RestoInicial = RESTO;
                                      ContinuarManual = true; // each computer turn waits
                                  }});
        PausasACero = VuelosOmitidos = true;
        SemillaFija = semilla;
        int guardado = -1, retomado = -1;
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (NumeroMano != MANO || FaseJuego != FASE_POKER_APUESTA1) return;
            if (guardado < 0) {
                (RegistroManos[MANO - 1].Banca > 0 ? pagadas : repartidas)++;
                PreparaPosponer();
                guardado = dineroEnMesa();
                GrabaJuego();
            } else {
                retomado = dineroEnMesa();
            }
            PartidaViva = false;
        };
        RespuestasGuionadas.assign(8, false);
        NuevaPartida();
        PartidaViva = false;
        AbreJuego();
        PersonaGuionada = nullptr;
        RespuestasGuionadas.clear();
        SemillaFija = 0;
        PausasACero = VuelosOmitidos = false;
        EXPECT_EQ(guardado, JUGADORES * RESTO) << "semilla " << semilla;
        EXPECT_EQ(retomado, JUGADORES * RESTO) << "semilla " << semilla;
    }
    RecogeMesaDePoker();
    EXPECT_GT(pagadas, 0) << "a hand before the one left was paid out";
    EXPECT_GT(repartidas, 0) << "a hand before the one left was dealt again";
}
