// The rules that Tute and Brisca share: the cards of a trick and who takes it, the cards a seat
// may play, the exchange of the turned-up trump, the songs of Tute and the tantos of a hand.
// They only read and change the state; drawing, pauses and waits are left to the drivers.
#pragma once

// ---- State of the trick games that lives only during a hand ----
inline int CartaEnMesa[5][3] = {}; // [seat][1 suit, 2 value]: the seat's card in this trick
inline int OrdenJugadas[5] = {};   // hand position of each card of the trick, in order of play
inline bool MapaMano[5][14] = {};  // [suit][value]: the hand scanned by AnalizaMano
inline int TuteEnMano = 0;         // 11: the scanned hand holds four Caballos, 12: four Reyes
inline bool AcuseDisponible[5] = {};
inline bool HayAcuse = false;
inline int JugadorCante = 0;    // seat looked at for a song; after a Tute, the seat that sang it
inline int PosicionHallada = 0; // where TieneCarta found the card

constexpr int SEAT_POZO = 9;         // TieneCarta looks in the discard pile for this seat
constexpr int BONO_ULTIMA_BAZA = 10; // Tute: the last trick is worth ten more
constexpr int TANTOS_ACUSE = 20, TANTOS_ACUSE_TRIUNFO = 40;
constexpr int VALOR_CABALLO = 11, VALOR_REY = 12;

// ---- Cards of a hand ----
int CuentaPalo(int seat, int palo);
bool TieneCarta(int seat, int palo, int valor);
// Strength of a card against the trick on the table: trump above the led suit above the rest.
int FuerzaCarta(int palo, int valor);

// ---- The trick ----
void EmpiezaBaza(); // clears the table and sets ObligacionActiva
// The card leaves the hand and lies on the table, as the CartasEnBaza-th of the trick: the turn
// was counted when it began.
void PonCartaEnBaza(int seat, int pos);
void ResuelveBaza(); // GanadorBaza and TantosBaza
int PuntosEnMesa();
void AnotaBaza(); // last-trick bonus, the tallies and the history of the trick just resolved

// ---- Cards a seat may play ----
// The first line of the obligation that yields a card: 1 overtake the led card, 2 follow suit,
// 3 trump, 4 anything; 0 when the seat is free (Brisca, no obligation yet, or it leads).
int ClaseObligada(int seat);
bool EsCartaLegal(int seat, int pos);
// Candidatas: the legal positions first, in hand order, then the rest; NumCandidatas legal.
void ListaCartasLegales(int seat);

// ---- Exchange of the turned-up trump ----
int HallaCodigoCambio(int seat); // 0, 2, 4 or 7 into CodigoJugada
int AplicaCambioPinta();         // JugadorActual swaps; returns the hand position swapped

// ---- Songs of Tute ----
void AnalizaMano(int seat);
int CantorDe(int palo);   // seat that sang the suit, 0 if nobody
int EligeAcuse(int seat); // suit to sing after AnalizaMano, 0 if none
void AnotaAcuse(int seat, int palo);
int HallaTuteRepartido(); // seat dealt four Reyes, else four Caballos, else 0
void AnotaTute(int seat);
int AcusesDe(int seat); // suits the seat has sung in this hand

// ---- End of the hand ----
void DecideGanadorMano(); // GanadorMano: a seat, or in pair mode 1 (1+3) or 2 (2+4)
