// The picture sheets of the table: the deck from its data file, the window's own sheets from the
// program's resources, and the quarter turns that give every seat its view. A sheet that can't
// be found is drawn here in a plain form, so the table still plays while the art is missing.
#include "frame/TrufalGbl.h"
#include "platform/Carpetas.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int CELDAS_REVERSO = 9; // the mask and the eight designs
constexpr int LADO_FICHA = 33, CELDAS_FICHA = 7;
constexpr int ANCHO_REDU = 76, ALTO_REDU = 107;
constexpr QRgb NEGRO = 0xFF000000u;

bool TieneTamano(const QImage& imagen, int ancho, int alto) {
    return !imagen.isNull() && imagen.width() == ancho && imagen.height() == alto;
}

QImage CargaRecurso(const char* nombre) {
    const QString ruta = QStringLiteral(":/assets/") + QString::fromLatin1(nombre);
    return QFile::exists(ruta) ? CargaImagen(ruta) : QImage();
}

QImage ImagenNegra(int ancho, int alto) {
    QImage imagen(ancho, alto, QImage::Format_RGB32);
    imagen.fill(NEGRO);
    return imagen;
}

// Everything outside the rounded outline of each cell turns black, so that the XOR over the
// mask leaves the table showing through the corners (a JPEG never keeps that black exact).
void LimpiaEsquinas(QImage& hoja, int anchoCelda, int altoCelda, int escala = 1) {
    anchoCelda *= escala;
    altoCelda *= escala;
    for (int y = 0; y < hoja.height(); ++y) {
        auto* fila = reinterpret_cast<QRgb*>(hoja.scanLine(y));
        for (int x = 0; x < hoja.width(); ++x)
            if (!DentroCarta(x % anchoCelda, y % altoCelda, anchoCelda, altoCelda, 6.0 * escala))
                fila[x] = NEGRO;
    }
}

// The double-size drawing of a sheet of the resources, when the table needs it.
QImage RecursoDoble(const char* nombre) {
    if (EscalaMesa == 1) return QImage();
    QString doble = QString::fromLatin1(nombre);
    doble.insert(doble.lastIndexOf('.'), QStringLiteral("@2x"));
    const QString ruta = QStringLiteral(":/assets/") + doble;
    return QFile::exists(ruta) ? CargaImagen(ruta) : QImage();
}

// ---- Plain stand-ins ----

QImage ReversosProvisionales() {
    QImage hoja = ImagenNegra(CELDAS_REVERSO * ANCHO_CARTA, ALTO_CARTA);
    const QColor tonos[9] = {
        Qt::black,           QColor(150, 20, 30), QColor(20, 50, 140),  QColor(20, 110, 50),
        QColor(120, 60, 20), QColor(90, 30, 120), QColor(20, 110, 120), QColor(140, 110, 20),
        QColor(60, 60, 60)};
    QPainter p(&hoja);
    for (int n = 1; n < CELDAS_REVERSO; ++n) {
        const QRect celda(n * ANCHO_CARTA, 0, ANCHO_CARTA, ALTO_CARTA);
        p.fillRect(celda, Qt::white);
        p.fillRect(celda.adjusted(5, 5, -5, -5), tonos[n]);
        p.setPen(QPen(tonos[n].lighter(160), 1));
        for (int k = 10; k < ANCHO_CARTA + ALTO_CARTA; k += 10) {
            p.drawLine(celda.x() + 5, celda.y() + 5 + k, celda.x() + 5 + k, celda.y() + 5);
        }
    }
    p.end();
    // Cell 0 is the mask: black inside the card, white outside its corners.
    for (int y = 0; y < ALTO_CARTA; ++y)
        for (int x = 0; x < hoja.width(); ++x) {
            const bool dentro = DentroCarta(x % ANCHO_CARTA, y, ANCHO_CARTA, ALTO_CARTA);
            if (x < ANCHO_CARTA)
                hoja.setPixel(x, y, dentro ? NEGRO : 0xFFFFFFFFu);
            else if (!dentro)
                hoja.setPixel(x, y, NEGRO);
        }
    return hoja;
}

QImage CartaProvisional(const QString& rotulo, const QColor& tinta) {
    QImage carta(ANCHO_CARTA, ALTO_CARTA, QImage::Format_RGB32);
    carta.fill(Qt::white);
    QPainter p(&carta);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(60, 60, 60), 1));
    p.drawRoundedRect(QRectF(0.5, 0.5, ANCHO_CARTA - 1, ALTO_CARTA - 1), 6, 6);
    p.setPen(tinta);
    p.setFont(LetraMesa(22));
    p.drawText(carta.rect(), Qt::AlignCenter, rotulo);
    p.setFont(LetraMesa(12));
    p.drawText(QRect(6, 4, 60, 16), Qt::AlignLeft | Qt::AlignTop, rotulo.section('\n', 0, 0));
    p.end();
    return carta;
}

