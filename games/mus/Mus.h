// The Mus at the table: four seats in two pairs (1 + 3 against 2 + 4), rounds of mus and
// discards, the four lances with their envites and órdago, and the stones of each game.
#pragma once

#include "betting/Fichas.h"

#include <QString>
#include <QStringList>
#include <vector>

// ---- The lances, in the order they are played ----
constexpr int LANCE_GRANDE = 1, LANCE_CHICA = 2, LANCE_PARES = 3, LANCE_JUEGO = 4, LANCE_PUNTO = 5;
constexpr int ORDAGO = 999; // an envite of the whole game

// How a lance ended (LanceMus[l].Estado).
constexpr int ESTADO_EN_PASO = 1, ESTADO_ACEPTADO = 2, ESTADO_ORDAGO = 3, ESTADO_NO_QUERIDO = 4,
              ESTADO_REENVITE_NO = 5, ESTADO_ORDAGO_NO = 6, ESTADO_SIN_ENVITES = 7,
              ESTADO_NADIE = 8;
// Whether a seat has spoken since the last raise (Voz).
constexpr int VOZ_CALLA = 0, VOZ_HABLO = 1, VOZ_POR_COMPANERO = 2, VOZ_CIERRE = 3;

constexpr int PIEDRAS_MONTON = 25; // the common heap at the start of each game
constexpr int SEAT_CORTA = 99;     // RondasMus: the seat that cut the mus

// ---- What four cards are worth in each lance ----
struct ValorMano {
    int Grande = 0;     // 0 to 9999
    int Chica = 0;      // 0 to 9999
    int Pares = 0;      // 0, or 2000 to 4999
    int ClasePares = 0; // 0 none, 1 par, 2 medias, 3 duples: the stones it is worth
    int TotalJuego = 0; // the count of the hand from 31 up, else 0
    int RangoJuego = 0; // 1 the best juego to 8, 0 without juego
    bool Real31 = false;
    int Punto = 0;           // the count of the hand below 31, else 0
    int PesoCombinacion = 0; // how many real four-card hands have these values
};
inline ValorMano ValoresMusActual; // what EvaluaManoMus leaves
inline ValorMano ValoresMus[5];    // copies the callers keep, one a seat

// The four cards EvaluaManoMus reads: [1..4][palo, valor].
inline int CartasEvaluadas[5][3] = {};

// Every hand of the deck once by its values, with how many real hands it stands for.
constexpr int NUM_COMBINACIONES = 715, TOTAL_COMBINACIONES = 91390;
struct CombinacionMus {
    int Grande = 0, Chica = 0, Pares = 0;
    int TotalJuego = 0, RangoJuego = 0;
    bool Real31 = false;
    int Punto = 0;
    int Peso = 0;
};
inline CombinacionMus CombinacionesMus[NUM_COMBINACIONES + 1];
constexpr int CONTEO_MEJORES = 1, CONTEO_IGUALES = 2, CONTEO_PEORES = 3;
inline int ConteoCombinaciones[4][6] = {}; // [better, equal, worse][lance]
inline int TotalConJuego = 0, TotalConPunto = 0;
inline float PorcentajeMejores[6] = {}; // per lance, the share of hands that beat this one

// ---- One lance of the hand in play; LanceMus[0] keeps the sums of the report ----
struct LanceDeMus {
    int Estado = 0;
    int Envite = 0;
    bool HayPrevio = false;
    int EnvitePrevio = 0;
    bool Tiene[5] = {};
    int Voz[5] = {};
    bool Acepta[5] = {};
    bool ParejaAcepta[3] = {};
    int Cobrado[3] = {};
    int Envidador = 0;
};
inline LanceDeMus LanceMus[6];

// A round of mus (Fase 1, Valor 99 for the seat that cut) or of discards (Fase 4, the cards each
// seat threw). NumeroBaza counts the rows of the hand.
struct RondaDeMus {
    int Fase = 0, Ronda = 0;
    int Valor[5] = {};
};
inline std::vector<RondaDeMus> RondasMus;

// ---- The stones of the game ----
inline int PiedrasInicioLances[5] = {};
inline int LanceOrdago = 0; // the lance whose órdago was accepted
inline int GanaJuego = 0;   // the pair that has reached PiedrasJuego in this hand
inline QString TextoPago;
inline int PiedrasPago = 0, LineasPago = 0, LancePago = 0, ParejaCobra = 0;

// ---- Betting of a lance ----
// The seat whose envite stands (JugadorMaxApuesta), the highest envite of the lance
// (ApuestaMaxRonda, 999 an órdago) and what the seat finally says (ApuestaAnunciada) are the
// board's, as is the person's envite on the panel (ApuestaPersona, 0 a pass).
inline int TurnosDesdeSubida = 0;
inline int ApuestaOrdenador = 0; // the computer player's envite for the seat on turn
inline bool HablaPorDosOrdenador = false;
inline double AzarFrase = 0.0; // the draw of the turn for the phrases

// What the seat on turn may do in the lance (PermisosEnvite).
inline bool PuedeSubir = false, HayEnvite = false, SoloYo = false, SoloPareja = false,
            NoPorDos = false, SigoCompanero = false;

// ---- What the computer player leaves for the seat it thinks for ----
inline bool QuiereCortar = false;
inline bool MandaCortar = false, MandaEnvidar = false;
inline bool MarcaDescarte[5] = {};
inline int PlanMus[5] = {};

// ---- Routines of the lances ----
int OrdenMus(int valor);
// Values of the four cards of the seat, or with desdeLista those already in CartasEvaluadas; sets
// Tiene of the five lances for the seat (1 to 4).
void EvaluaManoMus(int seat, bool desdeLista = false);
// ValoresMusActual against every hand of the deck: ConteoCombinaciones, PorcentajeMejores.
void ComparaManoMus();
void GeneraCombinacionesMus();
// The seat that takes the lance by the values in ValoresMus, going round from the mano: ties go
// to the seat nearest the mano. 0 when nobody holds it (Juego without juego, Punto with it).
int GanadorLance(int lance);

// ---- The hand at the table ----
void JuegaMus();
int PiedrasPareja(int pareja);
void PagaPiedras();
// The heap of stones and the tallies at the start of a match and of each game.
void PreparaPartidaMus();
// What every hand starts with: the lances cleared, the rounds of mus empty, the signs afresh.
void PreparaManoMus();

// ---- The computer player: what a seat would do now, for the computer and the tutor ----
void PiensaMus(int seat);
void PermisosEnvite(int seat);
void PreparaSenas();
void GestosSenas();

// ---- The person's panel and the phrases of a bet ----
void DibujaApostadoraMus();
void OcultaApostadoraMus();
// The captions of the panel's buttons as the person sees them, and a press on the one with that
// caption (false when it isn't there).
QStringList BotonesApostadoraMus();
bool PulsaBotonApostadoraMus(const QString& texto);
QString FraseApuestaMus(int orden);
