#include <QApplication>
#include <QFont>

#include "frame/Arranque.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Trufal");
    QApplication::setFont(QFont("DejaVu Sans", 9));
    Main();
    return app.exec();
}
