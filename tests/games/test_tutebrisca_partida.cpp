// Whole matches of Tute and Brisca at a table without a window: automatic seats playing to the
// end, the person laying cards with the mouse, the exchange of the trump, the last draws, the
// songs and the message and record of the end of a hand.
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Partida.h"
#include "games/tutebrisca/Reglas.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"

#include <QRegularExpression>
#include <algorithm>
#include <cstdio>
#include "support/ManosTuteBrisca.h"

#include <gtest/gtest.h>

namespace {

int Vistos(const QString& titulo) {
    int n = 0;
    for (const auto& m : MensajesVistos) n += m.Titulo == titulo;
    return n;
}

// A match laid out as the table lays it: the game's deck and places, every seat the computer's
// unless said otherwise, no pauses, and the big button pressed at the end of each hand.
// Each kind of match of these tests is dealt from its own fixed seed: the same cards every run.
void PreparaPartida(int juego, int jugadores, int pareja = 1) {
    SemillaFija = static_cast<unsigned>(juego * 100 + jugadores * 10 + pareja);
    JuegoActual = juego;
    NumJugadores = jugadores;
    for (int s = 1; s <= 4; ++s) {
        EstadoJugador[s] = s <= jugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        ControlJugador[s] = CONTROL_AUTOMATICO;
    }
    ModalidadPareja = pareja;
    ParametrosJuego();
    ColocaMazo();
    ColocaTriunfo();
    PausasACero = true;
    ContinuarManual = false;
    PersonaGuionada = [] { EsperandoPersona = false; };
}

struct Fin {
    ~Fin() {
        PausasACero = false;
        SemillaFija = 0;
    }
};

} // namespace

// Every hand adds up: the card points of the deck (and the last trick in Tute), and the songs
// on top in Tute, 20 each and 40 for the trump suit; one side takes each hand, and the match
// ends when a side reaches the hands asked for.
TEST(TuteBriscaPartida, AutomaticMatchesAddUpAndEndAtTheLimit) {
    Fin fin;
    const struct {
        int juego, jugadores, pareja;
    } casos[] = {{JUEGO_BRISCA, 2, 1}, {JUEGO_BRISCA, 3, 1}, {JUEGO_BRISCA, 4, 1},
                 {JUEGO_BRISCA, 4, 2}, {JUEGO_TUTE, 2, 1},   {JUEGO_TUTE, 3, 1},
                 {JUEGO_TUTE, 4, 1},   {JUEGO_TUTE, 4, 2}};
    for (const auto& c : casos) {
        MesaDePrueba mesa;
        PreparaPartida(c.juego, c.jugadores, c.pareja);
        LimitePartida = 2;
        NuevaPartida();
        const QString caso = QStringLiteral("%1 %2 %3").arg(c.juego).arg(c.jugadores).arg(c.pareja);
        ASSERT_EQ(Vistos("Final de Partida"), 1) << caso.toStdString();
        EXPECT_EQ(Vistos("Final de la mano"), NumeroMano) << caso.toStdString();
        EXPECT_EQ(JuegosGanados[GanadorPartida], 2);
        int ganadas = 0;
        for (int mano = 1; mano <= NumeroMano; ++mano) {
            const RegistroMano& r = RegistroManos[mano];
            int tantos = 0, acuses = 0, ganadores = 0, marcado = 0;
            bool tute = false;
            for (int s = 1; s <= c.jugadores; ++s) {
                tantos += r.Resultado[s].toInt();
                acuses += r.Extra[s];
                ganadores += r.Gana[s][1];
                if (r.Gana[s][1] != 0) marcado = s;
                tute = tute || r.Detalle[s].startsWith("Tute de ");
            }
            // One mark a hand; in pairs it stands on seat 1 or 2, the number of the side.
            EXPECT_EQ(ganadores, 1) << caso.toStdString() << " mano " << mano;
            if (c.pareja == 2) EXPECT_LE(marcado, 2) << caso.toStdString() << " mano " << mano;
            if (c.juego == JUEGO_BRISCA) {
                EXPECT_EQ(tantos, 120) << caso.toStdString() << " mano " << mano;
                EXPECT_EQ(acuses, 0);
            } else if (!tute) {
                const int cantes = tantos - 130;
                EXPECT_TRUE(cantes == 20 * acuses || cantes == 20 * acuses + 20)
                    << caso.toStdString() << " mano " << mano << ": " << tantos << " tantos, "
                    << acuses << " acuses";
            }
        }
        for (int s = 1; s <= 4; ++s) ganadas += JuegosGanados[s];
        EXPECT_EQ(ganadas, NumeroMano) << caso.toStdString();
        EXPECT_FALSE(PartidaViva);
    }
}

