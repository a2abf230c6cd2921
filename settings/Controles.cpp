// The painted controls: their texts, the settings behind them, how each is drawn and where a
// press acts on it. Everything is drawn with the painter of the window, in the window's pixels,
// so that the window is sharp at whatever size it is shown.
#include "settings/Controles.h"

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/DibujoComun.h"

#include <QFile>
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>

namespace {

constexpr std::array<FilaSpin, 77> FilasSpin() {
    std::array<FilaSpin, 77> filas{};
    filas[71] = {5, 995, 5, "@@@"}; // RestoInicial
    filas[72] = {0, 999, 1, "@@@"}; // ApuestaMinima
    filas[73] = {5, 995, 5, "@@@"}; // ApuestaMaxima
    filas[74] = {1, 999, 1, "@@@"}; // LimitePartida
    filas[75] = {1, 5, 1, "@@@"};   // LimiteDescartes
    filas[76] = {20, 50, 10, "@@"}; // PiedrasJuego
    return filas;
}

} // namespace

const std::array<FilaSpin, 77> AjusteSpin = FilasSpin();

namespace {

const QColor TINTA_ROTULO(255, 255, 190); // captions
const QColor TINTA_VALOR(255, 250, 170);  // the value of a selector
const QColor SOMBRA(0, 36, 0);
const QColor CAMPO(0, 62, 0); // the sunken field where a value is written
const QColor FONDO_VENTANA(0, 104, 0);
const QColor ORO_CLARO(255, 240, 180), ORO(240, 196, 88), ORO_OSCURO(176, 120, 30),
    BORDE_ORO(90, 56, 16);

constexpr int ANCHO_CAJA_3 = 36, ANCHO_CAJA_2 = 28; // text boxes of "@@@" and "@@"

void Opciones(int indice, std::initializer_list<const char*> textos) {
    int valor = 0;
    for (const char* t : textos)
        OpcionSelector[indice][++valor] = QString::fromUtf8(t).leftJustified(LARGO_OPCION, ' ');
}

void Etiqueta(int desde, int hasta, const char* texto) {
    for (int i = desde; i <= hasta; ++i) EtiquetaControl[i] = QString::fromUtf8(texto);
}

// A raised golden face, or pressed: the look of every button of the settings windows.
void PintaPlaca(QPainter& p, const QRectF& r, bool hundido, double radio) {
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, hundido ? ORO_OSCURO : ORO_CLARO);
    g.setColorAt(0.5, hundido ? QColor(222, 172, 64) : ORO);
    g.setColorAt(1, hundido ? QColor(246, 210, 120) : ORO_OSCURO);
    QPainterPath forma;
    forma.addRoundedRect(r, radio, radio);
    p.fillPath(forma, g);
    p.strokePath(forma, QPen(BORDE_ORO, 1));
}

// The sunken edge of a field: dark above and to the left, light below and to the right.
void Hundido(QPainter& p, const QRectF& r) {
    p.setPen(QPen(QColor(0, 40, 0), 1));
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(QPen(QColor(150, 210, 150), 1));
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
}

void Triangulo(QPainter& p, QPointF centro, double lado, int sentido, const QColor& color) {
    // sentido: 0 right, 1 up, -1 down
    QPainterPath t;
    const double m = lado / 2;
    if (sentido == 0) {
        t.moveTo(centro + QPointF(-m * 0.7, -m));
        t.lineTo(centro + QPointF(m * 0.9, 0));
        t.lineTo(centro + QPointF(-m * 0.7, m));
    } else {
        const double s = sentido > 0 ? -1 : 1;
        t.moveTo(centro + QPointF(-m, -s * m * 0.5));
        t.lineTo(centro + QPointF(m, -s * m * 0.5));
        t.lineTo(centro + QPointF(0, s * m * 0.6));
    }
    t.closeSubpath();
    p.fillPath(t, color);
}

void TextoConSombra(QPainter& p, const QRectF& caja, int alineacion, const QString& texto,
                    const QColor& color) {
    p.setPen(SOMBRA);
    p.drawText(caja.translated(1, 1), alineacion, texto);
    p.setPen(color);
    p.drawText(caja, alineacion, texto);
}

