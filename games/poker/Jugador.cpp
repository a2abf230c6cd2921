// The computer player of the Póker: the draw aims at a play and throws what the play doesn't
// need; a betting turn weighs the hand, the stakes of the rivals and the temper of the table.
#include "games/poker/Jugador.h"

#include "betting/Fichas.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "table/Tutor.h"

#include <algorithm>

namespace {

constexpr int SERIE = 1;
constexpr int CONSERVADOR = 1, MEDIO = 2, AGRESIVO = 3;
constexpr int AS = 1, REY = 13, JOTA = 11;
constexpr int CARTA_MINIMA_BARAJA_CORTA = 4;

// ---- Levels that open the rules ----
constexpr int NIVEL_PROYECTOS = 50;       // draws to a straight, figures or colour are weighed
constexpr int NIVEL_PROYECTO_COLOR = 60;  // a colour still to draw is worth chasing
constexpr int NIVEL_COMODIN_SOLO = 60;    // a joker's weak pair is broken to draw to the joker
constexpr int NIVEL_ESCALERA_COLOR = 25;  // a straight flush still to draw is chased
constexpr int NIVEL_PROYECTO_FUERTE = 80; // a good draw bets as a middle hand in the first round
constexpr int NIVEL_PRUDENTE = 80;        // a middle hand won't call half the round's limit
constexpr int NIVEL_CARTAS_RIVALES = 90;  // above it, the rivals' real hands are read

// ---- How a rival's stake shows its hand: part of LimiteRonda, by its character ----
// A conservative rival that stakes a little already holds the best it can; a bold one only
// when it stakes a good part of the round.
constexpr double MUESTRA_CONSERVADOR = 0.05, MUESTRA_MEDIO = 0.15, MUESTRA_AGRESIVO = 0.30;

// ---- Stakes ----
constexpr double MESA_TIMIDA = 0.6;    // a strong hand bets less against a timid table
constexpr double RESERVA_TIMIDA = 0.1; // a middle hand folds to a stake of (C / 5 + this) x limit
// Folding a strong hand to a better one seen: when the call is this part of the limit or money.
constexpr double RETIRA_FUERTE_LIMITE = 0.35, RETIRA_FUERTE_RESTO = 0.3;
constexpr double RETIRA_MEDIA_LIMITE = 0.15, RETIRA_MEDIA_RESTO = 0.1;
// A raise just above the stake is made a fifth; below a quarter it is only a call.
constexpr double SUBIDA_CORTA = 1.25, SUBIDA_QUINTO = 1.2, SUBIDA_MINIMA = 0.25;
constexpr int MULTIPLO = 5, REDONDEA_DESDE = 10; // stakes above 10 go in fives
// A big stake at a table of big limits goes in fives of the whole round.
constexpr double APUESTA_GRANDE = 0.4;
constexpr int LIMITE_GRANDE = 40;

// ---- Chances of a bluff, as 1 in n ----
constexpr int FAROL_ABRIENDO = 5;                       // a weak hand opens the round
constexpr int FAROL_MEDIO = 5, FAROL_MEDIO_SEGUIDO = 2; // a middle hand against one timid rival
constexpr int FAROL_DEBIL = 8, FAROL_DEBIL_SEGUIDO = 3; // a weak hand raises
constexpr int VISTA_DEBIL = 9; // a weak hand calls in the first round: C in 9

// The level of the seat while the routine runs: the tutor plays at full level.
struct NivelDelTurno {
    int Seat, Guardado;
    explicit NivelDelTurno(int seat) : Seat(seat), Guardado(NivelJugador[seat]) {
        if (TutorEnCurso) NivelJugador[seat] = NIVEL_TUTOR;
    }
    ~NivelDelTurno() { NivelJugador[Seat] = Guardado; }
};

bool EnJuego(int seat) {
    return NumCartas[seat][SERIE] > 0;
}
bool Tiene(int seat, int jugada) {
    return Jugadas[seat][jugada][JK_TIENE] != 0;
}
int Calidad(int seat, int jugada) {
    return Jugadas[seat][jugada][JK_CALIDAD];
}
int Valor(int seat, int pos) {
    return CartasJugador[seat][SERIE][pos][CAMPO_VALOR];
}
bool EsComodin(int valor) {
    return valor > 90;
}
bool BarajaCorta() {
    return CartaMinimaPoker >= CARTA_MINIMA_BARAJA_CORTA;
}

// ---- The draw ----

int ObjetivoConColor(int seat, int c) {
    int objetivo = JugadaColor;
    if (c == MEDIO && Tiene(seat, JugadaProyEscColor)) objetivo = JugadaProyEscColor;
    if (c == AGRESIVO && LimiteDescartes >= 2 && Tiene(seat, JugadaProy3EscCol))
        objetivo = JugadaProy3EscCol;
    return objetivo;
}

int ObjetivoConFiguras(int seat, int c) {
    int objetivo = JugadaFiguras;
    if (c >= MEDIO) {
        if (Tiene(seat, JugadaTrio)) objetivo = JugadaTrio;
        if (Tiene(seat, JugadaDoblePareja)) objetivo = JugadaDoblePareja;
    }
    if (c == AGRESIVO) {
        if (Tiene(seat, JugadaPareja)) objetivo = JugadaPareja;
        if (Tiene(seat, JugadaProyEscColor)) objetivo = JugadaProyEscColor;
    }
    return objetivo;
}

int ObjetivoConPareja(int seat, int c, int n) {
    int objetivo = JugadaPareja;
    const auto si = [&](int jugada, bool condicion) {
        if (condicion && Tiene(seat, jugada)) objetivo = jugada;
    };
    if (n >= NIVEL_PROYECTOS && c == MEDIO) {
        si(JugadaProyEscColor, Calidad(seat, JugadaProyEscColor) == 1);
        si(JugadaProyColor, Calidad(seat, JugadaProyColor) == 1);
    }
    if (n >= NIVEL_PROYECTOS && c == AGRESIVO) {
        si(JugadaProyEscalera, Calidad(seat, JugadaProyEscalera) == 1);
        si(JugadaProyFiguras, true);
        si(JugadaProyColor, true);
        si(JugadaProyEscColor, true);
    }
    // The joker alone promises more than the pair it makes with a low card.
    if (n >= NIVEL_COMODIN_SOLO && objetivo == JugadaPareja && HayComodin(seat) &&
        Jugadas[seat][JugadaPareja][1] != AS)
        objetivo = JugadaCartaMayor;
    return objetivo;
}

// A hand of loose cards or of projects: the last project that suits the seat is the aim.
int ObjetivoConProyectos(int seat, int c, int n) {
    int objetivo = JugadaCartaMayor;
    if (Tiene(seat, JugadaProy3Esc) && LimiteDescartes >= 2) objetivo = JugadaProy3Esc;
    if (Tiene(seat, JugadaProy3EscCol) && LimiteDescartes >= 2) objetivo = JugadaProy3EscCol;
    if (Tiene(seat, JugadaProyFiguras)) {
        objetivo = JugadaCartaMayor;
        if (n >= NIVEL_PROYECTOS && c >= MEDIO) objetivo = JugadaProyFiguras;
    }
    if (Tiene(seat, JugadaProyEscalera)) {
        objetivo = JugadaCartaMayor;
        if (n < NIVEL_PROYECTOS && Tiene(seat, JugadaProyFiguras)) objetivo = JugadaProyFiguras;
        const bool buena = Calidad(seat, JugadaProyEscalera) == 1;
        if (n >= NIVEL_PROYECTOS && ((c == MEDIO && buena) || c == AGRESIVO))
            objetivo = JugadaProyEscalera;
    }
    if (Tiene(seat, JugadaProyColor)) {
        objetivo = JugadaCartaMayor;
        if (n >= NIVEL_PROYECTO_COLOR && c >= MEDIO) objetivo = JugadaProyColor;
    }
    if (Tiene(seat, JugadaProyEscColor)) {
        objetivo = JugadaCartaMayor;
        const bool buena = Calidad(seat, JugadaProyEscColor) == 1;
        const bool sinAs = Jugadas[seat][JugadaCartaMayor][1] != AS;
        if (n >= NIVEL_ESCALERA_COLOR && ((c == MEDIO && (buena || sinAs)) || c == AGRESIVO))
            objetivo = JugadaProyEscColor;
    }
    return objetivo;
}

int EligeObjetivo(int seat, int c, int n) {
    const int h = JugadaJugador[seat];
    if (h == JugadaRepoker || h == JugadaEscColor || h == JugadaPoker || h == JugadaFull ||
        h == JugadaEscalera || h == JugadaTrio)
        return h;
    if (h == JugadaColor) return ObjetivoConColor(seat, c);
    if (h == JugadaFiguras) return ObjetivoConFiguras(seat, c);
    if (h == JugadaDoblePareja)
        return c == AGRESIVO && Tiene(seat, JugadaProy3EscCol) ? JugadaProy3EscCol : h;
    if (h == JugadaPareja) return ObjetivoConPareja(seat, c, n);
    return ObjetivoConProyectos(seat, c, n);
}

// Sets and the high card: what isn't of the kept values goes; the first joker always stays.
void DescartaPorValor(int seat, int valor1, int valor2) {
    bool comodinGuardado = false;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        const int v = Valor(seat, p);
        if (EsComodin(v)) {
            Descarte[p] = comodinGuardado;
            comodinGuardado = true;
        } else {
            Descarte[p] = v != valor1 && v != valor2;
        }
    }
}

