// Whole matches of Mus at a table without a window: the stones each lance pays, checked against
// the result of the lance and the hands shown; envites, refusals and órdagos made by seats the
// test plays through the panel; games and vacas; a match put off and taken up again.
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"
#include "support/MesaDePrueba.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/GblMesa.h"
#include "table/Mensajes.h"
#include "table/Pulsadores.h"

#include <QFile>
#include <deque>
#include <map>
#include <random>

#include <gtest/gtest.h>

namespace {

int Vistos(const QString& titulo) {
    int n = 0;
    for (const auto& m : MensajesVistos) n += m.Titulo == titulo;
    return n;
}

struct Fin {
    bool Antes = ComprobarCoherencia;
    Fin() { ComprobarCoherencia = true; }
    ~Fin() {
        PausasACero = VuelosOmitidos = false;
        SemillaFija = 0;
        ComprobarCoherencia = Antes;
        PersonaGuionada = nullptr;
    }
};

// A table of Mus: the seats the test plays are manual, the others the computer's.
void PreparaMus(const QString& carpeta, std::initializer_list<int> manuales, int piedras = 30,
                int juegos = 2) {
    PreparaMesaAutomatica(carpeta);
    PreparaPartidaAutomatica({JUEGO_MUS, 4, true, [piedras, juegos] {
                                  PiedrasJuego = piedras;
                                  JuegosPartidaMus = juegos;
                                  DetallarPasos = true;
                              }});
    for (int s : manuales) ControlJugador[s] = CONTROL_MANUAL;
    PausasACero = VuelosOmitidos = true;
    RespuestasGuionadas.assign(8, false); // no history of these matches
}

// ---- What each lance should have paid, worked out from its result and the hands shown ----

ValorMano Valores[5];

int Valor(int seat, int lance) {
    const ValorMano& v = Valores[seat];
    switch (lance) {
    case LANCE_GRANDE:
        return v.Grande;
    case LANCE_CHICA:
        return v.Chica;
    case LANCE_PARES:
        return v.Pares;
    case LANCE_JUEGO:
        return v.RangoJuego == 0 ? 0 : 100 - v.RangoJuego + (v.Real31 ? 1000 : 0);
    default:
        return v.Punto;
    }
}

// The best hand from the mano round; an equal hand later on does not take it.
int Ganador(int lance) {
    int mejor = 0, seat = JugadorMano;
    for (int k = 0; k < 4; ++k) {
        if (Valor(seat, lance) > 0 && (mejor == 0 || Valor(seat, lance) > Valor(mejor, lance)))
            mejor = seat;
        seat = seat % 4 + 1;
    }
    return mejor;
}

int ValeEnLance(int seat, int lance) {
    if (lance == LANCE_PARES) return Valores[seat].ClasePares;
    if (Valores[seat].TotalJuego == 0) return 0;
    return Valores[seat].TotalJuego == 31 ? 3 : 2;
}

struct Esperado {
    int Piedras[3] = {};
};

Esperado PagoDeLance(int l, bool vioCartas) {
    const LanceDeMus& L = LanceMus[l];
    Esperado e;
    if (L.Estado >= ESTADO_NO_QUERIDO && L.Estado <= ESTADO_ORDAGO_NO)
        e.Piedras[ParejaDe[L.Envidador]] += L.HayPrevio ? L.EnvitePrevio : 1;
    if (!vioCartas || LanceOrdago != 0) return e;
    const int envite = L.Estado == ESTADO_ACEPTADO ? L.Envite : 0;
    if (l == LANCE_GRANDE || l == LANCE_CHICA) {
        if (L.Estado == ESTADO_EN_PASO) e.Piedras[ParejaDe[Ganador(l)]] += 1;
        if (L.Estado == ESTADO_ACEPTADO) e.Piedras[ParejaDe[Ganador(l)]] += envite;
    } else if (l == LANCE_PARES || l == LANCE_JUEGO) {
        if (L.Estado != 0 && L.Estado != ESTADO_NADIE) {
            const int pareja = ParejaDe[Ganador(l)];
            e.Piedras[pareja] += envite + ValeEnLance(pareja, l) + ValeEnLance(pareja + 2, l);
        }
    } else if (L.Estado != 0) {
        e.Piedras[ParejaDe[Ganador(l)]] += envite + 1;
    }
    return e;
}

// Follows a match hand by hand: at each end of hand, the stones of each pair against the lances.
struct Contable {
    int Antes[3] = {};
    bool VioCartas = false;
    int Manos = 0, ManosDeJuego = 0, Envites = 0, Ordagos = 0, NoQueridos = 0, Aceptados = 0;

