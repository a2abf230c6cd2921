// Flights: a card or a chip crosses the table in a straight line. The background is saved once
// in Pic_Espejo; each step puts back what the object covered, moves it and draws it again, and
// is paced from the time mark set at its start, so the drawing time doesn't slow the flight.
#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Reloj.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"

#include <cstdlib>
#include <functional>

namespace {

constexpr int PASO_CARTA = 26, PASO_FICHA = 30;
constexpr int PAUSA_PASO = 12;
constexpr int LADO_FICHA = 33;
constexpr int DENOMINACION_PIEDRA = 7;

// Automatic play in tests and the benchmark: a flight lands at once, with no steps in between.
bool SinVuelo(int x1, int y1, int x2, int y2) {
    return VuelosOmitidos || (x1 == x2 && y1 == y2);
}

void GuardaFondo() {
    Pic_Espejo.Imagen = Pic_Mesa.Imagen.copy();
}

void RestauraFondo(int x, int y, int ancho, int alto) {
    Transfiere(Pic_Mesa.Imagen, x, y, ancho, alto, Pic_Espejo.Imagen, x, y, OpRaster::Copia);
}

// Moves from (x, y) to the end by the steps of CalculaPaso, drawing the object at each step.
void Vuela(int& x, int& y, int x2, int y2, int ancho, int alto,
           const std::function<void(int, int)>& dibuja) {
    while (x != x2 || y != y2) {
        MarcaTiempo = Ahora();
        RestauraFondo(x, y, ancho, alto);
        // Near the end an axis snaps to it and stops, so the object never overshoots.
        if (std::abs(x - x2) < std::abs(PasoX)) {
            x = x2;
            PasoX = 0;
        }
        if (std::abs(y - y2) < std::abs(PasoY)) {
            y = y2;
            PasoY = 0;
        }
        x -= PasoX;
        y -= PasoY;
        if (PasoX == 0 && PasoY == 0) {
            x = x2;
            y = y2;
        }
        Transfiere(Pic_Espejo.Imagen, x, y, ancho, alto, Pic_Mesa.Imagen, x, y, OpRaster::Copia);
        dibuja(x, y);
        if (PasoVueloVisto) PasoVueloVisto(x, y);
        RefrescaMesa();
        Pausa(PAUSA_PASO);
    }
}

int FichasEnOrigen(int seat, int denominacion) {
    if (seat < 0 || seat > 4) return 0;
    if (denominacion == DENOMINACION_PIEDRA) return Piedras[seat];
    return denominacion >= 1 && denominacion <= 6 ? Fichas[seat][denominacion] : 0;
}

int OrientacionFicha(int seat, int denominacion) {
    return denominacion == DENOMINACION_PIEDRA ? 1 : OrientacionDe(seat);
}

} // namespace

void MueveCarta(int palo, int valor, int x1, int y1, int orientacion1, int cara1, int x2, int y2,
                int orientacion2, int cara2, int parcial) {
    if (Pic_Mesa.Imagen.isNull()) return;
    // The flying card already has the shape it lands with, so each step wipes all it drew.
    const bool tumbada = orientacion2 == 2 || orientacion2 == 4;
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA;
    const int alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    (void)orientacion1;
    if (SinVuelo(x1, y1, x2, y2)) {
        DibujaCarta(Pic_Mesa.Imagen, x2, y2, orientacion2, palo, valor, cara2, parcial);
        RefrescaMesa();
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
        return;
    }
    GuardaFondo();
    int x = x1, y = y1;
    CalculaPaso(x1, y1, x2, y2, PASO_CARTA);
    SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SALE);
    Vuela(x, y, x2, y2, ancho, alto, [&](int px, int py) {
        DibujaCarta(Pic_Mesa.Imagen, px, py, orientacion2, palo, valor, cara1);
    });
    RestauraFondo(x, y, ancho, alto);
    DibujaCarta(Pic_Mesa.Imagen, x2, y2, orientacion2, palo, valor, cara2, parcial);
    RefrescaMesa();
    SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
}

void MueveFicha(int denominacion, int x1, int y1, int x2, int y2, int seat, int seatDestino) {
    if (Pic_Mesa.Imagen.isNull()) return;
    // Chips left at the origin stay in the background under the one that leaves.
    if (FichasEnOrigen(seat, denominacion) > 0)
        DibujaFicha(x1, y1, denominacion, OrientacionFicha(seat, denominacion));
    if (SinVuelo(x1, y1, x2, y2)) {
        DibujaFicha(x2, y2, denominacion, OrientacionFicha(seatDestino, denominacion));
        RefrescaMesa();
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_FICHA);
        return;
    }
    GuardaFondo();
    int x = x1, y = y1;
    CalculaPaso(x1, y1, x2, y2, PASO_FICHA);
    const int orientacion = OrientacionFicha(seat, denominacion);
    Vuela(x, y, x2, y2, LADO_FICHA, LADO_FICHA,
          [&](int px, int py) { DibujaFicha(px, py, denominacion, orientacion); });
    RestauraFondo(x, y, LADO_FICHA, LADO_FICHA);
    DibujaFicha(x2, y2, denominacion, OrientacionFicha(seatDestino, denominacion));
    RefrescaMesa();
    SuenaMesa(SONIDO_ASINCRONO, SONIDO_FICHA);
}
