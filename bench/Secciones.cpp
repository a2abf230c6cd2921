#include "bench/Secciones.h"

#include <QElapsedTimer>

double ManosPorSegundo(const MesaAutomatica& mesa, int manos) {
    int jugadas = 0;
    unsigned semilla = 1000;
    QElapsedTimer reloj;
    reloj.start();
    while (jugadas < manos) {
        PreparaPartidaAutomatica(mesa);
        jugadas += JuegaPartidaAutomatica(++semilla);
    }
    return jugadas / (reloj.nsecsElapsed() / 1e9);
}
