// The Siete y media at the table: one covered card each, a stake for each series, cards asked
// face up or covered, the bank's turn, the payment, and the bank passed to the seat that sang
// siete y media or, when the banker is broke, to the next seat with money.
#include "games/sieteymedia/PartidaSieteYMedia.h"

#include "betting/Apostadora.h"
#include "betting/Banca.h"
#include "betting/Fichas.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/sieteymedia/JugadorSieteYMedia.h"
#include "platform/Bomba.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/Ids.h"
#include "table/Mensajes.h"
#include "table/Sugerencia.h"

namespace {

constexpr double SIETE_Y_MEDIA = 7.5;
constexpr int TAPADA = 1;

bool CantaSiete[5][5] = {};

bool EsManual(int seat) {
    return ControlJugador[seat] == CONTROL_MANUAL;
}

int Banca() {
    return JugadorBanca;
}

// The seats that play against the bank, in turn order from JugadorMano.
template <typename F> void PorCadaJugador(F&& f) {
    int seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        if (seat != Banca()) f(seat);
        if (!PartidaViva) return;
        SiguienteJugador(seat);
        if (seat == JugadorMano) return;
    }
}

// The covered cards of a series turn face up for the whole table.
void DestapaSerie(int seat, int serie) {
    for (int p = 1; p <= NumCartas[seat][serie]; ++p) {
        auto& c = CartasJugador[seat][serie][p];
        if (c[CAMPO_PALO] == 0) continue;
        c[CAMPO_MARCA] = 0;
        c[CAMPO_CARA] = CARA_VISIBLE;
    }
}

void CalculaCambioCuatro(int seat) {
    PuedeCambiarCuatro = NumCartas[seat][1] == 1 && SeriesJugador[seat] == 1 &&
                         CartasJugador[seat][1][1][CAMPO_VALOR] == 4;
}

// Siete y media with nothing covered is sung: the seat will take the bank, if it is the first.
bool Canta(int seat, int serie) {
    if (ValorMano(seat, serie) != SIETE_Y_MEDIA || TieneTapada(seat, serie)) return false;
    CantaSiete[seat][serie] = true;
    if (NuevaBanca == 0) NuevaBanca = seat;
    return true;
}

int PistaDeApuesta(bool manual) {
    if (!manual) return AzarJugada < 0.2 ? 30 : 0;
    return AzarJugada < 0.3 ? 31 : AzarJugada < 0.6 ? 15 : 16;
}

int PistaDeJuego(int seat) {
    if (PuedeCambiarCuatro) return 32;
    if (PuedeAbrir) return 33;
    if (seat != Banca() && ValorMano(seat, SerieActual) == SIETE_Y_MEDIA) return 36;
    if (AzarJugada < 0.5 && seat != Banca()) return 34;
    return AzarJugada < 0.7 ? 17 : 35;
}

// The person's change of the four or split, asked during a wait, done here.
void AtiendePeticiones(int seat) {
    if (PideCambio && PuedeCambiarCuatro) CambiaCuatro(seat);
    PideCambio = false;
}

// ---- Paso 5. The stake of a series ----

bool ApuestaSerie(int seat) {
    SerieActual = NumSeries = SerieActual + 1;
    FichasActivas = true;
    FaseJuego = FASE_SYM_APUESTA;
    const bool manual = EsManual(seat);
    if (RestoJugador(seat) > 0) DibujaPilas(seat);
    Pausa(400);
    SenalaJugador();
    if (SerieActual > 1) RotuloSerie(seat, SerieActual);
    ApuestaPersona = ApuestaOrdenador = 0;
    NoCambiaCuatro = ApuestaFuerte = false;
    AzarJugada = Rnd();
    if (const int pista = PistaDeApuesta(manual)) MuestraInformacion(pista);
    DecideSieteYMedia();
    for (;;) {
        if (manual) DibujaApostadora();
        PersonaJugando = manual;
        EsperaJugada();
        if (!PartidaViva) return false;
        if (!PideCambio) break;
        AtiendePeticiones(seat);
    }
    Pausa(100);
    if (!JugadaHecha) {
        if (ApuestaPersona > 0) AnulaApostado(seat);
        while (PuedeCambiarCuatro && !NoCambiaCuatro) CambiaCuatro(seat);
        DecideSieteYMedia();
        ApuestaConFichas(seat, ApuestaOrdenador);
    }
    OcultaApostadora();
    PuedeCambiarCuatro = false;
    Pausa(300);
    FichasActivas = false;
    FaseJuego = FASE_SYM_JUEGO;
    DibujaPilas(seat);
    PuedeAbrir = false;
    CompruebaMesa();
    return true;
}

