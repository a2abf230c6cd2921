// The end-game search of Tute and Brisca on positions small enough to play out by hand: which
// lines exist, who ends on top of each, and what the search advises the seat on turn.
#include "frame/Ordenar.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Eleccion.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"
#include "support/MesaDePrueba.h"

#include "support/ManosTuteBrisca.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

constexpr int AS = 1, TRES = 3, SOTA = 10, CABALLO = 11, REY = 12;

// The chooser's list as the search reads it: positions from the card to shed to the card to keep.
void PonCandidatas(const std::vector<int>& posiciones) {
    int j = 0;
    for (int p : posiciones) Candidatas[++j][CAND_POSICION] = p;
}

int Ganadas(int a, int b = 0, int c = 0, int d = 0) {
    return GanadasSim[a][b][c][d];
}
int Margen(int a, int b = 0, int c = 0, int d = 0) {
    return MargenSim[a][b][c][d];
}

int TotalGanadas() {
    int total = 0;
    for (auto& a : GanadasSim)
        for (auto& b : a)
            for (auto& c : b)
                for (int d : c) total += d;
    return total;
}

std::vector<QString> Claves() {
    std::vector<QString> claves;
    for (int i = 0; i < Lis_GanadasSim.Cuenta(); ++i) claves.push_back(Lis_GanadasSim.Texto(i));
    return claves;
}

class TuteBriscaSimulacion : public ::testing::Test {
  protected:
    void SetUp() override {
        ReiniciaEstado();
        PonTablasTuteBrisca();
        Juega(JUEGO_TUTE, 2);
        PaloTriunfo = OROS;
        CartasEnMazo = 0;
        JugadorSalida = 1;
        for (auto& s : TantosJugador) s[1] = 0;
        for (int s = 1; s <= 4; ++s) DaMano(s, {});
        for (auto& o : OrdenJugadas) o = 0;
        AzarJugada = 0.5;
        for (auto& n : NivelJugador) n = 100;
    }
    static void Juega(int juego, int jugadores) {
        JuegoActual = juego;
        NumJugadores = jugadores;
        for (int s = 1; s <= 4; ++s)
            EstadoJugador[s] = s <= jugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
    }
    // The turn of a seat within the trick, as the driver leaves it before calling the chooser.
    static void Consulta(int seat, int turno, std::vector<int> jugadas = {}) {
        JugadorActual = seat;
        CartasEnBaza = turno;
        for (int t = 1; t <= static_cast<int>(jugadas.size()); ++t)
            OrdenJugadas[t] = jugadas[t - 1];
        ConsultaSimulacion();
    }
    // Two seats, two cards each, trumps Oros. Seat 1 leads.
    //   a1: 1 plays As de oros, 2 As de copas: 1 takes 22; then 4 de copas against 2 de espadas,
    //       1 takes 0 + 10 of the last trick. Gains 32 / 0, seat 1 on top.
    //   a2: 1 As de oros, 2 the 2 de espadas: 1 takes 11; then 4 de copas, 2 must overtake
    //       with its As de copas and takes 11 + 10. Gains 11 / 21, seat 2 on top.
    //   b1: 1 leads 4 de copas: 2 must overtake with the As (the 2 de espadas is illegal) and
    //       takes 11; then 2 leads the 2 de espadas, 1 trumps and takes 0 + 11 + 10.
    //       Gains 21 / 11, seat 1 on top.
    static void DosManosDeDos() {
        DaMano(1, {{OROS, AS}, {COPAS, 4}});
        DaMano(2, {{COPAS, AS}, {ESPADAS, 2}});
    }
};

