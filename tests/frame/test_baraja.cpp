// The deck of each game, the shuffle, the deal by turns and by hand, the draws from the stock.
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <QColor>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

using Carta = std::pair<int, int>; // suit, value

struct Juego {
    int Codigo;
    int Jugadores = 4;
    int CartaMinima = 1;
    int Comodines = 1; // OpcionComodines
    int TipoEspanola = 1;
    int Mus = 2;
};

void PonJuego(const Juego& j) {
    JuegoActual = j.Codigo;
    NumJugadores = j.Jugadores;
    CartaMinimaPoker = j.CartaMinima;
    OpcionComodines = j.Comodines;
    TipoBarajaEspanola = j.TipoEspanola;
    TipoMus = j.Mus;
    for (int seat = 1; seat <= 4; ++seat) EstadoJugador[seat] = ESTADO_ACTIVADO;
    // With fewer seats, seat 2 is the one left out.
    if (j.Jugadores == 3) EstadoJugador[2] = ESTADO_DESACTIVADO;
    if (j.Jugadores == 2) EstadoJugador[1] = EstadoJugador[3] = ESTADO_DESACTIVADO;
    ParametrosJuego();
}

Carta CartaMano(int seat, int pos, int serie = 1) {
    return {CartasJugador[seat][serie][pos][CAMPO_PALO],
            CartasJugador[seat][serie][pos][CAMPO_VALOR]};
}

Carta CartaBaraja(int pos) {
    return {Baraja[pos][CAMPO_PALO], Baraja[pos][CAMPO_VALOR]};
}

// Every card the deck of the game in play holds, as many times as it has decks.
std::multiset<Carta> CartasEnJuego() {
    std::multiset<Carta> cartas;
    const int palos = 4, valores = CartasPorPalo;
    for (int palo = 1; palo <= palos; ++palo)
        for (int valor = 1; valor <= valores; ++valor)
            if (ValorEnJuego[valor])
                for (int b = 0; b < NumBarajas; ++b) cartas.insert({palo, valor});
    for (int n = 1; n <= NumComodines; ++n) cartas.insert({PALO_COMODIN, 90 + n});
    return cartas;
}

std::multiset<Carta> CartasDeManos() {
    std::multiset<Carta> cartas;
    for (int seat = 1; seat <= 4; ++seat)
        for (int pos = 1; pos <= NumCartas[seat][1]; ++pos) cartas.insert(CartaMano(seat, pos));
    return cartas;
}

std::multiset<Carta> TramoBaraja(int desde, int hasta) {
    std::multiset<Carta> cartas;
    for (int pos = desde; pos <= hasta; ++pos) cartas.insert(CartaBaraja(pos));
    return cartas;
}

unsigned PixelMesa(int x, int y) {
    return Pic_Mesa.Imagen.pixel(x, y) & 0xFFFFFF;
}

class BarajaTest : public ::testing::Test {
  protected:
    void SetUp() override {
        VelocidadJuego = 100;
        SonidoActivado = false;
        VocesActivadas = false;
        static bool mesaPreparada = false;
        if (!mesaPreparada) {
            AnchoVentana = 1024;
            AltoVentana = 768;
            PreparaMesa();
            mesaPreparada = true;
        }
        MensajesVistos.clear();
        RespuestasGuionadas.clear();
        PersonaGuionada = nullptr;
        std::memset(CartasJugador, 0, sizeof CartasJugador);
        std::memset(NumCartas, 0, sizeof NumCartas);
        std::memset(Baraja, 0, sizeof Baraja);
        std::memset(Pozo, 0, sizeof Pozo);
        std::memset(Fichas, 0, sizeof Fichas);
        std::memset(Apuesta, 0, sizeof Apuesta);
        CartasEnPozo = 0;
        CartasEnMazo = 0;
        PosicionMazo = 1;
        for (int seat = 1; seat <= 4; ++seat) {
            EstadoJugador[seat] = ESTADO_ACTIVADO;
            CartasVisibles[seat] = seat == 4 ? CARA_VISIBLE : CARA_OCULTA;
            JuegaMano[seat] = true;
            RegistroManos[1].Resultado[seat].clear();
        }
        NumeroMano = 0;
        ModoReparto = 1;
        SentidoJuego = 1;
        PasoSentido = 1;
        PasoSentidoPumba = 1;
        SerieActual = NumSeries = 1;
        ArrastrandoCarta = ArrastrandoMiniatura = false;
        AnularReparto = Repartiendo = false;
        CartasSiempreOrdenadas = false;
        PartidaViva = true;
        JugadorMano = 1;
        JugadorBanca = 2;
        ApuestaMinima = 5;
        MazoX = MazoBaseX;
        MazoY = MazoBaseY;
        RandomizaCon(20240611);
    }
    void TearDown() override {
        PersonaGuionada = nullptr;
        ModoReparto = 1;
        AnularReparto = false;
        ArrastrandoMiniatura = false;
        std::memset(MiniaturaElegida, 0, sizeof MiniaturaElegida);
    }
};

// ---------------------------------------------------------------------------------------------
// The deck of every game and option.

struct CasoBaraja {
    const char* Nombre;
    Juego J;
    int Tipo, Valores, Normales, NumComod, EnBaraja, Ids, Barajas, PorJugador, PorTanda, MaxMano;
    std::vector<int> Fuera; // values out of play
};

