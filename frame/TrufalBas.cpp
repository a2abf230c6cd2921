#include "frame/TrufalBas.h"

#include "frame/TrufalGbl.h"

#include <QDateTime>
#include <chrono>
#include <cstdint>
#include <QRegularExpression>
#include <cmath>
#include <random>

namespace {

std::mt19937& Generador() {
    static std::mt19937 generador(5489u);
    return generador;
}

// Rounds half away from zero at the given decimals, as the number formats do.
constexpr double POTENCIAS_DIEZ[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
constexpr int MAX_DECIMALES_RAPIDOS = 6;

double RedondeaFormato(double valor, int decimales) {
    const double escala = decimales >= 0 && decimales <= MAX_DECIMALES_RAPIDOS
                              ? POTENCIAS_DIEZ[decimales]
                              : std::pow(10.0, decimales);
    const double v = std::fabs(valor) * escala;
    // A hair above the half absorbs the binary error of values such as 2.675.
    const double r = std::floor(v + 0.5 + 1e-9);
    return std::copysign(r / escala, valor);
}

} // namespace

int Redondea(double x) {
    return static_cast<int>(std::nearbyint(x));
}

int Ent(double x) {
    return static_cast<int>(std::floor(x));
}

int DivEntera(double a, double b) {
    const int d = Redondea(b);
    if (d == 0) return 0;
    return Redondea(a) / d;
}

int Signo(double x) {
    return (x > 0) - (x < 0);
}

namespace {

// The keys of the sorted lists are written with formats of zeros alone ("0000", "000.00"), many
// thousand times a hand: those are written here straight from the rounded whole number, as the
// general routine below would write them.
bool FormatoDeCeros(const QString& formato, int& enteros, int& decimales) {
    enteros = decimales = 0;
    bool punto = false;
    for (const QChar c : formato) {
        if (c == '0')
            ++(punto ? decimales : enteros);
        else if (c == '.' && !punto)
            punto = true;
        else
            return false;
    }
    return enteros > 0 && (!punto || decimales > 0) && decimales <= MAX_DECIMALES_RAPIDOS;
}

} // namespace

QString Formato(double valor, const QString& formato) {
    int ceros = 0, cerosDecimales = 0;
    if (std::fabs(valor) < 1e9 && FormatoDeCeros(formato, ceros, cerosDecimales)) {
        const double redondeado = RedondeaFormato(valor, cerosDecimales);
        const auto escala = static_cast<long long>(POTENCIAS_DIEZ[cerosDecimales]);
        const long long total =
            std::llround(std::fabs(redondeado) * POTENCIAS_DIEZ[cerosDecimales]);
        QString texto = QString::number(total / escala).rightJustified(ceros, '0');
        if (cerosDecimales > 0)
            texto += '.' + QString::number(total % escala).rightJustified(cerosDecimales, '0');
        if (redondeado < 0 && total != 0) texto.prepend('-');
        return texto;
    }
    const int punto = formato.indexOf('.');
    const QString entera = punto < 0 ? formato : formato.left(punto);
    const QString fraccion = punto < 0 ? QString() : formato.mid(punto + 1);
    const int decimales = fraccion.count('0') + fraccion.count('#');
    const int minimos = entera.count('0');
    const bool agrupa = entera.contains(',');

    const double redondeado = RedondeaFormato(valor, decimales);
    const bool negativo = redondeado < 0;
    QString cifras = QString::number(std::fabs(redondeado), 'f', decimales);
    QString parteEntera = cifras.section('.', 0, 0);
    QString parteDecimal = decimales > 0 ? cifras.section('.', 1, 1) : QString();

    if (parteEntera == "0" && minimos == 0) parteEntera.clear();
    while (parteEntera.size() < minimos) parteEntera.prepend('0');
    if (agrupa)
        for (int i = parteEntera.size() - 3; i > 0; i -= 3) parteEntera.insert(i, ',');
    // Optional decimals ("#") drop their trailing zeros.
    const int obligatorios = fraccion.count('0');
    while (parteDecimal.size() > obligatorios && parteDecimal.endsWith('0')) parteDecimal.chop(1);

    QString texto = parteEntera;
    if (punto >= 0 && (!parteDecimal.isEmpty() || obligatorios > 0)) texto += '.' + parteDecimal;
    if (punto >= 0 && parteDecimal.isEmpty() && obligatorios == 0 && fraccion.isEmpty())
        texto += '.';
    if (negativo && texto.contains(QRegularExpression("[1-9]"))) texto.prepend('-');
    return texto;
}

QString FormatoTexto(const QString& texto, const QString& formato) {
    const bool izquierda = formato.startsWith('!');
    const int ancho = formato.count('@');
    if (texto.size() >= ancho) return texto;
    return izquierda ? texto.leftJustified(ancho, ' ') : texto.rightJustified(ancho, ' ');
}

QString FormatoTexto(int valor, const QString& formato) {
    return FormatoTexto(QString::number(valor), formato);
}

QString CifraEspanola(double valor, int decimales) {
    QString texto = Formato(valor, decimales > 0 ? "#,##0." + QString(decimales, '0') : "#,##0");
    // Swap the separators: grouping by points, decimals by a comma.
    for (QChar& c : texto) {
        if (c == ',')
            c = '.';
        else if (c == '.')
            c = ',';
    }
    return texto;
}

void PonColumna(QString& linea, int columna, int ancho, const QString& texto) {
    const int fin = columna - 1 + ancho;
    if (linea.size() < fin) linea = linea.leftJustified(fin, ' ');
    linea.replace(columna - 1, ancho, texto.left(ancho).leftJustified(ancho, ' '));
}

QString LeeColumna(const QString& linea, int columna, int ancho) {
    return linea.mid(columna - 1, ancho).leftJustified(ancho, ' ');
}

double Val(const QString& texto) {
    // Blanks are skipped anywhere, as the old Val did; reading stops at the first other
    // character that can't continue a number.
    QString limpio;
    for (QChar c : texto)
        if (c != ' ' && c != '\t') limpio += c;
    int i = 0;
    QString numero;
    if (i < limpio.size() && (limpio[i] == '-' || limpio[i] == '+')) numero += limpio[i++];
    bool punto = false;
    while (i < limpio.size() && (limpio[i].isDigit() || (limpio[i] == '.' && !punto))) {
        if (limpio[i] == '.') punto = true;
        numero += limpio[i++];
    }
    bool ok = false;
    const double v = numero.toDouble(&ok);
    return ok ? v : 0.0;
}

double Rnd() {
    static std::uniform_real_distribution<double> uniforme(0.0, 1.0);
    return uniforme(Generador());
}

void Randomiza() {
    if (SemillaFija != 0) return; // a replayed match keeps the one stream it began with
    // The clock in nanoseconds, mixed with the stream as it stands: two shuffles within the same
    // tick still differ.
    const auto reloj =
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    const std::uint64_t mezcla = reloj ^ (static_cast<std::uint64_t>(Generador()()) << 32) ^
                                 static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch());
    std::seed_seq semillas{static_cast<unsigned>(mezcla), static_cast<unsigned>(mezcla >> 32)};
    Generador().seed(semillas);
}

