// The rules of the Pumba: the card that may follow the one on the table, the effect of each
// special card, when nothing more can be played, and the points left in a hand. They only read
// and change the state; drawing, pauses and waits are left to the driver.
#pragma once

#include <QString>

constexpr int VALOR_AS = 1, VALOR_DOS = 2, VALOR_SIETE = 7, VALOR_SOTA = 10, VALOR_CABALLO = 11;
constexpr int PUNTOS_GANADOR = -5; // the winner of a hand takes five off its count
constexpr int CARTAS_CASTIGO = 2;  // what a seat caught without its "Pumba" draws

// ---- State of a hand ----
inline int DosesPendientes = 0;     // Doses laid on each other and not yet paid
inline bool RepiteAs = false;       // after an As the seat plays again, in the same suit
inline int PaloElegidoSota = 0;     // the suit the computer player would name with a Sota
inline int Atento = 0;              // the seat that takes care of the word "Pumba"; 0 none
inline bool PumbaDicho = false;     // the seat on turn has said it
inline bool PumbaCazado = false;    // the seat on turn was caught by Atento
inline bool SinValor[5][14] = {};   // [seat][value]: the seat showed it lacks the value
inline int PuntosManoPumba[5] = {}; // the points of each seat at the end of the hand

// Clears the state of a hand.
void EmpiezaManoPumba();

int CuentaPaloPumba(int seat, int palo);
int CuentaValor(int seat, int valor);
// A card that may be laid on the one on the table (PaloTriunfo, ValorTriunfo): a Dos always; with
// Doses to answer nothing else; a Sota, the same value or the same suit; after an As only its
// suit.
bool EsLegalPumba(int palo, int valor);
// Nothing can follow the card just played: every card of its suit, of its value, every Dos and,
// unless it is a Dos, every Sota has been played.
bool ManoCerradaPumba(int palo, int valor);
// The effect of the card the seat has just played, with the suit a Sota names: the card to match,
// the sense, the Doses to answer and the turn, as the next seat must find them. Returns what the
// seat says of it, empty for nothing.
QString AplicaEfectoPumba(int seat, int palo, int valor, int paloNombrado);
// The points of the cards in the seat's hand.
int PuntosCartasPumba(int seat);
// The seat has drawn and shows a new hand: what it had shown it lacks no longer holds.
void OlvidaFaltas(int seat);
