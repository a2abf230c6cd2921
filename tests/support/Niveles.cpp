#include "support/Niveles.h"

#include "bench/Automatica.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"

#include <algorithm>

namespace {
constexpr int NIVEL_ALTO = 100, NIVEL_BAJO = 0, CARACTER_MEDIO = 2;
}

ManosDeNivel JuegaNivelesAlternos(int juego, int jugadores, int manosMinimas,
                                  const std::function<void()>& opciones) {
    int nivel[5], caracter[5];
    std::copy(NivelJugador, NivelJugador + 5, nivel);
    std::copy(CaracterJugador, CaracterJugador + 5, caracter);
    ManosDeNivel r;
    for (unsigned semilla = 1; r.Manos < manosMinimas; ++semilla) {
        const bool impares = semilla % 2 == 1;
        PreparaPartidaAutomatica({juego, jugadores, false, [&] {
                                      if (opciones) opciones();
                                      for (int s = 1; s <= 4; ++s) {
                                          NivelJugador[s] =
                                              (s % 2 == 1) == impares ? NIVEL_ALTO : NIVEL_BAJO;
                                          CaracterJugador[s] = CARACTER_MEDIO;
                                      }
                                  }});
        PinturaOmitida = true;
        const int jugadas = JuegaPartidaAutomatica(semilla);
        PinturaOmitida = false;
        for (int m = 1; m <= jugadas; ++m)
            for (int s = 1; s <= jugadores; ++s)
                r.Ganadas += RegistroManos[m].Gana[s][1] == 1 && NivelJugador[s] == NIVEL_ALTO;
        r.Manos += jugadas;
    }
    std::copy(nivel, nivel + 5, NivelJugador);
    std::copy(caracter, caracter + 5, CaracterJugador);
    return r;
}
