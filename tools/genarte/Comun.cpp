// Fonts, text as outlines and the small helpers that every sheet uses.
#include "Arte.h"

#include <QFontDatabase>
#include <QStringList>

#include <algorithm>

void CargaFuentes() {
    // The DejaVu files are loaded by path, so that the sheets don't depend on the fonts that
    // the desktop happens to prefer.
    const QStringList archivos = {
        "DejaVuSans.ttf",  "DejaVuSans-Bold.ttf",  "DejaVuSansCondensed-Bold.ttf",
        "DejaVuSerif.ttf", "DejaVuSerif-Bold.ttf", "DejaVuSerifCondensed-Bold.ttf"};
    for (const QString& a : archivos)
        QFontDatabase::addApplicationFont("/usr/share/fonts/truetype/dejavu/" + a);
}

QFont Fuente(const QString& familia, double pixeles, bool negrita) {
    QFont f(familia);
    f.setPixelSize(std::max(1, int(pixeles)));
    f.setBold(negrita);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setKerning(true);
    return f;
}

QPainterPath TrazoTexto(const QString& texto, const QFont& fuente) {
    // Glyphs come at a large size and are scaled down by the caller, so that the outline
    // keeps its shape at every scale.
    QFont grande = fuente;
    grande.setPixelSize(200);
    QPainterPath trazo;
    trazo.addText(0, 0, grande, texto);
    return trazo;
}

void PintaTextoEnCaja(QPainter& p, const QString& texto, const QFont& fuente, const QRectF& caja,
                      const QBrush& relleno, bool estirar) {
    QPainterPath trazo = TrazoTexto(texto, fuente);
    const QRectF r = trazo.boundingRect();
    if (r.isEmpty()) return;
    const double anchoCabe = caja.width() / r.width(), altoCabe = caja.height() / r.height();
    // Stretched text takes the whole height and is squeezed sideways only when it must be.
    const double ey = estirar ? altoCabe : std::min(anchoCabe, altoCabe);
    const double ex = std::min(anchoCabe, ey);
    p.save();
    p.translate(caja.center());
    p.scale(ex, ey);
    p.translate(-r.center());
    p.fillPath(trazo, relleno);
    p.restore();
}

QImage NuevaImagen(int ancho, int alto, double escala, QColor fondo) {
    QImage img(int(ancho * escala + 0.5), int(alto * escala + 0.5), QImage::Format_ARGB32);
    img.fill(fondo);
    return img;
}

void PreparaPintor(QPainter& p, double escala) {
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.scale(escala, escala);
}

void PegaEn(QImage& hoja, const QImage& celda, int x, int y, double escala) {
    QPainter p(&hoja);
    p.setCompositionMode(QPainter::CompositionMode_Source);
    p.drawImage(QPoint(int(x * escala + 0.5), int(y * escala + 0.5)), celda);
}
