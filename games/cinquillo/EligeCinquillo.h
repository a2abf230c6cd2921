// The computer player of the Cinquillo, run for the seat on turn, the person's too: it leaves the
// legal cards in Candidatas, best first, NumCandidatas, and the card it lays in CartaElegida.
#pragma once

void EligeCinquillo();
