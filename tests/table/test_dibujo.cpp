// Drawing read back from the table's pixels. The sheets are replaced by patterns in which every
// pixel tells its cell and its place, so a card read from a wrong cell, or turned the wrong way,
// shows at once.
#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <vector>

#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Frases.h"

namespace {

constexpr QRgb VERDE = 0xFF000000u | COLOR_MESA;
constexpr QRgb NEGRO = 0xFF000000u;

// A sheet of cells whose pixels encode the cell and the place in it; black outside the rounded
// corners of each cell, as the real sheets are.
QImage HojaPatron(int columnas, int filas, int ancho, int alto, int semilla, bool redonda) {
    QImage hoja(columnas * ancho, filas * alto, QImage::Format_RGB32);
    for (int y = 0; y < hoja.height(); ++y)
        for (int x = 0; x < hoja.width(); ++x) {
            const int celda = (y / alto) * columnas + x / ancho;
            const int lx = x % ancho, ly = y % alto;
            const bool dentro = redonda ? DentroCarta(lx, ly, ancho, alto)
                                        : (lx - 16) * (lx - 16) + (ly - 16) * (ly - 16) < 200;
            hoja.setPixel(
                x, y,
                dentro ? qRgb((lx * 7 + semilla) % 256, (ly * 5) % 256, (celda * 4 + 3) % 256)
                       : NEGRO);
        }
    return hoja;
}

void InstalaLaminasDePrueba() {
    QImage reversos = HojaPatron(9, 1, 101, 141, 11, true);
    for (int y = 0; y < 141; ++y)
        for (int x = 0; x < 101; ++x)
            reversos.setPixel(x, y, DentroCarta(x, y, 101, 141) ? NEGRO : 0xFFFFFFFFu);
    Pic_BarReversos[1].Imagen = reversos;
    Pic_BarReversos[2].Imagen = GiraCuarto(reversos);
    Pic_Baraja[1].Imagen = HojaPatron(IdsNormales / 4, 4, 101, 141, 0, true);
    Pic_Comodin[1].Imagen = HojaPatron(1, 1, 101, 141, 99, true);
    ImagenesGiradas();
    ReversosReducidos();
    Pic_FichasApu[1].Imagen = HojaPatron(7, 1, 33, 33, 5, false);
    for (int o = 2; o <= 4; ++o) Pic_FichasApu[o].Imagen = GiraCuarto(Pic_FichasApu[o - 1].Imagen);
    QImage vario(256, 64, QImage::Format_RGB32);
    vario.fill(0xFFFFFFFFu);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < 33; ++x)
            if ((x - 16) * (x - 16) + (y - 16) * (y - 16) < 200) vario.setPixel(162 + x, y, NEGRO);
    Pic_BmpVario.Imagen = vario;
}

QImage Gira(const QImage& imagen, int cuartos) {
    QImage girada = imagen;
    for (int i = 0; i < cuartos; ++i) girada = GiraCuarto(girada);
    return girada;
}

class DibujoTest : public testing::Test {
  protected:
    MesaDePrueba mesa{1024, 768};
    std::vector<int> sonidos;
    std::vector<QPoint> pasos;

    void SetUp() override {
        TipoBaraja = 1;
        IdsNormales = 48;
        NumBarajas = 1;
        ReversoCartas = 1;
        JuegoActual = JUEGO_POKER;
        JugadorActual = JugadorBanca = 0;
        SerieActual = 1;
        ApuestaDelante = AnularReparto = ArrastrandoCarta = TutorEnCurso = false;
        for (auto& s : CartasJugador)
            for (auto& serie : s)
                for (auto& carta : serie)
                    for (int& campo : carta) campo = 0;
        for (auto& fila : NumCartas)
            for (int& n : fila) n = 0;
        for (int s = 0; s <= 4; ++s)
            for (int k = 0; k <= 4; ++k) {
                FraseJugador[s][k].clear();
                ParpadeoFrase[s][k] = 0;
            }
        InstalaLaminasDePrueba();
        BorraVentana();
        SonidoMesaOido = [this](int id) { sonidos.push_back(id); };
        PasoVueloVisto = [this](int x, int y) { pasos.push_back({x, y}); };
    }
    void TearDown() override {
        SonidoMesaOido = nullptr;
        PasoVueloVisto = nullptr;
    }

