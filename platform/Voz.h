// The speech engines the seats speak with.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

struct MotorVoz {
    QString Nombre;
    int Sexo = 0; // 1 woman, 2 man, 0 not stated
    // What the engine accepts: pitch and speed in its own units.
    int TonoMinimo = 0, TonoMaximo = 0;
    int VelocidadMinima = 0, VelocidadMaxima = 0;
};

// Spoken sound: 16-bit mono samples at Frecuencia per second.
struct MuestrasVoz {
    std::vector<int16_t> Muestras;
    int Frecuencia = 0;
};

// The engines that can speak Spanish here. Returns false when the speech library itself
// can't be used (the program can't go on without it).
bool CuentaMotoresVoz(int& cuenta);
MotorVoz DatosMotorVoz(int indice); // 1-based
// The sound of the text in the engine's voice, with pitch and speed in the engine's units.
// Empty for an engine that doesn't exist.
MuestrasVoz SintetizaVoz(int motor, const QString& texto, int tono, int velocidad);
// Speaks the text with the engine and waits for its end, pumping events. Without an audio
// device it returns at once.
void HablaConMotor(int motor, const QString& texto, int tono, int velocidad);