TEST_F(TuteBriscaSimulacion, ProcedeConDosCartasYEnTuteHastaSieteMenosLosJugadores) {
    struct Caso {
        int juego, jugadores, cartas;
        bool procede;
    };
    const Caso casos[] = {
        {JUEGO_TUTE, 2, 1, false},  {JUEGO_TUTE, 2, 2, true},   {JUEGO_TUTE, 2, 5, true},
        {JUEGO_TUTE, 2, 6, false},  {JUEGO_TUTE, 3, 4, true},   {JUEGO_TUTE, 3, 5, false},
        {JUEGO_TUTE, 4, 3, true},   {JUEGO_TUTE, 4, 4, false},  {JUEGO_BRISCA, 2, 1, false},
        {JUEGO_BRISCA, 4, 3, true}, {JUEGO_BRISCA, 4, 8, true},
    };
    for (const auto& c : casos) {
        Juega(c.juego, c.jugadores);
        JugadorSalida = 2;
        NumCartas[2][1] = c.cartas;
        EXPECT_EQ(ProcedeSimulacion(), c.procede)
            << c.juego << " " << c.jugadores << " jugadores, " << c.cartas << " cartas";
    }
}

// The same lines in both games: the class rule binds Brisca inside the search, and the ten of
// the last trick counts in Brisca too.
TEST_F(TuteBriscaSimulacion, DosJugadoresConDosCartasHastaElFinal) {
    for (int juego : {JUEGO_TUTE, JUEGO_BRISCA}) {
        Juega(juego, 2);
        DosManosDeDos();
        SimulaFinal();
        EXPECT_EQ(TotalGanadas(), 3) << juego; // three lines, each with a seat on top
        EXPECT_EQ(Ganadas(1), 1) << juego;     // a1
        EXPECT_EQ(Margen(1), 32 + 11) << juego;
        EXPECT_EQ(Ganadas(1, 1), 0) << juego;
        EXPECT_EQ(Margen(1, 1), 0) << juego;
        EXPECT_EQ(Ganadas(1, 2), 1) << juego; // a2
        EXPECT_EQ(Margen(1, 2), 21) << juego;
        EXPECT_EQ(Ganadas(2), 1) << juego; // b1
        EXPECT_EQ(Margen(2), 21) << juego;
        EXPECT_EQ(Margen(2, 1), 11) << juego;
        EXPECT_EQ(Ganadas(2, 2), 0) << juego; // the 2 de espadas may not answer the 4 de copas
        EXPECT_EQ(Margen(2, 2), 0) << juego;
    }
}

TEST_F(TuteBriscaSimulacion, ConCartasEnElMazoSoloSeMiraLaBazaPresente) {
    DosManosDeDos();
    CartasEnMazo = 6;
    TantosJugador[1][1] = 40; // tantos already won don't count as a gain
    SimulaFinal();
    // a1: 1 takes 22. a2: 1 takes 11. b1: 2 takes 11. No ten, no second trick.
    EXPECT_EQ(Ganadas(1), 2);
    EXPECT_EQ(Margen(1), 33);
    EXPECT_EQ(Ganadas(1, 2), 0);
    EXPECT_EQ(Margen(1, 2), 0);
    EXPECT_EQ(Ganadas(2), 0);
    EXPECT_EQ(Ganadas(2, 1), 1);
    EXPECT_EQ(Margen(2, 1), 11);
}

TEST_F(TuteBriscaSimulacion, ElQueSaleRecibeElConsejoSiSuNivelLoPermite) {
    DosManosDeDos();
    SimulaFinal();
    PonCandidatas({1, 2});
    // As de oros: wins 1 of the 2 lines under it, 43 of their 64 tantos. 4 de copas: wins its
    // only line, 21 of 32 tantos.
    Consulta(1, 1);
    EXPECT_EQ(Claves(), (std::vector<QString>{"050.00/067.19/01", "100.00/065.63/00"}));
    EXPECT_EQ(CartaSimulada, 2);

    struct Caso {
        double azar;
        int nivel, consejo;
    };
    const Caso casos[] = {{0.5, 100, 2}, {0.5, 30, 0}, {0.295, 30, 2}, {0.0, 0, 0}, {0.0, 1, 2}};
    for (const auto& c : casos) {
        AzarJugada = c.azar;
        NivelJugador[1] = c.nivel;
        Consulta(1, 1);
        EXPECT_EQ(CartaSimulada, c.consejo) << c.azar << " " << c.nivel;
    }
}

