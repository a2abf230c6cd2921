#include "platform/Carpetas.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {
QString ProgramaFijado, DatosFijados;
}

QString ConSeparador(const QString& ruta) {
    if (ruta.isEmpty() || ruta.endsWith('/')) return ruta;
    return ruta + '/';
}

QString CarpetaDeDatos(const QString& carpetaBinario) {
    const QString junto = ConSeparador(carpetaBinario);
    if (QFile::exists(junto + "TRF32INI")) return junto;
    const QString instalada = ConSeparador(QDir::cleanPath(junto + "../share/trufal"));
    return QFile::exists(instalada + "TRF32INI") ? instalada : junto;
}

QString CarpetaDelPrograma() {
    if (!ProgramaFijado.isEmpty()) return ProgramaFijado;
    return CarpetaDeDatos(QCoreApplication::applicationDirPath());
}

bool ProgramaInstalado() {
    return ProgramaFijado.isEmpty() &&
           CarpetaDelPrograma() != ConSeparador(QCoreApplication::applicationDirPath());
}

QString CarpetaDatosUsuario() {
    if (!DatosFijados.isEmpty()) return DatosFijados;
    QString ruta = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (ruta.isEmpty()) ruta = QDir::homePath() + "/.local/share";
    return ConSeparador(ruta) + "Trufal/";
}

void FijaCarpetas(const QString& programa, const QString& datosUsuario) {
    ProgramaFijado = ConSeparador(programa);
    DatosFijados = ConSeparador(datosUsuario);
}
