// The plays of the deck in play: their codes, their names and how many hands each has.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"

namespace {

// Decks of 40 cards or fewer ("Desde el 5" and shorter) rank a Trío over Figuras and a Color
// over a Full: there are fewer figures to fill a hand with and fewer cards of each suit.
constexpr int CARTA_MINIMA_BARAJA_CORTA = 4;
constexpr int ANCHO_NOMBRE_CORTA = 12;

struct Jugada {
    int* Codigo;
    int Larga, Corta;
    const char* Nombre;
};

const Jugada Jugadas17[NUM_JUGADAS] = {
    {&JugadaProy3Esc, 1, 1, "Proyecto 3 Escalera"},
    {&JugadaProy3EscCol, 2, 2, "Proy. 3 Escal.color"},
    {&JugadaProyFiguras, 3, 3, "Proyecto Figuras"},
    {&JugadaProyEscalera, 4, 4, "Proyecto Escalera"},
    {&JugadaProyColor, 5, 5, "Proyecto Color"},
    {&JugadaProyEscColor, 6, 6, "Proy. Escal.color"},
    {&JugadaCartaMayor, 7, 7, "Carta mayor"},
    {&JugadaPareja, 8, 8, "Pareja"},
    {&JugadaDoblePareja, 9, 9, "Doble Pareja"},
    {&JugadaTrio, 10, 11, "Trio"},
    {&JugadaFiguras, 11, 10, "Figuras"},
    {&JugadaEscalera, 12, 12, "Escalera"},
    {&JugadaColor, 13, 14, "Color"},
    {&JugadaFull, 14, 13, "Full"},
    {&JugadaPoker, 15, 15, "Póker"},
    {&JugadaEscColor, 16, 16, "Escalera de color"},
    {&JugadaRepoker, 17, 17, "Repóker"},
};

} // namespace

// Hands of each play for every deck and joker count: normal cards, jokers, hands, and the
// counts of the codes 7 to 17 of that deck, in the order of those codes.
const char* const TablaCombinaciones[FILAS_COMBINACIONES + 1] = {
    "",
    "520259896013025401096704012182400541440004032001020000051080003744000062400000400000000",
    "480171230407986600758784009331200414720004032000918000031320003168000052800000360000000",
    "440108600804630800505344006955200309120004032000816000018160002640000044000000320000000",
    "400065800802499000321024005011200032640023040000714000021600000980000036000000280000000",
    "360037699201224000192000003456000032640016128000612000017280000480000028800000240000000",
    "320020137600520200105984002246400032640010752000510000013440000204000022400000200000000",
    "521286968513025401266552012182401353600005184002053200078040006552000312000002040000013",
    "481190688407986600874200009331201036800005184001850400049640005544000264000001840000012",
    "441122175904630800580188006955200772800005184001647600030040004620000220000001640000011",
    "401074939802499000366636005011200032640057600001444800037800001704000180000001440000010",
    "361043589701224000217452003456000032640040320001242000030240000884000144000001240000009",
    "321023733600520200118332002246400032640026880001039200023520000400000112000001040000008",
    "522316251013025401453320012182402200320006864003086400116440009360000566800003680000026",
    "482211876007986601002576009331201687680006864002782800076760007920000480000003320000024",
    "442137075404630800664692006955201260000006864002479200048520006600000400400002960000022",
    "402085066802499000419208005011200035040094320002175600054000002908000328000002600000020",
    "362050194201224000247704003456000035040066240001872000043200001624000262800002240000018",
    "322027825600520200133800002246400035040044352001568400033600000820000204800001880000016",
};

int FilaCombinaciones(int cartasNormales, int comodines) {
    for (int f = 1; f <= FILAS_COMBINACIONES; ++f) {
        const QString fila = QString::fromLatin1(TablaCombinaciones[f]);
        if (LeeColumna(fila, 1, 2).toInt() == cartasNormales &&
            LeeColumna(fila, 3, 1).toInt() == comodines)
            return f;
    }
    return 0;
}

int CuentaCombinaciones(int fila, int jugada) {
    if (fila < 1 || fila > FILAS_COMBINACIONES) return 0;
    const QString texto = QString::fromLatin1(TablaCombinaciones[fila]);
    if (jugada == 0) return LeeColumna(texto, 4, 7).toInt();
    return LeeColumna(texto, (jugada - PRIMERA_JUGADA_HECHA) * 7 + 11, 7).toInt();
}

void PonJugadasPoker() {
    const bool corta = CartaMinimaPoker >= CARTA_MINIMA_BARAJA_CORTA;
    for (const Jugada& j : Jugadas17) {
        *j.Codigo = corta ? j.Corta : j.Larga;
        QString nombre = QString::fromUtf8(j.Nombre);
        // The small decks keep the four names that change place padded to one width.
        if (corta && j.Corta != j.Larga) nombre = nombre.leftJustified(ANCHO_NOMBRE_CORTA);
        NombreJugadaPoker[*j.Codigo] = nombre;
    }
    const int fila = FilaCombinaciones(CartasNormales, NumComodines);
    TotalCombinaciones = CuentaCombinaciones(fila, 0);
    for (int c = PRIMERA_JUGADA_HECHA; c <= NUM_JUGADAS; ++c) {
        CombinacionesJugada[c] = CuentaCombinaciones(fila, c);
        PorcentajeJugada[c] =
            TotalCombinaciones > 0 ? 100.0 * CombinacionesJugada[c] / TotalCombinaciones : 0.0;
    }
}
