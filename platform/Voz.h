// The speech engines the seats speak with.
#pragma once

#include <QString>

struct MotorVoz {
    QString Nombre;
    int Sexo = 0; // 1 woman, 2 man, 0 not stated
};

// The engines that can speak Spanish here. Returns false when the speech library itself
// can't be used (the program can't go on without it).
bool CuentaMotoresVoz(int& cuenta);
MotorVoz DatosMotorVoz(int indice); // 1-based
// Speaks the text with the engine and waits for its end, pumping events.
void HablaConMotor(int motor, const QString& texto, int tono, int velocidad);