// ---- Paso 6. The play of a series; returns false when the match was left ----

bool JuegaSerie(int seat, bool& finJuego) {
    const bool banca = seat == Banca();
    const int serie = SerieActual;
    bool primera = true;
    for (;;) {
        // a. The seat's choice, worked out for the tutor and the automatic button.
        PideCarta = PideServido = PideAbrir = PideCambio = false;
        DecideSieteYMedia();
        BombeaEventos();
        PideCarta = PideServido = false;
        DibujaJugador(seat);
        const bool manual = EsManual(seat);
        AzarJugada = Rnd();
        // b, c. The hint and the wait.
        if (manual) MuestraInformacion(PistaDeJuego(seat));
        if (manual || (ContinuarManual && primera)) {
            PersonaJugando = manual;
            EsperaJugada();
            if (!PartidaViva) return false;
            SerieActual = serie;
        }
        primera = false;
        if (PideCambio) {
            AtiendePeticiones(seat);
            continue;
        }
        if (PideAbrir && PuedeAbrir) {
            DiceTexto(seat, "Abro mi juego", COLOR_TEXTO_BLANCO, PARPADEOS_TEXTO);
            AbreMano();
            PideCarta = true;
        }
        // d. A siete y media shown is sung, and the seat stands.
        if (Canta(seat, serie)) {
            PideServido = true;
            PideCarta = false;
            DiceTexto(seat, "Siete y media", COLOR_TEXTO_BLANCO, PARPADEOS_TEXTO);
        }
        // e. The computer's move, when the person left it to it.
        DecideSieteYMedia();
        if (!PideServido && !PideCarta && !JugadaHecha) {
            Pausa(400);
            while (PuedeCambiarCuatro && !NoCambiaCuatro) CambiaCuatro(seat);
            if (QuiereVolver) DestapaSerie(seat, serie);
            if (QuiereServido) {
                PideServido = true;
            } else {
                PideCarta = true;
                if (QuiereAbrir && PuedeAbrir) {
                    DiceTexto(seat, "Abro mi juego", COLOR_TEXTO_BLANCO, PARPADEOS_TEXTO);
                    AbreMano();
                }
            }
            Pausa(280);
        }
        // f, g.
        PuedeCambiarCuatro = PuedeAbrir = false;
        if (!PideCarta) {
            if (banca) {
                finJuego = true;
                return true;
            }
            if (!PideServido) continue;
            Pausa(300);
            return true;
        }
        // h. A card: covered while the series holds none, for a seat that isn't the bank.
        const bool tapada = !banca && !TieneTapada(seat, serie);
        RobaCartas(seat, 1, tapada ? TAPADA : 0);
        Pausa(100);
        CompruebaMesa();
        const double total = ValorMano(seat, serie);
        if (total > SIETE_Y_MEDIA) {
            // j. Bust.
            SerieCerrada[seat][serie] = true;
            if (banca) {
                finJuego = true;
                return true;
            }
            DestapaSerie(seat, serie);
            DibujaJugador(seat);
            RetiraApuesta(seat, Banca(), 1);
            DibujaJugador(seat);
            CompruebaMesa();
            return true;
        }
        if (total == SIETE_Y_MEDIA && banca) {
            finJuego = true;
            return true;
        }
        // i. Two medias may be opened.
        const auto& mano = CartasJugador[seat][serie];
        PuedeAbrir = !banca && SeriesJugador[seat] < 4 && RestoJugador(seat) > 0 &&
                     NumCartas[seat][serie] == 2 && mano[1][CAMPO_VALOR] >= 10 &&
                     mano[2][CAMPO_VALOR] >= 10;
    }
}

bool TurnoJugador(int seat) {
    JugadorActual = seat;
    CalculaCambioCuatro(seat);
    SerieActual = 0;
    while (SerieActual < SeriesJugador[seat]) {
        if (!ApuestaSerie(seat)) return false;
        // The person changes the four in play, when the stake is made.
        if (EsManual(seat) && SerieActual == 1) CalculaCambioCuatro(seat);
        bool fin = false;
        if (!JuegaSerie(seat, fin)) return false;
    }
    return true;
}

