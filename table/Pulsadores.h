// The action buttons Pic_Pulsador(81..102) that stand against a seat.
#pragma once

// Captions of the buttons, set once.
void IniciaEtiquetas();
// Decides which buttons the seat should show now, from the game and its phase.
void DecidePulsadores(int seat, bool quiere[103]);
// Sizes the button, draws its skin and caption, and places it against the seat's zone.
void ColocaPulsador(int seat, int indice);
void DibujaPulsador(int indice, bool tumbado, bool pulsado = false);
// A press on a shown button: the flag it sets, and the end of the wait.
void PulsaPulsador(int indice);
// Index of the shown button under the point, or 0.
int PulsadorBajo(int x, int y);
