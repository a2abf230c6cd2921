#include "bench/Secciones.h"

#include <ctime>

double SegundosDeProceso() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return t.tv_sec + t.tv_nsec / 1e9;
}

double ManosPorSegundo(const MesaAutomatica& mesa, int manos) {
    int jugadas = 0;
    unsigned semilla = 1000;
    const double inicio = SegundosDeProceso();
    while (jugadas < manos) {
        PreparaPartidaAutomatica(mesa);
        jugadas += JuegaPartidaAutomatica(++semilla);
    }
    return jugadas / (SegundosDeProceso() - inicio);
}
