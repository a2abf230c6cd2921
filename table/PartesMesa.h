// Parts of the table that are drawn again and again with the same look: a seat's row of cards,
// a stock. The table's picture is watched: when nothing has been drawn over a part since it was
// last drawn, and what it would show is the same, drawing it again changes no pixel, and it is
// skipped. A seat on turn is drawn many times a move; automatic play draws far less this way.
#pragma once

#include <QRect>
#include <QtGlobal>

enum ParteMesa {
    PARTE_SEAT = 0,  // 1 to 4: the row of cards of that seat
    PARTE_MAZO = 5,  // 5 to 8: stocks and piles, one for each place they are drawn at
    PARTE_BAZAS = 8, // 9 to 12: the back of the tricks won by that seat
    NUM_PARTES = 13,
};
constexpr int NUM_MAZOS = 4;

// A signature of what a part shows: the numbers its drawing reads, mixed in order.
struct FirmaParte {
    quint64 Valor = 14695981039346656037ull;
    FirmaParte& operator<<(qint64 numero);
    FirmaParte& operator<<(const QRect& r);
};

// Watches the table's picture from now on; everything it showed before is forgotten. Called
// whenever the picture is made anew.
void VigilaMesa();
// True when the part still shows what its last drawing left, and that drawing had this
// signature: drawing it again would change nothing.
bool ParteIntacta(int parte, quint64 firma);
// Notes that the part has just been drawn, over that area, with that signature.
void AnotaParte(int parte, const QRect& area, quint64 firma);
// The part of a stock or pile drawn at (x, y).
int ParteDelMazo(int x, int y);

// The table in cells of a few pixels: a cell is clean while nothing has been drawn on it since
// it was last wiped, so it holds the table's colour alone. A wipe then fills only the cells that
// were drawn on; the picture is the same as if it filled them all.
void BorraCeldasSucias(const QRect& zona, unsigned colorMesa);