const std::vector<CasoBaraja>& CasosBaraja() {
    // clang-format off
    static const std::vector<CasoBaraja> casos = {
        // name, game; deck type, values, normal cards, jokers, in the deck, ids, decks,
        // cards a seat, a go, most in a hand; values out of play
        {"Poker", {JUEGO_POKER, 4, 1, 1}, 2, 13, 52, 0, 52, 52, 1, 5, 1, 5, {}},
        {"Poker 3+ 1c", {JUEGO_POKER, 4, 2, 2}, 2, 12, 48, 1, 49, 53, 1, 5, 1, 5, {2}},
        {"Poker 5+", {JUEGO_POKER, 4, 4, 1}, 2, 10, 40, 0, 40, 52, 1, 5, 1, 5, {2, 3, 4}},
        {"Poker 7+ 2c", {JUEGO_POKER, 4, 6, 3}, 2, 8, 32, 2, 34, 54, 1, 5, 1, 5, {2, 3, 4, 5, 6}},
        {"Black Jack", {JUEGO_BLACKJACK, 4}, 2, 13, 312, 0, 312, 52, 6, 2, 1, 11, {}},
        {"Tute 2", {JUEGO_TUTE, 2}, 1, 10, 40, 0, 40, 48, 1, 6, 3, 6, {8, 9, 13}},
        {"Tute 3", {JUEGO_TUTE, 3}, 1, 9, 36, 0, 36, 48, 1, 12, 3, 12, {2, 8, 9, 13}},
        {"Tute 4", {JUEGO_TUTE, 4}, 1, 10, 40, 0, 40, 48, 1, 10, 5, 10, {8, 9, 13}},
        {"Brisca 2", {JUEGO_BRISCA, 2}, 1, 10, 40, 0, 40, 48, 1, 3, 1, 3, {8, 9, 13}},
        {"Brisca 3", {JUEGO_BRISCA, 3}, 1, 9, 36, 0, 36, 48, 1, 3, 1, 3, {2, 8, 9, 13}},
        {"Brisca 4", {JUEGO_BRISCA, 4}, 1, 10, 40, 0, 40, 48, 1, 3, 1, 3, {8, 9, 13}},
        {"Siete y media", {JUEGO_SIETEYMEDIA, 4}, 1, 10, 40, 0, 40, 48, 1, 1, 1, 14, {8, 9, 13}},
        {"Cinquillo", {JUEGO_CINQUILLO, 4}, 1, 10, 40, 0, 40, 48, 1, 10, 5, 10, {8, 9, 13}},
        {"Mus", {JUEGO_MUS, 4}, 1, 10, 40, 0, 40, 48, 1, 4, 1, 4, {8, 9, 13}},
        {"Chinchon48", {JUEGO_CHINCHON, 4, 1, 1, 1}, 1, 12, 48, 0, 48, 48, 1, 7, 1, 25, {13}},
        {"Chinchon40", {JUEGO_CHINCHON, 4, 1, 1, 2}, 1, 10, 40, 0, 40, 48, 1, 7, 1, 21, {8, 9, 13}},
        {"Pumba", {JUEGO_PUMBA, 4}, 1, 10, 40, 0, 40, 48, 1, 5, 1, 31, {8, 9, 13}},
    };
    // clang-format on
    return casos;
}

TEST_F(BarajaTest, CadaJuegoTieneSuBaraja) {
    for (const auto& c : CasosBaraja()) {
        SCOPED_TRACE(c.Nombre);
        PonJuego(c.J);
        EXPECT_EQ(TipoBaraja, c.Tipo);
        EXPECT_EQ(ValoresPorPalo, c.Valores);
        EXPECT_EQ(CartasNormales, c.Normales);
        EXPECT_EQ(NumComodines, c.NumComod);
        EXPECT_EQ(CartasBaraja, c.EnBaraja);
        EXPECT_EQ(IdsCartas, c.Ids);
        EXPECT_EQ(NumBarajas, c.Barajas);
        EXPECT_EQ(CartasPorJugador, c.PorJugador);
        EXPECT_EQ(CartasPorTanda, c.PorTanda);
        EXPECT_EQ(MaxCartasMano, c.MaxMano);
        const bool francesa = c.Tipo == 2;
        EXPECT_EQ(IdsNormales, francesa ? 52 : 48);
        EXPECT_EQ(CartasPorPalo, francesa ? 13 : 12);
        EXPECT_EQ(AltoMiniatura, francesa ? 38 : 46);
        for (int v = 1; v <= 13; ++v) {
            const bool fuera = std::count(c.Fuera.begin(), c.Fuera.end(), v) > 0;
            EXPECT_EQ(ValorEnJuego[v], !fuera) << "valor " << v;
        }
        // The cards of a round must be there to deal; Tute and Cinquillo deal them all.
        const int repartidas = CartasPorJugador * c.J.Jugadores;
        const bool todas =
            c.J.Codigo == JUEGO_CINQUILLO || (c.J.Codigo == JUEGO_TUTE && c.J.Jugadores > 2);
        if (todas)
            EXPECT_EQ(repartidas, CartasBaraja);
        else
            EXPECT_LT(repartidas, CartasBaraja);
        EXPECT_EQ(CartasPorJugador % CartasPorTanda, 0);
        EXPECT_EQ(static_cast<int>(CartasEnJuego().size()), CartasBaraja);
    }
}

TEST_F(BarajaTest, PuntosYFuerzaDeLosValores) {
    struct Caso {
        const char* Nombre;
        Juego J;
        std::vector<double> Puntos; // values 1 to 12 (13 for the French deck)
    };
    const std::vector<Caso> casos = {
        {"Black Jack", {JUEGO_BLACKJACK}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 10, 10, 10}},
        {"Tute", {JUEGO_TUTE, 4}, {11, 0, 10, 0, 0, 0, 0, 0, 0, 2, 3, 4}},
        {"Brisca", {JUEGO_BRISCA, 3}, {11, 0, 10, 0, 0, 0, 0, 0, 0, 2, 3, 4}},
        {"Siete y media", {JUEGO_SIETEYMEDIA}, {1, 2, 3, 4, 5, 6, 7, 0, 0, 0.5, 0.5, 0.5}},
        {"Chinchon", {JUEGO_CHINCHON}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 10, 10}},
        {"Mus a 4 reyes", {JUEGO_MUS, 4, 1, 1, 1, 1}, {1, 2, 3, 4, 5, 6, 7, 0, 0, 10, 10, 10}},
        {"Mus a 8 reyes", {JUEGO_MUS, 4, 1, 1, 1, 2}, {1, 1, 10, 4, 5, 6, 7, 0, 0, 10, 10, 10}},
        {"Pumba", {JUEGO_PUMBA}, {1, 10, 3, 4, 5, 6, 7, 0, 0, 10, 9, 10}},
        {"Cinquillo", {JUEGO_CINQUILLO}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Nombre);
        // Another game first, so that nothing of it may linger.
        PonJuego({JUEGO_TUTE, 4});
        PonJuego(c.J);
        for (int v = 1; v <= static_cast<int>(c.Puntos.size()); ++v)
            EXPECT_DOUBLE_EQ(PuntosValor[v], c.Puntos[v - 1]) << "valor " << v;
    }

    // The trick games: 120 points in the deck, and As, Tres, Rey, Caballo, Sota, 7 ... 2.
    for (int juego : {JUEGO_TUTE, JUEGO_BRISCA}) {
        PonJuego({juego, 4});
        double total = 0;
        for (const auto& [palo, valor] : CartasEnJuego()) total += PuntosValor[valor];
        EXPECT_DOUBLE_EQ(total, 120);
        const int fuerza[] = {1, 3, 12, 11, 10, 7, 6, 5, 4, 2};
        for (int i = 0; i + 1 < 10; ++i)
            EXPECT_GT(OrdenValor[fuerza[i]], OrdenValor[fuerza[i + 1]]) << fuerza[i];
    }

    // Poker: following the straight from the ace visits every value once and comes back.
    PonJuego({JUEGO_POKER, 4, 1, 1});
    std::set<int> vistos;
    int v = 1;
    for (int paso = 0; paso < 13; ++paso) {
        vistos.insert(v);
        v = OrdenValor[v];
    }
    EXPECT_EQ(v, 1);
    EXPECT_EQ(vistos.size(), 13u);
    EXPECT_EQ(OrdenValor[13], 1);
    EXPECT_EQ(OrdenValor[10], 11);
}

