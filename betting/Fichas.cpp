// Chips: the money of each seat and of the pot, stakes placed and taken back one chip at a time,
// and the limits every stake must respect, for the person and the computer seats alike.
#include "betting/Fichas.h"

#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Jugador.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <algorithm>

namespace {

// What all the denominations below d add up to, one chip of each: a stack keeps at least
// this much in small change.
constexpr int SumaMenores[7] = {0, 0, 1, 3, 8, 18, 38};
constexpr int MAX_HISTORIAL = 150;
// In Black Jack a stake is never compared with the bank's money: it may grow to this many
// times the hand's limit by doubling and insurance.
constexpr int VECES_LIMITE_BLACKJACK = 12;

bool EsPoker() {
    return JuegoActual == JUEGO_POKER;
}

bool ConBanca() {
    return JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA;
}

// Where the next chip of a stack lands, or where its top chip lies (cuenta = chips in it).
int CimaX(int slot, int d, int cuenta) {
    return PilaX[slot][d] + DesplazaMontonX(std::max(cuenta, 1));
}
int CimaY(int slot, int d, int cuenta) {
    return PilaY[slot][d] + DesplazaMontonY(slot, std::max(cuenta, 1));
}

// Step 1 of PonFicha: the most that another seat still in the hand can set against the stake.
void HallaMayorResto(int seat) {
    MayorResto = 0;
    DuenoMayorResto = 0;
    if (JuegoActual == JUEGO_SIETEYMEDIA) {
        MayorResto = RestoJugador(JugadorBanca);
        DuenoMayorResto = JugadorBanca;
        return;
    }
    if (JuegoActual == JUEGO_BLACKJACK) {
        MayorResto = VECES_LIMITE_BLACKJACK * ApuestaMaxima;
        return;
    }
    for (int otro = 1; otro <= 4; ++otro) {
        if (otro == seat || NumCartas[otro][1] == 0) continue;
        const int puede = ApuestaAcumulada(otro, SerieActual) + RestoJugador(otro);
        if (puede > MayorResto) {
            MayorResto = puede;
            DuenoMayorResto = otro;
        }
    }
}

// The first limit that a chip of this amount would pass, shown to the person; false if none.
bool LimiteSobrepasado(int seat, int cantidad) {
    HallaMayorResto(seat);
    const int acumulada = ApuestaAcumulada(seat, SerieActual);
    const bool limiteDeMano = JuegoActual != JUEGO_BLACKJACK || FaseJuego == FASE_BJ_APUESTA;
    if (limiteDeMano && acumulada + cantidad > ApuestaMaxima) {
        Mensaje("Límite sobrepasado",
                "No puede sobrepasar el límite  establecido  como máxima apuesta permitida en "
                "cada mano, que tiene seleccionado actualmente un valor de" +
                    FormatoTexto(ApuestaMaxima, "@@@@") +
                    ". Si desea modificar este límite, puede hacerlo en la pantalla de Normas de "
                    "Juego.",
                5, 1, 2150);
        return true;
    }
    if (EsPoker() && FaseJuego != FASE_POKER_ENTRADA) {
        if (Apuesta[seat][1][FaseJuego] + cantidad > ApuestaMaxRonda && SoloQuedanSinResto()) {
            Mensaje("No puede subir la apuesta",
                    "Todos los demás jugadores han ido con su resto, por lo tanto,  no puede "
                    "subir la apuesta,  sólo  puede igualar la máxima apuesta realizada.",
                    3, 1, 3160);
            return true;
        }
        if (acumulada + cantidad > MayorResto) {
            Mensaje("Límite sobrepasado",
                    "Su apuesta acumulada no puede ser  superior  al resto de " +
                        NombreJugador[DuenoMayorResto] + ", que es el mayor resto (" +
                        CifraEspanola(MayorResto) +
                        ") de entre los otros jugadores que están en juego.",
                    3, 1, 3160);
            return true;
        }
    }
    if (ConBanca() && acumulada + cantidad > MayorResto) {
        Mensaje("Límite sobrepasado",
                "Su apuesta en esta mano no puede ser superior al resto del jugador banca (" +
                    CifraEspanola(MayorResto) + ").",
                2, 1, 3180);
        return true;
    }
    return false;
}

void AnadeAlHistorial(int seat, int d) {
    int& n = NumHistorial[seat][SerieActual];
    if (n < MAX_HISTORIAL) HistorialFichas[seat][SerieActual][++n] = d;
}

// Gives the value of a chip to a seat's row and rebuilds it.
void AbonaFicha(int seat, int d) {
    RecomponeFichas(seat, RestoJugador(seat) + ValorFicha[d]);
}

// The chips still in front of the seats, where the stake stays there: money outside the rows.
int DineroDelante() {
    int total = 0;
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= 4; ++e)
            for (int k = 1; k <= NumHistorial[s][e]; ++k)
                total += ValorFicha[HistorialFichas[s][e][k]];
    return total;
}

