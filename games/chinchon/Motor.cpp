// The combination engine of the Chinchón: a small grid of suits by values, the runs and groups
// found in it in two orders, the cards that would form or extend a meld, and the one number that
// weighs a hand for its seat.
#include "games/chinchon/Motor.h"

#include "frame/Baraja.h"
#include "frame/GblChinchon.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

// The weights of a hand, each written as two digits of Valoracion.
constexpr int LIBRES_CON_COMODIN = 85, LIBRES_SIN_COMODIN = 70; // the most loose points a hand has
constexpr int PUNTOS_COMODIN_SUELTO = 25;   // the As de Oros left loose when it is the joker
constexpr int NIVEL_SALIDAS_AL_CERRAR = 65; // from it, a hand about to close wants few outs
constexpr int NIVEL_ORDEN_FINO = 90;        // from it, the seat weighs outs before points
constexpr int DISPERSION_40 = 18, DISPERSION_48 = 24; // the scatter a suit can reach at most
constexpr int HUECO_MAXIMO = 5; // wider gaps between two stretches of a suit don't count

// Closing: an aggressive seat holds on to a run of six that can still grow; a seat that isn't
// conservative holds on while it has outs, less and less the more times it has held on.
constexpr int CARACTER_CONSERVADOR = 1, CARACTER_AGRESIVO = 3;
constexpr int ESCALERA_CASI_COMPLETA = 6;
constexpr int SALIDAS_PARA_SEGUIR = 2;

// The grid before the hand is laid in: the pile and the cards other seats are known to hold.
int Fondo[5][14] = {};
// The cells an evaluation counts as outs.
bool Salida[5][14] = {};

int NumColumnas() {
    return TipoBarajaEspanola == 2 ? 10 : 12;
}

int Columna(int valor) {
    return TipoBarajaEspanola == 2 && valor >= 10 ? valor - 2 : valor;
}

int ValorDeColumna(int columna) {
    return TipoBarajaEspanola == 2 && columna >= 8 ? columna + 2 : columna;
}

bool CartaValida(int palo, int valor) {
    return palo >= 1 && palo <= 4 && valor >= 1 && valor <= 12;
}

void MarcaCarta(int grid[5][14], int palo, int valor, int marca) {
    if (CartaValida(palo, valor)) grid[palo][Columna(valor)] = marca;
}

int IdDe(int palo, int columna) {
    return IdCarta(palo, ValorDeColumna(columna));
}

void AnotaEnJugada(int palo, int columna) {
    CartasJugada[++NumCartasJugada] = IdDe(palo, columna);
}

void PreparaFondo(int seat) {
    std::memset(Fondo, 0, sizeof Fondo);
    if (FaseJuego == FASE_CHINCHON_CIERRE) return;
    // While the seat draws, the top of the pile is a card that could come.
    const int ultima = FaseJuego == FASE_CHINCHON_TOMA ? CartasEnPozo - 1 : CartasEnPozo;
    for (int i = 1; i <= ultima; ++i) MarcaCarta(Fondo, Pozo[i][1], Pozo[i][2], CELDA_POZO);
    CalculaCartaConocida();
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor) {
            const int quien = CartaConocida[palo][valor];
            if (quien != 0 && quien != seat) MarcaCarta(Fondo, palo, valor, CELDA_AJENA);
        }
}

// The hand is laid over the background: a card in the hand is the seat's own, whatever the
// background says of it (the joker may stand for a card that lies in the pile).
void PreparaRejilla(int seat, int cuenta) {
    std::memcpy(Rejilla, Fondo, sizeof Rejilla);
    for (int i = 1; i <= cuenta; ++i)
        MarcaCarta(Rejilla, ManoEvaluada[i][1], ManoEvaluada[i][2], CELDA_LIBRE);
    if (FaseJuego == FASE_CHINCHON_DESCARTE && CartaEnPrueba > 0) {
        const auto& c = CartasJugador[seat][1][CartaEnPrueba];
        MarcaCarta(Rejilla, c[CAMPO_PALO], c[CAMPO_VALOR], CELDA_DESCARTE);
    }
    std::memset(Salida, 0, sizeof Salida);
    CartasEnGrupos = CartasEnEscaleras = PuntosSobrantes = 0;
    EsChinchon = false;
    EscaleraMayor = Salidas = NumCartasJugada = 0;
    for (float& h : Huecos) h = 0;
}

