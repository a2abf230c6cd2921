// The place of a Póker hand among every hand of its deck, and the play a hand is.
#include <gtest/gtest.h>

#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Recorrido.h"
#include "support/ManosPoker.h"

#include <map>
#include <string>

namespace {

constexpr int DESDE_EL_2 = 1, DESDE_EL_4 = 3, DESDE_EL_5 = 4, DESDE_EL_7 = 6;
constexpr int SIN_COMODIN = 1, UN_COMODIN = 2, DOS_COMODINES = 3;

int Orden(int seat, const std::string& mano) {
    PonMano(seat, mano);
    EvaluaJugada(seat);
    return OrdenJugada(JugadaJugador[seat], seat);
}

std::string Nombre(const std::string& mano) {
    PonMano(1, mano);
    EvaluaJugada(1);
    return NombreJugadaPoker[JugadaJugador[1]].trimmed().toStdString();
}

// Pairs of hands worked out by hand: the first beats the second, or ties with it.
TEST(OrdenJugada, ParesDeManosResueltosAMano) {
    const struct {
        int Minima, Comodines;
        const char *Mejor, *Peor;
        bool Empate;
    } casos[] = {
        // The ace low makes the lowest straight, which still beats any high card.
        {DESDE_EL_2, SIN_COMODIN, "2O 3C 4E 5B 6O", "AO 2C 3E 4B 5O", false},
        {DESDE_EL_2, SIN_COMODIN, "AO 2C 3E 4B 5O", "AO KC QE JB 9O", false},
        // From the 7 the ace goes under the 7.
        {DESDE_EL_7, SIN_COMODIN, "7O 8C 9E 10B JO", "AO 7C 8E 9B 10O", false},
        {DESDE_EL_7, SIN_COMODIN, "AO 7C 8E 9B 10O", "AO AC 9E 9B 8O", false},
        // A full deck ranks Figuras over a Trío and a Full over a Color; a short one swaps them.
        {DESDE_EL_2, SIN_COMODIN, "AO AC KE QB JO", "KO KC KE 10B 9O", false},
        {DESDE_EL_5, SIN_COMODIN, "6O 6C 6E 10B 9O", "AO AC KE QB JO", false},
        {DESDE_EL_2, SIN_COMODIN, "2O 2C 2E 3B 3O", "AO KO QO JO 9O", false},
        {DESDE_EL_5, SIN_COMODIN, "6O 8O 9O JO KO", "AO AC AE KB KO", false},
        // Kickers and the order of pairs.
        {DESDE_EL_2, SIN_COMODIN, "AO AC KE QB 9O", "AE AB KO QC 8O", false},
        {DESDE_EL_2, SIN_COMODIN, "KO KC 2E 2B 3O", "QO QC 9E 9B AO", false},
        {DESDE_EL_2, SIN_COMODIN, "3O 3C 3E 2B 2O", "2O 2C 2E AB AO", false},
        {DESDE_EL_2, SIN_COMODIN, "5O 5C 5E 5B 3O", "5O 5C 5E 5B 2O", false},
        // Suits never count.
        {DESDE_EL_2, SIN_COMODIN, "AO KC 9E 5B 3O", "AC KE 9B 5O 3C", true},
        {DESDE_EL_4, DOS_COMODINES, "AO KC 9E 6B 5O", "AC KE 9B 6O 5C", true},
        // A joker makes the play, but yields to the same play of real cards.
        {DESDE_EL_2, UN_COMODIN, "JO JC JE JB J1", "AO AC AE AB KO", false},
        {DESDE_EL_2, UN_COMODIN, "KO KC 7E 5B 3O", "KO J1 7E 5B 3O", false},
        {DESDE_EL_2, UN_COMODIN, "2O 3C 4E 5B 6O", "J1 2C 3E 4B 5O", false},
        {DESDE_EL_2, UN_COMODIN, "J1 2C 3E 4B 5O", "AO 2C 3E 4B 5O", false},
        {DESDE_EL_2, DOS_COMODINES, "QO QC J1 J2 4B", "JO JC JE 5B 4O", false},
    };
    for (const auto& c : casos) {
        PonBarajaPoker(c.Minima, c.Comodines);
        const int mejor = Orden(1, c.Mejor), peor = Orden(2, c.Peor);
        if (c.Empate)
            EXPECT_EQ(mejor, peor) << c.Mejor << " / " << c.Peor;
        else
            EXPECT_GT(mejor, peor) << c.Mejor << " / " << c.Peor;
    }
}

TEST(EvaluaJugada, LaJugadaDeManosResueltasAMano) {
    const struct {
        int Minima, Comodines;
        const char *Mano, *Jugada;
    } casos[] = {
        {DESDE_EL_2, SIN_COMODIN, "AO AC AE KB QO", "Figuras"},
        {DESDE_EL_5, SIN_COMODIN, "AO AC AE KB QO", "Trio"},
        {DESDE_EL_5, SIN_COMODIN, "AO AC KE KB QO", "Figuras"},
        {DESDE_EL_2, UN_COMODIN, "JO JC JE JB J1", "Repóker"},
        {DESDE_EL_2, DOS_COMODINES, "JO JC JE J1 J2", "Póker"},
        {DESDE_EL_2, DOS_COMODINES, "2O 7C 9E J1 J2", "Pareja"},
        {DESDE_EL_2, SIN_COMODIN, "AO KO QO JO 9O", "Color"},
        {DESDE_EL_5, SIN_COMODIN, "AO KO QO JO 9O", "Color"},
        {DESDE_EL_2, UN_COMODIN, "AO KO QO 9O J1", "Color"},
        {DESDE_EL_2, UN_COMODIN, "9O 10C JE J1 KO", "Escalera"},
    };
    for (const auto& c : casos) {
        PonBarajaPoker(c.Minima, c.Comodines);
        EXPECT_EQ(Nombre(c.Mano), c.Jugada) << c.Mano;
    }
}

// Without jokers the place of a hand is the count of the hands it beats or ties: dealing every
// hand and counting gives it apart from the walks that work it out. Figuras are spread evenly
// over their share instead. A long deck and a short one, for the two orders of the plays.
TEST(OrdenJugada, SinComodinesEsLaCuentaDeManosQueNoSupera) {
    for (int minima : {DESDE_EL_4, DESDE_EL_7}) {
        PonBarajaPoker(minima, SIN_COMODIN);
        std::map<int, std::map<int, long>> porJugada; // play -> place -> hands
        RecorreManos([&](int seat) {
            const int j = JugadaJugador[seat];
            ++porJugada[j][OrdenJugada(j, seat)];
        });
        long vistas = 0;
        for (const auto& [jugada, lugares] : porJugada) {
            long malas = 0;
            for (const auto& [lugar, n] : lugares) {
                vistas += n;
                if (lugar != vistas) ++malas;
            }
            if (jugada != JugadaFiguras)
                EXPECT_EQ(malas, 0) << minima << " " << NombreJugadaPoker[jugada].toStdString();
        }
        EXPECT_EQ(vistas, TotalCombinaciones);
    }
}

} // namespace
