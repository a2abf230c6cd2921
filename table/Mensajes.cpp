// The message box: a title, a text, picture buttons and an optional help button, drawn in the
// colours of the table. It is modal: the caller waits while the event pump runs.
#include "table/Mensajes.h"

#include "frame/TrufalGbl.h"
#include "platform/Ayuda.h"
#include "platform/Sonido.h"
#include "table/Mesa.h"

#include <QDialog>
#include <QFontMetrics>
#include <algorithm>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace {

constexpr int ANCHO = 430;
constexpr int X_TEXTO = 15, ANCHO_TEXTO = 400;
constexpr int Y_TITULO = 14, ALTO_TITULO = 19;
constexpr int Y_MENSAJE = 52;

struct BotonMensaje {
    QRect Zona;
    QPoint Cara; // place of its face in the sheet of button faces
    int Accion;  // 0 help, 1 accept, 2 yes, 3 no
};

QImage CaraMensaje(QPoint cara, const QString& rotulo) {
    if (Pic_BmpBoton.Imagen.isNull() && QFile::exists(":/assets/Botones.png"))
        Pic_BmpBoton.Imagen = CargaImagen(":/assets/Botones.png");
    const QImage& hoja = Pic_BmpBoton.Imagen;
    if (Pic_BmpBoton.Ancho() >= cara.x() + 48 && Pic_BmpBoton.Alto() >= cara.y() + 48)
        return CopiaLogica(hoja, cara.x(), cara.y(), 48, 48);
    // A plain face while the sheet isn't there.
    QImage imagen(48, 48, QImage::Format_RGB32);
    imagen.fill(QColor(0, 96, 0));
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(250, 236, 200));
    p.setPen(QPen(QColor(90, 60, 20), 2));
    p.drawRoundedRect(QRectF(2, 2, 44, 44), 8, 8);
    p.setPen(QColor(50, 30, 10));
    QFont letra("DejaVu Sans");
    letra.setPixelSize(rotulo.size() > 2 ? 11 : 16);
    letra.setBold(true);
    p.setFont(letra);
    p.drawText(QRect(0, 0, 48, 48), Qt::AlignCenter, rotulo);
    return imagen;
}

QFont LetraTexto() {
    QFont letra(MensajeEnColumnas ? "DejaVu Sans Mono" : "DejaVu Sans");
    letra.setPixelSize(12);
    return letra;
}

QString TextoPlano(const QString& texto) {
    QString plano = texto;
    return plano.replace("\r\n", "\n");
}

// The sunken frame: grey above and to the left, white below and to the right, 6 off.
void Marco(QPainter& p, QRect zona) {
    const QRect r = zona.adjusted(-6, -6, 6, 6);
    p.setPen(QColor(0x80, 0x80, 0x80));
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(Qt::white);
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
}

class VentanaMensajes : public QDialog {
  public:
    VentanaMensajes(const QString& titulo, const QString& texto, int lineas, int botones, int ayuda)
        : Titulo(titulo), Texto(texto), Lineas(lineas), Botones(botones), Ayuda(ayuda) {
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        setModal(true);
        const GeometriaMensaje g = CalculaMensaje(lineas);
        setFixedSize(g.Ancho, g.Alto);
        const int yBotones = Y_MENSAJE + 16 * lineas + 3 + 16;
        if (ayuda != 0) Lista.push_back({QRect(15, yBotones, 48, 48), QPoint(294, 49), 0});
        if (botones == 1) {
            Lista.push_back({QRect(366, yBotones, 48, 48), QPoint(343, 49), 1});
            RespuestaMensaje = true;
        } else {
            Lista.push_back({QRect(186, yBotones, 48, 48), QPoint(0, 49), 2});
            Lista.push_back({QRect(362, yBotones, 48, 48), QPoint(49, 49), 3});
            RespuestaMensaje = false;
        }
    }

    void Pinta(QPainter& p) const {
        p.fillRect(QRect(0, 0, width(), height()), QColor(0, 112, 0));
        p.setPen(QPen(QColor(0, 60, 0), 3));
        p.drawRect(QRect(0, 0, width(), height()).adjusted(1, 1, -2, -2));
        Marco(p, QRect(X_TEXTO, Y_TITULO, ANCHO_TEXTO, ALTO_TITULO));
        Marco(p, QRect(X_TEXTO, Y_MENSAJE, ANCHO_TEXTO, 16 * Lineas + 3));
        QFont letra("DejaVu Sans");
        letra.setPixelSize(13);
        letra.setBold(true);
        p.setFont(letra);
        p.setPen(QColor(255, 255, 190));
        p.drawText(QRect(X_TEXTO, Y_TITULO, ANCHO_TEXTO, ALTO_TITULO), Qt::AlignCenter, Titulo);
        p.setFont(LetraTexto());
        p.setPen(Qt::white);
        p.drawText(QRect(X_TEXTO + 2, Y_MENSAJE + 1, ANCHO_TEXTO - 4, 16 * Lineas + 3),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, TextoPlano(Texto));
        for (const BotonMensaje& b : Lista) {
            static const char* const rotulos[] = {"?", "OK", "Sí", "No"};
            p.drawImage(b.Zona.topLeft(),
                        CaraMensaje(b.Cara, QString::fromUtf8(rotulos[b.Accion])));
        }
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        Pinta(p);
    }

