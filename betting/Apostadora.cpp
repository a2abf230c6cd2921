// The betting panel: drawn whole for the seat on turn, its figures in the glass digits, its
// buttons pressed with a click; and the chips of the seat, staked one by one with the mouse.
#include "betting/Apostadora.h"

#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Jugador.h"
#include "platform/Bomba.h"
#include "platform/Reloj.h"
#include "platform/Sonido.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"

#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr int LADO_FICHA = 33;
constexpr int ANCHO_DIGITO = 10, ALTO_DIGITO = 17;
constexpr int CELDA_BLANCO = 10; // the blank cell of the strip of digits
// The panel from top to bottom: the name, the heading, the figures, then the buttons.
constexpr int Y_NOMBRE = 2, ALTO_NOMBRE = 16;
constexpr int Y_CABECERA = 19, ALTO_CABECERA = 11;
constexpr int Y_CIFRAS = 31, ALTO_CIFRAS = ALTO_DIGITO + 4;
constexpr int Y_PRIMER_BOTON = 56, PASO_BOTONES = 28;
// The fields of the figures: in Póker the stake of the round and of the hand side by side, else
// one field in the middle.
constexpr int X_ACTUAL_POKER = 18, X_ACUMULADO_POKER = 87, ANCHO_CAMPO_POKER = 52;
constexpr int X_ACTUAL = 44, ANCHO_CAMPO = 69;
constexpr int PAUSA_PULSADO = 130; // a pressed button stays down so long
constexpr int PAUSA_LIMITE = 120;  // "+" or "-" at its limit

constexpr unsigned COLOR_FONDO_ALTO = 0x2B4A33, COLOR_FONDO_BAJO = 0x16291B;
constexpr unsigned COLOR_NOMBRE = 0xFFE040, COLOR_SOMBRA_NOMBRE = 0x707070;
constexpr unsigned COLOR_CABECERA = 0x60E060, COLOR_ACUMULADO = 0xC8C8C8;

bool EsPoker() {
    return JuegoActual == JUEGO_POKER;
}

bool EsMus() {
    return JuegoActual == JUEGO_MUS;
}

bool Soltado = true; // the mouse was released since the last press on the panel

QRect CajaBoton(int indice) {
    const BotonApostadora& b = BotonesApostadora[indice];
    return QRect(b.X, b.Y, b.Ancho, ALTO_BOTON_APOSTADORA);
}

// The panel stands left of the person's cards, above the information pane where there is room.
void ColocaPanel() {
    Pic_Apostadora.X = std::max(ZonaIzquierda[4] - ANCHO_APOSTADORA - 8, 0);
    const int encima = AltoVentana - ALTO_SUGERENCIA - ALTO_APOSTADORA - 4;
    const int finPilasSeat1 = ZonaAbajo[1] + 10 + 76 + 5;
    const bool libre = Pic_Apostadora.X > 145 || encima > finPilasSeat1;
    if (libre) {
        Pic_Apostadora.Y = encima;
        return;
    }
    // A small table has no room there without covering the left seat's chips: the panel
    // stands over the person's cards, right of the left seat's cards, where only the stock lies.
    Pic_Apostadora.X = ZonaDerecha[1] + 6;
    Pic_Apostadora.Y = std::max(ZonaArriba[4] - ALTO_APOSTADORA - 4, 0);
}

void PintaFondo(QImage& imagen) {
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, 0, ALTO_APOSTADORA);
    g.setColorAt(0, QColor::fromRgb(COLOR_FONDO_ALTO));
    g.setColorAt(1, QColor::fromRgb(COLOR_FONDO_BAJO));
    p.setBrush(g);
    p.setPen(QPen(QColor(0xC0, 0xA0, 0x50), 2));
    p.drawRoundedRect(QRectF(1, 1, ANCHO_APOSTADORA - 2, ALTO_APOSTADORA - 2), 6, 6);
}

