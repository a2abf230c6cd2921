#include "table/PartesMesa.h"

#include "frame/Coherencia.h"
#include "platform/CajaImagen.h"
#include "table/GblMesa.h"

#include <QImage>
#include <QPoint>
#include <algorithm>
#include <vector>
#include <QtGlobal>

namespace {

struct Parte {
    QRect Area;
    quint64 Firma = 0;
    bool Intacta = false;
    QImage Vista; // what the area showed, kept only while the table's coherence is checked
};

Parte Partes[NUM_PARTES];

constexpr int LADO_CELDA = 8;
std::vector<quint8> Sucias; // one a cell, row by row
int ColumnasCeldas = 0, FilasCeldas = 0;

// The cells a rectangle touches (cubre false) or covers whole (true), clipped to the grid.
bool Celdas(const QRect& r, bool cubre, int& c0, int& f0, int& c1, int& f1) {
    if (r.isEmpty()) return false;
    if (cubre) {
        c0 = (r.left() + LADO_CELDA - 1) / LADO_CELDA;
        f0 = (r.top() + LADO_CELDA - 1) / LADO_CELDA;
        c1 = (r.right() + 1) / LADO_CELDA - 1;
        f1 = (r.bottom() + 1) / LADO_CELDA - 1;
        if (r.left() < 0) c0 = 0;
        if (r.top() < 0) f0 = 0;
    } else {
        c0 = r.left() < 0 ? 0 : r.left() / LADO_CELDA;
        f0 = r.top() < 0 ? 0 : r.top() / LADO_CELDA;
        c1 = r.right() / LADO_CELDA;
        f1 = r.bottom() / LADO_CELDA;
    }
    c1 = std::min(c1, ColumnasCeldas - 1);
    f1 = std::min(f1, FilasCeldas - 1);
    return c0 <= c1 && f0 <= f1;
}

void MarcaCeldas(const QRect& r, quint8 valor, bool cubre) {
    int c0, f0, c1, f1;
    if (!Celdas(r, cubre, c0, f0, c1, f1)) return;
    for (int f = f0; f <= f1; ++f)
        std::fill(Sucias.begin() + f * ColumnasCeldas + c0,
                  Sucias.begin() + f * ColumnasCeldas + c1 + 1, valor);
}
QPoint OrigenMazo[NUM_MAZOS];
int UsoMazo[NUM_MAZOS] = {};
int Reloj = 0;

// Whatever is drawn over a part leaves it no longer as its drawing left it.
void Escrito(const QRect& zona) {
    for (Parte& p : Partes)
        if (p.Intacta && p.Area.intersects(zona)) p.Intacta = false;
    MarcaCeldas(zona, 1, false);
}

// Where the table is checked: a clean cell that isn't all table colour means a drawing reached
// the picture without being told, and the wipe would leave it behind.
void CompruebaCeldasLimpias(const QRect& zona, unsigned colorMesa) {
    const QImage& m = Pic_Mesa.Imagen;
    const int k = qMax(1, qRound(m.devicePixelRatio()));
    const QRgb mesa = 0xFF000000u | colorMesa;
    const QRect dentro = zona.intersected(QRect(0, 0, Pic_Mesa.Ancho(), Pic_Mesa.Alto()));
    for (int y = dentro.top(); y <= dentro.bottom(); ++y) {
        const int f = y / LADO_CELDA;
        const QRgb* fila = reinterpret_cast<const QRgb*>(m.constScanLine(y * k));
        for (int x = dentro.left(); x <= dentro.right(); ++x)
            if (!Sucias[f * ColumnasCeldas + x / LADO_CELDA] && (fila[x * k] | 0xFF000000u) != mesa)
                qFatal("La mesa tiene dibujo sin anotar en (%d, %d)", x, y);
    }
}

} // namespace

FirmaParte& FirmaParte::operator<<(qint64 numero) {
    // Each number stirred in whole: a multiply and a shift spread it over all the bits.
    Valor = (Valor ^ static_cast<quint64>(numero)) * 0x9E3779B97F4A7C15ull;
    Valor ^= Valor >> 29;
    return *this;
}