// The stakes in front of a seat are money of the table that lies in no row of Fichas.
const bool Registrado = [] {
    DineroAparte[JUEGO_BLACKJACK] = DineroAparte[JUEGO_SIETEYMEDIA] = DineroDelante;
    return true;
}();

void RedibujaDelante(int seat) {
    BorraPila(seat + 10);
    const int n = NumHistorial[seat][SerieActual];
    if (n > 0) {
        DibujaFicha(PilaX[seat + 10][1], PilaY[seat + 10][1], HistorialFichas[seat][SerieActual][n],
                    OrientacionSeat[seat]);
        CifraApuesta(seat, QString::number(ApuestaAcumulada(seat, SerieActual)));
    }
}

} // namespace

int RestoJugador(int seat) {
    int resto = 0;
    for (int d = 1; d <= 6; ++d) resto += Fichas[seat][d] * ValorFicha[d];
    return resto;
}

int ValorBote() {
    return RestoJugador(0);
}

int ApuestaAcumulada(int seat, int serie) {
    return Apuesta[seat][serie][2] + Apuesta[seat][serie][3] + Apuesta[seat][serie][5];
}

void RecomponeFichas(int seat, int total) {
    for (int d = 0; d <= 6; ++d) Fichas[seat][d] = 0;
    int resto = total;
    for (int d = 6; d >= 1; --d) {
        Fichas[seat][d] = resto / ValorFicha[d];
        resto -= Fichas[seat][d] * ValorFicha[d];
        if (Fichas[seat][d] > 0 && resto < SumaMenores[d]) {
            --Fichas[seat][d];
            resto += ValorFicha[d];
        }
    }
}

void DesglosaFichas(int cantidad) {
    for (int d = 6; d >= 1; --d) {
        DesgloseFichas[d] = std::max(cantidad, 0) / ValorFicha[d];
        cantidad -= DesgloseFichas[d] * ValorFicha[d];
    }
    DesgloseFichas[0] = 0;
}

bool PonFicha(int seat, int d) {
    if (seat < 1 || seat > 4 || d < 1 || d > 6) return false;
    const int cantidad = ValorFicha[d];
    // Money a seat doesn't have can't be staked: the callers ask within it, this only guards.
    if (RestoJugador(seat) < cantidad) return false;
    if (LimiteSobrepasado(seat, cantidad)) return false;
    // Paso 6. The stake grows and the chip leaves the seat's row, which is rebuilt.
    Apuesta[seat][SerieActual][FaseJuego] += cantidad;
    ApuestaPersona += cantidad;
    const int x = CimaX(seat, d, Fichas[seat][d]), y = CimaY(seat, d, Fichas[seat][d]);
    --Fichas[seat][d];
    RecomponeFichas(seat, RestoJugador(seat));
    // Paso 7. The chip flies to the pile in front of the seat, or to the pot.
    DibujaPilas(seat);
    if (ApuestaDelante) {
        MueveFicha(d, x, y, PilaX[seat + 10][1], PilaY[seat + 10][1], seat, seat + 10);
        CifraApuesta(seat, QString::number(ApuestaAcumulada(seat, SerieActual)));
    } else {
        MueveFicha(d, x, y, CimaX(0, d, Fichas[0][d] + 1), CimaY(0, d, Fichas[0][d] + 1), seat, 0);
        ++Fichas[0][d];
        DibujaPilas(0);
    }
    // Paso 8. The chip is noted, so that the stake can be taken back.
    AnadeAlHistorial(seat, d);
    return true;
}

bool AdmiteApuesta(int seat, int cantidad) {
    if (seat < 1 || seat > 4 || RestoJugador(seat) < cantidad) return false;
    return !LimiteSobrepasado(seat, cantidad);
}

void ApuestaConFichas(int seat, int cantidad) {
    if (cantidad < 1) return;
    DesglosaFichas(cantidad);
    int desglose[7];
    std::copy(std::begin(DesgloseFichas), std::end(DesgloseFichas), desglose);
    for (int d = 6; d >= 1; --d)
        for (int k = 0; k < desglose[d]; ++k) {
            if (!PonFicha(seat, d)) {
                Pausa(90);
                return;
            }
            RefrescaMesa();
            Pausa(140);
        }
    Pausa(90);
}

