// The person's panel in a lance of Mus: the seat, the lance, the envite on the figure with "+"
// and "-", and only the answers the lance allows now (envido or acepto, for one or for both,
// paso, órdago).
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"
#include "platform/Bomba.h"
#include "platform/Reloj.h"
#include "platform/Sonido.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"

#include <QGuiApplication>
#include <QPainter>

namespace {

constexpr int ANCHO_PANEL = 157, ALTO_PANEL = 141;
constexpr int MARGEN_FILA = 8; // the rows of answers run this far from the panel's sides
constexpr int REPITE_PRIMERA = 450, REPITE_SIGUIENTES = 150; // a held "+" or "-"

// The buttons of the panel; the items keep the numbers of the board's captions.
enum BotonPanel {
    BOTON_MAS,
    BOTON_MENOS,
    ITEM_ENVIDO = 13,
    ITEM_ENVIDAMOS = 14,
    ITEM_PASO = 11,
    ITEM_PASAMOS = 12,
    BOTON_ORDAGO = 20
};

struct BotonVisible {
    int Boton;
    QRect Caja;
    QString Texto;
};
std::vector<BotonVisible> Botones;

void PintaBoton(QPainter& p, const BotonVisible& b) {
    QLinearGradient g(b.Caja.topLeft(), b.Caja.bottomLeft());
    g.setColorAt(0, QColor(250, 225, 150));
    g.setColorAt(1, QColor(190, 140, 50));
    p.setBrush(g);
    p.setPen(QPen(QColor(70, 40, 10), 1));
    p.drawRoundedRect(QRectF(b.Caja).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    // A pair of answers shares a row, so each takes a smaller letter to fit its half.
    const int letra = b.Boton == BOTON_MAS || b.Boton == BOTON_MENOS ? 16
                      : b.Caja.width() < 100                         ? 10
                                                                     : 11;
    p.setFont(LetraMesa(letra));
    p.setPen(QColor(255, 255, 255));
    p.drawText(b.Caja.translated(-1, -1), Qt::AlignCenter, b.Texto);
    p.setPen(QColor(40, 20, 0));
    p.drawText(b.Caja, Qt::AlignCenter, b.Texto);
}

// The answers the lance allows, one row each; a pair of items shares its row at half width.
void ColocaBotones() {
    Botones.clear();
    // A pair of answers shares a row: each half must hold "Envidamos" or "Aceptamos" whole.
    const int ancho = ANCHO_PANEL - 2 * MARGEN_FILA, x = MARGEN_FILA, medio = (ancho - 3) / 2;
    if (PuedeSubir) {
        Botones.push_back({BOTON_MENOS, QRect(10, 38, 30, 24), "-"});
        Botones.push_back({BOTON_MAS, QRect(ANCHO_PANEL - 40, 38, 30, 24), "+"});
    }
    const bool acepta = HayEnvite || ApuestaMaxRonda == ORDAGO;
    const QString uno = acepta ? "Acepto" : "Envido";
    const QString dos = acepta ? "Aceptamos" : "Envidamos";
    int y = 66;
    if (SoloPareja) {
        Botones.push_back({ITEM_ENVIDAMOS, QRect(x, y, ancho, 22), "Aceptamos"});
    } else if (SoloYo) {
        Botones.push_back({ITEM_ENVIDO, QRect(x, y, ancho, 22), uno});
    } else {
        Botones.push_back({ITEM_ENVIDO, QRect(x, y, medio, 22), uno});
        Botones.push_back({ITEM_ENVIDAMOS, QRect(x + ancho - medio, y, medio, 22), dos});
    }
    y += 25;
    if (!SigoCompanero) {
        if (NoPorDos) {
            Botones.push_back({ITEM_PASO, QRect(x, y, ancho, 22), "Paso"});
        } else {
            Botones.push_back({ITEM_PASO, QRect(x, y, medio, 22), "Paso"});
            Botones.push_back({ITEM_PASAMOS, QRect(x + ancho - medio, y, medio, 22), "Pasamos"});
        }
        y += 25;
    }
    if (ApuestaMaxRonda != ORDAGO)
        Botones.push_back({BOTON_ORDAGO, QRect(x, y, ancho, 22), "Órdago"});
}

void PintaPanel() {
    QImage panel = NuevaImagen(ANCHO_PANEL, ALTO_PANEL, 0x1E4A2A);
    EscribeConSombra(panel, QRect(0, 3, ANCHO_PANEL, 16), Qt::AlignCenter,
                     NombreJugador[JugadorActual], LetraMesa(13), QColor(255, 255, 0),
                     QColor(128, 128, 128));
    QPainter p(&panel);
    p.setPen(QPen(QColor(10, 30, 15), 2));
    p.drawRect(1, 1, ANCHO_PANEL - 2, ALTO_PANEL - 2);
    p.setFont(LetraMesa(11));
    p.setPen(QColor(120, 255, 120));
    p.drawText(QRect(0, 19, ANCHO_PANEL, 16), Qt::AlignCenter, NombreLance[LanceActual]);
    // The figure, in the glass of the board.
    const QRect cifra(46, 38, ANCHO_PANEL - 92, 24);
    p.fillRect(cifra, QColor(10, 20, 10));
    p.setPen(QColor(255, 200, 60));
    p.setFont(LetraMesa(ApuestaPersona == ORDAGO ? 13 : 18));
    p.drawText(cifra, Qt::AlignCenter,
               ApuestaPersona == ORDAGO ? QStringLiteral("Órdago")
                                        : QString::number(ApuestaPersona));
    for (const BotonVisible& b : Botones) PintaBoton(p, b);
    p.end();
    Pic_Apostadora.Imagen = panel;
}

// One step of "+" or "-" within the limits: up to the stones of a game, down to the envite on
// the table, or to 2 when nobody has bet.
bool Paso(int signo) {
    const int minimo = ApuestaMaxRonda == 0 ? 2 : ApuestaMaxRonda;
    const int nueva = ApuestaPersona + signo;
    if (nueva > PiedrasJuego || nueva < minimo) return false;
    ApuestaPersona = nueva;
    DibujaApostadoraMus();
    return true;
}

// Notes the release of the mouse while a "+" or "-" is held: the release is seen as the event
// goes by, whichever window takes it.
class EsperaSuelta : public QObject {
  public:
    bool Suelto = false;
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::MouseButtonRelease) Suelto = true;
        return false;
    }
};

