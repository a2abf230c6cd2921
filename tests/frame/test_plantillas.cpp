// The settings files that travel beside the program hold the factory values of each game.
#include <gtest/gtest.h>

#include <QFile>

#include "frame/Ficheros.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"

TEST(Plantillas, EachGameFileShippedIsWhatAMissingFileIsRebuiltWith) {
    MesaDePrueba mesa;
    for (int juego = JUEGO_POKER; juego <= JUEGO_PUMBA; ++juego) {
        JuegoActual = juego;
        LeeJuego(); // missing here: the defaults are written
        const QString nombre = NombreFicheroJuego(juego);
        const QByteArray enviado =
            LeeFichero(QStringLiteral(TRUFAL_SOURCE_DIR "/assets/") + nombre);
        ASSERT_FALSE(enviado.isEmpty()) << nombre.toStdString();
        EXPECT_EQ(enviado, LeeFichero(mesa.Ruta(nombre))) << nombre.toStdString();
        // A shipped file must not start a match by itself.
        EXPECT_FALSE(PartidaViva) << nombre.toStdString();
    }
    EXPECT_EQ(LimitePartida, 50) << "Pumba plays to 50 points";
}
