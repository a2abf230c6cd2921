// The Pumba at a table without a window: the plays of every special card worked out by hand as
// the table records them, the cards a seat may lay, who watches the word "Pumba" and the price of
// forgetting it, the suit the person names with a Sota, a stock that runs out, the scores of the
// computer player, the end of a hand, whole matches and what level 100 wins against level 0.
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/pumba/EligePumba.h"
#include "games/pumba/PartidaPumba.h"
#include "games/pumba/ReglasPumba.h"
#include "platform/CajaImagen.h"
#include "support/ManosTuteBrisca.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Popup.h"
#include "table/Pulsadores.h"
#include "table/Raton.h"

#include <QFile>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <set>

namespace {

struct Fin {
    ~Fin() {
        PausasACero = VuelosOmitidos = false;
        PartidaViva = ManoViva = false;
    }
};

// A hand of Pumba laid out by hand: the card on the pile, each seat's cards, the top of the stock
// (the rest of the deck lies under it, in order) and the cards already played.
struct Posicion {
    int jugadores = 4; // seats 1 to 4; with 2, seats 1 and 3
    Carta mesa;
    std::vector<Carta> manos[5];
    std::vector<Carta> mazo;
    std::vector<Carta> jugadas;
    int antes = 4; // the seat before the first to play
};

bool Activo(int jugadores, int s) {
    return jugadores == 2 ? s == 1 || s == 3 : s <= jugadores;
}

void PonPosicion(const Posicion& p) {
    JuegoActual = JUEGO_PUMBA;
    ParametrosJuego();
    ColocaMazo();
    MazoX = MazoBaseX;
    MazoY = MazoBaseY;
    BorraTablasMano();
    EmpiezaManoPumba();
    NumJugadores = JugadoresMano = p.jugadores;
    for (int s = 1; s <= 4; ++s) {
        EstadoJugador[s] = Activo(p.jugadores, s) ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        JuegaMano[s] = Activo(p.jugadores, s);
        ControlJugador[s] = CONTROL_AUTOMATICO;
        NivelJugador[s] = 100;
        CaracterJugador[s] = 2;
        FraseJugador[s][1].clear();
        DaMano(s, p.manos[s]);
    }
    std::set<Carta> usadas(p.mazo.begin(), p.mazo.end());
    for (int s = 1; s <= 4; ++s) usadas.insert(p.manos[s].begin(), p.manos[s].end());
    usadas.insert(p.mesa);
    for (const Carta& c : p.jugadas) {
        usadas.insert(c);
        CartaVista[c.first][c.second] = 1;
    }
    CartaVista[p.mesa.first][p.mesa.second] = 9;
    HistoriaBazas[0][0][HB_PALO] = PaloTriunfo = p.mesa.first;
    HistoriaBazas[0][0][HB_VALOR] = ValorTriunfo = p.mesa.second;
    int pos = 0;
    for (const Carta& c : p.mazo) {
        Baraja[++pos][CAMPO_PALO] = c.first;
        Baraja[pos][CAMPO_VALOR] = c.second;
    }
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor)
            if (ValorEnJuego[valor] && !usadas.count({palo, valor})) {
                Baraja[++pos][CAMPO_PALO] = palo;
                Baraja[pos][CAMPO_VALOR] = valor;
            }
    PosicionMazo = 1;
    CartasEnMazo = pos;
    CartasEnPozo = 0; // a pile left by another game's test is not this table's
    NumeroBaza = 0;
    NumeroMano = 1;
    PartidaViva = ManoViva = true;
    PasoSentido = PasoSentidoPumba = 1;
    JugadorActual = p.antes;
    ContinuarManual = false;
    PausasACero = VuelosOmitidos = true;
    PersonaGuionada = [] { EsperandoPersona = false; };
    ASSERT_TRUE(MesaCoherente());
}

// What a phrase says, whichever of its forms the turn's chance drew.
QString Normaliza(QString frase) {
    for (const char* forma : {"Chúpate ", "Roba ", "Coge "})
        if (frase.startsWith(QString::fromUtf8(forma)))
            return "Roba " + frase.mid(QString::fromUtf8(forma).size());
    for (const char* forma : {"Jugamos a ", "Elijo ", "Pasamos a ", "Sigo con "})
        if (frase.startsWith(QString::fromUtf8(forma)))
            return "Palo " + frase.mid(QString::fromUtf8(forma).size());
    return frase;
}

