// The computer player of Tute and Brisca on built positions: which card a seat plays by its
// level, character and the cards on the table, and which cards it offers the person as legal.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Eleccion.h"
#include "games/tutebrisca/EleccionComun.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"

#include "support/ManosTuteBrisca.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace {

// A seat that has already played this trick lays its card on the table.
void Juega(int seat, Carta carta) {
    if (CartasEnBaza == 0) JugadorSalida = seat;
    DaMano(seat, {carta});
    ++CartasEnBaza;
    PonCartaEnBaza(seat, 1);
}

// The turn of a seat, counted as the driver counts it, and the card that its chooser picks.
Carta Elige(int seat, const std::vector<Carta>& mano) {
    CartasEnBaza = 1;
    for (const auto& carta : CartaEnMesa) CartasEnBaza += carta[1] != 0;
    if (CartasEnBaza == 1) JugadorSalida = seat;
    DaMano(seat, mano);
    JugadorActual = seat;
    JuegoActual == JUEGO_TUTE ? EligeCartaTute() : EligeCartaBrisca();
    const auto& carta = CartasJugador[seat][1][CartaElegida];
    return {carta[CAMPO_PALO], carta[CAMPO_VALOR]};
}

std::set<int> Legales() {
    std::set<int> legales;
    for (int i = 1; i <= NumCandidatas; ++i) legales.insert(Candidatas[i][CAND_POSICION]);
    return legales;
}

class TuteBriscaEleccion : public ::testing::Test {
  protected:
    void SetUp() override {
        PonTablasTuteBrisca();
        ModalidadPareja = 1;
        ObligacionAsistir = 1;
        PermitirContrafallar = false;
        PasoSentido = 1;
        PaloTriunfo = OROS;
        ValorTriunfo = 5;
        GanadorBaza = 0;
        TutorEnCurso = false;
        SimulacionValida = false;
        AzarJugada = 0.5;
        for (int s = 1; s <= 4; ++s) {
            NivelJugador[s] = 70;
            CaracterJugador[s] = 2;
        }
        std::fill(&AcuseCantado[0][0], &AcuseCantado[0][0] + 25, false);
        std::fill(&SinPalo[0][0], &SinPalo[0][0] + 25, false);
        std::fill(&CartaVista[0][0], &CartaVista[0][0] + 6 * 14, 0);
        for (int s = 1; s <= 4; ++s) DaMano(s, {});
        Partida(JUEGO_TUTE, 2);
    }

    // Tute with two players and Brisca keep a stock; Tute with four has none and is bound.
    void Partida(int juego, int jugadores) {
        JuegoActual = juego;
        NumJugadores = jugadores;
        for (int s = 1; s <= 4; ++s)
            EstadoJugador[s] = s <= jugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        CartasPorJugador = juego == JUEGO_BRISCA ? 3 : jugadores == 2 ? 6 : 10;
        CartasEnMazo = juego == JUEGO_BRISCA ? 20 : jugadores == 2 ? 12 : 0;
        EmpiezaBaza();
    }
};

TEST_F(TuteBriscaEleccion, ElErrorSoloAlcanzaAJugadoresPorDebajoDeNoventa) {
    struct Caso {
        int nivel;
        double azar;
        int p, esperado;
    };
    const Caso casos[] = {
        {90, 0.999, 12, 12}, {100, 0.999, 3, 3}, {89, 0.95, 12, 12},
        {89, 0.9, 12, 11},   {50, 0.4, 3, 3},    {10, 0.2, 3, 1},
    };
    for (const auto& c : casos) {
        AzarJugada = c.azar;
        EXPECT_EQ(AplicaError(c.p, c.nivel), c.esperado) << c.nivel << " " << c.azar;
    }

    // Last to play, a bold seat of level 50 takes the trick with its Cinco, unless it slips.
    Partida(JUEGO_BRISCA, 2);
    NivelJugador[2] = 50;
    CaracterJugador[2] = 3;
    Juega(1, {COPAS, 4});
    const std::vector<Carta> mano = {{ESPADAS, 4}, {BASTOS, 5}, {COPAS, 5}};
    AzarJugada = 0.3;
    EXPECT_EQ(Elige(2, mano), Carta(COPAS, 5));
    AzarJugada = 0.6;
    EXPECT_EQ(Elige(2, mano), Carta(BASTOS, 5));
}

