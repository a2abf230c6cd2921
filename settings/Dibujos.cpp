// The pictures of the settings windows. The cards come from the double-size sheets of the
// decks and of the backs, so that they stay sharp when the window is shown larger than its own
// pixels; the rest is drawn with the painter.
#include "settings/Dibujos.h"

#include "frame/TrufalGbl.h"
#include "platform/Carpetas.h"

#include <QFile>
#include <QHash>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>

namespace {

constexpr double PROPORCION_CARTA = 101.0 / 141.0;
constexpr int BARAJA_ESPANOLA = 1, BARAJA_FRANCESA = 2;

// A sheet with its cells in table pixels: the picture may be at double size.
struct Hoja {
    QImage Imagen;
    double K = 1;
};

Hoja BuscaHoja(const QString& sencilla, const QString& doble, bool recurso) {
    QStringList rutas;
    if (recurso) {
        rutas << ":/assets/" + doble << ":/assets/" + sencilla;
    } else {
        for (const QString& carpeta :
             {CarpetaTrabajo, CarpetaPrograma, QStringLiteral(TRUFAL_SOURCE_DIR "/assets/")}) {
            if (carpeta.isEmpty()) continue;
            rutas << ConSeparador(carpeta) + doble << ConSeparador(carpeta) + sencilla;
        }
    }
    for (const QString& ruta : rutas) {
        if (!QFile::exists(ruta)) continue;
        QImage imagen(ruta);
        if (imagen.isNull()) continue;
        return {imagen, ruta.contains("@2x") ? 2.0 : 1.0};
    }
    return {};
}

const Hoja& Baraja(int tipo) {
    static Hoja francesa = BuscaHoja("Baraja01.jpg", "Baraja01@2x.jpg", false);
    static Hoja espanola = BuscaHoja("Baraja02.jpg", "Baraja02@2x.jpg", false);
    return tipo == BARAJA_FRANCESA ? francesa : espanola;
}

const Hoja& Fichas() {
    static Hoja fichas = BuscaHoja("Fichas.png", "Fichas@2x.png", true);
    return fichas;
}

const Hoja& Reversos() {
    static Hoja reversos = BuscaHoja("Reversos.png", "Reversos@2x.png", true);
    return reversos;
}

// Pixels of the device for each pixel of the window, as the painter stands now.
double EscalaDispositivo(const QPainter& p) {
    const QTransform& t = p.deviceTransform();
    return std::max(0.1, std::hypot(t.m11(), t.m12()));
}

// A cell of a sheet brought to the size it takes on the device, with a filter that averages
// what it leaves out: a card many times smaller than its drawing stays clean, not grainy.
QImage CeldaAlTamano(const Hoja& hoja, const QRectF& celda, double anchoPx, double altoPx) {
    static QHash<QString, QImage> hechas;
    const int w = std::max(1, int(std::lround(anchoPx))), h = std::max(1, int(std::lround(altoPx)));
    const QString clave = QStringLiteral("%1/%2,%3/%4x%5")
                              .arg(qintptr(hoja.Imagen.constBits()))
                              .arg(celda.x())
                              .arg(celda.y())
                              .arg(w)
                              .arg(h);
    auto hecha = hechas.constFind(clave);
    if (hecha != hechas.constEnd()) return *hecha;
    if (hechas.size() > 400) hechas.clear();
    const QImage imagen = hoja.Imagen.copy(celda.toRect())
                              .scaled(w, h, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    hechas.insert(clave, imagen);
    return imagen;
}

// Draws a cell of a sheet into a box of the window, already brought to its size.
void PintaCelda(QPainter& p, const QRectF& destino, const Hoja& hoja, const QRectF& celda) {
    const double k = EscalaDispositivo(p);
    p.drawImage(destino, CeldaAlTamano(hoja, celda, destino.width() * k, destino.height() * k));
}

QPainterPath Contorno(const QRectF& r) {
    QPainterPath forma;
    const double radio = r.height() * 6.0 / 141.0;
    forma.addRoundedRect(r, radio, radio);
    return forma;
}

// A card standing at a point, turned by angulo degrees, alto pixels high.
void Carta(QPainter& p, int tipo, int palo, int valor, QPointF centro, double alto, double angulo) {
    const double ancho = alto * PROPORCION_CARTA;
    const QRectF r(-ancho / 2, -alto / 2, ancho, alto);
    p.save();
    p.translate(centro);
    p.rotate(angulo);
    p.fillPath(Contorno(r.translated(0.7, 0.9)), QColor(0, 0, 0, 90));
    const Hoja& hoja = Baraja(tipo);
    const QPainterPath forma = Contorno(r);
    if (!hoja.Imagen.isNull()) {
        p.setClipPath(forma, Qt::IntersectClip);
        const double k = hoja.K;
        PintaCelda(p, r, hoja,
                   QRectF((valor - 1) * 101 * k, (palo - 1) * 141 * k, 101 * k, 141 * k));
        p.setClipping(false);
    } else {
        p.fillPath(forma, Qt::white);
        p.setPen(palo <= 2 ? QColor(180, 20, 20) : Qt::black);
        p.drawText(r, Qt::AlignCenter, QString::number(valor));
    }
    p.strokePath(forma, QPen(QColor(60, 60, 60), 0.4));
    p.restore();
}

// A chip of the sheet of chips (cell 7 is the stone of the Mus), lado pixels across.
void Ficha(QPainter& p, int celda, QPointF centro, double lado) {
    const QRectF r(centro.x() - lado / 2, centro.y() - lado / 2, lado, lado);
    const Hoja& hoja = Fichas();
    QPainterPath disco;
    disco.addEllipse(r);
    p.save();
    p.fillPath(disco.translated(0.6, 0.8), QColor(0, 0, 0, 90));
    if (!hoja.Imagen.isNull()) {
        p.setClipPath(disco, Qt::IntersectClip);
        const double k = hoja.K;
        PintaCelda(p, r, hoja, QRectF((celda - 1) * 33 * k, 0, 33 * k, 33 * k));
    } else {
        p.fillPath(disco, celda == 7 ? QColor(150, 150, 140) : QColor(200, 40, 40));
    }
    p.restore();
}

struct Naipe {
    int Tipo, Palo, Valor;
    double X, Y, Angulo; // centre in a box of 44 by 30
};

// Each game shown by its own cards: a pair in the Póker, a natural in the Black Jack, a song
// in the Tute, the ace and three of the Brisca, seven and a half, the fives that open the
// Cinquillo, kings in the Mus, a run in the Chinchón and the cards that turn the Pumba round.
std::vector<Naipe> NaipesDe(int juego) {
    const int F = BARAJA_FRANCESA, E = BARAJA_ESPANOLA;
    switch (juego) {
    case JUEGO_POKER:
        return {{F, 3, 1, 12, 15, -12}, {F, 2, 1, 22, 15, 6}};
    case JUEGO_BLACKJACK:
        return {{F, 3, 1, 15, 15, -9}, {F, 2, 13, 27, 15, 9}};
    case JUEGO_TUTE:
        return {{E, 1, 11, 15, 15, -9}, {E, 1, 12, 27, 15, 9}};
    case JUEGO_BRISCA:
        return {{E, 4, 3, 18, 17, 90}, {E, 1, 1, 29, 14, 4}};
    case JUEGO_SIETEYMEDIA:
        return {{E, 1, 7, 15, 15, -9}, {E, 2, 10, 27, 15, 9}};
    case JUEGO_CINQUILLO:
        return {
            {E, 1, 5, 8, 15, 0}, {E, 2, 5, 17, 15, 0}, {E, 3, 5, 26, 15, 0}, {E, 4, 5, 35, 15, 0}};
    case JUEGO_MUS:
        return {{E, 1, 12, 12, 15, -10}, {E, 3, 12, 22, 15, 6}};
    case JUEGO_CHINCHON:
        return {{E, 2, 4, 12, 16, -16}, {E, 2, 5, 21, 14, 0}, {E, 2, 6, 30, 16, 16}};
    case JUEGO_PUMBA:
        return {{E, 4, 10, 14, 15, -8}, {E, 3, 2, 25, 15, 8}};
    default:
        return {};
    }
}

// A curved arrow round a point: the turn that goes back in the Pumba.
void FlechaVuelta(QPainter& p, QPointF c, double r) {
    QPainterPath arco;
    arco.arcMoveTo(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), 200);
    arco.arcTo(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), 200, 250);
    p.strokePath(arco, QPen(QColor(255, 226, 60), 1.8, Qt::SolidLine, Qt::RoundCap));
    const double a = qDegreesToRadians(450.0);
    const QPointF fin = c + QPointF(r * std::cos(a), -r * std::sin(a));
    QPainterPath punta;
    punta.moveTo(fin + QPointF(3.2, 0));
    punta.lineTo(fin + QPointF(-1.6, -2.8));
    punta.lineTo(fin + QPointF(-1.6, 2.8));
    punta.closeSubpath();
    p.fillPath(punta, QColor(255, 226, 60));
}

} // namespace

