// The combination engine of the Chinchón. Everything the program knows about a hand comes from
// EvaluaMano: which cards form melds, the points left loose, how many unseen cards would form or
// extend a meld, and one number, Valoracion, by which the computer player compares hands.
#pragma once

#include "frame/GblCartas.h"

// ---- Input ----
// The cards to evaluate, [position][1 suit, 2 value], from 1; the count is EvaluaMano's argument.
inline int ManoEvaluada[MAX_MANO + 1][3] = {};
// In the discard phase, the hand position whose card the evaluation tries to throw.
inline int CartaEnPrueba = 0;

// ---- The grid of one evaluation, [suit][column] ----
// With 40 cards the columns are compact: 8, 9 and 10 hold the Sota, the Caballo and the Rey.
constexpr int CELDA_DESCONOCIDA = 0; // a card that could still come
constexpr int CELDA_LIBRE = 1;       // in the hand, in no meld
constexpr int CELDA_JUGADA = 2;      // in the hand, in a meld
constexpr int CELDA_DESCARTE = 3;    // the card the evaluation tries to throw
constexpr int CELDA_POZO = 8;        // in the discard pile
constexpr int CELDA_AJENA = 9;       // known to be held by another seat
inline int Rejilla[5][14] = {};

// ---- Output ----
inline int CartasEnGrupos = 0;    // cards in groups of equal value
inline int CartasEnEscaleras = 0; // cards in runs
inline int PuntosSobrantes = 0;   // points of the loose cards
inline bool EsChinchon = false;   // a run of 7 with no joker in the hand
inline int EscaleraMayor = 0;     // the longest run
inline int Salidas = 0;           // unseen cards that would form or extend a meld
// Ids of the cards in melds, in the order the melds were found, then the loose cards.
inline int CartasJugada[MAX_MANO + 1] = {};
inline int NumCartasJugada = 0;
inline int Valoracion = 0;
inline int PosicionComodin = 0; // position of the As de Oros when it plays as joker
inline int ComodinVale = 0;     // the id the joker stood for, 0 with no joker
inline float Huecos[5] = {};    // scatter of each suit's free cards

// ---- Who holds what ----
inline int CartaConocida[5][13] = {}; // seat known to hold the card, 0 none
inline int VecesSinCerrar[5] = {};    // times the seat could have closed this hand and held on

// Evaluates the first cuenta cards of ManoEvaluada for the seat, with its level and character.
void EvaluaMano(int seat, int cuenta);
// OrdenadorCierra for the seat's hand just evaluated.
void DecideCierre(int seat);
// Walks the record of discards: the seat known to hold each card.
void CalculaCartaConocida();

// The cards in melds of the last evaluation.
inline int CartasCombinadas() {
    return CartasEnGrupos + CartasEnEscaleras;
}
// ManoEvaluada takes the seat's hand; returns its count.
int CargaManoEvaluada(int seat);
// The seat's hand evaluated as it stands.
void EvaluaManoDelSeat(int seat);
// The place of the card in CartasJugada after an evaluation (the joker counts as the card it
// stood for), 0 when it isn't there.
int PuestoEnJugada(int palo, int valor);
// Whether the As de Oros is the joker of this game.
bool EsComodin(int palo, int valor);
