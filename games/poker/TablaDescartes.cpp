// The table of draws: for each play a seat may keep and its grade, how the draw ends, from the
// file PkFDes.trf that travels with the program.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/poker/Evaluacion.h"
#include "table/Mensajes.h"

#include <QFile>

namespace {

constexpr int DIGITOS_REGISTRO = LARGO_REGISTRO_DESCARTES - 2;
const QString TITULO_AVISO = QStringLiteral("Error en la carga de datos iniciales");

// The person hears of a missing or damaged file once a run, not at every game of Póker.
void Avisa(const QString& texto) {
    if (AvisoDescartesDado) return;
    AvisoDescartesDado = true;
    Mensaje(TITULO_AVISO, texto, 3, 1);
}

bool SoloDigitos(const QByteArray& linea) {
    if (linea.size() != DIGITOS_REGISTRO) return false;
    for (char c : linea)
        if (c < '0' || c > '9') return false;
    return true;
}

int Campo(const QByteArray& linea, int columna, int ancho) {
    return linea.mid(columna - 1, ancho).toInt();
}

void GuardaFila(const QByteArray& linea) {
    const int i = ++NumDescartes;
    JugadaDescarte[i] = Campo(linea, 4, 2);
    CalidadDescarte[i] = Campo(linea, 6, 1);
    TotalDescarte[i] = Campo(linea, 7, 7);
    for (int c = PRIMERA_JUGADA_HECHA; c <= NUM_JUGADAS; ++c) {
        CuentaDescarte[i][c] = Campo(linea, (c - PRIMERA_JUGADA_HECHA) * 7 + 14, 7);
        PorcentajeDescarte[i][c] =
            TotalDescarte[i] > 0 ? 100.0 * CuentaDescarte[i][c] / TotalDescarte[i] : 0.0;
    }
}

} // namespace

void LeeTablaDescartes() {
    NumDescartes = 0;
    // The work folder first, then the program's own, where the file is installed.
    QFile fichero(CarpetaTrabajo + FICHERO_DESCARTES);
    if (!fichero.exists() && !CarpetaPrograma.isEmpty())
        fichero.setFileName(CarpetaPrograma + FICHERO_DESCARTES);
    if (!fichero.open(QIODevice::ReadOnly)) {
        Avisa("No se encuentra el fichero PkFDes.trf. El juego sigue, pero las estadísticas del "
              "Póker no podrán mostrar lo que puede dar cada descarte.");
        return;
    }
    // One record a line: 90 digits, then the line end. A record cut short ends the reading.
    const QList<QByteArray> lineas = fichero.readAll().split('\n');
    for (int n = 0; n < lineas.size(); ++n) {
        const QByteArray linea = lineas[n].endsWith('\r') ? lineas[n].chopped(1) : lineas[n];
        if (linea.isEmpty() && n == lineas.size() - 1) break;
        if (!SoloDigitos(linea)) {
            Avisa("El fichero PkFDes.trf está incompleto o dañado. Las estadísticas del Póker "
                  "sólo mostrarán lo que puede dar cada descarte con los datos leídos.");
            return;
        }
        if (Campo(linea, 1, 2) != CartasNormales || Campo(linea, 3, 1) != NumComodines) continue;
        if (NumDescartes < MAX_DESCARTES) GuardaFila(linea);
    }
}
