// Siete y media: totals with half points, and whole seeded matches in which the bank passes to
// the seat that sang siete y media or, when the banker is broke, to the next seat with money.
#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/sieteymedia/EstadisSiete.h"
#include "games/sieteymedia/PartidaSieteYMedia.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "platform/CajaImagen.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <deque>
#include <string>
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
        // The banker deals: the stock lies nearer its cards than any other seat's.
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (FaseJuego != FASE_FIN_MANO) return;
            const QPoint mazo(MazoX + 50, MazoY + 70);
            int cerca = 0, menor = 1 << 30;
            for (int s = 1; s <= 4; ++s) {
                const QPoint zona((ZonaIzquierda[s] + ZonaDerecha[s]) / 2,
                                  (ZonaArriba[s] + ZonaAbajo[s]) / 2);
                const int d = (zona - mazo).manhattanLength();
                if (d < menor) menor = d, cerca = s;
            }
            EXPECT_EQ(cerca, JugadorBanca) << "semilla " << semilla << " mano " << NumeroMano;
        };
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

namespace {

struct CartaEnMesa {
    int Seat, Valor;
    bool Boca; // face up for the table
};

// Lays the cards out in the hands of series 1, each value of a different suit in turn.
void PonMesa(const std::vector<CartaEnMesa>& cartas) {
    LimpiaMesaBanca();
    int palo[13] = {};
    for (int s = 1; s <= 4; ++s) SeriesJugador[s] = 1;
    for (const auto& c : cartas) {
        auto& carta = CartasJugador[c.Seat][1][++NumCartas[c.Seat][1]];
        carta[CAMPO_PALO] = ++palo[c.Valor];
        carta[CAMPO_VALOR] = c.Valor;
        carta[CAMPO_CARA] = c.Boca ? CARA_VISIBLE : CARA_OCULTA;
    }
}

} // namespace

// The chances of the next card, against a count made here by classes of points: four cards of
// each point from 1 to 7 and twelve medias, less those seen face up.
TEST(SieteYMedia, ChancesOfTheNextCardCountTheUnseenCards) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_SIETEYMEDIA;
    ParametrosJuego();
    const struct {
        std::vector<CartaEnMesa> Mesa;
        int Seat; // whose series
        int Posibles, Pasan, Siete;
    } casos[] = {
        // Nothing on the table: a total of 0 can't bust.
        {{}, 4, 40, 0, 0},
        // 5 covered but seen by its owner, 2 shown: 7 busts on anything but a media. The
        // covered 7 and 3 of the others may still come.
        {{{4, 5, true}, {4, 2, true}, {1, 1, true}, {1, 7, false}, {2, 3, false}}, 4, 37, 25, 12},
        // A seat whose own covered 4 is hidden from the table counts it as one that may come.
        {{{3, 4, false}, {3, 3, true}}, 3, 39, 27, 12},
        // A media and two sevens gone: 0.5 needs a 7 to make siete y media.
        {{{4, 10, true}, {1, 7, true}, {1, 7, true}, {3, 11, true}, {3, 12, true}}, 4, 35, 0, 2},
        // 6 and a half: a 1 makes it, anything above busts.
        {{{4, 6, true}, {4, 12, true}, {2, 1, true}}, 4, 37, 23, 3},
    };
    for (const auto& c : casos) {
        PonMesa(c.Mesa);
        // The count by classes of points.
        double total = 0;
        int vistas[8] = {}; // by point, 0 for the medias
        for (const auto& m : c.Mesa) {
            const int punto = m.Valor >= 10 ? 0 : m.Valor;
            if (m.Seat == c.Seat) total += punto == 0 ? 0.5 : punto;
            if (m.Boca) ++vistas[punto];
        }
        int posibles = 0, pasan = 0, siete = 0;
        double suma = 0;
        for (int punto = 0; punto <= 7; ++punto) {
            const int quedan = (punto == 0 ? 12 : 4) - vistas[punto];
            const double t = total + (punto == 0 ? 0.5 : punto);
            posibles += quedan;
            if (t > 7.5) {
                pasan += quedan;
                continue;
            }
            if (t == 7.5) siete += quedan;
            suma += quedan * t;
        }
        const PosibilidadesSiete r = PosibilidadesSiguiente(c.Seat, 1);
        EXPECT_EQ(posibles, c.Posibles);
        EXPECT_EQ(pasan, c.Pasan);
        EXPECT_EQ(siete, c.Siete);
        EXPECT_EQ(r.Posibles, posibles);
        EXPECT_EQ(r.Pasan, pasan);
        EXPECT_EQ(r.SieteJusto, siete);
        EXPECT_DOUBLE_EQ(r.Pasarse(), pasan * 100.0 / posibles);
        EXPECT_DOUBLE_EQ(r.Promedio(), suma / (posibles - pasan));
    }
}

