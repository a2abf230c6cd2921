// The cycle of matches and hands that the nine games share, and the waits in which the person
// acts. A driver plays a whole match as one blocking routine; the event pump runs only inside
// the waits here, so every handler just sets flags and the driver acts after the wait returns.
#include "frame/Ciclo.h"

#include "betting/Fichas.h"
#include "frame/Baraja.h"
#include "frame/Ficheros.h"
#include "frame/GblChinchon.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"
#include "games/pumba/PartidaPumba.h"
#include "platform/Bomba.h"
#include "platform/Reloj.h"
#include "platform/Sonido.h"
#include "reports/Historico.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

#include <algorithm>
#include <cmath>

namespace {

// Fixed point of four decimals, as the old currency type kept it (half to even).
double CuatroDecimales(double x) {
    return std::nearbyint(x * 10000.0) / 10000.0;
}

// One turn of the event pump of a wait: the person's script in headless play, else block
// until the window has something to deliver.
void BombaDeEspera() {
    SolicitaRepintado();
    if (PersonaGuionada)
        PersonaGuionada();
    else
        EsperaEventos();
}

void LimpiaMesaPartida() {
    OcultaTantos();
    BorraVentana();
    OcultaContinuar();
    Pic_Apostadora.Visible = false;
    Pic_Sugerencia.Visible = false;
    OcultaPulsadores();
    RefrescaMesa();
}

// Chinchón: the hand's record starts empty, and the next card of the stock, face up, starts the
// discard pile.
void EmpiezaPozo() {
    VaciaRegistroDescartes();
    MazoRebarajado = 0;
    RecibeDesde = 0;
    if (CartasEnMazo <= 0) return;
    const int palo = Baraja[PosicionMazo][CAMPO_PALO], valor = Baraja[PosicionMazo][CAMPO_VALOR];
    ++PosicionMazo;
    --CartasEnMazo;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    MueveCarta(palo, valor, MazoX, MazoY, 1, CARA_VISIBLE, PozoX, PozoY + 13, 1, CARA_VISIBLE);
    Pozo[1][CAMPO_PALO] = palo;
    Pozo[1][CAMPO_VALOR] = valor;
    CartasEnPozo = 1;
    DibujaMazo(PozoX, PozoY, CartasEnPozo);
    RefrescaMesa();
}

QString NombresPareja(int pareja) {
    return pareja == 1 ? NombreJugador[1] + " y " + NombreJugador[3]
                       : NombreJugador[2] + " y " + NombreJugador[4];
}

} // namespace

double FactorVelocidad(int velocidad) {
    double factor = CuatroDecimales(std::pow((100.0 - velocidad) / 50.0, 1.5));
    if (factor > 1) factor = CuatroDecimales(factor * factor);
    return factor;
}

void Pausa(int ms) {
    if (PausasACero) {
        MarcaTiempo = 0;
        return;
    }
    if (MarcaTiempo == 0) MarcaTiempo = Ahora();
    const double espera = ms * FactorVelocidad(VelocidadJuego);
    // The pause is over once the clock has passed the mark by the scaled time: at the top
    // speed that is the next tick of the clock.
    DuermeHasta(MarcaTiempo + static_cast<qint64>(std::floor(espera)) + 1);
    MarcaTiempo = 0;
}

void OcultaContinuar() {
    Pic_BotContinuar.Visible = false;
    EsperandoPersona = false;
    RefrescaBotonera();
}

void EsperaJugada() {
    OrdenManual = false;
    JugadaHecha = false;
    HablaPorDos = false;
    if (ControlJugador[JugadorActual] != CONTROL_MANUAL && !ContinuarManual) {
        OcultaContinuar();
        PersonaJugando = false;
        return;
    }
    DibujaContinuar(false);
    EsperandoPersona = true;
    while (EsperandoPersona) {
        BombaDeEspera();
        if (!PartidaViva) return; // the button stays: the match was left under it
    }
    OcultaContinuar();
    PersonaJugando = false;
}

void EsperaBotonera() {
    DibujaContinuar(false);
    EsperandoPersona = true;
    while (EsperandoPersona) {
        BombaDeEspera();
        if (!PartidaViva) return;
    }
    OcultaContinuar();
}

