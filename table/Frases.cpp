// The phrase of a seat: written along the inner edge of its zone, in the strip the cards leave
// free unless one of them is raised, with a dark shadow under its colour.
#include "table/Frases.h"

#include "frame/TrufalGbl.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Voces.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

constexpr int LARGO_FRASE = 250; // the phrase is centred on the length of a hand
constexpr int PASO_COLUMNA = 11; // a letter under another, at the sides
constexpr unsigned COLOR_SOMBRA = 0x004000;

// Puts the strip back as the seat's cards leave it: table, and the parts of raised cards.
void RepintaFranja(int seat, const QRect& franja) {
    QImage trozo = NuevaImagen(franja.width(), franja.height(), COLOR_MESA);
    PintaCartasSeat(trozo, seat, franja.x(), franja.y());
    Transfiere(Pic_Mesa.Imagen, franja.x(), franja.y(), franja.width(), franja.height(), trozo, 0,
               0, OpRaster::Copia);
}

// Seats 1 and 3: one letter under another, centred on the length of the zone.
void EscribeEnColumna(QPainter& p, int seat, const QString& texto) {
    const int x = seat == 1 ? ZonaDerecha[1] - 9 : ZonaIzquierda[3] + 10;
    const int y0 = ZonaArriba[seat] + (LARGO_FRASE - int(texto.size()) * PASO_COLUMNA) / 2;
    for (int i = 0; i < texto.size(); ++i) {
        // Ten pixels wide, so that the shadow still falls inside the zone.
        const QRect celda(x - 1, y0 + i * PASO_COLUMNA, 10, PASO_COLUMNA);
        p.drawText(celda, Qt::AlignHCenter | Qt::AlignVCenter, texto.mid(i, 1));
    }
}

// Seats 2 and 4: in a row, each letter its own width plus 2, centred on the length of the zone.
void EscribeEnFila(QPainter& p, int seat, const QString& texto) {
    const QFontMetrics medida(p.font());
    int ancho = 0;
    for (const QChar c : texto) ancho += medida.horizontalAdvance(c) + 2;
    int x = ZonaIzquierda[seat] + (LARGO_FRASE - ancho) / 2;
    const int y = seat == 2 ? ZonaAbajo[2] - 15 : ZonaArriba[4] + 1;
    for (const QChar c : texto) {
        p.drawText(QRect(x, y, medida.horizontalAdvance(c) + 2, 14),
                   Qt::AlignLeft | Qt::AlignVCenter, QString(c));
        x += medida.horizontalAdvance(c) + 2;
    }
}

void EscribeTexto(int seat, const QString& texto, const QColor& color, int desvio) {
    AvisaEscritura(Pic_Mesa.Imagen, FranjaFrase(seat));
    QPainter p(&Pic_Mesa.Imagen);
    p.setClipRect(FranjaFrase(seat));
    p.translate(desvio, desvio);
    p.setPen(color);
    const bool columna = seat == 1 || seat == 3;
    p.setFont(LetraMesa(columna ? 10 : 12));
    if (columna)
        EscribeEnColumna(p, seat, texto);
    else
        EscribeEnFila(p, seat, texto);
}

} // namespace

QRect FranjaFrase(int seat) {
    switch (seat) {
    case 1:
        return QRect(ZonaDerecha[1] - 19, ZonaArriba[1], 21, LARGO_FRASE);
    case 2:
        return QRect(ZonaIzquierda[2], ZonaAbajo[2] - 19, LARGO_FRASE, 21);
    case 3:
        return QRect(ZonaIzquierda[3], ZonaArriba[3], 20, LARGO_FRASE);
    default:
        return QRect(ZonaIzquierda[4], ZonaArriba[4], LARGO_FRASE, 20);
    }
}

void EscribeFrase(int seat, int hablar) {
    if (seat < 1 || seat > 4 || Pic_Mesa.Imagen.isNull()) return;
    RepintaFranja(seat, FranjaFrase(seat));
    const QString& texto = FraseJugador[seat][SerieActual];
    if (!texto.isEmpty()) {
        EscribeTexto(seat, texto, ColorWindows(COLOR_SOMBRA), 1);
        EscribeTexto(seat, texto, ColorWindows(ColorFrase[seat][SerieActual]), 0);
    }
    // Drawn before it is said: the person reads the phrase while the seat speaks it.
    if (FraseSeHabla(hablar)) {
        RefrescaMesa();
        Habla(seat, texto);
    }
}
