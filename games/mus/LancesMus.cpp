// What four cards are worth in each lance of the Mus, and how a hand stands against every hand
// the deck can deal.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"

#include <algorithm>

namespace {

constexpr int GRADO_REY = 10, GRADO_AS = 1;
constexpr int VALOR_SOTA = 10, VALOR_CABALLO = 11, VALOR_REY = 12;
constexpr int PALO_OROS = 1, PALO_COPAS = 2, PALO_ESPADAS = 3, PALO_BASTOS = 4;
constexpr int VALORES_MUS[10] = {1, 2, 3, 4, 5, 6, 7, 10, 11, 12};

// The juegos from the best down: 31, 32, 40, 37, 36, 35, 34, 33 (38 and 39 can't be made).
int RangoDe(int total) {
    switch (total) {
    case 31:
        return 1;
    case 32:
        return 2;
    case 40:
        return 3;
    case 37:
        return 4;
    case 36:
        return 5;
    case 35:
        return 6;
    case 34:
        return 7;
    case 33:
        return 8;
    default:
        return 0;
    }
}

bool Tiene(int palo, int valor) {
    for (int c = 1; c <= 4; ++c)
        if (CartasEvaluadas[c][1] == palo && CartasEvaluadas[c][2] == valor) return true;
    return false;
}

bool TieneValor(int valor) {
    for (int c = 1; c <= 4; ++c)
        if (CartasEvaluadas[c][2] == valor) return true;
    return false;
}

// Which 31 is the real one, by the table's option; three sevens are the lowest three grades.
bool EsReal31(int total, const int grados[4]) {
    if (total != 31 || TreintaYUnaReal < 2) return false;
    const bool tresSietes = grados[0] == 7 && grados[1] == 7 && grados[2] == 7;
    switch (TreintaYUnaReal) {
    case 2:
        return tresSietes && TieneValor(VALOR_SOTA);
    case 3:
        return tresSietes && (TieneValor(VALOR_REY) || (TipoMus == 2 && TieneValor(3)));
    case 4:
        return tresSietes && TieneValor(VALOR_REY);
    case 5:
        return tresSietes &&
               (TieneValor(VALOR_SOTA) || TieneValor(VALOR_CABALLO) || TieneValor(VALOR_REY));
    case 6:
        return Tiene(PALO_COPAS, 7) && Tiene(PALO_ESPADAS, 7) && Tiene(PALO_BASTOS, 7) &&
               Tiene(PALO_OROS, VALOR_SOTA);
    default:
        return false;
    }
}

// Duples, medias and par by the count of each grade, scanned from the kings down.
void ValoraPares(const int grados[4], ValorMano& v) {
    int cuenta[11] = {};
    for (int i = 0; i < 4; ++i) ++cuenta[grados[i]];
    int pares[2] = {}, numPares = 0, trio = 0;
    for (int g = GRADO_REY; g >= GRADO_AS; --g) {
        if (cuenta[g] == 2) pares[numPares++] = g;
        if (cuenta[g] == 3) trio = g;
        if (cuenta[g] == 4) pares[0] = pares[1] = g, numPares = 2;
    }
    if (numPares == 2) {
        v.Pares = 4000 + 100 * (pares[0] - 1) + 10 * (pares[1] - 1);
        v.ClasePares = 3;
    } else if (trio != 0) {
        int suelta = 0;
        for (int i = 0; i < 4; ++i)
            if (grados[i] != trio) suelta = grados[i];
        v.Pares = 3000 + 100 * (trio - 1) + 10 * (suelta - 1);
        v.ClasePares = 2;
    } else if (numPares == 1) {
        int sueltas[2] = {}, n = 0;
        for (int i = 3; i >= 0; --i)
            if (grados[i] != pares[0]) sueltas[n++] = grados[i];
        v.Pares = 2000 + 100 * (pares[0] - 1) + 10 * (sueltas[0] - 1) + (sueltas[1] - 1);
        v.ClasePares = 1;
    }
}

// The ways to take the cards of each value from its four: 4, 6, 4, 1 for one to four.
int PesoDe() {
    static constexpr int Formas[5] = {1, 4, 6, 4, 1};
    int cuenta[13] = {};
    for (int c = 1; c <= 4; ++c) ++cuenta[CartasEvaluadas[c][2]];
    int peso = 1;
    for (int v = 1; v <= 12; ++v) peso *= Formas[cuenta[v]];
    return peso;
}

int Valor(const ValorMano& v, int lance) {
    switch (lance) {
    case LANCE_GRANDE:
        return v.Grande;
    case LANCE_CHICA:
        return v.Chica;
    case LANCE_PARES:
        return v.Pares;
    case LANCE_JUEGO:
        return v.RangoJuego;
    default:
        return v.Punto;
    }
}

} // namespace

int OrdenMus(int valor) {
    if (TipoMus == 2 && valor == 3) return GRADO_REY;
    if (TipoMus == 2 && valor == 2) return GRADO_AS;
    if (valor <= 7) return valor;
    return valor - 2; // Sota 8, Caballo 9, Rey 10
}

