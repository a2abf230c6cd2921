// The match of Tute and Brisca: hand after hand until a seat (or a pair) has won the hands the
// match asks for. Each trick goes round the seats from its leader; the person's card comes
// through the wait, everybody else's from the computer player.
#include "games/tutebrisca/Partida.h"

#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Eleccion.h"
#include "games/tutebrisca/Reglas.h"
#include "games/tutebrisca/Simulacion.h"
#include "platform/Bomba.h"
#include "table/Dibujo.h"
#include "table/Mesa.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

namespace {

constexpr int SERIE = 1;
constexpr int CURSOR_RELOJ = 11;

bool EsTute() {
    return JuegoActual == JUEGO_TUTE;
}

void Elige() {
    if (EsTute())
        EligeCartaTute();
    else
        EligeCartaBrisca();
}

// Besides the stock and the hands, a card of Tute and Brisca lies turned up under the stock, on
// the table in the trick under way, or among the tricks already taken.
void CuentaCartasTB(CuentaCartas& cuenta) {
    const bool conMazo = JuegoActual == JUEGO_BRISCA || NumJugadores == 2;
    if (conMazo && MuestraTriunfo && PaloTriunfo != 0) cuenta.Anade(PaloTriunfo, ValorTriunfo);
    for (int b = 1; b <= NumeroBaza; ++b) {
        const bool anotada = GanadorDeBaza[b] != 0;
        for (int s = 1; s <= 4; ++s) {
            if (anotada)
                cuenta.Anade(HistoriaBazas[b][s][HB_PALO], HistoriaBazas[b][s][HB_VALOR]);
            else if (b == NumeroBaza)
                cuenta.Anade(CartaEnMesa[s][1], CartaEnMesa[s][2]);
        }
    }
}

// The tutor shows the card the computer player would lay for the person.
const bool Registrado = [] {
    CartasAparte[JUEGO_TUTE] = CartasAparte[JUEGO_BRISCA] = CuentaCartasTB;
    RutinaTutor[JUEGO_TUTE] = [] {
        EligeCartaTute();
        return ConsejoTutor{};
    };
    RutinaTutor[JUEGO_BRISCA] = [] {
        EligeCartaBrisca();
        return ConsejoTutor{};
    };
    // A hand put in another order moves the positions of the legal cards.
    RutinaCandidatas[JUEGO_TUTE] = EligeCartaTute;
    RutinaCandidatas[JUEGO_BRISCA] = EligeCartaBrisca;
    return true;
}();

// What the information pane tells the person at the turn: the exchange when it is open, else
// the tutor or the rules, by the turn's chance.
int TextoDelTurno() {
    if (CodigoJugada == 7) return 27;
    if (CodigoJugada == 2 || CodigoJugada == 4) return 28;
    const double limite = EsTute() ? 0.5 : 0.4;
    return AzarJugada < limite ? 17 : 15;
}

// The search of the end lays out the rest of the hand before the trick; it can take a moment.
void PreparaSimulacion() {
    SimulacionValida = false;
    if (!ProcedeSimulacion()) return;
    const int antes = CursorActual;
    PonCursor(CURSOR_RELOJ);
    SimulacionValida = true;
    SimulaFinal();
    PonCursor(antes);
}

// The card at the position is shown, leaves the hand and flies to the seat's place in the trick.
void JuegaCarta(int seat, int pos) {
    auto& carta = CartasJugador[seat][SERIE][pos];
    const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
    carta[CAMPO_CARA] = CARA_VISIBLE;
    if (FotogramaVisible()) {
        DibujaJugador(seat);
        RefrescaMesa();
        Pausa(500);
    }
    PosicionCarta(seat, pos, NumCartas[seat][SERIE]);
    const int x = CartaX, y = CartaY;
    PonCartaEnBaza(seat, pos);
    DibujaJugador(seat);
    MueveCarta(palo, valor, x, y, OrientacionSeat[seat], CARA_VISIBLE, CartaCentroX[seat],
               CartaCentroY[seat], 1, CARA_VISIBLE);
}

// The person's turn: the wait ends with a card, with the big button (the computer plays for
// the person), or with a click on the stock to exchange the trump, after which it goes on.
void EsperaCartaPersona() {
    for (;;) {
        PideCambio = false;
        PersonaJugando = true;
        EsperaJugada();
        if (!PartidaViva) return;
        if (!PideCambio) return;
        PideCambio = false;
        if (CodigoJugada != 0) CambiaPinta();
        // The exchange is done: the pane no longer offers it.
        MuestraInformacion(TextoDelTurno());
        PersonaJugando = true;
    }
}

// One seat's turn of the trick. Returns false when the match was left meanwhile.
bool TurnoDeSeat() {
    // Paso 1. The seat is shown on turn and draws its chance.
    BombeaEventos();
    ++CartasEnBaza;
    Pausa(400);
    SenalaJugador();
    AzarJugada = Rnd();
    HallaCodigoCambio(JugadorActual);
    // Paso 2. The exchange of the trump, and the pane's text for the person.
    const bool manual = ControlJugador[JugadorActual] == CONTROL_MANUAL;
    PersonaJugando = manual;
    // A computer seat never lets the exchange go.
    if (!manual && CodigoJugada != 0) CambiaPinta();
    if (manual) MuestraInformacion(TextoDelTurno());
    // Paso 3. The choice: the computer's, or the person's wait for a card.
    Elige();
    JugadaHecha = false;
    if (manual)
        EsperaCartaPersona();
    else
        EsperaJugada();
    if (!PartidaViva) return false;
    if (!JugadaHecha) Elige();
    // Paso 4. The card goes to the trick.
    PersonaJugando = false;
    JuegaCarta(JugadorActual, CartaElegida);
    CompruebaMesa();
    return true;
}

// A trick from JugadorSalida round the seats. Returns false when the match was left.
bool JuegaBaza() {
    EmpiezaBaza();
    PreparaSimulacion();
    while (CartasEnBaza < NumJugadores) {
        SiguienteJugador(JugadorActual);
        if (!PartidaViva) return false;
        if (NumCartas[JugadorActual][SERIE] == 0) {
            // A seat without cards can't play: the trick is over with those that could.
            if (JugadorActual == JugadorSalida) break;
            continue;
        }
        if (!TurnoDeSeat()) return false;
    }
    return PartidaViva;
}

// What follows a trick: who takes it, the tally, the songs of Tute and the draw.
void CierraBaza() {
    CodigoJugada = 0;
    OcultaContinuar();
    ResuelveBaza();
    // The winning card blinks; the trick is wiped right after, so automatic play, where
    // nobody watches, leaves the blink out.
    if (FotogramaVisible()) ParpadeaGanadorBaza();
    AnotaBaza();
    BorraBaza();
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO) DibujaBazas(s);
    RefrescaMesa();
    if (EsTute()) CantaAcuses();
    if (TuteCantado) return;
    RobanCartas();
    CompruebaMesa();
    JugadorSalida = GanadorBaza;
    JugadorActual = GanadorBaza;
    AnteriorJugador(JugadorActual);
}

