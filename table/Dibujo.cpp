// Cards on the table: wiping, one card with its rounded corners, the stock and the pile, and
// the small animations of a hand (a card that jumps, a hand turned face up).
#include "table/Dibujo.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/DibujoComun.h"

#include <QPainter>

namespace {

constexpr int LARGO_TAPADO = 70; // what the back covers of a half-covered card

bool Tumbada(int orientacion) {
    return orientacion == 2 || orientacion == 4;
}

// The back design over a part of a card: mask and back, from the same place of their cells.
void TapaConReverso(QImage& destino, int x, int y, int orientacion, const QRect& parte) {
    const bool tumbada = Tumbada(orientacion);
    const QImage& reversos = Pic_BarReversos[tumbada ? 2 : 1].Imagen;
    const int xs = tumbada ? 0 : ReversoCartas * ANCHO_CARTA;
    const int ys = tumbada ? ReversoCartas * ANCHO_CARTA : 0;
    TransfiereConMascara(destino, x + parte.x(), y + parte.y(), parte.width(), parte.height(),
                         reversos, parte.x(), parte.y(), reversos, xs + parte.x(), ys + parte.y());
}

// The cell of a face in the sheet of an orientation: the upright sheet turned clockwise once
// for each step of the orientation.
QPoint CeldaCara(int orientacion, int palo, int valor) {
    const int columnas = IdsNormales / 4;
    switch (orientacion) {
    case 2:
        return {(4 - palo) * ALTO_CARTA, (valor - 1) * ANCHO_CARTA};
    case 3:
        return {(columnas - valor) * ANCHO_CARTA, (4 - palo) * ALTO_CARTA};
    case 4:
        return {(palo - 1) * ALTO_CARTA, (columnas - valor) * ANCHO_CARTA};
    default:
        return {(valor - 1) * ANCHO_CARTA, (palo - 1) * ALTO_CARTA};
    }
}

// The half that the back covers on the owner's covered card, towards the owner's edge.
QRect ParteTapada(int orientacion) {
    switch (orientacion) {
    case 2:
        return QRect(0, 0, LARGO_TAPADO, ANCHO_CARTA);
    case 3:
        return QRect(0, 0, ANCHO_CARTA, LARGO_TAPADO);
    case 4:
        return QRect(ALTO_CARTA - LARGO_TAPADO, 0, LARGO_TAPADO, ANCHO_CARTA);
    default:
        return QRect(0, ALTO_CARTA - LARGO_TAPADO, ANCHO_CARTA, LARGO_TAPADO);
    }
}

bool EsJuegoDeBazas() {
    return JuegoActual == JUEGO_TUTE || JuegoActual == JUEGO_BRISCA;
}

} // namespace

void SuenaMesa(int modo, int id) {
    if (SonidoMesaOido) SonidoMesaOido(id);
    Sonido(modo, id);
}

QColor ColorWindows(unsigned valor) {
    return QColor(valor & 0xFF, (valor >> 8) & 0xFF, (valor >> 16) & 0xFF);
}

QFont LetraMesa(int pixeles, bool negrita) {
    QFont letra(QStringLiteral("DejaVu Sans"));
    letra.setPixelSize(pixeles);
    letra.setBold(negrita);
    letra.setStyleStrategy(QFont::PreferAntialias);
    return letra;
}

void EscribeConSombra(QImage& destino, const QRect& caja, int alineacion, const QString& texto,
                      const QFont& letra, const QColor& color, const QColor& sombra) {
    if (PinturaOmitida) return;
    QPainter p(&destino);
    p.setFont(letra);
    p.setPen(sombra);
    p.drawText(caja.translated(1, 1), alineacion, texto);
    p.setPen(color);
    p.drawText(caja, alineacion, texto);
}

void BorraZona(int x, int y, int ancho, int alto) {
    if (ancho > 0 && alto > 0) Rellena(Pic_Mesa.Imagen, x, y, ancho, alto, COLOR_MESA);
}

void BorraCarta(int x, int y) {
    BorraZona(x, y, ANCHO_CARTA, ALTO_CARTA);
}