// One turn as the table shows it: "s:VP" for a card laid (value, suit letter) with what the seat
// says in brackets, "s+n" for cards drawn, "s-" for a pass, "#" when the hand is over.
QString Turno() {
    int antes[5];
    for (int s = 1; s <= 4; ++s) antes[s] = NumCartas[s][1];
    const int fila = NumeroBaza;
    const FinTurno fin = TurnoPumba();
    QStringList partes;
    int jugadas[5] = {};
    for (int f = fila + 1; f <= NumeroBaza; ++f)
        for (int s = 1; s <= 4; ++s)
            if (const int palo = HistoriaBazas[f][s][HB_PALO]) {
                ++jugadas[s];
                QString parte = QStringLiteral("%1:%2%3")
                                    .arg(s)
                                    .arg(HistoriaBazas[f][s][HB_VALOR])
                                    .arg(QString("OCEB").at(palo - 1));
                if (f == NumeroBaza && !FraseJugador[s][1].isEmpty())
                    parte += "[" + Normaliza(FraseJugador[s][1]) + "]";
                partes << parte;
            }
    for (int s = 1; s <= 4; ++s)
        if (const int robadas = NumCartas[s][1] - antes[s] + jugadas[s]; robadas > 0)
            partes << QStringLiteral("%1+%2").arg(s).arg(robadas);
    if (fin == FinTurno::Pasa) partes << QStringLiteral("%1-").arg(JugadorActual);
    if (fin == FinTurno::FinMano) partes << "#";
    EXPECT_TRUE(MesaCoherente()) << "every card once after the turn";
    return partes.join(' ');
}

// A seed whose first draw is below the chance given: the turn's AzarJugada.
unsigned SemillaBajo(double limite) {
    for (unsigned semilla = 1;; ++semilla) {
        RandomizaCon(semilla);
        if (Rnd() < limite) {
            RandomizaCon(semilla);
            return semilla;
        }
    }
}

} // namespace

