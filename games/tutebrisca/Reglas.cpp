// Cards of a hand, the trick and its winner, and the cards a seat may play in Tute and Brisca.
#include "games/tutebrisca/Reglas.h"

#include "frame/TrufalGbl.h"

namespace {

constexpr int SERIE = 1; // the trick games hold one series per seat

int PaloEn(int seat, int pos) {
    return CartasJugador[seat][SERIE][pos][CAMPO_PALO];
}
int ValorEn(int seat, int pos) {
    return CartasJugador[seat][SERIE][pos][CAMPO_VALOR];
}

bool SeatEnJuego(int seat) {
    return EstadoJugador[seat] == ESTADO_ACTIVADO;
}

// The trick adds both bonuses, so a trump led counts 30 over its strength; FuerzaCarta gives
// only one. Within a trick both rank the cards alike.
int FuerzaEnBaza(int palo, int valor) {
    return OrdenValor[valor] + (palo == PaloTriunfo ? 20 : 0) + (palo == PaloSalida ? 10 : 0);
}

// The hand closes up behind the card that leaves it, so positions 1..NumCartas stay full.
void QuitaDeMano(int seat, int pos) {
    const int n = NumCartas[seat][SERIE];
    for (int p = pos; p < n; ++p)
        for (int f = 1; f <= CAMPO_MARCA; ++f)
            CartasJugador[seat][SERIE][p][f] = CartasJugador[seat][SERIE][p + 1][f];
    for (int f = 1; f <= CAMPO_MARCA; ++f) CartasJugador[seat][SERIE][n][f] = 0;
    NumCartas[seat][SERIE] = n - 1;
}

// The highest OrdenValor among the trumps already on the table, 0 when none was played.
int MaxTriunfoMesa() {
    int maximo = 0;
    for (int s = 1; s <= 4; ++s)
        if (CartaEnMesa[s][1] == PaloTriunfo && CartaEnMesa[s][2] != 0 &&
            OrdenValor[CartaEnMesa[s][2]] > maximo)
            maximo = OrdenValor[CartaEnMesa[s][2]];
    return maximo;
}

// Whether the card answers a line of the obligation. Line 1 measures against the led card,
// not against the best card on the table.
bool CumpleLinea(int linea, int palo, int valor) {
    const int valorSalida = CartaEnMesa[JugadorSalida][2];
    switch (linea) {
    case 1:
        return palo == PaloSalida && OrdenValor[valor] > OrdenValor[valorSalida];
    case 2:
        return palo == PaloSalida;
    case 3:
        return palo == PaloTriunfo;
    default:
        return true;
    }
}

bool LineaDaCarta(int seat, int linea) {
    bool alguna = false, superaTriunfo = false;
    const int maximo = MaxTriunfoMesa();
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        if (!CumpleLinea(linea, PaloEn(seat, p), ValorEn(seat, p))) continue;
        alguna = true;
        if (OrdenValor[ValorEn(seat, p)] > maximo) superaTriunfo = true;
    }
    // Whoever can't overtrump may throw off another suit instead of wasting a trump.
    if (linea == 3 && PermitirContrafallar && !superaTriunfo) return false;
    return alguna;
}

} // namespace

int CuentaPalo(int seat, int palo) {
    int n = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        if (PaloEn(seat, p) == palo) ++n;
    return n;
}

bool TieneCarta(int seat, int palo, int valor) {
    if (seat == SEAT_POZO) {
        for (int p = 1; p <= CartasEnPozo; ++p)
            if (Pozo[p][1] == palo && Pozo[p][2] == valor) {
                PosicionHallada = p;
                return true;
            }
        return false;
    }
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        if (PaloEn(seat, p) == palo && ValorEn(seat, p) == valor) {
            PosicionHallada = p;
            return true;
        }
    return false;
}

int FuerzaCarta(int palo, int valor) {
    if (palo == PaloTriunfo) return OrdenValor[valor] + 20;
    if (palo == PaloSalida) return OrdenValor[valor] + 10;
    return OrdenValor[valor];
}

