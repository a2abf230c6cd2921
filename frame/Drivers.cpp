// Which driver plays the match of each game.
#include "frame/Ciclo.h"

#include "frame/TrufalGbl.h"
#include "games/poker/Partida.h"
#include "games/blackjack/PartidaBlackJack.h"
#include "games/sieteymedia/PartidaSieteYMedia.h"
#include "games/chinchon/Partida.h"
#include "games/mus/Mus.h"
#include "games/cinquillo/PartidaCinquillo.h"
#include "games/pumba/PartidaPumba.h"
#include "games/tutebrisca/Partida.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

void JuegaPartida() {
    switch (JuegoActual) {
    case JUEGO_POKER:
        JuegaPoker();
        break;
    case JUEGO_BLACKJACK:
        JuegaBlackJack();
        break;
    case JUEGO_SIETEYMEDIA:
        JuegaSieteYMedia();
        break;
    case JUEGO_TUTE:
        JuegaTute();
        break;
    case JUEGO_BRISCA:
        JuegaBrisca();
        break;
    case JUEGO_CHINCHON:
        JuegaChinchon();
        break;
    case JUEGO_MUS:
        JuegaMus();
        break;
    case JUEGO_CINQUILLO:
        JuegaCinquillo();
        break;
    case JUEGO_PUMBA:
        JuegaPumba();
        break;
    // Each game's own driver takes its place here as it comes to the table.
    default:
        AvisaJuegoNoDisponible();
        break;
    }
}

// A game whose driver hasn't come to the table yet can be chosen and set, but not played: the
// person is told so, and the table stays empty.
void AvisaJuegoNoDisponible() {
    Mensaje("Juego no disponible",
            "El juego «" + NombreJuego[JuegoActual] +
                "» aún no está preparado en esta versión de Trufal y todavía no se puede jugar. "
                "Puede elegir otro juego con el botón «Normas de juego».",
            3, 1);
    PartidaViva = false;
    ManoViva = false;
    BorraVentana();
    RefrescaMesa();
}

namespace {

// The seat the person plays, or the leader when every seat is the computer's.
int SeatDeLaPersona() {
    for (int s = 4; s >= 1; --s)
        if (ControlJugador[s] == CONTROL_MANUAL && EstadoJugador[s] == ESTADO_ACTIVADO) return s;
    return JugadorMano;
}

bool EsJuegoDeApuestas() {
    return JuegoActual == JUEGO_POKER || JuegoActual == JUEGO_BLACKJACK ||
           JuegoActual == JUEGO_SIETEYMEDIA;
}

} // namespace

// A game whose rules haven't come to the table yet: each hand is dealt through the frame and
// shown, and the table waits for "Continuar" before the next one. The match goes on until it
// is abandoned or postponed.
void JuegaProvisional() {
    while (PartidaViva) {
        if (EsJuegoDeApuestas())
            EmpiezaManoApuestas();
        else
            NuevaMano();
        if (!PartidaViva) return;
        RegistroManos[NumeroMano].Sale =
            NombreJugador[JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA
                              ? JugadorBanca
                              : JugadorMano];
        FaseJuego = 4;
        JugadorActual = SeatDeLaPersona();
        EsperaJugada();
        if (!PartidaViva) return;
        ManoViva = false;
        FaseJuego = 9;
    }
}
