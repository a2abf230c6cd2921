// What a seat says aloud when it bets in a lance: the words tell what it did.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/MesaMus.h"
#include "games/mus/Mus.h"

#include <vector>

namespace {

QString UltimaFraseLance; // what the seat before said in this lance
int LanceDeLaFrase = 0;
int ManoDeLaFrase = 0;

QString Elige(const std::vector<QString>& frases, double r) {
    const int n = static_cast<int>(frases.size());
    return frases[std::min(n - 1, Ent(r * n))];
}

bool FueUnNo(const QString& frase) {
    for (const char* no :
         {"Nosotros no", "Yo no", "No vamos", "No queremos", "No quiero", "No voy"})
        if (frase == QString::fromUtf8(no)) return true;
    return false;
}

QString Frase(int orden) {
    const int A = ApuestaAnunciada, M = ApuestaMaxRonda;
    const bool dos = HablaPorDos;
    const double R = AzarFrase;
    const QString L = NombreLance[LanceActual];
    const int diferencia = A - M;
    const QString D = diferencia == 1 ? QStringLiteral("una") : QString::number(diferencia);
    const QString a = QString::number(A);
    if (A == 0 && M == 0) {
        if (orden == 2 && R < 1.0 / 8) return "Tengo postre";
        if (orden == 4 && R < 1.0 / 5) return "Se fué";
        return dos ? "Pasamos" : "Paso";
    }
    if (A == 0 && M == 2) return dos ? "Nosotros no" : "Yo no";
    if (A == 0 && M == ORDAGO)
        return dos ? Elige({"No vamos", "No queremos"}, R) : Elige({"No voy", "No quiero"}, R);
    if (A == 0) {
        if (dos)
            return Elige({"Nos vamos", "No vamos", "Nosotros no", "No queremos", "Pasamos a " + L,
                          "No vamos a " + L},
                         R);
        return Elige({"No quiero", "Me voy", "No voy", "Yo no", "Paso a " + L, "No voy a " + L}, R);
    }
    if (A == ORDAGO && A > M) return "Órdago a " + L;
    if (M == 0) {
        QString frase;
        if (A == 2)
            frase = QString(dos ? "Envidamos" : "Envido") + (R > 0.9 ? " 2" : "");
        else if (R < 0.75)
            frase = QString(dos ? "Envidamos " : "Envido ") + a;
        else
            frase = QString(dos ? "Vamos con " : "Voy con ") + a;
        return R > 0.7 ? frase + " a " + L : frase;
    }
    if (M == 2 && A == 4) {
        if (dos)
            return Elige(
                {"Envidamos más", "Reenvidamos", "Envidamos dos más", "Envidamos otras dos"}, R);
        return Elige({"Dos más", "Dos más", "Envido más", "Otras dos", "Reenvido", "Envido dos más",
                      "Envido otras dos", "Que sean dos más"},
                     R);
    }
    if (A > M) {
        if (dos)
            return Elige({"Envidamos " + a, "Envidamos " + D + " más", "Reenvidamos " + a,
                          "Metemos " + D + " más"},
                         R);
        return Elige({D + " más", D + " más", "Envido " + a, "Envido " + D + " más",
                      "Reenvido " + a, "Que sean " + D + " más", "Pues que sean " + a,
                      "Que sean " + a + " en total",
                      D == "una" ? QStringLiteral("Otra") : "Otras " + D, "Meto " + D + " más"},
                     R);
    }
    if (A == ORDAGO)
        return dos ? Elige({"Queremos", "Aceptamos", "Vamos"}, R)
                   : Elige({"Quiero", "Acepto", "Voy"}, R);
    if (FueUnNo(UltimaFraseLance)) return dos ? "Nosotros sí" : "Yo sí";
    return dos ? Elige({"Y nosotros", "Y nosotros", "Queremos", "Aceptamos", "Vamos"}, R)
               : Elige({"Y yo", "Y yo", "Quiero", "Acepto", "Voy"}, R);
}

} // namespace

QString FraseApuestaMus(int orden) {
    if (LanceDeLaFrase != LanceActual || ManoDeLaFrase != NumeroMano) UltimaFraseLance.clear();
    LanceDeLaFrase = LanceActual;
    ManoDeLaFrase = NumeroMano;
    QString frase = Frase(orden);
    if (frase.startsWith('u')) frase[0] = 'U';
    UltimaFraseLance = frase;
    return frase;
}
