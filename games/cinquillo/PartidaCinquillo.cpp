#include "games/cinquillo/PartidaCinquillo.h"

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/cinquillo/EligeCinquillo.h"
#include "games/cinquillo/ReglasCinquillo.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

#include <algorithm>

namespace {

constexpr int SERIE = 1;
constexpr int MAX_VUELTAS = 40; // rows of HistoriaBazas

// The information pane on the person's turn: the tutor's offer or the rules, by the turn's chance.
constexpr int TEXTO_TUTOR = 17, TEXTO_REGLAS = 15;
constexpr double AZAR_TUTOR_ANTES = 0.25, AZAR_TUTOR = 0.4;

// Besides the hands, a card of the Cinquillo lies on the layout.
void CuentaLayout(CuentaCartas& cuenta) {
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor)
            if (CartaVista[palo][valor] != 0) cuenta.Anade(palo, valor);
}

const bool Registrado = [] {
    CartasAparte[JUEGO_CINQUILLO] = CuentaLayout;
    // The tutor shows the card the computer player would lay for the person.
    RutinaTutor[JUEGO_CINQUILLO] = [] {
        EligeCinquillo();
        return ConsejoTutor{};
    };
    RutinaCandidatas[JUEGO_CINQUILLO] = EligeCinquillo;
    return true;
}();

// The game is for four: a seat left off by another game's settings sits down again.
void SientaCuatro() {
    NumJugadores = 4;
    for (int s = 1; s <= 4; ++s) EstadoJugador[s] = ESTADO_ACTIVADO;
}

// One seat's turn. Returns false when the match was left meanwhile.
bool TurnoCinquillo() {
    const int seat = JugadorActual;
    const bool manual = ControlJugador[seat] == CONTROL_MANUAL;
    // Paso 1. The pane of the person's turn, by the chance last drawn.
    if (manual) MuestraInformacion(AzarJugada < AZAR_TUTOR_ANTES ? TEXTO_TUTOR : TEXTO_REGLAS);
    // Paso 2. A new lap each time the turn comes back to the leader.
    BombeaEventos();
    if (!PartidaViva) return false;
    if (seat == JugadorMano) NumeroBaza = std::min(NumeroBaza + 1, MAX_VUELTAS);
    // Paso 3. A seat with no card to lay passes at once, in silence.
    AzarJugada = Rnd();
    EligeCinquillo();
    if (NumCandidatas == 0) return true;
    // Paso 4. The seat is marked.
    SenalaJugador();
    Pausa(300);
    PersonaJugando = manual;
    if (manual && AzarJugada < AZAR_TUTOR) MuestraInformacion(TEXTO_TUTOR);
    // Paso 5. The choice: the person's click, else the computer's.
    EligeCinquillo();
    EsperaJugada();
    if (!PartidaViva) return false;
    if (!JugadaHecha) EligeCinquillo();
    PersonaJugando = false;
    // Pasos 6 y 7. The card goes to its place in the layout.
    JuegaCartaCinquillo(seat, CartaElegida);
    CompruebaMesa();
    return true;
}

// One hand, from the deal until a seat has no cards. Returns false when the match was left.
bool JuegaManoCinquillo() {
    NuevaMano();
    if (!PartidaViva) return false;
    CompruebaMesa();
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorMano];
    FaseJuego = FASE_JUEGO;
    NumeroBaza = 0;
    JugadorActual = JugadorMano;
    AnteriorJugador(JugadorActual);
    for (;;) {
        SiguienteJugador(JugadorActual);
        if (!TurnoCinquillo()) return false;
        if (NumCartas[JugadorActual][SERIE] == 0) break;
    }
    FinalManoCinquillo();
    return PartidaViva;
}

QString LineasPuntos(const int puntos[5]) {
    Lis_Ordenar.Limpia();
    for (int s = 1; s <= 4; ++s)
        if (s != GanadorMano && EstadoJugador[s] == ESTADO_ACTIVADO)
            Lis_Ordenar.Agrega(Formato(puntos[s], "000"), s);
    QString texto;
    for (int i = 0; i < Lis_Ordenar.Cuenta(); ++i) {
        const int s = Lis_Ordenar.Dato(i);
        texto += NombreJugador[s] + " : " + Formato(puntos[s], "##0") +
                 (puntos[s] == 1 ? " punto negativo." : " puntos negativos.") + SaltoLinea;
    }
    return texto;
}

