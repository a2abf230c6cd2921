// Mouse handlers of the table. They never play: they set flags and clear EsperandoPersona, and
// the driver goes on from its wait. The pointer's shape says what a press would do, and the
// press handler acts by the shape in force.
#include "table/Raton.h"

#include "betting/Banca.h"

#include "betting/Apostadora.h"
#include "betting/Fichas.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/GblChinchon.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mesa.h"
#include "table/Popup.h"
#include "table/Pulsadores.h"
#include "table/Sugerencia.h"

#include <QPainter>

namespace {

bool Dentro(const CajaImagen& c, int x, int y) {
    return c.Visible && x >= c.X && y >= c.Y && x < c.X + c.Ancho() && y < c.Y + c.Alto();
}

bool EsJuegoDeBazas() {
    return JuegoActual == JUEGO_TUTE || JuegoActual == JUEGO_BRISCA ||
           JuegoActual == JUEGO_CINQUILLO || JuegoActual == JUEGO_CHINCHON ||
           JuegoActual == JUEGO_PUMBA;
}

// The phases in which a card of the hand can be chosen with the mouse.
bool FaseDeElegirCarta() {
    switch (JuegoActual) {
    case JUEGO_CHINCHON:
        return FaseJuego == 2 || FaseJuego == 4;
    case JUEGO_MUS:
    case JUEGO_POKER:
        return FaseJuego == 4;
    default:
        return true;
    }
}

bool SobreMazo(int x, int y) {
    return x >= MazoX && x < MazoX + ANCHO_CARTA + 12 && y >= MazoY - 12 && y < MazoY + ALTO_CARTA;
}

// Chinchón: the stock or the pile under the point, as a place to take the turn's card from
// (ROBO_MAZO, ROBO_POZO), or 0. Each is hit from 18 pixels to its left.
int MontonBajo(int x, int y) {
    auto dentro = [&](int mx, int my, int cuenta) {
        return cuenta > 0 && x >= mx - 18 && x < mx + ANCHO_CARTA && y >= my &&
               y < my + ALTO_CARTA + 13;
    };
    if (dentro(MazoX, MazoY, CartasEnMazo)) return ROBO_MAZO;
    if (dentro(PozoX, PozoY, CartasEnPozo)) return ROBO_POZO;
    return 0;
}

// The card of the hand hangs from the pointer as a small picture while it is dragged.
void ColgaraCarta(int seat, int posicion) {
    const auto& c = CartasJugador[seat][SerieActual][posicion];
    QImage imagen = NuevaImagen(ANCHO_CARTA, ALTO_CARTA, COLOR_MESA);
    DibujaCarta(imagen, 0, 0, 1, c[CAMPO_PALO], c[CAMPO_VALOR], CARA_VISIBLE);
    Pic_Mover.Imagen =
        imagen.scaled(ANCHO_CARTA * 2 / 3 * EscalaMesa, ALTO_CARTA * 2 / 3 * EscalaMesa,
                      Qt::KeepAspectRatio, Qt::SmoothTransformation);
    Pic_Mover.Imagen.setDevicePixelRatio(EscalaMesa);
    Pic_Mover.Visible = true;
}

// The selected thumbnails, each 28 wide in a strip, hang 12 left of and 35 above the pointer.
void DibujaMiniaturaEnMover() {
    std::vector<int> ids;
    for (int id = 1; id <= IdsCartas; ++id)
        if (MiniaturaElegida[id]) ids.push_back(id);
    if (ids.empty()) {
        Pic_Mover.Visible = false;
        return;
    }
    QImage tira = NuevaImagen(28 * int(ids.size()), AltoMiniatura, 0xFFFFFF);
    QPainter p(&tira);
    for (int i = 0; i < int(ids.size()); ++i) {
        CartaDeId(ids[i]);
        const QRect celda(i * 28, 0, 27, AltoMiniatura);
        p.fillRect(celda, QColor(0xC0, 0xC0, 0xC0));
        if (EsIdComodin(ids[i]))
            p.drawImage(QRect(i * 28 + 3, 9, 21, 20),
                        CopiaLogica(Pic_Comodin[1].Imagen, 4, 4, 21, 20));
        else if (!Pic_Baraja[1].Imagen.isNull())
            p.drawImage(QRect(i * 28 + 7, 2, 13, AltoMiniatura - 4),
                        CopiaLogica(Pic_Baraja[1].Imagen, (ValorDeId - 1) * ANCHO_CARTA + 4,
                                    (PaloDeId - 1) * ALTO_CARTA + 4, 13, AltoMiniatura - 4));
        p.setPen(Qt::black);
        p.drawRect(celda.adjusted(0, 0, -1, -1));
    }
    p.end();
    Pic_Mover.Imagen = tira;
    Pic_Mover.Visible = true;
}

void MueveColgado(int x, int y) {
    Pic_Mover.X = x - 12;
    Pic_Mover.Y = y - 35;
}

// The dragged hand card can't leave its own row: the pointer is held inside the seat's zone.
void MueveCartaArrastrada(int x, int y) {
    const int s = SeatPopup > 0 ? SeatPopup : 4;
    x = std::clamp(x, ZonaIzquierda[s], std::max(ZonaIzquierda[s], ZonaDerecha[s]));
    y = std::clamp(y, ZonaArriba[s], std::max(ZonaArriba[s], ZonaAbajo[s]));
    Pic_Mover.X = x - Pic_Mover.Ancho() / 2;
    Pic_Mover.Y = y - Pic_Mover.Alto() / 2;
}

void SueltaCartaArrastrada() {
    const int seat = SeatPopup; // the seat whose card was taken
    const int cx = Pic_Mover.X + Pic_Mover.Ancho() / 2, cy = Pic_Mover.Y + Pic_Mover.Alto() / 2;
    ArrastrandoCarta = false;
    Pic_Mover.Visible = false;
    DetectaJdorYCar(cx, cy);
    const int n = NumCartas[seat][SerieActual];
    int destino = JugadorBajoCarta == seat && CartaBajoPuntero > 0 ? CartaBajoPuntero : n + 1;
    // The dragged card goes before the card it was dropped on; the others move up.
    auto& mano = CartasJugador[seat][SerieActual];
    int carta[6];
    for (int f = 0; f <= 5; ++f) carta[f] = mano[PosicionOrigen][f];
    if (destino > PosicionOrigen) --destino;
    for (int p = PosicionOrigen; p < n; ++p)
        for (int f = 0; f <= 5; ++f) mano[p][f] = mano[p + 1][f];
    for (int p = n; p > destino; --p)
        for (int f = 0; f <= 5; ++f) mano[p][f] = mano[p - 1][f];
    for (int f = 0; f <= 5; ++f) mano[destino][f] = carta[f];
    CompactaMano(seat);
    RehaceCandidatas(seat);
    DibujaJugador(seat);
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
    RefrescaMesa();
}

void PulsaEnRepartoManual(int x, int y, bool control) {
    HallaFilyCol(x, y);
    if (PaloDeId > 0 && ValorDeId > 0) {
        const int id = (PaloDeId - 1) * CartasPorPalo + ValorDeId;
        if (id <= IdsCartas && MiniaturaLibre[id]) {
            PulsaMiniatura(id, control);
            if (ArrastrandoMiniatura) {
                DibujaMiniaturaEnMover();
                MueveColgado(x, y);
            }
            RefrescaMesa();
        }
        return;
    }
    if (CursorActual == CURSOR_JUGABLE) {
        DetectaJdorYCar(x, y);
        if (JugadorBajoCarta > 0 && CartaBajoPuntero > 0) {
            DevuelveCarta(JugadorBajoCarta, CartaBajoPuntero);
            RefrescaMesa();
        }
    }
}

void EligeCartaPersona() {
    DetectaJdorYCar(RatonX, RatonY);
    if (JugadorBajoCarta != JugadorActual || CartaBajoPuntero == 0) return;
    auto& carta = CartasJugador[JugadorActual][SerieActual][CartaBajoPuntero];
    if (JuegoActual == JUEGO_POKER || JuegoActual == JUEGO_MUS) {
        carta[CAMPO_ESTADO] = carta[CAMPO_ESTADO] == 1 ? 2 : 1;
        JugadaHecha = true;
        DibujaContinuar(false);
    } else if (EsJuegoDeBazas()) {
        if (!JugadaPermitida()) return;
        CartaElegida = CartaBajoPuntero;
        JugadaHecha = true;
        EsperandoPersona = false;
    }
    DibujaJugador(JugadorActual);
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_SALE);
    RefrescaMesa();
}

