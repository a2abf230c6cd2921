// Money kept as chips per seat; only the total of a row has meaning.
#pragma once

int RestoJugador(int seat);
int ApuestaAcumulada(int seat, int serie);
// Rewrites the seat's row so that it is worth total, showing small change where it can.
void RecomponeFichas(int seat, int total);
// Places amount for the seat, chip by chip from the largest that fits, with a short pause
// between chips: to the pot, or to the pile in front of the seat when the stake stays there.
void ApuestaConFichas(int seat, int cantidad);
