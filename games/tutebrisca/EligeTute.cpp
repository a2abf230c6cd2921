// The computer player of Tute: each card gets the worth of keeping it, with the songs, the Tute,
// the master cards and the obligation to follow weighed in; the legal cards go first in
// Candidatas, and the rules of the table, the level and the character pick among them.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Eleccion.h"
#include "games/tutebrisca/EleccionComun.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"

namespace {

constexpr int SERIE = 1;
constexpr int VALOR_AS = 1, VALOR_TRES = 3;
constexpr int DESPLAZA_CLAVE = 500; // keys stay positive unless a card is to go at once

// Worth added by the shape of the hand.
constexpr int TRIUNFO_EXTRA = 5;                        // per point of character
constexpr int PALO_CORTO_OBLIGADO = 4, PALO_CORTO = 2;  // per card missing from the suit
constexpr int BONO_TUTE = 1500;                         // a Tute figure is never given away
constexpr int BONO_ACUSE_TRIUNFO = 90, BONO_ACUSE = 80; // at level 100
constexpr int AS_DE_ACUSE = 400; // the As that would shield a song is played off
constexpr int TRES_CUBIERTO = 120, TRES_LIBRE = 350;
constexpr int BONO_MAESTRA = 500; // a master card held for the end
constexpr int ACUSE_RIVAL = 300, ACUSE_RIVAL_BAJA = 250;
constexpr int FALLO_PALO = 20;      // per seat known to ruff the suit
constexpr int SALIDA_TEMPRANA = 15; // at level 100: low cards of a suit an opponent may sing
constexpr int TRIUNFO_LARGO = 10;   // per trump: a long trump suit draws the rivals' trumps

// Levels that open the rules.
constexpr int NIVEL_AS_ACUSE = 80, NIVEL_TRES = 95, NIVEL_RIVAL = 90, NIVEL_FALLOS = 90;
constexpr int NIVEL_MAESTRAS = 85, NIVEL_VA_MAESTRAS = 75;
constexpr int NIVEL_NOVATO = 30, NIVEL_TIMIDO = 60, NIVEL_CUENTA_TRIUNFOS = 80;
constexpr int NIVEL_TUTE_SUELTO = 20, NIVEL_GUARDA_ACUSE = 40;
constexpr int NIVEL_GUARDA_AS = 60, NIVEL_BARATO = 50;

// ---- Survey of the turn ----
int TriunfoMesa = 0;       // highest OrdenValor of a trump on the table
int Rival = 0;             // the highest active seat other than this one
bool TriunfoFuera = false; // a trump is still unseen, the turned-up card included
int UmbralCorto = 0;       // a hand of this many cards or fewer holds its master cards
int Maestras = 0;
int Clases[5] = {};      // 1 overtake the led card, 2 follow, 3 trump, 4 the rest
bool AcuseRival[5] = {}; // the rival's songs, with two players

int PaloEn(int seat, int pos) {
    return CartasJugador[seat][SERIE][pos][CAMPO_PALO];
}
int ValorEn(int seat, int pos) {
    return CartasJugador[seat][SERIE][pos][CAMPO_VALOR];
}
int PuntosDe(int valor) {
    return Redondea(PuntosValor[valor]);
}

// The line of the obligation that a card answers, the led card being the measure of line 1.
int ClaseDeCarta(int palo, int valor) {
    if (palo == PaloSalida && OrdenValor[valor] > OrdenValor[CartaEnMesa[JugadorSalida][2]])
        return 1;
    if (palo == PaloSalida) return 2;
    if (palo == PaloTriunfo) return 3;
    return 4;
}

bool FiguraJugada(int palo) {
    return CartaVista[palo][VALOR_CABALLO] != 0 || CartaVista[palo][VALOR_REY] != 0;
}

bool ValorSinJugar(int valor) {
    for (int palo = 1; palo <= 4; ++palo)
        if (CartaVista[palo][valor] != 0) return false;
    return true;
}

bool AsEnMesa(int palo) {
    for (int s = 1; s <= 4; ++s)
        if (CartaEnMesa[s][1] == palo && CartaEnMesa[s][2] == VALOR_AS) return true;
    return false;
}

// Whether a card unplayed and out of this hand is stronger, trumps over everything.
bool HayMayorOculta(int palo, int valor) {
    const int fuerza = OrdenValor[valor] + (palo == PaloTriunfo ? 20 : 0);
    for (int s = 1; s <= 4; ++s)
        for (int v = 1; v <= 12; ++v)
            if (ValorEnJuego[v] && CartaVista[s][v] == 0 && !MapaMano[s][v] &&
                OrdenValor[v] + (s == PaloTriunfo ? 20 : 0) > fuerza)
                return true;
    return false;
}

// The first non-empty class of the hand stays; the seat is bound only when it follows.
void CuentaClases(int seat, bool sale) {
    for (auto& c : Clases) c = 0;
    if (sale || !ObligacionActiva) return;
    int cuenta[5] = {};
    for (int pos = 1; pos <= NumCartas[seat][SERIE]; ++pos)
        ++cuenta[ClaseDeCarta(PaloEn(seat, pos), ValorEn(seat, pos))];
    for (int c = 1; c <= 4; ++c)
        if (cuenta[c] > 0) {
            Clases[c] = cuenta[c];
            return;
        }
}

bool Tres(int palo) {
    return (Clases[1] == 3 && palo == PaloSalida) || (Clases[3] == 3 && palo == PaloTriunfo) ||
           Clases[4] == 3;
}

void SondeaTute(int seat, bool sale) {
    SondeaMesa(seat);
    TriunfoMesa = 0;
    for (int s = 1; s <= 4; ++s)
        if (CartaEnMesa[s][1] == PaloTriunfo && OrdenValor[CartaEnMesa[s][2]] > TriunfoMesa)
            TriunfoMesa = OrdenValor[CartaEnMesa[s][2]];
    Rival = 0;
    for (int s = 1; s <= 4; ++s)
        if (s != seat && EstadoJugador[s] == ESTADO_ACTIVADO) Rival = s;
    for (auto& a : AcuseRival) a = false;
    if (NumJugadores == 2 && sale && ObligacionActiva && Rival != 0) {
        AnalizaMano(Rival);
        for (int palo = 1; palo <= 4; ++palo) AcuseRival[palo] = AcuseDisponible[palo];
    }
    AnalizaMano(seat);
    TriunfoFuera = false;
    for (int v = 1; v <= 12; ++v)
        if (ValorEnJuego[v] && CartaVista[PaloTriunfo][v] == 0 && !MapaMano[PaloTriunfo][v])
            TriunfoFuera = true;
    UmbralCorto = Redondea(CartasPorJugador * NivelJugador[seat] / 100.0);
    Maestras = 0;
    CuentaClases(seat, sale);
}

// Paso 3: a Caballo or a Rey, for the songs and the Tute it may still make.
int ValoraFigura(int seat, int palo, int valor, int valia) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    const int resto = CartasEnMazo == 0 ? 0 : CartasEnMazo + 1;
    if (valor == TuteEnMano) {
        valia += BONO_TUTE;
    } else if (ValorSinJugar(valor)) {
        int n = 0;
        for (int p = 1; p <= 4; ++p)
            if (MapaMano[p][valor]) ++n;
        if (static_cast<double>(resto) / NumJugadores + n >= 4) {
            int x = Redondea(nivel / 33.0 * n * n * resto / 28.0);
            x = Redondea(x * caracter / 2.0);
            valia += x;
        }
    }
    const bool triunfo = palo == PaloTriunfo;
    if (AcuseDisponible[palo]) {
        valia = Redondea(valia + nivel / 100.0 * (triunfo ? BONO_ACUSE_TRIUNFO : BONO_ACUSE));
    } else if (CantorDe(palo) == 0 && !FiguraJugada(palo) && CartasEnMazo > 0) {
        // The pair may still be completed from the stock.
        int x = Redondea(nivel / (triunfo ? 3.0 : 6.0) * resto / 28.0 + (valor - VALOR_CABALLO));
        x = Redondea(x * caracter / 1.8);
        valia += x;
    }
    return valia;
}