// A stretch of free cards of the suit, from column desde to hasta, found along a run's scan.
void CierraTramo(int palo, int desde, int hasta, int& finAnterior) {
    if (finAnterior > 0) {
        const int hueco = desde - finAnterior - 1;
        if (hueco <= HUECO_MAXIMO) Huecos[palo] += static_cast<float>(1 << (hueco - 1));
    }
    finAnterior = hasta;
    const int largo = hasta - desde + 1;
    if (largo < 3) return;
    for (int c = desde; c <= hasta; ++c) {
        Rejilla[palo][c] = CELDA_JUGADA;
        AnotaEnJugada(palo, c);
    }
    CartasEnEscaleras += largo;
    EscaleraMayor = std::max(EscaleraMayor, largo);
    if (largo == 7 && PosicionComodin == 0) EsChinchon = true;
}

void BuscaEscaleras() {
    const int n = NumColumnas();
    for (int palo = 1; palo <= 4; ++palo) {
        int desde = 0, finAnterior = 0;
        for (int c = 1; c <= n + 1; ++c) {
            const bool libre = c <= n && Rejilla[palo][c] == CELDA_LIBRE;
            if (libre && desde == 0) desde = c;
            if (!libre && desde != 0) {
                CierraTramo(palo, desde, c - 1, finAnterior);
                desde = 0;
            }
        }
    }
}

// An unseen card extends a run when a window of three columns around it holds two of the hand.
void BuscaSalidasEscaleras() {
    const int n = NumColumnas();
    for (int palo = 1; palo <= 4; ++palo)
        for (int c = 1; c <= n; ++c) {
            if (Rejilla[palo][c] != CELDA_DESCONOCIDA) continue;
            for (int inicio = std::max(1, c - 2); inicio <= std::min(c, n - 2); ++inicio) {
                int propias = 0;
                for (int k = inicio; k < inicio + 3; ++k)
                    propias += Rejilla[palo][k] == CELDA_LIBRE || Rejilla[palo][k] == CELDA_JUGADA;
                if (propias >= 2) Salida[palo][c] = true;
            }
        }
}

void BuscaGrupos() {
    const int n = NumColumnas();
    for (int c = 1; c <= n; ++c) {
        int iguales = 0;
        for (int palo = 1; palo <= 4; ++palo) iguales += Rejilla[palo][c] == CELDA_LIBRE;
        if (iguales >= 3) {
            for (int palo = 1; palo <= 4; ++palo)
                if (Rejilla[palo][c] == CELDA_LIBRE) {
                    Rejilla[palo][c] = CELDA_JUGADA;
                    AnotaEnJugada(palo, c);
                }
            CartasEnGrupos += iguales;
        }
        if (iguales >= 2)
            for (int palo = 1; palo <= 4; ++palo)
                if (Rejilla[palo][c] == CELDA_DESCONOCIDA) Salida[palo][c] = true;
    }
}

void CuentaSobrantes() {
    const int n = NumColumnas();
    for (int palo = 1; palo <= 4; ++palo)
        for (int c = 1; c <= n; ++c) {
            Salidas += Salida[palo][c];
            if (Rejilla[palo][c] != CELDA_LIBRE) continue;
            const int valor = ValorDeColumna(c);
            PuntosSobrantes += EsComodin(palo, valor) ? PUNTOS_COMODIN_SUELTO
                                                      : static_cast<int>(PuntosValor[valor]);
            AnotaEnJugada(palo, c);
        }
}

int DosCifras(int x) {
    return std::clamp(x, 0, 99);
}

int Cohesion() {
    float suma = 0;
    int palos = 0;
    for (int palo = 1; palo <= 4; ++palo) {
        suma += Huecos[palo];
        palos += Huecos[palo] > 0;
    }
    if (palos == 0) return 0;
    const int tope = TipoBarajaEspanola == 2 ? DISPERSION_40 : DISPERSION_48;
    return Redondea(99 - suma / (palos * tope) * 99);
}

void CalculaValoracion(int seat) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    const int libres = (AsOrosComodin ? LIBRES_CON_COMODIN : LIBRES_SIN_COMODIN) - PuntosSobrantes;
    const bool pocasSalidas = OrdenadorCierra && nivel >= NIVEL_SALIDAS_AL_CERRAR;
    const int salidas = DosCifras(pocasSalidas ? 10 - Salidas : Salidas);
    const int puntos = DosCifras(libres), cohesion = DosCifras(Cohesion());
    int a, b, c;
    if (caracter == CARACTER_CONSERVADOR && nivel < NIVEL_ORDEN_FINO) {
        a = puntos, b = salidas, c = cohesion;
    } else if (caracter == CARACTER_CONSERVADOR || (caracter == 2 && nivel < NIVEL_ORDEN_FINO)) {
        a = salidas, b = puntos, c = cohesion;
    } else {
        a = salidas, b = cohesion, c = puntos;
    }
    Valoracion = CartasCombinadas() * 1000000 + a * 10000 + b * 100 + c;
}

