// Start-up: the folder that can be written, the engines, the screen.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "frame/Arranque.h"
#include "frame/TrufalGbl.h"
#include "platform/Carpetas.h"
#include "support/MesaDePrueba.h"
#include "table/Mensajes.h"

namespace {

void Escribe(const QString& ruta, const QByteArray& datos) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(datos);
}

} // namespace

TEST(Arranque, AWritableProgramFolderIsUsedAsItIs) {
    QTemporaryDir programa;
    CarpetaTrabajo = programa.path() + "/";
    PruebaCarpeta();
    EXPECT_FALSE(CarpetaTemporal);
    EXPECT_EQ(CarpetaTrabajo, programa.path() + "/");
    EXPECT_FALSE(QFile::exists(programa.path() + "/CSCD.WRK")) << "the work file is removed";
}

TEST(Arranque, AReadOnlyInstallWorksInTheFallbackAndASecondRunCopiesNothing) {
    QTemporaryDir programa, usuario;
    const QString dir = programa.path() + "/";
    // The work file can't be created: its name is taken by a folder. That holds even for a
    // user whom file permissions don't stop.
    QDir().mkpath(dir + "CSCD.WRK");
    Escribe(dir + "TRF32INI", "plantilla");
    Escribe(dir + "TRF5332.INI", "tute");
    Escribe(dir + "Baraja02.jpg", "jpg");
    FijaCarpetas(dir, usuario.path());

    CarpetaTrabajo = dir;
    PruebaCarpeta();
    const QString reserva = usuario.path() + "/Trb/";
    EXPECT_TRUE(CarpetaTemporal);
    EXPECT_EQ(CarpetaTrabajo, reserva);
    EXPECT_EQ(LeeFichero(reserva + "TRF32.INI"), "plantilla") << "the template becomes TRF32.INI";
    EXPECT_EQ(LeeFichero(reserva + "TRF5332.INI"), "tute");
    EXPECT_EQ(LeeFichero(reserva + "Baraja02.jpg"), "jpg");
    EXPECT_FALSE(QFile::exists(reserva + "TRF5132.INI")) << "a missing file is skipped";

    // The settings of the first run survive the second.
    Escribe(reserva + "TRF32.INI", "cambiado");
    QFile::remove(reserva + "TRF5332.INI");
    CarpetaTrabajo = dir;
    PruebaCarpeta();
    EXPECT_EQ(CarpetaTrabajo, reserva);
    EXPECT_EQ(LeeFichero(reserva + "TRF32.INI"), "cambiado");
    EXPECT_FALSE(QFile::exists(reserva + "TRF5332.INI")) << "nothing is copied again";
    FijaCarpetas("", "");
}

TEST(Arranque, TheScreenTestAsksOnlyBelow800AndTheTableIsNeverSmaller) {
    MensajesGuionados = true;
    MensajesVistos.clear();
    EXPECT_TRUE(PruebaResolucion(1024, 500));
    EXPECT_TRUE(MensajesVistos.empty()) << "the height isn't tested";
    FijaTamanoVentana(1024, 500);
    EXPECT_EQ(AnchoVentana, 1024);
    EXPECT_EQ(AltoVentana, 600);

    RespuestasGuionadas = {false};
    EXPECT_FALSE(PruebaResolucion(640, 480));
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos[0].Titulo, "Resolución de pantalla");
    EXPECT_TRUE(MensajesVistos[0].Texto.contains("La resolución actual es de 640x480. Pulse"));
    // Nothing changes the screen here: the text offers the table scaled, not a new mode.
    EXPECT_TRUE(MensajesVistos[0].Texto.contains("abrir  la  mesa  reducida"));
    EXPECT_FALSE(MensajesVistos[0].Texto.contains("cambiar"));
    EXPECT_EQ(MensajesVistos[0].Lineas, 6);
    EXPECT_EQ(MensajesVistos[0].Botones, 2);
}
