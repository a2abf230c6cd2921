// The computer player of the Chinchón: the draw, the discard, the close and the laying off, each
// the best hand that the combination engine finds among those the seat could reach.
#include "frame/Baraja.h"
#include "frame/GblChinchon.h"
#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Eleccion.h"
#include "games/chinchon/Motor.h"

#include <algorithm>
#include <climits>

namespace {

constexpr int SERIE = 1;
constexpr int NIVEL_TUTOR = 100;

// Loose points under which a hand may close.
constexpr int PUNTOS_PARA_CERRAR = 6;
// From this level the seat looks into the real hands of others: one more seat each 10 levels.
constexpr int NIVEL_MIRA_MANOS = 70, NIVEL_BASE_MANOS = 60;
// The pile's card is taken when it ranks, among all the cards that could come, in the upper
// share of each character: conservative 65 %, middle 50 %, aggressive 35 %.
constexpr double PARTE_POZO[4] = {0, 0.65, 0.5, 0.35};
// Below this level a discard may miss the best by a random place.
constexpr int NIVEL_SIN_ERROR = 90;

QString Siete(int valor) {
    return Formato(valor, "0000000");
}

bool EstaEnMano(int seat, int palo, int valor) {
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        if (CartasJugador[seat][SERIE][p][CAMPO_PALO] == palo &&
            CartasJugador[seat][SERIE][p][CAMPO_VALOR] == valor)
            return true;
    return false;
}

// Phase 1: every card that could come is tried in every place of the hand; the pile's card is
// taken when it betters the hand and ranks high among them.
void EligeRobo(int seat) {
    const int n = NumCartas[seat][SERIE];
    const int nivel = NivelJugador[seat];
    int joker = 0;
    for (int p = 1; p <= n; ++p)
        if (EsComodin(ManoEvaluada[p][1], ManoEvaluada[p][2])) joker = p;

    bool fuera[5][13] = {};
    for (int i = 1; i < CartasEnPozo; ++i) fuera[Pozo[i][1]][Pozo[i][2]] = true;
    // A strong seat counts out the cards it sees in the hands of others.
    const int seatsVistos = nivel >= NIVEL_MIRA_MANOS ? DivEntera(nivel - NIVEL_BASE_MANOS, 10) : 0;
    for (int s = 1, vistos = 0; s <= 4 && vistos < seatsVistos; ++s) {
        if (s == seat || NumCartas[s][SERIE] == 0) continue;
        ++vistos;
        for (int p = 1; p <= NumCartas[s][SERIE]; ++p) {
            const auto& c = CartasJugador[s][SERIE][p];
            if (c[CAMPO_PALO] >= 1 && c[CAMPO_PALO] <= 4)
                fuera[c[CAMPO_PALO]][c[CAMPO_VALOR]] = true;
        }
    }

    const int paloPozo = CartasEnPozo > 0 ? Pozo[CartasEnPozo][1] : 0;
    const int valorPozo = CartasEnPozo > 0 ? Pozo[CartasEnPozo][2] : 0;
    ValorPozo = 0;
    Lis_Ordenar.Limpia();
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor) {
            if (!ValorEnJuego[valor] || fuera[palo][valor] || EstaEnMano(seat, palo, valor))
                continue;
            int mejor = INT_MIN;
            for (int p = 1; p <= n; ++p) {
                if (p == joker) continue; // the joker never leaves the hand for a trial
                const int paloAntes = ManoEvaluada[p][1], valorAntes = ManoEvaluada[p][2];
                ManoEvaluada[p][1] = palo;
                ManoEvaluada[p][2] = valor;
                EvaluaMano(seat, n);
                mejor = std::max(mejor, Valoracion);
                ManoEvaluada[p][1] = paloAntes;
                ManoEvaluada[p][2] = valorAntes;
            }
            if (palo == paloPozo && valor == valorPozo) ValorPozo = mejor;
            Lis_Ordenar.Agrega(Siete(mejor));
        }

    // Puesto: the place of the pile's card counted from the best, equal values in its favour.
    const int total = Lis_Ordenar.Cuenta();
    int puesto = total;
    for (int j = total - 1; j >= 0; --j)
        if (Val(Lis_Ordenar.Texto(j)) <= ValorPozo) {
            puesto = total - j;
            break;
        }
    const int caracter = std::clamp(CaracterJugador[seat], 1, 3);
    OrigenOrdenador = ROBO_MAZO;
    if (ValorPozo > ValorActual && puesto < PARTE_POZO[caracter] * total)
        OrigenOrdenador = ROBO_POZO;
    if (CartasEnMazo == 0 && CartasEnPozo > 0) OrigenOrdenador = ROBO_POZO;
    if (CartasEnPozo == 0) OrigenOrdenador = ROBO_MAZO;
}

