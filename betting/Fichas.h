// Money kept as chips per seat and in the pot; only the total of a row has meaning. Every stake,
// the person's and the computer's alike, is placed chip by chip through PonFicha, which holds the
// limits of the stake and tells the person which one was passed.
#pragma once

// ---- The board ----
inline int DesgloseFichas[7] = {}; // the split of an amount that DesglosaFichas leaves
inline int ApuestaPersona = 0;     // money placed in this turn; -1 "No voy" with a stake to call
inline int MayorResto = 0;         // the most another seat in the hand can put against a stake
inline int DuenoMayorResto = 0;    // whose it is
inline int Ganancia[5] = {};       // what each seat takes from the pot of a Póker hand
inline int NumGanadores = 0;       // seats that share the best hand
inline int FichaBajoPuntero = 0;   // the denomination of the seat's stack under the pointer, or 0
inline int JugadorMaxApuesta = 0;  // the seat whose stake is the highest of the round, 0 none
inline int ApuestaAnunciada = 0;   // the stake a seat finally makes in its turn
inline int ApuestaMaxRonda = 0;    // the highest stake of the round (in the Mus, 999 an órdago)

int RestoJugador(int seat);
int ApuestaAcumulada(int seat, int serie);
// Rewrites the seat's row so that it is worth total, showing small change where it can.
void RecomponeFichas(int seat, int total);
// The plain greedy split of an amount into DesgloseFichas, largest chips first.
void DesglosaFichas(int cantidad);

// One chip of denomination d for the seat, on SerieActual and FaseJuego: tests the limits in
// order and places it, or shows the message of the first limit passed and changes nothing.
// Returns whether the chip was placed.
bool PonFicha(int seat, int d);
// Whether a stake of this amount passes every limit of PonFicha taken whole: a call is tested so
// before its first chip, and a refusal shows the message of the first limit passed.
bool AdmiteApuesta(int seat, int cantidad);
// Places amount chip by chip from the largest, pausing between chips; stops at a refusal.
void ApuestaConFichas(int seat, int cantidad);
// Takes back every chip of the seat's history of SerieActual, the last first.
void AnulaApostado(int seat);
// Stakes in front of a seat at the end of a Black Jack or Siete y media hand: mode 1 all of it,
// 2 the insurance, 3 the rest, to the destination seat.
void RetiraApuesta(int seat, int destino, int modo);
// Pays amount from the bank to the seat, chip by chip.
void PagaDesdeBanca(int seat, int cantidad);
// Pays out the pot of a Póker hand as Ganancia says.
void RepartoBote();
// No seat but JugadorActual holds cards and still has money.
bool SoloQuedanSinResto();
// The value of the pot, row 0.
int ValorBote();
