// Does a Póker seat's level tell at the table? The chips a hand won by a seat at level 100 against
// seats at level 0 of its own character, and by the same seat at level 0 and at level 90 on the
// same deals, with the standard error of the difference; and, on the turns of the automatic
// table, how often each level gate of the computer player changes what a seat does.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

#include "bench/Secciones.h"
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/Fases.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Jugador.h"
#include "table/Dibujo.h"
#include "table/GblMesa.h"
#include "table/Mensajes.h"

namespace {

constexpr int NIVEL_RIVALES = 90;      // the highest level that doesn't read the rivals' cards
constexpr int MANOS_POR_PARTIDA = 200; // then the match starts again with fresh money
constexpr int MAXIMA_FABRICA = 25;
// The table of the level's test: bold seats and big stakes, where the folds that read the
// rivals' cards tell.
constexpr int MAXIMA_PRUEBA = 100, RESTO_PRUEBA = 995;
constexpr int SERIE = 1;

// A mean and its standard error, from running sums.
struct Media {
    long long N = 0;
    double Suma = 0, Cuadrados = 0;
    void Anota(double x) {
        ++N;
        Suma += x;
        Cuadrados += x * x;
    }
    double Valor() const { return N > 0 ? Suma / N : 0; }
    double Error() const {
        if (N < 2) return 0;
        const double varianza = (Cuadrados - Suma * Suma / N) / (N - 1);
        return std::sqrt(std::max(varianza, 0.0) / N);
    }
};

// One automatic match from the seed, with our script in the person's place: it runs at every
// wait of the match and must end it.
void JuegaConGuion(unsigned semilla, const std::function<void()>& guion) {
    const bool pausas = PausasACero, vuelos = VuelosOmitidos;
    PausasACero = VuelosOmitidos = true;
    SemillaFija = semilla;
    PersonaGuionada = [&] {
        EsperandoPersona = false;
        guion();
    };
    RespuestasGuionadas.assign(4, false);
    NuevaPartida();
    RespuestasGuionadas.clear();
    MensajesVistos.clear();
    PersonaGuionada = nullptr;
    PausasACero = pausas;
    VuelosOmitidos = vuelos;
    SemillaFija = 0;
}

// ---- What each gate of the level changes, on the same positions ----

// The computer player's answer at each level, as the turn stood: everything the routines write
// is put back afterwards, so the match goes on as it would.
struct Respaldo {
    bool DescarteAntes[6], FarolAntes[5];
    int Ordenador, Limite, Propio, Nivel, Comodines, Comodin, DeJugada;
    int JugadasAntes[5][NUM_JUGADAS + 1][9], JugadorAntes[5], Ordenadas[6][3];
    explicit Respaldo(int seat) : Nivel(NivelJugador[seat]) {
        std::memcpy(DescarteAntes, Descarte, sizeof Descarte);
        std::memcpy(FarolAntes, Farol, sizeof Farol);
        std::memcpy(JugadasAntes, Jugadas, sizeof Jugadas);
        std::memcpy(JugadorAntes, JugadaJugador, sizeof JugadaJugador);
        std::memcpy(Ordenadas, CartasOrdenadas, sizeof CartasOrdenadas);
        Ordenador = ApuestaOrdenador;
        Limite = LimiteRonda;
        Propio = OrdenPropio;
        Comodines = NumComodinesMano;
        Comodin = ValorComodin;
        DeJugada = CartasDeJugada;
    }
    void Devuelve(int seat) const {
        std::memcpy(Descarte, DescarteAntes, sizeof Descarte);
        std::memcpy(Farol, FarolAntes, sizeof Farol);
        std::memcpy(Jugadas, JugadasAntes, sizeof Jugadas);
        std::memcpy(JugadaJugador, JugadorAntes, sizeof JugadaJugador);
        std::memcpy(CartasOrdenadas, Ordenadas, sizeof CartasOrdenadas);
        ApuestaOrdenador = Ordenador;
        LimiteRonda = Limite;
        OrdenPropio = Propio;
        NumComodinesMano = Comodines;
        ValorComodin = Comodin;
        CartasDeJugada = DeJugada;
        NivelJugador[seat] = Nivel;
    }
};

// A gate: the level just below it and the level at it, the phase it is looked at, and the hands
// it reads (made ones, loose cards and draws, or any); the last row of each kind is the whole
// range of levels.
enum ManoDePuerta { CUALQUIERA, HECHA, SIN_HACER };
struct Puerta {
    const char* Nombre;
    int Debajo, Encima;
    int Fase; // FASE_POKER_DESCARTE, FASE_POKER_APUESTA1 or 2, or 0 both rounds
    ManoDePuerta Mano;
};
constexpr Puerta PUERTAS[] = {
    {"descarte, escalera de color por ligar (25)", 24, 25, FASE_POKER_DESCARTE, CUALQUIERA},
    {"descarte, proyectos con pareja o sueltas (50)", 49, 50, FASE_POKER_DESCARTE, CUALQUIERA},
    {"descarte, color por ligar y comodín solo (60)", 59, 60, FASE_POKER_DESCARTE, CUALQUIERA},
    {"descarte, nivel 0 contra 100", NIVEL_BAJO, NIVEL_ALTO, FASE_POKER_DESCARTE, CUALQUIERA},
    {"apuesta 1ª, proyecto como jugada media (>80)", 80, 81, FASE_POKER_APUESTA1, SIN_HACER},
    {"apuesta 1ª, no iguala media ronda (>80)", 80, 81, FASE_POKER_APUESTA1, HECHA},
    {"apuesta 2ª, cartas de los rivales (>90)", 90, 91, FASE_POKER_APUESTA2, CUALQUIERA},
    {"apuesta, nivel 0 contra 100", NIVEL_BAJO, NIVEL_ALTO, 0, CUALQUIERA},
};
constexpr int NUM_PUERTAS = sizeof PUERTAS / sizeof PUERTAS[0];
constexpr int PUERTA_RIVALES = 6;

struct Cambios {
    long long Turnos[NUM_PUERTAS] = {}, Cambia[NUM_PUERTAS] = {};
    long long Retiradas = 0, RetiradasAtinadas = 0; // folds of the rivals' gate, and right ones
};

// The stake of JugadorActual at that level, or the cards it throws as a number of five bits.
int Decision(int seat, int nivel, bool apuesta, const Respaldo& antes) {
    antes.Devuelve(seat);
    NivelJugador[seat] = nivel;
    if (apuesta) {
        DecideApuesta();
        return ApuestaOrdenador;
    }
    DecideDescartes();
    int bits = 0;
    for (int p = 1; p <= 5; ++p) bits |= int(Descarte[p]) << p;
    return bits;
}

// The seat's hand is a made one, not only loose cards and draws.
bool ManoHecha(int seat) {
    EvaluaJugada(seat);
    return JugadaJugador[seat] > JugadaCartaMayor;
}

// A rival still in the hand holds a better hand than the seat, by the showdown's order.
bool PierdeEnLaMesa(int seat) {
    EvaluaJugada(seat);
    const int propia = OrdenJugada(JugadaJugador[seat], seat);
    for (int r = 1; r <= 4; ++r) {
        if (r == seat || NumCartas[r][SERIE] == 0) continue;
        EvaluaJugada(r);
        if (OrdenJugada(JugadaJugador[r], r) > propia) return true;
    }
    return false;
}

bool MiraPuerta(const Puerta& p, bool hecha) {
    const bool enFase = p.Fase == 0 ? FaseJuego != FASE_POKER_DESCARTE : p.Fase == FaseJuego;
    if (!enFase) return false;
    return p.Mano == CUALQUIERA || (p.Mano == HECHA) == hecha;
}

void CuentaCambios(Cambios (&porCaracter)[4]) {
    const int seat = JugadorActual;
    if (FaseJuego != FASE_POKER_APUESTA1 && FaseJuego != FASE_POKER_APUESTA2 &&
        FaseJuego != FASE_POKER_DESCARTE)
        return;
    if (seat < 1 || seat > 4 || NumCartas[seat][SERIE] == 0) return;
    const bool apuesta = FaseJuego != FASE_POKER_DESCARTE;
    Cambios& cambios = porCaracter[std::clamp(CaracterJugador[seat], 1, 3)];
    const Respaldo antes(seat);
    const bool hecha = ManoHecha(seat);
    for (int g = 0; g < NUM_PUERTAS; ++g) {
        if (!MiraPuerta(PUERTAS[g], hecha)) continue;
        const int debajo = Decision(seat, PUERTAS[g].Debajo, apuesta, antes);
        const int encima = Decision(seat, PUERTAS[g].Encima, apuesta, antes);
        ++cambios.Turnos[g];
        if (debajo == encima) continue;
        ++cambios.Cambia[g];
        if (g == PUERTA_RIVALES && encima == -1) {
            ++cambios.Retiradas;
            if (PierdeEnLaMesa(seat)) ++cambios.RetiradasAtinadas;
        }
    }
    antes.Devuelve(seat);
}

// ---- The chips that the level wins ----

// A table to measure the level at: its seats, their character, the hand's limit and the money.
struct MesaNivel {
    int Jugadores, Caracter, Maxima, Resto;
};

constexpr int MANOS_POR_PARTIDA_NIVEL = 25; // short matches: the unit of the standard error

// The chips a hand won in each match by the seat under test at `nivel`, the others at level 0,
// over as many matches of MANOS_POR_PARTIDA_NIVEL hands as make `manos`; the seat changes place
// from one match to the next. After each showdown the stream is seeded from the match and the
// hand, so that runs at two levels deal the same cards and only the seat's decisions differ. A
// match that ends early, one seat holding all the money, counts whole.
std::vector<double> GananciasPorPartida(const MesaNivel& mesa, int nivel, long manos) {
    std::vector<double> porPartida;
    const long partidas = std::max(2L, manos / MANOS_POR_PARTIDA_NIVEL);
    for (long partida = 0; partida < partidas; ++partida) {
        const int asiento = int(partida % mesa.Jugadores) + 1;
        PreparaPartidaAutomatica({JUEGO_POKER, mesa.Jugadores, false, [&] {
                                      RestoInicial = mesa.Resto;
                                      ApuestaMaxima = mesa.Maxima;
                                      for (int s = 1; s <= 4; ++s) {
                                          NivelJugador[s] = s == asiento ? nivel : NIVEL_BAJO;
                                          CaracterJugador[s] = mesa.Caracter;
                                      }
                                  }});
        int manoVista = 0, jugadas = 0, ahora = mesa.Resto;
        const unsigned semilla = 1000u * mesa.Caracter + unsigned(partida) + 1;
        JuegaConGuion(semilla, [&] {
            if (FaseJuego != FASE_FIN_MANO || ManoViva || NumeroMano == manoVista) return;
            // The showdown, its shares worked out and not yet paid.
            manoVista = NumeroMano;
            ahora = RestoJugador(asiento) + Ganancia[asiento];
            RandomizaCon(semilla * 1000u + unsigned(++jugadas));
            if (jugadas >= MANOS_POR_PARTIDA_NIVEL) PartidaViva = false;
        });
        porPartida.push_back(double(ahora - mesa.Resto) / MANOS_POR_PARTIDA_NIVEL);
    }
    return porPartida;
}

Media MediaDe(const std::vector<double>& x) {
    Media m;
    for (double v : x) m.Anota(v);
    return m;
}

// The difference a hand between two runs of the same matches, with its standard error.
Media Diferencia(const std::vector<double>& a, const std::vector<double>& b) {
    Media m;
    for (size_t i = 0; i < a.size(); ++i) m.Anota(a[i] - b[i]);
    return m;
}

void ImprimeDiferencia(const char* titulo, const Media& d) {
    const double e = d.Error();
    std::printf(" %s %+7.3f ± %.3f (%.1f errores)", titulo, d.Valor(), e,
                e > 0 ? d.Valor() / e : 0.0);
}

// Level 100 and level 0 on the same deals, and level 100 against level 90: the rivals' cards.
void ImprimeMesa(const MesaNivel& mesa, long manos, bool contra90) {
    const auto alto = GananciasPorPartida(mesa, NIVEL_ALTO, manos);
    const auto bajo = GananciasPorPartida(mesa, NIVEL_BAJO, manos);
    std::printf("    %d asientos, carácter %d: nivel 100 %+6.3f, nivel 0 %+6.3f;", mesa.Jugadores,
                mesa.Caracter, MediaDe(alto).Valor(), MediaDe(bajo).Valor());
    ImprimeDiferencia("diferencia", Diferencia(alto, bajo));
    if (contra90)
        ImprimeDiferencia("; contra nivel 90",
                          Diferencia(alto, GananciasPorPartida(mesa, NIVEL_RIVALES, manos)));
    std::printf("\n");
    std::fflush(stdout);
}

// The gates looked at on every computer turn of matches at the usual automatic table: four seats
// of every character and levels 100, 75, 50 and 0, over that many hands.
void CuentaPuertas(long manos, int resto, Cambios (&cambios)[4]) {
    long jugadas = 0;
    for (unsigned partida = 1; jugadas < manos; ++partida) {
        PreparaPartidaAutomatica({JUEGO_POKER, 4, false, [&] {
                                      RestoInicial = resto;
                                      // Every computer turn then waits: the gates are looked at
                                      // there.
                                      ContinuarManual = true;
                                  }});
        int manoVista = 0, enPartida = 0;
        JuegaConGuion(5000 + partida, [&] {
            if (FaseJuego != FASE_FIN_MANO) {
                CuentaCambios(cambios);
                return;
            }
            if (ManoViva || NumeroMano == manoVista) return;
            manoVista = NumeroMano;
            ++jugadas;
            if (++enPartida >= MANOS_POR_PARTIDA || jugadas >= manos) PartidaViva = false;
        });
    }
}

void ImprimePuertas(const Cambios (&cambios)[4]) {
    std::printf("    %-48s %18s %18s %18s\n", "", "carácter 1", "carácter 2", "carácter 3");
    for (int g = 0; g < NUM_PUERTAS; ++g) {
        std::printf("    %-48s", PUERTAS[g].Nombre);
        for (int c = 1; c <= 3; ++c)
            std::printf(" %8lld / %7lld", cambios[c].Cambia[g], cambios[c].Turnos[g]);
        std::printf("\n");
    }
    std::printf("    %-48s", "de ellas, retiradas ante una mano mejor");
    for (int c = 1; c <= 3; ++c)
        std::printf(" %8lld / %7lld", cambios[c].RetiradasAtinadas, cambios[c].Retiradas);
    std::printf("\n");
}

} // namespace

