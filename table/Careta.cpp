#include "table/Careta.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Bomba.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRadialGradient>
#include <QScreen>
#include <QWidget>
#include <memory>

namespace {

class VentanaCareta : public QWidget {
  public:
    VentanaCareta() {
        setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
        setFixedSize(420, 260);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        QRadialGradient fondo(rect().center(), 260);
        fondo.setColorAt(0, QColor(0, 150, 0));
        fondo.setColorAt(1, QColor(0, 70, 0));
        p.fillRect(rect(), fondo);
        p.setPen(QPen(QColor(200, 160, 60), 4));
        p.drawRect(rect().adjusted(3, 3, -4, -4));
        QFont titulo("DejaVu Serif");
        titulo.setPixelSize(64);
        titulo.setBold(true);
        p.setFont(titulo);
        p.setPen(QColor(0, 40, 0));
        p.drawText(rect().adjusted(3, 3, 3, -57), Qt::AlignCenter, "TRUFAL");
        p.setPen(QColor(255, 220, 120));
        p.drawText(rect().adjusted(0, 0, 0, -60), Qt::AlignCenter, "TRUFAL");
        QFont pie("DejaVu Sans");
        pie.setPixelSize(16);
        p.setFont(pie);
        p.setPen(Qt::white);
        p.drawText(QRect(0, 150, width(), 24), Qt::AlignCenter, "Mesa de juegos de cartas");
        pie.setPixelSize(13);
        p.setFont(pie);
        p.drawText(QRect(0, 200, width(), 20), Qt::AlignCenter, "Versión 3.2");
    }
};

std::unique_ptr<VentanaCareta> Careta;

} // namespace

void MuestraCareta() {
    Careta = std::make_unique<VentanaCareta>();
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        Careta->move(pantalla->geometry().center() - Careta->rect().center());
    Careta->show();
    Careta->repaint();
    // Let the window system map and paint it once; the pause that follows pumps nothing.
    for (int i = 0; i < 5; ++i) BombeaEventos();
    VelocidadJuego = 50;
    Pausa(1500);
}

void CierraCareta() {
    Careta.reset();
}
