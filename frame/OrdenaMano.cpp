#include "frame/OrdenaMano.h"

#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Partida.h"
#include "games/chinchon/Motor.h"
#include "table/Dibujo.h"

#include <array>
#include <vector>

QString ClaveOrden(int palo, int valor) {
    const int v = valor > 99 ? 99 : valor; // a joker (90 + n) sorts after every value
    switch (JuegoActual) {
    case JUEGO_TUTE:
    case JUEGO_BRISCA:
        // By suit, the strongest first.
        return Formato(palo, "0") + Formato(v > 13 ? 0 : 10 - OrdenValor[v], "00");
    case JUEGO_BLACKJACK:
    case JUEGO_SIETEYMEDIA:
        return Formato(v, "00") + Formato(palo, "0");
    case JUEGO_MUS: {
        int orden = v;
        // In the Mus of eight kings the 2 stands beside the As and the 3 beside the Rey.
        if (TipoMus == 2) orden = v == 2 ? 0 : v == 3 ? 12 : v == 12 ? 13 : v;
        return Formato(orden, "00") + Formato(palo, "0");
    }
    default:
        // Cinquillo and Pumba by suit and value; Póker too, for now.
        return Formato(palo, "0") + Formato(v, "00");
    }
}

void OrdenaMano(int seat) {
    // A whole hand of Póker reads by its play: the cards that make it first.
    if (JuegoActual == JUEGO_POKER && OrdenaManoPoker(seat)) return;
    const int n = NumCartas[seat][SerieActual];
    if (n < 2) return;
    // Chinchón: the melds first, in the order the engine found them, then the loose cards.
    const bool porJugadas = JuegoActual == JUEGO_CHINCHON;
    if (porJugadas) {
        for (int p = 1; p <= n; ++p) {
            ManoEvaluada[p][1] = CartasJugador[seat][SerieActual][p][CAMPO_PALO];
            ManoEvaluada[p][2] = CartasJugador[seat][SerieActual][p][CAMPO_VALOR];
        }
        EvaluaMano(seat, n);
    }
    Lis_Ordenar2.Limpia();
    for (int p = 1; p <= n; ++p) {
        const auto& c = CartasJugador[seat][SerieActual][p];
        const QString clave = porJugadas
                                  ? Formato(PuestoEnJugada(c[CAMPO_PALO], c[CAMPO_VALOR]), "00")
                                  : ClaveOrden(c[CAMPO_PALO], c[CAMPO_VALOR]);
        Lis_Ordenar2.Agrega(clave, p);
    }
    std::vector<std::array<int, 6>> copia(n + 1);
    for (int p = 1; p <= n; ++p)
        for (int f = 0; f <= 5; ++f) copia[p][f] = CartasJugador[seat][SerieActual][p][f];
    for (int i = 0; i < n; ++i)
        for (int f = 0; f <= 5; ++f)
            CartasJugador[seat][SerieActual][i + 1][f] = copia[Lis_Ordenar2.Dato(i)][f];
    DibujaJugador(seat);
}
