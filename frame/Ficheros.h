// The settings files: TRF32.INI and one TRFnn32.INI for each game, fixed-column lines in quotes.
#pragma once

#include <QString>

void LeeConfiguracion();
void GrabaConfiguracion();
void LeeJuego();
// The factory settings of a game: seats and rules as a fresh install has them, no match open.
void PonJuegoPorDefecto();
void GrabaJuego();
QString NombreFicheroJuego(int juego); // "TRF5332.INI" for Tute

// Files are single-byte Windows-1252: one column for each character, accents included.
QByteArray ACp1252(const QString& texto);
QString DeCp1252(const QByteArray& bytes);
// Replaces a file as a whole: written beside it, then renamed over it. False when it can't.
bool GrabaFicheroAtomico(const QString& ruta, const QByteArray& contenido);
