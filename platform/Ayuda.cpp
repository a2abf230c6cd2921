#include "platform/Ayuda.h"

#include "frame/TrufalGbl.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QDir>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

QString CarpetaAyuda() {
    const QStringList candidatas{CarpetaPrograma + "help/",
                                 QStringLiteral(TRUFAL_SOURCE_DIR "/help/")};
    for (const QString& c : candidatas)
        if (QFile::exists(c + "index.html")) return c;
    return candidatas.front();
}

// The viewer belongs to the modal window open when it was asked for, if any, so that it takes
// the mouse while that window waits; it goes when that window goes.
QPointer<QDialog> Visor;
QPointer<QTextBrowser> Navegador;

} // namespace

void AbreAyuda(int tema) {
    UltimoTemaAyuda = tema;
    const QString carpeta = CarpetaAyuda();
    QString pagina = carpeta + QString::number(tema) + ".html";
    // An unknown topic opens the index, never an error.
    if (!QFile::exists(pagina)) pagina = carpeta + "index.html";
    QWidget* modal = QApplication::activeModalWidget();
    if (Visor && Visor != modal && Visor->parentWidget() != modal) delete Visor;
    if (!Visor) {
        Visor = new QDialog(modal, Qt::Window);
        Visor->setAttribute(Qt::WA_DeleteOnClose);
        Visor->setWindowTitle("Ayuda de Trufal");
        Visor->resize(720, 560);
        auto* capa = new QVBoxLayout(Visor);
        Navegador = new QTextBrowser(Visor);
        Navegador->setOpenLinks(true);
        capa->addWidget(Navegador);
        auto* cerrar = new QPushButton("Cerrar", Visor);
        QObject::connect(cerrar, &QPushButton::clicked, Visor.data(), &QDialog::close);
        capa->addWidget(cerrar, 0, Qt::AlignRight);
    }
    Navegador->setSearchPaths({carpeta});
    if (QFile::exists(pagina))
        Navegador->setSource(QUrl::fromLocalFile(pagina));
    else
        Navegador->setHtml("<h2>Ayuda de Trufal</h2><p>Las páginas de ayuda no están instaladas "
                           "junto al programa.</p>");
    Visor->show();
    Visor->raise();
    Visor->activateWindow();
}

void AbreAyudaYEspera(int tema) {
    AbreAyuda(tema);
    if (Visor) Visor->exec();
}
