// The matches of Tute and Brisca at the table: hands dealt with their trump, tricks played seat
// after seat, the songs, the draws from the stock and the end of each hand.
#pragma once

void JuegaTute();
void JuegaBrisca();

// ---- Steps of a hand, at the table ----
void DescubreTriunfo();       // after the deal: the trump turned up, or shown in the last hand
void CambiaPinta();           // JugadorActual exchanges the turned-up trump (CodigoJugada)
void RobanCartas();           // every seat draws one card after a trick, the winner first
void ParpadeaGanadorBaza();   // the card that took the trick blinks
void DibujaBaza(int sinSeat); // the cards of the trick in the middle, but the one of sinSeat
void BorraBaza();
void CantaAcuses();       // after a trick of Tute: the winner, and its partner, sing
void CantaTute(int seat); // shows the Tute and ends the hand
void FinalManoTB();       // the winner of the hand, its message and its record
