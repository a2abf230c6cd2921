// The computer player of the Black Jack: the stake of a seat and, on each decision, what it
// would do next. It also answers the tutor.
#pragma once

// Leaves in ApuestaOrdenador (stakes phase) or in QuiereSeguro, QuiereAbrir, QuiereDoblar and
// QuiereServido (play) the choice for JugadorActual and its SerieActual. Any other phase does
// nothing.
void DecideBlackJack();