// Paso 4. The bank plays only against a series still alive.
bool TurnoBanca(bool& finJuego) {
    const int banca = Banca();
    JugadorActual = banca;
    SerieActual = NumSeries = 1;
    NoCambiaCuatro = ApuestaFuerte = false;
    CuentaSeriesVivas();
    DestapaSerie(banca, 1);
    SenalaJugador();
    DibujaJugador(banca);
    if (JugadoresMano < 2) return true;
    FaseJuego = FASE_SYM_JUEGO;
    return JuegaSerie(banca, finJuego);
}

// ---- Pasos 7 to 11 ----

void FinDelJuego() {
    FaseJuego = FASE_SYM_BANCA;
    PersonaJugando = ManoViva = false;
    NuevaBanca = 0;
    PorCadaJugador([](int seat) {
        for (int e = 1; e <= SeriesJugador[seat]; ++e) Canta(seat, e);
    });
    for (int s = 1; s <= 4; ++s) {
        for (int e = 1; e <= SeriesJugador[s]; ++e) DestapaSerie(s, e);
        if (NumCartas[s][1] > 0) DibujaJugador(s);
    }
    RefrescaMesa();
}

QString NombreSerie(int seat, int serie) {
    QString nombre = NombreJugador[seat];
    if (SeriesJugador[seat] > 1) nombre += " / " + QString::number(serie);
    return nombre + " : ";
}

void MuestraResultado() {
    QStringList lineas;
    int seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        for (int e = 1; e <= SeriesJugador[seat]; ++e)
            if (NumCartas[seat][e] > 0 && ValorMano(seat, e) > 0)
                lineas << NombreSerie(seat, e) + TextoTotal(seat, e);
        SiguienteJugador(seat);
        if (seat == JugadorMano) break;
    }
    Pausa(500);
    Mensaje("Final de la mano", lineas.join(SaltoLinea), int(lineas.size()), 1);
}

void Paga() {
    const int banca = Banca();
    const double totalBanca = ValorMano(banca, 1);
    PorCadaJugador([&](int seat) {
        for (int e = 1; e <= SeriesJugador[seat]; ++e) {
            const double total = ValorMano(seat, e);
            if (NumCartas[seat][e] == 0 || total <= 0 || total > SIETE_Y_MEDIA) continue;
            if (SeriesJugador[seat] > 1) RotuloSerie(seat, e);
            SerieActual = e;
            DibujaJugador(seat);
            Pausa(500);
            if (SerieCerrada[banca][1] || totalBanca < total) {
                int cantidad = ApuestaAcumulada(seat, e);
                if (CantaSiete[seat][e]) cantidad *= 2;
                PagaDesdeBanca(seat, std::min(cantidad, RestoJugador(banca)));
                RetiraApuesta(seat, seat, 3);
                RegistroManos[NumeroMano].Gana[seat][e] = 1;
            } else {
                RetiraApuesta(seat, banca, 1);
            }
            RecomponeFichas(seat, RestoJugador(seat));
            DibujaPilas(seat);
            CompruebaMesa();
        }
    });
}

int SeatsConDinero() {
    int n = 0;
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO && RestoJugador(s) > 0) ++n;
    return n;
}

void CambioDeBanca() {
    const int banca = Banca();
    const int conDinero = SeatsConDinero();
    CambiaBanca = false;
    QString texto;
    if (ValorMano(banca, 1) != SIETE_Y_MEDIA && NuevaBanca != 0 && conDinero >= 2) {
        CambiaBanca = true;
        const QString& nombre = NombreJugador[NuevaBanca];
        texto = NuevaBanca == 4
                    ? nombre + ", has cantado siete y media. Eres el nuevo jugador banca. "
                    : "Ha cantado siete y media " + nombre + "." + SaltoLinea +
                          "Es el nuevo jugador banca";
    } else if (RestoJugador(banca) < 1 && conDinero >= 2) {
        CambiaBanca = true;
        NuevaBanca = banca;
        for (int vuelta = 0; vuelta < 4; ++vuelta) {
            SiguienteJugador(NuevaBanca);
            if (RestoJugador(NuevaBanca) > 0) break;
        }
        const QString& nombre = NombreJugador[NuevaBanca];
        texto = NuevaBanca == 4
                    ? nombre + ", como el banquero se ha quedado sin fondos, eres el nuevo "
                               "jugador banca. "
                    : "Como el banquero se ha quedado sin fondos, " + nombre +
                          " es el nuevo jugador banca.";
    }
    if (texto.isEmpty()) return;
    Pausa(500);
    Mensaje("Final de la mano", texto, int(texto.count(SaltoLinea)) + 2, 1);
}

