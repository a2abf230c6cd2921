// The window `Normas`: the rules of the game in play and the list of the nine games. Every
// option is written to its setting the moment it is touched; only a change of game, of the
// deck type or of the Mus type ends the match in play, and only after a question.
#pragma once

#include "settings/Formulario.h"

// The bar's " Normas de juego ": the window, modally; then a new game is opened, or a new deck
// type or Mus type starts a new match.
void PulsaNormas();
// The window alone, for the game in play.
void MuestraNormas();
// The window as it stands, for a test or a picture: its controls and its routines.
Formulario& FormularioNormas();
// Lays the window out for JuegoActual, without showing it.
void ColocaNormas();
// The controls of a game, from the top of the first column, and those of the second column.
struct ColumnasNormas {
    std::vector<int> Primera, Segunda;
};
ColumnasNormas ControlesDeNormas(int juego);
