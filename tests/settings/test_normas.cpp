// The rules window, driven as the person drives it: choosing another game, the options that
// end a match, the spins, the keys and the pointer.
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalGbl.h"
#include "settings/Normas.h"
#include "support/MesaDePrueba.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "tests/settings/VentanasDePrueba.h"

using namespace prueba;

namespace {

bool Visto(const QString& titulo) {
    for (const MensajeVisto& m : MensajesVistos)
        if (m.Titulo == titulo) return true;
    return false;
}

// A match left at the table by the test: nobody plays it, so it ends at its first wait.
void PartidaSinPersona() {
    PersonaGuionada = [] {
        PartidaViva = false;
        EsperandoPersona = EligiendoMano = false;
    };
}

} // namespace

TEST(Normas, ChoosingAnotherGameAsksWritesBothFilesAndOpensIt) {
    MesaDePrueba mesa;
    // Brisca has its own file, with a seat of its own name.
    JuegoActual = JUEGO_BRISCA;
    NombreJugador[1] = "Brisquero";
    GrabaJuego();
    ReiniciaEstado();
    JuegoActual = JUEGO_POKER;
    RestoInicial = 300;
    const QString global = mesa.Ruta("TRF32.INI"), poker = mesa.Ruta("TRF5132.INI");
    bool ventanaAbierta = false;
    int encendido = 0;
    RespuestasGuionadas = {false};
    const bool cerrada = AbreYActua(BOTON_NORMAS, [&] {
        Formulario& f = FormularioNormas();
        Pulsa(f, TipoControl::Buleano, JUEGO_POKER); // the game in play: nothing at all
        EXPECT_TRUE(MensajesVistos.empty());
        Pulsa(f, TipoControl::Buleano, JUEGO_BRISCA); // Cancelar
        ventanaAbierta = VentanaAjustesActiva() != nullptr;
        for (const ControlPintado& c : f.Controles)
            if (c.Tipo == TipoControl::Buleano && c.Indice >= JUEGO_POKER && ValorControl(c))
                encendido = c.Indice;
        EXPECT_FALSE(QFile::exists(global)) << "Cancelar writes nothing";
        Pulsa(f, TipoControl::Buleano, JUEGO_BRISCA); // Aceptar
    });
    EXPECT_TRUE(ventanaAbierta) << "Cancelar leaves the window open";
    EXPECT_EQ(encendido, JUEGO_POKER);
    EXPECT_TRUE(cerrada) << "Aceptar closes the window";
    ASSERT_EQ(MensajesVistos.size(), 2u);
    const MensajeVisto& pregunta = MensajesVistos.front();
    EXPECT_EQ(pregunta.Titulo, "Lista 'Juego Activado'");
    EXPECT_EQ(pregunta.Texto,
              "Cuando modifica el valor de esta lista, finaliza el juego actual y comienza la "
              "modalidad de juego seleccionada. Si pulsa el botón Aceptar iniciará el nuevo "
              "juego. Si pulsa el botón Cancelar no se cambiará este valor y continuará el juego "
              "actual.");
    EXPECT_EQ(pregunta.Lineas, 5);
    EXPECT_EQ(pregunta.Botones, 2);
    EXPECT_EQ(pregunta.Ayuda, 2159);
    // The old game's file keeps what was set in it; the global file names the new game.
    EXPECT_EQ(LeeFichero(poker).mid(1 + 128, 4), "0300");
    EXPECT_TRUE(LeeFichero(global).startsWith("\"54"));
    EXPECT_EQ(JuegoActual, JUEGO_BRISCA);
    EXPECT_EQ(NombreJugador[1], "Brisquero") << "the new game's file was read";
}

