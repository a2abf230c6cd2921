// Chinchón: the hand's record of discards, the choice between the stock and the pile, the close
// and the laying off. The driver and its computer player keep them; the mouse, the drawing of a
// shown hand and the statistics read them.
#pragma once

#include "frame/GblCartas.h"
#include "frame/GblJuego.h"

#include <vector>

// Where the card of a turn comes from (OrigenRobo, OrigenOrdenador).
constexpr int ROBO_MAZO = 1, ROBO_POZO = 2;

// One entry of the record: a turn (the card taken from the pile, if any, and the discard) or a
// card laid off on the melds of a receiver. Cards go by their id, 0 for none.
struct EntradaDescarte {
    int Seat = 0;
    int TomadaDelPozo = 0;
    int Descartada = 0;
    int Receptor = 0; // the seat whose melds took the card, 0 for a plain discard
};
constexpr int DESCARTES_INICIALES = 40, DESCARTES_AMPLIACION = 20;
// Entries 1 to NumeroDescarte of the hand; entry 0 is never used.
inline std::vector<EntradaDescarte> RegistroDescartes(DESCARTES_INICIALES + 1);

inline int OrigenRobo = 0;         // the person's choice: ROBO_MAZO or ROBO_POZO
inline int OrigenOrdenador = 0;    // the computer player's choice
inline bool EligiendoRobo = false; // clicks on the stock and the pile are open
inline int MazoRebarajado = 0;     // cards that went back into the stock from the pile, 0 none
inline bool OrdenadorCierra = false;
inline int ReceptorCartas = 0; // seat whose melds receive cards at the close
inline int RecibeDesde = 0;    // first entry of the record that is a lay-off, 0 before the close
inline int CartasCombinables[MAX_MANO + 1] = {}; // ids the seat on turn can lay off, from 1
inline int NumCombinables = 0;

// Empties the record for a new hand, sized to its first entries.
inline void VaciaRegistroDescartes() {
    RegistroDescartes.assign(DESCARTES_INICIALES + 1, EntradaDescarte{});
    NumeroDescarte = 0;
}

// Opens the next entry of the record (NumeroDescarte plus 1), growing the record when it is full.
inline EntradaDescarte& NuevaEntradaDescarte() {
    ++NumeroDescarte;
    if (NumeroDescarte >= static_cast<int>(RegistroDescartes.size()))
        RegistroDescartes.resize(RegistroDescartes.size() + DESCARTES_AMPLIACION);
    RegistroDescartes[NumeroDescarte] = EntradaDescarte{};
    return RegistroDescartes[NumeroDescarte];
}
