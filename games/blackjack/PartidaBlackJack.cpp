// The Black Jack at the table: stakes, the deal with the bank's second card kept for its turn,
// each seat's series played out with insurance, doubling and split pairs, the bank's rule, the
// payment and the record of the hand.
#include "games/blackjack/PartidaBlackJack.h"

#include "betting/Apostadora.h"
#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/blackjack/JugadorBlackJack.h"
#include "table/Dibujo.h"
#include "table/Ids.h"
#include "table/Mensajes.h"
#include "table/Sugerencia.h"

namespace {

constexpr int BLACK_JACK = 21;
constexpr int PLANTA_BANCA = 17; // the bank draws below this, and stands on a soft 17
constexpr int P_BLACK_JACK = 22; // a Black Jack beats any other 21 at the payment

// ---- The tray: cards of the hands already played from this shoe ----
int Bandeja[MAX_BARAJA + 1][3] = {};
int NumBandeja = 0;
int BarajadoBandeja = -1; // the shuffle the tray belongs to; a new shuffle empties it

void VaciaBandejaSiBarajado() {
    if (BarajadoBandeja == VecesBarajado) return;
    NumBandeja = 0;
    BarajadoBandeja = VecesBarajado;
}

// The cards of the last hand leave the table for the tray.
void RecogeEnBandeja() {
    VaciaBandejaSiBarajado();
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= 4; ++e)
            for (int p = 1; p <= MAX_MANO; ++p) {
                auto& c = CartasJugador[s][e][p];
                if (c[CAMPO_PALO] == 0 || NumBandeja >= MAX_BARAJA) continue;
                ++NumBandeja;
                Bandeja[NumBandeja][CAMPO_PALO] = c[CAMPO_PALO];
                Bandeja[NumBandeja][CAMPO_VALOR] = c[CAMPO_VALOR];
                for (int f = 0; f <= 5; ++f) c[f] = 0;
            }
    for (auto& s : NumCartas)
        for (auto& n : s) n = 0;
}

const bool Registrado = [] {
    CartasAparte[JUEGO_BLACKJACK] = [](CuentaCartas& cuenta) {
        if (BarajadoBandeja != VecesBarajado) return;
        for (int i = 1; i <= NumBandeja; ++i)
            cuenta.Anade(Bandeja[i][CAMPO_PALO], Bandeja[i][CAMPO_VALOR]);
    };
    return true;
}();

bool EsManual(int seat) {
    return ControlJugador[seat] == CONTROL_MANUAL;
}

int Banca() {
    return JugadorBanca;
}

int CartaBancaValor() {
    return CartasJugador[Banca()][1][1][CAMPO_VALOR];
}

// The seats that play against the bank, in turn order from JugadorMano.
template <typename F> void PorCadaJugador(F&& f) {
    int seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4 && seat != Banca(); ++vuelta) {
        f(seat);
        if (!PartidaViva) return;
        SiguienteJugador(seat);
    }
}

int PrimeroConDineroTrasBanca() {
    int seat = Banca();
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        SiguienteJugador(seat);
        if (seat != Banca() && RestoJugador(seat) > 0) return seat;
    }
    return Banca();
}

void MuestraTotal(int seat) {
    Pic_Tantos[seat].Visible = true;
    DibujaBazas(seat);
    RefrescaMesa();
}

// ---- Paso 2. The stakes ----

bool TurnoApuesta(int seat) {
    JugadorActual = seat;
    SerieActual = NumSeries = 1;
    const bool manual = EsManual(seat);
    SenalaJugador();
    ApuestaPersona = ApuestaOrdenador = 0;
    AzarJugada = Rnd();
    if (!manual && AzarJugada < 0.2) MuestraInformacion(20);
    if (manual) MuestraInformacion(AzarJugada < 0.33 ? 21 : AzarJugada < 0.66 ? 15 : 16);
    DecideBlackJack();
    if (manual) DibujaApostadora();
    PersonaJugando = manual;
    EsperaJugada();
    if (!PartidaViva) return false;
    Pausa(150);
    if (!JugadaHecha) {
        if (ApuestaPersona > 0) AnulaApostado(seat);
        DecideBlackJack();
        ApuestaConFichas(seat, ApuestaOrdenador);
    }
    OcultaApostadora();
    DibujaJugador(seat);
    Pausa(300);
    CompruebaMesa();
    return true;
}

// ---- Paso 4. The play of a seat ----

int ValorEntero(int seat, int serie) {
    return Ent(ValorMano(seat, serie));
}

