// The pictures of the settings windows, drawn at the scale the window is shown: a small
// picture of each game made of its own cards, the direction of play round the table, and the
// sample of the card back.
#pragma once

#include <QPainter>
#include <QRectF>

// Cards of the game laid as the game lays them (a song in Tute, a run in Chinchón...), from
// the sheets of the decks, in a box of about 44 by 30.
void DibujaJuego(QPainter& p, int juego, const QRectF& caja);
// The four seats round the table and the way the turn goes: clockwise "Directo", the other way
// "Inverso". In a box of 123 by 123.
void DibujaSentido(QPainter& p, int sentido, const QRectF& caja);
// The back of the cards in the design given, 1 to 8.
void DibujaMuestraReverso(QPainter& p, int diseno, const QRectF& caja);
