// The seats' voices: the Spanish voice of the speech synthesiser and its variants, each one an
// engine with a sex; the sound is made in memory and played on the default output.
#include "platform/Voz.h"

#include "platform/Bomba.h"

#include <QAudioFormat>
#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QElapsedTimer>
#include <QMediaDevices>
#include <QSet>
#include <QTimer>
#include <algorithm>
#include <espeak-ng/speak_lib.h>

namespace {

// Units of the synthesiser: words a minute and a base pitch from 0 to 100. The speeds keep the
// phrases understandable: 175, its usual speed, is the middle of the range.
constexpr int VELOCIDAD_MINIMA = 100, VELOCIDAD_MAXIMA = 250;
constexpr int TONO_MINIMO = 10, TONO_MAXIMO = 90;
constexpr int COLA_MS = 150;        // what the device still holds when the sink has given all
constexpr int MARGEN_FIN_MS = 1500; // a device that takes no sound for this long has stopped

struct Variante {
    const char* Fichero; // variant file of the synthesiser, empty for the plain voice
    const char* Nombre;
    int Sexo;
};

// In the order the engines are numbered: the first of each sex is the one the seats use.
constexpr Variante VARIANTES[] = {
    {"", "Español", 2},
    {"f3", "Español, mujer 3", 1},
    {"f1", "Español, mujer 1", 1},
    {"f2", "Español, mujer 2", 1},
    {"f4", "Español, mujer 4", 1},
    {"f5", "Español, mujer 5", 1},
    {"m1", "Español, hombre 1", 2},
    {"m2", "Español, hombre 2", 2},
    {"m3", "Español, hombre 3", 2},
    {"m4", "Español, hombre 4", 2},
    {"m5", "Español, hombre 5", 2},
    {"m6", "Español, hombre 6", 2},
    {"m7", "Español, hombre 7", 2},
};

struct EstadoSintetizador {
    bool Iniciado = false;
    int Frecuencia = 0; // 0: the synthesiser couldn't start or has no Spanish
    std::vector<Variante> Motores;
};
EstadoSintetizador Sintetizador;

std::vector<int16_t>* MuestrasEnCurso = nullptr;

int RecogeMuestras(short* muestras, int cuantas, espeak_EVENT*) {
    if (MuestrasEnCurso && muestras)
        MuestrasEnCurso->insert(MuestrasEnCurso->end(), muestras, muestras + cuantas);
    return 0; // go on
}

// The variant files that the installed data offer, by their short name ("f3").
QSet<QString> VariantesInstaladas() {
    espeak_VOICE pide{};
    pide.languages = "variant";
    QSet<QString> halladas;
    const espeak_VOICE** lista = espeak_ListVoices(&pide);
    for (int i = 0; lista && lista[i]; ++i) {
        const QString id = QString::fromUtf8(lista[i]->identifier);
        halladas.insert(id.section('/', -1));
    }
    return halladas;
}

QByteArray NombreSintetizador(const Variante& v) {
    return *v.Fichero ? QByteArray("es+") + v.Fichero : QByteArray("es");
}

// Started once, when the engines are first asked for. Missing data leave no engine.
void IniciaSintetizador() {
    if (Sintetizador.Iniciado) return;
    Sintetizador.Iniciado = true;
    const int frecuencia =
        espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, espeakINITIALIZE_DONT_EXIT);
    if (frecuencia <= 0) return;
    espeak_SetSynthCallback(RecogeMuestras);
    if (espeak_SetVoiceByName("es") != EE_OK) return;
    Sintetizador.Frecuencia = frecuencia;
    const QSet<QString> instaladas = VariantesInstaladas();
    for (const Variante& v : VARIANTES)
        if (!*v.Fichero || instaladas.contains(QString::fromLatin1(v.Fichero)))
            Sintetizador.Motores.push_back(v);
}

bool MotorExiste(int motor) {
    IniciaSintetizador();
    return motor >= 1 && motor <= int(Sintetizador.Motores.size());
}

