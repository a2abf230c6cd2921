// A legal card is worth laying when the seat's own cards it opens lie far out in the row, so the
// seat keeps the way to them, and when it opens little for the others. The choice reads only the
// seat's hand and the layout.
#include "games/cinquillo/EligeCinquillo.h"

#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/cinquillo/ReglasCinquillo.h"

#include <cstdlib>

namespace {

constexpr int SERIE = 1;

// Levels that open the rules.
constexpr int NIVEL_PROPIAS = 60;   // from here the seat leaves out of its own count the cards
                                    // it can lay itself next
constexpr int NIVEL_AJENAS = 75;    // from here it sees which sides its own cards keep shut
constexpr int NIVEL_SIN_ERROR = 90; // from here the seat never slips

// The score: the own cards' distance weighs a hundredfold; the others' distance is taken from
// the largest average it can have (that of a 5 opening its whole row), so less opened is more.
constexpr int PESO_PROPIAS = 100;
constexpr int DISTANCIA_AJENAS_MAXIMA = 28;
constexpr int CARACTER_AGRESIVO = 3;
constexpr double DESCUENTO_AGRESIVO = 0.8; // an aggressive seat cares less what it opens

bool Tiene(int seat, int palo, int valor) {
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        if (CartasJugador[seat][SERIE][p][CAMPO_PALO] == palo &&
            CartasJugador[seat][SERIE][p][CAMPO_VALOR] == valor)
            return true;
    return false;
}

// The values of the row beyond the card, away from the 5; for a 5, all the others.
bool EnElLadoExterior(int valor, int otro) {
    if (otro == valor || !ValorEnJuego[otro]) return false;
    if (valor == VALOR_CINCO) return true;
    return valor < VALOR_CINCO ? otro < valor : otro > valor;
}

int Puntua(int seat, int palo, int valor, int nivel, int caracter) {
    const int cv = Compacto(valor), fuera = VecinoExterior(valor);
    int propias = 0, numPropias = 0, ajenas = 0, numAjenas = 0;
    for (int w = 1; w <= 12; ++w) {
        if (!EnElLadoExterior(valor, w)) continue;
        const int distancia = std::abs(cv - Compacto(w));
        if (Tiene(seat, palo, w)) {
            // The cards the seat can lay next, itself, don't need keeping open.
            bool cuenta = !(valor == VALOR_CINCO && (w == 4 || w == 6)) && w != fuera;
            if (nivel < NIVEL_PROPIAS) cuenta = true;
            if (cuenta) {
                propias += distancia;
                ++numPropias;
            }
        } else {
            // A side shut by a card of the seat opens nothing for the others.
            bool cuenta = true;
            if (valor != VALOR_CINCO && fuera != 0 && Tiene(seat, palo, fuera)) cuenta = false;
            if (valor == VALOR_CINCO && ((Tiene(seat, palo, 6) && w > VALOR_CINCO) ||
                                         (Tiene(seat, palo, 4) && w < VALOR_CINCO)))
                cuenta = false;
            if (nivel < NIVEL_AJENAS) cuenta = true;
            if (cuenta) {
                ajenas += distancia;
                ++numAjenas;
            }
        }
    }
    const int distPropias = numPropias ? Redondea(propias * 10.0 / numPropias) : 0;
    int distAjenas = numAjenas ? Redondea(ajenas * 10.0 / numAjenas) : 0;
    if (caracter == CARACTER_AGRESIVO) distAjenas = Redondea(distAjenas * DESCUENTO_AGRESIVO);
    return distPropias * PESO_PROPIAS + (DISTANCIA_AJENAS_MAXIMA - distAjenas);
}

} // namespace

void EligeCinquillo() {
    const int seat = JugadorActual;
    const int nivel = NivelJugador[seat], caracter = CaracterJugador[seat];
    Lis_Ordenar.Limpia();
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        const int palo = CartasJugador[seat][SERIE][p][CAMPO_PALO];
        const int valor = CartasJugador[seat][SERIE][p][CAMPO_VALOR];
        if (!CartaJugableCinquillo(palo, valor)) continue;
        Lis_Ordenar.Agrega(Formato(Puntua(seat, palo, valor, nivel, caracter), "0000"), p);
    }
    NumCandidatas = Lis_Ordenar.Cuenta();
    for (int i = 1; i <= 26; ++i) {
        const bool lleno = i <= NumCandidatas;
        Candidatas[i][CAND_CLAVE] =
            lleno ? static_cast<int>(Val(Lis_Ordenar.TextoUltimo(i - 1))) : 0;
        Candidatas[i][CAND_POSICION] = lleno ? Lis_Ordenar.DatoUltimo(i - 1) : 0;
    }
    if (NumCandidatas == 0) return;
    int p = 1;
    if (nivel < NIVEL_SIN_ERROR && Ent(AzarJugada * 100 + 1) > nivel)
        p = Ent(AzarJugada * NumCandidatas + 1);
    CartaElegida = Candidatas[p][CAND_POSICION];
}
