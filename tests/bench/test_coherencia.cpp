// Long runs with the table checked after every move: each card of the deck in exactly one place
// and, in the games for money, no chip made or lost. A fault stops the run with its reason.
#include "bench/Automatica.h"
#include "frame/Coherencia.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"

#include <gtest/gtest.h>

namespace {

constexpr int PARTIDAS = 60;

// Plays the matches with the check on; returns the hands played.
int JuegaConComprobacion(const MesaAutomatica& tipo, unsigned primeraSemilla,
                         int partidas = PARTIDAS) {
    const bool antes = ComprobarCoherencia;
    ComprobarCoherencia = true;
    int manos = 0;
    for (unsigned semilla = primeraSemilla; semilla < primeraSemilla + partidas; ++semilla) {
        PreparaPartidaAutomatica(tipo);
        manos += JuegaPartidaAutomatica(semilla);
        QString fallo;
        EXPECT_TRUE(MesaCoherente(&fallo)) << fallo.toStdString() << " semilla " << semilla;
    }
    ComprobarCoherencia = antes;
    return manos;
}

} // namespace

TEST(Coherencia, TuteYBriscaNoPierdenNiDuplicanCartas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_TUTE, 2, false, [] { LimitePartida = 2; }},
        {JUEGO_TUTE, 4, true, [] { LimitePartida = 2; }},
        {JUEGO_BRISCA, 3, false, [] { LimitePartida = 2; }},
        {JUEGO_BRISCA, 4, false, [] { LimitePartida = 2; }},
    };
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GT(JuegaConComprobacion(tipo, semilla), PARTIDAS);
        semilla += PARTIDAS;
    }
}

TEST(Coherencia, ChinchonNoPierdeNiDuplicaCartas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_CHINCHON, 2, false, [] { LimitePartida = 6; }},
        {JUEGO_CHINCHON, 4, false,
         [] {
             LimitePartida = 6;
             TipoBarajaEspanola = 2;
             CartasSiempreOrdenadas = true;
         }},
    };
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GE(JuegaConComprobacion(tipo, semilla), PARTIDAS);
        semilla += PARTIDAS;
    }
}

// In the Mus the discards go round through the stock again, and the 25 stones only move between
// the heap and the tallies. A Mus match is long: a few of them.
TEST(Coherencia, MusNoPierdeCartasNiPiedras) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_MUS, 4, true, [] { TipoMus = 1; }},
        {JUEGO_MUS, 4, true,
         [] {
             TipoMus = 2;
             PiedrasJuego = 20;
         }},
    };
    constexpr int PARTIDAS_MUS = 4;
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GT(JuegaConComprobacion(tipo, semilla, PARTIDAS_MUS), PARTIDAS_MUS);
        semilla += PARTIDAS_MUS;
    }
}

// Cinquillo deals the whole deck and lays it out; Pumba keeps a stock that runs out, a pile, and
// seats that leave the match by their points.
TEST(Coherencia, CinquilloYPumbaNoPierdenNiDuplicanCartas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_CINQUILLO, 4, false, [] { LimitePartida = 2; }},
        {JUEGO_PUMBA, 2, false, [] { LimitePartida = 15; }},
        {JUEGO_PUMBA, 4, false, [] { LimitePartida = 15; }},
    };
    constexpr int PARTIDAS_CP = 20;
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GT(JuegaConComprobacion(tipo, semilla, PARTIDAS_CP), PARTIDAS_CP);
        semilla += PARTIDAS_CP;
    }
}

// The check sees a lost card and a card that is twice on the table.
TEST(Coherencia, VeUnaCartaPerdidaOQueEstaDosVeces) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    PreparaPartidaAutomatica({JUEGO_BRISCA, 2, false, nullptr});
    JuegaPartidaAutomatica(3);
    ASSERT_TRUE(MesaCoherente());
    // The last hand's first trick, as the tricks won keep it.
    int& palo = HistoriaBazas[1][1][HB_PALO];
    const int valor = HistoriaBazas[1][1][HB_VALOR], paloVisto = palo;
    ASSERT_NE(paloVisto, 0);
    palo = 0;
    QString fallo;
    EXPECT_FALSE(MesaCoherente(&fallo));
    EXPECT_TRUE(fallo.contains("0 veces")) << fallo.toStdString();
    palo = paloVisto;
    CartasJugador[2][1][1][CAMPO_PALO] = paloVisto;
    CartasJugador[2][1][1][CAMPO_VALOR] = valor;
    EXPECT_FALSE(MesaCoherente(&fallo));
    EXPECT_TRUE(fallo.contains("2 veces")) << fallo.toStdString();
    CartasJugador[2][1][1][CAMPO_PALO] = CartasJugador[2][1][1][CAMPO_VALOR] = 0;
}

TEST(Coherencia, PokerNoPierdeNiCreaFichas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_POKER, 4, false, [] { RestoInicial = 25; }},
        {JUEGO_POKER, 3, false,
         [] {
             RestoInicial = 25;
             LeyApertura = 10;
             OpcionComodines = 3;
             CartaMinimaPoker = 6;
         }},
    };
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GT(JuegaConComprobacion(tipo, semilla), PARTIDAS);
        semilla += PARTIDAS;
    }
}

// The shoe runs on from hand to hand and is shuffled in the middle of hands: no card is ever
// twice on the table, and the chips only move between seats and the bank.
TEST(Coherencia, BlackJackNoPierdeNiCreaFichasNiCartas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_BLACKJACK, 4, false, [] { RestoInicial = 30; }},
        {JUEGO_BLACKJACK, 3, false,
         [] {
             RestoInicial = 40;
             ApuestaMaxima = 30;
         }},
    };
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GT(JuegaConComprobacion(tipo, semilla, PARTIDAS / 3), PARTIDAS / 3);
        semilla += PARTIDAS;
    }
}

// The bank moves from seat to seat; the cards covered, shown, changed and split stay once each.
TEST(Coherencia, SieteYMediaNoPierdeNiCreaFichasNiCartas) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_SIETEYMEDIA, 4, false, [] { RestoInicial = 30; }},
        {JUEGO_SIETEYMEDIA, 3, false,
         [] {
             RestoInicial = 40;
             ApuestaMaxima = 30;
         }},
    };
    unsigned semilla = 1;
    for (const MesaAutomatica& tipo : tipos) {
        EXPECT_GT(JuegaConComprobacion(tipo, semilla, PARTIDAS / 3), PARTIDAS / 3);
        semilla += PARTIDAS;
    }
}