QImage BarajaProvisional(int columnas) {
    QImage hoja = ImagenNegra(columnas * ANCHO_CARTA, 4 * ALTO_CARTA);
    const bool francesa = TipoBaraja == 2;
    const char* const palos[5] = {"", "Oros", "Copas", "Espadas", "Bastos"};
    const char* const signos[5] = {"", "\u2666", "\u2665", "\u2660", "\u2663"};
    const QColor tintas[5] = {Qt::black, QColor(180, 130, 0), QColor(190, 20, 20),
                              QColor(20, 60, 170), QColor(20, 110, 40)};
    QPainter p(&hoja);
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= columnas; ++valor) {
            const QString rotulo = QString::number(valor) + "\n" +
                                   QString::fromUtf8(francesa ? signos[palo] : palos[palo]);
            const QColor tinta =
                francesa ? (palo <= 2 ? QColor(190, 20, 20) : Qt::black) : tintas[palo];
            p.drawImage((valor - 1) * ANCHO_CARTA, (palo - 1) * ALTO_CARTA,
                        CartaProvisional(rotulo, tinta));
        }
    p.end();
    LimpiaEsquinas(hoja, ANCHO_CARTA, ALTO_CARTA);
    return hoja;
}

QImage ComodinProvisional() {
    QImage carta = CartaProvisional(QStringLiteral("JOKER"), QColor(120, 20, 140));
    LimpiaEsquinas(carta, ANCHO_CARTA, ALTO_CARTA);
    return carta;
}

bool DentroFicha(int x, int y) {
    const double cx = x + 0.5 - LADO_FICHA / 2.0, cy = y + 0.5 - LADO_FICHA / 2.0;
    return cx * cx + cy * cy <= 16.0 * 16.0;
}

QImage FichasProvisionales() {
    QImage hoja = ImagenNegra(CELDAS_FICHA * LADO_FICHA, LADO_FICHA);
    const QColor tonos[8] = {
        Qt::black,           QColor(235, 235, 235), QColor(200, 30, 30),  QColor(30, 70, 190),
        QColor(30, 140, 60), QColor(40, 40, 40),    QColor(130, 40, 150), QColor(150, 150, 140)};
    const char* const valores[8] = {"", "1", "2", "5", "10", "20", "50", ""};
    QPainter p(&hoja);
    p.setRenderHint(QPainter::Antialiasing);
    for (int d = 1; d <= CELDAS_FICHA; ++d) {
        const QRectF celda((d - 1) * LADO_FICHA + 0.5, 0.5, LADO_FICHA - 1, LADO_FICHA - 1);
        p.setPen(QPen(tonos[d].darker(180), 1));
        p.setBrush(tonos[d]);
        p.drawEllipse(celda);
        p.setPen(d == 1 ? Qt::black : Qt::white);
        p.setFont(LetraMesa(11));
        p.drawText(celda, Qt::AlignCenter, QString::fromLatin1(valores[d]));
    }
    p.end();
    for (int y = 0; y < LADO_FICHA; ++y)
        for (int x = 0; x < hoja.width(); ++x)
            if (!DentroFicha(x % LADO_FICHA, y)) hoja.setPixel(x, y, NEGRO);
    return hoja;
}

// Seat icons at (seat - 1) * 32, the pass mark at 129, the chip mask at 162.
QImage VarioProvisional() {
    QImage hoja(256, 64, QImage::Format_RGB32);
    hoja.fill(QColor::fromRgb(COLOR_MESA));
    QPainter p(&hoja);
    p.setRenderHint(QPainter::Antialiasing);
    for (int s = 1; s <= 4; ++s) {
        const QRectF icono((s - 1) * 32 + 2, 2, 28, 28);
        p.setPen(QPen(QColor(90, 60, 0), 2));
        p.setBrush(QColor(250, 210, 40));
        p.drawEllipse(icono);
        p.setPen(QColor(90, 60, 0));
        p.setFont(LetraMesa(14));
        p.drawText(icono, Qt::AlignCenter, QString::number(s));
    }
    p.setPen(QPen(QColor(220, 30, 30), 4));
    p.drawLine(QPointF(135, 6), QPointF(155, 26));
    p.drawLine(QPointF(155, 6), QPointF(135, 26));
    p.end();
    for (int y = 0; y < LADO_FICHA; ++y)
        for (int x = 0; x < LADO_FICHA; ++x)
            hoja.setPixel(162 + x, y, DentroFicha(x, y) ? NEGRO : 0xFFFFFFFFu);
    return hoja;
}

