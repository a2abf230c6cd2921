// Black Jack: totals with soft aces worked out by hand, whole hands dealt from a stacked shoe
// whose payments are worked out by hand, the shoe that never holds a card twice, and the loss
// rate of the level-100 seats against an independent simulation of the same table.
#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/blackjack/PartidaBlackJack.h"
#include "platform/CajaImagen.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

void PonMano(int seat, int serie, const std::vector<int>& valores) {
    NumCartas[seat][serie] = int(valores.size());
    for (int p = 1; p <= MAX_MANO; ++p)
        for (int f = 0; f <= 5; ++f) CartasJugador[seat][serie][p][f] = 0;
    for (int p = 1; p <= int(valores.size()); ++p) {
        CartasJugador[seat][serie][p][CAMPO_PALO] = 1 + p % 4;
        CartasJugador[seat][serie][p][CAMPO_VALOR] = valores[p - 1];
    }
}

} // namespace

TEST(BlackJack, HandTotalsCountAnAceAsElevenWhileTheyCan) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_BLACKJACK;
    ParametrosJuego();
    const struct {
        std::vector<int> cartas;
        int total;
        bool blanda;
    } casos[] = {
        {{1, 6}, 17, true},
        {{1, 6, 10}, 17, false},
        {{1, 1}, 12, true},
        {{1, 1, 9}, 21, true},
        {{1, 13}, 21, true},
        {{12, 13}, 20, false},
        {{1, 5, 1, 4}, 21, true},
        {{5, 6, 1}, 12, false},
        {{1, 1, 1, 1, 1, 1}, 16, true},
        {{10, 5, 1, 1, 4}, 21, false},
        {{11, 12, 2}, 22, false},
    };
    for (const auto& c : casos) {
        PonMano(1, 1, c.cartas);
        EXPECT_EQ(ValorMano(1, 1), c.total);
        EXPECT_EQ(ManoBlanda, c.blanda);
        EXPECT_EQ(ManoDura, !c.blanda);
    }
}

namespace {

// One hand at a table of the person (seat 4) against the bank, from a shoe stacked in the order
// the cards are drawn: the person's first card, the bank's, the person's second, then each card
// asked in turn. The person stakes 10 and plays the letters of its script: S insurance,
// D double, A split, C card, P stand, and stands when they run out.
struct ManoGuionada {
    std::vector<int> Zapato;
    std::string Guion;
    int Gana;              // what the person ends the hand with, minus what it started with
    int Series;            // the series it ended with
    const char* Resultado; // the line of the end of the hand that must be there, "" none
    // The person's record of the hand: the two columns of Resultado, then those of Detalle.
    const char* Registro = "";
};

int JuegaManoGuionada(const ManoGuionada& m) {
    PreparaPartidaAutomatica({JUEGO_BLACKJACK, 4, false, [] {
                                  RestoInicial = 200;
                                  ApuestaMaxima = 25;
                              }});
    EstadoJugador[1] = EstadoJugador[3] = ESTADO_DESACTIVADO;
    ControlJugador[4] = CONTROL_MANUAL;
    PausasACero = VuelosOmitidos = true;
    SemillaFija = 7;
    std::deque<char> guion(m.Guion.begin(), m.Guion.end());
    PersonaGuionada = [&] {
        EsperandoPersona = false;
        if (FaseJuego == FASE_FIN_MANO) {
            PartidaViva = false;
            return;
        }
        if (JugadorActual != 4) return;
        if (FaseJuego == FASE_BJ_APUESTA) {
            ApuestaConFichas(4, 10);
            JugadaHecha = true;
            // The shoe is stacked once the stakes are made, before the deal: each card asked
            // for is brought forward from further in the shoe, so it still holds each once.
            for (int i = 0; i < int(m.Zapato.size()); ++i) {
                int j = PosicionMazo + i;
                while (Baraja[j][CAMPO_VALOR] != m.Zapato[i]) ++j;
                std::swap(Baraja[PosicionMazo + i], Baraja[j]);
            }
            return;
        }
        const char letra = guion.empty() ? 'P' : guion.front();
        if (!guion.empty()) guion.pop_front();
        JugadaHecha = true;
        (letra == 'S'   ? PideSeguro
         : letra == 'D' ? PideDoblar
         : letra == 'A' ? PideAbrir
         : letra == 'C' ? PideCarta
                        : PideServido) = true;
    };
    RespuestasGuionadas.assign(4, false);
    MensajesVistos.clear();
    NuevaPartida();
    PersonaGuionada = nullptr;
    SemillaFija = 0;
    return RestoJugador(4) - 200;
}

} // namespace

