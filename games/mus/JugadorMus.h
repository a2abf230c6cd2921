// What the computer player of the Mus works out for a seat at every call, shared by the files
// that decide the mus, the discards and the envites, and by the signs between partners.
#pragma once

#include "games/mus/Mus.h"

// The work of one call of PiensaMus, for the seat it thinks for.
struct PensamientoMus {
    int Seat = 0;
    int Nivel = 0;           // 0 to 100 (100 while the tutor asks)
    int Caracter = 2;        // 1 conservador, 2 medio, 3 agresivo
    double R = 0;            // the turn's draw: every chance of the call tests it
    bool ManoPareja = false; // going round from the mano, the seat speaks before its partner
    int Anterior = 0, Siguiente = 0; // the rivals before and after it
    int Interes[5] = {};             // how much the hand is worth playing for each lance
    bool Elegido[5] = {};            // the lances the hand aims at
    int Objetivos[5] = {};           // the chosen lances, the best aim first
    int NumObjetivos = 0;
    bool FarolPosible = false;
    // What the true hands of the four seats say: facts the player uses only by level and chance.
    int GanadorReal[6] = {}; // the pair that would take each lance, 0 when it is not played
    int PiedrasReal[3] = {}; // the stones each pair would take from its hands, with no envites
    int VentajaReal = 0;     // the share of those stones of this pair minus the rivals', -100..100
    bool RivalesNoLlegan = false;
};
inline PensamientoMus Pensado;

// The gesture codes a seat may make to its partner.
constexpr int SENA_NADA = 1, SENA_PAR = 2, SENA_PAR_ASES = 3, SENA_PAR_REYES = 4, SENA_MEDIAS = 5,
              SENA_MEDIAS_ASES = 6, SENA_MEDIAS_REYES = 7, SENA_DUPLES = 8, SENA_JUEGO = 9,
              SENA_31 = 10, SENA_PUNTO_29 = 11, SENA_PUNTO_30 = 12, SENA_MANDO_CORTAR = 13,
              SENA_MANDO_ENVIDAR = 14;
// The gazes, as DibujaSena draws them: looking down, aside, up, at the partner.
constexpr int MIRADA_ABAJO = 1, MIRADA_LADO = 2, MIRADA_ARRIBA = 3, MIRADA_COMPANERO = 4;
constexpr int SENA_MIRADA = 60; // DibujaSena(seat, SENA_MIRADA + gaze)

// What each seat wants to tell its partner, where its gaze is, and what it has seen.
struct SenasDeJugador {
    int Cola[6] = {};     // [1..4], 0 behind the last
    int Cursor = 0;       // the next gesture of Cola; 0 when Cola is empty
    int Visto[5][5] = {}; // [other seat][slot]: what this seat saw the other make
    int Mirada = MIRADA_ABAJO;
};
inline SenasDeJugador SenasJugador[5];

// True when the observer has seen the observed seat make that gesture in this hand.
bool VioSena(int observador, int codigo, int observado);
// The rivals' boldness, averaged and rounded; never below 1.
int CaracterRivales(int seat);
// Clears what every seat has seen and wants to show (a new round of mus).
void LimpiaSenas();
// The face of the seat for a gaze (61 to 64) or a gesture (1 to 14), drawn where its cards lie.
void DibujaSena(int seat, int codigo);
// Every face shown, with its gaze: over cards just dealt, which it hides.
void DibujaCaras();

// The envite of the seat in the lance in play (ApuestaOrdenador, HablaPorDosOrdenador,
// MandaEnvidar), with Pensado already filled.
void DecideEnviteOrdenador(int seat);
// The value of a hand in a lance, in the units it is compared by (RangoJuego for Juego).
int ValorEnLance(const ValorMano& v, int lance);
