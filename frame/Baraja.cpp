// The deck of each game: which cards exist, how many a seat gets, what each value is worth, and
// the words and ids of a card.
#include "frame/Baraja.h"

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/mus/Mus.h"
#include "table/Dibujo.h"

namespace {

constexpr int BARAJA_ESPANOLA = 1, BARAJA_FRANCESA = 2;

// What a game's deck looks like, before the counts are worked out from it.
struct FormaBaraja {
    int Tipo = BARAJA_ESPANOLA;
    int PorJugador = 1;
    int PorTanda = 1;
    int MaxMano = 1;
};

// The Spanish deck of most games: the 40 cards, without 8, 9 (and 13, which it lacks).
void QuitaOchosYNueves() {
    ValorEnJuego[8] = false;
    ValorEnJuego[9] = false;
    ValorEnJuego[13] = false;
}

void PuntosTuteBrisca() {
    static constexpr int Puntos[13] = {0, 11, 0, 10, 0, 0, 0, 0, 0, 0, 2, 3, 4};
    static constexpr int Orden[13] = {0, 10, 1, 9, 2, 3, 4, 5, 0, 0, 6, 7, 8};
    for (int v = 1; v <= 12; ++v) {
        PuntosValor[v] = Puntos[v];
        OrdenValor[v] = Orden[v];
    }
}

FormaBaraja FormaPoker() {
    // "Desde el n" leaves out the values 2 to CartaMinimaPoker; the ace always stays.
    for (int v = 2; v <= CartaMinimaPoker; ++v) ValorEnJuego[v] = false;
    NumComodines = OpcionComodines - 1;
    // In a straight each value is followed by the next one, and the king by the ace.
    for (int v = 1; v <= 12; ++v) OrdenValor[v] = v + 1;
    OrdenValor[13] = 1;
    return {BARAJA_FRANCESA, 5, 1, 5};
}

FormaBaraja FormaBlackJack() {
    NumBarajas = 6;
    for (int v = 1; v <= 13; ++v) PuntosValor[v] = v < 10 ? v : 10;
    ApuestaDelante = true;
    CartaMinimaPoker = 1;
    LeyApertura = 14;
    return {BARAJA_FRANCESA, 2, 1, 11};
}

FormaBaraja FormaTute() {
    QuitaOchosYNueves();
    PuntosTuteBrisca();
    if (NumJugadores == 3) {
        // Three seats share 36 cards: the Dos leave the deck so that each gets 12.
        ValorEnJuego[2] = false;
        return {BARAJA_ESPANOLA, 12, 3, 12};
    }
    if (NumJugadores == 4) return {BARAJA_ESPANOLA, 10, 5, 10};
    return {BARAJA_ESPANOLA, 6, 3, 6};
}

FormaBaraja FormaBrisca() {
    QuitaOchosYNueves();
    PuntosTuteBrisca();
    if (NumJugadores == 3) ValorEnJuego[2] = false;
    return {BARAJA_ESPANOLA, 3, 1, 3};
}

FormaBaraja FormaSieteYMedia() {
    QuitaOchosYNueves();
    for (int v = 1; v <= 7; ++v) PuntosValor[v] = v;
    for (int v = 10; v <= 12; ++v) PuntosValor[v] = 0.5;
    ApuestaDelante = true;
    CartaMinimaPoker = 1;
    LeyApertura = 14;
    return {BARAJA_ESPANOLA, 1, 1, 14};
}

FormaBaraja FormaCinquillo() {
    QuitaOchosYNueves();
    return {BARAJA_ESPANOLA, 10, 5, 10};
}

FormaBaraja FormaMus() {
    QuitaOchosYNueves();
    // "Mus a 8 Reyes" (TipoMus 2) counts the treses as kings and the doses as aces.
    static constexpr int Puntos[2][13] = {{0, 1, 2, 3, 4, 5, 6, 7, 0, 0, 10, 10, 10},
                                          {0, 1, 1, 10, 4, 5, 6, 7, 0, 0, 10, 10, 10}};
    const int fila = TipoMus == 1 ? 0 : 1;
    for (int v = 1; v <= 12; ++v) PuntosValor[v] = Puntos[fila][v];
    ModalidadPareja = 2;
    static const char* const Lances[6] = {"", "Grandes", "Chicas", "Pares", "Juego", "Punto"};
    for (int l = 1; l <= 5; ++l) NombreLance[l] = QString::fromUtf8(Lances[l]);
    // The table of every hand follows the counts of the cards just set.
    GeneraCombinacionesMus();
    TotalCombinaciones = TOTAL_COMBINACIONES;
    return {BARAJA_ESPANOLA, 4, 1, 4};
}

FormaBaraja FormaChinchon() {
    ValorEnJuego[13] = false;
    for (int v = 1; v <= 12; ++v) PuntosValor[v] = v < 10 ? v : 10;
    if (TipoBarajaEspanola == 1) return {BARAJA_ESPANOLA, 7, 1, 25};
    ValorEnJuego[8] = false;
    ValorEnJuego[9] = false;
    return {BARAJA_ESPANOLA, 7, 1, 21};
}

FormaBaraja FormaPumba() {
    QuitaOchosYNueves();
    static constexpr int Puntos[13] = {0, 1, 10, 3, 4, 5, 6, 7, 0, 0, 10, 9, 10};
    for (int v = 1; v <= 12; ++v) PuntosValor[v] = Puntos[v];
    return {BARAJA_ESPANOLA, 5, 1, 31};
}

FormaBaraja FormaDelJuego() {
    switch (JuegoActual) {
    case JUEGO_POKER:
        return FormaPoker();
    case JUEGO_BLACKJACK:
        return FormaBlackJack();
    case JUEGO_TUTE:
        return FormaTute();
    case JUEGO_BRISCA:
        return FormaBrisca();
    case JUEGO_SIETEYMEDIA:
        return FormaSieteYMedia();
    case JUEGO_CINQUILLO:
        return FormaCinquillo();
    case JUEGO_MUS:
        return FormaMus();
    case JUEGO_CHINCHON:
        return FormaChinchon();
    case JUEGO_PUMBA:
        return FormaPumba();
    default:
        return FormaCinquillo();
    }
}

// The sheet of each deck has its own grid and thumbnail, and its own names for the figures.
void PonPalabrasYMedidas() {
    static const char* const Singular[10] = {"",      "As",   "Dos",   "Tres", "Cuatro",
                                             "Cinco", "Seis", "Siete", "Ocho", "Nueve"};
    static const char* const Plural[10] = {"",       "Ases",   "Doses",  "Treses", "Cuatros",
                                           "Cincos", "Seises", "Sietes", "Ochos",  "Nueves"};
    for (int v = 1; v <= 9; ++v) {
        NombreValor[v] = QString::fromUtf8(Singular[v]);
        NombreValorPlural[v] = QString::fromUtf8(Plural[v]);
    }
    if (TipoBaraja == BARAJA_FRANCESA) {
        IdsNormales = 52;
        AltoMiniatura = 38;
        const QString singular[5] = {"Diez", "Jota", "Dama", "Rey", "As"};
        const QString plural[5] = {"Dieces", "Jotas", "Damas", "Reyes", "Ases"};
        for (int i = 0; i < 5; ++i) {
            NombreValor[10 + i] = singular[i];
            NombreValorPlural[10 + i] = plural[i];
        }
    } else {
        IdsNormales = 48;
        AltoMiniatura = 46;
        const QString singular[5] = {"Sota", "Caballo", "Rey", "", ""};
        const QString plural[5] = {"Sotas", "Caballos", "Reyes", "", ""};
        for (int i = 0; i < 5; ++i) {
            NombreValor[10 + i] = singular[i];
            NombreValorPlural[10 + i] = plural[i];
        }
    }
    CartasPorPalo = IdsNormales / 4;
}

} // namespace

