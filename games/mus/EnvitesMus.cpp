// The four lances of a hand of Mus: the declarations of Pares and Juego, the betting of each
// lance from the mano round the table, its closing, and the stones of a refusal paid at once.
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/MesaMus.h"
#include "games/mus/JugadorMus.h"
#include "games/mus/Mus.h"
#include "table/Dibujo.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

namespace {

bool SeDeclara(int lance) {
    return lance == LANCE_PARES || lance == LANCE_JUEGO;
}

bool SonRivales(int a, int b) {
    return ParejaDe[a] != ParejaDe[b];
}

// ---- The declaration of Pares or Juego ----

QString FraseDeclaracion(bool tiene, const QString& anterior, double r) {
    const bool pares = LanceActual == LANCE_PARES;
    const QString W = pares ? QStringLiteral("Pares ") : QStringLiteral("Juego ");
    const QString w = pares ? QStringLiteral(" pares") : QStringLiteral(" juego");
    if (tiene) {
        if (anterior.startsWith('T') || anterior.startsWith('L'))
            return UnaDe({"Y yo", "Yo tambien", "Yo tambien tengo", "Tambien yo"}, r);
        const QString frases[8] = {"Sí",        W + "sí", "Hay" + w,   "Tengo",
                                   "Tengo" + w, "Llevo",  "Llevo" + w, "Sí tengo"};
        return frases[std::min(7, Ent(r * 8))];
    }
    if (anterior.startsWith("No t") || anterior.startsWith("No l"))
        return UnaDe({"Ni yo", "Yo tampoco", "Yo tampoco tengo", "Tampoco yo"}, r);
    const QString frases[8] = {"No",       W + "no",       "No hay",   "No hay" + w,
                               "No tengo", "No tengo" + w, "No llevo", "No llevo" + w};
    return frases[std::min(7, Ent(r * 8))];
}

// Each seat from the mano says whether it holds the lance. False when the match was left.
bool DeclaraLance() {
    RondaDeclaracion = true;
    QString anterior;
    JugadorActual = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        if (vuelta > 0) SiguienteJugador(JugadorActual);
        const int seat = JugadorActual;
        const bool manual = EsManual(seat);
        AzarFrase = Rnd();
        EvaluaManoMus(seat);
        const bool tiene = LanceMus[LanceActual].Tiene[seat];
        TieneLanceTurno = tiene;
        if (manual) MuestraInformacion(AzarJugada < 0.3 ? 17 : 61);
        SenalaTurno(seat);
        Pausa(200);
        PulsoSi = PulsoNo = false;
        if (DetallarPasos) {
            EsperaTurno();
            if (!PartidaViva) return false;
        }
        if (!PulsoSi && !PulsoNo) {
            Pausa(200);
            if (manual && DetallarPasos)
                ParpadeaPulsador(tiene ? PULSADOR_SI_HAY : PULSADOR_NO_HAY, 1);
        }
        anterior = FraseDeclaracion(tiene, anterior, AzarFrase);
        DiceMus(seat, anterior);
        Pausa(100);
        Pic_Pulsador[PULSADOR_SI_HAY].Visible = Pic_Pulsador[PULSADOR_NO_HAY].Visible = false;
    }
    RondaDeclaracion = false;
    TieneLanceTurno = false;
    Pausa(200);
    CallanTodos();
    return true;
}

// ---- The betting of a lance ----

int TextoEnvite() {
    if (AzarJugada < 0.15) return 56;
    if (AzarJugada < 0.3) return 57;
    if (AzarJugada < 0.5) return ApuestaMaxRonda == 0 ? 58 : 59;
    if (AzarJugada < 0.65) return 60;
    if (AzarJugada < 0.85) return 15;
    return 6;
}

bool RivalesHablaron(int seat) {
    const LanceDeMus& lance = LanceMus[LanceActual];
    for (int r = 1; r <= 4; ++r)
        if (SonRivales(seat, r) && lance.Voz[r] == VOZ_CALLA) return false;
    return true;
}

// The partner can still speak in the lance: it holds it and nobody spoke for it.
bool CompaneroSigue(int seat) {
    const LanceDeMus& lance = LanceMus[LanceActual];
    const int companero = CompaneroDe[seat];
    return lance.Tiene[companero] && lance.Voz[companero] != VOZ_POR_COMPANERO;
}

