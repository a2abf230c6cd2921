// The table of draws the program carries, PkFDes.trf, against draws worked out by hand, and a
// missing or cut file.
#include <gtest/gtest.h>

#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "games/poker/Recorrido.h"
#include "support/MesaDePrueba.h"
#include "table/Mensajes.h"

#include <QFile>

namespace {

int Fila(int jugada, int calidad) {
    for (int i = 1; i <= NumDescartes; ++i)
        if (JugadaDescarte[i] == jugada && CalidadDescarte[i] == calidad) return i;
    return 0;
}

// A Trío of low cards keeps 3 and draws 2 of the 47 (35) cards unseen: the fourth card with
// any other makes a Póker; a pair of another value a Full, 10 x 6 + 2 x 3 ways in the long deck
// (two values lost a card to the draw), 7 x 6 + 2 x 3 in the deck from the 5. Two pairs keep 4:
// 4 of the 47 make a Full.
TEST(TablaDescartes, LasFilasDeLaMesaSonLosRobosContadosAMano) {
    MesaDePrueba mesa;
    const struct {
        int Minima, Jugada, Total, Queda, Full, Poker;
    } casos[] = {{1, 10, 1081, 969, 66, 46}, {4, 11, 595, 513, 48, 34}, {1, 9, 47, 43, 4, 0}};
    for (const auto& c : casos) {
        PonBarajaPoker(c.Minima, 1);
        LeeTablaDescartes();
        const int i = Fila(c.Jugada, 1);
        ASSERT_GT(i, 0) << c.Jugada;
        EXPECT_EQ(TotalDescarte[i], c.Total);
        EXPECT_EQ(CuentaDescarte[i][c.Jugada], c.Queda);
        EXPECT_EQ(CuentaDescarte[i][JugadaFull], c.Full);
        EXPECT_EQ(CuentaDescarte[i][JugadaPoker], c.Poker);
        EXPECT_DOUBLE_EQ(PorcentajeDescarte[i][JugadaFull], 100.0 * c.Full / c.Total);
    }
    EXPECT_TRUE(MensajesVistos.empty());
}

// Without the file the game goes on with an empty table, and the person is told once; a file
// cut in the middle of a record keeps the records before it.
TEST(TablaDescartes, SinFicheroOCortadoSeAvisaUnaVez) {
    MesaDePrueba mesa;
    const QString programa = CarpetaPrograma;
    CarpetaPrograma = CarpetaTrabajo;
    AvisoDescartesDado = false;
    PonBarajaPoker(1, 1);
    LeeTablaDescartes();
    LeeTablaDescartes();
    EXPECT_EQ(NumDescartes, 0);
    ASSERT_EQ(MensajesVistos.size(), 1u);
    EXPECT_EQ(MensajesVistos[0].Titulo, "Error en la carga de datos iniciales");

    QFile entero(programa + FICHERO_DESCARTES);
    ASSERT_TRUE(entero.open(QIODevice::ReadOnly));
    const QByteArray todo = entero.readAll();
    QFile cortado(CarpetaTrabajo + FICHERO_DESCARTES);
    ASSERT_TRUE(cortado.open(QIODevice::WriteOnly));
    cortado.write(todo.left(3 * LARGO_REGISTRO_DESCARTES + 40));
    cortado.close();
    AvisoDescartesDado = false;
    MensajesVistos.clear();
    LeeTablaDescartes();
    EXPECT_EQ(NumDescartes, 3);
    EXPECT_EQ(MensajesVistos.size(), 1u);
    CarpetaPrograma = programa;
}

} // namespace