void NuevaPartida() {
    PartidaViva = true;
    LimpiaMesaPartida();
    NumeroMano = 0;
    ManoViva = false;
    for (int s = 0; s <= 4; ++s) {
        PiedrasCompletas[s] = false;
        Piedras[s] = 0;
    }
    for (auto& registro : RegistroManos) registro = RegistroMano{};
    OrdenManual = false;
    FichasActivas = false;
    TuteCantado = false;
    GanadorBaza = 0; // nobody took a trick before the first hand: no exchange in its first trick
    SiembraPartida();
    if (JuegoActual != JUEGO_BLACKJACK && TurnoSalida == 1) SorteoInicial();
    if (!PartidaViva) return;
    for (int s = 0; s <= 4; ++s) JuegosGanados[s] = 0;
    switch (JuegoActual) {
    case JUEGO_POKER:
    case JUEGO_BLACKJACK:
    case JUEGO_SIETEYMEDIA:
        for (int s = 0; s <= 4; ++s)
            RecomponeFichas(s, s == 0 || EstadoJugador[s] == ESTADO_DESACTIVADO ? 0 : RestoInicial);
        break;
    case JUEGO_MUS:
        PreparaPartidaMus(); // the heap of 25 stones, laid at random, and empty tallies
        break;
    default:
        break;
    }
    JuegaPartida();
}

void AbreJuego() {
    LeeJuego();
    ReversosReducidos(); // the small backs of won tricks follow this game's backs
    ParametrosJuego();
    ColocaMazo();
    ColocaTriunfo();
    PasoSentido = SentidoJuego == 1 ? 1 : -1;
    PasoSentidoPumba = PasoSentido;
    EsperandoPersona = OrdenManual = FichasActivas = TutorEnCurso = false;
    PuedeAbrir = PuedeDoblar = PuedeAsegurar = MensajeSobreVentana = false;
    GanadorBaza = 0; // the files don't keep who took the last trick
    OcultaPulsadores();
    Pic_Apostadora.Visible = false;
    Pic_Sugerencia.Visible = false;
    CursorActual = 0;
    BorraVentana();
    OcultaTantos();
    OcultaContinuar();
    RefrescaMesa();
    Randomiza();
    if (!PartidaViva) return;
    Mensaje("Continuar la partida anterior",
            "Continua el desarrollo  de  la  partida que no finalizó en la sesión anterior.", 2, 1,
            2197);
    BorraVentana();
    RefrescaMesa();
    if (JuegoActual == JUEGO_BLACKJACK) BarajaMazo(); // the shoe isn't kept in the file
    JuegaPartida();
}

void NuevaMano() {
    for (;;) {
        // Paso 1. The hand's number, and a clean table with nothing of the last hand.
        if (NumeroMano < MAX_MANOS) ++NumeroMano;
        PaloTriunfo = ValorTriunfo = CodigoJugada = 0;
        MuestraTriunfo = true;
        ObligacionActiva = false;
        NumeroBaza = NumeroDescarte = 0;
        BorraVentana();
        RefrescaMesa();
        MazoX = MazoBaseX;
        MazoY = MazoBaseY;
        if (JuegoActual == JUEGO_MUS)
            for (int s = 1; s <= 4; ++s)
                if (Piedras[s] > 0) DibujaPiedrasSeat(s);
        BorraTablasMano();
        SerieActual = NumSeries = 1;
        for (int s = 1; s <= 4; ++s) {
            SeriesJugador[s] = 1;
            for (auto& frase : FraseJugador[s]) frase.clear();
            if (JuegoActual != JUEGO_MUS) DibujaBazas(s);
        }
        // Paso 2. Who plays this hand: in Chinchón and Pumba, only seats under the limit.
        if (JuegoActual == JUEGO_CHINCHON || JuegoActual == JUEGO_PUMBA) {
            JugadoresMano = 0;
            for (int s = 1; s <= 4; ++s) {
                JuegaMano[s] =
                    EstadoJugador[s] == ESTADO_ACTIVADO && TotalPuntos(s) < LimitePartida;
                if (JuegaMano[s]) ++JugadoresMano;
            }
        } else {
            JugadoresMano = NumJugadores;
            for (int s = 1; s <= 4; ++s) JuegaMano[s] = true;
        }
        if (JugadoresMano < 2) { // the last seat standing has won
            ManoViva = false;
            PartidaViva = false;
            return;
        }
        // Paso 3. The lead passes to the next seat that plays.
        if (NumeroMano != 1 && TurnoSalida == 1) {
            int vueltas = 0;
            do SiguienteJugador(JugadorMano);
            while (!JuegaMano[JugadorMano] && ++vueltas < 8);
        }
        // A first hand whose leader is chosen after the deal has none yet: the deal still
        // starts at a seat that plays, or a lap of the table would miss the last one.
        if (JugadorMano < 1 || JugadorMano > 4 || !JuegaMano[JugadorMano] ||
            EstadoJugador[JugadorMano] != ESTADO_ACTIVADO)
            SiguienteJugador(JugadorMano);
        // Paso 4. The deal; a manual deal given up is dealt again.
        AnularReparto = false;
        ReparteCartas();
        if (!PartidaViva) return;
        if (!AnularReparto) break;
        AnularReparto = false; // the manual deal was given up: deal the hand again
        --NumeroMano;
    }
    // Paso 5. What each game lays on the table before the first turn.
    if (JuegoActual == JUEGO_CHINCHON) EmpiezaPozo();
    if (JuegoActual == JUEGO_MUS) {
        // The stock stays in the middle for the discards; the lances and signs start afresh.
        DibujaMazo(MazoX, MazoY, CartasEnMazo);
        PreparaManoMus();
    }
    // Pumba turns up the first card on the pile and shows the button to say the word.
    if (JuegoActual == JUEGO_PUMBA) PreparaManoPumba();
    // Paso 6. The names, the leader the person chooses, and the hand in play.
    DibujaNombres();
    if (TurnoSalida == 2) EligeMano();
    if (!PartidaViva) return; // the match was left while the leader was being chosen
    ManoViva = true;
}

