#include "platform/Bomba.h"

#include <QCoreApplication>
#include <QEventLoop>

void BombeaEventos() {
    if (QCoreApplication::instance()) QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void EsperaEventos() {
    if (QCoreApplication::instance())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}