// A white text box with its text and, while it is typed in, the caret.
void CajaDeTexto(QPainter& p, const QRectF& caja, const QString& texto, bool editando, int cursor,
                 bool derecha, bool apagada) {
    p.fillRect(caja, apagada ? QColor(205, 205, 195) : QColor(255, 255, 250));
    Hundido(p, caja.adjusted(-1, -1, 0, 0));
    p.setFont(LetraAjustes(12));
    p.setPen(QColor(20, 20, 20));
    const QRectF dentro = caja.adjusted(3, 0, -3, 0);
    const int alineacion = (derecha ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    p.drawText(dentro, alineacion, texto);
    if (!editando) return;
    const QFontMetricsF m(p.font());
    const double antes = m.horizontalAdvance(texto.left(cursor));
    const double x =
        derecha ? dentro.right() - m.horizontalAdvance(texto) + antes : dentro.left() + antes;
    p.setPen(QPen(QColor(0, 0, 0), 1));
    p.drawLine(QPointF(x + 0.5, caja.top() + 3), QPointF(x + 0.5, caja.bottom() - 3));
}

// The typeface at the given size, or smaller until the text fits the width.
QFont LetraQueCabe(const QString& texto, int pixeles, bool negrita, double ancho) {
    QFont letra = LetraAjustes(pixeles, negrita);
    while (pixeles > 8 && QFontMetricsF(letra).horizontalAdvance(texto) > ancho)
        letra.setPixelSize(--pixeles);
    return letra;
}

QRect Relativa(const ControlPintado& c, int x, int y, int w, int h) {
    return QRect(c.Zona.x() + x, c.Zona.y() + y, w, h);
}

int AnchoCaja(int indice) {
    return QString::fromLatin1(AjusteSpin[indice].Formato).size() >= 3 ? ANCHO_CAJA_3
                                                                       : ANCHO_CAJA_2;
}

QImage CarasBotones() {
    // The double-size sheet, so that the faces stay sharp on a window shown larger.
    static QImage hoja;
    if (!hoja.isNull()) return hoja;
    for (const char* ruta : {":/assets/Botones@2x.png", ":/assets/Botones.png"})
        if (QFile::exists(ruta)) {
            hoja = QImage(QString::fromLatin1(ruta));
            hoja.setDevicePixelRatio(hoja.width() >= 391 * 2 ? 2 : 1);
            break;
        }
    return hoja;
}

} // namespace

QFont LetraAjustes(int pixeles, bool negrita) {
    QFont letra(QStringLiteral("DejaVu Sans"));
    letra.setPixelSize(pixeles);
    letra.setBold(negrita);
    return letra;
}

