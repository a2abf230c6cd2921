// Póker hands written as text for the tests.
#pragma once

#include <string>

// Puts a hand on a seat's series 1: "AO KC 10E 3B J1", suits O C E B for 1 to 4, J1 and J2
// the jokers.
void PonMano(int seat, const std::string& mano);

// After whole matches of Póker, played out or cut short: no card in a hand, the stock or the
// pile, no chip on the table, and every rule setting as a fresh install has it, so that the
// games tested next in the same run start from a clean table.
void RecogeMesaDePoker();
