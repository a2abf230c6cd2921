// The rules of Tute and Brisca on hand-worked positions: who takes a trick, which cards a seat
// may play, the exchange of the turned-up trump, the songs and the tantos of a whole hand.
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Reglas.h"

#include "support/ManosTuteBrisca.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>
#include <vector>

namespace {

std::vector<Carta> Mano(int seat) {
    std::vector<Carta> cartas;
    for (int p = 1; p <= NumCartas[seat][1]; ++p)
        cartas.push_back(
            {CartasJugador[seat][1][p][CAMPO_PALO], CartasJugador[seat][1][p][CAMPO_VALOR]});
    return cartas;
}

// A seat lays one card on the table as the driver would: from its hand into the trick.
void Juega(int seat, Carta carta) {
    DaMano(seat, {carta});
    ++CartasEnBaza; // the turn is counted when it begins
    PonCartaEnBaza(seat, 1);
}

class TuteBriscaReglas : public ::testing::Test {
  protected:
    void SetUp() override {
        PonTablasTuteBrisca();
        JuegoActual = JUEGO_TUTE;
        NumJugadores = 4;
        for (int s = 1; s <= 4; ++s) EstadoJugador[s] = ESTADO_ACTIVADO;
        ModalidadPareja = 1;
        ObligacionAsistir = 1;
        PermitirContrafallar = false;
        PaloTriunfo = OROS;
        ValorTriunfo = 5;
        CartasEnMazo = 0;
        NumeroBaza = 0;
        GanadorBaza = 0;
        CodigoJugada = 0;
        TuteCantado = false;
        JugadorCante = 0;
        for (auto& s : AcuseCantado)
            for (auto& p : s) p = false;
        for (auto& s : SinPalo)
            for (auto& p : s) p = false;
        for (auto& s : TantosJugador) s[1] = 0;
        for (auto& t : TantosDeBaza) t = 0;
        for (auto& g : GanadorDeBaza) g = 0;
        for (auto& b : HistoriaBazas)
            for (auto& s : b)
                for (auto& f : s) f = 0;
        for (auto& p : CartaVista)
            for (auto& v : p) v = 0;
        for (int s = 1; s <= 4; ++s) DaMano(s, {});
    }
};

TEST_F(TuteBriscaReglas, LaBazaLaGanaElTriunfoMasAltoOLaMayorDelPaloDeSalida) {
    struct Caso {
        const char* nombre;
        int sale;
        Carta cartas[5]; // by seat, [0] unused
        int ganador;
        int tantos;
    };
    const Caso casos[] = {
        {"the As of the led suit beats its Tres",
         1,
         {{}, {COPAS, 3}, {COPAS, 1}, {ESPADAS, 1}, {COPAS, 12}},
         2,
         36},
        {"a low trump beats the As of the led suit",
         1,
         {{}, {COPAS, 3}, {COPAS, 1}, {OROS, 2}, {COPAS, 12}},
         3,
         25},
        {"the highest of two trumps takes it",
         2,
         {{}, {OROS, 4}, {COPAS, 1}, {OROS, 10}, {BASTOS, 7}},
         3,
         13},
        {"an As of another suit does not beat the led Dos",
         4,
         {{}, {ESPADAS, 1}, {BASTOS, 1}, {ESPADAS, 12}, {COPAS, 2}},
         4,
         26},
        {"a trump led keeps the trick against higher cards",
         3,
         {{}, {COPAS, 1}, {ESPADAS, 3}, {OROS, 2}, {BASTOS, 1}},
         3,
         32},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        EmpiezaBaza();
        JugadorSalida = c.sale;
        for (int k = 0, s = c.sale; k < 4; ++k, s = s % 4 + 1) Juega(s, c.cartas[s]);
        ResuelveBaza();
        EXPECT_EQ(GanadorBaza, c.ganador);
        EXPECT_EQ(TantosBaza, c.tantos);
    }
}

TEST_F(TuteBriscaReglas, FuerzaDeUnaCartaFrenteALaBaza) {
    // Trumps rank above the led suit, and a trump led does not count twice.
    PaloSalida = OROS;
    EXPECT_EQ(FuerzaCarta(OROS, 1), 30);
    EXPECT_EQ(FuerzaCarta(OROS, 2), 21);
    EXPECT_EQ(FuerzaCarta(COPAS, 1), 10);
    PaloSalida = COPAS;
    EXPECT_EQ(FuerzaCarta(OROS, 2), 21);
    EXPECT_EQ(FuerzaCarta(COPAS, 1), 20);
    EXPECT_EQ(FuerzaCarta(ESPADAS, 1), 10);
}

TEST_F(TuteBriscaReglas, CartasLegalesSegunLaObligacion) {
    struct Caso {
        const char* nombre;
        int juego;
        int obligacion;                          // ObligacionAsistir
        int mazo;                                // CartasEnMazo when the trick begins
        bool contrafallar;                       // PermitirContrafallar
        int pareja;                              // ModalidadPareja
        std::vector<std::pair<int, Carta>> mesa; // seat and card, in order of play
        int seat;
        std::vector<Carta> mano;
        std::set<Carta> legales;
    };
    const std::vector<Carta> todo = {{COPAS, 2}, {COPAS, 3}, {OROS, 5}, {ESPADAS, 1}};
    // One case a line: name, game, obligation, stock, contrafallar, pairs, table, seat, hand,
    // legal cards.
    // clang-format off
    const Caso casos[] = {
        {"must overtake the led card", JUEGO_TUTE, 2, 0, false, 1, {{1, {COPAS, 4}}}, 2, todo, {{COPAS, 3}}},
        {"overtakes the led card, not the best on the table", JUEGO_TUTE, 2, 0, false, 1, {{1, {COPAS, 4}}, {2, {COPAS, 1}}}, 3, {{COPAS, 6}, {COPAS, 2}, {ESPADAS, 1}}, {{COPAS, 6}}},
        {"can't overtake: any card of the suit", JUEGO_TUTE, 2, 0, false, 1, {{1, {COPAS, 1}}}, 2, {{COPAS, 2}, {COPAS, 12}, {OROS, 3}}, {{COPAS, 2}, {COPAS, 12}}},
        {"void in the suit: must trump", JUEGO_TUTE, 2, 0, false, 1, {{1, {COPAS, 5}}}, 2, {{OROS, 2}, {OROS, 12}, {ESPADAS, 1}}, {{OROS, 2}, {OROS, 12}}},
        {"must under-trump without contrafallar", JUEGO_TUTE, 2, 0, false, 1, {{1, {COPAS, 5}}, {2, {OROS, 1}}}, 3, {{OROS, 12}, {ESPADAS, 1}}, {{OROS, 12}}},
        {"contrafallar: can't overtrump, so anything", JUEGO_TUTE, 2, 0, true, 1, {{1, {COPAS, 5}}, {2, {OROS, 1}}}, 3, {{OROS, 12}, {ESPADAS, 1}}, {{OROS, 12}, {ESPADAS, 1}}},
        {"contrafallar: can overtrump, so every trump", JUEGO_TUTE, 2, 0, true, 1, {{1, {COPAS, 5}}, {2, {OROS, 4}}}, 3, {{OROS, 2}, {OROS, 12}, {ESPADAS, 1}}, {{OROS, 2}, {OROS, 12}}},
        {"contrafallar with no trump on the table: must trump", JUEGO_TUTE, 2, 0, true, 1, {{1, {COPAS, 5}}}, 2, {{OROS, 2}, {ESPADAS, 1}}, {{OROS, 2}}},
        {"neither the suit nor trumps: anything", JUEGO_TUTE, 2, 0, false, 1, {{1, {COPAS, 5}}}, 2, {{ESPADAS, 1}, {BASTOS, 4}}, {{ESPADAS, 1}, {BASTOS, 4}}},
        {"partner winning still binds in pairs", JUEGO_TUTE, 2, 0, false, 2, {{1, {COPAS, 3}}, {2, {COPAS, 2}}}, 3, {{COPAS, 1}, {COPAS, 4}, {ESPADAS, 5}}, {{COPAS, 1}}},
        {"stock still up, no baceta rule: free", JUEGO_TUTE, 1, 5, false, 1, {{1, {COPAS, 4}}}, 2, todo, {todo.begin(), todo.end()}},
        {"stock gone, no baceta rule: bound", JUEGO_TUTE, 1, 0, false, 1, {{1, {COPAS, 4}}}, 2, todo, {{COPAS, 3}}},
        {"from the first trick: bound with stock up", JUEGO_TUTE, 2, 5, false, 1, {{1, {COPAS, 4}}}, 2, todo, {{COPAS, 3}}},
        {"the seat that leads is free", JUEGO_TUTE, 2, 0, false, 1, {}, 1, todo, {todo.begin(), todo.end()}},
        {"Brisca never binds", JUEGO_BRISCA, 2, 0, false, 1, {{1, {COPAS, 4}}}, 2, todo, {todo.begin(), todo.end()}},
    };
    // clang-format on
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        JuegoActual = c.juego;
        ObligacionAsistir = c.obligacion;
        CartasEnMazo = c.mazo;
        PermitirContrafallar = c.contrafallar;
        ModalidadPareja = c.pareja;
        EmpiezaBaza();
        JugadorSalida = c.mesa.empty() ? c.seat : c.mesa.front().first;
        for (const auto& [s, carta] : c.mesa) Juega(s, carta);
        DaMano(c.seat, c.mano);
        ListaCartasLegales(c.seat);
        std::set<Carta> legales;
        for (int i = 1; i <= NumCandidatas; ++i)
            legales.insert(c.mano[Candidatas[i][CAND_POSICION] - 1]);
        EXPECT_EQ(legales, c.legales);
        for (int p = 1; p <= static_cast<int>(c.mano.size()); ++p)
            EXPECT_EQ(EsCartaLegal(c.seat, p), c.legales.count(c.mano[p - 1]) == 1) << p;
        // The refused cards follow the legal ones, so the whole hand stays listed.
        std::set<int> posiciones;
        for (int i = 1; i <= static_cast<int>(c.mano.size()); ++i)
            posiciones.insert(Candidatas[i][CAND_POSICION]);
        EXPECT_EQ(posiciones.size(), c.mano.size());
    }
}

