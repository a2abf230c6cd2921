#include "platform/Carpetas.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace {
QString ProgramaFijado, DatosFijados;
}

QString ConSeparador(const QString& ruta) {
    if (ruta.isEmpty() || ruta.endsWith('/')) return ruta;
    return ruta + '/';
}

QString CarpetaDelPrograma() {
    if (!ProgramaFijado.isEmpty()) return ProgramaFijado;
    return ConSeparador(QCoreApplication::applicationDirPath());
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
