// The match and the hand in progress, the flags of the waits, the scoring and the hand records.
#pragma once

#include "frame/Fases.h"

#include <QString>

// Game codes held in JuegoActual.
constexpr int JUEGO_POKER = 51, JUEGO_BLACKJACK = 52, JUEGO_TUTE = 53, JUEGO_BRISCA = 54,
              JUEGO_SIETEYMEDIA = 55, JUEGO_CINQUILLO = 56, JUEGO_MUS = 57, JUEGO_CHINCHON = 58,
              JUEGO_PUMBA = 59;

constexpr int MAX_MANOS = 2000; // a match has room for this many hands

// ---- Game in progress ----
inline int JuegoActual = JUEGO_POKER;
inline bool PartidaViva = false;
inline bool ManoViva = false;
inline int NumeroMano = 0;
inline int NumeroBaza = 0;
inline int NumeroDescarte = 0;
inline int FaseJuego = 0;
inline int JugadorActual = 0;
inline int JugadorMano = 0;
inline int JugadorSalida = 0;
inline int JugadorBanca = 0;
// Siete y media: the first seat that showed siete y media in the hand (0 none), and whether it
// takes the bank at the next hand.
inline int NuevaBanca = 0;
inline bool CambiaBanca = false;
inline int GanadorBaza = 0, GanadorMano = 0, GanadorPartida = 0;
inline int CartasEnBaza = 0;
inline int TantosBaza = 0;
inline int NumJugadores = 4;
inline int JugadoresMano = 0;
inline int SerieActual = 1, NumSeries = 1;
inline int CartaElegida = 0;
inline double AzarJugada = 0.0;
// The hands the deck in play can make: of five cards in Póker, of four in the Mus.
inline int TotalCombinaciones = 0;
inline int CodigoJugada = 0;
inline int PasoSentido = 1;
inline int PasoSentidoPumba = 1;
inline QString TextoMensaje;
inline bool ObligacionActiva = false;
inline bool TuteCantado = false;
inline bool OrdagoEnJuego = false; // Mus: an órdago was accepted and the hand is shown
// Mus: what the buttons beside the person's cards need to know of the lance in play.
inline int LanceActual = 0;           // 1 Grandes to 5 Punto
inline bool RondaDeclaracion = false; // each seat says whether it holds Pares or Juego
inline bool TieneLanceTurno = false;  // the seat on turn holds the lance in play
inline bool CompaneroEnLance = false; // its partner still has a say in this lance
inline bool OrdenCortar[5] = {};      // the person's order to the partner: cut the mus
inline bool OrdenEnvidar[5] = {};     // the person's order to the partner: envidar

// The cards a chooser leaves for a turn, in the order it works with.
constexpr int CAND_CLAVE = 1, CAND_POSICION = 2;
inline int Candidatas[27][3] = {};
inline int NumCandidatas = 0;

// ---- Waiting and input flags ----
inline bool EsperandoPersona = false;
inline bool PersonaJugando = false;
inline bool JugadaHecha = false;
inline bool TutorEnCurso = false;
inline bool OrdenManual = false;
inline bool ArrastrandoCarta = false, ArrastrandoMiniatura = false;
inline bool AnularReparto = false;
inline bool Repartiendo = false;
inline bool EligiendoMano = false;
inline bool EligiendoOpcion = false;
inline bool EnPersonal = false;
inline bool MensajeSobreVentana = false;
inline bool RespuestaMensaje = false;
inline bool PideCarta = false, PideServido = false, PideDoblar = false, PideSeguro = false,
            PulsoCerrar = false, PulsoSeguir = false, PulsoMus = false, PulsoCorte = false,
            PulsoSi = false, PulsoNo = false, PideAbrir = false;
inline bool PuedeAbrir = false, PuedeDoblar = false, PuedeAsegurar = false, PuedeCerrar = false;
inline bool HablaPorDos = false;
inline bool FichasActivas = false;
inline bool PideCambio = false; // Tute and Brisca: the person exchanges the turned-up trump
inline int PosicionOrigen = 0;  // the hand card being dragged
inline qint64 MarcaTiempo = 0;  // millisecond clock at the start of the running step; 0: none

// ---- Program ----
inline QString SaltoLinea = QStringLiteral("\r\n");
inline QString CarpetaTrabajo;  // folder of every data file, with its trailing separator
inline QString CarpetaPrograma; // the program's own folder, where the help and the art live
inline bool CarpetaTemporal = false;
inline int ErrorFichero = 0;
inline int MotorVozMujer = 0, MotorVozHombre = 0;

// ---- Scoring of the match ----
inline int JuegosGanados[5] = {};
inline double TantosJugador[5][3] = {}; // [seat][side]
inline int Piedras[5] = {};
inline bool PiedrasCompletas[5] = {};
inline int PiedrasCopia[5] = {}; // the stones as they stood when the hand began

// One record for each hand of the match, in order.
struct RegistroMano {
    QString Sale;
    int Gana[5][5] = {};
    QString Resultado[5];
    QString Detalle[5];
    int Extra[5] = {};
    int Banca = 0;
};
inline RegistroMano RegistroManos[MAX_MANOS + 1];

// ---- Tables of words, filled once by IniciaPalabras ----
inline QString NombreJuego[60];
inline QString NombreNumero[8];
inline QString NombreLance[6];
inline QString NombreJugadaPoker[18];
inline QString TextoInformacion[63];