QByteArray Pcm(const MuestrasVoz& voz) {
    return QByteArray(reinterpret_cast<const char*>(voz.Muestras.data()),
                      qsizetype(voz.Muestras.size() * sizeof(int16_t)));
}

// Plays the sound on the device and pumps events until it has been heard: the device has taken
// all of it and the phrase's own time has passed. A device that stops taking sound is given up.
void ReproduceYEspera(const QAudioDevice& salida, const MuestrasVoz& voz) {
    QAudioFormat formato;
    formato.setSampleRate(voz.Frecuencia);
    formato.setChannelCount(1);
    formato.setSampleFormat(QAudioFormat::Int16);
    QByteArray datos = Pcm(voz);
    QBuffer fuente(&datos);
    fuente.open(QIODevice::ReadOnly);
    QAudioSink altavoz(salida, formato);
    // The end of the sound may come as a state change only: a tick keeps the wait awake.
    QTimer tic;
    tic.start(50);
    const qint64 totalUs = qint64(voz.Muestras.size()) * 1000000 / voz.Frecuencia;
    QElapsedTimer reloj, quieto;
    reloj.start();
    quieto.start();
    altavoz.start(&fuente);
    qint64 avance = -1;
    for (;;) {
        const QAudio::State estado = altavoz.state();
        if (estado == QAudio::StoppedState && altavoz.error() != QAudio::NoError) break;
        const qint64 hechoUs = altavoz.processedUSecs();
        if (hechoUs + fuente.pos() != avance) {
            avance = hechoUs + fuente.pos();
            quieto.restart();
        } else if (quieto.elapsed() > MARGEN_FIN_MS) {
            break; // the device has stopped taking sound
        }
        // Once the device has taken all of it, what is left to hear is its own delay, which the
        // phrase's time covers.
        const bool tomada = estado == QAudio::IdleState || fuente.atEnd();
        if (tomada && reloj.elapsed() * 1000 >= totalUs + COLA_MS * 1000) break;
        EsperaEventos();
    }
    altavoz.stop();
}

} // namespace

bool CuentaMotoresVoz(int& cuenta) {
    IniciaSintetizador();
    cuenta = int(Sintetizador.Motores.size());
    return true; // the synthesiser is part of the program: without data there are no engines
}

MotorVoz DatosMotorVoz(int indice) {
    if (!MotorExiste(indice)) return {};
    const Variante& v = Sintetizador.Motores[indice - 1];
    return {QString::fromUtf8(v.Nombre),
            v.Sexo,
            TONO_MINIMO,
            TONO_MAXIMO,
            VELOCIDAD_MINIMA,
            VELOCIDAD_MAXIMA};
}

MuestrasVoz SintetizaVoz(int motor, const QString& texto, int tono, int velocidad) {
    MuestrasVoz voz;
    if (!MotorExiste(motor)) return voz;
    if (espeak_SetVoiceByName(NombreSintetizador(Sintetizador.Motores[motor - 1]).constData()) !=
        EE_OK)
        return voz;
    espeak_SetParameter(espeakRATE, std::clamp(velocidad, VELOCIDAD_MINIMA, VELOCIDAD_MAXIMA), 0);
    espeak_SetParameter(espeakPITCH, std::clamp(tono, TONO_MINIMO, TONO_MAXIMO), 0);
    const QByteArray utf8 = texto.toUtf8();
    voz.Frecuencia = Sintetizador.Frecuencia;
    MuestrasEnCurso = &voz.Muestras;
    espeak_Synth(utf8.constData(), size_t(utf8.size()) + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8,
                 nullptr, nullptr);
    espeak_Synchronize();
    MuestrasEnCurso = nullptr;
    return voz;
}

void HablaConMotor(int motor, const QString& texto, int tono, int velocidad) {
    const QAudioDevice salida = QMediaDevices::defaultAudioOutput();
    if (salida.isNull() || texto.trimmed().isEmpty()) return;
    const MuestrasVoz voz = SintetizaVoz(motor, texto, tono, velocidad);
    if (voz.Muestras.empty()) return;
    ReproduceYEspera(salida, voz);
}