void AnotaRegistro(const int puntos[5]) {
    RegistroMano& registro = RegistroManos[NumeroMano];
    for (int s = 1; s <= 4; ++s) {
        registro.Gana[s][1] = s == GanadorMano ? 1 : 0;
        registro.Resultado[s] = QString::number(puntos[s]);
        registro.Detalle[s] = QString(NumCartas[s][SERIE], QLatin1Char(' '));
    }
}

} // namespace

void DibujaLayout() {
    // The whole block of the four columns, a rising card included.
    PosicionCinquillo(1, 12);
    const int x = CartaX, y = CartaY - 9;
    PosicionCinquillo(4, 1);
    BorraZona(x, y, CartaX + ANCHO_CARTA - x, CartaY + ALTO_CARTA - y);
    // From the Rey down, so that each lower card lies over the one above it.
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 12; valor >= 1; --valor) {
            if (CartaVista[palo][valor] == 0) continue;
            PosicionCinquillo(palo, valor);
            DibujaCarta(Pic_Mesa.Imagen, CartaX, CartaY, 1, palo, valor, CARA_VISIBLE);
        }
}

void JuegaCartaCinquillo(int seat, int pos) {
    auto& carta = CartasJugador[seat][SERIE][pos];
    const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
    carta[CAMPO_CARA] = CARA_VISIBLE;
    carta[CAMPO_ESTADO] = 1;
    DibujaJugador(seat);
    RefrescaMesa();
    Pausa(500);
    PosicionCarta(seat, pos, NumCartas[seat][SERIE]);
    const int x = CartaX, y = CartaY;
    HistoriaBazas[NumeroBaza][seat][HB_PALO] = palo;
    HistoriaBazas[NumeroBaza][seat][HB_VALOR] = valor;
    CartaVista[palo][valor] = seat;
    for (int f = 1; f <= 5; ++f) carta[f] = 0;
    --NumCartas[seat][SERIE];
    CompactaMano(seat);
    PosicionCinquillo(palo, valor);
    MueveCarta(palo, valor, x, y, OrientacionSeat[seat], CARA_VISIBLE, CartaX, CartaY, 1,
               CARA_VISIBLE);
    DibujaLayout();
    RefrescaMesa();
    Pausa(500);
    Pic_Sugerencia.Visible = false;
}

void FinalManoCinquillo() {
    FaseJuego = FASE_FIN_MANO;
    OcultaContinuar();
    ManoViva = false;
    GanadorMano = JugadorActual;
    MuestraMano(0, SERIE);
    SuenaMesa(SONIDO_SINCRONO, SONIDO_GANA_MANO);
    SenalaGanador(GanadorMano);
    // Each seat pays for what it holds; the winner collects it all.
    int puntos[5] = {};
    for (int s = 1; s <= 4; ++s)
        if (s != GanadorMano && EstadoJugador[s] == ESTADO_ACTIVADO) {
            puntos[s] = PuntosManoCinquillo(s);
            puntos[GanadorMano] += puntos[s];
        }
    QString texto = LineasPuntos(puntos) + SaltoLinea;
    if (GanadorMano == 4)
        texto += NombreJugador[4] + ", has ganado la mano. ";
    else
        texto += "Ha ganado la mano " + NombreJugador[GanadorMano];
    Pausa(750);
    Mensaje("Final de la mano", texto, static_cast<int>(texto.count(SaltoLinea)) + 1, 1);
    EsperaBotonera();
    if (!PartidaViva) return; // left at the message: the hand is played again on resuming
    OcultaContinuar();
    AnotaRegistro(puntos);
    ++JuegosGanados[GanadorMano];
}

void JuegaCinquillo() {
    (void)Registrado;
    SientaCuatro();
    while (PartidaViva) {
        if (!JuegaManoCinquillo()) return;
        if (JuegosGanados[GanadorMano] >= LimitePartida) {
            GanadorPartida = GanadorMano;
            FinPartida();
            return;
        }
    }
}
