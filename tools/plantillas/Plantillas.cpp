// Writes the settings files an installed program carries beside it, with factory values:
// TRF32INI (the template of TRF32.INI) and TRF5132.INI to TRF5932.INI.
//   trufal_plantillas <folder>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <cstdio>

#include "frame/Ficheros.h"
#include "frame/TrufalGbl.h"
#include "table/Mensajes.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "uso: trufal_plantillas <carpeta>\n");
        return 2;
    }
    CarpetaTrabajo = QDir(QString::fromLocal8Bit(argv[1])).absolutePath() + "/";
    MensajesGuionados = true; // a missing file is simply written
    for (int juego = JUEGO_POKER; juego <= JUEGO_PUMBA; ++juego) {
        QFile::remove(CarpetaTrabajo + NombreFicheroJuego(juego));
        JuegoActual = juego;
        LeeJuego();
    }
    JuegoActual = JUEGO_POKER;
    QFile::remove(CarpetaTrabajo + "TRF32.INI");
    LeeConfiguracion();
    QFile::remove(CarpetaTrabajo + "TRF32INI");
    QFile::rename(CarpetaTrabajo + "TRF32.INI", CarpetaTrabajo + "TRF32INI");
    return 0;
}