TEST_F(TuteBriscaReglas, LaCartaJugadaDejaHuecoCerradoYAnotaLosPalosQueFaltan) {
    ObligacionAsistir = 2;
    EmpiezaBaza();
    JugadorSalida = 1;
    Juega(1, {COPAS, 4});
    DaMano(2, {{ESPADAS, 1}, {BASTOS, 3}, {ESPADAS, 5}});
    ++CartasEnBaza;
    PonCartaEnBaza(2, 2);
    EXPECT_EQ(Mano(2), (std::vector<Carta>{{ESPADAS, 1}, {ESPADAS, 5}}));
    EXPECT_EQ(OrdenJugadas[2], 2);
    EXPECT_EQ(CartasEnBaza, 2);
    EXPECT_TRUE(SinPalo[2][COPAS]);
    EXPECT_TRUE(SinPalo[2][OROS]); // threw off instead of trumping: no trumps either
    Juega(3, {OROS, 2});
    EXPECT_TRUE(SinPalo[3][COPAS]);
    EXPECT_FALSE(SinPalo[3][OROS]);
    EXPECT_EQ(PaloSalida, COPAS);

    JuegoActual = JUEGO_BRISCA;
    EmpiezaBaza();
    Juega(1, {COPAS, 4});
    Juega(4, {BASTOS, 4});
    EXPECT_FALSE(SinPalo[4][COPAS]);
}

