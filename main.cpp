#include <QApplication>
#include <QFont>
#include <QIcon>

#include "frame/Arranque.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Trufal");
    QApplication::setDesktopFileName("trufal");
    QApplication::setWindowIcon(QIcon(":/assets/trufal.png"));
    QApplication::setFont(QFont("DejaVu Sans", 9));
    Main();
    return app.exec();
}