    void FinDeMano() {
        ++Manos;
        for (int s = 1; s <= 4; ++s) {
            EvaluaManoMus(s);
            Valores[s] = ValoresMusActual;
        }
        int suma[3] = {};
        for (int l = LANCE_GRANDE; l <= LANCE_PUNTO; ++l) {
            const LanceDeMus& L = LanceMus[l];
            Envites += L.Envite > 0;
            Ordagos += L.Estado == ESTADO_ORDAGO;
            NoQueridos += L.Estado >= ESTADO_NO_QUERIDO && L.Estado <= ESTADO_ORDAGO_NO;
            Aceptados += L.Estado == ESTADO_ACEPTADO;
            const Esperado e = PagoDeLance(l, VioCartas);
            for (int p = 1; p <= 2; ++p) {
                suma[p] += L.Cobrado[p];
                if (GanaJuego == 0 || LanceOrdago != 0)
                    EXPECT_EQ(L.Cobrado[p], e.Piedras[p])
                        << "mano " << NumeroMano << " lance " << l << " estado " << L.Estado
                        << " pareja " << p;
                else // the game came in the middle: what follows it is not paid
                    EXPECT_LE(L.Cobrado[p], e.Piedras[p])
                        << "mano " << NumeroMano << " lance " << l;
            }
        }
        for (int p = 1; p <= 2; ++p) {
            EXPECT_EQ(suma[p], LanceMus[0].Cobrado[p]);
            EXPECT_EQ(PiedrasPareja(p) - Antes[p], suma[p]) << "mano " << NumeroMano;
        }
        // A game ends exactly when a pair reaches the stones of a game, or by an órdago.
        if (GanaJuego == 0) {
            for (int p = 1; p <= 2; ++p) EXPECT_LT(PiedrasPareja(p), PiedrasJuego);
        } else if (LanceOrdago == 0) {
            EXPECT_GE(PiedrasPareja(GanaJuego), PiedrasJuego);
            EXPECT_LT(Antes[GanaJuego], PiedrasJuego);
        } else {
            EXPECT_EQ(GanaJuego, ParejaDe[Ganador(LanceOrdago)]);
        }
        for (int p = 1; p <= 2; ++p) Antes[p] = GanaJuego != 0 ? 0 : PiedrasPareja(p);
        ManosDeJuego += GanaJuego != 0;
        VioCartas = false;
    }

    // Call at every wait of the table.
    void Espera() {
        if (FaseJuego == FASE_MUS_RESUELVE && ManoViva) VioCartas = true;
        if (FaseJuego == FASE_FIN_MANO && !ManoViva) FinDeMano();
    }
};

// ---- The seats the test plays ----

// Plays a manual seat at random within what the table offers it: mus or the cut, a few cards
// thrown, the truth in the declarations (after a lie that must be ignored), and any answer of
// the panel, with the figure raised now and then.
struct JugadorAlAzar {
    std::mt19937 Azar;
    int Mentiras = 0;
    explicit JugadorAlAzar(unsigned semilla) : Azar(semilla) {}
    double R() { return std::uniform_real_distribution<double>(0, 1)(Azar); }

    void Turno() {
        const int seat = JugadorActual;
        switch (FaseJuego) {
        case FASE_MUS_MUS:
            ASSERT_TRUE(Pic_Pulsador[PULSADOR_MUS].Visible &&
                        Pic_Pulsador[PULSADOR_NO_MUS].Visible);
            if (R() < 0.2) PulsaPulsador(PULSADOR_MANDO);
            PulsaPulsador(R() < 0.4 ? PULSADOR_MUS : PULSADOR_NO_MUS);
            return;
        case FASE_MUS_DESCARTE:
            for (int p = 1; p <= 4; ++p)
                CartasJugador[seat][1][p][CAMPO_ESTADO] = R() < 0.5 ? 1 : 2;
            JugadaHecha = true;
            EsperandoPersona = false;
            return;
        case FASE_MUS_ENVITE:
            if (RondaDeclaracion) return Declara();
            if (Pic_Apostadora.Visible) return Apuesta();
            break;
        default:
            break;
        }
        EsperandoPersona = false;
    }

