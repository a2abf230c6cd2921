// Drawing on the table: every routine draws into the persistent picture Pic_Mesa (or into the
// box it is given) and asks the window to show it. Coordinates are logical table pixels.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QImage;
class QRect;

// Lays out the table for AnchoVentana by AltoVentana: zones, trick places, piles, the stock
// and the pile, the bar; loads the sheets and sets the words of the program.
void PreparaMesa();
// Places of the stock and of the turned-up trump for JuegoActual.
void ColocaMazo();
void ColocaTriunfo();
// Loads the sheet of the deck in play (Baraja01.jpg French, Baraja02.jpg Spanish) from
// CarpetaTrabajo into Pic_Baraja(1), and builds the turned sheets.
void CargaBaraja();
// Builds Pic_Baraja(2..4) and Pic_Comodin(2..4) from the upright sheets.
void ImagenesGiradas();
void GiraImagen(int orientacionDestino);
// Builds the small backs of the won tricks, Pic_ReversoRedu(1) standing and (2) lying, from the
// back design in force (ReversoCartas): run again when the design changes.
void ReversosReducidos();

void BorraZona(int x, int y, int ancho, int alto);
void BorraCarta(int x, int y);
void BorraVentana(); // the whole table in its colour, the bar left as it is
// One card: face 1 its back, 2 its face; partial 1 the half-covered card.
void DibujaCarta(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                 int parcial = 0);
// The same card, only the part of it inside recorte (table pixels).
void DibujaCartaEn(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                   int parcial, const QRect& recorte);
// The same card, but for the part under `encima`, which a card drawn next covers whole.
void DibujaCartaBajo(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                     int parcial, const QRect& encima);
// A band of a card at (x, y) that hides whatever lies under it, clear of the rounded corners:
// across all its columns less the rows the corners reach (horizontal), or down all its rows
// less their columns.
QRect BandaOpaca(int x, int y, int orientacion, bool horizontal);
// Wipes a zone but for the part that is drawn over whole right after.
void BorraZonaBajo(const QRect& zona, const QRect& encima);
// A stock of count cards, a back for every 4 cards of each deck, leaning up and to the right; with
// Tute's trump lying under it, and Chinchón's pile ending with its top card face up.
void DibujaMazo(int x, int y, int cuenta);
void PosicionCarta(int seat, int posicion, int total);
void DibujaJugador(int seat);
void DibujaNombres();
void DibujaBazas(int seat);
void CalculaPaso(int x1, int y1, int x2, int y2, int largo);
void MueveCarta(int palo, int valor, int x1, int y1, int orientacion1, int cara1, int x2, int y2,
                int orientacion2, int cara2, int parcial = 0);
void MueveFicha(int denominacion, int x1, int y1, int x2, int y2, int seat, int seatDestino);
void DibujaFicha(int x, int y, int denominacion, int orientacion);
void ColocaMonton();
void DibujaMonton();
void DibujaPiedrasSeat(int slot);
void BorraPila(int zona);
void DibujaPilas(int seat);
void CifraResto(int seat, const QString& texto);
void CifraApuesta(int seat, const QString& texto);
void SenalaCarta(int seat, int posicion, int veces);
void MuestraMano(int seat, int serie);
void RotuloMesa(const QString& texto);
// The lines of the banner: one, or two when the text is wider than the banner allows, broken at
// the first blank from the middle character on.
QStringList LineasRotulo(const QString& texto);
int RotuloMesaY(); // top of the banner: lower, below the stock, where the stock is in the middle
// Blinks the icon of the hand's winner (and its partner's in pairs); the caller has played
// sound 14.
void SenalaGanador(int seat);
void MarcaPaso(int seat);
void OcultaTantos();
// The slant of a stack of chips: the offsets of its count-th chip from the pile's base, growing
// one pixel for each two chips up to 5. Drawing and the pointer's test use the same.
int DesplazaMontonX(int cuenta);
int DesplazaMontonY(int seat, int cuenta);

// Automatic matches of the tests and the benchmark: cards and chips land at once instead of
// crossing the table step by step, and a blink blinks once. What the table shows after each
// move is the same.
inline bool VuelosOmitidos = false;
// The rounds of a blink: as many as asked, or one when flights are skipped.
inline int VueltasAnimacion(int vueltas) {
    return VuelosOmitidos ? 1 : vueltas;
}
// Whether a frame that the next one covers whole is drawn: on screen always; in automatic play,
// which nobody watches, only what each move leaves on the table is drawn.
inline bool FotogramaVisible() {
    return !VuelosOmitidos;
}

// Headless checks: when set, the drawing tells here each sound it plays and each step of a
// flight it shows, so a test can follow an animation without a window.
inline std::function<void(int sonido)> SonidoMesaOido;
inline std::function<void(int x, int y)> PasoVueloVisto;

// Shows what has been drawn, at once (the old Refresh): the window repaints before returning,
// so a flight made of pauses that pump nothing is seen step by step.
void RefrescaMesa();
// Asks the window to show the table at its next turn of the event pump; the waits call it
// before they block, so whatever was drawn without a pause is seen.
void SolicitaRepintado();
