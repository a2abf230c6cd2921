// The thin widget of the settings windows and what every window shares: the scale at which it
// is shown, the walk of the focus over its controls, and the typing in its text boxes.
#include "settings/Formulario.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Mesa.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <algorithm>

namespace {

// The table was drawn for a screen of 1024 by 768: on a larger one the windows grow with it,
// so that they keep their place beside the table.
constexpr double ANCHO_REFERENCIA = 1024, ALTO_REFERENCIA = 768;
constexpr int LARGO_NOMBRE = 9; // what the settings files keep of a name
constexpr int LARGO_SPIN = 5;

class DialogoAjustes : public QDialog {
  public:
    // It belongs to the table, so that it stays over it.
    explicit DialogoAjustes(Formulario& f) : QDialog(Mesa()), F(f) {
        setWindowTitle(f.Titulo);
        setModal(true);
        setMouseTracking(true);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_OpaquePaintEvent);
        setMinimumSize(f.Ancho / 2, f.Alto / 2);
    }

    // Window pixels to widget pixels: the window keeps its proportions, centred.
    double Escala() const { return std::min(width() / double(F.Ancho), height() / double(F.Alto)); }
    QPointF Origen() const {
        const double k = Escala();
        return QPointF((width() - F.Ancho * k) / 2, (height() - F.Alto * k) / 2);
    }
    QPoint AlFormulario(const QPointF& punto) const {
        const QPointF q = (punto - Origen()) / Escala();
        return QPoint(int(std::floor(q.x())), int(std::floor(q.y())));
    }
    QPointF AlWidget(int x, int y) const { return Origen() + QPointF(x + 0.5, y + 0.5) * Escala(); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), QColor(0, 70, 0));
        p.setRenderHint(QPainter::Antialiasing);
        p.setRenderHint(QPainter::TextAntialiasing);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.translate(Origen());
        p.scale(Escala(), Escala());
        p.setClipRect(QRect(0, 0, F.Ancho, F.Alto));
        if (F.Pinta) F.Pinta(p);
    }
    void mousePressEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton || !F.Pulsa) return;
        const QPoint q = AlFormulario(e->position());
        F.Pulsa(q.x(), q.y());
    }
    void mouseMoveEvent(QMouseEvent* e) override {
        if (!F.Mueve) return;
        const QPoint q = AlFormulario(e->position());
        F.Mueve(q.x(), q.y(), e->buttons() & Qt::LeftButton);
    }
    void mouseReleaseEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton || !F.Suelta) return;
        const QPoint q = AlFormulario(e->position());
        F.Suelta(q.x(), q.y());
    }
    void keyPressEvent(QKeyEvent* e) override {
        if (!TeclaFormulario(F, e->key(), e->text(), e->modifiers() & Qt::ShiftModifier))
            QWidget::keyPressEvent(e);
    }
    bool focusNextPrevChild(bool siguiente) override {
        MueveFoco(F, siguiente);
        return true;
    }
    void closeEvent(QCloseEvent* e) override {
        // Closing the window is its exit button: the same checks, and the same refusals.
        if (!F.Abierto) {
            e->accept();
            return;
        }
        e->ignore();
        if (F.Salir) F.Salir();
    }
    void reject() override {
        if (F.Abierto && F.Salir)
            F.Salir();
        else
            QDialog::reject();
    }

  private:
    Formulario& F;
};

QPointer<DialogoAjustes> Activo;

// The scale a window opens at: that of the table window over its reference, never so large that
// the window leaves the screen.
double EscalaInicial(const Formulario& f) {
    QSizeF espacio(ANCHO_REFERENCIA, ALTO_REFERENCIA);
    if (VentanaMesa* mesa = Mesa(); mesa && mesa->isVisible())
        espacio = mesa->AreaMesa().size();
    else if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        espacio = pantalla->availableGeometry().size();
    double k = std::max(
        1.0, std::min(espacio.width() / ANCHO_REFERENCIA, espacio.height() / ALTO_REFERENCIA));
    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        const QSize libre = pantalla->availableGeometry().size();
        k = std::min({k, libre.width() / double(f.Ancho), libre.height() / double(f.Alto)});
    }
    return std::max(k, 0.5);
}