    void Declara() {
        ASSERT_TRUE(Pic_Pulsador[PULSADOR_SI_HAY].Visible);
        const bool tiene = LanceMus[LanceActual].Tiene[JugadorActual];
        PulsaPulsador(tiene ? PULSADOR_NO_HAY : PULSADOR_SI_HAY);
        EXPECT_TRUE(EsperandoPersona) << "a press that lies is not taken";
        ++Mentiras;
        PulsaPulsador(tiene ? PULSADOR_SI_HAY : PULSADOR_NO_HAY);
        EXPECT_FALSE(EsperandoPersona);
        EXPECT_TRUE(tiene ? PulsoSi : PulsoNo);
    }

    void Apuesta() {
        QStringList botones = BotonesApostadoraMus();
        if (botones.contains("+") && R() < 0.3) {
            const int veces = 1 + static_cast<int>(R() * 4);
            for (int k = 0; k < veces; ++k) PulsaBotonApostadoraMus("+");
        }
        botones = BotonesApostadoraMus();
        botones.removeAll("+");
        botones.removeAll("-");
        // The órdago is rare, or matches would end at once.
        if (botones.contains("Órdago") && R() > 0.04) botones.removeAll("Órdago");
        ASSERT_FALSE(botones.isEmpty());
        const QString elegido = botones[static_cast<int>(R() * botones.size()) % botones.size()];
        ASSERT_TRUE(PulsaBotonApostadoraMus(elegido));
        EXPECT_FALSE(EsperandoPersona);
    }
};

} // namespace

// Computer seats: each hand pays its lances as they closed, a game ends exactly at the stones of
// a game, and the match when a pair has the games of its vacas.
TEST(MusPartida, AutomaticHandsPayTheirLancesAndGamesEndAtTheirStones) {
    Fin fin;
    for (const auto& [piedras, juegos, tipo] : {std::tuple{30, 2, 2}, {20, 1, 1}, {40, 2, 1}}) {
        MesaDePrueba mesa;
        PreparaMus(mesa.Carpeta.path(), {}, piedras, juegos);
        TipoMus = tipo;
        ParametrosJuego();
        Contable cuenta;
        PersonaGuionada = [&] {
            cuenta.Espera();
            EsperandoPersona = false;
        };
        SemillaFija = 11 + piedras;
        NuevaPartida();
        const int meta = juegos == 1 ? 1 : 3;
        EXPECT_EQ(JuegosGanados[GanadorPartida], meta);
        EXPECT_LT(JuegosGanados[3 - GanadorPartida], meta);
        EXPECT_EQ(Vistos("Final de Juego"), JuegosGanados[1] + JuegosGanados[2]);
        EXPECT_EQ(cuenta.ManosDeJuego, JuegosGanados[1] + JuegosGanados[2]);
        EXPECT_EQ(Vistos("Final de Partida"), 1);
        EXPECT_EQ(Vistos("Final de la mano"), cuenta.Manos);
        EXPECT_GT(cuenta.Manos, 3);
        // The report stands in columns: drawn in letters of one width, no row past 48.
        for (const auto& m : MensajesVistos) {
            if (m.Titulo != "Final de la mano") continue;
            EXPECT_TRUE(m.Columnas);
            for (const QString& fila : m.Texto.split(SaltoLinea)) EXPECT_LE(fila.size(), 48);
        }
        // The computer seats open, raise and refuse: the stones above still add up.
        EXPECT_GT(cuenta.Envites, 0);
    }
}