// The high card kept alone goes too unless it is worth the draw to the seat's temper.
bool MerecePena(int valor, int c) {
    if (valor == AS) return true;
    if (c == CONSERVADOR) return valor >= JOTA;
    if (c == MEDIO) return valor == REY;
    return false;
}

void DescartaSueltas(int seat, int c) {
    DescartaPorValor(seat, Jugadas[seat][JugadaCartaMayor][1], -1);
    int guardada = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        if (Descarte[p]) continue;
        if (EsComodin(Valor(seat, p))) return;
        guardada = p;
    }
    if (guardada != 0 && !MerecePena(Valor(seat, guardada), c)) Descarte[guardada] = true;
}

// A project keeps the cards that make it.
void DescartaFueraDeProyecto(int seat, int proyecto) {
    OrdenaCartasJugada(seat, proyecto);
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
        const auto& carta = CartasJugador[seat][SERIE][p];
        bool dentro = false;
        for (int k = 1; k <= CartasDeJugada; ++k)
            dentro = dentro || (CartasOrdenadas[k][1] == carta[CAMPO_PALO] &&
                                CartasOrdenadas[k][2] == carta[CAMPO_VALOR]);
        Descarte[p] = !dentro;
    }
}

void MarcaDescartes(int seat, int objetivo, int c) {
    for (bool& d : Descarte) d = false;
    const int* j = Jugadas[seat][objetivo];
    if (objetivo == JugadaRepoker || objetivo == JugadaEscColor || objetivo == JugadaFull ||
        objetivo == JugadaColor || objetivo == JugadaEscalera || objetivo == JugadaFiguras)
        return;
    if (objetivo == JugadaPoker || objetivo == JugadaTrio || objetivo == JugadaPareja)
        DescartaPorValor(seat, j[1], -1);
    else if (objetivo == JugadaDoblePareja)
        DescartaPorValor(seat, j[1], j[2]);
    else if (objetivo == JugadaCartaMayor)
        DescartaSueltas(seat, c);
    else
        DescartaFueraDeProyecto(seat, objetivo);
}