TEST_F(BarajaTest, AjustesQueFijaCadaJuego) {
    // The bank games play without opening law and with the stake in front of the seat.
    for (int juego : {JUEGO_BLACKJACK, JUEGO_SIETEYMEDIA}) {
        CartaMinimaPoker = 6;
        LeyApertura = 3;
        ApuestaDelante = false;
        JuegoActual = juego;
        ParametrosJuego();
        EXPECT_TRUE(ApuestaDelante);
        EXPECT_EQ(CartaMinimaPoker, 1);
        EXPECT_EQ(LeyApertura, 14);
    }
    PonJuego({JUEGO_POKER, 4, 1, 1});
    EXPECT_FALSE(ApuestaDelante);
    ModalidadPareja = 1;
    PonJuego({JUEGO_MUS});
    EXPECT_EQ(ModalidadPareja, 2);
}

TEST_F(BarajaTest, NombresDeLosValoresSiguenLaBaraja) {
    PonJuego({JUEGO_POKER, 4, 1, 1});
    EXPECT_EQ(NombreValor[1], "As");
    EXPECT_EQ(NombreValorPlural[6], "Seises");
    const QString francesa[5] = {"Diez", "Jota", "Dama", "Rey", "As"};
    const QString francesaPlural[5] = {"Dieces", "Jotas", "Damas", "Reyes", "Ases"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(NombreValor[10 + i], francesa[i]);
        EXPECT_EQ(NombreValorPlural[10 + i], francesaPlural[i]);
    }
    PonJuego({JUEGO_MUS});
    EXPECT_EQ(NombreValor[9], "Nueve");
    EXPECT_EQ(NombreValorPlural[3], "Treses");
    EXPECT_EQ(NombreValor[10], "Sota");
    EXPECT_EQ(NombreValor[11], "Caballo");
    EXPECT_EQ(NombreValorPlural[11], "Caballos");
    EXPECT_EQ(NombreValorPlural[12], "Reyes");
    // The French figures don't stay behind in the Spanish deck.
    EXPECT_EQ(NombreValor[13], "");
    EXPECT_EQ(NombreValorPlural[14], "");
}

// ---------------------------------------------------------------------------------------------
// Ids and words of a card.

TEST_F(BarajaTest, IdsDeCartaIdaYVuelta) {
    for (const Juego& j : {Juego{JUEGO_CHINCHON}, Juego{JUEGO_POKER, 4, 6, 3}}) {
        PonJuego(j);
        PanelRepartoX = 300;
        PanelRepartoY = 200;
        std::set<std::pair<int, int>> sitios;
        for (int id = 1; id <= IdsCartas; ++id) {
            CartaDeId(id);
            const int valor = EsIdComodin(id) ? 90 + ValorCarta : ValorCarta;
            EXPECT_EQ(IdCarta(PaloCarta, valor), id);
            EXPECT_EQ(PaloCarta, EsIdComodin(id) ? PALO_COMODIN : (id - 1) / CartasPorPalo + 1);
            // No two thumbnails share a place, and each stays inside the panel's 13 columns.
            EXPECT_TRUE(sitios.insert({MiniaturaX, MiniaturaY}).second) << id;
            EXPECT_LT(MiniaturaX - PanelRepartoX, 377);
        }
    }
    // Poker from the 7 with two jokers: the jokers are ids 53 and 54.
    PonJuego({JUEGO_POKER, 4, 6, 3});
    EXPECT_EQ(IdCarta(PALO_COMODIN, 91), 53);
    EXPECT_EQ(IdCarta(PALO_COMODIN, 92), 54);
    EXPECT_FALSE(EsIdComodin(52));
    EXPECT_TRUE(EsIdComodin(53));
    EXPECT_TRUE(EsIdComodin(54));
    EXPECT_FALSE(EsIdComodin(55));
    EXPECT_EQ(IdCarta(4, 13), 52);
    EXPECT_EQ(IdCarta(0, 5), 0);
    EXPECT_EQ(IdCarta(3, 0), 0);
    PonJuego({JUEGO_POKER, 4, 1, 1});
    EXPECT_FALSE(EsIdComodin(53));
    PonJuego({JUEGO_MUS});
    EXPECT_EQ(IdCarta(4, 12), 48);
    EXPECT_EQ(IdCarta(2, 1), 13);
}

// ---------------------------------------------------------------------------------------------
// The shuffle.

TEST_F(BarajaTest, MezclaPoneCadaCartaSuVezYNadaMas) {
    for (const auto& c : CasosBaraja()) {
        SCOPED_TRACE(c.Nombre);
        PonJuego(c.J);
        CartasEnPozo = 7;
        PosicionMazo = 30;
        BarajaMazo();
        EXPECT_EQ(CartasEnMazo, CartasBaraja);
        EXPECT_EQ(PosicionMazo, 1);
        EXPECT_EQ(CartasEnPozo, 0);
        EXPECT_EQ(TramoBaraja(1, CartasBaraja), CartasEnJuego());
        for (int pos = CartasBaraja + 1; pos <= MAX_BARAJA; ++pos)
            ASSERT_EQ(Baraja[pos][CAMPO_PALO], 0) << pos;
        EXPECT_EQ(Baraja[0][CAMPO_PALO], 0);
    }
}

