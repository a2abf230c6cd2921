#include "bench/Firma.h"

#include "bench/Automatica.h"
#include "frame/TrufalGbl.h"

namespace {

constexpr int PARTIDAS_POR_LINEA = 6; // seeds 1 to 6 of each line

// One line for each game and table that the signature plays. A game that comes to the table
// adds its lines here.
struct LineaFirma {
    MesaAutomatica Mesa;
};

std::vector<LineaFirma> LineasFirma() {
    return {
        {{JUEGO_TUTE, 2, false, [] { LimitePartida = 2; }}},
        {{JUEGO_TUTE, 3, false, [] { LimitePartida = 2; }}},
        {{JUEGO_TUTE, 4, true, [] { LimitePartida = 2; }}},
        {{JUEGO_BRISCA, 2, false, [] { LimitePartida = 2; }}},
        {{JUEGO_BRISCA, 3, false, [] { LimitePartida = 2; }}},
        {{JUEGO_BRISCA, 4, true, [] { LimitePartida = 2; }}},
        {{JUEGO_POKER, 2, false, [] { RestoInicial = 40; }}},
        {{JUEGO_POKER, 3, false,
          [] {
              RestoInicial = 40;
              LeyApertura = 10;
              OpcionComodines = 2;
          }}},
        {{JUEGO_POKER, 4, false,
          [] {
              RestoInicial = 40;
              CartaMinimaPoker = 5;
              OpcionComodines = 3;
              LimiteDescartes = 3;
          }}},
        {{JUEGO_BLACKJACK, 4, false, [] { RestoInicial = 60; }}},
        {{JUEGO_BLACKJACK, 3, false,
          [] {
              RestoInicial = 100;
              ApuestaMaxima = 30;
          }}},
        {{JUEGO_SIETEYMEDIA, 4, false, [] { RestoInicial = 40; }}},
        {{JUEGO_SIETEYMEDIA, 3, false,
          [] {
              RestoInicial = 60;
              ApuestaMaxima = 30;
          }}},
        {{JUEGO_CHINCHON, 2, false, [] { LimitePartida = 30; }}},
        {{JUEGO_CHINCHON, 3, false,
          [] {
              LimitePartida = 30;
              TipoBarajaEspanola = 2;
          }}},
        {{JUEGO_CHINCHON, 4, false,
          [] {
              LimitePartida = 30;
              AsOrosComodin = true;
              CartasSiempreOrdenadas = true;
          }}},
        {{JUEGO_MUS, 4, true,
          [] {
              TipoMus = 1;
              JuegosPartidaMus = 1;
          }}},
        {{JUEGO_MUS, 4, true,
          [] {
              TipoMus = 2;
              JuegosPartidaMus = 1;
          }}},
        {{JUEGO_CINQUILLO, 4, false, [] { LimitePartida = 2; }}},
        {{JUEGO_PUMBA, 2, false, [] { LimitePartida = 15; }}},
        {{JUEGO_PUMBA, 3, false, [] { LimitePartida = 15; }}},
        {{JUEGO_PUMBA, 4, false, [] { LimitePartida = 15; }}},
    };
}

} // namespace

std::vector<FirmaJuego> FirmasDeLosJuegos() {
    std::vector<FirmaJuego> firmas;
    for (const LineaFirma& linea : LineasFirma()) {
        const int juego = linea.Mesa.Juego;
        if (firmas.empty() || firmas.back().Juego != juego)
            firmas.push_back({juego, NombreJuego[juego], 14695981039346656037ull, 0});
        FirmaJuego& firma = firmas.back();
        for (unsigned semilla = 1; semilla <= PARTIDAS_POR_LINEA; ++semilla) {
            PreparaPartidaAutomatica(linea.Mesa);
            firma.Manos += JuegaPartidaAutomatica(semilla);
            firma.Firma = HuellaPartida(firma.Firma);
        }
    }
    return firmas;
}

QString TextoFirmas(const std::vector<FirmaJuego>& firmas) {
    QString texto;
    for (const FirmaJuego& f : firmas)
        texto += QStringLiteral("%1 %2 %3\n")
                     .arg(f.Juego)
                     .arg(QString(f.Nombre).replace(' ', '_'))
                     .arg(f.Firma, 16, 16, QLatin1Char('0'));
    return texto;
}
