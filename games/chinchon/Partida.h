// The match of Chinchón at the table: hands of seven cards, turns of taking from the stock or
// the pile and discarding, the close, the laying off on the melds of the table, and the leftover
// points added up until a single seat is left below the limit.
#pragma once

void JuegaChinchon();

// How a hand came to its end (FinMano): still in play, the stock ran out a second time, a seat
// closed.
constexpr int FIN_SIGUE = 0, FIN_MAZO_AGOTADO = 1, FIN_CERRADA = 2;
// How the closer closed (CierreChinchon): with loose points, with no loose points, with all seven
// cards in runs, or with a Chinchón.
constexpr int CIERRE_CON_PUNTOS = 0, CIERRE_MENOS_DIEZ = 1, CIERRE_MENOS_VEINTICINCO = 2,
              CIERRE_CHINCHON = 3;
inline int FinMano = FIN_SIGUE;
inline int CierreChinchon = CIERRE_CON_PUNTOS;
inline int PuntosMano[5] = {}; // the score of each seat in the hand

// ---- Steps of a hand, at the table ----
// The top of the pile goes into the seat's hand.
void TomaDelPozo(int seat);
// The stock is empty: the pile but its top card is shuffled back into it.
void RebarajaPozo();
// The close: its message, and the seats' hands as they stand (Detalle of the record).
void AnunciaCierre();
// Each seat in turn receives the loose cards of the others on its melds. Returns false when the
// match was left meanwhile.
bool CombinaSobrantes();
// The score of each seat, its message and the hand's record. Returns false when the match was
// left meanwhile.
bool FinalManoChinchon();
