// A Siete y media seat stakes by its first card and stands from a threshold of its character;
// a high level reads the next card of the stock, and a bank of high level often reads a rival's
// real total. The bank weighs the stakes it would win against those it would lose.
#include "games/sieteymedia/JugadorSieteYMedia.h"

#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Ids.h"
#include "table/Tutor.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int CONSERVADOR = 1, MEDIO = 2, AGRESIVO = 3;
constexpr double SIETE_Y_MEDIA = 7.5;

// ---- The stake ----
constexpr int VALOR_FIGURA = 8;         // the first card's value when it is a media
constexpr int NIVEL_FUERTE_CUATRO = 50; // a 4 with a siete y media in sight stakes strong
constexpr double AZAR_FUERTE_CUATRO = 0.8;
constexpr int NIVEL_FUERTE_CINCO = 35; // a 5 stakes strong now and then
constexpr double AZAR_FUERTE_CINCO_AGRESIVO = 0.25, AZAR_FUERTE_CINCO_MEDIO = 0.1;
constexpr int NIVEL_GUARDA_CUATRO = 65; // above it a 4 is kept now and then
constexpr double AZAR_GUARDA_CUATRO = 0.2;
constexpr double BASE_APUESTA = 0.2; // share of the limit any card stakes
constexpr double FACTOR_FUERTE = 1.5;
constexpr double FRACCION_REDONDEO = 0.2;
constexpr int LIMITE_REDONDEO = 30;
// ---- The play ----
constexpr double UMBRAL_BASE = 4.5;   // stands from C / 2 + this: 5, 5.5, 6
constexpr int NIVEL_SIETE_VISTO = 60; // a siete y media in sight lowers it by a half
constexpr int NIVEL_PRUDENTE = 70;    // now and then a prudent seat stands earlier
constexpr double AZAR_PRUDENTE = 0.15;
constexpr int NIVEL_LEE_MAZO = 90; // reads the next card and won't bust from 5
constexpr double AZAR_LEE_MAZO = 0.8;
constexpr double TOTAL_LEE_MAZO = 5;
constexpr int NIVEL_ARRIESGA = 80; // a rich seat draws when the next card is safe
constexpr double RICO_ARRIESGA = 1.9, AZAR_ARRIESGA = 0.3;
constexpr double DIVISOR_CANTAR = 3.5; // chance C / 3.5 of showing a covered 7.5 to sing
// ---- The bank ----
constexpr double AZAR_LECTURA_BANCA = 130; // the bank reads a real total with chance N in 130
constexpr double ESTIMA_UNA_CARTA = 4, ESTIMA_MAXIMA = 7, ESTIMA_BAJA = 5, SUMA_ALTA = 4;

struct NivelDelTurno {
    int Seat, Guardado;
    explicit NivelDelTurno(int seat) : Seat(seat), Guardado(NivelJugador[seat]) {
        if (TutorEnCurso) NivelJugador[seat] = NIVEL_TUTOR;
    }
    ~NivelDelTurno() { NivelJugador[Seat] = Guardado; }
};

int Caracter(int seat) {
    return std::clamp(CaracterJugador[seat], CONSERVADOR, AGRESIVO);
}

// The shown cards of a series, the covered one left out.
double SumaVista(int seat, int serie) {
    double suma = 0;
    for (int p = 1; p <= NumCartas[seat][serie]; ++p) {
        const auto& c = CartasJugador[seat][serie][p];
        if (c[CAMPO_PALO] != 0 && c[CAMPO_MARCA] == 0) suma += PuntosValor[c[CAMPO_VALOR]];
    }
    return suma;
}

double PuntosTapada(int seat, int serie) {
    for (int p = 1; p <= NumCartas[seat][serie]; ++p) {
        const auto& c = CartasJugador[seat][serie][p];
        if (c[CAMPO_MARCA] == 1) return PuntosValor[c[CAMPO_VALOR]];
    }
    return 0;
}

void DecideApuesta(int seat, int c, int n, double d, bool sieteVista) {
    const int r = RestoJugador(seat), m = ApuestaMaxima;
    const int primera = CartasJugador[seat][SerieActual][1][CAMPO_VALOR];
    const int v = primera > 7 ? VALOR_FIGURA : primera;
    ApuestaFuerte =
        v == 4 && sieteVista && n > NIVEL_FUERTE_CUATRO && c == AGRESIVO && d < AZAR_FUERTE_CUATRO;
    if (n > NIVEL_FUERTE_CINCO && v == 5 &&
        ((c == AGRESIVO && d < AZAR_FUERTE_CINCO_AGRESIVO) ||
         (c == MEDIO && d < AZAR_FUERTE_CINCO_MEDIO)))
        ApuestaFuerte = true;
    NoCambiaCuatro = n > NIVEL_GUARDA_CUATRO && v == 4 && d < AZAR_GUARDA_CUATRO;
    int apuesta = Redondea((std::abs(v - 3) / 10.0 + BASE_APUESTA) * m + m / 10.0 * d * c);
    if (ApuestaFuerte) apuesta = Redondea(apuesta * FACTOR_FUERTE);
    if (apuesta > FRACCION_REDONDEO * m && m >= LIMITE_REDONDEO)
        apuesta = Redondea(Ent(apuesta / 5.0) * 5);
    apuesta = std::min({apuesta, m, r, RestoJugador(JugadorBanca)});
    ApuestaOrdenador = std::max(apuesta, 1);
}

