// Start-up: the splash, a folder that can be written, the speech engines, the screen, the
// table, the settings, the opening message, and the game of the last session.
#include "frame/Arranque.h"

#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/CajaImagen.h"
#include "platform/Ayuda.h"
#include "platform/Carpetas.h"
#include "platform/Voz.h"
#include "table/Botonera.h"
#include "table/Careta.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Mesa.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int TEMA_DESCRIPCION_GENERAL = 1020;
constexpr int TEMA_SINTETIZADOR = 7000;

// Files that a fresh fallback folder takes from the program's folder, under their own names.
const char* const FICHEROS_COPIADOS[] = {
    "TRF5132.INI",  "TRF5232.INI",  "TRF5332.INI", "TRF5432.INI", "TRF5532.INI", "TRF5632.INI",
    "TRF5732.INI",  "TRF5832.INI",  "TRF5932.INI", "TRF5132.HIS", "TRF5232.HIS", "TRF5332.HIS",
    "TRF5432.HIS",  "TRF5532.HIS",  "TRF5632.HIS", "TRF5732.HIS", "TRF5832.HIS", "TRF5932.HIS",
    "Baraja01.jpg", "Baraja02.jpg", "PkFDes.trf"};

// Ends the program at once, whatever is on the stack: the files have been written already.
void SalidaInmediata() {
    std::fflush(nullptr);
    std::_Exit(0);
}

} // namespace

void PruebaCarpeta() {
    QDir::setCurrent(CarpetaTrabajo);
    CarpetaTemporal = false;
    QFile prueba(CarpetaTrabajo + "CSCD.WRK");
    if (prueba.open(QIODevice::WriteOnly)) {
        prueba.close();
        prueba.remove();
        return;
    }
    CarpetaTemporal = true;
    const QString anterior = ConSeparador(CarpetaTrabajo);
    CarpetaTrabajo = CarpetaDatosUsuario() + "Trb/";
    QDir().mkpath(CarpetaTrabajo);
    QDir::setCurrent(CarpetaTrabajo);
    if (QFile::exists(CarpetaTrabajo + "TRF32.INI")) return; // set up by an earlier run
    // A copy that fails is skipped: the file then counts as missing, and the readers mend it.
    QFile::copy(anterior + "TRF32INI", CarpetaTrabajo + "TRF32.INI");
    for (const char* nombre : FICHEROS_COPIADOS)
        QFile::copy(anterior + nombre, CarpetaTrabajo + nombre);
    // Copies keep the read-only mark of an installed folder; the settings must be writable.
    for (const QString& f : QDir(CarpetaTrabajo).entryList(QDir::Files))
        QFile::setPermissions(CarpetaTrabajo + f, QFile::permissions(CarpetaTrabajo + f) |
                                                      QFileDevice::WriteOwner |
                                                      QFileDevice::ReadOwner);
}

void BuscaMotoresVoz() {
    MotorVozMujer = MotorVozHombre = 0;
    int cuenta = 0;
    if (!CuentaMotoresVoz(cuenta)) {
        QMessageBox caja(QMessageBox::Critical, "Sintetizador de voz",
                         "No puede continuar la carga del programa porque su sistema operativo no "
                         "tiene instaladas las librerías que necesita el sintetizador de voces de "
                         "los jugadores. Para instalarlas debe instalar el paquete espeak-ng-data "
                         "con el gestor de paquetes de su sistema (en Debian y Ubuntu: sudo apt "
                         "install espeak-ng-data).",
                         QMessageBox::Ok | QMessageBox::Help);
        if (caja.exec() == QMessageBox::Help) AbreAyudaYEspera(TEMA_SINTETIZADOR);
        SalidaInmediata();
    }
    for (int i = 1; i <= cuenta; ++i) {
        const int sexo = DatosMotorVoz(i).Sexo;
        if ((sexo == 2 || sexo == 0) && MotorVozHombre == 0) MotorVozHombre = i;
        if (sexo == 1 && MotorVozMujer == 0) MotorVozMujer = i;
    }
}

void FijaTamanoVentana(int anchoPantalla, int altoPantalla) {
    AnchoVentana = std::max(anchoPantalla, 800);
    AltoVentana = std::max(altoPantalla, 600);
}

namespace {

// What a window can take, panels left out, in the screen's own pixels.
QSize TamanoFisico(const QScreen* pantalla) {
    if (!pantalla) return QSize(1024, 768);
    return pantalla->availableGeometry().size() * pantalla->devicePixelRatio();
}

} // namespace

bool PruebaResolucion(int ancho, int alto) {
    if (ancho >= 800) return true; // the height isn't tested: the table takes 600 at least
    AnchoMesa = 640;
    AltoVentana = 480;
    Mensaje(
        "Resolución de pantalla",
        "Este programa se ha diseñado para funcionar  con una resolución mínima de pantalla de "
        "800x600 con profundidad de color de 16 bits  o  superior. La resolución actual es de " +
            FormatoTexto(ancho, "@@@") + "x" + FormatoTexto(alto, "@@@") +
            ". Pulse Aceptar para  abrir  la  mesa  reducida  al tamaño de la pantalla o "
            "Cancelar para abandonar el programa.",
        6, 2);
    AnchoMesa = AltoVentana = 0;
    // The screen mode is left alone: the table keeps its 800 by 600 and is shown scaled into
    // the window the screen allows.
    return RespuestaMensaje;
}

void Main() {
    FinPrograma = SalidaInmediata;
    MuestraCareta();
    SaltoLinea = QStringLiteral("\r\n");
    CarpetaPrograma = CarpetaDelPrograma();
    CarpetaTrabajo = CarpetaPrograma;
    PruebaCarpeta();
    BuscaMotoresVoz();
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    const QSize tamano = pantalla ? pantalla->size() : QSize(1024, 768);
    const QSize fisico = TamanoFisico(pantalla);
    if (!PruebaResolucion(fisico.width(), fisico.height())) SalidaInmediata();
    FijaTamanoVentana(tamano.width(), tamano.height());
    // A dense screen gets every picture at double resolution; the table keeps its sizes.
    EscalaMesa = pantalla && pantalla->devicePixelRatio() >= 1.5 ? 2 : 1;
    CargaMesa();
    PreparaMesa();
    PreparaBotonera();
    // The settings are read before the table is shown, so that its first picture has the right
    // game and backs; a message about them shows the table first and stands on it.
    LeeConfiguracion();
    AbreMesa();
    Mensaje("TRUFAL 3.2",
            "Si desea consultar una descripción general de este  programa  para  conocer  "
            "rápidamente su funcionamiento, pulse el botón de Ayuda.",
            3, 1, TEMA_DESCRIPCION_GENERAL);
    AbreJuego();
}
