// The computer player's envites in a lance of Mus: what it supposes of every hand from the signs
// it has seen, how strong its own hand is, how far it would open and how far it would go, and
// then the answer to what stands on the table: pass, envite, raise, accept, refuse or órdago, for
// itself or for both partners.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/JugadorMus.h"
#include "games/mus/Mus.h"

#include <algorithm>

namespace {

constexpr int DESCONOCIDO = -1;
constexpr int JUEGO_PEOR = 9; // a seat without juego, below the worst juego (rank 8)

// ---- Opening when behind on a strong hand, and how far when ahead (by character) ----
constexpr int ABRE_GRANDE_CHICA[4] = {0, 9900, 9700, 9500};
constexpr int ABRE_PARES[4] = {0, 3900, 3600, 2900};
constexpr int ABRE_JUEGO[4] = {0, 2, 3, 4}; // RangoJuego at most this
constexpr int ABRE_PUNTO[4] = {0, 29, 28, 27};
constexpr int HASTA_GRANDE_CHICA[4] = {0, 3, 4, 5};
constexpr int HASTA_PUNTO = 4;
constexpr int HASTA_SIN_VENTAJA = 2;
constexpr int MAS_CON_LA_MEJOR[4] = {0, 2, 3, 4}; // the best hand of its class goes further
constexpr double ESCALA_MAXIMO[4] = {0, 0.7, 1.0, 1.3};
// ---- Answering: the share of a raise a seat would cover, and how boldly it raises ----
constexpr int PARTE_DEL_MAXIMO[4] = {0, 4, 3, 2};
constexpr double CUBRE_SIEMPRE[4] = {0, 0.2, 0.3, 0.4};
constexpr double CUBRE_SI_ES_MANO[4] = {0, 0.7, 1.0, 1.4};
// ---- Levels above which a seat trusts what it reads of the true hands ----
constexpr int NIVEL_AFINA = 75, NIVEL_LEE = 90, NIVEL_CIERTO = 95, NIVEL_DUDA = 85;
constexpr int NECESITA_PARA_ORDAGO = 7; // a pair this near the game takes an órdago more gladly

int PorCaracter(const int (&tabla)[4], int c) {
    return tabla[std::clamp(c, 1, 3)];
}
double PorCaracter(const double (&tabla)[4], int c) {
    return tabla[std::clamp(c, 1, 3)];
}

// Juego ranks lower for the better hand; 0 (no juego) is the worst of all.
int JuegoComparable(int rango) {
    return rango <= 0 ? JUEGO_PEOR : rango;
}

// a is at least as good as b in the lance.
bool NoPeor(int lance, int a, int b) {
    if (lance == LANCE_JUEGO) return JuegoComparable(a) <= JuegoComparable(b);
    return a >= b;
}

bool Mejor(int lance, int a, int b) {
    if (lance == LANCE_JUEGO) return JuegoComparable(a) < JuegoComparable(b);
    return a > b;
}

// ---- What the seat supposes of each hand from the signs it saw ----

int ValorSupuesto[5][6];

void Supone(int s, int G, int C, int P, int J, int U) {
    const int valores[6] = {0, G, C, P, J, U};
    for (int l = 1; l <= 5; ++l)
        if (valores[l] != DESCONOCIDO) ValorSupuesto[s][l] = valores[l];
}

constexpr int N = DESCONOCIDO;

void AplicaSena(int yo, int s, int slot) {
    const int codigo = SenasJugador[yo].Visto[s][slot];
    const int siguiente = slot < 4 ? SenasJugador[yo].Visto[s][slot + 1] : 0;
    auto vio = [yo, s](int c) { return VioSena(yo, c, s); };
    switch (codigo) {
    case SENA_NADA:
        Supone(s, 7654, 5432, 0, 0, 28);
        break;
    case SENA_PAR:
        Supone(s, 6654, 4432, 2654, N, N);
        break;
    case SENA_PAR_ASES:
        if (!vio(SENA_DUPLES)) Supone(s, 7600, 9932, 2076, N, 19);
        break;
    case SENA_PAR_REYES:
        if (!vio(SENA_DUPLES)) Supone(s, 9954, 5400, 2954, N, N);
        break;
    case SENA_MEDIAS:
        Supone(s, 6665, 4443, 3650, N, N);
        break;
    case SENA_MEDIAS_ASES:
        Supone(s, 7000, 9993, 3070, N, 10);
        break;
    case SENA_MEDIAS_REYES:
        if (vio(SENA_31))
            Supone(s, 9990, 9000, 3950, 1, N);
        else
            Supone(s, 9995, 5000, 3950, 1, N);
        break;
    case SENA_DUPLES:
        if (siguiente == SENA_PAR_ASES)
            Supone(s, 7700, 9966, 4700, N, 22);
        else if (siguiente == SENA_PAR_REYES)
            Supone(s, 9955, 5500, 4950, 2, N);
        else
            Supone(s, 6655, 4433, 4650, 2, N);
        break;
    case SENA_JUEGO:
        Supone(s, N, N, N, 5, 0);
        break;
    case SENA_31:
        Supone(s, N, N, N, 1, 0);
        if (vio(SENA_PAR)) Supone(s, 9881, 9221, 2891, N, N);
        if (vio(SENA_PAR_REYES)) Supone(s, 9981, 9200, 2981, N, N);
        if (vio(SENA_MEDIAS)) Supone(s, 8880, 9222, 3800, N, N);
        if (vio(SENA_MEDIAS_REYES)) Supone(s, 9990, 9000, 3900, N, N);
        break;
    case SENA_PUNTO_29:
        Supone(s, N, N, N, 0, 29);
        break;
    case SENA_PUNTO_30:
        Supone(s, N, N, N, 0, 30);
        break;
    default:
        break;
    }
}

void CalculaSupuestos(int yo) {
    for (auto& fila : ValorSupuesto)
        for (int& v : fila) v = DESCONOCIDO;
    for (int s = 1; s <= 4; ++s)
        for (int slot = 1; slot <= 4; ++slot) AplicaSena(yo, s, slot);
    const ValorMano& v = ValoresMusActual;
    for (int l = 1; l <= 5; ++l) ValorSupuesto[yo][l] = ValorEnLance(v, l);
}

// The best known value of the pair in the lance, 0 when nothing is known.
int MejorSupuesto(int lance, int pareja) {
    int mejor = 0;
    for (int s : {pareja, pareja + 2}) {
        const int v = ValorSupuesto[s][lance];
        if (v == DESCONOCIDO) continue;
        if (lance == LANCE_JUEGO) {
            if (v > 0 && (mejor == 0 || v < mejor)) mejor = v;
        } else if (v > mejor) {
            mejor = v;
        }
    }
    return mejor;
}

// ---- The strength of the hand in the lance: 1 the best to 6 ----

int FuerzaEnLance(const ValorMano& v, int lance) {
    switch (lance) {
    case LANCE_GRANDE:
    case LANCE_CHICA: {
        const int x = lance == LANCE_GRANDE ? v.Grande : v.Chica;
        if (x >= 9999) return 1;
        if (x >= 9990) return 2;
        if (x >= 9950) return 3;
        return x < 9000 ? 5 : 4;
    }
    case LANCE_PARES:
        if (v.Pares >= 4900) return 1;
        if (v.Pares >= 3960) return 2;
        if (v.Pares >= 2960) return 3;
        return v.Pares < 2800 ? 5 : 4;
    case LANCE_JUEGO:
        if (v.RangoJuego >= 1 && v.RangoJuego <= 3) return v.RangoJuego;
        if (v.RangoJuego == 5) return 5;
        return v.RangoJuego >= 6 ? 6 : 4;
    default:
        if (v.Punto == 30) return 1;
        if (v.Punto == 29) return 2;
        if (v.Punto == 28) return 3;
        if (v.Punto == 26) return 5;
        return v.Punto <= 25 ? 6 : 4;
    }
}

struct Lectura {
    int Ventaja = 0;
    bool Delante = false, Detras = false, SinDatos = false;
    bool GanamosReal = false, PerdemosReal = false;
    bool MejorQueCompa = false, MejorQueCompaReal = false;
    bool CompaTiene = false;
    int Fuerza = 4;
};

Lectura LeeLance(int seat) {
    const PensamientoMus& p = Pensado;
    const ValorMano& v = ValoresMusActual;
    const int l = LanceActual, companero = CompaneroDe[seat];
    const int mia = ParejaDe[seat], suya = 3 - mia;
    Lectura x;
    const int nuestro = MejorSupuesto(l, mia), suyo = MejorSupuesto(l, suya);
    if (nuestro == 0 || suyo != 0) {
        x.SinDatos = true;
    } else {
        // Nothing seen of the rivals: the pair's own value is set against the worst hand.
        x.Ventaja =
            l == LANCE_JUEGO ? JuegoComparable(suyo) - JuegoComparable(nuestro) : nuestro - suyo;
        x.Delante = x.Ventaja >= 0;
        x.Detras = x.Ventaja < 0;
    }
    x.GanamosReal = p.GanadorReal[l] == mia;
    x.PerdemosReal = p.GanadorReal[l] == suya;
    const int propio = ValorEnLance(v, l), suyoCompa = ValorSupuesto[companero][l];
    x.MejorQueCompa = suyoCompa != DESCONOCIDO && NoPeor(l, propio, suyoCompa);
    x.MejorQueCompaReal = Mejor(l, propio, ValorEnLance(ValoresMus[companero], l));
    x.CompaTiene = LanceMus[l].Tiene[companero];
    x.Fuerza = FuerzaEnLance(v, l);
    return x;
}

// ---- How far the seat would open (Minimo) and go (Maximo) ----

// The figures of a plan the seat set out with when it decided the mus; false when the plan
// plays by the general rules.
bool FigurasDelPlan(int seat, const Lectura& x, int& minimo, int& maximo) {
    const PensamientoMus& p = Pensado;
    const int L = p.Nivel;
    const double R = p.R;
    switch (PlanMus[seat]) {
    case 2:
    case 3:
        if (!x.CompaTiene) return false;
        minimo = 0;
        maximo = x.Delante ? 4 : 2;
        if (x.GanamosReal && L > NIVEL_LEE && R > 0.4) maximo += 4;
        MandaEnvidar = true;
        return true;
    case 5:
        minimo = 2;
        maximo = x.Delante ? 6 : 4;
        if (x.GanamosReal && L > NIVEL_LEE && R > 0.4) maximo += 4;
        return true;
    case 6:
    case 7:
        minimo = x.Delante ? 4 : 2;
        maximo = 4;
        if (x.GanamosReal && L > NIVEL_LEE && R > 0.2) maximo += 3;
        return true;
    case 8:
        if (!x.CompaTiene) return false;
        minimo = x.Delante ? 2 : 0;
        maximo = 4;
        if (x.GanamosReal && L > NIVEL_CIERTO && R > 0.1) maximo += 4;
        MandaEnvidar = true;
        return true;
    default:
        return false;
    }
}

void FigurasGenerales(int seat, const Lectura& x, int& minimo, int& maximo) {
    const PensamientoMus& p = Pensado;
    const ValorMano& v = ValoresMusActual;
    const int L = p.Nivel, C = p.Caracter;
    const double R = p.R;
    minimo = maximo = 0;
    // Paso 1 and 2. Open when ahead, or in the dark on a good hand; never on the worst.
    if (x.Delante || (x.SinDatos && x.Fuerza <= 3)) minimo = 2;
    if (x.Fuerza == 6) {
        const int companero = CompaneroDe[seat];
        const bool ordenado = VioSena(seat, SENA_MANDO_CORTAR, companero) ||
                              VioSena(seat, SENA_MANDO_ENVIDAR, companero);
        if (p.ManoPareja || !ordenado) minimo = 0;
    }
    // Paso 3. Behind on a strong hand still opens; ahead, each lance has its reach.
    bool abre = false;
    int alcance = HASTA_SIN_VENTAJA;
    switch (LanceActual) {
    case LANCE_GRANDE:
    case LANCE_CHICA:
        abre =
            (LanceActual == LANCE_GRANDE ? v.Grande : v.Chica) >= PorCaracter(ABRE_GRANDE_CHICA, C);
        if (x.Ventaja > 0) alcance = PorCaracter(HASTA_GRANDE_CHICA, C);
        break;
    case LANCE_PARES:
        abre = v.Pares >= PorCaracter(ABRE_PARES, C);
        if (x.Ventaja > 0) alcance = DivEntera(PiedrasJuego, 10) + 2;
        break;
    case LANCE_JUEGO:
        abre = v.RangoJuego > 0 && v.RangoJuego <= PorCaracter(ABRE_JUEGO, C);
        if (x.Ventaja > 0) alcance = DivEntera(PiedrasJuego, 10) + 8 - v.RangoJuego;
        break;
    default:
        abre = v.Punto >= PorCaracter(ABRE_PUNTO, C);
        if (x.Ventaja > 0) alcance = HASTA_PUNTO;
        break;
    }
    if (x.Detras && abre) minimo = 2;
    maximo = alcance;
    // Paso 4. The true hands say this pair takes the lance.
    if (x.GanamosReal) {
        if (L > NIVEL_AFINA && R > 0.2 && x.Fuerza <= 3) {
            minimo += 2;
            if (C >= 2) maximo += 5 - x.Fuerza;
        }
        if (L > NIVEL_LEE && R > 0.4) {
            minimo = 2;
            maximo += 4;
        }
        if (x.Fuerza == 1) maximo += PorCaracter(MAS_CON_LA_MEJOR, C);
    }
    // Paso 5. They say the rivals take it.
    if (x.PerdemosReal && L > NIVEL_LEE && R > 0.4) maximo = x.Ventaja > 0 ? 2 : 0;
    // Paso 6. Boldness.
    maximo = Redondea(maximo * PorCaracter(ESCALA_MAXIMO, C));
}

// An órdago standing: who takes it, by character, strength, lead and level.
bool AceptaOrdago(int seat, const Lectura& x) {
    const PensamientoMus& p = Pensado;
    const int L = p.Nivel, C = p.Caracter;
    const double R = p.R;
    const int mias = PiedrasPareja(ParejaDe[seat]), suyas = PiedrasPareja(3 - ParejaDe[seat]);
    const bool Q = mias - suyas > PiedrasJuego / 2.0 && PiedrasJuego - mias < NECESITA_PARA_ORDAGO;
    const int F = x.Fuerza;
    switch (C) {
    case 3:
        return F == 1 || (F == 2 && Q && x.Delante) || (F == 3 && Q);
    case 2:
        return (F == 1 && Q) || (F == 2 && Q && x.Delante && L > NIVEL_DUDA && R > 0.5) ||
               (F == 3 && Q && x.GanamosReal && L > NIVEL_DUDA && R > 0.8);
    default:
        return (F == 1 && Q && x.Delante) ||
               (F == 2 && Q && x.Delante && L > NIVEL_CIERTO && R > 0.65) ||
               (F == 3 && Q && x.GanamosReal && L > NIVEL_CIERTO && R > 0.95);
    }
}

// Paso 7 to 10: what every seat does whatever its plan.
void FigurasComunes(int seat, const Lectura& x, int& minimo, int& maximo) {
    const PensamientoMus& p = Pensado;
    const int L = p.Nivel, C = p.Caracter;
    const double R = p.R;
    // Paso 7. The partner asked for an envite.
    if (VioSena(seat, SENA_MANDO_ENVIDAR, CompaneroDe[seat])) {
        minimo = std::max(minimo, 2);
        maximo = std::max(maximo, 2);
        if (ApuestaMaxRonda > 0) {
            const int T = Redondea(PiedrasJuego / (p.ManoPareja ? 6.0 : 4.0));
            if (maximo < T) {
                maximo = T;
                minimo = Redondea(T / 2.0);
            }
        }
    }
    // Paso 8. A spontaneous órdago on one of the best hands.
    if (((C == 2 && x.Fuerza == 1) || (C == 3 && x.Fuerza <= 2)) && x.Delante && L > NIVEL_LEE &&
        R > (x.GanamosReal ? 0.7 : 0.95))
        minimo = maximo = ORDAGO;
    // Paso 9. Facing an órdago.
    if (ApuestaMaxRonda == ORDAGO) minimo = maximo = AceptaOrdago(seat, x) ? ORDAGO : 0;
    // Paso 10. The figures agree with each other.
    maximo = std::max(maximo, minimo);
    if (maximo == 1) maximo = 2;
    if (maximo == 0) minimo = 0;
}

// ---- The answer to what stands ----

int Responde(int seat, const Lectura& x, int minimo, int maximo) {
    const PensamientoMus& p = Pensado;
    const int L = p.Nivel, C = p.Caracter, M = ApuestaMaxRonda;
    const double R = p.R;
    const int companero = CompaneroDe[seat];
    const LanceDeMus& lance = LanceMus[LanceActual];
    // Paso 1. Nothing on the table: open or pass.
    if (M == 0) return minimo;
    // Paso 2. The rival after this seat made the envite, and the partner has already refused it.
    if (JugadorMaxApuesta == p.Siguiente && lance.Voz[companero] != VOZ_CALLA &&
        !lance.Acepta[companero]) {
        if (minimo == 0)
            maximo = 0;
        else if (!x.MejorQueCompa && !VioSena(seat, SENA_MANDO_ENVIDAR, companero) &&
                 L > NIVEL_DUDA && C == 1)
            maximo = 0;
    }
    // Paso 3. The rival just before made it: the partner, still to speak, answers.
    if (JugadorMaxApuesta == p.Anterior && minimo == 0 && x.CompaTiene) return 0;
    // Paso 4. It stands within reach: take it, or raise by a share of the rest.
    if (maximo >= M) {
        const int D = PorCaracter(PARTE_DEL_MAXIMO, C);
        int apuesta;
        if (double(maximo) / D > maximo - M || maximo == ORDAGO)
            apuesta = maximo;
        else
            apuesta = Redondea(M + double(maximo - M) / D);
        if (p.ManoPareja && x.MejorQueCompa && !SoloYo) HablaPorDosOrdenador = true;
        return apuesta;
    }
    // Paso 5. Beyond reach: a little beyond is taken, further only by the first to speak.
    const int G = M - maximo;
    if (G <= maximo * PorCaracter(CUBRE_SIEMPRE, C)) {
        if (x.MejorQueCompaReal && !SoloYo) HablaPorDosOrdenador = true;
        return M;
    }
    if (p.ManoPareja && G <= maximo * PorCaracter(CUBRE_SI_ES_MANO, C)) {
        int apuesta = 0;
        if (x.GanamosReal && R > 0.35) apuesta = M;
        if (x.PerdemosReal && ((R > 0.8 && L < NIVEL_LEE) || (R > 0.92 && L >= NIVEL_LEE)))
            apuesta = M;
        if (x.MejorQueCompaReal && !SoloYo) HablaPorDosOrdenador = true;
        return apuesta;
    }
    if (x.PerdemosReal && p.ManoPareja && x.MejorQueCompaReal && !NoPorDos && R > 0.2)
        HablaPorDosOrdenador = true;
    return 0;
}

} // namespace

void DecideEnviteOrdenador(int seat) {
    ApuestaOrdenador = 0;
    HablaPorDosOrdenador = false;
    CalculaSupuestos(seat);
    const Lectura x = LeeLance(seat);
    int minimo = 0, maximo = 0;
    if (PlanMus[seat] == 1) {
        // The seat went for everything when it cut: órdago in every lance.
        minimo = maximo = ORDAGO;
    } else {
        if (!FigurasDelPlan(seat, x, minimo, maximo)) FigurasGenerales(seat, x, minimo, maximo);
        FigurasComunes(seat, x, minimo, maximo);
    }
    int apuesta = Responde(seat, x, minimo, maximo);
    // Last step. What the permissions allow, and what the partner has done.
    const int M = ApuestaMaxRonda;
    if (!PuedeSubir && apuesta > M) apuesta = M;
    if (SoloPareja) HablaPorDosOrdenador = true;
    if (SigoCompanero && apuesta == 0) apuesta = M;
    if (OrdenEnvidar[seat]) MandaEnvidar = true;
    ApuestaOrdenador = apuesta;
}