// The change of the four: the 4 goes into the stock from its third card on, to any place of it,
// and the seat may change again only when a 4 came. The stock holds the other 4s last.
TEST(SieteYMedia, TheFourIsChangedForACardFromTheThirdOfTheStockOn) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_SIETEYMEDIA;
    ParametrosJuego();
    PinturaOmitida = VuelosOmitidos = PausasACero = true;
    JugadorBanca = 2;
    JugadorActual = 4;
    RandomizaCon(2026);
    AnotaDineroPartida();
    constexpr int VECES = 3000;
    for (int quedan : {38, 5}) {
        std::vector<int> vecesEn(41, 0);
        int cuatros = 0;
        for (int vez = 0; vez < VECES; ++vez) {
            // Seat 1 holds the cards out of play, the stock the rest with the 4s at its end.
            PonMesa({{4, 4, false}});
            CartasJugador[4][1][1][CAMPO_MARCA] = 1;
            std::vector<int> valores;
            for (int palo = 1; palo <= 4; ++palo)
                for (int valor : {1, 2, 3, 5, 6, 7, 10, 11, 12})
                    valores.push_back(palo * 100 + valor);
            for (int palo = 2; palo <= 4; ++palo) valores.push_back(palo * 100 + 4);
            PosicionMazo = 41 - quedan;
            CartasEnMazo = quedan;
            for (int i = 0; i < 39; ++i) {
                int* c = i < 39 - quedan ? CartasJugador[1][1][++NumCartas[1][1]]
                                         : Baraja[PosicionMazo + i - (39 - quedan)];
                c[CAMPO_PALO] = valores[i] / 100;
                c[CAMPO_VALOR] = valores[i] % 100;
            }
            const int siguientes =
                Baraja[PosicionMazo][CAMPO_VALOR] * 100 + Baraja[PosicionMazo + 1][CAMPO_VALOR];
            PuedeCambiarCuatro = true;
            CambiaCuatro(4);
            ASSERT_TRUE(MesaCoherente());
            ASSERT_EQ(Baraja[PosicionMazo][CAMPO_VALOR] * 100 +
                          Baraja[PosicionMazo + 1][CAMPO_VALOR],
                      siguientes);
            for (int pos = PosicionMazo; pos < PosicionMazo + CartasEnMazo; ++pos)
                if (Baraja[pos][CAMPO_PALO] == 1 && Baraja[pos][CAMPO_VALOR] == 4) ++vecesEn[pos];
            EXPECT_EQ(CartasJugador[4][1][1][CAMPO_MARCA], 1); // still covered
            const bool otroCuatro = CartasJugador[4][1][1][CAMPO_VALOR] == 4;
            cuatros += otroCuatro;
            ASSERT_EQ(PuedeCambiarCuatro, otroCuatro);
        }
        // Every place from the third card to the last is reached, about as often.
        const double media = double(VECES) / (quedan - 2);
        EXPECT_EQ(vecesEn[PosicionMazo] + vecesEn[PosicionMazo + 1], 0);
        for (int pos = PosicionMazo + 2; pos < PosicionMazo + CartasEnMazo; ++pos)
            EXPECT_NEAR(vecesEn[pos], media, 6 * std::sqrt(media)) << quedan << " " << pos;
        // Five cards left, the last three 4s: the change always brings another.
        if (quedan == 5)
            EXPECT_EQ(cuatros, VECES);
        else
            EXPECT_LT(cuatros, VECES / 4);
    }
    PinturaOmitida = VuelosOmitidos = PausasACero = false;
}