TEST_F(TuteBriscaSimulacion, UnaCartaIlegalOSinGananciaNoSeAconseja) {
    DosManosDeDos();
    SimulaFinal();
    PonCandidatas({2, 1});
    // After the 4 de copas the 2 de espadas is illegal: the As alone remains, nothing to choose.
    Consulta(2, 2, {2});
    EXPECT_EQ(Claves(), (std::vector<QString>{"000.00/034.38/00"}));
    EXPECT_EQ(CartaSimulada, 0);
    // After the As de oros the As de copas is legal but wins no line and gains nothing.
    Consulta(2, 2, {1});
    EXPECT_EQ(Claves(), (std::vector<QString>{"050.00/032.81/01"}));
    EXPECT_EQ(CartaSimulada, 0);
}

// One trick with cards to draw. Seat 1 leads the Sota de copas: seat 2 overtakes with the As
// (takes 13) or the Rey (takes 6). Seat 1 leads the 5 de espadas: seat 2 throws either card
// and seat 1 takes 11 or 4.
TEST_F(TuteBriscaSimulacion, ElSegundoSigueLaCartaQueSalio) {
    CartasEnMazo = 4;
    DaMano(1, {{COPAS, SOTA}, {ESPADAS, 5}});
    DaMano(2, {{COPAS, AS}, {COPAS, REY}});
    PonCandidatas({2, 1}); // the Rey is the cheaper card
    SimulaFinal();
    EXPECT_EQ(Ganadas(1, 1), 1);
    EXPECT_EQ(Margen(1, 1), 13);
    EXPECT_EQ(Ganadas(2), 2);
    EXPECT_EQ(Margen(2), 15);

    // Each answer wins its line; Tute weighs the tantos and keeps the As.
    Consulta(2, 2, {1});
    EXPECT_EQ(Claves(), (std::vector<QString>{"050.00/031.58/01", "050.00/068.42/00"}));
    EXPECT_EQ(CartaSimulada, 1);
    // Brisca with cards to draw looks at the lines won only, and saves the As.
    Juega(JUEGO_BRISCA, 2);
    Consulta(2, 2, {1});
    EXPECT_EQ(Claves(), (std::vector<QString>{"050.00/00", "050.00/01"}));
    EXPECT_EQ(CartaSimulada, 2);
    // After the 5 de espadas nothing seat 2 plays wins anything.
    Consulta(2, 2, {2});
    EXPECT_EQ(Lis_GanadasSim.Cuenta(), 0);
    EXPECT_EQ(CartaSimulada, 0);
}

// Four seats in pairs, every card forced by suit: seat 1 takes both tricks with its Ases, 21 and
// 31 tantos, in either order. Seat 3 is credited with its partner's lines.
TEST_F(TuteBriscaSimulacion, EnParejasCadaLadoSeCuentaEnAmbosCompanerosYSeParte) {
    Juega(JUEGO_TUTE, 4);
    ModalidadPareja = 2;
    DaMano(1, {{COPAS, AS}, {ESPADAS, AS}});
    DaMano(2, {{COPAS, 4}, {ESPADAS, 4}});
    DaMano(3, {{COPAS, TRES}, {ESPADAS, TRES}});
    DaMano(4, {{COPAS, 2}, {ESPADAS, 2}});
    SimulaFinal();
    EXPECT_EQ(Ganadas(1), 1);
    EXPECT_EQ(Margen(1), 52);
    EXPECT_EQ(Ganadas(1, 1, 1), 1);
    EXPECT_EQ(Margen(1, 1, 1), 52);
    EXPECT_EQ(Ganadas(1, 1, 1, 1), 0);
    EXPECT_EQ(Ganadas(1, 1, 1, 2), 0); // the 2 de espadas can't answer copas

    PonCandidatas({1, 2});
    Consulta(3, 3, {1, 1});
    EXPECT_EQ(Claves(), (std::vector<QString>{"100.00/100.00/01"})); // 1 of 2 / 2 lines
    EXPECT_EQ(CartaSimulada, 0);

    // Alone, seat 3 gains nothing in any line.
    ModalidadPareja = 1;
    SimulaFinal();
    EXPECT_EQ(Ganadas(1, 1, 1), 0);
    Consulta(3, 3, {1, 1});
    EXPECT_EQ(Lis_GanadasSim.Cuenta(), 0);
}

