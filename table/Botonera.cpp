// The bar: eight buttons with their faces and tooltips, the big button and its captions, and
// the refusals that turn the pointer into "no drop".
#include "table/Botonera.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Ayuda.h"
#include "platform/Sonido.h"
#include "settings/Normas.h"
#include "settings/Personal.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Mesa.h"
#include "table/Pulsadores.h"
#include "table/Tutor.h"

#include <QFile>
#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr int Y_BOTON[9] = {0, 5, 65, 125, 245, 185, 305, 365, 425};
const char* const AYUDA_BOTON[9] = {"",
                                    " Comenzar una partida ",
                                    " Personalizar ",
                                    " Normas de juego ",
                                    " Tutor de juego ",
                                    " Estadísticas ",
                                    " Marcador ",
                                    " Ayuda de la aplicación ",
                                    " Salir de la aplicación "};
constexpr int TEMA_AYUDA_PROGRAMA = 1020;
constexpr unsigned COLOR_BOTONERA = 0x1E3A28;

// A plain face for a bar button, while the sheet of faces isn't there.
QImage CaraProvisional(int indice) {
    QImage cara(48, 48, QImage::Format_RGB32);
    cara.fill(QColor::fromRgb(COLOR_BOTONERA));
    QPainter p(&cara);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, 0, 48);
    g.setColorAt(0, QColor(250, 240, 210));
    g.setColorAt(1, QColor(200, 170, 110));
    p.setBrush(g);
    p.setPen(QPen(QColor(90, 60, 20), 2));
    p.drawRoundedRect(QRectF(2, 2, 44, 44), 8, 8);
    p.setPen(QColor(60, 30, 10));
    p.setFont(QFont("DejaVu Sans", 18, QFont::Bold));
    p.drawText(QRect(0, 0, 48, 48), Qt::AlignCenter, QString::number(indice));
    return cara;
}

void CargaCaras() {
    if (!Pic_BmpBoton.Imagen.isNull()) return;
    if (QFile::exists(":/assets/Botones.png"))
        Pic_BmpBoton.Imagen = CargaImagen(":/assets/Botones.png");
}

QImage CaraBoton(int indice) {
    CargaCaras();
    if (Pic_BmpBoton.Ancho() >= 8 * 49 - 1)
        return CopiaLogica(Pic_BmpBoton.Imagen, (indice - 1) * 49, 0, 48, 48);
    return CaraProvisional(indice);
}

void AvisaNoDisponible(int indice) {
    Mensaje(QString::fromUtf8(AYUDA_BOTON[indice]).trimmed(),
            "Esta parte del programa aún no está disponible en esta versión de la mesa.", 1, 1);
}

bool EsPersona(int seat) {
    return ControlJugador[seat] == CONTROL_MANUAL;
}

QString SerieEntre() {
    return NumSeries > 1 ? QStringLiteral(" (%1)").arg(SerieActual) : QString();
}

// The two lines of the big button; unchanged lines keep what they had.
QString LineaUno = "Continuar", LineaDos;

void CalculaLineas() {
    if (!ManoViva) {
        LineaUno = "Continuar";
        LineaDos.clear();
        return;
    }
    const QString nombre = NombreJugador[JugadorActual];
    const bool persona = EsPersona(JugadorActual);
    auto pon = [&](const QString& accion, const QString& sufijo = QString()) {
        if (persona) {
            LineaUno = nombre;
            LineaDos = "automático";
        } else {
            LineaUno = accion;
            LineaDos = nombre + sufijo;
        }
    };
    switch (JuegoActual) {
    case JUEGO_POKER:
        if (FaseJuego == FASE_POKER_APUESTA1 || FaseJuego == FASE_POKER_APUESTA2)
            pon("Apuesta");
        else if (FaseJuego == FASE_POKER_DESCARTE)
            pon("Descarta");
        break;
    case JUEGO_BLACKJACK:
    case JUEGO_SIETEYMEDIA:
        if (FaseJuego == FASE_BJ_APUESTA)
            pon("Apuesta", SerieEntre());
        else if (FaseJuego == FASE_BJ_JUEGO)
            pon("Juega", SerieEntre());
        break;
    case JUEGO_TUTE:
    case JUEGO_BRISCA:
    case JUEGO_CINQUILLO:
    case JUEGO_PUMBA:
        pon("Juega");
        break;
    case JUEGO_CHINCHON:
        if (FaseJuego == FASE_CHINCHON_TOMA)
            pon("Toma carta");
        else if (FaseJuego == FASE_CHINCHON_DESCARTE || FaseJuego == FASE_CHINCHON_CIERRE)
            pon("Descarta");
        else if (FaseJuego == FASE_CHINCHON_DECIDE)
            pon("Decide");
        break;
    case JUEGO_MUS:
        if (FaseJuego == FASE_MUS_MUS)
            pon("Decide");
        else if (FaseJuego == FASE_MUS_DESCARTE)
            pon("Descarta");
        else if (FaseJuego == FASE_MUS_ENVITE)
            pon("Envida");
        else if (FaseJuego == FASE_MUS_RESUELVE) {
            LineaUno = OrdagoEnJuego ? "Resolver" : "Mostrar";
            LineaDos = OrdagoEnJuego ? "órdago" : "cartas";
        }
        break;
    default:
        break;
    }
}

