#include "platform/Ayuda.h"

#include "frame/TrufalGbl.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <memory>

namespace {

QString CarpetaAyuda() {
    const QStringList candidatas{CarpetaPrograma + "help/",
                                 QStringLiteral(TRUFAL_SOURCE_DIR "/help/")};
    for (const QString& c : candidatas)
        if (QFile::exists(c + "index.html")) return c;
    return candidatas.front();
}

std::unique_ptr<QDialog> Visor;
QTextBrowser* Navegador = nullptr;

} // namespace

void AbreAyuda(int tema) {
    const QString carpeta = CarpetaAyuda();
    QString pagina = carpeta + QString::number(tema) + ".html";
    // An unknown topic opens the index, never an error.
    if (!QFile::exists(pagina)) pagina = carpeta + "index.html";
    if (!Visor) {
        Visor = std::make_unique<QDialog>();
        Visor->setWindowTitle("Ayuda de Trufal");
        Visor->resize(720, 560);
        auto* capa = new QVBoxLayout(Visor.get());
        Navegador = new QTextBrowser(Visor.get());
        Navegador->setOpenLinks(true);
        capa->addWidget(Navegador);
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
