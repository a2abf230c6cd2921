#include "platform/CajaImagen.h"

#include <algorithm>
#include <cstring>
#include <vector>

QImage NuevaImagen(int ancho, int alto, unsigned colorRgb) {
    QImage imagen(std::max(ancho, 1) * EscalaMesa, std::max(alto, 1) * EscalaMesa,
                  QImage::Format_RGB32);
    imagen.setDevicePixelRatio(EscalaMesa);
    imagen.fill(QColor::fromRgb(0xFF000000u | colorRgb));
    return imagen;
}

void DimensionaCaja(CajaImagen& caja, int ancho, int alto, unsigned colorRgb) {
    caja.Imagen = NuevaImagen(ancho, alto, colorRgb);
}

QImage CopiaLogica(const QImage& imagen, int x, int y, int ancho, int alto) {
    const double k = imagen.devicePixelRatio();
    QImage parte = imagen.copy(qRound(x * k), qRound(y * k), qRound(ancho * k), qRound(alto * k));
    parte.setDevicePixelRatio(k);
    return parte;
}

QImage AEscalaMesa(const QImage& sencilla, const QImage& doble) {
    if (sencilla.isNull() || EscalaMesa == 1) return sencilla;
    QImage resultado;
    if (!doble.isNull() && doble.width() == sencilla.width() * EscalaMesa &&
        doble.height() == sencilla.height() * EscalaMesa)
        resultado = doble.convertToFormat(QImage::Format_RGB32);
    else
        resultado = sencilla
                        .scaled(sencilla.width() * EscalaMesa, sencilla.height() * EscalaMesa,
                                Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_RGB32);
    resultado.setDevicePixelRatio(EscalaMesa);
    return resultado;
}

namespace {

// A source at the target's resolution, in a 32-bit format: the picture itself when it already
// is one (no copy), else a converted or scaled copy kept in `ajustada`.
const QImage& FuenteAjustada(const QImage& origen, int k, QImage& ajustada) {
    const QImage* base = &origen;
    if (qRound(origen.devicePixelRatio()) != k) {
        const double f = k / origen.devicePixelRatio();
        ajustada = origen.scaled(qRound(origen.width() * f), qRound(origen.height() * f),
                                 Qt::IgnoreAspectRatio, Qt::FastTransformation);
        base = &ajustada;
    }
    if (base->format() != QImage::Format_RGB32 && base->format() != QImage::Format_ARGB32) {
        ajustada = base->convertToFormat(QImage::Format_RGB32);
        base = &ajustada;
    }
    return *base;
}

// A block in picture pixels, clipped against the target and one or two sources, moving all the
// corners together. False when nothing is left.
struct Bloque {
    int X, Y, Ancho, Alto;
    int Xs[2], Ys[2];
};

bool Recorta(Bloque& b, const QImage& destino, const QImage* fuentes[2], int n) {
    auto mueve = [&](int dx, int dy) {
        b.X += dx;
        b.Y += dy;
        for (int i = 0; i < n; ++i) {
            b.Xs[i] += dx;
            b.Ys[i] += dy;
        }
        b.Ancho -= dx;
        b.Alto -= dy;
    };
    if (b.X < 0) mueve(-b.X, 0);
    if (b.Y < 0) mueve(0, -b.Y);
    for (int i = 0; i < n; ++i) {
        if (b.Xs[i] < 0) mueve(-b.Xs[i], 0);
        if (b.Ys[i] < 0) mueve(0, -b.Ys[i]);
    }
    b.Ancho = std::min(b.Ancho, destino.width() - b.X);
    b.Alto = std::min(b.Alto, destino.height() - b.Y);
    for (int i = 0; i < n; ++i) {
        b.Ancho = std::min(b.Ancho, fuentes[i]->width() - b.Xs[i]);
        b.Alto = std::min(b.Alto, fuentes[i]->height() - b.Ys[i]);
    }
    return b.Ancho > 0 && b.Alto > 0;
}

void PreparaDestino(QImage& destino, int k) {
    if (destino.format() != QImage::Format_RGB32 && destino.format() != QImage::Format_ARGB32) {
        destino = destino.convertToFormat(QImage::Format_RGB32);
        destino.setDevicePixelRatio(k);
    }
}

// A row of a picture from its bits and the length of its lines in bytes, read once a transfer.
QRgb* Fila(uchar* bits, qsizetype linea, int y, int x) {
    return reinterpret_cast<QRgb*>(bits + y * linea) + x;
}

const QRgb* Fila(const uchar* bits, qsizetype linea, int y, int x) {
    return reinterpret_cast<const QRgb*>(bits + y * linea) + x;
}

// The rows of the raster operations. Each is written so that the compiler lays it out in the
// widest vector instructions the processor has (chosen when the program starts): drawing the
// table is the bulk of what automatic play does.
#define TRUFAL_VECTORIAL __attribute__((target_clones("avx512f", "avx2", "default")))

TRUFAL_VECTORIAL void FilaAnd(QRgb* __restrict d, const QRgb* __restrict s, int n) {
    for (int i = 0; i < n; ++i) d[i] = (d[i] & s[i]) | 0xFF000000u;
}

TRUFAL_VECTORIAL void FilaXor(QRgb* __restrict d, const QRgb* __restrict s, int n) {
    for (int i = 0; i < n; ++i) d[i] = (d[i] ^ s[i]) | 0xFF000000u;
}

TRUFAL_VECTORIAL void FilaOr(QRgb* __restrict d, const QRgb* __restrict s, int n) {
    for (int i = 0; i < n; ++i) d[i] = (d[i] | s[i]) | 0xFF000000u;
}

TRUFAL_VECTORIAL void FilaOpaca(QRgb* __restrict d, const QRgb* __restrict s, int n) {
    for (int i = 0; i < n; ++i) d[i] = s[i] | 0xFF000000u;
}

TRUFAL_VECTORIAL void FilaConMascara(QRgb* __restrict d, const QRgb* __restrict m,
                                     const QRgb* __restrict s, int n) {
    for (int i = 0; i < n; ++i) d[i] = ((d[i] & m[i]) ^ s[i]) | 0xFF000000u;
}

TRUFAL_VECTORIAL void FilaLlena(QRgb* __restrict d, QRgb color, int n) {
    for (int i = 0; i < n; ++i) d[i] = color;
}

// Runs of a mask: for each pixel, where the run of pixels of its kind (clear, all bits of colour
// off, or not) that starts there ends. Under a clear run the masked transfer is a plain copy of
// the picture, whatever lay beneath: a card's mask is clear but for its corners.
struct TramosMascara {
    qint64 Clave = -1;
    int Ancho = 0;
    std::vector<int> Fin;
};

const TramosMascara& Tramos(const QImage& m) {
    static TramosMascara tramos[4];
    static int siguiente = 0;
    for (const TramosMascara& t : tramos)
        if (t.Clave == m.cacheKey()) return t;
    TramosMascara& t = tramos[siguiente];
    siguiente = (siguiente + 1) % 4;
    t.Clave = m.cacheKey();
    t.Ancho = m.width();
    t.Fin.assign(static_cast<size_t>(m.width()) * m.height(), 0);
    for (int y = 0; y < m.height(); ++y) {
        const QRgb* fila = reinterpret_cast<const QRgb*>(m.constScanLine(y));
        int* fin = t.Fin.data() + static_cast<size_t>(y) * m.width();
        fin[m.width() - 1] = m.width();
        for (int x = m.width() - 2; x >= 0; --x)
            fin[x] =
                ((fila[x] & 0xFFFFFF) == 0) == ((fila[x + 1] & 0xFFFFFF) == 0) ? fin[x + 1] : x + 1;
    }
    return t;
}

const QImage* ImagenVigilada = nullptr;
void (*AvisoEscritura)(const QRect&) = nullptr;

void Avisa(const QImage& destino, int x, int y, int ancho, int alto) {
    PixelesPintados += static_cast<long long>(ancho) * alto;
    if (&destino == ImagenVigilada && AvisoEscritura) AvisoEscritura(QRect(x, y, ancho, alto));
}

} // namespace

