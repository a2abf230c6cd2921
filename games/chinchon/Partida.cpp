// The match of Chinchón: hand after hand, each a round of turns (take a card from the stock or
// the pile, throw one, maybe close) until a seat closes or the stock runs out a second time; then
// the laying off and the score. The person's choices come through the waits; every other seat's
// from the computer player.
#include "games/chinchon/Partida.h"

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/GblChinchon.h"
#include "frame/OrdenaMano.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Eleccion.h"
#include "games/chinchon/Motor.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Pulsadores.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

namespace {

constexpr int SERIE = 1;

// Entries of the information pane on the person's turns.
constexpr int INFO_TUTOR = 17, INFO_COMBINAR = 45, INFO_TOMA = 46, INFO_DESCARTE = 47,
              INFO_CIERRE = 48;

bool EsPersona(int seat) {
    return ControlJugador[seat] == CONTROL_MANUAL;
}

// The tutor shows what the computer player would do in the person's place.
ConsejoTutor ConsejoDelTurno() {
    EligeChinchon();
    ConsejoTutor consejo;
    switch (FaseJuego) {
    case FASE_CHINCHON_TOMA:
        consejo.Monton = OrigenOrdenador;
        break;
    case FASE_CHINCHON_DECIDE:
        consejo.Pulsador = OrdenadorCierra ? PULSADOR_CERRAR : PULSADOR_SEGUIR;
        break;
    case FASE_CHINCHON_CIERRE:
        for (int i = 1; i <= NumCombinables; ++i)
            if (const int p = PosicionDeId(JugadorActual, CartasCombinables[i]))
                consejo.Cartas.push_back(p);
        break;
    default:
        break;
    }
    return consejo;
}

const bool Registrado = [] {
    RutinaTutor[JUEGO_CHINCHON] = ConsejoDelTurno;
    return true;
}();

int InfoPorAzar(double limiteTutor, double limiteCombinar, int otra) {
    if (AzarJugada < limiteTutor) return INFO_TUTOR;
    if (AzarJugada < limiteCombinar) return INFO_COMBINAR;
    return otra;
}

// The top place of a pile of cuenta cards, where its face-up card lies.
void CimaDelPozo(int cuenta, int& x, int& y) {
    const int n = cuenta <= 0 ? 0 : (cuenta - 1) / (4 * std::max(NumBarajas, 1));
    x = PozoX + n;
    y = PozoY + 13 - n;
}

// Paso 8 of a turn: the card is shown, flies to the top of the pile, and the hand closes up.
void DescartaCarta(int seat, int pos) {
    auto& carta = CartasJugador[seat][SERIE][pos];
    const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
    carta[CAMPO_CARA] = CARA_VISIBLE;
    carta[CAMPO_ESTADO] = 2;
    DibujaJugador(seat);
    RefrescaMesa();
    Pausa(400);
    PosicionCarta(seat, pos, NumCartas[seat][SERIE]);
    const int x = CartaX, y = CartaY;
    for (int f = 1; f <= 5; ++f) carta[f] = 0;
    DibujaJugador(seat);
    int xPozo, yPozo;
    CimaDelPozo(CartasEnPozo + 1, xPozo, yPozo);
    MueveCarta(palo, valor, x, y, OrientacionSeat[seat], CARA_VISIBLE, xPozo, yPozo, 1,
               CARA_VISIBLE);
    ++CartasEnPozo;
    Pozo[CartasEnPozo][1] = palo;
    Pozo[CartasEnPozo][2] = valor;
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    RegistroDescartes[NumeroDescarte].Descartada = IdCarta(palo, valor);
    --NumCartas[seat][SERIE];
    CompactaMano(seat);
    if (CartasSiempreOrdenadas) OrdenaMano(seat);
    RefrescaMesa();
    Pausa(100);
}

// Pasos 3 a 5: the card of the turn, from the stock or from the pile.
bool TomaCarta(int seat) {
    const bool persona = EsPersona(seat);
    EligeChinchon();
    EligiendoRobo = persona;
    if (persona) MuestraInformacion(InfoPorAzar(0.1, 0.35, INFO_TOMA));
    EsperaJugada();
    EligiendoRobo = false;
    if (!PartidaViva) return false;
    if (!JugadaHecha) OrigenRobo = OrigenOrdenador;
    if (CartasEnMazo == 0) OrigenRobo = ROBO_POZO;
    if (CartasEnPozo == 0) OrigenRobo = ROBO_MAZO;
    RegistroDescartes[NumeroDescarte].Seat = seat;
    if (OrigenRobo == ROBO_MAZO) {
        RobaCartas(seat, 1, 0);
    } else {
        RegistroDescartes[NumeroDescarte].TomadaDelPozo =
            IdCarta(Pozo[CartasEnPozo][1], Pozo[CartasEnPozo][2]);
        TomaDelPozo(seat);
    }
    CompruebaMesa();
    return true;
}

// Pasos 7 y 8: the discard.
bool Descarta(int seat) {
    const bool persona = EsPersona(seat);
    FaseJuego = FASE_CHINCHON_DESCARTE;
    if (persona) MuestraInformacion(InfoPorAzar(0.1, 0.35, INFO_DESCARTE));
    EligeChinchon();
    PersonaJugando = persona;
    EsperaJugada();
    if (!PartidaViva) return false;
    // The person may have put the hand in another order: the choice is made again.
    if (!JugadaHecha) EligeChinchon();
    PersonaJugando = false;
    const int pos = CartaElegida >= 1 && CartaElegida <= NumCartas[seat][SERIE] ? CartaElegida : 1;
    DescartaCarta(seat, pos);
    CompruebaMesa();
    return true;
}

// The big button on the person's turn: the computer's choice is shown pressed.
void MuestraPulsado(int indice) {
    const bool tumbado = Pic_Pulsador[indice].Alto() > Pic_Pulsador[indice].Ancho();
    DibujaPulsador(indice, tumbado, true);
    RefrescaMesa();
    Pausa(300);
}

// Paso 9: whether the seat closes, when it may.
bool DecideCerrar(int seat) {
    FaseJuego = FASE_CHINCHON_DECIDE;
    FinMano = FIN_SIGUE;
    EligeChinchon();
    if (!PuedeCerrar) return true;
    const bool persona = EsPersona(seat);
    if (persona) {
        MuestraInformacion(AzarJugada < 0.3 ? INFO_COMBINAR : INFO_CIERRE);
        DibujaJugador(seat);
        RefrescaMesa();
    }
    PulsoCerrar = PulsoSeguir = false;
    EsperaJugada();
    if (!PartidaViva) return false;
    if (!PulsoCerrar && !PulsoSeguir) {
        Pausa(200);
        (OrdenadorCierra ? PulsoCerrar : PulsoSeguir) = true;
        if (persona) MuestraPulsado(PulsoCerrar ? PULSADOR_CERRAR : PULSADOR_SEGUIR);
    }
    if (PulsoCerrar) FinMano = FIN_CERRADA;
    PulsoCerrar = PulsoSeguir = false;
    Pic_Pulsador[PULSADOR_CERRAR].Visible = Pic_Pulsador[PULSADOR_SEGUIR].Visible = false;
    RefrescaMesa();
    return true;
}

// One turn of the seat JugadorActual. Returns false when the match was left meanwhile.
bool TurnoDeSeat() {
    const int seat = JugadorActual;
    // Paso 1. The turn opens its entry of the record.
    FaseJuego = FASE_CHINCHON_TOMA;
    BombeaEventos();
    if (!PartidaViva) return false;
    NuevaEntradaDescarte();
    AzarJugada = Rnd();
    SenalaJugador();
    Pausa(300);
    // Paso 2. An empty stock is made again from the pile.
    if (CartasEnMazo == 0) RebarajaPozo();
    // Pasos 3 a 5. The card of the turn.
    if (!TomaCarta(seat)) return false;
    // Paso 6.
    if (CartasSiempreOrdenadas) OrdenaMano(seat);
    Pausa(300);
    // Pasos 7 y 8. The discard.
    if (!Descarta(seat)) return false;
    // Paso 9. The close.
    if (!DecideCerrar(seat)) return false;
    // Paso 10. A stock that runs out a second time ends the hand, unless the seat has closed.
    if (FinMano == FIN_SIGUE && MazoRebarajado != 0 && CartasEnMazo == 0)
        FinMano = FIN_MAZO_AGOTADO;
    return true;
}

// One hand, from the deal to its score. Returns false when the match was left.
bool JuegaUnaMano() {
    // A hand sorted at the deal is weighed with nothing known of the last hand.
    VaciaRegistroDescartes();
    RecibeDesde = 0;
    NuevaMano();
    if (!PartidaViva) return false;
    CompruebaMesa();
    for (int& v : VecesSinCerrar) v = 0;
    RecibeDesde = ReceptorCartas = 0;
    FinMano = FIN_SIGUE;
    CierreChinchon = CIERRE_CON_PUNTOS;
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorMano];
    JugadorActual = JugadorMano;
    AnteriorJugador(JugadorActual);
    while (FinMano == FIN_SIGUE) {
        SiguienteJugador(JugadorActual);
        if (!TurnoDeSeat()) return false;
    }
    AnunciaCierre();
    if (!PartidaViva) return false;
    if (CierreChinchon != CIERRE_CHINCHON && !CombinaSobrantes()) return false;
    return FinalManoChinchon();
}

