// The person at the table: the bar and its refusals, the big button, the keys, the popup,
// hit tests on fans and thumbnails, and dragging a card within the hand.
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Popup.h"
#include "table/Pulsadores.h"
#include "table/Raton.h"

#include <QKeyEvent>

namespace {

void DaCartas(int seat, std::initializer_list<std::pair<int, int>> cartas, int cara = 2) {
    int p = 0;
    for (auto [palo, valor] : cartas) {
        ++p;
        auto& c = CartasJugador[seat][1][p];
        c[CAMPO_PALO] = palo;
        c[CAMPO_VALOR] = valor;
        c[CAMPO_CARA] = cara;
        c[CAMPO_ESTADO] = 2;
    }
    NumCartas[seat][1] = p;
}

// A point of card p of a seat's fan that the next card doesn't cover, as the person would
// point at it: fans grow rightwards at the bottom, downwards on the left, leftwards at the top
// and upwards on the right.
std::pair<int, int> CentroCarta(int seat, int p) {
    PosicionCarta(seat, p, NumCartas[seat][1]);
    switch (seat) {
    case 1:
        return {CartaX + 70, CartaY + 10};
    case 2:
        return {CartaX + 90, CartaY + 70};
    case 3:
        return {CartaX + 70, CartaY + 90};
    default:
        return {CartaX + 10, CartaY + 70};
    }
}

} // namespace

TEST(Raton, TheBarRefusesByTheStateOfTheTable) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    JugadorActual = 4;
    const struct {
        bool viva, mano, eligiendo, reparto;
        bool rechazado[9]; // index 1..8
    } casos[] = {
        // no match: the tutor is refused (no hand), the statistics too except in Tute/Brisca
        {false,
         false,
         false,
         false,
         {false, false, false, false, true, false, false, false, false}},
        // between hands: new match, rules and exit are refused
        {true, false, false, false, {false, true, false, true, true, false, false, false, true}},
        // hand under way, the person's seat not waiting: the tutor is refused
        {true, true, false, false, {false, false, false, false, true, false, false, false, false}},
        // choosing the leader: seats, rules and the scoreboard are refused
        {true, true, true, false, {false, false, true, true, true, false, true, false, false}},
        // a manual deal: the scoreboard is refused
        {true, true, false, true, {false, false, false, false, true, false, true, false, false}},
    };
    for (const auto& c : casos) {
        PartidaViva = c.viva;
        ManoViva = c.mano;
        EligiendoMano = c.eligiendo;
        AnularReparto = c.reparto;
        for (int i = 1; i <= 8; ++i)
            EXPECT_EQ(BotonRechazado(i), c.rechazado[i])
                << "button " << i << " viva " << c.viva << " mano " << c.mano;
    }
    EligiendoMano = AnularReparto = false;
    // The tutor is there for the person's turn, with the cards in sight.
    PartidaViva = ManoViva = true;
    EsperandoPersona = true;
    EXPECT_FALSE(BotonRechazado(4));
    CartasVisibles[4] = 1;
    EXPECT_TRUE(BotonRechazado(4));
    EXPECT_TRUE(BotonRechazado(5)) << "statistics with hidden cards during a hand";
}

TEST(Raton, ARefusedPressDoesNothingButShowTheNoDropPointer) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    PartidaViva = true;
    ManoViva = false;
    CursorActual = 0;
    PulsaBoton(1);
    EXPECT_EQ(CursorActual, 12);
    EXPECT_TRUE(MensajesVistos.empty()) << "no question about abandoning";
    EXPECT_TRUE(PartidaViva);
    EXPECT_EQ(NumeroMano, 0) << "no match was started";
}

TEST(Raton, KeysStartAMatchOnAnEmptyTableExceptTheQuietOnes) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_BRISCA;
    TurnoSalida = 2; // no draw: the match waits at once for the leader
    int partidas = 0;
    PersonaGuionada = [&] {
        ++partidas;
        PartidaViva = false;
        EligiendoMano = false;
    };
    for (int tecla : {int(Qt::Key_Q), int(Qt::Key_Escape)}) TeclaMesa(tecla, false);
    TeclaMesa(Qt::Key_C, true);
    EXPECT_EQ(partidas, 0);
    TeclaMesa(Qt::Key_A, false);
    EXPECT_EQ(partidas, 1);
    TeclaMesa(Qt::Key_Return, false);
    EXPECT_EQ(partidas, 2);
}