void PintaContinuar(bool pulsado) {
    QImage cara = NuevaImagen(86, 36, COLOR_BOTONERA);
    QPainter p(&cara);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, 0, 36);
    g.setColorAt(0, pulsado ? QColor(170, 140, 60) : QColor(255, 230, 140));
    g.setColorAt(1, pulsado ? QColor(230, 200, 110) : QColor(200, 150, 40));
    p.setBrush(g);
    p.setPen(QPen(QColor(80, 50, 10), 1.5));
    p.drawRoundedRect(QRectF(1, 1, 84, 34), 7, 7);
    p.setPen(QColor(40, 20, 0));
    QFont letra("DejaVu Sans", 7, QFont::Bold);
    letra.setPixelSize(11);
    p.setFont(letra);
    const int baja = pulsado ? 1 : 0;
    if (LineaDos.isEmpty()) {
        p.drawText(QRect(0, 12 + baja, 86, 20), Qt::AlignHCenter | Qt::AlignTop, LineaUno);
    } else {
        p.drawText(QRect(0, 4 + baja, 86, 14), Qt::AlignHCenter | Qt::AlignTop, LineaUno);
        p.drawText(QRect(0, 18 + baja, 86, 14), Qt::AlignHCenter | Qt::AlignTop, LineaDos);
    }
    p.end();
    Pic_BotContinuar.Imagen = cara;
}

} // namespace

void PreparaBotonera() {
    IniciaEtiquetas(); // the captions of the action buttons beside the seats
    DimensionaCaja(Pic_Botonera, ANCHO_BOTONERA, AltoVentana, COLOR_BOTONERA);
    Pic_Botonera.X = AnchoMesa;
    Pic_Botonera.Y = 0;
    Pic_Botonera.Visible = true;
    for (int i = 1; i <= 8; ++i) {
        Pic_Boton[i].Imagen = CaraBoton(i);
        Pic_Boton[i].X = AnchoMesa + 20;
        Pic_Boton[i].Y = Y_BOTON[i];
        Pic_Boton[i].Texto = QString::fromUtf8(AYUDA_BOTON[i]);
        Pic_Boton[i].Visible = true;
    }
    // The big button sits centred between the exit button and the bottom of the window.
    Pic_BotContinuar.X = AnchoMesa + (ANCHO_BOTONERA - 86) / 2;
    Pic_BotContinuar.Y = (Y_BOTON[8] + 48 + AltoVentana - 36) / 2;
    PintaContinuar(false);
}

void RefrescaBotonera() {
    RefrescaMesa();
}

QString LineaContinuar(int linea) {
    return linea == 1 ? LineaUno : LineaDos;
}

void DibujaContinuar(bool pulsado) {
    CalculaLineas();
    PintaContinuar(pulsado);
    Pic_BotContinuar.Visible = true;
    RefrescaMesa();
    EsperandoPersona = true;
}

void OcultaPulsadores() {
    for (int i = 81; i <= 102; ++i) Pic_Pulsador[i].Visible = false;
}

bool BotonRechazado(int indice) {
    const bool entreManos = PartidaViva && !ManoViva;
    switch (indice) {
    case 1:
    case 8:
        return entreManos;
    case 2:
        return EligiendoMano || Repartiendo ||
               ((JuegoActual == JUEGO_CINQUILLO || JuegoActual == JUEGO_PUMBA) &&
                ModoReparto == 1 && entreManos);
    case 3:
        return EligiendoMano || entreManos;
    case 4:
        return !(CartasVisibles[JugadorActual] == 2 && ManoViva &&
                 ControlJugador[JugadorActual] == CONTROL_MANUAL && EsperandoPersona);
    case 5:
        if (CartasVisibles[JugadorActual] == 1 && ManoViva) return true;
        return !ManoViva && JuegoActual != JUEGO_TUTE && JuegoActual != JUEGO_BRISCA;
    case 6:
        return AnularReparto || EligiendoMano;
    default:
        return false;
    }
}

void PulsaBoton(int indice) {
    if (BotonRechazado(indice)) {
        PonCursor(CURSOR_PROHIBIDO);
        return;
    }
    if (!EligiendoOpcion) Pic_SelOpciones.Visible = false;
    OrdenManual = false;
    if (indice != 4) Sonido(SONIDO_ASINCRONO, SONIDO_BOTON);
    switch (indice) {
    case 1:
        PulsaComenzar();
        break;
    case BOTON_PERSONALIZAR:
        PulsaPersonalizar();
        break;
    case BOTON_NORMAS:
        PulsaNormas();
        break;
    case 4:
        Tutor();
        break;
    case 7:
        AbreAyuda(TEMA_AYUDA_PROGRAMA);
        break;
    case 8:
        PulsaSalir();
        break;
    default:
        // The windows of statistics and scoreboard come with their parts of the program;
        // until then their buttons tell so.
        AvisaNoDisponible(indice);
        break;
    }
}

void PulsaContinuar() {
    if (!EsperandoPersona) return;
    if (!EligiendoOpcion) Pic_SelOpciones.Visible = false;
    Sonido(SONIDO_ASINCRONO, SONIDO_BOTON);
    DibujaContinuar(true);
    Pausa(420);
    EsperandoPersona = false;
    JugadaHecha = false;
    if (!ContinuarManual)
        OcultaContinuar();
    else {
        PintaContinuar(false);
        RefrescaMesa();
    }
}

bool TeclaMesa(int tecla, bool control) {
    if (tecla == Qt::Key_Q || tecla == Qt::Key_Escape || (control && tecla == Qt::Key_C))
        return true; // these keys do nothing at the table
    if (tecla == Qt::Key_Control || tecla == Qt::Key_Shift || tecla == Qt::Key_Alt ||
        tecla == Qt::Key_Meta)
        return false; // a modifier alone is not a key press of the person
    PulsaContinuar();
    if (!PartidaViva) PulsaBoton(1);
    return true;
}
