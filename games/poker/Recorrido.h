// Every hand of a Póker deck, one after another: the counts of the plays and the table of draws
// are worked out from it, and the checks of the evaluation walk it.
#pragma once

#include <functional>

// The deck of a game of Póker without the table: CartaMinimaPoker 1..6, OpcionComodines 1..3,
// the values in play, the counts and the codes of the plays.
void PonBarajaPoker(int cartaMinima, int opcionComodines);
// Deals every five-card hand of the deck in play to seat 0, evaluates it and calls back.
void RecorreManos(const std::function<void(int seat)>& cada);
