// Sounds of the table, from the program's resources.
#pragma once

constexpr int SONIDO_SINCRONO = 0, SONIDO_ASINCRONO = 1;

// Plays sound id; synchronous waits for its end. A new sound cuts the one playing. Nothing
// sounds while SonidoActivado is False, or when there is no audio device.
void Sonido(int modo, int id);