    QRgb Mesa(int x, int y) const { return Pic_Mesa.Imagen.pixel(x, y); }
    void DaCarta(int seat, int posicion, int palo, int valor, int cara = 2, int estado = 2) {
        auto& c = CartasJugador[seat][1][posicion];
        c[CAMPO_PALO] = palo;
        c[CAMPO_VALOR] = valor;
        c[CAMPO_CARA] = cara;
        c[CAMPO_ESTADO] = estado;
        NumCartas[seat][1] = std::max(NumCartas[seat][1], posicion);
    }
};

TEST_F(DibujoTest, UnCuartoDeVueltaLlevaXYAAltoMenosUnoMenosYX) {
    QImage imagen(5, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) imagen.setPixel(x, y, qRgb(x * 40, y * 80, 7));
    const QImage girada = GiraCuarto(imagen);
    ASSERT_EQ(girada.size(), QSize(3, 5));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(girada.pixel(3 - 1 - y, x), imagen.pixel(x, y));
    // The sheets of the seats are the upright one turned one, two and three times.
    for (int o = 2; o <= 4; ++o)
        EXPECT_EQ(Pic_Baraja[o].Imagen, Gira(Pic_Baraja[1].Imagen, o - 1)) << o;
}

TEST_F(DibujoTest, CadaOrientacionLeeLaCeldaGiradaDeLaCartaDePie) {
    for (const int tipo : {1, 2}) {
        TipoBaraja = tipo;
        IdsNormales = tipo == 1 ? 48 : 52;
        InstalaLaminasDePrueba();
        for (int palo = 1; palo <= 5; ++palo)
            for (int valor = 1; valor <= IdsNormales / 4; valor += palo == 5 ? 13 : 1) {
                QImage dePie(101, 141, QImage::Format_RGB32);
                dePie.fill(VERDE);
                DibujaCarta(dePie, 0, 0, 1, palo, valor, 2);
                // The upright card shows its own cell in the middle, the table at the corners.
                if (palo < 5)
                    ASSERT_EQ(
                        dePie.pixel(50, 70),
                        Pic_Baraja[1].Imagen.pixel((valor - 1) * 101 + 50, (palo - 1) * 141 + 70));
                ASSERT_EQ(dePie.pixel(0, 0), VERDE);
                for (int o = 2; o <= 4; ++o) {
                    const bool tumbada = o % 2 == 0;
                    QImage vista(tumbada ? 141 : 101, tumbada ? 101 : 141, QImage::Format_RGB32);
                    vista.fill(VERDE);
                    DibujaCarta(vista, 0, 0, o, palo, valor, 2);
                    ASSERT_EQ(vista, Gira(dePie, o - 1))
                        << "deck " << tipo << " suit " << palo << " value " << valor << " o " << o;
                }
            }
    }
}

TEST_F(DibujoTest, ReversosUnoYOchoEnLaMesaConSusEsquinas) {
    for (const int reverso : {1, 8}) {
        ReversoCartas = reverso;
        for (int o = 1; o <= 4; ++o) {
            SCOPED_TRACE(testing::Message() << "back " << reverso << " orientation " << o);
            BorraVentana();
            const bool tumbada = o % 2 == 0;
            const int w = tumbada ? 141 : 101, h = tumbada ? 101 : 141;
            DibujaCarta(Pic_Mesa.Imagen, 200, 100, o, 3, 5, 1);
            for (const QPoint esquina :
                 {QPoint(0, 0), QPoint(w - 1, 0), QPoint(0, h - 1), QPoint(w - 1, h - 1)})
                EXPECT_EQ(Mesa(200 + esquina.x(), 100 + esquina.y()), VERDE);
            // Standing backs are read across the strip, lying ones down it: 8 at 808.
            const QRgb esperado = tumbada ? Pic_BarReversos[2].Imagen.pixel(70, reverso * 101 + 50)
                                          : Pic_BarReversos[1].Imagen.pixel(reverso * 101 + 50, 70);
            EXPECT_EQ(Mesa(200 + (tumbada ? 70 : 50), 100 + (tumbada ? 50 : 70)), esperado);
            EXPECT_EQ(Mesa(200 + w, 100), VERDE); // nothing beyond the card
        }
    }
}