// Every way a hand is paid, worked out by hand on a stake of 10; the money the person gains the
// bank loses.
TEST(BlackJack, StackedHandsArePaidAsTheRulesSay) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const ManoGuionada casos[] = {
        // Black Jack against a 9 that ends on 17: 3 to 2, the half dropped.
        {{1, 9, 13, 8},
         "",
         15,
         1,
         "Jugador4 : Black Jack",
         "Black J        "
         "               "},
        // Both with Black Jack: the stake comes back.
        {{1, 1, 13, 13}, "", 0, 1, "Banca : Black Jack"},
        // Insurance of 5 won against the bank's Black Jack, the stake lost: even.
        {{10, 1, 9, 13}, "SP", 0, 1, ""},
        // Insurance lost, 19 beats the bank's soft 18.
        {{10, 1, 9, 7}, "SP", 5, 1, "Banca : 18"},
        // 11 doubled, 21 against a bank that busts: twice the stake.
        {{5, 6, 6, 10, 10, 10}, "D", 20, 1, "Jugador4 : 21"},
        // A pair of fives doubled as a ten, 12 against 18: the double stake lost.
        {{5, 10, 5, 2, 8}, "D", -20, 1, "Banca : 18"},
        // 18 against 18: the stake comes back.
        {{10, 10, 8, 8}, "P", 0, 1, ""},
        // 21 of three cards loses to the bank's Black Jack.
        {{7, 10, 7, 7, 1}, "C", -10, 1, "Jugador4 : 21"},
        // Eights split into four series against a 6, the first keeping a fourth pair that can
        // no longer be opened; the bank busts and pays each.
        {{8, 6, 8, 8, 8, 8, 10, 10, 2, 10, 10},
         "AAAPPPP",
         40,
         4,
         "Jugador4 / 4 : 10",
         "16     18      "
         "18     10      "},
        // Eights insured, then split: each series takes an insurance of 5 won against the
        // bank's Black Jack, and loses its stake.
        {{8, 1, 8, 10, 10, 13}, "SAPP", 0, 2, "Banca : Black Jack"},
        // Split aces: one card each; 21 on a split pays even money, 16 loses to 17.
        {{1, 9, 1, 13, 5, 8},
         "A",
         0,
         2,
         "Jugador4 / 1 : 21",
         "21     16      "
         "               "},
    };
    int caso = 0;
    for (const auto& m : casos) {
        ++caso;
        EXPECT_EQ(JuegaManoGuionada(m), m.Gana) << "caso " << caso;
        EXPECT_EQ(RestoJugador(2), 2 * 200 - RestoJugador(4)) << "caso " << caso;
        EXPECT_EQ(SeriesJugador[4], m.Series) << "caso " << caso;
        const RegistroMano& r = RegistroManos[1];
        EXPECT_EQ(r.Banca, -m.Gana) << "caso " << caso;
        EXPECT_EQ(r.Extra[4], m.Series) << "caso " << caso;
        if (*m.Registro != 0)
            EXPECT_EQ((r.Resultado[4] + r.Detalle[4]).toStdString(), m.Registro) << "caso " << caso;
        if (*m.Resultado == 0) continue;
        bool visto = false;
        for (const auto& v : MensajesVistos)
            visto = visto || (v.Titulo == "Final de la mano" && v.Texto.contains(m.Resultado));
        EXPECT_TRUE(visto) << "caso " << caso << ": " << m.Resultado;
    }
}

namespace {

// ---- An independent simulation of the level-100 aggressive seat, on an endless deck ----

struct Serie {
    std::vector<int> Cartas; // values 1 to 10
    bool Doblada = false;
};

struct Total {
    int Puntos;
    bool Blanda;
};

Total Suma(const std::vector<int>& cartas) {
    int suma = 0;
    bool as = false;
    for (int c : cartas) {
        suma += c;
        as = as || c == 1;
    }
    if (as && suma + 10 <= 21) return {suma + 10, true};
    return {suma, false};
}

bool Abre(int p, int b) {
    if (p == 1 || p == 8) return true;
    if (p == 9) return b >= 2 && b <= 9 && b != 7;
    if (p == 7 || p == 2 || p == 3) return b >= 2 && b <= 7;
    if (p == 6) return b >= 2 && b <= 6;
    if (p == 4) return b == 5 || b == 6;
    return false;
}

bool Planta(Total t, int b) {
    if (t.Blanda) return t.Puntos >= 19 || (t.Puntos == 18 && b >= 2 && b <= 8);
    if (t.Puntos >= 17) return true;
    if (t.Puntos == 12) return b >= 4 && b <= 6;
    if (t.Puntos >= 13) return b >= 2 && b <= 6;
    return false;
}

struct Simulador {
    std::mt19937_64 Azar{20261123};
    int Carta() { return std::min(int(Azar() % 13) + 1, 10); }

