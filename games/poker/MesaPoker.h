// What the files of the Póker driver share: the state of a hand at the table and its steps.
#pragma once

#include <QString>

// ---- The hand and the round in play ----
inline int TurnosDesdeSubida = 0; // seats that have spoken since the round began or was raised
inline int JugadorApertura = 0;   // the first seat of the first round that passed the opening law
inline bool ManoSinApuestas = false; // a round ended with nobody staking: the hand is dealt again
inline double AzarFrase = 0.0;       // drawn at each seat's turn, for its words

constexpr unsigned COLOR_FRASE_POKER = 0xFFFFFF; // what the seats say, in white
constexpr int LEY_NO_SE_APLICA = 14;             // "No se aplica": anybody may open

// Seats that hold cards; leaves the count in JugadoresMano.
int CuentaJugadoresMano();
// The words beside the seats are wiped.
void LimpiaFrases();
// A seat says a text beside its cards, written and spoken.
void DiceFrase(int seat, const QString& texto);
// The first letter made capital when it is a "u": "una más" reads "Una más".
QString ConMayuscula(const QString& texto);
// The cards of the seat fly to the discard pile, face down, and the seat holds none.
void TiraCartas(int seat);

// A betting round (phase 3 or 5). Returns false when the match was left meanwhile.
bool RondaApuestas();
// The draw: every seat with cards, from JugadorMano. False when the match was left.
bool FaseDescartes();
// The showdown and the pay-out: each seat's hand, places, shares of the pot, the message and the
// record. The cards are as the table shows them.
void FinalManoPoker();