// Over the limit of the table, the strongest marked cards are kept back one by one.
void LimitaDescartes(int seat) {
    const auto marcadas = [] {
        return static_cast<int>(std::count(Descarte + 1, Descarte + 6, true));
    };
    while (marcadas() > LimiteDescartes) {
        int mejor = 0, fuerza = -1;
        for (int p = 1; p <= NumCartas[seat][SERIE]; ++p) {
            if (!Descarte[p]) continue;
            const int v = Valor(seat, p);
            // A joker is kept back only when nothing else is left to keep back.
            const int f = EsComodin(v) ? 0 : v == AS ? 14 : v;
            if (f > fuerza) {
                fuerza = f;
                mejor = p;
            }
        }
        Descarte[mejor] = false;
    }
}

// ---- The stake ----

struct Turno {
    int Seat = 0, C = 0, N = 0, Fase = 0, H = 0;
    double D = 0;       // AzarJugada
    int R = 0;          // the temper of the table
    int EnRonda = 0;    // what the seat has staked in this round
    int PorIgualar = 0; // what a call costs
    int Fuerza = 0;
    int RivalesMejores = 0, RivalMejor = 0, RivalesMejoresReal = 0;
};

// Nobody but this seat can still put money in: the board takes only a call then.
bool NadieMasConResto(int seat) {
    for (int s = 1; s <= 4; ++s)
        if (s != seat && EnJuego(s) && RestoJugador(s) >= 1) return false;
    return true;
}

