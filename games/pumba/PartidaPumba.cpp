#include "games/pumba/PartidaPumba.h"

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/pumba/EligePumba.h"
#include "games/pumba/ReglasPumba.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Frases.h"
#include "table/Mensajes.h"
#include "table/Popup.h"
#include "table/Pulsadores.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

#include <algorithm>

namespace {

constexpr int SERIE = 1;
constexpr int MAX_JUGADAS = 40;            // rows of HistoriaBazas
constexpr int SEAT_SALIDA = 0;             // the first card turned up is row 0, seat 0
constexpr int VISTA_SALIDA = 9;            // CartaVista of the first card
constexpr unsigned COLOR_DICHO = 0xFFFFFF; // what a seat says shows in white
constexpr int CARTAS_EN_PILA = 3;          // the pile shows its last cards, each a little out
constexpr int DESVIO_PILA = 6;             // towards the seat that laid it
constexpr int VUELTAS_AVISO = 5, PAUSA_AVISO = 200; // the time the person has to catch a seat

// The information pane on the person's turn, by the turn's chance: the tutor's offer, then the
// word "Pumba" and the special cards.
constexpr struct {
    double Hasta;
    int Texto;
} TEXTOS_TURNO[] = {{0.1, 17}, {0.25, 40}, {0.4, 41}, {0.55, 42}, {0.7, 43}, {1.0, 44}};

bool EsPersona(int seat) {
    return ControlJugador[seat] == CONTROL_MANUAL;
}

// Besides the stock and the hands, a card of the Pumba lies on the pile.
void CuentaPila(CuentaCartas& cuenta) {
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor)
            if (CartaVista[palo][valor] != 0) cuenta.Anade(palo, valor);
}

const bool Registrado = [] {
    CartasAparte[JUEGO_PUMBA] = CuentaPila;
    // The tutor shows the card the computer player would lay for the person; who watches the
    // word and the suit for a Sota stay as the turn had them.
    RutinaTutor[JUEGO_PUMBA] = [] {
        const int atento = Atento, palo = PaloElegidoSota;
        EligePumba();
        Atento = atento;
        PaloElegidoSota = palo;
        return ConsejoTutor{};
    };
    RutinaCandidatas[JUEGO_PUMBA] = EligePumba;
    return true;
}();

// One turn of the event pump of the driver's own waits: the person's script in headless play.
void BombeaEspera() {
    SolicitaRepintado();
    if (PersonaGuionada)
        PersonaGuionada();
    else
        EsperaEventos();
}

void BombeaAhora() {
    SolicitaRepintado();
    if (PersonaGuionada)
        PersonaGuionada();
    else
        BombeaEventos();
}

// The seat's plate shows the text in white, and the seat says it.
void Di(int seat, const QString& texto) {
    FraseJugador[seat][SERIE] = texto;
    ColorFrase[seat][SERIE] = COLOR_DICHO;
    ParpadeoFrase[seat][SERIE] = 0;
    EscribeFrase(seat);
}

void BorraFrase(int seat) {
    FraseJugador[seat][SERIE].clear();
    EscribeFrase(seat, 2);
}

// The last person at the table other than the seat: the one who may catch it.
int UltimaPersonaSalvo(int seat) {
    int persona = 0;
    for (int s = 1; s <= 4; ++s)
        if (s != seat && EsPersona(s) && EstadoJugador[s] == ESTADO_ACTIVADO) persona = s;
    return persona;
}

int SeatDelBoton() {
    const int persona = UltimaPersonaSalvo(0);
    return persona != 0 ? persona : 4;
}

int TextoDelTurno() {
    for (const auto& t : TEXTOS_TURNO)
        if (AzarJugada < t.Hasta) return t.Texto;
    return TEXTOS_TURNO[5].Texto;
}

int DesvioX(int seat) {
    return seat == 1 ? -DESVIO_PILA : seat == 3 ? DESVIO_PILA : 0;
}

