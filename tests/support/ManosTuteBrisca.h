// Hands and deck tables of Tute and Brisca for the tests: the Spanish deck as the trick games
// count it, and hands laid straight into a seat.
#pragma once

#include "frame/TrufalGbl.h"

#include <utility>
#include <vector>

using Carta = std::pair<int, int>; // suit, value
constexpr int OROS = 1, COPAS = 2, ESPADAS = 3, BASTOS = 4;

// The strengths and points of the Spanish deck in the trick games, as a player counts them;
// 8, 9 and 13 are out of play.
inline void PonTablasTuteBrisca() {
    const int orden[13] = {0, 10, 1, 9, 2, 3, 4, 5, 0, 0, 6, 7, 8};
    const int puntos[13] = {0, 11, 0, 10, 0, 0, 0, 0, 0, 0, 2, 3, 4};
    for (int v = 0; v <= 13; ++v) {
        OrdenValor[v] = v <= 12 ? orden[v] : 0;
        PuntosValor[v] = v <= 12 ? puntos[v] : 0;
        ValorEnJuego[v] = v >= 1 && (v <= 7 || v == 10 || v == 11 || v == 12);
    }
}

// The seat holds these cards, in this order, shown as the seat's cards are shown.
inline void DaMano(int seat, const std::vector<Carta>& cartas) {
    for (auto& p : CartasJugador[seat][1])
        for (auto& f : p) f = 0;
    int pos = 0;
    for (const auto& [palo, valor] : cartas) {
        auto& c = CartasJugador[seat][1][++pos];
        c[CAMPO_PALO] = palo;
        c[CAMPO_VALOR] = valor;
        c[CAMPO_CARA] = CartasVisibles[seat];
    }
    NumCartas[seat][1] = pos;
}
