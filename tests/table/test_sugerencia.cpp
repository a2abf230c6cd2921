// The information pane and the tutor: the texts as the pane lays them out, the close box that
// needs two presses, the link to the help, and the tutor that advises at full level without
// playing.
#include <gtest/gtest.h>

#include <QPainter>

#include "frame/TrufalGbl.h"
#include "platform/Ayuda.h"
#include "support/MesaDePrueba.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Ids.h"
#include "table/Mensajes.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

#include <QFile>
#include <algorithm>

namespace {

// The entries the pane has a text for; all the others stay empty.
const int ENTRADAS_CON_TEXTO[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 15,
                                  16, 17, 20, 21, 22, 23, 24, 25, 27, 28, 30, 31, 32,
                                  33, 34, 35, 36, 40, 41, 42, 43, 44, 45, 46, 47, 48,
                                  50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61};

// Whether the picture shows blue writing between rows y0 and y1 (pane pixels).
bool HayTextoAzul(const QImage& imagen, int y0, int y1) {
    const double escala = imagen.devicePixelRatio();
    for (int y = int(y0 * escala); y < int(y1 * escala); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor c = imagen.pixelColor(x, y);
            if (c.blue() > 150 && c.red() < 120 && c.green() < 120) return true;
        }
    return false;
}

class SugerenciaTest : public testing::Test {
  protected:
    MesaDePrueba mesa{1024, 768};
    std::vector<int> sonidos;

