// The one routine that sorts a hand, in every game.
#pragma once

#include <QString>

// Reorders the positions of the seat's series SerieActual, all fields of a card moving
// together, by the key of the game, and redraws the hand.
void OrdenaMano(int seat);
// The key a card sorts by in the game in play (for the games that sort by a plain key).
QString ClaveOrden(int palo, int valor);
