#include "games/cinquillo/ReglasCinquillo.h"

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int SERIE = 1;
constexpr int ANCHO_COLUMNA_MAXIMO = 106;
constexpr int PASO_APRETADO = 22; // below it the rows overlap so much that loose cards rise
constexpr int SUBIDA_APRETADA = 9;
constexpr int FILAS_LAYOUT = 9; // row steps from the Rey down to the As

bool EnMesa(int palo, int valor) {
    return valor >= 1 && valor <= 12 && CartaVista[palo][valor] != 0;
}

} // namespace

int Compacto(int valor) {
    return valor <= 7 ? valor : valor - 2;
}

int VecinoInterior(int valor) {
    if (valor < VALOR_CINCO) return valor + 1;
    if (valor == VALOR_CINCO) return 0;
    return valor == 10 ? 7 : valor - 1;
}

int VecinoExterior(int valor) {
    if (valor < VALOR_CINCO) return valor - 1;
    if (valor == 7) return 10;
    return valor >= 12 ? 0 : valor + 1;
}

bool CartaJugableCinquillo(int palo, int valor) {
    return valor == VALOR_CINCO || EnMesa(palo, VecinoInterior(valor));
}

int PuntosCartaCinquillo(int valor) {
    return 6 - std::abs(Compacto(valor) - VALOR_CINCO);
}

int PuntosManoCinquillo(int seat) {
    int puntos = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        puntos += PuntosCartaCinquillo(CartasJugador[seat][SERIE][p][CAMPO_VALOR]);
    return puntos;
}

void PosicionCinquillo(int palo, int valor) {
    const int ancho =
        std::min(Ent((ZonaIzquierda[3] - ZonaDerecha[1] - 1 - 101) / 3.0), ANCHO_COLUMNA_MAXIMO);
    CartaX = CentroMesaX - 2 - 2 * ancho + (palo - 1) * ancho;
    int alto = Ent((ZonaArriba[4] - ZonaAbajo[2] - 141) / 9.0);
    int subida = 0;
    if (alto < PASO_APRETADO) {
        --alto;
        // A card with nothing laid above it in its column shows a little more of itself; a 5
        // standing alone in its row stays down.
        const int siguiente = valor < 12 ? (valor == 7 ? 10 : valor + 1) : 0;
        bool sube = valor != 12 && !EnMesa(palo, siguiente);
        if (valor == VALOR_CINCO && !EnMesa(palo, 4)) sube = false;
        if (sube) subida = SUBIDA_APRETADA;
    }
    int fila = 12 - valor;
    if (fila > 2) fila -= 2;
    CartaY = Redondea(CentroMesaY - (FILAS_LAYOUT * alto + 141) / 2.0 + fila * alto) - subida;
}