void VigilaEscrituras(const QImage* imagen, void (*aviso)(const QRect&)) {
    ImagenVigilada = imagen;
    AvisoEscritura = aviso;
}

void AvisaEscritura(const QImage& destino, const QRect& zona) {
    Avisa(destino, zona.x(), zona.y(), zona.width(), zona.height());
}

void Transfiere(QImage& destino, int x, int y, int ancho, int alto, const QImage& origen, int xs,
                int ys, OpRaster op) {
    if (PinturaOmitida || destino.isNull() || origen.isNull()) return;
    // Table pixels to picture pixels; a source of another resolution is brought to the target's.
    const int k = qRound(destino.devicePixelRatio());
    QImage ajustada;
    const QImage& fuente = FuenteAjustada(origen, k, ajustada);
    const QImage* fuentes[2] = {&fuente, nullptr};
    Bloque b{x * k, y * k, ancho * k, alto * k, {xs * k, 0}, {ys * k, 0}};
    if (!Recorta(b, destino, fuentes, 1)) return;
    PreparaDestino(destino, k);
    Avisa(destino, x, y, ancho, alto);
    uchar* bitsDestino = destino.bits(); // detaches once, not once a row
    const uchar* bitsFuente = fuente.constBits();
    const qsizetype lineaDestino = destino.bytesPerLine(), lineaFuente = fuente.bytesPerLine();
    const bool opaca = fuente.format() == QImage::Format_RGB32;
    for (int j = 0; j < b.Alto; ++j) {
        QRgb* d = Fila(bitsDestino, lineaDestino, b.Y + j, b.X);
        const QRgb* s = Fila(bitsFuente, lineaFuente, b.Ys[0] + j, b.Xs[0]);
        switch (op) {
        case OpRaster::Copia:
            // An RGB32 row already carries its opaque alpha: it is copied whole.
            if (opaca)
                std::memcpy(d, s, sizeof(QRgb) * static_cast<size_t>(b.Ancho));
            else
                FilaOpaca(d, s, b.Ancho);
            break;
        case OpRaster::And:
            FilaAnd(d, s, b.Ancho);
            break;
        case OpRaster::Xor:
            FilaXor(d, s, b.Ancho);
            break;
        case OpRaster::Or:
            FilaOr(d, s, b.Ancho);
            break;
        }
    }
}