void SiembraPartida() {
    if (SemillaFija != 0)
        RandomizaCon(SemillaFija);
    else
        Randomiza();
}

void RandomizaCon(unsigned semilla) {
    Generador().seed(semilla);
}

namespace {

bool AsientoValido(int seat) {
    if (EstadoJugador[seat] != ESTADO_ACTIVADO) return false;
    if (JuegoActual == JUEGO_CHINCHON || JuegoActual == JUEGO_PUMBA) return JuegaMano[seat];
    return true;
}

void CaminaAsiento(int& seat, int paso) {
    // Eight steps go round the table twice: if no seat fits by then, none will.
    for (int vuelta = 0; vuelta < 8; ++vuelta) {
        seat += paso;
        if (seat >= 5) seat = 1;
        if (seat < 1) seat = 4;
        if (AsientoValido(seat)) return;
    }
}

int PasoActual() {
    return JuegoActual == JUEGO_PUMBA ? PasoSentidoPumba : PasoSentido;
}

} // namespace

void SiguienteJugador(int& seat) {
    CaminaAsiento(seat, PasoActual());
}

void AnteriorJugador(int& seat) {
    CaminaAsiento(seat, -PasoActual());
}

int TotalPuntos(int seat) {
    int total = 0;
    for (int mano = 1; mano <= NumeroMano && mano <= MAX_MANOS; ++mano) {
        const QString texto = RegistroManos[mano].Resultado[seat].trimmed();
        if (JuegoActual == JUEGO_CHINCHON && texto == "-99") continue;
        total += static_cast<int>(Val(texto));
    }
    return total;
}

QString NormalizaNombre(const QString& nombre) {
    QString resultado = nombre.toLower();
    bool inicio = true;
    for (QChar& c : resultado) {
        if (inicio) c = c.toUpper();
        inicio = (c == ' ');
    }
    return resultado;
}