// One hand, from the deal to its end. Returns false when the match was left.
bool JuegaMano() {
    // Paso 1. The deal and the trump turned up.
    NuevaMano();
    if (!PartidaViva) return false;
    TuteCantado = false;
    JugadorCante = 0;
    DescubreTriunfo();
    if (!PartidaViva) return false;
    CompruebaMesa();
    // Paso 2. The leader opens the hand's record and the first trick.
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorMano];
    FaseJuego = 4;
    JugadorSalida = JugadorMano;
    JugadorActual = JugadorMano;
    AnteriorJugador(JugadorActual);
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO) DibujaBazas(s);
    // Paso 3. Four Reyes, or four Caballos, dealt to one seat: the hand is over before a card
    // is played.
    if (EsTute()) {
        if (const int seat = HallaTuteRepartido()) {
            GanadorBaza = seat;
            CantaTute(seat);
        }
    }
    // Paso 4. Trick after trick until the cards or a Tute end the hand.
    while (!TuteCantado) {
        if (!JuegaBaza()) return false;
        CierraBaza();
        if (!PartidaViva) return false;
        if (NumCartas[GanadorBaza][SERIE] == 0) break;
    }
    // Paso 5. The tally, the message and the record of the hand.
    FinalManoTB();
    return PartidaViva;
}

void JuegaPartidaTB() {
    while (PartidaViva) {
        if (!JuegaMano()) return;
        if (JuegosGanados[GanadorMano] >= LimitePartida) {
            GanadorPartida = GanadorMano;
            FinPartida();
            return;
        }
    }
}

} // namespace

void JuegaTute() {
    (void)Registrado;
    JuegaPartidaTB();
}

void JuegaBrisca() {
    (void)Registrado;
    JuegaPartidaTB();
}