TEST_F(DibujoTest, LaCartaTapadaMuestraElReversoHaciaSuDueno) {
    ReversoCartas = 2;
    struct Caso {
        int orientacion;
        QPoint tapado, visto; // a point under the back, and one of the face
    };
    for (const Caso c : {Caso{1, {50, 120}, {50, 20}}, Caso{3, {50, 20}, {50, 120}},
                         Caso{2, {20, 50}, {120, 50}}, Caso{4, {120, 50}, {20, 50}}}) {
        BorraVentana();
        DibujaCarta(Pic_Mesa.Imagen, 0, 0, c.orientacion, 2, 7, 2, 1);
        QImage cara(c.orientacion % 2 == 0 ? 141 : 101, c.orientacion % 2 == 0 ? 101 : 141,
                    QImage::Format_RGB32);
        cara.fill(VERDE);
        DibujaCarta(cara, 0, 0, c.orientacion, 2, 7, 2);
        QImage dorso = cara;
        DibujaCarta(dorso, 0, 0, c.orientacion, 2, 7, 1);
        EXPECT_EQ(Mesa(c.tapado.x(), c.tapado.y()), dorso.pixel(c.tapado)) << c.orientacion;
        EXPECT_EQ(Mesa(c.visto.x(), c.visto.y()), cara.pixel(c.visto)) << c.orientacion;
    }
}

TEST_F(DibujoTest, ElMazoCreceHaciaArribaYALaDerecha) {
    struct Caso {
        int barajas, cuenta, dorsos;
    };
    const int x = 300, y = 200;
    for (const Caso c : {Caso{1, 0, 0}, Caso{1, 1, 1}, Caso{1, 4, 1}, Caso{1, 5, 2},
                         Caso{1, 40, 10}, Caso{6, 312, 13}}) {
        SCOPED_TRACE(testing::Message() << c.cuenta << " cards, " << c.barajas << " decks");
        NumBarajas = c.barajas;
        // Leftovers of the tallest stock, the shoe of six decks, must go.
        BorraVentana();
        NumBarajas = 6;
        DibujaMazo(x, y, 312);
        NumBarajas = c.barajas;
        DibujaMazo(x, y, c.cuenta);
        int arriba = -1, derecha = -1;
        for (int yy = y; yy < y + 160 && arriba < 0; ++yy)
            if (Mesa(x + 50, yy) != VERDE) arriba = yy;
        for (int xx = x + 120; xx >= x && derecha < 0; --xx)
            if (Mesa(xx, y + 80) != VERDE) derecha = xx;
        if (c.dorsos == 0) {
            EXPECT_EQ(arriba, -1);
            EXPECT_EQ(derecha, -1);
        } else {
            EXPECT_EQ(arriba, y + 13 - (c.dorsos - 1));
            EXPECT_EQ(derecha, x + 100 + (c.dorsos - 1));
            EXPECT_NE(Mesa(x + 50, y + 153), VERDE); // the first back still at the bottom
        }
    }
}

TEST_F(DibujoTest, ElPozoDelChinchonTerminaConSuCartaBocaArriba) {
    JuegoActual = JUEGO_CHINCHON;
    CartasEnPozo = 5;
    Pozo[5][1] = 4;
    Pozo[5][2] = 11;
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    // Two backs; the top card lies at the place of the second, face up.
    EXPECT_EQ(Mesa(PozoX + 1 + 50, PozoY + 12 + 70),
              Pic_Baraja[1].Imagen.pixel(10 * 101 + 50, 3 * 141 + 70));
}

TEST_F(DibujoTest, UnVueloSinRecorridoSoloSuenaAlLlegar) {
    const QImage antes = Pic_Mesa.Imagen.copy();
    MueveCarta(1, 3, 400, 300, 1, 1, 400, 300, 1, 2);
    EXPECT_EQ(sonidos, std::vector<int>{25});
    EXPECT_TRUE(pasos.empty());
    QImage esperado = antes;
    DibujaCarta(esperado, 400, 300, 1, 1, 3, 2);
    EXPECT_EQ(Pic_Mesa.Imagen, esperado);
}