void BorraTablasMano() {
    for (auto& g : GanadorDeBaza) g = 0;
    for (auto& b : HistoriaBazas)
        for (auto& s : b)
            for (auto& c : s) c = 0;
    for (auto& t : TantosDeBaza) t = 0;
    for (auto& p : CartaVista)
        for (auto& v : p) v = false;
    for (auto& c : Baraja)
        for (auto& f : c) f = 0;
    for (auto& s : CartasJugador)
        for (auto& e : s)
            for (auto& p : e)
                for (auto& f : p) f = 0;
    for (auto& s : AcuseCantado)
        for (auto& p : s) p = false;
    for (auto& s : TantosJugador)
        for (auto& t : s) t = 0;
    for (auto& s : NumCartas)
        for (auto& n : s) n = 0;
    for (auto& j : JuegaMano) j = false;
    for (auto& s : Fichas)
        for (auto& d : s) d = 0;
    for (auto& s : Apuesta)
        for (auto& e : s)
            for (auto& f : e) f = 0;
    for (auto& s : SinPalo)
        for (auto& p : s) p = false;
    for (auto& s : SerieCerrada)
        for (auto& e : s) e = false;
}

void SorteoInicial() {
    // Paso 1. A deck of one card of each value in play of each suit, at random places.
    const int n = CartasNormales / NumBarajas;
    DibujaMazo(MazoBaseX, MazoBaseY, n);
    for (auto& c : Baraja)
        for (auto& f : c) f = 0;
    // One card of each value in play of each suit, at random places of the deck.
    for (int palo = 1; palo <= 4; ++palo)
        for (int valor = 1; valor <= CartasPorPalo; ++valor) {
            if (!ValorEnJuego[valor]) continue;
            int posicion;
            do posicion = Ent(Rnd() * n + 1);
            while (Baraja[posicion][1] != 0);
            Baraja[posicion][1] = palo;
            Baraja[posicion][2] = valor;
        }
    // Paso 2. A card face up to each active seat in turn, until the first As (the Jack in the
    // French deck).
    const int valorSale = TipoBaraja == 1 ? 1 : 11;
    JugadorActual = 4;
    for (int posicion = 1; posicion <= n; ++posicion) {
        int vueltas = 0;
        do {
            JugadorActual += PasoSentido;
            if (JugadorActual >= 5) JugadorActual = 1;
            if (JugadorActual < 1) JugadorActual = 4;
        } while (EstadoJugador[JugadorActual] != ESTADO_ACTIVADO && ++vueltas < 8);
        const int palo = Baraja[posicion][1], valor = Baraja[posicion][2];
        DibujaMazo(MazoBaseX, MazoBaseY, n - posicion);
        PosicionCarta(JugadorActual, 1, 1);
        MueveCarta(palo, valor, MazoBaseX, MazoBaseY, 1, CARA_OCULTA, CartaX, CartaY,
                   OrientacionSeat[JugadorActual], CARA_VISIBLE);
        BombeaEventos();
        if (!PartidaViva) return;
        if (valor == valorSale) break;
        Pausa(120);
    }
    // Paso 3. That seat leads, or in Siete y media holds the bank; the table is told.
    const QString nombre = NombreJugador[JugadorActual];
    if (JuegoActual == JUEGO_SIETEYMEDIA) {
        JugadorBanca = JugadorActual;
        Mensaje("Comienza la Partida",
                "Se ha sorteado el jugador que comienza siendo banca. El primer jugador banca es " +
                    nombre + ".",
                2, 1);
    } else {
        JugadorMano = JugadorActual;
        Mensaje("Comienza la Partida",
                "Se ha sorteado el jugador que va a comenzar la partida. Sale " + nombre + ".", 2,
                1);
    }
    BorraVentana();
    RefrescaMesa();
}

