// The end of a hand of Tute or Brisca: who took it, told in a message, kept in the hand's record
// and counted towards the match.
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/tutebrisca/Partida.h"
#include "games/tutebrisca/Reglas.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"

namespace {

bool EnParejas() {
    return ModalidadPareja == 2 && NumJugadores == 4;
}

int Tantos(int seat) {
    return static_cast<int>(TantosJugador[seat][1]);
}

QString PluralTute() {
    AnalizaMano(JugadorCante);
    return TuteEnMano == VALOR_CABALLO ? QStringLiteral("Caballos") : QStringLiteral("Reyes");
}

// One line a side: each seat from the leader round, or each pair.
QString LineasDeTantos() {
    QString texto;
    if (EnParejas()) {
        for (int pareja = 1; pareja <= 2; ++pareja) {
            const int companero = CompaneroDe[pareja];
            texto += NombreJugador[pareja] + " y " + NombreJugador[companero] + " : " +
                     Formato(Tantos(pareja) + Tantos(companero), "##0") + " tantos." + SaltoLinea;
        }
        return texto;
    }
    int seat = JugadorMano;
    for (int k = 0; k < NumJugadores; ++k) {
        texto +=
            NombreJugador[seat] + " : " + Formato(Tantos(seat), "##0") + " tantos." + SaltoLinea;
        SiguienteJugador(seat);
    }
    return texto;
}

QString FraseGanador() {
    if (EnParejas()) {
        if (GanadorMano == 2)
            return NombreJugador[2] + " y " + NombreJugador[4] + ", habéis ganado la mano. ";
        return "Han ganado la mano " + NombreJugador[1] + " y " + NombreJugador[3];
    }
    if (GanadorMano == 4) return NombreJugador[4] + ", has ganado la mano. ";
    return "Ha ganado la mano " + NombreJugador[GanadorMano];
}

void AnotaRegistro(const QString& plural) {
    RegistroMano& registro = RegistroManos[NumeroMano];
    for (int s = 1; s <= 4; ++s) {
        if (EstadoJugador[s] != ESTADO_ACTIVADO) continue;
        // In pairs GanadorMano is the side, 1 or 2: the record marks that seat alone.
        registro.Gana[s][1] = s == GanadorMano ? 1 : 0;
        registro.Resultado[s] = QString::number(Tantos(s));
        registro.Extra[s] = AcusesDe(s);
        registro.Detalle[s].clear();
    }
    if (TuteCantado && JugadorCante != 0) registro.Detalle[JugadorCante] = "Tute de " + plural;
}

} // namespace

void FinalManoTB() {
    FaseJuego = 9;
    ManoViva = false;
    GanadorMano = 0;
    DecideGanadorMano();
    const QString plural = TuteCantado ? PluralTute() : QString();

    SuenaMesa(SONIDO_SINCRONO, SONIDO_GANA_MANO);
    SenalaGanador(GanadorMano);

    QString texto = TuteCantado ? "Se ha cantado Tute de " + plural + SaltoLinea : LineasDeTantos();
    texto += SaltoLinea + FraseGanador();
    Pausa(750);
    Mensaje("Final de la mano", texto, static_cast<int>(texto.count(SaltoLinea)) + 1, 1);
    EsperaBotonera();
    if (!PartidaViva) return; // left at the message: the hand is played again on resuming

    AnotaRegistro(plural);
    if (GanadorMano >= 1 && GanadorMano <= 4) ++JuegosGanados[GanadorMano];
    OcultaTantos();
    OcultaContinuar();
}
