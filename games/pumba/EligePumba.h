// The computer player of the Pumba, run for the seat on turn at every decision, the person's too:
// it lists the legal cards in Candidatas, best first, leaves the card in CartaElegida, the suit it
// would name with a Sota in PaloElegidoSota, and who takes care of the word "Pumba" in Atento.
// It reads the real hands of every seat: how many cards of each suit they hold.
#pragma once

// ---- What the last run worked out ----
inline int RestantesPalo[5] = {};   // cards of the suit not yet played
inline int RestantesValor[14] = {}; // cards of the value not yet played
inline bool AsConCompania[5] = {};  // the seat holds the As of the suit and another card of it
inline int FuerzaPalo[5] = {};      // how good the suit is for the seat, against the next seats
inline int MejorPalo = 0;           // the suit to name, 0 when none is worth it
inline int MejorFuerza = 0;
inline float Jugables[5] = {}; // share of each hand that could follow a given card

void EligePumba();
// The share of each seat's real hand that could follow the card (suit, value).
void ProbarJugables(int palo, int valor);