// Turn after turn, each special card does to the next seats what a player expects: Doses stack
// and the seat that can't answer draws two for each and loses its play; a 7 turns the sense
// with three seats or more; a Caballo skips a seat (with two, the player goes again); an As with
// company plays again in its suit; a Sota names the suit; going out on a Dos ends the hand with
// nothing to pay. Every hand is laid so that each seat has one legal card at most.
TEST(Pumba, EverySpecialCardActsOnTheNextSeats) {
    Fin fin;
    MesaDePrueba mesa;
    const struct {
        const char* caso;
        Posicion posicion;
        int turnos;
        const char* traza;
        int sentido;
    } casos[] = {
        {"Doses",
         {4,
          {OROS, 4},
          {{},
           {{OROS, 2}, {COPAS, 5}, {COPAS, 6}, {ESPADAS, 7}},
           {{COPAS, 2}, {ESPADAS, 5}, {ESPADAS, 6}, {BASTOS, 7}},
           {{BASTOS, 3}, {BASTOS, 5}, {ESPADAS, 12}, {BASTOS, 6}},
           {{ESPADAS, 3}, {BASTOS, 4}, {ESPADAS, 4}, {OROS, 12}}},
          {{OROS, 3}, {OROS, 5}, {OROS, 6}, {OROS, 7}, {ESPADAS, 11}, {COPAS, 3}}},
         4,
         "1:2O[Roba  2] 2:2C[Roba  4] 3+4 4:3C 4+2",
         1},
        {"Siete",
         {4,
          {OROS, 4},
          {{},
           {{OROS, 7}, {COPAS, 1}, {COPAS, 3}, {ESPADAS, 5}},
           {{BASTOS, 5}, {BASTOS, 6}, {BASTOS, 7}},
           {{OROS, 6}, {COPAS, 6}, {COPAS, 7}},
           {{OROS, 5}, {BASTOS, 12}, {COPAS, 12}}}},
         3,
         "1:7O[Cambio sentido] 4:5O 3:6O",
         -1},
        {"Siete con dos",
         {2,
          {OROS, 4},
          {{},
           {{OROS, 7}, {COPAS, 1}, {COPAS, 3}, {ESPADAS, 5}},
           {},
           {{OROS, 5}, {BASTOS, 12}, {COPAS, 12}}},
          {},
          {},
          3},
         2,
         "1:7O 3:5O",
         1},
        {"Caballo",
         {4,
          {OROS, 4},
          {{},
           {{OROS, 11}, {COPAS, 3}, {ESPADAS, 3}, {ESPADAS, 6}},
           {{OROS, 12}, {OROS, 3}, {BASTOS, 3}},
           {{OROS, 6}, {COPAS, 5}, {COPAS, 7}},
           {}}},
         2,
         "1:11O[Salta] 3:6O",
         1},
        {"Caballo con dos",
         {2,
          {OROS, 4},
          {{},
           {{OROS, 11}, {COPAS, 11}, {ESPADAS, 5}, {ESPADAS, 6}},
           {},
           {{BASTOS, 3}, {BASTOS, 4}, {BASTOS, 5}}},
          {},
          {},
          3},
         2,
         "1:11O[Salta] 1:11C[Salta]",
         1},
        {"As",
         {4,
          {OROS, 1},
          {{},
           {{COPAS, 1}, {COPAS, 4}, {ESPADAS, 6}, {BASTOS, 12}},
           {{COPAS, 5}, {BASTOS, 5}, {BASTOS, 6}}}},
         3,
         "1:1C 1:4C 2:5C",
         1},
        {"Sota",
         {4,
          {COPAS, 4},
          {{},
           {{OROS, 10}, {ESPADAS, 3}, {ESPADAS, 4}, {ESPADAS, 5}},
           {{ESPADAS, 6}, {BASTOS, 5}, {BASTOS, 6}},
           {{BASTOS, 7}, {BASTOS, 3}, {COPAS, 7}},
           {{COPAS, 5}, {BASTOS, 4}, {OROS, 3}}}},
         2,
         "1:10O[Palo Espadas] 2:6E",
         1},
        {"Dos que cierra", {4, {OROS, 4}, {{}, {{OROS, 2}}}}, 1, "1:2O #", 1},
    };
    for (const auto& c : casos) {
        PonPosicion(c.posicion);
        QStringList traza;
        for (int t = 0; t < c.turnos; ++t) traza << Turno();
        EXPECT_EQ(traza.join(' ').toStdString(), c.traza) << c.caso;
        EXPECT_EQ(PasoSentidoPumba, c.sentido) << c.caso;
        EXPECT_EQ(DosesPendientes, 0) << c.caso;
    }
}

// The cards the seat on turn may lay, worked out by hand: the suit or the value of the card on
// the pile, a Sota or a Dos anywhere; with Doses to answer only a Dos, of any suit; after an As
// only its suit, Doses and Sotas included; after a Sota the suit it named, not its own.
TEST(Pumba, TheCardsASeatMayLayFollowTheCardOnThePile) {
    Fin fin;
    MesaDePrueba mesa;
    const struct {
        const char* caso;
        Carta mesa;
        int doses;
        bool repiteAs;
        std::vector<Carta> mano, legales;
    } casos[] = {
        {"suit or value",
         {OROS, 4},
         0,
         false,
         {{OROS, 7}, {COPAS, 4}, {ESPADAS, 10}, {BASTOS, 2}, {COPAS, 12}, {ESPADAS, 1}},
         {{OROS, 7}, {COPAS, 4}, {ESPADAS, 10}, {BASTOS, 2}}},
        {"Doses to answer",
         {COPAS, 2},
         2,
         false,
         {{OROS, 2}, {COPAS, 5}, {ESPADAS, 10}, {COPAS, 12}},
         {{OROS, 2}}},
        {"after an As",
         {COPAS, 1},
         0,
         true,
         {{COPAS, 4}, {ESPADAS, 2}, {BASTOS, 10}, {OROS, 1}, {COPAS, 10}},
         {{COPAS, 4}, {COPAS, 10}}},
        {"after a Sota of oros that named espadas",
         {ESPADAS, 10},
         0,
         false,
         {{OROS, 4}, {ESPADAS, 3}, {COPAS, 10}, {BASTOS, 2}, {OROS, 12}},
         {{ESPADAS, 3}, {COPAS, 10}, {BASTOS, 2}}},
    };
    for (const auto& c : casos) {
        Posicion p{2, {OROS, 6}, {{}, c.mano, {}, {{OROS, 3}}}};
        PonPosicion(p);
        PaloTriunfo = c.mesa.first;
        ValorTriunfo = c.mesa.second;
        DosesPendientes = c.doses;
        RepiteAs = c.repiteAs;
        JugadorActual = 1;
        EligePumba();
        std::set<Carta> legales;
        for (int i = 1; i <= NumCandidatas; ++i) {
            const auto& carta = CartasJugador[1][1][Candidatas[i][CAND_POSICION]];
            legales.insert({carta[CAMPO_PALO], carta[CAMPO_VALOR]});
        }
        EXPECT_EQ(legales, std::set<Carta>(c.legales.begin(), c.legales.end())) << c.caso;
        EXPECT_EQ(NumCandidatas, int(c.legales.size())) << c.caso;
    }
}

