// The level of a computer seat shows in its results: over a few hundred automatic matches of
// Tute and of Brisca, a seat at level 100 takes clearly more than a seat at level 0.
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <QImage>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

constexpr int PARTIDAS = 3000;

// Matches of one hand between seat 1 at level 100 and seat 3 at level 0, both of middle
// character; returns the matches seat 1 won.
int GanadasDelNivelCien(int juego, int partidas) {
    MesaDePrueba mesa;
    // Nothing of these matches is looked at: the table draws nowhere, which keeps them quick.
    Pic_Mesa.Imagen = QImage();
    JuegoActual = juego;
    NumJugadores = 2;
    for (int s = 1; s <= 4; ++s) {
        EstadoJugador[s] = s == 1 || s == 3 ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        ControlJugador[s] = CONTROL_AUTOMATICO;
        CaracterJugador[s] = 2;
    }
    NivelJugador[1] = 100;
    NivelJugador[3] = 0;
    ParametrosJuego();
    ColocaMazo();
    ColocaTriunfo();
    PausasACero = true;
    ContinuarManual = false;
    LimitePartida = 1;
    PersonaGuionada = [] { EsperandoPersona = false; };
    int ganadas = 0;
    const unsigned semillaAntes = SemillaFija;
    for (int partida = 0; partida < partidas; ++partida) {
        RespuestasGuionadas.assign(1, false); // no history of these matches
        SemillaFija = 1000 + partida;         // each match its own deal, the same at every run
        NuevaPartida();
        ganadas += GanadorPartida == 1;
        MensajesVistos.clear();
    }
    PausasACero = false;
    SemillaFija = semillaAntes;
    return ganadas;
}

} // namespace

// Head to head, seat 1 at level 100 against seat 3 at level 0. Brisca shows it at once; Tute,
// where the songs weigh much, needs more matches to show it beyond doubt. Each limit lies more
// than three deviations above an even share and as far below what level 100 wins.
TEST(TuteBriscaNiveles, LevelHundredBeatsLevelZeroOverManyMatches) {
    const struct {
        int juego, partidas, minimo;
        const char* nombre;
    } casos[] = {{JUEGO_BRISCA, 300, 195, "Brisca"}, {JUEGO_TUTE, 2000, 1080, "Tute"}};
    for (const auto& c : casos) {
        const int ganadas = GanadasDelNivelCien(c.juego, c.partidas);
        std::printf("[          ] %s: nivel 100 gana %d de %d partidas (%.1f %%)\n", c.nombre,
                    ganadas, c.partidas, 100.0 * ganadas / c.partidas);
        EXPECT_GE(ganadas, c.minimo) << c.nombre;
    }
}
