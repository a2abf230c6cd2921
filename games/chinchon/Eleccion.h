// The computer player of the Chinchón: every possible next hand weighed by the combination
// engine, and the best one taken, under the gates of the seat's level and character. The
// person's turn runs it too, for the tutor and for the big button.
#pragma once

inline int ValorActual = 0; // Valoracion of the seat's hand as it stands
inline int ValorPozo = 0;   // the best Valoracion the top of the pile can give

// For JugadorActual, by FaseJuego: 1 OrigenOrdenador, 2 CartaElegida (with Candidatas, the best
// discard first), 3 OrdenadorCierra, 4 CartasCombinables on ReceptorCartas. Every phase sets
// PuedeCerrar.
void EligeChinchon();
// The hand position of a card id in the seat's hand, 0 if it isn't there.
int PosicionDeId(int seat, int id);