TEST_F(TuteBriscaEleccion, UltimoConCartasLibresGanaSegunElCaracter) {
    // Two players of Tute with cards in the stock: no obligation yet.
    Juega(1, {COPAS, 4});
    const std::vector<Carta> mano = {{ESPADAS, 5}, {ESPADAS, 6}, {COPAS, 5}, {COPAS, 1}};
    CaracterJugador[2] = 3;
    EXPECT_EQ(Elige(2, mano), Carta(COPAS, 5)) << "the bold seat takes the first winner";
    CaracterJugador[2] = 2;
    EXPECT_EQ(Elige(2, mano), Carta(ESPADAS, 5)) << "nothing on the table pays a winner";

    // Brisca leaves its walk on the last winner it met when nothing stopped it.
    Partida(JUEGO_BRISCA, 2);
    Juega(1, {COPAS, 4});
    EXPECT_EQ(Elige(2, {{ESPADAS, 5}, {COPAS, 5}, {COPAS, 1}}), Carta(COPAS, 1));

    // In pairs, a trick the partner holds gets the Rey; playing alone, the cheapest card goes.
    Partida(JUEGO_BRISCA, 4);
    Juega(1, {COPAS, 4});
    Juega(2, {COPAS, 1});
    Juega(3, {ESPADAS, 5});
    const std::vector<Carta> carga = {{BASTOS, 5}, {ESPADAS, 12}, {BASTOS, 4}};
    EXPECT_EQ(Elige(4, carga), Carta(BASTOS, 4));
    ModalidadPareja = 2;
    EXPECT_EQ(Elige(4, carga), Carta(ESPADAS, 12));
}

TEST_F(TuteBriscaEleccion, UnTriunfoNoSeGastaEnUnaBazaQueNoLoPaga) {
    CaracterJugador[2] = 3;
    const std::vector<Carta> mano = {{COPAS, 10},  {COPAS, 1},  {COPAS, 3},
                                     {ESPADAS, 7}, {BASTOS, 6}, {OROS, 4}};
    Juega(1, {BASTOS, 10});
    EXPECT_EQ(Elige(2, mano), Carta(BASTOS, 6)) << "two points: the cheapest loser goes";
    EmpiezaBaza();
    Juega(1, {BASTOS, 1});
    EXPECT_EQ(Elige(2, mano), Carta(OROS, 4)) << "the As is worth a trump";

    // The prudent seat ruffs a Tres with its Sota of trumps, but not a blank card.
    CaracterJugador[2] = 1;
    const std::vector<Carta> prudente = {{ESPADAS, 5}, {OROS, 10}, {BASTOS, 6}, {BASTOS, 7}};
    EmpiezaBaza();
    Juega(1, {COPAS, 3});
    EXPECT_EQ(Elige(2, prudente), Carta(OROS, 10));
    EmpiezaBaza();
    Juega(1, {COPAS, 4});
    EXPECT_EQ(Elige(2, prudente), Carta(BASTOS, 6));

    // Brisca keeps the same rule for a seat that follows.
    Partida(JUEGO_BRISCA, 2);
    Juega(1, {BASTOS, 10});
    EXPECT_EQ(Elige(2, {{ESPADAS, 4}, {OROS, 4}, {COPAS, 6}}), Carta(ESPADAS, 4));
}

TEST_F(TuteBriscaEleccion, TuteEnManoYCantesProtegenSusFiguras) {
    // Holding the four Reyes with more than four cards, the seat plays round them.
    Partida(JUEGO_TUTE, 4);
    const std::vector<Carta> reyes = {{OROS, 12},   {COPAS, 12}, {ESPADAS, 12},
                                      {BASTOS, 12}, {COPAS, 4},  {ESPADAS, 1}};
    EXPECT_EQ(Elige(1, reyes), Carta(ESPADAS, 1)) << "entry H - 4, the last non-figure";
    for (int i = 1; i <= 6; ++i) {
        const int valor = CartasJugador[1][1][Candidatas[i][CAND_POSICION]][CAMPO_VALOR];
        EXPECT_EQ(valor == 12, i > 2) << "the figures of the Tute sort last";
    }

    // Last to play with free cards: the song's Caballo does not take the trick.
    Partida(JUEGO_TUTE, 2);
    CaracterJugador[2] = 3;
    const std::vector<Carta> cante = {{ESPADAS, 5}, {COPAS, 11}, {COPAS, 12}, {BASTOS, 6}};
    Juega(1, {COPAS, 4});
    const Carta protegida = Elige(2, cante);
    EXPECT_TRUE(protegida == Carta(ESPADAS, 5) || protegida == Carta(BASTOS, 6));
    AcuseCantado[3][COPAS] = true; // once the suit is sung there is nothing left to shield
    EXPECT_EQ(Elige(2, cante), Carta(COPAS, 11));
}

