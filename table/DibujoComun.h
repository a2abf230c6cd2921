// What the drawing files of the table share among themselves: the sheets' loading, the sounds
// of the table, the blocks of the chip piles, the fonts and the colours.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRect>
#include <QString>

// Loads the window's own sheets (backs, joker, chips, small pictures, buttons) and builds the
// turned ones; a missing sheet is replaced by a plain one drawn here, so the table always draws.
void CargaLaminas();

// Plays a sound of the table and tells the listener a test may have set.
void SuenaMesa(int modo, int id);

// The block of a seat's chip piles (zones 0 to 4), of its stake (11 to 14) or of its frame of
// stones (21 to 24), as BorraPila wipes it.
QRect BloquePila(int zona);
// What BorraPila wipes of a block: the block and the lean of its stacks.
QRect AreaBorrado(int zona);
// Where the money figure of a seat (0 the pot) and the figure of its stake are written.
QRect CajaCifraResto(int seat);
QRect CajaCifraApuesta(int seat);
// Where the name of a seat is written.
QRect CajaNombre(int seat);

// Orientation in which a seat sees its cards and chips; seat 0 and the stakes' slots as their
// seats do.
int OrientacionDe(int seat);

// A colour given as a Windows value, 0x00BBGGRR.
QColor ColorWindows(unsigned valor);
// The table's typeface, bold, at a size in pixels.
QFont LetraMesa(int pixeles, bool negrita = true);

// Writes a text with its dark shadow one pixel down and right.
void EscribeConSombra(QImage& destino, const QRect& caja, int alineacion, const QString& texto,
                      const QFont& letra, const QColor& color, const QColor& sombra);

// Whether the centre of pixel (x, y) lies inside the rounded outline of a card of ancho by alto.
bool DentroCarta(int x, int y, int ancho, int alto, double radio = 6.0);

// Draws the cards of the seat's series in play, in fan order, shifted by dx, dy (a picture
// that starts at dx, dy of the table); the card hanging from the pointer is left out. Returns
// whether one of them is raised.
bool PintaCartasSeat(QImage& destino, int seat, int dx = 0, int dy = 0);
// The strip along the inner edge of a seat's zone where its phrase is written.
QRect FranjaFrase(int seat);
