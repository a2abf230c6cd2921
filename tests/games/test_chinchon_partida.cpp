// Chinchón at a table without a window: the laying off on a closer's melds, whole seeded matches
// that add up hand by hand, the person playing with the mouse, and the weight of the level.
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/GblChinchon.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Partida.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Raton.h"

#include <QImage>
#include <cstdio>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr int O = 1, C = 2, E = 3, B = 4;

struct Fin {
    ~Fin() {
        PausasACero = false;
        PersonaGuionada = nullptr;
    }
};

int Vistos(const QString& titulo) {
    int n = 0;
    for (const auto& m : MensajesVistos) n += m.Titulo == titulo;
    return n;
}

bool Tiene(int seat, int palo, int valor) {
    for (int p = 1; p <= NumCartas[seat][1]; ++p)
        if (CartasJugador[seat][1][p][CAMPO_PALO] == palo &&
            CartasJugador[seat][1][p][CAMPO_VALOR] == valor)
            return true;
    return false;
}

// Deals the hands as given; the rest of the deck makes the stock.
void PonManos(const std::vector<std::vector<std::pair<int, int>>>& manos) {
    BorraTablasMano();
    bool repartida[5][13] = {};
    for (size_t s = 0; s < manos.size(); ++s) {
        const int seat = static_cast<int>(s) + 1;
        JuegaMano[seat] = !manos[s].empty();
        for (const auto& [palo, valor] : manos[s]) {
            auto& c = CartasJugador[seat][1][++NumCartas[seat][1]];
            c[CAMPO_PALO] = palo;
            c[CAMPO_VALOR] = valor;
            c[CAMPO_CARA] = CartasVisibles[seat];
            c[CAMPO_ESTADO] = 2;
            repartida[palo][valor] = true;
        }
    }
    PosicionMazo = 1;
    CartasEnMazo = CartasEnPozo = 0;
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor)
            if (!repartida[palo][valor]) {
                Baraja[++CartasEnMazo][CAMPO_PALO] = palo;
                Baraja[CartasEnMazo][CAMPO_VALOR] = valor;
            }
}

void PreparaChinchon(int jugadores) {
    JuegoActual = JUEGO_CHINCHON;
    TipoBarajaEspanola = 1;
    AsOrosComodin = false;
    CartasSiempreOrdenadas = false;
    for (int s = 1; s <= 4; ++s) {
        EstadoJugador[s] = s <= jugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        ControlJugador[s] = CONTROL_AUTOMATICO;
    }
    ParametrosJuego();
    ColocaMazo();
    PausasACero = true;
    ContinuarManual = false;
    PersonaGuionada = [] { EsperandoPersona = false; };
}

} // namespace

// Seat 1 closes with a loose As. Seat 2 lays its 2, 6 and 7 de Oros on the run and the Sietes,
// seat 3 its 8 de Oros, which fits only once the 6 and the 7 are there; every other card stays.
TEST(ChinchonPartida, EveryLooseCardThatFitsTheClosersMeldsIsLaidOff) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaChinchon(3);
    PonManos({{{O, 3}, {O, 4}, {O, 5}, {C, 7}, {E, 7}, {B, 7}, {C, 1}},
              {{O, 6}, {O, 2}, {O, 7}, {E, 12}, {C, 9}, {B, 11}, {C, 10}},
              {{O, 8}, {C, 12}, {E, 10}, {C, 3}, {E, 5}, {O, 11}, {B, 9}}});
    JugadoresMano = 3;
    PartidaViva = ManoViva = true;
    NumeroMano = 1;
    VaciaRegistroDescartes();
    FinMano = FIN_CERRADA;
    JugadorActual = 1;
    AnunciaCierre();
    EXPECT_EQ(CierreChinchon, CIERRE_CON_PUNTOS);
    ASSERT_EQ(Vistos("Combinar cartas sobrantes"), 1);
    EXPECT_TRUE(MensajesVistos.back().Texto.startsWith("Ha cerrado la mano actual Jugador1."));
    ASSERT_TRUE(CombinaSobrantes());

    EXPECT_EQ(NumCartas[1][1], 11);
    for (auto [palo, valor] : std::vector<std::pair<int, int>>{{O, 2}, {O, 6}, {O, 7}, {O, 8}})
        EXPECT_TRUE(Tiene(1, palo, valor)) << palo << " " << valor;
    EXPECT_EQ(NumCartas[2][1], 4);
    EXPECT_EQ(NumCartas[3][1], 6);
    EXPECT_TRUE(Tiene(2, E, 12));
    EXPECT_TRUE(Tiene(3, C, 12));
    // Each card laid off is an entry of the record, with seat 1 as its receiver.
    ASSERT_EQ(NumeroDescarte - RecibeDesde + 1, 4);
    for (int e = RecibeDesde; e <= NumeroDescarte; ++e) EXPECT_EQ(RegistroDescartes[e].Receptor, 1);
    EXPECT_TRUE(MesaCoherente());
}