QImage HojaProvisional(int ancho, int alto, const QString& rotulo) {
    QImage hoja(ancho, alto, QImage::Format_RGB32);
    hoja.fill(QColor(70, 70, 70));
    QPainter p(&hoja);
    p.setPen(Qt::white);
    p.setFont(LetraMesa(10, false));
    p.drawText(hoja.rect(), Qt::AlignCenter, rotulo);
    return hoja;
}

QImage NumerosProvisionales() {
    QImage hoja(12 * 10, 17, QImage::Format_RGB32);
    hoja.fill(Qt::black);
    QPainter p(&hoja);
    p.setPen(QColor(120, 255, 120));
    p.setFont(LetraMesa(13));
    for (int d = 0; d <= 9; ++d)
        p.drawText(QRect(d * 10, 0, 10, 17), Qt::AlignCenter, QString::number(d));
    return hoja;
}

void CargaReversos() {
    QImage de_pie = CargaRecurso("Reversos.png");
    const bool reales = TieneTamano(de_pie, CELDAS_REVERSO * ANCHO_CARTA, ALTO_CARTA);
    Pic_BarReversos[1].Imagen = reales ? de_pie : ReversosProvisionales();
    // The lying backs come from their own sheet when it matches the standing one; else turned.
    const QImage tumbados = CargaRecurso("ReversosTumbados.png");
    Pic_BarReversos[2].Imagen =
        reales && TieneTamano(tumbados, ALTO_CARTA, CELDAS_REVERSO * ANCHO_CARTA)
            ? tumbados
            : GiraCuarto(Pic_BarReversos[1].Imagen);
    Pic_BarReversos[1].Imagen =
        AEscalaMesa(Pic_BarReversos[1].Imagen, reales ? RecursoDoble("Reversos.png") : QImage());
    Pic_BarReversos[2].Imagen = AEscalaMesa(
        Pic_BarReversos[2].Imagen, reales ? RecursoDoble("ReversosTumbados.png") : QImage());
}

void CargaFichas() {
    QImage fichas = CargaRecurso("Fichas.png");
    const bool reales = TieneTamano(fichas, CELDAS_FICHA * LADO_FICHA, LADO_FICHA);
    if (!reales) fichas = FichasProvisionales();
    Pic_FichasApu[1].Imagen = AEscalaMesa(fichas, reales ? RecursoDoble("Fichas.png") : QImage());
    for (int o = 2; o <= 4; ++o) Pic_FichasApu[o].Imagen = GiraCuarto(Pic_FichasApu[o - 1].Imagen);
}

void CargaComodin() {
    QImage comodin = CargaRecurso("Comodin.png");
    const bool real = TieneTamano(comodin, ANCHO_CARTA, ALTO_CARTA);
    Pic_Comodin[1].Imagen = AEscalaMesa(real ? comodin : ComodinProvisional(),
                                        real ? RecursoDoble("Comodin.png") : QImage());
}

void CargaPequenas() {
    QImage vario = CargaRecurso("Vario.png");
    Pic_BmpVario.Imagen = !vario.isNull() && vario.width() >= 195 && vario.height() >= 33
                              ? vario
                              : VarioProvisional();
    QImage botones = CargaRecurso("Botones.png");
    Pic_BmpBoton.Imagen =
        botones.isNull() ? HojaProvisional(8 * 49, 48, QStringLiteral("Trufal")) : botones;
    QImage contr = CargaRecurso("Contr.png");
    Pic_BmpContr.Imagen = contr.isNull() ? HojaProvisional(48, 23, QString()) : contr;
    QImage numeros = CargaRecurso("NumerosCristal.png");
    Pic_NumerosCristal.Imagen = numeros.isNull() ? NumerosProvisionales() : numeros;
    Pic_BmpVario.Imagen =
        AEscalaMesa(Pic_BmpVario.Imagen, vario.isNull() ? QImage() : RecursoDoble("Vario.png"));
    Pic_BmpBoton.Imagen = AEscalaMesa(Pic_BmpBoton.Imagen, RecursoDoble("Botones.png"));
    Pic_BmpContr.Imagen = AEscalaMesa(Pic_BmpContr.Imagen, RecursoDoble("Contr.png"));
    Pic_NumerosCristal.Imagen =
        AEscalaMesa(Pic_NumerosCristal.Imagen, RecursoDoble("NumerosCristal.png"));
}

QImage BuscaBaraja(const QString& nombre) {
    const QString carpetas[3] = {CarpetaTrabajo, CarpetaPrograma,
                                 QStringLiteral(TRUFAL_SOURCE_DIR "/assets/")};
    for (const QString& carpeta : carpetas) {
        if (carpeta.isEmpty()) continue;
        const QImage imagen = CargaImagen(ConSeparador(carpeta) + nombre);
        if (!imagen.isNull()) return imagen;
    }
    return QImage();
}

} // namespace

