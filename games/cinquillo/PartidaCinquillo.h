// The match of Cinquillo at the table: hand after hand, each seat in turn lays a card on the rows
// of the layout or passes, until a seat has emptied its hand; the match goes to the seat that
// first wins the hands it asks for.
#pragma once

void JuegaCinquillo();

// ---- Steps of a hand, at the table ----
void JuegaCartaCinquillo(int seat, int pos); // the card leaves the hand for its place
void DibujaLayout();                         // the four rows as CartaVista holds them
void FinalManoCinquillo();                   // JugadorActual has emptied its hand
