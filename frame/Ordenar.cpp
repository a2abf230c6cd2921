// The hidden sorted lists: a binary search finds where a new text goes.
#include "frame/Ordenar.h"

namespace {

// The order of a sorted list box: texts compared without regard to case. Keys are fixed-digit
// numbers, so this is number order.
bool VaDelante(const QString& texto, const QString& otro) {
    return QString::compare(texto, otro, Qt::CaseInsensitive) < 0;
}

} // namespace

int ListaOrdenada::Agrega(const QString& texto, int dato) {
    // The first item greater than the new one: equal keys stay in the order they came.
    int bajo = 0, alto = Cuenta();
    while (bajo < alto) {
        const int medio = bajo + (alto - bajo) / 2;
        if (VaDelante(texto, Elementos[medio].Texto))
            alto = medio;
        else
            bajo = medio + 1;
    }
    Elementos.insert(Elementos.begin() + bajo, Elemento{texto, dato});
    return bajo;
}