    void mousePressEvent(QMouseEvent* e) override {
        for (const BotonMensaje& b : Lista)
            if (b.Zona.contains(e->position().toPoint())) Acciona(b.Accion);
    }

    void keyPressEvent(QKeyEvent*) override {
        // Any key closes: with two buttons it is a yes.
        Acciona(Botones == 1 ? 1 : 2);
    }

    void reject() override { Acciona(Botones == 1 ? 1 : 3); }

  private:
    void Acciona(int accion) {
        Sonido(SONIDO_ASINCRONO, SONIDO_BOTON);
        if (accion == 0) {
            AbreAyuda(Ayuda);
            return;
        }
        if (accion == 2) RespuestaMensaje = true;
        if (accion == 3) RespuestaMensaje = false;
        done(0);
    }

    QString Titulo, Texto;
    int Lineas, Botones, Ayuda;
    std::vector<BotonMensaje> Lista;
};

} // namespace

int LineasDelMensaje(const QString& texto, int lineas) {
    // The lines the text really takes, wrapped at the width of its box, each in a line of 16.
    const QFontMetrics medidas(LetraTexto());
    const QRect caja =
        medidas.boundingRect(QRect(0, 0, ANCHO_TEXTO - 4, 100000),
                             Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, TextoPlano(texto));
    const int ocupadas = (caja.height() + 15) / 16;
    return std::max(lineas, ocupadas);
}

QImage ImagenMensaje(const QString& titulo, const QString& texto, int lineas, int botones,
                     int ayuda) {
    // A message once the table is drawn stands on it, even before it was first shown.
    if (Mesa() && !Mesa()->isVisible() && !Pic_Mesa.Imagen.isNull()) AbreMesa();
    lineas = LineasDelMensaje(texto, lineas);
    VentanaMensajes ventana(titulo, texto, lineas, botones, ayuda);
    QImage imagen(ventana.size(), QImage::Format_RGB32);
    QPainter p(&imagen);
    ventana.Pinta(p);
    return imagen;
}

GeometriaMensaje CalculaMensaje(int lineas) {
    GeometriaMensaje g{};
    g.Ancho = ANCHO;
    g.Alto = 136 + 16 * lineas;
    int referencia = MensajeSobreVentana ? AnchoVentana : AnchoMesa;
    int alto = AltoVentana;
    // Before the table is laid out the box still centres, on a screen of the smallest size.
    if (referencia == 0 && alto == 0) {
        referencia = 800;
        alto = 600;
    }
    g.X = (referencia - g.Ancho) / 2;
    g.Y = (alto - g.Alto) / 2;
    return g;
}

void Mensaje(const QString& titulo, const QString& texto, int lineas, int botones, int ayuda) {
    struct Columnas {
        ~Columnas() { MensajeEnColumnas = false; } // only for the message it was asked for
    } columnas;
    if (MensajesGuionados) {
        MensajesVistos.push_back({titulo, texto, lineas, botones, ayuda, MensajeEnColumnas});
        RespuestaMensaje = true;
        // A notice takes no answer from the script: only questions do.
        if (botones == 2 && !RespuestasGuionadas.empty()) {
            RespuestaMensaje = RespuestasGuionadas.front();
            RespuestasGuionadas.pop_front();
        }
        return;
    }
    // A message once the table is drawn stands on it, even before it was first shown.
    if (Mesa() && !Mesa()->isVisible() && !Pic_Mesa.Imagen.isNull()) AbreMesa();
    lineas = LineasDelMensaje(texto, lineas);
    VentanaMensajes ventana(titulo, texto, lineas, botones, ayuda);
    const GeometriaMensaje g = CalculaMensaje(lineas);
    // Centre on the table as the window shows it, whatever its scale.
    VentanaMesa* mesa = Mesa();
    QPoint centro;
    if (mesa && mesa->isVisible() && AnchoVentana > 0) {
        const QRectF area = mesa->AreaMesa();
        const double escala = area.width() / AnchoVentana;
        centro = mesa->mapToGlobal(QPoint(int(area.left() + (g.X + g.Ancho / 2.0) * escala),
                                          int(area.top() + (g.Y + g.Alto / 2.0) * escala)));
    } else if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        centro = pantalla->geometry().center();
    }
    ventana.move(centro - QPoint(g.Ancho / 2, g.Alto / 2));
    ventana.exec();
}
