// The cycle of matches and hands, played headless: the test sits in the person's chair.
#include <gtest/gtest.h>
#include <vector>

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Reloj.h"
#include "support/MesaDePrueba.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Raton.h"

namespace {

bool Visto(const QString& titulo) {
    for (const auto& m : MensajesVistos)
        if (m.Titulo == titulo) return true;
    return false;
}

// Plays the person: at every wait of the table (each turn and each end of hand), calls the step
// with the wait's number (1 for the first) and then presses "Continuar" unless the step ended
// the match.
void JuegaConGuion(std::function<void(int)> paso) {
    auto esperas = std::make_shared<int>(0);
    PersonaGuionada = [esperas, paso] {
        if (!EsperandoPersona) return;
        paso(++*esperas);
        if (PartidaViva && EsperandoPersona) PulsaContinuar();
    };
}

} // namespace

TEST(Ciclo, SpeedFactorKeepsFourDecimals) {
    const struct {
        int velocidad;
        double factor;
    } casos[] = {{0, 7.9998}, {25, 3.3749}, {50, 1.0}, {75, 0.3536}, {100, 0.0}};
    for (const auto& c : casos) EXPECT_DOUBLE_EQ(FactorVelocidad(c.velocidad), c.factor);
}

TEST(Ciclo, PauseDeliversNoEventsAndClearsItsMark) {
    MesaDePrueba mesa;
    bool entregado = false;
    QTimer::singleShot(0, [&] { entregado = true; });
    VelocidadJuego = 90;
    MarcaTiempo = Ahora();
    Pausa(20);
    EXPECT_FALSE(entregado) << "a pause must not pump events";
    EXPECT_EQ(MarcaTiempo, 0);
    QCoreApplication::processEvents();
    EXPECT_TRUE(entregado);
}

TEST(Ciclo, TheSmallBacksOfWonTricksFollowTheGameOpened) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_BRISCA;
    AbreJuego();
    QImage pequeno[6];
    for (int diseno : {2, 5}) {
        ReversoCartas = diseno;
        ReversosReducidos();
        pequeno[diseno] = Pic_ReversoRedu[1].Imagen;
    }
    ASSERT_NE(pequeno[2], pequeno[5]);
    ReversoCartas = 5; // Brisca's own backs, kept in its file
    GrabaJuego();
    ReversoCartas = 2; // the game played before used others
    ReversosReducidos();
    AbreJuego();
    EXPECT_EQ(ReversoCartas, 5);
    EXPECT_EQ(Pic_ReversoRedu[1].Imagen, pequeno[5]);
}

TEST(Ciclo, TheDrawNamesTheSeatThatGotTheFirstAceAndHandsRotate) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    AbreJuego(); // no file yet: the defaults are written and the table waits
    ASSERT_FALSE(PartidaViva);
    MensajesVistos.clear();
    int manoPrimera = 0, manoSegunda = 0;
    JuegaConGuion([&](int espera) {
        if (espera == 1) { // the first turn of the first hand
            EXPECT_EQ(NumeroMano, 1);
            EXPECT_TRUE(ManoViva);
            for (int s = 1; s <= 4; ++s) EXPECT_EQ(NumCartas[s][1], 10) << s;
            EXPECT_EQ(RegistroManos[1].Sale, NombreJugador[JugadorMano]);
            manoPrimera = JugadorMano;
        } else if (NumeroMano == 2) {
            manoSegunda = JugadorMano;
            PartidaViva = false;
        }
    });
    NuevaPartida();
    ASSERT_TRUE(Visto("Comienza la Partida"));
    const auto& sorteo = MensajesVistos[0];
    EXPECT_EQ(sorteo.Texto, "Se ha sorteado el jugador que va a comenzar la partida. Sale " +
                                NombreJugador[manoPrimera] + ".");
    int siguiente = manoPrimera;
    SiguienteJugador(siguiente);
    EXPECT_EQ(manoSegunda, siguiente);
}

