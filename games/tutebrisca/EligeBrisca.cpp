// The computer player of Brisca: the hand sorted by the worth of keeping each card, then the
// rules of the table, the level and the character move the pick along that list.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Eleccion.h"
#include "games/tutebrisca/EleccionComun.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"

namespace {

constexpr int SERIE = 1;

// Extra worth of a trump, by character: less when leading, where it would only be thrown away.
constexpr int TRIUNFO_SALIDA = 3, TRIUNFO_SIGUE = 5;
// A short suit is cheaper to keep: each card fewer than three adds this much.
constexpr int PALO_CORTO = 2;

// Levels that open the rules.
constexpr int NIVEL_ESPIA = 95;  // above it the seat looks at the hands still to play
constexpr int NIVEL_NOVATO = 30; // below it, last to play, it throws its best card
constexpr int NIVEL_TIMIDO = 60; // below it a prudent seat wins with its best card
constexpr int NIVEL_CUENTA_TRIUNFOS = 80;
constexpr int NIVEL_GUARDA_AS = 60; // above it a trump of 10 or 11 is not spent cheaply
constexpr int NIVEL_BARATO = 50;    // above it a kept trump gives way to the cheapest loser

// The search may move the pick only to a card of at most this many points more.
constexpr int MARGEN_SIMULACION = 2;

int PuntosEnPosicion(int seat, int pos) {
    return Redondea(PuntosValor[CartasJugador[seat][SERIE][pos][CAMPO_VALOR]]);
}

// Paso 1: the worth of each card as a key, the cheapest first.
void OrdenaManoBrisca(int seat, bool sale) {
    const int caracter = CaracterJugador[seat];
    const int h = NumCartas[seat][SERIE];
    int claves[MAX_CANDIDATAS + 1] = {};
    for (int pos = 1; pos <= h; ++pos) {
        const int palo = CartasJugador[seat][SERIE][pos][CAMPO_PALO];
        ValorEnCurso = CartasJugador[seat][SERIE][pos][CAMPO_VALOR];
        int clave = ValoraCarta(palo, ValorEnCurso);
        if (palo == PaloTriunfo) clave += caracter * (sale ? TRIUNFO_SALIDA : TRIUNFO_SIGUE);
        clave += (3 - CuentaPalo(seat, palo)) * PALO_CORTO;
        claves[pos] = clave;
    }
    OrdenaCandidatas(claves, h);
    NumCandidatas = h;
}

// Paso 2: the strongest card of the seats still to play, from the real hands, read over as many
// positions as this seat holds.
int HallaTope(int seat) {
    int tope = MejorMesa;
    const int h = NumCartas[seat][SERIE];
    int s = seat;
    SiguienteJugador(s);
    for (int vuelta = 0; vuelta < 3 && s != JugadorSalida && s != seat; ++vuelta) {
        for (int pos = 1; pos <= h; ++pos) {
            const int fuerza = FuerzaCarta(CartasJugador[s][SERIE][pos][CAMPO_PALO],
                                           CartasJugador[s][SERIE][pos][CAMPO_VALOR]);
            if (fuerza > tope) tope = fuerza;
        }
        SiguienteJugador(s);
    }
    return tope;
}

int EspiaManos(int seat, int p) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    if (nivel <= NIVEL_ESPIA || Ent(AzarJugada * 10 + 1) <= 1) return p;
    if (caracter <= 1 && CartasEnMazo != 0) return p;
    if (UltimoEnJugar && !EsCompanero(seat, SeatMejor)) return p;
    const int tope = HallaTope(seat);
    for (int i = 1; i <= NumCandidatas; ++i)
        if (FuerzaEntrada(i) > tope) return i;
    return p;
}

