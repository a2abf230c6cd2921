// The figures of the table: the signature of the games, how many automatic hands each game plays
// a second, and the costly routines of each game.
//   trufal_bench              every figure
//   trufal_bench --firmas     only the signatures, in the form of bench/firmas.txt
//   trufal_bench --tasas [manos]   only the Black Jack loss rates, over 30,000 hands or those given
//   trufal_bench --mus        only the figures of the Mus
//   trufal_bench --banca      only the automatic hands per second of Black Jack and Siete y media
//   trufal_bench --cinquillo-pumba   only the figures of the Cinquillo and the Pumba
//   trufal_bench --niveles [manos] [resto]   only the Póker's level 100 against level 0 and 90
//   trufal_bench --manos [veces] [sola]   only the hands a second of Tute and Brisca, over more
//                                         hands; with "sola", only with the table not drawn
#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/Automatica.h"
#include "bench/Firma.h"
#include "bench/Secciones.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir carpeta;
    PreparaMesaAutomatica(carpeta.path());
    if (argc > 1 && std::strcmp(argv[1], "--niveles") == 0) {
        BenchPokerNiveles(argc > 2 ? std::atol(argv[2]) : 2000,
                          argc > 3 ? std::atoi(argv[3]) : 200);
        return 0;
    }
    if (argc > 1 && std::strcmp(argv[1], "--manos") == 0) {
        BenchTuteBriscaManos(argc > 2 ? std::atoi(argv[2]) : 1,
                             argc > 3 && std::strcmp(argv[3], "sola") == 0);
        return 0;
    }
    if (argc > 1 && std::strcmp(argv[1], "--banca") == 0) {
        BenchBlackJackManos();
        BenchSieteYMedia();
        return 0;
    }
    if (argc > 1 && std::strcmp(argv[1], "--mus") == 0) {
        BenchMus();
        return 0;
    }
    if (argc > 1 && std::strcmp(argv[1], "--cinquillo-pumba") == 0) {
        BenchCinquillo();
        BenchPumba();
        return 0;
    }
    const bool soloFirmas = argc > 1 && std::strcmp(argv[1], "--firmas") == 0;
    if (argc > 1 && std::strcmp(argv[1], "--tasas") == 0) {
        BenchBlackJackTasas(argc > 2 ? std::atoll(argv[2]) : 30000);
        return 0;
    }
    if (!soloFirmas) {
        BenchTuteBrisca();
        std::printf("\n");
        BenchPoker();
        std::printf("\n");
        BenchPokerMotor();
        for (void (*seccion)() : {BenchChinchon, BenchMus, BenchCinquillo, BenchPumba,
                                  BenchBlackJack, BenchSieteYMedia}) {
            std::printf("\n");
            seccion();
        }
        std::printf("\n");
    }
    const auto firmas = FirmasDeLosJuegos();
    if (!soloFirmas) std::printf("Firmas de los juegos (bench/firmas.txt):\n");
    std::printf("%s", TextoFirmas(firmas).toUtf8().constData());
    return 0;
}
