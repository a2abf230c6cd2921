// What Tute and Brisca show at the table between the plays: the trump turned up after the
// deal, its exchange, the draws from the stock, the trick in the middle and the songs.
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Eleccion.h"
#include "games/tutebrisca/Partida.h"
#include "games/tutebrisca/Reglas.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"

#include <vector>

namespace {

constexpr int SERIE = 1;
constexpr int TUMBADA = 2;
// The turned-up trump lies across, under the stock, 18 to its left and 20 down.
constexpr int TRIUNFO_DX = -18, TRIUNFO_DY = 20;

bool EnParejas() {
    return ModalidadPareja == 2 && NumJugadores == 4;
}

int TriunfoVistoX() {
    return MazoX + TRIUNFO_DX;
}
int TriunfoVistoY() {
    return MazoY + TRIUNFO_DY;
}

// The cards at the positions are shown face up and raised three times, with a tap each time:
// the way a seat lays a song on the table. They end lowered, back to the seat's own face unless
// they are to stay shown.
void EnsenaCartas(int seat, const std::vector<int>& posiciones, bool quedanVistas) {
    Pausa(500);
    std::vector<int> caras;
    for (int p : posiciones) caras.push_back(CartasJugador[seat][SERIE][p][CAMPO_CARA]);
    const int vueltas = VueltasAnimacion(3);
    for (int vuelta = 1; vuelta <= vueltas; ++vuelta) {
        for (int p : posiciones) {
            CartasJugador[seat][SERIE][p][CAMPO_CARA] = CARA_VISIBLE;
            CartasJugador[seat][SERIE][p][CAMPO_ESTADO] = 1;
        }
        DibujaJugador(seat);
        RefrescaMesa();
        Pausa(180);
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SUBE);
        RefrescaMesa();
        Pausa(420);
        for (size_t i = 0; i < posiciones.size(); ++i) {
            auto& c = CartasJugador[seat][SERIE][posiciones[i]];
            c[CAMPO_ESTADO] = 0;
            if (vuelta == vueltas && !quedanVistas) c[CAMPO_CARA] = caras[i];
        }
        DibujaJugador(seat);
        RefrescaMesa();
    }
}

// Brisca, and Tute for two: the next card of the stock is turned up, and the stock moves onto
// it, out of the middle where the tricks are played.
void VuelveTriunfo() {
    PaloTriunfo = Baraja[PosicionMazo][CAMPO_PALO];
    ValorTriunfo = Baraja[PosicionMazo][CAMPO_VALOR];
    ++PosicionMazo;
    --CartasEnMazo;
    MuestraTriunfo = false;
    DibujaMazo(MazoBaseX, MazoBaseY, CartasEnMazo);
    MueveCarta(PaloTriunfo, ValorTriunfo, MazoBaseX, MazoBaseY, 1, CARA_VISIBLE,
               TriunfoX + TRIUNFO_DX, TriunfoY + TRIUNFO_DY, TUMBADA, CARA_VISIBLE);
    DibujaMazo(MazoBaseX, MazoBaseY, 0);
    MazoX = TriunfoX;
    MazoY = TriunfoY;
    MuestraTriunfo = true;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    RefrescaMesa();
}

// Tute for three or four: there is no stock left, and the last card dealt names the trump: the
// seat before the leader of the deal, or the seat a manual deal served last. A leader chosen
// after the deal moves nothing. Everybody sees it a moment; it stays in its hand.
void EnsenaTriunfo() {
    int seat = SeatUltimoReparto;
    if (seat == 0) {
        seat = JugadorMano;
        AnteriorJugador(seat);
    }
    const int n = NumCartas[seat][SERIE];
    if (n == 0) return;
    int pos = n;
    // A dealt hand may have been sorted as it came: find the last card of the deal in it.
    if (ModoReparto != 2 && PosicionMazo > 1) {
        const int palo = Baraja[PosicionMazo - 1][CAMPO_PALO];
        const int valor = Baraja[PosicionMazo - 1][CAMPO_VALOR];
        if (TieneCarta(seat, palo, valor)) pos = PosicionHallada;
    }
    PaloTriunfo = CartasJugador[seat][SERIE][pos][CAMPO_PALO];
    ValorTriunfo = CartasJugador[seat][SERIE][pos][CAMPO_VALOR];
    MuestraTriunfo = false;
    DibujaMazo(MazoX, MazoY, 0);
    EnsenaCartas(seat, {pos}, false);
}

// The play order of the trick: from its leader round the table.
std::vector<int> SeatsDeLaBaza() {
    std::vector<int> seats;
    int seat = JugadorSalida;
    for (int k = 0; k < 4 && seat != 0; ++k) {
        if (CartaEnMesa[seat][1] != 0) seats.push_back(seat);
        SiguienteJugador(seat);
        if (seat == JugadorSalida) break;
    }
    return seats;
}

} // namespace

