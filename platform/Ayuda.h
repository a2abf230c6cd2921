// The help viewer: opens a topic of the program's help by its number.
#pragma once

// The topic last asked for, so that a test can see which page a control opens.
inline int UltimoTemaAyuda = 0;

void AbreAyuda(int tema);
// The same, for a moment when the program can't go on: the call returns when the viewer closes.
void AbreAyudaYEspera(int tema);