// Four seats played at random through the panel reach envites, raises, refusals and órdagos; the
// stones of every hand match the results of its lances.
TEST(MusPartida, EnvitesAndOrdagosPayWhatTheirLancesSay) {
    Fin fin;
    Contable cuenta;
    int manos = 0, mentiras = 0;
    for (unsigned semilla = 1; semilla <= 12; ++semilla) {
        MesaDePrueba mesa;
        PreparaMus(mesa.Carpeta.path(), {1, 2, 3, 4}, 30, semilla % 3 == 0 ? 2 : 1);
        TipoMus = semilla % 2 + 1;
        TreintaYUnaReal = semilla % 6 + 1;
        ParametrosJuego();
        JugadorAlAzar jugador(semilla);
        cuenta.Antes[1] = cuenta.Antes[2] = 0;
        PersonaGuionada = [&] {
            if (!EsperandoPersona) return;
            cuenta.Espera();
            if (ManoViva && ControlJugador[JugadorActual] == CONTROL_MANUAL) {
                jugador.Turno();
                if (EsperandoPersona) EsperandoPersona = false;
                return;
            }
            EsperandoPersona = false;
        };
        SemillaFija = semilla;
        NuevaPartida();
        EXPECT_EQ(Vistos("Final de Partida"), 1) << "semilla " << semilla;
        mentiras += jugador.Mentiras;
        manos += cuenta.Manos;
        cuenta.Manos = 0;
    }
    EXPECT_GT(mentiras, 20);
    EXPECT_GT(cuenta.Envites, 20);
    EXPECT_GT(cuenta.Aceptados, 5);
    EXPECT_GT(cuenta.NoQueridos, 5);
    EXPECT_GT(cuenta.Ordagos, 0);
    std::printf("[          ] %d manos: %d envites, %d aceptados, %d no queridos, %d órdagos\n",
                manos, cuenta.Envites, cuenta.Aceptados, cuenta.NoQueridos, cuenta.Ordagos);
}

