// The whole game lives in one process-wide state. There are no game objects: the table, the
// drivers, the computer players, the windows and the reports all read and write these names.
// Arrays keep the lower bound 0 and are used from 1, so indices read as seats, series and
// positions do at the table. Numbers are widened from 16 bits to int; booleans are bool.
#pragma once

#include "frame/GblCartas.h"
#include "frame/GblJuego.h"
#include "frame/GblJugadores.h"
#include "frame/GblReglas.h"
#include "table/GblMesa.h"