// T6 and T7: following, under the obligation.
int ValoraSiguiendo(int seat, int palo, int valor, int valia) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    if (nivel > NIVEL_TRES && AcuseDisponible[palo] && valor == VALOR_TRES && Tres(palo)) {
        int mayor = MayorFuera(palo, valor);
        if (UltimoEnJugar) mayor = 0;
        if (AsEnMesa(palo)) mayor = OrdenValor[VALOR_AS];
        valia += mayor != 0 ? TRES_CUBIERTO : -TRES_LIBRE;
    }
    if (!HayMayorOculta(palo, valor) && NumCartas[seat][SERIE] <= UmbralCorto && caracter > 1)
        valia += BONO_MAESTRA;
    return valia;
}

// T1: with two players, the rival's song is broken by leading what it must answer.
int ValoraContraAcuse(int seat, int palo, int valor, int valia) {
    if (NumJugadores != 2 || NumCartas[Rival][SERIE] < 3 || NivelJugador[seat] <= NIVEL_RIVAL ||
        !AcuseRival[palo])
        return valia;
    if (MayorFuera(palo, valor) == 0) return -valia - ACUSE_RIVAL;
    return -valia - 2 * OrdenValor[valor] - ACUSE_RIVAL_BAJA;
}

// T2: a blank card is led into the partner's ruff, and kept from an opponent's. Every seat's
// known void counts, the seat's own too (it may have drawn the suit again from the stock).
int ValoraFallos(int seat, int palo, int valor, int valia) {
    if (NivelJugador[seat] <= NIVEL_FALLOS || PuntosDe(valor) != 0 || palo == PaloTriunfo)
        return valia;
    int suma = 0;
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO && SinPalo[s][palo] && !SinPalo[s][PaloTriunfo])
            suma += EsCompanero(seat, s) ? 1 : -1;
    return valia - suma * FALLO_PALO;
}