// Paso 3: last to play, the rules of the level.
int ReglasUltimo(int seat, int p) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    if (nivel < NIVEL_NOVATO) p = NumCandidatas;
    if (nivel < NIVEL_TIMIDO && caracter == 1) {
        const int q = MayorEntradaQueGana();
        if (q != 0) p = q;
    }
    if (nivel > NIVEL_CUENTA_TRIUNFOS && CartasEnMazo == 0) {
        // A card that an unseen trump would take later had better win this trick now.
        const int arriba = NumCandidatas;
        if (HallaTriunfoAlto(seat) > OrdenValor[ValorEntrada(arriba)] &&
            FuerzaEntrada(arriba) > MejorMesa && !EsCompanero(seat, SeatMejor))
            p = NumCandidatas;
    }
    return p;
}

// Paso 4: from the cheapest card up, the first that wins and pays for itself by character; a
// partner who holds the trick gets points. Barato: the cheapest winner or blank loser met.
int RecorreBaza(int seat, int p, int& barato) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    const bool mandaCompanero = EsCompanero(seat, SeatMejor);
    barato = 0;
    for (int i = 1; i <= NumCandidatas; ++i) {
        const int t = PuntosEntrada(i);
        if (FuerzaEntrada(i) >= MejorMesa) {
            if (barato == 0) barato = i;
            p = i;
            if (CompensaGanar(t, nivel, caracter)) break;
        } else {
            if (barato == 0 && t == 0) barato = i;
            if (mandaCompanero &&
                (caracter >= 3 || (caracter == 2 && t > 0) || (caracter <= 1 && t > 2)))
                return i;
        }
    }
    return p;
}

// Paso 5: a trump is not spent on a trick that does not pay for it.
bool GuardaTriunfo(int seat, int p, int barato) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    if (!TriunfoEntrada(p)) return true;
    const int t = PuntosEntrada(p);
    const int umbral = Redondea(Ent(AzarJugada * 3) + 2 * caracter);
    if (TantosMesa + t + TantosCompanero < umbral) return false;
    if (nivel > NIVEL_GUARDA_AS && t >= 10 && (TantosMesa == 0 || (caracter == 3 && barato == 0)))
        return false;
    if (nivel > NIVEL_CUENTA_TRIUNFOS && TantosMesa < t + TantosCompanero && barato != 0 &&
        caracter > 1)
        return false;
    return true;
}

// Paso 8: with cards still to draw, the search may not throw points away for one trick.
void FiltraSimulacion(int seat) {
    if (CartaSimulada == 0 || UltimoEnJugar || CartasEnMazo <= 0) return;
    const int simulada = PuntosEnPosicion(seat, CartaSimulada);
    const int elegida = PuntosEnPosicion(seat, CartaElegida);
    if (simulada - elegida > MARGEN_SIMULACION || elegida <= 0) CartaSimulada = 0;
}

void EligeBrisca(int seat) {
    const int nivel = NivelJugador[seat];
    const bool sale = SaleDeBaza();
    SondeaMesa(seat);
    OrdenaManoBrisca(seat, sale);
    int p = 1;
    if (!sale) {
        p = EspiaManos(seat, p);
        int barato = 0;
        if (UltimoEnJugar) {
            p = ReglasUltimo(seat, p);
            if (p == 1) p = RecorreBaza(seat, p, barato);
        }
        if (!GuardaTriunfo(seat, p, barato)) p = nivel > NIVEL_BARATO && barato != 0 ? barato : 1;
    }
    CartaSimulada = 0;
    if (SimulacionValida) ConsultaSimulacion();
    p = AplicaError(p, nivel);
    CartaElegida = Candidatas[p][CAND_POSICION];
    FiltraSimulacion(seat);
    if (CartaSimulada != 0) CartaElegida = CartaSimulada;
}

} // namespace

void EligeCartaBrisca() {
    const int seat = JugadorActual;
    const int nivelPropio = NivelJugador[seat];
    if (TutorEnCurso) NivelJugador[seat] = NIVEL_TUTOR;
    EligeBrisca(seat);
    NivelJugador[seat] = nivelPropio;
}