void CalculaPuedes(int seat, int serie) {
    const int r = RestoJugador(seat), apuesta = Apuesta[seat][1][FASE_BJ_APUESTA];
    const auto& mano = CartasJugador[seat][serie];
    const int t = ValorEntero(seat, serie);
    const bool dos = NumCartas[seat][serie] == 2;
    PuedeDoblar =
        dos && t >= 9 && t <= 11 && CartaBancaValor() != 1 && seat != Banca() && r >= apuesta;
    // An insured pair opens with its insurance: the seat must have money for both.
    PuedeAbrir = dos && PuntosValor[mano[1][CAMPO_VALOR]] == PuntosValor[mano[2][CAMPO_VALOR]] &&
                 SeriesJugador[seat] < 4 && seat != Banca() && r >= apuesta &&
                 r >= ApuestaAcumulada(seat, serie);
}

bool SerieTerminada(int seat, int serie) {
    const auto& mano = CartasJugador[seat][serie];
    const int n = NumCartas[seat][serie];
    if (Apuesta[seat][serie][FASE_BJ_DOBLAR] > 0 && n == 3) return true;
    if (SeriesJugador[seat] >= 2 && n == 2 && mano[1][CAMPO_VALOR] == 1 &&
        mano[2][CAMPO_VALOR] != 1)
        return true;
    return ValorEntero(seat, serie) == BLACK_JACK;
}

void LimpiaPeticiones() {
    PideCarta = PideServido = PideDoblar = PideSeguro = PideAbrir = false;
}

int PistaDeJuego() {
    if (PuedeAsegurar) return 22;
    if (PuedeAbrir) return 23;
    if (PuedeDoblar) return 24;
    return AzarJugada < 0.3 ? 17 : 25;
}

// A card for the series in play; the seat's total is shown.
void DaCarta(int seat) {
    RobaCartas(seat, 1, 0);
    Pausa(200);
    PuedeAbrir = PuedeDoblar = false;
    MuestraTotal(seat);
    CompruebaMesa();
}

// One series of a seat, played to its end. False when the match was left.
bool JuegaSerie(int seat, int serie, bool& primeraDecision) {
    SerieActual = NumSeries = serie;
    LimpiaPeticiones();
    FraseJugador[seat][serie].clear();
    if (serie > 1) RotuloSerie(seat, serie);
    // Paso 4b. A series opened from a pair takes its second card now.
    if (NumCartas[seat][serie] == 1) {
        DaCarta(seat);
        if (ValorEntero(seat, serie) == BLACK_JACK) return true;
    }
    for (;;) {
        CalculaPuedes(seat, serie);
        if (SerieTerminada(seat, serie)) return true;
        if (ValorMano(seat, serie) > BLACK_JACK) {
            // Paso 4c4. Bust: the stake goes to the bank now, the insurance waits.
            SerieCerrada[seat][serie] = true;
            Pic_Pulsador[PULSADOR_CARTA].Visible = Pic_Pulsador[PULSADOR_SERVIDO].Visible = false;
            RetiraApuesta(seat, Banca(), 3);
            DibujaJugador(seat);
            CompruebaMesa();
            return true;
        }
        MuestraTotal(seat);
        AzarJugada = Rnd();
        DecideBlackJack();
        LimpiaPeticiones();
        DibujaJugador(seat);
        const bool manual = EsManual(seat);
        if (manual) MuestraInformacion(PistaDeJuego());
        if (manual || primeraDecision) {
            PersonaJugando = manual;
            EsperaJugada();
            if (!PartidaViva) return false;
        }
        primeraDecision = false;
        // The person may have looked at another series with the arrows.
        if (SerieActual != serie) {
            SerieActual = serie;
            DibujaJugador(seat);
        }
        DecideBlackJack();
        if (!PideCarta && !PideServido && !PideDoblar && !PideSeguro && !PideAbrir) {
            Pausa(240);
            if (QuiereSeguro && PuedeAsegurar)
                PideSeguro = true;
            else if (QuiereAbrir && PuedeAbrir) {
                DiceTexto(seat, "Abro el par", COLOR_TEXTO_BLANCO, 0);
                PideAbrir = true;
            } else if (QuiereDoblar && PuedeDoblar)
                PideDoblar = true;
            else if (QuiereServido)
                PideServido = true;
            else
                PideCarta = true;
            Pausa(240);
        }
        const bool podiaAsegurar = PuedeAsegurar;
        PuedeAsegurar = false;
        if (PideSeguro && podiaAsegurar) {
            Pic_Tantos[seat].Visible = false;
            FaseJuego = FASE_BJ_SEGURO;
            ApuestaConFichas(seat, Ent(Apuesta[seat][serie][FASE_BJ_APUESTA] / 2.0));
            FaseJuego = FASE_BJ_JUEGO;
            Pic_Pulsador[PULSADOR_DOBLAR].Visible = Pic_Pulsador[PULSADOR_SEGURO].Visible = false;
            CompruebaMesa();
            continue;
        }
        if (PideAbrir && PuedeAbrir) {
            Pic_Pulsador[PULSADOR_DOBLAR].Visible = Pic_Pulsador[PULSADOR_SEGURO].Visible = false;
            AbreMano();
            CompruebaMesa();
        } else if (PideDoblar && PuedeDoblar) {
            Pic_Tantos[seat].Visible = false;
            FaseJuego = FASE_BJ_DOBLAR;
            ApuestaConFichas(seat, Apuesta[seat][serie][FASE_BJ_APUESTA]);
            FaseJuego = FASE_BJ_JUEGO;
            CompruebaMesa();
        } else if (!PideCarta) {
            return true; // servido
        }
        DaCarta(seat);
        if (ValorEntero(seat, serie) == BLACK_JACK) return true;
    }
}