// T3: low cards of a suit where an opponent may hold the song go early.
int ValoraSalidaTemprana(int seat, int palo, int valor, int valia) {
    if (PuntosDe(valor) > 2 || CuentaPalo(seat, palo) <= 1 || CantorDe(palo) != 0 ||
        FiguraJugada(palo) || MapaMano[palo][VALOR_CABALLO] || MapaMano[palo][VALOR_REY])
        return valia;
    if (JuegaEnParejas()) {
        const int companero = CompaneroDe[seat];
        if (TieneCarta(companero, palo, VALOR_CABALLO) && TieneCarta(companero, palo, VALOR_REY))
            return valia;
    }
    return Redondea(-valia - NivelJugador[seat] / 100.0 * SALIDA_TEMPRANA);
}

// T4: master cards are held for the end of the hand; a long trump suit leads its low trumps.
int ValoraMaestra(int seat, int palo, int valor, int valia) {
    const int caracter = CaracterJugador[seat];
    if (NivelJugador[seat] <= NIVEL_MAESTRAS) return valia;
    const bool corta = NumCartas[seat][SERIE] <= UmbralCorto;
    const bool triunfo = palo == PaloTriunfo;
    const int mayor = MayorFuera(palo, valor);
    if (mayor == 0) {
        if (triunfo || !TriunfoFuera) {
            ++Maestras;
            if (corta && caracter > 1) valia += BONO_MAESTRA;
        }
    } else {
        const int largo = CuentaPalo(seat, palo);
        if (PuntosDe(valor) <= 4 && triunfo && mayor >= 6 && largo >= 2 && corta && caracter >= 2)
            valia -= largo * TRIUNFO_LARGO;
    }
    return valia;
}

