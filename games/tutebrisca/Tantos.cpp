// Who takes a hand of Tute or Brisca, from the tantos won and the songs.
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Reglas.h"

namespace {

bool EnParejas() {
    return ModalidadPareja == 2 && NumJugadores == 4;
}

// A seat alone wins by the most tantos; on a tie the seat that won a trick last among the tied.
int GanadorIndividual() {
    double tope = -1;
    int ganador = 0;
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO && TantosJugador[s][1] > tope) {
            tope = TantosJugador[s][1];
            ganador = s;
        }
    for (int b = NumeroBaza; b >= 1; --b) {
        const int s = GanadorDeBaza[b];
        if (s != 0 && TantosJugador[s][1] == tope) return s;
    }
    return ganador;
}

// Pairs: 1 stands for seats 1 + 3, 2 for seats 2 + 4; a tie goes to the pair of the last trick.
int GanadorParejas() {
    const double pareja1 = TantosJugador[1][1] + TantosJugador[3][1];
    const double pareja2 = TantosJugador[2][1] + TantosJugador[4][1];
    if (pareja1 > pareja2) return 1;
    if (pareja2 > pareja1) return 2;
    return ParejaDe[GanadorBaza];
}

} // namespace

void DecideGanadorMano() {
    if (TuteCantado)
        GanadorMano = EnParejas() ? ParejaDe[JugadorCante] : JugadorCante;
    else
        GanadorMano = EnParejas() ? GanadorParejas() : GanadorIndividual();
}