TEST_F(TuteBriscaEleccion, LasCandidatasObligadasSonLasCartasLegales) {
    struct Caso {
        const char* nombre;
        bool contrafallar;
        std::vector<std::pair<int, Carta>> mesa; // seat, card, in order of play
        std::vector<Carta> mano;                 // of seat 4
    };
    // clang-format off
    const Caso casos[] = {
        {"must overtake the led card", false, {{1, {COPAS, 5}}},
         {{COPAS, 4}, {COPAS, 1}, {COPAS, 7}, {OROS, 2}, {BASTOS, 3}}},
        {"follows when it can't overtake", false, {{1, {COPAS, 1}}, {2, {COPAS, 3}}},
         {{COPAS, 4}, {COPAS, 12}, {OROS, 2}, {BASTOS, 3}}},
        {"ruffs without the suit", false, {{1, {COPAS, 1}}},
         {{ESPADAS, 4}, {OROS, 2}, {OROS, 12}, {BASTOS, 3}}},
        {"no overtrump: any card", true, {{1, {COPAS, 1}}, {2, {OROS, 1}}},
         {{ESPADAS, 4}, {OROS, 2}, {OROS, 12}, {BASTOS, 3}}},
        {"overtrumps when it can", true, {{1, {COPAS, 1}}, {2, {OROS, 10}}},
         {{ESPADAS, 4}, {OROS, 2}, {OROS, 12}, {BASTOS, 3}}},
        {"free discard", false, {{1, {COPAS, 1}}, {2, {COPAS, 5}}, {3, {COPAS, 6}}},
         {{ESPADAS, 4}, {BASTOS, 3}, {ESPADAS, 1}}},
        {"trump led", true, {{3, {OROS, 6}}}, {{OROS, 2}, {OROS, 7}, {COPAS, 1}, {OROS, 1}}},
    };
    // clang-format on
    Partida(JUEGO_TUTE, 4);
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        PermitirContrafallar = c.contrafallar;
        EmpiezaBaza();
        ASSERT_TRUE(ObligacionActiva);
        for (const auto& [seat, carta] : c.mesa) Juega(seat, carta);
        Elige(4, c.mano);
        const std::set<int> elegidas = Legales();
        std::set<int> todas;
        for (int i = 1; i <= NumCartas[4][1]; ++i) todas.insert(Candidatas[i][CAND_POSICION]);
        EXPECT_EQ(todas.size(), c.mano.size()) << "every card is listed once";
        EXPECT_TRUE(elegidas.count(CartaElegida));
        ListaCartasLegales(4);
        EXPECT_EQ(elegidas, Legales());
    }
}

TEST_F(TuteBriscaEleccion, ElDosDeTriunfoValeLaPintaMientrasSePuedaCambiar) {
    // The turned-up 7 has no points: the 2 of trump stands for it and is not led cheaply.
    Partida(JUEGO_BRISCA, 2);
    ValorTriunfo = 7;
    CaracterJugador[1] = 1;
    const std::vector<Carta> mano = {{OROS, 2}, {COPAS, 7}, {ESPADAS, 7}};
    EXPECT_EQ(Elige(1, mano), Carta(COPAS, 7));
    EmpiezaBaza();
    CartasEnMazo = 2; // too late for the exchange: the 2 is a low trump again
    EXPECT_EQ(Elige(1, mano), Carta(OROS, 2));
}

