// A betting round of the Póker: the seats speak in turn from the leader until the highest stake
// has gone round the table unanswered, or nobody stakes at all. Every stake is placed chip by
// chip on the board; the person's comes from the chips and the panel, the others' from the
// computer player.
#include "betting/Apostadora.h"
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Jugador.h"
#include "games/poker/MesaPoker.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Sugerencia.h"

#include <QStringList>
#include <algorithm>

namespace {

constexpr int SERIE = 1;
constexpr int PAUSA_TURNO = 900; // a computer seat thinks so long when nobody steps the game

// The most a seat can add to its stake now without passing a limit of the board: its money, the
// hand's limit, and what the richest rival still in the hand could match.
int CabeEnLimites(int seat) {
    const int acumulada = ApuestaAcumulada(seat, SERIE);
    int mayorResto = 0;
    for (int otro = 1; otro <= 4; ++otro)
        if (otro != seat && NumCartas[otro][SERIE] > 0)
            mayorResto = std::max(mayorResto, ApuestaAcumulada(otro, SERIE) + RestoJugador(otro));
    return std::max(
        0, std::min({RestoJugador(seat), ApuestaMaxima - acumulada, mayorResto - acumulada}));
}

// A seat that keeps its stake below the highest with money left can't stay: what it lacks is
// called, or, if the limits of the board don't let it, the seat folds.
int AseguraIgualada(int seat, int anunciada) {
    if (anunciada < 0) return anunciada;
    auto falta = [seat] { return ApuestaMaxRonda - Apuesta[seat][SERIE][FaseJuego]; };
    if (falta() <= 0 || RestoJugador(seat) == 0) return anunciada;
    const int cabe = CabeEnLimites(seat);
    if (cabe < std::min(falta(), RestoJugador(seat))) return -1;
    ApuestaConFichas(seat, std::min(falta(), RestoJugador(seat)));
    if (falta() > 0 && RestoJugador(seat) > 0) return -1;
    return std::max(Apuesta[seat][SERIE][FaseJuego], 1);
}

QString Cifra(int valor) {
    return valor == 1 ? QStringLiteral("una") : Formato(valor, "##0");
}

// One of n texts, by the turn's chance of words.
const QString& UnaDe(const QStringList& textos) {
    return textos[std::min(Ent(AzarFrase * textos.size()), int(textos.size()) - 1)];
}

// What a seat says as it stakes; maximo is the highest stake before its own.
QString FraseApuesta(int seat, int maximo) {
    const int apostado = Apuesta[seat][SERIE][FaseJuego];
    const QString a = Cifra(apostado);
    if (RestoJugador(seat) == 0) return "Voy con mi resto : " + a;
    if (maximo == 0) return UnaDe({"Voy con " + a, "Apuesto " + a, "Abro con " + a});
    if (apostado <= maximo) {
        if (AzarJugada < 0.35 && FaseJuego == FASE_POKER_APUESTA2 &&
            TurnosDesdeSubida == JugadoresMano)
            return AzarJugada < 0.15 ? "Voy" : "Las veo";
        return UnaDe({"Igualo a " + a, "Igualo a " + a, "Voy con " + a, "Voy a " + a,
                      "También voy con " + a, "Voy también con " + a, "Igualo", "Voy", "Voy",
                      "Voy también"});
    }
    const QString b = Cifra(apostado - maximo);
    return UnaDe({"Subo a " + a, "Subo a " + a, "Que sean " + a, "Yo subo a " + a,
                  "Voy a subir a " + a, b + " más", b + " más", "Apuesto " + b + " más",
                  "Que sean " + b + " más", b == "una" ? QStringLiteral("Otra") : "Otras " + b,
                  "Meto " + b + " más", b + " más"});
}

// The text of the information pane at the person's betting turn.
int TextoDeApuesta() {
    const bool primeraRonda = FaseJuego == FASE_POKER_APUESTA1;
    if (ApuestaMaxRonda > 0 && AzarJugada < 0.3) return 2;
    if (ApuestaMaxRonda == 0 && AzarJugada < 0.2) {
        if (primeraRonda) return AzarJugada < 0.15 ? 1 : 3;
        return AzarJugada < 0.15 ? 7 : 4;
    }
    if (AzarJugada < 0.4) return 5;
    if (AzarJugada < 0.6) return 16;
    if (AzarJugada < 0.75) return 15;
    return 6;
}

// One seat's turn of the round. Returns false when the match was left.
bool TurnoApuesta() {
    const int seat = JugadorActual;
    const bool manual = ControlJugador[seat] == CONTROL_MANUAL;
    // Paso 5. The seat is marked and its computer player answers, also for the person, so that
    // the tutor and the automatic button have the answer ready.
    FraseJugador[seat][SERIE].clear();
    SenalaJugador();
    for (int& f : HistorialFichas[seat][SERIE]) f = 0;
    NumHistorial[seat][SERIE] = 0;
    ApuestaPersona = ApuestaOrdenador = 0;
    AzarJugada = Rnd();
    DecideDescartes();
    DecideApuesta();
    if (manual) {
        DibujaApostadora();
        MuestraInformacion(TextoDeApuesta());
    }
    // Paso 6. The wait for the person, or the computer's moment.
    PersonaJugando = manual;
    EsperaJugada();
    if (!PartidaViva) return false;
    if (!manual && !ContinuarManual) Pausa(PAUSA_TURNO);
    // Paso 7. The person's stake, or the computer's, placed now.
    if (JugadaHecha) {
        ApuestaAnunciada = ApuestaPersona;
    } else {
        if (ApuestaPersona > 0) AnulaApostado(seat);
        DecideApuesta();
        // The computer's stake stays within the board's limits: no refusal is shown for it.
        if (ApuestaOrdenador > 0) {
            ApuestaOrdenador = std::min(ApuestaOrdenador, CabeEnLimites(seat));
            // Short of the call and not all in: the seat can't stay.
            if (Apuesta[seat][SERIE][FaseJuego] + ApuestaOrdenador < ApuestaMaxRonda &&
                ApuestaOrdenador < RestoJugador(seat))
                ApuestaOrdenador = -1;
        }
        ApuestaAnunciada = ApuestaOrdenador;
        ApuestaConFichas(seat, ApuestaOrdenador);
    }
    if (ApuestaAnunciada == 0 && Apuesta[seat][SERIE][FaseJuego] < ApuestaMaxRonda)
        ApuestaAnunciada = -1; // nobody passes with a stake to call: that is folding
    ApuestaAnunciada = AseguraIgualada(seat, ApuestaAnunciada);
    OcultaApostadora();
    // Paso 8. What the seat says, and its cards if it folds.
    if (ApuestaAnunciada > 0) {
        DiceFrase(seat, FraseApuesta(seat, ApuestaMaxRonda));
    } else if (ApuestaAnunciada == 0) {
        DiceFrase(seat, AzarJugada < 0.5 ? "Me reservo" : "Paso");
    } else {
        FraseJugador[seat][SERIE].clear();
        TiraCartas(seat);
    }
    // Paso 9. A higher stake is the new one to answer.
    if (ApuestaAnunciada >= 0 && Apuesta[seat][SERIE][FaseJuego] > ApuestaMaxRonda) {
        ApuestaMaxRonda = Apuesta[seat][SERIE][FaseJuego];
        JugadorMaxApuesta = seat;
        TurnosDesdeSubida = 1;
    }
    // Paso 10.
    Pausa(150);
    if (JugadorApertura == 0 && PuedeAbrirRonda()) JugadorApertura = seat;
    CompruebaMesa();
    return true;
}

int SeatsConCartas() {
    int n = 0;
    for (int s = 1; s <= 4; ++s)
        if (NumCartas[s][SERIE] > 0) ++n;
    return n;
}

// Nobody in the hand can add a chip: each seat has staked the hand's limit or has no money.
bool TodosAlLimite() {
    for (int s = 1; s <= 4; ++s)
        if (NumCartas[s][SERIE] > 0 && ApuestaAcumulada(s, SERIE) < ApuestaMaxima &&
            RestoJugador(s) > 0)
            return false;
    return true;
}

} // namespace

