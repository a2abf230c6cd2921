// What a five-card hand holds: its sets, figures, colour and runs, made or still to draw, with
// the values that rank each play and a grade for the computer player.
#include "games/poker/Evaluacion.h"

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int SERIE = 1;
constexpr int AS = 1, AS_ALTO = 14, REY = 13, DIEZ = 10;
constexpr int CALIDAD_SIN_GRADO = 1, CALIDAD_RUN_INICIAL = 9;

// Values from the strongest to the weakest: the walk "by strength" of every play.
constexpr int PorFuerza[13] = {1, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2};

// ---- The hand under evaluation ----
int Seat = 0;
int PorPalo[5] = {};
int PorValor[15] = {};       // [1..13], and the aces again at 14
bool TieneCarta[5][15] = {}; // [suit][value], the aces also at 14
int NumValoresBajos = 0;     // cards of value 2 to 10

int* Jug(int jugada) {
    return Jugadas[Seat][jugada];
}
bool Tiene(int jugada) {
    return Jugadas[Seat][jugada][JK_TIENE] != 0;
}
void Pon(int jugada) {
    Jugadas[Seat][jugada][JK_TIENE] = 1;
}
void Quita(int jugada) {
    Jugadas[Seat][jugada][JK_TIENE] = 0;
}
bool EsComodin(int valor) {
    return valor > 90;
}
int OtroComodin() {
    return ValorComodin == 91 ? 92 : 91;
}

// Step 1: what the hand holds of each suit and value.
void Cuenta() {
    NumComodinesMano = 0;
    ValorComodin = 0;
    NumValoresBajos = 0;
    std::fill(std::begin(PorPalo), std::end(PorPalo), 0);
    std::fill(std::begin(PorValor), std::end(PorValor), 0);
    for (auto& fila : TieneCarta) std::fill(std::begin(fila), std::end(fila), false);
    const int n = std::min(NumCartas[Seat][SERIE], 5);
    for (int p = 1; p <= n; ++p) {
        const int palo = CartasJugador[Seat][SERIE][p][CAMPO_PALO];
        const int valor = CartasJugador[Seat][SERIE][p][CAMPO_VALOR];
        if (valor == 0) continue;
        if (palo == PALO_COMODIN || EsComodin(valor)) {
            ++NumComodinesMano;
            ValorComodin = valor;
            continue;
        }
        ++PorPalo[palo];
        ++PorValor[valor];
        TieneCarta[palo][valor] = true;
        if (valor == AS) {
            ++PorValor[AS_ALTO];
            TieneCarta[palo][AS_ALTO] = true;
        }
        if (valor >= 2 && valor <= DIEZ) ++NumValoresBajos;
    }
}

// ---- Runs ----

// The values of the deck in the order of a straight: the ace low, the values in play, the ace
// high (14).
struct Escalones {
    int Valor[15] = {};
    int Cuantos = 0;
};

Escalones Peldanos() {
    Escalones p;
    p.Valor[p.Cuantos++] = AS;
    for (int v = 2; v <= REY; ++v)
        if (v > CartaMinimaPoker) p.Valor[p.Cuantos++] = v;
    p.Valor[p.Cuantos++] = AS_ALTO;
    return p;
}

// Steps of a straight found in the hand, as indices into Escalones, rising.
struct Lista {
    int Indice[5] = {};
    int Cuantos = 0;
    void Anade(int i) { Indice[Cuantos++] = i; }
};

struct Run {
    int Valor[6] = {};    // [slot]: the value of the deck the slot stands for, 0 empty
    bool Comodin[6] = {}; // the joker sits in this slot
    int Ultimo = 0;       // last slot filled
    int Largo = 0;        // values placed, the joker among them
    int Huecos = 0;       // empty slots between them
    int Calidad = CALIDAD_RUN_INICIAL;
};