bool TurnoJuego(int seat) {
    JugadorActual = seat;
    SerieActual = NumSeries = 1;
    SenalaJugador();
    PuedeAsegurar = seat != Banca() && CartaBancaValor() == 1 &&
                    RestoJugador(seat) >= Apuesta[seat][1][FASE_BJ_APUESTA] / 2.0;
    Pausa(500);
    bool primeraDecision = ContinuarManual;
    for (int serie = 1; serie <= SeriesJugador[seat]; ++serie) {
        if (!JuegaSerie(seat, serie, primeraDecision)) return false;
        // Paso 4d. The total of the series, and its 21 told.
        SerieActual = serie;
        MuestraTotal(seat);
        if (ValorEntero(seat, serie) == BLACK_JACK)
            DiceTexto(seat,
                      SeriesJugador[seat] == 1 && NumCartas[seat][serie] == 2 ? "Black Jack"
                                                                              : "Veintiuna",
                      COLOR_TEXTO_BLANCO, PARPADEOS_TEXTO);
    }
    PuedeAsegurar = PuedeAbrir = PuedeDoblar = false;
    return true;
}

// ---- Paso 5. The bank ----

void TurnoBanca() {
    const int banca = Banca();
    JugadorActual = banca;
    SerieActual = NumSeries = 1;
    SenalaJugador();
    if (CuentaSeriesVivas() <= 1) return;
    // Soft 17 stands: ValorMano has already counted the ace as 11.
    while (ValorMano(banca, 1) < PLANTA_BANCA) {
        RobaCartas(banca, 1, 0);
        MuestraTotal(banca);
        Pausa(500);
        CompruebaMesa();
    }
    if (ValorMano(banca, 1) > BLACK_JACK) SerieCerrada[banca][1] = true;
}

// ---- Pasos 6 to 8. The result, the payment and the record ----

QString NombreSerie(int seat, int serie) {
    QString nombre = NombreJugador[seat];
    if (SeriesJugador[seat] > 1) nombre += " / " + QString::number(serie);
    return nombre + " : ";
}

void MuestraResultado() {
    FaseJuego = FASE_BJ_SEGURO;
    ManoViva = false;
    QStringList lineas;
    int seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        for (int e = 1; e <= SeriesJugador[seat]; ++e)
            if (ValorMano(seat, e) > 0) lineas << NombreSerie(seat, e) + TextoTotal(seat, e);
        SiguienteJugador(seat);
        if (seat == JugadorMano) break;
    }
    Pausa(650);
    Mensaje("Final de la mano", lineas.join(SaltoLinea), int(lineas.size()), 1);
}

void PagaSerie(int seat, int serie, bool bancaBJ) {
    const int banca = Banca();
    if (SeriesJugador[seat] > 1) RotuloSerie(seat, serie);
    SerieActual = serie;
    DibujaJugador(seat);
    Pausa(500);
    const int seguro = Apuesta[seat][serie][FASE_BJ_SEGURO];
    if (seguro > 0) {
        if (bancaBJ) {
            PagaDesdeBanca(seat, std::min(2 * seguro, RestoJugador(banca)));
            RetiraApuesta(seat, seat, 2);
        } else {
            RetiraApuesta(seat, banca, 2);
        }
    }
    const double total = ValorMano(seat, serie);
    if (SerieCerrada[seat][serie] || total <= 0 || total > BLACK_JACK) return;
    int p = Ent(total);
    if (NumCartas[seat][serie] == 2 && p == BLACK_JACK && SeriesJugador[seat] == 1)
        p = P_BLACK_JACK;
    int b = Ent(ValorMano(banca, 1));
    if (NumCartas[banca][1] == 2 && b == BLACK_JACK) b = P_BLACK_JACK;
    if (!SerieCerrada[banca][1] && p <= b) {
        if (p == b)
            RetiraApuesta(seat, seat, 3);
        else
            RetiraApuesta(seat, banca, 1);
    } else {
        int cantidad = Apuesta[seat][serie][FASE_BJ_APUESTA] + Apuesta[seat][serie][FASE_BJ_DOBLAR];
        if (p == P_BLACK_JACK) cantidad = Ent(cantidad * 1.5);
        PagaDesdeBanca(seat, std::min(cantidad, RestoJugador(banca)));
        RetiraApuesta(seat, seat, 3);
        RegistroManos[NumeroMano].Gana[seat][serie] = 1;
    }
    RecomponeFichas(seat, RestoJugador(seat));
    DibujaPilas(seat);
}

