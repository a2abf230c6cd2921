// The computer player of the Mus in positions whose answer is worked out by hand: the cut, the
// discards, the órdago; the gestures each hand queues; how often a partner and a rival catch a
// gesture; the panel's buttons in each state of a lance; and level 100 against level 0.
#include "bench/Automatica.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/JugadorMus.h"
#include "games/mus/Mus.h"
#include "support/MesaDePrueba.h"
#include "table/GblMesa.h"

#include <QCryptographicHash>
#include <cmath>
#include <map>
#include <cstdio>

#include <gtest/gtest.h>

namespace {

// "Ro Ce 7b As": value A, 2..7, S Sota, C Caballo, R Rey; suit o c e b.
void DaMano(int seat, const char* texto) {
    const QStringList cartas = QString::fromUtf8(texto).split(' ');
    for (int p = 1; p <= 4; ++p) {
        const QString c = cartas[p - 1];
        const QChar v = c[0];
        const int valor = v == 'A'   ? 1
                          : v == 'S' ? 10
                          : v == 'C' ? 11
                          : v == 'R' ? 12
                                     : v.digitValue();
        CartasJugador[seat][1][p][CAMPO_PALO] = QStringLiteral("oceb").indexOf(c[1]) + 1;
        CartasJugador[seat][1][p][CAMPO_VALOR] = valor;
    }
    NumCartas[seat][1] = 4;
}

// A first hand of Mus with the mano at seat 1, so seats 1 and 2 speak before their partners.
void PreparaPosicion(int fase, int nivel, int caracter) {
    JuegoActual = JUEGO_MUS;
    TipoMus = 1;
    TreintaYUnaReal = 1;
    PiedrasJuego = 30;
    ParametrosJuego();
    FaseJuego = fase;
    JugadorMano = JugadorActual = 1;
    NumeroBaza = 0;
    ManoViva = false; // no faces drawn
    AzarFrase = 0.5;
    LimpiaSenas();
    for (auto& lance : LanceMus) lance = LanceDeMus{};
    for (int s = 0; s <= 4; ++s) {
        Piedras[s] = s == 0 ? PIEDRAS_MONTON : 0;
        PiedrasCompletas[s] = OrdenCortar[s] = OrdenEnvidar[s] = false;
        PlanMus[s] = 0;
        NivelJugador[s] = nivel;
        CaracterJugador[s] = caracter;
    }
    // The others hold middling hands: pares for seat 2, juego for seat 4, nothing for seat 1.
    DaMano(1, "4o 5c 6e Ab");
    DaMano(2, "7o 7c 3e 2b");
    DaMano(4, "So Cc 6o 5b");
    DaMano(3, "4c 5o 6c Ac");
}

} // namespace

// The cut, the discards and the answer to an órdago, in hands where the rules give the answer.
TEST(MusJugador, CutsDiscardsAndAnswersAsTheHandSays) {
    MesaDePrueba mesa;
    // Four kings at level 100 cut: fewer than one hand in a thousand beats its pares.
    PreparaPosicion(FASE_MUS_MUS, 100, 2);
    DaMano(3, "Ro Rc Re Rb");
    PiensaMus(3);
    EXPECT_TRUE(QuiereCortar);
    // Nothing at all, and no juego to aim at: it asks for cards.
    PreparaPosicion(FASE_MUS_MUS, 100, 2);
    PiensaMus(3);
    EXPECT_FALSE(QuiereCortar);

    // Discards. Medias of kings throw the odd card; a 31 aiming at juego throws the Sota, the
    // card whose other three count 21; and the tutor thinks at level 100 but leaves the level.
    const struct {
        const char* mano;
        bool marca[5];
    } descartes[] = {
        {"Ro Rc Re 5b", {false, false, false, false, true}},
        {"Sc Ro Cb Ae", {false, true, false, false, false}},
        {"Ro Sc 7e 3b", {false, false, false, false, true}},
    };
    for (const auto& d : descartes) {
        PreparaPosicion(FASE_MUS_DESCARTE, 0, 2);
        DaMano(3, d.mano);
        TutorEnCurso = true;
        PiensaMus(3);
        TutorEnCurso = false;
        EXPECT_EQ(NivelJugador[3], 0);
        for (int p = 1; p <= 4; ++p) EXPECT_EQ(MarcaDescarte[p], d.marca[p]) << d.mano << " " << p;
    }

    // An órdago at Grandes from seat 2: a weak hand refuses whatever its character; four kings
    // take it when agresivo, and a conservador takes it only well ahead in the game.
    const struct {
        const char* mano;
        int caracter, nuestras, suyas, respuesta;
    } ordagos[] = {
        {"4c 5o 6c Ac", 3, 0, 0, 0},       {"4c 5o 6c Ac", 1, 28, 0, 0},
        {"Ro Rc Re Rb", 3, 0, 0, ORDAGO},  {"Ro Rc Re Rb", 1, 0, 0, 0},
        {"Ro Rc Re Rb", 1, 28, 5, ORDAGO},
    };
    for (const auto& o : ordagos) {
        PreparaPosicion(FASE_MUS_ENVITE, 100, o.caracter);
        DaMano(3, o.mano);
        Piedras[1] = o.nuestras; // loose stones of each pair
        Piedras[2] = o.suyas;
        LanceActual = LANCE_GRANDE;
        for (int s = 1; s <= 4; ++s) LanceMus[LANCE_GRANDE].Tiene[s] = true;
        ApuestaMaxRonda = ApuestaPersona = ORDAGO;
        JugadorMaxApuesta = 2;
        TurnosDesdeSubida = 2;
        PiensaMus(3);
        EXPECT_EQ(ApuestaOrdenador, o.respuesta) << o.mano << " caracter " << o.caracter;
    }
}

