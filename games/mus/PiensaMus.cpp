// The computer player of the Mus: what a seat would do in each phase, for a computer seat, for the
// tutor and for the turn of the person left to the program. It changes no cards; its answer
// stays in QuiereCortar, MarcaDescarte, ApuestaOrdenador and their sisters.
//
// For now every seat plays the plainest legal game: mus once, nothing thrown, then the cut, and
// a pass in every lance. The decisions by the hand's values, the signs between partners and the
// envites take their place in DecideMus, EligeDescartes, DecideEnvite, PreparaSenas and
// GestosSenas.
#include "frame/TrufalGbl.h"
#include "games/mus/Mus.h"

namespace {

constexpr int RONDAS_ANTES_DE_CORTAR = 1; // rounds of discards before a seat cuts

void DecideMus(int seat) {
    PlanMus[seat] = 0;
    QuiereCortar = NumeroBaza >= RONDAS_ANTES_DE_CORTAR;
    if (OrdenCortar[seat]) MandaCortar = true;
}

void EligeDescartes(int) {
    for (bool& marca : MarcaDescarte) marca = false;
}

void DecideEnvite(int seat) {
    ApuestaOrdenador = 0;
    HablaPorDosOrdenador = false;
    MandaEnvidar = OrdenEnvidar[seat];
}

} // namespace

void PiensaMus(int seat) {
    if (seat < 1 || seat > 4) return;
    MandaCortar = MandaEnvidar = false;
    EvaluaManoMus(seat);
    ComparaManoMus();
    switch (FaseJuego) {
    case FASE_MUS_MUS:
        DecideMus(seat);
        break;
    case FASE_MUS_DESCARTE:
        EligeDescartes(seat);
        break;
    case FASE_MUS_ENVITE:
        PermisosEnvite(seat);
        DecideEnvite(seat);
        break;
    default:
        break;
    }
}

void PermisosEnvite(int seat) {
    const LanceDeMus& lance = LanceMus[LanceActual];
    const int companero = CompaneroDe[seat];
    const bool declarado = LanceActual == LANCE_PARES || LanceActual == LANCE_JUEGO;
    const bool companeroSinLance = declarado && !lance.Tiene[companero];
    const bool companeroHablo = lance.Voz[companero] != VOZ_CALLA;
    PuedeSubir =
        !(JugadorMaxApuesta == companero && !lance.Acepta[seat]) && ApuestaMaxRonda != ORDAGO;
    HayEnvite = ApuestaMaxRonda > 0 && ApuestaPersona == ApuestaMaxRonda;
    SoloYo = (companeroHablo && lance.Acepta[companero] && HayEnvite) || companeroSinLance;
    SoloPareja = seat == JugadorMaxApuesta && HayEnvite && lance.Tiene[companero] &&
                 !lance.Acepta[companero];
    NoPorDos =
        TurnosDesdeSubida == 1 || (companeroHablo && !lance.Acepta[companero]) || companeroSinLance;
    SigoCompanero = lance.Acepta[companero] && TurnosDesdeSubida >= 3;
}

// The signs between partners: each seat's queue of gestures and the gazes that deliver them.
void PreparaSenas() {}
void GestosSenas() {}