TEST_F(DibujoTest, UnVueloNoDejaRastroYAcabaEnSuSitio) {
    // Something on the table that the flight crosses and must leave as it was.
    DibujaCarta(Pic_Mesa.Imagen, 450, 330, 1, 2, 2, 2);
    struct Caso {
        int x1, y1, o1, x2, y2, o2;
    };
    for (const Caso c : {Caso{416, 314, 1, 0, 400, 2}, Caso{342, 626, 1, 416, 379, 1},
                         Caso{500, 10, 3, 500, 300, 3}, Caso{773, 300, 4, 462, 314, 4}}) {
        sonidos.clear();
        pasos.clear();
        const QImage antes = Pic_Mesa.Imagen.copy();
        MueveCarta(3, 12, c.x1, c.y1, c.o1, 1, c.x2, c.y2, c.o2, 2);
        EXPECT_EQ(sonidos, (std::vector<int>{24, 25}));
        ASSERT_FALSE(pasos.empty());
        EXPECT_EQ(pasos.back(), QPoint(c.x2, c.y2));
        // Each step goes nearer to the end on both axes, at most 26 at a time.
        QPoint previo(c.x1, c.y1);
        for (const QPoint& p : pasos) {
            EXPECT_LE(std::abs(p.x() - c.x2), std::abs(previo.x() - c.x2));
            EXPECT_LE(std::abs(p.y() - c.y2), std::abs(previo.y() - c.y2));
            EXPECT_LE(std::max(std::abs(p.x() - previo.x()), std::abs(p.y() - previo.y())), 26);
            previo = p;
        }
        QImage esperado = antes;
        DibujaCarta(esperado, c.x2, c.y2, c.o2, 3, 12, 2);
        EXPECT_EQ(Pic_Mesa.Imagen, esperado)
            << c.x1 << "," << c.y1 << " -> " << c.x2 << "," << c.y2;
        DibujaCarta(Pic_Mesa.Imagen, 0, 0, 1, 0, 0, 1); // a back in the corner for the next
    }
}

TEST_F(DibujoTest, UnaFichaVuelaYSuenaAlCaer) {
    Fichas[4][3] = 0;
    const QImage antes = Pic_Mesa.Imagen.copy();
    MueveFicha(3, PilaX[4][3], PilaY[4][3], PilaX[0][3], PilaY[0][3], 4, 0);
    EXPECT_EQ(sonidos, std::vector<int>{22});
    ASSERT_FALSE(pasos.empty());
    for (size_t i = 1; i < pasos.size(); ++i)
        EXPECT_LE(std::abs(pasos[i].x() - pasos[i - 1].x()), 30);
    QImage esperado = antes;
    std::swap(Pic_Mesa.Imagen, esperado);
    DibujaFicha(PilaX[0][3], PilaY[0][3], 3, 1);
    std::swap(Pic_Mesa.Imagen, esperado);
    EXPECT_EQ(Pic_Mesa.Imagen, esperado);
}

TEST_F(DibujoTest, FichasEnCuatroOrientacionesConSuMascara) {
    for (int d = 1; d <= 7; ++d) {
        BorraVentana();
        DibujaFicha(10, 10, d, 1);
        const QImage dePie = Pic_Mesa.Imagen.copy(10, 10, 33, 33);
        EXPECT_EQ(dePie.pixel(0, 0), VERDE);
        EXPECT_EQ(dePie.pixel(16, 16), Pic_FichasApu[1].Imagen.pixel((d - 1) * 33 + 16, 16));
        for (int o = 2; o <= 4; ++o) {
            BorraVentana();
            DibujaFicha(10, 10, d, o);
            EXPECT_EQ(Pic_Mesa.Imagen.copy(10, 10, 33, 33), Gira(dePie, o - 1)) << d << " " << o;
        }
    }
    BorraVentana();
    const QImage vacia = Pic_Mesa.Imagen.copy();
    DibujaFicha(10, 10, 0, 1);
    EXPECT_EQ(Pic_Mesa.Imagen, vacia);
}