int DesvioY(int seat) {
    return seat == 2 ? -DESVIO_PILA : seat == 4 ? DESVIO_PILA : 0;
}

// Who laid the card of a row of the pile: seat 0 for the first card turned up.
int SeatDeJugada(int fila) {
    for (int s = 0; s <= 4; ++s)
        if (HistoriaBazas[fila][s][HB_PALO] != 0) return s;
    return -1;
}

// The pile beside the stock: its last cards, each a little out towards the seat that laid it.
void DibujaPilaPumba() {
    BorraZona(PozoX - DESVIO_PILA, PozoY - DESVIO_PILA, ANCHO_CARTA + 2 * DESVIO_PILA,
              ALTO_CARTA + 2 * DESVIO_PILA);
    for (int fila = std::max(0, NumeroBaza - CARTAS_EN_PILA + 1); fila <= NumeroBaza; ++fila) {
        const int s = SeatDeJugada(fila);
        if (s < 0) continue;
        DibujaCarta(Pic_Mesa.Imagen, PozoX + DesvioX(s), PozoY + DesvioY(s), 1,
                    HistoriaBazas[fila][s][HB_PALO], HistoriaBazas[fila][s][HB_VALOR],
                    CARA_VISIBLE);
    }
}

// Paso 11: the person has a moment to press "Pumba" on a seat left with one card.
void DaTiempoAlAviso(int seat) {
    for (int vuelta = 0; vuelta < VUELTAS_AVISO; ++vuelta) {
        if (!PartidaViva || NumCartas[seat][SERIE] != 1) return;
        BombeaAhora();
        Pausa(PAUSA_AVISO);
    }
}

// The suit a person names with a Sota, from the popup; none chosen, the computer's.
int EligePaloPersona() {
    // The release of the click that laid the card is taken first: the popup opens where the
    // card was, and that release would otherwise choose the line under it.
    BombeaAhora();
    for (auto& v : OpcionVisible) v = false;
    for (int entrada = 6; entrada <= 9; ++entrada)
        OpcionVisible[entrada] = OpcionHabilitada[entrada] = true;
    OpcionElegida = 0;
    EligiendoOpcion = true;
    MenuSeleccion();
    while (EligiendoOpcion && Pic_SelOpciones.Visible && PartidaViva) BombeaEspera();
    EligiendoOpcion = false;
    OcultaPopup();
    return OpcionElegida >= 1 && OpcionElegida <= 4 ? OpcionElegida : PaloElegidoSota;
}

// Pasos 1 a 4: Doses to pay, cards to draw. Returns false when the turn ends there.
bool RobaOPaga(int seat, FinTurno& fin) {
    // Paso 1. Doses unanswered: two cards for each, as far as the stock goes, and no play.
    if (DosesPendientes > 0 && NumCandidatas == 0) {
        const int n = std::min(DosesPendientes * 2, CartasEnMazo);
        RobaCartas(seat, n, 0);
        DosesPendientes = 0;
        SinValor[seat][VALOR_DOS] = true;
        if (n > 0) OlvidaFaltas(seat);
        CompruebaMesa();
        fin = FinTurno::Sigue;
        return false;
    }
    // Paso 2. With nothing to lay, the seat draws until it has a card or the stock is empty.
    int robadas = 0;
    while (NumCandidatas == 0 && CartasEnMazo > 0) {
        RobaCartas(seat, 1, 0);
        EligePumba();
        ++robadas;
    }
    if (robadas > 0) CompruebaMesa();
    // Paso 3. What the seat has shown it lacks.
    if (robadas > 0 || NumCandidatas == 0) {
        if (robadas > 1) OlvidaFaltas(seat);
        SinPalo[seat][PaloTriunfo] = true;
        SinValor[seat][ValorTriunfo] = SinValor[seat][VALOR_DOS] = SinValor[seat][VALOR_SOTA] =
            true;
    }
    // Paso 4. Still nothing: the seat passes.
    if (NumCandidatas == 0) {
        BorraFrase(seat);
        MarcaPaso(seat);
        fin = FinTurno::Pasa;
        return false;
    }
    return true;
}