// The queue of gestures by the hand: pares first, which duples, then juego or punto; plain medias
// only in the lances from Chicas on.
TEST(MusSenas, EachHandQueuesTheGesturesThatTellIt) {
    MesaDePrueba mesa;
    const struct {
        const char* mano;
        int fase, lance;
        std::vector<int> cola;
    } casos[] = {
        {"4c 5o 6c Ac", FASE_MUS_MUS, 0, {SENA_NADA}},
        {"Ro Sc 7e 3b", FASE_MUS_MUS, 0, {SENA_NADA, SENA_PUNTO_30}},
        {"Ro Rc Re Rb", FASE_MUS_MUS, 0, {SENA_DUPLES, SENA_PAR_REYES, SENA_JUEGO}},
        {"Ao Ac Ae Ab", FASE_MUS_MUS, 0, {SENA_DUPLES, SENA_PAR_ASES}},
        {"Ro Rc Ae Ab", FASE_MUS_MUS, 0, {SENA_DUPLES}},
        {"Ro Rc Re 5b", FASE_MUS_MUS, 0, {SENA_MEDIAS_REYES, SENA_JUEGO}},
        {"Ro Rc Sb Ae", FASE_MUS_MUS, 0, {SENA_PAR_REYES, SENA_31}},
        {"5o 5c 5e Rb", FASE_MUS_MUS, 0, {}},
        {"5o 5c 5e Rb", FASE_MUS_ENVITE, LANCE_GRANDE, {}},
        {"5o 5c 5e Rb", FASE_MUS_ENVITE, LANCE_CHICA, {SENA_MEDIAS}},
    };
    for (const auto& c : casos) {
        PreparaPosicion(c.fase, 50, 2);
        LanceActual = c.lance;
        DaMano(3, c.mano);
        PreparaSenas();
        std::vector<int> cola;
        for (int i = 1; i <= 4 && SenasJugador[3].Cola[i] != 0; ++i)
            cola.push_back(SenasJugador[3].Cola[i]);
        EXPECT_EQ(cola, c.cola) << c.mano << " fase " << c.fase << " lance " << c.lance;
        EXPECT_EQ(SenasJugador[3].Cursor, c.cola.empty() ? 0 : 1) << c.mano;
    }
}

