// The help pages: every topic number that the program can open has its page, and every page is
// sound UTF-8 with a title and a way back to the index. The topics are read from the program's
// own sources, so a new message with a help button and no page fails here.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>
#include <map>
#include <set>

namespace {

const QString CarpetaFuentes = QStringLiteral(TRUFAL_SOURCE_DIR);
const QString CarpetaAyuda = CarpetaFuentes + "/help/";
const QStringList CarpetasPrograma{"frame", "table",    "platform", "betting",
                                   "games", "settings", "reports"};

// Topic number -> where the program asks for it (the first place found).
using TemasHallados = std::map<int, QString>;

QByteArray LeeFichero(const QString& ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Skips a string or character literal that starts at i, raw strings included; returns the index
// just past it. Commas and brackets inside a literal are text, not syntax.
qsizetype SaltaLiteral(const QString& s, qsizetype i) {
    if (s[i] == 'R' && i + 1 < s.size() && s[i + 1] == '"') {
        const qsizetype abre = s.indexOf('(', i + 2);
        if (abre < 0) return s.size();
        const QString cierre = ")" + s.mid(i + 2, abre - i - 2) + "\"";
        const qsizetype fin = s.indexOf(cierre, abre);
        return fin < 0 ? s.size() : fin + cierre.size();
    }
    const QChar comilla = s[i];
    for (qsizetype j = i + 1; j < s.size(); ++j) {
        if (s[j] == '\\')
            ++j;
        else if (s[j] == comilla || s[j] == '\n')
            return j + 1;
    }
    return s.size();
}

bool EsLetraDeNombre(QChar c) {
    return c.isLetterOrNumber() || c == '_';
}

// The source without its comments; literals stay as they are.
QString QuitaComentarios(const QString& s) {
    QString limpio;
    limpio.reserve(s.size());
    qsizetype i = 0;
    while (i < s.size()) {
        const bool crudo = s[i] == 'R' && i + 1 < s.size() && s[i + 1] == '"' &&
                           (i == 0 || !EsLetraDeNombre(s[i - 1]));
        if (s[i] == '"' || s[i] == '\'' || crudo) {
            const qsizetype fin = SaltaLiteral(s, i);
            limpio += s.mid(i, fin - i);
            i = fin;
        } else if (s.mid(i, 2) == "//") {
            i = s.indexOf('\n', i);
            if (i < 0) break;
        } else if (s.mid(i, 2) == "/*") {
            const qsizetype fin = s.indexOf("*/", i + 2);
            i = fin < 0 ? s.size() : fin + 2;
            limpio += ' ';
        } else {
            limpio += s[i++];
        }
    }
    return limpio;
}

// The arguments of the call whose '(' is at abre, split at its own commas; empty if the call
// never closes.
QStringList ArgumentosDeLlamada(const QString& s, qsizetype abre) {
    QStringList argumentos;
    QString actual;
    int profundidad = 0;
    for (qsizetype i = abre; i < s.size();) {
        const QChar c = s[i];
        if (c == '"' || c == '\'' || (c == 'R' && i + 1 < s.size() && s[i + 1] == '"')) {
            const qsizetype fin = SaltaLiteral(s, i);
            actual += s.mid(i, fin - i);
            i = fin;
            continue;
        }
        if (c == '(' || c == '[' || c == '{') {
            if (profundidad++ > 0) actual += c;
        } else if (c == ')' || c == ']' || c == '}') {
            if (--profundidad == 0) {
                argumentos << actual.trimmed();
                return argumentos;
            }
            actual += c;
        } else if (c == ',' && profundidad == 1) {
            argumentos << actual.trimmed();
            actual.clear();
        } else {
            actual += c;
        }
        ++i;
    }
    return {};
}

int NumeroLiteral(const QString& texto) {
    static const QRegularExpression entero(QStringLiteral("^\\d+$"));
    return entero.match(texto).hasMatch() ? texto.toInt() : 0;
}

void Anota(TemasHallados& temas, int tema, const QString& donde) {
    if (tema > 0) temas.emplace(tema, donde);
}

// The three ways the program names a topic: a constant TEMA_..., the fifth argument of
// Mensaje(title, text, lines, buttons, help), and AbreAyuda / AbreAyudaYEspera with a number.
void BuscaTemas(const QString& fuente, const QString& donde, TemasHallados& temas) {
    const QString texto = QuitaComentarios(fuente);

    static const QRegularExpression constante(
        QStringLiteral("\\bTEMA_[A-Z0-9_]+\\s*(?:\\[[^\\]]*\\])?\\s*(?:=\\s*)?(\\{[^}]*\\}|\\d+)"));
    static const QRegularExpression numero(QStringLiteral("\\d+"));
    for (auto m = constante.globalMatch(texto); m.hasNext();) {
        const QString valor = m.next().captured(1);
        for (auto n = numero.globalMatch(valor); n.hasNext();)
            Anota(temas, n.next().captured(0).toInt(), donde + " (TEMA_)");
    }

    static const QRegularExpression ayuda(
        QStringLiteral("\\bAbreAyuda(?:YEspera)?\\s*\\(\\s*(\\d+)\\s*\\)"));
    for (auto m = ayuda.globalMatch(texto); m.hasNext();)
        Anota(temas, m.next().captured(1).toInt(), donde + " (AbreAyuda)");

    static const QRegularExpression mensaje(QStringLiteral("\\bMensaje\\s*\\("));
    for (auto m = mensaje.globalMatch(texto); m.hasNext();) {
        const auto hallado = m.next();
        const QStringList argumentos = ArgumentosDeLlamada(texto, hallado.capturedEnd() - 1);
        // Without a fifth argument the box has no help button, and the last number is the
        // count of buttons.
        if (argumentos.size() == 5)
            Anota(temas, NumeroLiteral(argumentos.last()), donde + " (Mensaje)");
    }
}

TemasHallados TemasDelPrograma() {
    TemasHallados temas;
    for (const QString& carpeta : CarpetasPrograma) {
        QDirIterator it(CarpetaFuentes + "/" + carpeta, {"*.cpp", "*.h"}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString ruta = it.next();
            BuscaTemas(QString::fromUtf8(LeeFichero(ruta)),
                       QDir(CarpetaFuentes).relativeFilePath(ruta), temas);
        }
    }
    return temas;
}

QStringList PaginasDeAyuda() {
    return QDir(CarpetaAyuda).entryList({"*.html"}, QDir::Files, QDir::Name);
}

bool ExistePagina(int tema) {
    return QFile::exists(CarpetaAyuda + QString::number(tema) + ".html");
}

std::set<int> TemasDelIndiceDeTemas() {
    std::set<int> temas;
    const QString texto = QString::fromUtf8(LeeFichero(CarpetaAyuda + "topics.txt"));
    for (const QString& linea : texto.split('\n', Qt::SkipEmptyParts))
        if (!linea.trimmed().isEmpty()) temas.insert(NumeroLiteral(linea.trimmed()));
    return temas;
}

TEST(Ayuda, ElBuscadorReconoceLasTresFormasDeNombrarUnTema) {
    struct Caso {
        const char* Fuente;
        std::set<int> Temas;
    };
    const Caso casos[] = {
        {"constexpr int TEMA_DESCRIPCION_GENERAL = 1020;", {1020}},
        {"constexpr int TEMA_MARCADOR[10] = {0, 2182, 2183};", {2182, 2183}},
        {"AbreAyuda(2140); AbreAyudaYEspera( 7000 ); AbreAyuda(Tema);", {2140, 7000}},
        // A call across lines, with commas and brackets inside the strings.
        {"Mensaje(\"Límite (máximo)\",\n  \"Uno, dos\" + QString::number(f(a, b)), 5,\n"
         "  1, 2150);",
         {2150}},
        // Four arguments: no help button, the 1 is the count of buttons.
        {"Mensaje(\"Final de Partida\", texto, lineas, 1);", {}},
        {"Mensaje(\"T\", \"x\", 3, 1, TemaAyuda);", {}},
        {"// Mensaje(\"T\", \"x\", 3, 1, 4444);\n/* AbreAyuda(5555) */", {}},
        {"CalculaMensaje(3, 1, 2, 3, 6666); void Mensaje(const QString& t, const QString& x, "
         "int l, int b, int ayuda = 0);",
         {}},
        {"Mensaje(R\"(a, \"b\", c)\", \"y\", 2, 2, 2159);", {2159}},
    };
    for (const Caso& caso : casos) {
        TemasHallados temas;
        BuscaTemas(QString::fromUtf8(caso.Fuente), "caso", temas);
        std::set<int> hallados;
        for (const auto& [tema, donde] : temas) hallados.insert(tema);
        EXPECT_EQ(hallados, caso.Temas) << caso.Fuente;
    }
}

TEST(Ayuda, ElProgramaPideTemasConocidos) {
    const TemasHallados temas = TemasDelPrograma();
    // The opening message, the question of the history and the resumed match are always there;
    // a scanner that misses them is broken.
    for (int tema : {1020, 2193, 2197}) EXPECT_TRUE(temas.count(tema)) << tema;
}

TEST(Ayuda, CadaTemaDelProgramaTieneSuPagina) {
    for (const auto& [tema, donde] : TemasDelPrograma())
        EXPECT_TRUE(ExistePagina(tema))
            << "help/" << tema << ".html falta; lo pide " << donde.toStdString();
}

TEST(Ayuda, ElIndiceDeTemasYLasPaginasCoinciden) {
    const std::set<int> temas = TemasDelIndiceDeTemas();
    ASSERT_FALSE(temas.empty());
    EXPECT_FALSE(temas.count(0)) << "topics.txt tiene una línea que no es un número";
    for (int tema : temas) EXPECT_TRUE(ExistePagina(tema)) << tema;
    for (const QString& pagina : PaginasDeAyuda())
        if (pagina != "index.html")
            EXPECT_TRUE(temas.count(NumeroLiteral(pagina.chopped(5))))
                << pagina.toStdString() << " no figura en topics.txt";
}

TEST(Ayuda, CadaPaginaEsUtf8ConTituloYVuelveAlIndice) {
    const QStringList paginas = PaginasDeAyuda();
    ASSERT_TRUE(paginas.contains("index.html"));
    static const QRegularExpression titulo(QStringLiteral("<title>\\s*\\S[^<]*</title>"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression enlace(QStringLiteral("href=\"([^\"#]*)[^\"]*\""));
    static const QRegularExpression dobleCodificado(QStringLiteral("Ã[\\x{80}-\\x{BF}]|Â[¡¿«»]"));
    const QString indice = QString::fromUtf8(LeeFichero(CarpetaAyuda + "index.html"));
    for (const QString& pagina : paginas) {
        SCOPED_TRACE(pagina.toStdString());
        const QByteArray bytes = LeeFichero(CarpetaAyuda + pagina);
        auto decodificador = QStringDecoder(QStringDecoder::Utf8);
        const QString texto = decodificador(bytes);
        EXPECT_FALSE(decodificador.hasError()) << "no es UTF-8 válido";
        EXPECT_FALSE(dobleCodificado.match(texto).hasMatch()) << "acentos codificados dos veces";
        EXPECT_TRUE(texto.contains("<meta charset=\"utf-8\">", Qt::CaseInsensitive));
        EXPECT_TRUE(titulo.match(texto).hasMatch()) << "sin <title>";
        if (pagina != "index.html") {
            EXPECT_TRUE(texto.contains("href=\"index.html\"")) << "sin enlace al índice";
            EXPECT_TRUE(indice.contains("href=\"" + pagina + "\"")) << "el índice no la enlaza";
        }
        for (auto m = enlace.globalMatch(texto); m.hasNext();) {
            const QString destino = m.next().captured(1);
            if (destino.isEmpty() || destino.contains(':')) continue; // anchors, web addresses
            EXPECT_TRUE(QFile::exists(CarpetaAyuda + destino))
                << "enlace roto a " << destino.toStdString();
        }
    }
}

} // namespace