// Phase 2: each card is thrown in turn; the rest that weighs most gives the discard.
void EligeDescarte(int seat) {
    const int n = NumCartas[seat][SERIE];
    Lis_Ordenar.Limpia();
    for (int prueba = 1; prueba <= n; ++prueba) {
        CartaEnPrueba = prueba;
        int k = 0;
        for (int p = 1; p <= n; ++p) {
            if (p == prueba) continue;
            ++k;
            ManoEvaluada[k][1] = CartasJugador[seat][SERIE][p][CAMPO_PALO];
            ManoEvaluada[k][2] = CartasJugador[seat][SERIE][p][CAMPO_VALOR];
        }
        EvaluaMano(seat, k);
        Lis_Ordenar.Agrega(Siete(Valoracion), prueba);
    }
    CartaEnPrueba = 0;
    NumCandidatas = std::min(n, 26);
    for (int i = 1; i <= NumCandidatas; ++i) {
        Candidatas[i][CAND_CLAVE] = static_cast<int>(Val(Lis_Ordenar.TextoUltimo(i - 1)));
        Candidatas[i][CAND_POSICION] = Lis_Ordenar.DatoUltimo(i - 1);
    }
    int puesto = 1;
    const int nivel = NivelJugador[seat];
    // A weaker seat sometimes throws another card than the best, never the worst.
    if (nivel < NIVEL_SIN_ERROR && Ent(AzarJugada * 100 + 1) > nivel)
        puesto = Redondea(8 - Ent(AzarJugada * 7 + 1));
    puesto = std::clamp(puesto, 1, std::max(NumCandidatas, 1));
    CartaElegida = NumCandidatas > 0 ? Candidatas[puesto][CAND_POSICION] : 0;
}

// Phase 3: the close, and the count of the chances let go.
void EligeCierre(int seat) {
    DecideCierre(seat);
    if (PuedeCerrar && !OrdenadorCierra && !TutorEnCurso) ++VecesSinCerrar[seat];
}

// The ids of the cards of the seat that lie in no meld.
std::vector<int> CartasSueltas(int seat) {
    EvaluaManoDelSeat(seat);
    std::vector<int> sueltas;
    for (int i = CartasCombinadas() + 1; i <= NumCartasJugada; ++i) {
        int id = CartasJugada[i];
        if (PosicionComodin != 0 && id == ComodinVale) id = IdCarta(1, 1); // the joker itself
        sueltas.push_back(id);
    }
    return sueltas;
}

// Phase 4: a loose card can be laid off when the receiver's melds with it are all melds.
void EligeCombinables(int seat) {
    NumCombinables = 0;
    const int receptor = ReceptorCartas;
    if (receptor < 1 || receptor > 4 || receptor == seat) return;
    const std::vector<int> sueltas = CartasSueltas(seat);
    if (sueltas.empty()) return;

    EvaluaManoDelSeat(receptor);
    const int m = CartasCombinadas();
    if (m == 0) return;
    // The receiver's melded cards, as they lie in the hand (the joker as the As de Oros).
    int enJugada[MAX_MANO + 1][3] = {};
    int k = 0;
    for (int p = 1; p <= NumCartas[receptor][SERIE] && k < m; ++p) {
        const auto& c = CartasJugador[receptor][SERIE][p];
        const int puesto = PuestoEnJugada(c[CAMPO_PALO], c[CAMPO_VALOR]);
        if (puesto < 1 || puesto > m) continue;
        ++k;
        enJugada[k][1] = c[CAMPO_PALO];
        enJugada[k][2] = c[CAMPO_VALOR];
    }
    for (int id : sueltas) {
        for (int p = 1; p <= k; ++p) {
            ManoEvaluada[p][1] = enJugada[p][1];
            ManoEvaluada[p][2] = enJugada[p][2];
        }
        ManoEvaluada[k + 1][1] = (id - 1) / CartasPorPalo + 1;
        ManoEvaluada[k + 1][2] = id - (ManoEvaluada[k + 1][1] - 1) * CartasPorPalo;
        EvaluaMano(receptor, k + 1);
        if (CartasCombinadas() == k + 1) CartasCombinables[++NumCombinables] = id;
    }
}

} // namespace

int PosicionDeId(int seat, int id) {
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        const auto& c = CartasJugador[seat][SERIE][p];
        if (IdCarta(c[CAMPO_PALO], c[CAMPO_VALOR]) == id) return p;
    }
    return 0;
}

void EligeChinchon() {
    const int seat = JugadorActual;
    if (seat < 1 || seat > 4) return;
    const int nivel = NivelJugador[seat];
    if (TutorEnCurso) NivelJugador[seat] = NIVEL_TUTOR;
    CartaEnPrueba = 0;

    // The hand as it stands, and whether it may close: never in the first round of turns.
    const int n = CargaManoEvaluada(seat);
    const bool antes = PuedeCerrar;
    EvaluaMano(seat, n);
    PuedeCerrar = PuntosSobrantes < PUNTOS_PARA_CERRAR && NumeroDescarte > JugadoresMano;
    // The weights of a hand read PuedeCerrar: weigh this one again with the answer in force.
    if (PuedeCerrar != antes) EvaluaMano(seat, n);
    ValorActual = Valoracion;

    switch (FaseJuego) {
    case FASE_CHINCHON_TOMA:
        EligeRobo(seat);
        break;
    case FASE_CHINCHON_DESCARTE:
        EligeDescarte(seat);
        break;
    case FASE_CHINCHON_DECIDE:
        EligeCierre(seat);
        break;
    case FASE_CHINCHON_CIERRE:
        EligeCombinables(seat);
        break;
    default:
        break;
    }
    NivelJugador[seat] = nivel;
}
