// The computer player of the Póker: which cards a seat throws in the draw and what it stakes in
// a betting turn. Both routines act on JugadorActual, read the seat's character and level and
// the turn's AzarJugada, and leave their answer in shared variables. They run for the person's
// seat too, so that the tutor and the automatic button have an answer ready.
#pragma once

#include "betting/Fichas.h"

// ---- Answers ----
inline bool Descarte[6] = {};    // [1..5]: throw the card at that position of the hand
inline int ApuestaOrdenador = 0; // -1 fold, 0 pass, else the money the seat adds now
inline int LimiteRonda = 0;      // the most the seat will stake in this round
inline bool Farol[5] = {};       // the seat bluffed in this hand; carries into the second round

// ---- What the driver keeps of the hand and of the round, read here ----
// The highest stake of this round is ApuestaMaxRonda, kept with the board.
// The range of plays the table deduces from how many cards each seat drew; 0 before the draw.
inline int JugadaMinEstimada[5] = {};
inline int JugadaMaxEstimada[5] = {};

// Marks in Descarte the cards of JugadorActual to throw, within LimiteDescartes, and leaves the
// seat's place in OrdenPropio.
void DecideDescartes();
// Leaves in ApuestaOrdenador the stake of JugadorActual for this turn (phase 3 or 5), within
// every limit of the board, and in LimiteRonda the most it will stake in the round.
void DecideApuesta();
// The temper of the seats still in the hand besides JugadorActual, 1 to 3; there must be one.
int CaracterRivales();
// The opening law: false only for the seat that would make the first stake of the first round
// without the pair the law asks for. The board, the mouse and the driver ask it too.
bool PuedeAbrirRonda();
