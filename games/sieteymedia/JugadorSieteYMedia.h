// The computer player of the Siete y media: a seat's stake, its move in play, and the bank's
// choice. It also answers the tutor.
#pragma once

// Leaves in ApuestaOrdenador, ApuestaFuerte and NoCambiaCuatro (stakes phase) or in
// QuiereServido, QuiereVolver and QuiereAbrir (play) the choice for JugadorActual and its
// SerieActual.
void DecideSieteYMedia();
// Some seat shows siete y media with no covered card (a later covered one clears it again).
bool HaySieteVista();