namespace {

// One hand between two seats, both played by the script, from a deck stacked at the punter's
// stake: the punter's covered card, the bank's card, then the cards in the order they are
// asked. The punter stakes 10. Letters: C card, P stand, V turn the covered card up.
struct ManoGuionada {
    std::vector<int> Cartas;
    std::string Punto, Banca;
    int Gana;         // the punter's money after the hand, less before
    bool TomaLaBanca; // the punter holds the bank in the next hand
    // The punter's record of the hand, the first column of its Resultado, "" unchecked.
    const char* Registro = "";
};

int JuegaManoGuionada(const ManoGuionada& m, int& punto) {
    PreparaPartidaAutomatica({JUEGO_SIETEYMEDIA, 4, false, [] {
                                  RestoInicial = 100;
                                  ApuestaMaxima = 25;
                              }});
    EstadoJugador[1] = EstadoJugador[3] = ESTADO_DESACTIVADO;
    ControlJugador[2] = ControlJugador[4] = CONTROL_MANUAL;
    PausasACero = VuelosOmitidos = true;
    SemillaFija = 11;
    std::deque<char> guionPunto(m.Punto.begin(), m.Punto.end()),
        guionBanca(m.Banca.begin(), m.Banca.end());
    punto = 0;
    PersonaGuionada = [&] {
        EsperandoPersona = false;
        if (FaseJuego == FASE_FIN_MANO) {
            PartidaViva = false;
            return;
        }
        const int seat = JugadorActual;
        if (FaseJuego == FASE_SYM_APUESTA) {
            punto = seat;
            // Each card wanted is swapped in from wherever it lies: the hands, then the stock.
            std::vector<int*> sitios = {CartasJugador[seat][1][1],
                                        CartasJugador[JugadorBanca][1][1]};
            for (int i = 0; i < CartasEnMazo; ++i) sitios.push_back(Baraja[PosicionMazo + i]);
            for (size_t i = 0; i < m.Cartas.size(); ++i) {
                size_t j = i;
                while (sitios[j][CAMPO_VALOR] != m.Cartas[i]) ++j;
                std::swap(sitios[i][CAMPO_PALO], sitios[j][CAMPO_PALO]);
                std::swap(sitios[i][CAMPO_VALOR], sitios[j][CAMPO_VALOR]);
            }
            ApuestaConFichas(seat, 10);
            JugadaHecha = true;
            return;
        }
        auto& guion = seat == JugadorBanca ? guionBanca : guionPunto;
        const char letra = guion.empty() ? 'P' : guion.front();
        if (!guion.empty()) guion.pop_front();
        if (letra == 'V') {
            // As a click on the covered card: it turns up, and a siete y media ends the wait.
            for (int p = 1; p <= NumCartas[seat][1]; ++p)
                CartasJugador[seat][1][p][CAMPO_MARCA] = 0;
            EsperandoPersona = ValorMano(seat, 1) != 7.5;
            return;
        }
        (letra == 'C' ? PideCarta : PideServido) = true;
    };
    RespuestasGuionadas.assign(4, false);
    NuevaPartida();
    PersonaGuionada = nullptr;
    SemillaFija = 0;
    PausasACero = VuelosOmitidos = false;
    return RestoJugador(punto) - 100;
}

} // namespace