// Siete y media: the person turns the covered card of the series face up; a siete y media shown
// ends the turn, to be sung.
void VuelveTapada() {
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
    auto& serie = CartasJugador[JugadorActual][SerieActual];
    for (int p = 1; p <= NumCartas[JugadorActual][SerieActual]; ++p)
        if (serie[p][CAMPO_MARCA] == 1) {
            serie[p][CAMPO_MARCA] = 0;
            serie[p][CAMPO_CARA] = CARA_VISIBLE;
        }
    DibujaJugador(JugadorActual);
    RefrescaMesa();
    if (ValorMano(JugadorActual, SerieActual) == 7.5) EsperandoPersona = false;
}

int FormaSobreCartas(int x, int y) {
    int forma = 0;
    const bool turnoPersona = PersonaJugando && ControlJugador[JugadorActual] == CONTROL_MANUAL &&
                              ManoViva && !OrdenManual && !AnularReparto;
    if (turnoPersona) {
        DetectaJdorYCar(x, y);
        if (JugadorBajoCarta == JugadorActual && CartaBajoPuntero > 0) {
            const auto& c = CartasJugador[JugadorActual][SerieActual][CartaBajoPuntero];
            if (JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA) {
                if (!FichasActivas) {
                    if (JuegoActual == JUEGO_SIETEYMEDIA && PuedeCambiarCuatro &&
                        CartaBajoPuntero == 1)
                        forma = CURSOR_CAMBIAR;
                    else if (JuegoActual == JUEGO_SIETEYMEDIA && c[CAMPO_MARCA] == 1)
                        forma = CURSOR_VOLTEAR;
                    else if (PuedeAbrir)
                        forma = CURSOR_ABRIRSE;
                }
            } else if (!FichasActivas && FaseDeElegirCarta()) {
                forma = JugadaPermitida() ? 22 : 23;
            }
        }
        if (CodigoJugada != 0 && SobreMazo(x, y)) forma = 41;
    }
    // The stacks of the seat on turn, when it can stake them.
    if (forma != CURSOR_CAMBIAR && HallaFichaBajoPuntero(x, y) > 0) forma = CURSOR_INDICE;
    if (EligiendoRobo && ManoViva && !OrdenManual && !AnularReparto && MontonBajo(x, y) != 0)
        forma = CURSOR_TOMAR;
    if (OrdenManual) {
        if (ArrastrandoCarta)
            forma = 26;
        else {
            DetectaJdorYCar(x, y);
            if (JugadorBajoCarta > 0 && CartaBajoPuntero > 0 &&
                CartasVisibles[JugadorBajoCarta] == 2)
                forma = 27;
        }
    }
    if (AnularReparto) {
        if (ArrastrandoMiniatura)
            forma = 26;
        else {
            HallaFilyCol(x, y);
            const int id = PaloDeId > 0 ? (PaloDeId - 1) * CartasPorPalo + ValorDeId : 0;
            if (id > 0 && id <= IdsCartas && MiniaturaLibre[id])
                forma = 27;
            else {
                DetectaJdorYCar(x, y);
                if (JugadorBajoCarta > 0 && CartaBajoPuntero > 0) forma = 22;
            }
        }
    }
    if (EligiendoMano) {
        DetectaZonaCartas(x, y);
        if (JugadorBajoPuntero > 0 && JuegaMano[JugadorBajoPuntero]) forma = 21;
    }
    return forma;
}

} // namespace

