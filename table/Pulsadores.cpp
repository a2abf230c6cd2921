// Action buttons: a skin stretched to the button's size with its caption, placed beside the
// seat it belongs to, lying along the seat's edge for the seats at the sides.
#include "table/Pulsadores.h"

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "games/pumba/PartidaPumba.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Popup.h"

#include <QFile>
#include <QPainter>

namespace {

constexpr int ANCHO_NORMAL = 80, ALTO_PULSADOR = 23, ANCHO_LARGO = 148;

int AnchoDe(int indice) {
    if (indice == 87) return ANCHO_LARGO;
    if (indice == 83 || indice == 84) return 30;
    if (indice == 102) return 110;
    return ANCHO_NORMAL;
}

bool PorSeries() {
    return JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA;
}

bool HayCartaElegida(int seat) {
    for (int p = 1; p <= NumCartas[seat][1]; ++p)
        if (CartasJugador[seat][1][p][CAMPO_ESTADO] == 1) return true;
    return false;
}

void SkinPorDefecto(QImage& imagen, bool pulsado) {
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    const int w = CajaImagen::AnchoLogico(imagen), h = CajaImagen::AltoLogico(imagen);
    QLinearGradient g(0, 0, 0, h);
    g.setColorAt(0, pulsado ? QColor(150, 110, 40) : QColor(250, 225, 150));
    g.setColorAt(1, pulsado ? QColor(220, 180, 90) : QColor(190, 140, 50));
    p.setBrush(g);
    p.setPen(QPen(QColor(70, 40, 10), 1));
    p.drawRoundedRect(QRectF(0.5, 0.5, w - 1, h - 1), 5, 5);
}

// The skin of the sheet: left end, a middle column repeated, right end.
bool SkinDeLamina(QImage& imagen, bool pulsado) {
    if (Pic_BmpContr.Imagen.isNull() && QFile::exists(":/assets/Contr.png"))
        Pic_BmpContr.Imagen = CargaImagen(":/assets/Contr.png");
    const QImage& hoja = Pic_BmpContr.Imagen;
    if (hoja.isNull()) return false;
    const int fila =
        pulsado && CajaImagen::AltoLogico(hoja) >= 2 * ALTO_PULSADOR ? ALTO_PULSADOR : 0;
    const int extremo = 8;
    const int w = CajaImagen::AnchoLogico(imagen);
    QPainter p(&imagen);
    const int anchoHoja = CajaImagen::AnchoLogico(hoja);
    p.drawImage(QRect(0, 0, extremo, ALTO_PULSADOR),
                CopiaLogica(hoja, 0, fila, extremo, ALTO_PULSADOR));
    p.drawImage(QRect(extremo, 0, w - 2 * extremo, ALTO_PULSADOR),
                CopiaLogica(hoja, extremo, fila, 1, ALTO_PULSADOR));
    p.drawImage(QRect(w - extremo, 0, extremo, ALTO_PULSADOR),
                CopiaLogica(hoja, anchoHoja - extremo, fila, extremo, ALTO_PULSADOR));
    return true;
}

// Mus: mus or no mus in its round; "Si hay" and "No hay" while each says whether it holds the
// lance; the order to the partner in the round of mus, and in a lance the partner still plays.
void DecidePulsadoresMus(bool quiere[103]) {
    if (FaseJuego == FASE_MUS_MUS) quiere[PULSADOR_MUS] = quiere[PULSADOR_NO_MUS] = true;
    const bool declarando = FaseJuego == FASE_MUS_ENVITE && RondaDeclaracion;
    if (declarando && DetallarPasos) quiere[PULSADOR_SI_HAY] = quiere[PULSADOR_NO_HAY] = true;
    const bool enLance = FaseJuego == FASE_MUS_ENVITE && !declarando && CompaneroEnLance;
    if (LanceActual <= 5 && (FaseJuego == FASE_MUS_MUS || enLance)) quiere[PULSADOR_MANDO] = true;
}

} // namespace

void IniciaEtiquetas() {
    EtiquetaControl[PULSADOR_CARTA] = "Carta";
    EtiquetaControl[PULSADOR_SERVIDO] = "Servido";
    EtiquetaControl[PULSADOR_SERIE_ANTERIOR] = "◀";
    EtiquetaControl[PULSADOR_SERIE_SIGUIENTE] = "▶";
    EtiquetaControl[PULSADOR_DOBLAR] = "Doblar";
    EtiquetaControl[PULSADOR_SEGURO] = "Seguro";
    EtiquetaControl[PULSADOR_AZAR] = "Resto de cartas al azar";
    EtiquetaControl[PULSADOR_DESCARTO] = "Descarto";
    EtiquetaControl[PULSADOR_PUMBA] = "Pumba";
    EtiquetaControl[PULSADOR_CERRAR] = "Cerrar";
    EtiquetaControl[PULSADOR_SEGUIR] = "Seguir";
    EtiquetaControl[PULSADOR_MUS] = "Mus";
    EtiquetaControl[PULSADOR_NO_MUS] = "No mus";
    EtiquetaControl[PULSADOR_SI_HAY] = "Si hay";
    EtiquetaControl[PULSADOR_NO_HAY] = "No hay";
    EtiquetaControl[PULSADOR_MANDO] =
        FaseJuego == FASE_MUS_ENVITE ? "Mando envidar" : "Mando cortar";
}

