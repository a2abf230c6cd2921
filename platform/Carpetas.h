// Folders of the program: its own, and the fallback under the user's data folder.
#pragma once

#include <QString>

// The program's own folder, with a trailing separator.
QString CarpetaDelPrograma();
// The folder that plays the role of the system's Temp folder, with a trailing separator:
// the user's data folder (for instance ~/.local/share/Trufal/).
QString CarpetaDatosUsuario();
// Tests may point both elsewhere; empty texts restore the real ones.
void FijaCarpetas(const QString& programa, const QString& datosUsuario);
// Adds a trailing separator when the path has none.
QString ConSeparador(const QString& ruta);
