// The parts of the Tute and Brisca chooser that both games use.
#include "games/tutebrisca/Eleccion.h"

#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/EleccionComun.h"
#include "games/tutebrisca/Reglas.h"

namespace {

constexpr int SERIE = 1;

// Margins of the character's reckoning: how many points over the card spent the table must hold.
constexpr int MARGEN_MEDIO = 1, MARGEN_MEDIO_TORPE = 3;
constexpr int MARGEN_PRUDENTE = 4, MARGEN_PRUDENTE_TORPE = 10;
constexpr int NIVEL_TORPE = 50; // below it the margins widen

int PosicionEntrada(int i) {
    return Candidatas[i][CAND_POSICION];
}

// The exchange needs cards in the stock: one in Tute, a round of draws in Brisca.
bool MazoPermiteCambio() {
    return JuegoActual == JUEGO_BRISCA ? CartasEnMazo > NumJugadores : CartasEnMazo >= 1;
}

} // namespace

bool JuegaEnParejas() {
    return ModalidadPareja == 2 && NumJugadores == 4;
}

bool EsCompanero(int seat, int otro) {
    return JuegaEnParejas() && otro != 0 && CompaneroDe[seat] == otro;
}

bool SaleDeBaza() {
    return CartasEnBaza == 1 || JugadorActual == JugadorSalida;
}

void SondeaMesa(int seat) {
    TantosMesa = TantosCompanero = MejorMesa = SeatMejor = 0;
    for (int s = 1; s <= 4; ++s) {
        const int palo = CartaEnMesa[s][1], valor = CartaEnMesa[s][2];
        if (palo == 0) continue;
        const int puntos = Redondea(PuntosValor[valor]);
        if (EsCompanero(seat, s))
            TantosCompanero = puntos;
        else
            TantosMesa += puntos;
        if (FuerzaCarta(palo, valor) > MejorMesa) {
            MejorMesa = FuerzaCarta(palo, valor);
            SeatMejor = s;
        }
    }
    UltimoEnJugar = CartasEnBaza == NumJugadores;
}

int ValoraCarta(int palo, int valor) {
    int k = valor;
    if (palo == PaloTriunfo && MazoPermiteCambio()) {
        const bool pintaConPuntos = PuntosValor[ValorTriunfo] > 0;
        if ((valor == 7 && pintaConPuntos) || (valor == 2 && !pintaConPuntos)) k = ValorTriunfo;
    }
    const int caracter = CaracterJugador[JugadorActual];
    return Redondea(OrdenValor[k] + PuntosValor[k] * caracter / 2.0);
}

int MayorFuera(int palo, int valor) {
    int mayor = 0;
    for (int v = 1; v <= 12; ++v) {
        if (!ValorEnJuego[v] || CartaVista[palo][v] != 0) continue;
        if (OrdenValor[v] <= OrdenValor[valor]) continue;
        if (TieneCarta(JugadorActual, palo, v)) continue;
        mayor = OrdenValor[v];
    }
    return mayor;
}

void OrdenaCandidatas(const int claves[], int n) {
    Lis_Ordenar.Limpia();
    for (int pos = 1; pos <= n; ++pos) Lis_Ordenar.Agrega(Formato(claves[pos], "0000"), pos);
    for (int i = 1; i <= MAX_CANDIDATAS; ++i) {
        const bool lleno = i <= n;
        Candidatas[i][CAND_POSICION] = lleno ? Lis_Ordenar.Dato(i - 1) : 0;
        Candidatas[i][CAND_CLAVE] = lleno ? claves[Candidatas[i][CAND_POSICION]] : 0;
    }
}

int PaloEntrada(int i) {
    return CartasJugador[JugadorActual][SERIE][PosicionEntrada(i)][CAMPO_PALO];
}

int ValorEntrada(int i) {
    return CartasJugador[JugadorActual][SERIE][PosicionEntrada(i)][CAMPO_VALOR];
}

int PuntosEntrada(int i) {
    return Redondea(PuntosValor[ValorEntrada(i)]);
}

int FuerzaEntrada(int i) {
    return FuerzaCarta(PaloEntrada(i), ValorEntrada(i));
}

bool TriunfoEntrada(int i) {
    return PaloEntrada(i) == PaloTriunfo;
}

int MayorEntradaQueGana() {
    for (int i = NumCandidatas; i >= 1; --i)
        if (FuerzaEntrada(i) > MejorMesa) return i;
    return 0;
}

int HallaTriunfoAlto(int seat) {
    int alto = 0;
    for (int v = 1; v <= 12; ++v) {
        if (!ValorEnJuego[v] || CartaVista[PaloTriunfo][v] != 0) continue;
        if (TieneCarta(seat, PaloTriunfo, v)) continue;
        if (JuegaEnParejas() && TieneCarta(CompaneroDe[seat], PaloTriunfo, v)) continue;
        if (OrdenValor[v] > alto) alto = OrdenValor[v];
    }
    return alto;
}

bool CompensaGanar(int t, int nivel, int caracter) {
    if (caracter >= 3) return true;
    const bool torpe = nivel < NIVEL_TORPE;
    if (caracter == 2) {
        const int m = torpe ? MARGEN_MEDIO_TORPE : MARGEN_MEDIO;
        return TantosMesa >= t + TantosCompanero + m;
    }
    // The prudent seat spends a card of points only when the table pays for it, or when the
    // card itself is worth taking home.
    const int m = torpe ? MARGEN_PRUDENTE_TORPE : MARGEN_PRUDENTE;
    return TantosMesa >= t + TantosCompanero + m || t >= m;
}

int AplicaError(int p, int nivel) {
    if (nivel < NIVEL_SIN_ERROR && Ent(AzarJugada * 100 + 1) > nivel)
        return Ent(AzarJugada * p + 1);
    return p;
}
