// Folders of the program: its own, and the fallback under the user's data folder.
#pragma once

#include <QString>

// The program's own folder, with a trailing separator: where its files are, beside the program
// as built, or in share/trufal/ beside its bin/ once installed.
QString CarpetaDelPrograma();
QString CarpetaDeDatos(const QString& carpetaBinario);
// True when the program runs installed: its folder is then only read, and the person's
// settings live under the user's data folder.
bool ProgramaInstalado();
// The folder that plays the role of the system's Temp folder, with a trailing separator:
// the user's data folder (for instance ~/.local/share/Trufal/).
QString CarpetaDatosUsuario();
// Tests may point both elsewhere; empty texts restore the real ones.
void FijaCarpetas(const QString& programa, const QString& datosUsuario);
// Adds a trailing separator when the path has none.
QString ConSeparador(const QString& ruta);
