// The settings files, checked against lines built here from the column tables of the format,
// not from the writer: what a file written by hand says must load, and what the program writes
// must sit in the right columns.
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Mensajes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

// Failures show the texts as a person would read them.
static void PrintTo(const QString& texto, std::ostream* salida) {
    *salida << '"' << texto.toStdString() << '"';
}

namespace {

const QString TITULO = QStringLiteral("Error en la carga de datos iniciales");

// Puts a text at a 1-based column of a line, over what was there.
void Coloca(QString& linea, int columna, const QString& texto) {
    linea.replace(columna - 1, texto.size(), texto);
}

// One record as the files hold it; Latin-1 is Windows-1252 for every letter used here.
QByteArray Registro(const QString& texto, const char* fin = "\r\n") {
    return '"' + texto.toLatin1() + '"' + fin;
}

// Line 1 of a per-game file with the factory values, column by column.
QString Linea1DeFabrica(int limitePartida = 3) {
    QString l(147, ' ');
    const char* niveles[] = {"", "050", "050", "050", "100"};
    const char* visibles = " 1112";
    const char* caracter = " 2312";
    for (int s = 1; s <= 4; ++s) {
        const int base = 16 * (s - 1);
        Coloca(l, 1 + base, "Jugador" + QString::number(s));
        Coloca(l, 10 + base, niveles[s]);
        Coloca(l, 13 + base, "1");
        Coloca(l, 14 + base, QString(visibles[s]));
        Coloca(l, 15 + base, QString(visibles[s])); // the control follows the same pattern
        Coloca(l, 16 + base, QString(caracter[s]));
    }
    const std::pair<int, const char*> campos[] = {
        {65, "-1"},  {67, "01"},  {69, "01"},    {71, "1"},    {72, "1"},    {73, "1"},  {74, "4"},
        {75, "1"},   {76, "1"},   {77, "1"},     {78, "1"},    {79, "-1"},   {81, "1"},  {82, "1"},
        {83, " 0"},  {85, " 0"},  {87, "2"},     {88, "-1"},   {90, "1"},    {91, "2"},  {92, "2"},
        {93, " 0"},  {104, " 0"}, {106, " 0"},   {108, "000"}, {111, "0"},   {112, "0"}, {113, "5"},
        {114, " 0"}, {127, "01"}, {129, "0200"}, {133, "005"}, {136, "025"}, {142, "30"}};
    for (const auto& [columna, texto] : campos) Coloca(l, columna, texto);
    Coloca(l, 139, QString::number(limitePartida).rightJustified(3, '0'));
    return l;
}

const QString LINEA2_VACIA = QString("00000000000000 0").repeated(5);
const QString LINEA3_VACIA = QString("0000000").repeated(4);

QByteArray FicheroDeJuego(const QString& linea1, const QStringList& manos = {},
                          const QString& linea2 = LINEA2_VACIA,
                          const QString& linea3 = LINEA3_VACIA) {
    QByteArray datos = Registro(linea1) + Registro(linea2) + Registro(linea3);
    for (const QString& mano : manos) datos += Registro(mano);
    return datos;
}

class Ficheros : public ::testing::Test {
  protected:
    QTemporaryDir carpeta;
    QString carpetaAnterior;

    void SetUp() override {
        ASSERT_TRUE(carpeta.isValid());
        carpetaAnterior = CarpetaTrabajo;
        CarpetaTrabajo = carpeta.path() + "/";
        MensajesVistos.clear();
        RespuestasGuionadas.clear();
        MotorVozMujer = 1;
        MotorVozHombre = 0;
        JuegoActual = JUEGO_TUTE;
    }

    // Leaves the factory settings in memory for the suites that follow.
    void TearDown() override {
        QTemporaryDir limpia;
        CarpetaTrabajo = limpia.path() + "/";
        LeeConfiguracion();
        LeeJuego();
        MensajesVistos.clear();
        CarpetaTrabajo = carpetaAnterior;
    }

    QString Ruta(const QString& nombre) const { return CarpetaTrabajo + nombre; }

    void Escribe(const QString& nombre, const QByteArray& datos) const {
        QFile f(Ruta(nombre));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(datos);
    }

