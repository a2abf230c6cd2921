// Words and signs on the table: the names of the seats, the banner in the middle, the winner's
// icon, and the won tricks with the points panel of a seat.
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/PartesMesa.h"
#include "table/Sugerencia.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int LARGO_NOMBRE = 141;
// Nine letters, the longest name, at the narrowest step that still reads well.
constexpr int LARGO_NOMBRE_ESTRECHO = 9 * 11;
constexpr int PASO_LETRA_FILA = 15, PASO_LETRA_COLUMNA = 11;
constexpr int ANCHO_ROTULO = 301, ALTO_ROTULO = 61, ANCHO_TEXTO_ROTULO = 280;
constexpr int LADO_ICONO = 32;
constexpr unsigned COLOR_SOMBRA = 0x004000;
constexpr unsigned VERDE_CLARO = 0x00C000, VERDE_OSCURO = 0x008000;

bool SeatEnJuego(int seat) {
    if (EstadoJugador[seat] != ESTADO_ACTIVADO) return false;
    if (JuegoActual == JUEGO_CHINCHON || JuegoActual == JUEGO_PUMBA) return JuegaMano[seat];
    return true;
}

void EscribeNombre(int seat) {
    const QRect caja = CajaNombre(seat);
    const QString& nombre = NombreJugador[seat];
    const bool columna = seat == 1 || seat == 3;
    const int largo = columna ? caja.height() : caja.width();
    const int paso = std::min(columna ? PASO_LETRA_COLUMNA : PASO_LETRA_FILA,
                              largo / std::max(1, int(nombre.size())));
    const int inicio = (largo - int(nombre.size()) * paso) / 2;
    const QFont letra = LetraMesa(columna ? 11 : 13);
    for (int i = 0; i < nombre.size(); ++i) {
        const QRect celda =
            columna ? QRect(caja.x(), caja.y() + inicio + i * paso, caja.width(), paso)
                    : QRect(caja.x() + inicio + i * paso, caja.y(), paso, caja.height());
        EscribeConSombra(Pic_Mesa.Imagen, celda, Qt::AlignCenter, nombre.mid(i, 1), letra,
                         Qt::white, ColorWindows(COLOR_SOMBRA));
    }
}

QFont LetraRotulo() {
    return LetraMesa(16);
} // bold, size 12 on the old screens

QPoint PosicionIcono(int seat, int d) {
    switch (seat) {
    case 1:
        return {d + 1, ZonaArriba[1] + 125 - 16};
    case 2:
        return {ZonaIzquierda[2] + 125 - 16, d + 1};
    case 3:
        return {ZonaDerecha[3] - d - 33, ZonaArriba[3] + 125 - 16};
    default:
        return {ZonaIzquierda[4] + 125 - 16, ZonaAbajo[4] - d - 33};
    }
}

bool JuegoQueVaciaManos() {
    return JuegoActual == JUEGO_TUTE || JuegoActual == JUEGO_BRISCA ||
           JuegoActual == JUEGO_CINQUILLO || JuegoActual == JUEGO_CHINCHON ||
           JuegoActual == JUEGO_PUMBA;
}

// The value of a Black Jack series: an ace counts 11 while the total allows it.
int ValorSerieBlackJack(int seat, int serie) {
    double suma = 0;
    bool as = false;
    for (int p = 1; p <= NumCartas[seat][serie]; ++p) {
        const int valor = CartasJugador[seat][serie][p][CAMPO_VALOR];
        if (CartasJugador[seat][serie][p][CAMPO_PALO] == 0 || valor < 1 || valor > 13) continue;
        suma += PuntosValor[valor];
        if (valor == 1) as = true;
    }
    if (as && suma <= 11) suma += 10;
    return Ent(suma);
}

