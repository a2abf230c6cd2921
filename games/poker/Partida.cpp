// The match of Póker: each hand takes the entry stakes and deals, has a betting round, the draw
// and a second round, and ends at the showdown, or earlier when one seat is left or nobody
// stakes. The match ends when a single seat holds money.
#include "games/poker/Partida.h"

#include "betting/Apostadora.h"
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Jugador.h"
#include "games/poker/MesaPoker.h"
#include "table/Dibujo.h"

namespace {

constexpr int SERIE = 1;

// What the table knows of each seat's hand starts blank at each deal.
void PreparaMano() {
    for (int s = 0; s <= 4; ++s) {
        // A pot dealt again keeps the stakes of the rounds before: they count as entry now, so
        // that each round of this deal starts from nothing staked.
        Apuesta[s][SERIE][FASE_POKER_ENTRADA] +=
            Apuesta[s][SERIE][FASE_POKER_APUESTA1] + Apuesta[s][SERIE][FASE_POKER_APUESTA2];
        Apuesta[s][SERIE][FASE_POKER_APUESTA1] = Apuesta[s][SERIE][FASE_POKER_APUESTA2] = 0;
        Farol[s] = false;
        JugadaMinEstimada[s] = JugadaMaxEstimada[s] = 0;
        Ganancia[s] = 0;
    }
    JugadorApertura = 0;
    ManoSinApuestas = false;
    ApuestaMaxRonda = 0;
    JugadorMaxApuesta = 0;
}

bool AlgunoAlLimite() {
    for (int s = 1; s <= 4; ++s)
        if (NumCartas[s][SERIE] > 0 && ApuestaAcumulada(s, SERIE) >= ApuestaMaxima) return true;
    return false;
}

// After the draw the rest of the stock joins the pile: both are cleared and drawn as one.
void RecogeMazo() {
    BorraZona(MazoX - 16, MazoY - 16, ANCHO_CARTA + 32, ALTO_CARTA + 32);
    BorraZona(PozoX, PozoY - 16, ANCHO_CARTA + 16, ALTO_CARTA + 16);
    for (int i = 0; i < CartasEnMazo && CartasEnPozo < 54; ++i) {
        ++CartasEnPozo;
        Pozo[CartasEnPozo][CAMPO_PALO] = Baraja[PosicionMazo + i][CAMPO_PALO];
        Pozo[CartasEnPozo][CAMPO_VALOR] = Baraja[PosicionMazo + i][CAMPO_VALOR];
    }
    PosicionMazo += CartasEnMazo;
    CartasEnMazo = 0;
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    RefrescaMesa();
}

// A seat is still in the match with money, or with its stake in a pot that is dealt again.
bool SigueEnPartida(int seat) {
    if (EstadoJugador[seat] != ESTADO_ACTIVADO) return false;
    return RestoJugador(seat) > 0 || (ValorBote() > 0 && ApuestaAcumulada(seat, SERIE) > 0);
}

// One hand, from the entry stakes to the pay-out. Returns false when the match was left.
bool JuegaManoPoker() {
    // Paso 1. Entry stakes and the deal.
    EmpiezaManoApuestas();
    if (!PartidaViva) return false;
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorMano];
    PreparaMano();
    CompruebaMesa();

    // Paso 2. The first round.
    FaseJuego = FASE_POKER_APUESTA1;
    if (!RondaApuestas()) return false;
    if (ManoSinApuestas) return true;

    // Paso 3. A seat left alone shows its cards only when it had to open with a pair.
    bool ensenaCartas = true;
    if (CuentaJugadoresMano() == 1) {
        ensenaCartas = LeyApertura != LEY_NO_SE_APLICA;
    } else {
        // Paso 4. The draw.
        if (!FaseDescartes()) return false;
        // Paso 5. The second round, unless a seat has already staked the hand's limit.
        Pausa(600);
        RecogeMazo();
        if (!AlgunoAlLimite()) {
            FaseJuego = FASE_POKER_APUESTA2;
            for (int s = 1; s <= 4; ++s)
                if (NumCartas[s][SERIE] > 0) DibujaPilas(s);
            if (!RondaApuestas()) return false;
            if (ManoSinApuestas) return true;
            if (CuentaJugadoresMano() == 1)
                ensenaCartas = false;
            else
                Pausa(550);
        }
    }
    // Paso 6. The cards turn face up.
    if (ensenaCartas) {
        LimpiaFrases();
        MuestraMano(0, SERIE);
    }
    // Pasos 7 y 8. The showdown, the result and the pot.
    FinalManoPoker();
    CompruebaMesa();
    return PartidaViva;
}