TEST_F(DibujoTest, LasPilasSeInclinanYSeBorranEnteras) {
    struct Caso {
        int cuenta, x, y;
    };
    for (const Caso c : {Caso{1, 0, 0}, Caso{2, 0, 0}, Caso{3, -1, 1}, Caso{4, -2, 2},
                         Caso{6, -2, 2}, Caso{8, -4, 4}, Caso{11, -5, 5}, Caso{30, -5, 5}}) {
        EXPECT_EQ(DesplazaMontonX(c.cuenta), c.x) << c.cuenta;
        EXPECT_EQ(DesplazaMontonY(4, c.cuenta), c.y) << c.cuenta;
        EXPECT_EQ(DesplazaMontonY(1, c.cuenta), -c.y) << c.cuenta;
        EXPECT_EQ(DesplazaMontonY(2, c.cuenta), -c.y) << c.cuenta;
    }
    for (int seat = 0; seat <= 4; ++seat) {
        BorraVentana();
        for (int d = 1; d <= 6; ++d) Fichas[seat][d] = 12;
        DibujaPilas(seat);
        const QImage conFichas = Pic_Mesa.Imagen.copy();
        BorraPila(seat);
        for (int d = 1; d <= 6; ++d)
            for (int k : {1, 12}) {
                const int x = PilaX[seat][d] + DesplazaMontonX(k) + 16;
                const int y = PilaY[seat][d] + DesplazaMontonY(seat, k) + 16;
                EXPECT_NE(conFichas.pixel(x, y), VERDE) << seat << " pile " << d;
                EXPECT_EQ(Mesa(x, y), VERDE) << seat << " pile " << d;
            }
        for (int d = 1; d <= 6; ++d) Fichas[seat][d] = 0;
    }
}

TEST_F(DibujoTest, LaManoDelJugadorConSuCartaAlzada) {
    BorraZona(ZonaIzquierda[4], ZonaArriba[4], 250, 162);
    Transfiere(Pic_Mesa.Imagen, ZonaIzquierda[4] + 200, ZonaArriba[4] + 5, 20, 20,
               Pic_Baraja[1].Imagen, 50, 50, OpRaster::Copia); // stale pixels in the zone
    for (int p = 1; p <= 3; ++p) DaCarta(4, p, p, p + 3, 2, p == 2 ? 1 : 2);
    DibujaJugador(4);
    EXPECT_EQ(sonidos, std::vector<int>{26});
    EXPECT_EQ(Mesa(ZonaIzquierda[4] + 210, ZonaArriba[4] + 10), VERDE);
    for (int p = 1; p <= 3; ++p) {
        PosicionCarta(4, p, 3);
        EXPECT_EQ(CartaY, ZonaArriba[4] + (p == 2 ? 0 : 20));
        // The middle of each card (the later one lies on top) shows its cell.
        const int visible = p == 3 ? 50 : 20;
        EXPECT_EQ(Mesa(CartaX + visible, CartaY + 70),
                  Pic_Baraja[1].Imagen.pixel((p + 2) * 101 + visible, (p - 1) * 141 + 70))
            << p;
    }
}

TEST_F(DibujoTest, LaFraseSeEscribeYSeBorraSinTocarLaCartaAlzada) {
    DaCarta(4, 1, 1, 1, 2, 1);
    DaCarta(4, 2, 2, 2);
    DibujaJugador(4);
    const QImage sinFrase = Pic_Mesa.Imagen.copy();
    FraseJugador[4][1] = "Paso";
    ColorFrase[4][1] = 0x0000FF; // a Windows value: red
    EscribeFrase(4, 2);
    const QRect franja = FranjaFrase(4);
    int rojos = 0, sombras = 0;
    for (int y = franja.top(); y <= franja.bottom(); ++y)
        for (int x = franja.left(); x <= franja.right(); ++x) {
            rojos += Mesa(x, y) == qRgb(255, 0, 0);
            const QRgb c = Mesa(x, y); // the shadow: darker than the table, still green
            sombras += qRed(c) < 40 && qBlue(c) < 40 && qGreen(c) >= 0x40 && qGreen(c) < 0x70;
        }
    EXPECT_GT(rojos, 10);
    EXPECT_GT(sombras, 10);
    FraseJugador[4][1].clear();
    EscribeFrase(4, 2);
    EXPECT_EQ(Pic_Mesa.Imagen, sinFrase);
}

TEST_F(DibujoTest, LaFraseQueParpadeaTerminaBorrada) {
    DaCarta(1, 1, 3, 3);
    FraseJugador[1][1] = "Me planto";
    ColorFrase[1][1] = 0x00FFFF;
    ParpadeoFrase[1][1] = 2;
    DibujaJugador(1);
    EXPECT_TRUE(FraseJugador[1][1].isEmpty());
    const QRect franja = FranjaFrase(1);
    for (int y = franja.top(); y <= franja.bottom(); ++y)
        for (int x = franja.left(); x <= franja.right(); ++x)
            ASSERT_NE(Mesa(x, y), qRgb(255, 255, 0)) << x << "," << y;
}

