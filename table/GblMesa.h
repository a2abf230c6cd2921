// What the table window keeps: its size, the zones of the seats, the places of the trick, the
// stock and the piles, and the picture boxes from which everything is drawn.
#pragma once

#include "platform/CajaImagen.h"
#include "table/Ids.h"

#include <QString>

constexpr unsigned COLOR_MESA = 0x008000; // the green of the table
constexpr int ANCHO_CARTA = 101, ALTO_CARTA = 141;
constexpr int ANCHO_BOTONERA = 90;

// ---- Window ----
inline int AnchoVentana = 0, AltoVentana = 0;
inline int CentroVentanaX = 0, CentroVentanaY = 0;
inline int AnchoMesa = 0;
inline int CentroMesaX = 0, CentroMesaY = 0;

// ---- Seat zones, the trick, the stock, the piles ----
inline int ZonaIzquierda[5] = {}, ZonaDerecha[5] = {}, ZonaArriba[5] = {}, ZonaAbajo[5] = {};
inline int CartaCentroX[5] = {}, CartaCentroY[5] = {};
inline int PilaX[25][7] = {}, PilaY[25][7] = {};
inline const int AnchoMarco[5] = {0, 141, 41, 141, 41};
inline const int AltoMarco[5] = {0, 41, 141, 41, 141};
inline int PozoX = 0, PozoY = 0;
inline int MazoBaseX = 0, MazoBaseY = 0;
inline int MazoX = 0, MazoY = 0;
inline int TriunfoX = 0, TriunfoY = 0;
inline int CartaX = 0, CartaY = 0;
inline int HileraLargo[5] = {}, HileraInicio[5] = {};
inline int PasoX = 0, PasoY = 0;
inline int PiedraMontonX[26] = {}, PiedraMontonY[26] = {};

// ---- Picture boxes ----
inline CajaImagen Pic_Mesa; // the window's own surface: the table as it stands
inline CajaImagen Pic_Baraja[5], Pic_Comodin[5];
inline CajaImagen Pic_BarReversos[3], Pic_ReversoRedu[3];
inline CajaImagen Pic_FichasApu[5];
inline CajaImagen Pic_BmpVario, Pic_BmpBoton, Pic_BmpContr, Pic_NumerosCristal;
inline CajaImagen Pic_Espejo, Pic_Mover;
inline CajaImagen Pic_Tantos[5];

// ---- Controls of the window ----
inline CajaImagen Pic_Botonera;
inline CajaImagen Pic_Boton[9];
inline CajaImagen Pic_BotContinuar;
inline CajaImagen Pic_Pulsador[103];
inline QString EtiquetaControl[103];
inline CajaImagen Pic_SelOpciones;
inline CajaImagen Pic_Sugerencia;
inline CajaImagen Pic_Apostadora;

// ---- Mouse ----
inline int RatonX = 0, RatonY = 0, BotonRaton = 0;
inline int JugadorBajoPuntero = 0;
inline int JugadorBajoCarta = 0, CartaBajoPuntero = 0;

// ---- Pointer ----
inline int CursorActual = 0; // the pointer shape in force, 0 the plain arrow
inline int ZonaCursor = 0;
