// The routines of the games against a bank: the value of a series, the opening of a pair, the
// texts of a seat's turn.
#include "betting/Banca.h"

#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/Ids.h"

namespace {

constexpr int MAX_SERIES = 4;

} // namespace

double ValorMano(int seat, int serie) {
    ManoBlanda = ManoDura = false;
    double suma = 0;
    bool as = false;
    for (int p = 1; p <= NumCartas[seat][serie]; ++p) {
        const auto& carta = CartasJugador[seat][serie][p];
        const int valor = carta[CAMPO_VALOR];
        if (carta[CAMPO_PALO] == 0 || valor < 1 || valor > 13) continue;
        suma += PuntosValor[valor];
        as = as || valor == 1;
    }
    if (JuegoActual == JUEGO_BLACKJACK) {
        if (as && suma <= 11) {
            suma += 10;
            ManoBlanda = true;
        } else {
            ManoDura = true;
        }
    }
    return suma;
}

void AbreMano() {
    const int seat = JugadorActual, serie = SerieActual;
    if (SeriesJugador[seat] >= MAX_SERIES || NumCartas[seat][serie] != 2) return;
    MuestraMano(seat, serie);
    const int nueva = ++SeriesJugador[seat];
    auto& origen = CartasJugador[seat][serie];
    for (int f = 0; f <= 5; ++f) {
        CartasJugador[seat][nueva][1][f] = origen[2][f];
        origen[2][f] = 0;
    }
    NumCartas[seat][serie] = NumCartas[seat][nueva] = 1;
    SerieCerrada[seat][nueva] = false;
    if (JuegoActual == JUEGO_BLACKJACK) {
        // The new series stakes all the old one holds, its insurance too, with the same chips
        // out of the seat's row.
        RecomponeFichas(seat, RestoJugador(seat) - ApuestaAcumulada(seat, serie));
        for (int f = 0; f <= 5; ++f) Apuesta[seat][nueva][f] = Apuesta[seat][serie][f];
        NumHistorial[seat][nueva] = NumHistorial[seat][serie];
        for (int n = 1; n <= NumHistorial[seat][serie]; ++n)
            HistorialFichas[seat][nueva][n] = HistorialFichas[seat][serie][n];
        DibujaPilas(seat);
    }
    PuedeAbrir = false;
    DibujaJugador(seat);
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
    RefrescaMesa();
}

void LimpiaMesaBanca() {
    for (auto& s : CartasJugador)
        for (auto& e : s)
            for (auto& p : e)
                for (int& f : p) f = 0;
    for (auto& s : NumCartas)
        for (int& n : s) n = 0;
    for (int s = 0; s <= 4; ++s)
        for (int e = 0; e <= 4; ++e) {
            for (int& f : HistorialFichas[s][e]) f = 0;
            NumHistorial[s][e] = 0;
        }
}

int ReservaJugador(int seat) {
    static constexpr double Factor[4] = {0.8, 1.2, 0.8, 0.5};
    const int c =
        CaracterJugador[seat] >= 1 && CaracterJugador[seat] <= 3 ? CaracterJugador[seat] : 0;
    return Redondea(RestoInicial * Factor[c]);
}

int CuentaSeriesVivas() {
    JugadoresMano = 0;
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= SeriesJugador[s]; ++e)
            if (NumCartas[s][e] > 0 && !SerieCerrada[s][e]) ++JugadoresMano;
    return JugadoresMano;
}

void DiceTexto(int seat, const QString& texto, unsigned color, int veces) {
    FraseJugador[seat][SerieActual] = texto;
    ColorFrase[seat][SerieActual] = color;
    ParpadeoFrase[seat][SerieActual] = veces;
    DibujaJugador(seat);
    RefrescaMesa();
}

void RotuloSerie(int seat, int serie) {
    const int guardada = SerieActual;
    SerieActual = serie;
    DiceTexto(seat, QStringLiteral("Serie %1").arg(serie), COLOR_TEXTO_SERIE, PARPADEOS_TEXTO);
    SerieActual = guardada;
}

bool TieneTapada(int seat, int serie) {
    for (int p = 1; p <= NumCartas[seat][serie]; ++p)
        if (CartasJugador[seat][serie][p][CAMPO_MARCA] == 1) return true;
    return false;
}

QString TextoTotal(int seat, int serie) {
    const double total = ValorMano(seat, serie);
    if (JuegoActual == JUEGO_BLACKJACK) {
        if (total > 21) return "Se ha pasado";
        if (total == 21 && NumCartas[seat][serie] == 2 && SeriesJugador[seat] == 1)
            return "Black Jack";
        return QString::number(Ent(total));
    }
    if (total > 7.5) return "Se ha pasado";
    if (total == 0.5) return "Media";
    QString texto = NombreNumero[Ent(total)];
    if (total != Ent(total)) texto += " y media";
    return texto;
}

void AnotaRegistroBanca(QString (*textoSerie)(int seat, int serie)) {
    constexpr int ANCHO_COLUMNA_REGISTRO = 7;
    static constexpr int Columna[5] = {0, 1, 8, 1, 8};
    RegistroMano& r = RegistroManos[NumeroMano];
    for (int s = 1; s <= 4; ++s) {
        r.Resultado[s] = r.Detalle[s] = QString(15, ' ');
        if (NumCartas[s][1] == 0) continue;
        for (int e = 1; e <= SeriesJugador[s] && e <= 4; ++e)
            PonColumna(e <= 2 ? r.Resultado[s] : r.Detalle[s], Columna[e], ANCHO_COLUMNA_REGISTRO,
                       textoSerie(s, e));
        r.Extra[s] = SeriesJugador[s];
    }
    r.Banca = RestoJugador(JugadorBanca) - RestoAlEmpezar[JugadorBanca];
    r.Gana[JugadorBanca][1] = r.Banca > 0 ? 1 : 0;
}
