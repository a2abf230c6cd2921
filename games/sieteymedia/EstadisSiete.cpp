// The counts of the statistics page of the Siete y media.
#include "games/sieteymedia/EstadisSiete.h"

#include "betting/Banca.h"
#include "frame/TrufalGbl.h"

namespace {

constexpr double SIETE_Y_MEDIA = 7.5;

double Porcentaje(int parte, int todo) {
    return todo > 0 ? parte * 100.0 / todo : 0;
}

} // namespace

double PosibilidadesSiete::Pasarse() const {
    return Porcentaje(Pasan, Posibles);
}

double PosibilidadesSiete::Siete() const {
    return Porcentaje(SieteJusto, Posibles);
}

double PosibilidadesSiete::Promedio() const {
    return SumaBuenas > 0 ? SumaBuenas / (Posibles - Pasan) : 0;
}

void AnotaCartasVistas() {
    for (auto& p : CartaVista)
        for (int& v : p) v = 0;
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= SeriesJugador[s]; ++e)
            for (int p = 1; p <= NumCartas[s][e]; ++p) {
                const auto& c = CartasJugador[s][e][p];
                // The face is what counts: a person's own covered card is shown to it.
                if (c[CAMPO_PALO] >= 1 && c[CAMPO_PALO] <= 4 && c[CAMPO_CARA] == CARA_VISIBLE)
                    CartaVista[c[CAMPO_PALO]][c[CAMPO_VALOR]] = s;
            }
}

PosibilidadesSiete PosibilidadesSiguiente(int seat, int serie) {
    AnotaCartasVistas();
    PosibilidadesSiete r;
    const double total = ValorMano(seat, serie);
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= 12; ++valor) {
            if (!ValorEnJuego[valor] || CartaVista[palo][valor] != 0) continue;
            const double t = total + PuntosValor[valor];
            ++r.Posibles;
            if (t > SIETE_Y_MEDIA) {
                ++r.Pasan;
                continue;
            }
            if (t == SIETE_Y_MEDIA) ++r.SieteJusto;
            r.SumaBuenas += t;
        }
    return r;
}