    QByteArray Lee(const QString& nombre) const {
        QFile f(Ruta(nombre));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    // The lines of a file written by the program: every one must end in CR LF.
    QList<QByteArray> Lineas(const QString& nombre) const {
        QByteArray datos = Lee(nombre);
        EXPECT_TRUE(datos.endsWith("\r\n"));
        QList<QByteArray> lineas = datos.split('\n');
        lineas.removeLast();
        for (QByteArray& l : lineas) {
            EXPECT_TRUE(l.endsWith('\r'));
            l.chop(1);
        }
        return lineas;
    }
};

// Columns of a line (1-based) inside its quotes.
QByteArray Columnas(const QByteArray& linea, int columna, int ancho) {
    return linea.mid(columna, ancho);
}

} // namespace

TEST(FicherosCp1252, CadaCaracterEsUnByteYLoQueNoCabeEsInterrogacion) {
    const std::pair<QString, QByteArray> casos[] = {
        {QStringLiteral("Peñón"), QByteArray("Pe\xF1\xF3n")},
        {QStringLiteral("Ángel Mª"), QByteArray("\xC1ngel M\xAA")},
        {QStringLiteral("€ Œ ž Ÿ … — ‘’ ™"),
         QByteArray("\x80 \x8C \x9E \x9F \x85 \x97 \x91\x92 \x99")},
        {QStringLiteral("Ā日"), QByteArray("??")},
        {QString::fromUcs4(U"a\U0001F600b"), QByteArray("a?b")}, // one character, one column
    };
    for (const auto& [texto, bytes] : casos) {
        EXPECT_EQ(ACp1252(texto), bytes) << texto.toStdString();
        if (!bytes.contains('?')) EXPECT_EQ(DeCp1252(bytes), texto);
    }
    // Every byte decodes to one character and encodes back to itself.
    QByteArray todos;
    for (int b = 0; b < 256; ++b) todos.append(static_cast<char>(b));
    const QString texto = DeCp1252(todos);
    EXPECT_EQ(texto.size(), 256);
    EXPECT_EQ(ACp1252(texto), todos);
}

TEST_F(Ficheros, GlobalGrabadoSeLeeColumnaAColumna) {
    JuegoActual = JUEGO_MUS;
    SonidoActivado = true;
    VelocidadJuego = 7;
    VocesActivadas = true;
    const int sexo[] = {0, 1, 2, 1, 2}, tono[] = {0, 0, 100, 33, 9}, veloc[] = {0, 99, 1, 50, 77};
    for (int s = 1; s <= 4; ++s) {
        VozSexo[s] = sexo[s];
        VozTono[s] = tono[s];
        VozVelocidad[s] = veloc[s];
    }
    GrabaConfiguracion();

    QString esperada(125, ' ');
    Coloca(esperada, 1, "57-1007-1");
    const char* bloques[] = {"", "1000099", "2100001", "1033050", "2009077"};
    for (int s = 1; s <= 4; ++s) Coloca(esperada, 11 + 7 * (s - 1), bloques[s]);
    EXPECT_EQ(Lee("TRF32.INI"), Registro(esperada));

    JuegoActual = JUEGO_POKER;
    SonidoActivado = VocesActivadas = false;
    VelocidadJuego = 50;
    for (int s = 1; s <= 4; ++s) VozSexo[s] = VozTono[s] = VozVelocidad[s] = 0;
    LeeConfiguracion();
    EXPECT_EQ(JuegoActual, JUEGO_MUS);
    EXPECT_TRUE(SonidoActivado);
    EXPECT_EQ(VelocidadJuego, 7);
    EXPECT_TRUE(VocesActivadas);
    for (int s = 1; s <= 4; ++s) {
        EXPECT_EQ(VozSexo[s], sexo[s]);
        EXPECT_EQ(VozTono[s], tono[s]);
        EXPECT_EQ(VozVelocidad[s], veloc[s]);
    }
    EXPECT_TRUE(MensajesVistos.empty());
}

TEST_F(Ficheros, GlobalEscritoAManoSeCorrigeAlLeer) {
    struct Caso {
        int columna;
        QString texto;
        int motores;
        std::function<int()> valor;
        int esperado;
    };
    const auto juego = [] { return JuegoActual; };
    const auto sonido = [] { return int(SonidoActivado); };
    const auto velocidad = [] { return VelocidadJuego; };
    const auto voces = [] { return int(VocesActivadas); };
    const Caso casos[] = {
        {1, "59", 1, juego, 59},
        {1, "60", 1, juego, 51},
        {1, "50", 1, juego, 51},
        {3, "-1", 1, sonido, 1},
        {3, " 3", 1, sonido, 1},
        {3, "  ", 1, sonido, 0},
        {5, "101", 1, velocidad, 50},
        {5, "000", 1, velocidad, 0},
        {8, "-1", 1, voces, 1},
        {8, " 1", 1, voces, 0},
        {8, "-1", 0, voces, 0}, // no speech engine: no voices
        {11, "3", 1, [] { return VozSexo[1]; }, 2},
        {25, "1", 1, [] { return VozSexo[3]; }, 1},
        {33, "101", 1, [] { return VozTono[4]; }, 50},
        {15, "   ", 1, [] { return VozVelocidad[1]; }, 0}, // a seat field: blank reads 0
        {36, "7xy", 1, [] { return VozVelocidad[4]; }, 7},
    };
    for (const Caso& caso : casos) {
        QString linea(125, ' ');
        Coloca(linea, 1, "51 0050 0 2050050205005020500502050050");
        Coloca(linea, caso.columna, caso.texto);
        Escribe("TRF32.INI", Registro(linea));
        MotorVozMujer = caso.motores;
        SonidoActivado = VocesActivadas = true;
        LeeConfiguracion();
        EXPECT_EQ(caso.valor(), caso.esperado) << caso.columna << " '" << caso.texto.toStdString();
        EXPECT_EQ(ErrorFichero, 0);
    }
    EXPECT_TRUE(MensajesVistos.empty());
}

TEST_F(Ficheros, LaPlantillaEsUnFicheroGlobalConLosValoresDeFabrica) {
    QFile plantilla(QStringLiteral(TRUFAL_SOURCE_DIR) + "/assets/TRF32INI");
    ASSERT_TRUE(plantilla.open(QIODevice::ReadOnly));
    const QByteArray bytes = plantilla.readAll();
    Escribe("TRF32.INI", bytes);
    JuegoActual = JUEGO_PUMBA;
    SonidoActivado = true;
    VelocidadJuego = 3;
    for (int s = 1; s <= 4; ++s) VozSexo[s] = 1, VozTono[s] = VozVelocidad[s] = 9;
    LeeConfiguracion();
    EXPECT_EQ(JuegoActual, JUEGO_POKER);
    EXPECT_FALSE(SonidoActivado);
    EXPECT_EQ(VelocidadJuego, 50);
    EXPECT_FALSE(VocesActivadas);
    for (int s = 1; s <= 4; ++s) {
        EXPECT_EQ(VozSexo[s], 2);
        EXPECT_EQ(VozTono[s], 50);
        EXPECT_EQ(VozVelocidad[s], 50);
    }
    EXPECT_TRUE(MensajesVistos.empty());
    GrabaConfiguracion();
    EXPECT_EQ(Lee("TRF32.INI"), bytes);
}

TEST_F(Ficheros, GlobalQueFaltaSeCreaYSeAvisa) {
    VelocidadJuego = 90;
    LeeConfiguracion();
    EXPECT_EQ(ErrorFichero, 53);
    EXPECT_EQ(VelocidadJuego, 50);
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos[0].Titulo, TITULO);
    EXPECT_EQ(MensajesVistos[0].Texto,
              QStringLiteral("No se encuentra  el  fichero  de inicialización TRF32.INI. Se ha "
                             "creado automáticamente con los valores establecidos por defecto."));
    EXPECT_EQ(MensajesVistos[0].Lineas, 3);
    EXPECT_EQ(MensajesVistos[0].Botones, 1);
    QFile plantilla(QStringLiteral(TRUFAL_SOURCE_DIR) + "/assets/TRF32INI");
    ASSERT_TRUE(plantilla.open(QIODevice::ReadOnly));
    EXPECT_EQ(Lee("TRF32.INI"), plantilla.readAll());
}