// The Grandes of a first hand, played to a script by seats 1, 2 and 4, with the mano at seat 1
// and seat 3 the computer's, which stands by its partner's envite in silence; in the rows where
// seat 3 has a free say the script plays it too. Each row is what the seats answer in turn; "+3
// Envido" raises the figure three times first.
TEST(MusPartida, EachWayOfClosingALanceIsPaidAsItSays) {
    Fin fin;
    const struct {
        std::vector<const char*> respuestas; // in the order the seats speak
        int estado, cobra1, cobra2;          // the lance's result and the stones of each pair
        bool acepta3;         // seat 3 stood by its partner, or was taken in by its órdago
        bool manual3 = false; // seat 3 answers to the script too, where it has a free say
    } casos[] = {
        // Refused by both rivals, seat 3 in between: one stone at once to pair 1.
        {{"Envido", "Paso", "Paso"}, ESTADO_NO_QUERIDO, 1, 0, true},
        // One rival takes it and the other doesn't: the pair does not take it.
        {{"Envido", "Paso", "Acepto"}, ESTADO_NO_QUERIDO, 1, 0, true},
        // A raise to 5, which seat 4 may only follow, refused: the 2 it raised go to pair 2.
        {{"Envido", "+3 Envido", "Paso", "Acepto", "Paso"}, ESTADO_REENVITE_NO, 0, 2, false, true},
        // Taken for both by seat 2: seat 4 has no say, and the envite goes to the best hand.
        {{"Envido", "Aceptamos"}, ESTADO_ACEPTADO, -2, -2, true},
        // Taken by each rival.
        {{"Envido", "Acepto", "Acepto"}, ESTADO_ACEPTADO, -2, -2, true},
        // An órdago refused: one stone.
        {{"Órdago", "Paso", "Paso"}, ESTADO_ORDAGO_NO, 1, 0, true},
        // A rival's órdago is answered aloud by the computer, not taken in silence: early in a
        // game a conservador refuses it, and so does seat 1.
        {{"Paso", "Órdago", "Paso"}, ESTADO_ORDAGO_NO, 0, 1, false},
        // An órdago taken: no stone moves, the best Grandes wins the game.
        {{"Órdago", "Acepto"}, ESTADO_ORDAGO, 0, 0, true},
        // Nobody bets: one stone at the end to the best Grandes.
        {{"Paso", "Paso", "Paso", "Paso"}, ESTADO_EN_PASO, -1, -1, false, true},
    };
    for (const auto& c : casos) {
        MesaDePrueba mesa;
        if (c.manual3)
            PreparaMus(mesa.Carpeta.path(), {1, 2, 3, 4});
        else
            PreparaMus(mesa.Carpeta.path(), {1, 2, 4});
        TurnoSalida = 2;        // the test chooses the mano
        CaracterJugador[3] = 1; // no órdago of its own
        std::deque<const char*> guion(c.respuestas.begin(), c.respuestas.end());
        bool visto = false;
        QString caso = c.respuestas.front();
        for (size_t i = 1; i < c.respuestas.size(); ++i) caso += QString(" / ") + c.respuestas[i];
        PersonaGuionada = [&] {
            if (EligiendoMano) {
                JugadorBajoPuntero = 1;
                EligiendoMano = false;
                return;
            }
            if (!EsperandoPersona) return;
            const bool manual = ControlJugador[JugadorActual] == CONTROL_MANUAL;
            if (ManoViva && manual && FaseJuego == FASE_MUS_MUS) {
                PulsaPulsador(PULSADOR_NO_MUS);
            } else if (ManoViva && manual && FaseJuego == FASE_MUS_ENVITE && RondaDeclaracion) {
                PulsaPulsador(TieneLanceTurno ? PULSADOR_SI_HAY : PULSADOR_NO_HAY);
            } else if (ManoViva && manual && Pic_Apostadora.Visible) {
                QString respuesta = "Paso";
                const bool guionado = LanceActual == LANCE_GRANDE && !guion.empty();
                if (guionado) {
                    respuesta = QString::fromUtf8(guion.front());
                    guion.pop_front();
                }
                if (respuesta.startsWith('+')) {
                    for (int k = 0; k < respuesta.mid(1, 1).toInt(); ++k)
                        ASSERT_TRUE(PulsaBotonApostadoraMus("+"));
                    respuesta = respuesta.mid(3);
                }
                if (!guionado && !BotonesApostadoraMus().contains(respuesta))
                    respuesta = BotonesApostadoraMus().contains("Acepto") ? "Acepto" : "Envido";
                if (!PulsaBotonApostadoraMus(respuesta)) {
                    ADD_FAILURE() << respuesta.toStdString() << " not offered in "
                                  << caso.toStdString();
                    PartidaViva = false;
                }
            } else if (!ManoViva && FaseJuego == FASE_FIN_MANO) {
                visto = true;
                const LanceDeMus& g = LanceMus[LANCE_GRANDE];
                for (int s = 1; s <= 4; ++s) {
                    EvaluaManoMus(s);
                    Valores[s] = ValoresMusActual;
                }
                const int ganadora = ParejaDe[Ganador(LANCE_GRANDE)];
                EXPECT_EQ(g.Estado, c.estado) << caso.toStdString();
                const int cobra[3] = {0, c.cobra1, c.cobra2};
                for (int p = 1; p <= 2; ++p) {
                    int esperado = cobra[p];
                    if (esperado < 0) esperado = p == ganadora ? -esperado : 0;
                    EXPECT_EQ(g.Cobrado[p], esperado) << caso.toStdString() << " pareja " << p;
                }
                EXPECT_EQ(g.Acepta[3], c.acepta3) << caso.toStdString();
                if (c.estado == ESTADO_ORDAGO) {
                    EXPECT_EQ(LanceOrdago, LANCE_GRANDE);
                    EXPECT_EQ(GanaJuego, ganadora);
                    EXPECT_EQ(LanceMus[LANCE_CHICA].Estado, 0) << "nothing after an órdago";
                }
                PartidaViva = false;
            }
            EsperandoPersona = false;
        };
        NuevaPartida();
        EXPECT_TRUE(visto) << caso.toStdString();
        EXPECT_TRUE(guion.empty()) << caso.toStdString();
    }
}

