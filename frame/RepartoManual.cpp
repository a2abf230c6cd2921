// The manual deal: the person lays out who gets what from a panel of thumbnails, one row a suit
// (and a row of jokers), by dragging them onto the seats. The mouse handlers of the table call
// the routines here; the rest of the deck is placed at random when the hands are complete.
#include "frame/Baraja.h"

#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/OrdenaMano.h"
#include "frame/RepartoInterno.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Mesa.h"
#include "table/Pulsadores.h"

#include <QColor>
#include <QPainter>
#include <cstring>

namespace {

// A thumbnail: a box 27 wide on a grid of 29, with a strip of the card's corner inside it.
constexpr int PASO_MINIATURA = 29, ANCHO_MINIATURA = 27;
constexpr int ANCHO_PANEL = 377; // 13 columns of 29
constexpr int ANCHO_TIRA = 13, TIRA_X = 7, TIRA_Y = 2;
constexpr int ANCHO_TIRA_COMODIN = 21, ALTO_TIRA_COMODIN = 20, COMODIN_X = 3, COMODIN_Y = 9;
// Where the corner index lies inside a cell of the card sheets.
constexpr int ESQUINA_X = 4, ESQUINA_Y = 4;
constexpr unsigned BLANCO = 0xFFFFFF, GRIS_ELEGIDA = 0xC0C0C0;
constexpr int BOTON_RESTO = 87; // "Resto de cartas al azar", 148 by 23 under the panel

int AltoPanel() {
    return (AltoMiniatura + 2) * FilasPanelReparto;
}

int CartasQueFaltan() {
    return CartasPorJugador * JugadoresMano - CartasRepartidas();
}

// The value a card of this id has in a hand: a joker counts from 90.
int ValorEnMano(int id) {
    CartaDeId(id);
    return EsIdComodin(id) ? 90 + ValorDeId : ValorDeId;
}

// One thumbnail into a picture at x, y: the box and the strip of the card's corner.
void PintaMiniatura(QPainter& p, int id, int x, int y, bool elegida) {
    p.fillRect(x, y, ANCHO_MINIATURA, AltoMiniatura,
               QColor::fromRgb(elegida ? GRIS_ELEGIDA : BLANCO));
    CartaDeId(id);
    if (EsIdComodin(id)) {
        const QImage& hoja = Pic_Comodin[1].Imagen;
        if (!hoja.isNull())
            p.drawImage(
                QPoint(x + COMODIN_X, y + COMODIN_Y),
                CopiaLogica(hoja, ESQUINA_X, ESQUINA_Y, ANCHO_TIRA_COMODIN, ALTO_TIRA_COMODIN));
        return;
    }
    const QImage& hoja = Pic_Baraja[1].Imagen;
    if (hoja.isNull()) return;
    p.drawImage(QPoint(x + TIRA_X, y + TIRA_Y),
                CopiaLogica(hoja, (ValorDeId - 1) * ANCHO_CARTA + ESQUINA_X,
                            (PaloDeId - 1) * ALTO_CARTA + ESQUINA_Y, ANCHO_TIRA,
                            AltoMiniatura - 4));
}

void BorraSeleccion() {
    std::memset(MiniaturaElegida, 0, sizeof MiniaturaElegida);
}

void TerminaArrastre() {
    BorraSeleccion();
    ArrastrandoMiniatura = false;
    Pic_Mover.Visible = false;
}

void MuestraBotonResto() {
    EtiquetaControl[BOTON_RESTO] = QStringLiteral("Resto de cartas al azar");
    DibujaPulsador(BOTON_RESTO, false);
    CajaImagen& boton = Pic_Pulsador[BOTON_RESTO];
    boton.Texto.clear(); // it belongs to no seat
    boton.X = CentroVentanaX - boton.Ancho() / 2;
    boton.Y = PanelRepartoY + AltoPanel() + 10;
    boton.Visible = true;
}

void OcultaBotonResto() {
    Pic_Pulsador[BOTON_RESTO].Visible = false;
}

// Paso 1-6 of the manual deal: every card in play is free on the panel.
void PreparaPanel() {
    AnularReparto = true;
    PonCursor(0);
    FilasPanelReparto = NumComodines > 0 ? 5 : 4;
    CartasEnMazo = CartasBaraja;
    CartasEnPozo = 0;
    BorraSeleccion();
    std::memset(Baraja, 0, sizeof Baraja);
    for (int id = 0; id <= MAX_MANO; ++id) MiniaturaLibre[id] = MiniaturaEnJuego(id);
    PanelRepartoX = CentroVentanaX - Redondea(CartasPorPalo * PASO_MINIATURA / 2.0);
    PanelRepartoY = CentroVentanaY - Redondea(AltoPanel() / 2.0);
    DibujaPanelReparto();
    for (int seat = 1; seat <= 4; ++seat) DibujaJugador(seat);
    DibujaNombres();
    MuestraBotonResto();
    SeatUltimoReparto = 0;
}

// Paso 10: the dealt cards fill the first places of Baraja, in the order of their ids, and
// the free ones are shuffled into the places after them.
void ColocaRestoDelMazo() {
    const int d = CartasBaraja - CartasEnMazo;
    PosicionMazo = d + 1;
    int siguiente = 0;
    for (int id = 1; id <= IdsCartas; ++id) {
        if (!MiniaturaEnJuego(id)) continue;
        const int valor = ValorEnMano(id);
        if (MiniaturaLibre[id]) {
            ColocaAlAzar(PaloDeId, valor, d, CartasEnMazo);
        } else {
            ++siguiente;
            Baraja[siguiente][CAMPO_PALO] = PaloDeId;
            Baraja[siguiente][CAMPO_VALOR] = valor;
        }
    }
}

// A seat the random deal may give the card hanging from the pointer.
bool SeatAlAzarValido(int seat) {
    return EstadoJugador[seat] == ESTADO_ACTIVADO && JuegaMano[seat] && PuedeRecibirSeleccion(seat);
}

bool HaySeatValido() {
    for (int seat = 1; seat <= 4; ++seat)
        if (SeatAlAzarValido(seat)) return true;
    return false;
}

bool HayMiniaturaLibre() {
    for (int id = 1; id <= IdsCartas; ++id)
        if (MiniaturaLibre[id]) return true;
    return false;
}

void OrdenaManosSiempre() {
    if (!CartasSiempreOrdenadas) return;
    for (int seat = 1; seat <= 4; ++seat)
        if (NumCartas[seat][1] > 1) OrdenaMano(seat);
}

} // namespace