// Seat 1 makes a gesture while its partner looks at it. The partner sees every one; each rival
// catches it when a draw from 1 to 100 falls below half of (its level - the signer's + 100), a
// chance worked out here by counting, with a tolerance of four standard deviations.
TEST(MusSenas, ThePartnerAlwaysSeesAndARivalAsOftenAsTheLevelsGive) {
    MesaDePrueba mesa;
    const struct { int senas, rival; } niveles[] = {{0, 100}, {50, 50}, {100, 60}, {100, 0}};
    constexpr int ENSAYOS = 2000;
    PausasACero = true;
    for (const auto& n : niveles) {
        PreparaPosicion(FASE_MUS_MUS, 50, 2);
        SemillaFija = 77;
        SiembraPartida();
        NivelJugador[1] = NivelJugador[3] = n.senas;
        NivelJugador[2] = NivelJugador[4] = n.rival;
        int umbral = (n.rival - n.senas + 100) / 2, favorables = 0;
        for (int k = 1; k <= 100; ++k) favorables += k < umbral;
        const double p = favorables / 100.0;
        int vistosPareja = 0, vistosRival = 0;
        for (int e = 0; e < ENSAYOS; ++e) {
            LimpiaSenas();
            // In the middle of its queue the seat holds its look at the partner.
            SenasJugador[1].Cola[1] = SENA_DUPLES;
            SenasJugador[1].Cola[2] = SENA_PAR_REYES;
            SenasJugador[1].Cursor = 2;
            SenasJugador[1].Mirada = SenasJugador[3].Mirada = MIRADA_COMPANERO;
            GestosSenas();
            vistosPareja += SenasJugador[3].Visto[1][2] == SENA_PAR_REYES;
            for (int r : {2, 4}) vistosRival += SenasJugador[r].Visto[1][2] == SENA_PAR_REYES;
            ASSERT_EQ(SenasJugador[1].Cursor, 1) << "the queue starts again after its last";
        }
        EXPECT_EQ(vistosPareja, ENSAYOS);
        const double tasa = vistosRival / (2.0 * ENSAYOS);
        const double tolerancia = 4 * std::sqrt(p * (1 - p) / (2.0 * ENSAYOS)) + 1e-9;
        EXPECT_NEAR(tasa, p, tolerancia) << "niveles " << n.senas << " y " << n.rival;
    }
    SemillaFija = 0;
    PausasACero = false;
}

// Every gesture and gaze draws a face of its own on the table, for each seat, both ways of showing
// the rivals and both sexes: a person can tell each one from the others.
TEST(MusSenas, EachGestureDrawsAFaceOfItsOwn) {
    MesaDePrueba mesa;
    PreparaPosicion(FASE_MUS_MUS, 50, 2);
    ManoViva = true;
    for (int s = 1; s <= 4; ++s) NumCartas[s][1] = 0; // nothing under the faces
    for (int imagen = 1; imagen <= 2; ++imagen)
        for (int sexo : {VOZ_HOMBRE, VOZ_MUJER})
            for (int seat = 1; seat <= 3; ++seat) {
                ImagenContrarios = imagen;
                VozSexo[seat] = sexo;
                SenasVisibles[seat] = true;
                std::map<QByteArray, int> caras;
                std::vector<int> codigos;
                for (int c = SENA_NADA; c <= SENA_MANDO_ENVIDAR; ++c) codigos.push_back(c);
                for (int g = MIRADA_ABAJO; g <= MIRADA_COMPANERO; ++g)
                    codigos.push_back(SENA_MIRADA + g);
                for (int c : codigos) {
                    DibujaSena(seat, c);
                    const QImage& t = Pic_Mesa.Imagen;
                    const QByteArray huella = QCryptographicHash::hash(
                        QByteArrayView(t.constBits(), t.sizeInBytes()), QCryptographicHash::Md5);
                    const auto [otra, nueva] = caras.emplace(huella, c);
                    EXPECT_TRUE(nueva) << "seat " << seat << " imagen " << imagen << " sexo "
                                       << sexo << ": " << c << " looks like " << otra->second;
                }
                SenasVisibles[seat] = false;
            }
}

// Both partners at level 0 keep their eyes down: nothing is ever delivered.
TEST(MusSenas, PartnersAtLevelZeroNeverMeetTheirEyes) {
    MesaDePrueba mesa;
    PreparaPosicion(FASE_MUS_MUS, 0, 2);
    PreparaSenas();
    for (int vuelta = 0; vuelta < 500; ++vuelta) GestosSenas();
    for (int s = 1; s <= 4; ++s) {
        EXPECT_EQ(SenasJugador[s].Mirada, MIRADA_ABAJO);
        for (int o = 1; o <= 4; ++o) EXPECT_FALSE(VioSena(s, SENA_NADA, o));
    }
}

