#include "frame/Coherencia.h"

#include "betting/Fichas.h"
#include "frame/TrufalGbl.h"

#include <QtGlobal>

namespace {

constexpr int PIEDRAS_MESA_MUS = 25;

bool JuegoDeDinero() {
    return JuegoActual == JUEGO_POKER || JuegoActual == JUEGO_BLACKJACK ||
           JuegoActual == JUEGO_SIETEYMEDIA;
}

QString NombreCarta(int palo, int valor) {
    return QStringLiteral("palo %1 valor %2").arg(palo).arg(valor);
}

void CuentaComunes(CuentaCartas& cuenta) {
    for (int p = PosicionMazo; p < PosicionMazo + CartasEnMazo && p <= MAX_BARAJA; ++p)
        cuenta.Anade(Baraja[p][CAMPO_PALO], Baraja[p][CAMPO_VALOR]);
    for (int p = 1; p <= CartasEnPozo && p <= 54; ++p)
        cuenta.Anade(Pozo[p][CAMPO_PALO], Pozo[p][CAMPO_VALOR]);
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= 4; ++e)
            for (int p = 1; p <= MAX_MANO; ++p)
                cuenta.Anade(CartasJugador[s][e][p][CAMPO_PALO],
                             CartasJugador[s][e][p][CAMPO_VALOR]);
}

} // namespace

void CuentaCartas::Anade(int palo, int valor) {
    if (palo == 0) return;
    if (palo < 0 || palo > 5 || valor < 0 || valor > 99) {
        ++Veces[0][0]; // a card that can't exist
        return;
    }
    ++Veces[palo][valor];
}

int DineroEnMesa() {
    int total = 0;
    for (int s = 0; s <= 4; ++s) total += RestoJugador(s);
    if (DineroAparte[JuegoActual]) total += DineroAparte[JuegoActual]();
    return total;
}

void AnotaDineroPartida() {
    DineroPartida = JuegoDeDinero() ? DineroEnMesa() : 0;
}

bool MesaCoherente(QString* fallo) {
    CuentaCartas cuenta;
    CuentaComunes(cuenta);
    if (CartasAparte[JuegoActual]) CartasAparte[JuegoActual](cuenta);
    auto falla = [&](const QString& texto) {
        if (fallo) *fallo = texto;
        return false;
    };
    if (cuenta.Veces[0][0] != 0) return falla("una carta que no existe en la mesa");
    // The deck of the game: each value in play of each suit once in every deck, and the jokers.
    for (int palo = 1; palo <= 5; ++palo)
        for (int valor = 0; valor < 100; ++valor) {
            int esperadas = 0;
            if (palo <= 4 && valor >= 1 && valor <= CartasPorPalo && ValorEnJuego[valor])
                esperadas = NumBarajas;
            if (palo == PALO_COMODIN && valor > 90 && valor <= 90 + NumComodines) esperadas = 1;
            if (cuenta.Veces[palo][valor] != esperadas)
                return falla(QStringLiteral("%1 está %2 veces en la mesa, no %3")
                                 .arg(NombreCarta(palo, valor))
                                 .arg(cuenta.Veces[palo][valor])
                                 .arg(esperadas));
        }
    // In Mus the stones only move between the heap, the loose stones and the amarracos.
    if (JuegoActual == JUEGO_MUS) {
        int piedras = 0;
        for (int s = 0; s <= 4; ++s) piedras += Piedras[s];
        if (piedras != PIEDRAS_MESA_MUS)
            return falla(QStringLiteral("hay %1 piedras en la mesa, no %2")
                             .arg(piedras)
                             .arg(PIEDRAS_MESA_MUS));
    }
    if (JuegoDeDinero()) {
        for (int s = 0; s <= 4; ++s)
            for (int d = 1; d <= 6; ++d)
                if (Fichas[s][d] < 0) return falla(QStringLiteral("fichas negativas en %1").arg(s));
        const int dinero = DineroEnMesa();
        if (dinero != DineroPartida)
            return falla(QStringLiteral("hay %1 en la mesa y la partida empezó con %2")
                             .arg(dinero)
                             .arg(DineroPartida));
    }
    return true;
}

void CompruebaMesa() {
    if (MesaTrasJugada) MesaTrasJugada();
    if (!ComprobarCoherencia) return;
    QString fallo;
    if (!MesaCoherente(&fallo))
        qFatal("Mesa incoherente en %s, mano %d: %s", qPrintable(NombreJuego[JuegoActual]),
               NumeroMano, qPrintable(fallo));
}
