// A dense screen: the table keeps its sizes in table pixels while every picture holds twice the
// pixels, so a card is drawn from the double-size sheet and stays sharp.
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"

namespace {

QImage HojaDoble(const char* nombre) {
    QImage hoja(QStringLiteral(TRUFAL_SOURCE_DIR "/assets/") + nombre);
    hoja = hoja.convertToFormat(QImage::Format_RGB32);
    hoja.setDevicePixelRatio(1);
    return hoja;
}

struct EscalaDoble {
    EscalaDoble() { EscalaMesa = 2; }
    ~EscalaDoble() {
        // Leave the sheets as every other test expects them.
        EscalaMesa = 1;
        PreparaMesa();
        CargaBaraja();
    }
};

} // namespace

TEST(Escala, ACardOnADenseScreenIsDrawnFromTheDoubleSizeSheet) {
    EscalaDoble doble;
    MesaDePrueba mesa;
    EXPECT_EQ(Pic_Mesa.Ancho(), 1024);
    EXPECT_EQ(Pic_Mesa.Imagen.width(), 2048);
    JuegoActual = JUEGO_TUTE;
    ParametrosJuego();
    ASSERT_EQ(Pic_Baraja[1].Imagen.width(), 2 * 12 * 101);

    const QImage hoja = HojaDoble("Baraja02@2x.jpg");
    const int palo = 3, valor = 12; // the Rey de Espadas, with fine lines to lose
    DibujaCarta(Pic_Mesa.Imagen, 200, 150, 1, palo, valor, CARA_VISIBLE);
    const QImage& m = Pic_Mesa.Imagen;
    const QRgb verde = 0xFF000000u | COLOR_MESA;
    EXPECT_EQ(m.pixel(400, 300), verde) << "the rounded corner shows the table";
    EXPECT_EQ(m.pixel(400 + 201, 300 + 281), verde);
    // Every pixel of a band across the card's middle is the sheet's own pixel.
    const int xs = (valor - 1) * 202, ys = (palo - 1) * 282;
    int distintos = 0;
    for (int x = 20; x < 180; ++x)
        if ((m.pixel(400 + x, 300 + 141) | 0xFF000000u) !=
            (hoja.pixel(xs + x, ys + 141) | 0xFF000000u))
            ++distintos;
    EXPECT_EQ(distintos, 0);

    // A lying card at the left seat reads the same pixels, turned.
    DibujaCarta(Pic_Mesa.Imagen, 10, 300, 2, palo, valor, CARA_VISIBLE);
    for (const auto [x, y] : {std::pair{30, 60}, std::pair{100, 150}, std::pair{170, 40}}) {
        // A clockwise turn takes the sheet's (x, y) to (h - 1 - y, x).
        const QRgb girado = m.pixel(20 + (282 - 1 - y), 600 + x) | 0xFF000000u;
        EXPECT_EQ(girado, hoja.pixel(xs + x, ys + y) | 0xFF000000u) << x << "," << y;
    }
}
