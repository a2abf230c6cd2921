#include "platform/Sonido.h"

#include "frame/GblReglas.h"

#include <QFile>
#include <QSoundEffect>
#include <QUrl>
#include <memory>

#include "platform/Bomba.h"

namespace {
std::unique_ptr<QSoundEffect> Efecto;
}

void Sonido(int modo, int id) {
    if (!SonidoActivado) return;
    const QString recurso = QStringLiteral(":/assets/sonidos/%1.wav").arg(id, 2, 10, QChar('0'));
    if (!QFile::exists(recurso)) return;
    if (!Efecto) Efecto = std::make_unique<QSoundEffect>();
    Efecto->stop(); // a new sound cuts the one playing
    Efecto->setSource(QUrl(QStringLiteral("qrc") + recurso));
    Efecto->play();
    if (modo == SONIDO_SINCRONO) {
        // Without an audio device the effect fails at once and the wait ends with it.
        while (Efecto->status() != QSoundEffect::Error &&
               (Efecto->isPlaying() || Efecto->status() == QSoundEffect::Loading))
            EsperaEventos();
    }
}