// Every way a hand is paid, worked out by hand on a stake of 10, and who holds the bank next.
TEST(SieteYMedia, StackedHandsArePaidAsTheRulesSay) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const ManoGuionada casos[] = {
        // 7 covered and a media: siete y media still covered is paid like any total.
        {{7, 5, 10, 2}, "CP", "CP", 10, false},
        // The same turned up is sung: paid double, and the punter takes the bank.
        {{7, 5, 10, 2}, "CV", "CP", 20, true, "7 y 1/2"},
        // A bank with siete y media wins the tie and keeps the bank.
        {{7, 1, 10, 11, 6}, "CV", "CCP", -10, false},
        // 6 and 2: the punter busts; the bank has nobody to play against and draws nothing.
        {{6, 3, 2}, "C", "", -10, false, "Se pasó"},
        // 5 stands; the bank's 4 and 7 bust.
        {{5, 4, 7}, "P", "CP", 10, false, "5"},
        // Six and a half each: the tie goes to the bank.
        {{6, 6, 12, 11}, "CP", "CP", -10, false, "6 y 1/2"},
        // 3 against the bank's 5.
        {{3, 2, 3}, "P", "CP", -10, false},
        // The 2 turned up, the 5 after it comes covered: the media makes a siete y media that
        // isn't sung, and beats the bank's 7.
        {{2, 7, 5, 10}, "VCCP", "P", 10, false},
        // Turned up after the media, the siete y media is sung.
        {{2, 7, 5, 10}, "VCCVP", "P", 20, true},
    };
    int caso = 0;
    for (const auto& m : casos) {
        ++caso;
        int punto = 0;
        EXPECT_EQ(JuegaManoGuionada(m, punto), m.Gana) << "caso " << caso;
        const int banca = 6 - punto;
        EXPECT_EQ(RestoJugador(banca), 2 * 100 - RestoJugador(punto)) << "caso " << caso;
        EXPECT_EQ(CambiaBanca && NuevaBanca == punto, m.TomaLaBanca) << "caso " << caso;
        const RegistroMano& r = RegistroManos[1];
        EXPECT_EQ(r.Banca, -m.Gana) << "caso " << caso;
        if (*m.Registro != 0)
            EXPECT_EQ(r.Resultado[punto],
                      QString::fromUtf8(m.Registro).leftJustified(7) + QString(8, ' '))
                << "caso " << caso;
        // The bank took the cards the punter didn't: none when the punter had bust.
        const int pedidas = int(std::count(m.Punto.begin(), m.Punto.end(), 'C'));
        EXPECT_EQ(NumCartas[banca][1], int(m.Cartas.size()) - 1 - pedidas) << "caso " << caso;
    }
}

// A match left at the end of a hand whose bank was to pass, and taken up again in the same run
// (after a look at another game, say), plays that hand again with the bank and the money it
// started with.
TEST(SieteYMedia, AMatchTakenUpAgainReplaysTheHandWithItsBankAndMoney) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    PinturaOmitida = true;
    int reanudadas = 0;
    for (unsigned semilla = 1; semilla <= 6; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_SIETEYMEDIA, 4, false, [] { RestoInicial = 40; }});
        PausasACero = VuelosOmitidos = true;
        SemillaFija = semilla;
        int mano = 0, banca = 0, dinero[5] = {};
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (FaseJuego != FASE_FIN_MANO || !CambiaBanca) return;
            mano = NumeroMano;
            banca = JugadorBanca;
            std::copy(RestoAlEmpezar, RestoAlEmpezar + 5, dinero);
            PreparaPosponer();
            GrabaJuego();
            PartidaViva = false;
        };
        NuevaPartida();
        if (mano == 0) continue;
        int manoOtraVez = 0, bancaOtraVez = 0, dineroOtraVez[5] = {};
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            // The first wait of a table of computer seats is the end of the hand played again.
            manoOtraVez = NumeroMano;
            bancaOtraVez = JugadorBanca;
            std::copy(RestoAlEmpezar, RestoAlEmpezar + 5, dineroOtraVez);
            PartidaViva = false;
        };
        AbreJuego();
        PersonaGuionada = nullptr;
        ++reanudadas;
        EXPECT_EQ(manoOtraVez, mano) << "semilla " << semilla;
        EXPECT_EQ(bancaOtraVez, banca) << "semilla " << semilla;
        for (int s = 1; s <= 4; ++s)
            EXPECT_EQ(dineroOtraVez[s], dinero[s]) << "semilla " << semilla << " seat " << s;
    }
    PinturaOmitida = PausasACero = VuelosOmitidos = false;
    SemillaFija = 0;
    EXPECT_GE(reanudadas, 3);
}
