#include "table/Mesa.h"

#include "table/Careta.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Raton.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QToolTip>
#include <memory>
#include <vector>

namespace {

std::unique_ptr<VentanaMesa> LaMesa;

// The controls that lie over the table, bottom first.
std::vector<const CajaImagen*> ControlesVisibles() {
    std::vector<const CajaImagen*> lista{&Pic_Botonera};
    for (int i = 1; i <= 8; ++i) lista.push_back(&Pic_Boton[i]);
    lista.push_back(&Pic_BotContinuar);
    for (int i = 1; i <= 4; ++i) lista.push_back(&Pic_Tantos[i]);
    for (int i = 81; i <= 102; ++i) lista.push_back(&Pic_Pulsador[i]);
    lista.push_back(&Pic_Sugerencia);
    lista.push_back(&Pic_Apostadora);
    lista.push_back(&Pic_SelOpciones);
    lista.push_back(&Pic_Mover);
    return lista;
}

// What a paint shows: the table's picture and each control over it, visible or not, where it
// lies and what it holds. A wait asks for a paint only when this differs from the last one shown,
// so an idle table sleeps instead of painting itself over and over.
std::vector<qint64> HuellaVisible() {
    std::vector<qint64> huella{Pic_Mesa.Imagen.cacheKey()};
    for (const CajaImagen* c : ControlesVisibles()) {
        if (c->Visible)
            huella.insert(huella.end(), {c->X, c->Y, c->Imagen.cacheKey()});
        else
            huella.push_back(-1);
    }
    return huella;
}

std::vector<qint64> HuellaMostrada;

} // namespace

VentanaMesa::VentanaMesa() {
    setWindowTitle(QStringLiteral("Trufal"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(800, 600);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AlwaysShowToolTips);
}

QRectF VentanaMesa::AreaMesa() const {
    if (AnchoVentana <= 0 || AltoVentana <= 0) return rect();
    const double escala = std::min(width() / double(AnchoVentana), height() / double(AltoVentana));
    const double w = AnchoVentana * escala, h = AltoVentana * escala;
    return QRectF((width() - w) / 2, (height() - h) / 2, w, h);
}

QPointF VentanaMesa::ALaMesa(const QPointF& punto) const {
    const QRectF area = AreaMesa();
    if (area.width() <= 0) return punto;
    return QPointF((punto.x() - area.left()) * AnchoVentana / area.width(),
                   (punto.y() - area.top()) * AltoVentana / area.height());
}

void VentanaMesa::paintEvent(QPaintEvent*) {
    HuellaMostrada = HuellaVisible();
    QPainter p(this);
    p.fillRect(rect(), QColor(0, 60, 0));
    if (Pic_Mesa.Imagen.isNull()) return;
    const QRectF area = AreaMesa();
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.translate(area.topLeft());
    p.scale(area.width() / AnchoVentana, area.height() / AltoVentana);
    p.drawImage(0, 0, Pic_Mesa.Imagen);
    for (const CajaImagen* c : ControlesVisibles())
        if (c->Visible && !c->Imagen.isNull()) p.drawImage(c->X, c->Y, c->Imagen);
}

void VentanaMesa::mousePressEvent(QMouseEvent* e) {
    const QPointF m = ALaMesa(e->position());
    RatonPulsado(int(m.x()), int(m.y()), e->button() == Qt::RightButton ? 2 : 1,
                 e->modifiers() & Qt::ControlModifier);
}

void VentanaMesa::mouseMoveEvent(QMouseEvent* e) {
    const QPointF m = ALaMesa(e->position());
    RatonMovido(int(m.x()), int(m.y()), e->buttons() != Qt::NoButton);
}

void VentanaMesa::mouseReleaseEvent(QMouseEvent* e) {
    const QPointF m = ALaMesa(e->position());
    RatonSoltado(int(m.x()), int(m.y()), e->button() == Qt::RightButton ? 2 : 1);
}

void VentanaMesa::keyPressEvent(QKeyEvent* e) {
    if (!TeclaMesa(e->key(), e->modifiers() & Qt::ControlModifier)) QWidget::keyPressEvent(e);
}

void VentanaMesa::closeEvent(QCloseEvent* e) {
    // Closing the window is the exit button: it asks the same, and is refused the same way.
    e->ignore();
    PulsaBoton(8);
}

bool VentanaMesa::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        auto* ayuda = static_cast<QHelpEvent*>(e);
        const QPointF m = ALaMesa(ayuda->pos());
        const QString texto = TextoAyudaEn(int(m.x()), int(m.y()));
        if (texto.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(ayuda->globalPos(), texto, this);
        return true;
    }
    return QWidget::event(e);
}

void CargaMesa() {
    if (!LaMesa) LaMesa = std::make_unique<VentanaMesa>();
}

void MuestraMesa() {
    CargaMesa();
    // The table covers the screen, as it was drawn for it; a window manager may then keep
    // its own borders, and the picture is scaled into what is left.
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    if (pantalla) LaMesa->setGeometry(pantalla->availableGeometry());
    LaMesa->showMaximized();
    LaMesa->raise();
    LaMesa->activateWindow();
}

void AbreMesa() {
    if (LaMesa && LaMesa->isVisible()) return;
    CierraCareta();
    MuestraMesa();
    RefrescaMesa();
}

VentanaMesa* Mesa() {
    return LaMesa.get();
}

void RefrescaMesa() {
    if (LaMesa && LaMesa->isVisible()) LaMesa->repaint();
}

namespace {

// The program's own pointers, with the point that acts.
QCursor CursorPropio(int forma) {
    struct Punta {
        int Forma, X, Y;
    };
    static const Punta puntas[] = {{21, 11, 1},  {22, 11, 1},  {23, 11, 1},  {24, 11, 1},
                                   {25, 16, 16}, {26, 16, 14}, {27, 16, 14}, {41, 16, 16},
                                   {42, 16, 16}, {43, 16, 16}};
    for (const Punta& p : puntas) {
        if (p.Forma != forma) continue;
        const QPixmap imagen(QStringLiteral(":/assets/cursores/%1.png").arg(forma));
        if (!imagen.isNull()) return QCursor(imagen, p.X, p.Y);
    }
    return QCursor(Qt::ArrowCursor);
}

} // namespace

void SolicitaRepintado() {
    if (LaMesa && LaMesa->isVisible() && HuellaVisible() != HuellaMostrada) LaMesa->update();
}

void PonCursor(int forma) {
    CursorActual = forma;
    if (LaMesa) LaMesa->setCursor(CursorDeForma(forma));
}

QCursor CursorDeForma(int forma) {
    // Below 20 the standard pointers of the desktop; 12 is "no drop".
    if (forma == CURSOR_PROHIBIDO) return QCursor(Qt::ForbiddenCursor);
    if (forma == CURSOR_RELOJ) return QCursor(Qt::WaitCursor);
    if (forma > 20) return CursorPropio(forma);
    return QCursor(Qt::ArrowCursor);
}
