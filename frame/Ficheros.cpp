// The settings files. Each line is one fixed-column field between double quotes, ended by CR LF,
// in Windows-1252 so that every character takes exactly one column. TRF32.INI holds the settings
// of the program; TRFnn32.INI the settings of game nn and the match left open in it.
#include "frame/Ficheros.h"

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Mensajes.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStringList>
#include <vector>
#include <cmath>

namespace {

// Error numbers of the file routines, as the person reads them in the messages.
constexpr int ERROR_DESBORDAMIENTO = 6; // a figure too big for a 16-bit setting
constexpr int ERROR_TIPOS = 13;         // a field that isn't a whole number
constexpr int ERROR_NO_ENCONTRADO = 53; // the file isn't there
constexpr int ERROR_FIN_FICHERO = 62;   // the file has fewer lines than it announces
constexpr int ERROR_ACCESO = 75;        // the file is there but can't be opened

constexpr int MINIMO_16 = -32768, MAXIMO_16 = 32767;

// Lengths of the records.
constexpr int ANCHO_GLOBAL = 125;
constexpr int ANCHO_LINEA1 = 147, ANCHO_LINEA2 = 80, ANCHO_LINEA3 = 28, ANCHO_MANO = 200;
constexpr int LINEAS_CABECERA = 3;     // the hand records start after them
constexpr int MAX_MANOS_FICHERO = 999; // the count of stored hands has three columns

const QString NOMBRE_GLOBAL = QStringLiteral("TRF32.INI");
const QString TITULO_ERROR = QStringLiteral("Error en la carga de datos iniciales");

// ---------------------------------------------------------------------------------------------
// Windows-1252

// What the bytes 0x80 to 0x9F stand for. The five bytes the code page leaves free map to the
// control characters of the same number, so that they survive a round trip.
constexpr char16_t CP1252_80_9F[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteCp1252(char32_t codigo) {
    if (codigo < 0x80 || (codigo >= 0xA0 && codigo <= 0xFF)) return static_cast<char>(codigo);
    for (int i = 0; i < 32; ++i)
        if (CP1252_80_9F[i] == codigo) return static_cast<char>(0x80 + i);
    return '?';
}

// A text as the file will hold it: composed accents, no quotes or line breaks that would end
// the field early, and only what the code page can write, one character per column.
QString TextoFichero(const QString& texto) {
    QString limpio = texto.normalized(QString::NormalizationForm_C);
    for (QChar& c : limpio) {
        if (c == '"')
            c = '\'';
        else if (c == '\r' || c == '\n' || c == '\t')
            c = ' ';
    }
    return DeCp1252(ACp1252(limpio));
}

// ---------------------------------------------------------------------------------------------
// Errors while reading

// The last error goes to ErrorFichero, as an error handler that carries on would leave it.
// Each one worth telling the person is kept too: an overflow says nothing, the table mends it.
std::vector<int> ErroresParaAviso;

void AnotaError(int numero) {
    ErrorFichero = numero;
    if (numero != ERROR_DESBORDAMIENTO) ErroresParaAviso.push_back(numero);
}

void EmpiezaLectura() {
    ErrorFichero = 0;
    ErroresParaAviso.clear();
}

// After the reading, one message for each field that couldn't be read: "IDC ERROR 13",
// "IDCS ERROR 62".
void AvisaError(const QString& prefijo) {
    const std::vector<int> errores = std::move(ErroresParaAviso);
    ErroresParaAviso.clear();
    for (int numero : errores) Mensaje(TITULO_ERROR, prefijo + QString::number(numero), 3, 1);
}

// ---------------------------------------------------------------------------------------------
// Reading fields

// Strict conversion: after trimming, an optional sign and digits, else error 13; beyond the
// 16-bit range, error 6. Either way the setting keeps the value it had.
bool LeeEstricto(const QString& linea, int columna, int ancho, int& destino) {
    const QString texto = LeeColumna(linea, columna, ancho).trimmed();
    const int inicio = (texto.startsWith('-') || texto.startsWith('+')) ? 1 : 0;
    bool cifras = texto.size() > inicio;
    for (int i = inicio; i < texto.size(); ++i) cifras = cifras && texto[i].isDigit();
    if (!cifras) {
        AnotaError(ERROR_TIPOS);
        return false;
    }
    const qlonglong valor = texto.toLongLong(); // the columns are too narrow to overflow it
    if (valor < MINIMO_16 || valor > MAXIMO_16) {
        AnotaError(ERROR_DESBORDAMIENTO);
        return false;
    }
    destino = static_cast<int>(valor);
    return true;
}

// The fields of the seats are read by numeric prefix, so a blank reads 0.
void LeeAsiento(const QString& linea, int columna, int ancho, int& destino) {
    const double valor = std::nearbyint(Val(LeeColumna(linea, columna, ancho)));
    if (valor < MINIMO_16 || valor > MAXIMO_16) {
        AnotaError(ERROR_DESBORDAMIENTO);
        return;
    }
    destino = static_cast<int>(valor);
}

// The figure of a boolean field: blank is 0 (False); one that can't be read gives back the
// figure of the value it had.
int LeeFiguraBooleana(const QString& linea, int columna, bool actual) {
    if (LeeColumna(linea, columna, 2).trimmed().isEmpty()) return 0;
    int figura = actual ? -1 : 0;
    LeeEstricto(linea, columna, 2, figura);
    return figura;
}

void LeeBooleano(const QString& linea, int columna, bool& destino) {
    destino = LeeFiguraBooleana(linea, columna, destino) != 0;
}

// Texts: the right padding goes; the left one stays, since some results are packed in columns.
QString LeeTexto(const QString& linea, int columna, int ancho) {
    QString texto = LeeColumna(linea, columna, ancho);
    while (texto.endsWith(' ')) texto.chop(1);
    return texto;
}

// ---------------------------------------------------------------------------------------------
// Writing fields

// A figure in a "0"-style column: leading zeros, and a minus sign that takes a column of its
// own so that the figure still reads back ("-01" for -1 in three columns).
QString Cifra(int valor, int ancho) {
    if (valor >= 0) return Formato(valor, QString(ancho, '0'));
    return '-' + Formato(-valor, QString(std::max(ancho - 1, 1), '0'));
}

QString Booleano(bool valor) {
    return valor ? QStringLiteral("-1") : QStringLiteral(" 0");
}

void PonCifra(QString& linea, int columna, int ancho, int valor) {
    PonColumna(linea, columna, ancho, Cifra(valor, ancho));
}

void PonBooleano(QString& linea, int columna, bool valor) {
    PonColumna(linea, columna, 2, Booleano(valor));
}

QByteArray CierraLinea(const QString& texto) {
    return ACp1252('"' + texto + '"') + "\r\n";
}

// ---------------------------------------------------------------------------------------------
// Whole files

QString TextoEntreComillas(const QString& linea) {
    if (!linea.startsWith('"')) return linea;
    const int cierre = linea.lastIndexOf('"');
    return cierre > 0 ? linea.mid(1, cierre - 1) : linea.mid(1);
}

// Reads a file as the texts of its lines, with CR LF or LF alike. Returns 0 or the error.
int LeeFichero(const QString& ruta, QStringList& lineas) {
    QFile fichero(ruta);
    if (!fichero.exists()) return ERROR_NO_ENCONTRADO;
    if (!fichero.open(QIODevice::ReadOnly)) return ERROR_ACCESO;
    QList<QByteArray> trozos = fichero.readAll().split('\n');
    if (!trozos.isEmpty() && trozos.last().isEmpty()) trozos.removeLast();
    for (QByteArray& trozo : trozos) {
        if (trozo.endsWith('\r')) trozo.chop(1);
        lineas << TextoEntreComillas(DeCp1252(trozo));
    }
    return 0;
}

// The line of that index; a file that ends before it is error 62 and the line isn't read.
bool TomaLinea(const QStringList& lineas, int indice, QString& linea) {
    if (indice >= lineas.size()) {
        AnotaError(ERROR_FIN_FICHERO);
        return false;
    }
    linea = lineas.at(indice);
    return true;
}

// A file that can't be written leaves the settings in memory as they are, and says so.
bool GrabaFichero(const QString& nombre, const QByteArray& contenido) {
    if (GrabaFicheroAtomico(CarpetaTrabajo + nombre, contenido)) return true;
    Mensaje(TITULO_ERROR,
            "No se ha podido grabar el fichero " + nombre + " en la carpeta " +
                QDir::toNativeSeparators(CarpetaTrabajo) +
                ". La configuración actual se conserva mientras el programa siga abierto.",
            3, 1);
    return false;
}

// ---------------------------------------------------------------------------------------------
// Tables of the fields

struct CampoEntero {
    int Columna, Ancho;
    int* Valor;
};
struct CampoBooleano {
    int Columna;
    bool* Valor;
};
// The range a setting must keep, and what takes its place outside it.
struct Rango {
    int* Valor;
    int Minimo, Maximo, Defecto;
};

void Acota(int& valor, int minimo, int maximo, int defecto) {
    if (valor < minimo || valor > maximo) valor = defecto;
}

// Line 1 of the per-game file, the fields read strictly. NumeroMano here is the count of
// stored hands: the file keeps NumeroMano - 1 and the records 1 to NumeroMano - 1.
const CampoEntero CAMPOS_LINEA1[] = {
    {67, 2, &ModalidadPareja},  {69, 2, &LeyApertura},        {71, 1, &SentidoJuego},
    {72, 1, &ModoReparto},      {73, 1, &OpcionComodines},    {74, 1, &NumJugadores},
    {75, 1, &CartaMinimaPoker}, {76, 1, &VentanaInformacion}, {77, 1, &TurnoSalida},
    {78, 1, &ReversoCartas},    {81, 1, &ObligacionAsistir},  {82, 1, &TipoBarajaEspanola},
    {87, 1, &TipoMus},          {90, 1, &TreintaYUnaReal},    {91, 1, &JuegosPartidaMus},
    {92, 1, &ImagenContrarios}, {108, 3, &NumeroMano},        {111, 1, &JugadorMano},
    {112, 1, &JugadorBanca},    {113, 1, &LimiteDescartes},   {127, 2, &PasoSentido},
    {129, 4, &RestoInicial},    {133, 3, &ApuestaMinima},     {136, 3, &ApuestaMaxima},
    {139, 3, &LimitePartida},   {142, 2, &PiedrasJuego},
};

const CampoBooleano BOOLEANOS_LINEA1[] = {
    {65, &ContinuarManual}, {79, &PermitirContrafallar}, {83, &CartasSiempreOrdenadas},
    {85, &AsOrosComodin},   {88, &DetallarPasos},        {104, &PartidaViva},
    {106, &ManoViva},
};

// Columns kept for fields that are no longer read: a blank and a "0", then blanks.
constexpr int RESERVADOS_LINEA1[] = {93, 114};

const Rango RANGOS_JUEGO[] = {
    {&ModalidadPareja, 1, 2, 1},    {&LeyApertura, 1, 14, 1},       {&SentidoJuego, 1, 2, 1},
    {&ModoReparto, 1, 2, 1},        {&OpcionComodines, 1, 3, 1},    {&CartaMinimaPoker, 1, 6, 1},
    {&VentanaInformacion, 1, 2, 1}, {&TurnoSalida, 1, 2, 1},        {&ReversoCartas, 1, 8, 1},
    {&ObligacionAsistir, 1, 2, 1},  {&TipoBarajaEspanola, 1, 2, 1}, {&TipoMus, 1, 2, 2},
    {&TreintaYUnaReal, 1, 6, 1},    {&JuegosPartidaMus, 1, 3, 2},   {&ImagenContrarios, 1, 2, 2},
    {&LimiteDescartes, 0, 5, 5},    {&PiedrasJuego, 20, 50, 30},
};

// The seats' defaults, seat 1 to 4.
constexpr int NIVEL_DEFECTO[5] = {0, 50, 50, 50, 100};
constexpr int VISIBLES_DEFECTO[5] = {0, 1, 1, 1, 2};
constexpr int CONTROL_DEFECTO[5] = {0, 1, 1, 1, 2};
constexpr int CARACTER_DEFECTO[5] = {0, 2, 3, 1, 2};

// ---------------------------------------------------------------------------------------------
// TRF32.INI

void PonConfiguracionPorDefecto() {
    JuegoActual = JUEGO_POKER;
    SonidoActivado = false;
    VelocidadJuego = 50;
    VocesActivadas = false;
    for (int s = 1; s <= 4; ++s) {
        VozSexo[s] = VOZ_HOMBRE;
        VozTono[s] = 50;
        VozVelocidad[s] = 50;
    }
}

void LeeLineaConfiguracion(const QString& linea) {
    LeeEstricto(linea, 1, 2, JuegoActual);
    SonidoActivado = LeeFiguraBooleana(linea, 3, SonidoActivado) != 0;
    LeeEstricto(linea, 5, 3, VelocidadJuego);
    VocesActivadas = LeeFiguraBooleana(linea, 8, VocesActivadas) == -1;
    for (int s = 1; s <= 4; ++s) {
        const int base = 7 * (s - 1);
        LeeAsiento(linea, 11 + base, 1, VozSexo[s]);
        LeeAsiento(linea, 12 + base, 3, VozTono[s]);
        LeeAsiento(linea, 15 + base, 3, VozVelocidad[s]);
    }
}

void AceptaConfiguracion() {
    Acota(JuegoActual, JUEGO_POKER, JUEGO_PUMBA, JUEGO_POKER);
    Acota(VelocidadJuego, 0, 100, 50);
    // Voices need an engine to speak with.
    if (MotorVozMujer == 0 && MotorVozHombre == 0) VocesActivadas = false;
    for (int s = 1; s <= 4; ++s) {
        Acota(VozSexo[s], VOZ_MUJER, VOZ_HOMBRE, VOZ_HOMBRE);
        Acota(VozTono[s], 0, 100, 50);
        Acota(VozVelocidad[s], 0, 100, 50);
    }
}

QByteArray ContenidoConfiguracion() {
    QString linea(ANCHO_GLOBAL, ' ');
    PonCifra(linea, 1, 2, JuegoActual);
    PonBooleano(linea, 3, SonidoActivado);
    PonCifra(linea, 5, 3, VelocidadJuego);
    PonBooleano(linea, 8, VocesActivadas);
    for (int s = 1; s <= 4; ++s) {
        const int base = 7 * (s - 1);
        PonCifra(linea, 11 + base, 1, VozSexo[s]);
        PonCifra(linea, 12 + base, 3, VozTono[s]);
        PonCifra(linea, 15 + base, 3, VozVelocidad[s]);
    }
    return CierraLinea(linea);
}

// ---------------------------------------------------------------------------------------------
// TRFnn32.INI

void BorraRegistroManos() {
    for (RegistroMano& registro : RegistroManos) registro = RegistroMano();
}

} // namespace

void PonJuegoPorDefecto() {
    for (int s = 1; s <= 4; ++s) {
        NombreJugador[s] = "Jugador" + QString::number(s);
        NivelJugador[s] = NIVEL_DEFECTO[s];
        EstadoJugador[s] = ESTADO_ACTIVADO;
        CartasVisibles[s] = VISIBLES_DEFECTO[s];
        ControlJugador[s] = CONTROL_DEFECTO[s];
        CaracterJugador[s] = CARACTER_DEFECTO[s];
    }
    for (const Rango& rango : RANGOS_JUEGO) *rango.Valor = rango.Defecto;
    ContinuarManual = true;
    PermitirContrafallar = true;
    CartasSiempreOrdenadas = false;
    AsOrosComodin = false;
    DetallarPasos = true;
    NumJugadores = 4;
    PartidaViva = false;
    ManoViva = false;
    NumeroMano = 0;
    JugadorMano = 0;
    JugadorBanca = 0;
    PasoSentido = 1;
    RestoInicial = 200;
    ApuestaMinima = 5;
    ApuestaMaxima = 25;
    // Chinchón and Pumba are played to a count of points, the others to a count of games.
    LimitePartida = (JuegoActual == JUEGO_CHINCHON || JuegoActual == JUEGO_PUMBA) ? 50 : 3;
    for (int seat = 0; seat <= 4; ++seat) {
        for (int f = 1; f <= 6; ++f) Fichas[seat][f] = 0;
        Piedras[seat] = 0;
        PiedrasCompletas[seat] = false;
        Apuesta[seat][1][2] = 0;
        JuegosGanados[seat] = 0;
    }
    BorraRegistroManos();
}

namespace {

void LeeLinea1(const QString& linea) {
    for (int s = 1; s <= 4; ++s) {
        const int base = 16 * (s - 1);
        NombreJugador[s] = LeeColumna(linea, 1 + base, 9).trimmed();
        LeeAsiento(linea, 10 + base, 3, NivelJugador[s]);
        LeeAsiento(linea, 13 + base, 1, EstadoJugador[s]);
        LeeAsiento(linea, 14 + base, 1, CartasVisibles[s]);
        LeeAsiento(linea, 15 + base, 1, ControlJugador[s]);
        LeeAsiento(linea, 16 + base, 1, CaracterJugador[s]);
    }
    for (const CampoBooleano& campo : BOOLEANOS_LINEA1)
        LeeBooleano(linea, campo.Columna, *campo.Valor);
    for (const CampoEntero& campo : CAMPOS_LINEA1)
        LeeEstricto(linea, campo.Columna, campo.Ancho, *campo.Valor);
}

void LeeLinea2(const QString& linea) {
    for (int seat = 0; seat <= 4; ++seat) {
        const int base = 1 + 16 * seat;
        for (int f = 1; f <= 6; ++f) LeeAsiento(linea, base + 2 * (f - 1), 2, Fichas[seat][f]);
        LeeAsiento(linea, base + 12, 2, Piedras[seat]);
        int completas = PiedrasCompletas[seat] ? -1 : 0;
        LeeAsiento(linea, base + 14, 2, completas);
        PiedrasCompletas[seat] = completas != 0;
    }
}

void LeeLinea3(const QString& linea) {
    for (int s = 1; s <= 4; ++s) {
        const int base = 1 + 7 * (s - 1);
        LeeAsiento(linea, base, 4, Apuesta[s][1][2]);
        LeeAsiento(linea, base + 4, 3, JuegosGanados[s]);
    }
}

void LeeLineaMano(const QString& linea, RegistroMano& registro) {
    registro.Sale = LeeColumna(linea, 1, 9).trimmed();
    LeeEstricto(linea, 10, 5, registro.Banca);
    for (int s = 1; s <= 4; ++s) {
        const int base = 42 * (s - 1);
        for (int c = 1; c <= 4; ++c) LeeAsiento(linea, 14 + base + c, 1, registro.Gana[s][c]);
        registro.Resultado[s] = LeeTexto(linea, 19 + base, 17);
        registro.Detalle[s] = LeeTexto(linea, 36 + base, 20);
        LeeAsiento(linea, 56 + base, 1, registro.Extra[s]);
    }
}

// Reads the lines of a per-game file over the settings in memory.
void LeeLineasJuego(const QStringList& lineas) {
    QString linea;
    if (TomaLinea(lineas, 0, linea)) LeeLinea1(linea);
    // A match that isn't alive has no hands, whatever lines follow.
    if (!PartidaViva) NumeroMano = 0;
    NumeroMano = std::clamp(NumeroMano, 0, MAX_MANOS_FICHERO);
    if (TomaLinea(lineas, 1, linea)) LeeLinea2(linea);
    if (TomaLinea(lineas, 2, linea)) LeeLinea3(linea);
    BorraRegistroManos();
    for (int mano = 1; mano <= NumeroMano; ++mano)
        if (TomaLinea(lineas, LINEAS_CABECERA + mano - 1, linea))
            LeeLineaMano(linea, RegistroManos[mano]);
    for (int s = 1; s <= 4; ++s) NombreJugador[s] = NormalizaNombre(NombreJugador[s]);
}

void AceptaJuego() {
    for (int s = 1; s <= 4; ++s) {
        Acota(NivelJugador[s], 0, 100, 50);
        Acota(EstadoJugador[s], ESTADO_ACTIVADO, ESTADO_DESACTIVADO, ESTADO_ACTIVADO);
        Acota(CartasVisibles[s], 1, 2, 1);
        Acota(ControlJugador[s], CONTROL_AUTOMATICO, CONTROL_MANUAL, CONTROL_AUTOMATICO);
        Acota(CaracterJugador[s], 1, 3, 2);
    }
    for (const Rango& rango : RANGOS_JUEGO)
        Acota(*rango.Valor, rango.Minimo, rango.Maximo, rango.Defecto);
    // Pairs exist only with four players: a file that says otherwise is played singly.
    if (NumJugadores != 4) ModalidadPareja = 1;
}

// In Black Jack seat 2 is always the bank, and every hand plays face up.
void FuerzaBancaBlackJack() {
    if (JuegoActual != JUEGO_BLACKJACK) return;
    NombreJugador[2] = "Banca";
    EstadoJugador[2] = ESTADO_ACTIVADO;
    NivelJugador[2] = 100;
    ControlJugador[2] = CONTROL_AUTOMATICO;
    for (int s = 1; s <= 4; ++s) CartasVisibles[s] = 2;
    ModoReparto = 1;
}

QString Linea1Juego(int manosGuardadas) {
    QString linea(ANCHO_LINEA1, ' ');
    for (int s = 1; s <= 4; ++s) {
        const int base = 16 * (s - 1);
        PonColumna(linea, 1 + base, 9, TextoFichero(NombreJugador[s]));
        PonCifra(linea, 10 + base, 3, NivelJugador[s]);
        PonCifra(linea, 13 + base, 1, EstadoJugador[s]);
        PonCifra(linea, 14 + base, 1, CartasVisibles[s]);
        PonCifra(linea, 15 + base, 1, ControlJugador[s]);
        PonCifra(linea, 16 + base, 1, CaracterJugador[s]);
    }
    for (const CampoBooleano& campo : BOOLEANOS_LINEA1)
        PonBooleano(linea, campo.Columna, *campo.Valor);
    for (const CampoEntero& campo : CAMPOS_LINEA1)
        PonCifra(linea, campo.Columna, campo.Ancho, *campo.Valor);
    PonCifra(linea, 108, 3, manosGuardadas);
    for (int columna : RESERVADOS_LINEA1) PonBooleano(linea, columna, false);
    return linea;
}

QString Linea2Juego() {
    QString linea(ANCHO_LINEA2, ' ');
    for (int seat = 0; seat <= 4; ++seat) {
        const int base = 1 + 16 * seat;
        for (int f = 1; f <= 6; ++f) PonCifra(linea, base + 2 * (f - 1), 2, Fichas[seat][f]);
        PonCifra(linea, base + 12, 2, Piedras[seat]);
        PonBooleano(linea, base + 14, PiedrasCompletas[seat]);
    }
    return linea;
}

QString Linea3Juego() {
    QString linea(ANCHO_LINEA3, ' ');
    for (int s = 1; s <= 4; ++s) {
        const int base = 1 + 7 * (s - 1);
        PonCifra(linea, base, 4, Apuesta[s][1][2]);
        PonCifra(linea, base + 4, 3, JuegosGanados[s]);
    }
    return linea;
}

QString LineaMano(const RegistroMano& registro) {
    QString linea(ANCHO_MANO, ' ');
    PonColumna(linea, 1, 9, TextoFichero(registro.Sale));
    PonColumna(linea, 10, 5, FormatoTexto(registro.Banca, "@@@@@"));
    for (int s = 1; s <= 4; ++s) {
        const int base = 42 * (s - 1);
        for (int c = 1; c <= 4; ++c) PonCifra(linea, 14 + base + c, 1, registro.Gana[s][c]);
        PonColumna(linea, 19 + base, 17, TextoFichero(registro.Resultado[s]));
        PonColumna(linea, 36 + base, 20, TextoFichero(registro.Detalle[s]));
        PonCifra(linea, 56 + base, 1, registro.Extra[s]);
    }
    return linea;
}

QByteArray ContenidoJuego() {
    // The hand under way is not stored: it is dealt again when the match resumes.
    const int manosGuardadas = PartidaViva ? std::clamp(NumeroMano - 1, 0, MAX_MANOS_FICHERO) : 0;
    QByteArray contenido = CierraLinea(Linea1Juego(manosGuardadas));
    contenido += CierraLinea(Linea2Juego());
    contenido += CierraLinea(Linea3Juego());
    for (int mano = 1; mano <= manosGuardadas; ++mano)
        contenido += CierraLinea(LineaMano(RegistroManos[mano]));
    return contenido;
}

} // namespace

// ---------------------------------------------------------------------------------------------

QByteArray ACp1252(const QString& texto) {
    QByteArray bytes;
    bytes.reserve(texto.size());
    for (char32_t codigo : texto.toUcs4()) bytes.append(ByteCp1252(codigo));
    return bytes;
}

QString DeCp1252(const QByteArray& bytes) {
    QString texto;
    texto.reserve(bytes.size());
    for (char b : bytes) {
        const auto byte = static_cast<unsigned char>(b);
        if (byte >= 0x80 && byte <= 0x9F)
            texto.append(QChar(CP1252_80_9F[byte - 0x80]));
        else
            texto.append(QChar(byte));
    }
    return texto;
}

// QSaveFile writes a temporary file in the same folder, flushes it to disk and renames it over
// the old one, so a crash leaves either the old file or the new one, never half of it.
bool GrabaFicheroAtomico(const QString& ruta, const QByteArray& contenido) {
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly)) return false;
    // Left uncommitted, the temporary file is thrown away and the old one stays.
    if (fichero.write(contenido) != contenido.size()) return false;
    return fichero.commit();
}

