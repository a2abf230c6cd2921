// The computer player of Tute and Brisca: the card of JugadorActual, chosen by worth, the rules
// of its level and character, and the advice of the end-game search. The person's turn runs it
// too: it leaves in Candidatas the cards the person may play.
#pragma once

inline int ValorEnCurso = 0; // the value of the card under examination

// Leave the choice in CartaElegida (a hand position), Candidatas and NumCandidatas.
void EligeCartaTute();
void EligeCartaBrisca();
// The OrdenValor of an unseen card of the suit that beats the value, the last found in value
// order; 0 when none does.
int MayorFuera(int palo, int valor);
