// The figures of the table: the signature of the games, how many automatic hands each game plays
// a second, and the costly routines of each game.
//   trufal_bench              every figure
//   trufal_bench --firmas     only the signatures, in the form of bench/firmas.txt
//   trufal_bench --tasas [manos]   only the Black Jack loss rates, over 30,000 hands or those given
//   trufal_bench --mus        only the figures of the Mus
//   trufal_bench --cinquillo-pumba   only the figures of the Cinquillo and the Pumba
//   trufal_bench --niveles [manos] [resto]   only the Póker's level 100 against level 0
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
        BenchPokerNiveles(argc > 2 ? std::atol(argv[2]) : 20000,
                          argc > 3 ? std::atoi(argv[3]) : 1000);
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