// One hand, from the deal to its end. Returns false when the match was left.
bool JuegaManoPumba() {
    PasoSentidoPumba = PasoSentido;
    NuevaMano();
    if (!PartidaViva) return false;
    CompruebaMesa();
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorMano];
    JugadorActual = JugadorMano;
    AnteriorJugador(JugadorActual);
    // A lap of passes leaves the table as it was: nothing can be played any more.
    int pases = 0;
    for (;;) {
        const FinTurno fin = TurnoPumba();
        if (fin == FinTurno::Abandono) return false;
        if (fin == FinTurno::FinMano) break;
        pases = fin == FinTurno::Pasa ? pases + 1 : 0;
        if (pases >= JugadoresMano) break;
    }
    FinalManoPumba();
    return PartidaViva;
}

QString LineasPuntos() {
    Lis_Ordenar.Limpia();
    for (int s = 1; s <= 4; ++s)
        if (s != GanadorMano && JuegaMano[s])
            Lis_Ordenar.Agrega(Formato(PuntosManoPumba[s], "000"), s);
    QString texto;
    for (int i = 0; i < Lis_Ordenar.Cuenta(); ++i) {
        const int s = Lis_Ordenar.Dato(i), puntos = PuntosManoPumba[s];
        texto += NombreJugador[s] + " : " + Formato(puntos, "##0") +
                 (puntos == 1 ? " punto." : " puntos.") + SaltoLinea;
    }
    return texto;
}

void AnotaRegistro() {
    RegistroMano& registro = RegistroManos[NumeroMano];
    for (int s = 1; s <= 4; ++s) {
        registro.Gana[s][1] = s == GanadorMano ? 1 : 0;
        registro.Resultado[s] = QString::number(PuntosManoPumba[s]);
        registro.Detalle[s].clear();
        for (int p = 1; p <= NumCartas[s][SERIE]; ++p)
            registro.Detalle[s] += LetraValor(CartasJugador[s][SERIE][p][CAMPO_VALOR]) + " ";
    }
}

bool QuedaUnoEnPie() {
    int enPie = 0;
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO && TotalPuntos(s) < LimitePartida) ++enPie;
    return enPie <= 1;
}

} // namespace

void PreparaManoPumba() {
    EmpiezaManoPumba();
    NumeroBaza = 0;
    // The next card of the stock is turned up on the pile; its value has no effect.
    if (CartasEnMazo > 0) {
        PaloTriunfo = Baraja[PosicionMazo][CAMPO_PALO];
        ValorTriunfo = Baraja[PosicionMazo][CAMPO_VALOR];
        ++PosicionMazo;
        --CartasEnMazo;
        DibujaMazo(MazoX, MazoY, CartasEnMazo);
        MueveCarta(PaloTriunfo, ValorTriunfo, MazoX, MazoY, 1, CARA_OCULTA, PozoX, PozoY, 1,
                   CARA_VISIBLE);
        HistoriaBazas[0][SEAT_SALIDA][HB_PALO] = PaloTriunfo;
        HistoriaBazas[0][SEAT_SALIDA][HB_VALOR] = ValorTriunfo;
        CartaVista[PaloTriunfo][ValorTriunfo] = VISTA_SALIDA;
        DibujaPilaPumba();
    }
    ColocaPulsador(SeatDelBoton(), PULSADOR_PUMBA);
    RefrescaMesa();
}