TEST_F(Ficheros, JuegoGrabadoSeLeeColumnaAColumna) {
    const QString nombres[] = {"", "Peñalver", "Ñoño", "Ángel Ruiz", "Maximiliano"};
    const QString leidos[] = {"", "Peñalver", "Ñoño", "Ángel Rui", "Maximilia"};
    const int nivel[] = {0, 0, 100, 7, 33}, estado[] = {0, 2, 1, 2, 1},
              visibles[] = {0, 2, 2, 1, 1}, control[] = {0, 2, 1, 2, 1},
              caracter[] = {0, 1, 2, 3, 3};
    for (int s = 1; s <= 4; ++s) {
        NombreJugador[s] = nombres[s];
        NivelJugador[s] = nivel[s];
        EstadoJugador[s] = estado[s];
        CartasVisibles[s] = visibles[s];
        ControlJugador[s] = control[s];
        CaracterJugador[s] = caracter[s];
    }
    // Every rule away from its default.
    struct Entero {
        int* valor;
        int puesto;
    };
    // Pairs need four players; a file with fewer is read singly (checked with the clamps).
    const Entero enteros[] = {
        {&ModalidadPareja, 2},  {&LeyApertura, 14},       {&SentidoJuego, 2},
        {&ModoReparto, 2},      {&OpcionComodines, 3},    {&NumJugadores, 4},
        {&CartaMinimaPoker, 6}, {&VentanaInformacion, 2}, {&TurnoSalida, 2},
        {&ReversoCartas, 8},    {&ObligacionAsistir, 2},  {&TipoBarajaEspanola, 2},
        {&TipoMus, 1},          {&TreintaYUnaReal, 6},    {&JuegosPartidaMus, 3},
        {&ImagenContrarios, 1}, {&JugadorBanca, 3},       {&LimiteDescartes, 0},
        {&PasoSentido, -1},     {&RestoInicial, 1234},    {&ApuestaMinima, 12},
        {&ApuestaMaxima, 345},  {&LimitePartida, 21},     {&PiedrasJuego, 40},
    };
    for (const Entero& e : enteros) *e.valor = e.puesto;
    bool* const booleanos[] = {&ContinuarManual, &PermitirContrafallar, &CartasSiempreOrdenadas,
                               &AsOrosComodin, &DetallarPasos};
    const bool puestos[] = {false, false, true, true, false};
    for (int i = 0; i < 5; ++i) *booleanos[i] = puestos[i];
    PartidaViva = ManoViva = true;
    NumeroMano = 3;
    JugadorMano = 4;
    for (int seat = 0; seat <= 4; ++seat) {
        for (int f = 1; f <= 6; ++f) Fichas[seat][f] = seat * 10 + f;
        Piedras[seat] = 20 + seat;
        PiedrasCompletas[seat] = seat % 2 == 1;
        Apuesta[seat][1][2] = 1000 * seat + 7;
        JuegosGanados[seat] = seat == 1 ? -1 : 250 + seat;
    }
    for (int mano = 1; mano <= 3; ++mano) {
        RegistroMano& r = RegistroManos[mano];
        r = RegistroMano();
        r.Sale = mano == 1 ? "Peñalver" : "Ñoño";
        r.Banca = mano == 1 ? -1234 : 32000;
        for (int s = 1; s <= 4; ++s) {
            for (int c = 1; c <= 4; ++c) r.Gana[s][c] = (s + c + mano) % 2;
            r.Resultado[s] = "     " + QString::number(s * mano) + "     -" + QString::number(s);
            r.Detalle[s] = "acepté " + QString::number(mano);
            r.Extra[s] = s + mano;
        }
    }
    GrabaJuego();

    // Seat 4 led the third hand. Play runs 4, 3, 2 (PasoSentido -1), so the seat before 4 is
    // the next one up that plays: 1 is off, so 2.
    EXPECT_EQ(JugadorMano, 2);
    const QList<QByteArray> lineas = Lineas("TRF5332.INI");
    ASSERT_EQ(lineas.size(), 5); // the third hand was under way: only two are stored
    const int largos[] = {147, 80, 28, 200, 200};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(lineas[i].size(), largos[i] + 2) << "line " << i + 1;
        EXPECT_TRUE(lineas[i].startsWith('"') && lineas[i].endsWith('"'));
    }
    const QByteArray& l1 = lineas[0];
    EXPECT_EQ(Columnas(l1, 1, 16), QByteArray("Pe\xF1"
                                              "alver 0002221"));
    EXPECT_EQ(Columnas(l1, 17, 16), QByteArray("\xD1o\xF1o     1001212"));
    EXPECT_EQ(Columnas(l1, 33, 9), QByteArray("\xC1ngel Rui"));
    EXPECT_EQ(Columnas(l1, 49, 9), QByteArray("Maximilia"));
    EXPECT_EQ(Columnas(l1, 65, 29), QByteArray(" 0021422346228 022-1-11 0631 "));
    EXPECT_EQ(Columnas(l1, 93, 2), QByteArray(" 0"));
    EXPECT_EQ(Columnas(l1, 104, 12), QByteArray("-1-1002230 0"));
    EXPECT_EQ(Columnas(l1, 127, 21), QByteArray("-1123401234502140    "));
    const QByteArray& l2 = lineas[1];
    EXPECT_EQ(Columnas(l2, 1, 16), QByteArray("01020304050620 0"));
    EXPECT_EQ(Columnas(l2, 17, 16), QByteArray("11121314151621-1"));
    EXPECT_EQ(Columnas(lineas[2], 1, 28), QByteArray("1007-01200725230072534007254"));
    const QByteArray& m1 = lineas[3];
    EXPECT_EQ(Columnas(m1, 1, 14), QByteArray("Pe\xF1"
                                              "alver -1234"));
    EXPECT_EQ(Columnas(m1, 15, 42), QByteArray("1010     1     -1    acept\xE9"
                                               " 1            2"));
    EXPECT_EQ(Columnas(lineas[4], 10, 5), QByteArray("32000"));

    // Read back over a memory that holds something else everywhere.
    for (int s = 1; s <= 4; ++s) {
        NombreJugador[s].clear();
        NivelJugador[s] = EstadoJugador[s] = CartasVisibles[s] = 1;
        ControlJugador[s] = CaracterJugador[s] = 1;
    }
    for (const Entero& e : enteros) *e.valor = 1;
    for (bool* b : booleanos) *b = !*b;
    PartidaViva = ManoViva = false;
    for (int seat = 0; seat <= 4; ++seat) {
        for (int f = 1; f <= 6; ++f) Fichas[seat][f] = 0;
        Piedras[seat] = Apuesta[seat][1][2] = JuegosGanados[seat] = 0;
        PiedrasCompletas[seat] = false;
    }
    LeeJuego();
    EXPECT_TRUE(MensajesVistos.empty());
    EXPECT_EQ(ErrorFichero, 0);
    for (int s = 1; s <= 4; ++s) {
        EXPECT_EQ(NombreJugador[s], leidos[s]);
        EXPECT_EQ(NivelJugador[s], nivel[s]);
        EXPECT_EQ(EstadoJugador[s], estado[s]);
        EXPECT_EQ(CartasVisibles[s], visibles[s]);
        EXPECT_EQ(ControlJugador[s], control[s]);
        EXPECT_EQ(CaracterJugador[s], caracter[s]);
    }
    for (const Entero& e : enteros) EXPECT_EQ(*e.valor, e.puesto);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(*booleanos[i], puestos[i]) << i;
    EXPECT_TRUE(PartidaViva);
    EXPECT_TRUE(ManoViva);
    EXPECT_EQ(NumeroMano, 2);
    EXPECT_EQ(JugadorMano, 2);
    for (int seat = 0; seat <= 4; ++seat) {
        for (int f = 1; f <= 6; ++f) EXPECT_EQ(Fichas[seat][f], seat * 10 + f);
        EXPECT_EQ(Piedras[seat], 20 + seat);
        EXPECT_EQ(PiedrasCompletas[seat], seat % 2 == 1);
        if (seat == 0) continue;
        EXPECT_EQ(Apuesta[seat][1][2], 1000 * seat + 7);
        EXPECT_EQ(JuegosGanados[seat], seat == 1 ? -1 : 250 + seat);
    }
    for (int mano = 1; mano <= 2; ++mano) {
        const RegistroMano& r = RegistroManos[mano];
        EXPECT_EQ(r.Sale, mano == 1 ? "Peñalver" : "Ñoño");
        EXPECT_EQ(r.Banca, mano == 1 ? -1234 : 32000);
        for (int s = 1; s <= 4; ++s) {
            for (int c = 1; c <= 4; ++c) EXPECT_EQ(r.Gana[s][c], (s + c + mano) % 2);
            EXPECT_EQ(r.Resultado[s],
                      "     " + QString::number(s * mano) + "     -" + QString::number(s));
            EXPECT_EQ(r.Detalle[s], "acepté " + QString::number(mano));
            EXPECT_EQ(r.Extra[s], s + mano);
        }
    }
    EXPECT_TRUE(RegistroManos[3].Sale.isEmpty()); // the hand under way is dealt again
}