void EvaluaManoMus(int seat, bool desdeLista) {
    if (!desdeLista)
        for (int c = 1; c <= 4; ++c) {
            CartasEvaluadas[c][1] = CartasJugador[seat][1][c][CAMPO_PALO];
            CartasEvaluadas[c][2] = CartasJugador[seat][1][c][CAMPO_VALOR];
        }
    ValorMano v;
    int grados[4];
    int total = 0;
    for (int c = 1; c <= 4; ++c) {
        grados[c - 1] = OrdenMus(CartasEvaluadas[c][2]);
        total += static_cast<int>(PuntosValor[CartasEvaluadas[c][2]]);
    }
    std::sort(grados, grados + 4);
    v.Grande =
        (grados[0] - 1) + 10 * (grados[1] - 1) + 100 * (grados[2] - 1) + 1000 * (grados[3] - 1);
    v.Chica =
        1000 * (10 - grados[0]) + 100 * (10 - grados[1]) + 10 * (10 - grados[2]) + (10 - grados[3]);
    ValoraPares(grados, v);
    v.PesoCombinacion = PesoDe();
    if (total >= 31) {
        v.TotalJuego = total;
        v.RangoJuego = RangoDe(total);
    } else {
        v.Punto = total;
    }
    v.Real31 = EsReal31(total, grados);
    ValoresMusActual = v;
    if (seat < 1 || seat > 4) return;
    LanceMus[LANCE_GRANDE].Tiene[seat] = true;
    LanceMus[LANCE_CHICA].Tiene[seat] = true;
    LanceMus[LANCE_PARES].Tiene[seat] = v.Pares != 0;
    LanceMus[LANCE_JUEGO].Tiene[seat] = v.TotalJuego >= 31;
    LanceMus[LANCE_PUNTO].Tiene[seat] = true;
}

void GeneraCombinacionesMus() {
    int fila = 0;
    // Every multiset of four values out of the ten, in the work list with suits of no account.
    for (int a = 0; a < 10; ++a)
        for (int b = a; b < 10; ++b)
            for (int c = b; c < 10; ++c)
                for (int d = c; d < 10; ++d) {
                    const int valores[4] = {VALORES_MUS[a], VALORES_MUS[b], VALORES_MUS[c],
                                            VALORES_MUS[d]};
                    for (int k = 1; k <= 4; ++k) {
                        CartasEvaluadas[k][1] = k;
                        CartasEvaluadas[k][2] = valores[k - 1];
                    }
                    EvaluaManoMus(0, true);
                    const ValorMano& v = ValoresMusActual;
                    CombinacionesMus[++fila] = {v.Grande,     v.Chica,  v.Pares, v.TotalJuego,
                                                v.RangoJuego, v.Real31, v.Punto, v.PesoCombinacion};
                }
}

void ComparaManoMus() {
    for (auto& fila : ConteoCombinaciones)
        for (int& n : fila) n = 0;
    TotalConJuego = TotalConPunto = 0;
    const ValorMano& mia = ValoresMusActual;
    auto anota = [](int lance, int diferencia, int peso) {
        const int clase =
            diferencia > 0 ? CONTEO_MEJORES : (diferencia == 0 ? CONTEO_IGUALES : CONTEO_PEORES);
        ConteoCombinaciones[clase][lance] += peso;
    };
    for (int f = 1; f <= NUM_COMBINACIONES; ++f) {
        const CombinacionMus& fila = CombinacionesMus[f];
        anota(LANCE_GRANDE, fila.Grande - mia.Grande, fila.Peso);
        anota(LANCE_CHICA, fila.Chica - mia.Chica, fila.Peso);
        anota(LANCE_PARES, fila.Pares - mia.Pares, fila.Peso);
        if (mia.TotalJuego == 0 && fila.Punto >= 1) {
            TotalConPunto += fila.Peso;
            anota(LANCE_PUNTO, fila.Punto - mia.Punto, fila.Peso);
        } else if (mia.TotalJuego != 0 && fila.TotalJuego != 0) {
            TotalConJuego += fila.Peso;
            anota(LANCE_JUEGO, mia.RangoJuego - fila.RangoJuego, fila.Peso);
        }
    }
    for (int l = LANCE_GRANDE; l <= LANCE_PARES; ++l)
        PorcentajeMejores[l] =
            float(ConteoCombinaciones[CONTEO_MEJORES][l] + ConteoCombinaciones[CONTEO_IGUALES][l]) *
            100.0f / TOTAL_COMBINACIONES;
    PorcentajeMejores[LANCE_JUEGO] =
        mia.TotalJuego == 0 || TotalConJuego == 0
            ? 0.0f
            : float(ConteoCombinaciones[CONTEO_MEJORES][LANCE_JUEGO]) * 100.0f / TotalConJuego;
    PorcentajeMejores[LANCE_PUNTO] =
        mia.Punto == 0 || TotalConPunto == 0
            ? 0.0f
            : float(ConteoCombinaciones[CONTEO_MEJORES][LANCE_PUNTO]) * 100.0f / TotalConPunto;
}

int GanadorLance(int lance) {
    int mejor = 0;
    int rangoMejor = 99;
    int seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta, SiguienteJugador(seat)) {
        const ValorMano& v = ValoresMus[seat];
        if (lance == LANCE_JUEGO) {
            // The real 31 takes the lance over any seat before it, and nothing after beats it.
            if ((v.RangoJuego > 0 && v.RangoJuego < rangoMejor) || v.Real31) {
                mejor = seat;
                rangoMejor = v.RangoJuego;
            }
            continue;
        }
        if (lance == LANCE_PUNTO && v.Punto == 0) continue;
        if (lance == LANCE_PARES && v.Pares == 0) continue;
        if (mejor == 0 || Valor(v, lance) > Valor(ValoresMus[mejor], lance)) mejor = seat;
    }
    return mejor;
}
