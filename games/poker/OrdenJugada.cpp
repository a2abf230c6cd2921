// The place of a hand among every hand of the deck: the hands of the plays below it, and then
// how many hands of its own play it beats or ties. Equal places tie; suits never count.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"

#include <algorithm>
#include <array>

namespace {

constexpr int RANGO_AS = 13, RANGO_DIEZ = 9, RANGO_JOTA = 10;
constexpr int CARTA_MINIMA_BARAJA_CORTA = 4;

// Ways of the suits of each play: a colour has 4, five loose values 4^5 less the colours, a
// full 4 x 6, two pairs 6 x 6 x 4, a pair's kickers 6 x 4^3, a trio's 4 x 4^2.
constexpr int VECES_COLOR = 4, VECES_SUELTAS = 1020, VECES_FULL = 24, VECES_DOBLE = 144,
              VECES_PAREJA = 384, VECES_TRIO = 64;

// How far a kicker moves a Póker, by the jokers in the deck.
constexpr double PasoPoker[3] = {4, 20, 36.333};

int Normales = 0, Valores = 0, Piso = 0;
std::array<int, 6> R{}; // ranks of the play's values: the 2 is 1, the king 12, the ace 13

int Rango(const int* j, int k) {
    int v = j[k];
    if (v >= 90) v = j[JK_COMODIN];
    const int r = v - 1;
    return r == 0 ? RANGO_AS : r;
}

bool BarajaLarga() {
    return CartaMinimaPoker < CARTA_MINIMA_BARAJA_CORTA;
}

// The hands of a play, with its count scaled when the deck has jokers.
int Escala(double posicion, int jugada) {
    if (NumComodines == 0) return Redondea(posicion);
    const int b = CuentaCombinaciones(FilaCombinaciones(Normales, 0), jugada);
    return b > 0 ? Redondea(posicion / b * CombinacionesJugada[jugada]) : Redondea(posicion);
}

// Tuples compare as the nested walks meet them: the first value first.
template <size_t N> bool NoPasa(const std::array<int, N>& t, const std::array<int, N>& tope) {
    return t <= tope;
}

bool EsRun(int a, int b, int c, int d, int e) {
    if (a - e == 4) return true;
    return a == RANGO_AS && b == Piso + 3 && c == Piso + 2 && d == Piso + 1 && e == Piso;
}

// Five different values that make no run, counted up to this hand.
int Lugar() {
    const std::array<int, 5> tope{R[1], R[2], R[3], R[4], R[5]};
    int n = 0;
    for (int a = Piso + 4; a <= RANGO_AS; ++a)
        for (int b = Piso + 3; b < a; ++b)
            for (int c = Piso + 2; c < b; ++c)
                for (int d = Piso + 1; d < c; ++d)
                    for (int e = Piso; e < d; ++e)
                        if (!EsRun(a, b, c, d, e) && NoPasa(std::array{a, b, c, d, e}, tope)) ++n;
    return n;
}

int PosicionFull() {
    int n = 0;
    for (int a = Piso; a <= R[1]; ++a)
        for (int b = Piso; b <= RANGO_AS; ++b)
            if (b != a && NoPasa(std::array{a, b}, std::array{R[1], R[2]})) n += VECES_FULL;
    return n;
}

int PosicionTrio() {
    const bool larga = BarajaLarga();
    int n = 0;
    for (int a = Piso; a < R[1]; ++a) {
        int lados = Combinaciones(Normales - 4, 2) - (Valores - 1) * 6;
        if (larga && a > RANGO_DIEZ) lados -= Combinaciones(12, 2) - 18;
        n += 4 * lados;
    }
    for (int b = Piso; b <= R[2]; ++b)
        for (int c = Piso; c < b; ++c) {
            if (b == R[1] || c == R[1]) continue;
            if (!NoPasa(std::array{b, c}, std::array{R[2], R[3]})) continue;
            const bool figuras = R[1] > RANGO_DIEZ && b > RANGO_DIEZ && c > RANGO_DIEZ;
            if (!(larga && figuras)) n += VECES_TRIO;
        }
    return n;
}

int PosicionDoble() {
    int n = 0;
    for (int a = Piso + 1; a <= R[1]; ++a)
        for (int b = Piso; b < a; ++b) {
            const int hasta = a > RANGO_DIEZ && b > RANGO_DIEZ ? RANGO_DIEZ : RANGO_AS;
            for (int c = Piso; c <= hasta; ++c)
                if (c != a && c != b && NoPasa(std::array{a, b, c}, std::array{R[1], R[2], R[3]}))
                    n += VECES_DOBLE;
        }
    return n;
}

int PosicionPareja() {
    int n = 0;
    for (int a = Piso; a < R[1]; ++a) {
        int lados =
            Combinaciones(Normales - 4, 3) - (Valores - 1) * 4 - (Valores - 1) * 6 * (Normales - 8);
        if (a > RANGO_DIEZ) lados -= Combinaciones(12, 3) - 12 - 144;
        n += 6 * lados;
    }
    const std::array<int, 3> tope{R[2], R[3], R[4]};
    for (int b = Piso; b <= R[2]; ++b)
        for (int c = Piso; c < b; ++c)
            for (int d = Piso; d < c; ++d) {
                if (b == R[1] || c == R[1] || d == R[1]) continue;
                if (!NoPasa(std::array{b, c, d}, tope)) continue;
                const bool figuras = R[1] > RANGO_DIEZ && d > RANGO_DIEZ;
                if (!figuras) n += VECES_PAREJA;
            }
    return n;
}

// Hands of five figures: the multisets of the four figure ranks a play of Figuras can hold.
// Returns how many there are, and in `lugar` the place of this hand, 0 if it isn't one.
int MultisetsFiguras(int& lugar) {
    const std::array<int, 5> mano{R[1], R[2], R[3], R[4], R[5]};
    int total = 0;
    lugar = 0;
    for (int a = RANGO_JOTA; a <= RANGO_AS; ++a)
        for (int b = RANGO_JOTA; b <= a; ++b)
            for (int c = RANGO_JOTA; c <= b; ++c)
                for (int d = RANGO_JOTA; d <= c; ++d)
                    for (int e = RANGO_JOTA; e <= d; ++e) {
                        const std::array<int, 5> t{a, b, c, d, e};
                        int veces[14] = {};
                        for (int r : t) ++veces[r];
                        int mayor = 0, parejas = 0;
                        for (int r = RANGO_JOTA; r <= RANGO_AS; ++r) {
                            mayor = std::max(mayor, veces[r]);
                            if (veces[r] == 2) ++parejas;
                        }
                        if (mayor >= 4) continue;
                        if (mayor == 3 && (!BarajaLarga() || parejas > 0)) continue;
                        ++total;
                        if (t == mano) lugar = total;
                    }
    return total;
}

// What a joker takes off a run or a figure hand: its value, the ace as 14.
int PesoComodin(const int* j) {
    const int w = j[JK_COMODIN];
    return w == 1 ? 14 : w;
}

} // namespace