void DescubreTriunfo() {
    if (JuegoActual == JUEGO_BRISCA || NumJugadores == 2)
        VuelveTriunfo();
    else
        EnsenaTriunfo();
}

void CambiaPinta() {
    const int seat = JugadorActual;
    if (CodigoJugada == 0 || !TieneCarta(seat, PaloTriunfo, CodigoJugada)) return;
    const int pos = PosicionHallada;
    const int valorVisto = ValorTriunfo, valorMano = CodigoJugada;
    PosicionCarta(seat, pos, NumCartas[seat][SERIE]);
    const int manoX = CartaX, manoY = CartaY;
    const int orientacion = OrientacionSeat[seat];
    const int cara = CartasJugador[seat][SERIE][pos][CAMPO_CARA];
    AplicaCambioPinta();
    // The turned-up card goes into the hand at the place of the one that takes it...
    MuestraTriunfo = false;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    MueveCarta(PaloTriunfo, valorVisto, TriunfoVistoX(), TriunfoVistoY(), TUMBADA, CARA_VISIBLE,
               manoX, manoY, orientacion, cara);
    // ...and that one, shown to all, lies under the stock in its stead.
    MueveCarta(PaloTriunfo, valorMano, manoX, manoY, orientacion, CARA_VISIBLE, TriunfoVistoX(),
               TriunfoVistoY(), TUMBADA, CARA_VISIBLE);
    MuestraTriunfo = true;
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    DibujaJugador(seat);
    RefrescaMesa();
    // The hand has changed: the choice is made again.
    if (JuegoActual == JUEGO_TUTE)
        EligeCartaTute();
    else
        EligeCartaBrisca();
}

void RobanCartas() {
    if (CartasEnMazo <= 0) return;
    int seat = GanadorBaza;
    for (int k = 0; k < NumJugadores; ++k) {
        if (CartasEnMazo == 0 && MuestraTriunfo && PaloTriunfo != 0) {
            // The stock is spent: the turned-up card is the last one drawn.
            Baraja[PosicionMazo][CAMPO_PALO] = PaloTriunfo;
            Baraja[PosicionMazo][CAMPO_VALOR] = ValorTriunfo;
            CartasEnMazo = 1;
            MuestraTriunfo = false;
            DibujaMazo(MazoX, MazoY, 0);
        }
        if (CartasEnMazo == 0) break;
        RobaCartas(seat, 1, 0);
        Pausa(80);
        SiguienteJugador(seat);
    }
    DibujaMazo(MazoX, MazoY, CartasEnMazo);
    RefrescaMesa();
}

void DibujaBaza(int sinSeat) {
    BorraBaza();
    for (int seat : SeatsDeLaBaza())
        if (seat != sinSeat)
            DibujaCarta(Pic_Mesa.Imagen, CartaCentroX[seat], CartaCentroY[seat], 1,
                        CartaEnMesa[seat][1], CartaEnMesa[seat][2], CARA_VISIBLE);
}

void BorraBaza() {
    // The four places of a trick overlap around the middle of the table.
    BorraZona(CartaCentroX[1], CartaCentroY[2], CartaCentroX[3] + ANCHO_CARTA - CartaCentroX[1],
              CartaCentroY[4] + ALTO_CARTA - CartaCentroY[2]);
}

void ParpadeaGanadorBaza() {
    Pausa(150);
    for (int vuelta = 1; vuelta <= VueltasAnimacion(2); ++vuelta) {
        Pausa(420);
        DibujaBaza(GanadorBaza);
        RefrescaMesa();
        Pausa(180);
        DibujaBaza(0);
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_CARTA_SUBE);
        RefrescaMesa();
    }
    Pausa(500);
}

void CantaAcuses() {
    JugadorCante = GanadorBaza;
    for (;;) {
        AnalizaMano(JugadorCante);
        if (TuteEnMano != 0) return CantaTute(JugadorCante);
        if (const int palo = EligeAcuse(JugadorCante)) {
            std::vector<int> pareja;
            for (int valor : {VALOR_CABALLO, VALOR_REY})
                if (TieneCarta(JugadorCante, palo, valor)) pareja.push_back(PosicionHallada);
            EnsenaCartas(JugadorCante, pareja, false);
            AnotaAcuse(JugadorCante, palo);
            DibujaBazas(JugadorCante);
            RefrescaMesa();
        }
        // In pairs the partner of the trick's winner sings after it, in the same step.
        if (!EnParejas() || JugadorCante != GanadorBaza) return;
        JugadorCante = CompaneroDe[GanadorBaza];
        if (EstadoJugador[JugadorCante] != ESTADO_ACTIVADO) return;
    }
}

void CantaTute(int seat) {
    AnalizaMano(seat);
    std::vector<int> figuras;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        if (CartasJugador[seat][SERIE][p][CAMPO_VALOR] == TuteEnMano) figuras.push_back(p);
    EnsenaCartas(seat, figuras, true);
    AnotaTute(seat);
}
