// The end-game search of Tute and Brisca: near the end of a hand every legal line of play is laid
// out with the real cards of all seats, and the counts of lines won and tantos gained, by the
// first cards of the trick, advise the seat on turn.
#pragma once

// [turn 1][turn 2][turn 3][turn 4] hand positions of the first trick of the search; trailing 0
// for a count that belongs to an earlier turn.
inline int GanadasSim[13][13][13][13] = {};
inline int MargenSim[13][13][13][13] = {};
inline bool SimulacionValida = false; // the tables belong to the trick being played
inline int CartaSimulada = 0;         // the position the search advises, 0 for none

// Whether the search runs at the start of this trick: the leader holds at least 2 cards and, in
// Tute, at most 7 - NumJugadores.
bool ProcedeSimulacion();
// Lays out every line from the trick now starting (JugadorSalida leads) and fills the tables.
void SimulaFinal();
// The advice for JugadorActual at its turn of the trick, once Candidatas is built.
void ConsultaSimulacion();
