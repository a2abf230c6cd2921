// Figures of Tute and Brisca: automatic hands per second at the top speed, drawn on a table
// without a window, and the worst time of the end-game search for each game and seat count.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

namespace {

void PreparaMesaSinVentana(const QString& carpeta) {
    // The decks are read from the working folder, as at the table.
    for (const char* hoja : {"Baraja01.jpg", "Baraja02.jpg"})
        QFile::copy(QStringLiteral(TRUFAL_SOURCE_DIR "/assets/") + hoja, carpeta + "/" + hoja);
    CarpetaTrabajo = carpeta + "/";
    CarpetaPrograma = QStringLiteral(TRUFAL_SOURCE_DIR "/assets/");
    AnchoVentana = 1024;
    AltoVentana = 768;
    PreparaMesa();
    PreparaBotonera();
    MensajesGuionados = true;
    FinPrograma = [] { PartidaViva = false; };
}

void SeatsAutomaticos(int jugadores) {
    NumJugadores = jugadores;
    for (int s = 1; s <= 4; ++s) {
        NombreJugador[s] = QStringLiteral("Jugador%1").arg(s);
        EstadoJugador[s] = s <= jugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        ControlJugador[s] = CONTROL_AUTOMATICO;
        CartasVisibles[s] = CARA_OCULTA;
        NivelJugador[s] = 100;
        CaracterJugador[s] = 2;
    }
}

// Automatic matches of the game until that many hands have been played; hands per second.
double ManosPorSegundo(int juego, int jugadores, int manos) {
    JuegoActual = juego;
    SeatsAutomaticos(jugadores);
    ParametrosJuego();
    CargaBaraja();
    ColocaMazo();
    ColocaTriunfo();
    VelocidadJuego = 100;
    PausasACero = true;
    ContinuarManual = false;
    TurnoSalida = 1;
    ModoReparto = 1;
    ModalidadPareja = 1;
    LimitePartida = 5;
    int jugadas = 0;
    PersonaGuionada = [] { EsperandoPersona = false; };
    QElapsedTimer reloj;
    reloj.start();
    while (jugadas < manos) {
        NuevaPartida();
        jugadas += NumeroMano;
        RespuestasGuionadas.clear();
        MensajesVistos.clear();
    }
    return jugadas / (reloj.nsecsElapsed() / 1e9);
}

void DaMano(int seat, const int (*cartas)[2], int n) {
    for (int p = 1; p <= n; ++p) {
        CartasJugador[seat][1][p][CAMPO_PALO] = cartas[p - 1][0];
        CartasJugador[seat][1][p][CAMPO_VALOR] = cartas[p - 1][1];
    }
    NumCartas[seat][1] = n;
}

// The longest search the table allows: the most cards in hand with an empty stock, and each
// seat holding a suit of its own, so that no seat is ever bound and every line is legal.
double PeorSimulacion(int juego, int jugadores, int cartas, int repeticiones) {
    JuegoActual = juego;
    SeatsAutomaticos(jugadores);
    ParametrosJuego();
    CartasEnMazo = 0;
    PaloTriunfo = 1;
    JugadorSalida = 1;
    ModalidadPareja = 1;
    for (int s = 1; s <= 4; ++s) TantosJugador[s][1] = 0;
    const int valores[] = {1, 3, 12, 11, 10, 7, 6, 5, 4};
    for (int s = 1; s <= jugadores; ++s) {
        int mano[12][2];
        for (int p = 0; p < cartas; ++p) {
            mano[p][0] = s;
            mano[p][1] = valores[p];
        }
        DaMano(s, mano, cartas);
    }
    QElapsedTimer reloj;
    reloj.start();
    for (int r = 0; r < repeticiones; ++r) SimulaFinal();
    return reloj.nsecsElapsed() / 1e6 / repeticiones;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir carpeta;
    PreparaMesaSinVentana(carpeta.path());

    std::printf("Búsqueda del final (SimulaFinal), peor caso, ms por búsqueda:\n");
    const struct {
        int juego, jugadores, cartas;
        const char* nombre;
    } casos[] = {{JUEGO_TUTE, 2, 5, "Tute"},     {JUEGO_TUTE, 3, 4, "Tute"},
                 {JUEGO_TUTE, 4, 3, "Tute"},     {JUEGO_BRISCA, 2, 3, "Brisca"},
                 {JUEGO_BRISCA, 3, 3, "Brisca"}, {JUEGO_BRISCA, 4, 3, "Brisca"}};
    for (const auto& c : casos)
        std::printf("  %-6s %d jugadores, %d cartas: %10.3f ms\n", c.nombre, c.jugadores, c.cartas,
                    PeorSimulacion(c.juego, c.jugadores, c.cartas, 5));

    const int manos = argc > 1 ? std::atoi(argv[1]) : 40;
    std::printf("Manos automáticas por segundo (pausas a cero, mesa sin ventana):\n");
    for (int jugadores = 2; jugadores <= 4; ++jugadores) {
        std::printf("  Tute   %d jugadores: %8.1f\n", jugadores,
                    ManosPorSegundo(JUEGO_TUTE, jugadores, manos));
        std::printf("  Brisca %d jugadores: %8.1f\n", jugadores,
                    ManosPorSegundo(JUEGO_BRISCA, jugadores, manos));
    }
    PersonaGuionada = nullptr;
    return 0;
}