    void SetUp() override {
        IniciaTextosInformacion();
        VentanaInformacion = 1;
        Pic_Sugerencia.Visible = false;
        TemaAyuda = TextoActual = 0;
        UltimoTemaAyuda = 0;
        SonidoMesaOido = [this](int id) { sonidos.push_back(id); };
    }
    void TearDown() override {
        SonidoMesaOido = nullptr;
        Pic_Sugerencia.Visible = false;
        VentanaInformacion = 1;
    }
    // A press of the left button at a point of the pane, through the table's mouse handler.
    void PulsaEnPanel(int x, int y) {
        RatonPulsado(Pic_Sugerencia.X + x, Pic_Sugerencia.Y + y, 1, false);
    }
};

TEST_F(SugerenciaTest, CadaTextoLlenaCincoLineasDe29SinPartirPalabras) {
    for (int n = 0; n < NUM_TEXTOS_INFORMACION; ++n) {
        const bool conTexto =
            std::count(std::begin(ENTRADAS_CON_TEXTO), std::end(ENTRADAS_CON_TEXTO), n) > 0;
        const QString& t = TextoInformacion[n];
        if (!conTexto) {
            EXPECT_TRUE(t.isEmpty()) << n;
            EXPECT_EQ(TemaInformacion[n], 0) << n;
            continue;
        }
        ASSERT_EQ(t.size(), 145) << n;
        EXPECT_FALSE(t.trimmed().isEmpty()) << n;
        // A blank too many or too few pushes a word across the end of a line.
        for (int k = 1; k < 5; ++k)
            EXPECT_TRUE(t[k * 29 - 1] == ' ' || t[k * 29] == ' ')
                << "entrada " << n << " parte una palabra al final de la línea " << k;
        EXPECT_TRUE(QFile::exists(
            QStringLiteral(TRUFAL_SOURCE_DIR "/help/%1.html").arg(TemaInformacion[n])))
            << "entrada " << n << " tema " << TemaInformacion[n];
    }
}

TEST_F(SugerenciaTest, LasLineasSonLasQueElPanelEscribe) {
    struct Caso {
        int Entrada, Tema;
        QStringList Lineas;
    };
    const Caso casos[] = {
        {1,
         2300,
         {"En esta fase,  cada  jugador ", "realiza su apuesta según  la ",
          "carta recibida. Pulse en las ", "fichas de apuestas hasta que ",
          "complete la apuesta deseada. "}},
        {9,
         2400,
         {"Marque  con  el  puntero las ", "cartas a descartar  y  pulse ",
          "'Descartar  elegidas'   para ", "finalizar.  Pulse  'Servido' ",
          "si no va a descartar ninguna."}},
        {0,
         2121,
         {"Si cierra esta ventana puede ", "reactivarla  en  el selector ",
          "'Ventana de información'  de ", "la opción Personalizar.      ", QString(29, ' ')}},
        {24,
         3110,
         {"Si sus dos cartas  iniciales ", "suman   9 , 10 u 11  tantos, ",
          "puede doblar la suma  de  su ", "apuesta. En ese caso sólo se ",
          "puede pedir una nueva carta. "}},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(LineasInformacion(TextoInformacion[c.Entrada]), c.Lineas) << c.Entrada;
        EXPECT_EQ(TemaInformacion[c.Entrada], c.Tema) << c.Entrada;
    }
    // Entries that share their words, and the longest texts, whole.
    EXPECT_EQ(TextoInformacion[3], TextoInformacion[4]);
    EXPECT_EQ(TextoInformacion[1], TextoInformacion[30]);
    EXPECT_EQ(TextoInformacion[20], TextoInformacion[21]);
    EXPECT_EQ(TextoInformacion[53].trimmed().size(), 145);
    EXPECT_EQ(TextoInformacion[25].trimmed().size(), 100);
}

TEST_F(SugerenciaTest, ElPanelSaleAbajoALaIzquierdaEnAzul) {
    MuestraInformacion(9);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_EQ(Pic_Sugerencia.X, 0);
    EXPECT_EQ(Pic_Sugerencia.Y, 768 - 80);
    EXPECT_EQ(Pic_Sugerencia.Ancho(), 211);
    EXPECT_EQ(Pic_Sugerencia.Alto(), 80);
    EXPECT_EQ(TextoActual, 9);
    EXPECT_EQ(TemaAyuda, 2400);
    for (int k = 1; k <= 5; ++k)
        EXPECT_TRUE(HayTextoAzul(Pic_Sugerencia.Imagen, k * 10 + 10, k * 10 + 20)) << k;
    // Entry 0 fills four lines: the fifth stays clean.
    MuestraInformacion(0);
    EXPECT_TRUE(HayTextoAzul(Pic_Sugerencia.Imagen, 50, 60));
    EXPECT_FALSE(HayTextoAzul(Pic_Sugerencia.Imagen, 61, 80));
}

TEST_F(SugerenciaTest, CerrarPideDosPulsacionesYElPanelQuedaApagado) {
    MuestraInformacion(17);
    const int cx = CERRAR_SUGE_X + 7, cy = CERRAR_SUGE_Y + 7;
    PulsaEnPanel(cx, cy);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_EQ(TextoActual, 0);
    EXPECT_EQ(TemaAyuda, 2121);
    EXPECT_EQ(VentanaInformacion, 1);
    PulsaEnPanel(cx, cy);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
    EXPECT_EQ(VentanaInformacion, 2);
    // Off, the drivers' calls show nothing until the seat window turns it on again.
    MuestraInformacion(45);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
    EXPECT_EQ(TextoActual, 0);
    VentanaInformacion = 1;
    MuestraInformacion(45);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_EQ(TextoActual, 45);
}

TEST_F(SugerenciaTest, MasAyudaAbreElTemaDelTextoVisto) {
    for (auto [entrada, tema] : {std::pair{11, 2153}, {57, 2500}, {0, 2121}}) {
        MuestraInformacion(entrada);
        UltimoTemaAyuda = 0;
        PulsaEnPanel(MAS_AYUDA_X + 20, MAS_AYUDA_Y + 9);
        EXPECT_EQ(UltimoTemaAyuda, tema) << entrada;
    }
    // A press on the words of the pane opens nothing and closes nothing.
    UltimoTemaAyuda = 0;
    PulsaEnPanel(100, 50);
    EXPECT_EQ(UltimoTemaAyuda, 0);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_FALSE(PulsaSugerencia(300, 300)); // outside the pane the table takes the press
}

// ---- The tutor ----

struct Visto {
    int Llamadas = 0, Nivel = -1;
    bool EnCurso = false;
};

class SugerenciaTutor : public SugerenciaTest {
  protected:
    Visto visto;
    std::vector<int> levantadas; // the card of the person's hand raised at each card sound