TEST_F(Ficheros, JuegoEscritoAManoSeCorrigeAlLeer) {
    struct Caso {
        int columna;
        QString texto;
        std::function<QString()> valor;
        QString esperado;
    };
    const auto n = [](int v) { return QString::number(v); };
    const Caso casos[] = {
        {1, "ana belén", [] { return NombreJugador[1]; }, "Ana Belén"},
        {17, "PEPE     ", [] { return NombreJugador[2]; }, "Pepe"},
        {33, "  maría  ", [] { return NombreJugador[3]; }, "María"},
        {10, "120", [n] { return n(NivelJugador[1]); }, "50"},
        {26, "   ", [n] { return n(NivelJugador[2]); }, "0"},
        {61, "3", [n] { return n(EstadoJugador[4]); }, "1"},
        {14, "0", [n] { return n(CartasVisibles[1]); }, "1"},
        {31, "9", [n] { return n(ControlJugador[2]); }, "1"},
        {16, "4", [n] { return n(CaracterJugador[1]); }, "2"},
        {78, "9", [n] { return n(ReversoCartas); }, "1"},
        {69, "15", [n] { return n(LeyApertura); }, "1"},
        {67, "03", [n] { return n(ModalidadPareja); }, "1"},
        {87, "3", [n] { return n(TipoMus); }, "2"},
        {91, "4", [n] { return n(JuegosPartidaMus); }, "2"},
        {92, "0", [n] { return n(ImagenContrarios); }, "2"},
        {113, "6", [n] { return n(LimiteDescartes); }, "5"},
        {142, "19", [n] { return n(PiedrasJuego); }, "30"},
        {142, "50", [n] { return n(PiedrasJuego); }, "50"},
        {139, "999", [n] { return n(LimitePartida); }, "999"}, // kept in range by the screens
        {129, "9999", [n] { return n(RestoInicial); }, "9999"},
        {65, "  ", [n] { return n(ContinuarManual); }, "0"},
        {79, " 5", [n] { return n(PermitirContrafallar); }, "1"},
        {83, "-1", [n] { return n(CartasSiempreOrdenadas); }, "1"},
    };
    for (const Caso& caso : casos) {
        QString linea1 = Linea1DeFabrica();
        Coloca(linea1, caso.columna, caso.texto);
        Escribe("TRF5332.INI", FicheroDeJuego(linea1));
        LeeJuego();
        EXPECT_EQ(caso.valor(), caso.esperado) << caso.columna << " '" << caso.texto.toStdString();
        EXPECT_EQ(ErrorFichero, 0);
    }
    for (const char* jugadores : {"3", "4"}) {
        QString linea1 = Linea1DeFabrica();
        Coloca(linea1, 67, "02");
        Coloca(linea1, 74, jugadores);
        Escribe("TRF5332.INI", FicheroDeJuego(linea1));
        LeeJuego();
        EXPECT_EQ(ModalidadPareja, NumJugadores == 4 ? 2 : 1) << jugadores << " players";
    }
    EXPECT_TRUE(MensajesVistos.empty());
}