void Centra(QWidget* ventana) {
    QPoint centro;
    if (VentanaMesa* mesa = Mesa(); mesa && mesa->isVisible())
        centro = mesa->mapToGlobal(mesa->rect().center());
    else if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        centro = pantalla->availableGeometry().center();
    ventana->move(centro - QPoint(ventana->width() / 2, ventana->height() / 2));
}

// Typing in the focused box: a character, or a key that moves the caret or deletes.
bool EditaTexto(Formulario& f, int tecla, const QString& texto) {
    const ControlPintado& c = f.Controles[f.Foco];
    const int largo = c.Tipo == TipoControl::Nombre ? LARGO_NOMBRE : LARGO_SPIN;
    bool cambio = false;
    f.Cursor = std::clamp(f.Cursor, 0, int(f.Edicion.size()));
    switch (tecla) {
    case Qt::Key_Backspace:
        if (f.Cursor > 0) {
            f.Edicion.remove(--f.Cursor, 1);
            cambio = true;
        }
        break;
    case Qt::Key_Delete:
        if (f.Cursor < f.Edicion.size()) {
            f.Edicion.remove(f.Cursor, 1);
            cambio = true;
        }
        break;
    case Qt::Key_Left:
        f.Cursor = std::max(0, f.Cursor - 1);
        break;
    case Qt::Key_Right:
        f.Cursor = std::min(int(f.Edicion.size()), f.Cursor + 1);
        break;
    case Qt::Key_Home:
        f.Cursor = 0;
        break;
    case Qt::Key_End:
        f.Cursor = int(f.Edicion.size());
        break;
    default: {
        QString escrito;
        for (QChar ch : texto)
            if (ch.isPrint()) escrito += ch;
        if (escrito.isEmpty()) return false;
        escrito = escrito.left(std::max(0, largo - int(f.Edicion.size())));
        if (escrito.isEmpty()) return true; // the box is full
        f.Edicion.insert(f.Cursor, escrito);
        f.Cursor += int(escrito.size());
        cambio = true;
    }
    }
    if (cambio && c.Tipo == TipoControl::Nombre && f.TextoNombre) f.TextoNombre(f.Foco);
    RepintaFormulario();
    return true;
}

// Enter and the space bar press what has the focus; the arrows step it.
int DireccionDeTecla(TipoControl tipo, int tecla) {
    switch (tecla) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 1;
    case Qt::Key_Right:
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return tipo == TipoControl::Potenciometro ? 10 : 1;
    case Qt::Key_PageDown:
        return tipo == TipoControl::Potenciometro ? -10 : -1;
    case Qt::Key_Home:
        return tipo == TipoControl::Potenciometro ? -100 : 0;
    case Qt::Key_End:
        return tipo == TipoControl::Potenciometro ? 100 : 0;
    default:
        return 0;
    }
}

void PulsaAyuda(Formulario& f) {
    for (int i = 0; i < int(f.Controles.size()); ++i)
        if (f.Controles[i].Tipo == TipoControl::Ayuda && f.Controles[i].Visible && f.Paso) {
            f.Paso(i, 1);
            return;
        }
}

} // namespace

void MuestraFormulario(Formulario& f) {
    f.Abierto = true;
    if (f.Foco < 0) MueveFoco(f, true);
    RecargaEdicion(f);
    DialogoAjustes dialogo(f);
    const double k = EscalaInicial(f);
    dialogo.resize(int(std::lround(f.Ancho * k)), int(std::lround(f.Alto * k)));
    Centra(&dialogo);
    Activo = &dialogo;
    PonCursorFormulario(CURSOR_FLECHA);
    if (f.Abierto) dialogo.exec();
    Activo = nullptr;
    f.Abierto = false;
}

void CierraFormulario(Formulario& f) {
    PonFoco(f, -1);
    f.Abierto = false;
    if (Activo) Activo->done(0);
}

void RepintaFormulario() {
    if (Activo && Activo->isVisible()) Activo->repaint();
}

void PonCursorFormulario(int forma) {
    CursorAjustes = forma;
    if (!Activo) return;
    if (forma == CURSOR_TEXTO)
        Activo->setCursor(Qt::IBeamCursor);
    else
        Activo->setCursor(CursorDeForma(forma));
}

