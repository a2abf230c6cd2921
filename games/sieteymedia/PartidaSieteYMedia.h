// The match of Siete y media: each seat plays alone against a bank that moves from seat to seat,
// with one card covered. The match ends when a single seat has money.
#pragma once

void JuegaSieteYMedia();
// Swaps the seat's only card, a 4, for a card from further down the stock.
void CambiaCuatro(int seat);