void DecidePulsadores(int seat, bool quiere[103]) {
    for (int i = 0; i <= 102; ++i) quiere[i] = false;
    const bool manual = ControlJugador[seat] == CONTROL_MANUAL;
    if (!manual || seat != JugadorActual) return;
    if (PorSeries()) {
        const bool ultima = SerieActual == NumSeries;
        // A Black Jack bank plays by its rule; a person who holds the Siete y media bank asks
        // for its cards like any seat.
        const bool banca =
            JuegoActual == JUEGO_BLACKJACK && seat == JugadorBanca && JugadoresMano >= 2;
        if (FaseJuego == 4 && ultima && !SerieCerrada[seat][SerieActual] && !banca) {
            quiere[PULSADOR_CARTA] = quiere[PULSADOR_SERVIDO] = true;
            const auto& primera = CartasJugador[seat][SerieActual][1];
            if (SerieActual > 1 && primera[CAMPO_VALOR] == 1 && PuedeAbrir)
                quiere[PULSADOR_CARTA] = false;
        }
        if (SeriesJugador[seat] >= 2) {
            quiere[PULSADOR_SERIE_ANTERIOR] = SerieActual > 1;
            quiere[PULSADOR_SERIE_SIGUIENTE] = SerieActual < SeriesJugador[seat];
        }
        if (JuegoActual == JUEGO_BLACKJACK && ultima) {
            quiere[PULSADOR_DOBLAR] = PuedeDoblar;
            quiere[PULSADOR_SEGURO] = PuedeAsegurar;
            if (quiere[PULSADOR_DOBLAR] || quiere[PULSADOR_SEGURO])
                quiere[PULSADOR_SERIE_ANTERIOR] = quiere[PULSADOR_SERIE_SIGUIENTE] = false;
        }
    }
    const bool eligiendo = EsperandoPersona && FaseJuego == 4 && !TutorEnCurso;
    if (JuegoActual == JUEGO_POKER && eligiendo) {
        quiere[PULSADOR_SERVIDO] = !HayCartaElegida(seat);
        quiere[PULSADOR_DESCARTO] = HayCartaElegida(seat);
    }
    if (JuegoActual == JUEGO_MUS && eligiendo) quiere[PULSADOR_DESCARTO] = HayCartaElegida(seat);
    if (JuegoActual == JUEGO_CHINCHON && FaseJuego == 3 && ManoViva && PuedeCerrar)
        quiere[PULSADOR_CERRAR] = quiere[PULSADOR_SEGUIR] = true;
    if (JuegoActual == JUEGO_MUS && ManoViva) DecidePulsadoresMus(quiere);
    if (!FraseJugador[seat][SerieActual].isEmpty())
        quiere[PULSADOR_DOBLAR] = quiere[PULSADOR_SEGURO] = quiere[PULSADOR_MANDO] = false;
}

void DibujaPulsador(int indice, bool tumbado, bool pulsado) {
    // The order to the partner reads by the phase of the Mus.
    if (indice == PULSADOR_MANDO)
        EtiquetaControl[PULSADOR_MANDO] =
            FaseJuego == FASE_MUS_ENVITE ? "Mando envidar" : "Mando cortar";
    const int ancho = AnchoDe(indice);
    QImage imagen = NuevaImagen(ancho, ALTO_PULSADOR, COLOR_MESA);
    if (!SkinDeLamina(imagen, pulsado)) SkinPorDefecto(imagen, pulsado);
    {
        QPainter p(&imagen);
        QFont letra("DejaVu Sans");
        letra.setPixelSize(11);
        letra.setBold(true);
        p.setFont(letra);
        p.setPen(QColor(40, 20, 0));
        p.drawText(QRect(0, pulsado ? 1 : 0, ancho, ALTO_PULSADOR), Qt::AlignCenter,
                   EtiquetaControl[indice]);
    }
    if (tumbado) imagen = GiraCuarto(GiraCuarto(GiraCuarto(imagen)));
    Pic_Pulsador[indice].Imagen = imagen;
}

