// Every control of both windows changes its own setting and nothing else: each is touched once
// as the person would, and the settings files, written before and after, may differ only in
// the columns of that setting (the column tables of the files, written out by hand).
#include <gtest/gtest.h>

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalGbl.h"
#include "settings/Normas.h"
#include "settings/Personal.h"
#include "support/MesaDePrueba.h"
#include "table/Mensajes.h"
#include "tests/settings/VentanasDePrueba.h"

using namespace prueba;

namespace {

struct Columnas {
    char Fichero; // 'J' the game's file, 'G' TRF32.INI
    int Columna, Ancho;
};

struct Fila {
    int Boton, Juego;
    TipoControl Tipo;
    int Indice;
    std::vector<Columnas> Cambian;
};

// The columns of line 1 of a file whose bytes differ, 1-based.
std::vector<int> ColumnasCambiadas(const QByteArray& antes, const QByteArray& despues) {
    std::vector<int> cambiadas;
    const QByteArray a = antes.left(antes.indexOf('\r')), d = despues.left(despues.indexOf('\r'));
    for (int i = 1; i < std::max(a.size(), d.size()); ++i)
        if ((i < a.size() ? a[i] : ' ') != (i < d.size() ? d[i] : ' '))
            cambiadas.push_back(i); // byte 0 is the opening quote
    return cambiadas;
}

bool Dentro(int columna, char fichero, const std::vector<Columnas>& esperadas) {
    for (const Columnas& c : esperadas)
        if (c.Fichero == fichero && columna >= c.Columna && columna < c.Columna + c.Ancho)
            return true;
    return false;
}

// How the person touches a control once: the arrow of a selector, a lamp, the lower arrow of a
// spin, a knob dragged seven pixels to the left, a button, a letter typed in a name.
void Toca(Formulario& f, TipoControl tipo, int indice) {
    ControlPintado* c = Control(f, tipo, indice);
    ASSERT_NE(c, nullptr) << "control " << indice;
    ASSERT_TRUE(c->Visible) << "control " << indice;
    switch (tipo) {
    case TipoControl::Spin:
        Pulsa(f, tipo, indice, -1);
        break;
    case TipoControl::Potenciometro: {
        const QPoint pomo = c->Zona.topLeft() + QPoint(ValorControl(*c) + 14, 26);
        Arrastra(pomo, pomo - QPoint(7, 0));
        Raton(QEvent::MouseButtonRelease, pomo - QPoint(7, 0), Qt::NoButton);
        break;
    }
    case TipoControl::Nombre:
        Clic(c->Zona.center());
        Escribe("x");
        break;
    default:
        Pulsa(f, tipo, indice);
        break;
    }
}

std::vector<Fila> Filas() {
    const int N = BOTON_NORMAS, P = BOTON_PERSONALIZAR;
    using T = TipoControl;
    std::vector<Fila> filas = {
        {N, JUEGO_POKER, T::Selector, 1, {{'J', 72, 1}}},
        {N, JUEGO_POKER, T::Selector, 6, {{'J', 77, 1}}},
        {N, JUEGO_POKER, T::Selector, 5, {{'J', 75, 1}}},
        {N, JUEGO_POKER, T::Selector, 3, {{'J', 73, 1}}},
        {N, JUEGO_POKER, T::Selector, 2, {{'J', 69, 2}}},
        {N, JUEGO_POKER, T::Spin, 71, {{'J', 129, 4}}},
        {N, JUEGO_POKER, T::Spin, 72, {{'J', 133, 3}}},
        {N, JUEGO_POKER, T::Spin, 75, {{'J', 113, 1}}},
        {N, JUEGO_POKER, T::Spin, 73, {{'J', 136, 3}}},
        {N, JUEGO_TUTE, T::Selector, 4, {{'J', 67, 2}}},
        {N, JUEGO_TUTE, T::Selector, 7, {{'J', 81, 1}}},
        {N, JUEGO_TUTE, T::Buleano, 46, {{'J', 79, 2}}},
        {N, JUEGO_TUTE, T::Spin, 74, {{'J', 139, 3}}},
        // A new Mus type or Chinchón deck starts a new match, dealt from the first seat.
        {N, JUEGO_MUS, T::Selector, 29, {{'J', 87, 1}, {'J', 111, 1}}},
        {N, JUEGO_MUS, T::Selector, 20, {{'J', 90, 1}}},
        {N, JUEGO_MUS, T::Selector, 35, {{'J', 92, 1}}},
        {N, JUEGO_MUS, T::Selector, 30, {{'J', 91, 1}}},
        {N, JUEGO_MUS, T::Spin, 76, {{'J', 142, 2}}},
        {N, JUEGO_MUS, T::Buleano, 50, {{'J', 88, 2}}},
        {N, JUEGO_CHINCHON, T::Selector, 19, {{'J', 82, 1}, {'J', 111, 1}}},
        {N, JUEGO_CHINCHON, T::Buleano, 49, {{'J', 85, 2}}},
        {N, JUEGO_CHINCHON, T::Buleano, 48, {{'J', 83, 2}}},
        // The direction of play is kept twice: the setting and the step it gives.
        {P, JUEGO_TUTE, T::Selector, 8, {{'J', 71, 1}, {'J', 127, 2}}},
        {P, JUEGO_TUTE, T::Selector, 9, {{'J', 76, 1}}},
        {P, JUEGO_TUTE, T::Buleano, 45, {{'J', 65, 2}}},
        {P, JUEGO_TUTE, T::Buleano, 44, {{'G', 3, 2}}},
        {P, JUEGO_TUTE, T::Buleano, 47, {{'G', 8, 2}}},
        {P, JUEGO_TUTE, T::Potenciometro, 65, {{'G', 5, 3}}},
        {P, JUEGO_TUTE, T::Pulsador, 89, {{'J', 78, 1}}},
        {P, JUEGO_TUTE, T::Pulsador, 91, {}}, // opens the voice panel of seat 1
        {P, JUEGO_TUTE, T::Selector, 10, {{'G', 11, 1}}},
        {P, JUEGO_TUTE, T::Potenciometro, 66, {{'G', 12, 3}}},
        {P, JUEGO_TUTE, T::Potenciometro, 67, {{'G', 15, 3}}},
    };
    for (int s = 1; s <= 4; ++s) {
        const int b = 16 * (s - 1);
        filas.push_back({P, JUEGO_TUTE, T::Nombre, s, {{'J', 1 + b, 9}}});
        filas.push_back({P, JUEGO_TUTE, T::Potenciometro, 60 + s, {{'J', 10 + b, 3}}});
        filas.push_back({P, JUEGO_TUTE, T::Selector, 10 + s, {{'J', 13 + b, 1}}});
        filas.push_back({P, JUEGO_TUTE, T::Selector, 20 + s, {{'J', 14 + b, 1}}});
        filas.push_back({P, JUEGO_TUTE, T::Selector, 24 + s, {{'J', 15 + b, 1}}});
        filas.push_back({P, JUEGO_TUTE, T::Selector, 30 + s, {{'J', 16 + b, 1}}});
    }
    return filas;
}

} // namespace