void EligeMano() {
    BorraVentana();
    RotuloMesa("Elija el jugador que va a ser mano");
    RefrescaMesa();
    EligiendoMano = true;
    while (EligiendoMano) BombaDeEspera();
    if (!PartidaViva || JugadorBajoPuntero == 0) return; // the match was left meanwhile
    JugadorMano = JugadorBajoPuntero;
    if (JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA) {
        JugadorBanca = JugadorMano;
        AnteriorJugador(JugadorBanca);
    }
    BorraZona(CentroMesaX - 150, RotuloMesaY(), 301, 61);
    RefrescaMesa();
}

void FinPartida() {
    if (ModalidadPareja == 1) {
        TextoMensaje = SaltoLinea;
        if (GanadorPartida == 4)
            TextoMensaje += NombreJugador[4] + ", has ganado la partida. ";
        else
            TextoMensaje += "Ha ganado la partida " + NombreJugador[GanadorPartida];
    } else {
        if (GanadorPartida == 2)
            TextoMensaje = NombresPareja(2) + ", habéis ganado la partida. ";
        else
            TextoMensaje = "Han ganado la partida " + NombresPareja(1);
    }
    TextoMensaje += SaltoLinea;
    CierraPartida(TextoMensaje, 3);
}

void FinPartidaFondos() {
    TextoMensaje = RestoJugador(JugadorBanca) < 1 ? "La banca se ha quedado sin fondos"
                                                  : "Todos los jugadores se han quedado sin fondos";
    CierraPartida(TextoMensaje, 1);
}

void CierraPartida(const QString& texto, int lineas) {
    Mensaje("Final de Partida", texto, lineas, 1);
    Mensaje("Histórico de partidas jugadas", "¿Se actualiza el Histórico de partidas?", 1, 2, 2193);
    if (RespuestaMensaje) AnadeHistorico();
    BorraVentana();
    OcultaTantos();
    RefrescaMesa();
    PartidaViva = false;
}

void SenalaJugador() {
    FraseJugador[JugadorActual][1].clear();
    for (int vuelta = 1; vuelta <= VueltasAnimacion(2); ++vuelta) {
        const int s = JugadorActual;
        // The seat goes dark for a moment. Automatic play skips that frame, which nobody sees:
        // the seat and its chips are drawn whole again at once, over all the dark frame covered.
        // The Mus keeps it, as its faces lie in the seat's zone.
        if (FotogramaVisible() || JuegoActual == JUEGO_MUS) {
            if (ApuestaDelante && JugadorActual != JugadorBanca) BorraPila(JugadorActual);
            BorraZona(ZonaIzquierda[s], ZonaArriba[s], ZonaDerecha[s] - ZonaIzquierda[s] + 1,
                      ZonaAbajo[s] - ZonaArriba[s] + 1);
            RefrescaMesa();
            Pausa(210);
        }
        DibujaJugador(s);
        if (ApuestaDelante && JugadorActual != JugadorBanca) DibujaPilas(s);
        RefrescaMesa();
        Pausa(120);
    }
}

// ---- Abandon, postpone, quit ----

