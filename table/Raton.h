// The mouse on the table, in table pixels.
#pragma once

#include <QString>
#include <functional>

void RatonPulsado(int x, int y, int boton, bool control);
void RatonMovido(int x, int y, bool pulsado);
void RatonSoltado(int x, int y, int boton);
// The tooltip of what lies under the point, empty when there is none.
QString TextoAyudaEn(int x, int y);
// The seat whose zone holds the point, by its three inner sides, or 0.
void DetectaZonaCartas(int x, int y);
// Index of the bar button under the point, 9 for the big button, 0 for none.
int BotonBajo(int x, int y);
// The seat and the card under the point (the later card of a fan wins), or 0.
void DetectaJdorYCar(int x, int y);
// The thumbnail of the manual deal under the point: PaloDeId, ValorDeId, or 0 in a gap.
void HallaFilyCol(int x, int y);
// Whether the card under the pointer may be played now.
bool JugadaPermitida();

// The chooser of the game in play, by game code, that lists the person's legal cards anew in
// Candidatas once the person has put the hand in another order at their own turn.
inline std::function<void()> RutinaCandidatas[60];
// The betting panel of the game in play, by game code: a press at a point of the panel, in the
// panel's own pixels.
inline std::function<void(int x, int y)> RutinaApostadora[60];
// After the seat's hand was reordered: on the person's own turn, its legal cards are listed again
// for the new positions.
void RehaceCandidatas(int seat);
