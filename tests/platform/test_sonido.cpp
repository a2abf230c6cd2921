#include "platform/Sonido.h"

#include "frame/GblReglas.h"
#include "support/MesaDePrueba.h"
#include "tools/gensonidos/Sintesis.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace {

QString RecursoSonido(int id) {
    return QStringLiteral(":/assets/sonidos/%1.wav").arg(id, 2, 10, QChar('0'));
}

QByteArray EnBytes(const std::vector<uint8_t>& v) {
    return QByteArray(reinterpret_cast<const char*>(v.data()), qsizetype(v.size()));
}

qint16 Muestra(const OndaPcm& onda, qsizetype i) {
    return qFromLittleEndian<qint16>(onda.Muestras.constData() + 2 * i);
}

// A well-formed file to spoil: 16-bit mono, with a LIST chunk of odd length before the data.
QByteArray OndaDePrueba(int formato = 1, int canales = 1, int bits = 16, int alineacion = 2) {
    QByteArray d("RIFF\0\0\0\0WAVE", 12);
    auto pon32 = [&](quint32 v) { d.append(reinterpret_cast<const char*>(&v), 4); };
    auto pon16 = [&](quint16 v) { d.append(reinterpret_cast<const char*>(&v), 2); };
    d.append("fmt ");
    pon32(16);
    pon16(formato);
    pon16(canales);
    pon32(22050);
    pon32(22050 * alineacion);
    pon16(alineacion);
    pon16(bits);
    d.append("LIST");
    pon32(3);
    d.append("abc\0", 4);
    d.append("data");
    pon32(8);
    d.append("\x01\x00\x02\x00\xFF\x7F\x00\x80", 8);
    return d;
}

} // namespace

// Every sound the table plays is in the resources, decodes, lasts a sensible time, stays clear
// of full scale and starts and ends in silence, so it neither clips nor clicks.
TEST(Sonido, CadaSonidoSeLeeDeLosRecursosYSuenaLimpio) {
    for (int id : gensonidos::IdsSonidos) {
        SCOPED_TRACE(id);
        const QByteArray datos = LeeFichero(RecursoSonido(id));
        OndaPcm onda;
        ASSERT_TRUE(LeeOndaPcm(datos, onda));
        EXPECT_EQ(onda.Canales, 1);
        EXPECT_EQ(onda.BitsMuestra, 16);
        const qsizetype n = onda.Muestras.size() / 2;
        const double segundos = double(n) / onda.Frecuencia;
        EXPECT_GE(segundos, 0.02);
        EXPECT_LE(segundos, 2.5);
        int pico = 0;
        for (qsizetype i = 0; i < n; ++i) pico = std::max(pico, std::abs(int(Muestra(onda, i))));
        EXPECT_GT(pico, 3000) << "too quiet to hear";
        EXPECT_LT(pico, 32000) << "touches full scale";
        EXPECT_LT(std::abs(Muestra(onda, 0)), 300);
        EXPECT_LT(std::abs(Muestra(onda, n - 1)), 300);
    }
}

// The files kept with the sources are what the generator makes today, sample for sample.
TEST(Sonido, LosFicherosGuardadosSonLosDelGeneradorYEsteRepiteSusBytes) {
    for (int id : gensonidos::IdsSonidos) {
        SCOPED_TRACE(id);
        const std::vector<uint8_t> generado = gensonidos::GeneraWav(id);
        EXPECT_EQ(generado, gensonidos::GeneraWav(id));
        OndaPcm nueva, guardada;
        ASSERT_TRUE(LeeOndaPcm(EnBytes(generado), nueva));
        ASSERT_TRUE(LeeOndaPcm(LeeFichero(RecursoSonido(id)), guardada));
        ASSERT_EQ(nueva.Muestras.size(), guardada.Muestras.size());
        int diferencia = 0;
        for (qsizetype i = 0; i < nueva.Muestras.size() / 2; ++i)
            diferencia = std::max(diferencia, std::abs(Muestra(nueva, i) - Muestra(guardada, i)));
        EXPECT_LE(diferencia, 1);
    }
    EXPECT_TRUE(gensonidos::SintetizaSonido(99).empty());
}

TEST(Sonido, ElLectorAceptaPcmConTrozosExtra) {
    OndaPcm onda;
    ASSERT_TRUE(LeeOndaPcm(OndaDePrueba(), onda));
    EXPECT_EQ(onda.Frecuencia, 22050);
    EXPECT_EQ(onda.Canales, 1);
    EXPECT_EQ(onda.BitsMuestra, 16);
    EXPECT_EQ(onda.Muestras, QByteArray("\x01\x00\x02\x00\xFF\x7F\x00\x80", 8));
}

// Damaged or foreign files are refused without reading past their end, and leave the
// caller's wave as it was.
TEST(Sonido, ElLectorRechazaDatosRotosOAjenos) {
    const QByteArray buena = OndaDePrueba();
    const qsizetype inicioFmt = 12, inicioData = buena.indexOf("data");
    QByteArray datosAntesDeFmt = QByteArray("RIFF\0\0\0\0WAVE", 12) + buena.mid(inicioData) +
                                 buena.mid(inicioFmt, inicioData - inicioFmt);
    QByteArray datosVacios = buena.left(inicioData + 4) + QByteArray("\0\0\0\0", 4);
    QByteArray trozoGigante = buena;
    trozoGigante[inicioData + 7] = char(0xFF); // data length near 4 GB
    QByteArray medioMarco = buena.left(inicioData + 4) + QByteArray("\x03\0\0\0\x01\x02\x03", 7);
    const struct {
        const char* Caso;
        QByteArray Datos;
    } casos[] = {
        {"vacio", QByteArray()},
        {"solo RIFF", QByteArray("RIFF")},
        {"no es WAVE", QByteArray("RIFF\0\0\0\0AVI fmt ", 16)},
        {"cabecera cortada", buena.left(30)},
        {"muestras cortadas", buena.left(buena.size() - 1)},
        {"sin trozo data", buena.left(inicioData)},
        {"coma flotante", OndaDePrueba(3, 1, 32, 4)},
        {"24 bits", OndaDePrueba(1, 1, 24, 3)},
        {"sin canales", OndaDePrueba(1, 0, 16, 0)},
        {"alineacion falsa", OndaDePrueba(1, 2, 16, 2)},
        {"data antes de fmt", datosAntesDeFmt},
        {"data vacio", datosVacios},
        {"trozo mas largo que el fichero", trozoGigante},
        {"marco a medias", medioMarco},
        {"basura", QByteArray(200, char(0xA5))},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.Caso);
        OndaPcm onda;
        onda.Frecuencia = 7;
        EXPECT_FALSE(LeeOndaPcm(c.Datos, onda));
        EXPECT_EQ(onda.Frecuencia, 7);
        EXPECT_TRUE(onda.Muestras.isEmpty());
    }
}
