// The sections of the benchmark, one for each game or family of games; each prints its figures.
#pragma once

#include "bench/Automatica.h"

// The processor time the benchmark has used, in seconds: figures that a busy machine doesn't
// change. The table is played on one thread.
double SegundosDeProceso();
// Automatic hands a second of processor time, pauses at zero and no flights drawn.
double ManosPorSegundo(const MesaAutomatica& mesa, int manos);

void BenchTuteBrisca();
// Automatic hands a second of Tute and Brisca, drawn and not (or only not), over that many times
// the usual hands.
void BenchTuteBriscaManos(int repeticion, bool soloSinPintar = false);
void BenchPoker();
void BenchPokerMotor();
// Chips won a hand by a seat at level 100 and, on the same deals, at level 0 and 90, against seats
// at level 0, over that many hands for each table, each seat starting with this money at the
// factory's limits; and what each gate of the level changes.
void BenchPokerNiveles(long manos, int resto);
void BenchChinchon();
void BenchMus();
void BenchCinquillo();
void BenchPumba();
void BenchBlackJack();
// Only the automatic hands per second of Black Jack, without the loss rates.
void BenchBlackJackManos();
void BenchSieteYMedia();
// The loss rates of the Black Jack seats alone, over that many hands at each level.
void BenchBlackJackTasas(long long manos);