// The joker goes to the highest gap that follows a value, never above the ace; without one, the
// run grows downwards.
void ColocaComodin(Run& r, const Escalones& peldanos, int primero) {
    const int desde = r.Huecos == 0 ? 5 : r.Ultimo;
    int hueco = 0;
    for (int s = desde; s >= 2 && hueco == 0; --s)
        if (r.Valor[s] == 0 && r.Valor[s - 1] != 0 && r.Valor[s - 1] != AS_ALTO) hueco = s;
    if (hueco != 0) {
        r.Valor[hueco] = peldanos.Valor[primero + hueco - 1];
        r.Comodin[hueco] = true;
        r.Ultimo = std::max(r.Ultimo, hueco);
    } else if (primero > 0) {
        for (int s = 5; s >= 2; --s) {
            r.Valor[s] = r.Valor[s - 1];
            r.Comodin[s] = r.Comodin[s - 1];
        }
        r.Valor[1] = peldanos.Valor[primero - 1];
        r.Comodin[1] = true;
        r.Ultimo = std::min(r.Ultimo + 1, 5);
    } else {
        return;
    }
    if (r.Huecos > 0) --r.Huecos;
    ++r.Largo;
}

void GradoRun(Run& r) {
    if (r.Largo == 4) {
        const bool borde = r.Valor[1] == AS || r.Valor[r.Ultimo] == AS_ALTO;
        if (r.Huecos == 0 && !borde)
            r.Calidad = 1;
        else if (r.Huecos == 1 || borde)
            r.Calidad = 2;
    } else if (r.Largo == 3) {
        int aire = 0;
        if (r.Valor[1] == CartaMinimaPoker + 1)
            aire = 1;
        else if (r.Valor[1] > CartaMinimaPoker + 1)
            aire = 2;
        const int t = r.Valor[r.Ultimo];
        if (t == REY)
            aire += 1;
        else if (t >= 2 && t <= 12)
            aire += 2;
        r.Calidad = r.Huecos == 2 ? 3 : r.Huecos == 1 ? 2 : 5 - aire;
    }
}

// The run of the given steps of the deck (indices into peldanos, rising), with the joker if the
// hand has one.
Run ArmaRun(const Lista& lista, const Escalones& peldanos) {
    Run r;
    const int primero = lista.Indice[0];
    for (int n = 0; n < lista.Cuantos; ++n) {
        const int s = lista.Indice[n] - primero + 1;
        r.Valor[s] = peldanos.Valor[lista.Indice[n]];
        r.Ultimo = s;
    }
    r.Largo = lista.Cuantos;
    r.Huecos = r.Ultimo - r.Largo;
    if (NumComodinesMano > 0) ColocaComodin(r, peldanos, primero);
    GradoRun(r);
    return r;
}

int ClaseDeRun(int largo, bool color) {
    if (largo >= 5) return color ? JugadaEscColor : JugadaEscalera;
    if (largo == 4) return color ? JugadaProyEscColor : JugadaProyEscalera;
    return color ? JugadaProy3EscCol : JugadaProy3Esc;
}

void GuardaRun(const Run& r, bool color, int palo) {
    const int jugada = ClaseDeRun(r.Largo, color);
    int* j = Jug(jugada);
    if (j[JK_TIENE] && r.Largo != 5 && r.Calidad > j[JK_CALIDAD]) return;
    j[JK_TIENE] = 1;
    j[JK_CALIDAD] = r.Largo == 5 ? 1 : r.Calidad;
    for (int k = 1; k <= 6; ++k) j[k] = 0;
    int k = 1;
    for (int s = 5; s >= 1; --s) {
        if (r.Valor[s] == 0) continue;
        const int valor = r.Valor[s] == AS_ALTO ? AS : r.Valor[s];
        if (r.Comodin[s]) {
            j[k++] = ValorComodin;
            j[JK_COMODIN] = valor;
        } else {
            j[k++] = valor;
        }
    }
    if (color) j[JK_PALO] = palo;
}

// The colour runs among the values found: the last suit that holds two of them is tried.
void BuscaRunColor(const Lista& lista, const Escalones& peldanos) {
    int palo = 0, cuenta = 0;
    for (int p = 1; p <= 4; ++p) {
        int n = 0;
        for (int i = 0; i < lista.Cuantos; ++i)
            n += TieneCarta[p][peldanos.Valor[lista.Indice[i]]] ? 1 : 0;
        if (n >= 2) {
            palo = p;
            cuenta = n;
        }
    }
    if (palo == 0 || (cuenta < 3 && NumComodinesMano == 0)) return;
    Lista dePalo;
    for (int i = 0; i < lista.Cuantos; ++i)
        if (TieneCarta[palo][peldanos.Valor[lista.Indice[i]]]) dePalo.Anade(lista.Indice[i]);
    GuardaRun(ArmaRun(dePalo, peldanos), true, palo);
}

