// The lances of the Mus: how every hand of the deck is classed, counted against a plain rule
// written here, and who takes each lance in hands worked out by hand.
#include "frame/Baraja.h"
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"
#include "support/MesaDePrueba.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include <gtest/gtest.h>

namespace {

void PreparaMus(int tipo, int real = 1) {
    JuegoActual = JUEGO_MUS;
    TipoMus = tipo;
    TreintaYUnaReal = real;
    ParametrosJuego();
}

// "Ro Ce 7b As": value A, 2..7, S Sota, C Caballo, R Rey; suit o c e b.
void DaMano(int seat, const char* texto) {
    const QStringList cartas = QString::fromUtf8(texto).split(' ');
    for (int p = 1; p <= 4; ++p) {
        const QString c = cartas[p - 1];
        const QChar v = c[0];
        const int valor = v == 'A'   ? 1
                          : v == 'S' ? 10
                          : v == 'C' ? 11
                          : v == 'R' ? 12
                                     : v.digitValue();
        CartasJugador[seat][1][p][CAMPO_PALO] = QStringLiteral("oceb").indexOf(c[1]) + 1;
        CartasJugador[seat][1][p][CAMPO_VALOR] = valor;
    }
    NumCartas[seat][1] = 4;
}

// The plain rule: the grade and the count of a card, straight from the rules of each Mus.
int Grado(int valor, int tipo) {
    if (tipo == 2 && valor == 3) return 10;
    if (tipo == 2 && valor == 2) return 1;
    return valor <= 7 ? valor : valor - 2;
}

int Puntos(int valor, int tipo) {
    if (tipo == 2 && valor == 3) return 10;
    if (tipo == 2 && valor == 2) return 1;
    return valor <= 7 ? valor : 10;
}

struct Cuentas {
    int Pares = 0, Medias = 0, Duples = 0, Juego = 0, La31 = 0, Punto = 0, Manos = 0;
    bool operator==(const Cuentas&) const = default;
};

} // namespace

// Every four cards of the 40 once: the evaluator's classes against the counts of the plain rule,
// and the 715 rows of the table, by their weights, against both.
TEST(MusLances, EveryHandOfTheDeckIsClassedAsThePlainRuleCountsIt) {
    MesaDePrueba mesa;
    for (int tipo = 1; tipo <= 2; ++tipo) {
        PreparaMus(tipo);
        int cartas[40][2];
        int n = 0;
        for (int palo = 1; palo <= 4; ++palo)
            for (int valor : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12})
                cartas[n][0] = palo, cartas[n++][1] = valor;
        Cuentas evaluador, regla;
        for (int a = 0; a < 40; ++a)
            for (int b = a + 1; b < 40; ++b)
                for (int c = b + 1; c < 40; ++c)
                    for (int d = c + 1; d < 40; ++d) {
                        const int mano[4] = {a, b, c, d};
                        std::map<int, int> grados;
                        int total = 0;
                        for (int k = 0; k < 4; ++k) {
                            CartasEvaluadas[k + 1][1] = cartas[mano[k]][0];
                            CartasEvaluadas[k + 1][2] = cartas[mano[k]][1];
                            ++grados[Grado(cartas[mano[k]][1], tipo)];
                            total += Puntos(cartas[mano[k]][1], tipo);
                        }
                        EvaluaManoMus(0, true);
                        const ValorMano& v = ValoresMusActual;
                        ++evaluador.Manos;
                        evaluador.Pares += v.ClasePares == 1;
                        evaluador.Medias += v.ClasePares == 2;
                        evaluador.Duples += v.ClasePares == 3;
                        evaluador.Juego += v.TotalJuego >= 31;
                        evaluador.La31 += v.TotalJuego == 31;
                        evaluador.Punto += v.Punto > 0;
                        std::vector<int> veces;
                        for (const auto& [g, k] : grados) veces.push_back(k);
                        std::sort(veces.rbegin(), veces.rend());
                        ++regla.Manos;
                        regla.Pares += veces == std::vector<int>{2, 1, 1};
                        regla.Medias += veces == std::vector<int>{3, 1};
                        regla.Duples +=
                            veces == std::vector<int>{2, 2} || veces == std::vector<int>{4};
                        regla.Juego += total >= 31;
                        regla.La31 += total == 31;
                        regla.Punto += total < 31;
                    }
        EXPECT_EQ(regla.Manos, TOTAL_COMBINACIONES);
        EXPECT_TRUE(evaluador == regla) << "TipoMus " << tipo;
        EXPECT_EQ(evaluador.Pares, regla.Pares);
        EXPECT_EQ(evaluador.Medias, regla.Medias);
        EXPECT_EQ(evaluador.Duples, regla.Duples);
        EXPECT_EQ(evaluador.Juego, regla.Juego);
        EXPECT_EQ(evaluador.La31, regla.La31);
        EXPECT_EQ(evaluador.Punto, regla.Punto);
        // The table of all hands weighs each row by the real hands it stands for.
        Cuentas tabla;
        for (int f = 1; f <= NUM_COMBINACIONES; ++f) {
            const CombinacionMus& r = CombinacionesMus[f];
            tabla.Manos += r.Peso;
            tabla.Pares += r.Pares >= 2000 && r.Pares < 3000 ? r.Peso : 0;
            tabla.Medias += r.Pares >= 3000 && r.Pares < 4000 ? r.Peso : 0;
            tabla.Duples += r.Pares >= 4000 ? r.Peso : 0;
            tabla.Juego += r.TotalJuego >= 31 ? r.Peso : 0;
            tabla.La31 += r.TotalJuego == 31 ? r.Peso : 0;
            tabla.Punto += r.Punto > 0 ? r.Peso : 0;
        }
        EXPECT_TRUE(tabla == regla) << "TipoMus " << tipo;
        std::printf("[          ] TipoMus %d: pares %.4f medias %.4f duples %.4f juego %.4f "
                    "la 31 %.4f punto %.4f\n",
                    tipo, regla.Pares / double(regla.Manos), regla.Medias / double(regla.Manos),
                    regla.Duples / double(regla.Manos), regla.Juego / double(regla.Manos),
                    regla.La31 / double(regla.Manos), regla.Punto / double(regla.Manos));
    }
}

