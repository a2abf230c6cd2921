// Base routines the whole program leans on: the arithmetic of the old desktop, the format
// strings of the reports and files, the random source and the walk round the seats.
#pragma once

#include <QString>

// Round: nearest whole number, a half going to the even neighbour (2.5 -> 2, 3.5 -> 4).
int Redondea(double x);
// Int: the largest whole number not above x (Int(-2.5) = -3).
int Ent(double x);
// The \ operator: both sides rounded to whole numbers, then divided with truncation.
int DivEntera(double a, double b);
// Sign of a number: -1, 0 or 1.
int Signo(double x);

// Format strings of numbers: "0" a digit always written, "#" a digit written when significant,
// "." the decimal point, "," grouping. Digits round half away from zero. "000" of 7 is "007",
// "##0" of 7 is "7", "#####0" of 1234 is "1234", "000.00" of 3.14159 is "003.14".
QString Formato(double valor, const QString& formato);
// Format strings of texts: every "@" stands for a character, filled from the right with blanks
// ("@@@" of "7" is "  7"); a leading "!" fills from the left instead ("!@@@@" of "ab" is "ab  ").
// A text longer than its "@"s shows whole, as the old formats did: cut it where a column is fixed.
QString FormatoTexto(const QString& texto, const QString& formato);
// The same for a number, written without decimals: Formato(7, "@@@") is "  7".
QString FormatoTexto(int valor, const QString& formato);
// A figure for a person to read: Spanish grouping and decimal comma ("1.234,50").
QString CifraEspanola(double valor, int decimales = 0);

// Writes a text into a fixed column of a line (1-based), padding or cutting it to the width.
void PonColumna(QString& linea, int columna, int ancho, const QString& texto);
// Reads a fixed column of a line (1-based); what lies beyond the line's end reads as blanks.
QString LeeColumna(const QString& linea, int columna, int ancho);
// Val: the numeric prefix of a text, blanks skipped; "" and "x" read 0, "12ab" reads 12.
double Val(const QString& texto);

// The random source: uniform in [0, 1). In play it is seeded again from the clock at each match
// and each shuffle. Tests and the benchmark set SemillaFija: every match then starts from that
// seed and reseeds nothing, so the same seed replays the same match, deal by deal and choice by
// choice.
inline unsigned SemillaFija = 0;
double Rnd();
void Randomiza();      // from the clock, unless SemillaFija
void SiembraPartida(); // at the start of a match: SemillaFija, or the clock
void RandomizaCon(unsigned semilla);

// Walk to the next (or previous) active seat, by the step of the play's direction. In Chinchon
// and Pumba a seat that has left the match by its points is passed over too.
void SiguienteJugador(int& seat);
void AnteriorJugador(int& seat);
// Sum of the figures of Resultado[seat] over hands 1 to NumeroMano; "-99" (a Chinchon close)
// counts 0.
int TotalPuntos(int seat);

// Capitalises each word: "jUAN pepe" -> "Juan Pepe".
QString NormalizaNombre(const QString& nombre);