TEST_F(BarajaTest, MezclaRepetibleConLaMismaSemilla) {
    PonJuego({JUEGO_BRISCA});
    RandomizaCon(77);
    BarajaMazo();
    const auto primera = std::vector<int>(&Baraja[1][0], &Baraja[41][0]);
    RandomizaCon(77);
    BarajaMazo();
    EXPECT_EQ(primera, std::vector<int>(&Baraja[1][0], &Baraja[41][0]));
    BarajaMazo();
    EXPECT_NE(primera, std::vector<int>(&Baraja[1][0], &Baraja[41][0]));
}

// Every card is equally likely at every place: a chi-square over the table of card by place.
TEST_F(BarajaTest, MezclaUniforme) {
    PonJuego({JUEGO_BRISCA});
    RandomizaCon(12345);
    constexpr int n = 40, mezclas = 2000;
    std::vector<std::vector<int>> cuenta(n, std::vector<int>(n + 1, 0));
    for (int m = 0; m < mezclas; ++m) {
        BarajaMazo();
        for (int pos = 1; pos <= n; ++pos) {
            const int id = IdCarta(Baraja[pos][1], Baraja[pos][2]);
            // Ids of the 40-card deck skip 8 and 9: map them to 0..39.
            const int valor = Baraja[pos][2];
            const int columna = (Baraja[pos][1] - 1) * 10 + (valor <= 7 ? valor : valor - 2) - 1;
            ASSERT_GT(id, 0);
            ++cuenta[columna][pos];
        }
    }
    const double esperado = double(mezclas) / n;
    double chi = 0;
    for (int carta = 0; carta < n; ++carta)
        for (int pos = 1; pos <= n; ++pos)
            chi += std::pow(cuenta[carta][pos] - esperado, 2) / esperado;
    // The table of a random permutation behaves as n/(n-1) times a chi-square with (n-1)^2
    // degrees of freedom. Its quantile at z = 5 (Wilson-Hilferty) keeps a fair shuffle from
    // ever failing; a swap shuffle with a biased partner lands near twice the mean.
    const double gl = (n - 1) * (n - 1);
    const double h = 2.0 / (9 * gl);
    const double limite = double(n) / (n - 1) * gl * std::pow(1 - h + 5 * std::sqrt(h), 3);
    EXPECT_LT(chi, limite);
    EXPECT_GT(chi, double(n) / (n - 1) * gl * std::pow(1 - h - 5 * std::sqrt(h), 3));
}

// ---------------------------------------------------------------------------------------------
// The deal by turns.

struct CasoReparto {
    const char* Nombre;
    Juego J;
    int Mano, Sentido;
    std::vector<int> Turnos; // the seats served in one round, in order
    int Fuera = 0;           // a seat that doesn't take part
};

// The dealt cards come off the stock in turn order: tanda after tanda, each seat its own.
void CompruebaOrdenDeReparto(const std::vector<int>& turnos, int primera) {
    int posMazo = primera;
    int siguiente[5] = {0, 1, 1, 1, 1};
    for (int ronda = 1; ronda <= CartasPorJugador; ronda += CartasPorTanda)
        for (int seat : turnos)
            for (int k = 0; k < CartasPorTanda; ++k) {
                EXPECT_EQ(CartaMano(seat, siguiente[seat]), CartaBaraja(posMazo))
                    << "seat " << seat << " carta " << siguiente[seat];
                ++siguiente[seat];
                ++posMazo;
            }
}

TEST_F(BarajaTest, RepartoPorTurnosDesdeLaMano) {
    const std::vector<CasoReparto> casos = {
        {"Brisca desde el 3", {JUEGO_BRISCA, 4}, 3, 1, {3, 4, 1, 2}},
        {"Tute 4 al reves, de 5 en 5", {JUEGO_TUTE, 4}, 2, 2, {2, 1, 4, 3}},
        {"Tute 3, de 3 en 3", {JUEGO_TUTE, 3}, 4, 1, {4, 1, 3}},
        {"Brisca 3 sin el seat 2", {JUEGO_BRISCA, 3}, 1, 1, {1, 3, 4}},
        {"Chinchon sin el eliminado", {JUEGO_CHINCHON}, 4, 1, {4, 2, 3}, 1},
        {"Mus", {JUEGO_MUS}, 1, 2, {1, 4, 3, 2}},
        {"Cinquillo", {JUEGO_CINQUILLO}, 3, 1, {3, 4, 1, 2}},
        {"Pumba", {JUEGO_PUMBA}, 2, 1, {2, 3, 4, 1}},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Nombre);
        SetUp();
        PonJuego(c.J);
        if (c.Fuera) JuegaMano[c.Fuera] = false;
        SentidoJuego = c.Sentido;
        PasoSentido = PasoSentidoPumba = c.Sentido == 1 ? 1 : -1;
        JugadorMano = c.Mano;
        ReparteCartas();
        EXPECT_FALSE(Repartiendo);
        for (int seat = 1; seat <= 4; ++seat) {
            const bool servido = std::count(c.Turnos.begin(), c.Turnos.end(), seat) > 0;
            EXPECT_EQ(NumCartas[seat][1], servido ? CartasPorJugador : 0) << "seat " << seat;
            for (int pos = 1; pos <= NumCartas[seat][1]; ++pos) {
                EXPECT_EQ(CartasJugador[seat][1][pos][CAMPO_CARA], CartasVisibles[seat]);
                EXPECT_EQ(CartasJugador[seat][1][pos][CAMPO_ESTADO], 2);
                EXPECT_EQ(CartasJugador[seat][1][pos][CAMPO_MARCA], 0);
            }
        }
        CompruebaOrdenDeReparto(c.Turnos, 1);
        const int repartidas = CartasPorJugador * static_cast<int>(c.Turnos.size());
        EXPECT_EQ(CartasEnMazo, CartasBaraja - repartidas);
        EXPECT_EQ(PosicionMazo, repartidas + 1);
    }
}

