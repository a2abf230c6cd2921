// The table is coherent when every card of the deck lies in exactly one place and, in the games
// played for money, no chip has been made or lost. The check runs after every move of a driver
// in debug and sanitized builds, and wherever a test or the benchmark turns it on.
#pragma once

#include <QString>
#include <functional>

// How many times each card lies on the table: [suit 0..5][value 0..99], jokers at 90 + n.
struct CuentaCartas {
    int Veces[6][100] = {};
    void Anade(int palo, int valor);
};

#ifdef NDEBUG
inline bool ComprobarCoherencia = false;
#else
inline bool ComprobarCoherencia = true;
#endif

// What each game keeps outside the stock, the pile and the hands: the trick on the table, the
// tricks won, the layout, the turned-up card. A game with no such place leaves it empty.
inline std::function<void(CuentaCartas&)> CartasAparte[60];
// Money games: the money that lies neither in a seat's chips nor in the pot (stakes in front of
// a seat, say). A game with none leaves it empty.
inline std::function<int()> DineroAparte[60];
// The money on the table when the match began or was taken up again.
inline int DineroPartida = 0;

// Every card of the deck once, and the money whole. On a fault, what is wrong, in words.
bool MesaCoherente(QString* fallo = nullptr);
// The money of the seats, the pot and what DineroAparte adds.
int DineroEnMesa();
// Notes the money as the match starts with it.
void AnotaDineroPartida();
// When ComprobarCoherencia is on, stops the program with the fault if the table isn't coherent:
// a move that loses a card must not pass unnoticed. Drivers call it at the end of every move.
void CompruebaMesa();
// Where a test looks at the table at the end of every move.
inline std::function<void()> MesaTrasJugada;
