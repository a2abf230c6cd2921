// What a five-card hand of Póker is worth: the plays it holds, what it lacks to improve, and its
// exact place among every hand of the deck in play. Cutting the deck down and adding jokers
// change the order of the plays, so their codes are variables set with the deck.
#pragma once

// ---- Codes of the plays, set by PonJugadasPoker for the deck in play ----
// The draw projects take the low codes, the made hands the rest. In the decks of 40 cards or
// fewer a Trío beats Figuras and a Color beats a Full: those four swap their codes.
inline int JugadaProy3Esc = 1, JugadaProy3EscCol = 2, JugadaProyFiguras = 3, JugadaProyEscalera = 4,
           JugadaProyColor = 5, JugadaProyEscColor = 6, JugadaCartaMayor = 7, JugadaPareja = 8,
           JugadaDoblePareja = 9, JugadaTrio = 10, JugadaFiguras = 11, JugadaEscalera = 12,
           JugadaColor = 13, JugadaFull = 14, JugadaPoker = 15, JugadaEscColor = 16,
           JugadaRepoker = 17;
constexpr int NUM_JUGADAS = 17;
constexpr int PRIMERA_JUGADA_HECHA = 7; // codes 1 to 6 are projects, 7 to 17 made hands

// ---- What an evaluation leaves: Jugadas[seat 0..4][play 0..17][k 0..8] ----
// k = JK_TIENE: the hand holds this play (0 or 1). k = 1..5: the values of the play, the most
// important first; a joker keeps its own value (91, 92). JK_PALO: the suit of a run or of a
// colour project. JK_CALIDAD: how good the play is within its kind (for a run, a lower number
// is a better draw); 1 when nothing grades it. JK_COMODIN: the value a joker stands for.
constexpr int JK_TIENE = 0, JK_PALO = 6, JK_CALIDAD = 7, JK_COMODIN = 8;
inline int Jugadas[5][NUM_JUGADAS + 1][9] = {};
inline int JugadaJugador[5] = {}; // the highest play the seat holds: its hand
inline int NumComodinesMano = 0;  // jokers in the hand last evaluated
inline int ValorComodin = 0;      // the last of them seen

// OrdenaCartasJugada: the cards of a play first, [1..5][1 suit, 2 value], and how many they are.
inline int CartasOrdenadas[6][3] = {};
inline int CartasDeJugada = 0;

// The place of the seat's hand as DecideDescartes and the statistics page last worked it out.
inline int OrdenPropio = 0;

// ---- How many hands of each play the deck in play has ----
// One row for each deck and joker count, 87 digits: normal cards (2), jokers (1), hands (7),
// then eleven counts of 7 digits for the codes 7 to 17 of that deck.
constexpr int FILAS_COMBINACIONES = 18;
extern const char* const TablaCombinaciones[FILAS_COMBINACIONES + 1];
inline int CombinacionesJugada[NUM_JUGADAS + 1] = {};
inline double PorcentajeJugada[NUM_JUGADAS + 1] = {};

// ---- What a draw brings, by the play kept and its grade (read from PkFDes.trf) ----
constexpr int MAX_DESCARTES = 180;
inline int NumDescartes = 0; // rows of the deck in play
inline int JugadaDescarte[MAX_DESCARTES + 1] = {};
inline int CalidadDescarte[MAX_DESCARTES + 1] = {};
inline int TotalDescarte[MAX_DESCARTES + 1] = {};
inline int CuentaDescarte[MAX_DESCARTES + 1][NUM_JUGADAS + 1] = {};
inline double PorcentajeDescarte[MAX_DESCARTES + 1][NUM_JUGADAS + 1] = {};

// Fills Jugadas[seat] and JugadaJugador[seat] from the seat's series 1.
void EvaluaJugada(int seat);
// The 32-bit place of the seat's hand among all the hands of the deck, read as the play given
// from what the seat's last EvaluaJugada left; hands of every play compare by it, and equal
// places tie. A draw project has no place: 0.
int OrdenJugada(int jugada, int seat);
// Puts the cards of the play first in CartasOrdenadas, the rest after them by falling value,
// and leaves in CartasDeJugada how many make the play.
void OrdenaCartasJugada(int seat, int jugada);
bool EsFigura(int valor); // the ace and the three faces
bool HayComodin(int seat);
// The binomial coefficient, worked as a product in floating point and rounded.
int Combinaciones(int n, int k);

// For a game of Póker, once the deck is known: the codes and names of the plays and the counts
// of this deck.
void PonJugadasPoker();
// The row of TablaCombinaciones of a deck (0 if none), and its count of hands of a play code
// (of all hands for code 0).
int FilaCombinaciones(int cartasNormales, int comodines);
int CuentaCombinaciones(int fila, int jugada);
// The table of draws, from PkFDes.trf in CarpetaTrabajo. A missing file leaves it empty and
// tells the person once; a short file gives what rows it holds.
void LeeTablaDescartes();
inline bool AvisoDescartesDado = false; // the person has been told of a bad file in this run
// The file's name, for the readers and the generator.
constexpr const char* FICHERO_DESCARTES = "PkFDes.trf";
constexpr int LARGO_REGISTRO_DESCARTES = 92; // 90 digits and a line end