TEST(Ciclo, APostponedMatchResumesAtTheHandUnderWay) {
    const std::pair<int, int> casos[] = {
        {JUEGO_BRISCA, 1}, {JUEGO_BRISCA, 3}, {JUEGO_TUTE, 1}, {JUEGO_TUTE, 3}};
    for (const auto& [juego, desde] : casos) {
        MesaDePrueba mesa;
        // A hand can end before the person's first turn (a Tute dealt): the first hand from
        // `desde` on that the person plays is the one postponed.
        int guardadaEn = 0;
        JuegoActual = juego;
        PausasACero = true;
        TurnoSalida = 1;
        int manoAlGuardar = 0;
        std::vector<int> ganadosAlGuardar;
        JuegaConGuion([&](int) {
            if (NumeroMano >= desde && ManoViva && manoAlGuardar == 0) {
                guardadaEn = NumeroMano;
                manoAlGuardar = JugadorMano;
                ganadosAlGuardar.assign(JuegosGanados, JuegosGanados + 5);
                RespuestasGuionadas.push_back(true); // yes, postpone
                PulsaBoton(8);
            }
        });
        GrabaJuego(); // a settings file, so that only the match changes below
        NuevaPartida();
        ASSERT_TRUE(Visto("Posponer la partida en curso"));

        // The file keeps the hands before the one under way, and the leader of the hand before.
        QFile fichero(mesa.Ruta("TRF" + QString::number(juego) + "32.INI"));
        ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
        const QString linea1 = QString::fromLatin1(fichero.readLine()).mid(1);
        EXPECT_EQ(linea1.mid(103, 2), "-1") << "PartidaViva";
        EXPECT_EQ(linea1.mid(107, 3).toInt(), guardadaEn - 1);
        int esperado = manoAlGuardar;
        if (guardadaEn > 1) AnteriorJugador(esperado);
        EXPECT_EQ(linea1.mid(110, 1).toInt(), esperado);
        fichero.close();

        // Next start: the same hand number, led by the same seat, with the hands won so far.
        ReiniciaEstado();
        for (int& g : JuegosGanados) g = 0;
        JuegoActual = juego;
        int manoReanudada = 0, leader = 0;
        std::vector<int> ganadosReanudada;
        JuegaConGuion([&](int) {
            manoReanudada = NumeroMano;
            leader = JugadorMano;
            ganadosReanudada.assign(JuegosGanados, JuegosGanados + 5);
            PartidaViva = false;
        });
        AbreJuego();
        EXPECT_TRUE(Visto("Continuar la partida anterior"));
        EXPECT_EQ(manoReanudada, guardadaEn);
        EXPECT_EQ(leader, manoAlGuardar);
        EXPECT_EQ(ganadosReanudada, ganadosAlGuardar);
        if (guardadaEn > 1) {
            int ganados = 0;
            for (int g : ganadosAlGuardar) ganados += g;
            EXPECT_EQ(ganados, guardadaEn - 1) << "the hands before were over";
        }
        PausasACero = false;
    }
}

TEST(Ciclo, QuitAndNewMatchAreRefusedBetweenHands) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    PartidaViva = true;
    ManoViva = false;
    EXPECT_TRUE(BotonRechazado(1));
    EXPECT_TRUE(BotonRechazado(8));
    EXPECT_TRUE(BotonRechazado(3));
    PulsaBoton(8);
    EXPECT_TRUE(MensajesVistos.empty());
    EXPECT_FALSE(QFile::exists(mesa.Ruta("TRF32.INI"))) << "nothing is written between hands";
    ManoViva = true;
    EXPECT_FALSE(BotonRechazado(8));
}

TEST(Ciclo, QuitWhileChoosingTheLeaderOnlyTellsSo) {
    MesaDePrueba mesa;
    EligiendoMano = true;
    PulsaSalir();
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos[0].Titulo, "Salir del programa");
    EXPECT_FALSE(QFile::exists(mesa.Ruta("TRF32.INI")));
    EligiendoMano = false;
}

TEST(Ciclo, ANewMatchStartedFromAWaitLeavesTheOldDriverBehind) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    int partidas = 0;
    JuegaConGuion([&](int espera) {
        if (espera == 1) {
            ++partidas;
            RespuestasGuionadas.push_back(true); // abandon it
            PulsaBoton(1);                       // runs the new match here, nested
        } else if (espera == 2) {
            ++partidas;
            EXPECT_EQ(NumeroMano, 1) << "the new match starts from its first hand";
            PartidaViva = false;
        }
    });
    NuevaPartida();
    EXPECT_EQ(partidas, 2);
    EXPECT_TRUE(Visto("Abandonar la partida en curso"));
    EXPECT_FALSE(PartidaViva);
}

