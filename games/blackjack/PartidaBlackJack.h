// The match of Black Jack: three seats against the bank held by seat 2, from a shoe of six decks
// that runs on from hand to hand. The match ends when the bank or every player is broke.
#pragma once

void JuegaBlackJack();

// The bank's seat, whatever the settings say.
constexpr int SEAT_BANCA_BLACKJACK = 2;
// The stakes placed at the start of the last hand, before doubles and insurance: what the
// loss rate of the seats is measured against.
inline int ApuestasDeLaMano = 0;