void ColocaPulsador(int seat, int indice) {
    const bool tumbado = seat == 1 || seat == 3;
    DibujaPulsador(indice, tumbado);
    CajaImagen& b = Pic_Pulsador[indice];
    // Buttons of a seat stand in a row beside its cards, one after the other by index; the
    // narrow arrows take only their own room.
    int avance = 0;
    for (int i = 81; i < indice; ++i) {
        const CajaImagen& antes = Pic_Pulsador[i];
        if (antes.Visible && antes.Texto == QString::number(seat))
            avance += (tumbado ? antes.Alto() : antes.Ancho()) + 4;
    }
    switch (seat) {
    case 1:
        b.X = ZonaDerecha[1] + 4;
        b.Y = ZonaArriba[1] + avance;
        break;
    case 2:
        b.X = ZonaIzquierda[2] + avance;
        b.Y = ZonaAbajo[2] + 4;
        break;
    case 3:
        b.X = ZonaIzquierda[3] - b.Ancho() - 4;
        b.Y = ZonaArriba[3] + avance;
        break;
    default:
        b.X = ZonaIzquierda[4] + avance;
        b.Y = ZonaArriba[4] - b.Alto() - 4;
        break;
    }
    b.Texto = QString::number(seat);
    b.Visible = true;
}

int PulsadorBajo(int x, int y) {
    for (int i = 102; i >= 81; --i) {
        const CajaImagen& b = Pic_Pulsador[i];
        if (b.Visible && x >= b.X && y >= b.Y && x < b.X + b.Ancho() && y < b.Y + b.Alto())
            return i;
    }
    return 0;
}

void PulsaPulsador(int indice) {
    OcultaPopup();
    SuenaMesa(SONIDO_ASINCRONO, SONIDO_SELECCION);
    const bool tumbado = Pic_Pulsador[indice].Alto() > Pic_Pulsador[indice].Ancho();
    DibujaPulsador(indice, tumbado, true);
    RefrescaMesa();
    auto termina = [](bool& bandera) {
        bandera = true;
        EsperandoPersona = false;
    };
    switch (indice) {
    case PULSADOR_CARTA:
        termina(PideCarta);
        break;
    case PULSADOR_SERVIDO:
        termina(PideServido);
        break;
    case PULSADOR_SERIE_ANTERIOR:
    case PULSADOR_SERIE_SIGUIENTE:
        if (indice == PULSADOR_SERIE_ANTERIOR ? SerieActual > 1
                                              : SerieActual < SeriesJugador[JugadorActual]) {
            SerieActual += indice == PULSADOR_SERIE_ANTERIOR ? -1 : 1;
            FraseJugador[JugadorActual][SerieActual] = QStringLiteral("Serie %1").arg(SerieActual);
            ColorFrase[JugadorActual][SerieActual] = 0xFFFF00;
            DibujaJugador(JugadorActual);
            if (JuegoActual == JUEGO_SIETEYMEDIA && SerieActual == NumSeries)
                DibujaPilas(JugadorActual);
        }
        break;
    case PULSADOR_DOBLAR:
        termina(PideDoblar);
        break;
    case PULSADOR_SEGURO:
        termina(PideSeguro);
        break;
    case PULSADOR_AZAR:
        ReparteRestantesAlAzar();
        break;
    case PULSADOR_DESCARTO:
        EsperandoPersona = false;
        break;
    case PULSADOR_PUMBA:
        PulsaBotonPumba(); // the wait goes on: the card is still to be laid
        break;
    case PULSADOR_CERRAR:
        termina(PulsoCerrar);
        break;
    case PULSADOR_SEGUIR:
        termina(PulsoSeguir);
        break;
    case PULSADOR_MUS:
        termina(PulsoMus);
        break;
    case PULSADOR_NO_MUS:
        termina(PulsoCorte);
        break;
    // In Mus "Si hay" and "No hay" are taken only when they tell the truth.
    case PULSADOR_SI_HAY:
        if (JuegoActual != JUEGO_MUS || TieneLanceTurno) termina(PulsoSi);
        break;
    case PULSADOR_NO_HAY:
        if (JuegoActual != JUEGO_MUS || !TieneLanceTurno) termina(PulsoNo);
        break;
    case PULSADOR_MANDO:
        if (JuegoActual != JUEGO_MUS) break;
        if (FaseJuego == FASE_MUS_MUS) OrdenCortar[JugadorActual] = true;
        if (FaseJuego == FASE_MUS_ENVITE) OrdenEnvidar[JugadorActual] = true;
        break;
    default:
        break;
    }
    if (Pic_Pulsador[indice].Visible) {
        DibujaPulsador(indice, tumbado, false);
        RefrescaMesa();
    }
    SuenaMesa(SONIDO_ASINCRONO, SONIDO_SUELTA);
}