QString NombreFicheroJuego(int juego) {
    return "TRF" + QString::number(juego).rightJustified(2, '0') + "32.INI";
}

void LeeConfiguracion() {
    EmpiezaLectura();
    QStringList lineas;
    const int error = LeeFichero(CarpetaTrabajo + NOMBRE_GLOBAL, lineas);
    if (error == ERROR_NO_ENCONTRADO) {
        ErrorFichero = ERROR_NO_ENCONTRADO;
        PonConfiguracionPorDefecto();
        AceptaConfiguracion();
        if (GrabaFichero(NOMBRE_GLOBAL, ContenidoConfiguracion()))
            Mensaje(TITULO_ERROR,
                    "No se encuentra  el  fichero  de inicialización TRF32.INI. Se ha creado "
                    "automáticamente con los valores establecidos por defecto.",
                    3, 1);
        return;
    }
    QString linea;
    if (error != 0)
        AnotaError(error);
    else if (TomaLinea(lineas, 0, linea))
        LeeLineaConfiguracion(linea);
    AceptaConfiguracion();
    AvisaError("IDC ERROR ");
}

void GrabaConfiguracion() {
    GrabaFichero(NOMBRE_GLOBAL, ContenidoConfiguracion());
}

void LeeJuego() {
    EmpiezaLectura();
    const QString nombre = NombreFicheroJuego(JuegoActual);
    QStringList lineas;
    const int error = LeeFichero(CarpetaTrabajo + nombre, lineas);
    if (error == ERROR_NO_ENCONTRADO) {
        ErrorFichero = ERROR_NO_ENCONTRADO;
        PonJuegoPorDefecto();
        if (GrabaFichero(nombre, ContenidoJuego()))
            Mensaje(TITULO_ERROR,
                    "No se encuentra el fichero de inicialización " + nombre +
                        ". Se ha creado automáticamente con los valores establecidos por defecto.",
                    3, 1);
    } else {
        // The settings in memory belong to another game: a file that can't be read, or that
        // holds nothing, starts from the defaults rather than from them.
        if (error != 0 || lineas.isEmpty()) PonJuegoPorDefecto();
        if (error != 0)
            AnotaError(error);
        else
            LeeLineasJuego(lineas);
        AceptaJuego();
        AvisaError("IDCS ERROR ");
    }
    FuerzaBancaBlackJack();
}

void GrabaJuego() {
    // The next hand's rotation moves the leader on one seat: moving it back now makes the
    // resumed hand start from the same seat.
    if (PartidaViva && NumeroMano > 1) AnteriorJugador(JugadorMano);
    GrabaFichero(NombreFicheroJuego(JuegoActual), ContenidoJuego());
}
