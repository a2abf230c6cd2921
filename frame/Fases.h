// The phases of a hand (FaseJuego), game by game. Whatever the game, FASE_FIN_MANO says that the
// hand is over.
#pragma once

constexpr int FASE_FIN_MANO = 9;

// Póker
constexpr int FASE_POKER_ANTES = 1, FASE_POKER_ENTRADA = 2, FASE_POKER_APUESTA1 = 3,
              FASE_POKER_DESCARTE = 4, FASE_POKER_APUESTA2 = 5;
// Black Jack
constexpr int FASE_BJ_ANTES = 1, FASE_BJ_APUESTA = 2, FASE_BJ_DOBLAR = 3, FASE_BJ_JUEGO = 4,
              FASE_BJ_SEGURO = 5;
// Siete y media
constexpr int FASE_SYM_ANTES = 1, FASE_SYM_APUESTA = 2, FASE_SYM_JUEGO = 4, FASE_SYM_BANCA = 5;
// Tute, Brisca and Cinquillo: the cards are played
constexpr int FASE_JUEGO = 4;
// Pumba
constexpr int FASE_PUMBA_ROBA = 1, FASE_PUMBA_RESPUESTA = 2;
// Chinchón
constexpr int FASE_CHINCHON_TOMA = 1, FASE_CHINCHON_DESCARTE = 2, FASE_CHINCHON_DECIDE = 3,
              FASE_CHINCHON_CIERRE = 4;
// Mus
constexpr int FASE_MUS_MUS = 1, FASE_MUS_DESCARTE = 4, FASE_MUS_ENVITE = 5, FASE_MUS_RESUELVE = 6;