// The person at seat 4 plays Tute bound from the first trick, and Brisca: a click on a card
// the rule forbids is not taken, a click on a legal card plays it. At each turn the pane
// offers the tutor (text 17) or the rules (text 15) by the turn's chance, the tutor more often
// in Tute.
TEST(TuteBriscaPartida, ThePersonLaysOnlyLegalCardsWithTheMouse) {
    Fin fin;
    for (const int juego : {JUEGO_TUTE, JUEGO_BRISCA}) {
        MesaDePrueba mesa;
        PreparaPartida(juego, 4);
        ControlJugador[4] = CONTROL_MANUAL;
        CartasVisibles[4] = CARA_VISIBLE;
        ObligacionAsistir = 2;
        LimitePartida = 3; // turns enough for chances between the two games' limits
        VentanaInformacion = 1;
        const double limite = juego == JUEGO_TUTE ? 0.5 : 0.4;
        int turnos = 0, rechazos = 0, jugadas = 0, tutor = 0, reglas = 0;
        PersonaGuionada = [&] {
            if (!EsperandoPersona) return;
            if (!ManoViva || JugadorActual != 4) {
                EsperandoPersona = false;
                return;
            }
            ++turnos;
            if (CodigoJugada != 2 && CodigoJugada != 4 && CodigoJugada != 7) {
                const bool alTutor = AzarJugada < limite;
                EXPECT_EQ(TemaAyuda, alTutor ? 2179 : 3100) << AzarJugada;
                ++(alTutor ? tutor : reglas);
            }
            const int n = NumCartas[4][1];
            // The person first turns the hand round: the legal cards follow their new places.
            auto& mano = CartasJugador[4][1];
            std::reverse(&mano[1], &mano[n + 1]);
            RehaceCandidatas(4);
            for (int pos = 1; pos <= n; ++pos) {
                bool enLista = false;
                for (int i = 1; i <= NumCandidatas; ++i)
                    enLista = enLista || Candidatas[i][CAND_POSICION] == pos;
                EXPECT_EQ(enLista, EsCartaLegal(4, pos)) << "position " << pos;
            }
            for (int pos = 1; pos <= n; ++pos) {
                PosicionCarta(4, pos, n);
                const int x = CartaX + 3, y = CartaY + 40;
                bool legal = false;
                for (int i = 1; i <= NumCandidatas; ++i)
                    legal = legal || Candidatas[i][CAND_POSICION] == pos;
                RatonMovido(x, y, false);
                RatonPulsado(x, y, 1, false);
                if (!legal) {
                    EXPECT_EQ(CursorActual, 23);
                    EXPECT_TRUE(EsperandoPersona) << "an illegal card was taken";
                    ++rechazos;
                    continue;
                }
                EXPECT_FALSE(EsperandoPersona);
                EXPECT_EQ(CartaElegida, pos);
                ++jugadas;
                return;
            }
        };
        NuevaPartida();
        EXPECT_GT(turnos, 0);
        EXPECT_EQ(jugadas, turnos) << "each turn of the person ended with a legal card";
        EXPECT_GT(tutor, 0);
        EXPECT_GT(reglas, 0);
        std::printf("[          ] clics rechazados: %d en %d turnos\n", rechazos, turnos);
        EXPECT_EQ(Vistos("Final de Partida"), 1);
    }
}