// Each seat holds one suit of its own and only seat 1 holds trumps: every card is legal at every
// turn and the lines number (n!)^P, each with a seat on top thanks to the last trick's ten.
TEST_F(TuteBriscaSimulacion, SinObligacionSeRecorrenTodasLasLineas) {
    struct Caso {
        int juego, jugadores, cartas, lineas;
    };
    const Caso casos[] = {
        {JUEGO_BRISCA, 2, 3, 36}, {JUEGO_TUTE, 3, 4, 13824}, {JUEGO_TUTE, 4, 3, 1296}};
    const int valores[5] = {0, 4, 5, 6, 7};
    for (const auto& c : casos) {
        Juega(c.juego, c.jugadores);
        for (int s = 1; s <= c.jugadores; ++s) {
            std::vector<Carta> mano;
            for (int p = 1; p <= c.cartas; ++p) mano.push_back({s, valores[p]});
            DaMano(s, mano);
        }
        SimulaFinal();
        EXPECT_EQ(TotalGanadas(), c.lineas) << c.jugadores << " jugadores";
    }
}

} // namespace

// Brisca with cards still to draw: the leader takes the search's advice only when it costs at
// most two points more than the card its own rules chose, and never over a card worth nothing.
TEST_F(TuteBriscaSimulacion, LaBriscaNoTiraPuntosPorElConsejoDeUnaBaza) {
    Juega(JUEGO_BRISCA, 2);
    CartasPorJugador = 3;
    struct Caso {
        std::vector<Carta> uno, dos;
        int propia, consejo, jugada;
    };
    const Caso casos[] = {
        // The Caballo for the Sota: one point more, taken.
        {{{COPAS, SOTA}, {ESPADAS, CABALLO}, {BASTOS, REY}},
         {{COPAS, CABALLO}, {ESPADAS, 4}, {BASTOS, 5}},
         1,
         2,
         2},
        // The Tres for the Sota: eight points more, refused.
        {{{COPAS, SOTA}, {ESPADAS, TRES}, {COPAS, TRES}},
         {{COPAS, 4}, {COPAS, REY}, {ESPADAS, 5}},
         1,
         3,
         1},
        // The Sota for a blank 4: refused, however small the cost.
        {{{COPAS, SOTA}, {BASTOS, 4}, {ESPADAS, SOTA}},
         {{COPAS, 4}, {ESPADAS, 5}, {BASTOS, AS}},
         2,
         1,
         2},
    };
    for (const auto& c : casos) {
        const int fila = static_cast<int>(&c - casos);
        DaMano(1, c.uno);
        DaMano(2, c.dos);
        CartasEnMazo = 10;
        CartasEnBaza = 1;
        JugadorActual = 1;
        SimulacionValida = false;
        EligeCartaBrisca();
        EXPECT_EQ(CartaElegida, c.propia) << fila;
        SimulaFinal();
        SimulacionValida = true;
        ConsultaSimulacion();
        EXPECT_EQ(CartaSimulada, c.consejo) << fila;
        EligeCartaBrisca();
        EXPECT_EQ(CartaElegida, c.jugada) << fila;
    }
}