// The largest letter, up to the size given, in which a text fits a width: a heading or a caption
// always shows whole, however the panel is drawn.
QFont LetraQueCabe(const QString& texto, int ancho, int pixeles) {
    QFont letra = LetraMesa(pixeles);
    while (pixeles > 6 && QFontMetrics(letra).horizontalAdvance(texto) > ancho)
        letra = LetraMesa(--pixeles);
    return letra;
}

// A heading centred over a field of figures; it may spread beyond the field, between desde and
// hasta, but no further.
void PintaTituloCampo(QPainter& p, int x, int ancho, int desde, int hasta, const QString& texto,
                      unsigned color) {
    const int centro = x + ancho / 2;
    const int hueco = 2 * std::min(centro - desde, hasta - centro) - 4;
    p.setFont(LetraQueCabe(texto, hueco, ALTO_CABECERA - 1));
    p.setPen(QColor::fromRgb(color));
    p.drawText(QRect(centro - hueco / 2, Y_CABECERA, hueco, ALTO_CABECERA + 2), Qt::AlignCenter,
               texto);
}

void PintaCabecera(QImage& imagen) {
    EscribeConSombra(imagen, QRect(0, Y_NOMBRE, ANCHO_APOSTADORA, ALTO_NOMBRE), Qt::AlignCenter,
                     NombreJugador[JugadorActual],
                     LetraQueCabe(NombreJugador[JugadorActual], ANCHO_APOSTADORA - 8, 13),
                     QColor::fromRgb(COLOR_NOMBRE), QColor::fromRgb(COLOR_SOMBRA_NOMBRE));
    QPainter p(&imagen);
    if (EsPoker()) {
        constexpr int mitad = ANCHO_APOSTADORA / 2;
        PintaTituloCampo(p, X_ACTUAL_POKER, ANCHO_CAMPO_POKER, 0, mitad, "A c t u a l",
                         COLOR_CABECERA);
        PintaTituloCampo(p, X_ACUMULADO_POKER, ANCHO_CAMPO_POKER, mitad, ANCHO_APOSTADORA,
                         "Acumulado", COLOR_ACUMULADO);
    } else {
        PintaTituloCampo(p, X_ACTUAL, ANCHO_CAMPO, 0, ANCHO_APOSTADORA, "A p u e s t a",
                         COLOR_CABECERA);
    }
}

// A field of glass digits, the value right-aligned in it.
void PintaCifra(QImage& imagen, int x, int ancho, int valor) {
    {
        QPainter p(&imagen);
        p.fillRect(QRect(x, Y_CIFRAS, ancho, ALTO_CIFRAS), QColor(0x08, 0x10, 0x08));
        p.setPen(QColor(0x60, 0x70, 0x60));
        p.drawRect(QRect(x, Y_CIFRAS, ancho - 1, ALTO_CIFRAS - 1));
    }
    const QString texto = QString::number(valor);
    const int celdas = (ancho - 4) / ANCHO_DIGITO;
    for (int i = 0; i < celdas; ++i) {
        const int desde = int(texto.size()) - celdas + i;
        int celda = CELDA_BLANCO;
        if (desde >= 0) celda = texto[desde] == '-' ? 11 : texto[desde].digitValue();
        Transfiere(imagen, x + ancho - 2 - (celdas - i) * ANCHO_DIGITO, Y_CIFRAS + 2, ANCHO_DIGITO,
                   ALTO_DIGITO, Pic_NumerosCristal.Imagen, celda * ANCHO_DIGITO, 0,
                   OpRaster::Copia);
    }
}