void DibujaJuego(QPainter& p, int juego, const QRectF& caja) {
    p.save();
    p.translate(caja.topLeft());
    p.scale(caja.width() / 44.0, caja.height() / 30.0);
    const double alto = juego == JUEGO_CINQUILLO ? 22 : 25;
    for (const Naipe& n : NaipesDe(juego))
        Carta(p, n.Tipo, n.Palo, n.Valor, QPointF(n.X, n.Y), alto, n.Angulo);
    if (juego == JUEGO_POKER) Ficha(p, 3, QPointF(35, 21), 14);
    if (juego == JUEGO_BLACKJACK) Ficha(p, 4, QPointF(38, 24), 11);
    if (juego == JUEGO_MUS) Ficha(p, 7, QPointF(35, 21), 13);
    if (juego == JUEGO_PUMBA) FlechaVuelta(p, QPointF(37, 8), 5);
    p.restore();
}

void DibujaSentido(QPainter& p, int sentido, const QRectF& caja) {
    p.save();
    p.translate(caja.topLeft());
    p.scale(caja.width() / 123.0, caja.height() / 123.0);
    const QPointF c(61.5, 61.5);
    QRadialGradient tapete(c + QPointF(-12, -14), 70);
    tapete.setColorAt(0, QColor(40, 160, 60));
    tapete.setColorAt(1, QColor(0, 90, 20));
    p.setPen(QPen(QColor(90, 56, 16), 3));
    p.setBrush(tapete);
    p.drawEllipse(c, 56, 56);
    // The turn: clockwise from seat 1 at the left to seat 2 at the top when it is "Directo".
    const double radio = 38;
    const double angulo[5] = {0, 180, 90, 0, 270};
    const double paso = sentido == 1 ? -1 : 1;
    const QRectF circulo(c.x() - radio, c.y() - radio, 2 * radio, 2 * radio);
    for (int s = 1; s <= 4; ++s) {
        const double a0 = angulo[s] + paso * 24, a1 = angulo[s] + paso * 66;
        QPainterPath arco;
        arco.arcMoveTo(circulo, a0);
        arco.arcTo(circulo, a0, a1 - a0);
        p.strokePath(arco, QPen(QColor(255, 226, 60), 3.2, Qt::SolidLine, Qt::RoundCap));
        const double r = qDegreesToRadians(a1);
        const QPointF fin = c + QPointF(radio * std::cos(r), -radio * std::sin(r));
        const QPointF t =
            paso < 0 ? QPointF(std::sin(r), std::cos(r)) : QPointF(-std::sin(r), -std::cos(r));
        const QPointF n(-t.y(), t.x());
        QPainterPath punta;
        punta.moveTo(fin + t * 7);
        punta.lineTo(fin - t * 2 + n * 6);
        punta.lineTo(fin - t * 2 - n * 6);
        punta.closeSubpath();
        p.fillPath(punta, QColor(255, 226, 60));
        p.strokePath(punta, QPen(QColor(120, 80, 0), 0.8));
    }
    for (int s = 1; s <= 4; ++s) {
        const double r = qDegreesToRadians(angulo[s]);
        const QPointF centro = c + QPointF(radio * std::cos(r), -radio * std::sin(r));
        QRadialGradient oro(centro + QPointF(-3, -3), 13);
        oro.setColorAt(0, QColor(255, 240, 170));
        oro.setColorAt(0.7, QColor(232, 176, 40));
        oro.setColorAt(1, QColor(150, 100, 16));
        p.setPen(QPen(QColor(110, 70, 10), 1));
        p.setBrush(oro);
        p.drawEllipse(centro, 11, 11);
        QFont letra(QStringLiteral("DejaVu Sans"));
        letra.setPixelSize(14);
        letra.setBold(true);
        p.setFont(letra);
        p.setPen(QColor(90, 50, 0));
        p.drawText(QRectF(centro.x() - 11, centro.y() - 11, 22, 22), Qt::AlignCenter,
                   QString::number(s));
    }
    p.restore();
}

void DibujaMuestraReverso(QPainter& p, int diseno, const QRectF& caja) {
    const Hoja& hoja = Reversos();
    const QPainterPath forma = Contorno(caja);
    p.save();
    p.fillPath(forma.translated(1, 1.5), QColor(0, 0, 0, 90));
    if (!hoja.Imagen.isNull()) {
        p.setClipPath(forma, Qt::IntersectClip);
        const double k = hoja.K;
        PintaCelda(p, caja, hoja, QRectF(diseno * 101 * k, 0, 101 * k, 141 * k));
        p.setClipping(false);
    } else {
        p.fillPath(forma, QColor(150, 20, 30));
    }
    p.strokePath(forma, QPen(QColor(40, 40, 40), 0.6));
    p.restore();
}
