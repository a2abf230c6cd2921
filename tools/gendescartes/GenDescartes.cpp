// Writes PkFDes.trf, the table of draws of the Póker: for every deck and joker count, for each
// play a hand can keep and its grade, how the draw that keeps only that play's cards ends.
//   trufal_gendescartes <folder>
//
// For a kept play the seat knows its five cards: the draw comes from the rest of the deck. Hands
// that keep the same play with the same grade differ in their cards, so each record is the mean
// of all the draws of many such hands, taken evenly along the list of every hand of the deck,
// written as counts out of the draws of one hand. The run is deterministic.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Recorrido.h"

namespace {

constexpr int SEAT = 0;
// Evaluations spent on each kept play: a play that keeps one card and draws four is drawn for
// few hands, one that draws a single card for many.
constexpr long PRESUPUESTO = 1'000'000;
constexpr int MAX_MUESTRAS = 400;

struct Naipe {
    int Palo, Valor;
    bool operator==(const Naipe&) const = default;
};
using Mano = std::vector<Naipe>;
using Clave = std::pair<int, int>; // play code, grade

Mano Baraja() {
    Mano b;
    for (int p = 1; p <= 4; ++p)
        for (int v = 1; v <= 13; ++v)
            if (ValorEnJuego[v]) b.push_back({p, v});
    for (int j = 1; j <= NumComodines; ++j) b.push_back({PALO_COMODIN, 90 + j});
    return b;
}

void PonMano(const Mano& m) {
    for (int p = 1; p <= 5; ++p) {
        CartasJugador[SEAT][1][p][CAMPO_PALO] = m[p - 1].Palo;
        CartasJugador[SEAT][1][p][CAMPO_VALOR] = m[p - 1].Valor;
    }
    NumCartas[SEAT][1] = 5;
}

Mano ManoDelSeat() {
    Mano m;
    for (int p = 1; p <= 5; ++p)
        m.push_back(
            {CartasJugador[SEAT][1][p][CAMPO_PALO], CartasJugador[SEAT][1][p][CAMPO_VALOR]});
    return m;
}

double Combinaciones(int n, int k) {
    double r = 1;
    for (int i = 0; i < k; ++i) r = r * (n - i) / (k - i);
    return std::round(r);
}

// Every draw of `faltan` cards from `resto` beside the kept cards: how many end in each play.
void CuentaRobos(const Mano& guardadas, const Mano& resto, int faltan,
                 std::vector<double>& cuenta) {
    Mano mano = guardadas;
    mano.resize(5);
    std::vector<int> i(faltan);
    for (int k = 0; k < faltan; ++k) i[k] = k;
    const int n = static_cast<int>(resto.size());
    for (;;) {
        for (int k = 0; k < faltan; ++k) mano[guardadas.size() + k] = resto[i[k]];
        PonMano(mano);
        EvaluaJugada(SEAT);
        cuenta[JugadaJugador[SEAT]] += 1;
        int k = faltan - 1;
        while (k >= 0 && i[k] == n - faltan + k) --k;
        if (k < 0) return;
        ++i[k];
        for (int m = k + 1; m < faltan; ++m) i[m] = i[m - 1] + 1;
    }
}

// The counts of a record, out of `total`, from the mean share of each play: the largest
// remainders take the last units, so that the counts add up to the total.
std::vector<long> Reparte(const std::vector<double>& parte, long total) {
    std::vector<long> cuenta(parte.size(), 0);
    std::vector<std::pair<double, int>> restos;
    long puestos = 0;
    for (size_t c = 0; c < parte.size(); ++c) {
        const double exacto = parte[c] * total;
        cuenta[c] = static_cast<long>(std::floor(exacto));
        puestos += cuenta[c];
        restos.push_back({-(exacto - cuenta[c]), static_cast<int>(c)});
    }
    std::sort(restos.begin(), restos.end());
    for (size_t r = 0; puestos < total && r < restos.size(); ++r, ++puestos)
        ++cuenta[restos[r].second];
    return cuenta;
}

void EscribeBaraja(QFile& salida) {
    const Mano baraja = Baraja();
    // Paso 1. How many hands keep each play with each grade.
    std::map<Clave, long> veces;
    std::map<Clave, int> cartasDeJugada;
    RecorreManos([&](int seat) {
        for (int c = 1; c <= NUM_JUGADAS; ++c) {
            if (!Jugadas[seat][c][JK_TIENE]) continue;
            const Clave clave{c, Jugadas[seat][c][JK_CALIDAD]};
            if (veces[clave]++ == 0) {
                OrdenaCartasJugada(seat, c);
                cartasDeJugada[clave] = CartasDeJugada;
            }
        }
    });
    // Paso 2. The hands to draw from, evenly along the list of each kept play.
    std::map<Clave, long> paso, visto;
    std::map<Clave, std::vector<Mano>> muestras;
    for (const auto& [clave, n] : veces) {
        const int faltan = 5 - cartasDeJugada[clave];
        const double robos = Combinaciones(static_cast<int>(baraja.size()) - 5, faltan);
        const long quiere =
            std::clamp<long>(static_cast<long>(PRESUPUESTO / robos), 1, MAX_MUESTRAS);
        paso[clave] = std::max<long>(1, n / quiere);
    }
    RecorreManos([&](int seat) {
        for (int c = 1; c <= NUM_JUGADAS; ++c) {
            if (!Jugadas[seat][c][JK_TIENE]) continue;
            const Clave clave{c, Jugadas[seat][c][JK_CALIDAD]};
            const long i = visto[clave]++;
            if (i % paso[clave] == paso[clave] / 2) muestras[clave].push_back(ManoDelSeat());
        }
    });
    // Paso 3. Every draw from each chosen hand, as shares of its draws.
    for (const auto& [clave, manos] : muestras) {
        std::vector<double> media(NUM_JUGADAS + 1, 0.0);
        long total = 0;
        for (const Mano& m : manos) {
            PonMano(m);
            EvaluaJugada(SEAT);
            OrdenaCartasJugada(SEAT, clave.first);
            Mano guardadas, resto;
            for (int k = 1; k <= CartasDeJugada; ++k)
                guardadas.push_back({CartasOrdenadas[k][1], CartasOrdenadas[k][2]});
            for (const Naipe& n : baraja)
                if (std::find(m.begin(), m.end(), n) == m.end()) resto.push_back(n);
            const int faltan = 5 - CartasDeJugada;
            std::vector<double> cuenta(NUM_JUGADAS + 1, 0.0);
            if (faltan == 0) {
                cuenta[JugadaJugador[SEAT]] = 1;
            } else {
                CuentaRobos(guardadas, resto, faltan, cuenta);
            }
            total = static_cast<long>(Combinaciones(static_cast<int>(resto.size()), faltan));
            double suma = 0;
            for (double x : cuenta) suma += x;
            for (int c = 0; c <= NUM_JUGADAS; ++c) media[c] += cuenta[c] / suma / manos.size();
        }
        const std::vector<long> cuenta = Reparte(media, total);
        QByteArray linea = QByteArray::number(CartasNormales).rightJustified(2, '0') +
                           QByteArray::number(NumComodines) +
                           QByteArray::number(clave.first).rightJustified(2, '0') +
                           QByteArray::number(clave.second) +
                           QByteArray::number(static_cast<qlonglong>(total)).rightJustified(7, '0');
        for (int c = PRIMERA_JUGADA_HECHA; c <= NUM_JUGADAS; ++c)
            linea += QByteArray::number(static_cast<qlonglong>(cuenta[c])).rightJustified(7, '0');
        salida.write(linea + "\r\n");
        std::printf("  %-20s grado %d: %5zu manos de %7ld, %7ld robos\n",
                    NombreJugadaPoker[clave.first].trimmed().toUtf8().constData(), clave.second,
                    manos.size(), veces[clave], total);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "uso: trufal_gendescartes <carpeta>\n");
        return 2;
    }
    QFile salida(QDir(QString::fromLocal8Bit(argv[1])).absolutePath() + "/" + FICHERO_DESCARTES);
    if (!salida.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "no se puede escribir %s\n", qPrintable(salida.fileName()));
        return 1;
    }
    // The rows in the order of the table of counts: the six decks, without jokers, then with one
    // and with two.
    for (int comodines = 1; comodines <= 3; ++comodines)
        for (int minima = 1; minima <= 6; ++minima) {
            PonBarajaPoker(minima, comodines);
            std::printf("Baraja de %d cartas y %d comodines:\n", CartasNormales, NumComodines);
            EscribeBaraja(salida);
        }
    return 0;
}