// Step 1: the most the seat will stake in this round.
int LimiteDeRonda(const Turno& t) {
    if (t.Fase == FASE_POKER_APUESTA1) {
        const int entrada = Apuesta[t.Seat][SERIE][FASE_POKER_ENTRADA];
        const int limite = Ent((ApuestaMaxima - entrada) / 2.0) - t.EnRonda;
        return std::max(limite, ApuestaMaxRonda);
    }
    return ApuestaMaxima - ApuestaAcumulada(t.Seat, SERIE);
}

// Step 2: the rivals whose cards are better. Only a seat above NIVEL_CARTAS_RIVALES uses it.
int RivalesMejoresDeVerdad(const Turno& t) {
    int n = 0;
    for (int s = 1; s <= 4; ++s) {
        if (s == t.Seat || !EnJuego(s)) continue;
        EvaluaJugada(s);
        if (JugadaJugador[s] > t.H) ++n;
    }
    return n;
}

// Step 3.
int FuerzaDeMano(const Turno& t) {
    const int h = t.H;
    if (t.Fase == FASE_POKER_APUESTA1) {
        const int bajoTrio = BarajaCorta() ? JugadaFiguras : JugadaDoblePareja;
        if (h > bajoTrio) return 3;
        if (h > JugadaCartaMayor) return 2;
        const int s = t.Seat;
        if (t.N > NIVEL_PROYECTO_FUERTE) {
            const bool color = Tiene(s, JugadaProyEscColor) || Tiene(s, JugadaProyColor);
            const bool colorBueno =
                (Tiene(s, JugadaProyEscColor) && Calidad(s, JugadaProyEscColor) == 1) ||
                (Tiene(s, JugadaProyColor) && Calidad(s, JugadaProyColor) == 1);
            const bool escalera = Tiene(s, JugadaProyEscalera) &&
                                  (BarajaCorta() || Calidad(s, JugadaProyEscalera) == 1);
            if (t.C == MEDIO && colorBueno) return 2;
            if (t.C == AGRESIVO && (color || escalera)) return 2;
        }
        return 1;
    }
    if (h > JugadaTrio) return 3;
    if (h == JugadaTrio) return t.C == AGRESIVO ? 3 : 2;
    if (h > JugadaPareja) return 2;
    if (h == JugadaPareja && t.C == AGRESIVO) return 2;
    return 1;
}

// Step 4: what the table reads of each rival from its draw and, by its temper, its stake.
void CuentaRivalesMejores(Turno& t) {
    const double muestra[4] = {0, MUESTRA_CONSERVADOR, MUESTRA_MEDIO, MUESTRA_AGRESIVO};
    for (int s = 1; s <= 4; ++s) {
        if (s == t.Seat || !EnJuego(s)) continue;
        const int b = Apuesta[s][SERIE][t.Fase];
        const int cr = std::clamp(CaracterJugador[s], CONSERVADOR, AGRESIVO);
        const double umbral = muestra[cr] * LimiteRonda;
        const bool muestraLoMejor = cr == CONSERVADOR ? b > umbral : b >= umbral;
        const int estimada = muestraLoMejor ? JugadaMaxEstimada[s] : JugadaMinEstimada[s];
        if (estimada > t.H) {
            ++t.RivalesMejores;
            t.RivalMejor = s;
        }
    }
}

// A bluff comes 1 time in n, by the turn's chance; it is remembered for the rest of the hand.
bool Farolea(int seat, int n, double d) {
    if (Ent(d * n + 1) != 1) return false;
    Farol[seat] = true;
    return true;
}

// Step 5, when nobody has staked yet in the round.
int AbreRonda(Turno& t) {
    const int lr = LimiteRonda;
    if (t.Fuerza == 3) {
        int a = Redondea(lr / static_cast<double>((4 - t.C) * 2 + Ent(2 * t.D + 1)));
        if (t.R == 1) a = Redondea(a * MESA_TIMIDA);
        if (t.Fase == FASE_POKER_APUESTA2 && t.RivalesMejores >= 2) a = 0;
        return a;
    }
    if (t.Fuerza == 2) {
        if (t.R == 1 && t.C == CONSERVADOR) return 0;
        return Redondea(lr / static_cast<double>((4 - t.C) * 3 + Ent(3 * t.D + 1)));
    }
    if (t.R <= 2 && t.C == AGRESIVO && Farolea(t.Seat, FAROL_ABRIENDO, t.D))
        return Redondea(lr / 2.0);
    return 0;
}