// The seat that took the last trick exchanges the 7 for the turned-up card; the person does it
// with a click on the stock, under pointer 41.
TEST(TuteBriscaPartida, ASevenTakesTheTurnedUpCardFromAClickOnTheStock) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaPartida(JUEGO_BRISCA, 2);
    EstadoJugador[2] = ESTADO_DESACTIVADO;
    EstadoJugador[4] = ESTADO_ACTIVADO;
    ControlJugador[4] = CONTROL_MANUAL;
    CartasVisibles[4] = CARA_VISIBLE;
    ColocaTriunfo();
    MazoX = TriunfoX;
    MazoY = TriunfoY;
    NumeroMano = 1;
    PartidaViva = ManoViva = true;
    FaseJuego = 4;
    PaloTriunfo = COPAS;
    ValorTriunfo = 1; // the As lies turned up: the 7 takes it
    MuestraTriunfo = true;
    CartasEnMazo = 10;
    DaMano(4, {{OROS, 4}, {COPAS, 7}, {BASTOS, 12}});
    DaMano(1, {{ESPADAS, 4}, {ESPADAS, 5}, {ESPADAS, 6}});
    GanadorBaza = 4;
    JugadorActual = 4;
    JugadorSalida = 1;
    CartasEnBaza = 2;
    ASSERT_EQ(HallaCodigoCambio(4), 7);

    PersonaJugando = true;
    EsperandoPersona = true;
    RatonMovido(MazoX + 50, MazoY + 70, false);
    EXPECT_EQ(CursorActual, 41);
    RatonPulsado(MazoX + 50, MazoY + 70, 1, false);
    EXPECT_TRUE(PideCambio);
    EXPECT_FALSE(EsperandoPersona);
    CambiaPinta();
    EXPECT_EQ(ValorTriunfo, 7);
    EXPECT_EQ(PaloTriunfo, COPAS);
    EXPECT_EQ(CodigoJugada, 0);
    EXPECT_TRUE(TieneCarta(4, COPAS, 1));
    EXPECT_EQ(PosicionHallada, 2) << "the As takes the place of the 7";
    EXPECT_FALSE(TieneCarta(4, COPAS, 7));
    // With no more than a round of draws left in the stock, Brisca allows no exchange.
    CartasEnMazo = 2;
    DaMano(4, {{OROS, 4}, {COPAS, 4}, {BASTOS, 12}});
    ValorTriunfo = 2;
    EXPECT_EQ(HallaCodigoCambio(4), 0);
    PartidaViva = ManoViva = false;
}

// The last card of the stock goes to one seat and the turned-up card to the next; then nothing
// is left to draw.
TEST(TuteBriscaPartida, TheTurnedUpCardIsTheLastOneDrawn) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaPartida(JUEGO_BRISCA, 4);
    for (auto& c : Baraja) c[1] = c[2] = 0;
    PosicionMazo = 40;
    Baraja[40][CAMPO_PALO] = BASTOS;
    Baraja[40][CAMPO_VALOR] = 3;
    CartasEnMazo = 1;
    PaloTriunfo = OROS;
    ValorTriunfo = 12;
    MuestraTriunfo = true;
    for (int s = 1; s <= 4; ++s) DaMano(s, {{ESPADAS, s + 3}, {COPAS, s + 3}});
    GanadorBaza = 3;
    RobanCartas();
    EXPECT_TRUE(TieneCarta(3, BASTOS, 3));
    EXPECT_TRUE(TieneCarta(4, OROS, 12)) << "the turned-up Rey goes to the seat after";
    EXPECT_EQ(NumCartas[1][1], 2);
    EXPECT_EQ(NumCartas[2][1], 2);
    EXPECT_EQ(CartasEnMazo, 0);
    EXPECT_FALSE(MuestraTriunfo);
    RobanCartas(); // an empty stock gives nothing
    EXPECT_EQ(NumCartas[1][1], 2);
}