void PulsaComenzar() {
    if (PartidaViva) {
        Mensaje("Abandonar la partida en curso",
                "¿Desea abandonar la partida  que  está jugando para comenzar una nueva partida?",
                2, 2);
        if (!RespuestaMensaje) return;
        // The old match's driver leaves when its wait gets control back; nothing of it is
        // used again.
        PartidaViva = false;
        EsperandoPersona = false;
    }
    NuevaPartida();
}

void PulsaSalir() {
    if (EligiendoMano) {
        Mensaje("Salir del programa",
                "Elija el jugador que va a salir esta mano antes de poder abandonar el programa.",
                2, 1);
        return;
    }
    if (PartidaViva) {
        Mensaje("Posponer la partida en curso",
                "¿Desea abandonar el programa para continuar en otro momento la partida que está "
                "jugando?",
                2, 2);
        if (!RespuestaMensaje) return;
    }
    TerminaPrograma();
}

void PreparaPosponer() {
    if (!PartidaViva) return;
    if (JuegoActual == JUEGO_POKER || JuegoActual == JUEGO_BLACKJACK ||
        JuegoActual == JUEGO_SIETEYMEDIA) {
        int bote = 0;
        for (int s = 1; s <= 4; ++s) {
            RecomponeFichas(s, RestoAlEmpezar[s]);
            for (int e = 0; e <= 4; ++e)
                for (int f = 0; f <= 5; ++f) {
                    Apuesta[s][e][f] = ApuestaCopia[s][e][f];
                    bote += ApuestaCopia[s][e][f];
                }
        }
        // The pot holds again only what the stakes kept from an earlier deal put there.
        RecomponeFichas(0, ApuestaDelante ? 0 : bote);
    }
    if (JuegoActual == JUEGO_MUS && FaseJuego < 9) {
        bool hayCopia = false;
        for (int s = 0; s <= 4; ++s) hayCopia = hayCopia || PiedrasCopia[s] != 0;
        if (hayCopia)
            for (int s = 0; s <= 4; ++s) Piedras[s] = PiedrasCopia[s];
    }
    if (AnularReparto) {
        AnularReparto = false;
        ManoViva = false;
    }
    // A Pumba hand left reversed is dealt again in the sense of the match: the leader is moved
    // back by it.
    if (JuegoActual == JUEGO_PUMBA) PasoSentidoPumba = PasoSentido;
}

void TerminaPrograma() {
    PreparaPosponer();
    GrabaConfiguracion();
    GrabaJuego();
    if (FinPrograma) FinPrograma();
}

// ---- The head of a hand in the games played for money ----

namespace {

bool ContraBanca() {
    return JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA;
}

void AnotaDineroInicial() {
    for (int s = 1; s <= 4; ++s) {
        RestoAlEmpezar[s] = RestoJugador(s);
        for (int e = 0; e <= 4; ++e)
            for (int f = 0; f <= 5; ++f) ApuestaCopia[s][e][f] = Apuesta[s][e][f];
    }
}

bool BoteVacio() {
    for (int d = 1; d <= 6; ++d)
        if (Fichas[0][d] != 0) return false;
    return true;
}

void BorraCartasMano() {
    for (auto& s : CartasJugador)
        for (auto& e : s)
            for (auto& p : e)
                for (auto& f : p) f = 0;
    for (auto& s : NumCartas)
        for (auto& n : s) n = 0;
    for (auto& s : FraseJugador)
        for (auto& f : s) f.clear();
    for (auto& s : SerieCerrada)
        for (auto& e : s) e = false;
    for (int s = 1; s <= 4; ++s) SeriesJugador[s] = 1;
    SerieActual = NumSeries = 1;
}

} // namespace

