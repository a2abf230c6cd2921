#include "platform/Sonido.h"

#include "frame/GblReglas.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QCoreApplication>
#include <QFile>
#include <QMediaDevices>
#include <QtEndian>
#include <chrono>
#include <thread>

namespace {

// The sink of the sound that plays; the next sound cuts it.
QAudioSink* Salida = nullptr;

uint32_t Lee32(const QByteArray& d, qsizetype pos) {
    return qFromLittleEndian<quint32>(d.constData() + pos);
}

uint16_t Lee16(const QByteArray& d, qsizetype pos) {
    return qFromLittleEndian<quint16>(d.constData() + pos);
}

bool FormatoValido(const OndaPcm& o) {
    return o.Canales >= 1 && o.Canales <= 2 && o.Frecuencia >= 8000 && o.Frecuencia <= 192000 &&
           (o.BitsMuestra == 8 || o.BitsMuestra == 16);
}

void CortaSonido() {
    if (!Salida) return;
    Salida->stop();
    delete Salida;
    Salida = nullptr;
}

QAudioFormat FormatoDe(const OndaPcm& onda) {
    QAudioFormat formato;
    formato.setSampleRate(onda.Frecuencia);
    formato.setChannelCount(onda.Canales);
    formato.setSampleFormat(onda.BitsMuestra == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    return formato;
}

} // namespace

bool LeeOndaPcm(const QByteArray& datos, OndaPcm& onda) {
    if (datos.size() < 12 || !datos.startsWith("RIFF") || datos.mid(8, 4) != "WAVE") return false;
    OndaPcm leida;
    bool conFormato = false;
    qsizetype pos = 12;
    while (pos + 8 <= datos.size()) {
        const QByteArray id = datos.mid(pos, 4);
        const qint64 largo = Lee32(datos, pos + 4);
        const qsizetype cuerpo = pos + 8;
        if (largo > datos.size() - cuerpo) return false; // the chunk runs past the end
        if (id == "fmt ") {
            if (largo < 16 || Lee16(datos, cuerpo) != 1) return false; // integer PCM only
            leida.Canales = Lee16(datos, cuerpo + 2);
            leida.Frecuencia = int(Lee32(datos, cuerpo + 4));
            leida.BitsMuestra = Lee16(datos, cuerpo + 14);
            if (!FormatoValido(leida) ||
                Lee16(datos, cuerpo + 12) != leida.Canales * leida.BitsMuestra / 8)
                return false;
            conFormato = true;
        } else if (id == "data") {
            // The samples come after the format, and whole frames only.
            if (!conFormato || largo == 0 || largo % (leida.Canales * leida.BitsMuestra / 8) != 0)
                return false;
            leida.Muestras = datos.mid(cuerpo, largo);
            onda = leida;
            return true;
        }
        pos = cuerpo + largo + (largo & 1); // chunks are padded to an even length
    }
    return false;
}

void Sonido(int modo, int id) {
    if (!SonidoActivado || !QCoreApplication::instance()) return;
    CortaSonido();
    // The wave is read from the resources at each play: no sound stays in memory.
    QFile fichero(QStringLiteral(":/assets/sonidos/%1.wav").arg(id, 2, 10, QChar('0')));
    OndaPcm onda;
    if (!fichero.open(QIODevice::ReadOnly) || !LeeOndaPcm(fichero.readAll(), onda)) return;
    const QAudioDevice dispositivo = QMediaDevices::defaultAudioOutput();
    const QAudioFormat formato = FormatoDe(onda);
    if (dispositivo.isNull() || !dispositivo.isFormatSupported(formato)) return;

    // The whole sound is handed to the device at once, in push mode, so it plays to the end
    // even while the game waits without pumping events.
    Salida = new QAudioSink(dispositivo, formato);
    Salida->setBufferSize(onda.Muestras.size());
    QIODevice* entrada = Salida->start();
    if (!entrada) {
        CortaSonido();
        return;
    }
    entrada->write(onda.Muestras);
    if (modo == SONIDO_SINCRONO)
        std::this_thread::sleep_for(
            std::chrono::microseconds(formato.durationForBytes(onda.Muestras.size())));
}