TEST(Raton, TheBigButtonEndsTheWaitAndSaysWhoActs) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    NombreJugador[2] = "Ana";
    NombreJugador[4] = "Luis";
    PartidaViva = ManoViva = true;
    JugadorActual = 2;
    DibujaContinuar(false);
    EXPECT_EQ(LineaContinuar(1), "Juega");
    EXPECT_EQ(LineaContinuar(2), "Ana");
    JugadorActual = 4; // the person: the button plays for them
    DibujaContinuar(false);
    EXPECT_EQ(LineaContinuar(1), "Luis");
    EXPECT_EQ(LineaContinuar(2), "automático");
    ManoViva = false;
    DibujaContinuar(false);
    EXPECT_EQ(LineaContinuar(1), "Continuar");
    EXPECT_EQ(LineaContinuar(2), "");
    EXPECT_TRUE(EsperandoPersona);
    JugadaHecha = true;
    RatonPulsado(Pic_BotContinuar.X + 10, Pic_BotContinuar.Y + 10, 1, false);
    EXPECT_FALSE(EsperandoPersona);
    EXPECT_FALSE(JugadaHecha);
}

TEST(Raton, TheLaterCardOfAFanWinsAndAGapIsAMiss) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    ParametrosJuego();
    SerieActual = 1;
    for (int seat = 1; seat <= 4; ++seat) {
        DaCartas(seat, {{1, 1}, {1, 3}, {2, 5}, {3, 7}, {4, 12}});
        for (int p = 1; p <= 5; ++p) {
            auto [x, y] = CentroCarta(seat, p);
            DetectaJdorYCar(x, y);
            EXPECT_EQ(JugadorBajoCarta, seat);
            EXPECT_EQ(CartaBajoPuntero, p) << "seat " << seat;
        }
    }
    DetectaJdorYCar(CentroMesaX, CentroMesaY);
    EXPECT_EQ(CartaBajoPuntero, 0);

    // Thumbnails: 27 wide in steps of 29, rows of AltoMiniatura with a gap below; row 5 only
    // holds the jokers.
    PanelRepartoX = 100;
    PanelRepartoY = 100;
    FilasPanelReparto = 5;
    NumComodines = 2;
    HallaFilyCol(100 + 29 * 2 + 5, 100 + 5);
    EXPECT_EQ(PaloDeId, 1);
    EXPECT_EQ(ValorDeId, 3);
    HallaFilyCol(100 + 29 * 2 + 27, 100 + 5); // the gap between two columns
    EXPECT_EQ(ValorDeId, 0);
    HallaFilyCol(100 + 5, 100 + AltoMiniatura + 1); // the gap below a row
    EXPECT_EQ(PaloDeId, 0);
    HallaFilyCol(100 + 29 * 1 + 5, 100 + 4 * (AltoMiniatura + 2) + 5);
    EXPECT_EQ(PaloDeId, 5) << "the second joker";
    HallaFilyCol(100 + 29 * 2 + 5, 100 + 4 * (AltoMiniatura + 2) + 5);
    EXPECT_EQ(PaloDeId, 0) << "past the jokers in play";
}