TEST_F(BarajaTest, RepartoConManosSiempreOrdenadas) {
    // Cinquillo sorts by suit and value: each hand comes out in that order, automatic or manual.
    for (int modo : {1, 2}) {
        SCOPED_TRACE(modo);
        SetUp();
        PonJuego({JUEGO_CINQUILLO});
        JugadoresMano = 4;
        CartasSiempreOrdenadas = true;
        ModoReparto = modo;
        PersonaGuionada = [] { ReparteRestantesAlAzar(); };
        ReparteCartas();
        PersonaGuionada = nullptr;
        for (int seat = 1; seat <= 4; ++seat) {
            ASSERT_EQ(NumCartas[seat][1], 10);
            for (int pos = 1; pos < 10; ++pos)
                EXPECT_LT(CartaMano(seat, pos), CartaMano(seat, pos + 1)) << seat << " " << pos;
        }
        EXPECT_EQ(CartasDeManos(), CartasEnJuego());
    }
}

TEST_F(BarajaTest, RepartoDeLasBancas) {
    // Siete y media: a seat without money gets nothing; every dealt card starts covered.
    PonJuego({JUEGO_SIETEYMEDIA});
    for (int seat : {1, 2, 4}) Fichas[seat][3] = 10;
    JugadorMano = 4;
    ReparteCartas();
    EXPECT_EQ(NumCartas[3][1], 0);
    CompruebaOrdenDeReparto({4, 1, 2}, 1);
    for (int seat : {1, 2, 4}) {
        EXPECT_EQ(CartasJugador[seat][1][1][CAMPO_MARCA], 1);
        EXPECT_EQ(CartasJugador[seat][1][1][CAMPO_CARA], CartasVisibles[seat]);
    }

    // Black Jack: seats with a stake get two cards, the bank one, the shoe goes on.
    SetUp();
    PonJuego({JUEGO_BLACKJACK});
    JugadorBanca = 2;
    JugadorMano = 3;
    for (int seat : {1, 2, 3, 4}) Fichas[seat][6] = 10;
    Apuesta[3][1][2] = 5;
    Apuesta[4][1][2] = 10;
    BarajaMazo();
    PosicionMazo = 101;
    CartasEnMazo = 212;
    const auto zapato = std::vector<int>(&Baraja[1][0], &Baraja[1][0] + MAX_BARAJA * 3);
    ReparteCartas();
    EXPECT_EQ(zapato, std::vector<int>(&Baraja[1][0], &Baraja[1][0] + MAX_BARAJA * 3))
        << "no new shuffle";
    EXPECT_EQ(NumCartas[2][1], 1);
    EXPECT_EQ(NumCartas[1][1], 0);
    EXPECT_EQ(CartaMano(3, 1), CartaBaraja(101));
    EXPECT_EQ(CartaMano(4, 1), CartaBaraja(102));
    EXPECT_EQ(CartaMano(2, 1), CartaBaraja(103));
    EXPECT_EQ(CartaMano(3, 2), CartaBaraja(104));
    EXPECT_EQ(CartaMano(4, 2), CartaBaraja(105));
    EXPECT_EQ(CartasEnMazo, 207);
    EXPECT_EQ(PosicionMazo, 106);

    // A shoe that runs out in the middle of the deal is shuffled again without the cards the
    // seats hold, and the deal goes on: no card is ever twice on the table.
    std::memset(CartasJugador, 0, sizeof CartasJugador);
    std::memset(NumCartas, 0, sizeof NumCartas);
    PosicionMazo = 311;
    CartasEnMazo = 2;
    const Carta penultima = CartaBaraja(311), ultima = CartaBaraja(312);
    ReparteCartas();
    EXPECT_EQ(CartaMano(3, 1), penultima);
    EXPECT_EQ(CartaMano(4, 1), ultima);
    EXPECT_EQ(CartaMano(2, 1), CartaBaraja(1));
    EXPECT_EQ(CartaMano(4, 2), CartaBaraja(3));
    EXPECT_EQ(PosicionMazo, 4);
    EXPECT_EQ(CartasEnMazo, 307);
    auto todas = TramoBaraja(1, 310);
    todas.insert(penultima);
    todas.insert(ultima);
    EXPECT_EQ(todas, CartasEnJuego());
}

// ---------------------------------------------------------------------------------------------
// Draws from the stock and the pile.

TEST_F(BarajaTest, MusYPokerMezclanLosDescartesAnteriores) {
    const QString texto =
        "Como no hay suficientes cartas en el mazo para cubrir  el  descarte de este jugador  se "
        " va a proceder a mezclar las cartas de los descartes anteriores.";
    for (const Juego& j : {Juego{JUEGO_MUS}, Juego{JUEGO_POKER, 4, 1, 1}}) {
        SetUp();
        PonJuego(j);
        BarajaMazo();
        MensajesVistos.clear(); // what opening the game may have said
        // Stock of 2, pile of 10: the last 4 of it were just thrown by seat 1.
        PosicionMazo = CartasBaraja - 1;
        CartasEnMazo = 2;
        CartasEnPozo = 10;
        for (int i = 1; i <= 10; ++i)
            for (int f = 1; f <= 2; ++f) Pozo[i][f] = Baraja[i][f];
        const auto viejos = TramoBaraja(1, 6);
        const auto recien = std::vector<int>(&Pozo[7][0], &Pozo[11][0]);
        const Carta a = CartaBaraja(CartasBaraja - 1), b = CartaBaraja(CartasBaraja);
        RobaCartas(1, 4, 0);
        ASSERT_EQ(MensajesVistos.size(), 1u);
        EXPECT_EQ(MensajesVistos[0].Titulo, "Mezclar cartas descartadas");
        EXPECT_EQ(MensajesVistos[0].Texto, texto);
        EXPECT_EQ(CartasEnPozo, 4);
        EXPECT_EQ(recien, std::vector<int>(&Pozo[1][0], &Pozo[5][0]));
        EXPECT_EQ(Pozo[5][1], 0);
        // The old discards went behind the stock: 8 cards, of which the seat drew 4.
        EXPECT_EQ(TramoBaraja(CartasBaraja + 1, CartasBaraja + 6), viejos);
        EXPECT_EQ(CartasEnMazo, 4);
        EXPECT_EQ(PosicionMazo, CartasBaraja + 3);
        EXPECT_EQ(NumCartas[1][1], 4);
        EXPECT_EQ(CartaMano(1, 1), a);
        EXPECT_EQ(CartaMano(1, 2), b);
        EXPECT_EQ(CartaMano(1, 3), CartaBaraja(CartasBaraja + 1));
        EXPECT_EQ(CartaMano(1, 4), CartaBaraja(CartasBaraja + 2));
    }
}