void ReparteManual() {
    PreparaPanel();
    const int tamano = CartasBaraja;
    // Paso 7. The person lays out the cards; the mouse handlers do the work.
    while (CartasQueFaltan() > 0) {
        SolicitaRepintado();
        if (PersonaGuionada)
            PersonaGuionada();
        else
            EsperaEventos();
        // Paso 8. A change of the deal mode or of the deck under the panel drops this deal,
        // and so does an abandoned match: the hand is dealt again.
        if (ModoReparto != 2 || CartasBaraja != tamano || !PartidaViva) {
            OcultaBotonResto();
            return;
        }
    }
    // Paso 9. The hands are complete: they take their own faces, the panel goes.
    AnularReparto = false;
    BorraZona(PanelRepartoX, PanelRepartoY, ANCHO_PANEL, AltoPanel());
    RefrescaMesa();
    Pausa(400);
    OcultaBotonResto();
    for (int seat = 1; seat <= 4; ++seat) {
        for (int pos = 1; pos <= NumCartas[seat][1]; ++pos)
            CartasJugador[seat][1][pos][CAMPO_CARA] = CartasVisibles[seat];
        DibujaJugador(seat);
        CartasEnMazo -= NumCartas[seat][1];
    }
    ColocaRestoDelMazo();
    OrdenaManosSiempre();
}

void DibujaPanelReparto() {
    BorraZona(PanelRepartoX, PanelRepartoY, ANCHO_PANEL, AltoPanel());
    if (Pic_Mesa.Imagen.isNull()) return;
    // The thumbnails of the panel lie anywhere on the table.
    AvisaEscritura(Pic_Mesa.Imagen, QRect(0, 0, AnchoVentana, AltoVentana));
    QPainter p(&Pic_Mesa.Imagen);
    for (int id = 1; id <= IdsCartas; ++id) {
        if (!MiniaturaLibre[id]) continue;
        if (ArrastrandoMiniatura && MiniaturaElegida[id]) continue; // it hangs from the pointer
        CartaDeId(id);
        PintaMiniatura(p, id, MiniaturaX, MiniaturaY, MiniaturaElegida[id]);
    }
    p.end();
    RefrescaMesa();
}

int CartasRepartidas() {
    int total = 0;
    for (int seat = 1; seat <= 4; ++seat) total += NumCartas[seat][1];
    return total;
}

int CuentaSeleccion() {
    int n = 0;
    for (int id = 1; id <= MAX_MANO; ++id) n += MiniaturaElegida[id] ? 1 : 0;
    return n;
}