TEST(Normas, DeckAndMusTypesEndAMatchOnlyAfterTheirQuestion) {
    struct Caso {
        int Juego, Selector, Pasos;
        bool Viva;
        int Mano;
        bool Acepta;
        bool Pregunta, NuevaPartida, Vuelve; // the setting back to what it was
    };
    const Caso casos[] = {
        {JUEGO_CHINCHON, 19, 1, false, 0, true, false, true, false}, // no match: taken
        {JUEGO_CHINCHON, 19, 1, true, 0, true, false, true, false},  // before the first hand
        {JUEGO_CHINCHON, 19, 1, true, 2, false, true, false, true},  // Cancelar
        {JUEGO_CHINCHON, 19, 1, true, 2, true, true, true, false},   // Aceptar
        {JUEGO_CHINCHON, 19, 2, true, 2, true, false, false, false}, // there and back
        {JUEGO_MUS, 29, 1, true, 1, false, true, false, true},
        {JUEGO_MUS, 29, 1, true, 3, true, true, true, false},
    };
    for (const Caso& caso : casos) {
        MesaDePrueba mesa;
        JuegoActual = caso.Juego;
        TipoBarajaEspanola = 1;
        TipoMus = 2;
        ParametrosJuego();
        PartidaViva = caso.Viva;
        ManoViva = caso.Viva;
        NumeroMano = caso.Mano;
        TurnoSalida = 1; // a new match begins with the draw for the first seat
        PartidaSinPersona();
        RespuestasGuionadas = {caso.Acepta};
        int* ajuste = caso.Selector == 19 ? &TipoBarajaEspanola : &TipoMus;
        const int antes = *ajuste;
        AbreYActua(BOTON_NORMAS, [&] {
            Formulario& f = FormularioNormas();
            for (int i = 0; i < caso.Pasos; ++i) Pulsa(f, TipoControl::Selector, caso.Selector);
            Pulsa(f, TipoControl::Salir, 0);
        });
        const QString titulo = caso.Selector == 19 ? "Tipo de baraja" : "Tipo de mus";
        const std::string nombre = "game " + std::to_string(caso.Juego) + " hand " +
                                   std::to_string(caso.Mano) + " pasos " +
                                   std::to_string(caso.Pasos);
        EXPECT_EQ(Visto(titulo), caso.Pregunta) << nombre;
        EXPECT_EQ(Visto("Comienza la Partida"), caso.NuevaPartida) << nombre;
        EXPECT_EQ(*ajuste == antes, caso.Vuelve || caso.Pasos == 2) << nombre;
        if (caso.Juego == JUEGO_CHINCHON)
            EXPECT_EQ(CartasNormales, TipoBarajaEspanola == 1 ? 48 : 40)
                << nombre << ": the deck follows the setting";
    }
}

TEST(Normas, SpinsStepWithinTheirLimitsAndKeepWhatIsTyped) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_MUS;
    std::vector<int> pasos;
    SonidoMesaOido = [&](int id) {
        if (id == SONIDO_SPIN) pasos.push_back(PiedrasJuego);
    };
    struct Paso {
        int Desde;
        std::function<void(Formulario&)> Mano;
        int Queda;
        int Sonidos;
    };
    auto clic = [](int sentido) {
        return [=](Formulario& f) { Pulsa(f, TipoControl::Spin, 76, sentido); };
    };
    auto escribe = [](const QString& texto) {
        return [=](Formulario& f) {
            Clic(CajaDeSpin(*Control(f, TipoControl::Spin, 76)).center());
            Tecla(Qt::Key_End); // the caret after what the box shows, then all of it is wiped
            for (int i = 0; i < 4; ++i) Tecla(Qt::Key_Backspace);
            Escribe(texto);
            Tecla(Qt::Key_Tab); // the box is left
        };
    };
    const Paso casos[] = {
        {20, clic(1), 30, 1},       // a click is one step
        {50, clic(1), 50, 0},       // at the top: no step, no sound
        {20, clic(-1), 20, 0},      // at the bottom
        {30, escribe("25"), 25, 0}, // between the steps, as typed
        {30, escribe("99"), 50, 0},
        {30, escribe("x"), 20, 0},  // not a number: 0, brought up to the least
        {30, escribe("4z"), 20, 0}, // its leading digits
        {40,
         [](Formulario& f) { // an arrow held down runs to the end of the scale
             Raton(QEvent::MouseButtonPress, Punto(f, TipoControl::Spin, 76, -1), Qt::LeftButton);
         },
         20, 2},
        {40,
         [](Formulario& f) {
             PonFoco(f, int(Control(f, TipoControl::Spin, 76) - f.Controles.data()));
             Tecla(Qt::Key_Up);
         },
         50, 1},
    };
    for (const Paso& caso : casos) {
        PiedrasJuego = caso.Desde;
        pasos.clear();
        AbreYActua(BOTON_NORMAS, [&] { caso.Mano(FormularioNormas()); });
        EXPECT_EQ(PiedrasJuego, caso.Queda) << "from " << caso.Desde;
        EXPECT_EQ(int(pasos.size()), caso.Sonidos) << "from " << caso.Desde;
    }
    SonidoMesaOido = nullptr;
}

