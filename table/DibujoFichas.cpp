// Chips and stones on the table: one chip with its mask, the slanted stacks of a seat with its
// money figure, the stake in front of a seat, the heap and the frames of the stones of Mus, and
// the pass mark.
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"

namespace {

constexpr int LADO_FICHA = 33;
constexpr int DENOMINACION_PIEDRA = 7;
constexpr int MAX_DESPLAZA = 5;       // a stack leans at most this far
constexpr int CAJA_MONTON = 44 * 108; // the stones of the heap lie in a box of 44 by 108
constexpr int LADO_MARCA = 32;
constexpr unsigned COLOR_CIFRA = 0xF0F080; // the figures of money, a light yellow
constexpr unsigned COLOR_SOMBRA_CIFRA = 0x003000;

bool EsMus() {
    return JuegoActual == JUEGO_MUS;
}

void EscribeCifra(const QRect& caja, const QString& texto) {
    BorraZona(caja.x(), caja.y(), caja.width() + 1, caja.height() + 1);
    EscribeConSombra(Pic_Mesa.Imagen, caja, Qt::AlignCenter, texto, LetraMesa(11),
                     QColor::fromRgb(COLOR_CIFRA), QColor::fromRgb(COLOR_SOMBRA_CIFRA));
}

void DibujaMarcaPaso(int seat) {
    Transfiere(Pic_Mesa.Imagen, PilaX[seat + 10][1], PilaY[seat + 10][1], LADO_MARCA, LADO_MARCA,
               Pic_BmpVario.Imagen, 129, 0, OpRaster::Copia);
}

} // namespace

int DesplazaMontonX(int cuenta) {
    return -std::min(Redondea((cuenta - 1) / 2.0), MAX_DESPLAZA);
}

int DesplazaMontonY(int seat, int cuenta) {
    const int d = std::min(Redondea((cuenta - 1) / 2.0), MAX_DESPLAZA);
    return seat == 1 || seat == 2 ? -d : d;
}

void DibujaFicha(int x, int y, int denominacion, int orientacion) {
    if (denominacion < 1 || denominacion > DENOMINACION_PIEDRA) return;
    if (orientacion < 1 || orientacion > 4) orientacion = 1;
    Transfiere(Pic_Mesa.Imagen, x, y, LADO_FICHA, LADO_FICHA, Pic_BmpVario.Imagen, 162, 0,
               OpRaster::And);
    // The chip sheet turns with the seat, so the cell walks along a row or down a column.
    int xs = 0, ys = 0;
    switch (orientacion) {
    case 2:
        ys = (denominacion - 1) * LADO_FICHA;
        break;
    case 3:
        xs = (DENOMINACION_PIEDRA - denominacion) * LADO_FICHA;
        break;
    case 4:
        ys = (DENOMINACION_PIEDRA - denominacion) * LADO_FICHA;
        break;
    default:
        xs = (denominacion - 1) * LADO_FICHA;
        break;
    }
    Transfiere(Pic_Mesa.Imagen, x, y, LADO_FICHA, LADO_FICHA, Pic_FichasApu[orientacion].Imagen, xs,
               ys, OpRaster::Xor);
}

void BorraPila(int zona) {
    if (EsMus() && zona >= 1 && zona <= 4) zona += 20;
    if (zona >= 11 && zona <= 14) {
        const QRect chip = BloquePila(zona), cifra = CajaCifraApuesta(zona - 10);
        BorraZona(chip.x(), chip.y(), chip.width(), chip.height());
        BorraZona(cifra.x(), cifra.y(), cifra.width() + 1, cifra.height() + 1);
        return;
    }
    const QRect area = AreaBorrado(zona);
    if (!area.isNull()) BorraZona(area.x(), area.y(), area.width(), area.height());
}

void DibujaPilas(int seat) {
    if (seat < 0 || seat > 4) return;
    BorraPila(seat);
    const int orientacion = OrientacionDe(seat);
    for (int d = 1; d <= 6; ++d)
        for (int k = 1; k <= Fichas[seat][d]; ++k)
            DibujaFicha(PilaX[seat][d] + DesplazaMontonX(k),
                        PilaY[seat][d] + DesplazaMontonY(seat, k), d, orientacion);
    CifraResto(seat, QString::number(RestoJugador(seat)));
}

void CifraResto(int seat, const QString& texto) {
    if (seat < 0 || seat > 4) return;
    EscribeCifra(CajaCifraResto(seat), texto);
}

void CifraApuesta(int seat, const QString& texto) {
    if (seat < 1 || seat > 4) return;
    EscribeCifra(CajaCifraApuesta(seat), texto);
}

void ColocaMonton() {
    for (int i = 1; i <= 25; ++i) {
        const int r = Redondea(CAJA_MONTON * Rnd());
        PiedraMontonX[i] = PilaX[0][5] + r % 44;
        PiedraMontonY[i] = PilaY[0][5] - 5 + DivEntera(r, 44);
    }
}

void DibujaMonton() {
    BorraPila(0);
    for (int i = 1; i <= std::min(Piedras[0], 25); ++i)
        DibujaFicha(PiedraMontonX[i], PiedraMontonY[i], DENOMINACION_PIEDRA, 1);
}

void DibujaPiedrasSeat(int slot) {
    if (slot < 1 || slot > 4) return;
    BorraPila(slot + 20);
    const int n = Piedras[slot];
    if (n <= 0) return;
    const int paso = DivEntera(108, n);
    const bool aLoLargo = slot == 1 || slot == 3; // frames of the sides run across the table
    for (int i = 1; i <= n; ++i) {
        const int avance = i * paso, zigzag = i % 2 == 1 ? 8 : 0;
        const int x = PilaX[slot + 20][1] + (aLoLargo ? avance : zigzag);
        const int y = PilaY[slot + 20][1] + (aLoLargo ? zigzag : avance);
        DibujaFicha(x, y, DENOMINACION_PIEDRA, 1);
    }
}

void MarcaPaso(int seat) {
    if (seat < 1 || seat > 4) return;
    Pausa(90);
    BorraPila(seat + 10);
    for (int vuelta = 1; vuelta <= VueltasAnimacion(2); ++vuelta) {
        if (FotogramaVisible()) DibujaMarcaPaso(seat);
        RefrescaMesa();
        SuenaMesa(SONIDO_SINCRONO, SONIDO_PASO);
        Pausa(420);
        BorraPila(seat + 10);
        RefrescaMesa();
        Pausa(180);
    }
    // The mark stays, except in Pumba, where the seat may play again at its next turn.
    if (JuegoActual != JUEGO_PUMBA) {
        DibujaMarcaPaso(seat);
        RefrescaMesa();
    }
}