// The seats still in the match; the last of them is noted as its winner, should it be alone.
int SeatsConPartida() {
    int cuenta = 0;
    for (int s = 1; s <= 4; ++s)
        if (SigueEnPartida(s)) {
            ++cuenta;
            GanadorPartida = s;
        }
    return cuenta;
}

} // namespace

void LimpiaFrases() {
    for (int s = 1; s <= 4; ++s) {
        if (FraseJugador[s][SERIE].isEmpty()) continue;
        FraseJugador[s][SERIE].clear();
        DibujaJugador(s);
    }
    RefrescaMesa();
}

int CuentaJugadoresMano() {
    JugadoresMano = 0;
    for (int s = 1; s <= 4; ++s)
        if (NumCartas[s][SERIE] != 0) ++JugadoresMano;
    return JugadoresMano;
}

QString ConMayuscula(const QString& texto) {
    if (texto.startsWith('u')) return 'U' + texto.mid(1);
    return texto;
}

void DiceFrase(int seat, const QString& texto) {
    FraseJugador[seat][SERIE] = ConMayuscula(texto);
    ColorFrase[seat][SERIE] = COLOR_FRASE_POKER;
    ParpadeoFrase[seat][SERIE] = 0;
    DibujaJugador(seat);
    RefrescaMesa();
}

void TiraCartas(int seat) {
    const int n = NumCartas[seat][SERIE];
    for (int p = 1; p <= n; ++p) {
        auto& carta = CartasJugador[seat][SERIE][p];
        PosicionCarta(seat, p, n);
        const int x = CartaX, y = CartaY;
        if (CartasEnPozo < 54) {
            ++CartasEnPozo;
            Pozo[CartasEnPozo][CAMPO_PALO] = carta[CAMPO_PALO];
            Pozo[CartasEnPozo][CAMPO_VALOR] = carta[CAMPO_VALOR];
        }
        const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
        for (int f = 1; f <= 5; ++f) carta[f] = 0;
        NumCartas[seat][SERIE] = n - p;
        DibujaJugador(seat);
        MueveCarta(palo, valor, x, y, OrientacionSeat[seat], CARA_OCULTA, PozoX, PozoY, 1,
                   CARA_OCULTA);
        DibujaMazo(PozoX, PozoY, CartasEnPozo);
    }
    NumCartas[seat][SERIE] = 0;
    DibujaJugador(seat);
    RefrescaMesa();
}

bool OrdenaManoPoker(int seat) {
    auto& mano = CartasJugador[seat][SERIE];
    if (NumCartas[seat][SERIE] != 5) return false;
    for (int p = 1; p <= 5; ++p)
        if (mano[p][CAMPO_PALO] == 0) return false;
    EvaluaJugada(seat);
    OrdenaCartasJugada(seat, JugadaJugador[seat]);
    // Each card of the sorted play takes its whole slot with it: face, state and mark.
    int copia[6][6] = {};
    bool usada[6] = {};
    for (int i = 1; i <= 5; ++i) {
        for (int p = 1; p <= 5; ++p) {
            if (usada[p] || mano[p][CAMPO_PALO] != CartasOrdenadas[i][1] ||
                mano[p][CAMPO_VALOR] != CartasOrdenadas[i][2])
                continue;
            usada[p] = true;
            for (int f = 0; f <= 5; ++f) copia[i][f] = mano[p][f];
            break;
        }
        if (copia[i][CAMPO_PALO] == 0) return false; // not the seat's cards: leave them be
    }
    for (int i = 1; i <= 5; ++i)
        for (int f = 0; f <= 5; ++f) mano[i][f] = copia[i][f];
    DibujaJugador(seat);
    return true;
}

void JuegaPoker() {
    // The money on the table as the match starts, or is taken up again: it must stay whole.
    AnotaDineroPartida();
    while (PartidaViva) {
        if (!JuegaManoPoker()) return;
        // Paso 9. The match goes on while two seats have something to play with.
        const int quedan = SeatsConPartida();
        if (quedan < 2) {
            if (quedan == 0)
                FinPartidaFondos();
            else
                FinPartida();
            return;
        }
    }
}