    // One seat's series against the bank's first card b; the insurance taken, if any.
    std::vector<Serie> Juega(int b, bool& seguro) {
        std::vector<Serie> series(1);
        series[0].Cartas = {Carta(), Carta()};
        seguro = false;
        bool puedeAsegurar = b == 1;
        for (size_t i = 0; i < series.size(); ++i) {
            // Opening a pair grows the list: the series is found by its index each time.
            auto cartas = [&]() -> std::vector<int>& { return series[i].Cartas; };
            if (cartas().size() == 1) cartas().push_back(Carta());
            for (;;) {
                const Total t = Suma(cartas());
                const bool dos = cartas().size() == 2;
                if (t.Puntos >= 21) break;
                if (series[i].Doblada && cartas().size() == 3) break;
                if (series.size() >= 2 && dos && cartas()[0] == 1 && cartas()[1] != 1) break;
                if (puedeAsegurar) {
                    puedeAsegurar = false;
                    if (t.Puntos >= 12 && t.Puntos <= 18) {
                        seguro = true;
                        continue;
                    }
                }
                if (dos && cartas()[0] == cartas()[1] && series.size() < 4 &&
                    Abre(cartas()[0], b)) {
                    Serie nueva;
                    nueva.Cartas = {cartas()[1]};
                    cartas().pop_back();
                    series.push_back(nueva);
                    cartas().push_back(Carta());
                    continue;
                }
                const bool doblable = dos && t.Puntos >= 9 && t.Puntos <= 11 && b != 1;
                if (doblable && (t.Puntos == 11 || (t.Puntos == 10 && b <= 9) ||
                                 (t.Puntos == 9 && b >= 2 && b <= 6))) {
                    series[i].Doblada = true;
                    cartas().push_back(Carta());
                    continue;
                }
                if (Planta(t, b)) break;
                cartas().push_back(Carta());
            }
        }
        return series;
    }

    // One round of three seats; returns what they win together, in units of their stakes.
    double Ronda() {
        const int b = Carta();
        std::vector<Serie> seats[3];
        bool seguro[3];
        bool alguienVivo = false;
        for (int s = 0; s < 3; ++s) {
            seats[s] = Juega(b, seguro[s]);
            for (const Serie& e : seats[s])
                alguienVivo = alguienVivo || Suma(e.Cartas).Puntos <= 21;
        }
        std::vector<int> banca = {b};
        if (alguienVivo)
            while (Suma(banca).Puntos < 17) banca.push_back(Carta());
        const int tb = Suma(banca).Puntos;
        const bool bancaBJ = banca.size() == 2 && tb == 21;
        double gana = 0;
        for (int s = 0; s < 3; ++s) {
            // An insurance taken before a pair is opened goes with every series.
            if (seguro[s]) gana += (bancaBJ ? 1.0 : -0.5) * double(seats[s].size());
            for (const Serie& e : seats[s]) {
                const double apuesta = e.Doblada ? 2 : 1;
                const int t = Suma(e.Cartas).Puntos;
                if (t > 21) {
                    gana -= apuesta;
                    continue;
                }
                const bool bj = t == 21 && e.Cartas.size() == 2 && seats[s].size() == 1;
                const int p = bj ? 22 : t, q = bancaBJ ? 22 : tb;
                if (tb <= 21 && p <= q)
                    gana -= p == q ? 0 : apuesta;
                else
                    gana += bj ? 1.5 : apuesta;
            }
        }
        return gana;
    }
};

} // namespace

