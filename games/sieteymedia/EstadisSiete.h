// What the statistics page of a hand of Siete y media counts: the cards the table shows face up,
// and the chances of the next card for a seat's series.
#pragma once

// The unseen cards the next one may be, and what each would make of the series.
struct PosibilidadesSiete {
    int Posibles = 0;        // cards not seen face up on the table
    int Pasan = 0;           // ... that would take the series over siete y media
    int SieteJusto = 0;      // ... that would make it siete y media exactly
    double SumaBuenas = 0;   // the totals the others would make, added up
    double Pasarse() const;  // percent of Posibles that bust
    double Siete() const;    // percent that make siete y media
    double Promedio() const; // the average total of a card that doesn't bust, 0 if none
};

// Refills CartaVista with the seat that shows each card face up, of every seat and series.
void AnotaCartasVistas();
// The chances of the next card for the series, over every card of the deck that isn't seen face
// up on the table: a card still covered, in the stock or in another hand, may be any of them.
PosibilidadesSiete PosibilidadesSiguiente(int seat, int serie);
