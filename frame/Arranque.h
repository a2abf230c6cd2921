// From nothing to a table that waits, or to a resumed match.
#pragma once

void Main();
// Whether the program's folder can be written; if not, the fallback folder is set up.
void PruebaCarpeta();
void BuscaMotoresVoz();
// The screen must give at least 800 by 600; false when the person chose to leave.
bool PruebaResolucion(int anchoPantalla, int altoPantalla);
// The size of the table for a screen: at least 800 by 600.
void FijaTamanoVentana(int anchoPantalla, int altoPantalla);