// Step 8: from each value of the deck, the five values that follow it in a straight.
void BuscaRuns() {
    const Escalones peldanos = Peldanos();
    const int n = peldanos.Cuantos;
    for (int inicio = 0; inicio < n - 1; ++inicio) {
        Lista lista;
        for (int i = inicio; i < n && i < inicio + 5; ++i) {
            if (PorValor[peldanos.Valor[i]] == 0) continue;
            lista.Anade(i);
            const int m = lista.Cuantos;
            if (m >= 3 || (m == 2 && NumComodinesMano > 0)) {
                GuardaRun(ArmaRun(lista, peldanos), false, 0);
                BuscaRunColor(lista, peldanos);
            }
        }
    }
}

// ---- Sets, figures and colour ----

// Steps 3, 4 and 6.
void BuscaGrupos() {
    const bool comodin = NumComodinesMano > 0;
    int parejas = 0;
    for (int v = 1; v <= REY; ++v) {
        if (PorValor[v] == 2) ++parejas;
        if (PorValor[v] == 3) Pon(comodin ? JugadaPoker : JugadaTrio);
        if (PorValor[v] == 4) Pon(comodin ? JugadaRepoker : JugadaPoker);
    }
    Jug(JugadaPareja)[JK_TIENE] = parejas;
    if (parejas == 1 && comodin) {
        Quita(JugadaPareja);
        Pon(JugadaTrio);
    } else if (parejas == 2) {
        Jug(JugadaPareja)[JK_TIENE] = 1;
        Pon(comodin ? JugadaFull : JugadaDoblePareja);
    }
}

// The values of a play made of every card, by strength. With a joker its code stands where the
// strongest missing value would, and the figure plays open with it as an ace.
void ValoresPorFuerza(int jugada, bool comodinDelante) {
    int* j = Jug(jugada);
    int k = 1;
    const auto escribe = [&](int valor) {
        if (k <= 5) j[k++] = valor;
    };
    if (comodinDelante && NumComodinesMano > 0) {
        escribe(ValorComodin);
        j[JK_COMODIN] = AS;
    }
    bool comodinPuesto = NumComodinesMano == 0;
    for (int v : PorFuerza) {
        if (!comodinPuesto && PorValor[v] == 0) {
            escribe(ValorComodin);
            j[JK_COMODIN] = v;
            comodinPuesto = true;
        }
        for (int n = 0; n < PorValor[v]; ++n) escribe(v);
    }
    if (NumComodinesMano == 2) escribe(OtroComodin());
}

// Step 5: five figures, or four and one card to change.
void BuscaFiguras() {
    if (NumValoresBajos == 0) {
        Pon(JugadaFiguras);
        if (NumComodinesMano == 2) Pon(JugadaProyFiguras);
    } else if (NumValoresBajos == 1 && NumComodinesMano < 2) {
        Pon(JugadaProyFiguras);
    }
    if (Tiene(JugadaProyFiguras)) ValoresPorFuerza(JugadaProyFiguras, true);
}

// Steps 7 and 10.
void BuscaColor() {
    // The jokers complete a colour of five, two of them as well as one.
    for (int p = 1; p <= 4; ++p)
        if (PorPalo[p] > 0 && PorPalo[p] + NumComodinesMano == 5) Pon(JugadaColor);
    for (int p = 1; p <= 4; ++p) {
        if (PorPalo[p] == 4 || (PorPalo[p] == 3 && NumComodinesMano > 0)) {
            Pon(JugadaProyColor);
            Jug(JugadaProyColor)[JK_PALO] = p;
            return;
        }
    }
}

// ---- Step 12: plays that say the same as a better one are dropped ----

