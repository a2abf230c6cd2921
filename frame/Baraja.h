// Cards and dealing: the deck of each game, the shuffle, the deal by turns or by hand, drawing
// from the stock and the pile.
#pragma once

#include <QString>

void ParametrosJuego();
void BarajaMazo();
void ReparteCartas();
void ReparteRestantesAlAzar();
void RobaCartas(int seat, int n, int marca);
void RobaDelPozo(int seat);
void CompactaMano(int seat);

int IdCarta(int palo, int valor);
void CartaDeId(int id);
bool EsIdComodin(int id);
QString NombrePalo(int palo);
QString LetraValor(int valor);

// The manual deal, as the mouse handlers of the panel call it.
bool MiniaturaEnJuego(int id);
void PulsaMiniatura(int id, bool conControl); // left press on a thumbnail
bool PuedeRecibirSeleccion(int seat);         // the hanging cards may land on this seat
void ColocaSeleccion(int seat);               // they land
void SueltaSeleccion();                       // released over nothing: back to the panel
void DevuelveCarta(int seat, int posicion);   // a laid card goes back to the panel
int CartasRepartidas();                       // cards laid on the four seats
int CuentaSeleccion();
void DibujaPanelReparto();