// What the seat says, and what it does to the lance. False when the match was left.
bool TurnoDeEnvite(int seat, int orden) {
    LanceDeMus& lance = LanceMus[LanceActual];
    const int companero = CompaneroDe[seat];
    const bool manual = EsManual(seat);
    // Paso 4. The figure the panel starts from, and what the computer would do.
    ApuestaPersona = ApuestaMaxRonda == 0 ? 2 : ApuestaMaxRonda;
    ApuestaOrdenador = 0;
    AzarFrase = Rnd();
    CompaneroEnLance = CompaneroSigue(seat);
    PiensaMus(seat);
    // Paso 5. A computer seat that may not raise, and is not going for an órdago, says nothing
    // and stands by its partner's envite. A rival's órdago is answered aloud: silence there
    // would take it.
    if (!manual && !PuedeSubir && ApuestaMaxRonda != ORDAGO && ApuestaOrdenador != ORDAGO) {
        ApuestaAnunciada = ApuestaMaxRonda;
        HablaPorDos = false;
    } else {
        // Paso 6. The seat answers aloud.
        SenalaTurno(seat);
        if (manual) {
            MuestraInformacion(TextoEnvite());
            DibujaApostadoraMus();
        }
        EsperaTurno();
        if (!PartidaViva) return false;
        if (JugadaHecha) {
            ApuestaAnunciada = ApuestaPersona;
        } else {
            ApuestaAnunciada = ApuestaOrdenador;
            HablaPorDos = HablaPorDosOrdenador;
        }
        DiceMus(seat, FraseApuestaMus(orden));
    }
    // Paso 7. A raise: the earlier envite is kept, and everybody speaks again.
    if (ApuestaAnunciada > ApuestaMaxRonda) {
        lance.HayPrevio = ApuestaMaxRonda != 0;
        lance.EnvitePrevio = ApuestaMaxRonda;
        ApuestaMaxRonda = lance.Envite = ApuestaAnunciada;
        JugadorMaxApuesta = seat;
        TurnosDesdeSubida = 1;
        for (int s = 1; s <= 4; ++s) {
            lance.Voz[s] = VOZ_CALLA;
            lance.Acepta[s] = false;
            if (s != seat && !FraseJugador[s][1].isEmpty()) DiceMus(s, QString());
        }
    }
    // Paso 8. Who has put the stones in, and who spoke for whom. Whoever takes an órdago takes it
    // for the pair: the partner has no more say.
    if (ApuestaAnunciada >= 1) {
        lance.Acepta[seat] = true;
        if (HablaPorDos || ApuestaAnunciada == ORDAGO) lance.Acepta[companero] = true;
    }
    lance.Voz[seat] = VOZ_HABLO;
    if (HablaPorDos || ApuestaAnunciada == ORDAGO) lance.Voz[companero] = VOZ_POR_COMPANERO;
    Pausa(300);
    OcultaApostadoraMus();
    CompaneroEnLance = false;
    return true;
}

bool ParejaAceptaLance(int pareja) {
    const LanceDeMus& lance = LanceMus[LanceActual];
    const int a = pareja, b = pareja + 2;
    if (SeDeclara(LanceActual))
        return int(lance.Acepta[a]) + int(lance.Acepta[b]) ==
               int(lance.Tiene[a]) + int(lance.Tiene[b]);
    return lance.Acepta[a] && lance.Acepta[b];
}

void CierraLance() {
    LanceDeMus& lance = LanceMus[LanceActual];
    lance.Envite = ApuestaMaxRonda;
    lance.Envidador = JugadorMaxApuesta;
    for (int pareja = 1; pareja <= 2; ++pareja)
        lance.ParejaAcepta[pareja] = ParejaAceptaLance(pareja);
    if (ApuestaMaxRonda == 0) {
        lance.Estado = ESTADO_EN_PASO;
    } else if (lance.ParejaAcepta[1] && lance.ParejaAcepta[2]) {
        lance.Estado = ApuestaMaxRonda == ORDAGO ? ESTADO_ORDAGO : ESTADO_ACEPTADO;
    } else if (ApuestaMaxRonda == ORDAGO) {
        lance.Estado = ESTADO_ORDAGO_NO;
    } else {
        lance.Estado = lance.HayPrevio ? ESTADO_REENVITE_NO : ESTADO_NO_QUERIDO;
    }
}