void DecideJugador(int seat, int c, int n, double d, bool sieteVista) {
    const int r = RestoJugador(seat), reserva = ReservaJugador(seat);
    const double t = ValorMano(seat, SerieActual);
    double umbral = c / 2.0 + UMBRAL_BASE;
    if (n > NIVEL_SIETE_VISTO && sieteVista) umbral -= 0.5;
    if (n > NIVEL_PRUDENTE && d < AZAR_PRUDENTE) umbral -= c / 2.0 + 0.5;
    QuiereServido = t >= umbral || ApuestaFuerte;
    const int proxima = CartasEnMazo > 0 ? Baraja[PosicionMazo][CAMPO_VALOR] : 0;
    const double siguiente = t + (proxima > 0 ? PuntosValor[proxima] : 0);
    if (n > NIVEL_LEE_MAZO && d < AZAR_LEE_MAZO && t >= TOTAL_LEE_MAZO && siguiente > SIETE_Y_MEDIA)
        QuiereServido = true;
    if (n > NIVEL_ARRIESGA && c != CONSERVADOR && r > RICO_ARRIESGA * reserva &&
        d < AZAR_ARRIESGA && siguiente <= SIETE_Y_MEDIA)
        QuiereServido = false;
    const bool tapada = TieneTapada(seat, SerieActual);
    QuiereVolver =
        tapada && t == SIETE_Y_MEDIA && !sieteVista && r > reserva && d < c / DIVISOR_CANTAR;
    if (!QuiereServido && tapada) {
        // A low covered card is shown before drawing, since the next card comes covered.
        const int l = Redondea(2 * d + 2 + c / 3.0);
        QuiereVolver = PuntosTapada(seat, SerieActual) < l && !NoCambiaCuatro;
    }
    QuiereAbrir = r > reserva / 2.0 && PuedeAbrir && Ent(3 * d) + 1 <= c;
}

void DecideBanca(int banca, int n, double d, bool sieteVista) {
    QuiereServido = false;
    QuiereVolver = QuiereAbrir = false;
    const double propio = ValorMano(banca, 1);
    int saldo = 0;
    for (int s = 1; s <= 4; ++s) {
        if (s == banca) continue;
        for (int e = 1; e <= SeriesJugador[s]; ++e) {
            if (NumCartas[s][e] == 0) continue;
            const double vista = SumaVista(s, e), real = ValorMano(s, e);
            const int cs = Caracter(s);
            double estimada;
            if (real == SIETE_Y_MEDIA && vista == SIETE_Y_MEDIA)
                estimada = SIETE_Y_MEDIA;
            else if (d * AZAR_LECTURA_BANCA < n)
                estimada = real;
            else if (NumCartas[s][e] == 1)
                estimada = cs + ESTIMA_UNA_CARTA;
            else if (vista >= SUMA_ALTA)
                estimada = std::min(vista + cs, ESTIMA_MAXIMA);
            else
                estimada = cs / 2.0 + ESTIMA_BAJA;
            saldo += propio >= estimada ? ApuestaAcumulada(s, e) : -ApuestaAcumulada(s, e);
        }
    }
    // A rich bank goes on drawing against a siete y media in sight.
    if (saldo >= 1)
        QuiereServido = !(RestoJugador(banca) > 2 * ReservaJugador(banca) && sieteVista);
}

ConsejoTutor ConsejoDelTutor() {
    ConsejoTutor consejo;
    DecideSieteYMedia();
    consejo.Cambio = PuedeCambiarCuatro && !NoCambiaCuatro;
    if (FaseJuego == FASE_SYM_APUESTA) {
        consejo.Cantidad = ApuestaOrdenador;
        return consejo;
    }
    consejo.Abrir = QuiereAbrir;
    consejo.Pulsador = QuiereServido ? PULSADOR_SERVIDO : PULSADOR_CARTA;
    return consejo;
}

const bool Registrado = [] {
    RutinaTutor[JUEGO_SIETEYMEDIA] = ConsejoDelTutor;
    return true;
}();

} // namespace

bool HaySieteVista() {
    bool vista = false;
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= SeriesJugador[s]; ++e)
            if (NumCartas[s][e] > 0 && ValorMano(s, e) == SIETE_Y_MEDIA) vista = !TieneTapada(s, e);
    return vista;
}

void DecideSieteYMedia() {
    const int seat = JugadorActual;
    if (seat < 1 || seat > 4) return;
    const NivelDelTurno nivel(seat);
    const int c = Caracter(seat), n = NivelJugador[seat];
    const double d = AzarJugada;
    const bool sieteVista = HaySieteVista();
    if (FaseJuego == FASE_SYM_APUESTA)
        DecideApuesta(seat, c, n, d, sieteVista);
    else if (FaseJuego == FASE_SYM_JUEGO && seat == JugadorBanca)
        DecideBanca(seat, n, d, sieteVista);
    else if (FaseJuego == FASE_SYM_JUEGO)
        DecideJugador(seat, c, n, d, sieteVista);
}