// A two-state button: the caption written twice, dark, and white one pixel up and left.
QImage CaraBoton(const QString& texto, int ancho, bool pulsado) {
    QImage cara = NuevaImagen(ancho, ALTO_BOTON_APOSTADORA, COLOR_FONDO_BAJO);
    QPainter p(&cara);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, 0, ALTO_BOTON_APOSTADORA);
    g.setColorAt(0, pulsado ? QColor(0x60, 0x48, 0x18) : QColor(0xC8, 0x9A, 0x40));
    g.setColorAt(1, pulsado ? QColor(0x98, 0x74, 0x30) : QColor(0x7A, 0x58, 0x1C));
    p.setBrush(g);
    p.setPen(QPen(QColor(0x30, 0x20, 0x08), 1));
    p.drawRoundedRect(QRectF(0.5, 0.5, ancho - 1, ALTO_BOTON_APOSTADORA - 1), 5, 5);
    p.setFont(LetraQueCabe(texto, ancho - 8, 11));
    const int baja = pulsado ? 1 : 0;
    p.setPen(QColor(0x20, 0x14, 0x04));
    p.drawText(QRect(baja, baja, ancho, ALTO_BOTON_APOSTADORA), Qt::AlignCenter, texto);
    p.setPen(Qt::white);
    p.drawText(QRect(baja - 1, baja - 1, ancho, ALTO_BOTON_APOSTADORA), Qt::AlignCenter, texto);
    return cara;
}

void CaptionsPoker() {
    const int seat = JugadorActual;
    const int diferencia = ApuestaMaxRonda - Apuesta[seat][1][FaseJuego];
    NombreBotonApostadora[AP_IGUALAR] =
        RestoJugador(seat) <= diferencia ? QStringLiteral("Voy con mi resto")
                                         : "Igualar a " + Formato(ApuestaMaxRonda, "##0").trimmed();
    NombreBotonApostadora[AP_PASAR] = ApuestaMaxRonda == 0 ? "Me reservo" : "No voy";
}

// Which buttons the panel shows for the seat on turn, each placed under the one before.
void DecideBotones() {
    for (auto& b : BotonesApostadora) b.Visible = false;
    const int seat = JugadorActual;
    bool quiere[NUM_BOTONES_APOSTADORA + 1] = {};
    if (EsPoker()) {
        CaptionsPoker();
        quiere[AP_IGUALAR] = Apuesta[seat][1][FaseJuego] < ApuestaMaxRonda;
        quiere[AP_PASAR] = ApuestaPersona == 0;
    }
    quiere[AP_APOSTAR] = quiere[AP_ANULAR] = ApuestaPersona > 0;
    NombreBotonApostadora[AP_APOSTAR] = "Finalizar apuesta";
    NombreBotonApostadora[AP_ANULAR] = "Anular apostado";
    int y = Y_PRIMER_BOTON;
    for (int indice : {AP_IGUALAR, AP_PASAR, AP_APOSTAR, AP_ANULAR}) {
        if (!quiere[indice]) continue;
        BotonApostadora& b = BotonesApostadora[indice];
        b.Visible = true;
        b.Ancho = ANCHO_BOTON_APOSTADORA;
        b.X = (ANCHO_APOSTADORA - b.Ancho) / 2;
        b.Y = y;
        y += PASO_BOTONES;
    }
}

int BotonEn(int x, int y) {
    for (int i = 1; i <= NUM_BOTONES_APOSTADORA; ++i)
        if (BotonesApostadora[i].Visible && CajaBoton(i).contains(x, y)) return i;
    return 0;
}

// The wait for the person ends with the board's own choice.
void TerminaTurno() {
    JugadaHecha = true;
    EsperandoPersona = false;
}

void PulsaApostar() {
    const int seat = JugadorActual;
    if (EsperandoPersona && Apuesta[seat][SerieActual][FaseJuego] < ApuestaMaxRonda &&
        RestoJugador(seat) > 0) {
        Mensaje("Apuesta insuficiente",
                "Debe subir a un mínimo de " + Formato(ApuestaMaxRonda, "##0") +
                    " para poder igualar la máxima apuesta y seguir jugando la mano.",
                2, 1);
        return;
    }
    TerminaTurno();
}