int SeatsBajoElLimite() {
    int seats = 0;
    for (int s = 1; s <= 4; ++s)
        seats += EstadoJugador[s] == ESTADO_ACTIVADO && TotalPuntos(s) < LimitePartida;
    return seats;
}

// The match is won by the seat left below the limit; if none is, by the lowest total.
int GanadorDeLaPartida() {
    if (CierreChinchon == CIERRE_CHINCHON) return GanadorMano;
    int ganador = 0;
    for (int s = 1; s <= 4; ++s) {
        if (EstadoJugador[s] != ESTADO_ACTIVADO) continue;
        if (TotalPuntos(s) < LimitePartida) return s;
        if (ganador == 0 || TotalPuntos(s) < TotalPuntos(ganador)) ganador = s;
    }
    if (ganador != 0 && GanadorMano != 0 && TotalPuntos(GanadorMano) == TotalPuntos(ganador))
        ganador = GanadorMano;
    return ganador;
}

} // namespace

void TomaDelPozo(int seat) {
    RobaDelPozo(seat);
}

void RebarajaPozo() {
    if (CartasEnPozo < 2) return; // nothing under the top card to shuffle back
    RotuloMesa("Barajando cartas descartadas");
    SuenaMesa(SONIDO_ASINCRONO, SONIDO_BARAJA);
    const int k = CartasEnPozo - 1;
    // Each card takes a random free place among the k places after the deck.
    for (int p = CartasBaraja + 1; p <= CartasBaraja + k; ++p) Baraja[p][1] = Baraja[p][2] = 0;
    for (int i = 1; i <= k; ++i) {
        int pos;
        do pos = CartasBaraja + Ent(Rnd() * k + 1);
        while (Baraja[pos][CAMPO_PALO] != 0);
        Baraja[pos][CAMPO_PALO] = Pozo[i][1];
        Baraja[pos][CAMPO_VALOR] = Pozo[i][2];
    }
    PosicionMazo = CartasBaraja + 1;
    CartasEnMazo = k;
    Pozo[1][1] = Pozo[CartasEnPozo][1];
    Pozo[1][2] = Pozo[CartasEnPozo][2];
    for (int i = 2; i <= CartasEnPozo; ++i) Pozo[i][1] = Pozo[i][2] = 0;
    CartasEnPozo = 1;
    MazoRebarajado = CartasEnMazo;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    RefrescaMesa();
    CompruebaMesa();
    Pausa(1800);
    BorraZona(CentroMesaX - 150, RotuloMesaY(), 301, 61);
    RefrescaMesa();
}

void JuegaChinchon() {
    (void)Registrado;
    while (PartidaViva) {
        if (!JuegaUnaMano()) return;
        if (CierreChinchon == CIERRE_CHINCHON || SeatsBajoElLimite() <= 1) {
            GanadorPartida = GanadorDeLaPartida();
            FinPartida();
            return;
        }
    }
}
