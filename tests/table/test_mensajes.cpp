// The message box: its size and place, and how it answers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

#include "frame/TrufalGbl.h"
#include "table/Mensajes.h"

namespace {

// Shows a real box, and acts on it as soon as it is up.
bool PreguntaYResponde(int botones, std::function<void(QWidget*)> accion) {
    MensajesGuionados = false;
    QTimer::singleShot(0, [accion] {
        QWidget* caja = QApplication::activeModalWidget();
        ASSERT_NE(caja, nullptr);
        accion(caja);
    });
    Mensaje("Prueba", "¿Seguimos?", 1, botones);
    MensajesGuionados = true;
    return RespuestaMensaje;
}

void Pulsa(QWidget* caja, int x, int y) {
    QMouseEvent pulsacion(QEvent::MouseButtonPress, QPointF(x, y), caja->mapToGlobal(QPointF(x, y)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(caja, &pulsacion);
}

void Tecla(QWidget* caja, int tecla) {
    QKeyEvent evento(QEvent::KeyPress, tecla, Qt::NoModifier);
    QApplication::sendEvent(caja, &evento);
}

} // namespace

TEST(Mensajes, HeightGrowsSixteenALineAndTheBoxCentresOnTheTable) {
    AnchoVentana = 1024;
    AnchoMesa = 934;
    AltoVentana = 768;
    MensajeSobreVentana = false;
    EXPECT_EQ(CalculaMensaje(6).Alto, 232);
    EXPECT_EQ(CalculaMensaje(1).Alto, 152);
    const GeometriaMensaje g = CalculaMensaje(3);
    EXPECT_EQ(g.Ancho, 430);
    EXPECT_EQ(g.X, (934 - 430) / 2);
    EXPECT_EQ(g.Y, (768 - 184) / 2);
    MensajeSobreVentana = true;
    EXPECT_EQ(CalculaMensaje(3).X, (1024 - 430) / 2);
    MensajeSobreVentana = false;
}

TEST(Mensajes, BeforeTheTableIsLaidOutTheBoxStillCentres) {
    const int ancho = AnchoMesa, alto = AltoVentana;
    AnchoMesa = AltoVentana = 0;
    const GeometriaMensaje g = CalculaMensaje(6);
    EXPECT_EQ(g.X, (800 - 430) / 2);
    EXPECT_EQ(g.Y, (600 - 232) / 2);
    AnchoMesa = ancho;
    AltoVentana = alto;
}

TEST(Mensajes, AnyKeyIsAYesAndTheButtonsAnswerWhatTheySay) {
    EXPECT_TRUE(PreguntaYResponde(2, [](QWidget* c) { Tecla(c, Qt::Key_Escape); }));
    EXPECT_TRUE(PreguntaYResponde(2, [](QWidget* c) { Tecla(c, Qt::Key_N); }));
    EXPECT_TRUE(PreguntaYResponde(1, [](QWidget* c) { Tecla(c, Qt::Key_Space); }));
    const int yBotones = 52 + 16 + 3 + 16 + 10;
    EXPECT_FALSE(PreguntaYResponde(2, [=](QWidget* c) { Pulsa(c, 362 + 20, yBotones); }));
    EXPECT_TRUE(PreguntaYResponde(2, [=](QWidget* c) { Pulsa(c, 186 + 20, yBotones); }));
    EXPECT_TRUE(PreguntaYResponde(1, [=](QWidget* c) { Pulsa(c, 366 + 20, yBotones); }));
}

TEST(Mensajes, ScriptedAnswersAreTakenInOrderAndOneButtonIsAlwaysYes) {
    MensajesVistos.clear();
    RespuestasGuionadas = {false, true};
    Mensaje("A", "uno", 1, 2, 7);
    EXPECT_FALSE(RespuestaMensaje);
    Mensaje("B", "dos", 1, 1);
    EXPECT_TRUE(RespuestaMensaje);
    EXPECT_EQ(RespuestasGuionadas.size(), 1u) << "a notice takes no scripted answer";
    ASSERT_EQ(MensajesVistos.size(), 2u);
    EXPECT_EQ(MensajesVistos[0].Ayuda, 7);
    RespuestasGuionadas.clear();
}

// A text longer than the lines its caller expects is shown whole: the box takes the lines the
// wrapped text needs, so every white pixel of the text drawn without limit is in the box too.
TEST(Mensajes, ALongTextIsNeverCutOff) {
    const QString largo =
        "Esta parte del programa aún no está disponible en esta versión de la mesa. "
        "Cuando lo esté, podrá elegir aquí el juego, sus normas y los jugadores, y sus "
        "cambios se guardarán en cuanto los haga.";
    auto blancos = [](const QImage& caja) {
        int n = 0;
        for (int y = 52; y < caja.height() - 70; ++y)
            for (int x = 17; x < 413; ++x) n += caja.pixel(x, y) == qRgb(255, 255, 255);
        return n;
    };
    EXPECT_GE(LineasDelMensaje(largo, 1), 3);
    EXPECT_EQ(LineasDelMensaje("Sí.", 2), 2) << "a short text keeps the lines it was given";
    const QImage corta = ImagenMensaje("Normas de juego", largo, 1, 1);
    const QImage holgada = ImagenMensaje("Normas de juego", largo, 12, 1);
    EXPECT_EQ(corta.height(), 136 + 16 * LineasDelMensaje(largo, 1));
    EXPECT_EQ(blancos(corta), blancos(holgada)) << "some line of the text is cut off";
}
