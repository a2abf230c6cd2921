// Automatic play draws only what each move leaves on the table: no flight, no blink, no part
// drawn again that already shows the same. The table must then look exactly as it does when
// every frame is drawn, at the end of every move of every game.
#include "bench/Automatica.h"
#include "frame/Coherencia.h"
#include "frame/TrufalGbl.h"
#include "support/MesaDePrueba.h"
#include "table/GblMesa.h"

#include <QCryptographicHash>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr int JUGADAS = 80; // moves looked at in each match: a hand or two of any game

// The table after each move of the first JUGADAS moves of a seeded match, as a digest each.
std::vector<QByteArray> MesasDeLaPartida(const MesaAutomatica& tipo, unsigned semilla,
                                         bool todosLosFotogramas) {
    std::vector<QByteArray> mesas;
    MesaTrasJugada = [&] {
        const QImage& m = Pic_Mesa.Imagen;
        mesas.push_back(QCryptographicHash::hash(QByteArrayView(m.constBits(), m.sizeInBytes()),
                                                 QCryptographicHash::Sha1));
        if (static_cast<int>(mesas.size()) >= JUGADAS) PartidaViva = false;
    };
    PreparaPartidaAutomatica(tipo);
    JuegaPartidaAutomatica(semilla, todosLosFotogramas);
    MesaTrasJugada = nullptr;
    return mesas;
}

} // namespace

TEST(Fotogramas, LaMesaDeCadaJugadaEsLaMismaSinLosFotogramasQueNadieVe) {
    MesaDePrueba mesa;
    PreparaMesaAutomatica(mesa.Carpeta.path());
    const MesaAutomatica tipos[] = {
        {JUEGO_TUTE, 2, false, nullptr},      {JUEGO_TUTE, 4, true, nullptr},
        {JUEGO_BRISCA, 3, false, nullptr},    {JUEGO_POKER, 4, false, nullptr},
        {JUEGO_BLACKJACK, 4, false, nullptr}, {JUEGO_SIETEYMEDIA, 3, false, nullptr},
        {JUEGO_CINQUILLO, 4, false, nullptr}, {JUEGO_MUS, 4, true, nullptr},
        {JUEGO_CHINCHON, 3, false, nullptr},  {JUEGO_PUMBA, 4, false, nullptr},
    };
    unsigned semilla = 7;
    for (const MesaAutomatica& tipo : tipos) {
        const auto conTodos = MesasDeLaPartida(tipo, semilla, true);
        const auto rapida = MesasDeLaPartida(tipo, semilla, false);
        ASSERT_FALSE(conTodos.empty()) << NombreJuego[tipo.Juego].toStdString();
        ASSERT_EQ(rapida.size(), conTodos.size()) << NombreJuego[tipo.Juego].toStdString();
        for (size_t i = 0; i < rapida.size(); ++i)
            ASSERT_EQ(rapida[i], conTodos[i])
                << NombreJuego[tipo.Juego].toStdString() << ", jugada " << i + 1;
        ++semilla;
    }
}
