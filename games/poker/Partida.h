// The match of Póker at the table: five-card draw for chips, hand after hand, until one seat
// holds all the money.
#pragma once

#include <QString>

void JuegaPoker();

// The words of a seat's hand for the end of a hand: "Doble Pareja de Reyes y Nueves",
// "Escalera al As". The seat has been evaluated.
QString DescribeJugada(int seat, int jugada);
// The seat's hand sorted by its play: the cards of the play first. False when the hand isn't
// whole yet, and nothing moved.
bool OrdenaManoPoker(int seat);