TEST_F(Ficheros, PartidaQueNoSigueNoLeeManos) {
    QString linea1 = Linea1DeFabrica();
    Coloca(linea1, 108, "012"); // a count left by an old match
    QString mano(200, ' ');
    Coloca(mano, 1, "Jugador1     7");
    Escribe("TRF5332.INI", FicheroDeJuego(linea1, QStringList(12, mano)));
    RegistroManos[1].Sale = "Viejo";
    NumeroMano = 5;
    LeeJuego();
    EXPECT_FALSE(PartidaViva);
    EXPECT_EQ(NumeroMano, 0);
    EXPECT_TRUE(RegistroManos[1].Sale.isEmpty());
    EXPECT_EQ(RegistroManos[1].Banca, 0);
    EXPECT_TRUE(MensajesVistos.empty());
}

TEST_F(Ficheros, PartidaAplazadaSeReanudaEnLaManoQueIba) {
    struct Caso {
        int manoEnCurso, mano, asientoApagado;
        int manosEnFichero, manoEnFichero;
    };
    const Caso casos[] = {
        {3, 3, 0, 2, 2}, // the leader goes back one seat...
        {3, 3, 2, 2, 1}, // ...one that plays
        {1, 3, 0, 0, 3}, // the first hand hasn't rotated: nothing to undo
        {5, 1, 0, 4, 4}, // from seat 1 back round to seat 4
    };
    for (const Caso& caso : casos) {
        QFile::remove(Ruta("TRF5332.INI"));
        LeeJuego(); // factory settings
        for (int s = 1; s <= 4; ++s) EstadoJugador[s] = s == caso.asientoApagado ? 2 : 1;
        PartidaViva = ManoViva = true;
        NumeroMano = caso.manoEnCurso;
        JugadorMano = caso.mano;
        for (int m = 1; m <= caso.manoEnCurso; ++m)
            RegistroManos[m].Sale = "Mano" + QString::number(m);
        GrabaJuego();
        const QList<QByteArray> lineas = Lineas("TRF5332.INI");
        ASSERT_EQ(lineas.size(), 3 + caso.manosEnFichero);
        EXPECT_EQ(Columnas(lineas[0], 108, 4),
                  QString::number(caso.manosEnFichero).rightJustified(3, '0').toLatin1() +
                      QByteArray::number(caso.manoEnFichero));

        JugadorMano = NumeroMano = 0;
        LeeJuego();
        EXPECT_EQ(NumeroMano, caso.manosEnFichero);
        EXPECT_EQ(RegistroManos[caso.manoEnCurso].Sale, "");
        if (caso.manosEnFichero > 0)
            EXPECT_EQ(RegistroManos[caso.manosEnFichero].Sale,
                      "Mano" + QString::number(caso.manosEnFichero));
        // What the next hand does: a new number, and past the first hand the leader moves on.
        ++NumeroMano;
        if (NumeroMano != 1) SiguienteJugador(JugadorMano);
        EXPECT_EQ(NumeroMano, caso.manoEnCurso);
        EXPECT_EQ(JugadorMano, caso.mano);
    }
}