void LlenaTextosAjustes() {
    for (auto& fila : OpcionSelector)
        for (QString& texto : fila) texto = QString(LARGO_OPCION, ' ');
    Opciones(1, {"Automático", "Manual"});
    for (int v = 2; v <= 14; ++v) {
        static const char* const cartas[15] = {"",  "",  "2",  "3", "4", "5", "6", "7",
                                               "8", "9", "10", "J", "Q", "K", "A"};
        OpcionSelector[2][v - 1] =
            ("Mínimo pareja de " + QString::fromLatin1(cartas[v])).leftJustified(LARGO_OPCION);
    }
    OpcionSelector[2][14] = QStringLiteral("No se aplica").leftJustified(LARGO_OPCION);
    Opciones(3, {"Sin comodines", "Un comodín", "Dos comodines"});
    Opciones(4, {"Individual", "Dos parejas"});
    Opciones(5, {"Baraja completa", "Desde el 3", "Desde el 4", "Desde el 5", "Desde el 6",
                 "Desde el 7"});
    Opciones(6, {"Turno rotatorio", "Elegir en cada mano"});
    Opciones(7, {"Cuando no hay baceta", "Desde la primera baza"});
    Opciones(8, {"Directo", "Inverso"});
    Opciones(9, {"Activada", "Desactivada"});
    Opciones(10, {"Mujer", "Hombre"});
    for (int s = 1; s <= 4; ++s) {
        Opciones(10 + s, {"Activado", "Desactivado"});
        Opciones(20 + s, {"Ocultas", "Visibles"});
        Opciones(24 + s, {"Automático", "Manual"});
        Opciones(30 + s, {"Conservador", "Medio", "Agresivo"});
    }
    Opciones(19, {"Baraja completa (48 cartas)", "Baraja reducida (40 cartas)"});
    Opciones(20,
             {"No se considera", "3 Sietes y una Sota", "3 Sietes y un Rey",
              "3 Sietes y un Rey barbado", "3 Sietes y una Figura", "Sietes C.E.B. y Sota Oros"});
    Opciones(29, {"Mus a 4 Reyes", "Mus a 8 Reyes"});
    Opciones(30, {"Un juego", "Tres juegos (Una vaca)", "Nueve juegos (Tres vacas)"});
    Opciones(35, {"Vertical", "Horizontal"});

    Etiqueta(1, 1, "Sistema de reparto");
    Etiqueta(2, 2, "Ley de apertura");
    Etiqueta(3, 3, "Comodines en juego");
    Etiqueta(4, 4, "Modo de juego");
    Etiqueta(5, 5, "Cartas en la baraja");
    Etiqueta(6, 6, "Turno de salida");
    Etiqueta(7, 7, "Obligación de montar/asistir/fallar");
    Etiqueta(8, 8, "Sentido del juego");
    Etiqueta(9, 9, "Ventana de información");
    Etiqueta(10, 10, "S e x o");
    Etiqueta(11, 14, "Estado del jugador");
    Etiqueta(19, 19, "Tipo de baraja");
    Etiqueta(20, 20, "La 31 Real");
    Etiqueta(21, 24, "Cartas del jugador");
    Etiqueta(25, 28, "Control del juego");
    Etiqueta(29, 29, "Tipo de juego");
    Etiqueta(30, 30, "Juegos de la partida");
    Etiqueta(31, 34, "Carácter del jugador");
    Etiqueta(35, 35, "Imagen jugadores contrarios");
    Etiqueta(44, 44, " Sonido");
    Etiqueta(45, 45, " Pausa entre jugadas");
    Etiqueta(46, 46, "  Permitir  contrafallar");
    Etiqueta(47, 47, " Voces de jugadores");
    Etiqueta(48, 48, "  Cartas  siempre  ordenadas");
    Etiqueta(49, 49, "  El As de Oros es comodín");
    Etiqueta(50, 50, "  Detallar todos los pasos");
    for (int j = JUEGO_POKER; j <= JUEGO_PUMBA; ++j) EtiquetaControl[j] = NombreJuego[j];
    Etiqueta(61, 64, "Nivel del juego");
    Etiqueta(65, 65, "Velocidad de juego");
    Etiqueta(66, 66, "Tono de voz");
    Etiqueta(67, 67, "Velocidad");
    Etiqueta(71, 71, " Resto inicial...............:");
    Etiqueta(72, 72, " Apuesta de salida......:");
    Etiqueta(73, 73, " Apuesta máxima........:");
    Etiqueta(74, 74, " Límite de la partida....:");
    Etiqueta(75, 75, " Límite de descartes...:");
    Etiqueta(76, 76, " Piedras de cada juego.:");
    Etiqueta(89, 89, "Cambiar");
    Etiqueta(90, 90, "Prueba de voz");
    Etiqueta(91, 94, "Voz");
}

// ---- Settings behind the controls ----