// A project of four cards throws one; the figure project that throws the same card adds
// nothing, nor does a run of three no better graded.
void DescartaRepetidos(int proyecto, int tres) {
    if (Tiene(JugadaProyFiguras)) {
        OrdenaCartasJugada(Seat, proyecto);
        if (CartasOrdenadas[5][2] == Jug(JugadaProyFiguras)[5]) Quita(JugadaProyFiguras);
    }
    if (Tiene(tres) && Jug(tres)[JK_CALIDAD] >= Jug(proyecto)[JK_CALIDAD]) Quita(tres);
}

bool MismosValores(int a, int b) {
    for (int k = 1; k <= 5; ++k)
        if (Jug(a)[k] != Jug(b)[k]) return false;
    return true;
}

void Depura() {
    if (Tiene(JugadaRepoker) || Tiene(JugadaEscColor) || Tiene(JugadaPoker) ||
        Tiene(JugadaEscalera) || Tiene(JugadaFull))
        Quita(JugadaFiguras);
    if (Tiene(JugadaTrio) && JugadaTrio > JugadaFiguras) Quita(JugadaFiguras);
    if (Tiene(JugadaEscalera))
        for (int j : {JugadaProyFiguras, JugadaProyEscalera, JugadaProy3Esc}) Quita(j);
    if (Tiene(JugadaEscColor))
        for (int j : {JugadaColor, JugadaEscalera, JugadaProyEscColor, JugadaProy3EscCol,
                      JugadaProyEscalera, JugadaProy3Esc, JugadaProyColor})
            Quita(j);
    if (Tiene(JugadaProyEscalera)) DescartaRepetidos(JugadaProyEscalera, JugadaProy3Esc);
    if (Tiene(JugadaProyEscColor)) {
        Quita(JugadaProyColor);
        DescartaRepetidos(JugadaProyEscColor, JugadaProy3EscCol);
    }
    if (Tiene(JugadaProy3Esc) && Tiene(JugadaProy3EscCol) &&
        MismosValores(JugadaProy3Esc, JugadaProy3EscCol))
        Quita(JugadaProy3Esc);
    if (Tiene(JugadaProyEscalera) && Tiene(JugadaProyEscColor) &&
        MismosValores(JugadaProyEscalera, JugadaProyEscColor))
        Quita(JugadaProyEscalera);
}

// ---- Step 13: the values of each play ----

int GradoPorFigura(int valor) {
    return (EsFigura(valor) ? 2 : 1) + (NumComodinesMano > 0 ? 1 : 0);
}

// The strongest value of the deck the hand lacks, besides the one given: what a joker left
// over after a set stands for.
int MejorAusente(int salvo) {
    for (int v : PorFuerza)
        if (PorValor[v] == 0 && v != salvo && ValorEnJuego[v]) return v;
    return AS;
}

// A set of value `grupo` first, then the other cards by strength, each as often as the hand
// has it. A second joker, which the set didn't need, stands for the best value missing.
void ValoresDeGrupo(int jugada, int grupo, int desde) {
    int* j = Jug(jugada);
    j[1] = grupo;
    int k = desde;
    const int suelto = NumComodinesMano == 2 ? MejorAusente(grupo) : 0;
    for (int v : PorFuerza) {
        if (suelto != 0 && v == suelto && k <= 5) {
            j[k++] = OtroComodin();
            j[JK_COMODIN] = suelto;
        }
        if (v == grupo) continue;
        for (int n = 0; n < PorValor[v] && k <= 5; ++n) j[k++] = v;
    }
}

// The value of the strongest set of n cards, or of single cards when n is 1.
int ValorConCuenta(int n) {
    for (int v : PorFuerza)
        if (PorValor[v] == n) return v;
    return 0;
}