void Paga() {
    const int banca = Banca();
    const bool bancaBJ = NumCartas[banca][1] == 2 && ValorEntero(banca, 1) == BLACK_JACK;
    PorCadaJugador([&](int seat) {
        for (int e = 1; e <= SeriesJugador[seat]; ++e) {
            const double total = ValorMano(seat, e);
            if ((total >= 1 && total <= BLACK_JACK) || Apuesta[seat][e][FASE_BJ_SEGURO] > 0) {
                PagaSerie(seat, e, bancaBJ);
                CompruebaMesa();
            }
        }
    });
}

QString TextoRegistro(int seat, int serie) {
    const double total = ValorMano(seat, serie);
    if (total > BLACK_JACK) return QStringLiteral("Se pasó");
    if (Ent(total) == BLACK_JACK && NumCartas[seat][serie] == 2 && SeriesJugador[seat] == 1)
        return QStringLiteral("Black Jack");
    return QString::number(Ent(total));
}

// One hand. Returns false when the match was left.
bool JuegaManoBlackJack() {
    // Paso 1. The cards of the last hand go to the tray; the bank is seat 2.
    RecogeEnBandeja();
    OcultaTantos();
    EmpiezaManoApuestas();
    if (!PartidaViva) return false;
    // The person may have chosen the leader on a wiped table: every seat's chips come back.
    for (int s = 1; s <= 4; ++s) DibujaPilas(s);
    JugadorBanca = SEAT_BANCA_BLACKJACK;
    if (TurnoSalida == 1 || JugadorMano == JugadorBanca) JugadorMano = PrimeroConDineroTrasBanca();
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorBanca];
    CompruebaMesa();

    // Paso 2. The stakes, from JugadorMano round to the bank.
    FaseJuego = FASE_BJ_APUESTA;
    FichasActivas = true;
    bool sigue = true;
    PorCadaJugador([&](int seat) {
        if (sigue && RestoJugador(seat) > 0 && EstadoJugador[seat] == ESTADO_ACTIVADO)
            sigue = TurnoApuesta(seat);
    });
    if (!sigue || !PartidaViva) return false;
    FichasActivas = false;
    ApuestasDeLaMano = 0;
    for (int s = 1; s <= 4; ++s) ApuestasDeLaMano += Apuesta[s][1][FASE_BJ_APUESTA];

    // Paso 3. The deal: the bank gets one card, the others two.
    JugadorActual = JugadorMano;
    ReparteCartas();
    if (!PartidaViva) return false;
    FaseJuego = FASE_BJ_JUEGO;
    CompruebaMesa();

    // Paso 4. Each seat's series.
    PorCadaJugador([&](int seat) {
        if (sigue && NumCartas[seat][1] > 0) sigue = TurnoJuego(seat);
    });
    if (!sigue || !PartidaViva) return false;

    // Paso 5. The bank.
    TurnoBanca();
    if (!PartidaViva) return false;

    // Pasos 6 to 8.
    MuestraResultado();
    if (!PartidaViva) return false;
    Paga();
    AnotaRegistroBanca(TextoRegistro);
    CompruebaMesa();
    return PartidaViva;
}

bool QuedanJugadores() {
    for (int s = 1; s <= 4; ++s)
        if (s != Banca() && EstadoJugador[s] == ESTADO_ACTIVADO && RestoJugador(s) > 0) return true;
    return false;
}

} // namespace

void JuegaBlackJack() {
    // The bank is the program's, whatever the settings say.
    JugadorBanca = SEAT_BANCA_BLACKJACK;
    NombreJugador[JugadorBanca] = "Banca";
    EstadoJugador[JugadorBanca] = ESTADO_ACTIVADO;
    ControlJugador[JugadorBanca] = CONTROL_AUTOMATICO;
    LimpiaMesaBanca();
    AnotaDineroPartida();
    BarajaMazo();
    NumBandeja = 0;
    BarajadoBandeja = VecesBarajado;
    while (PartidaViva) {
        if (!JuegaManoBlackJack()) return;
        // Paso 9. The next hand, or the end when the bank or every player is broke.
        FaseJuego = FASE_FIN_MANO;
        EsperaBotonera();
        if (!PartidaViva) return;
        if (RestoJugador(Banca()) < 1 || !QuedanJugadores()) {
            FinPartidaFondos();
            return;
        }
    }
}
