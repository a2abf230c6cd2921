// The draw of the Póker: from the leader round the table, each seat that holds cards throws the
// ones it doesn't want to the pile and draws as many from the stock. The person marks cards with
// the mouse and ends with "Descarto", or keeps all with "Servido"; the table then knows roughly
// what each seat may hold from how many cards it drew.
#include "betting/Fichas.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/OrdenaMano.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Jugador.h"
#include "games/poker/MesaPoker.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Sugerencia.h"

#include <QStringList>
#include <vector>

namespace {

constexpr int SERIE = 1;
constexpr int MARCADA = 1, SIN_MARCA = 2; // the state field of a card: to throw, or kept

int Marcadas(int seat) {
    int n = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        if (CartasJugador[seat][SERIE][p][CAMPO_ESTADO] == MARCADA) ++n;
    return n;
}

// The text of the information pane at the person's draw, by the turn's chance.
int TextoDeDescarte() {
    if (AzarJugada <= 0.15) return 9;
    if (AzarJugada <= 0.3) return 8;
    if (AzarJugada <= 0.45) return 17;
    if (AzarJugada <= 0.6) return 11;
    if (AzarJugada <= 0.8) return 15;
    return 10;
}

// The person marks cards; true when the draw is decided, false when the match was left. A
// marking beyond the limit of the rules is refused and the person marks again.
bool EsperaDescartePersona(int seat) {
    for (;;) {
        PideServido = false;
        PersonaJugando = true;
        EsperandoPersona = true; // "Servido" shows from the start of the turn
        DibujaJugador(seat);
        MuestraInformacion(TextoDeDescarte());
        EsperaJugada();
        if (!PartidaViva) return false;
        if (PideServido || !JugadaHecha || Marcadas(seat) <= LimiteDescartes) return true;
        MuestraInformacion(11);
        Mensaje("Límite de descartes",
                "Actualmente  está  establecido que  cada jugador puede descartarse de un máximo "
                "de " +
                    Formato(LimiteDescartes, "0") +
                    " cartas. Para continuar  con  el  juego  tiene que limitar sus descartes al "
                    "máximo permitido.",
                4, 1, 2153);
    }
}

// The marked cards leave the hand for the pile; returns how many.
int TiraMarcadas(int seat) {
    auto& mano = CartasJugador[seat][SERIE];
    const int total = NumCartas[seat][SERIE];
    struct Vuelo {
        int Palo, Valor, X, Y;
    };
    std::vector<Vuelo> vuelos;
    for (int p = 1; p <= total; ++p) {
        if (mano[p][CAMPO_ESTADO] != MARCADA) continue;
        PosicionCarta(seat, p, total);
        vuelos.push_back({mano[p][CAMPO_PALO], mano[p][CAMPO_VALOR], CartaX, CartaY});
    }
    if (vuelos.empty()) return 0;
    Pausa(300);
    for (int p = 1; p <= total; ++p)
        if (mano[p][CAMPO_ESTADO] == MARCADA)
            for (int f = 1; f <= 5; ++f) mano[p][f] = 0;
    NumCartas[seat][SERIE] = total - int(vuelos.size());
    CompactaMano(seat);
    DibujaJugador(seat);
    for (const Vuelo& v : vuelos) {
        if (CartasEnPozo < 54) {
            ++CartasEnPozo;
            Pozo[CartasEnPozo][CAMPO_PALO] = v.Palo;
            Pozo[CartasEnPozo][CAMPO_VALOR] = v.Valor;
        }
        MueveCarta(v.Palo, v.Valor, v.X, v.Y, OrientacionSeat[seat], CARA_OCULTA, PozoX, PozoY, 1,
                   CARA_OCULTA);
        DibujaMazo(PozoX, PozoY, CartasEnPozo);
    }
    return int(vuelos.size());
}

const QString& UnaDe(const QStringList& textos) {
    return textos[std::min(Ent(AzarFrase * textos.size()), int(textos.size()) - 1)];
}

QString FraseDescarte(int n) {
    if (n == 0)
        return UnaDe({"Servido", "Estoy servido", "No descarto ninguna ", "No quiero",
                      "No quiero cartas", "No quiero ninguna"});
    const QString cuantas = n == 1 ? QStringLiteral("una") : Formato(n, "0");
    const QString carta = n > 1 ? QStringLiteral(" cartas") : QStringLiteral(" carta");
    return UnaDe({"Descarto ", "Quiero ", "Dame ", ""}) + cuantas + UnaDe({"", carta});
}

// What the table deduces of a seat's hand from the cards it drew.
void Estima(int seat, int n) {
    const int minima[6] = {JugadaFiguras, JugadaProyEscalera, JugadaTrio,
                           JugadaPareja,  JugadaCartaMayor,   0};
    const int maxima[6] = {JugadaFiguras, JugadaEscalera, JugadaPoker, JugadaTrio, JugadaPareja, 0};
    JugadaMinEstimada[seat] = minima[n];
    JugadaMaxEstimada[seat] = maxima[n];
    // The seat that opened under the law held a pair at least.
    if (LeyApertura != LEY_NO_SE_APLICA && seat == JugadorApertura)
        JugadaMinEstimada[seat] = std::max(JugadaMinEstimada[seat], JugadaPareja);
}

// One seat's draw. Returns false when the match was left.
bool DescartaSeat(int seat) {
    const bool manual = ControlJugador[seat] == CONTROL_MANUAL;
    SenalaJugador();
    AzarJugada = Rnd();
    AzarFrase = Rnd();
    auto& mano = CartasJugador[seat][SERIE];
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) mano[p][CAMPO_ESTADO] = SIN_MARCA;
    bool propia = false;
    if (manual) {
        if (!EsperaDescartePersona(seat)) return false;
        propia = PideServido || JugadaHecha;
        if (PideServido)
            for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) mano[p][CAMPO_ESTADO] = SIN_MARCA;
    } else {
        EsperaJugada(); // with pauses between plays, the person steps the game
        if (!PartidaViva) return false;
    }
    DecideDescartes();
    if (!propia)
        for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
            mano[p][CAMPO_ESTADO] = Descarte[p] ? MARCADA : SIN_MARCA;
    const int n = TiraMarcadas(seat);
    DiceFrase(seat, FraseDescarte(n));
    if (n > 0) RobaCartas(seat, n, 0);
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) mano[p][CAMPO_ESTADO] = SIN_MARCA;
    if (CartasSiempreOrdenadas) OrdenaMano(seat);
    DibujaJugador(seat);
    RefrescaMesa();
    Estima(seat, n);
    CompruebaMesa();
    return true;
}

} // namespace

bool FaseDescartes() {
    FaseJuego = FASE_POKER_DESCARTE;
    Pausa(700);
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO) DibujaPilas(s);
    LimpiaFrases();
    CartasEnBaza = 0;
    int seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4 && CartasEnBaza < JugadoresMano; ++vuelta) {
        if (NumCartas[seat][SERIE] > 0) {
            JugadorActual = seat;
            ++CartasEnBaza;
            if (!DescartaSeat(seat)) return false;
        }
        SiguienteJugador(seat);
    }
    PersonaJugando = false;
    return PartidaViva;
}
