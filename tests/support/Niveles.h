// Level 100 against level 0 in automatic matches, for the games where hands are won one by one.
#pragma once

#include <functional>

// Hands played and hands won by the seats at level 100, the other seats at level 0, all of one
// character, over matches from seed 1 on until that many hands are played. The odd seats hold
// level 100 in the odd matches and the even seats in the others, so no seat's place tells. The
// seats' levels and characters are put back afterwards.
struct ManosDeNivel {
    int Manos = 0, Ganadas = 0;
};
ManosDeNivel JuegaNivelesAlternos(int juego, int jugadores, int manosMinimas,
                                  const std::function<void()>& opciones = nullptr);