int BotonBajo(int x, int y) {
    if (Dentro(Pic_BotContinuar, x, y)) return 9;
    for (int i = 1; i <= 8; ++i)
        if (Dentro(Pic_Boton[i], x, y)) return i;
    return 0;
}

void DetectaZonaCartas(int x, int y) {
    JugadorBajoPuntero = 0;
    if (x <= ZonaDerecha[1] && y >= ZonaArriba[1] && y <= ZonaAbajo[1]) JugadorBajoPuntero = 1;
    if (x >= ZonaIzquierda[2] && x <= ZonaDerecha[2] && y <= ZonaAbajo[2]) JugadorBajoPuntero = 2;
    if (x >= ZonaIzquierda[3] && y >= ZonaArriba[3] && y <= ZonaAbajo[3]) JugadorBajoPuntero = 3;
    if (x >= ZonaIzquierda[4] && x <= ZonaDerecha[4] && y >= ZonaArriba[4]) JugadorBajoPuntero = 4;
}

void DetectaJdorYCar(int x, int y) {
    JugadorBajoCarta = CartaBajoPuntero = 0;
    DetectaZonaCartas(x, y);
    const int s = JugadorBajoPuntero;
    if (s == 0) return;
    const int n = NumCartas[s][SerieActual];
    const bool tumbada = OrientacionSeat[s] == 2 || OrientacionSeat[s] == 4;
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA, alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    for (int p = 1; p <= n; ++p) {
        if (ArrastrandoCarta && p == PosicionOrigen && s == SeatPopup) continue;
        PosicionCarta(s, p, n);
        // The later card lies on top: the last hit wins.
        if (x >= CartaX && x < CartaX + ancho && y >= CartaY && y < CartaY + alto) {
            JugadorBajoCarta = s;
            CartaBajoPuntero = p;
        }
    }
}

