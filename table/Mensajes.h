// The message box `mensajes`: every question and notice of the program.
#pragma once

#include <QString>
#include <deque>

// Shows the box and returns when it closes. The answer is in RespuestaMensaje: True for the one
// button or for yes, False for no. Lines are the lines of text the caller expects; buttons 1 one
// button, 2 yes and no; help the topic of the help button, 0 for none.
void Mensaje(const QString& titulo, const QString& texto, int lineas, int botones, int ayuda = 0);
// The next message is a table laid out in columns of blanks (the report of a hand of Mus): its
// text is drawn in letters of one width, so that the figures stand under their headings.
inline bool MensajeEnColumnas = false;

// The lines the box gives the text: those the caller expects, or more when the text, wrapped at
// the width of the box, takes more. No line is ever cut off.
int LineasDelMensaje(const QString& texto, int lineas);
// The box as it is drawn, in a picture, for the tests to look at.
class QImage;
QImage ImagenMensaje(const QString& titulo, const QString& texto, int lineas, int botones,
                     int ayuda = 0);

// Geometry of the box for its lines, on the reference it centres on.
struct GeometriaMensaje {
    int X, Y, Ancho, Alto;
};
GeometriaMensaje CalculaMensaje(int lineas);

// Headless play: while this queue holds answers, Mensaje takes the next one without showing a
// window, and notes what it was asked. A test or a scripted run fills it.
struct MensajeVisto {
    QString Titulo, Texto;
    int Lineas = 0, Botones = 0, Ayuda = 0;
    bool Columnas = false; // drawn in letters of one width
};
inline bool MensajesGuionados = false;          // answer from the queue, never show a window
inline std::deque<bool> RespuestasGuionadas;    // answers to the next questions; empty: yes
inline std::deque<MensajeVisto> MensajesVistos; // what was asked, oldest first
