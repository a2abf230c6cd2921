// The signature of the games: automatic matches from fixed seeds, reduced to one number for each
// game. An unintended change of behaviour changes the number; an intended one records the new
// number (bench/firmas.txt) in the same commit.
#pragma once

#include <QString>
#include <QtGlobal>
#include <vector>

struct FirmaJuego {
    int Juego;
    QString Nombre;
    quint64 Firma;
    int Manos; // hands played to reach it
};

// Plays every line of the signature; the table must be laid out (PreparaMesaAutomatica).
std::vector<FirmaJuego> FirmasDeLosJuegos();
// The recorded signatures as the file keeps them: "53 Tute 0123456789abcdef" a line.
QString TextoFirmas(const std::vector<FirmaJuego>& firmas);