TEST(Ciclo, ChinchonEndsWhenOneSeatIsLeftBelowTheLimit) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_CHINCHON;
    ParametrosJuego();
    LimitePartida = 50;
    PartidaViva = true;
    NumeroMano = 1;
    for (int s = 1; s <= 3; ++s) RegistroManos[1].Resultado[s] = "60";
    NuevaMano();
    EXPECT_FALSE(PartidaViva);
    EXPECT_FALSE(ManoViva);
    EXPECT_TRUE(MensajesVistos.empty());
}

TEST(Ciclo, BlackJackHasNoDrawAndTheChoiceOfLeaderComesFromTheMouse) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_BLACKJACK;
    JuegaConGuion([](int) { PartidaViva = false; });
    NuevaPartida();
    EXPECT_FALSE(Visto("Comienza la Partida"));

    JuegoActual = JUEGO_TUTE;
    TurnoSalida = 2;
    MensajesVistos.clear();
    int mano = 0;
    PersonaGuionada = [&] {
        if (EligiendoMano) {
            // The person points at seat 2 and clicks.
            RatonMovido(ZonaIzquierda[2] + 100, ZonaArriba[2] + 50, false);
            RatonPulsado(ZonaIzquierda[2] + 100, ZonaArriba[2] + 50, 1, false);
            return;
        }
        mano = JugadorMano;
        PartidaViva = false;
    };
    NuevaPartida();
    EXPECT_FALSE(Visto("Comienza la Partida"));
    EXPECT_EQ(mano, 2);
}

TEST(Ciclo, EndOfMatchNamesTheWinnerOrBothPartners) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    NombreJugador[2] = "Ana";
    NombreJugador[4] = "Luis";
    const struct {
        int modalidad, ganador;
        QString texto;
    } casos[] = {
        {1, 2, "\r\nHa ganado la partida Ana\r\n"},
        {1, 4, "\r\nLuis, has ganado la partida. \r\n"},
        {2, 1, "Han ganado la partida Jugador1 y Jugador3\r\n"},
        {2, 2, "Ana y Luis, habéis ganado la partida. \r\n"},
    };
    for (const auto& c : casos) {
        MensajesVistos.clear();
        RespuestasGuionadas = {false};
        ModalidadPareja = c.modalidad;
        GanadorPartida = c.ganador;
        PartidaViva = true;
        FinPartida();
        ASSERT_EQ(MensajesVistos.size(), 2u);
        EXPECT_EQ(MensajesVistos[0].Titulo, "Final de Partida");
        EXPECT_EQ(MensajesVistos[0].Texto, c.texto);
        EXPECT_EQ(MensajesVistos[1].Texto, "¿Se actualiza el Histórico de partidas?");
        EXPECT_EQ(MensajesVistos[1].Ayuda, 2193);
        EXPECT_FALSE(PartidaViva);
    }
    EXPECT_FALSE(QFile::exists(mesa.Ruta("TRF5332.HIS"))) << "the person said no";
}

TEST(Ciclo, TheHistoryTakesOneRecordOfFixedWidthPerMatch) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    ModalidadPareja = 1;
    JuegosGanados[3] = 3;
    JuegosGanados[1] = 1;
    for (int partida = 1; partida <= 2; ++partida) {
        RespuestasGuionadas = {true};
        GanadorPartida = 3;
        PartidaViva = true;
        FinPartida();
    }
    QFile fichero(mesa.Ruta("TRF5332.HIS"));
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    const QByteArray datos = fichero.readAll();
    ASSERT_EQ(datos.size(), 2 * 182);
    const QString r = QString::fromLatin1(datos.left(182));
    EXPECT_EQ(r.mid(12, 9), "Jugador3 ");
    EXPECT_EQ(r.mid(39, 5).trimmed(), "3");
    EXPECT_EQ(r.mid(54, 9), "Jugador1 ") << "losers by their figure";
    EXPECT_EQ(r.mid(81, 5).trimmed(), "1");
    EXPECT_EQ(r.mid(96, 1), "1");
}

TEST(Ciclo, AComputerSeatDoesNotHoldTheTableWithoutPausesBetweenPlays) {
    MesaDePrueba mesa;
    ContinuarManual = false;
    PartidaViva = true;
    JugadorActual = 1; // a computer seat
    bool llamado = false;
    PersonaGuionada = [&] {
        llamado = true;
        EsperandoPersona = false;
    };
    EsperaJugada();
    EXPECT_FALSE(llamado);
    EXPECT_FALSE(Pic_BotContinuar.Visible);
    JugadorActual = 4; // the person
    EsperaJugada();
    EXPECT_TRUE(llamado);
}