// The values of a few hands, worked out by hand.
TEST(MusLances, HandsAreValuedLanceByLance) {
    MesaDePrueba mesa;
    const struct {
        int tipo;
        const char* mano;
        int grande, chica, pares, clase, total, rango, punto;
    } casos[] = {
        {1, "Ro Rc Re Rb", 9999, 0, 4990, 3, 40, 3, 0},
        {1, "Ao Ac Ae Ab", 0, 9999, 4000, 3, 0, 0, 4},
        {1, "Ao Ac 2o 3o", 2100, 9987, 2021, 1, 0, 0, 7},
        {2, "Ao Ac 2o 3o", 9000, 9990, 3090, 2, 0, 0, 13},
        {1, "Ro Ao Ac Ae", 9000, 9990, 3090, 2, 0, 0, 13},
        {1, "7o 7c 7e So", 7666, 3332, 3670, 2, 31, 1, 0},
        {1, "Ro So 7c 3c", 9762, 7320, 0, 0, 0, 0, 30},
        {2, "Ro 3c Co So", 9987, 2100, 2987, 1, 40, 3, 0}, // 40 with a 3 as a king
        {1, "Ro Rc Ao Ac", 9900, 9900, 4900, 3, 0, 0, 22},
    };
    for (const auto& c : casos) {
        PreparaMus(c.tipo);
        DaMano(1, c.mano);
        EvaluaManoMus(1);
        const ValorMano& v = ValoresMusActual;
        EXPECT_EQ(v.Grande, c.grande) << c.mano;
        EXPECT_EQ(v.Chica, c.chica) << c.mano;
        EXPECT_EQ(v.Pares, c.pares) << c.mano;
        EXPECT_EQ(v.ClasePares, c.clase) << c.mano;
        EXPECT_EQ(v.TotalJuego, c.total) << c.mano;
        EXPECT_EQ(v.RangoJuego, c.rango) << c.mano;
        EXPECT_EQ(v.Punto, c.punto) << c.mano;
        EXPECT_EQ(LanceMus[LANCE_PARES].Tiene[1], c.pares != 0) << c.mano;
        EXPECT_EQ(LanceMus[LANCE_JUEGO].Tiene[1], c.total != 0) << c.mano;
    }
}

