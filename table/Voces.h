// The seats' voices: what a seat writes, it says in the voice the person chose for it.
#pragma once

#include <QString>

// Says the text in the seat's voice and returns when it has been heard; events are delivered
// meanwhile, so the person can press buttons while a seat speaks.
void Habla(int seat, const QString& texto);

// The engine that speaks for the seat: the one of its sex, or the other sex when that one is
// missing; 0 when there is none.
int EligeMotorVoz(int seat);
// The text as the engine must get it to sound right ("Black Jack" is said the Spanish way).
QString TextoHablado(const QString& texto);
// A setting from 0 to 100 placed between the engine's lowest and highest value.
int ValorEnRango(int minimo, int maximo, int ajuste);
// Whether a phrase written with the speak flag (1 speaks, 2 doesn't) is also said.
bool FraseSeHabla(int hablar);
