// The tutor (Pic_Boton(4)): on the person's own turn it runs the computer player of the game for
// that seat, at full level, and shows its answer at the table without playing it.
#pragma once

#include <QString>
#include <functional>
#include <vector>

constexpr unsigned COLOR_FRASE_TUTOR = 0x00FF00; // green
constexpr int NIVEL_TUTOR = 100;

// What a computer player answers for the seat on turn, in the terms the tutor shows it. Each
// game fills only what its phase uses; CartaElegida is read from the shared state, where the
// choosers of the trick games and of the Chinchón leave it.
struct ConsejoTutor {
    int Cantidad = 0;          // a stake or an envite: below 0 throw the cards, 999 an órdago
    int ApuestaMaxRonda = 0;   // Póker: the highest stake of the round so far
    int Apostado = 0;          // Póker: what the seat has staked in the round
    int Resto = 0;             // Póker: all the money the seat has left
    int Contra = 0;            // Mus: the envite the seat answers, 0 none, 999 an órdago
    bool Pareja = false;       // Mus: the pair passes together, "los dos"
    bool MandaSena = false;    // Mus: orders the partner to cut (phase 1) or to envidar (phase 5)
    bool RondaDeJuego = false; // Mus 5: the round in which each says whether it holds the play
    bool Cambio = false;       // Siete y media: change the four
    bool Abrir = false;        // Black Jack: split the pair; Siete y media: open the play
    int Pulsador = 0;          // the action button whose press is the advice
    std::vector<int> Cartas;   // positions to raise: discards, or cards to lay down
    int Monton = 0;            // Chinchón 1: 1 take from the stock, 2 from the pile
};

// The computer player of each game for the tutor, by game code (51 to 59). Each game's code puts
// its routine here; an empty entry makes the tutor say that its advice isn't ready.
using RutinaConsejo = std::function<ConsejoTutor()>;
inline RutinaConsejo RutinaTutor[60];

// The action of Pic_Boton(4), once the bar has checked it isn't refused.
void Tutor();
// Blinks an action button: pressed with sound 6, then up, that many rounds.
void ParpadeaPulsador(int indice, int veces);

// The words of the advice, for the phases that answer with a phrase.
QString FraseConsejoPoker(const ConsejoTutor& c);
QString FraseConsejoMus(const ConsejoTutor& c);