void CantaPumba() {
    const int seat = JugadorActual;
    const int cartas = NumCartas[seat][SERIE];
    if (cartas == 2 && (EsPersona(seat) || (Atento == seat && !PumbaDicho))) {
        PumbaDicho = true;
        Di(seat, "Pumba");
        Pausa(250);
        BorraFrase(seat);
    }
    if (cartas == 1) {
        const int cazador = PumbaCazado ? Atento : UltimaPersonaSalvo(seat);
        if (cazador == 0 || CartasEnMazo == 0) return;
        static const char* const Toma[3] = {"Toma ", "Roba ", "Coge "};
        Di(cazador, QString("Pumba. ") + Toma[Ent(AzarJugada * 3)] + " 2");
        RobaCartas(seat, CARTAS_CASTIGO, 0);
    }
}

void PulsaBotonPumba() {
    if (!ManoViva || JuegoActual != JUEGO_PUMBA) return;
    const bool suTurno = EsPersona(JugadorActual) && FaseJuego == FASE_PUMBA_ROBA;
    const bool sinDecir = FaseJuego == FASE_PUMBA_RESPUESTA && !PumbaDicho;
    if (suTurno || sinDecir) CantaPumba();
}

void JuegaCartaPumba(int seat, int pos) {
    auto& carta = CartasJugador[seat][SERIE][pos];
    const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
    carta[CAMPO_CARA] = CARA_VISIBLE;
    carta[CAMPO_ESTADO] = 1;
    DibujaJugador(seat);
    RefrescaMesa();
    Pausa(500);
    NumeroBaza = std::min(NumeroBaza + 1, MAX_JUGADAS);
    PosicionCarta(seat, pos, NumCartas[seat][SERIE]);
    const int x = CartaX, y = CartaY;
    HistoriaBazas[NumeroBaza][seat][HB_PALO] = palo;
    HistoriaBazas[NumeroBaza][seat][HB_VALOR] = valor;
    CartaVista[palo][valor] = seat;
    for (int f = 1; f <= 5; ++f) carta[f] = 0;
    --NumCartas[seat][SERIE];
    CompactaMano(seat);
    MueveCarta(palo, valor, x, y, OrientacionSeat[seat], CARA_VISIBLE, PozoX + DesvioX(seat),
               PozoY + DesvioY(seat), 1, CARA_VISIBLE);
    DibujaPilaPumba();
    RefrescaMesa();
    Pausa(100);
    Pic_Sugerencia.Visible = false;
}

FinTurno TurnoPumba() {
    FaseJuego = FASE_PUMBA_ROBA;
    SiguienteJugador(JugadorActual);
    const int seat = JugadorActual;
    BombeaEventos();
    if (!PartidaViva) return FinTurno::Abandono;
    AzarJugada = Rnd();
    EligePumba();
    BorraFrase(seat);
    // Pasos 1 a 4. Doses paid, cards drawn, or a pass.
    FinTurno fin = FinTurno::Sigue;
    if (!RobaOPaga(seat, fin)) return fin;
    // Paso 5. The seat is marked; it has said nothing yet.
    SenalaJugador();
    const bool persona = EsPersona(seat);
    PersonaJugando = persona;
    PumbaDicho = PumbaCazado = false;
    Pausa(300);
    // Paso 6. The pane of the person's turn.
    if (persona) MuestraInformacion(TextoDelTurno());
    // Paso 7. The choice: the person's click, or the big button.
    EligePumba();
    EsperaJugada();
    if (!PartidaViva) return FinTurno::Abandono;
    FaseJuego = FASE_PUMBA_RESPUESTA;
    const bool eligioPersona = JugadaHecha;
    // Paso 8. The computer plays for the seat, and says the word when it remembers it.
    if (!JugadaHecha) {
        if (NumCartas[seat][SERIE] == 2 && Atento == seat && !PumbaDicho) CantaPumba();
        EligePumba();
    }
    PersonaJugando = false;
    // Paso 9. What the seat said is read before the card goes.
    if (!FraseJugador[seat][SERIE].isEmpty()) {
        Pausa(500);
        BorraFrase(seat);
    }
    // Paso 10. The card goes to the pile.
    const auto& carta = CartasJugador[seat][SERIE][CartaElegida];
    const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
    JuegaCartaPumba(seat, CartaElegida);
    CompruebaMesa();
    // Paso 11. One card left without the word: whoever watches catches the seat.
    if (NumCartas[seat][SERIE] == 1) {
        if (!PumbaDicho && Atento != 0 && Atento != seat) {
            PumbaCazado = true;
            CantaPumba();
            CompruebaMesa();
        }
        if (UltimaPersonaSalvo(seat) != 0) DaTiempoAlAviso(seat);
        if (!PartidaViva) return FinTurno::Abandono;
        CompruebaMesa();
    }
    // Paso 12. The other seats' plates are wiped.
    Pausa(200);
    for (int s = 1; s <= 4; ++s)
        if (s != seat && !FraseJugador[s][SERIE].isEmpty()) BorraFrase(s);
    // The hand is over when the seat has no cards, or nothing can follow its card.
    RepiteAs = false;
    if (NumCartas[seat][SERIE] == 0 || ManoCerradaPumba(palo, valor)) return FinTurno::FinMano;
    // The effect of the card, and what the seat says of it.
    int paloNombrado = palo;
    if (valor == VALOR_SOTA) paloNombrado = eligioPersona ? EligePaloPersona() : PaloElegidoSota;
    if (!PartidaViva) return FinTurno::Abandono;
    QString texto = AplicaEfectoPumba(seat, palo, valor, paloNombrado);
    if (texto.isEmpty() && PumbaDicho && Atento == seat) texto = "Pumba";
    if (!texto.isEmpty()) Di(seat, texto);
    return PartidaViva ? FinTurno::Sigue : FinTurno::Abandono;
}