// Plays a whole hand with every card dealt, each seat laying its first legal card, and gives the
// sum of the tantos of the four seats.
double JuegaManoEntera(int cartasPorSeat) {
    std::vector<Carta> baraja;
    for (int palo = 1; palo <= 4; ++palo)
        for (int v = 1; v <= 12; ++v)
            if (ValorEnJuego[v]) baraja.push_back({palo, v});
    const int seats = static_cast<int>(baraja.size()) / cartasPorSeat;
    for (int s = 1; s <= seats; ++s)
        DaMano(s, {baraja.begin() + (s - 1) * cartasPorSeat, baraja.begin() + s * cartasPorSeat});
    JugadorSalida = 1;
    for (int b = 1; b <= cartasPorSeat; ++b) {
        EmpiezaBaza();
        for (int k = 0, s = JugadorSalida; k < seats; ++k, s = s % seats + 1) {
            ++CartasEnBaza;
            ListaCartasLegales(s);
            PonCartaEnBaza(s, Candidatas[1][CAND_POSICION]);
        }
        ResuelveBaza();
        AnotaBaza();
        JugadorSalida = GanadorBaza;
    }
    double suma = 0;
    for (int s = 1; s <= 4; ++s) suma += TantosJugador[s][1];
    return suma;
}

TEST_F(TuteBriscaReglas, UnaManoEnteraReparteCientoVeinteTantosYDiezDeUltimas) {
    EXPECT_EQ(JuegaManoEntera(10), 130); // Tute: ten more to the last trick
    int vistas = 0, ganadas = 0;
    for (int palo = 1; palo <= 4; ++palo)
        for (int v = 1; v <= 12; ++v) vistas += CartaVista[palo][v] != 0;
    for (int b = 1; b <= 10; ++b)
        for (int s = 1; s <= 4; ++s) ganadas += HistoriaBazas[b][s][HB_GANADA];
    EXPECT_EQ(vistas, 40);
    EXPECT_EQ(ganadas, 10);
    EXPECT_EQ(TantosDeBaza[10], TantosBaza);

    SetUp();
    JuegoActual = JUEGO_BRISCA;
    EXPECT_EQ(JuegaManoEntera(10), 120); // Brisca has no bonus

    SetUp(); // three seats play without the 2s and still share 120 + 10
    ValorEnJuego[2] = false;
    NumJugadores = 3;
    EstadoJugador[4] = ESTADO_DESACTIVADO;
    EXPECT_EQ(JuegaManoEntera(12), 130);
}