// The person's panel in each state of a lance shows the buttons the lance allows, and no other.
TEST(MusJugador, ThePanelShowsExactlyThePermittedAnswers) {
    MesaDePrueba mesa;
    const struct {
        const char* estado;
        int lance, apuesta, envidador, turnos;
        bool companeroTiene, companeroHablo, companeroAcepta;
        QStringList botones;
    } casos[] = {
        {"nobody has bet, first to speak",
         LANCE_GRANDE,
         0,
         0,
         1,
         true,
         false,
         false,
         {"-", "+", "Envido", "Envidamos", "Paso", "Órdago"}},
        {"a rival's envite",
         LANCE_GRANDE,
         2,
         2,
         2,
         true,
         false,
         false,
         {"-", "+", "Acepto", "Aceptamos", "Paso", "Pasamos", "Órdago"}},
        {"a rival's envite just made",
         LANCE_CHICA,
         5,
         2,
         1,
         true,
         false,
         false,
         {"-", "+", "Acepto", "Aceptamos", "Paso", "Órdago"}},
        {"the partner lacks the pares",
         LANCE_PARES,
         2,
         2,
         2,
         false,
         false,
         false,
         {"-", "+", "Acepto", "Paso", "Órdago"}},
        {"the partner's envite, it has been a while",
         LANCE_GRANDE,
         2,
         3,
         3,
         true,
         true,
         true,
         {"Acepto", "Órdago"}},
        {"the partner refused a rival's envite",
         LANCE_GRANDE,
         2,
         2,
         2,
         true,
         true,
         false,
         {"-", "+", "Acepto", "Aceptamos", "Paso", "Órdago"}},
        {"a rival's órdago",
         LANCE_JUEGO,
         ORDAGO,
         2,
         2,
         true,
         false,
         false,
         {"Acepto", "Aceptamos", "Paso", "Pasamos"}},
    };
    for (const auto& c : casos) {
        PreparaPosicion(FASE_MUS_ENVITE, 50, 2);
        JugadorActual = 1;
        LanceActual = c.lance;
        LanceDeMus& lance = LanceMus[c.lance];
        for (int s = 1; s <= 4; ++s) lance.Tiene[s] = true;
        lance.Tiene[3] = c.companeroTiene;
        lance.Voz[3] = c.companeroHablo ? VOZ_HABLO : VOZ_CALLA;
        lance.Acepta[3] = c.companeroAcepta;
        ApuestaMaxRonda = c.apuesta;
        ApuestaPersona = c.apuesta == 0 ? 2 : c.apuesta;
        JugadorMaxApuesta = c.envidador;
        TurnosDesdeSubida = c.turnos;
        DibujaApostadoraMus();
        QStringList vistos = BotonesApostadoraMus(), esperados = c.botones;
        vistos.sort();
        esperados.sort();
        EXPECT_EQ(vistos, esperados) << c.estado;
        OcultaApostadoraMus();
    }
}

// Whole seeded matches of one game: the pair at level 100 against the pair at level 0, then the
// seats swapped so the mano of the first hand favours neither. The better pair wins clearly.
TEST(MusJugador, PairsAtLevel100BeatPairsAtLevel0) {
    const bool antes = ComprobarCoherencia;
    ComprobarCoherencia = true;
    MesaDePrueba mesa;
    constexpr int PARTIDAS = 60;
    int ganadas = 0, jugadas = 0;
    for (int lado = 1; lado <= 2; ++lado)
        for (unsigned semilla = 1; semilla <= PARTIDAS / 2; ++semilla) {
            PreparaMesaAutomatica(mesa.Carpeta.path());
            PreparaPartidaAutomatica({JUEGO_MUS, 4, true, [lado] {
                                          TipoMus = 1;
                                          JuegosPartidaMus = 1;
                                          PiedrasJuego = 30;
                                          for (int s = 1; s <= 4; ++s) {
                                              NivelJugador[s] = ParejaDe[s] == lado ? 100 : 0;
                                              CaracterJugador[s] = 2;
                                          }
                                      }});
            JuegaPartidaAutomatica(1000 * lado + semilla);
            ganadas += JuegosGanados[lado] > 0;
            ++jugadas;
        }
    std::printf("[          ] nivel 100 contra nivel 0: %d de %d juegos\n", ganadas, jugadas);
    // Clearly: more than two standard deviations above an even share of the games.
    EXPECT_GT(ganadas, jugadas / 2.0 + 2 * std::sqrt(jugadas / 4.0));
    ComprobarCoherencia = antes;
}