void HallaFilyCol(int x, int y) {
    PaloDeId = ValorDeId = 0;
    const int altoFila = AltoMiniatura + 2;
    if (x < PanelRepartoX || y < PanelRepartoY) return;
    const int fila = (y - PanelRepartoY) / altoFila + 1;
    const int columna = (x - PanelRepartoX) / 29 + 1;
    if (fila > FilasPanelReparto || (y - PanelRepartoY) % altoFila >= AltoMiniatura) return;
    if (columna > IdsNormales / 4 || (x - PanelRepartoX) % 29 >= 27) return;
    if (fila == 5 && columna > NumComodines) return;
    PaloDeId = fila;
    ValorDeId = columna;
}

void RehaceCandidatas(int seat) {
    if (seat != JugadorActual || !PersonaJugando || !EsperandoPersona) return;
    if (JuegoActual < 0 || JuegoActual >= 60 || !RutinaCandidatas[JuegoActual]) return;
    RutinaCandidatas[JuegoActual]();
}

bool JugadaPermitida() {
    // Chinchón, laying off: only a card that fits the receiver's melds.
    if (JuegoActual == JUEGO_CHINCHON && FaseJuego == FASE_CHINCHON_CIERRE) {
        const auto& c = CartasJugador[JugadorActual][SerieActual][CartaBajoPuntero];
        const int id = IdCarta(c[CAMPO_PALO], c[CAMPO_VALOR]);
        for (int i = 1; i <= NumCombinables; ++i)
            if (CartasCombinables[i] == id) return true;
        return false;
    }
    const bool conCandidatas =
        (JuegoActual == JUEGO_TUTE && ObligacionActiva && JugadorActual != JugadorSalida) ||
        JuegoActual == JUEGO_CINQUILLO || JuegoActual == JUEGO_PUMBA;
    if (conCandidatas) {
        for (int i = 1; i <= NumCandidatas; ++i)
            if (Candidatas[i][CAND_POSICION] == CartaBajoPuntero) return true;
        return false;
    }
    return true;
}

