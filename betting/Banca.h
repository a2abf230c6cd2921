// What the two games played against a bank share, Black Jack and Siete y media: the value of a
// series, the opening of a pair into a new series, the answers of their computer players, and
// the small table texts of a seat's turn.
#pragma once

#include <QString>

// ---- What ValorMano leaves (Black Jack) ----
inline bool ManoBlanda = false; // an ace is being counted as 11
inline bool ManoDura = false;   // the total has no such ace

// ---- The answer of the computer player for the seat on turn ----
inline int ApuestaOrdenador = 0; // the stake, in the stakes phase
inline bool QuiereSeguro = false, QuiereAbrir = false, QuiereDoblar = false;
inline bool QuiereServido = false; // false: one more card
inline bool QuiereVolver = false;  // Siete y media: turn the covered card up before acting

// ---- Siete y media: the bank that moves ----
// NuevaBanca and CambiaBanca, read by the head of each hand, are the frame's (GblJuego.h).
inline bool PuedeCambiarCuatro = false; // the seat's only card is a 4, which it may change
inline bool NoCambiaCuatro = false;     // the computer seat keeps its 4
inline bool ApuestaFuerte = false;      // the seat stakes more and will stand on anything

// ---- Colours of the texts at a seat (as the table stores them: blue, green, red) ----
constexpr unsigned COLOR_TEXTO_BLANCO = 0xFFFFFF;
constexpr unsigned COLOR_TEXTO_SERIE = 0xFFFF00; // cyan: red 0, green 255, blue 255
constexpr int PARPADEOS_TEXTO = 2;

// As a match against the bank starts or is taken up: no card in the hands and no chip in front
// of a seat is left from an earlier match, whose hand was not finished.
void LimpiaMesaBanca();
// The total of a series: the points of its cards. In Black Jack an ace counts 11 while the sum
// is at most 11, which sets ManoBlanda; otherwise ManoDura.
double ValorMano(int seat, int serie);
// Opens the pair of SerieActual of JugadorActual: its second card starts a new series. In Black
// Jack the new series carries all the old one staked, an insurance too, paid from the seat's
// money.
void AbreMano();
// The money a computer seat keeps back by its character: RestoInicial times 1.2, 0.8 or 0.5.
int ReservaJugador(int seat);
// Series that hold cards and are not closed, the bank's included; left in JugadoresMano.
int CuentaSeriesVivas();
// A text beside the seat's cards in SerieActual, spoken, blinking when veces > 0.
void DiceTexto(int seat, const QString& texto, unsigned color, int veces);
// "Serie n" in cyan, blinking, for a seat with more than one series.
void RotuloSerie(int seat, int serie);
// Whether the seat's series holds a covered card (Siete y media).
bool TieneTapada(int seat, int serie);
// The total of a series as the end of a hand tells it: "Se ha pasado", or the game's words.
QString TextoTotal(int seat, int serie);

// The record of a hand against a bank: each seat's series, the first two in Resultado and the
// others in Detalle, as the game's own text of a series gives them, and what the bank won.
void AnotaRegistroBanca(QString (*textoSerie)(int seat, int serie));