// Step 5, when there is a stake to answer.
int ContestaApuesta(Turno& t) {
    const int lr = LimiteRonda;
    const int resto = RestoJugador(t.Seat);
    const bool segunda = t.Fase == FASE_POKER_APUESTA2;
    const bool leeCartas = t.N > NIVEL_CARTAS_RIVALES && t.RivalesMejoresReal > 0;
    if (t.Fuerza == 3) {
        int a = t.PorIgualar;
        if (t.C == MEDIO) {
            a = Redondea((t.D * t.R / 3 + 1) * t.PorIgualar);
            if (segunda && t.RivalesMejores > 0) a = t.PorIgualar;
        } else if (t.C == AGRESIVO) {
            a = Redondea((t.R * (t.H / 10.0) * t.D + 1) * t.PorIgualar);
            if (segunda && t.RivalesMejores > 1) a = t.PorIgualar;
        }
        if (leeCartas && (t.PorIgualar > RETIRA_FUERTE_LIMITE * lr ||
                          t.PorIgualar > RETIRA_FUERTE_RESTO * resto))
            a = -1;
        return a;
    }
    if (t.Fuerza == 2) {
        int a = t.PorIgualar;
        if (!segunda) {
            if (t.R == 1 && t.EnRonda == 0 && t.PorIgualar >= (t.C / 5.0 + RESERVA_TIMIDA) * lr)
                a = -1;
            if (t.N > NIVEL_PRUDENTE && t.C < AGRESIVO && t.PorIgualar >= lr / 2.0) a = -1;
            return a;
        }
        if (t.RivalesMejores > 1) a = -1;
        if (t.RivalesMejores == 1 && CaracterJugador[t.RivalMejor] == CONSERVADOR &&
            t.C == AGRESIVO) {
            const int n = Farol[t.Seat] ? FAROL_MEDIO_SEGUIDO : FAROL_MEDIO;
            if (Farolea(t.Seat, n, t.D)) a = 2 * ApuestaMaxRonda;
        }
        if (leeCartas &&
            (t.PorIgualar > RETIRA_MEDIA_LIMITE * lr || t.PorIgualar > RETIRA_MEDIA_RESTO * resto))
            a = -1;
        return a;
    }
    int a = -1;
    if (t.R <= 2 && t.C == AGRESIVO) {
        const int n = Farol[t.Seat] ? FAROL_DEBIL_SEGUIDO : FAROL_DEBIL;
        if (Farolea(t.Seat, n, t.D)) a = 2 * ApuestaMaxRonda;
    }
    // A weak hand sometimes sees the first round, the bolder the more often; in that round a
    // bluff of the same chance is only a call, though it is remembered.
    if (t.R >= 2 && !segunda && Ent(t.D * VISTA_DEBIL / t.C + 1) == 1) a = t.PorIgualar;
    return a;
}

int RebajaACinco(int cantidad) {
    return cantidad - cantidad % MULTIPLO;
}

// Step 6: small raises become calls, large stakes go in fives, and no limit of the board is
// passed.
int Ajusta(const Turno& t, int a) {
    const int s = t.Seat;
    const int maxRonda = ApuestaMaxRonda;
    int total = t.EnRonda + a;
    if (total > maxRonda && total < SUBIDA_CORTA * maxRonda)
        a = Redondea(SUBIDA_QUINTO * maxRonda - t.EnRonda);
    if (a > 0) {
        if (a - t.PorIgualar < SUBIDA_MINIMA * maxRonda) a = t.PorIgualar;
        if (a != t.PorIgualar && a > REDONDEA_DESDE) a = RebajaACinco(a);
        total = t.EnRonda + a;
        if (total >= APUESTA_GRANDE * ApuestaMaxima && a != t.PorIgualar &&
            ApuestaMaxima >= LIMITE_GRANDE) {
            const int cinco = RebajaACinco(total) - t.EnRonda;
            a = cinco < 1 ? cinco + MULTIPLO : cinco;
        }
    }
    if (a > 0) {
        const int acumulada = ApuestaAcumulada(s, SERIE);
        int mayorResto = 0;
        for (int r = 1; r <= 4; ++r)
            if (r != s && EnJuego(r))
                mayorResto = std::max(mayorResto, ApuestaAcumulada(r, SERIE) + RestoJugador(r));
        a = std::min(
            {a, LimiteRonda, ApuestaMaxima - acumulada, RestoJugador(s), mayorResto - acumulada});
        if (NadieMasConResto(s)) a = std::min(a, maxRonda - t.EnRonda);
        a = std::max(a, 0);
    }
    if (!PuedeAbrirRonda()) a = 0;
    if (t.Fase == FASE_POKER_APUESTA1 && a == 0) Farol[s] = false;
    return a;
}

