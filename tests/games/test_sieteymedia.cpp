// Siete y media: totals with half points, and whole seeded matches in which the bank passes to
// the seat that sang siete y media or, when the banker is broke, to the next seat with money.
#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "platform/CajaImagen.h"

#include <vector>

#include <gtest/gtest.h>

TEST(SieteYMedia, TotalsCountFiguresAsAHalf) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_SIETEYMEDIA;
    ParametrosJuego();
    const struct {
        std::vector<int> cartas;
        double total;
        const char* texto;
    } casos[] = {
        {{10}, 0.5, "Media"},
        {{1, 12}, 1.5, "Una y media"},
        {{10, 11, 12}, 1.5, "Una y media"},
        {{7, 12}, 7.5, "Siete y media"},
        {{5, 2, 10}, 7.5, "Siete y media"},
        {{4, 3}, 7, "Siete"},
        {{7, 1}, 8, "Se ha pasado"},
        {{6, 11, 11}, 7, "Siete"},
    };
    for (const auto& c : casos) {
        NumCartas[1][1] = int(c.cartas.size());
        SeriesJugador[1] = 1;
        for (int p = 1; p <= int(c.cartas.size()); ++p) {
            CartasJugador[1][1][p][CAMPO_PALO] = 1 + p % 4;
            CartasJugador[1][1][p][CAMPO_VALOR] = c.cartas[p - 1];
        }
        EXPECT_EQ(ValorMano(1, 1), c.total);
        EXPECT_EQ(TextoTotal(1, 1), QString::fromUtf8(c.texto));
    }
}

// Over whole seeded matches the bank changes hands exactly when the table says why: a seat sang
// siete y media, or the banker ran out of money; and each match ends with one seat holding all.
TEST(SieteYMedia, TheBankPassesOnlyWhenTheTableSaysWhy) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    PinturaOmitida = true;
    int cantos = 0, quiebras = 0, cambios = 0;
    for (unsigned semilla = 1; semilla <= 30; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_SIETEYMEDIA, 4, false, [] { RestoInicial = 40; }});
        PausasACero = VuelosOmitidos = true;
        SemillaFija = semilla;
        MensajesVistos.clear();
        PersonaGuionada = [] { EsperandoPersona = false; };
        RespuestasGuionadas.assign(4, false);
        NuevaPartida();
        PersonaGuionada = nullptr;
        int avisos = 0;
        for (const auto& m : MensajesVistos) {
            if (m.Texto.contains("siete y media") && m.Texto.contains("nuevo jugador banca"))
                ++cantos, ++avisos;
            if (m.Texto.contains("banquero se ha quedado sin fondos")) ++quiebras, ++avisos;
        }
        int pasos = 0;
        for (int h = 2; h <= NumeroMano; ++h)
            if (RegistroManos[h].Sale != RegistroManos[h - 1].Sale) ++pasos;
        EXPECT_EQ(pasos, avisos) << "semilla " << semilla;
        cambios += pasos;
        ASSERT_GE(GanadorPartida, 1);
        EXPECT_EQ(RestoJugador(GanadorPartida), 4 * 40) << "semilla " << semilla;
    }
    PinturaOmitida = PausasACero = VuelosOmitidos = false;
    SemillaFija = 0;
    EXPECT_GT(cantos, 0);
    EXPECT_GT(quiebras, 0);
    EXPECT_EQ(cambios, cantos + quiebras);
}