void FinalManoPumba() {
    FaseJuego = FASE_FIN_MANO;
    PasoSentidoPumba = PasoSentido;
    OcultaContinuar();
    Pic_Pulsador[PULSADOR_PUMBA].Visible = false;
    ManoViva = false;
    for (int s = 1; s <= 4; ++s) FraseJugador[s][SERIE].clear();
    MuestraMano(0, SERIE);
    // The seat that went out wins; when the hand closed, the one holding the fewest points.
    const int enTurno = JugadorActual;
    const bool cerrada = NumCartas[enTurno][SERIE] > 0;
    for (int s = 1; s <= 4; ++s) PuntosManoPumba[s] = JuegaMano[s] ? PuntosCartasPumba(s) : 0;
    GanadorMano = cerrada ? 0 : enTurno;
    for (int s = 1; s <= 4 && cerrada; ++s)
        if (JuegaMano[s] && (GanadorMano == 0 || PuntosManoPumba[s] < PuntosManoPumba[GanadorMano]))
            GanadorMano = s;
    SuenaMesa(SONIDO_SINCRONO, SONIDO_GANA_MANO);
    SenalaGanador(GanadorMano);
    PuntosManoPumba[GanadorMano] = PUNTOS_GANADOR;
    QString texto;
    if (cerrada) texto = "Se ha cerrado la mano." + SaltoLinea + SaltoLinea;
    texto += LineasPuntos() + SaltoLinea;
    if (GanadorMano == 4)
        texto += NombreJugador[4] + ", has ganado la mano. Te descuentas 5 puntos.";
    else
        texto += "Ha ganado la mano " + NombreJugador[GanadorMano] + ". Se descuenta 5 puntos.";
    Pausa(750);
    Mensaje("Final de la mano", texto, static_cast<int>(texto.count(SaltoLinea)) + 1, 1);
    EsperaBotonera();
    if (!PartidaViva) return; // left at the message: the hand is played again on resuming
    OcultaContinuar();
    AnotaRegistro();
}

void JuegaPumba() {
    (void)Registrado;
    while (PartidaViva) {
        if (!JuegaManoPumba()) return;
        if (QuedaUnoEnPie()) {
            GanadorPartida = GanadorMano;
            FinPartida();
            return;
        }
    }
}