TEST_F(TuteBriscaReglas, CambioDeLaCartaQuePinta) {
    struct Caso {
        const char* nombre;
        int juego, jugadores, mazo, valorTriunfo, ganadorBaza;
        std::vector<Carta> mano;
        int codigo;
    };
    const Caso casos[] = {
        {"Tute: the 7 for a card of points", JUEGO_TUTE, 2, 5, 1, 2, {{OROS, 7}}, 7},
        {"Tute: the 2 for a blank card", JUEGO_TUTE, 2, 5, 5, 2, {{OROS, 2}, {OROS, 7}}, 2},
        {"Tute: a blank card wants the 2, not the 7", JUEGO_TUTE, 2, 5, 5, 2, {{OROS, 7}}, 0},
        {"Tute: open down to one card of stock", JUEGO_TUTE, 2, 1, 12, 2, {{OROS, 7}}, 7},
        {"Tute: closed with the stock gone", JUEGO_TUTE, 2, 0, 12, 2, {{OROS, 7}}, 0},
        {"only the winner of the last trick", JUEGO_TUTE, 2, 5, 1, 1, {{OROS, 7}}, 0},
        {"nobody in the first hand", JUEGO_TUTE, 2, 5, 1, 0, {{OROS, 7}}, 0},
        {"the 7 of another suit does not count", JUEGO_TUTE, 2, 5, 1, 2, {{COPAS, 7}}, 0},
        {"Brisca: open with a round to draw", JUEGO_BRISCA, 2, 3, 3, 2, {{OROS, 7}}, 7},
        {"Brisca: closed at two cards of stock", JUEGO_BRISCA, 2, 2, 3, 2, {{OROS, 7}}, 0},
        {"Brisca: the 2 for a blank card", JUEGO_BRISCA, 4, 10, 6, 2, {{OROS, 2}}, 2},
        {"Brisca of three: the 4, the 2 is out", JUEGO_BRISCA, 3, 10, 6, 2, {{OROS, 4}}, 4},
        {"Brisca of three: no 2 to exchange", JUEGO_BRISCA, 3, 10, 6, 2, {{OROS, 2}}, 0},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        JuegoActual = c.juego;
        NumJugadores = c.jugadores;
        CartasEnMazo = c.mazo;
        ValorTriunfo = c.valorTriunfo;
        GanadorBaza = c.ganadorBaza;
        DaMano(2, c.mano);
        EXPECT_EQ(HallaCodigoCambio(2), c.codigo);
        EXPECT_EQ(CodigoJugada, c.codigo);
    }
}

