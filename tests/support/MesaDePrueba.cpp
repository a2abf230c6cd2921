#include "support/MesaDePrueba.h"

#include <algorithm>

#include <QFile>

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

QByteArray LeeFichero(const QString& ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void ReiniciaEstado() {
    static const int nivel[5] = {0, 50, 50, 50, 100};
    static const int visibles[5] = {0, 1, 1, 1, 2};
    static const int caracter[5] = {0, 2, 3, 1, 2};
    for (int s = 1; s <= 4; ++s) {
        NombreJugador[s] = QStringLiteral("Jugador%1").arg(s);
        NivelJugador[s] = nivel[s];
        EstadoJugador[s] = ESTADO_ACTIVADO;
        CartasVisibles[s] = visibles[s];
        ControlJugador[s] = visibles[s];
        CaracterJugador[s] = caracter[s];
    }
    PartidaViva = ManoViva = false;
    NumeroMano = 0;
    JugadorMano = JugadorBanca = 0;
    NumJugadores = 4;
    SentidoJuego = 1;
    PasoSentido = PasoSentidoPumba = 1;
    TurnoSalida = 1;
    ModoReparto = 1;
    ModalidadPareja = 1;
    ContinuarManual = true;
    LimitePartida = 3;
    EsperandoPersona = EligiendoMano = AnularReparto = false;
    for (auto& r : RegistroManos) r = RegistroMano{};
    for (auto& j : JuegaMano) j = false;
    MensajesVistos.clear();
    RespuestasGuionadas.clear();
}

MesaDePrueba::MesaDePrueba(int ancho, int alto) {
    ReiniciaEstado();
    CarpetaTrabajo = Carpeta.path() + "/";
    CarpetaPrograma = QStringLiteral(TRUFAL_SOURCE_DIR "/assets/");
    AnchoVentana = ancho;
    AltoVentana = alto;
    PreparaMesa();
    PreparaBotonera();
    VelocidadJuego = 100;
    MensajesGuionados = true;
    FinPrograma = [] { PartidaViva = false; };
}

MesaDePrueba::~MesaDePrueba() {
    PersonaGuionada = nullptr;
    FinPrograma = nullptr;
    PartidaViva = ManoViva = false;
    EsperandoPersona = false;
}

AsientosGuardados::AsientosGuardados() {
    std::copy(NivelJugador, NivelJugador + 5, Nivel);
    std::copy(CaracterJugador, CaracterJugador + 5, Caracter);
}

AsientosGuardados::~AsientosGuardados() {
    std::copy(Nivel, Nivel + 5, NivelJugador);
    std::copy(Caracter, Caracter + 5, CaracterJugador);
}
