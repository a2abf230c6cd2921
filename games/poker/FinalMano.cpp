// The end of a hand of Póker: the hands are compared by their place among all the hands of the
// deck, the pot is shared among the best (a seat that went all in takes only what it could
// match), the result is told and kept in the hand's record, and the chips go to the winners.
#include "betting/Fichas.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/MesaPoker.h"
#include "games/poker/Partida.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"

#include <QStringList>
#include <algorithm>

namespace {

constexpr int SERIE = 1;
constexpr int PAUSA_GANADOR = 500;

int Puesto[5] = {};     // 1 the best hand (every seat tied on it), 2 the next...; 0 no cards
int OrdenFinal[5] = {}; // the place of each seat's hand among all hands of the deck

bool TieneCartas(int seat) {
    return NumCartas[seat][SERIE] > 0;
}

// Paso 7. Places: the best hand first, equal places tie whatever the suits.
void AsignaPuestos() {
    for (int s = 0; s <= 4; ++s) {
        Puesto[s] = 0;
        OrdenFinal[s] = 0;
    }
    bool quedan[5] = {};
    for (int s = 1; s <= 4; ++s) {
        if (!TieneCartas(s)) continue;
        EvaluaJugada(s);
        OrdenFinal[s] = OrdenJugada(JugadaJugador[s], s);
        quedan[s] = true;
    }
    for (int puesto = 1;; ++puesto) {
        int mejor = -1;
        bool alguno = false;
        for (int s = 1; s <= 4; ++s)
            if (quedan[s] && (!alguno || OrdenFinal[s] > mejor)) {
                mejor = OrdenFinal[s];
                alguno = true;
            }
        if (!alguno) break;
        for (int s = 1; s <= 4; ++s)
            if (quedan[s] && OrdenFinal[s] == mejor) {
                Puesto[s] = puesto;
                quedan[s] = false;
            }
    }
    NumGanadores = 0;
    GanadorMano = 0;
    for (int s = 1; s <= 4; ++s)
        if (Puesto[s] == 1) {
            ++NumGanadores;
            GanadorMano = s;
        }
    if (NumGanadores != 1) GanadorMano = 0;
}

// The pot is shared. A winner that went all in for less than the largest stake takes its part
// of the main pot only; what it couldn't match goes to the winners that could, or to the seats
// in second place when all the winners were short.
void CalculaGanancias() {
    int stake[5] = {};
    int tope = 0;
    for (int s = 1; s <= 4; ++s) {
        stake[s] = ApuestaAcumulada(s, SERIE);
        tope = std::max(tope, stake[s]);
        Ganancia[s] = 0;
    }
    auto corto = [&](int s) {
        return Puesto[s] == 1 && TieneCartas(s) && RestoJugador(s) == 0 && stake[s] < tope;
    };
    int cupo = tope, noCortos = 0;
    for (int s = 1; s <= 4; ++s) {
        if (corto(s)) cupo = std::min(cupo, stake[s]);
        if (Puesto[s] == 1 && !corto(s)) ++noCortos;
    }
    int principal = 0;
    for (int s = 1; s <= 4; ++s) principal += std::min(stake[s], cupo);
    const int bote = ValorBote();
    if (NumGanadores == 0) return;
    const int parte = principal / NumGanadores;
    int primero = 0;
    for (int s = 1; s <= 4; ++s)
        if (Puesto[s] == 1) {
            Ganancia[s] = parte;
            if (primero == 0) primero = s;
        }
    int sobrante = bote - parte * NumGanadores;
    if (noCortos > 0) {
        const int extra = Redondea(double(sobrante) / noCortos);
        const int resta = sobrante - extra * noCortos;
        sobrante = 0;
        for (int s = 1; s <= 4; ++s)
            if (Puesto[s] == 1 && stake[s] == tope) Ganancia[s] += extra;
        Ganancia[primero] += resta;
    }
    if (sobrante >= 1) {
        int segundos = 0, primeroSegundo = 0;
        for (int s = 1; s <= 4; ++s)
            if (Puesto[s] == 2) {
                ++segundos;
                if (primeroSegundo == 0) primeroSegundo = s;
            }
        if (segundos > 0) {
            for (int s = 1; s <= 4; ++s)
                if (Puesto[s] == 2) Ganancia[s] += sobrante / segundos;
            Ganancia[primeroSegundo] += sobrante % segundos;
        }
    }
    // Whatever the shares leave over, by a winner alone or odd stakes, stays with the first
    // winner: the pot always leaves the table whole.
    int repartido = 0;
    for (int s = 1; s <= 4; ++s) repartido += Ganancia[s];
    Ganancia[primero] += bote - repartido;
}

QString ValorEscrito(int valor) {
    if (valor > 90) return "#";
    switch (valor) {
    case 1:
        return "A";
    case 11:
        return "J";
    case 12:
        return "Q";
    case 13:
        return "K";
    default:
        return QString::number(valor);
    }
}

QString CartasEscritas(int seat) {
    QStringList valores;
    for (int p = 1; p <= NumCartas[seat][SERIE]; ++p)
        valores << ValorEscrito(CartasJugador[seat][SERIE][p][CAMPO_VALOR]);
    return valores.join(' ');
}

QString Nombres(const QStringList& nombres) {
    if (nombres.size() <= 1) return nombres.join("");
    return nombres.mid(0, nombres.size() - 1).join(", ") + " y " + nombres.last();
}

// Paso 8. The lines of the hands, the shares, and the verdict.
QString TextoResultado(int& lineas) {
    QString texto;
    lineas = 0;
    if (CuentaJugadoresMano() > 1) {
        int seat = JugadorMano;
        for (int vuelta = 0; vuelta < 4; ++vuelta) {
            if (EstadoJugador[seat] == ESTADO_ACTIVADO && TieneCartas(seat)) {
                texto += NombreJugador[seat] + " : " + DescribeJugada(seat, JugadaJugador[seat]) +
                         SaltoLinea;
                ++lineas;
            }
            SiguienteJugador(seat);
        }
        texto += SaltoLinea;
        ++lineas;
    }
    if (NumGanadores > 1) {
        QStringList empatados;
        for (int s = 1; s <= 4; ++s)
            if (Puesto[s] == 1) empatados << NombreJugador[s];
        texto += "Han empatado la mano " + Nombres(empatados);
    } else if (GanadorMano == 4) {
        texto += NombreJugador[4] + ", has ganado la mano. ";
    } else {
        texto += "Ha ganado la mano " + NombreJugador[GanadorMano];
    }
    ++lineas;
    return texto;
}

void AnotaRegistro(int bote) {
    if (NumeroMano < 1 || NumeroMano > MAX_MANOS) return;
    RegistroMano& r = RegistroManos[NumeroMano];
    r.Banca = bote;
    const bool soloUno = CuentaJugadoresMano() == 1;
    for (int s = 1; s <= 4; ++s) {
        r.Gana[s][1] = Puesto[s];
        r.Resultado[s].clear();
        r.Detalle[s].clear();
        if (soloUno && TieneCartas(s) && CartasVisibles[s] == CARA_OCULTA) {
            r.Resultado[s] = "Envite no";
            r.Detalle[s] = "aceptado";
        } else if (TieneCartas(s)) {
            r.Resultado[s] = NombreJugadaPoker[JugadaJugador[s]].trimmed();
            r.Detalle[s] = CartasEscritas(s);
        } else if (RestoJugador(s) == 0 && ApuestaAcumulada(s, SERIE) == 0) {
            r.Resultado[s] = "----";
        }
    }
}

QString NombreValorDe(int valor, bool plural) {
    const int v = std::clamp(valor, 1, 14);
    return plural ? NombreValorPlural[v] : NombreValor[v];
}

} // namespace

