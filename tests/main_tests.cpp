// Tests run headless: a QApplication on the offscreen platform, message boxes answered from a
// script, and the person played by the test.
#include <QApplication>
#include <gtest/gtest.h>

#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "table/Mensajes.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    MensajesGuionados = true;
    SemillaFija = 20261123; // every test deals the same cards at every run
    ComprobarCoherencia =
        true; // a lost card or chip stops the test where it happened, in every build
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