TEST(Controles, EachControlChangesItsOwnSettingAndNothingElse) {
    for (const Fila& fila : Filas()) {
        MesaDePrueba mesa;
        JuegoActual = fila.Juego;
        PonJuegoPorDefecto();
        ParametrosJuego(); // as the game is opened
        LeyApertura = 10;
        // Seats that show every control and that no pair of selectors holds back.
        for (int s = 1; s <= 4; ++s) {
            CartasVisibles[s] = 2;
            ControlJugador[s] = 1;
            VozTono[s] = VozVelocidad[s] = 50; // knobs that can move either way
        }
        SonidoActivado = VocesActivadas = true;
        MotorVozHombre = 1;
        MotorVozMujer = 0;
        JugadorModiVoz = 1;
        // A new deck type starts a new match when the window closes: nobody plays it, and it
        // draws no seat.
        TurnoSalida = 2;
        PersonaGuionada = [] {
            PartidaViva = false;
            EsperandoPersona = EligiendoMano = false;
        };
        GrabaJuego();
        GrabaConfiguracion();
        const QString juego = mesa.Ruta(NombreFicheroJuego(fila.Juego));
        const QString global = mesa.Ruta("TRF32.INI");
        const QByteArray juegoAntes = LeeFichero(juego), globalAntes = LeeFichero(global);
        AbreYActua(fila.Boton, [&] {
            Formulario& f = fila.Boton == BOTON_NORMAS ? FormularioNormas() : FormularioPersonal();
            if (fila.Indice == 10 || fila.Indice == 66 || fila.Indice == 67)
                Pulsa(f, TipoControl::Pulsador, 91);
            Toca(f, fila.Tipo, fila.Indice);
        });
        GrabaJuego();
        GrabaConfiguracion();
        const std::vector<int> enJuego = ColumnasCambiadas(juegoAntes, LeeFichero(juego));
        const std::vector<int> enGlobal = ColumnasCambiadas(globalAntes, LeeFichero(global));
        const std::string nombre = "control " + std::to_string(fila.Indice);
        EXPECT_EQ(enJuego.empty() && enGlobal.empty(), fila.Cambian.empty()) << nombre;
        for (int columna : enJuego)
            EXPECT_TRUE(Dentro(columna, 'J', fila.Cambian)) << nombre << " column " << columna;
        for (int columna : enGlobal)
            EXPECT_TRUE(Dentro(columna, 'G', fila.Cambian))
                << nombre << " global column " << columna;
    }
}
