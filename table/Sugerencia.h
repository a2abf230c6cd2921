// The information pane Pic_Sugerencia at the bottom left of the table: on the person's turn it
// explains the moment in five short lines, with a link to the help topic that tells more.
#pragma once

#include <QString>
#include <QStringList>

constexpr int NUM_TEXTOS_INFORMACION = 63; // entries 0 to 62; those not used stay empty
constexpr int LARGO_TEXTO_INFORMACION = 145, LINEAS_INFORMACION = 5, LARGO_LINEA_INFORMACION = 29;
constexpr int ENTRADA_AVISO_CIERRE = 0; // how to bring the pane back once it is closed
constexpr int TEMA_AVISO_CIERRE = 2121;

// The pane and its two controls, in pixels of the pane.
constexpr int ANCHO_SUGERENCIA = 211, ALTO_SUGERENCIA = 80;
constexpr int MAS_AYUDA_X = 5, MAS_AYUDA_Y = 1, ANCHO_MAS_AYUDA = 55, ALTO_MAS_AYUDA = 19;
constexpr int LADO_CERRAR_SUGE = 15;
constexpr int CERRAR_SUGE_X = ANCHO_SUGERENCIA - 5 - LADO_CERRAR_SUGE, CERRAR_SUGE_Y = 3;
constexpr unsigned COLOR_TEXTO_INFORMACION = 0xFF0000; // blue, as a Windows value 0x00BBGGRR

inline int TemaInformacion[NUM_TEXTOS_INFORMACION] = {}; // the help topic of each entry
inline int TemaAyuda = 0;                                // topic of the text now shown
inline int TextoActual = 0;                              // its number

// Fills TextoInformacion, each text blank-padded to its 145 characters, and TemaInformacion.
void IniciaTextosInformacion();
// The five lines of 29 characters the pane writes for a text.
QStringList LineasInformacion(const QString& texto);
// Shows entry n in the pane, if VentanaInformacion is 1 (Activada).
void MuestraInformacion(int n);
// The close box: the first press shows how to bring the pane back, the second turns it off.
void CierraSugerencia();
// A press of the mouse at table point x, y: true when the pane took it.
bool PulsaSugerencia(int x, int y);
