// trufal_genarte FOLDER: writes every picture sheet of the table into FOLDER (the assets/
// folder of the sources). The drawing is deterministic, so a second run gives the same files.
#include "Arte.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QTransform>

#include <algorithm>
#include <cstdio>

namespace {

// Quality 95 leaves up to 11 levels of colour in the black corners, 98 about 5, 100 about 3;
// 98 keeps the corners clean at a moderate size.
constexpr int CALIDAD_JPEG = 98;

QString Carpeta;
bool HuboError = false;

void Guarda(const QImage& imagen, const QString& nombre) {
    const QString ruta = Carpeta + "/" + nombre;
    QImageWriter w(ruta);
    if (nombre.endsWith(".jpg")) {
        w.setQuality(CALIDAD_JPEG);
        w.setOptimizedWrite(true);
    } else {
        w.setQuality(0); // for PNG this asks for the strongest compression
    }
    // Sheets without transparency are written opaque: the program only blits them.
    const bool transparente =
        nombre.startsWith("cursores/") || nombre == "trufal.png" || nombre.startsWith("Senas");
    const QImage salida =
        imagen.convertToFormat(transparente ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (!w.write(salida)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(ruta), qPrintable(w.errorString()));
        HuboError = true;
        return;
    }
    std::printf("%-28s %5d x %-5d\n", qPrintable(nombre), salida.width(), salida.height());
}

// The JPEG coder may leave a faint colour in the black corners, and XOR would lay it over the
// table: measure the worst channel left there, so that it can be kept at a few levels.
int PeorEsquina(const QString& nombre, int valores, double escala) {
    const QImage leida(Carpeta + "/" + nombre);
    const int ancho = int(ANCHO_CARTA * escala + 0.5), alto = int(ALTO_CARTA * escala + 0.5);
    int peor = 0;
    for (int celda = 0; celda < valores * 4; ++celda) {
        const int x0 = (celda % valores) * ancho, y0 = (celda / valores) * alto;
        for (int y = 0; y < alto; ++y)
            for (int x = 0; x < ancho; ++x) {
                if (DentroCarta(x, y, ancho, alto, RADIO_ESQUINA * escala)) continue;
                const QRgb c = leida.pixel(x0 + x, y0 + y);
                peor = std::max({peor, qRed(c), qGreen(c), qBlue(c)});
            }
    }
    return peor;
}

QString Sufijo(double escala) {
    return escala > 1 ? "@2x" : "";
}

// A deck sheet: one cell of 101 by 141 for each value (columns) and suit (rows).
void GuardaBaraja(const QString& nombre, int valores,
                  const std::function<QImage(int, int, double)>& carta, double escala) {
    QImage hoja = NuevaImagen(valores * ANCHO_CARTA, 4 * ALTO_CARTA, escala, Qt::black);
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= valores; ++valor)
            PegaEn(hoja, carta(palo, valor, escala), (valor - 1) * ANCHO_CARTA,
                   (palo - 1) * ALTO_CARTA, escala);
    const QString archivo = nombre + Sufijo(escala) + ".jpg";
    Guarda(hoja, archivo);
    std::printf("  peor nivel en las esquinas: %d\n", PeorEsquina(archivo, valores, escala));
}

QImage Tumbada(const QImage& imagen) {
    return imagen.transformed(QTransform().rotate(90));
}

// The strips of backs: cell 0 the mask, cells 1 to 8 the designs; standing in a row, and
// lying one under another.
void GuardaReversos(double escala) {
    QImage fila = NuevaImagen(9 * ANCHO_CARTA, ALTO_CARTA, escala, Qt::black);
    QImage columna = NuevaImagen(ALTO_CARTA, 9 * ANCHO_CARTA, escala, Qt::black);
    for (int n = 0; n <= 8; ++n) {
        const QImage celda = Reverso(n, escala);
        PegaEn(fila, celda, n * ANCHO_CARTA, 0, escala);
        PegaEn(columna, Tumbada(celda), 0, n * ANCHO_CARTA, escala);
    }
    Guarda(fila, "Reversos" + Sufijo(escala) + ".png");
    Guarda(columna, "ReversosTumbados" + Sufijo(escala) + ".png");
    Guarda(ReversoReducido(escala), "ReversoRedu" + Sufijo(escala) + ".png");
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "uso: trufal_genarte CARPETA\n");
        return 2;
    }
    Carpeta = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(Carpeta + "/cursores");
    CargaFuentes();

    for (double escala : {1.0, 2.0}) {
        GuardaBaraja("Baraja01", 13, CartaFrancesa, escala);
        GuardaBaraja("Baraja02", 12, CartaEspanola, escala);
        GuardaReversos(escala);
        Guarda(Comodin(escala), "Comodin" + Sufijo(escala) + ".png");
        Guarda(HojaFichas(escala), "Fichas" + Sufijo(escala) + ".png");
        Guarda(HojaVario(escala), "Vario" + Sufijo(escala) + ".png");
        Guarda(HojaBotones(escala), "Botones" + Sufijo(escala) + ".png");
        Guarda(HojaContr(escala), "Contr" + Sufijo(escala) + ".png");
        Guarda(HojaNumeros(escala), "NumerosCristal" + Sufijo(escala) + ".png");
        Guarda(HojaSenas(escala), "Senas" + Sufijo(escala) + ".png");
    }
    Guarda(IconoPrograma(256), "trufal.png");
    // Pointers are written at their own size only: the windowing system scales them.
    for (const Cursor& c : Cursores(1.0)) {
        Guarda(c.Imagen, QString("cursores/%1.png").arg(c.Numero));
        std::printf("  punto activo %d, %d: %s\n", c.PuntoX, c.PuntoY, c.Significado);
    }
    return HuboError ? 1 : 0;
}