TEST_F(TuteBriscaEleccion, LaBriscaMiraLasManosSoloPorEncimaDeNoventaYCinco) {
    Partida(JUEGO_BRISCA, 4);
    Juega(1, {COPAS, 1});
    DaMano(3, {{COPAS, 6}, {ESPADAS, 2}, {BASTOS, 4}});
    DaMano(4, {{COPAS, 7}, {BASTOS, 5}, {ESPADAS, 6}});
    const std::vector<Carta> mano = {{ESPADAS, 4}, {OROS, 5}, {BASTOS, 6}};
    NivelJugador[2] = 96;
    EXPECT_EQ(Elige(2, mano), Carta(OROS, 5)) << "nobody behind can beat the trump";
    NivelJugador[2] = 95;
    EXPECT_EQ(Elige(2, mano), Carta(ESPADAS, 4));
    NivelJugador[2] = 96;
    DaMano(4, {{COPAS, 7}, {OROS, 1}, {ESPADAS, 6}});
    EXPECT_EQ(Elige(2, mano), Carta(ESPADAS, 4)) << "the As of trumps waits behind";

    // The tutor looks too, and gives the seat its own level back.
    DaMano(4, {{COPAS, 7}, {BASTOS, 5}, {ESPADAS, 6}});
    NivelJugador[2] = 20;
    TutorEnCurso = true;
    EXPECT_EQ(Elige(2, mano), Carta(OROS, 5));
    EXPECT_EQ(NivelJugador[2], 20);
}

TEST_F(TuteBriscaEleccion, UnaClaveNegativaVaDelanteDeTodas) {
    JugadorActual = 1;
    DaMano(1, {{COPAS, 4}, {COPAS, 5}, {COPAS, 6}, {COPAS, 7}});
    const int claves[] = {0, 300, -1200, 0, 1500};
    OrdenaCandidatas(claves, 4);
    EXPECT_EQ(Candidatas[1][CAND_POSICION], 2);
    EXPECT_EQ(Candidatas[1][CAND_CLAVE], -1200);
    EXPECT_EQ(Candidatas[2][CAND_POSICION], 3);
    EXPECT_EQ(Candidatas[4][CAND_CLAVE], 1500);
    EXPECT_EQ(Candidatas[5][CAND_POSICION], 0);
}

} // namespace

// Above level 90 a seat leading in pairs plays the blank card its partner can ruff and keeps the
// one an opponent would ruff; at 90 the voids it knows don't move its lead.
TEST_F(TuteBriscaEleccion, EnParejasSaleAlFalloDelCompaneroYNoAlDelRival) {
    Partida(JUEGO_TUTE, 4);
    ModalidadPareja = 2;
    const std::vector<Carta> mano = {{ESPADAS, 4}, {BASTOS, 4}, {COPAS, 7}};
    for (int nivel : {91, 90}) {
        std::vector<Carta> salidas;
        for (int paloDelCompanero : {ESPADAS, BASTOS}) {
            std::fill(&SinPalo[0][0], &SinPalo[0][0] + 25, false);
            SinPalo[3][paloDelCompanero] = true;
            SinPalo[2][paloDelCompanero == ESPADAS ? BASTOS : ESPADAS] = true;
            NivelJugador[1] = nivel;
            salidas.push_back(Elige(1, mano));
        }
        if (nivel > 90) {
            EXPECT_EQ(salidas[0], Carta(ESPADAS, 4));
            EXPECT_EQ(salidas[1], Carta(BASTOS, 4));
        } else {
            EXPECT_EQ(salidas[0], salidas[1]) << "level 90 doesn't weigh the voids";
        }
    }
}

// Bound to follow in Tute for four, a seat holding the two top trumps and one low card runs its
// masters only above level 85; at 85 and below it leads the low card and keeps them.
TEST_F(TuteBriscaEleccion, SoloPorEncimaDeOchentaYCincoSeCorrenLasMaestras) {
    Partida(JUEGO_TUTE, 4);
    ObligacionActiva = true;
    CaracterJugador[1] = 3;
    const std::vector<Carta> mano = {{OROS, 1}, {OROS, 3}, {COPAS, 4}};
    for (int nivel : {80, 85, 86, 100}) {
        NivelJugador[1] = nivel;
        const Carta salida = Elige(1, mano);
        if (nivel > 85)
            EXPECT_EQ(salida.first, OROS) << nivel;
        else
            EXPECT_EQ(salida, Carta(COPAS, 4)) << nivel;
    }
}