// The stock is never rebuilt: Doses are paid with what is left of it, and then a seat with no
// card to lay passes. Every card stays in one place throughout, and the hand still ends.
TEST(Pumba, AStockThatRunsOutIsPaidWithWhatIsLeftThenSeatsPass) {
    Fin fin;
    MesaDePrueba mesa;
    Posicion p{3,
               {OROS, 4},
               {{},
                {{OROS, 2}, {BASTOS, 3}, {BASTOS, 5}},
                {{COPAS, 6}, {COPAS, 7}, {BASTOS, 6}},
                {{COPAS, 3}, {COPAS, 5}, {BASTOS, 7}}},
               {{OROS, 3}},
               {},
               3};
    // Everything else has been played already.
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12}) {
            const Carta c{palo, valor};
            bool enJuego = c == p.mesa || c == p.mazo[0];
            for (int s = 1; s <= 3; ++s)
                for (const Carta& m : p.manos[s]) enJuego = enJuego || m == c;
            if (!enJuego) p.jugadas.push_back(c);
        }
    PonPosicion(p);
    // At level 0 nobody remembers the word: what is said is only what the cards say.
    for (int s = 1; s <= 4; ++s) NivelJugador[s] = 0;
    ASSERT_EQ(CartasEnMazo, 1);
    QStringList traza;
    for (int t = 0; t < 5; ++t) traza << Turno();
    EXPECT_EQ(traza.join(' ').toStdString(), "1:2O[Roba  2] 2+1 3- 1- 2:3O");
    EXPECT_EQ(CartasEnMazo, 0);
    EXPECT_EQ(DosesPendientes, 0);
    // The rest of the hand is played from the hands alone, and it ends.
    traza.clear();
    for (int t = 0; t < 30 && !traza.join(' ').endsWith('#'); ++t) traza << Turno();
    EXPECT_EQ(traza.join(' ').toStdString(),
              "3:3C 1:3B 2:6B 3:7B[Cambio sentido] 2:7C[Cambio sentido] 3:5C #");
}