void CargaLaminas() {
    CargaReversos();
    CargaComodin();
    CargaFichas();
    CargaPequenas();
    ReversosReducidos();
    if (Pic_Baraja[1].Imagen.isNull()) CargaBaraja();
    ImagenesGiradas();
}

void CargaBaraja() {
    const QString nombre =
        TipoBaraja == 2 ? QStringLiteral("Baraja01.jpg") : QStringLiteral("Baraja02.jpg");
    // A new match of the same deck finds its sheets already read and turned.
    const QFileInfo fichero(CarpetaTrabajo + nombre);
    const QString clave = QStringLiteral("%1|%2|%3|%4|%5")
                              .arg(fichero.absoluteFilePath())
                              .arg(fichero.exists() ? fichero.size() : -1)
                              .arg(fichero.lastModified().toMSecsSinceEpoch())
                              .arg(EscalaMesa)
                              .arg(CarpetaPrograma);
    static QString cargada;
    if (clave == cargada && !Pic_Baraja[4].Imagen.isNull()) return;
    cargada = clave;
    const int columnas = TipoBaraja == 2 ? 13 : 12;
    const int ancho = columnas * ANCHO_CARTA, alto = 4 * ALTO_CARTA;
    QImage hoja = BuscaBaraja(nombre);
    if (hoja.isNull()) {
        hoja = BarajaProvisional(columnas);
    } else {
        // A picture of another size is brought to the grid of cells the drawing reads.
        if (hoja.width() != ancho || hoja.height() != alto)
            hoja = hoja.scaled(ancho, alto, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32);
        LimpiaEsquinas(hoja, ANCHO_CARTA, ALTO_CARTA);
    }
    if (EscalaMesa > 1) {
        // A dense screen takes the double-size deck beside the plain one, when it is there.
        QString doble = nombre;
        doble.insert(doble.lastIndexOf('.'), QStringLiteral("@2x"));
        QImage grande = BuscaBaraja(doble);
        if (!grande.isNull() &&
            (grande.width() != ancho * EscalaMesa || grande.height() != alto * EscalaMesa))
            grande = QImage();
        hoja = AEscalaMesa(hoja, grande);
        LimpiaEsquinas(hoja, ANCHO_CARTA, ALTO_CARTA, EscalaMesa);
    }
    Pic_Baraja[1].Imagen = hoja;
    ImagenesGiradas();
}

void GiraImagen(int orientacionDestino) {
    if (orientacionDestino < 2 || orientacionDestino > 4) return;
    const int previa = orientacionDestino - 1;
    Pic_Baraja[orientacionDestino].Imagen = GiraCuarto(Pic_Baraja[previa].Imagen);
    Pic_Comodin[orientacionDestino].Imagen = GiraCuarto(Pic_Comodin[previa].Imagen);
}

void ImagenesGiradas() {
    // One more quarter turn for each sheet: seat 1's view, seat 2's, seat 3's.
    for (int o = 2; o <= 4; ++o) GiraImagen(o);
}

void ReversosReducidos() {
    const QImage& reversos = Pic_BarReversos[1].Imagen;
    const int diseno = std::clamp(ReversoCartas, 1, CELDAS_REVERSO - 1);
    const int k = qRound(reversos.devicePixelRatio());
    QImage pequeno = NuevaImagen(ANCHO_REDU, ALTO_REDU, COLOR_MESA);
    if (CajaImagen::AnchoLogico(reversos) >= (diseno + 1) * ANCHO_CARTA) {
        pequeno = CopiaLogica(reversos, diseno * ANCHO_CARTA, 0, ANCHO_CARTA, ALTO_CARTA)
                      .scaled(ANCHO_REDU * k, ALTO_REDU * k, Qt::IgnoreAspectRatio,
                              Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_RGB32);
        pequeno.setDevicePixelRatio(k);
        // The small back is copied straight onto the table, so its corners take the table's
        // colour here.
        for (int y = 0; y < ALTO_REDU * k; ++y)
            for (int x = 0; x < ANCHO_REDU * k; ++x)
                if (!DentroCarta(x, y, ANCHO_REDU * k, ALTO_REDU * k, 5.0 * k))
                    pequeno.setPixel(x, y, 0xFF000000u | COLOR_MESA);
    }
    Pic_ReversoRedu[1].Imagen = pequeno;
    Pic_ReversoRedu[2].Imagen = GiraCuarto(pequeno);
}

bool DentroCarta(int x, int y, int ancho, int alto, double radio) {
    if (x < 0 || y < 0 || x >= ancho || y >= alto) return false;
    const double px = x + 0.5, py = y + 0.5;
    const double cx = std::clamp(px, radio, ancho - radio);
    const double cy = std::clamp(py, radio, alto - radio);
    const double ex = px - cx, ey = py - cy;
    return ex * ex + ey * ey <= radio * radio;
}
