// The seats window, driven as the person drives it: the seats that can't be switched off, the
// selectors that hold each other, the active seats settled on closing, the bank of the Black
// Jack, names, the voice panel and its knobs, the voices without an engine, the card back.
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "settings/Personal.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"
#include "tests/settings/VentanasDePrueba.h"

using namespace prueba;

namespace {

const MensajeVisto* Visto(const QString& titulo) {
    for (const MensajeVisto& m : MensajesVistos)
        if (m.Titulo == titulo) return &m;
    return nullptr;
}

void PartidaSinPersona() {
    PersonaGuionada = [] {
        PartidaViva = false;
        EsperandoPersona = EligiendoMano = false;
    };
}

void BancaDeBlackJack() {
    JuegoActual = JUEGO_BLACKJACK;
    NombreJugador[2] = "Banca";
    for (int s = 1; s <= 4; ++s) CartasVisibles[s] = 2;
}

} // namespace

TEST(Personal, SeatsThatMustPlayStaySwitchedOnAndSayWhy) {
    const struct {
        int Juego, Selector;
        int Ayuda; // 0: the selector steps, no message
    } casos[] = {
        {JUEGO_MUS, 11, 2113},       {JUEGO_CINQUILLO, 14, 2113}, {JUEGO_BLACKJACK, 12, 2113},
        {JUEGO_BLACKJACK, 21, 2117}, {JUEGO_BLACKJACK, 11, 0},    {JUEGO_TUTE, 13, 0},
        {JUEGO_TUTE, 23, 0},
    };
    for (const auto& caso : casos) {
        MesaDePrueba mesa;
        JuegoActual = caso.Juego;
        if (caso.Juego == JUEGO_BLACKJACK) BancaDeBlackJack();
        int* ajuste = AjusteDeSelector(caso.Selector);
        const int antes = *ajuste;
        AbreYActua(BOTON_PERSONALIZAR,
                   [&] { Pulsa(FormularioPersonal(), TipoControl::Selector, caso.Selector); });
        const std::string nombre =
            "game " + std::to_string(caso.Juego) + " selector " + std::to_string(caso.Selector);
        EXPECT_EQ(*ajuste == antes, caso.Ayuda != 0) << nombre;
        const MensajeVisto* aviso = Visto("Selector desactivado");
        ASSERT_EQ(aviso != nullptr, caso.Ayuda != 0) << nombre;
        if (aviso) EXPECT_EQ(aviso->Ayuda, caso.Ayuda) << nombre;
    }
}

TEST(Personal, HiddenCardsAndManualControlMendEachOther) {
    const struct {
        int Selector;
        int Cartas, Control; // the seat before the press
        bool Acepta;
        int CartasFin, ControlFin, Lineas, Ayuda;
    } casos[] = {
        {24, 2, 2, true, 1, 1, 6, 2117},  // hidden cards: the seat goes automatic
        {24, 2, 2, false, 2, 2, 6, 2117}, // Cancelar: as it was
        {28, 1, 1, true, 2, 2, 5, 2114},  // manual: the cards come up
        {28, 1, 1, false, 1, 1, 5, 2114},
    };
    for (const auto& caso : casos) {
        MesaDePrueba mesa;
        JuegoActual = JUEGO_TUTE;
        CartasVisibles[4] = caso.Cartas;
        ControlJugador[4] = caso.Control;
        // A card in the seat's hand shows as its seat's cards are set.
        CartasJugador[4][1][1][CAMPO_PALO] = 1;
        CartasJugador[4][1][1][CAMPO_VALOR] = 3;
        CartasJugador[4][1][1][CAMPO_CARA] = caso.Cartas;
        NumCartas[4][1] = 1;
        RespuestasGuionadas = {caso.Acepta};
        AbreYActua(BOTON_PERSONALIZAR,
                   [&] { Pulsa(FormularioPersonal(), TipoControl::Selector, caso.Selector); });
        EXPECT_EQ(CartasVisibles[4], caso.CartasFin) << caso.Selector << " " << caso.Acepta;
        EXPECT_EQ(ControlJugador[4], caso.ControlFin) << caso.Selector << " " << caso.Acepta;
        EXPECT_EQ(CartasJugador[4][1][1][CAMPO_CARA], caso.CartasFin);
        const MensajeVisto* pregunta = Visto("Selecciones incompatibles");
        ASSERT_NE(pregunta, nullptr);
        EXPECT_EQ(pregunta->Lineas, caso.Lineas);
        EXPECT_EQ(pregunta->Ayuda, caso.Ayuda);
    }
}

