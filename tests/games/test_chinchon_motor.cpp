// The combination engine of the Chinchón against hands worked out by hand, and against a plain
// meld finder of its own over many random deals.
#include "frame/Baraja.h"
#include "frame/GblChinchon.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Motor.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr int O = 1, C = 2, E = 3, B = 4; // Oros, Copas, Espadas, Bastos

struct Carta {
    int Palo, Valor;
};

void PreparaJuego(int tipoBaraja, bool comodin) {
    // The deck is set up once for each type: it loads the picture of the cards.
    static int tipoPuesto = 0;
    if (JuegoActual != JUEGO_CHINCHON || tipoPuesto != tipoBaraja) {
        JuegoActual = JUEGO_CHINCHON;
        TipoBarajaEspanola = tipoBaraja;
        ParametrosJuego();
        tipoPuesto = tipoBaraja;
    }
    AsOrosComodin = comodin;
    // Nothing is known of the other seats, and no pile: every card not in hand could come.
    FaseJuego = FASE_CHINCHON_CIERRE;
    CartasEnPozo = 0;
    NumeroDescarte = RecibeDesde = 0;
    CartaEnPrueba = 0;
    PuedeCerrar = false;
    NivelJugador[1] = 100;
    CaracterJugador[1] = 2;
}

void Evalua(const std::vector<Carta>& mano) {
    for (size_t i = 0; i < mano.size(); ++i) {
        ManoEvaluada[i + 1][1] = mano[i].Palo;
        ManoEvaluada[i + 1][2] = mano[i].Valor;
    }
    EvaluaMano(1, static_cast<int>(mano.size()));
}

} // namespace

// Hands worked out by hand: runs and groups, the split that melds more, the chinchón, the
// joker, the 40-card deck where the 7 and the Sota are neighbours, the loose points and the
// unseen cards that would form or extend a meld.
TEST(ChinchonMotor, HandsWorkedOutByHand) {
    const struct {
        const char* Caso;
        int Baraja;
        bool Comodin;
        std::vector<Carta> Mano;
        int Escaleras, Grupos, Sobrantes;
        bool Chinchon;
        int Salidas; // -1: not checked
    } casos[] = {
        {"run and group",
         1,
         false,
         {{O, 3}, {O, 4}, {O, 5}, {C, 7}, {E, 7}, {B, 7}, {C, 1}},
         3,
         3,
         1,
         false,
         -1},
        // 5-6-7 of Oros and the other three Sietes: the run leaves a group, the group no run.
        {"the 7 goes to the run",
         1,
         false,
         {{O, 5}, {O, 6}, {O, 7}, {C, 7}, {E, 7}, {B, 7}, {C, 2}},
         3,
         3,
         2,
         false,
         -1},
        // 5 to 8 of Oros and two more Cincos: the run of four leaves a pair, the group a run.
        {"the 5 goes to the group",
         1,
         false,
         {{O, 5}, {O, 6}, {O, 7}, {O, 8}, {C, 5}, {E, 5}, {B, 12}},
         3,
         3,
         10,
         false,
         -1},
        {"chinchon",
         1,
         false,
         {{C, 3}, {C, 4}, {C, 5}, {C, 6}, {C, 7}, {C, 8}, {C, 9}},
         7,
         0,
         0,
         true,
         -1},
        {"two runs are not a chinchon",
         1,
         false,
         {{C, 3}, {C, 4}, {C, 5}, {E, 10}, {E, 11}, {E, 12}, {E, 9}},
         7,
         0,
         0,
         false,
         -1},
        {"with 40 cards the 7 and the Sota are neighbours",
         2,
         false,
         {{B, 6}, {B, 7}, {B, 10}, {O, 1}, {C, 2}, {E, 4}, {C, 12}},
         3,
         0,
         17,
         false,
         -1},
        {"with 48 cards they are not",
         1,
         false,
         {{B, 6}, {B, 7}, {B, 10}, {O, 1}, {C, 2}, {E, 4}, {C, 12}},
         0,
         0,
         40,
         false,
         -1},
        // The 5 de Oros fills the gap of 4 and 6; the pair of Nueves waits for the other two.
        {"outs of runs and groups",
         1,
         false,
         {{O, 4}, {O, 6}, {C, 9}, {E, 9}, {B, 1}, {B, 11}, {C, 12}},
         0,
         0,
         49,
         false,
         3},
        {"the joker completes a run",
         1,
         true,
         {{O, 1}, {C, 4}, {C, 5}, {E, 2}, {B, 8}, {E, 11}, {B, 12}},
         3,
         0,
         30,
         false,
         -1},
        {"a run of seven with the joker is no chinchon",
         1,
         true,
         {{O, 1}, {C, 2}, {C, 3}, {C, 4}, {C, 5}, {C, 6}, {C, 7}},
         7,
         0,
         0,
         false,
         -1},
        {"the joker standing for itself is no chinchon either",
         1,
         true,
         {{O, 1}, {O, 2}, {O, 3}, {O, 4}, {O, 5}, {O, 6}, {O, 7}},
         7,
         0,
         0,
         false,
         -1},
        {"the joker fills a gap",
         1,
         true,
         {{O, 1}, {B, 3}, {B, 5}, {C, 10}, {C, 11}, {C, 12}, {E, 2}},
         6,
         0,
         2,
         false,
         -1},
    };
    for (const auto& c : casos) {
        PreparaJuego(c.Baraja, c.Comodin);
        Evalua(c.Mano);
        EXPECT_EQ(CartasEnEscaleras, c.Escaleras) << c.Caso;
        EXPECT_EQ(CartasEnGrupos, c.Grupos) << c.Caso;
        EXPECT_EQ(PuntosSobrantes, c.Sobrantes) << c.Caso;
        EXPECT_EQ(EsChinchon, c.Chinchon) << c.Caso;
        if (c.Salidas >= 0) EXPECT_EQ(Salidas, c.Salidas) << c.Caso;
        // The melded cards come first in CartasJugada, then the loose ones: all the hand once.
        EXPECT_EQ(NumCartasJugada, static_cast<int>(c.Mano.size())) << c.Caso;
    }
    // The joker of the run with a gap stands for the 4 de Bastos.
    PreparaJuego(1, true);
    Evalua({{O, 1}, {B, 3}, {B, 5}, {C, 10}, {C, 11}, {C, 12}, {E, 2}});
    EXPECT_EQ(ComodinVale, IdCarta(B, 4));
    EXPECT_EQ(PosicionComodin, 1);
}