void PulsaMiniatura(int id, bool conControl) {
    if (id < 1 || id > IdsCartas || !MiniaturaLibre[id]) return;
    if (conControl) {
        if (!MiniaturaElegida[id] && CuentaSeleccion() >= CartasPorJugador) {
            Mensaje(QStringLiteral("Reparto manual de cartas"),
                    QStringLiteral("Está intentando seleccionar más cartas de las permitidas por "
                                   "jugador (") +
                        QString::number(CartasPorJugador) + QStringLiteral(" como máximo)."),
                    2, 1);
            return;
        }
        MiniaturaElegida[id] = !MiniaturaElegida[id];
        DibujaPanelReparto();
        Sonido(SONIDO_ASINCRONO, SONIDO_SELECCION);
        return;
    }
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_SALE);
    if (!MiniaturaElegida[id]) {
        BorraSeleccion();
        MiniaturaElegida[id] = true;
    }
    // The strip that hangs from the pointer is the mouse handler's: it knows where the pointer is.
    ArrastrandoMiniatura = true;
    DibujaPanelReparto();
}

bool PuedeRecibirSeleccion(int seat) {
    if (seat < 1 || seat > 4) return false;
    const int elegidas = CuentaSeleccion();
    if (elegidas == 0 || EstadoJugador[seat] == ESTADO_DESACTIVADO) return false;
    switch (JuegoActual) {
    case JUEGO_POKER:
        if (RestoJugador(seat) <= 0 && ApuestaAcumulada(seat, 1) <= 0) return false;
        break;
    case JUEGO_BLACKJACK:
        if (RestoJugador(seat) <= 0) return false;
        if (seat == JugadorBanca && NumCartas[seat][1] > 0) return false;
        break;
    case JUEGO_SIETEYMEDIA:
        if (RestoJugador(seat) <= 0) return false;
        break;
    case JUEGO_CHINCHON:
    case JUEGO_PUMBA:
        if (TotalPuntos(seat) > LimitePartida) return false;
        break;
    default:
        break;
    }
    return NumCartas[seat][1] + elegidas <= CartasPorJugador;
}

void ColocaSeleccion(int seat) {
    if (!PuedeRecibirSeleccion(seat)) return;
    auto& mano = CartasJugador[seat][1];
    for (int id = 1; id <= IdsCartas; ++id) {
        if (!MiniaturaElegida[id]) continue;
        int slot = 1;
        while (slot < MAX_MANO && mano[slot][CAMPO_PALO] != 0) ++slot;
        mano[slot][CAMPO_VALOR] = ValorEnMano(id);
        mano[slot][CAMPO_PALO] = PaloDeId;
        mano[slot][CAMPO_CARA] = CARA_VISIBLE;
        mano[slot][CAMPO_ESTADO] = 2;
        mano[slot][CAMPO_MARCA] = JuegoActual == JUEGO_SIETEYMEDIA ? 1 : 0;
        ++NumCartas[seat][1];
        MiniaturaLibre[id] = false;
    }
    SeatUltimoReparto = seat;
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
    TerminaArrastre();
    DibujaJugador(seat);
    DibujaPanelReparto();
}

void SueltaSeleccion() {
    TerminaArrastre();
    DibujaPanelReparto();
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
}

void DevuelveCarta(int seat, int posicion) {
    auto& carta = CartasJugador[seat][1][posicion];
    const int id = IdCarta(carta[CAMPO_PALO], carta[CAMPO_VALOR]);
    if (id == 0) return;
    MiniaturaLibre[id] = true;
    for (int f = 1; f <= 5; ++f) carta[f] = 0;
    --NumCartas[seat][1];
    CompactaMano(seat);
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_SALE);
    DibujaPanelReparto();
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
}

void ReparteRestantesAlAzar() {
    if (!AnularReparto) return;
    while (CartasQueFaltan() > 0) {
        BombeaEventos();
        if (!AnularReparto || !HayMiniaturaLibre()) break;
        int id;
        do {
            id = Ent(Rnd() * IdsCartas + 1);
        } while (!MiniaturaLibre[id]);
        // A press takes this card alone, whatever the person had selected.
        TerminaArrastre();
        PulsaMiniatura(id, false);
        if (!HaySeatValido()) {
            SueltaSeleccion();
            break;
        }
        int seat;
        do {
            seat = Ent(Rnd() * 4 + 1);
        } while (!SeatAlAzarValido(seat));
        Pic_Mover.Visible = false;
        const int valor = ValorEnMano(id);
        const int slot = NumCartas[seat][1] + 1;
        PosicionCarta(seat, slot, slot);
        MueveCarta(PaloDeId, valor, MiniaturaX, MiniaturaY, 1, CARA_VISIBLE, CartaX, CartaY,
                   OrientacionSeat[seat], CARA_VISIBLE);
        ColocaSeleccion(seat);
    }
    OrdenaManosSiempre();
}
