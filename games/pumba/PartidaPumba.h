// The match of Pumba at the table: hand after hand, each seat in turn lays a card on the pile,
// draws or passes, the special cards act on the next seats, and a seat about to hold its last
// card must say "Pumba". Points left in the hands add up; a seat that reaches the limit leaves
// the match, and the last one standing wins it.
#pragma once

void JuegaPumba();

// After the deal: the first card turned up on the pile, and the button to say the word.
void PreparaManoPumba();
// The seat on turn says "Pumba" at two cards, or is caught at one (Pic_Pulsador(95) and driver).
void CantaPumba();
// A press on Pic_Pulsador(95).
void PulsaBotonPumba();

// ---- Steps of a hand, for the tests ----
enum class FinTurno { Sigue, Pasa, FinMano, Abandono };
// The next seat's whole turn: Doses paid, draws, the pass, the card, the word and the effect.
FinTurno TurnoPumba();
void JuegaCartaPumba(int seat, int pos); // the card leaves the hand for the pile
void FinalManoPumba();                   // the points of the hand, its winner, its record