    void SetUp() override {
        SugerenciaTest::SetUp();
        levantadas.clear();
        SonidoMesaOido = [this](int id) {
            sonidos.push_back(id);
            if (id != 26) return;
            for (int p = 1; p <= NumCartas[4][1]; ++p)
                if (CartasJugador[4][1][p][CAMPO_ESTADO] == 1) levantadas.push_back(p);
        };
        for (auto& r : RutinaTutor) r = nullptr;
        JuegoActual = JUEGO_TUTE;
        PartidaViva = ManoViva = true;
        JugadorActual = 4;
        SerieActual = 1;
        FaseJuego = 4;
        ControlJugador[4] = CONTROL_MANUAL;
        CartasVisibles[4] = 2;
        NivelJugador[4] = 10;
        EsperandoPersona = true;
        JugadaHecha = TutorEnCurso = false;
        for (int p = 1; p <= 3; ++p) {
            auto& c = CartasJugador[4][1][p];
            c[CAMPO_PALO] = p;
            c[CAMPO_VALOR] = p + 2;
            c[CAMPO_CARA] = CARA_VISIBLE;
            c[CAMPO_ESTADO] = 2;
        }
        NumCartas[4][1] = 3;
        FraseJugador[4][1].clear();
        ParpadeoFrase[4][1] = 0;
    }
    void TearDown() override {
        for (auto& r : RutinaTutor) r = nullptr;
        EsperandoPersona = false;
        SugerenciaTest::TearDown();
    }
    // A computer player that notes how it was called and leaves a move of its own.
    void PonRutina(int juego, ConsejoTutor consejo, int carta = 0) {
        RutinaTutor[juego] = [this, consejo, carta] {
            ++visto.Llamadas;
            visto.Nivel = NivelJugador[JugadorActual];
            visto.EnCurso = TutorEnCurso;
            JugadaHecha = true;
            if (carta) CartaElegida = carta;
            return consejo;
        };
    }
    int Veces(int sonido) const { return int(std::count(sonidos.begin(), sonidos.end(), sonido)); }
};

TEST_F(SugerenciaTutor, AconsejaANivel100SinJugarNiCambiarElNivel) {
    PonRutina(JUEGO_TUTE, {}, 2);
    PulsaBoton(4);
    EXPECT_EQ(visto.Llamadas, 1);
    EXPECT_EQ(visto.Nivel, 100);
    EXPECT_TRUE(visto.EnCurso);
    EXPECT_EQ(NivelJugador[4], 10);
    EXPECT_FALSE(TutorEnCurso);
    EXPECT_FALSE(JugadaHecha);
    EXPECT_TRUE(EsperandoPersona);                   // the person still has to play
    EXPECT_EQ(levantadas, (std::vector<int>{2, 2})); // the advised card jumps twice
    EXPECT_EQ(CartasJugador[4][1][2][CAMPO_ESTADO], 2);
}

TEST_F(SugerenciaTutor, SeRechazaFueraDelTurnoDeLaPersonaOConCartasOcultas) {
    PonRutina(JUEGO_TUTE, {}, 1);
    struct Caso {
        const char* Que;
        std::function<void()> Prepara;
    };
    const Caso casos[] = {
        {"cartas ocultas", [] { CartasVisibles[4] = 1; }},
        {"mano acabada", [] { ManoViva = false; }},
        {"asiento automático", [] { ControlJugador[4] = CONTROL_AUTOMATICO; }},
        {"sin esperar a la persona", [] { EsperandoPersona = false; }},
    };
    for (const Caso& c : casos) {
        SetUp();
        PonRutina(JUEGO_TUTE, {}, 1);
        c.Prepara();
        PulsaBoton(4);
        EXPECT_EQ(visto.Llamadas, 0) << c.Que;
        EXPECT_TRUE(MensajesVistos.empty()) << c.Que;
    }
}

TEST_F(SugerenciaTutor, UnJuegoSinRutinaLoDiceConUnMensaje) {
    JuegoActual = JUEGO_MUS;
    PonRutina(JUEGO_TUTE, {}, 1); // another game's routine is not used
    PulsaBoton(4);
    EXPECT_EQ(visto.Llamadas, 0);
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos.front().Titulo, "Tutor de juego");
    EXPECT_TRUE(MensajesVistos.front().Texto.contains("aún no puede aconsejar"));
    EXPECT_FALSE(TutorEnCurso);
    EXPECT_FALSE(JugadaHecha);
}

TEST_F(SugerenciaTutor, LaFraseDelConsejoParpadeaEnVerdeConElSonido12) {
    struct Caso {
        int Juego, Fase;
        ConsejoTutor Consejo;
        int Parpadeos;
    };
    ConsejoTutor apuesta;
    apuesta.Cantidad = 20;
    apuesta.Resto = 100;
    ConsejoTutor mus;
    mus.Cantidad = 2;
    const Caso casos[] = {
        {JUEGO_POKER, 3, apuesta, 3},
        {JUEGO_BLACKJACK, 2, apuesta, 2},
        {JUEGO_MUS, 5, mus, 2},
    };
    for (const Caso& c : casos) {
        sonidos.clear();
        JuegoActual = c.Juego;
        FaseJuego = c.Fase;
        PonRutina(c.Juego, c.Consejo);
        Tutor();
        EXPECT_EQ(Veces(12), c.Parpadeos) << c.Juego;
        // Blinking leaves the phrase wiped, and a later phrase of the seat doesn't blink.
        EXPECT_TRUE(FraseJugador[4][1].isEmpty()) << c.Juego;
        EXPECT_EQ(ParpadeoFrase[4][1], 0) << c.Juego;
        EXPECT_EQ(ColorFrase[4][1], 0x00FF00u) << c.Juego;
    }
}

