// Sounds of the table, from the program's resources.
#pragma once

#include <QByteArray>

constexpr int SONIDO_SINCRONO = 0, SONIDO_ASINCRONO = 1;

// Plays sound id; synchronous waits for its end. A new sound cuts the one playing. Nothing
// sounds while SonidoActivado is False, or when there is no audio device.
void Sonido(int modo, int id);

// The samples of a wave file, as the audio output takes them.
struct OndaPcm {
    int Frecuencia = 0, Canales = 0, BitsMuestra = 0;
    QByteArray Muestras; // interleaved, little-endian; 8-bit unsigned or 16-bit signed
};

// Reads a RIFF WAVE file of integer PCM. False, and onda untouched, for anything else: another
// encoding, a truncated file, a chunk that runs past the end, no samples.
bool LeeOndaPcm(const QByteArray& datos, OndaPcm& onda);
