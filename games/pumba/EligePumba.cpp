// Each legal card gets a score from a few pieces: what its value does to the next seats, how well
// the suit that will stand suits the seat that must answer it, how many cards of its value the
// seat keeps, and how many of its suit it has to follow with. The level gates the memory of the
// word "Pumba", two rules and the final slip; the character weighs the pieces.
#include "games/pumba/EligePumba.h"

#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/pumba/ReglasPumba.h"

#include <algorithm>

namespace {

constexpr int SERIE = 1;
constexpr int CARTAS_PALO = 10, CARTAS_VALOR = 4; // of each suit and each value in the deck

// Levels.
constexpr int NIVEL_SIN_ERROR = 90; // from here the seat never slips
constexpr int NIVEL_AS_FINAL = 80;  // above it, at two cards, an As with company goes first
// Memory of the word: a seat remembers its own at its level less OLVIDO_PROPIO, and watches
// another's at its level less OLVIDO_AJENO, in percent.
constexpr int OLVIDO_PROPIO = 5, OLVIDO_AJENO = 25;
constexpr int SIN_MEMORIA = -99;

// Characters.
constexpr int CONSERVADOR = 1, AGRESIVO = 3;

// Pieces of the score.
constexpr int PESO_VALOR_BAJO = 4; // a low card or a Rey: value x (4 - character), spent early
constexpr int AS_COMPANIA = 20;    // an As the seat follows itself, plus its cards of the suit
constexpr int AS_FINAL = 200;      // ... and at two cards it wins the hand
constexpr int AS_SOLO = -20;       // an As alone gives the turn away for nothing
constexpr int SIETE_CAMBIO = 20;   // the reversal hands the answer to the weaker seat
constexpr int CABALLO_SALTO = 20;  // the skip hands the answer to the weaker seat
constexpr int DOS_DOS_JUGADORES = 20, DOS_AGRESIVO = 40; // the other seat draws, alone at it
constexpr int DOS_RESPUESTA = 30;         // the next seat is likelier to pay than the one after
constexpr int DOS_CORTO = 30;             // the next seat holds fewer cards than the one after
constexpr double SOTA_CONSERVADOR = 0.5;  // a cautious seat counts a Sota's suit at half
constexpr int PESO_CAMBIO_AGRESIVO = 100; // per card the next seat holds of the suit left
constexpr double PESO_VICTIMA = -0.5;     // the share of the answering hand in the suit
constexpr double PESO_VALOR = 0.5;        // the share of the value still out that the seat holds
constexpr int PESO_SEGUIDAS = 10;         // each card of the suit to follow with
constexpr int BASE_CLAVE = 200;           // keeps the keys of the sorted list positive

const int& Carta(int seat, int pos, int campo) {
    return CartasJugador[seat][SERIE][pos][campo];
}

int Siguiente(int seat) {
    SiguienteJugador(seat);
    return seat;
}

int Anterior(int seat) {
    AnteriorJugador(seat);
    return seat;
}

void CuentaRestantes(int seat) {
    for (int p = 1; p <= 4; ++p) RestantesPalo[p] = CARTAS_PALO;
    for (int v = 0; v <= 13; ++v) RestantesValor[v] = CARTAS_VALOR;
    for (int p = 1; p <= 4; ++p)
        for (int v = 1; v <= 12; ++v)
            if (CartaVista[p][v] != 0) {
                --RestantesPalo[p];
                --RestantesValor[v];
            }
    for (int p = 1; p <= 4; ++p) AsConCompania[p] = false;
    for (int pos = 1; pos <= NumCartas[seat][SERIE]; ++pos)
        if (Carta(seat, pos, CAMPO_VALOR) == VALOR_AS) {
            const int palo = Carta(seat, pos, CAMPO_PALO);
            AsConCompania[palo] = CuentaPaloPumba(seat, palo) > 1;
        }
}

// Who takes care of the word: among the seats whose memory holds at this turn's chance, the
// computer seat that remembers best, the first in seat order on ties. A seat remembers its own
// word better than another's. The person's own memory shields nobody: it only lets the program
// say the word for the person when it plays for them.
void EligeAtento(int seat) {
    Atento = 0;
    int mejor = SIN_MEMORIA;
    for (int x = 1; x <= 4; ++x) {
        if (NumCartas[x][SERIE] == 0) continue;
        const int memoria = NivelJugador[x] - (x == seat ? OLVIDO_PROPIO : OLVIDO_AJENO);
        if (AzarJugada * 100 >= memoria) continue;
        const bool ordenador = ControlJugador[x] != CONTROL_MANUAL;
        if (x == seat && (ordenador || mejor == SIN_MEMORIA)) Atento = x;
        if (ordenador && memoria > mejor) {
            mejor = memoria;
            Atento = x;
        }
    }
}

// The seat's cards of each suit, less those of the next seats, each seat counting half the one
// before it.
void MideFuerzaPalos(int seat) {
    MejorPalo = 0;
    MejorFuerza = -999;
    for (int palo = 1; palo <= 4; ++palo) {
        FuerzaPalo[palo] = 0;
        double peso = 1;
        int x = seat;
        for (int k = 0; k < std::max(JugadoresMano, 1); ++k) {
            const int parte = Redondea(CuentaPaloPumba(x, palo) * 100 * peso);
            FuerzaPalo[palo] += x == seat ? parte : -parte;
            peso /= 2;
            x = Siguiente(x);
            if (x == seat) break;
        }
        if (RestantesPalo[palo] > 1 && FuerzaPalo[palo] > MejorFuerza) {
            MejorPalo = palo;
            MejorFuerza = FuerzaPalo[palo];
        }
    }
    // With no suit worth naming, a Sota keeps the suit on the table.
    PaloElegidoSota = MejorPalo != 0 ? MejorPalo : (PaloTriunfo != 0 ? PaloTriunfo : 1);
}

int Puntua(int seat, int pos) {
    const int palo = Carta(seat, pos, CAMPO_PALO), valor = Carta(seat, pos, CAMPO_VALOR);
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    const int sig = Siguiente(seat), sig2 = Siguiente(sig), ant = Anterior(seat);
    const bool dos = JugadoresMano <= 2;
    int victima = sig;
    int puntos = 0;
    switch (valor) {
    case 3:
    case 4:
    case 5:
    case 6:
    case 12:
        puntos += valor * (PESO_VALOR_BAJO - caracter);
        break;
    case VALOR_AS:
        if (AsConCompania[palo]) {
            const bool final = NumCartas[seat][SERIE] == 2 && nivel > NIVEL_AS_FINAL;
            puntos += final ? AS_FINAL : CuentaPaloPumba(seat, palo) + AS_COMPANIA;
            victima = seat;
        } else {
            puntos += AS_SOLO;
        }
        break;
    case VALOR_SIETE:
        if (!dos) {
            ProbarJugables(palo, valor);
            if (Jugables[sig] > Jugables[ant]) puntos += SIETE_CAMBIO;
        }
        victima = ant;
        break;
    case VALOR_CABALLO:
        if (dos) {
            puntos += nivel;
            victima = seat;
        } else {
            ProbarJugables(palo, valor);
            if (Jugables[sig2] < Jugables[sig]) puntos += CABALLO_SALTO;
            victima = sig2;
        }
        break;
    case VALOR_DOS:
        if (dos) {
            puntos += caracter == AGRESIVO ? DOS_AGRESIVO : DOS_DOS_JUGADORES;
            victima = seat;
        } else {
            ProbarJugables(palo, valor);
            if (Jugables[sig2] < Jugables[sig]) puntos += DOS_RESPUESTA;
            if (NumCartas[sig][SERIE] < NumCartas[sig2][SERIE]) puntos += DOS_CORTO;
            victima = sig2;
        }
        break;
    case VALOR_SOTA:
        puntos += Redondea(MejorFuerza * (caracter == CONSERVADOR ? SOTA_CONSERVADOR : 1.0));
        if (caracter == AGRESIVO && PaloElegidoSota != PaloTriunfo)
            puntos += CuentaPaloPumba(sig, PaloTriunfo) * PESO_CAMBIO_AGRESIVO;
        break;
    default:
        break;
    }
    // The suit that will stand, against the hand that must answer it.
    const int paloQueda = valor == VALOR_SOTA ? PaloElegidoSota : palo;
    if (NumCartas[victima][SERIE] > 0)
        puntos += Redondea(PESO_VICTIMA * DivEntera(CuentaPaloPumba(victima, paloQueda) * 100,
                                                    NumCartas[victima][SERIE]));
    // Cards of the same value to come, and the seat's own to follow with in the suit.
    const int mismas = CuentaValor(seat, valor);
    int porValor =
        Redondea(PESO_VALOR * DivEntera(mismas * 100, std::max(RestantesValor[valor], 1)));
    if (mismas == 1) porValor = Redondea(porValor / 2.0);
    puntos += porValor;
    int seguidas = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        const int v = Carta(seat, p, CAMPO_VALOR);
        if (p != pos && Carta(seat, p, CAMPO_PALO) == palo && v != VALOR_DOS && v != VALOR_SOTA)
            ++seguidas;
    }
    puntos += (seguidas - 1) * PESO_SEGUIDAS;
    return puntos;
}

} // namespace