TEST(Personal, ActiveSeatsAreSettledWhenTheWindowCloses) {
    const struct {
        std::vector<int> Apaga;
        int Mano;
        bool Acepta;
        bool Cierra, Pregunta, NuevaPartida;
        int Jugadores;
    } casos[] = {
        {{1, 2, 3}, 0, true, false, false, false, 4}, // one seat left: the window stays
        {{3}, 1, true, true, false, true, 3},         // the first hand: no question
        {{3}, 3, false, true, true, false, 4},        // Cancelar: the seats come back
        {{3}, 3, true, true, true, true, 3},
    };
    for (const auto& caso : casos) {
        MesaDePrueba mesa;
        JuegoActual = JUEGO_TUTE;
        ParametrosJuego();
        ModalidadPareja = 2;
        TurnoSalida = 1;
        PartidaViva = ManoViva = caso.Mano > 0;
        NumeroMano = caso.Mano;
        PartidaSinPersona();
        RespuestasGuionadas = {caso.Acepta};
        const bool cerrada = AbreYActua(BOTON_PERSONALIZAR, [&] {
            Formulario& f = FormularioPersonal();
            for (int s : caso.Apaga) Pulsa(f, TipoControl::Selector, 10 + s);
            Pulsa(f, TipoControl::Salir, 0);
        });
        const std::string nombre =
            "hand " + std::to_string(caso.Mano) + " off " + std::to_string(caso.Apaga.size());
        EXPECT_EQ(cerrada, caso.Cierra) << nombre;
        EXPECT_EQ(Visto("Número de Jugadores") != nullptr, !caso.Cierra) << nombre;
        EXPECT_EQ(Visto("Jugadores Activados") != nullptr, caso.Pregunta) << nombre;
        EXPECT_EQ(Visto("Comienza la Partida") != nullptr, caso.NuevaPartida) << nombre;
        EXPECT_EQ(NumJugadores, caso.Jugadores) << nombre;
        EXPECT_EQ(EstadoJugador[3], caso.Cierra && !caso.Acepta ? 1 : 2) << nombre;
        if (caso.Cierra) EXPECT_EQ(ModalidadPareja, caso.Jugadores == 4 ? 2 : 1) << nombre;
    }
}

TEST(Personal, SoundOffHidesTheVoicesAndTheBankIsTheProgramsOwn) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    SonidoActivado = VocesActivadas = true;
    MotorVozHombre = 1;
    bool vocesAntes = false, vocesDespues = true, botonesDespues = true;
    AbreYActua(BOTON_PERSONALIZAR, [&] {
        Formulario& f = FormularioPersonal();
        vocesAntes = Control(f, TipoControl::Buleano, 47)->Visible &&
                     Control(f, TipoControl::Pulsador, 94)->Visible;
        Pulsa(f, TipoControl::Buleano, 44);
        vocesDespues = Control(f, TipoControl::Buleano, 47)->Visible;
        botonesDespues = false;
        for (int s = 1; s <= 4; ++s)
            botonesDespues = botonesDespues || Control(f, TipoControl::Pulsador, 90 + s)->Visible;
    });
    EXPECT_TRUE(vocesAntes);
    EXPECT_FALSE(vocesDespues);
    EXPECT_FALSE(botonesDespues);
    EXPECT_FALSE(SonidoActivado);
    EXPECT_TRUE(VocesActivadas) << "the voices keep their setting for when the sound comes back";

    // In Black Jack seat 2 is the bank: its name can't be typed, and it has no controls but its
    // state, which refuses to change.
    BancaDeBlackJack();
    std::vector<int> visibles;
    AbreYActua(BOTON_PERSONALIZAR, [&] {
        Formulario& f = FormularioPersonal();
        for (const ControlPintado& c : f.Controles)
            if (c.Visible && (c.Indice == 22 || c.Indice == 26 || c.Indice == 32 ||
                              c.Indice == 62 || c.Indice == 92))
                visibles.push_back(c.Indice);
        Clic(Control(f, TipoControl::Nombre, 2)->Zona.center());
        Escribe("Pepe");
    });
    EXPECT_TRUE(visibles.empty());
    EXPECT_EQ(NombreJugador[2], "Banca");
}