// Seeded matches of three and four seats: each hand's points add to the totals, a seat that has
// reached the limit is dealt no more cards, and the match goes to the last seat below the limit
// (or to a chinchón).
TEST(ChinchonPartida, SeededMatchesAddUpAndTheLastSeatBelowTheLimitWins) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    for (unsigned semilla = 1; semilla <= 6; ++semilla) {
        const int jugadores = semilla % 2 ? 3 : 4;
        PreparaPartidaAutomatica({JUEGO_CHINCHON, jugadores, false, [semilla] {
                                      LimitePartida = 40;
                                      AsOrosComodin = semilla > 4;
                                  }});
        GanadorPartida = 0;
        JuegaPartidaAutomatica(semilla);
        ASSERT_GE(GanadorPartida, 1) << semilla;
        int totales[5] = {}, chinchon = 0;
        for (int m = 1; m <= NumeroMano; ++m) {
            const RegistroMano& r = RegistroManos[m];
            int ganadores = 0;
            for (int s = 1; s <= jugadores; ++s) {
                const bool fuera = totales[s] >= LimitePartida;
                EXPECT_EQ(r.Detalle[s].isEmpty(), fuera) << "semilla " << semilla << " mano " << m;
                ganadores += r.Gana[s][1];
                if (r.Resultado[s] == "-99")
                    chinchon = s;
                else
                    totales[s] += r.Resultado[s].toInt();
            }
            EXPECT_EQ(ganadores, 1);
        }
        int bajo = 0, ultimo = 0;
        for (int s = 1; s <= jugadores; ++s) {
            EXPECT_EQ(TotalPuntos(s), totales[s]);
            if (totales[s] < LimitePartida) ++bajo, ultimo = s;
        }
        if (chinchon != 0) {
            EXPECT_EQ(GanadorPartida, chinchon);
        } else {
            EXPECT_LE(bajo, 1) << semilla;
            if (bajo == 1) EXPECT_EQ(GanadorPartida, ultimo) << semilla;
        }
        std::printf("[          ] semilla %u, %d jugadores: %d manos, gana Jugador%d%s\n", semilla,
                    jugadores, NumeroMano, GanadorPartida, chinchon ? " con chinchón" : "");
    }
}

