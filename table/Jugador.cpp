// A seat brought up to date: its action buttons, its cards, its phrase and its stake.
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Frases.h"
#include "table/Pulsadores.h"

namespace {

constexpr unsigned COLOR_ROTULO_SERIE = 0xFFFF00; // the series label: written, never spoken
constexpr int PRIMER_PULSADOR = 81, ULTIMO_PULSADOR = 102;

// The buttons that follow the seat on turn; the manual deal's and Pumba's have their owners.
bool PulsadorDelTurno(int indice) {
    return (indice <= 88 && indice != 87) || indice >= 96;
}

void OcultaNoQueridos(const bool quiere[103]) {
    for (int i = PRIMER_PULSADOR; i <= ULTIMO_PULSADOR; ++i)
        if (PulsadorDelTurno(i) && !quiere[i]) Pic_Pulsador[i].Visible = false;
}

void MuestraQueridos(int seat, const bool quiere[103]) {
    for (int i = PRIMER_PULSADOR; i <= ULTIMO_PULSADOR; ++i)
        if (PulsadorDelTurno(i) && quiere[i]) ColocaPulsador(seat, i);
}

// Where stakes stay in front of the seats, a seat's stake shows: not the bank's, not during a
// manual deal, and not while the seat's first card is raised over that place.
bool ApuestaALaVista(int seat) {
    return ApuestaDelante && seat != JugadorBanca && !AnularReparto &&
           CartasJugador[seat][SerieActual][1][CAMPO_ESTADO] != 1;
}

// The rectangle the seat's row of cards covers, raised cards included.
QRect ExtensionFila(int seat) {
    QRect fila;
    const int total = NumCartas[seat][SerieActual];
    const bool tumbada = OrientacionSeat[seat] == 2 || OrientacionSeat[seat] == 4;
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA, alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    for (int p = 1; p <= total; ++p) {
        PosicionCarta(seat, p, total);
        fila = fila.united(QRect(CartaX, CartaY, ancho, alto));
    }
    return fila;
}

bool SenasEnLaZona(int seat) {
    return JuegoActual == JUEGO_MUS && SenasVisibles[seat];
}

void DibujaCartas(int seat) {
    const QRect zona(ZonaIzquierda[seat], ZonaArriba[seat],
                     ZonaDerecha[seat] - ZonaIzquierda[seat] + 1,
                     ZonaAbajo[seat] - ZonaArriba[seat] + 1);
    if (SenasEnLaZona(seat)) {
        // The face with the signs lies there; the cards show only while a manual deal runs.
        // The strip of its phrase is wiped all the same, as the phrase is written afresh.
        const QRect franja = FranjaFrase(seat);
        BorraZona(franja.x(), franja.y(), franja.width(), franja.height());
        if (AnularReparto) PintaCartasSeat(Pic_Mesa.Imagen, seat);
        return;
    }
    // A long row (ten or twelve cards) runs a few pixels past the zone at either end, as its
    // step is rounded: what the last row covered is wiped with the zone.
    static QRect filaAnterior[5];
    const QRect limpia = zona.united(filaAnterior[seat]);
    BorraZona(limpia.x(), limpia.y(), limpia.width(), limpia.height());
    filaAnterior[seat] = ExtensionFila(seat);
    if (PintaCartasSeat(Pic_Mesa.Imagen, seat)) SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SUBE);
}

void EscribeFraseDelSeat(int seat) {
    QString& frase = FraseJugador[seat][SerieActual];
    const bool muda = ColorFrase[seat][SerieActual] == COLOR_ROTULO_SERIE;
    const int veces = ParpadeoFrase[seat][SerieActual];
    if (veces <= 0) {
        EscribeFrase(seat, muda ? 2 : 1);
        return;
    }
    if (!muda && !TutorEnCurso) EscribeFrase(seat);
    const QString texto = frase;
    for (int vuelta = 1; vuelta <= veces; ++vuelta) {
        frase = texto;
        RefrescaMesa();
        Pausa(150);
        EscribeFrase(seat, 2);
        if (TutorEnCurso) SuenaMesa(SONIDO_ASINCRONO, SONIDO_TUTOR);
        RefrescaMesa();
        Pausa(600);
        frase.clear();
        EscribeFrase(seat, 2);
    }
    RefrescaMesa();
}

void DibujaApuestaDelante(int seat) {
    const int n = NumHistorial[seat][SerieActual];
    const int x = PilaX[seat + 10][1], y = PilaY[seat + 10][1];
    if (n > 0) {
        DibujaFicha(x, y, HistorialFichas[seat][SerieActual][n], OrientacionSeat[seat]);
        CifraApuesta(seat, QString::number(ApuestaAcumulada(seat, SerieActual)));
    } else if (SerieCerrada[seat][SerieActual]) {
        Transfiere(Pic_Mesa.Imagen, x, y, 32, 32, Pic_BmpVario.Imagen, 129, 0, OpRaster::Copia);
    }
}

} // namespace

bool PintaCartasSeat(QImage& destino, int seat, int dx, int dy) {
    bool levantada = false;
    const int total = NumCartas[seat][SerieActual];
    for (int p = 1; p <= total; ++p) {
        const auto& carta = CartasJugador[seat][SerieActual][p];
        if (ArrastrandoCarta && p == PosicionOrigen) continue; // it hangs from the pointer
        if (carta[CAMPO_PALO] == 0) continue;
        PosicionCarta(seat, p, total);
        // Only Siete y media uses the mark of a card to half cover it.
        const int parcial = JuegoActual == JUEGO_SIETEYMEDIA ? carta[CAMPO_MARCA] : 0;
        DibujaCarta(destino, CartaX - dx, CartaY - dy, OrientacionSeat[seat], carta[CAMPO_PALO],
                    carta[CAMPO_VALOR], carta[CAMPO_CARA], parcial);
        if (carta[CAMPO_ESTADO] == 1) levantada = true;
    }
    return levantada;
}

void DibujaJugador(int seat) {
    if (seat < 1 || seat > 4 || Pic_Mesa.Imagen.isNull()) return;
    // Paso 1. Which action buttons the seat should show.
    bool quiere[103] = {};
    DecidePulsadores(seat, quiere);
    // Paso 2. The stake in front of the seat is wiped, to be drawn again at step 8.
    if (ApuestaALaVista(seat)) BorraPila(seat + 10);
    // Paso 3. The seat on turn loses the buttons it doesn't want.
    if (seat == JugadorActual) OcultaNoQueridos(quiere);
    // Paso 4. The cards of the series in play.
    DibujaCartas(seat);
    // Paso 5. A phrase takes the place of the buttons that would hide it.
    const bool conFrase = !FraseJugador[seat][SerieActual].isEmpty();
    if (conFrase) {
        for (int i : {85, 86, 102}) {
            quiere[i] = false;
            Pic_Pulsador[i].Visible = false;
        }
    }
    // Pasos 6 y 7. The phrase, blinking or still.
    if (conFrase) EscribeFraseDelSeat(seat);
    // Paso 8. The stake, or the mark of a closed series with no stake.
    if (ApuestaALaVista(seat)) DibujaApuestaDelante(seat);
    // Paso 9. The wanted buttons, against the seat.
    if (seat == JugadorActual) MuestraQueridos(seat, quiere);
    // Paso 10. Black Jack keeps the value of the hand on its panel.
    if (JuegoActual == JUEGO_BLACKJACK && Pic_Tantos[seat].Visible) DibujaBazas(seat);
}