QString DescribeJugada(int seat, int jugada) {
    const auto& j = Jugadas[seat][jugada];
    const QString nombre = NombreJugadaPoker[jugada].trimmed();
    if (jugada == JugadaRepoker || jugada == JugadaPoker || jugada == JugadaFull ||
        jugada == JugadaTrio || jugada == JugadaDoblePareja || jugada == JugadaPareja) {
        // A joker stands for the value it takes.
        const int v1 = j[1] > 90 ? j[JK_COMODIN] : j[1];
        QString texto = nombre + " de " + NombreValorDe(v1, true);
        if (jugada == JugadaFull || jugada == JugadaDoblePareja) {
            const int v2 = j[2] > 90 ? j[JK_COMODIN] : j[2];
            texto += " y " + NombreValorDe(v2, true);
        }
        return texto;
    }
    int alto = j[1];
    if (alto > 90) {
        const bool escalera = jugada == JugadaEscalera || jugada == JugadaEscColor;
        alto = escalera ? j[2] + 1 : j[2];
    }
    // The top of a straight read above the king is the ace.
    if (alto == 14) alto = 1;
    return nombre + (alto == 11 || alto == 12 ? " a la " : " al ") + NombreValorDe(alto, false);
}

void FinalManoPoker() {
    // Paso 7. The showdown.
    FaseJuego = FASE_FIN_MANO;
    LimpiaFrases();
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO) DibujaJugador(s);
    RefrescaMesa();
    ManoViva = false;
    AsignaPuestos();
    if (GanadorMano != 0) {
        Sonido(SONIDO_ASINCRONO, SONIDO_GANA_MANO);
        SenalaGanador(GanadorMano);
        Pausa(PAUSA_GANADOR);
    }
    // Paso 8. The result, the record, and the pot to the winners.
    int lineas = 0;
    const QString texto = TextoResultado(lineas);
    const int bote = ValorBote();
    CalculaGanancias();
    Mensaje("Final de la mano", texto, lineas, 1);
    EsperaBotonera();
    if (!PartidaViva) return;
    AnotaRegistro(bote);
    RepartoBote();
}
