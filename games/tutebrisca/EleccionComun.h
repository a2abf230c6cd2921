// What the choosers of Tute and Brisca share: the worth of a card, the survey of the table, the
// hand sorted by key into Candidatas, the character's reckoning of a trick and the level's error.
// Everything reads JugadorActual, the seat that chooses.
#pragma once

constexpr int NIVEL_TUTOR = 100;    // the tutor advises as the best player would
constexpr int NIVEL_SIN_ERROR = 90; // from here on a seat never slips
constexpr int MAX_CANDIDATAS = 26;  // rows of Candidatas

// ---- Survey of the table, taken at the start of each choice ----
inline int TantosMesa = 0;         // points on the table, the partner's card left out
inline int TantosCompanero = 0;    // points of the partner's card, 0 when playing alone
inline int MejorMesa = 0;          // the highest FuerzaCarta on the table
inline int SeatMejor = 0;          // whose card that is, the first seat on equal strength
inline bool UltimoEnJugar = false; // the seat closes the trick

bool JuegaEnParejas();
bool EsCompanero(int seat, int otro);
bool SaleDeBaza(); // JugadorActual leads this trick
void SondeaMesa(int seat);

// The worth of keeping a card: its strength and, by character, its points. A low trump that may
// still be exchanged for the turned-up card is worth what that card is worth.
int ValoraCarta(int palo, int valor);

// Sorts positions 1..n of the hand of JugadorActual by their keys through Lis_Ordenar, written
// with four digits, into Candidatas (rows past n cleared).
void OrdenaCandidatas(const int claves[], int n);
int PaloEntrada(int i);
int ValorEntrada(int i);
int PuntosEntrada(int i);
int FuerzaEntrada(int i);
bool TriunfoEntrada(int i);
// The highest entry of 1..NumCandidatas that beats the table, 0 when none does.
int MayorEntradaQueGana();

// The highest OrdenValor of a trump still unseen: unplayed, not in the hand and, in pairs, not
// in the partner's hand; 0 when none.
int HallaTriunfoAlto(int seat);
// Whether the character spends a winning card of t points on what lies on the table.
bool CompensaGanar(int t, int nivel, int caracter);
// Below NIVEL_SIN_ERROR a seat may slip to any entry up to p, with the chance of its level.
int AplicaError(int p, int nivel);
