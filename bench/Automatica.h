// Automatic matches with no window: every seat is the computer's, pauses end at once and cards
// land without crossing the table. The benchmark, its signature and the long tests play them.
#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>

// Lays out a table of 1024 by 768 with no window, its files in the folder, messages answered
// from a script and the person never asked.
void PreparaMesaAutomatica(const QString& carpeta);

// One kind of automatic match: the game, the seats in play (from seat 1 on), pairs, and the
// options of the game set by Opciones after the factory ones.
struct MesaAutomatica {
    int Juego = 0;
    int Jugadores = 4;
    bool Parejas = false;
    std::function<void()> Opciones;
};

// Puts the seats and the rules of that match in place: levels 100, 75, 50 and 0 with the three
// characters in turn, so that every gate of the computer players is crossed.
void PreparaPartidaAutomatica(const MesaAutomatica& mesa);
// Plays one whole match from the seed; returns the hands played. Cards land at once and the
// frames that the next one covers are left out, unless every frame is asked for.
int JuegaPartidaAutomatica(unsigned semilla, bool todosLosFotogramas = false);
// A fingerprint of the match just played: each hand's record, the games won, the money, the
// stones.
quint64 HuellaPartida(quint64 huella = 14695981039346656037ull);

// Level 100 against level 0, all seats of one character, in matches from seed 1 on, the table
// not drawn: the odd seats hold level 100 in the odd matches and the even seats in the others,
// so that no seat's place tells. After each match trasPartida reads RegistroManos and the
// seats' levels as the match left them, and says whether to play another. The seats' levels
// and characters are put back at the end.
void JuegaNivelesAlternos(int juego, int jugadores, const std::function<void()>& opciones,
                          const std::function<bool(int manos)>& trasPartida);
// Hands played and hands won by the level 100 seats of those matches, until that many hands.
struct ManosDeNivel {
    int Manos = 0, Ganadas = 0;
};
ManosDeNivel ManosGanadasPorNivel(int juego, int jugadores, int manosMinimas,
                                  const std::function<void()>& opciones = nullptr);
// The levels of the two sides.
constexpr int NIVEL_ALTO = 100, NIVEL_BAJO = 0;