void PintaTantos(int seat, int numero, bool enmarcado) {
    QImage& panel = Pic_Tantos[seat].Imagen;
    // A tally that shows its number already is left as it is: the trick games ask at every trick.
    static qint64 pintado[5] = {};
    static int numeroPintado[5] = {}, enmarcadoPintado[5] = {};
    if (panel.cacheKey() == pintado[seat] && numeroPintado[seat] == numero &&
        enmarcadoPintado[seat] == enmarcado)
        return;
    panel = NuevaImagen(44, 23);
    panel.fill(QColor(0, 0x40, 0));
    QPainter p(&panel);
    if (enmarcado) {
        p.setPen(ColorWindows(VERDE_CLARO));
        p.drawLine(0, 0, 43, 0);
        p.drawLine(0, 0, 0, 22);
        p.setPen(ColorWindows(VERDE_OSCURO));
        p.drawLine(0, 22, 43, 22);
        p.drawLine(43, 0, 43, 22);
    }
    p.setFont(LetraMesa(15));
    p.setPen(QColor(255, 255, 160));
    p.drawText(panel.rect(), Qt::AlignCenter, QString::number(numero));
    p.end();
    pintado[seat] = panel.cacheKey();
    numeroPintado[seat] = numero;
    enmarcadoPintado[seat] = enmarcado;
}

} // namespace

// Names lie in the corner at each seat's left hand: the person's row left of its fan, seat 2's
// right of its own, seat 1's column above its cards by the table's edge, seat 3's below them.
QRect CajaNombre(int seat) {
    switch (seat) {
    case 1:
        return QRect(1, ZonaArriba[1] - 8 - LARGO_NOMBRE, 10, LARGO_NOMBRE);
    case 2:
        return QRect(ZonaDerecha[2] + 10, 2, LARGO_NOMBRE, 17);
    case 3:
        return QRect(AnchoMesa - 11, ZonaAbajo[3] + 8, 10, LARGO_NOMBRE);
    default: {
        // Left of the fan, clear of the information pane at the bottom left corner when there is
        // room for a name of nine letters there; on the smallest table the pane covers it.
        const int fin = ZonaIzquierda[4] - 10;
        const int x = fin - LARGO_NOMBRE < ANCHO_SUGERENCIA + 2 &&
                              fin - ANCHO_SUGERENCIA - 2 >= LARGO_NOMBRE_ESTRECHO
                          ? ANCHO_SUGERENCIA + 2
                          : fin - LARGO_NOMBRE;
        return QRect(x, AltoVentana - 20, fin - x, 17);
    }
    }
}

void DibujaNombres() {
    if (Pic_Mesa.Imagen.isNull()) return;
    for (int s = 1; s <= 4; ++s) {
        const QRect caja = CajaNombre(s);
        BorraZona(caja.x(), caja.y(), caja.width() + 1, caja.height() + 1);
        if (SeatEnJuego(s)) EscribeNombre(s);
    }
}

QStringList LineasRotulo(const QString& texto) {
    const QFontMetrics medida(LetraRotulo());
    if (medida.horizontalAdvance(texto) <= ANCHO_TEXTO_ROTULO) return {texto};
    const int blanco = texto.indexOf(QLatin1Char(' '), texto.size() / 2);
    if (blanco < 0) return {texto};
    return {texto.left(blanco), texto.mid(blanco + 1)};
}

void RotuloMesa(const QString& texto) {
    if (Pic_Mesa.Imagen.isNull()) return;
    const int x = CentroMesaX - 150, y = RotuloMesaY();
    BorraZona(x, y, ANCHO_ROTULO, ALTO_ROTULO);
    const QStringList lineas = LineasRotulo(texto);
    AvisaEscritura(Pic_Mesa.Imagen, QRect(x, y, ANCHO_ROTULO, ALTO_ROTULO));
    QPainter p(&Pic_Mesa.Imagen);
    p.setPen(Qt::white);
    p.drawRect(QRect(x, y, ANCHO_ROTULO - 1, ALTO_ROTULO - 1));
    p.setFont(LetraRotulo());
    const int alto = ALTO_ROTULO / int(lineas.size());
    for (int i = 0; i < lineas.size(); ++i)
        p.drawText(QRect(x, y + i * alto, ANCHO_ROTULO, alto), Qt::AlignCenter, lineas[i]);
    p.end();
    RefrescaMesa();
}

