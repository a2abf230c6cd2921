// The computer player of the Póker on positions worked out by hand, each one chosen so that a
// wrong rule, gate or constant changes the answer.
#include <gtest/gtest.h>

#include "betting/Fichas.h"
#include "frame/Fases.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Jugador.h"
#include "games/poker/Recorrido.h"
#include "support/ManosPoker.h"
#include "support/MesaDePrueba.h"

#include <cstring>
#include <string>

namespace {

constexpr int CONSERVADOR = 1, MEDIO = 2, AGRESIVO = 3;

struct Asiento {
    const char* Mano = nullptr; // nullptr: out of the hand
    int Caracter = MEDIO, Nivel = 100;
    int Ronda1 = 0, Ronda2 = 0; // staked in each betting round, besides the entry of 5
    int MinEstimada = 0, MaxEstimada = 0;
};

// A table of the long deck without jokers, limit 25, entry 5, no opening law, every seat with
// 100 left; seat 4 is on turn.
void PonMesa(int fase, const Asiento (&asientos)[5], double azar, int comodines = 1) {
    PonBarajaPoker(1, comodines);
    ApuestaMaxima = 25;
    LeyApertura = 14;
    LimiteDescartes = 5;
    std::memset(Apuesta, 0, sizeof Apuesta);
    FaseJuego = fase;
    SerieActual = 1; // a game of series, played before, may have left another
    AzarJugada = azar;
    JugadorActual = 4;
    ApuestaMaxRonda = 0;
    for (int s = 1; s <= 4; ++s) {
        const Asiento& a = asientos[s];
        NumCartas[s][1] = 0;
        if (a.Mano) PonMano(s, a.Mano);
        CaracterJugador[s] = a.Caracter;
        NivelJugador[s] = a.Nivel;
        Farol[s] = false;
        RecomponeFichas(s, 100);
        Apuesta[s][1][FASE_POKER_ENTRADA] = 5;
        Apuesta[s][1][FASE_POKER_APUESTA1] = a.Ronda1;
        Apuesta[s][1][FASE_POKER_APUESTA2] = a.Ronda2;
        ApuestaMaxRonda = std::max(ApuestaMaxRonda, Apuesta[s][1][fase]);
        JugadaMinEstimada[s] = a.MinEstimada;
        JugadaMaxEstimada[s] = a.MaxEstimada;
    }
}

std::string Tiradas() {
    std::string t;
    for (int p = 1; p <= 5; ++p)
        if (Descarte[p]) t += std::to_string(p);
    return t;
}

// The draw: what the aim keeps, the seat's temper and level, and the limit of the table.
TEST(DecideDescartes, PosicionesResueltasAMano) {
    MesaDePrueba mesa;
    const struct {
        const char* Mano;
        int Caracter, Nivel, Limite, Comodines;
        const char* Tira;
    } casos[] = {
        // High cards: the ace stays, the rest goes; at a limit of 2 the two weakest go.
        {"AO KC 9E 6B 3O", CONSERVADOR, 100, 5, 1, "2345"},
        {"AO KC 9E 6B 3O", CONSERVADOR, 100, 2, 1, "45"},
        // A lone king is kept by a careful seat, thrown by a bold one; three to a straight
        // within five values are drawn to.
        {"KO 9C 8E 3B 2O", MEDIO, 100, 5, 1, "2345"},
        {"KO 9C 8E 3B 2O", AGRESIVO, 100, 5, 1, "12345"},
        {"KO 8C 7E 4B 2O", MEDIO, 100, 5, 1, "15"},
        // Two jokers and loose cards: a pair of the 7 kept below level 60, the first joker
        // alone above it; the second joker always goes.
        {"J1 J2 7O 4C 2E", MEDIO, 50, 5, 3, "245"},
        {"J1 J2 7O 4C 2E", MEDIO, 60, 5, 3, "2345"},
        // A pair with four to a colour: a careful seat keeps the pair, a medium one the colour.
        {"9O 9C 5C KC 2C", CONSERVADOR, 100, 5, 1, "345"},
        {"9O 9C 5C KC 2C", MEDIO, 100, 5, 1, "1"},
        // Four to an open straight: chased by a medium seat from level 50 only; below it the
        // jack alone is not worth keeping.
        {"8O 9C 10E JB 3O", MEDIO, 49, 5, 1, "12345"},
        {"8O 9C 10E JB 3O", MEDIO, 50, 5, 1, "5"},
        // Four to a straight flush: a bold seat draws to it from level 25; below it the hand is
        // loose cards, and a bold seat keeps none but an ace.
        {"5C 6C 7C 8C KO", AGRESIVO, 24, 5, 1, "12345"},
        {"5C 6C 7C 8C KO", AGRESIVO, 25, 5, 1, "5"},
        // A made hand is kept whole; with no draws allowed nothing moves.
        {"2O 3C 4E 5B 6O", CONSERVADOR, 0, 5, 1, ""},
        {"AO KC 9E 6B 3O", CONSERVADOR, 100, 0, 1, ""},
    };
    for (const auto& c : casos) {
        Asiento asientos[5];
        asientos[4] = {c.Mano, c.Caracter, c.Nivel};
        asientos[1] = {"2E 2B 3C 3E 4O"};
        PonMesa(FASE_POKER_DESCARTE, asientos, 0.5, c.Comodines);
        LimiteDescartes = c.Limite;
        DecideDescartes();
        EXPECT_EQ(Tiradas(), c.Tira)
            << c.Mano << " caracter " << c.Caracter << " nivel " << c.Nivel;
    }
}

// The stake: the temper of the table, the reading of the rivals' real hands above level 90,
// and a bluff made likelier by one in the first round.
TEST(DecideApuesta, PosicionesResueltasAMano) {
    MesaDePrueba mesa;
    // First round, nobody has staked: the round's limit is (25 - 5) / 2 = 10. A medium seat with
    // a pair opens with 10 / (2 x 3 + 1); a careful one at a table of careful seats passes.
    {
        Asiento a[5];
        a[4] = {"9O 9C 5C KE 2B", MEDIO};
        a[1] = a[2] = {"2E 2B 3C 3E 4O", CONSERVADOR};
        PonMesa(FASE_POKER_APUESTA1, a, 0.0);
        DecideApuesta();
        EXPECT_EQ(LimiteRonda, 10);
        EXPECT_EQ(ApuestaOrdenador, 1);
        CaracterJugador[4] = CONSERVADOR;
        DecideApuesta();
        EXPECT_EQ(ApuestaOrdenador, 0);
    }
    // Second round: a Trío against a rival that drew three and bet 5 of a limit of 15. The
    // table reads it as at most a Trío, so a seat at level 90 calls; at 91 it sees the real Full
    // and folds, as the call is above 0.15 of its limit.
    for (int nivel : {90, 91}) {
        Asiento a[5];
        a[4] = {"7O 7C 7E KE 2B", CONSERVADOR, nivel, 5, 0};
        a[2] = {"QO QC QE 3B 3O", MEDIO, 50, 5, 5, JugadaPareja, JugadaTrio};
        PonMesa(FASE_POKER_APUESTA2, a, 0.5);
        DecideApuesta();
        EXPECT_EQ(LimiteRonda, 15);
        EXPECT_EQ(ApuestaOrdenador, nivel == 90 ? 5 : -1) << "nivel " << nivel;
    }
    // Second round, a bold seat with nothing against a careful rival: with AzarJugada 0.2 the
    // bluff comes at 1 in 3 after a bluff in the first round, not at 1 in 8; it doubles the 5.
    for (bool farol : {false, true}) {
        Asiento a[5];
        a[4] = {"AO 9C 7E 4B 2O", AGRESIVO, 100, 5, 0};
        a[1] = {"KO KC 8E 8B 3O", CONSERVADOR, 50, 5, 5, JugadaPareja, JugadaTrio};
        PonMesa(FASE_POKER_APUESTA2, a, 0.2);
        Farol[4] = farol;
        DecideApuesta();
        EXPECT_EQ(ApuestaOrdenador, farol ? 10 : -1) << "farol " << farol;
    }
}

// The opening law reads the card a joker pairs with, never the joker's own number: a joker with
// a nine is a pair of nines, and two jokers with loose cards pair the highest of them.
TEST(PuedeAbrirRonda, LeyConComodines) {
    MesaDePrueba mesa;
    const struct {
        const char* Mano;
        int Ley; // 8 "Mínimo pareja de 9" ... 10 "Mínimo pareja de J", 13 "de A"
        bool Abre;
    } casos[] = {
        {"J1 9O 7C 4E 2B", 10, false}, {"J1 9O 7C 4E 2B", 8, true},  {"J1 J2 9O 7C 2E", 10, false},
        {"J1 J2 9O 7C 2E", 8, true},   {"J1 KO 7C 4E 2B", 10, true}, {"J1 KO 7C 4E 2B", 13, false},
        {"J1 AO 7C 4E 2B", 13, true},  {"J1 9O 9C 4E 2B", 13, true}, {"QO QC 5E 4B 2O", 11, true},
        {"QO QC 5E 4B 2O", 12, false}, {"KO QC 9E 5B 3O", 1, false},
    };
    for (const auto& c : casos) {
        Asiento a[5];
        a[4] = {c.Mano};
        a[1] = {"2E 2B 3C 3E 4O"};
        PonMesa(FASE_POKER_APUESTA1, a, 0.5, 3);
        LeyApertura = c.Ley;
        EXPECT_EQ(PuedeAbrirRonda(), c.Abre) << c.Mano << " ley " << c.Ley;
        // The law bars only the first stake of the first round.
        ApuestaMaxRonda = 5;
        EXPECT_TRUE(PuedeAbrirRonda()) << c.Mano;
    }
}

} // namespace
