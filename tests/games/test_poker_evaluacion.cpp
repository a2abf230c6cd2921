// The evaluation of Póker hands against outside truth: the counts of every play in each deck,
// found by dealing every hand, and places of hands worked out by hand.
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Recorrido.h"
#include "support/ManosPoker.h"

#include <vector>

namespace {

// Every five-card hand of the deck through EvaluaJugada: how many end as each play.
std::vector<long> CuentaPorJugada() {
    std::vector<long> cuenta(NUM_JUGADAS + 1, 0);
    RecorreManos([&](int seat) { ++cuenta[JugadaJugador[seat]]; });
    return cuenta;
}

struct FilaBaraja {
    int CartaMinima, Comodines; // CartaMinimaPoker, OpcionComodines
};

class CuentasPorBaraja : public testing::TestWithParam<FilaBaraja> {};

TEST_P(CuentasPorBaraja, CadaJugadaTieneLasManosDeLaTabla) {
    PonBarajaPoker(GetParam().CartaMinima, GetParam().Comodines);
    const std::vector<long> cuenta = CuentaPorJugada();
    ASSERT_GT(TotalCombinaciones, 0);
    long total = 0;
    for (int c = PRIMERA_JUGADA_HECHA; c <= NUM_JUGADAS; ++c) {
        EXPECT_EQ(cuenta[c], CombinacionesJugada[c]) << NombreJugadaPoker[c].toStdString();
        total += cuenta[c];
    }
    EXPECT_EQ(total, TotalCombinaciones);
}

// Small and large decks, with and without jokers; the bench deals the largest.
INSTANTIATE_TEST_SUITE_P(Barajas, CuentasPorBaraja,
                         testing::Values(FilaBaraja{6, 1}, FilaBaraja{6, 3}, FilaBaraja{4, 2},
                                         FilaBaraja{3, 1}));

} // namespace