TEST_F(SugerenciaTutor, ElBotonAconsejadoParpadeaYLosDescartesSeLevantan) {
    JuegoActual = JUEGO_BLACKJACK;
    ConsejoTutor carta;
    carta.Pulsador = 81;
    PonRutina(JUEGO_BLACKJACK, carta);
    Tutor();
    EXPECT_EQ(Veces(6), 2);

    sonidos.clear();
    levantadas.clear();
    JuegoActual = JUEGO_POKER;
    CartasJugador[4][1][2][CAMPO_ESTADO] = 1; // the person's own selection is cleared
    ConsejoTutor descarte;
    descarte.Cartas = {1, 3};
    PonRutina(JUEGO_POKER, descarte);
    Tutor();
    EXPECT_EQ(levantadas, (std::vector<int>{1, 3, 1, 3})); // one by one, two rounds
    for (int p = 1; p <= 3; ++p) EXPECT_NE(CartasJugador[4][1][p][CAMPO_ESTADO], 1) << p;

    sonidos.clear();
    levantadas.clear();
    PonRutina(JUEGO_POKER, ConsejoTutor{}); // no discard: "Servido" blinks
    Tutor();
    EXPECT_EQ(Veces(6), 2);
    EXPECT_TRUE(levantadas.empty());

    // The Mus: "Mandar cortar" blinks where "Mando cortar" stood, then "Mus" blinks, and the
    // person can still give the order.
    sonidos.clear();
    JuegoActual = JUEGO_MUS;
    FaseJuego = FASE_MUS_MUS;
    LanceActual = 0;
    DibujaJugador(4);
    ASSERT_TRUE(Pic_Pulsador[PULSADOR_MANDO].Visible);
    ConsejoTutor mus;
    mus.Pulsador = PULSADOR_MUS;
    mus.MandaSena = true;
    PonRutina(JUEGO_MUS, mus);
    Tutor();
    EXPECT_EQ(Veces(12), 2);
    EXPECT_EQ(Veces(6), 2);
    EXPECT_TRUE(Pic_Pulsador[PULSADOR_MANDO].Visible);
    for (int i : {PULSADOR_MUS, PULSADOR_NO_MUS, PULSADOR_MANDO}) Pic_Pulsador[i].Visible = false;
}

TEST(SugerenciaFrasesTutor, FrasesDeApuestaDelPoker) {
    struct Caso {
        int Cantidad, MaxRonda, Apostado, Resto;
        const char* Frase;
    };
    const Caso casos[] = {
        {-1, 10, 0, 100, "Tirar las cartas"},    {0, 0, 0, 100, "Reservarse"},
        {15, 0, 0, 100, "Apostar 15"},           {6, 10, 4, 100, "Igualar a 10"},
        {16, 10, 4, 100, "Subir a 20"},          {40, 10, 4, 40, "Ir con el resto de 40"},
        {40, 0, 0, 40, "Ir con el resto de 40"},
    };
    for (const Caso& c : casos) {
        ConsejoTutor k;
        k.Cantidad = c.Cantidad;
        k.ApuestaMaxRonda = c.MaxRonda;
        k.Apostado = c.Apostado;
        k.Resto = c.Resto;
        EXPECT_EQ(FraseConsejoPoker(k), QString::fromUtf8(c.Frase)) << c.Cantidad;
    }
}

TEST(SugerenciaFrasesTutor, FrasesDeEnviteDelMus) {
    struct Caso {
        int Cantidad, Contra;
        bool Pareja, Manda;
        const char* Frase;
    };
    const Caso casos[] = {
        {0, 0, false, false, "Pasar"},
        {0, 0, true, false, "Pasar los dos"},
        {0, 999, false, false, "No aceptar"},
        {0, 0, false, true, "Mandar envidar"},
        {2, 0, false, false, "Envidar"},
        {4, 2, false, false, "Reenvidar"},
        {5, 0, false, false, "Apostar 5"},
        {5, 5, false, false, "Aceptar las 5"},
        {8, 5, false, false, "Subir a 8"},
        {999, 0, false, false, "Lanzar órdago"},
        {999, 999, false, false, "Aceptar órdago"},
    };
    for (const Caso& c : casos) {
        ConsejoTutor k;
        k.Cantidad = c.Cantidad;
        k.Contra = c.Contra;
        k.Pareja = c.Pareja;
        k.MandaSena = c.Manda;
        EXPECT_EQ(FraseConsejoMus(k), QString::fromUtf8(c.Frase)) << c.Frase;
    }
}

} // namespace

// For a person to look at: the table with the pane of entry 9 over it, written to
// /tmp/trufal_sugerencia.png. Run with --gtest_also_run_disabled_tests.
TEST_F(SugerenciaTest, DISABLED_GuardaLaMesaConElPanel) {
    MuestraInformacion(9);
    QImage vista = Pic_Mesa.Imagen.copy();
    QPainter p(&vista);
    p.drawImage(Pic_Sugerencia.X, Pic_Sugerencia.Y, Pic_Sugerencia.Imagen);
    p.end();
    ASSERT_TRUE(vista.save("/tmp/trufal_sugerencia.png"));
}