TEST(Raton, TheRightButtonSortsOnlyAHandThatCanBeSeen) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    ParametrosJuego();
    PartidaViva = ManoViva = true;
    EsperandoPersona = true;
    DaCartas(1, {{1, 4}, {2, 1}}, 1); // hidden cards of a computer seat
    DaCartas(4, {{3, 4}, {1, 12}, {1, 1}, {3, 1}});
    auto [x1, y1] = CentroCarta(1, 1);
    RatonPulsado(x1, y1, 2, false);
    RatonSoltado(x1, y1, 2);
    EXPECT_FALSE(Pic_SelOpciones.Visible) << "nothing to offer on hidden cards";

    JuegoActual = JUEGO_BLACKJACK;
    auto [x4, y4] = CentroCarta(4, 1);
    RatonPulsado(x4, y4, 2, false);
    RatonSoltado(x4, y4, 2);
    EXPECT_FALSE(Pic_SelOpciones.Visible) << "a Black Jack table has no popup";

    JuegoActual = JUEGO_TUTE;
    RatonPulsado(x4, y4, 2, false);
    RatonSoltado(x4, y4, 2);
    ASSERT_TRUE(Pic_SelOpciones.Visible);
    EXPECT_EQ(Pic_SelOpciones.Alto(), 2 * 18 + 4);
    // Second line: sort automatically, by suit with the strongest first.
    const int y = Pic_SelOpciones.Y + 18 + 9;
    RatonMovido(Pic_SelOpciones.X + 30, y, false);
    RatonSoltado(Pic_SelOpciones.X + 30, y, 1);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    const int esperado[4][2] = {{1, 1}, {1, 12}, {3, 1}, {3, 4}};
    for (int p = 1; p <= 4; ++p) {
        EXPECT_EQ(CartasJugador[4][1][p][CAMPO_PALO], esperado[p - 1][0]) << p;
        EXPECT_EQ(CartasJugador[4][1][p][CAMPO_VALOR], esperado[p - 1][1]) << p;
    }
}

TEST(Raton, ACardDraggedWithinTheHandGoesBeforeTheCardItIsDroppedOn) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    ParametrosJuego();
    PartidaViva = ManoViva = true;
    DaCartas(4, {{1, 1}, {1, 3}, {2, 5}, {3, 7}, {4, 12}});
    OrdenManual = true;
    auto [x1, y1] = CentroCarta(4, 1);
    RatonMovido(x1, y1, false);
    ASSERT_EQ(CursorActual, 27) << "a card of a seat in sight can be taken";
    RatonPulsado(x1, y1, 1, false);
    ASSERT_TRUE(ArrastrandoCarta);
    auto [x4, y4] = CentroCarta(4, 4);
    RatonMovido(x4 + 12, y4, true);
    RatonSoltado(x4 + 12, y4, 1);
    EXPECT_FALSE(ArrastrandoCarta);
    const int palos[5] = {1, 2, 1, 3, 4};
    const int valores[5] = {3, 5, 1, 7, 12};
    for (int p = 1; p <= 5; ++p) {
        EXPECT_EQ(CartasJugador[4][1][p][CAMPO_PALO], palos[p - 1]) << p;
        EXPECT_EQ(CartasJugador[4][1][p][CAMPO_VALOR], valores[p - 1]) << p;
    }
    EXPECT_EQ(NumCartas[4][1], 5);
    OrdenManual = false;
}

// The action buttons carry their captions, and sound as a press and as a release.
TEST(Raton, AnActionButtonShowsItsCaptionAndClicksTwice) {
    MesaDePrueba mesa;
    // The caption is written in dark brown across the middle of the button.
    auto tinta = [](const QImage& b) {
        int n = 0;
        for (int y = 0; y < b.height(); ++y)
            for (int x = 0; x < b.width(); ++x) {
                const QColor c = b.pixelColor(x, y);
                n += c.red() < 90 && c.green() < 60 && c.blue() < 30;
            }
        return n;
    };
    for (int indice : {PULSADOR_SERVIDO, PULSADOR_CARTA, PULSADOR_DESCARTO, PULSADOR_NO_MUS}) {
        const QString rotulo = EtiquetaControl[indice];
        EtiquetaControl[indice].clear();
        DibujaPulsador(indice, false);
        const int sinRotulo = tinta(Pic_Pulsador[indice].Imagen);
        EtiquetaControl[indice] = rotulo;
        DibujaPulsador(indice, false);
        EXPECT_GT(tinta(Pic_Pulsador[indice].Imagen), sinRotulo + 20) << "caption of " << indice;
    }
    std::vector<int> oidos;
    SonidoMesaOido = [&](int id) { oidos.push_back(id); };
    ColocaPulsador(4, PULSADOR_SERVIDO);
    EsperandoPersona = true;
    PulsaPulsador(PULSADOR_SERVIDO);
    SonidoMesaOido = nullptr;
    EXPECT_TRUE(PideServido);
    EXPECT_FALSE(EsperandoPersona);
    EXPECT_EQ(oidos, (std::vector<int>{SONIDO_SELECCION, SONIDO_SUELTA}));
    PideServido = false;
    Pic_Pulsador[PULSADOR_SERVIDO].Visible = false;
}
