// Appending a finished match to the history file of its game.
#include "reports/Historico.h"

#include "betting/Fichas.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Mensajes.h"

#include <QDateTime>
#include <QFile>
#include <algorithm>
#include <vector>

namespace {

struct Puesto {
    int Seat;
    int Cifra;
};

bool EsJuegoDeDinero() {
    return JuegoActual == JUEGO_POKER || JuegoActual == JUEGO_BLACKJACK ||
           JuegoActual == JUEGO_SIETEYMEDIA;
}

// The figure of a seat in the unit of the game's column: money won or lost, hands won, or
// points.
int CifraSeat(int seat) {
    if (EsJuegoDeDinero()) return RestoJugador(seat) - RestoInicial;
    if (JuegoActual == JUEGO_CHINCHON || JuegoActual == JUEGO_PUMBA) return TotalPuntos(seat);
    if (JuegoActual == JUEGO_MUS) return Piedras[seat];
    return JuegosGanados[seat];
}

QString Cifra5(int cifra) {
    return QString::number(std::clamp(std::abs(cifra), 0, 99999));
}

void PonNombre(QString& r, int columna, int seat) {
    if (seat > 0) PonColumna(r, columna, 9, NombreJugador[seat].left(9));
}

} // namespace

QString RegistroHistorico() {
    QString r(LARGO_REGISTRO_HISTORICO, ' ');
    PonColumna(r, 1, 12, QDateTime::currentDateTime().toString("yyyyMMddhhmm"));
    if (ModalidadPareja == 2) {
        const int g = GanadorPartida == 2 ? 2 : 1;
        const int a = g == 1 ? 1 : 2, b = g == 1 ? 3 : 4;
        const int c = g == 1 ? 2 : 1, d = g == 1 ? 4 : 3;
        PonNombre(r, 13, a);
        PonNombre(r, 22, b);
        PonColumna(r, 40, 5, Cifra5(std::max(CifraSeat(a), CifraSeat(b))));
        PonNombre(r, 55, c);
        PonNombre(r, 64, d);
        PonColumna(r, 82, 5, Cifra5(std::max(CifraSeat(c), CifraSeat(d))));
        PonColumna(r, 97, 1, "2");
        return r;
    }
    // Without pairs: in the money games those who gained are the winners and the rest the
    // losers; elsewhere the winner of the match, and the others by their figures.
    std::vector<Puesto> ganadores, perdedores;
    for (int s = 1; s <= 4; ++s) {
        if (EstadoJugador[s] != ESTADO_ACTIVADO) continue;
        const Puesto p{s, CifraSeat(s)};
        const bool gana = EsJuegoDeDinero() ? p.Cifra > 0 : s == GanadorPartida;
        (gana ? ganadores : perdedores).push_back(p);
    }
    auto porCifra = [](const Puesto& x, const Puesto& y) { return x.Cifra > y.Cifra; };
    std::stable_sort(ganadores.begin(), ganadores.end(), porCifra);
    std::stable_sort(perdedores.begin(), perdedores.end(), porCifra);
    for (int i = 0; i < 3; ++i) {
        if (i < static_cast<int>(ganadores.size())) {
            PonNombre(r, 13 + 9 * i, ganadores[i].Seat);
            PonColumna(r, 40 + 5 * i, 5, Cifra5(ganadores[i].Cifra));
        }
        if (i < static_cast<int>(perdedores.size())) {
            PonNombre(r, 55 + 9 * i, perdedores[i].Seat);
            PonColumna(r, 82 + 5 * i, 5, Cifra5(perdedores[i].Cifra));
        }
    }
    PonColumna(r, 97, 1, "1");
    return r;
}

void AnadeHistorico() {
    QFile fichero(CarpetaTrabajo + "TRF" + QString::number(JuegoActual) + "32.HIS");
    const QByteArray registro = ACp1252(RegistroHistorico());
    if (!fichero.open(QIODevice::Append) || fichero.write(registro) != registro.size())
        Mensaje("Histórico de partidas jugadas",
                "No se ha podido añadir la partida al histórico " + fichero.fileName() +
                    ". Compruebe que la carpeta permite escribir.",
                3, 1);
}
