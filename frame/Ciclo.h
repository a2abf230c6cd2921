// The frame all nine games share: matches, hands, waits, pauses, abandon and postpone.
#pragma once

#include <QString>
#include <functional>

void NuevaPartida();
void AbreJuego();
void NuevaMano();
void EmpiezaManoApuestas();
// Erases the tables that describe a hand: cards, tricks, songs, points, chips and stakes.
void BorraTablasMano();
// Closes a match: its text under "Final de Partida", the offer of the history, an empty table.
void CierraPartida(const QString& texto, int lineas);
void EsperaJugada();
// The big button alone, at the end of a hand: the table waits until it is pressed, or the
// match is left.
void EsperaBotonera();
void Pausa(int ms);
// Benchmarks and long automatic matches in the tests: every pause is over at once, not at the
// next tick of the clock.
inline bool PausasACero = false;
void OcultaContinuar();
void SorteoInicial();
void EligeMano();
void FinPartida();
void FinPartidaFondos();
void SenalaJugador();
// The speed factor of Pausa for a VelocidadJuego, kept to 4 decimals.
double FactorVelocidad(int velocidad);

// The buttons of the bar that start, and leave: they ask, then act.
void PulsaComenzar(); // Pic_Boton(1), or any key on an empty table
void PulsaSalir();    // Pic_Boton(8)
// Puts money and stones back as they stood when the hand began, and closes an open manual deal:
// what the files keep of a match left open.
void PreparaPosponer();
// Writes both files and ends the program.
void TerminaPrograma();

// The driver of each game. A game without its own driver yet is not played: the person is told
// that it isn't ready (AvisaJuegoNoDisponible). JuegaProvisional deals the hands of its deck and
// waits for Continuar, for a look at a deck before its game is there.
void JuegaPartida();
void JuegaProvisional();
void AvisaJuegoNoDisponible();

// Headless play: when set, EsperaJugada and the other waits call this instead of blocking on the
// window's events, so a test can act as the person. It must change the state the wait tests, or
// the wait calls it again.
inline std::function<void()> PersonaGuionada;
// Ends the program: the window closes and the event loop stops. Tests replace it.
inline std::function<void()> FinPrograma;