TEST_F(TuteBriscaReglas, ElCambioPoneLaCartaQuePintaEnLaMano) {
    JuegoActual = JUEGO_TUTE;
    NumJugadores = 2;
    CartasEnMazo = 7;
    ValorTriunfo = 1;
    GanadorBaza = JugadorActual = 4;
    DaMano(4, {{COPAS, 3}, {OROS, 7}, {BASTOS, 12}});
    ASSERT_EQ(HallaCodigoCambio(4), 7);
    EXPECT_EQ(AplicaCambioPinta(), 2);
    EXPECT_EQ(Mano(4), (std::vector<Carta>{{COPAS, 3}, {OROS, 1}, {BASTOS, 12}}));
    EXPECT_EQ(PaloTriunfo, OROS);
    EXPECT_EQ(ValorTriunfo, 7);
    EXPECT_EQ(CodigoJugada, 0);
    EXPECT_EQ(HallaCodigoCambio(4), 0); // the 7 lies turned up now
}

TEST_F(TuteBriscaReglas, AcusesDeVeinteYCuarenta) {
    struct Caso {
        const char* nombre;
        int triunfo;
        std::vector<Carta> mano;
        int palo; // suit sung
        int tantos;
    };
    const Caso casos[] = {
        {"one pair of another suit: 20", OROS, {{COPAS, 11}, {COPAS, 12}, {OROS, 1}}, COPAS, 20},
        {"the pair of trumps: 40", OROS, {{OROS, 11}, {OROS, 12}, {COPAS, 1}}, OROS, 40},
        {"the suit with fewest cards goes first",
         BASTOS,
         {{COPAS, 11}, {COPAS, 12}, {COPAS, 1}, {ESPADAS, 11}, {ESPADAS, 12}},
         ESPADAS,
         20},
        {"on equal counts the trump goes first",
         ESPADAS,
         {{COPAS, 11}, {COPAS, 12}, {ESPADAS, 11}, {ESPADAS, 12}},
         ESPADAS,
         40},
        {"on equal counts without trump, suit order",
         OROS,
         {{ESPADAS, 11}, {ESPADAS, 12}, {COPAS, 11}, {COPAS, 12}},
         COPAS,
         20},
        {"a Caballo alone sings nothing", OROS, {{COPAS, 11}, {ESPADAS, 12}}, 0, 0},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        SetUp();
        PaloTriunfo = c.triunfo;
        NumeroBaza = 3;
        DaMano(2, c.mano);
        AnalizaMano(2);
        EXPECT_EQ(HayAcuse, c.palo != 0);
        EXPECT_EQ(EligeAcuse(2), c.palo);
        if (c.palo == 0) continue;
        TantosDeBaza[3] = 14; // the trick's own tantos
        AnotaAcuse(2, c.palo);
        EXPECT_EQ(TantosBaza, c.tantos);
        EXPECT_EQ(TantosJugador[2][1], c.tantos);
        EXPECT_EQ(TantosDeBaza[3], 14 + c.tantos);
        EXPECT_EQ(HistoriaBazas[3][2][HB_CANTE], c.palo);
        EXPECT_EQ(CantorDe(c.palo), 2);
        EXPECT_EQ(AcusesDe(2), 1);
        // The same suit can't be sung twice.
        AnalizaMano(2);
        EXPECT_FALSE(AcuseDisponible[c.palo]);
        EXPECT_NE(EligeAcuse(2), c.palo);
    }
}