// Four hands on the table, the mano and the lance: who takes it. Ties go to the seat nearest the
// mano; the real 31 beats any 31 scanned before it.
TEST(MusLances, TheLanceGoesToTheBestHandAndTiesToTheMano) {
    MesaDePrueba mesa;
    const struct {
        int tipo, real, lance, mano;
        const char* manos[4];
        int ganador;
    } casos[] = {
        // Grandes: the kings count, then the next card down.
        {1, 1, LANCE_GRANDE, 1, {"Ro Rc Ao Ac", "Re Cb 7o 7c", "5o 5c 4o 4c", "6o 6c 6e 6b"}, 1},
        {1, 1, LANCE_GRANDE, 1, {"Ao Ac Ae Ab", "Ro Co So 7o", "5o 5c 4o 4c", "Rc Cc Sc 7c"}, 2},
        {1, 1, LANCE_GRANDE, 3, {"Ao Ac Ae Ab", "Ro Co So 7o", "5o 5c 4o 4c", "Rc Cc Sc 7c"}, 4},
        // With 8 kings a 3 is a king: four of them beat two kings and two caballos.
        {2, 1, LANCE_GRANDE, 1, {"Re Rb Ce Cb", "3o 3c Ro Rc", "5o 5c 4o 4c", "6o 6c 6e 6b"}, 2},
        {1, 1, LANCE_GRANDE, 1, {"Re Rb Ce Cb", "3o 3c Ro Rc", "5o 5c 4o 4c", "6o 6c 6e 6b"}, 1},
        // Chicas: with 8 kings a 2 is an ace, and two hands tie.
        {1, 1, LANCE_CHICA, 1, {"Ro Rc Re Rb", "Ao Ac 2o 4o", "Ae Ab 3c 3e", "2c 2e 2b 4c"}, 2},
        {2, 1, LANCE_CHICA, 1, {"Ro Rc Re Rb", "Ao Ac 2o 4o", "Ae Ab 3c 3e", "2c 2e 2b 4c"}, 2},
        {2, 1, LANCE_CHICA, 3, {"Ro Rc Re Rb", "Ao Ac 2o 4o", "Ae Ab 3c 3e", "2c 2e 2b 4c"}, 4},
        // Pares: duples over medias over a par; a higher card decides a par; equal pares tie.
        {1, 1, LANCE_PARES, 1, {"7o 7c 7e Ro", "Rc Re Ao Ac", "5o 5c 4o 6c", "Sb 2c 3e 4e"}, 2},
        {2, 1, LANCE_PARES, 1, {"7o 7c 7e Ro", "3o 3c 3e 4o", "5o 5c 4e 6c", "Sb 2c Ae 4b"}, 2},
        {1, 1, LANCE_PARES, 1, {"7o 7c 7e Ro", "3o 3c 3e 4o", "5o 5c 4e 6c", "Sb 2c Ae 4b"}, 1},
        {1, 1, LANCE_PARES, 1, {"Ro Rc 5o 4o", "Re Rb 6c 4c", "Ao 2c 3e 7e", "Sb 2b Ae 6b"}, 2},
        {1, 1, LANCE_PARES, 2, {"Ro Rc 5o 4o", "Ao 2c 3e 7e", "Re Rb 5c 4c", "Sb 2b Ae 6b"}, 3},
        {1, 1, LANCE_PARES, 4, {"Ro Rc 5o 4o", "Ao 2c 3e 7e", "Re Rb 5c 4c", "Sb 2b Ae 6b"}, 1},
        // Juego: 31, 32, 40, 37 and down to 33; nobody without juego takes it.
        {1, 1, LANCE_JUEGO, 4, {"Ro Rc Ao Co", "Re Rb 2o Sc", "Se Sb Ce Cb", "Ae Ab 2c 3c"}, 1},
        {1, 1, LANCE_JUEGO, 4, {"Ro Rc Sc 7c", "Re Rb 2o 4c", "Se Sb Ce Cb", "Ao Ac 2c 3c"}, 3},
        {1, 1, LANCE_JUEGO, 1, {"Ro Rc Sc 3c", "Ao Ac 2c 4c", "Re Sb Cb 3e", "5o 5c 2e 4e"}, 1},
        // The real 31, by each option.
        {1, 1, LANCE_JUEGO, 1, {"Ro Rc Ao Co", "7o 7c 7e So", "5o 5c 4o 4c", "Ae Ab 2c 3c"}, 1},
        {1, 2, LANCE_JUEGO, 1, {"Ro Rc Ao Co", "7o 7c 7e So", "5o 5c 4o 4c", "Ae Ab 2c 3c"}, 2},
        {1, 2, LANCE_JUEGO, 3, {"Ro Rc Ao Co", "7o 7c 7e So", "5o 5c 4o 4c", "Ae Ab 2c 3c"}, 2},
        {1, 3, LANCE_JUEGO, 1, {"Ro Rc Ao Co", "7o 7c 7e So", "5o 5c 4o 4c", "Ae Ab 2c 3c"}, 1},
        {1, 3, LANCE_JUEGO, 1, {"Rc Re Ao Co", "7o 7c 7e Ro", "5o 5c 4o 4c", "Ae Ab 2c 3c"}, 2},
        {2, 3, LANCE_JUEGO, 1, {"Rc Re Ao Co", "7o 7c 7e 3o", "5o 5c 4o 4c", "Ae Ab 2c Sc"}, 2},
        {2, 4, LANCE_JUEGO, 1, {"Rc Re Ao Co", "7o 7c 7e 3o", "5o 5c 4o 4c", "Ae Ab 2c Sc"}, 1},
        {1, 4, LANCE_JUEGO, 1, {"Rc Re Ao Co", "7o 7c 7e Ro", "5o 5c 4o 4c", "Ae Ab 2c Sc"}, 2},
        {1, 5, LANCE_JUEGO, 1, {"Rc Re Ao So", "7o 7c 7e Co", "5o 5c 4o 4c", "Ae Ab 2c Sc"}, 2},
        {1, 6, LANCE_JUEGO, 1, {"Rc Re Ao Co", "7c 7e 7b So", "5o 5c 4o 4c", "Ae Ab 2c Sc"}, 2},
        {1, 6, LANCE_JUEGO, 1, {"Rc Re Ao Co", "7o 7e 7b Sc", "5o 5c 4o 4c", "Ae Ab 2c Sb"}, 1},
        // Punto: 30 is the best; equal points go to the mano's side of the table.
        {1, 1, LANCE_PUNTO, 1, {"Ao Ac 2o 4o", "Ro So 7c 3c", "Rc Sc 7e 2c", "Ae Ab 2e 4e"}, 2},
        {1, 1, LANCE_PUNTO, 4, {"Ro So 7c 2c", "Ao Ac 2o 4o", "Rc Sc 7e 2e", "Ae Ab 2b 4e"}, 1},
        {1, 1, LANCE_PUNTO, 2, {"Ro So 7c 2c", "Ao Ac 2o 4o", "Rc Sc 7e 2e", "Ae Ab 2b 4e"}, 3},
    };
    for (const auto& c : casos) {
        PreparaMus(c.tipo, c.real);
        for (int s = 1; s <= 4; ++s) {
            DaMano(s, c.manos[s - 1]);
            EvaluaManoMus(s);
            ValoresMus[s] = ValoresMusActual;
        }
        JugadorMano = c.mano;
        EXPECT_EQ(GanadorLance(c.lance), c.ganador)
            << "lance " << c.lance << " TipoMus " << c.tipo << " real " << c.real << " mano "
            << c.mano << ": " << c.manos[0] << " | " << c.manos[1] << " | " << c.manos[2] << " | "
            << c.manos[3];
    }
}