int ControlEn(const Formulario& f, int x, int y) {
    // The later control lies on top, as the voice panel over the seats.
    for (int i = int(f.Controles.size()) - 1; i >= 0; --i) {
        const ControlPintado& c = f.Controles[i];
        if (c.Visible && c.Zona.contains(x, y)) return i;
    }
    return -1;
}

void RecargaEdicion(Formulario& f) {
    f.Edicion.clear();
    f.Cursor = 0;
    if (f.Foco < 0 || f.Foco >= int(f.Controles.size())) return;
    const ControlPintado& c = f.Controles[f.Foco];
    if (c.Tipo == TipoControl::Spin)
        f.Edicion = FormatoSpin(c.Indice, ValorControl(c)).trimmed();
    else if (c.Tipo == TipoControl::Nombre)
        f.Edicion = NombreJugador[c.Indice];
    f.Cursor = int(f.Edicion.size());
}

void PonFoco(Formulario& f, int posicion) {
    if (posicion == f.Foco) return;
    const int anterior = f.Foco;
    f.Foco = posicion;
    // A spin's box takes what was typed in it when it loses the focus.
    if (anterior >= 0 && anterior < int(f.Controles.size()) &&
        f.Controles[anterior].Tipo == TipoControl::Spin && f.TextoSpin) {
        const int nueva = f.Foco;
        f.Foco = anterior;
        f.TextoSpin(anterior);
        f.Foco = nueva;
    }
    RecargaEdicion(f);
    RepintaFormulario();
}

void MueveFoco(Formulario& f, bool adelante) {
    const int n = int(f.Controles.size());
    if (n == 0) return;
    int i = f.Foco;
    for (int vuelta = 0; vuelta < n; ++vuelta) {
        i = adelante ? (i + 1) % n : (i <= 0 ? n - 1 : i - 1);
        const ControlPintado& c = f.Controles[i];
        if (c.Visible && !(c.Tipo == TipoControl::Nombre && c.SoloLectura)) {
            PonFoco(f, i);
            return;
        }
    }
}

bool TeclaFormulario(Formulario& f, int tecla, const QString& texto, bool mayusculas) {
    if (tecla == Qt::Key_Escape) {
        if (f.Salir) f.Salir();
        return true;
    }
    if (tecla == Qt::Key_F1) {
        PulsaAyuda(f);
        return true;
    }
    if (tecla == Qt::Key_Tab || tecla == Qt::Key_Backtab) {
        MueveFoco(f, tecla == Qt::Key_Tab && !mayusculas);
        return true;
    }
    if (f.Foco < 0 || f.Foco >= int(f.Controles.size())) return false;
    const ControlPintado c = f.Controles[f.Foco];
    if (!c.Visible) return false;
    if (c.Tipo == TipoControl::Nombre) {
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            MueveFoco(f, true);
            return true;
        }
        return !c.SoloLectura && EditaTexto(f, tecla, texto);
    }
    if (c.Tipo == TipoControl::Spin) {
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            if (f.TextoSpin) f.TextoSpin(f.Foco);
            RecargaEdicion(f);
            RepintaFormulario();
            return true;
        }
        const bool paso = tecla == Qt::Key_Up || tecla == Qt::Key_Down || tecla == Qt::Key_PageUp ||
                          tecla == Qt::Key_PageDown;
        if (!paso) return EditaTexto(f, tecla, texto);
        // What was typed counts before the arrows step from it.
        if (f.TextoSpin) f.TextoSpin(f.Foco);
    }
    const int direccion = DireccionDeTecla(c.Tipo, tecla);
    if (direccion == 0 || !f.Paso) return false;
    f.Paso(f.Foco, direccion);
    RecargaEdicion(f);
    RepintaFormulario();
    return true;
}

int CursorEnCaja(const QRect& caja, const QString& texto, int x, bool derecha) {
    const QFontMetricsF m(LetraAjustes(12));
    const double dentroIzq = caja.left() + 3, dentroDer = caja.right() + 1 - 3;
    const double inicio = derecha ? dentroDer - m.horizontalAdvance(texto) : dentroIzq;
    int mejor = 0;
    double distancia = 1e9;
    for (int i = 0; i <= texto.size(); ++i) {
        const double d = std::abs(inicio + m.horizontalAdvance(texto.left(i)) - x);
        if (d < distancia) {
            distancia = d;
            mejor = i;
        }
    }
    return mejor;
}

