// The picture sheets of assets/, as the generator leaves them: every sheet at its size, and
// every card, back, joker and chip drawn through its mask onto the table's green leaves the
// green round the corners and the picture inside.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "platform/CajaImagen.h"

namespace {

constexpr QRgb VERDE = 0xFF008000u;
// JPEG leaves a few levels of colour in the black corners; the generator keeps it at 5.
constexpr int TOLERANCIA_JPEG = 6;

QString Ruta(const QString& nombre) {
    return QStringLiteral(TRUFAL_SOURCE_DIR "/assets/") + nombre;
}

// A sheet as its grid of pixels: a double-size file is read as pixels too, not as a picture
// of half its size.
QImage Lee(const QString& nombre) {
    QImage hoja = QImage(Ruta(nombre)).convertToFormat(QImage::Format_ARGB32);
    hoja.setDevicePixelRatio(1);
    return hoja;
}

int Diferencia(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

// The four corner pixels of a cell, which lie outside the rounded corner of any card.
std::vector<QPoint> Esquinas(int ancho, int alto) {
    return {{0, 0}, {ancho - 1, 0}, {0, alto - 1}, {ancho - 1, alto - 1}};
}

struct Hoja {
    const char* Nombre;
    int Ancho, Alto;
};

TEST(Arte, CadaHojaExisteConSuTamano) {
    const Hoja hojas[] = {
        {"Baraja01.jpg", 1313, 564},
        {"Baraja02.jpg", 1212, 564},
        {"Baraja01@2x.jpg", 2626, 1128},
        {"Baraja02@2x.jpg", 2424, 1128},
        {"Comodin.png", 101, 141},
        {"Comodin@2x.png", 202, 282},
        {"Reversos.png", 909, 141},
        {"Reversos@2x.png", 1818, 282},
        {"ReversosTumbados.png", 141, 909},
        {"ReversosTumbados@2x.png", 282, 1818},
        {"ReversoRedu.png", 76, 107},
        {"Fichas.png", 231, 33},
        {"Vario.png", 369, 56},
        {"Botones.png", 391, 97},
        {"Contr.png", 17, 46},
        {"NumerosCristal.png", 120, 17},
    };
    for (const Hoja& h : hojas) {
        const QImage img = Lee(h.Nombre);
        ASSERT_FALSE(img.isNull()) << h.Nombre;
        EXPECT_EQ(img.width(), h.Ancho) << h.Nombre;
        EXPECT_EQ(img.height(), h.Alto) << h.Nombre;
    }
    // Pointers: see-through round the shape, and the hands point with the tip of the index
    // finger, where their hot spot is.
    for (int forma : {12, 21, 22, 23, 24, 25, 26, 27, 41, 42, 43}) {
        const QImage cursor = Lee(QString("cursores/%1.png").arg(forma));
        ASSERT_EQ(cursor.size(), QSize(32, 32)) << forma;
        EXPECT_EQ(qAlpha(cursor.pixel(0, 31)), 0) << forma;
        int opacos = 0;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) opacos += qAlpha(cursor.pixel(x, y)) > 128;
        EXPECT_GT(opacos, 100) << forma;
        if (forma >= 21 && forma <= 24) {
            EXPECT_GT(qAlpha(cursor.pixel(11, 1)), 128) << forma;
            EXPECT_LT(qAlpha(cursor.pixel(11, 0)) + qAlpha(cursor.pixel(5, 1)), 32) << forma;
        }
    }
}

// A sheet of cells drawn through a mask: the cells, their size, the mask and where it lies.
struct Juego {
    const char* Hoja;
    int Columnas, Filas, Ancho, Alto;
    const char* Mascara;
    int MascaraX, MascaraY, PrimeraCelda, Tolerancia;
};

// Draws every cell through the mask onto green: AND the mask, then XOR the picture, as the
// table does. Outside the round the green must stay; inside, the picture must show as it is.
TEST(Arte, ElDibujoConMascaraDejaLaMesaEnLasEsquinas) {
    const Juego juegos[] = {
        {"Baraja01.jpg", 13, 4, 101, 141, "Reversos.png", 0, 0, 0, TOLERANCIA_JPEG},
        {"Baraja02.jpg", 12, 4, 101, 141, "Reversos.png", 0, 0, 0, TOLERANCIA_JPEG},
        {"Baraja01@2x.jpg", 13, 4, 202, 282, "Reversos@2x.png", 0, 0, 0, TOLERANCIA_JPEG},
        {"Baraja02@2x.jpg", 12, 4, 202, 282, "Reversos@2x.png", 0, 0, 0, TOLERANCIA_JPEG},
        {"Reversos.png", 9, 1, 101, 141, "Reversos.png", 0, 0, 1, 0},
        {"Reversos@2x.png", 9, 1, 202, 282, "Reversos@2x.png", 0, 0, 1, 0},
        {"ReversosTumbados.png", 1, 9, 141, 101, "ReversosTumbados.png", 0, 0, 1, 0},
        {"Comodin.png", 1, 1, 101, 141, "Reversos.png", 0, 0, 0, 0},
        {"Comodin@2x.png", 1, 1, 202, 282, "Reversos@2x.png", 0, 0, 0, 0},
        {"Fichas.png", 7, 1, 33, 33, "Vario.png", 162, 0, 0, 0},
    };
    for (const Juego& j : juegos) {
        const QImage hoja = Lee(j.Hoja), mascara = Lee(j.Mascara);
        ASSERT_FALSE(hoja.isNull() || mascara.isNull()) << j.Hoja;
        for (int celda = j.PrimeraCelda; celda < j.Columnas * j.Filas; ++celda) {
            const int xs = (celda % j.Columnas) * j.Ancho, ys = (celda / j.Columnas) * j.Alto;
            QImage mesa(j.Ancho + 20, j.Alto + 20, QImage::Format_RGB32);
            mesa.fill(VERDE);
            Transfiere(mesa, 10, 10, j.Ancho, j.Alto, mascara, j.MascaraX, j.MascaraY,
                       OpRaster::And);
            Transfiere(mesa, 10, 10, j.Ancho, j.Alto, hoja, xs, ys, OpRaster::Xor);
            const QString donde = QString("%1 celda %2").arg(j.Hoja).arg(celda);
            for (const QPoint& e : Esquinas(j.Ancho, j.Alto))
                EXPECT_LE(Diferencia(mesa.pixel(e + QPoint(10, 10)), VERDE), j.Tolerancia)
                    << qPrintable(donde);
            const QPoint medio(j.Ancho / 2, j.Alto / 2);
            EXPECT_EQ(mesa.pixel(medio + QPoint(10, 10)) | 0xFF000000u,
                      hoja.pixel(medio + QPoint(xs, ys)) | 0xFF000000u)
                << qPrintable(donde);
        }
    }
}

// The rule the two transfers rely on, pixel by pixel: the mask is pure black or white, and a
// picture is black wherever the mask is white; inside the card a face is never all black.
TEST(Arte, LasCarasSiguenLaMascaraPixelAPixel) {
    const QImage mascara = Lee("Reversos.png").copy(0, 0, 101, 141);
    const QImage reversos = Lee("Reversos.png"), comodin = Lee("Comodin.png");
    const QImage baraja = Lee("Baraja02.jpg");
    int blancos = 0;
    for (int y = 0; y < 141; ++y)
        for (int x = 0; x < 101; ++x) {
            const QRgb m = mascara.pixel(x, y) | 0xFF000000u;
            ASSERT_TRUE(m == 0xFF000000u || m == 0xFFFFFFFFu) << x << "," << y;
            if (m != 0xFFFFFFFFu) continue;
            ++blancos;
            EXPECT_EQ(comodin.pixel(x, y) | 0xFF000000u, 0xFF000000u) << x << "," << y;
            for (int n = 1; n <= 8; ++n)
                EXPECT_EQ(reversos.pixel(n * 101 + x, y) | 0xFF000000u, 0xFF000000u) << n;
            EXPECT_LE(Diferencia(baraja.pixel(x, y), 0xFF000000u), TOLERANCIA_JPEG);
        }
    EXPECT_GT(blancos, 8);   // the corners are really rounded
    EXPECT_LT(blancos, 120); // and only the corners are cut

    // The middle of every face is mostly light card, never a black cell.
    for (const char* nombre : {"Baraja01.jpg", "Baraja02.jpg"}) {
        const QImage b = Lee(nombre);
        for (int celda = 0; celda < b.width() / 101 * 4; ++celda) {
            const int x0 = (celda % (b.width() / 101)) * 101,
                      y0 = (celda / (b.width() / 101)) * 141;
            long suma = 0;
            for (int y = 30; y < 110; ++y)
                for (int x = 20; x < 80; ++x) suma += qGray(b.pixel(x0 + x, y0 + y));
            EXPECT_GT(suma / (80 * 60), 100) << nombre << " celda " << celda;
        }
    }
}

// The chip mask is the round: black inside, white outside, and the chips fill it.
TEST(Arte, LaMascaraDeFichasEsElRedondo) {
    const QImage vario = Lee("Vario.png"), fichas = Lee("Fichas.png");
    EXPECT_EQ(vario.pixel(162, 0) | 0xFF000000u, 0xFFFFFFFFu);
    EXPECT_EQ(vario.pixel(162 + 16, 16) | 0xFF000000u, 0xFF000000u);
    EXPECT_EQ(vario.pixel(162 + 32, 32) | 0xFF000000u, 0xFFFFFFFFu);
    for (int celda = 0; celda < 7; ++celda) {
        EXPECT_EQ(fichas.pixel(celda * 33, 0) | 0xFF000000u, 0xFF000000u) << celda;
        EXPECT_GT(qGray(fichas.pixel(celda * 33 + 16, 3)), 40) << celda; // no black ring inside
    }
}

} // namespace