// One step of "+" or "-", and while it is held more, first after a while and then quicker, until
// it is let go.
void PasoYRepite(int signo) {
    // A press that no mouse holds (one made for the person by the program) steps once.
    if (!QGuiApplication::instance() || !(QGuiApplication::mouseButtons() & Qt::LeftButton)) {
        Paso(signo);
        return;
    }
    // Listening from before the first step, so that no release goes unseen.
    EsperaSuelta suelta;
    QGuiApplication::instance()->installEventFilter(&suelta);
    bool sigue = Paso(signo);
    qint64 siguiente = Ahora() + REPITE_PRIMERA;
    while (sigue) {
        BombeaEventos();
        const bool apretado = QGuiApplication::mouseButtons() & Qt::LeftButton;
        if (suelta.Suelto || !apretado || !PartidaViva) break;
        if (Ahora() < siguiente) {
            DuermeHasta(Ahora() + 10);
            continue;
        }
        sigue = Paso(signo);
        siguiente = Ahora() + REPITE_SIGUIENTES;
    }
    QGuiApplication::instance()->removeEventFilter(&suelta);
}

void Responde(int apuesta, bool porDos) {
    ApuestaPersona = apuesta;
    HablaPorDos = porDos;
    JugadaHecha = true;
    EsperandoPersona = false;
}

void PulsaPanel(int x, int y) {
    if (!EsperandoPersona) return;
    for (const BotonVisible& b : Botones) {
        if (!b.Caja.contains(x, y)) continue;
        Sonido(SONIDO_ASINCRONO, SONIDO_SELECCION);
        switch (b.Boton) {
        case BOTON_MAS:
        case BOTON_MENOS: {
            PasoYRepite(b.Boton == BOTON_MAS ? 1 : -1);
            return;
        }
        case ITEM_ENVIDO:
            return Responde(ApuestaPersona, false);
        case ITEM_ENVIDAMOS:
            return Responde(ApuestaPersona, true);
        case ITEM_PASO:
            return Responde(0, false);
        case ITEM_PASAMOS:
            return Responde(0, true);
        case BOTON_ORDAGO:
            return Responde(ORDAGO, true);
        default:
            return;
        }
    }
}

const bool Registrado = [] {
    RutinaApostadora[JUEGO_MUS] = PulsaPanel;
    return true;
}();

} // namespace

void DibujaApostadoraMus() {
    (void)Registrado;
    PermisosEnvite(JugadorActual);
    ColocaBotones();
    PintaPanel();
    Pic_Apostadora.X = std::max(0, ZonaIzquierda[4] - ANCHO_PANEL - 12);
    // Above the information pane of the corner, so that neither hides the other.
    Pic_Apostadora.Y = AltoVentana - ALTO_SUGERENCIA - ALTO_PANEL - 4;
    Pic_Apostadora.Visible = true;
    RefrescaMesa();
}

void OcultaApostadoraMus() {
    if (!Pic_Apostadora.Visible) return;
    Pic_Apostadora.Visible = false;
    Botones.clear();
    RefrescaMesa();
}

// For the tests: the captions of the panel's buttons as the person sees them, and a press on one.
QStringList BotonesApostadoraMus() {
    QStringList textos;
    for (const BotonVisible& b : Botones) textos << b.Texto;
    return textos;
}

bool PulsaBotonApostadoraMus(const QString& texto) {
    for (const BotonVisible& b : Botones)
        if (b.Texto == texto) {
            PulsaPanel(b.Caja.center().x(), b.Caja.center().y());
            return true;
        }
    return false;
}