int ValoraCartaTute(int seat, int pos, bool sale) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    const int palo = PaloEn(seat, pos), valor = ValorEn(seat, pos);
    ValorEnCurso = valor;
    int valia = ValoraCarta(palo, valor);
    if (palo == PaloTriunfo) valia += caracter * TRIUNFO_EXTRA;
    valia += (CartasPorJugador - CuentaPalo(seat, palo)) *
             (ObligacionActiva ? PALO_CORTO_OBLIGADO : PALO_CORTO);
    if (valor == VALOR_CABALLO || valor == VALOR_REY)
        valia = ValoraFigura(seat, palo, valor, valia);
    // Paso 5: the As of a singing suit goes, so that it does not have to cover the pair later.
    if (nivel > NIVEL_AS_ACUSE && valor == VALOR_AS && AcuseDisponible[palo]) {
        const bool salida = sale && NumCartas[seat][SERIE] == 3 && caracter == 3;
        const bool siguiendo = !sale && Tres(palo) && caracter != 1;
        if (salida || siguiendo) valia -= AS_DE_ACUSE;
    }
    if (!ObligacionActiva) return valia;
    if (!sale) return ValoraSiguiendo(seat, palo, valor, valia);
    valia = ValoraContraAcuse(seat, palo, valor, valia);
    valia = ValoraFallos(seat, palo, valor, valia);
    valia = ValoraSalidaTemprana(seat, palo, valor, valia);
    return ValoraMaestra(seat, palo, valor, valia);
}

bool CumpleClase(int clase, int i) {
    const int c = ClaseDeCarta(PaloEntrada(i), ValorEntrada(i));
    return clase == 2 ? c <= 2 : c == clase;
}

// The legal cards of the obligation go first, each part kept in key order. Returns the line of
// the obligation that gave the cards, 0 when the seat is free.
int PonLegalesDelante(int seat, bool sale) {
    const int h = NumCartas[seat][SERIE];
    NumCandidatas = h;
    if (sale || !ObligacionActiva || PaloSalida == 0) return 0;
    int clase = 0;
    for (int linea = 1; linea <= 3 && clase == 0; ++linea)
        for (int i = 1; i <= h; ++i)
            if (CumpleClase(linea, i)) {
                clase = linea;
                break;
            }
    if (clase == 0) return 0;
    if (clase == 3 && PermitirContrafallar) {
        // Whoever can't overtrump may throw off any card instead.
        bool supera = false;
        for (int i = 1; i <= h; ++i)
            if (CumpleClase(3, i) && OrdenValor[ValorEntrada(i)] > TriunfoMesa) supera = true;
        if (!supera) return 3;
    }
    bool legal[MAX_CANDIDATAS + 1] = {};
    int copia[MAX_CANDIDATAS + 1][2] = {};
    for (int i = 1; i <= h; ++i) {
        legal[i] = CumpleClase(clase, i);
        copia[i][0] = Candidatas[i][CAND_CLAVE];
        copia[i][1] = Candidatas[i][CAND_POSICION];
    }
    int fila = 0;
    for (int vuelta = 1; vuelta <= 2; ++vuelta)
        for (int i = 1; i <= h; ++i) {
            if (legal[i] != (vuelta == 1)) continue;
            ++fila;
            Candidatas[fila][CAND_CLAVE] = copia[i][0];
            Candidatas[fila][CAND_POSICION] = copia[i][1];
            if (legal[i]) NumCandidatas = fila;
        }
    return clase;
}

// Not last to play: a Tute in the hand plays round its figures, and a hand of masters runs them.
int ReglasNoUltimo(int seat, int p) {
    const int h = NumCartas[seat][SERIE];
    if (h > 4 && TuteEnMano != 0) p = h - 4;
    if (NivelJugador[seat] > NIVEL_VA_MAESTRAS && Maestras > 1 && h - Maestras <= 1)
        p = h - Maestras + 1;
    return p;
}

// Last to play and bound: the rules of the level by the line that gave the legal cards.
int ReglasUltimoObligado(int seat, int clase, int p) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    if (clase == 1) {
        if (nivel < NIVEL_NOVATO) {
            p = NumCandidatas;
        } else if (nivel < NIVEL_TIMIDO && caracter == 1 &&
                   Candidatas[1][CAND_CLAVE] > DESPLAZA_CLAVE) {
            const int q = MayorEntradaQueGana();
            if (q != 0) p = q;
        }
    } else if (clase == 2) {
        if (nivel < NIVEL_TIMIDO) p = NumCandidatas;
    } else if (clase == 3 && nivel > NIVEL_CUENTA_TRIUNFOS) {
        // A trump that an unseen one would take later had better win this trick now.
        const int arriba = NumCandidatas;
        if (HallaTriunfoAlto(seat) > OrdenValor[ValorEntrada(arriba)] &&
            FuerzaEntrada(arriba) > MejorMesa)
            p = NumCandidatas;
    }
    return p;
}