void BenchPokerNiveles(long manos, int resto) {
    std::printf("Póker, fichas ganadas por mano por un asiento de nivel 100 y, en las mismas "
                "partidas y con las\nmismas cartas, por el mismo asiento a nivel 0 (y a nivel "
                "90: solo le falta leer las cartas de los\nrivales); los demás asientos a nivel 0 "
                "y del mismo carácter; %ld manos en partidas de %d:\n",
                manos, MANOS_POR_PARTIDA_NIVEL);
    // Nothing of these matches is looked at: the table isn't drawn, which keeps them quick.
    const bool pintura = PinturaOmitida;
    PinturaOmitida = true;
    std::printf("  Mesa de fábrica: apuesta de salida 5, apuesta máxima 25, %d fichas:\n", resto);
    for (int jugadores : {2, 4})
        for (int caracter = 1; caracter <= 3; ++caracter)
            ImprimeMesa({jugadores, caracter, MAXIMA_FABRICA, resto}, manos, true);
    std::printf("  Mesa de la prueba: cuatro asientos agresivos, apuesta máxima %d, %d fichas:\n",
                MAXIMA_PRUEBA, RESTO_PRUEBA);
    ImprimeMesa({4, 3, MAXIMA_PRUEBA, RESTO_PRUEBA}, manos, true);
    Cambios cambios[4];
    CuentaPuertas(manos, resto, cambios);
    PinturaOmitida = pintura;
    std::printf("  Decisiones que cambia cada puerta del nivel, en los turnos de %ld manos de la "
                "mesa automática\n  de cuatro asientos (niveles 100, 75, 50 y 0), por el "
                "carácter del asiento (cambia / se mira):\n",
                manos);
    ImprimePuertas(cambios);
}