// After a trick of Tute the winner sings the suit where it holds fewest cards (the trump on equal
// counts, for 40), and in pairs its partner sings too, in the same step.
TEST(TuteBriscaPartida, TheWinnerAndItsPartnerSingAfterTheTrick) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaPartida(JUEGO_TUTE, 4, 2);
    for (auto& s : AcuseCantado)
        for (auto& p : s) p = false;
    for (auto& s : TantosJugador) s[1] = 0;
    PaloTriunfo = OROS;
    NumeroBaza = 3;
    TantosDeBaza[3] = 5;
    TuteCantado = false;
    DaMano(1, {{COPAS, 11}, {COPAS, 12}, {OROS, 11}, {OROS, 12}, {BASTOS, 1}});
    DaMano(3, {{ESPADAS, 11}, {ESPADAS, 12}, {BASTOS, 4}});
    DaMano(2, {{COPAS, 1}});
    DaMano(4, {{COPAS, 3}});
    GanadorBaza = 1;
    CantaAcuses();
    EXPECT_TRUE(AcuseCantado[1][OROS]);
    EXPECT_FALSE(AcuseCantado[1][COPAS]) << "one song a trick";
    EXPECT_TRUE(AcuseCantado[3][ESPADAS]);
    EXPECT_EQ(TantosJugador[1][1], 40);
    EXPECT_EQ(TantosJugador[3][1], 20);
    EXPECT_EQ(TantosDeBaza[3], 65);
    EXPECT_EQ(HistoriaBazas[3][1][HB_CANTE], OROS);
    EXPECT_EQ(HistoriaBazas[3][3][HB_CANTE], ESPADAS);
    // The next trick won, copas can be sung; oros can't be sung twice.
    NumeroBaza = 4;
    CantaAcuses();
    EXPECT_TRUE(AcuseCantado[1][COPAS]);
    EXPECT_EQ(TantosJugador[1][1], 60);
    EXPECT_FALSE(TuteCantado);
}

// The message of the end of a hand: the tantos of each seat from the leader round, and the
// winner; on equal tantos the seat that took a trick last; and the record of the hand.
TEST(TuteBriscaPartida, TheEndOfAHandTellsTheTantosAndKeepsTheRecord) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaPartida(JUEGO_BRISCA, 3);
    for (int s = 1; s <= 3; ++s) NombreJugador[s] = QStringLiteral("J%1").arg(s);
    NumeroMano = 2;
    PartidaViva = true;
    JugadorMano = 2;
    for (auto& s : AcuseCantado)
        for (auto& p : s) p = false;
    TantosJugador[1][1] = 50;
    TantosJugador[2][1] = 20;
    TantosJugador[3][1] = 50;
    NumeroBaza = 3;
    GanadorDeBaza[1] = 3;
    GanadorDeBaza[2] = 1;
    GanadorDeBaza[3] = 2;
    GanadorBaza = 2;
    TuteCantado = false;
    for (auto& j : JuegosGanados) j = 0;
    MensajesVistos.clear();
    FinalManoTB();
    EXPECT_EQ(GanadorMano, 1) << "of the tied seats, seat 1 took a trick last";
    ASSERT_EQ(Vistos("Final de la mano"), 1);
    const MensajeVisto& m = MensajesVistos.back();
    EXPECT_EQ(m.Texto.toStdString(), "J2 : 20 tantos.\r\nJ3 : 50 tantos.\r\nJ1 : 50 tantos.\r\n\r\n"
                                     "Ha ganado la mano J1");
    EXPECT_EQ(m.Lineas, 5);
    EXPECT_EQ(JuegosGanados[1], 1);
    EXPECT_EQ(RegistroManos[2].Gana[1][1], 1);
    EXPECT_EQ(RegistroManos[2].Gana[3][1], 0);
    EXPECT_EQ(RegistroManos[2].Resultado[3], "50");
    EXPECT_FALSE(ManoViva);
    EXPECT_EQ(FaseJuego, 9);

    // A Tute sung by seat 4 (the person) in Tute.
    PreparaPartida(JUEGO_TUTE, 4);
    NombreJugador[4] = "Ana";
    PartidaViva = true;
    DaMano(4, {{OROS, 12}, {COPAS, 12}, {ESPADAS, 12}, {BASTOS, 12}, {OROS, 1}});
    CantaTute(4);
    EXPECT_TRUE(TuteCantado);
    MensajesVistos.clear();
    FinalManoTB();
    EXPECT_EQ(GanadorMano, 4);
    EXPECT_EQ(MensajesVistos.back().Texto,
              "Se ha cantado Tute de Reyes\r\n\r\nAna, has ganado la mano. ");
    EXPECT_EQ(RegistroManos[2].Detalle[4], "Tute de Reyes");
    PartidaViva = false;
}