// The person at seat 4 takes from the stock and from the pile with the mouse (pointer 27),
// throws the card it points at, closes with "Cerrar" when it may, and lays off only the cards
// that fit.
TEST(ChinchonPartida, ThePersonPlaysWithTheMouse) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaChinchon(4);
    EstadoJugador[2] = EstadoJugador[3] = ESTADO_DESACTIVADO;
    ControlJugador[4] = CONTROL_MANUAL;
    CartasVisibles[4] = CARA_VISIBLE;
    LimitePartida = 30;
    int delMazo = 0, delPozo = 0, descartes = 0, cierres = 0, combinadas = 0, rechazos = 0;
    auto pulsa = [](int x, int y) {
        RatonMovido(x, y, false);
        const int forma = CursorActual;
        RatonPulsado(x, y, 1, false);
        RatonSoltado(x, y, 1);
        return forma;
    };
    PersonaGuionada = [&] {
        if (!EsperandoPersona) return;
        if (!ManoViva || JugadorActual != 4) {
            EsperandoPersona = false;
            return;
        }
        const int n = NumCartas[4][1];
        if (FaseJuego == FASE_CHINCHON_TOMA) {
            // The stock first, then the pile, then where the tutor would take from.
            const bool pozo = delMazo == 0 ? false : delPozo == 0 || OrigenOrdenador == ROBO_POZO;
            const int x = (pozo ? PozoX : MazoX) + 40, y = (pozo ? PozoY : MazoY) + 70;
            EXPECT_EQ(pulsa(x, y), CURSOR_TOMAR);
            EXPECT_FALSE(EsperandoPersona);
            EXPECT_EQ(OrigenRobo, pozo ? ROBO_POZO : ROBO_MAZO);
            ++(pozo ? delPozo : delMazo);
        } else if (FaseJuego == FASE_CHINCHON_DESCARTE) {
            // The card the tutor would throw, pointed at on its visible edge.
            const int mejor = Candidatas[1][CAND_POSICION];
            PosicionCarta(4, mejor, n);
            EXPECT_EQ(pulsa(CartaX + 10, CartaY + 70), CURSOR_JUGABLE);
            EXPECT_EQ(CartaElegida, mejor);
            ++descartes;
        } else if (FaseJuego == FASE_CHINCHON_DECIDE) {
            const CajaImagen& boton = Pic_Pulsador[PULSADOR_CERRAR];
            ASSERT_TRUE(boton.Visible);
            pulsa(boton.X + 10, boton.Y + 10);
            EXPECT_TRUE(PulsoCerrar);
            ++cierres;
        } else if (FaseJuego == FASE_CHINCHON_CIERRE) {
            // A card that fits nothing is refused; one that fits is laid.
            for (int pos = 1; pos <= n; ++pos) {
                PosicionCarta(4, pos, n);
                const int x = CartaX + 10, y = CartaY + 70;
                const int forma = pulsa(x, y);
                if (!EsperandoPersona) {
                    EXPECT_EQ(forma, CURSOR_JUGABLE);
                    ++combinadas;
                    return;
                }
                EXPECT_EQ(forma, CURSOR_NO_JUGABLE);
                ++rechazos;
            }
            ADD_FAILURE() << "no card of the person fits";
            EsperandoPersona = false;
        } else {
            EsperandoPersona = false;
        }
    };
    NuevaPartida();
    std::printf("[          ] persona: %d del mazo, %d del pozo, %d descartes, %d cierres, "
                "%d cartas combinadas, %d rechazadas, %d manos\n",
                delMazo, delPozo, descartes, cierres, combinadas, rechazos, NumeroMano);
    EXPECT_GT(delMazo, 0);
    EXPECT_GT(delPozo, 0);
    EXPECT_EQ(descartes, delMazo + delPozo);
    EXPECT_GT(cierres, 0);
    EXPECT_EQ(Vistos("Final de Partida"), 1);
}

// Head to head, seat 1 at level 100 against seat 3 at level 0, both of middle character, over
// many short seeded matches: the level shows in the matches won.
TEST(ChinchonPartida, LevelHundredBeatsLevelZeroOverManyMatches) {
    Fin fin;
    MesaDePrueba mesa;
    Pic_Mesa.Imagen = QImage(); // nothing is looked at: the table draws nowhere
    PreparaChinchon(3);
    EstadoJugador[2] = ESTADO_DESACTIVADO;
    for (int s : {1, 3}) CaracterJugador[s] = 2;
    NivelJugador[1] = 100;
    NivelJugador[3] = 0;
    LimitePartida = 20;
    constexpr int PARTIDAS = 150;
    int ganadas = 0;
    const unsigned semillaAntes = SemillaFija;
    for (int partida = 0; partida < PARTIDAS; ++partida) {
        RespuestasGuionadas.assign(1, false);
        SemillaFija = 5800 + partida;
        NuevaPartida();
        ganadas += GanadorPartida == 1;
        MensajesVistos.clear();
    }
    SemillaFija = semillaAntes;
    std::printf("[          ] Chinchón: nivel 100 gana %d de %d partidas (%.1f %%)\n", ganadas,
                PARTIDAS, 100.0 * ganadas / PARTIDAS);
    EXPECT_GE(ganadas, PARTIDAS * 6 / 10);
}
