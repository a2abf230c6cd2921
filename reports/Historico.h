// The history files of finished matches, TRFnn32.HIS: one record of 182 characters a match.
#pragma once

#include <QString>

constexpr int LARGO_REGISTRO_HISTORICO = 182;

// Appends the match that has just ended to the file of JuegoActual.
void AnadeHistorico();
// The record that AnadeHistorico would append now (for the tests).
QString RegistroHistorico();