TEST_F(Ficheros, BlackJackSientaSiempreALaBancaEnElAsiento2) {
    JuegoActual = JUEGO_BLACKJACK;
    QString linea1 = Linea1DeFabrica();
    Coloca(linea1, 17, "pepe     010222"); // seat 2 off, manual, cards hidden
    Coloca(linea1, 72, "2");
    Escribe("TRF5232.INI", FicheroDeJuego(linea1));
    for (bool existe : {true, false}) {
        if (!existe) QFile::remove(Ruta("TRF5232.INI"));
        LeeJuego();
        EXPECT_EQ(NombreJugador[2], "Banca");
        EXPECT_EQ(EstadoJugador[2], 1);
        EXPECT_EQ(NivelJugador[2], 100);
        EXPECT_EQ(ControlJugador[2], 1);
        for (int s = 1; s <= 4; ++s) EXPECT_EQ(CartasVisibles[s], 2);
        EXPECT_EQ(ModoReparto, 1);
    }
}

TEST_F(Ficheros, JuegoQueFaltaSeCreaConLosValoresDeFabrica) {
    const std::pair<int, int> limites[] = {
        {JUEGO_POKER, 3}, {JUEGO_TUTE, 3}, {JUEGO_CHINCHON, 50}, {JUEGO_PUMBA, 50}};
    for (const auto& [juego, limite] : limites) {
        MensajesVistos.clear();
        JuegoActual = juego;
        ReversoCartas = 5;
        PartidaViva = true;
        NumeroMano = 4;
        RegistroManos[1].Sale = "Viejo";
        LeeJuego();
        const QString nombre = "TRF" + QString::number(juego) + "32.INI";
        EXPECT_EQ(ErrorFichero, 53);
        ASSERT_EQ(MensajesVistos.size(), 1u);
        EXPECT_EQ(MensajesVistos[0].Titulo, TITULO);
        EXPECT_EQ(MensajesVistos[0].Texto, "No se encuentra el fichero de inicialización " +
                                               nombre +
                                               ". Se ha creado automáticamente con los valores "
                                               "establecidos por defecto.");
        EXPECT_EQ(MensajesVistos[0].Lineas, 3);
        EXPECT_EQ(LimitePartida, limite);
        EXPECT_EQ(ReversoCartas, 1);
        EXPECT_FALSE(PartidaViva);
        EXPECT_EQ(NumeroMano, 0);
        EXPECT_TRUE(RegistroManos[1].Sale.isEmpty());
        EXPECT_EQ(Lee(nombre), FicheroDeJuego(Linea1DeFabrica(limite)));
    }
}