void ParametrosJuego() {
    TipoBaraja = BARAJA_ESPANOLA;
    NumComodines = 0;
    NumBarajas = 1;
    CartasPorTanda = 1;
    IdsCartas = 48;
    ApuestaDelante = false;
    for (int v = 0; v <= 13; ++v) {
        ValorEnJuego[v] = v > 0;
        PuntosValor[v] = 0;
        OrdenValor[v] = 0;
    }

    const FormaBaraja forma = FormaDelJuego();
    TipoBaraja = forma.Tipo;
    CartasPorJugador = forma.PorJugador;
    CartasPorTanda = forma.PorTanda;
    MaxCartasMano = forma.MaxMano;

    ValoresPorPalo = 0;
    for (int v = 1; v <= 13; ++v) {
        // The Spanish sheet has twelve columns: a thirteenth value never exists there.
        if (TipoBaraja == BARAJA_ESPANOLA && v == 13) ValorEnJuego[v] = false;
        if (ValorEnJuego[v]) ++ValoresPorPalo;
    }
    CartasNormales = ValoresPorPalo * 4 * NumBarajas;
    CartasBaraja = CartasNormales + NumComodines;
    if (TipoBaraja == BARAJA_FRANCESA) IdsCartas = 52 + NumComodines;
    // Póker: the plays of this deck, their counts and what a draw brings.
    if (JuegoActual == JUEGO_POKER) {
        PonJugadasPoker();
        LeeTablaDescartes();
    }

    PonPalabrasYMedidas();
    CargaBaraja();
}

int IdCarta(int palo, int valor) {
    if (palo == 0 || valor == 0) return 0;
    if (palo == PALO_COMODIN && valor > 90) valor -= 90;
    return (palo - 1) * CartasPorPalo + valor;
}

void CartaDeId(int id) {
    PaloDeId = (id - 1) / CartasPorPalo + 1;
    ValorDeId = id - (PaloDeId - 1) * CartasPorPalo;
    PaloCarta = PaloDeId;
    ValorCarta = ValorDeId;
    MiniaturaX = PanelRepartoX + (ValorDeId - 1) * 29;
    MiniaturaY = PanelRepartoY + (PaloDeId - 1) * (AltoMiniatura + 2);
}

bool EsIdComodin(int id) {
    return id > IdsNormales && id <= IdsNormales + NumComodines;
}

QString NombrePalo(int palo) {
    static const char* const Nombres[5] = {"", "Oros", "Copas", "Espadas", "Bastos"};
    return palo >= 1 && palo <= 4 ? QString::fromUtf8(Nombres[palo]) : QString();
}

QString LetraValor(int valor) {
    static const char* const Letras[13] = {" ", "A", "2", "3", "4", "5", "6",
                                           "7", "8", "9", "J", "Q", "K"};
    return valor >= 1 && valor <= 12 ? QString::fromUtf8(Letras[valor]) : QStringLiteral(" ");
}

bool MiniaturaEnJuego(int id) {
    if (id < 1 || id > IdsCartas) return false;
    if (EsIdComodin(id)) return true;
    if (id > IdsNormales) return false;
    return ValorEnJuego[id - ((id - 1) / CartasPorPalo) * CartasPorPalo];
}
