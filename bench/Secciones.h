// The sections of the benchmark, one for each game or family of games; each prints its figures.
#pragma once

#include "bench/Automatica.h"

// Automatic hands a second of one kind of match, pauses at zero and no flights drawn.
double ManosPorSegundo(const MesaAutomatica& mesa, int manos);

void BenchTuteBrisca();
void BenchCinquillo();
void BenchPumba();