// A hand's standing against the whole deck: the better, equal and worse hands add up to all of
// them, and four kings are beaten by no hand at Grandes.
TEST(MusLances, TheCountsAgainstTheDeckAddUp) {
    MesaDePrueba mesa;
    PreparaMus(1);
    DaMano(1, "Ro Rc Re Rb");
    EvaluaManoMus(1);
    ComparaManoMus();
    for (int l = LANCE_GRANDE; l <= LANCE_PARES; ++l)
        EXPECT_EQ(ConteoCombinaciones[1][l] + ConteoCombinaciones[2][l] + ConteoCombinaciones[3][l],
                  TOTAL_COMBINACIONES);
    EXPECT_EQ(ConteoCombinaciones[CONTEO_MEJORES][LANCE_GRANDE], 0);
    EXPECT_EQ(ConteoCombinaciones[CONTEO_IGUALES][LANCE_GRANDE], 1); // the four kings alone
    EXPECT_FLOAT_EQ(PorcentajeMejores[LANCE_GRANDE], 100.0f / TOTAL_COMBINACIONES);
    EXPECT_EQ(ConteoCombinaciones[1][LANCE_JUEGO] + ConteoCombinaciones[2][LANCE_JUEGO] +
                  ConteoCombinaciones[3][LANCE_JUEGO],
              TotalConJuego);
    EXPECT_EQ(PorcentajeMejores[LANCE_PUNTO], 0.0f);
}
