#include "bench/Automatica.h"

#include <QFile>
#include <algorithm>

#include "betting/Fichas.h"
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"

namespace {

// FNV-1a, 64 bits: enough to tell one outcome from another.
quint64 Mezcla(quint64 huella, const QByteArray& bytes) {
    for (const char c : bytes) {
        huella ^= static_cast<unsigned char>(c);
        huella *= 1099511628211ull;
    }
    return huella;
}

quint64 Mezcla(quint64 huella, int numero) {
    return Mezcla(huella, QByteArray::number(numero) + ' ');
}

quint64 Mezcla(quint64 huella, const QString& texto) {
    return Mezcla(huella, texto.toUtf8() + '|');
}

} // namespace

void PreparaMesaAutomatica(const QString& carpeta) {
    for (const char* hoja : {"Baraja01.jpg", "Baraja02.jpg", "PkFDes.trf"})
        QFile::copy(QStringLiteral(TRUFAL_SOURCE_DIR "/assets/") + hoja, carpeta + "/" + hoja);
    CarpetaTrabajo = carpeta + "/";
    CarpetaPrograma = QStringLiteral(TRUFAL_SOURCE_DIR "/assets/");
    AnchoVentana = 1024;
    AltoVentana = 768;
    PreparaMesa();
    PreparaBotonera();
    MensajesGuionados = true;
    FinPrograma = [] { PartidaViva = false; };
}

void PreparaPartidaAutomatica(const MesaAutomatica& mesa) {
    static const int niveles[5] = {0, 100, 75, 50, 0};
    JuegoActual = mesa.Juego;
    PonJuegoPorDefecto();
    NumJugadores = mesa.Jugadores;
    for (int s = 1; s <= 4; ++s) {
        NombreJugador[s] = QStringLiteral("Jugador%1").arg(s);
        EstadoJugador[s] = s <= mesa.Jugadores ? ESTADO_ACTIVADO : ESTADO_DESACTIVADO;
        ControlJugador[s] = CONTROL_AUTOMATICO;
        CartasVisibles[s] = CARA_OCULTA;
        NivelJugador[s] = niveles[s];
        CaracterJugador[s] = (s - 1) % 3 + 1;
    }
    ModalidadPareja = mesa.Parejas ? 2 : 1;
    ContinuarManual = false;
    TurnoSalida = 1;
    ModoReparto = 1;
    if (mesa.Opciones) mesa.Opciones();
    ParametrosJuego();
    ColocaMazo();
    ColocaTriunfo();
    PasoSentido = PasoSentidoPumba = SentidoJuego == 1 ? 1 : -1;
}

int JuegaPartidaAutomatica(unsigned semilla, bool todosLosFotogramas) {
    const bool pausas = PausasACero, vuelos = VuelosOmitidos;
    const unsigned semillaAntes = SemillaFija;
    PausasACero = true;
    VuelosOmitidos = !todosLosFotogramas;
    SemillaFija = semilla;
    PersonaGuionada = [] { EsperandoPersona = false; };
    RespuestasGuionadas.assign(4, false); // no history of these matches
    NuevaPartida();
    RespuestasGuionadas.clear();
    MensajesVistos.clear();
    PersonaGuionada = nullptr;
    PausasACero = pausas;
    VuelosOmitidos = vuelos;
    SemillaFija = semillaAntes;
    return NumeroMano;
}

quint64 HuellaPartida(quint64 huella) {
    for (int m = 1; m <= NumeroMano && m <= MAX_MANOS; ++m) {
        const RegistroMano& r = RegistroManos[m];
        huella = Mezcla(huella, r.Sale);
        for (int s = 0; s <= 4; ++s) {
            for (int e = 0; e <= 4; ++e) huella = Mezcla(huella, r.Gana[s][e]);
            huella = Mezcla(huella, r.Resultado[s]);
            huella = Mezcla(huella, r.Detalle[s]);
            huella = Mezcla(huella, r.Extra[s]);
        }
        huella = Mezcla(huella, r.Banca);
    }
    for (int s = 0; s <= 4; ++s) {
        huella = Mezcla(huella, JuegosGanados[s]);
        huella = Mezcla(huella, RestoJugador(s));
        huella = Mezcla(huella, Piedras[s]);
    }
    return Mezcla(huella, GanadorPartida);
}

void JuegaNivelesAlternos(int juego, int jugadores, const std::function<void()>& opciones,
                          const std::function<bool(int manos)>& trasPartida) {
    constexpr int CARACTER_MEDIO = 2;
    int nivel[5], caracter[5];
    std::copy(NivelJugador, NivelJugador + 5, nivel);
    std::copy(CaracterJugador, CaracterJugador + 5, caracter);
    const bool pintura = PinturaOmitida;
    for (unsigned semilla = 1;; ++semilla) {
        const bool impares = semilla % 2 == 1;
        PreparaPartidaAutomatica({juego, jugadores, false, [&] {
                                      if (opciones) opciones();
                                      for (int s = 1; s <= 4; ++s) {
                                          NivelJugador[s] =
                                              (s % 2 == 1) == impares ? NIVEL_ALTO : NIVEL_BAJO;
                                          CaracterJugador[s] = CARACTER_MEDIO;
                                      }
                                  }});
        PinturaOmitida = true;
        const int manos = JuegaPartidaAutomatica(semilla);
        PinturaOmitida = pintura;
        if (!trasPartida(manos)) break;
    }
    std::copy(nivel, nivel + 5, NivelJugador);
    std::copy(caracter, caracter + 5, CaracterJugador);
}

ManosDeNivel ManosGanadasPorNivel(int juego, int jugadores, int manosMinimas,
                                  const std::function<void()>& opciones) {
    ManosDeNivel r;
    JuegaNivelesAlternos(juego, jugadores, opciones, [&](int manos) {
        for (int m = 1; m <= manos; ++m)
            for (int s = 1; s <= jugadores; ++s)
                r.Ganadas += RegistroManos[m].Gana[s][1] == 1 && NivelJugador[s] == NIVEL_ALTO;
        r.Manos += manos;
        return r.Manos < manosMinimas;
    });
    return r;
}
