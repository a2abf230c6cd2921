// The arithmetic and the formats everything else leans on.
#include <gtest/gtest.h>

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"

TEST(Base, RoundGoesToTheEvenNeighbourAndIntFloors) {
    const struct {
        double x;
        int redondeo, entero;
    } casos[] = {{0.5, 0, 0},    {1.5, 2, 1},    {2.5, 2, 2},    {3.5, 4, 3},    {-0.5, 0, -1},
                 {-1.5, -2, -2}, {-2.5, -2, -3}, {2.4999, 2, 2}, {70.5, 70, 70}, {-70.5, -70, -71}};
    for (const auto& c : casos) {
        EXPECT_EQ(Redondea(c.x), c.redondeo) << c.x;
        EXPECT_EQ(Ent(c.x), c.entero) << c.x;
    }
}

TEST(Base, IntegerDivisionRoundsItsSidesThenTruncates) {
    EXPECT_EQ(DivEntera(7, 2), 3);
    EXPECT_EQ(DivEntera(-7, 2), -3);
    EXPECT_EQ(DivEntera(2.5, 1), 2); // 2.5 rounds to 2 first
    EXPECT_EQ(DivEntera(3.5, 2), 2); // 3.5 rounds to 4
    EXPECT_EQ(DivEntera(149, 11), 13);
    EXPECT_EQ(DivEntera(5, 0), 0);
}

TEST(Base, NumberFormatsPadRoundHalfAwayAndKeepTheirDecimals) {
    const struct {
        double valor;
        const char* formato;
        const char* texto;
    } casos[] = {
        {7, "000", "007"},
        {123, "000", "123"},
        {1234, "000", "1234"},
        {-1, "000", "-001"},
        {0, "##0", "0"},
        {7, "##0", "7"},
        {1234, "#####0", "1234"},
        {3.14159, "000.00", "003.14"},
        {2.675, "000.00", "002.68"},
        {0.5, "0", "1"},
        {2.5, "0", "3"},
        {-2.5, "0", "-3"},
        {50, "00", "50"},
        {5, "00", "05"},
        {1234567, "#,##0", "1,234,567"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Formato(c.valor, c.formato), QString(c.texto)) << c.valor << " " << c.formato;
}

TEST(Base, TextFormatsFillFromTheRightOrFromTheLeft) {
    EXPECT_EQ(FormatoTexto("7", "@@@"), "  7");
    EXPECT_EQ(FormatoTexto(640, "@@@"), "640");
    EXPECT_EQ(FormatoTexto("ab", "!@@@@"), "ab  ");
    EXPECT_EQ(FormatoTexto("Jugador1", "!@@@@@@@@@@@"), "Jugador1   ");
    EXPECT_EQ(FormatoTexto("abcd", "@@@"), "abcd"); // a wider text shows whole
    EXPECT_EQ(FormatoTexto(-5, "@@@@@"), "   -5");
}

TEST(Base, FiguresForPeopleUseSpanishSeparators) {
    EXPECT_EQ(CifraEspanola(1234.5, 2), "1.234,50");
    EXPECT_EQ(CifraEspanola(200), "200");
    EXPECT_EQ(CifraEspanola(-12000), "-12.000");
}

TEST(Base, FixedColumnsAreCutAndPaddedAndReadPastTheEnd) {
    QString linea;
    PonColumna(linea, 3, 4, "abcdef");
    EXPECT_EQ(linea, "  abcd");
    PonColumna(linea, 1, 2, "x");
    EXPECT_EQ(linea, "x abcd");
    EXPECT_EQ(LeeColumna(linea, 5, 4), "cd  ");
    EXPECT_EQ(LeeColumna("abc", 10, 2), "  ");
}

TEST(Base, ValReadsTheNumericPrefix) {
    const struct {
        const char* texto;
        double valor;
    } casos[] = {{"", 0},     {"   ", 0},   {"x1", 0},    {"12ab", 12}, {" -3", -3},
                 {"1 2", 12}, {"-99", -99}, {"2.5", 2.5}, {"+7", 7}};
    for (const auto& c : casos) EXPECT_DOUBLE_EQ(Val(c.texto), c.valor) << c.texto;
}

TEST(Base, NamesAreCapitalisedWordByWord) {
    EXPECT_EQ(NormalizaNombre("JUAN PEPE"), "Juan Pepe");
    EXPECT_EQ(NormalizaNombre("maría"), "María");
    EXPECT_EQ(NormalizaNombre("ñoño"), "Ñoño");
    EXPECT_EQ(NormalizaNombre("a  b"), "A  B");
}

TEST(Base, TheRandomSourceIsUniformInTheUnitIntervalAndReproducible) {
    RandomizaCon(42);
    const double primero = Rnd();
    RandomizaCon(42);
    EXPECT_DOUBLE_EQ(Rnd(), primero);
    int cuentas[10] = {};
    for (int i = 0; i < 100000; ++i) {
        const double r = Rnd();
        ASSERT_GE(r, 0.0);
        ASSERT_LT(r, 1.0);
        ++cuentas[static_cast<int>(r * 10)];
    }
    for (int c : cuentas) EXPECT_NEAR(c, 10000, 600);
}

// ---- Walking round the table ----

TEST(Asientos, WalkSkipsInactiveSeatsInEitherDirection) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    EstadoJugador[2] = EstadoJugador[4] = ESTADO_DESACTIVADO;
    for (int paso : {1, -1}) {
        PasoSentido = paso;
        int s = 1;
        SiguienteJugador(s);
        EXPECT_EQ(s, 3);
        SiguienteJugador(s);
        EXPECT_EQ(s, 1);
        AnteriorJugador(s);
        EXPECT_EQ(s, 3);
    }
    PasoSentido = 1;
    EstadoJugador[2] = ESTADO_ACTIVADO;
    int s = 4;
    SiguienteJugador(s);
    EXPECT_EQ(s, 1);
    AnteriorJugador(s);
    EXPECT_EQ(s, 3); // 4 is off
}

TEST(Asientos, ChinchonAndPumbaPassOverSeatsOutOfTheMatch) {
    MesaDePrueba mesa;
    for (int s = 1; s <= 4; ++s) JuegaMano[s] = true;
    JuegaMano[2] = false;
    JuegoActual = JUEGO_TUTE;
    int s = 1;
    SiguienteJugador(s);
    EXPECT_EQ(s, 2) << "Tute doesn't look at JuegaMano";
    JuegoActual = JUEGO_CHINCHON;
    s = 1;
    SiguienteJugador(s);
    EXPECT_EQ(s, 3);
    JuegoActual = JUEGO_PUMBA;
    PasoSentidoPumba = -1; // a reversal in Pumba
    s = 3;
    SiguienteJugador(s);
    EXPECT_EQ(s, 1);
}

TEST(Asientos, TotalPointsAddTheResultsAndAChinchonCloseCountsNothing) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_CHINCHON;
    NumeroMano = 3;
    RegistroManos[1].Resultado[2] = "5";
    RegistroManos[2].Resultado[2] = "-99";
    RegistroManos[3].Resultado[2] = "7   ";
    RegistroManos[4].Resultado[2] = "100"; // beyond the hands played: not counted
    EXPECT_EQ(TotalPuntos(2), 12);
    EXPECT_EQ(TotalPuntos(1), 0);
}