TEST_F(Ficheros, LineasConSoloLFComillasQueFaltanYLineasCortas) {
    QString global(125, ' ');
    Coloca(global, 1, "55-1080 0 1020030");
    Escribe("TRF32.INI", Registro(global, "\n"));
    LeeConfiguracion();
    EXPECT_EQ(JuegoActual, JUEGO_SIETEYMEDIA);
    EXPECT_TRUE(SonidoActivado);
    EXPECT_EQ(VelocidadJuego, 80);
    EXPECT_EQ(VozSexo[1], 1);
    EXPECT_EQ(VozVelocidad[1], 30);

    JuegoActual = JUEGO_TUTE;
    QString linea1 = Linea1DeFabrica();
    Coloca(linea1, 104, "-1-1001");
    QString mano(200, ' ');
    Coloca(mano, 1, "Jugador3    -5");
    // The first line lost its closing quote; line 3 stops after seat 1; a hand line is short.
    const QByteArray datos = '"' + linea1.toLatin1() + "\n\"" + LINEA2_VACIA.toLatin1() +
                             "\"\n\"0012003\"\n\"" + mano.left(14).toLatin1() + "\"\n";
    Escribe("TRF5332.INI", datos);
    for (int s = 1; s <= 4; ++s) JuegosGanados[s] = 9;
    LeeJuego();
    EXPECT_TRUE(PartidaViva);
    EXPECT_EQ(NumeroMano, 1);
    EXPECT_EQ(LimitePartida, 3);
    EXPECT_EQ(PiedrasJuego, 30);
    EXPECT_EQ(Apuesta[1][1][2], 12);
    EXPECT_EQ(JuegosGanados[1], 3);
    EXPECT_EQ(JuegosGanados[2], 0); // the columns past the end read as blanks
    EXPECT_EQ(RegistroManos[1].Sale, "Jugador3");
    EXPECT_EQ(RegistroManos[1].Banca, -5);
    EXPECT_TRUE(MensajesVistos.empty());
}

