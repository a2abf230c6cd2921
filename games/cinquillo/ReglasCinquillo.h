// The rules of the Cinquillo: the four rows that grow outward from the 5s, the card that may be
// laid on them, what the cards left in a hand cost at its end, and where each card of the layout
// lies on the table.
#pragma once

constexpr int VALOR_CINCO = 5;

// The place of a value in a row, 1 to 10: the value itself up to 7, the value - 2 from 10 on.
int Compacto(int valor);
// The value one step towards the 5 (7 for the Sota), 0 for the 5 itself.
int VecinoInterior(int valor);
// The value one step away from the 5 (the 6 for the 5, the Sota for the 7), 0 at a row's end.
int VecinoExterior(int valor);
// A card may be laid when it is a 5 or its inner neighbour is already on the table.
bool CartaJugableCinquillo(int palo, int valor);
// What a card left in hand costs: 6 for a 5, one less for each step away from it.
int PuntosCartaCinquillo(int valor);
int PuntosManoCinquillo(int seat);
// The place of a card of the layout: CartaX, CartaY. Each suit a column, the Rey at the top;
// on a crowded table a card not yet covered from above rises a little.
void PosicionCinquillo(int palo, int valor);