// A seat that lays its next to last card without the word, and is caught, draws two. The person
// says it with the button "Pumba" before laying the card; a computer seat that forgets it is
// caught by the seat that watches, or by the person pressing the button in time.
TEST(Pumba, AForgottenPumbaCostsTwoCards) {
    Fin fin;
    MesaDePrueba mesa;
    const struct {
        const char* caso;
        int seat;      // the seat laying its next to last card
        int nivelSeat; // its level; the other computer seats are at level 100 or 0 alike
        int nivelOtros;
        bool pulsaAntes;   // the person presses "Pumba" at the own turn
        bool pulsaDespues; // the person presses "Pumba" when the seat is left with one card
        int cartas;        // cards of the seat after the turn
        const char* frase; // what the seat says after its card
    } casos[] = {
        {"the person forgets and is caught", 4, 100, 100, false, false, 3, ""},
        {"the person says it", 4, 100, 100, true, false, 1, ""},
        {"a computer seat says it", 1, 100, 100, false, false, 1, "Pumba"},
        {"a computer seat forgets, nobody watches", 1, 0, 0, false, false, 1, ""},
        {"a computer seat forgets, the person catches it", 1, 0, 0, false, true, 3, ""},
    };
    for (const auto& c : casos) {
        // The seat holds the 6 of copas and the 5 of oros, the only card it may lay.
        Posicion p{4,
                   {OROS, 4},
                   {{},
                    {{BASTOS, 3}, {BASTOS, 4}, {BASTOS, 5}},
                    {{BASTOS, 6}, {BASTOS, 7}, {BASTOS, 12}},
                    {{ESPADAS, 3}, {ESPADAS, 4}, {ESPADAS, 6}},
                    {{ESPADAS, 7}, {ESPADAS, 11}, {ESPADAS, 12}}},
                   {},
                   {},
                   c.seat == 1 ? 4 : 3};
        p.manos[c.seat] = {{COPAS, 6}, {OROS, 5}};
        PonPosicion(p);
        for (int s = 1; s <= 3; ++s) NivelJugador[s] = c.nivelOtros;
        NivelJugador[c.seat] = c.nivelSeat;
        NivelJugador[4] = 100;
        ControlJugador[4] = CONTROL_MANUAL;
        CartasVisibles[4] = CARA_VISIBLE;
        ColocaPulsador(4, PULSADOR_PUMBA);
        const CajaImagen& boton = Pic_Pulsador[PULSADOR_PUMBA];
        PersonaGuionada = [&] {
            if (FaseJuego == FASE_PUMBA_RESPUESTA && JugadorActual != 4 && c.pulsaDespues &&
                NumCartas[JugadorActual][1] == 1)
                RatonPulsado(boton.X + 5, boton.Y + 5, 1, false);
            if (!EsperandoPersona) return;
            if (JugadorActual != 4) {
                EsperandoPersona = false;
                return;
            }
            if (c.pulsaAntes) RatonPulsado(boton.X + 5, boton.Y + 5, 1, false);
            PosicionCarta(4, 2, 2);
            RatonMovido(CartaX + 60, CartaY + 40, false);
            RatonPulsado(CartaX + 60, CartaY + 40, 1, false);
            if (EsperandoPersona) {
                ADD_FAILURE() << c.caso << ": the click laid no card";
                EsperandoPersona = false;
            }
        };
        // A chance under 0.75: a seat at level 100 watches the others' word.
        SemillaBajo(0.75);
        const QString traza = Turno();
        EXPECT_EQ(NumCartas[c.seat][1], c.cartas) << c.caso << ": " << traza.toStdString();
        EXPECT_EQ(FraseJugador[c.seat][1], c.frase) << c.caso;
    }
}

// The person lays a Sota by a click and names the suit on the popup that opens over the hand.
// A person's click lasts: its release reaches the table while the card is still on its way, and
// must not choose a suit on a popup that wasn't open yet.
TEST(Pumba, ThePersonNamesTheSuitOfASotaOnThePopup) {
    Fin fin;
    MesaDePrueba mesa;
    PonPosicion({4,
                 {OROS, 5},
                 {{},
                  {{BASTOS, 3}, {BASTOS, 4}},
                  {{BASTOS, 6}, {BASTOS, 7}},
                  {{ESPADAS, 3}, {ESPADAS, 4}},
                  {{COPAS, 3}, {COPAS, 4}, {ESPADAS, 10}}},
                 {},
                 {},
                 3});
    ControlJugador[4] = CONTROL_MANUAL;
    CartasVisibles[4] = CARA_VISIBLE;
    constexpr int ALTO_LINEA = 18;
    int x = 0, y = 0, linea = 0;
    bool soltar = false;
    PersonaGuionada = [&] {
        if (soltar) { // the release of the click on the card comes with the next events
            soltar = false;
            RatonSoltado(x, y, 1);
        }
        if (EligiendoOpcion && Pic_SelOpciones.Visible) {
            // The line under the card's click is left alone: another suit is chosen.
            const int bajo = (y - Pic_SelOpciones.Y + 16) / ALTO_LINEA;
            linea = bajo == 2 ? 4 : 2;
            const int yLinea = Pic_SelOpciones.Y + linea * ALTO_LINEA - 7;
            RatonPulsado(Pic_SelOpciones.X + 30, yLinea, 1, false);
            RatonSoltado(Pic_SelOpciones.X + 30, yLinea, 1);
            return;
        }
        if (!EsperandoPersona) return;
        PosicionCarta(4, 3, 3);
        x = CartaX + 60;
        y = CartaY + 40;
        RatonMovido(x, y, false);
        RatonPulsado(x, y, 1, false);
        soltar = true;
    };
    const QString traza = Turno();
    ASSERT_NE(linea, 0) << "the popup opened";
    EXPECT_EQ(traza, linea == 2 ? "4:10E[Palo Copas]" : "4:10E[Palo Bastos]");
    EXPECT_EQ(PaloTriunfo, linea == 2 ? COPAS : BASTOS);
}