void TransfiereConMascara(QImage& destino, int x, int y, int ancho, int alto, const QImage& mascara,
                          int xm, int ym, const QImage& imagen, int xi, int yi) {
    if (PinturaOmitida || destino.isNull() || mascara.isNull() || imagen.isNull()) return;
    const int k = qRound(destino.devicePixelRatio());
    QImage ajustadaMascara, ajustadaImagen;
    const QImage& m = FuenteAjustada(mascara, k, ajustadaMascara);
    const QImage& f = FuenteAjustada(imagen, k, ajustadaImagen);
    const QImage* fuentes[2] = {&m, &f};
    Bloque b{x * k, y * k, ancho * k, alto * k, {xm * k, xi * k}, {ym * k, yi * k}};
    if (!Recorta(b, destino, fuentes, 2)) return;
    PreparaDestino(destino, k);
    Avisa(destino, x, y, ancho, alto);
    uchar* bitsDestino = destino.bits();
    const uchar* bitsMascara = m.constBits();
    const uchar* bitsImagen = f.constBits();
    const qsizetype lineaDestino = destino.bytesPerLine(), lineaMascara = m.bytesPerLine(),
                    lineaImagen = f.bytesPerLine();
    // A mask brought to another resolution is a new picture each time: its runs aren't kept.
    const TramosMascara* tramos = &m == &mascara ? &Tramos(m) : nullptr;
    for (int j = 0; j < b.Alto; ++j) {
        QRgb* d = Fila(bitsDestino, lineaDestino, b.Y + j, b.X);
        const QRgb* sm = Fila(bitsMascara, lineaMascara, b.Ys[0] + j, b.Xs[0]);
        const QRgb* si = Fila(bitsImagen, lineaImagen, b.Ys[1] + j, b.Xs[1]);
        if (!tramos) {
            FilaConMascara(d, sm, si, b.Ancho);
            continue;
        }
        const int* fin = tramos->Fin.data() + static_cast<size_t>(b.Ys[0] + j) * tramos->Ancho;
        for (int i = 0; i < b.Ancho;) {
            const int hasta = std::min(fin[b.Xs[0] + i] - b.Xs[0], b.Ancho);
            if ((sm[i] & 0xFFFFFF) == 0)
                FilaOpaca(d + i, si + i, hasta - i);
            else
                FilaConMascara(d + i, sm + i, si + i, hasta - i);
            i = hasta;
        }
    }
}

void Rellena(QImage& destino, int x, int y, int ancho, int alto, unsigned colorRgb) {
    if (PinturaOmitida || destino.isNull()) return;
    const int k = qRound(destino.devicePixelRatio());
    const QImage* ninguna[2] = {nullptr, nullptr};
    Bloque b{x * k, y * k, ancho * k, alto * k, {0, 0}, {0, 0}};
    if (!Recorta(b, destino, ninguna, 0)) return;
    PreparaDestino(destino, k);
    Avisa(destino, x, y, ancho, alto);
    uchar* bits = destino.bits();
    const qsizetype linea = destino.bytesPerLine();
    const QRgb color = colorRgb | 0xFF000000u;
    for (int j = 0; j < b.Alto; ++j)
        FilaLlena(reinterpret_cast<QRgb*>(bits + (b.Y + j) * linea) + b.X, color, b.Ancho);
}

QImage GiraCuarto(const QImage& imagen) {
    const QImage fuente = imagen.convertToFormat(QImage::Format_RGB32);
    const int w = fuente.width(), h = fuente.height();
    QImage girada(h, w, QImage::Format_RGB32);
    girada.setDevicePixelRatio(imagen.devicePixelRatio());
    // The old picture rows ran bottom-up, where the turn reads (x, y) -> (y, h - 1 - x);
    // on our top-down rows that is a clockwise turn: (x, y) -> (h - 1 - y, x).
    for (int y = 0; y < h; ++y) {
        const auto* s = reinterpret_cast<const QRgb*>(fuente.constScanLine(y));
        for (int x = 0; x < w; ++x) reinterpret_cast<QRgb*>(girada.scanLine(x))[h - 1 - y] = s[x];
    }
    return girada;
}

QImage CargaImagen(const QString& ruta) {
    QImage imagen(ruta);
    if (imagen.isNull()) return imagen;
    return imagen.convertToFormat(QImage::Format_RGB32);
}
