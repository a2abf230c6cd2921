#include "support/ManosPoker.h"

#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"

#include <sstream>

void PonMano(int seat, const std::string& texto) {
    std::istringstream in(texto);
    std::string carta;
    int pos = 0;
    while (in >> carta && pos < 5) {
        ++pos;
        int palo = 0, valor = 0;
        if (carta[0] == 'J' && carta.size() == 2 && (carta[1] == '1' || carta[1] == '2')) {
            palo = PALO_COMODIN;
            valor = 90 + (carta[1] - '0');
        } else {
            const char p = carta.back();
            const std::string v = carta.substr(0, carta.size() - 1);
            palo = p == 'O' ? 1 : p == 'C' ? 2 : p == 'E' ? 3 : 4;
            valor = v == "A" ? 1 : v == "J" ? 11 : v == "Q" ? 12 : v == "K" ? 13 : std::stoi(v);
        }
        CartasJugador[seat][1][pos][CAMPO_PALO] = palo;
        CartasJugador[seat][1][pos][CAMPO_VALOR] = valor;
        CartasJugador[seat][1][pos][CAMPO_CARA] = CARA_VISIBLE;
    }
    NumCartas[seat][1] = pos;
}

void RecogeMesaDePoker() {
    JuegoActual = JUEGO_POKER;
    PonJuegoPorDefecto();
    BorraTablasMano();
    CartasEnPozo = CartasEnMazo = 0;
    PosicionMazo = 1;
    // A match cut in a betting round leaves the chips of the seat on turn live.
    FichasActivas = false;
}