// A match put off in the middle of a hand of its second game comes back with the stones as the
// hand began, the games won and the same hand number.
TEST(MusPartida, AMatchPutOffComesBackWithItsStonesAndGames) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaMus(mesa.Carpeta.path(), {});
    ContinuarManual = false;
    int piedras[5] = {}, ganados[5] = {}, mano = 0;
    bool completas[5] = {};
    RespuestasGuionadas.clear();
    PersonaGuionada = [&] {
        if (!EsperandoPersona) return;
        if (mano == 0 && JuegosGanados[1] + JuegosGanados[2] >= 1 && NumeroMano >= 2 &&
            FaseJuego == FASE_MUS_RESUELVE && ManoViva) {
            mano = NumeroMano;
            for (int s = 0; s <= 4; ++s) {
                piedras[s] = PiedrasCopia[s];
                ganados[s] = JuegosGanados[s];
                completas[s] = PiedrasCompletas[s];
            }
            RespuestasGuionadas.push_back(true); // yes, put it off
            PulsaBoton(BOTON_SALIR);
            return;
        }
        EsperandoPersona = false;
    };
    GrabaJuego();
    SemillaFija = 5;
    NuevaPartida();
    ASSERT_GT(mano, 0);
    ASSERT_EQ(Vistos("Posponer la partida en curso"), 1);

    ReiniciaEstado();
    for (int& p : Piedras) p = 0;
    for (int& g : JuegosGanados) g = 0;
    // A program started afresh knows its stones from the file, not where the heap lay.
    for (int i = 0; i <= 25; ++i) PiedraMontonX[i] = PiedraMontonY[i] = 0;
    JuegoActual = JUEGO_MUS;
    int manoReanudada = 0, piedrasReanudada[5] = {}, ganadosReanudada[5] = {};
    bool completasReanudada[5] = {};
    PersonaGuionada = [&] {
        if (manoReanudada == 0) {
            manoReanudada = NumeroMano;
            for (int s = 0; s <= 4; ++s) {
                piedrasReanudada[s] = PiedrasCopia[s];
                ganadosReanudada[s] = JuegosGanados[s];
                completasReanudada[s] = PiedrasCompletas[s];
            }
        }
        PartidaViva = false;
        EsperandoPersona = false;
    };
    AbreJuego();
    EXPECT_EQ(manoReanudada, mano);
    for (int s = 0; s <= 4; ++s) {
        EXPECT_EQ(piedrasReanudada[s], piedras[s]) << s;
        EXPECT_EQ(ganadosReanudada[s], ganados[s]) << s;
        EXPECT_EQ(completasReanudada[s], completas[s]) << s;
    }
    for (int i = 1; i <= PIEDRAS_MONTON; ++i)
        EXPECT_TRUE(PiedraMontonX[i] >= PilaX[0][5] && PiedraMontonX[i] < PilaX[0][5] + 44) << i;
}

// The big button at every wait of a few hands, the computer seats waiting for it too: "Decide"
// in the round of mus, "Descarta" in the discards, "Envida" through the lances and their
// declarations, "Mostrar cartas" or "Resolver órdago" at the showdown, and on the person's own
// turns its name and "automático".
TEST(MusPartida, TheBigButtonSaysWhatTheSeatOnTurnIsDoing) {
    Fin fin;
    MesaDePrueba mesa;
    PreparaMus(mesa.Carpeta.path(), {4});
    ContinuarManual = true;
    std::map<QString, int> vistos; // each expected caption, and how often it was seen
    int declaraciones[3] = {};     // [computer, person]
    PersonaGuionada = [&] {
        if (!EsperandoPersona) return;
        if (ManoViva) {
            const bool persona = ControlJugador[JugadorActual] == CONTROL_MANUAL;
            QString uno = NombreJugador[JugadorActual], dos = "automático";
            if (FaseJuego == FASE_MUS_RESUELVE) {
                uno = LanceOrdago != 0 ? "Resolver" : "Mostrar";
                dos = LanceOrdago != 0 ? "órdago" : "cartas";
            } else if (!persona) {
                dos = NombreJugador[JugadorActual];
                uno = FaseJuego == FASE_MUS_MUS        ? "Decide"
                      : FaseJuego == FASE_MUS_DESCARTE ? "Descarta"
                                                       : "Envida";
            }
            EXPECT_EQ(LineaContinuar(1), uno) << "fase " << FaseJuego;
            EXPECT_EQ(LineaContinuar(2), dos) << "fase " << FaseJuego;
            ++vistos[uno + " " + (persona ? "persona" : dos.left(7))];
            if (RondaDeclaracion) ++declaraciones[persona ? 1 : 0];
            if (persona && FaseJuego == FASE_MUS_MUS) return PulsaPulsador(PULSADOR_MUS);
        } else if (NumeroMano >= 8) {
            PartidaViva = false;
        }
        EsperandoPersona = false;
    };
    SemillaFija = 31;
    NuevaPartida();
    for (const char* c : {"Decide Jugador", "Descarta Jugador", "Envida Jugador", "Mostrar cartas",
                          "Jugador4 persona"})
        EXPECT_GT(vistos[c], 0) << c;
    EXPECT_GT(declaraciones[0], 0);
    EXPECT_GT(declaraciones[1], 0);
}
