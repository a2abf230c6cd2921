#include "games/poker/Recorrido.h"

#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"

#include <utility>
#include <vector>

void PonBarajaPoker(int cartaMinima, int opcionComodines) {
    JuegoActual = JUEGO_POKER;
    CartaMinimaPoker = cartaMinima;
    OpcionComodines = opcionComodines;
    NumComodines = opcionComodines - 1;
    ValoresPorPalo = 14 - cartaMinima;
    for (int v = 1; v <= 13; ++v) ValorEnJuego[v] = v == 1 || v > cartaMinima;
    for (int v = 1; v <= 12; ++v) OrdenValor[v] = v + 1;
    OrdenValor[13] = 1;
    CartasNormales = 4 * ValoresPorPalo;
    CartasBaraja = CartasNormales + NumComodines;
    PonJugadasPoker();
}

void RecorreManos(const std::function<void(int seat)>& cada) {
    std::vector<std::pair<int, int>> baraja;
    for (int p = 1; p <= 4; ++p)
        for (int v = 1; v <= 13; ++v)
            if (ValorEnJuego[v]) baraja.push_back({p, v});
    for (int j = 1; j <= NumComodines; ++j) baraja.push_back({PALO_COMODIN, 90 + j});
    const int n = static_cast<int>(baraja.size());
    constexpr int seat = 0;
    NumCartas[seat][1] = 5;
    auto& mano = CartasJugador[seat][1];
    const auto pon = [&](int pos, int i) {
        mano[pos][CAMPO_PALO] = baraja[i].first;
        mano[pos][CAMPO_VALOR] = baraja[i].second;
    };
    for (int a = 0; a < n; ++a) {
        pon(1, a);
        for (int b = a + 1; b < n; ++b) {
            pon(2, b);
            for (int c = b + 1; c < n; ++c) {
                pon(3, c);
                for (int d = c + 1; d < n; ++d) {
                    pon(4, d);
                    for (int e = d + 1; e < n; ++e) {
                        pon(5, e);
                        EvaluaJugada(seat);
                        cada(seat);
                    }
                }
            }
        }
    }
}