int* AjusteDeSelector(int indice) {
    switch (indice) {
    case 1:
        return &ModoReparto;
    case 2:
        return &LeyApertura;
    case 3:
        return &OpcionComodines;
    case 4:
        return &ModalidadPareja;
    case 5:
        return &CartaMinimaPoker;
    case 6:
        return &TurnoSalida;
    case 7:
        return &ObligacionAsistir;
    case 8:
        return &SentidoJuego;
    case 9:
        return &VentanaInformacion;
    case 10:
        return &VozSexo[std::clamp(JugadorModiVoz, 1, 4)];
    case 19:
        return &TipoBarajaEspanola;
    case 20:
        return &TreintaYUnaReal;
    case 29:
        return &TipoMus;
    case 30:
        return &JuegosPartidaMus;
    case 35:
        return &ImagenContrarios;
    default:
        break;
    }
    if (indice >= 11 && indice <= 14) return &EstadoJugador[indice - 10];
    if (indice >= 21 && indice <= 24) return &CartasVisibles[indice - 20];
    if (indice >= 25 && indice <= 28) return &ControlJugador[indice - 24];
    if (indice >= 31 && indice <= 34) return &CaracterJugador[indice - 30];
    return nullptr;
}

bool* AjusteDeBuleano(int indice) {
    switch (indice) {
    case 44:
        return &SonidoActivado;
    case 45:
        return &ContinuarManual;
    case 46:
        return &PermitirContrafallar;
    case 47:
        return &VocesActivadas;
    case 48:
        return &CartasSiempreOrdenadas;
    case 49:
        return &AsOrosComodin;
    case 50:
        return &DetallarPasos;
    default:
        return nullptr;
    }
}

int* AjusteDePotenciometro(int indice) {
    if (indice >= 61 && indice <= 64) return &NivelJugador[indice - 60];
    const int s = std::clamp(JugadorModiVoz, 1, 4);
    switch (indice) {
    case 65:
        return &VelocidadJuego;
    case 66:
        return &VozTono[s];
    case 67:
        return &VozVelocidad[s];
    default:
        return nullptr;
    }
}

int* AjusteDeSpin(int indice) {
    switch (indice) {
    case 71:
        return &RestoInicial;
    case 72:
        return &ApuestaMinima;
    case 73:
        return &ApuestaMaxima;
    case 74:
        return &LimitePartida;
    case 75:
        return &LimiteDescartes;
    case 76:
        return &PiedrasJuego;
    default:
        return nullptr;
    }
}

int ValorControl(const ControlPintado& c) {
    switch (c.Tipo) {
    case TipoControl::Selector:
        if (int* a = AjusteDeSelector(c.Indice)) return *a;
        return 0;
    case TipoControl::Buleano:
        if (c.Indice >= JUEGO_POKER && c.Indice <= JUEGO_PUMBA) return JuegoActual == c.Indice;
        if (bool* a = AjusteDeBuleano(c.Indice)) return *a ? 1 : 0;
        return 0;
    case TipoControl::Potenciometro:
        if (int* a = AjusteDePotenciometro(c.Indice)) return *a;
        return 0;
    case TipoControl::Spin:
        if (int* a = AjusteDeSpin(c.Indice)) return *a;
        return 0;
    default:
        return 0;
    }
}

// ---- Drawing ----