void BorraVentana() {
    BorraZona(0, 0, AnchoMesa, AltoVentana);
}

void DibujaCarta(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                 int parcial) {
    if (orientacion < 1 || orientacion > 4) orientacion = 1;
    const bool tumbada = Tumbada(orientacion);
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA;
    const int alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    const QRect entera(0, 0, ancho, alto);
    if (cara == CARA_OCULTA) {
        TapaConReverso(destino, x, y, orientacion, entera);
        return;
    }
    if (palo < 1 || palo > PALO_COMODIN) return;
    // The mask blackens the card's place and leaves the corners; the face is then laid in by
    // XOR, black outside its corners, so the table shows through them.
    const QImage& mascara = Pic_BarReversos[tumbada ? 2 : 1].Imagen;
    if (palo == PALO_COMODIN) {
        TransfiereConMascara(destino, x, y, ancho, alto, mascara, 0, 0,
                             Pic_Comodin[orientacion].Imagen, 0, 0);
    } else {
        const QPoint celda = CeldaCara(orientacion, palo, valor);
        TransfiereConMascara(destino, x, y, ancho, alto, mascara, 0, 0,
                             Pic_Baraja[orientacion].Imagen, celda.x(), celda.y());
    }
    if (parcial == 1) TapaConReverso(destino, x, y, orientacion, ParteTapada(orientacion));
}

void DibujaMazo(int x, int y, int cuenta) {
    const int porDorso = 4 * std::max(NumBarajas, 1);
    // The pile leans up and to the right by one pixel a back: wipe all it can cover.
    BorraZona(x, y, ANCHO_CARTA + 13, ALTO_CARTA + 13);
    if (EsJuegoDeBazas() && x == MazoX) {
        // The trump lies across, under the stock, 18 to its left.
        BorraZona(x - 18, y + 20, ALTO_CARTA, ANCHO_CARTA);
        if (NumeroMano != 0 && MuestraTriunfo && PaloTriunfo != 0)
            DibujaCarta(Pic_Mesa.Imagen, x - 18, y + 20, 2, PaloTriunfo, ValorTriunfo,
                        CARA_VISIBLE);
    }
    if (cuenta <= 0) return;
    const int dorsos = (cuenta - 1) / porDorso + 1;
    for (int n = 0; n < dorsos; ++n)
        DibujaCarta(Pic_Mesa.Imagen, x + n, y + 13 - n, 1, 0, 0, CARA_OCULTA);
    // Chinchón's discard pile shows its top card face up on top of the backs.
    if (JuegoActual == JUEGO_CHINCHON && x == PozoX && CartasEnPozo > 0) {
        const int n = dorsos - 1;
        DibujaCarta(Pic_Mesa.Imagen, x + n, y + 13 - n, 1, Pozo[CartasEnPozo][1],
                    Pozo[CartasEnPozo][2], CARA_VISIBLE);
    }
}

void SenalaCarta(int seat, int posicion, int veces) {
    int& estado = CartasJugador[seat][SerieActual][posicion][CAMPO_ESTADO];
    const int antes = estado;
    for (int vuelta = 1; vuelta <= VueltasAnimacion(veces); ++vuelta) {
        Pausa(180);
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SUBE);
        estado = 1;
        DibujaJugador(seat);
        RefrescaMesa();
        Pausa(420);
        // The card goes back to where it was, raised or not.
        estado = antes == 1 ? 0 : antes;
        DibujaJugador(seat);
        RefrescaMesa();
    }
}

void MuestraMano(int seat, int serie) {
    const int desde = seat == 0 ? 1 : seat, hasta = seat == 0 ? 4 : seat;
    for (int s = desde; s <= hasta; ++s) {
        for (int p = 1; p <= NumCartas[s][serie]; ++p) {
            CartasJugador[s][serie][p][CAMPO_CARA] = CARA_VISIBLE;
            CartasJugador[s][serie][p][CAMPO_MARCA] = 0;
        }
        SerieActual = serie;
        DibujaJugador(s);
        RefrescaMesa();
        Pausa(180);
    }
}