void SenalaGanador(int seat) {
    if (seat < 1 || seat > 4) return;
    // The icon clears the winner's cards, or takes their place when the hand is empty.
    const int d = JuegoQueVaciaManos() && NumCartas[GanadorMano][1] == 0 ? 0 : 141;
    int seats[2] = {seat, 0};
    if (ModalidadPareja == 2) seats[1] = CompaneroDe[seat];
    for (int vuelta = 1; vuelta <= VueltasAnimacion(4); ++vuelta) {
        for (int s : seats) {
            if (s == 0 || !FotogramaVisible()) continue;
            const QPoint lugar = PosicionIcono(s, d);
            Transfiere(Pic_Mesa.Imagen, lugar.x(), lugar.y(), LADO_ICONO, LADO_ICONO,
                       Pic_BmpVario.Imagen, (s - 1) * LADO_ICONO, 0, OpRaster::Copia);
        }
        RefrescaMesa();
        Pausa(490);
        for (int s : seats) {
            if (s == 0) continue;
            const QPoint lugar = PosicionIcono(s, d);
            BorraZona(lugar.x(), lugar.y(), LADO_ICONO, LADO_ICONO);
        }
        RefrescaMesa();
        Pausa(200);
    }
}

void DibujaBazas(int seat) {
    if (seat < 1 || seat > 4) return;
    int numero = 0;
    bool dorso = false;
    const bool bazas = JuegoActual == JUEGO_TUTE || JuegoActual == JUEGO_BRISCA;
    if (bazas) {
        numero = Ent(TantosJugador[seat][1]);
        dorso = numero > 0;
        for (int b = 1; b <= std::min(NumeroBaza, 40); ++b)
            if (GanadorDeBaza[b] == seat) dorso = true;
    } else if (JuegoActual == JUEGO_BLACKJACK) {
        numero =
            ValorSerieBlackJack(seat, seat == JugadorActual ? SerieActual : SeriesJugador[seat]);
        if (seat == JugadorBanca && JugadorActual != JugadorBanca) numero = 0;
    } else {
        return;
    }
    const bool dePie = OrientacionSeat[seat] == 1 || OrientacionSeat[seat] == 3;
    const int ancho = dePie ? 76 : 107, alto = dePie ? 107 : 76;
    const QRect bloque = BloquePila(seat);
    const int x = bloque.x() + (bloque.width() - ancho) / 2;
    const int y = bloque.y() + (bloque.height() - alto) / 2;
    const QImage& reverso = Pic_ReversoRedu[dePie ? 1 : 2].Imagen;
    // Black Jack shows no back: its chips stay in the block and the panel lies over them. In the
    // trick games the block shows the same back for many tricks running.
    if (bazas) {
        FirmaParte firma;
        firma << dorso << x << y << ancho << alto << reverso.cacheKey();
        const QRect area = AreaBorrado(seat);
        if (!ParteIntacta(PARTE_BAZAS + seat, firma.Valor)) {
            BorraPila(seat);
            if (dorso)
                Transfiere(Pic_Mesa.Imagen, x, y, ancho, alto, reverso, 0, 0, OpRaster::Copia);
            AnotaParte(PARTE_BAZAS + seat, area.united(QRect(x, y, ancho, alto)), firma.Valor);
        }
    }
    Pic_Tantos[seat].Visible = false;
    if (!dorso && numero <= 0) return;
    if (numero > 0) {
        PintaTantos(seat, numero, bazas);
        Pic_Tantos[seat].X = x + (ancho - 44) / 2;
        Pic_Tantos[seat].Y = y + (alto - 23) / 2;
        Pic_Tantos[seat].Visible = true;
    }
}

void OcultaTantos() {
    for (int s = 1; s <= 4; ++s) Pic_Tantos[s].Visible = false;
}