// "Igualar a": the difference at once, without pauses; all the seat's money ends the turn. A
// call that a limit refuses places no chip at all.
void PulsaIgualar() {
    const int seat = JugadorActual;
    const int diferencia =
        std::min(ApuestaMaxRonda - Apuesta[seat][1][FaseJuego], RestoJugador(seat));
    if (diferencia < 1 || !AdmiteApuesta(seat, diferencia)) return;
    DesglosaFichas(diferencia);
    int desglose[7];
    std::copy(std::begin(DesgloseFichas), std::end(DesgloseFichas), desglose);
    for (int d = 6; d >= 1; --d)
        for (int k = 0; k < desglose[d]; ++k) PonFicha(seat, d);
    if (RestoJugador(seat) == 0)
        PulsaApostar();
    else
        DibujaApostadora();
}

void PulsaPasar() {
    if (!EsMus() && ApuestaMaxRonda != 0) ApuestaPersona = -1;
    TerminaTurno();
}

// Mus: one step of "+" or "-"; false at the limit.
bool PasoMasMenos(int indice) {
    if (indice == AP_MAS) {
        if (ApuestaPersona >= PiedrasJuego) return false;
        ++ApuestaPersona;
    } else {
        const int suelo = ApuestaMaxRonda != 0 ? ApuestaMaxRonda : 2;
        if (ApuestaPersona <= suelo) return false;
        --ApuestaPersona;
    }
    if (RedibujaApostadoraMus) RedibujaApostadoraMus();
    RefrescaMesa();
    return true;
}

// Waits while the button is held, pumping events; false once it was released.
bool SigueApretado(int ms) {
    const qint64 fin = Ahora() + ms;
    while (Ahora() < fin) {
        BombeaEventos();
        if (Soltado || !PartidaViva) return false;
        DuermeHasta(std::min(fin, Ahora() + 10));
    }
    return !Soltado;
}

void RepiteMasMenos(int indice) {
    if (!PasoMasMenos(indice)) {
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_SUELTA);
        Pausa(PAUSA_LIMITE);
        return;
    }
    int espera = PRIMERA_REPETICION;
    while (SigueApretado(espera)) {
        if (!PasoMasMenos(indice)) {
            SuenaMesa(SONIDO_ASINCRONO, SONIDO_SUELTA);
            Pausa(PAUSA_LIMITE);
            return;
        }
        espera = SIGUIENTES_REPETICIONES;
    }
}

void ActuaBoton(int indice) {
    switch (indice) {
    case AP_IGUALAR:
        return PulsaIgualar();
    case AP_APOSTAR:
    case AP_APOSTAMOS:
        if (EsMus()) {
            HablaPorDos = indice == AP_APOSTAMOS;
            return TerminaTurno();
        }
        return PulsaApostar();
    case AP_PASAR:
    case AP_PASAMOS:
        if (EsMus()) {
            ApuestaPersona = 0;
            HablaPorDos = indice == AP_PASAMOS;
        }
        return PulsaPasar();
    case AP_ANULAR:
        AnulaApostado(JugadorActual);
        return DibujaApostadora();
    case AP_MAS:
    case AP_MENOS:
        return RepiteMasMenos(indice);
    case AP_ORDAGO:
        ApuestaPersona = 999;
        HablaPorDos = true;
        return TerminaTurno();
    default:
        return;
    }
}

// The games that stake chip by chip press their buttons here; Mus lays out its own panel.
const bool Registrado = [] {
    for (int juego : {JUEGO_POKER, JUEGO_BLACKJACK, JUEGO_SIETEYMEDIA})
        RutinaApostadora[juego] = PulsaApostadora;
    return true;
}();

} // namespace

void DibujaApostadora() {
    if (JugadorActual < 1 || JugadorActual > 4) return;
    ColocaPanel();
    QImage imagen = NuevaImagen(ANCHO_APOSTADORA, ALTO_APOSTADORA, COLOR_FONDO_BAJO);
    PintaFondo(imagen);
    PintaCabecera(imagen);
    Pic_Apostadora.Imagen = imagen;
    DecideBotones();
    for (int i = 1; i <= NUM_BOTONES_APOSTADORA; ++i)
        if (BotonesApostadora[i].Visible) PintaBotonApostadora(i, false);
    Pic_Apostadora.Visible = true;
    ActualizaCifrasApostadora();
}

