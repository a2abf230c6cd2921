// What the deal routines share among their files; nothing outside the deck code calls these.
#pragma once

// Puts a card in a random empty place among the cuenta places after base of Baraja: a draw
// that falls on a taken place is drawn again.
void ColocaAlAzar(int palo, int valor, int base, int cuenta);
// The deal laid out by the person on the panel of thumbnails.
void ReparteManual();