void DibujaFondoAjustes(QPainter& p, int ancho, int alto) {
    QLinearGradient g(0, 0, 0, alto);
    g.setColorAt(0, FONDO_VENTANA.lighter(112));
    g.setColorAt(1, FONDO_VENTANA.darker(115));
    p.fillRect(QRectF(0, 0, ancho, alto), g);
    p.setPen(QPen(QColor(0, 50, 0), 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(1, 1, ancho - 2, alto - 2));
}

void DibujaMarco(QPainter& p, const QRect& zona, const QString& titulo,
                 const QString& tituloDerecha) {
    const QRectF r = QRectF(zona).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setFont(LetraAjustes(11, true));
    const QFontMetricsF m(p.font());
    // The top edge is broken where its captions stand, so that they read on any ground.
    const double x0 = titulo.isEmpty() ? r.left() : r.left() + 6;
    const double x1 = titulo.isEmpty() ? r.left() : r.left() + 10 + m.horizontalAdvance(titulo);
    const double x3 = tituloDerecha.isEmpty() ? r.right() : r.right() - 6;
    const double x2 =
        tituloDerecha.isEmpty() ? r.right() : x3 - 4 - m.horizontalAdvance(tituloDerecha);
    p.setPen(QPen(QColor(0x80, 0x80, 0x80), 1));
    p.drawLine(QPointF(r.left(), r.top()), QPointF(x0, r.top()));
    p.drawLine(QPointF(x1, r.top()), QPointF(x2, r.top()));
    p.drawLine(QPointF(x3, r.top()), QPointF(r.right(), r.top()));
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(QPen(QColor(235, 255, 235), 1));
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
    if (!titulo.isEmpty())
        TextoConSombra(p, QRectF(x0 + 2, zona.y() - 7, x1 - x0, 14),
                       Qt::AlignLeft | Qt::AlignVCenter, titulo, TINTA_ROTULO);
    if (!tituloDerecha.isEmpty())
        TextoConSombra(p, QRectF(x2, zona.y() - 7, x3 - x2, 14), Qt::AlignCenter, tituloDerecha,
                       TINTA_VALOR);
}

void DibujaSelector(QPainter& p, const ControlPintado& c, int valor) {
    const QRect z = c.Zona;
    DibujaMarco(p, QRect(z.x(), z.y() + 6, z.width(), z.height() - 6), EtiquetaControl[c.Indice]);
    // The arrow: a press steps to the next value.
    const QRectF flecha = Relativa(c, 4, 14, 30, 21);
    PintaPlaca(p, flecha.adjusted(0.5, 0.5, -0.5, -0.5), c.Hundido, 3);
    const double baja = c.Hundido ? 1 : 0;
    Triangulo(p, flecha.center() + QPointF(baja, baja), 11, 0, QColor(70, 40, 0));
    const QRectF campo = Relativa(c, 38, 14, z.width() - 42, 21);
    p.fillRect(campo, CAMPO);
    Hundido(p, campo);
    QString texto;
    if (c.Indice >= 1 && c.Indice <= 40 && valor >= 0 && valor <= 15)
        texto = OpcionSelector[c.Indice][valor].trimmed();
    p.setFont(LetraQueCabe(texto, 12, true, campo.width() - 6));
    TextoConSombra(p, campo, Qt::AlignCenter, texto, TINTA_VALOR);
}

void DibujaBuleano(QPainter& p, const ControlPintado& c, bool valor, int margen) {
    const QPointF centro(c.Zona.x() + 10, c.Zona.y() + c.Zona.height() / 2.0);
    const double r = 7;
    if (valor) {
        QRadialGradient halo(centro, r + 4);
        halo.setColorAt(0.6, QColor(200, 255, 120, 150));
        halo.setColorAt(1, QColor(200, 255, 120, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(halo);
        p.drawEllipse(centro, r + 4, r + 4);
    }
    QRadialGradient g(centro + QPointF(-2.5, -2.5), r * 1.6);
    g.setColorAt(0, valor ? QColor(255, 255, 220) : QColor(120, 140, 120));
    g.setColorAt(0.45, valor ? QColor(150, 255, 70) : QColor(50, 80, 50));
    g.setColorAt(1, valor ? QColor(30, 150, 0) : QColor(20, 40, 20));
    p.setBrush(g);
    p.setPen(QPen(QColor(10, 30, 10), 1.2));
    p.drawEllipse(centro, r, r);
    p.setBrush(Qt::NoBrush);
    const QRectF caja(c.Zona.x() + margen, c.Zona.y(), c.Zona.width() - margen, c.Zona.height());
    p.setFont(LetraQueCabe(EtiquetaControl[c.Indice], 12, valor, caja.width()));
    TextoConSombra(p, caja, Qt::AlignLeft | Qt::AlignVCenter, EtiquetaControl[c.Indice],
                   valor ? QColor(255, 255, 255) : TINTA_ROTULO);
}

void DibujaSpin(QPainter& p, const ControlPintado& c, const QString& textoCaja, bool editando,
                int cursor) {
    const QRect z = c.Zona;
    DibujaMarco(p, z, QString());
    const QRect caja = CajaDeSpin(c);
    const QRectF rotulo(z.x() + 2, z.y(), caja.x() - z.x() - 6, z.height());
    p.setFont(LetraQueCabe(EtiquetaControl[c.Indice], 12, false, rotulo.width()));
    TextoConSombra(p, rotulo, Qt::AlignLeft | Qt::AlignVCenter, EtiquetaControl[c.Indice],
                   TINTA_ROTULO);
    CajaDeTexto(p, caja, textoCaja, editando, cursor, true, false);
    for (int sentido : {1, -1}) {
        const QRectF flecha = Relativa(c, z.width() - 22, sentido > 0 ? 5 : 16, 20, 10);
        const bool hundida = c.FlechaHundida == sentido;
        PintaPlaca(p, flecha.adjusted(0.5, 0.5, -0.5, -0.5), hundida, 2);
        const double baja = hundida ? 0.8 : 0;
        Triangulo(p, flecha.center() + QPointF(baja, baja), 8, sentido, QColor(70, 40, 0));
    }
}

QRect CajaDeSpin(const ControlPintado& c) {
    const int ancho = AnchoCaja(c.Indice);
    return Relativa(c, c.Zona.width() - 25 - ancho, 5, ancho, 21);
}

void DibujaPotenciometro(QPainter& p, const ControlPintado& c, int valor) {
    const QRect z = c.Zona;
    // The figure stands on the frame's top edge, at the right.
    DibujaMarco(p, QRect(z.x(), z.y() + 6, z.width(), z.height() - 6), EtiquetaControl[c.Indice],
                QString::number(valor));
    // The scale: 0 under the knob's middle at its left end, 100 at its right end.
    const double y = z.y() + 26, x0 = z.x() + 14, x1 = z.x() + 114;
    p.setPen(QPen(QColor(0, 40, 0), 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(x0, y), QPointF(x1, y));
    p.setPen(QPen(QColor(120, 200, 120), 1.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(x0, y + 2), QPointF(x1, y + 2));
    p.setPen(QPen(TINTA_ROTULO, 1));
    for (int marca = 0; marca <= 100; marca += 10) {
        const double largo = marca % 50 == 0 ? 4 : 2;
        p.drawLine(QPointF(x0 + marca, z.y() + 37), QPointF(x0 + marca, z.y() + 37 + largo));
    }
    const QRectF pomo(z.x() + valor + 8, z.y() + 17, 13, 19);
    PintaPlaca(p, pomo.adjusted(0.5, 0.5, -0.5, -0.5), false, 2.5);
    p.setPen(QPen(BORDE_ORO, 1));
    for (int k = -2; k <= 2; k += 2)
        p.drawLine(QPointF(pomo.center().x() + k, pomo.top() + 5),
                   QPointF(pomo.center().x() + k, pomo.bottom() - 5));
}

void DibujaPulsadorAjustes(QPainter& p, const ControlPintado& c) {
    const QRectF r = QRectF(c.Zona).adjusted(0.5, 0.5, -0.5, -0.5);
    PintaPlaca(p, r, c.Hundido, 7);
    p.setFont(LetraAjustes(11, true));
    p.setPen(QColor(40, 20, 0));
    p.drawText(r.translated(c.Hundido ? 1 : 0, c.Hundido ? 1 : 0), Qt::AlignCenter,
               EtiquetaControl[c.Indice]);
}

void DibujaNombre(QPainter& p, const ControlPintado& c, const QString& texto, bool editando,
                  int cursor) {
    CajaDeTexto(p, c.Zona, texto, editando, cursor, false, c.SoloLectura);
}

void DibujaBotonCara(QPainter& p, const ControlPintado& c) {
    const QImage hoja = CarasBotones();
    const int caraX = c.Tipo == TipoControl::Ayuda ? 294 : 343;
    const QRectF destino = QRectF(c.Zona).translated(c.Hundido ? 1 : 0, c.Hundido ? 1 : 0);
    if (!hoja.isNull()) {
        const double k = hoja.devicePixelRatio();
        p.drawImage(destino, hoja, QRectF(caraX * k, 49 * k, 48 * k, 48 * k));
        return;
    }
    PintaPlaca(p, destino.adjusted(2, 2, -2, -2), c.Hundido, 8);
    p.setFont(LetraAjustes(16, true));
    p.setPen(QColor(50, 30, 10));
    p.drawText(destino, Qt::AlignCenter, c.Tipo == TipoControl::Ayuda ? "?" : "OK");
}

void DibujaCerrar(QPainter& p, const ControlPintado& c) {
    const QRectF r = QRectF(c.Zona).adjusted(0.5, 0.5, -0.5, -0.5);
    PintaPlaca(p, r, c.Hundido, 2);
    p.setPen(QPen(QColor(70, 40, 0), 1.6, Qt::SolidLine, Qt::RoundCap));
    const QRectF x = r.adjusted(4, 4, -4, -4);
    p.drawLine(x.topLeft(), x.bottomRight());
    p.drawLine(x.topRight(), x.bottomLeft());
}

void DibujaFoco(QPainter& p, const ControlPintado& c) {
    p.setPen(QPen(QColor(255, 255, 120), 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(c.Zona).adjusted(-2.5, -2.5, 2.5, 2.5));
}

// ---- Zones ----

bool EnFlechaSelector(int x, int y) {
    return x >= 4 && x <= 33 && y >= 14 && y <= 34;
}

int FlechaSpinEn(const ControlPintado& c, int x, int y) {
    const int w = c.Zona.width();
    if (x < w - 22 || x > w - 3 || y < 5 || y > 25 || y == 15) return 0;
    return y <= c.Zona.height() / 2 ? 1 : -1;
}

bool EnCajaSpin(const ControlPintado& c, int x, int y) {
    return CajaDeSpin(c).contains(c.Zona.x() + x, c.Zona.y() + y);
}

bool EnPomo(int valor, int x, int y) {
    return x >= valor + 8 && x <= valor + 20 && y >= 17 && y <= 35;
}

int PunteroDeControl(const ControlPintado& c, int x, int y) {
    switch (c.Tipo) {
    case TipoControl::Selector:
        return EnFlechaSelector(x, y) ? CURSOR_INDICE : CURSOR_FLECHA;
    case TipoControl::Spin:
        if (FlechaSpinEn(c, x, y) != 0) return CURSOR_INDICE;
        return EnCajaSpin(c, x, y) ? CURSOR_TEXTO : CURSOR_FLECHA;
    case TipoControl::Potenciometro:
        return EnPomo(ValorControl(c), x, y) ? CURSOR_TOMAR : CURSOR_FLECHA;
    case TipoControl::Nombre:
        return c.SoloLectura ? CURSOR_FLECHA : CURSOR_TEXTO;
    default:
        return CURSOR_INDICE;
    }
}

QPoint PuntoDeAccion(const ControlPintado& c, int direccion) {
    switch (c.Tipo) {
    case TipoControl::Selector:
        return c.Zona.topLeft() + QPoint(18, 24);
    case TipoControl::Spin:
        return c.Zona.topLeft() + QPoint(c.Zona.width() - 12, direccion > 0 ? 9 : 21);
    default:
        return c.Zona.center();
    }
}

// ---- Spins ----

QString FormatoSpin(int indice, int valor) {
    return FormatoTexto(valor, QString::fromLatin1(AjusteSpin[indice].Formato));
}

void GuardaSpin(int indice, int valor) {
    if (int* ajuste = AjusteDeSpin(indice)) *ajuste = std::clamp(valor, -32768, 32767);
}

int ValorTecleado(int indice, const QString& texto) {
    const FilaSpin& fila = AjusteSpin[indice];
    double valor = Val(texto);
    valor = std::clamp(valor, double(fila.Minimo), double(fila.Maximo));
    return Redondea(valor);
}

// ---- Knobs ----

int ArrastraPotenciometro(int valor, int x) {
    int d = x - AnclaPotenciometro;
    if (valor + d < 0) d = -valor;
    if (valor + d > 100) d = 100 - valor;
    // The anchor moves with the knob only: past an end the pointer must come back first.
    AnclaPotenciometro += d;
    return valor + d;
}

void SuenaAjustes(int modo, int id) {
    SuenaMesa(modo, id);
}