void ActualizaCifrasApostadora() {
    if (Pic_Apostadora.Imagen.isNull() || EsMus()) return;
    const int seat = JugadorActual;
    const int actual = Apuesta[seat][SerieActual][FaseJuego];
    if (EsPoker()) {
        PintaCifra(Pic_Apostadora.Imagen, X_ACTUAL_POKER, ANCHO_CAMPO_POKER, actual);
        PintaCifra(Pic_Apostadora.Imagen, X_ACUMULADO_POKER, ANCHO_CAMPO_POKER,
                   ApuestaAcumulada(seat, SerieActual));
    } else {
        PintaCifra(Pic_Apostadora.Imagen, X_ACTUAL, ANCHO_CAMPO, actual);
    }
    if (EsperandoPersona) RefrescaBotonera();
    RefrescaMesa();
}

void OcultaApostadora() {
    Pic_Apostadora.Visible = false;
    for (auto& b : BotonesApostadora) b.Visible = false;
    RefrescaMesa();
}

void PintaBotonApostadora(int indice, bool pulsado) {
    if (indice < 1 || indice > NUM_BOTONES_APOSTADORA || Pic_Apostadora.Imagen.isNull()) return;
    const BotonApostadora& b = BotonesApostadora[indice];
    QString texto = NombreBotonApostadora[indice];
    if (indice == AP_MAS) texto = "+";
    if (indice == AP_MENOS) texto = "-";
    if (indice == AP_ORDAGO && texto.isEmpty()) texto = "Órdago";
    Transfiere(Pic_Apostadora.Imagen, b.X, b.Y, b.Ancho, ALTO_BOTON_APOSTADORA,
               CaraBoton(texto, b.Ancho, pulsado), 0, 0, OpRaster::Copia);
}

void PulsaApostadora(int x, int y) {
    const int indice = BotonEn(x, y);
    if (indice == 0) return;
    Soltado = false;
    Sonido(SONIDO_ASINCRONO, SONIDO_SELECCION);
    PintaBotonApostadora(indice, true);
    RefrescaMesa();
    Pausa(PAUSA_PULSADO);
    if (Pic_Apostadora.Visible && BotonesApostadora[indice].Visible) {
        PintaBotonApostadora(indice, false);
        RefrescaMesa();
    }
    ActuaBoton(indice);
}

void SueltaApostadora() {
    Soltado = true;
}

int HallaFichaBajoPuntero(int x, int y) {
    FichaBajoPuntero = 0;
    const int seat = JugadorActual;
    const bool puedeApostar = seat >= 1 && seat <= 4 && FichasActivas &&
                              ControlJugador[seat] == CONTROL_MANUAL && !OrdenManual &&
                              !AnularReparto && SerieActual == NumSeries && !EsMus();
    if (!puedeApostar) return 0;
    for (int d = 1; d <= 6; ++d) {
        const int n = Fichas[seat][d];
        if (n <= 0) continue;
        // The stack leans as it grows: its box runs from the first chip to the top one.
        const QRect base(PilaX[seat][d], PilaY[seat][d], LADO_FICHA, LADO_FICHA);
        const QRect cima(PilaX[seat][d] + DesplazaMontonX(n),
                         PilaY[seat][d] + DesplazaMontonY(seat, n), LADO_FICHA, LADO_FICHA);
        if (base.united(cima).contains(x, y)) FichaBajoPuntero = d;
    }
    return FichaBajoPuntero;
}

QString TextoLeyApertura() {
    return "Para abrir  la  ronda de apuestas es necesario tener una pareja de " +
           NombreValorPlural[std::min(LeyApertura + 1, 14)] + " como mínimo (Ley de apertura).";
}

void PulsaFicha() {
    if (!PuedeAbrirRonda()) {
        Mensaje("Ley de apertura", TextoLeyApertura(), 2, 1, 3160);
        return;
    }
    Sonido(SONIDO_ASINCRONO, SONIDO_SELECCION);
    if (PonFicha(JugadorActual, FichaBajoPuntero)) DibujaApostadora();
    RefrescaMesa();
}
