// The steps of a hand of Mus at the table, shared by the files of the driver.
#pragma once

#include <QString>

constexpr unsigned COLOR_FRASE_MUS = 0xFFFFFF; // what a seat says, in white

bool EsManual(int seat);
// The seat says the phrase: written beside its cards, and spoken; an empty text clears it.
void DiceMus(int seat, const QString& frase);
void CallanTodos();
// The seat on turn flashes, unless it shows its face: then only its buttons are drawn.
void SenalaTurno(int seat);
// One turn of waiting: the person acts, or the computer seats look at each other; then the
// computer player runs again for the seat on turn.
void EsperaTurno();
// One of the texts, each with the same chance, by the draw r in [0, 1).
QString UnaDe(std::initializer_list<const char*> frases, double r);
// "Una" for 1, else the figure.
QString NumeroPiedras(int n, bool mayuscula);

// The lances: false when the match was left.
bool JuegaLances();
// The showdown and the payment of what stands at the end of the hand.
bool MuestraYCobra();
// The report of the hand, its record and the wait for the next one. False when left.
bool FinalManoMus();
// The game is won: its message, and the next game or the end of the match.
void FinDeJuegoMus();
// Goes inside when a pair is near the game, after the lances are paid.
void EntradaDentro();
