#include "games/pumba/ReglasPumba.h"

#include "frame/Baraja.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"

namespace {

constexpr int SERIE = 1;
constexpr int FRASES = 3; // each saying has three forms, drawn by the turn's chance

bool Jugada(int palo, int valor) {
    return CartaVista[palo][valor] != 0;
}

} // namespace

void EmpiezaManoPumba() {
    DosesPendientes = 0;
    RepiteAs = false;
    Atento = 0;
    PumbaDicho = PumbaCazado = false;
    for (auto& s : SinValor)
        for (auto& v : s) v = false;
    for (auto& p : PuntosManoPumba) p = 0;
}

int CuentaPaloPumba(int seat, int palo) {
    int n = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        n += CartasJugador[seat][SERIE][p][CAMPO_PALO] == palo;
    return n;
}

int CuentaValor(int seat, int valor) {
    int n = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        n += CartasJugador[seat][SERIE][p][CAMPO_VALOR] == valor;
    return n;
}

bool EsLegalPumba(int palo, int valor) {
    bool legal;
    if (valor == VALOR_DOS)
        legal = true;
    else if (DosesPendientes > 0)
        legal = false;
    else
        legal = valor == VALOR_SOTA || valor == ValorTriunfo || palo == PaloTriunfo;
    if (RepiteAs && palo != PaloTriunfo) legal = false;
    return legal;
}

bool ManoCerradaPumba(int palo, int valor) {
    for (int v = 1; v <= 12; ++v)
        if (ValorEnJuego[v] && !Jugada(palo, v)) return false;
    for (int p = 1; p <= 4; ++p) {
        if (!Jugada(p, valor) || !Jugada(p, VALOR_DOS)) return false;
        if (valor != VALOR_DOS && !Jugada(p, VALOR_SOTA)) return false;
    }
    return true;
}

QString AplicaEfectoPumba(int seat, int palo, int valor, int paloNombrado) {
    static const char* const Chupate[FRASES] = {"Chúpate ", "Roba ", "Coge "};
    const int forma = Ent(AzarJugada * FRASES);
    QString texto;
    RepiteAs = false;
    switch (valor) {
    case VALOR_AS:
        // With another card of its suit the seat plays again: the turn steps back to it. Either
        // way the suit is noted as one the seat is short of.
        if (CuentaPaloPumba(seat, palo) > 0) {
            RepiteAs = true;
            AnteriorJugador(JugadorActual);
        }
        SinPalo[seat][palo] = true;
        break;
    case VALOR_DOS:
        ++DosesPendientes;
        if (CartasEnMazo > 0)
            texto = QString::fromUtf8(Chupate[forma]) + " " + QString::number(DosesPendientes * 2);
        break;
    case VALOR_SIETE:
        if (JugadoresMano > 2) {
            PasoSentidoPumba = -PasoSentidoPumba;
            texto = "Cambio sentido";
        }
        break;
    case VALOR_SOTA:
        if (forma == 0)
            texto = "Jugamos a ";
        else if (forma == 1)
            texto = "Elijo ";
        else
            texto = paloNombrado != PaloTriunfo ? "Pasamos a " : "Sigo con ";
        texto += NombrePalo(paloNombrado);
        break;
    case VALOR_CABALLO:
        texto = "Salta";
        SiguienteJugador(JugadorActual); // the next seat is skipped
        break;
    default:
        break;
    }
    PaloTriunfo = valor == VALOR_SOTA ? paloNombrado : palo;
    ValorTriunfo = valor;
    return texto;
}

int PuntosCartasPumba(int seat) {
    int puntos = 0;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        puntos += Redondea(PuntosValor[CartasJugador[seat][SERIE][p][CAMPO_VALOR]]);
    return puntos;
}

void OlvidaFaltas(int seat) {
    for (int p = 0; p <= 4; ++p) SinPalo[seat][p] = false;
    for (int v = 0; v <= 13; ++v) SinValor[seat][v] = false;
}