// Whether a winning entry is spent: a Tute figure or a song figure is kept for its song.
bool GanaConEntrada(int seat, int i) {
    const int nivel = NivelJugador[seat];
    const int valor = ValorEntrada(i);
    if (TuteEnMano != 0) return nivel < NIVEL_TUTE_SUELTO || valor != TuteEnMano;
    if (HayAcuse) {
        const bool figura = valor == VALOR_CABALLO || valor == VALOR_REY;
        return !(nivel >= NIVEL_GUARDA_ACUSE && figura && AcuseDisponible[PaloEntrada(i)]);
    }
    return CompensaGanar(PuntosEntrada(i), nivel, CaracterJugador[seat]);
}

bool GuardaTriunfo(int seat, int p) {
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    if (!TriunfoEntrada(p)) return true;
    const int t = PuntosEntrada(p);
    const int umbral = Redondea(Ent(AzarJugada * 3) + 2 * caracter);
    if (TantosMesa + t + TantosCompanero < umbral) return false;
    if (nivel > NIVEL_GUARDA_AS && TantosMesa == 0 && t >= 10) return false;
    if (nivel > NIVEL_CUENTA_TRIUNFOS && TantosMesa < t + TantosCompanero && caracter > 1)
        return false;
    return true;
}

// Last to play with free cards: from the cheapest up, the first winner the seat will spend;
// then a trump is not spent on a trick that does not pay for it.
int ReglasUltimoLibre(int seat, int p) {
    int barato = 0;
    for (int i = 1; i <= NumCandidatas; ++i) {
        if (FuerzaEntrada(i) < MejorMesa) {
            if (barato == 0 && PuntosEntrada(i) == 0) barato = i;
        } else if (GanaConEntrada(seat, i)) {
            p = i;
            break;
        }
    }
    if (HayAcuse || TuteEnMano != 0 || GuardaTriunfo(seat, p)) return p;
    return NivelJugador[seat] > NIVEL_BARATO && barato != 0 ? barato : 1;
}

void EligeTute(int seat) {
    const int nivel = NivelJugador[seat];
    const int h = NumCartas[seat][SERIE];
    const bool sale = SaleDeBaza();
    SondeaTute(seat, sale);
    int claves[MAX_CANDIDATAS + 1] = {};
    for (int pos = 1; pos <= h; ++pos)
        claves[pos] = ValoraCartaTute(seat, pos, sale) + DESPLAZA_CLAVE;
    OrdenaCandidatas(claves, h);
    const int clase = PonLegalesDelante(seat, sale);

    int p = 1;
    if (NumCandidatas >= 2) {
        if (!UltimoEnJugar)
            p = ReglasNoUltimo(seat, p);
        else if (ObligacionActiva)
            p = ReglasUltimoObligado(seat, clase, p);
        else
            p = ReglasUltimoLibre(seat, p);
        // The Tute's own rule counts the whole hand; the pick stays among the legal cards.
        if (p > NumCandidatas) p = NumCandidatas;
    }
    CartaSimulada = 0;
    if (SimulacionValida && !HayAcuse && TuteEnMano == 0) ConsultaSimulacion();
    p = AplicaError(p, nivel);
    CartaElegida = Candidatas[p][CAND_POSICION];
    if (CartaSimulada != 0) CartaElegida = CartaSimulada;
}

} // namespace

void EligeCartaTute() {
    const int seat = JugadorActual;
    const int nivelPropio = NivelJugador[seat];
    if (TutorEnCurso) NivelJugador[seat] = NIVEL_TUTOR;
    EligeTute(seat);
    NivelJugador[seat] = nivelPropio;
}