namespace {

int PosicionEnJugada(int jugada, const int* j, int base) {
    const int* c = CombinacionesJugada;
    if (jugada == JugadaEscalera || jugada == JugadaEscColor) {
        const double paso = static_cast<double>(c[jugada]) / (Valores - 3);
        return Redondea(paso * (R[1] - Piso - 2) + base) - PesoComodin(j) - base;
    }
    if (jugada == JugadaRepoker)
        return Redondea(static_cast<double>(c[jugada]) / Valores * (R[1] - Piso + 1));
    if (jugada == JugadaPoker) {
        const double u = PasoPoker[std::min(NumComodines, 2)];
        int p = Redondea(static_cast<double>(c[jugada]) / Valores * (R[1] - Piso));
        p = Redondea(p + u * (R[2] - Piso + 1));
        if (R[2] > R[1]) p = Redondea(p - u);
        return p;
    }
    if (jugada == JugadaFiguras) {
        int lugar = 0;
        const int total = MultisetsFiguras(lugar);
        const double paso = static_cast<double>(c[jugada]) / total;
        return Redondea(paso * lugar + base) - PesoComodin(j) - base;
    }
    if (jugada == JugadaColor) return Escala(Lugar() * VECES_COLOR, jugada);
    if (jugada == JugadaCartaMayor) return Lugar() * VECES_SUELTAS;
    if (jugada == JugadaFull) return Escala(PosicionFull(), jugada);
    if (jugada == JugadaTrio) return Escala(PosicionTrio(), jugada);
    if (jugada == JugadaDoblePareja) return PosicionDoble();
    // Pareja: a pair of a figure made with the joker yields to the same pair of real cards.
    const int p = Escala(PosicionPareja(), jugada);
    return j[JK_CALIDAD] >= 3 ? p - 1 : p;
}

} // namespace

int OrdenJugada(int jugada, int seat) {
    if (jugada < PRIMERA_JUGADA_HECHA || jugada > NUM_JUGADAS) return 0;
    const int* j = Jugadas[seat][jugada];
    Normales = CartasNormales;
    Valores = ValoresPorPalo;
    Piso = 14 - Valores;
    for (int k = 1; k <= 5; ++k) R[k] = Rango(j, k);
    int base = 0;
    for (int k = PRIMERA_JUGADA_HECHA; k < jugada; ++k) base += CombinacionesJugada[k];
    // A joker can carry a hand's values out of the walks of its play; it still ranks inside
    // its play, so that every hand of a play beats every hand of the plays below it.
    const int posicion = PosicionEnJugada(jugada, j, base);
    return base + std::clamp(posicion, 1, std::max(CombinacionesJugada[jugada], 1));
}