void EmpiezaBaza() {
    for (auto& c : CartaEnMesa) c[1] = c[2] = 0;
    for (auto& o : OrdenJugadas) o = 0;
    PaloSalida = 0;
    CartasEnBaza = 0;
    ++NumeroBaza;
    // Tute binds the seats once the stock is gone, or from the first trick if the rule says so.
    ObligacionActiva = JuegoActual == JUEGO_TUTE && (CartasEnMazo == 0 || ObligacionAsistir == 2);
}

void PonCartaEnBaza(int seat, int pos) {
    const int palo = PaloEn(seat, pos), valor = ValorEn(seat, pos);
    CartaEnMesa[seat][1] = palo;
    CartaEnMesa[seat][2] = valor;
    OrdenJugadas[CartasEnBaza] = pos;
    if (PaloSalida == 0) {
        PaloSalida = palo;
    } else if (JuegoActual == JUEGO_TUTE && ObligacionActiva && palo != PaloSalida) {
        // Bound to follow and it didn't: it has none of the led suit, and none of trumps either
        // when it threw off another suit.
        SinPalo[seat][PaloSalida] = true;
        if (palo != PaloTriunfo) SinPalo[seat][PaloTriunfo] = true;
    }
    QuitaDeMano(seat, pos);
}

void ResuelveBaza() {
    int mejor = -1;
    GanadorBaza = 0;
    for (int s = 1; s <= 4; ++s) {
        if (!SeatEnJuego(s) || CartaEnMesa[s][1] == 0) continue;
        const int fuerza = FuerzaEnBaza(CartaEnMesa[s][1], CartaEnMesa[s][2]);
        if (fuerza > mejor) {
            mejor = fuerza;
            GanadorBaza = s;
        }
    }
    TantosBaza = PuntosEnMesa();
}

int PuntosEnMesa() {
    double suma = 0;
    for (int s = 1; s <= 4; ++s)
        if (CartaEnMesa[s][1] != 0) suma += PuntosValor[CartaEnMesa[s][2]];
    return static_cast<int>(suma);
}

void AnotaBaza() {
    if (JuegoActual == JUEGO_TUTE && NumCartas[GanadorBaza][SERIE] == 0)
        TantosBaza += BONO_ULTIMA_BAZA;
    GanadorDeBaza[NumeroBaza] = GanadorBaza;
    TantosJugador[GanadorBaza][1] += TantosBaza;
    TantosDeBaza[NumeroBaza] = TantosBaza;
    for (int s = 1; s <= 4; ++s) {
        const int palo = CartaEnMesa[s][1], valor = CartaEnMesa[s][2];
        if (palo == 0) continue;
        HistoriaBazas[NumeroBaza][s][HB_PALO] = palo;
        HistoriaBazas[NumeroBaza][s][HB_VALOR] = valor;
        if (s == GanadorBaza) HistoriaBazas[NumeroBaza][s][HB_GANADA] = 1;
        CartaVista[palo][valor] = s;
    }
}

int ClaseObligada(int seat) {
    if (JuegoActual != JUEGO_TUTE || !ObligacionActiva || PaloSalida == 0) return 0;
    for (int linea = 1; linea <= 3; ++linea)
        if (LineaDaCarta(seat, linea)) return linea;
    return 4;
}

bool EsCartaLegal(int seat, int pos) {
    const int clase = ClaseObligada(seat);
    return clase == 0 || CumpleLinea(clase, PaloEn(seat, pos), ValorEn(seat, pos));
}

void ListaCartasLegales(int seat) {
    // Two plain passes keep the legal cards ahead, each part in hand order.
    int fila = 0, legales = 0;
    for (int vuelta = 1; vuelta <= 2; ++vuelta)
        for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
            const bool legal = EsCartaLegal(seat, p);
            if (legal != (vuelta == 1)) continue;
            ++fila;
            if (legal) ++legales;
            Candidatas[fila][CAND_CLAVE] = FuerzaCarta(PaloEn(seat, p), ValorEn(seat, p));
            Candidatas[fila][CAND_POSICION] = p;
        }
    for (int i = fila + 1; i < 27; ++i)
        Candidatas[i][CAND_CLAVE] = Candidatas[i][CAND_POSICION] = 0;
    NumCandidatas = legales;
}