TEST(Normas, EachGameShowsItsOptionsAndTheSeatsDecideThePairs) {
    MesaDePrueba mesa;
    LlenaTextosAjustes();
    const struct {
        int Juego, Jugadores;
        bool Pareja;
        int Ancho;
    } casos[] = {{JUEGO_TUTE, 4, true, 447},     {JUEGO_TUTE, 3, false, 447},
                 {JUEGO_BRISCA, 2, false, 447},  {JUEGO_BRISCA, 4, true, 447},
                 {JUEGO_POKER, 4, false, 653},   {JUEGO_MUS, 4, false, 653},
                 {JUEGO_CHINCHON, 4, false, 447}};
    for (const auto& caso : casos) {
        JuegoActual = caso.Juego;
        NumJugadores = caso.Jugadores;
        ColocaNormas();
        Formulario& f = FormularioNormas();
        EXPECT_EQ(Control(f, TipoControl::Selector, 4) != nullptr, caso.Pareja)
            << "game " << caso.Juego << " with " << caso.Jugadores;
        EXPECT_EQ(f.Ancho, caso.Ancho);
        // No two controls overlap, and every one lies inside the window.
        for (size_t i = 0; i < f.Controles.size(); ++i) {
            EXPECT_TRUE(QRect(0, 0, f.Ancho, f.Alto).contains(f.Controles[i].Zona));
            for (size_t j = i + 1; j < f.Controles.size(); ++j)
                EXPECT_FALSE(f.Controles[i].Zona.intersects(f.Controles[j].Zona))
                    << "game " << caso.Juego << " controls " << f.Controles[i].Indice << " and "
                    << f.Controles[j].Indice;
        }
    }
}

TEST(Normas, KeysWalkAndStepTheOptionsAndThePointerShowsWhereAPressActs) {
    MesaDePrueba mesa;
    JuegoActual = JUEGO_TUTE;
    NumJugadores = 4;
    ModoReparto = 1;
    TurnoSalida = 1;
    PermitirContrafallar = true;
    std::vector<int> sonidos;
    SonidoMesaOido = [&](int id) { sonidos.push_back(id); };
    int punteroFlecha = -1, punteroCampo = -1, punteroLampara = -1;
    const bool cerrada = AbreYActua(BOTON_NORMAS, [&] {
        Formulario& f = FormularioNormas();
        ControlPintado* sistema = Control(f, TipoControl::Selector, 1);
        Raton(QEvent::MouseMove, sistema->Zona.topLeft() + QPoint(20, 20), Qt::NoButton);
        punteroFlecha = CursorAjustes;
        Raton(QEvent::MouseMove, sistema->Zona.topLeft() + QPoint(90, 20), Qt::NoButton);
        punteroCampo = CursorAjustes;
        Raton(QEvent::MouseMove, Punto(f, TipoControl::Buleano, 46), Qt::NoButton);
        punteroLampara = CursorAjustes;
        // The keys start on the first option: the space bar steps it, Tab moves on.
        Tecla(Qt::Key_Space, " ");
        Tecla(Qt::Key_Tab);
        Tecla(Qt::Key_Right);
        for (int i = 0; i < 3; ++i) Tecla(Qt::Key_Tab); // 4, 7, then the lamp 46
        Tecla(Qt::Key_Space, " ");
        Tecla(Qt::Key_Escape); // the exit
    });
    EXPECT_EQ(punteroFlecha, CURSOR_INDICE);
    EXPECT_EQ(punteroCampo, CURSOR_FLECHA);
    EXPECT_EQ(punteroLampara, CURSOR_INDICE);
    EXPECT_EQ(ModoReparto, 2);
    EXPECT_EQ(TurnoSalida, 2);
    EXPECT_FALSE(PermitirContrafallar);
    EXPECT_TRUE(cerrada);
    // A selector clicks on its press and on its release; a lamp on its press; the exit.
    EXPECT_EQ(sonidos, (std::vector<int>{6, 7, 6, 7, 6, 9}));
    SonidoMesaOido = nullptr;
}

TEST(Normas, AGameWithoutItsDriverSaysItIsNotReadyInsteadOfDealing) {
    // Every game has its driver now: the notice is given as a match would meet it, started on
    // a game the table can't play yet.
    MesaDePrueba mesa;
    JuegoActual = JUEGO_SIETEYMEDIA;
    TurnoSalida = 2;
    PartidaSinPersona();
    PartidaViva = ManoViva = true;
    NumeroMano = 0;
    AvisaJuegoNoDisponible();
    ASSERT_FALSE(MensajesVistos.empty());
    EXPECT_EQ(MensajesVistos.back().Titulo, "Juego no disponible");
    EXPECT_TRUE(MensajesVistos.back().Texto.contains("Siete y media"));
    EXPECT_FALSE(PartidaViva);
    EXPECT_EQ(NumeroMano, 0) << "no hand was dealt";
}
