// The four seats: who sits there, how they play, how they speak.
#pragma once

#include <QString>

constexpr int ESTADO_ACTIVADO = 1, ESTADO_DESACTIVADO = 2;
constexpr int CONTROL_AUTOMATICO = 1, CONTROL_MANUAL = 2;
constexpr int VOZ_MUJER = 1, VOZ_HOMBRE = 2;

inline QString NombreJugador[5];
inline int NivelJugador[5] = {};
inline int EstadoJugador[5] = {};
inline int CartasVisibles[5] = {};
inline int ControlJugador[5] = {};
inline int CaracterJugador[5] = {};
inline int VozSexo[5] = {};
inline int VozVelocidad[5] = {};
inline int VozTono[5] = {};
inline const int CompaneroDe[5] = {0, 3, 4, 1, 2};
inline const int ParejaDe[5] = {0, 1, 2, 1, 2};
inline const int OrientacionSeat[5] = {1, 2, 3, 4, 1};

// The phrase a seat shows beside its cards, per series.
inline QString FraseJugador[5][5];
inline unsigned ColorFrase[5][5] = {};
inline int ParpadeoFrase[5][5] = {};
// Mus: the seat's face is drawn where its cards lie, so the partner can read its signs.
inline bool SenasVisibles[5] = {};