// The betting loop from the mano until the lance closes. False when the match was left.
bool ApuestaLance() {
    LanceDeMus& lance = LanceMus[LanceActual];
    AzarJugada = Rnd();
    JugadorMaxApuesta = ApuestaMaxRonda = TurnosDesdeSubida = 0;
    JugadorActual = JugadorMano;
    for (bool primero = true;; primero = false) {
        if (!primero) SiguienteJugador(JugadorActual);
        ++TurnosDesdeSubida;
        const int seat = JugadorActual;
        // The envite came back to its maker, or four passes: the lance closes.
        if (seat == JugadorMaxApuesta) break;
        if (JugadorMaxApuesta == 0 && TurnosDesdeSubida > 4) break;
        if (!lance.Tiene[seat] || lance.Voz[seat] == VOZ_POR_COMPANERO) continue;
        // The partner's envite stands and both rivals have answered: it is taken without a word.
        if (JugadorMaxApuesta == CompaneroDe[seat] && RivalesHablaron(seat)) {
            lance.Voz[seat] = VOZ_CIERRE;
            lance.Acepta[seat] = true;
            break;
        }
        if (!TurnoDeEnvite(seat, TurnosDesdeSubida)) return false;
        CompruebaMesa();
    }
    CierraLance();
    return true;
}

// A refused envite pays the earlier envite, or one stone, to the pair whose envite stood.
void PagaNoQuerido() {
    const LanceDeMus& lance = LanceMus[LanceActual];
    PiedrasPago = lance.HayPrevio ? lance.EnvitePrevio : 1;
    TextoPago = NumeroPiedras(PiedrasPago, true) + " porque no";
    LineasPago = 1;
    ParejaCobra = ParejaDe[JugadorActual];
    LancePago = LanceActual;
    PagaPiedras();
}

} // namespace

bool JuegaLances() {
    FaseJuego = FASE_MUS_ENVITE;
    LanceOrdago = GanaJuego = 0;
    OrdagoEnJuego = false;
    for (bool& orden : OrdenEnvidar) orden = false;
    JugadorActual = JugadorMano;
    PreparaSenas();
    GestosSenas();
    DibujaCaras();
    // The stock and the discards leave the table; their cards stay where they are.
    DibujaMazo(MazoX, MazoY, 0);
    DibujaMazo(PozoX, PozoY, 0);
    RefrescaMesa();
    for (int s = 0; s <= 4; ++s) PiedrasInicioLances[s] = Piedras[s];
    for (int s = 1; s <= 4; ++s) EvaluaManoMus(s);
    for (LanceActual = LANCE_GRANDE; LanceActual <= LANCE_PUNTO; ++LanceActual) {
        LanceDeMus& lance = LanceMus[LanceActual];
        // Punto is played only when nobody has juego.
        if (LanceActual == LANCE_PUNTO && LanceMus[LANCE_JUEGO].Estado != ESTADO_NADIE) break;
        // Paso 1. The mano names the lance.
        CallanTodos();
        if (DetallarPasos) DiceMus(JugadorMano, NombreLance[LanceActual]);
        Pausa(500);
        // Paso 2. Pares and Juego are played only when both pairs hold them.
        if (SeDeclara(LanceActual)) {
            if (!DeclaraLance()) return false;
            const bool ellos = lance.Tiene[1] || lance.Tiene[3];
            const bool nosotros = lance.Tiene[2] || lance.Tiene[4];
            if (!ellos || !nosotros) {
                if (DetallarPasos) DiceMus(JugadorMano, "No hay envites");
                Pausa(250);
                lance.Estado = ellos || nosotros ? ESTADO_SIN_ENVITES : ESTADO_NADIE;
                continue;
            }
        }
        // Pasos 3 to 5. The betting, and how the lance closed.
        if (!ApuestaLance()) return false;
        // Paso 6. A refusal pays at once; it may end the game.
        if (lance.Estado >= ESTADO_NO_QUERIDO && lance.Estado <= ESTADO_ORDAGO_NO) {
            PagaNoQuerido();
            if (GanaJuego != 0) break;
        }
        // Paso 7. An órdago taken ends the lances.
        if (lance.Estado == ESTADO_ORDAGO) {
            LanceOrdago = LanceActual;
            OrdagoEnJuego = true;
            break;
        }
    }
    LanceActual = std::min(LanceActual, static_cast<int>(LANCE_PUNTO));
    CallanTodos();
    return PartidaViva;
}
