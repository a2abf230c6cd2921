// The songs of Tute (acuses of 20 and 40, the Tute of four Caballos or four Reyes) and the
// exchange of the turned-up trump that both games allow.
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Reglas.h"

namespace {

constexpr int SERIE = 1;

// The stock must still hold a card to give after the exchange; Brisca keeps a round of draws.
bool MazoPermiteCambio() {
    if (JuegoActual == JUEGO_TUTE) return CartasEnMazo > 0;
    return CartasEnMazo > NumJugadores;
}

// The card that may take the place of the turned-up one: the 7 of trumps under a card of
// points, else the lowest trump in play (the 4 when Brisca plays without the 2s).
int ValorQueCambia() {
    if (PuntosValor[ValorTriunfo] > 0) return 7;
    if (JuegoActual == JUEGO_BRISCA && NumJugadores == 3) return 4;
    return 2;
}

} // namespace

int HallaCodigoCambio(int seat) {
    CodigoJugada = 0;
    if (seat == 0 || seat != GanadorBaza || PaloTriunfo == 0 || !MazoPermiteCambio()) return 0;
    const int valor = ValorQueCambia();
    if (TieneCarta(seat, PaloTriunfo, valor)) CodigoJugada = valor;
    return CodigoJugada;
}

int AplicaCambioPinta() {
    const int seat = JugadorActual;
    if (CodigoJugada == 0 || !TieneCarta(seat, PaloTriunfo, CodigoJugada)) return 0;
    const int pos = PosicionHallada;
    CartasJugador[seat][SERIE][pos][CAMPO_VALOR] = ValorTriunfo;
    ValorTriunfo = CodigoJugada;
    CodigoJugada = 0;
    return pos;
}

int CantorDe(int palo) {
    for (int s = 1; s <= 4; ++s)
        if (AcuseCantado[s][palo]) return s;
    return 0;
}

void AnalizaMano(int seat) {
    for (auto& p : MapaMano)
        for (auto& v : p) v = false;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        MapaMano[CartasJugador[seat][SERIE][p][CAMPO_PALO]]
                [CartasJugador[seat][SERIE][p][CAMPO_VALOR]] = true;
    auto cuatro = [](int valor) {
        return MapaMano[1][valor] && MapaMano[2][valor] && MapaMano[3][valor] && MapaMano[4][valor];
    };
    TuteEnMano = cuatro(VALOR_REY) ? VALOR_REY : cuatro(VALOR_CABALLO) ? VALOR_CABALLO : 0;
    HayAcuse = false;
    for (int palo = 1; palo <= 4; ++palo) {
        AcuseDisponible[palo] =
            MapaMano[palo][VALOR_CABALLO] && MapaMano[palo][VALOR_REY] && CantorDe(palo) == 0;
        if (AcuseDisponible[palo]) HayAcuse = true;
    }
}

int EligeAcuse(int seat) {
    // The suit where the seat holds fewest cards is sung first: its pair is the likeliest to be
    // broken by the play. On equal counts the trump suit, worth 40, goes first.
    int elegido = 0, menos = 99;
    for (int palo = 1; palo <= 4; ++palo) {
        if (!AcuseDisponible[palo]) continue;
        const int n = CuentaPalo(seat, palo);
        if (n < menos || (n == menos && palo == PaloTriunfo)) {
            elegido = palo;
            menos = n;
        }
    }
    return elegido;
}

void AnotaAcuse(int seat, int palo) {
    TantosBaza = palo == PaloTriunfo ? TANTOS_ACUSE_TRIUNFO : TANTOS_ACUSE;
    TantosJugador[seat][1] += TantosBaza;
    TantosDeBaza[NumeroBaza] += TantosBaza;
    AcuseCantado[seat][palo] = true;
    HistoriaBazas[NumeroBaza][seat][HB_CANTE] = palo;
}

int HallaTuteRepartido() {
    int conCaballos = 0;
    for (int s = 1; s <= 4; ++s) {
        if (EstadoJugador[s] != ESTADO_ACTIVADO) continue;
        AnalizaMano(s);
        if (TuteEnMano == VALOR_REY) return s;
        if (TuteEnMano == VALOR_CABALLO && conCaballos == 0) conCaballos = s;
    }
    return conCaballos;
}

void AnotaTute(int seat) {
    JugadorCante = seat;
    TuteCantado = true;
}

int AcusesDe(int seat) {
    int n = 0;
    for (int palo = 1; palo <= 4; ++palo)
        if (AcuseCantado[seat][palo]) ++n;
    return n;
}
