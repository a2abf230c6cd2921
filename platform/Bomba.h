// The event pump of the waits.
#pragma once

// Delivers the events that are waiting, and returns at once.
void BombeaEventos();
// Blocks until at least one event has come, and delivers it. A wait loop calls it and tests
// its flag again.
void EsperaEventos();
