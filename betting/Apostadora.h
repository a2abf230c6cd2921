// The betting panel Pic_Apostadora, left of the person's cards: the stake of the seat on turn,
// and the buttons that call, pass, end or cancel it. The person stakes by clicking the chips of
// their own stacks; the panel counts what has been placed. Póker, Black Jack and Siete y media
// lay it out here; Mus lays it out its own way and shares the buttons and their behaviour.
#pragma once

#include <QString>
#include <functional>

// The buttons of the panel, by the number that names each: NombreBotonApostadora holds the
// caption of each.
constexpr int AP_IGUALAR = 2, AP_ANULAR = 4, AP_PASAR = 11, AP_PASAMOS = 12, AP_APOSTAR = 13,
              AP_APOSTAMOS = 14, AP_MAS = 15, AP_MENOS = 16, AP_ORDAGO = 17;
constexpr int NUM_BOTONES_APOSTADORA = 17;
constexpr int ANCHO_APOSTADORA = 157, ALTO_APOSTADORA = 141;
constexpr int ANCHO_BOTON_APOSTADORA = 109, ALTO_BOTON_APOSTADORA = 24;
// The Mus buttons "+" and "-" repeat while held: the first repeat after this, then every...
constexpr int PRIMERA_REPETICION = 450, SIGUIENTES_REPETICIONES = 150;

struct BotonApostadora {
    bool Visible = false;
    int X = 0, Y = 0; // in the panel's pixels
    int Ancho = ANCHO_BOTON_APOSTADORA;
};
inline BotonApostadora BotonesApostadora[NUM_BOTONES_APOSTADORA + 1];
inline QString NombreBotonApostadora[NUM_BOTONES_APOSTADORA + 1];

// Mus: redraws its own panel after "+" or "-" has changed the envite.
inline std::function<void()> RedibujaApostadoraMus;

// Draws the whole panel for JugadorActual and shows it.
void DibujaApostadora();
// Redraws the figures only: the stake of this phase and, in Póker, what the seat has staked in
// the hand.
void ActualizaCifrasApostadora();
void OcultaApostadora();
// Draws a button of the panel, up or pressed, at its place; Mus shows its own through it.
void PintaBotonApostadora(int indice, bool pulsado);
// A press at a point of the panel (panel pixels), and the release of the mouse anywhere.
void PulsaApostadora(int x, int y);
void SueltaApostadora();

// The chips of the seat on turn under a table point, when it can stake them: the denomination,
// or 0. Sets FichaBajoPuntero.
int HallaFichaBajoPuntero(int x, int y);
// A click on a chip of the seat on turn: the opening law, then the chip.
void PulsaFicha();
// The text of the message that the opening law shows.
QString TextoLeyApertura();