TEST_F(BarajaTest, OtrosJuegosRobanLoQueQueda) {
    PonJuego({JUEGO_BRISCA});
    BarajaMazo();
    PosicionMazo = 39;
    CartasEnMazo = 2;
    CartasEnPozo = 10;
    RobaCartas(2, 4, 0);
    EXPECT_TRUE(MensajesVistos.empty());
    EXPECT_EQ(NumCartas[2][1], 2);
    EXPECT_EQ(CartasEnMazo, 0);
    EXPECT_EQ(PosicionMazo, 41);
    EXPECT_EQ(CartasEnPozo, 10);
    EXPECT_EQ(CartaMano(2, 3), Carta(0, 0));

    // The Black Jack shoe is shuffled anew, without the cards the seats hold.
    PonJuego({JUEGO_BLACKJACK});
    BarajaMazo();
    PosicionMazo = 312;
    CartasEnMazo = 1;
    RobaCartas(1, 2, 0);
    EXPECT_TRUE(MensajesVistos.empty());
    EXPECT_EQ(CartasEnMazo, 308);
    EXPECT_EQ(PosicionMazo, 3);
    EXPECT_EQ(CartaMano(1, 2), CartaBaraja(2));
}

TEST_F(BarajaTest, RobaCartasLlenaLosHuecosDeLaSerie) {
    // Siete y media, a second series: an uncovered card is seen by all, a covered one keeps the
    // seat's own face and its mark.
    PonJuego({JUEGO_SIETEYMEDIA});
    BarajaMazo();
    SerieActual = 2;
    RobaCartas(1, 1, 0);
    RobaCartas(1, 1, 1);
    EXPECT_EQ(NumCartas[1][1], 0);
    EXPECT_EQ(NumCartas[1][2], 2);
    EXPECT_EQ(CartasJugador[1][2][1][CAMPO_CARA], CARA_VISIBLE);
    EXPECT_EQ(CartasJugador[1][2][1][CAMPO_MARCA], 0);
    EXPECT_EQ(CartasJugador[1][2][2][CAMPO_CARA], CARA_OCULTA);
    EXPECT_EQ(CartasJugador[1][2][2][CAMPO_MARCA], 1);
    EXPECT_EQ(CartaMano(1, 2, 2), CartaBaraja(2));

    // A hand with a gap: the new cards go to the empty slots, the kept one stays.
    SetUp();
    PonJuego({JUEGO_MUS});
    BarajaMazo();
    PosicionMazo = 17;
    CartasEnMazo = 24;
    CartasJugador[3][1][1][CAMPO_PALO] = 1;
    CartasJugador[3][1][1][CAMPO_VALOR] = 12;
    CartasJugador[3][1][3][CAMPO_PALO] = 2;
    CartasJugador[3][1][3][CAMPO_VALOR] = 12;
    NumCartas[3][1] = 2;
    RobaCartas(3, 2, 0);
    EXPECT_EQ(CartaMano(3, 1), Carta(1, 12));
    EXPECT_EQ(CartaMano(3, 2), CartaBaraja(17));
    EXPECT_EQ(CartaMano(3, 3), Carta(2, 12));
    EXPECT_EQ(CartaMano(3, 4), CartaBaraja(18));
    EXPECT_EQ(NumCartas[3][1], 4);
    EXPECT_EQ(CartasEnMazo, 22);
    EXPECT_EQ(PosicionMazo, 19);
}

TEST_F(BarajaTest, RobaDelPozoLaCartaDeArriba) {
    PonJuego({JUEGO_CHINCHON});
    for (int pos = 1; pos <= 7; ++pos) {
        CartasJugador[1][1][pos][CAMPO_PALO] = 1;
        CartasJugador[1][1][pos][CAMPO_VALOR] = pos;
    }
    NumCartas[1][1] = 7;
    const int pozo[3][2] = {{2, 5}, {3, 7}, {4, 11}};
    for (int i = 0; i < 3; ++i) {
        Pozo[i + 1][1] = pozo[i][0];
        Pozo[i + 1][2] = pozo[i][1];
    }
    CartasEnPozo = 3;
    RobaDelPozo(1);
    EXPECT_EQ(NumCartas[1][1], 8);
    EXPECT_EQ(CartaMano(1, 8), Carta(4, 11));
    EXPECT_EQ(CartasJugador[1][1][8][CAMPO_CARA], CartasVisibles[1]);
    EXPECT_EQ(CartasJugador[1][1][8][CAMPO_ESTADO], 2);
    EXPECT_EQ(CartasEnPozo, 2);
    EXPECT_EQ(Pozo[2][2], 7);
}

TEST_F(BarajaTest, CompactaManoCierraLosHuecos) {
    PonJuego({JUEGO_POKER, 4, 1, 1});
    struct Caso {
        std::vector<int> Antes, Despues; // values, 0 an empty slot
    };
    const std::vector<Caso> casos = {
        {{3, 0, 5, 0, 9}, {3, 5, 9, 0, 0}},
        {{0, 0, 7, 8, 0}, {7, 8, 0, 0, 0}},
        {{0, 2, 3, 4, 5}, {2, 3, 4, 5, 0}},
        {{1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}},
    };
    for (const auto& c : casos) {
        std::memset(CartasJugador, 0, sizeof CartasJugador);
        for (int i = 0; i < 5; ++i)
            if (c.Antes[i]) {
                auto& carta = CartasJugador[4][1][i + 1];
                carta[CAMPO_PALO] = 2;
                carta[CAMPO_VALOR] = c.Antes[i];
                carta[CAMPO_CARA] = 2;
                carta[CAMPO_ESTADO] = c.Antes[i] == 5 ? 1 : 2; // a raised card stays raised
                carta[CAMPO_MARCA] = c.Antes[i];
            }
        CompactaMano(4);
        for (int i = 0; i < 5; ++i) {
            const auto& carta = CartasJugador[4][1][i + 1];
            EXPECT_EQ(carta[CAMPO_VALOR], c.Despues[i]) << "slot " << i + 1;
            EXPECT_EQ(carta[CAMPO_MARCA], c.Despues[i]);
            EXPECT_EQ(carta[CAMPO_PALO] != 0, c.Despues[i] != 0);
            if (c.Despues[i]) EXPECT_EQ(carta[CAMPO_ESTADO], c.Despues[i] == 5 ? 1 : 2);
        }
    }
}