TEST(Personal, NamesTakeCapitalsAndTheVoiceKnobsWaitPastTheirEnds) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    SonidoActivado = VocesActivadas = true;
    MotorVozHombre = 1;
    VozTono[4] = 50;
    std::vector<int> tonos;
    bool panelAbierto = false, panelCerrado = false;
    AbreYActua(BOTON_PERSONALIZAR, [&] {
        Formulario& f = FormularioPersonal();
        Clic(Control(f, TipoControl::Nombre, 4)->Zona.center());
        Tecla(Qt::Key_End);
        for (int i = 0; i < 12; ++i) Tecla(Qt::Key_Backspace);
        Escribe(" juAN pEDRO");
        Pulsa(f, TipoControl::Pulsador, 94);
        panelAbierto = Control(f, TipoControl::Potenciometro, 66)->Visible && JugadorModiVoz == 4;
        const QRect z = Control(f, TipoControl::Potenciometro, 66)->Zona;
        const QPoint pomo = z.topLeft() + QPoint(50 + 14, 26);
        Arrastra(pomo, pomo + QPoint(80, 0)); // far beyond the end of the scale
        tonos.push_back(VozTono[4]);
        Raton(QEvent::MouseMove, pomo + QPoint(70, 0), Qt::LeftButton); // still beyond it
        tonos.push_back(VozTono[4]);
        Raton(QEvent::MouseMove, pomo + QPoint(40, 0), Qt::LeftButton); // back on the scale
        tonos.push_back(VozTono[4]);
        Raton(QEvent::MouseButtonRelease, pomo + QPoint(40, 0), Qt::NoButton);
        Pulsa(f, TipoControl::Selector, 31); // elsewhere: the panel goes
        panelCerrado = !Control(f, TipoControl::Potenciometro, 66)->Visible;
    });
    EXPECT_EQ(NombreJugador[4], "Juan Pedr") << "nine letters, each word with its capital";
    EXPECT_TRUE(panelAbierto);
    EXPECT_EQ(tonos, (std::vector<int>{100, 100, 90}));
    EXPECT_TRUE(panelCerrado);
}

TEST(Personal, VoicesWithoutAnEngineOfferThePageOnInstallingThem) {
    const struct {
        bool Acepta, HayNavegador;
        bool Pagina, Fin, Aviso;
    } casos[] = {
        {false, true, false, false, false},
        {true, false, true, false, true}, // no browser: how to install them, in words
        {true, true, true, true, false},  // the page opens, and the program ends
    };
    for (const auto& caso : casos) {
        MesaDePrueba mesa;
        JuegoActual = JUEGO_TUTE;
        SonidoActivado = true;
        VocesActivadas = false;
        MotorVozHombre = MotorVozMujer = 0;
        QUrl abierta;
        bool fin = false;
        AbrePaginaWeb = [&](const QUrl& url) {
            abierta = url;
            return caso.HayNavegador;
        };
        FinPrograma = [&] { fin = true; };
        RespuestasGuionadas = {caso.Acepta};
        AbreYActua(BOTON_PERSONALIZAR,
                   [&] { Pulsa(FormularioPersonal(), TipoControl::Buleano, 47); });
        ASSERT_FALSE(MensajesVistos.empty());
        EXPECT_EQ(MensajesVistos.front().Titulo, "Voces de los jugadores");
        EXPECT_EQ(MensajesVistos.front().Ayuda, 7010);
        EXPECT_EQ(abierta.isValid(), caso.Pagina);
        if (caso.Pagina) EXPECT_EQ(abierta.toString(), PAGINA_VOCES);
        EXPECT_EQ(fin, caso.Fin);
        EXPECT_EQ(MensajesVistos.size(), caso.Aviso ? 2u : 1u);
        EXPECT_FALSE(VocesActivadas);
        AbrePaginaWeb = nullptr;
    }
}

TEST(Personal, ANewCardBackReachesTheSmallBacksOfTheWonTricks) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    ParametrosJuego();
    ReversoCartas = 1;
    ReversosReducidos();
    PartidaViva = ManoViva = true;
    NumeroMano = 1;
    NumeroBaza = 1;
    GanadorDeBaza[1] = 2; // seat 2 has taken a trick: its small back lies on the table
    DibujaBazas(2);
    // The small back lies as its seat's cards lie: upright at the sides, flat at top and bottom.
    const bool dePie = OrientacionSeat[2] == 1 || OrientacionSeat[2] == 3;
    const int ancho = dePie ? 76 : 107, alto = dePie ? 107 : 76;
    const QImage antes = Pic_ReversoRedu[dePie ? 1 : 2].Imagen;
    AbreYActua(BOTON_PERSONALIZAR, [&] {
        Formulario& f = FormularioPersonal();
        for (int i = 0; i < 3; ++i) Pulsa(f, TipoControl::Pulsador, 89);
        Pulsa(f, TipoControl::Salir, 0);
    });
    EXPECT_EQ(ReversoCartas, 4);
    const QImage despues = Pic_ReversoRedu[dePie ? 1 : 2].Imagen;
    EXPECT_NE(despues, antes);
    const QRect bloque = BloquePila(2);
    const QImage enMesa =
        Pic_Mesa.Imagen.copy(bloque.x() + (bloque.width() - ancho) / 2,
                             bloque.y() + (bloque.height() - alto) / 2, ancho, alto);
    EXPECT_EQ(enMesa.convertToFormat(QImage::Format_RGB32),
              despues.convertToFormat(QImage::Format_RGB32))
        << "the trick on the table shows the new back";
}