TEST_F(DibujoTest, NombresDeLosSeatsEnJuego) {
    NombreJugador[1] = "Ana";
    NombreJugador[2] = "Berto";
    NombreJugador[4] = "Dolores";
    EstadoJugador[3] = ESTADO_DESACTIVADO;
    // Seat 3 had its name written before it left.
    BorraVentana();
    QPainter(&Pic_Mesa.Imagen)
        .fillRect(QRect(AnchoMesa - 16, ZonaArriba[3] - 149, 13, 141), Qt::white);
    DibujaNombres();
    auto blancos = [&](const QRect& r) {
        int n = 0;
        for (int y = r.top(); y <= r.bottom(); ++y)
            for (int x = r.left(); x <= r.right(); ++x) n += Mesa(x, y) == qRgb(255, 255, 255);
        return n;
    };
    EXPECT_GT(blancos(QRect(0, 0, 12, ZonaArriba[1])), 5);
    EXPECT_GT(blancos(QRect(ZonaDerecha[2], 0, 170, 20)), 5);
    EXPECT_GT(blancos(QRect(ZonaIzquierda[4] - 160, AltoVentana - 22, 160, 22)), 5);
    EXPECT_EQ(blancos(QRect(AnchoMesa - 14, ZonaAbajo[3], 14, 170)), 0);
}

TEST_F(DibujoTest, ElRotuloPartePorElPrimerBlancoDesdeLaMitad) {
    EXPECT_EQ(LineasRotulo("Elija el jugador que va a ser mano"),
              (QStringList{"Elija el jugador que", "va a ser mano"}));
    // A blank right on the middle character breaks there.
    EXPECT_EQ(LineasRotulo("Repartiendo las cartas por la mesa de juegos"),
              (QStringList{"Repartiendo las cartas", "por la mesa de juegos"}));
    EXPECT_EQ(LineasRotulo("Comienza la Partida"), QStringList{"Comienza la Partida"});
    EXPECT_EQ(LineasRotulo("Sinblancosdespuesdelamitad ParaPartirEstaLineaTanLarga"),
              QStringList{"Sinblancosdespuesdelamitad ParaPartirEstaLineaTanLarga"});

    for (const int juego : {JUEGO_TUTE, JUEGO_MUS}) {
        JuegoActual = juego;
        BorraVentana();
        RotuloMesa("Elija el jugador que va a ser mano");
        const int y = juego == JUEGO_MUS ? 468 : CentroMesaY - 30; // 384 + 83.5, to even
        EXPECT_EQ(RotuloMesaY(), y);
        EXPECT_EQ(Mesa(CentroMesaX - 150, y), qRgb(255, 255, 255));
        EXPECT_EQ(Mesa(CentroMesaX + 150, y + 60), qRgb(255, 255, 255));
        EXPECT_EQ(Mesa(CentroMesaX + 151, y + 60), VERDE);
    }
}

TEST_F(DibujoTest, LasBazasGanadasYElPanelDeTantos) {
    JuegoActual = JUEGO_TUTE;
    NumeroBaza = 3;
    GanadorDeBaza[2] = 1;
    TantosJugador[1][1] = 23;
    TantosJugador[3][1] = 0;
    DibujaBazas(1);
    DibujaBazas(3);
    EXPECT_TRUE(Pic_Tantos[1].Visible);
    EXPECT_FALSE(Pic_Tantos[3].Visible);
    EXPECT_TRUE(BloquePila(1).contains(QRect(Pic_Tantos[1].X, Pic_Tantos[1].Y, 44, 23)));
    EXPECT_EQ(Pic_Tantos[1].Imagen.pixel(0, 0), qRgb(0, 0xC0, 0));
    EXPECT_EQ(Pic_Tantos[1].Imagen.pixel(43, 22), qRgb(0, 0x80, 0));
    const QRect b = BloquePila(1);
    EXPECT_NE(Mesa(b.center().x(), b.center().y() - 20), VERDE); // the small back

    // Black Jack: the value of the hand, an ace counting 11 while it fits.
    JuegoActual = JUEGO_BLACKJACK;
    for (int v = 1; v <= 13; ++v) PuntosValor[v] = std::min(v, 10);
    DaCarta(3, 1, 1, 1);
    DaCarta(3, 2, 2, 6);
    SeriesJugador[3] = 1;
    JugadorActual = 3;
    JugadorBanca = 2;
    DibujaBazas(3);
    EXPECT_TRUE(Pic_Tantos[3].Visible);
    DaCarta(3, 3, 3, 12);
    DibujaBazas(3);
    EXPECT_TRUE(Pic_Tantos[3].Visible);
    // The bank's panel stays hidden while another seat acts.
    DaCarta(2, 1, 1, 10);
    SeriesJugador[2] = 1;
    DibujaBazas(2);
    EXPECT_FALSE(Pic_Tantos[2].Visible);
    OcultaTantos();
    EXPECT_FALSE(Pic_Tantos[1].Visible);
    EXPECT_FALSE(Pic_Tantos[3].Visible);
}

