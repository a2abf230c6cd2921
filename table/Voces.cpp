// The seats' voices: the engine of the seat's sex, with its pitch and speed, and the wait for
// the end of the phrase.
#include "table/Voces.h"

#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Voz.h"

namespace {
constexpr int HABLA_SI = 1;
} // namespace

QString TextoHablado(const QString& texto) {
    // The engine reads "Jack" letter by letter in Spanish; spelt this way it sounds as it should.
    return texto == QStringLiteral("Black Jack") ? QStringLiteral("Black yack") : texto;
}

int EligeMotorVoz(int seat) {
    const bool mujer = VozSexo[seat] == VOZ_MUJER;
    const int propio = mujer ? MotorVozMujer : MotorVozHombre;
    return propio != 0 ? propio : (mujer ? MotorVozHombre : MotorVozMujer);
}

int ValorEnRango(int minimo, int maximo, int ajuste) {
    return Redondea(minimo + double(maximo - minimo) / 100.0 * ajuste);
}

bool FraseSeHabla(int hablar) {
    return hablar == HABLA_SI && SonidoActivado && VocesActivadas && !EnPersonal && !OrdenManual;
}

void Habla(int seat, const QString& texto) {
    if (seat < 1 || seat > 4) return;
    const int motor = EligeMotorVoz(seat);
    if (motor == 0) return;
    const MotorVoz datos = DatosMotorVoz(motor);
    const int tono = ValorEnRango(datos.TonoMinimo, datos.TonoMaximo, VozTono[seat]);
    const int velocidad =
        ValorEnRango(datos.VelocidadMinima, datos.VelocidadMaxima, VozVelocidad[seat]);
    HablaConMotor(motor, TextoHablado(texto), tono, velocidad);
}
