// Rule settings of the game in play and settings of the program. Ranges and defaults are those
// of the settings files (frame/Ficheros.cpp).
#pragma once

inline int SentidoJuego = 1;
inline int VentanaInformacion = 1;
inline bool ContinuarManual = true;
inline int ReversoCartas = 1;
inline int ModoReparto = 1;
inline int ModalidadPareja = 1;
inline int ObligacionAsistir = 1;
inline int OpcionComodines = 1;
inline int CartaMinimaPoker = 1;
inline int TipoBarajaEspanola = 1;
inline int LeyApertura = 1;
inline int TurnoSalida = 1;
inline int TipoMus = 2;
inline int JuegosPartidaMus = 2;
inline int TreintaYUnaReal = 1;
inline int ImagenContrarios = 2;
inline bool PermitirContrafallar = true;
inline bool CartasSiempreOrdenadas = false;
inline bool AsOrosComodin = false;
inline bool DetallarPasos = true;
inline int LimitePartida = 3;
inline int LimiteDescartes = 5;
inline int RestoInicial = 200;
inline int ApuestaMinima = 5;
inline int ApuestaMaxima = 25;
inline int PiedrasJuego = 30;

// ---- Program ----
inline bool SonidoActivado = false;
inline bool VocesActivadas = false;
inline int VelocidadJuego = 50;
