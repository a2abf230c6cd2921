// A table for headless tests: a laid-out table with no window, files in a temporary folder,
// pauses at the top speed, messages answered from a script and the person played by the test.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <functional>

struct MesaDePrueba {
    QTemporaryDir Carpeta;
    MesaDePrueba(int ancho = 1024, int alto = 768);
    ~MesaDePrueba();
    QString Ruta(const QString& nombre) const { return Carpeta.path() + "/" + nombre; }
};

// The bytes of a file, empty when it can't be read.
QByteArray LeeFichero(const QString& ruta);

// Puts every seat and rule setting to its factory value, and clears a match.
void ReiniciaEstado();

// The seats' levels and characters as a test found them, put back when it ends.
struct AsientosGuardados {
    int Nivel[5], Caracter[5];
    AsientosGuardados();
    ~AsientosGuardados();
};
