// The value of a five-card hand. Unfinished: the routines below answer nothing yet.
#include "games/poker/Evaluacion.h"

const char* const TablaCombinaciones[FILAS_COMBINACIONES + 1] = {};

void EvaluaJugada(int) {}
int OrdenJugada(int, int) {
    return 0;
}
void OrdenaCartasJugada(int, int) {}
bool EsFigura(int valor) {
    return valor == 1 || valor >= 11;
}
bool HayComodin(int) {
    return false;
}
int Combinaciones(int, int) {
    return 0;
}
void PonJugadasPoker() {}
void LeeTablaDescartes() {}