QWidget* VentanaAjustesActiva() {
    // A window that has been closed is gone for the hands, though its loop has yet to return.
    return Activo && Activo->isVisible() ? Activo.data() : nullptr;
}

QPointF PuntoDeVentana(int x, int y) {
    return Activo ? Activo->AlWidget(x, y) : QPointF(x, y);
}

void PintaControl(QPainter& p, const Formulario& f, int posicion, int valor) {
    const ControlPintado& c = f.Controles[posicion];
    if (!c.Visible) return;
    const bool editando = posicion == f.Foco;
    switch (c.Tipo) {
    case TipoControl::Selector:
        DibujaSelector(p, c, valor);
        break;
    case TipoControl::Buleano:
        DibujaBuleano(p, c, valor != 0);
        break;
    case TipoControl::Spin:
        DibujaSpin(p, c, editando ? f.Edicion : FormatoSpin(c.Indice, valor).trimmed(), editando,
                   f.Cursor);
        break;
    case TipoControl::Potenciometro:
        DibujaPotenciometro(p, c, valor);
        break;
    case TipoControl::Pulsador:
        DibujaPulsadorAjustes(p, c);
        break;
    case TipoControl::Nombre:
        DibujaNombre(p, c, editando ? f.Edicion : NombreJugador[c.Indice],
                     editando && !c.SoloLectura, f.Cursor);
        break;
    case TipoControl::Ayuda:
    case TipoControl::Salir:
        DibujaBotonCara(p, c);
        break;
    case TipoControl::Cerrar:
        DibujaCerrar(p, c);
        break;
    }
}

void PintaFoco(QPainter& p, const Formulario& f) {
    if (f.Foco < 0 || f.Foco >= int(f.Controles.size())) return;
    const ControlPintado& c = f.Controles[f.Foco];
    // A text box shows its caret instead.
    if (c.Visible && c.Tipo != TipoControl::Nombre) DibujaFoco(p, c);
}

void CambiaSelector(Formulario& f, int posicion, int& valor, int direccion) {
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_SELECCION);
    const int indice = f.Controles[posicion].Indice;
    auto vacio = [&](int v) {
        return v < 1 || v > 15 || OpcionSelector[indice][v].trimmed().isEmpty();
    };
    if (direccion >= 0) {
        ++valor;
        if (vacio(valor)) valor = 1;
    } else {
        --valor;
        if (vacio(valor)) {
            valor = 1;
            while (!vacio(valor + 1)) ++valor;
        }
    }
    f.Controles[posicion].Hundido = true;
    RepintaFormulario();
    Pausa(210);
    f.Controles[posicion].Hundido = false;
    RepintaFormulario();
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_SUELTA);
}

void HundePulsador(Formulario& f, int posicion) {
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_SELECCION);
    f.Controles[posicion].Hundido = true;
    RepintaFormulario();
    Pausa(120);
    f.Controles[posicion].Hundido = false;
    RepintaFormulario();
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_SUELTA);
}

void PulsaSpin(Formulario& f, int posicion, int sentido, bool soloUnPaso) {
    const int indice = f.Controles[posicion].Indice;
    int* ajuste = AjusteDeSpin(indice);
    if (!ajuste) return;
    const FilaSpin& fila = AjusteSpin[indice];
    int valor = *ajuste;
    SpinPulsado = true;
    for (;;) {
        if (sentido > 0 && valor >= fila.Maximo) break;
        if (sentido < 0 && valor <= fila.Minimo) break;
        if (!SpinPulsado) break;
        f.Controles[posicion].FlechaHundida = sentido;
        valor = sentido > 0 ? std::min(valor + int(fila.Paso), int(fila.Maximo))
                            : std::max(valor - int(fila.Paso), int(fila.Minimo));
        // The box shows each step as it is taken.
        GuardaSpin(indice, valor);
        if (f.Foco == posicion) RecargaEdicion(f);
        SuenaAjustes(SONIDO_ASINCRONO, SONIDO_SPIN);
        RepintaFormulario();
        Pausa(20);
        f.Controles[posicion].FlechaHundida = 0;
        RepintaFormulario();
        if (soloUnPaso) break;
        Pausa(50);
        BombeaEventos();
    }
    SpinPulsado = false;
    GuardaSpin(indice, valor);
}