void ProbarJugables(int palo, int valor) {
    for (int x = 1; x <= 4; ++x) {
        const int n = NumCartas[x][SERIE];
        int cuenta = 0;
        for (int p = 1; p <= n; ++p) {
            const int s = Carta(x, p, CAMPO_PALO), v = Carta(x, p, CAMPO_VALOR);
            if (valor == VALOR_DOS)
                cuenta += v == VALOR_DOS;
            else
                cuenta += v == VALOR_DOS || v == VALOR_SOTA || v == valor || s == palo;
        }
        Jugables[x] = n > 0 ? cuenta * 100.0f / n : 0.0f;
    }
}

void EligePumba() {
    const int seat = JugadorActual;
    // Preparation: what is still out, who watches the word, which suit is worth naming.
    CuentaRestantes(seat);
    EligeAtento(seat);
    MideFuerzaPalos(seat);
    // The legal cards, scored, best first.
    Lis_Ordenar.Limpia();
    for (int pos = 1; pos <= NumCartas[seat][SERIE]; ++pos) {
        if (!EsLegalPumba(Carta(seat, pos, CAMPO_PALO), Carta(seat, pos, CAMPO_VALOR))) continue;
        const int clave = std::clamp(Puntua(seat, pos) + BASE_CLAVE, 0, 9999);
        Lis_Ordenar.Agrega(Formato(clave, "0000"), pos);
    }
    NumCandidatas = std::min(Lis_Ordenar.Cuenta(), 26);
    for (int i = 1; i <= 26; ++i) {
        const bool lleno = i <= NumCandidatas;
        Candidatas[i][CAND_CLAVE] =
            lleno ? static_cast<int>(Val(Lis_Ordenar.TextoUltimo(i - 1))) - BASE_CLAVE : 0;
        Candidatas[i][CAND_POSICION] = lleno ? Lis_Ordenar.DatoUltimo(i - 1) : 0;
    }
    if (NumCandidatas == 0) return;
    // Below the top levels the seat may slip to any card of the list.
    const int nivel = NivelJugador[seat];
    int p = 1;
    if (nivel < NIVEL_SIN_ERROR && Ent(AzarJugada * 100 + 1) > nivel)
        p = Ent(AzarJugada * NumCandidatas + 1);
    CartaElegida = Candidatas[p][CAND_POSICION];
}