void RatonPulsado(int x, int y, int boton, bool control) {
    RatonX = x;
    RatonY = y;
    BotonRaton = boton;
    // The information pane lies over the table and takes the presses made on it.
    if (Pic_Sugerencia.Visible && Dentro(Pic_Sugerencia, x, y) && PulsaSugerencia(x, y)) return;
    if (DentroPopup(x, y)) return; // the choice is made on release
    if (!EligiendoOpcion) OcultaPopup();
    if (boton != 1) return;
    // The controls over the table take their own presses.
    const int indice = BotonBajo(x, y);
    if (indice == 9) return PulsaContinuar();
    if (indice > 0) return PulsaBoton(indice);
    if (const int pulsador = PulsadorBajo(x, y)) return PulsaPulsador(pulsador);
    if (Dentro(Pic_Apostadora, x, y) && RutinaApostadora[JuegoActual])
        return RutinaApostadora[JuegoActual](x - Pic_Apostadora.X, y - Pic_Apostadora.Y);
    // A chip of the seat on turn is staked.
    if (FichasActivas && CursorActual == CURSOR_INDICE && FichaBajoPuntero >= 1 &&
        FichaBajoPuntero <= 6)
        return PulsaFicha();

    if (AnularReparto) return PulsaEnRepartoManual(x, y, control);
    if (OrdenManual && CursorActual == CURSOR_TOMAR) {
        DetectaJdorYCar(x, y);
        if (JugadorBajoCarta == 0) return;
        SeatPopup = JugadorBajoCarta;
        ArrastrandoCarta = true;
        PosicionOrigen = CartaBajoPuntero;
        ColgaraCarta(SeatPopup, PosicionOrigen);
        MueveCartaArrastrada(x, y);
        DibujaJugador(SeatPopup);
        Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_SALE);
        RefrescaMesa();
        return;
    }
    if (PersonaJugando && CursorActual == CURSOR_JUGABLE && !FichasActivas)
        return EligeCartaPersona();
    if (EligiendoRobo && CursorActual == CURSOR_TOMAR && JuegoActual == JUEGO_CHINCHON) {
        if (const int monton = MontonBajo(x, y)) {
            OrigenRobo = monton;
            JugadaHecha = true;
            EsperandoPersona = false;
            Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_SALE);
        }
        return;
    }
    if (CursorActual == CURSOR_CAMBIAR &&
        (JuegoActual == JUEGO_TUTE || JuegoActual == JUEGO_BRISCA)) {
        PideCambio = true;
        EsperandoPersona = false;
        return;
    }
    const bool contraBanca = JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA;
    if (CursorActual == CURSOR_ABRIRSE && PersonaJugando && contraBanca) {
        PideAbrir = true;
        EsperandoPersona = false;
        return;
    }
    if (CursorActual == CURSOR_VOLTEAR && PersonaJugando && JuegoActual == JUEGO_SIETEYMEDIA)
        return VuelveTapada();
    if (CursorActual == CURSOR_CAMBIAR && PersonaJugando && JuegoActual == JUEGO_SIETEYMEDIA) {
        PideCambio = true;
        EsperandoPersona = false;
        return;
    }
    if (CursorActual == CURSOR_INDICE && EligiendoMano) {
        DetectaZonaCartas(x, y);
        if (JugadorBajoPuntero > 0 && JuegaMano[JugadorBajoPuntero]) {
            Sonido(SONIDO_ASINCRONO, SONIDO_TUTOR);
            EligiendoMano = false;
        }
    }
}

void RatonMovido(int x, int y, bool) {
    if (DentroPopup(x, y)) {
        MuevePopup(x, y);
        if (CursorActual != 0) PonCursor(0);
        return;
    }
    if (Pic_SelOpciones.Visible && LineaIluminada != 0) MuevePopup(x, -100);
    const int indice = BotonBajo(x, y);
    if (indice >= 1 && indice <= 8) {
        const int forma = BotonRechazado(indice) ? 12 : 0;
        if (forma != CursorActual) PonCursor(forma);
        return;
    }
    if (ArrastrandoMiniatura) {
        MueveColgado(x, y);
        DetectaZonaCartas(x, y);
        if (JugadorBajoPuntero > 0 && PuedeRecibirSeleccion(JugadorBajoPuntero)) {
            Pic_Mover.Visible = false;
            ColocaSeleccion(JugadorBajoPuntero);
        }
        RefrescaMesa();
    }
    if (ArrastrandoCarta) {
        MueveCartaArrastrada(x, y);
        RefrescaMesa();
    }
    ZonaCursor = FormaSobreCartas(x, y);
    if (ZonaCursor != CursorActual) PonCursor(ZonaCursor);
}

void RatonSoltado(int x, int y, int boton) {
    SueltaApostadora();
    if (DentroPopup(x, y)) {
        SueltaPopup(x, y);
        return;
    }
    if (ArrastrandoMiniatura) {
        Pic_Mover.Visible = false;
        SueltaSeleccion();
        RefrescaMesa();
    }
    if (ArrastrandoCarta) SueltaCartaArrastrada();
    // The click: the right button opens the popup over a seat whose cards can be seen.
    DetectaZonaCartas(RatonX, RatonY);
    if (boton == 2 && (EsperandoPersona || !PartidaViva) && JuegoActual != JUEGO_BLACKJACK) {
        for (auto& v : OpcionVisible) v = false;
        const int s = JugadorBajoPuntero;
        if (ManoViva && s > 0 && CartasVisibles[s] == 2) {
            OpcionVisible[OPCION_ORDEN_MANUAL] = OpcionVisible[OPCION_ORDEN_AUTOMATICO] = true;
            SeatPopup = s;
        }
        MenuSeleccion();
    }
    if (JugadorBajoPuntero == 0) OrdenManual = false;
}

QString TextoAyudaEn(int x, int y) {
    const int indice = BotonBajo(x, y);
    if (indice >= 1 && indice <= 8) return Pic_Boton[indice].Texto;
    return {};
}