// ---------------------------------------------------------------------------------------------
// The manual deal. The test plays the person: the script runs inside the deal's wait.

// Runs a manual deal; the actions run at the first turn of the wait. If they leave the hands
// incomplete, the deal is dropped by going back to the automatic mode.
void RepartoManual(const std::function<void()>& acciones) {
    ModoReparto = 2;
    int turnos = 0;
    PersonaGuionada = [&] {
        if (turnos++ == 0)
            acciones();
        else
            ModoReparto = 1;
    };
    ReparteCartas();
    PersonaGuionada = nullptr;
}

int IdDe(int palo, int valor) {
    return IdCarta(palo, valor);
}

TEST_F(BarajaTest, ManualSeleccionConControlTieneTope) {
    PonJuego({JUEGO_MUS});
    JugadoresMano = 4;
    RepartoManual([] {
        EXPECT_TRUE(AnularReparto);
        EXPECT_TRUE(Pic_Pulsador[87].Visible);
        EXPECT_EQ(EtiquetaControl[87], "Resto de cartas al azar");
        for (int valor = 1; valor <= 4; ++valor) PulsaMiniatura(IdDe(1, valor), true);
        EXPECT_EQ(CuentaSeleccion(), 4);
        PulsaMiniatura(IdDe(1, 5), true);
        ASSERT_EQ(MensajesVistos.size(), 1u);
        EXPECT_EQ(MensajesVistos[0].Titulo, "Reparto manual de cartas");
        EXPECT_EQ(MensajesVistos[0].Texto, "Está intentando seleccionar más cartas de las "
                                           "permitidas por jugador (4 como máximo).");
        EXPECT_EQ(CuentaSeleccion(), 4);
        EXPECT_FALSE(MiniaturaElegida[IdDe(1, 5)]);
        // Ctrl on a selected card takes it out; a plain press on a selected one drags them all.
        PulsaMiniatura(IdDe(1, 2), true);
        EXPECT_EQ(CuentaSeleccion(), 3);
        PulsaMiniatura(IdDe(1, 3), false);
        EXPECT_TRUE(ArrastrandoMiniatura);
        ColocaSeleccion(4);
        EXPECT_FALSE(ArrastrandoMiniatura);
        EXPECT_EQ(CuentaSeleccion(), 0);
        EXPECT_EQ(SeatUltimoReparto, 4);
        EXPECT_EQ(NumCartas[4][1], 3);
        EXPECT_EQ(CartaMano(4, 1), Carta(1, 1));
        EXPECT_EQ(CartaMano(4, 2), Carta(1, 3));
        EXPECT_EQ(CartaMano(4, 3), Carta(1, 4));
        EXPECT_EQ(CartasJugador[4][1][1][CAMPO_CARA], CARA_VISIBLE); // face up on the table
        EXPECT_FALSE(MiniaturaLibre[IdDe(1, 3)]);
        // A plain press on an unselected card drops the rest of the selection.
        PulsaMiniatura(IdDe(2, 5), true);
        PulsaMiniatura(IdDe(2, 6), false);
        EXPECT_EQ(CuentaSeleccion(), 1);
        SueltaSeleccion();
        EXPECT_FALSE(ArrastrandoMiniatura);
        EXPECT_TRUE(MiniaturaLibre[IdDe(2, 6)]);
    });
    EXPECT_TRUE(AnularReparto) << "dropped by the change of mode";
    EXPECT_FALSE(Pic_Pulsador[87].Visible);
}

TEST_F(BarajaTest, ManualAterrizajeRechazado) {
    struct Caso {
        const char* Nombre;
        Juego J;
        int Seat, Ya, Seleccion; // the seat, the cards it holds, the cards hanging
        const char* Puntos;      // Chinchon: its result in the first hand, limit 100
        bool Acepta;
    };
    const std::vector<Caso> casos = {
        {"mano llena", {JUEGO_BRISCA}, 1, 3, 1, "", false},
        {"la seleccion no cabe", {JUEGO_BRISCA}, 1, 2, 2, "", false},
        {"la seleccion cabe justa", {JUEGO_BRISCA}, 1, 1, 2, "", true},
        {"seat desactivado", {JUEGO_BRISCA, 3}, 2, 0, 1, "", false},
        {"Chinchon por encima del limite", {JUEGO_CHINCHON}, 3, 0, 1, "101", false},
        {"Chinchon justo en el limite", {JUEGO_CHINCHON}, 3, 0, 1, "100", true},
        {"Siete y media sin dinero", {JUEGO_SIETEYMEDIA}, 1, 0, 1, "", false},
        {"Siete y media con dinero", {JUEGO_SIETEYMEDIA}, 2, 0, 1, "", true},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Nombre);
        SetUp();
        PonJuego(c.J);
        JugadoresMano = c.J.Jugadores;
        Fichas[2][1] = 5; // in the Siete y media only seat 2 has money
        LimitePartida = 100;
        NumeroMano = 1;
        RegistroManos[1].Resultado[c.Seat] = c.Puntos;
        RepartoManual([&] {
            for (int v = 1; v <= c.Ya; ++v) {
                PulsaMiniatura(IdDe(4, v), false);
                ColocaSeleccion(c.Seat);
            }
            const int ids[2] = {IdDe(3, 5), IdDe(3, 6)};
            for (int i = 0; i < c.Seleccion; ++i) PulsaMiniatura(ids[i], true);
            PulsaMiniatura(ids[0], false);
            EXPECT_EQ(PuedeRecibirSeleccion(c.Seat), c.Acepta);
            ColocaSeleccion(c.Seat);
            EXPECT_EQ(NumCartas[c.Seat][1], c.Ya + (c.Acepta ? c.Seleccion : 0));
            EXPECT_EQ(MiniaturaLibre[ids[0]], !c.Acepta);
            EXPECT_EQ(ArrastrandoMiniatura, !c.Acepta) << "a refused drop keeps hanging";
            SueltaSeleccion();
        });
    }
    LimitePartida = 3;
    NumeroMano = 0;
}