TEST_F(TuteBriscaReglas, TuteDeCaballosYDeReyes) {
    const std::vector<Carta> caballos = {
        {OROS, 11}, {COPAS, 11}, {ESPADAS, 11}, {BASTOS, 11}, {OROS, 1}};
    const std::vector<Carta> reyes = {
        {OROS, 12}, {COPAS, 12}, {ESPADAS, 12}, {BASTOS, 12}, {COPAS, 3}};
    DaMano(1, {{OROS, 11}, {COPAS, 11}, {ESPADAS, 11}, {OROS, 3}});
    DaMano(2, caballos);
    DaMano(3, reyes);
    AnalizaMano(1);
    EXPECT_EQ(TuteEnMano, 0);
    AnalizaMano(2);
    EXPECT_EQ(TuteEnMano, VALOR_CABALLO);
    AnalizaMano(3);
    EXPECT_EQ(TuteEnMano, VALOR_REY);
    // Four Reyes take the hand over four Caballos dealt to an earlier seat.
    EXPECT_EQ(HallaTuteRepartido(), 3);
    DaMano(3, {});
    EXPECT_EQ(HallaTuteRepartido(), 2);
    DaMano(2, {});
    EXPECT_EQ(HallaTuteRepartido(), 0);
}

TEST_F(TuteBriscaReglas, GanadorDeLaMano) {
    struct Caso {
        const char* nombre;
        int pareja;
        double tantos[5];
        std::vector<int> ganadoresBazas;
        int cante; // seat that sang Tute, 0 none
        int ganador;
    };
    const Caso casos[] = {
        {"the most tantos", 1, {0, 30, 50, 20, 30}, {1, 2, 3, 4}, 0, 2},
        {"a tie goes to the last trick won among the tied",
         1,
         {0, 40, 10, 40, 40},
         {1, 3, 4, 2, 1, 3, 2},
         0,
         3},
        {"pairs add their tantos", 2, {0, 30, 50, 40, 0}, {1, 2}, 0, 1},
        {"pairs tied: the pair of the last trick", 2, {0, 30, 30, 30, 30}, {1, 4}, 0, 2},
        {"a Tute wins whatever the tantos", 1, {0, 0, 90, 0, 0}, {2}, 4, 4},
        {"a Tute of seat 4 in pairs goes to pair 2", 2, {0, 90, 0, 0, 0}, {1}, 4, 2},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        SetUp();
        ModalidadPareja = c.pareja;
        for (int s = 1; s <= 4; ++s) TantosJugador[s][1] = c.tantos[s];
        NumeroBaza = static_cast<int>(c.ganadoresBazas.size());
        for (int b = 1; b <= NumeroBaza; ++b) GanadorDeBaza[b] = c.ganadoresBazas[b - 1];
        GanadorBaza = c.ganadoresBazas.back();
        if (c.cante != 0) AnotaTute(c.cante);
        DecideGanadorMano();
        EXPECT_EQ(GanadorMano, c.ganador);
    }
}

} // namespace