void AnulaApostado(int seat) {
    if (seat < 1 || seat > 4) return;
    const int serie = SerieActual;
    for (int k = NumHistorial[seat][serie]; k >= 1; --k) {
        const int d = HistorialFichas[seat][serie][k];
        Apuesta[seat][serie][FaseJuego] -= ValorFicha[d];
        ApuestaPersona -= ValorFicha[d];
        AbonaFicha(seat, d);
        if (ApuestaDelante) {
            NumHistorial[seat][serie] = k - 1;
            RedibujaDelante(seat);
        } else {
            const int enBote = Fichas[0][d];
            --Fichas[0][d];
            DibujaPilas(0);
            MueveFicha(d, CimaX(0, d, enBote), CimaY(0, d, enBote), CimaX(seat, d, Fichas[seat][d]),
                       CimaY(seat, d, Fichas[seat][d]), 0, seat);
        }
        DibujaPilas(seat);
        RefrescaMesa();
        Pausa(90);
    }
    for (int& f : HistorialFichas[seat][serie]) f = 0;
    NumHistorial[seat][serie] = 0;
}

void RetiraApuesta(int seat, int destino, int modo) {
    const int serie = SerieActual;
    int* const historial = HistorialFichas[seat][serie];
    const int n = NumHistorial[seat][serie];
    const int seguro = Apuesta[seat][serie][5];
    int visto = 0;
    int quedan[MAX_HISTORIAL + 1] = {};
    int cuantasQuedan = 0;
    // The walk runs from the last chip: the insurance, staked last, is its head.
    bool tomadas[MAX_HISTORIAL + 1] = {};
    for (int k = n; k >= 1; --k) {
        if (modo == 2 && visto >= seguro) break; // the insurance is all taken
        tomadas[k] = modo != 3 || visto >= seguro;
        visto += ValorFicha[historial[k]];
    }
    for (int k = n; k >= 1; --k) {
        if (!tomadas[k]) continue;
        const int d = historial[k];
        AbonaFicha(destino, d);
        MueveFicha(d, PilaX[seat + 10][1], PilaY[seat + 10][1],
                   CimaX(destino, d, Fichas[destino][d]), CimaY(destino, d, Fichas[destino][d]),
                   seat + 10, destino);
        DibujaPilas(destino);
    }
    for (int k = 1; k <= n; ++k)
        if (!tomadas[k]) quedan[++cuantasQuedan] = historial[k];
    for (int k = 1; k <= MAX_HISTORIAL; ++k) historial[k] = quedan[k];
    NumHistorial[seat][serie] = cuantasQuedan;
    if (modo == 1) Apuesta[seat][serie][2] = Apuesta[seat][serie][3] = Apuesta[seat][serie][5] = 0;
    if (modo == 2) Apuesta[seat][serie][5] = 0;
    if (modo == 3) Apuesta[seat][serie][2] = Apuesta[seat][serie][3] = 0;
    RedibujaDelante(seat);
    RefrescaMesa();
}

void PagaDesdeBanca(int seat, int cantidad) {
    const int banca = JugadorBanca;
    DesglosaFichas(cantidad);
    int desglose[7];
    std::copy(std::begin(DesgloseFichas), std::end(DesgloseFichas), desglose);
    for (int d = 6; d >= 1; --d)
        for (int k = 0; k < desglose[d]; ++k) {
            const int x = CimaX(banca, d, Fichas[banca][d]), y = CimaY(banca, d, Fichas[banca][d]);
            AbonaFicha(seat, d);
            MueveFicha(d, x, y, CimaX(seat, d, Fichas[seat][d]), CimaY(seat, d, Fichas[seat][d]),
                       banca, seat);
            --Fichas[banca][d];
            RecomponeFichas(banca, RestoJugador(banca));
            DibujaPilas(banca);
            DibujaPilas(seat);
            RefrescaMesa();
            Pausa(70);
        }
}

void RepartoBote() {
    for (int d = 1; d <= 6; ++d) {
        if (Fichas[0][d] <= 0) continue;
        for (int s = 1; s <= 4; ++s) {
            if (Ganancia[s] <= 0) continue;
            const int x = CimaX(0, d, Fichas[0][d]), y = CimaY(0, d, Fichas[0][d]);
            MueveFicha(d, x, y, CimaX(s, d, Fichas[s][d] + 1), CimaY(s, d, Fichas[s][d] + 1), 0, s);
        }
        Fichas[0][d] = 0;
        DibujaPilas(0);
    }
    for (int s = 1; s <= 4; ++s) {
        if (Ganancia[s] <= 0) continue;
        RecomponeFichas(s, RestoJugador(s) + Ganancia[s]);
        DibujaPilas(s);
    }
    RefrescaMesa();
}

bool SoloQuedanSinResto() {
    for (int s = 1; s <= 4; ++s)
        if (s != JugadorActual && NumCartas[s][1] > 0 && RestoJugador(s) >= 1) return false;
    return true;
}