TEST_F(Ficheros, CampoIlegibleConservaSuValorYSeAvisaPorNumero) {
    QString global(125, ' ');
    Coloca(global, 1, "51 0ab5 0");
    Escribe("TRF32.INI", Registro(global));
    VelocidadJuego = 80;
    LeeConfiguracion();
    EXPECT_EQ(VelocidadJuego, 80);
    EXPECT_EQ(ErrorFichero, 13);
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos[0].Titulo, TITULO);
    EXPECT_EQ(MensajesVistos[0].Texto, "IDC ERROR 13");
    EXPECT_EQ(MensajesVistos[0].Lineas, 3);
    EXPECT_EQ(MensajesVistos[0].Botones, 1);

    MensajesVistos.clear();
    JuegoActual = JUEGO_TUTE;
    QString linea1 = Linea1DeFabrica();
    Coloca(linea1, 69, "x1");
    Escribe("TRF5332.INI", FicheroDeJuego(linea1));
    LeyApertura = 7;
    LeeJuego();
    EXPECT_EQ(LeyApertura, 7);
    EXPECT_EQ(ErrorFichero, 13);
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos[0].Texto, "IDCS ERROR 13");

    // Three fields that can't be read: three messages, one for each.
    MensajesVistos.clear();
    Coloca(linea1, 72, "?");
    Coloca(linea1, 139, "x03");
    Escribe("TRF5332.INI", FicheroDeJuego(linea1));
    LeeJuego();
    ASSERT_EQ(MensajesVistos.size(), 3u);
    for (const MensajeVisto& m : MensajesVistos) EXPECT_EQ(m.Texto, "IDCS ERROR 13");

    // A figure too big for its setting: no message, and the field keeps its value.
    MensajesVistos.clear();
    linea1 = Linea1DeFabrica();
    Coloca(linea1, 104, "-1");
    Coloca(linea1, 108, "001");
    QString mano(200, ' ');
    Coloca(mano, 1, "Jugador1 99999");
    Escribe("TRF5332.INI", FicheroDeJuego(linea1, {mano}));
    LeeJuego();
    EXPECT_EQ(ErrorFichero, 6);
    EXPECT_EQ(RegistroManos[1].Banca, 0);
    EXPECT_EQ(RegistroManos[1].Sale, "Jugador1");
    EXPECT_TRUE(MensajesVistos.empty());

    // The file announces more hands than it holds: each missing hand is an error of its own.
    Coloca(linea1, 108, "003");
    Escribe("TRF5332.INI", FicheroDeJuego(linea1, {mano}));
    LeeJuego();
    ASSERT_EQ(MensajesVistos.size(), 2u);
    for (const MensajeVisto& m : MensajesVistos) EXPECT_EQ(m.Texto, "IDCS ERROR 62");
}

TEST_F(Ficheros, CarpetaDondeNoSePuedeGrabar) {
    // A folder under a plain file can't exist, whatever the rights of the user.
    Escribe("bloqueo", "x");
    CarpetaTrabajo = Ruta("bloqueo") + "/sub/";
    NombreJugador[1] = "Ramón";
    VelocidadJuego = 66;
    PartidaViva = true;
    NumeroMano = 1;
    GrabaJuego();
    GrabaConfiguracion();
    EXPECT_EQ(NombreJugador[1], "Ramón");
    EXPECT_EQ(VelocidadJuego, 66);
    EXPECT_TRUE(PartidaViva);
    ASSERT_EQ(MensajesVistos.size(), 2u);
    for (const MensajeVisto& m : MensajesVistos) {
        EXPECT_EQ(m.Titulo, TITULO);
        EXPECT_TRUE(m.Texto.startsWith("No se ha podido grabar el fichero "))
            << m.Texto.toStdString();
    }
    EXPECT_TRUE(MensajesVistos[0].Texto.contains("TRF5332.INI"));
    EXPECT_TRUE(MensajesVistos[1].Texto.contains("TRF32.INI"));

    // A missing file that can't be created: factory values, and no claim that it was created.
    MensajesVistos.clear();
    LeeConfiguracion();
    EXPECT_EQ(VelocidadJuego, 50);
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_TRUE(MensajesVistos[0].Texto.startsWith("No se ha podido grabar"));
}

TEST_F(Ficheros, GrabarReemplazaElFicheroEntero) {
    const QString ruta = Ruta("TRF32.INI");
    ASSERT_TRUE(GrabaFicheroAtomico(ruta, QByteArray(500, 'x')));
    ASSERT_TRUE(GrabaFicheroAtomico(ruta, "corto"));
    EXPECT_EQ(Lee("TRF32.INI"), "corto");
    // No temporary file is left beside it.
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files), QStringList{"TRF32.INI"});
}