// The keys of the computer player, worked out by hand for two seats on the 4 of oros: the seat
// holds the As and the 6 of oros, the 4 of copas and the 2 of bastos; the other seat the 3 of
// oros and the 5 and 6 of espadas. At two cards an As with company wins the hand and goes first.
TEST(Pumba, TheComputerPlayerScoresTheCardsAsWorkedOutByHand) {
    MesaDePrueba mesa;
    const struct {
        std::vector<Carta> mano;
        std::vector<std::pair<int, int>> lista; // position, score, best first
    } casos[] = {
        // As: 22 for itself and its company, -25 for the oros it keeps, +6 for its value; the
        // 6: 12 low value, -16 for the other seat's oros, +6; the 4 of copas: 8, +8 for its
        // value, -10 alone in its suit; the Dos: 20 with two seats, -12, +6, -10.
        {{{OROS, 1}, {OROS, 6}, {COPAS, 4}, {BASTOS, 2}}, {{3, 6}, {4, 4}, {1, 3}, {2, 2}}},
        {{{OROS, 1}, {OROS, 6}}, {{1, 200 - 50 + 6}, {2, 12 - 16 + 6}}},
    };
    for (const auto& c : casos) {
        PonPosicion({2, {OROS, 4}, {{}, c.mano, {}, {{OROS, 3}, {ESPADAS, 5}, {ESPADAS, 6}}}});
        JugadorActual = 1;
        AzarJugada = 0.99;
        EligePumba();
        ASSERT_EQ(NumCandidatas, int(c.lista.size()));
        for (int i = 1; i <= NumCandidatas; ++i) {
            EXPECT_EQ(Candidatas[i][CAND_POSICION], c.lista[i - 1].first) << i;
            EXPECT_EQ(Candidatas[i][CAND_CLAVE], c.lista[i - 1].second) << i;
        }
        EXPECT_EQ(CartaElegida, c.lista[0].first);
        EXPECT_EQ(PaloElegidoSota, OROS) << "the seat's strongest suit";
    }
    PartidaViva = ManoViva = false;
}

// A hand is closed when nothing can follow the card just laid; the seat holding the fewest points
// wins it and takes 5 off.
TEST(Pumba, TheEndOfAHandCountsThePointsLeft) {
    Fin fin;
    MesaDePrueba mesa;
    for (int s = 1; s <= 4; ++s) NombreJugador[s] = QStringLiteral("J%1").arg(s);
    // Every oros, every Rey, every Dos and every Sota is out but the Rey of oros.
    std::vector<Carta> jugadas;
    for (int v : {1, 2, 3, 4, 5, 6, 7, 10}) jugadas.push_back({OROS, v});
    for (int p : {COPAS, ESPADAS, BASTOS})
        for (int v : {12, 2, 10}) jugadas.push_back({p, v});
    PonPosicion({3,
                 {OROS, 11},
                 {{},
                  {{OROS, 12}, {COPAS, 3}, {COPAS, 4}},
                  {{BASTOS, 3}, {BASTOS, 4}},
                  {{ESPADAS, 5}, {ESPADAS, 6}}},
                 {},
                 jugadas,
                 3});
    EXPECT_EQ(Turno().toStdString(), "1:12O #");
    MensajesVistos.clear();
    FinalManoPumba();
    ASSERT_FALSE(MensajesVistos.empty());
    EXPECT_EQ(MensajesVistos.back().Texto.toStdString(),
              "Se ha cerrado la mano.\r\n\r\nJ2 : 7 puntos.\r\nJ3 : 11 puntos.\r\n\r\n"
              "Ha ganado la mano J1. Se descuenta 5 puntos.");
    EXPECT_EQ(RegistroManos[1].Resultado[1], "-5");
    EXPECT_EQ(RegistroManos[1].Resultado[3], "11");
    EXPECT_EQ(RegistroManos[1].Detalle[1], "3 4 ");
    EXPECT_EQ(RegistroManos[1].Gana[1][1], 1);
    EXPECT_EQ(PasoSentidoPumba, PasoSentido);
    EXPECT_FALSE(ManoViva);
}

