// Cards on the table: wiping, one card with its rounded corners, the stock and the pile, and
// the small animations of a hand (a card that jumps, a hand turned face up).
#include "table/Dibujo.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Motor.h"
#include "platform/Sonido.h"
#include "table/DibujoComun.h"
#include "table/PartesMesa.h"

#include <QPainter>

namespace {

constexpr int LARGO_TAPADO = 70; // what the back covers of a half-covered card

bool Tumbada(int orientacion) {
    return orientacion == 2 || orientacion == 4;
}

// The back design over a part of a card: mask and back, from the same place of their cells.
void TapaConReverso(QImage& destino, int x, int y, int orientacion, const QRect& parte) {
    if (parte.isEmpty()) return;
    const bool tumbada = Tumbada(orientacion);
    const QImage& reversos = Pic_BarReversos[tumbada ? 2 : 1].Imagen;
    const int xs = tumbada ? 0 : ReversoCartas * ANCHO_CARTA;
    const int ys = tumbada ? ReversoCartas * ANCHO_CARTA : 0;
    TransfiereConMascara(destino, x + parte.x(), y + parte.y(), parte.width(), parte.height(),
                         reversos, parte.x(), parte.y(), reversos, xs + parte.x(), ys + parte.y());
}

// How far into a card its rounded corners reach, in table pixels: outside the four squares of
// that side the mask leaves nothing of what lies under the card. Read from the masks themselves.
int RadioEsquina() {
    static qint64 claves[2] = {-1, -1};
    static int radio = ANCHO_CARTA;
    const QImage* mascaras[2] = {&Pic_BarReversos[1].Imagen, &Pic_BarReversos[2].Imagen};
    if (mascaras[0]->cacheKey() == claves[0] && mascaras[1]->cacheKey() == claves[1]) return radio;
    int mayor = 0;
    bool leidas = true;
    for (int i = 0; i < 2; ++i) {
        const QImage& m = *mascaras[i];
        const int k = qMax(1, qRound(m.devicePixelRatio()));
        const int ancho = (i == 0 ? ANCHO_CARTA : ALTO_CARTA) * k;
        const int alto = (i == 0 ? ALTO_CARTA : ANCHO_CARTA) * k;
        if (m.isNull() || m.width() < ancho || m.height() < alto || m.depth() != 32) {
            leidas = false;
            break;
        }
        for (int y = 0; y < alto; ++y) {
            const QRgb* fila = reinterpret_cast<const QRgb*>(m.constScanLine(y));
            for (int x = 0; x < ancho; ++x) {
                if ((fila[x] & 0xFFFFFF) == 0) continue;
                const int r = qMax(qMin(x + 1, ancho - x), qMin(y + 1, alto - y));
                mayor = qMax(mayor, (r + k - 1) / k);
            }
        }
    }
    claves[0] = mascaras[0]->cacheKey();
    claves[1] = mascaras[1]->cacheKey();
    radio = leidas ? mayor : ANCHO_CARTA;
    return radio;
}

// The parts of a rectangle outside another: at most four bands.
int RestaRect(const QRect& a, const QRect& b, QRect trozos[4]) {
    const QRect c = a.intersected(b);
    if (c.isEmpty()) {
        trozos[0] = a;
        return 1;
    }
    int n = 0;
    if (c.top() > a.top()) trozos[n++] = QRect(a.left(), a.top(), a.width(), c.top() - a.top());
    if (c.bottom() < a.bottom())
        trozos[n++] = QRect(a.left(), c.bottom() + 1, a.width(), a.bottom() - c.bottom());
    if (c.left() > a.left())
        trozos[n++] = QRect(a.left(), c.top(), c.left() - a.left(), c.height());
    if (c.right() < a.right())
        trozos[n++] = QRect(c.right() + 1, c.top(), a.right() - c.right(), c.height());
    return n;
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
    // Text is clipped to its box; the shadow lies one pixel down and right.
    AvisaEscritura(destino, caja.united(caja.translated(1, 1)));
    QPainter p(&destino);
    p.setFont(letra);
    p.setPen(sombra);
    p.drawText(caja.translated(1, 1), alineacion, texto);
    p.setPen(color);
    p.drawText(caja, alineacion, texto);
}

void BorraZona(int x, int y, int ancho, int alto) {
    if (ancho > 0 && alto > 0) BorraCeldasSucias(QRect(x, y, ancho, alto), COLOR_MESA);
}

void BorraCarta(int x, int y) {
    BorraZona(x, y, ANCHO_CARTA, ALTO_CARTA);
}

void BorraVentana() {
    BorraZona(0, 0, AnchoMesa, AltoVentana);
}

QRect BandaOpaca(int x, int y, int orientacion, bool horizontal) {
    const bool tumbada = Tumbada(orientacion);
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA;
    const int alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    const int r = RadioEsquina();
    const QRect banda =
        horizontal ? QRect(x, y + r, ancho, alto - 2 * r) : QRect(x + r, y, ancho - 2 * r, alto);
    return banda.isValid() ? banda : QRect();
}

void DibujaCarta(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                 int parcial) {
    DibujaCartaEn(destino, x, y, orientacion, palo, valor, cara, parcial, QRect());
}

void DibujaCartaEn(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                   int parcial, const QRect& recorte) {
    if (orientacion < 1 || orientacion > 4) orientacion = 1;
    const bool tumbada = Tumbada(orientacion);
    const int ancho = tumbada ? ALTO_CARTA : ANCHO_CARTA;
    const int alto = tumbada ? ANCHO_CARTA : ALTO_CARTA;
    // What is drawn of the card, in its own pixels.
    const QRect entera(0, 0, ancho, alto);
    const QRect parte = recorte.isNull() ? entera : entera.intersected(recorte.translated(-x, -y));
    if (parte.isEmpty()) return;
    if (cara == CARA_OCULTA) {
        TapaConReverso(destino, x, y, orientacion, parte);
        return;
    }
    if (palo < 1 || palo > PALO_COMODIN) return;
    // The mask blackens the card's place and leaves the corners; the face is then laid in by
    // XOR, black outside its corners, so the table shows through them.
    const QImage& mascara = Pic_BarReversos[tumbada ? 2 : 1].Imagen;
    const QPoint celda = palo == PALO_COMODIN ? QPoint(0, 0) : CeldaCara(orientacion, palo, valor);
    const QImage& hoja =
        palo == PALO_COMODIN ? Pic_Comodin[orientacion].Imagen : Pic_Baraja[orientacion].Imagen;
    TransfiereConMascara(destino, x + parte.x(), y + parte.y(), parte.width(), parte.height(),
                         mascara, parte.x(), parte.y(), hoja, celda.x() + parte.x(),
                         celda.y() + parte.y());
    if (parcial == 1)
        TapaConReverso(destino, x, y, orientacion, ParteTapada(orientacion).intersected(parte));
}

void DibujaCartaBajo(QImage& destino, int x, int y, int orientacion, int palo, int valor, int cara,
                     int parcial, const QRect& encima) {
    if (encima.isEmpty()) {
        DibujaCarta(destino, x, y, orientacion, palo, valor, cara, parcial);
        return;
    }
    const bool tumbada = Tumbada(orientacion);
    const QRect carta(x, y, tumbada ? ALTO_CARTA : ANCHO_CARTA, tumbada ? ANCHO_CARTA : ALTO_CARTA);
    QRect trozos[4];
    const int n = RestaRect(carta, encima, trozos);
    for (int i = 0; i < n; ++i)
        DibujaCartaEn(destino, x, y, orientacion, palo, valor, cara, parcial, trozos[i]);
}

void BorraZonaBajo(const QRect& zona, const QRect& encima) {
    QRect trozos[4];
    const int n = RestaRect(zona, encima, trozos);
    for (int i = 0; i < n; ++i)
        BorraZona(trozos[i].x(), trozos[i].y(), trozos[i].width(), trozos[i].height());
}

void DibujaMazo(int x, int y, int cuenta) {
    const int porDorso = 4 * std::max(NumBarajas, 1);
    const int dorsos = cuenta > 0 ? (cuenta - 1) / porDorso + 1 : 0;
    const bool conTriunfo = EsJuegoDeBazas() && x == MazoX;
    const bool triunfoVisto = conTriunfo && NumeroMano != 0 && MuestraTriunfo && PaloTriunfo != 0;
    // Chinchón's discard pile shows its top card face up on top of the backs.
    const bool cimaVista =
        JuegoActual == JUEGO_CHINCHON && x == PozoX && CartasEnPozo > 0 && dorsos > 0;
    // The pile leans up and to the right by one pixel a back: wipe all it can cover.
    const QRect pila(x, y, ANCHO_CARTA + 13, ALTO_CARTA + 13);
    // The trump lies across, under the stock, 18 to its left.
    const QRect triunfo(x - 18, y + 20, ALTO_CARTA, ANCHO_CARTA);

    // A stock shows the same backs for four cards running: most draws leave it as it was.
    FirmaParte firma;
    firma << x << y << dorsos << conTriunfo << triunfoVisto << ReversoCartas
          << Pic_BarReversos[1].Imagen.cacheKey() << Pic_BarReversos[2].Imagen.cacheKey();
    if (triunfoVisto) firma << PaloTriunfo << ValorTriunfo << Pic_Baraja[2].Imagen.cacheKey();
    if (cimaVista)
        firma << Pozo[CartasEnPozo][1] << Pozo[CartasEnPozo][2] << Pic_Baraja[1].Imagen.cacheKey();
    const int parte = ParteDelMazo(x, y);
    if (ParteIntacta(parte, firma.Valor)) return;

    // The top back covers the middle of the pile whatever lies under it.
    const QRect cima =
        dorsos > 0 ? BandaOpaca(x + dorsos - 1, y + 13 - (dorsos - 1), 1, true) : QRect();
    BorraZonaBajo(pila, cima);
    if (conTriunfo) {
        BorraZona(triunfo.x(), triunfo.y(), triunfo.width(), triunfo.height());
        if (triunfoVisto)
            DibujaCarta(Pic_Mesa.Imagen, triunfo.x(), triunfo.y(), 2, PaloTriunfo, ValorTriunfo,
                        CARA_VISIBLE);
    }
    // Each back but the top one shows only its edges from under the next.
    for (int n = 0; n < dorsos; ++n) {
        const QRect siguiente =
            n + 1 < dorsos ? BandaOpaca(x + n + 1, y + 12 - n, 1, true) : QRect();
        DibujaCartaBajo(Pic_Mesa.Imagen, x + n, y + 13 - n, 1, 0, 0, CARA_OCULTA, 0, siguiente);
    }
    if (cimaVista) {
        const int n = dorsos - 1;
        DibujaCarta(Pic_Mesa.Imagen, x + n, y + 13 - n, 1, Pozo[CartasEnPozo][1],
                    Pozo[CartasEnPozo][2], CARA_VISIBLE);
    }
    AnotaParte(parte, conTriunfo ? pila.united(triunfo) : pila, firma.Valor);
}

void SenalaCarta(int seat, int posicion, int veces) {
    int& estado = CartasJugador[seat][SerieActual][posicion][CAMPO_ESTADO];
    const int antes = estado;
    for (int vuelta = 1; vuelta <= VueltasAnimacion(veces); ++vuelta) {
        Pausa(180);
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SUBE);
        estado = 1;
        if (FotogramaVisible()) {
            DibujaJugador(seat);
            RefrescaMesa();
            Pausa(420);
        }
        // The card goes back to where it was, raised or not.
        estado = antes == 1 ? 0 : antes;
        DibujaJugador(seat);
        RefrescaMesa();
    }
}

void MuestraMano(int seat, int serie) {
    const int desde = seat == 0 ? 1 : seat, hasta = seat == 0 ? 4 : seat;
    for (int s = desde; s <= hasta; ++s) {
        // Chinchón, while the loose cards are laid off: a hand the others don't see shows its
        // melds and keeps its loose cards covered.
        const bool soloJugadas = JuegoActual == JUEGO_CHINCHON &&
                                 FaseJuego == FASE_CHINCHON_CIERRE &&
                                 CartasVisibles[s] == CARA_OCULTA;
        if (soloJugadas) EvaluaManoDelSeat(s);
        for (int p = 1; p <= NumCartas[s][serie]; ++p) {
            const auto& c = CartasJugador[s][serie][p];
            if (soloJugadas && PuestoEnJugada(c[CAMPO_PALO], c[CAMPO_VALOR]) > CartasCombinadas())
                continue;
            CartasJugador[s][serie][p][CAMPO_CARA] = CARA_VISIBLE;
            CartasJugador[s][serie][p][CAMPO_MARCA] = 0;
        }
        SerieActual = serie;
        DibujaJugador(s);
        RefrescaMesa();
        Pausa(180);
    }
}