// Seats at level 100 play the table: what they lose per unit staked, over whole seeded matches
// at the table, lands where an independent simulation of the same table puts it. The shoe is
// shuffled many times on the way, mostly in the middle of a hand, and every card stays once.
TEST(BlackJack, LossRateAtLevel100MatchesAnIndependentSimulation) {
    Simulador sim;
    constexpr int RONDAS = 400000;
    double suma = 0, suma2 = 0;
    for (int i = 0; i < RONDAS; ++i) {
        const double g = sim.Ronda() / 3;
        suma += g;
        suma2 += g * g;
    }
    const double esperada = -suma / RONDAS;
    const double errorSim = std::sqrt((suma2 / RONDAS - suma * suma / RONDAS / RONDAS) / RONDAS);

    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    std::vector<double> ganaBanca, apostado;
    const int barajadasAntes = VecesBarajado;
    const bool antes = ComprobarCoherencia;
    ComprobarCoherencia = true;
    PinturaOmitida = true;
    constexpr int MANOS_POR_PARTIDA = 60;
    for (unsigned semilla = 1; semilla <= 200; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_BLACKJACK, 4, false, [] {
                                      RestoInicial = 995;
                                      ApuestaMaxima = 30;
                                  }});
        for (int s = 1; s <= 4; ++s) {
            NivelJugador[s] = 100;
            CaracterJugador[s] = 3;
        }
        PausasACero = VuelosOmitidos = true;
        SemillaFija = semilla;
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (FaseJuego != FASE_FIN_MANO) return;
            ganaBanca.push_back(RegistroManos[NumeroMano].Banca);
            apostado.push_back(ApuestasDeLaMano);
            if (NumeroMano >= MANOS_POR_PARTIDA) PartidaViva = false;
        };
        RespuestasGuionadas.assign(4, false);
        NuevaPartida();
        PersonaGuionada = nullptr;
    }
    ComprobarCoherencia = antes;
    SemillaFija = 0;
    PausasACero = VuelosOmitidos = PinturaOmitida = false;
    double g = 0, a = 0;
    for (size_t i = 0; i < ganaBanca.size(); ++i) {
        g += ganaBanca[i];
        a += apostado[i];
    }
    const double tasa = g / a;
    // The error of a ratio of sums, from the spread of the hands about it.
    double desvio = 0;
    for (size_t i = 0; i < ganaBanca.size(); ++i)
        desvio += std::pow(ganaBanca[i] - tasa * apostado[i], 2);
    const double error = std::sqrt(desvio) / a;
    std::printf("Black Jack nivel 100: pierde %.4f ± %.4f por unidad en %zu manos (simulación "
                "%.4f ± %.4f)\n",
                tasa, error, ganaBanca.size(), esperada, errorSim);
    EXPECT_GT(ganaBanca.size(), 10000u);
    EXPECT_NEAR(tasa, esperada, 4 * std::hypot(error, errorSim));
    EXPECT_GT(VecesBarajado - barajadasAntes, 300);
}

// Whole seeded matches on little money end at the first hand after which the bank, or every seat
// that plays against it, is broke, and say which.
TEST(BlackJack, AMatchEndsWhenTheBankOrEveryPlayerIsBroke) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    PinturaOmitida = true;
    int bancaRota = 0, jugadoresRotos = 0;
    for (unsigned semilla = 1; semilla <= 40; ++semilla) {
        PreparaPartidaAutomatica({JUEGO_BLACKJACK, 4, false, [] { RestoInicial = 30; }});
        PausasACero = VuelosOmitidos = true;
        SemillaFija = semilla;
        MensajesVistos.clear();
        int manoRota = 0;
        PersonaGuionada = [&] {
            EsperandoPersona = false;
            if (FaseJuego != FASE_FIN_MANO || manoRota != 0) return;
            bool quedan = false;
            for (int s : {1, 3, 4}) quedan = quedan || RestoJugador(s) > 0;
            if (RestoJugador(2) < 1 || !quedan) manoRota = NumeroMano;
        };
        RespuestasGuionadas.assign(4, false);
        NuevaPartida();
        PersonaGuionada = nullptr;
        ASSERT_NE(manoRota, 0) << "semilla " << semilla;
        EXPECT_EQ(NumeroMano, manoRota) << "semilla " << semilla;
        std::vector<QString> finales;
        for (const auto& m : MensajesVistos)
            if (m.Titulo == "Final de Partida") finales.push_back(m.Texto);
        ASSERT_EQ(finales.size(), 1u) << "semilla " << semilla;
        if (RestoJugador(2) < 1) {
            ++bancaRota;
            EXPECT_EQ(finales[0], "La banca se ha quedado sin fondos");
        } else {
            ++jugadoresRotos;
            EXPECT_EQ(finales[0], "Todos los jugadores se han quedado sin fondos");
        }
    }
    PinturaOmitida = PausasACero = VuelosOmitidos = false;
    SemillaFija = 0;
    EXPECT_GT(bancaRota, 0);
    EXPECT_GT(jugadoresRotos, 0);
}
