// The phrase of a seat, written beside its cards.
#pragma once

// Writes FraseJugador of the seat's series in play along the inner edge of its zone: a dark
// green shadow one pixel off, then the text in its colour. An empty phrase wipes the strip.
// hablar: 1 the phrase is to be spoken as well, 2 it isn't.
void EscribeFrase(int seat, int hablar = 1);
