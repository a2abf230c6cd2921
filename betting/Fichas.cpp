#include "betting/Fichas.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "table/Dibujo.h"

#include <algorithm>

namespace {
// What all the denominations below d add up to, one chip of each: a stack keeps at least
// this much in small change.
constexpr int SumaMenores[7] = {0, 0, 1, 3, 8, 18, 38};
} // namespace

int RestoJugador(int seat) {
    int resto = 0;
    for (int d = 1; d <= 6; ++d) resto += Fichas[seat][d] * ValorFicha[d];
    return resto;
}

int ApuestaAcumulada(int seat, int serie) {
    return Apuesta[seat][serie][2] + Apuesta[seat][serie][3] + Apuesta[seat][serie][5];
}

void RecomponeFichas(int seat, int total) {
    for (int d = 0; d <= 6; ++d) Fichas[seat][d] = 0;
    int resto = total;
    for (int d = 6; d >= 1; --d) {
        Fichas[seat][d] = resto / ValorFicha[d];
        resto -= Fichas[seat][d] * ValorFicha[d];
        if (Fichas[seat][d] > 0 && resto < SumaMenores[d]) {
            --Fichas[seat][d];
            resto += ValorFicha[d];
        }
    }
}

void ApuestaConFichas(int seat, int cantidad) {
    if (cantidad < 1) return;
    int resto = RestoJugador(seat);
    while (cantidad > 0 && resto > 0) {
        int d = 6;
        while (d > 1 && (ValorFicha[d] > cantidad || ValorFicha[d] > resto)) --d;
        const int valor = ValorFicha[d];
        Apuesta[seat][SerieActual][FaseJuego] += valor;
        resto -= valor;
        cantidad -= valor;
        RecomponeFichas(seat, resto);
        if (ApuestaDelante) {
            int& n = NumHistorial[seat][SerieActual];
            if (n < 150) HistorialFichas[seat][SerieActual][++n] = d;
        } else {
            ++Fichas[0][d];
        }
        DibujaPilas(seat);
        Pausa(90);
    }
}
