// The popup Pic_SelOpciones: sorting the hand, and the suit a game asks for.
#pragma once

#include <QString>

constexpr int OPCION_ORDEN_MANUAL = 4, OPCION_ORDEN_AUTOMATICO = 5;
inline bool OpcionVisible[11] = {};
inline bool OpcionHabilitada[11] = {};
inline int OpcionElegida = 0; // the suit chosen in Pumba
inline int LineaIluminada = 0;
inline int SeatPopup = 0; // the seat whose hand the popup sorts

QString TextoOpcion(int entrada);
// Draws and places the popup at the pointer (or beside JugadorActual while a game asks).
void MenuSeleccion();
void OcultaPopup();
// Mouse over and release on the popup, in table pixels.
void MuevePopup(int x, int y);
void SueltaPopup(int x, int y);
bool DentroPopup(int x, int y);