void ValoresDeJugadas() {
    const bool comodin = NumComodinesMano > 0;
    if (Tiene(JugadaRepoker)) Jug(JugadaRepoker)[1] = ValorConCuenta(4);
    if (Tiene(JugadaPoker)) {
        const int grupo = PorValor[ValorConCuenta(4)] == 4 ? ValorConCuenta(4) : ValorConCuenta(3);
        ValoresDeGrupo(JugadaPoker, grupo, 2);
        if (comodin) Jug(JugadaPoker)[JK_CALIDAD] = 2;
    }
    if (Tiene(JugadaFull)) {
        int* j = Jug(JugadaFull);
        j[1] = comodin ? ValorConCuenta(2) : ValorConCuenta(3);
        for (int v : PorFuerza)
            if (PorValor[v] == 2 && v != j[1]) j[2] = v;
    }
    if (Tiene(JugadaColor)) ValoresPorFuerza(JugadaColor, false);
    if (Tiene(JugadaFiguras)) ValoresPorFuerza(JugadaFiguras, true);
    if (Tiene(JugadaCartaMayor)) {
        ValoresPorFuerza(JugadaCartaMayor, false);
        Jug(JugadaCartaMayor)[JK_CALIDAD] = EsFigura(Jug(JugadaCartaMayor)[1]) ? 1 : 2;
    }
    if (Tiene(JugadaTrio)) {
        ValoresDeGrupo(JugadaTrio, comodin ? ValorConCuenta(2) : ValorConCuenta(3), 2);
        Jug(JugadaTrio)[JK_CALIDAD] = GradoPorFigura(Jug(JugadaTrio)[1]);
    }
    if (Tiene(JugadaDoblePareja)) {
        int* j = Jug(JugadaDoblePareja);
        int k = 1;
        for (int v : PorFuerza)
            if (PorValor[v] == 2 && k <= 2) j[k++] = v;
        j[3] = ValorConCuenta(1);
        j[JK_CALIDAD] = EsFigura(j[1]) && EsFigura(j[2]) ? 2 : 1;
    }
    if (Tiene(JugadaPareja)) {
        // With a joker the pair is made with the strongest single card.
        const int grupo = comodin && ValorConCuenta(2) == 0 ? ValorConCuenta(1) : ValorConCuenta(2);
        ValoresDeGrupo(JugadaPareja, grupo, 2);
        Jug(JugadaPareja)[JK_CALIDAD] = GradoPorFigura(grupo);
    }
    for (int jugada : {JugadaProyEscColor, JugadaProyEscalera}) {
        if (!Tiene(jugada)) continue;
        int* j = Jug(jugada);
        int figuras = 0;
        for (int k = 1; k <= 4; ++k) figuras += EsFigura(j[k]) ? 1 : 0;
        if (figuras == 4 || (figuras == 3 && comodin)) j[JK_CALIDAD] = 3;
        if (comodin) ++j[JK_CALIDAD];
    }
    if (Tiene(JugadaProyColor)) {
        int* j = Jug(JugadaProyColor);
        int k = 1;
        for (int v : PorFuerza)
            if (TieneCarta[j[JK_PALO]][v] && k <= 5) j[k++] = v;
        if (comodin) j[4] = ValorComodin;
    }
    if (Tiene(JugadaProyFiguras)) {
        int* j = Jug(JugadaProyFiguras);
        if (Tiene(JugadaPareja)) j[JK_CALIDAD] = 2;
        if (Tiene(JugadaDoblePareja)) j[JK_CALIDAD] = 3;
        if (Tiene(JugadaTrio)) j[JK_CALIDAD] = 4;
    }
}

// ---- OrdenaCartasJugada ----

int CartasDeClase(int jugada) {
    if (jugada == JugadaCartaMayor) return 1;
    if (jugada == JugadaPareja) return 2;
    if (jugada == JugadaTrio || jugada == JugadaProy3Esc || jugada == JugadaProy3EscCol) return 3;
    if (jugada == JugadaPoker || jugada == JugadaDoblePareja || jugada == JugadaProyFiguras ||
        jugada == JugadaProyEscalera || jugada == JugadaProyColor || jugada == JugadaProyEscColor)
        return 4;
    return 5;
}

int Fuerza(int valor) {
    return valor == AS ? AS_ALTO : valor;
}

} // namespace

bool EsFigura(int valor) {
    return valor == AS || (valor >= 11 && valor <= REY);
}

bool HayComodin(int seat) {
    for (int p = 1; p <= NumCartas[seat][SerieActual]; ++p)
        if (CartasJugador[seat][SerieActual][p][CAMPO_PALO] == PALO_COMODIN) return true;
    return false;
}

int Combinaciones(int n, int k) {
    double r = 1;
    for (int i = 0; i < k; ++i) r *= static_cast<double>(n - i) / (k - i);
    return Redondea(r);
}