// One pass over the grid: groups then runs, or runs then groups.
void Pasada(int seat, int cuenta, bool gruposPrimero) {
    PreparaRejilla(seat, cuenta);
    if (gruposPrimero) BuscaGrupos();
    BuscaEscaleras();
    BuscaSalidasEscaleras();
    if (!gruposPrimero) BuscaGrupos();
    CuentaSobrantes();
    DecideCierre(seat);
    CalculaValoracion(seat);
}

// The split with more cards in melds stands; on a tie, runs first.
void EvaluaBase(int seat, int cuenta) {
    Pasada(seat, cuenta, true);
    const int conGrupos = CartasCombinadas();
    Pasada(seat, cuenta, false);
    if (conGrupos > CartasCombinadas()) Pasada(seat, cuenta, true);
}

} // namespace

bool EsComodin(int palo, int valor) {
    return AsOrosComodin && palo == 1 && valor == 1;
}

void CalculaCartaConocida() {
    std::memset(CartaConocida, 0, sizeof CartaConocida);
    auto anota = [](int id, int seat) {
        if (id <= 0 || id > IdsNormales) return;
        const int palo = (id - 1) / CartasPorPalo + 1, valor = id - (palo - 1) * CartasPorPalo;
        if (CartaValida(palo, valor)) CartaConocida[palo][valor] = seat;
    };
    const int ultima = std::min(NumeroDescarte, static_cast<int>(RegistroDescartes.size()) - 1);
    for (int e = 1; e <= ultima; ++e) {
        const EntradaDescarte& d = RegistroDescartes[e];
        if (RecibeDesde == 0 || e < RecibeDesde) anota(d.TomadaDelPozo, d.Seat);
        // A card thrown to the pile is nobody's again; one laid off is its receiver's.
        anota(d.Descartada, d.Receptor);
    }
}

void DecideCierre(int seat) {
    OrdenadorCierra = PuedeCerrar;
    if (!PuedeCerrar) return;
    const int caracter = CaracterJugador[seat];
    if (caracter == CARACTER_AGRESIVO && EscaleraMayor == ESCALERA_CASI_COMPLETA && Salidas > 0)
        OrdenadorCierra = false;
    if (caracter != CARACTER_CONSERVADOR && Salidas > SALIDAS_PARA_SEGUIR &&
        AzarJugada * 3 * caracter >= VecesSinCerrar[seat])
        OrdenadorCierra = false;
}

void EvaluaMano(int seat, int cuenta) {
    PreparaFondo(seat);
    PosicionComodin = ComodinVale = 0;
    int joker = 0;
    for (int i = 1; i <= cuenta && AsOrosComodin; ++i)
        if (EsComodin(ManoEvaluada[i][1], ManoEvaluada[i][2])) joker = i;
    if (joker == 0) return EvaluaBase(seat, cuenta);

    // The joker stands for each card that isn't in the hand, and for itself; the best stays.
    bool enMano[5][13] = {};
    for (int i = 1; i <= cuenta; ++i)
        if (CartaValida(ManoEvaluada[i][1], ManoEvaluada[i][2]))
            enMano[ManoEvaluada[i][1]][ManoEvaluada[i][2]] = true;
    PosicionComodin = joker;
    int mejor = INT_MIN, mejorPalo = 1, mejorValor = 1;
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor) {
            if (!ValorEnJuego[valor]) continue;
            if (enMano[palo][valor] && !EsComodin(palo, valor)) continue;
            ManoEvaluada[joker][1] = palo;
            ManoEvaluada[joker][2] = valor;
            EvaluaBase(seat, cuenta);
            if (Valoracion > mejor) {
                mejor = Valoracion;
                mejorPalo = palo;
                mejorValor = valor;
            }
        }
    ManoEvaluada[joker][1] = mejorPalo;
    ManoEvaluada[joker][2] = mejorValor;
    EvaluaBase(seat, cuenta);
    ComodinVale = IdCarta(mejorPalo, mejorValor);
    ManoEvaluada[joker][1] = 1;
    ManoEvaluada[joker][2] = 1;
}

int CargaManoEvaluada(int seat) {
    const int n = NumCartas[seat][1];
    for (int p = 1; p <= n; ++p) {
        ManoEvaluada[p][1] = CartasJugador[seat][1][p][CAMPO_PALO];
        ManoEvaluada[p][2] = CartasJugador[seat][1][p][CAMPO_VALOR];
    }
    return n;
}

void EvaluaManoDelSeat(int seat) {
    EvaluaMano(seat, CargaManoEvaluada(seat));
}

int PuestoEnJugada(int palo, int valor) {
    int id = IdCarta(palo, valor);
    if (EsComodin(palo, valor) && ComodinVale != 0) id = ComodinVale;
    for (int i = 1; i <= NumCartasJugada; ++i)
        if (CartasJugada[i] == id) return i;
    return 0;
}
