// The millisecond clock and sleeping to a deadline.
#pragma once

#include <QtGlobal>

// Milliseconds of a steady clock, counted from the program's start (timeGetTime's role).
qint64 Ahora();
// Sleeps until the clock has passed the deadline. No busy spin, no event pump.
void DuermeHasta(qint64 plazo);