void EvaluaJugada(int seat) {
    Seat = seat;
    // Paso 1. Count the cards.
    Cuenta();
    // Paso 2. Nothing is held yet.
    for (auto& j : Jugadas[seat]) {
        std::fill(std::begin(j), std::end(j), 0);
        j[JK_CALIDAD] = CALIDAD_SIN_GRADO;
    }
    // Pasos 3 a 7. Sets, figures, full and colour.
    BuscaGrupos();
    BuscaFiguras();
    if (Tiene(JugadaTrio) && Tiene(JugadaPareja)) Pon(JugadaFull);
    BuscaColor();
    // Pasos 8 a 10. Runs, and the colour still to draw.
    BuscaRuns();
    // Paso 11. A hand with nothing is its highest card, or a pair with the joker.
    bool hecha = false;
    for (int j = PRIMERA_JUGADA_HECHA; j <= NUM_JUGADAS; ++j) hecha = hecha || Tiene(j);
    if (!hecha) Pon(NumComodinesMano > 0 ? JugadaPareja : JugadaCartaMayor);
    // Paso 12. Plays that a better one covers.
    Depura();
    // Paso 13. Their values.
    ValoresDeJugadas();
    // Paso 14. The hand is its highest play.
    JugadaJugador[seat] = 0;
    for (int j = NUM_JUGADAS; j >= 1 && JugadaJugador[seat] == 0; --j)
        if (Tiene(j)) JugadaJugador[seat] = j;
}

void OrdenaCartasJugada(int seat, int jugada) {
    const int* j = Jugadas[seat][jugada];
    struct Naipe {
        int Palo, Valor;
    };
    std::vector<Naipe> mano, orden;
    const int n = std::min(NumCartas[seat][SERIE], 5);
    for (int p = 1; p <= n; ++p) {
        const auto& c = CartasJugador[seat][SERIE][p];
        if (c[CAMPO_VALOR] != 0) mano.push_back({c[CAMPO_PALO], c[CAMPO_VALOR]});
    }
    std::vector<bool> usada(mano.size(), false);
    const auto toma = [&](auto cumple) {
        for (size_t i = 0; i < mano.size(); ++i) {
            if (usada[i] || !cumple(mano[i])) continue;
            usada[i] = true;
            orden.push_back(mano[i]);
            return true;
        }
        return false;
    };
    const auto tomaValor = [&](int valor) {
        while (toma([valor](const Naipe& c) { return c.Valor == valor; })) {
        }
    };
    const auto tomaComodin = [&] { return toma([](const Naipe& c) { return c.Valor > 90; }); };
    CartasDeJugada = CartasDeClase(jugada);
    if (jugada == JugadaRepoker || jugada == JugadaPoker || jugada == JugadaTrio ||
        jugada == JugadaPareja) {
        tomaValor(j[1]);
        while (static_cast<int>(orden.size()) < CartasDeJugada && tomaComodin()) {
        }
    } else if (jugada == JugadaDoblePareja) {
        tomaValor(j[1]);
        tomaValor(j[2]);
    } else if (jugada == JugadaFull) {
        tomaValor(j[1]);
        tomaComodin();
        tomaValor(j[2]);
    } else {
        const int palo = j[JK_PALO];
        for (int k = 1; k <= 5; ++k) {
            const int valor = j[k];
            if (valor == 0) continue;
            toma([valor, palo](const Naipe& c) {
                return c.Valor == valor && (palo == 0 || c.Valor > 90 || c.Palo == palo);
            });
        }
    }
    std::vector<Naipe> resto;
    for (size_t i = 0; i < mano.size(); ++i)
        if (!usada[i]) resto.push_back(mano[i]);
    std::stable_sort(resto.begin(), resto.end(), [](const Naipe& a, const Naipe& b) {
        return Fuerza(a.Valor) > Fuerza(b.Valor);
    });
    orden.insert(orden.end(), resto.begin(), resto.end());
    for (int p = 1; p <= 5; ++p) {
        const bool hay = p <= static_cast<int>(orden.size());
        CartasOrdenadas[p][1] = hay ? orden[p - 1].Palo : 0;
        CartasOrdenadas[p][2] = hay ? orden[p - 1].Valor : 0;
    }
}