namespace {

// A plain finder of its own: every way of laying the hand in melds (groups of three or four of a
// value, runs of three or more of a suit), the fewest loose points and the most melded cards.
struct Buscador {
    std::vector<Carta> Mano;
    int Mejor = 1 << 30;
    int MasCombinadas = 0;
    bool HayJugada = false;

    static bool EsJugada(const std::vector<Carta>& cartas) {
        if (cartas.size() < 3) return false;
        bool mismoValor = true, mismoPalo = true;
        for (const Carta& c : cartas) {
            mismoValor = mismoValor && c.Valor == cartas[0].Valor;
            mismoPalo = mismoPalo && c.Palo == cartas[0].Palo;
        }
        if (mismoValor) return true;
        if (!mismoPalo) return false;
        std::vector<int> valores;
        for (const Carta& c : cartas) valores.push_back(c.Valor);
        std::sort(valores.begin(), valores.end());
        for (size_t i = 1; i < valores.size(); ++i)
            if (valores[i] != valores[i - 1] + 1) return false;
        return true;
    }

    // Each card, in order, is loose or joins a meld among the later cards.
    void Busca(unsigned libres, int puntos, int combinadas = 0) {
        if (libres == 0) {
            Mejor = std::min(Mejor, puntos);
            MasCombinadas = std::max(MasCombinadas, combinadas);
            return;
        }
        const int primera = __builtin_ctz(libres);
        const unsigned resto = libres & ~(1u << primera);
        Busca(resto, puntos + std::min(Mano[primera].Valor, 10), combinadas);
        for (unsigned sub = resto; sub != 0; sub = (sub - 1) & resto) {
            std::vector<Carta> jugada{Mano[primera]};
            for (unsigned b = sub; b != 0; b &= b - 1) jugada.push_back(Mano[__builtin_ctz(b)]);
            if (!EsJugada(jugada)) continue;
            HayJugada = true;
            Busca(resto & ~sub, puntos, combinadas + static_cast<int>(jugada.size()));
        }
    }
};

} // namespace

// Over many random deals of seven cards from the 48, the share of hands with a meld and the
// share that could close at once (five loose points or fewer), by the engine and by the plain
// finder. A hand has a meld for one exactly when it has one for the other; the engine's two
// passes can miss the best way of laying a hand, but not often.
TEST(ChinchonMotor, SharesOfRandomDealsMatchAPlainFinder) {
    PreparaJuego(1, false);
    constexpr int REPARTOS = 60000;
    std::mt19937 azar(58);
    std::vector<Carta> baraja;
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor) baraja.push_back({palo, valor});
    int conJugadaMotor = 0, conJugadaBuscador = 0, cierraMotor = 0, cierraBuscador = 0;
    int igualCombinadas = 0;
    for (int r = 0; r < REPARTOS; ++r) {
        std::shuffle(baraja.begin(), baraja.end(), azar);
        const std::vector<Carta> mano(baraja.begin(), baraja.begin() + 7);
        Evalua(mano);
        Buscador buscador{mano};
        buscador.Busca((1u << 7) - 1, 0);
        const bool jugadaMotor = CartasCombinadas() > 0;
        ASSERT_EQ(jugadaMotor, buscador.HayJugada) << "deal " << r;
        ASSERT_GE(PuntosSobrantes, buscador.Mejor) << "deal " << r;
        ASSERT_LE(CartasCombinadas(), buscador.MasCombinadas) << "deal " << r;
        igualCombinadas += CartasCombinadas() == buscador.MasCombinadas;
        conJugadaMotor += jugadaMotor;
        conJugadaBuscador += buscador.HayJugada;
        cierraMotor += PuntosSobrantes <= 5;
        cierraBuscador += buscador.Mejor <= 5;
    }
    std::printf("[          ] %d repartos: con jugada %.2f %% (buscador %.2f %%), pueden cerrar "
                "%.3f %% (buscador %.3f %%), tantas combinadas como el buscador %.2f %%\n",
                REPARTOS, 100.0 * conJugadaMotor / REPARTOS, 100.0 * conJugadaBuscador / REPARTOS,
                100.0 * cierraMotor / REPARTOS, 100.0 * cierraBuscador / REPARTOS,
                100.0 * igualCombinadas / REPARTOS);
    EXPECT_EQ(conJugadaMotor, conJugadaBuscador);
    EXPECT_LE(cierraMotor, cierraBuscador);
    EXPECT_GE(cierraMotor, cierraBuscador * 0.97);
    EXPECT_GE(igualCombinadas, REPARTOS * 0.99);
}