void EmpiezaManoApuestas() {
    FaseJuego = 1;
    MazoX = MazoBaseX;
    MazoY = MazoBaseY;
    if (NumeroMano < MAX_MANOS) ++NumeroMano;
    for (;;) {
        // Paso 1. The table cleared to the chips, and the money each seat starts with.
        Pic_Apostadora.Visible = false;
        BorraVentana();
        for (int s = 1; s <= 4; ++s)
            if (RestoJugador(s) > 0) DibujaPilas(s);
        // An empty pot starts the stakes afresh. Only then is the money noted: the stakes of a
        // hand already paid out must not come back into the pot when the hand is given up.
        if (BoteVacio())
            for (auto& s : Apuesta)
                for (auto& e : s)
                    for (auto& f : e) f = 0;
        AnotaDineroInicial();
        // Paso 2. Who plays: in Póker and Siete y media, only seats with money.
        if (JuegoActual == JUEGO_POKER || JuegoActual == JUEGO_SIETEYMEDIA) {
            JugadoresMano = 0;
            for (int s = 1; s <= 4; ++s) {
                JuegaMano[s] = EstadoJugador[s] == ESTADO_ACTIVADO && RestoJugador(s) > 0;
                if (JuegaMano[s]) ++JugadoresMano;
            }
        } else {
            JugadoresMano = 0;
            for (int s = 1; s <= 4; ++s) {
                JuegaMano[s] = EstadoJugador[s] == ESTADO_ACTIVADO;
                if (JuegaMano[s]) ++JugadoresMano;
            }
        }
        // Against a bank every stake was settled at the last payment: nothing stays in front.
        if (ContraBanca())
            for (int s = 0; s <= 4; ++s)
                for (int e = 0; e <= 4; ++e) {
                    for (int& f : HistorialFichas[s][e]) f = 0;
                    NumHistorial[s][e] = 0;
                }
        // Paso 3. The lead moves on, or is chosen.
        BorraCartasMano();
        if (JuegoActual == JUEGO_SIETEYMEDIA && TurnoSalida == 1) {
            // The bank passes to the seat that sang siete y media, or that took it from a
            // broke banker; the first seat with money after the bank leads.
            if (CambiaBanca && NuevaBanca != 0) JugadorBanca = NuevaBanca;
            JugadorMano = JugadorBanca;
            for (int vuelta = 0; vuelta < 4; ++vuelta) {
                SiguienteJugador(JugadorMano);
                if (RestoJugador(JugadorMano) > 0) break;
            }
        } else if (!(NumeroMano == 1 && TurnoSalida == 1)) {
            if (TurnoSalida == 1) {
                for (int vuelta = 0; vuelta < 4; ++vuelta) {
                    SiguienteJugador(JugadorMano);
                    if (RestoJugador(JugadorMano) > 0) break;
                }
            } else {
                EligeMano();
                if (!PartidaViva) return;
            }
        }
        // In the Siete y media the banker deals: the stock lies beside it.
        if (JuegoActual == JUEGO_SIETEYMEDIA) {
            ColocaMazo();
            MazoX = MazoBaseX;
            MazoY = MazoBaseY;
        }
        // Paso 4. Each seat with money puts in the entry stake, in Póker only.
        FaseJuego = 2;
        int seat = JugadorMano;
        for (int vuelta = 0; vuelta < 4 && !ContraBanca(); ++vuelta) {
            const int resto = RestoJugador(seat);
            int entrada = std::min(ApuestaMinima, resto);
            // A pot dealt again keeps its entry stakes: a new one goes in only as far as the
            // hand's limit allows.
            if (JuegoActual == JUEGO_POKER)
                entrada = std::min(entrada, ApuestaMaxima - ApuestaAcumulada(seat, 1));
            if (resto > 0 && EstadoJugador[seat] == ESTADO_ACTIVADO)
                ApuestaConFichas(seat, entrada);
            SiguienteJugador(seat);
            if (seat == JugadorMano) break;
        }
        // Paso 5. The deal; a manual deal given up returns the stakes and starts again.
        AnularReparto = false;
        // The Black Jack deals after the stakes, in its own driver.
        if (JuegoActual == JUEGO_BLACKJACK) break;
        ReparteCartas();
        if (!PartidaViva) return;
        if (!AnularReparto) break;
        // The manual deal was given up: the stakes go back and the hand starts again, with the
        // pot as it stood.
        int bote = 0;
        for (int s = 1; s <= 4; ++s) {
            RecomponeFichas(s, RestoAlEmpezar[s]);
            for (int e = 0; e <= 4; ++e) {
                for (int f = 0; f <= 5; ++f) {
                    Apuesta[s][e][f] = ApuestaCopia[s][e][f];
                    bote += ApuestaCopia[s][e][f];
                }
                NumHistorial[s][e] = 0;
            }
        }
        RecomponeFichas(0, ApuestaDelante ? 0 : bote);
        AnularReparto = false;
    }
    // Paso 6. The pot, the stock and the names drawn, and the hand in play.
    DibujaPilas(0);
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    DibujaNombres();
    RefrescaMesa();
    ManoViva = true;
}
