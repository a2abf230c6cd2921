// The layout of the table worked out by hand for the two common screens: zones, the trick, the
// stock and the pile of each game, the trump, the fans of a hand and the steps of a flight.
#include <gtest/gtest.h>

#include <QRect>
#include <vector>

#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Ids.h"
#include "table/Pulsadores.h"
#include "table/Sugerencia.h"

namespace {

struct Zona {
    int izquierda, derecha, arriba, abajo;
};

void LimpiaManos() {
    for (auto& s : CartasJugador)
        for (auto& serie : s)
            for (auto& carta : serie)
                for (int& campo : carta) campo = 0;
    SerieActual = 1;
}

QRect RectZona(int s) {
    return QRect(QPoint(ZonaIzquierda[s], ZonaArriba[s]), QPoint(ZonaDerecha[s], ZonaAbajo[s]));
}

TEST(Geometria, ZonasDeLosDosTamanosDePantalla) {
    struct Caso {
        int ancho, alto, anchoMesa, centroX, centroY;
        Zona zonas[5];
    };
    const Caso casos[] = {
        {1024,
         768,
         934,
         467,
         384,
         {{}, {0, 160, 259, 508}, {342, 591, 0, 160}, {773, 934, 259, 508}, {342, 591, 606, 767}}},
        {800,
         600,
         710,
         355,
         300,
         {{}, {0, 160, 175, 424}, {230, 479, 0, 160}, {549, 710, 175, 424}, {230, 479, 438, 599}}},
        // A screen too low is laid out as if it were 600 high.
        {1024,
         500,
         934,
         467,
         300,
         {{}, {0, 160, 175, 424}, {342, 591, 0, 160}, {773, 934, 175, 424}, {342, 591, 438, 599}}},
    };
    for (const Caso& c : casos) {
        MesaDePrueba mesa(c.ancho, c.alto);
        SCOPED_TRACE(testing::Message() << c.ancho << "x" << c.alto);
        EXPECT_EQ(AnchoMesa, c.anchoMesa);
        EXPECT_EQ(CentroMesaX, c.centroX);
        EXPECT_EQ(CentroMesaY, c.centroY);
        EXPECT_EQ(Pic_Mesa.Ancho(), c.ancho);
        EXPECT_EQ(Pic_Mesa.Alto(), std::max(c.alto, 600));
        EXPECT_EQ(Pic_Botonera.X, c.anchoMesa);
        EXPECT_EQ(Pic_Botonera.Ancho(), 90);
        for (int s = 1; s <= 4; ++s) {
            SCOPED_TRACE(s);
            EXPECT_EQ(ZonaIzquierda[s], c.zonas[s].izquierda);
            EXPECT_EQ(ZonaDerecha[s], c.zonas[s].derecha);
            EXPECT_EQ(ZonaArriba[s], c.zonas[s].arriba);
            EXPECT_EQ(ZonaAbajo[s], c.zonas[s].abajo);
        }
    }
}

TEST(Geometria, BazaYPozoRedondeanLasMitadesAlPar) {
    struct Caso {
        int ancho, alto;
        int centroX[5], centroY[5];
        int pozoX, pozoY;
    };
    const Caso casos[] = {
        // 313.5 -> 314, 416.5 -> 416, 579.5 -> 580.
        {1024, 768, {0, 371, 416, 462, 416}, {0, 314, 248, 314, 379}, 580, 314},
        // 229.5 -> 230, 304.5 -> 304, 411.5 -> 412.
        {800, 600, {0, 259, 304, 350, 304}, {0, 230, 164, 230, 295}, 412, 230},
    };
    for (const Caso& c : casos) {
        MesaDePrueba mesa(c.ancho, c.alto);
        for (int s = 1; s <= 4; ++s) {
            EXPECT_EQ(CartaCentroX[s], c.centroX[s]) << c.ancho << " seat " << s;
            EXPECT_EQ(CartaCentroY[s], c.centroY[s]) << c.ancho << " seat " << s;
        }
        EXPECT_EQ(PozoX, c.pozoX);
        EXPECT_EQ(PozoY, c.pozoY);
    }
}

TEST(Geometria, ElMazoDeCadaJuego) {
    MesaDePrueba mesa(1024, 768);
    struct Caso {
        int juego, banca, x, y;
    };
    const Caso casos[] = {
        {JUEGO_POKER, 0, 253, 314},       {JUEGO_MUS, 0, 253, 314},
        {JUEGO_CHINCHON, 0, 253, 314},    {JUEGO_BLACKJACK, 2, 416, 171},
        {JUEGO_TUTE, 0, 416, 314},        {JUEGO_BRISCA, 0, 416, 314},
        {JUEGO_CINQUILLO, 0, 416, 314},   {JUEGO_PUMBA, 0, 416, 314},
        {JUEGO_SIETEYMEDIA, 1, 178, 314}, {JUEGO_SIETEYMEDIA, 2, 416, 171},
        {JUEGO_SIETEYMEDIA, 3, 646, 314}, {JUEGO_SIETEYMEDIA, 4, 416, 439},
    };
    for (const Caso& c : casos) {
        JuegoActual = c.juego;
        JugadorBanca = c.banca;
        ColocaMazo();
        EXPECT_EQ(MazoBaseX, c.x) << c.juego << " banca " << c.banca;
        EXPECT_EQ(MazoBaseY, c.y) << c.juego << " banca " << c.banca;
    }
    // The smallest screen: 47 + 150 across, 229.5 -> 230 down.
    MesaDePrueba pequena(800, 600);
    JuegoActual = JUEGO_POKER;
    ColocaMazo();
    EXPECT_EQ(MazoBaseX, 197);
    EXPECT_EQ(MazoBaseY, 230);
}

TEST(Geometria, ElTriunfoOcupaElPrimerSeatVacio) {
    MesaDePrueba mesa(1024, 768);
    struct Caso {
        int apagados[2];
        int x, y;
    };
    const Caso casos[] = {
        {{0, 0}, 30, 2},    // four seats: the corner
        {{1, 3}, 30, 314},  // two seats: the first empty one is seat 1
        {{2, 0}, 462, 2},   // 512 - 50.5 = 461.5 -> 462
        {{3, 0}, 803, 314}, // 934 - 131
        {{4, 0}, 462, 612}, // 768 - 156
    };
    for (const Caso& c : casos) {
        for (int s = 1; s <= 4; ++s) EstadoJugador[s] = ESTADO_ACTIVADO;
        NumJugadores = 4;
        for (int s : c.apagados)
            if (s != 0) {
                EstadoJugador[s] = ESTADO_DESACTIVADO;
                --NumJugadores;
            }
        ColocaTriunfo();
        EXPECT_EQ(TriunfoX, c.x) << NumJugadores << " seats, first off " << c.apagados[0];
        EXPECT_EQ(TriunfoY, c.y) << NumJugadores << " seats, first off " << c.apagados[0];
    }
}

TEST(Geometria, AbanicosDeDosYDeDoceCartas) {
    MesaDePrueba mesa(1024, 768);
    LimpiaManos();
    // The step along the fan for each seat: seat 1 down, 2 to the left, 3 up, 4 to the right.
    const int sentidoX[5] = {0, 0, -1, 0, 1}, sentidoY[5] = {0, 1, 0, -1, 0};
    struct Caso {
        int total, paso, largo;
    };
    for (const Caso c : {Caso{2, 101, 202}, Caso{12, 14, 255}, Caso{1, 101, 101}}) {
        for (int s = 1; s <= 4; ++s) {
            SCOPED_TRACE(testing::Message() << "seat " << s << ", " << c.total << " cards");
            PosicionCarta(s, 1, c.total);
            const int x1 = CartaX, y1 = CartaY;
            PosicionCarta(s, c.total, c.total);
            EXPECT_EQ(HileraLargo[s], c.largo);
            EXPECT_EQ(CartaX - x1, sentidoX[s] * c.paso * (c.total - 1));
            EXPECT_EQ(CartaY - y1, sentidoY[s] * c.paso * (c.total - 1));
        }
    }
    // The person's fan of two: 24 pixels in from each end of the zone's 250.
    PosicionCarta(4, 1, 2);
    EXPECT_EQ(CartaX, 342 + 24);
    EXPECT_EQ(CartaY, 606 + 20);
    // Twelve cards run 5 past the 250: the fan starts 2.5 before the zone, rounded to even.
    PosicionCarta(4, 1, 12);
    EXPECT_EQ(CartaX, 340);
}

TEST(Geometria, LaCartaAlzadaSeAcercaAlCentro) {
    MesaDePrueba mesa(1024, 768);
    LimpiaManos();
    const int haciaX[5] = {0, 20, 0, -20, 0}, haciaY[5] = {0, 0, 20, 0, -20};
    for (int s = 1; s <= 4; ++s) {
        NumCartas[s][1] = 5;
        CartasJugador[s][1][3][CAMPO_ESTADO] = 2;
        PosicionCarta(s, 3, 5);
        const int x = CartaX, y = CartaY;
        CartasJugador[s][1][3][CAMPO_ESTADO] = 1;
        PosicionCarta(s, 3, 5);
        EXPECT_EQ(CartaX - x, haciaX[s]) << "seat " << s;
        EXPECT_EQ(CartaY - y, haciaY[s]) << "seat " << s;
        // Raised or not, the card stays in its seat's zone across the table.
        const bool tumbada = s == 1 || s == 3;
        const QRect carta(CartaX, CartaY, tumbada ? 141 : 101, tumbada ? 101 : 141);
        EXPECT_TRUE(RectZona(s).contains(carta)) << "seat " << s;
    }
}

TEST(Geometria, PasosDeUnVueloCalculadosAMano) {
    struct Caso {
        int x1, y1, x2, y2, pasoX, pasoY;
    };
    const Caso casos[] = {
        {0, 0, 100, 0, -26, 0},     // dy = 0: full steps across
        {50, 100, 50, 0, 0, 26},    // dx = 0: full steps down the column
        {50, 10, 50, 0, 0, 10},     // dx = 0 and shorter than a step: one step
        {0, 0, 260, 260, -26, -26}, // the diagonal
        {0, 0, 10, 100, -3, -26},   // steep: both shrink by 10, -2.6 -> -3
        {100, 0, 0, 13, 26, -3},    // shallow: -13 / (100 / 26) = -3.38
        {52, 5, 0, 0, 26, 2},       // 2.5 rounds to the even 2
        {52, 7, 0, 0, 26, 4},       // 3.5 rounds to the even 4
        {1, 0, 0, 100, 1, -26},     // the step across rounds to 0 and becomes dx
        {40, 40, 40, 40, 0, 0},     // start and end together
    };
    for (const Caso& c : casos) {
        CalculaPaso(c.x1, c.y1, c.x2, c.y2, 26);
        EXPECT_EQ(PasoX, c.pasoX) << c.x1 << "," << c.y1 << " -> " << c.x2 << "," << c.y2;
        EXPECT_EQ(PasoY, c.pasoY) << c.x1 << "," << c.y1 << " -> " << c.x2 << "," << c.y2;
    }
}

TEST(Geometria, PilasYNombresNoPisanLasCartas) {
    for (const QSize tamano : {QSize(800, 600), QSize(1024, 768)}) {
        MesaDePrueba mesa(tamano.width(), tamano.height());
        SCOPED_TRACE(testing::Message() << tamano.width() << "x" << tamano.height());
        const QRect mesaEntera(0, 0, AnchoMesa, AltoVentana);
        std::vector<QRect> ocupados;
        for (int z : {0, 1, 2, 3, 4, 11, 12, 13, 14}) {
            // What a block's stacks cover, slant included, up to the tallest stack; a stake is
            // a single chip.
            QRect pilas;
            for (int p = 1; p <= (z <= 4 ? 6 : 1); ++p)
                for (int k : {1, z <= 4 ? 11 : 1})
                    pilas |= QRect(PilaX[z][p] + DesplazaMontonX(k),
                                   PilaY[z][p] + DesplazaMontonY(z, k), 33, 33);
            EXPECT_TRUE(mesaEntera.contains(pilas)) << "zone " << z;
            const QRect borrado = AreaBorrado(z);
            EXPECT_TRUE(borrado.contains(pilas)) << "zone " << z;
            for (int s = 1; s <= 4; ++s)
                EXPECT_FALSE(borrado.intersects(RectZona(s))) << z << " on seat " << s;
            for (const QRect& otro : ocupados) EXPECT_FALSE(pilas.intersects(otro)) << z;
            ocupados.push_back(pilas);
        }
        // The six piles of each block lie inside it, each with its own place.
        for (int z = 0; z <= 4; ++z)
            for (int p = 1; p <= 6; ++p)
                EXPECT_TRUE(BloquePila(z)
                                .adjusted(-1, -1, 1, 1)
                                .contains(QRect(PilaX[z][p], PilaY[z][p], 33, 33)))
                    << "zone " << z << " pile " << p;
        // With four seats the trump and the stock of Tute take the top left corner.
        const QRect triunfo = QRect(30 - 18, 2 + 20, 141, 101) | QRect(30, 2, 114, 154);
        for (int z : {1, 2, 3, 4}) {
            EXPECT_FALSE(AreaBorrado(z).intersects(triunfo)) << "zone " << z;
            EXPECT_FALSE(CajaNombre(z).intersects(triunfo)) << "name " << z;
            for (const QRect& pilas : ocupados) EXPECT_FALSE(CajaNombre(z).intersects(pilas)) << z;
            for (int s = 1; s <= 4; ++s) EXPECT_FALSE(CajaNombre(z).intersects(RectZona(s))) << z;
        }
        // Where there is room, the person's name stays clear of the information pane.
        const QRect panel(0, AltoVentana - ALTO_SUGERENCIA, ANCHO_SUGERENCIA, ALTO_SUGERENCIA);
        EXPECT_EQ(CajaNombre(4).intersects(panel), tamano.width() == 800);
        // The pot clears the stock of Póker.
        JuegoActual = JUEGO_POKER;
        ColocaMazo();
        EXPECT_FALSE(BloquePila(0).intersects(QRect(MazoBaseX, MazoBaseY, 114, 154)));
        for (int s = 1; s <= 4; ++s) {
            EXPECT_TRUE(mesaEntera.contains(CajaCifraResto(s))) << s;
            EXPECT_TRUE(mesaEntera.contains(BloquePila(s + 20))) << s;
            for (int z = 1; z <= 4; ++z)
                EXPECT_FALSE(CajaCifraApuesta(s).intersects(RectZona(z))) << s << " on " << z;
            // A seat's stake and its figure clear the row of the seat's action buttons.
            for (auto& b : Pic_Pulsador) b.Visible = false;
            QRect fila;
            for (int i = PULSADOR_CARTA; i <= PULSADOR_SEGURO; ++i) {
                ColocaPulsador(s, i);
                const CajaImagen& b = Pic_Pulsador[i];
                fila |= QRect(b.X, b.Y, b.Ancho(), b.Alto());
            }
            EXPECT_FALSE(fila.intersects(QRect(PilaX[s + 10][1], PilaY[s + 10][1], 33, 33))) << s;
            EXPECT_FALSE(fila.intersects(CajaCifraApuesta(s))) << s;
        }
    }
}

} // namespace
