// Deck parameters, the stock, the discard pile and the cards of each seat.
#pragma once

#include <QString>

// Card fields of CartasJugador and Baraja.
constexpr int CAMPO_PALO = 1, CAMPO_VALOR = 2, CAMPO_CARA = 3, CAMPO_ESTADO = 4, CAMPO_MARCA = 5;
constexpr int CARA_OCULTA = 1, CARA_VISIBLE = 2;
constexpr int PALO_COMODIN = 5;
constexpr int MAX_BARAJA = 312; // 6 decks of 52
constexpr int MAX_MANO = 54;

// ---- Deck parameters, set by ParametrosJuego ----
inline int TipoBaraja = 1; // 1 Spanish, 2 French
inline int ValoresPorPalo = 10;
inline int CartasNormales = 40;
inline int NumComodines = 0;
inline int CartasBaraja = 40;
inline int CartasPorPalo = 12;
inline int IdsNormales = 48;
inline int IdsCartas = 48;
inline int NumBarajas = 1;
inline int CartasPorJugador = 3;
inline int CartasPorTanda = 1;
inline int MaxCartasMano = 3;
inline int AltoMiniatura = 46;
inline bool ValorEnJuego[14] = {};
inline int OrdenValor[14] = {};
inline double PuntosValor[14] = {};
inline bool ApuestaDelante = false;

// ---- Stock and discards ----
inline int Baraja[MAX_BARAJA + 1][3] = {};
inline int PosicionMazo = 1;
inline int CartasEnMazo = 0;
inline int VecesBarajado = 0; // shuffles since the start: a new one empties the Black Jack tray
inline int Pozo[55][3] = {};
inline int CartasEnPozo = 0;
inline int PaloTriunfo = 0, ValorTriunfo = 0;
inline int PaloSalida = 0;
inline bool MuestraTriunfo = false;

// ---- Cards of a seat ----
inline int CartasJugador[5][5][MAX_MANO + 1][6] = {};
inline int NumCartas[5][5] = {};
inline bool JuegaMano[5] = {};
inline int SeriesJugador[5] = {};
inline bool SerieCerrada[5][5] = {};

// ---- Tables of the trick games, erased at each hand ----
inline int GanadorDeBaza[41] = {};
// [trick][seat][field]: the card the seat laid, whether it took the trick, the suit it sang.
constexpr int HB_PALO = 1, HB_VALOR = 2, HB_GANADA = 3, HB_CANTE = 4;
inline int HistoriaBazas[41][5][5] = {};
inline int TantosDeBaza[41] = {};
inline int CartaVista[6][14] = {};   // [suit][value]: seat that played it, 0 unplayed
inline bool AcuseCantado[5][5] = {}; // [seat][suit]
inline bool SinPalo[5][5] = {};

// ---- Chips and stakes ----
inline const int ValorFicha[7] = {0, 1, 2, 5, 10, 20, 50};
inline int Fichas[5][7] = {};
inline int Apuesta[5][5][6] = {};
inline int RestoAlEmpezar[5] = {};
inline int ApuestaCopia[5][5][6] = {}; // the stakes as they stood when the hand began

// ---- Words of the values, set with the deck ----
inline QString NombreValor[15];
inline QString NombreValorPlural[15];

// ---- Manual deal ----
inline bool MiniaturaLibre[55] = {};
inline bool MiniaturaElegida[55] = {};
inline int FilasPanelReparto = 4;
inline int PanelRepartoX = 0, PanelRepartoY = 0;
inline int SeatUltimoReparto = 0;
inline int PaloDeId = 0, ValorDeId = 0, PaloCarta = 0, ValorCarta = 0;
inline int MiniaturaX = 0, MiniaturaY = 0;
inline int HistorialFichas[5][5][151] = {}; // [seat][series][chip]: denominations staked, in order
inline int NumHistorial[5][5] = {};