TEST(DibujoBaraja, SeBuscaEnLaCarpetaDeTrabajoYLuegoEnLaDelPrograma) {
    MesaDePrueba mesa(1024, 768);
    QTemporaryDir programa;
    auto guarda = [](const QString& ruta, QColor color, QSize tamano) {
        QImage hoja(tamano, QImage::Format_RGB32);
        hoja.fill(color);
        ASSERT_TRUE(hoja.save(ruta, "JPG", 95));
    };
    CarpetaPrograma = programa.path() + "/";
    TipoBaraja = 1;
    guarda(CarpetaPrograma + "Baraja02.jpg", QColor(200, 0, 0), QSize(1212, 564));
    CargaBaraja();
    EXPECT_EQ(Pic_Baraja[1].Ancho(), 1212);
    EXPECT_GT(qRed(Pic_Baraja[1].Imagen.pixel(50, 70)), 180);
    EXPECT_EQ(Pic_Baraja[1].Imagen.pixel(0, 0), NEGRO); // corners blackened for the XOR
    EXPECT_EQ(Pic_Baraja[1].Imagen.pixel(101 * 5, 141 * 2 + 140), NEGRO);

    // The working folder comes first, and a picture of another size is fitted to the grid.
    guarda(CarpetaTrabajo + "Baraja02.jpg", QColor(0, 0, 200), QSize(606, 282));
    CargaBaraja();
    EXPECT_EQ(Pic_Baraja[1].Imagen.size(), QSize(1212, 564));
    EXPECT_GT(qBlue(Pic_Baraja[1].Imagen.pixel(50, 70)), 180);
    EXPECT_EQ(Pic_Baraja[3].Imagen.size(), QSize(1212, 564));
    EXPECT_EQ(Pic_Baraja[2].Imagen.size(), QSize(564, 1212));

    // The French deck is found under its own name.
    TipoBaraja = 2;
    guarda(CarpetaTrabajo + "Baraja01.jpg", QColor(0, 160, 0), QSize(1313, 564));
    CargaBaraja();
    EXPECT_EQ(Pic_Baraja[1].Ancho(), 1313);
    EXPECT_GT(qGreen(Pic_Baraja[1].Imagen.pixel(50, 70)), 140);
    TipoBaraja = 1;
}

} // namespace

// A row of ten or twelve cards runs a little past its zone; when it shrinks, nothing of it may
// stay behind on the table, in any of the four seats.
TEST_F(DibujoTest, UnaFilaLargaQueEncogeNoDejaRastro) {
    for (int seat = 1; seat <= 4; ++seat) {
        for (int total : {12, 10}) {
            SCOPED_TRACE(testing::Message() << "seat " << seat << ", " << total << " cards");
            BorraVentana();
            for (int p = 1; p <= total; ++p) DaCarta(seat, p, 1 + p % 4, 1 + p % 7);
            DibujaJugador(seat);
            QRect fila;
            for (int p = 1; p <= total; ++p) {
                PosicionCarta(seat, p, total);
                const bool tumbada = seat == 1 || seat == 3;
                fila |= QRect(CartaX, CartaY, tumbada ? 141 : 101, tumbada ? 101 : 141);
            }
            for (int p = 1; p <= total; ++p) CartasJugador[seat][1][p][CAMPO_PALO] = 0;
            NumCartas[seat][1] = 0;
            DaCarta(seat, 1, 2, 5);
            DibujaJugador(seat);
            NumCartas[seat][1] = 0;
            CartasJugador[seat][1][1][CAMPO_PALO] = 0;
            DibujaJugador(seat);
            int restos = 0;
            for (int y = fila.top(); y <= fila.bottom(); ++y)
                for (int x = fila.left(); x <= fila.right(); ++x) restos += Mesa(x, y) != VERDE;
            EXPECT_EQ(restos, 0);
        }
    }
}