TEST_F(BarajaTest, ManualDevolverCartaLiberaSuMiniatura) {
    PonJuego({JUEGO_BRISCA});
    JugadoresMano = 4;
    RepartoManual([] {
        const int x = IdDe(2, 7), y = IdDe(3, 1);
        CartaDeId(x);
        const int mx = MiniaturaX + 1, my = MiniaturaY + 1;
        EXPECT_EQ(PixelMesa(mx, my), 0xFFFFFFu) << "a free thumbnail is white";
        PulsaMiniatura(x, true);
        EXPECT_EQ(PixelMesa(mx, my), 0xC0C0C0u) << "a selected one is grey";
        PulsaMiniatura(x, false);
        EXPECT_EQ(PixelMesa(mx, my), COLOR_MESA) << "a hanging one leaves its place";
        ColocaSeleccion(2);
        PulsaMiniatura(y, false);
        ColocaSeleccion(2);
        EXPECT_EQ(NumCartas[2][1], 2);
        DevuelveCarta(2, 1);
        EXPECT_TRUE(MiniaturaLibre[x]);
        EXPECT_FALSE(MiniaturaLibre[y]);
        EXPECT_EQ(NumCartas[2][1], 1);
        EXPECT_EQ(CartaMano(2, 1), Carta(3, 1));
        EXPECT_EQ(CartaMano(2, 2), Carta(0, 0));
        EXPECT_EQ(PixelMesa(mx, my), 0xFFFFFFu) << "back on the panel";
        // A value out of play never shows on the panel.
        CartaDeId(IdDe(1, 8));
        EXPECT_EQ(PixelMesa(MiniaturaX + 1, MiniaturaY + 1), COLOR_MESA);
    });
}

TEST_F(BarajaTest, ManualRestoAlAzarConUnaCartaQuePonerSoloPoneEsa) {
    PonJuego({JUEGO_BRISCA});
    JugadoresMano = 4;
    std::vector<std::vector<Carta>> antes;
    RepartoManual([&] {
        // Eleven cards by hand: seat 3 lacks its last one.
        int id = 1;
        for (int seat = 1; seat <= 4; ++seat)
            for (int k = 0; k < (seat == 3 ? 2 : 3); ++k) {
                while (!MiniaturaLibre[id]) ++id;
                PulsaMiniatura(id, false);
                ColocaSeleccion(seat);
            }
        EXPECT_EQ(CartasRepartidas(), 11);
        for (int seat = 1; seat <= 4; ++seat)
            antes.push_back({CartaMano(seat, 1), CartaMano(seat, 2), CartaMano(seat, 3)});
        ReparteRestantesAlAzar();
    });
    EXPECT_FALSE(AnularReparto);
    EXPECT_EQ(CartasRepartidas(), 12);
    for (int seat = 1; seat <= 4; ++seat) {
        EXPECT_EQ(NumCartas[seat][1], 3);
        for (int pos = 1; pos <= (seat == 3 ? 2 : 3); ++pos)
            EXPECT_EQ(CartaMano(seat, pos), antes[seat - 1][pos - 1]);
    }
    EXPECT_EQ(CartasEnMazo, 28);
    EXPECT_EQ(PosicionMazo, 13);
}

TEST_F(BarajaTest, ManualCompletoDejaElMazoEnOrden) {
    // Poker from the 7 with two jokers: 34 cards on five rows; seat 4 takes both jokers.
    PonJuego({JUEGO_POKER, 4, 6, 3});
    for (int seat = 1; seat <= 4; ++seat) Fichas[seat][4] = 20;
    JugadoresMano = 4;
    RepartoManual([] {
        EXPECT_EQ(FilasPanelReparto, 5);
        EXPECT_TRUE(MiniaturaLibre[53]);
        EXPECT_TRUE(MiniaturaLibre[54]);
        EXPECT_FALSE(MiniaturaLibre[IdDe(1, 2)]);
        PulsaMiniatura(53, true);
        PulsaMiniatura(54, true);
        PulsaMiniatura(53, false);
        ColocaSeleccion(4);
        ReparteRestantesAlAzar();
    });
    EXPECT_FALSE(AnularReparto);
    EXPECT_FALSE(Pic_Pulsador[87].Visible);
    EXPECT_EQ(CartaMano(4, 1), Carta(PALO_COMODIN, 91));
    EXPECT_EQ(CartaMano(4, 2), Carta(PALO_COMODIN, 92));
    for (int seat = 1; seat <= 4; ++seat) {
        ASSERT_EQ(NumCartas[seat][1], 5);
        for (int pos = 1; pos <= 5; ++pos)
            EXPECT_EQ(CartasJugador[seat][1][pos][CAMPO_CARA], CartasVisibles[seat]);
    }
    const int d = 20;
    EXPECT_EQ(PosicionMazo, d + 1);
    EXPECT_EQ(CartasEnMazo, CartasBaraja - d);
    EXPECT_EQ(TramoBaraja(1, d), CartasDeManos());
    auto libres = CartasEnJuego();
    for (const Carta& c : CartasDeManos()) libres.erase(libres.find(c));
    EXPECT_EQ(TramoBaraja(d + 1, CartasBaraja), libres);
    EXPECT_EQ(Baraja[CartasBaraja + 1][CAMPO_PALO], 0);
    // The panel is gone from the table.
    CartaDeId(1);
    EXPECT_EQ(PixelMesa(MiniaturaX + 1, MiniaturaY + 1), COLOR_MESA);
}

TEST_F(BarajaTest, ManualSeDejaAlCambiarElTamanoDeLaBaraja) {
    PonJuego({JUEGO_CHINCHON, 4, 1, 1, 1});
    JugadoresMano = 4;
    ModoReparto = 2;
    PersonaGuionada = [] {
        TipoBarajaEspanola = 2;
        ParametrosJuego();
    };
    ReparteCartas();
    PersonaGuionada = nullptr;
    EXPECT_TRUE(AnularReparto);
    EXPECT_EQ(CartasRepartidas(), 0);
}

} // namespace
