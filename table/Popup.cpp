#include "table/Popup.h"

#include "frame/OrdenaMano.h"
#include "table/Raton.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/Mesa.h"

#include <QPainter>

namespace {

constexpr int ALTO_LINEA = 18;
constexpr int ANCHO_POPUP = 220;

std::vector<int> Lineas() {
    std::vector<int> lineas;
    for (int i = 1; i <= 10; ++i)
        if (OpcionVisible[i]) lineas.push_back(i);
    return lineas;
}

void PintaPopup() {
    const auto lineas = Lineas();
    QImage imagen = NuevaImagen(ANCHO_POPUP, ALTO_LINEA * int(lineas.size()) + 4, 0xFAF8F0);
    QPainter p(&imagen);
    p.setPen(QColor(90, 90, 90));
    p.drawRect(QRect(0, 0, ANCHO_POPUP - 1, ALTO_LINEA * int(lineas.size()) + 3));
    QFont letra("DejaVu Sans");
    letra.setPixelSize(12);
    p.setFont(letra);
    for (int i = 0; i < int(lineas.size()); ++i) {
        const int entrada = lineas[i];
        const QRect zona(2, 2 + i * ALTO_LINEA, ANCHO_POPUP - 4, ALTO_LINEA);
        const bool apagada = EligiendoOpcion && !OpcionHabilitada[entrada];
        if (i + 1 == LineaIluminada && !apagada) p.fillRect(zona, QColor(0, 0, 160));
        p.setPen(apagada                   ? QColor(160, 160, 160)
                 : i + 1 == LineaIluminada ? Qt::white
                                           : QColor(0, 0, 0));
        if (entrada == OPCION_ORDEN_MANUAL && OrdenManual)
            p.drawText(zona.adjusted(4, 0, 0, 0), Qt::AlignVCenter, "X");
        p.drawText(zona.adjusted(20, 0, 0, 0), Qt::AlignVCenter, TextoOpcion(entrada));
    }
    p.end();
    Pic_SelOpciones.Imagen = imagen;
}

int LineaEn(int y) {
    return (y - Pic_SelOpciones.Y + 16) / ALTO_LINEA;
}

} // namespace

QString TextoOpcion(int entrada) {
    switch (entrada) {
    case 4:
        return "Ordenar cartas manualmente";
    case 5:
        return "Ordenar cartas automáticamente";
    case 6:
        return "Oros";
    case 7:
        return "Copas";
    case 8:
        return "Espadas";
    case 9:
        return "Bastos";
    default:
        return {};
    }
}

bool DentroPopup(int x, int y) {
    const CajaImagen& c = Pic_SelOpciones;
    return c.Visible && x >= c.X && y >= c.Y && x < c.X + c.Ancho() && y < c.Y + c.Alto();
}

void MenuSeleccion() {
    const auto lineas = Lineas();
    if (lineas.empty()) { // nothing to offer: the popup stays closed
        OcultaPopup();
        return;
    }
    LineaIluminada = 0;
    PintaPopup();
    int x = RatonX, y = RatonY;
    if (EligiendoOpcion) {
        const int s = JugadorActual;
        x = (ZonaIzquierda[s] + ZonaDerecha[s]) / 2 - Pic_SelOpciones.Ancho() / 2;
        y = (ZonaArriba[s] + ZonaAbajo[s]) / 2 - Pic_SelOpciones.Alto() / 2;
    }
    // Pushed in so that it fits the window.
    x = std::clamp(x, 0, AnchoVentana - Pic_SelOpciones.Ancho());
    y = std::clamp(y, 0, AltoVentana - Pic_SelOpciones.Alto());
    Pic_SelOpciones.X = x;
    Pic_SelOpciones.Y = y;
    Pic_SelOpciones.Visible = true;
    RefrescaMesa();
}

void OcultaPopup() {
    if (!Pic_SelOpciones.Visible) return;
    Pic_SelOpciones.Visible = false;
    RefrescaMesa();
}

void MuevePopup(int, int y) {
    const int linea = LineaEn(y);
    if (linea != LineaIluminada) {
        LineaIluminada = linea;
        PintaPopup();
        RefrescaMesa();
    }
}

void SueltaPopup(int, int y) {
    const auto lineas = Lineas();
    const int linea = LineaEn(y);
    if (linea < 1 || linea > int(lineas.size())) return;
    const int entrada = lineas[linea - 1];
    if (EligiendoOpcion && !OpcionHabilitada[entrada]) return; // a grey line is refused
    Sonido(SONIDO_ASINCRONO, SONIDO_BOTON);
    switch (entrada) {
    case OPCION_ORDEN_MANUAL:
        OrdenManual = !OrdenManual;
        break;
    case OPCION_ORDEN_AUTOMATICO:
        if (SeatPopup > 0) {
            OrdenaMano(SeatPopup);
            RehaceCandidatas(SeatPopup);
        }
        RefrescaMesa();
        break;
    default:
        if (entrada >= 6 && entrada <= 9 && EligiendoOpcion) {
            OpcionElegida = entrada - 5;
            EligiendoOpcion = false;
        }
        break;
    }
    Pic_SelOpciones.Visible = false;
    RefrescaMesa();
}