QString TextoRegistro(int seat, int serie) {
    const double total = ValorMano(seat, serie);
    if (total > SIETE_Y_MEDIA) return QStringLiteral("Se pasó");
    if (total == 0.5) return QStringLiteral("Media");
    QString texto = QString::number(Ent(total));
    if (total != Ent(total)) texto += " y 1/2";
    return texto;
}

bool JuegaManoSieteYMedia() {
    // Pasos 1 y 2. The bank, the leader and one covered card for each seat with money.
    for (auto& s : CantaSiete)
        for (bool& c : s) c = false;
    OcultaTantos();
    EmpiezaManoApuestas();
    if (!PartidaViva) return false;
    // The person may have chosen the bank on a wiped table: every seat's chips come back.
    for (int s = 1; s <= 4; ++s) DibujaPilas(s);
    RegistroManos[NumeroMano].Sale = NombreJugador[Banca()];
    NuevaBanca = 0;
    CompruebaMesa();

    // Pasos 3 y 5. Each seat with cards, the bank last.
    bool sigue = true;
    PorCadaJugador([&](int seat) {
        if (sigue && NumCartas[seat][1] > 0) sigue = TurnoJugador(seat);
    });
    if (!sigue || !PartidaViva) return false;

    // Paso 4. The bank.
    CalculaCambioCuatro(Banca());
    bool fin = false;
    if (!TurnoBanca(fin)) return false;

    // Pasos 7 to 11.
    FinDelJuego();
    MuestraResultado();
    if (!PartidaViva) return false;
    Paga();
    CambioDeBanca();
    AnotaRegistroBanca(TextoRegistro);
    CompruebaMesa();
    return PartidaViva;
}

} // namespace

void CambiaCuatro(int seat) {
    if (CartasEnMazo < 3) {
        PuedeCambiarCuatro = false;
        return;
    }
    const int r = PosicionMazo + 2 + Ent(Rnd() * (CartasEnMazo - 2));
    auto& carta = CartasJugador[seat][1][1];
    PosicionCarta(seat, 1, 1);
    const int x = CartaX, y = CartaY;
    MueveCarta(carta[CAMPO_PALO], carta[CAMPO_VALOR], x, y, OrientacionSeat[seat],
               carta[CAMPO_CARA], MazoX, MazoY, 1, CARA_OCULTA);
    std::swap(carta[CAMPO_PALO], Baraja[r][CAMPO_PALO]);
    std::swap(carta[CAMPO_VALOR], Baraja[r][CAMPO_VALOR]);
    const bool banca = seat == Banca();
    carta[CAMPO_CARA] = banca ? CARA_VISIBLE : CartasVisibles[seat];
    carta[CAMPO_MARCA] = banca ? 0 : TAPADA;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    MueveCarta(carta[CAMPO_PALO], carta[CAMPO_VALOR], MazoX, MazoY, 1, CARA_OCULTA, x, y,
               OrientacionSeat[seat], carta[CAMPO_CARA]);
    DibujaJugador(seat);
    Sonido(SONIDO_ASINCRONO, SONIDO_CARTA_LLEGA);
    RefrescaMesa();
    DecideSieteYMedia();
    if (carta[CAMPO_VALOR] != 4) PuedeCambiarCuatro = false;
    CompruebaMesa();
}

void JuegaSieteYMedia() {
    // The bank of the hand about to start is the one the match holds: the draw's in a new
    // match, the saved one in a match taken up again, whose hand starts over. A change named at
    // the end of a hand that was left is not carried into it.
    CambiaBanca = false;
    LimpiaMesaBanca();
    AnotaDineroPartida();
    while (PartidaViva) {
        if (!JuegaManoSieteYMedia()) return;
        // Paso 12. The next hand while two seats have money.
        FaseJuego = FASE_FIN_MANO;
        EsperaBotonera();
        if (!PartidaViva) return;
        if (SeatsConDinero() < 2) {
            for (int s = 1; s <= 4; ++s)
                if (EstadoJugador[s] == ESTADO_ACTIVADO && RestoJugador(s) > 0) GanadorPartida = s;
            FinPartida();
            return;
        }
    }
}
