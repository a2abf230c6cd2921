// The games play as they did: automatic matches from fixed seeds give the signatures recorded in
// bench/firmas.txt. A change of behaviour that was meant records the new line printed by
// `trufal_bench --firmas` in the same commit.
#include "bench/Automatica.h"
#include "bench/Firma.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"

#include <QFile>
#include <gtest/gtest.h>

TEST(Firma, LosJuegosJueganComoSeRegistro) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    QFile fichero(QStringLiteral(TRUFAL_SOURCE_DIR "/bench/firmas.txt"));
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    const QStringList registradas =
        QString::fromUtf8(fichero.readAll()).split('\n', Qt::SkipEmptyParts);
    const QStringList jugadas = TextoFirmas(FirmasDeLosJuegos()).split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(jugadas.size(), registradas.size());
    for (int i = 0; i < std::min(jugadas.size(), registradas.size()); ++i)
        EXPECT_EQ(jugadas[i].toStdString(), registradas[i].toStdString());
}

// A replayed seed is the same match, not merely the same signature in the end.
TEST(Firma, UnaSemillaRepiteLaPartida) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica brisca{JUEGO_BRISCA, 3, false, [] { LimitePartida = 2; }};
    quint64 huellas[3];
    const unsigned semillas[3] = {7, 7, 8};
    for (int i = 0; i < 3; ++i) {
        PreparaPartidaAutomatica(brisca);
        JuegaPartidaAutomatica(semillas[i]);
        huellas[i] = HuellaPartida();
    }
    EXPECT_EQ(huellas[0], huellas[1]);
    EXPECT_NE(huellas[0], huellas[2]);
}
