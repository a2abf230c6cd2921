// The Black Jack seat plays a fixed table of its total against the bank's first card; its
// character and level set the stake, the care for its money and how often it strays from the
// table. It sees its own cards and the bank's first card, nothing of the shoe.
#include "games/blackjack/JugadorBlackJack.h"

#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Ids.h"
#include "table/Tutor.h"

#include <algorithm>

namespace {

constexpr int CONSERVADOR = 1, AGRESIVO = 3;

// ---- The stake ----
constexpr int NIVEL_CUIDA_DINERO = 75;    // from this level a seat short of money stakes less
constexpr double BASE_RICO = 0.4;         // share of the limit a careless or rich seat adds
constexpr double BASE_POBRE = 0.2;        // ... and a careful one short of money
constexpr double FRACCION_REDONDEO = 0.2; // stakes above this share of the limit go in fives
constexpr int LIMITE_REDONDEO = 30;       // ... when the limit is at least this
// ---- Insurance ----
constexpr double SEGURO_DESDE = 12, SEGURO_HASTA = 18; // totals that fear the bank's ten
constexpr int NIVEL_SEGURO_ONCE = 75; // above it, a non-conservative 11 hopes to double instead
// ---- Against the table ----
constexpr int PASO_NIVEL_CAPRICHO = 25; // below C x 25 a rich seat opens and doubles anyway
constexpr double RESERVA_ABRIR = 2.0;   // short of Reserva / 2 a seat may not open
constexpr double RESERVA_DOBLAR = 1.5;  // short of Reserva / 1.5 a seat may not double
constexpr int BASE_DESPISTE = 13;       // a careless seat stands from C + 13

struct NivelDelTurno {
    int Seat, Guardado;
    explicit NivelDelTurno(int seat) : Seat(seat), Guardado(NivelJugador[seat]) {
        if (TutorEnCurso) NivelJugador[seat] = NIVEL_TUTOR;
    }
    ~NivelDelTurno() { NivelJugador[Seat] = Guardado; }
};

// The bank's first card, 1 the ace and 10 any card of ten.
int CartaBanca() {
    const int valor = CartasJugador[JugadorBanca][1][1][CAMPO_VALOR];
    return valor >= 10 ? 10 : valor;
}

int DecideApuesta(int seat, int c, int n, double d) {
    const int r = RestoJugador(seat), m = ApuestaMaxima, reserva = ReservaJugador(seat);
    const double f = c / 10.0 + (n < NIVEL_CUIDA_DINERO && r > reserva ? BASE_RICO : BASE_POBRE);
    int apuesta = Redondea(m * f);
    if (!(n >= NIVEL_CUIDA_DINERO && r <= 2 * reserva))
        apuesta = Redondea(m / 10.0 * (d * c + 1) + apuesta);
    if (apuesta > FRACCION_REDONDEO * m && m >= LIMITE_REDONDEO)
        apuesta = Redondea(Ent(apuesta / 5.0) * 5);
    apuesta = std::min({apuesta, m, r, RestoJugador(JugadorBanca)});
    return std::max(apuesta, 1);
}

// The table of pairs: whether a pair of p against the bank's b is opened.
bool TablaAbrir(int p, int b) {
    switch (p) {
    case 1:
    case 8:
        return true;
    case 9:
        return b >= 2 && b <= 9 && b != 7;
    case 7:
    case 2:
    case 3:
        return b >= 2 && b <= 7;
    case 6:
        return b >= 2 && b <= 6;
    case 4:
        return b == 5 || b == 6;
    default: // fives are a ten, and tens are twenty
        return false;
    }
}

bool TablaDoblar(int t, int b) {
    if (t == 9) return b >= 2 && b <= 6;
    if (t == 10) return b >= 2 && b <= 9;
    return t == 11;
}

// Stand (true) or card by the table of totals.
bool TablaServido(int t, int b, bool blanda) {
    if (blanda) {
        if (t <= 17) return false;
        if (t == 18) return b >= 2 && b <= 8;
        return true;
    }
    if (t <= 11) return false;
    if (t == 12) return b >= 4 && b <= 6;
    if (t <= 16) return b >= 2 && b <= 6;
    return true;
}

void DecideJuego(int seat, int c, int n, double d) {
    const int r = RestoJugador(seat), reserva = ReservaJugador(seat);
    const int t = Ent(ValorMano(seat, SerieActual));
    const bool blanda = ManoBlanda;
    const int b = CartaBanca();
    const bool caprichoso = n < c * PASO_NIVEL_CAPRICHO && r > reserva;
    const bool cede = Ent(3 * d) + 1 >= c;
    QuiereSeguro = QuiereAbrir = QuiereDoblar = false;
    if (PuedeAsegurar) {
        QuiereSeguro = r < reserva || (t >= SEGURO_DESDE && t <= SEGURO_HASTA);
        if (n > NIVEL_SEGURO_ONCE && c != CONSERVADOR && t == 11) QuiereSeguro = false;
    }
    if (PuedeAbrir) {
        const int p = CartasJugador[seat][SerieActual][1][CAMPO_VALOR];
        if (TablaAbrir(p, b))
            QuiereAbrir = !(r < reserva / RESERVA_ABRIR && cede);
        else
            QuiereAbrir = caprichoso;
    }
    if (PuedeDoblar) {
        if (TablaDoblar(t, b))
            QuiereDoblar = !(r < reserva / RESERVA_DOBLAR && cede);
        else
            QuiereDoblar = caprichoso;
    }
    QuiereServido = true;
    if (QuiereAbrir) return; // the opening comes first
    QuiereServido = TablaServido(t, b, blanda);
    // A careless seat stops early, the more so the more conservative it is.
    if (Ent(d * 100) + 1 > n && t >= c + BASE_DESPISTE) QuiereServido = true;
}

ConsejoTutor ConsejoDelTutor() {
    ConsejoTutor consejo;
    DecideBlackJack();
    if (FaseJuego == FASE_BJ_APUESTA) {
        consejo.Cantidad = ApuestaOrdenador;
        return consejo;
    }
    consejo.Abrir = QuiereAbrir;
    consejo.Pulsador = QuiereSeguro    ? PULSADOR_SEGURO
                       : QuiereDoblar  ? PULSADOR_DOBLAR
                       : QuiereServido ? PULSADOR_SERVIDO
                                       : PULSADOR_CARTA;
    return consejo;
}

const bool Registrado = [] {
    RutinaTutor[JUEGO_BLACKJACK] = ConsejoDelTutor;
    return true;
}();

} // namespace

void DecideBlackJack() {
    const int seat = JugadorActual;
    if (seat < 1 || seat > 4) return;
    const NivelDelTurno nivel(seat);
    const int c = std::clamp(CaracterJugador[seat], CONSERVADOR, AGRESIVO);
    const int n = NivelJugador[seat];
    if (FaseJuego == FASE_BJ_APUESTA)
        ApuestaOrdenador = DecideApuesta(seat, c, n, AzarJugada);
    else if (FaseJuego == FASE_BJ_JUEGO)
        DecideJuego(seat, c, n, AzarJugada);
}