// The tutor's answer for the person: the cards to throw, or the stake in words.
ConsejoTutor ConsejoDelTutor() {
    ConsejoTutor consejo;
    const int seat = JugadorActual;
    DecideDescartes();
    if (FaseJuego == FASE_POKER_DESCARTE) {
        for (int p = 1; p <= 5; ++p)
            if (Descarte[p]) consejo.Cartas.push_back(p);
        return consejo;
    }
    DecideApuesta();
    consejo.Cantidad = ApuestaOrdenador;
    consejo.ApuestaMaxRonda = ApuestaMaxRonda;
    consejo.Apostado = Apuesta[seat][SERIE][FaseJuego];
    consejo.Resto = RestoJugador(seat);
    return consejo;
}

const bool Registrado = [] {
    RutinaTutor[JUEGO_POKER] = ConsejoDelTutor;
    return true;
}();

} // namespace

void DecideDescartes() {
    const int seat = JugadorActual;
    const NivelDelTurno nivel(seat);
    EvaluaJugada(seat);
    const int c = CaracterJugador[seat];
    const int objetivo = EligeObjetivo(seat, c, NivelJugador[seat]);
    MarcaDescartes(seat, objetivo, c);
    LimitaDescartes(seat);
    OrdenPropio = OrdenJugada(JugadaJugador[seat], seat);
}

void DecideApuesta() {
    Turno t;
    t.Seat = JugadorActual;
    const NivelDelTurno nivel(t.Seat);
    t.C = std::clamp(CaracterJugador[t.Seat], CONSERVADOR, AGRESIVO);
    t.N = NivelJugador[t.Seat];
    t.Fase = FaseJuego;
    t.D = AzarJugada;
    t.EnRonda = Apuesta[t.Seat][SERIE][t.Fase];
    t.PorIgualar = ApuestaMaxRonda == 0 ? 0 : ApuestaMaxRonda - t.EnRonda;
    if (t.Fase == FASE_POKER_APUESTA1) Farol[t.Seat] = false;
    // Paso 1. The most this seat stakes in the round.
    LimiteRonda = LimiteDeRonda(t);
    // Paso 2. The rivals' real hands, read only by the best seats.
    EvaluaJugada(t.Seat);
    t.H = JugadaJugador[t.Seat];
    if (t.Fase == FASE_POKER_APUESTA2) t.RivalesMejoresReal = RivalesMejoresDeVerdad(t);
    // Paso 3. How strong the hand is.
    t.Fuerza = FuerzaDeMano(t);
    // Paso 4. The rivals the seat believes to be ahead.
    if (t.Fase == FASE_POKER_APUESTA2) CuentaRivalesMejores(t);
    // Paso 5. The stake the hand asks for.
    t.R = CaracterRivales();
    const int bruta = ApuestaMaxRonda == 0 ? AbreRonda(t) : ContestaApuesta(t);
    // Paso 6. Within the limits of the board.
    ApuestaOrdenador = Ajusta(t, bruta);
}

int CaracterRivales() {
    int suma = 0, rivales = 0;
    for (int s = 1; s <= 4; ++s) {
        if (s == JugadorActual || !EnJuego(s)) continue;
        suma += CaracterJugador[s];
        ++rivales;
    }
    if (rivales == 0) return MEDIO;
    suma = std::max(suma - 1, rivales);
    return Redondea(static_cast<double>(suma) / rivales);
}

bool PuedeAbrirRonda() {
    if (LeyApertura == 14) return true;
    if (FaseJuego != FASE_POKER_APUESTA1 || ApuestaMaxRonda != 0) return true;
    const int seat = JugadorActual;
    EvaluaJugada(seat);
    const int h = JugadaJugador[seat];
    if (h < JugadaPareja) return false;
    if (h > JugadaPareja) return true;
    const int valor = Jugadas[seat][JugadaPareja][1];
    return valor == AS || valor >= LeyApertura + 1;
}