// The winner of the last trick of an earlier match can't exchange in the first trick of a new
// one: in the first hand nobody has taken a trick yet.
TEST(TuteBriscaPartida, ANewMatchStartsWithNobodyToExchange) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaPartida(JUEGO_BRISCA, 2);
    ControlJugador[1] = CONTROL_MANUAL;
    LimitePartida = 1;
    GanadorBaza = 1; // left over from a match before
    int vistos = 0;
    PersonaGuionada = [&] {
        if (ManoViva && NumeroBaza == 1 && ++vistos == 1) {
            EXPECT_EQ(GanadorBaza, 0);
            EXPECT_EQ(CodigoJugada, 0);
        }
        if (ManoViva && NumeroBaza > 1) PartidaViva = false;
        EsperandoPersona = false;
    };
    NuevaPartida();
    EXPECT_GT(vistos, 0);
}

// Tute for three or four: the trump is the last card dealt, whoever the person then chooses to
// lead. With the leader chosen after the deal the trump stays where the deal put it.
TEST(TuteBriscaPartida, TheTrumpForThreeOrFourIsTheLastCardDealt) {
    Fin fin;
    for (int jugadores : {3, 4})
        for (int elegido = 1; elegido <= jugadores; ++elegido) {
            MesaDePrueba mesa;
            PreparaPartida(JUEGO_TUTE, jugadores);
            TurnoSalida = 2;
            LimitePartida = 1;
            bool visto = false;
            PersonaGuionada = [&] {
                if (EligiendoMano) {
                    JugadorBajoPuntero = elegido;
                    EligiendoMano = false;
                    return;
                }
                if (ManoViva && !visto && PaloTriunfo != 0) {
                    visto = true;
                    // The value may already have been exchanged for the seven or the two.
                    EXPECT_EQ(PaloTriunfo, Baraja[PosicionMazo - 1][CAMPO_PALO])
                        << jugadores << " players, leader " << elegido;
                }
                EsperandoPersona = false;
            };
            ContinuarManual = true; // a wait at every turn, where the trump is looked at
            NuevaPartida();
            EXPECT_TRUE(visto) << jugadores << " " << elegido;
        }
}

// In pairs the end of each hand names the two sides with the points each took, 120 between
// them in Brisca, and the side with more is told it won, in the second person when it is the
// person's side (seats 2 and 4).
TEST(TuteBriscaPartida, PairsHearTheirSidesPointsAndWhoWonTheHand) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaPartida(JUEGO_BRISCA, 4, 2);
    LimitePartida = 3;
    NuevaPartida();
    const QRegularExpression lineas("Jugador1 y Jugador3 : (\\d+) tantos\\.\\s*"
                                    "Jugador2 y Jugador4 : (\\d+) tantos\\.");
    int manos = 0, nuestras = 0;
    for (const auto& m : MensajesVistos) {
        if (m.Titulo != "Final de la mano") continue;
        ++manos;
        const auto hallado = lineas.match(m.Texto);
        ASSERT_TRUE(hallado.hasMatch()) << m.Texto.toStdString();
        const int impares = hallado.captured(1).toInt(), pares = hallado.captured(2).toInt();
        EXPECT_EQ(impares + pares, 120);
        if (impares > pares) {
            EXPECT_TRUE(m.Texto.contains("Han ganado la mano Jugador1 y Jugador3"));
        } else if (pares > impares) {
            EXPECT_TRUE(m.Texto.contains("Jugador2 y Jugador4, habéis ganado la mano."));
            ++nuestras;
        }
    }
    EXPECT_GE(manos, 3);
    EXPECT_GT(nuestras, 0) << "both sentences are seen";
    EXPECT_LT(nuestras, manos);
}
