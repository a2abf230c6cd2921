// The computer player of the Póker. Unfinished: it always passes and keeps its cards.
#include "games/poker/Jugador.h"

void DecideDescartes() {
    for (bool& d : Descarte) d = false;
}
void DecideApuesta() {
    ApuestaOrdenador = 0;
}
int CaracterRivales() {
    return 2;
}
bool PuedeAbrirRonda() {
    return true;
}