bool RondaApuestas() {
    // Paso 1. Nobody has staked; the first step lands on the leader.
    JugadorMaxApuesta = 0;
    ApuestaMaxRonda = 0;
    FichasActivas = true;
    JugadorApertura = 0;
    TurnosDesdeSubida = 0;
    ManoSinApuestas = false;
    JugadorActual = JugadorMano;
    AnteriorJugador(JugadorActual);
    CuentaJugadoresMano();
    // When every seat has staked the hand's limit already there is nothing to bet: the hand
    // goes on as it stands.
    const bool sinRonda = TodosAlLimite() || JugadoresMano < 2;
    while (!sinRonda) {
        // Paso 2. The next seat that holds cards.
        SiguienteJugador(JugadorActual);
        if (NumCartas[JugadorActual][SERIE] == 0) continue;
        ++TurnosDesdeSubida;
        AzarFrase = Rnd();
        // Paso 3. The stake has gone round, or nobody staked, or nobody can answer any more.
        if (JugadorActual == JugadorMaxApuesta) break;
        if (JugadorMaxApuesta == 0 && TurnosDesdeSubida > JugadoresMano) break;
        if (SoloQuedanSinResto() && RestoJugador(JugadorMaxApuesta) > 0) break;
        // Paso 4. A seat without money keeps its cards and says nothing.
        if (RestoJugador(JugadorActual) == 0) continue;
        if (!TurnoApuesta()) return false;
        if (SeatsConCartas() < 2) break; // the others folded: the stake stands alone
    }
    OcultaApostadora();
    FichasActivas = false;
    if (!sinRonda && ApuestaMaxRonda == 0 && !SoloQuedanSinResto()) {
        Pausa(750);
        Mensaje("Fin de la mano",
                "Como ningún jugador ha apostado sobre su juego, se va a comenzar otra mano con "
                "un nuevo reparto de cartas.",
                3, 1, 3160);
        Pausa(200);
        ManoSinApuestas = true;
    }
    return PartidaViva;
}
