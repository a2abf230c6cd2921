// The bar at the right of the table: eight buttons, the big button and the action buttons.
#pragma once

#include <QString>

// Lays out the bar for the window's height and draws its buttons.
void PreparaBotonera();
void RefrescaBotonera();
// The big button, with its two lines for the game and phase; pressed draws it down.
void DibujaContinuar(bool pulsado);
QString LineaContinuar(int linea); // the caption DibujaContinuar writes, line 1 or 2
void OcultaPulsadores();

// Whether a bar button is refused now: the pointer turns to "no drop" and a press does nothing.
bool BotonRechazado(int indice);
// A press on a bar button, on the big button, a key on the window.
void PulsaBoton(int indice);
void PulsaContinuar();
// Returns true when the key was taken (every key but q, Q, Esc and Ctrl+C).
bool TeclaMesa(int tecla, bool control);