// Whole automatic matches: each hand has one winner, at -5; a seat that has reached the limit
// sits the next hands out with 0; the match ends when one seat alone is under the limit.
TEST(Pumba, AutomaticMatchesEndWithTheLastSeatUnderTheLimit) {
    Fin fin;
    MesaDePrueba mesa;
    JuegoActual = JUEGO_PUMBA;
    PonJuegoPorDefecto();
    ParametrosJuego();
    ColocaMazo();
    for (int s = 1; s <= 4; ++s) ControlJugador[s] = CONTROL_AUTOMATICO;
    PausasACero = VuelosOmitidos = true;
    ContinuarManual = false;
    PersonaGuionada = [] { EsperandoPersona = false; };
    for (unsigned semilla = 1; semilla <= 6; ++semilla) {
        NumJugadores = 2 + semilla % 3;
        for (int s = 1; s <= 4; ++s)
            EstadoJugador[s] = s <= NumJugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        SemillaFija = semilla;
        RespuestasGuionadas.assign(2, false);
        NuevaPartida();
        int total[5] = {};
        for (int m = 1; m <= NumeroMano; ++m) {
            const RegistroMano& r = RegistroManos[m];
            int ganadores = 0;
            for (int s = 1; s <= NumJugadores; ++s) {
                const bool fuera = total[s] >= LimitePartida;
                ganadores += r.Gana[s][1];
                if (r.Gana[s][1] == 1) EXPECT_EQ(r.Resultado[s], "-5");
                if (fuera) EXPECT_EQ(r.Resultado[s], "0") << "a seat out of the match";
                total[s] += r.Resultado[s].toInt();
            }
            EXPECT_EQ(ganadores, 1) << "hand " << m;
        }
        int enPie = 0;
        for (int s = 1; s <= NumJugadores; ++s) enPie += total[s] < LimitePartida;
        EXPECT_EQ(enPie, 1) << "seed " << semilla;
        EXPECT_LT(total[GanadorPartida], LimitePartida);
    }
    SemillaFija = 0;
}

// A hand left with the sense turned round is dealt again, on resuming, by the seat that led it:
// the file moves the leader back in the sense of the match.
TEST(Pumba, APostponedReversedHandResumesWithTheSameLeader) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_PUMBA;
    PonJuegoPorDefecto();
    PartidaViva = ManoViva = true;
    NumeroMano = 3;
    JugadorMano = 2;
    PasoSentido = 1;
    PasoSentidoPumba = -1;
    for (int s = 1; s <= 4; ++s) JuegaMano[s] = true;
    PreparaPosponer();
    GrabaJuego();
    QFile fichero(mesa.Ruta("TRF5932.INI"));
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    const QString linea1 = QString::fromLatin1(fichero.readLine()).mid(1);
    EXPECT_EQ(linea1.mid(110, 1).toInt(), 1) << "seat 2 led; the next hand turns to it from 1";
    PartidaViva = ManoViva = false;
}

// Level matters: two seats, one at level 100 and one at level 0, of one character, taking the
// seats in turn from match to match. If the level did nothing, each would win half the hands,
// with a standard error of 0.5 / sqrt(hands), 2.5 % over 400 hands; level 100 wins about 69 %
// (the bench measures it over 1,800), and the test asks for four standard errors over the half.
TEST(Pumba, LevelOneHundredWinsMoreHandsThanLevelZero) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const ManosDeNivel r = ManosGanadasPorNivel(JUEGO_PUMBA, 2, 400);
    const double cota = 0.5 + 4 * 0.5 / std::sqrt(double(r.Manos));
    EXPECT_GT(double(r.Ganadas) / r.Manos, cota) << r.Ganadas << " of " << r.Manos;
    std::printf("[          ] level 100 wins %d of %d hands\n", r.Ganadas, r.Manos);
}