FirmaParte& FirmaParte::operator<<(const QRect& r) {
    return *this << r.x() << r.y() << r.width() << r.height();
}

void VigilaMesa() {
    for (Parte& p : Partes) p = Parte();
    // A new picture is all table.
    ColumnasCeldas = (Pic_Mesa.Ancho() + LADO_CELDA - 1) / LADO_CELDA;
    FilasCeldas = (Pic_Mesa.Alto() + LADO_CELDA - 1) / LADO_CELDA;
    Sucias.assign(static_cast<size_t>(ColumnasCeldas) * FilasCeldas, 0);
    for (QPoint& o : OrigenMazo) o = QPoint(-1, -1);
    VigilaEscrituras(&Pic_Mesa.Imagen, Escrito);
}

bool ParteIntacta(int parte, quint64 firma) {
    if (parte < 0 || parte >= NUM_PARTES || PinturaOmitida) return false;
    const Parte& p = Partes[parte];
    if (!p.Intacta || p.Firma != firma) return false;
    // Where the table is checked, the part is looked at too: a drawing that reached the picture
    // without being told would leave a wrong picture behind on screen.
    if (ComprobarCoherencia && !p.Vista.isNull() &&
        CopiaLogica(Pic_Mesa.Imagen, p.Area.x(), p.Area.y(), p.Area.width(), p.Area.height()) !=
            p.Vista)
        qFatal("La parte %d de la mesa cambió sin que la mesa lo supiera", parte);
    return true;
}

void AnotaParte(int parte, const QRect& area, quint64 firma) {
    if (parte < 0 || parte >= NUM_PARTES) return;
    Parte& p = Partes[parte];
    p.Area = area;
    p.Firma = firma;
    p.Intacta = !PinturaOmitida && !Pic_Mesa.Imagen.isNull();
    p.Vista = p.Intacta && ComprobarCoherencia
                  ? CopiaLogica(Pic_Mesa.Imagen, area.x(), area.y(), area.width(), area.height())
                  : QImage();
}

int ParteDelMazo(int x, int y) {
    ++Reloj;
    int elegida = 0;
    for (int i = 0; i < NUM_MAZOS; ++i) {
        if (OrigenMazo[i] == QPoint(x, y)) {
            elegida = i;
            break;
        }
        if (UsoMazo[i] < UsoMazo[elegida]) elegida = i;
    }
    if (OrigenMazo[elegida] != QPoint(x, y)) {
        OrigenMazo[elegida] = QPoint(x, y);
        Partes[PARTE_MAZO + elegida].Intacta = false;
    }
    UsoMazo[elegida] = Reloj;
    return PARTE_MAZO + elegida;
}

void BorraCeldasSucias(const QRect& zona, unsigned colorMesa) {
    if (zona.isEmpty()) return;
    int c0, f0, c1, f1;
    // Without a watched picture, or while nothing is painted, the whole zone is filled.
    if (PinturaOmitida || Sucias.empty() || !Celdas(zona, false, c0, f0, c1, f1)) {
        Rellena(Pic_Mesa.Imagen, zona.x(), zona.y(), zona.width(), zona.height(), colorMesa);
        return;
    }
    if (ComprobarCoherencia) CompruebaCeldasLimpias(zona, colorMesa);
    for (int f = f0; f <= f1; ++f) {
        int c = c0;
        while (c <= c1) {
            if (!Sucias[f * ColumnasCeldas + c]) {
                ++c;
                continue;
            }
            int fin = c;
            while (fin + 1 <= c1 && Sucias[f * ColumnasCeldas + fin + 1]) ++fin;
            const QRect tramo =
                QRect(c * LADO_CELDA, f * LADO_CELDA, (fin - c + 1) * LADO_CELDA, LADO_CELDA)
                    .intersected(zona);
            Rellena(Pic_Mesa.Imagen, tramo.x(), tramo.y(), tramo.width(), tramo.height(),
                    colorMesa);
            c = fin + 1;
        }
    }
    // Cells the wipe covers whole are clean now; those it only touches keep what lies outside it.
    MarcaCeldas(zona, 0, true);
}
