// The tutor: the seat's computer player at level 100, and its answer shown at the table by a
// blinking green phrase, a blinking button, a card that jumps or cards that rise one by one.
#include "table/Tutor.h"

#include "frame/Ciclo.h"
#include "frame/TrufalGbl.h"
#include "platform/Sonido.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"
#include "table/Pulsadores.h"

namespace {

constexpr int PARPADEOS_FRASE = 2, PARPADEOS_FRASE_POKER = 3;
constexpr int VUELTAS_CONSEJO = 2; // rounds of a blinking button, a jumping card or a stock
constexpr int SALTO_MONTON = 10;   // how high the stock or the pile jumps

// The advice said as a phrase of the seat: green, blinking, and not spoken; DibujaJugador
// plays sound 12 at each blink while the tutor runs, and leaves the phrase wiped. The buttons
// the phrase took off ("Mando cortar", "Doblar"...) come back with the seat drawn again.
void DiceFrase(const QString& frase, int veces) {
    const int seat = JugadorActual;
    FraseJugador[seat][SerieActual] = frase;
    ColorFrase[seat][SerieActual] = COLOR_FRASE_TUTOR;
    ParpadeoFrase[seat][SerieActual] = veces;
    DibujaJugador(seat);
    ParpadeoFrase[seat][SerieActual] = 0;
    DibujaJugador(seat);
}

QString ConCantidad(const char* texto, int cantidad) {
    return QString::fromUtf8(texto) + QString::number(cantidad);
}

// Discards or cards to lay down: the selection is cleared, then each card rises in its turn.
void LevantaCartas(const std::vector<int>& posiciones) {
    const int seat = JugadorActual;
    for (int p = 1; p <= NumCartas[seat][SerieActual]; ++p)
        CartasJugador[seat][SerieActual][p][CAMPO_ESTADO] = 0;
    DibujaJugador(seat);
    for (int vuelta = 1; vuelta <= VUELTAS_CONSEJO; ++vuelta)
        for (int p : posiciones) SenalaCarta(seat, p, 1);
}

// Chinchón: the stock or the pile the card should be taken from jumps up and back.
void SaltaMonton(int monton) {
    const bool mazo = monton == 1;
    const int x = mazo ? MazoX : PozoX, y = mazo ? MazoY : PozoY;
    const int cuenta = mazo ? CartasEnMazo : CartasEnPozo;
    const int ancho = ANCHO_CARTA + 16, alto = ALTO_CARTA + 16 + SALTO_MONTON;
    for (int vuelta = 1; vuelta <= VUELTAS_CONSEJO; ++vuelta) {
        BorraZona(x, y - SALTO_MONTON - 14, ancho, alto);
        DibujaMazo(x, y - SALTO_MONTON, cuenta);
        RefrescaMesa();
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_TUTOR);
        Pausa(420);
        BorraZona(x, y - SALTO_MONTON - 14, ancho, alto);
        DibujaMazo(x, y, cuenta);
        RefrescaMesa();
        Pausa(180);
    }
}

// Siete y media: before advising another card, the covered card is shown turned to its owner,
// who must count it to follow the advice.
void MuestraTapada() {
    const int seat = JugadorActual;
    for (int p = 1; p <= NumCartas[seat][SerieActual]; ++p) {
        auto& carta = CartasJugador[seat][SerieActual][p];
        if (carta[CAMPO_MARCA] != 0) carta[CAMPO_CARA] = CARA_VISIBLE;
    }
    DibujaJugador(seat);
}

void ConsejoPoker(const ConsejoTutor& c) {
    if (FaseJuego == FASE_POKER_APUESTA1 || FaseJuego == FASE_POKER_APUESTA2)
        DiceFrase(FraseConsejoPoker(c), PARPADEOS_FRASE_POKER);
    else if (FaseJuego == FASE_POKER_DESCARTE && !c.Cartas.empty())
        LevantaCartas(c.Cartas);
    else if (FaseJuego == FASE_POKER_DESCARTE)
        ParpadeaPulsador(PULSADOR_SERVIDO, VUELTAS_CONSEJO); // "Servido"
}

void ConsejoBlackJack(const ConsejoTutor& c) {
    if (FaseJuego == FASE_BJ_APUESTA)
        DiceFrase(ConCantidad("Apostar ", c.Cantidad), PARPADEOS_FRASE);
    else if (FaseJuego == FASE_BJ_JUEGO && c.Abrir)
        DiceFrase("Abrir el par", PARPADEOS_FRASE);
    else if (FaseJuego == FASE_BJ_JUEGO)
        ParpadeaPulsador(c.Pulsador, VUELTAS_CONSEJO);
}

void ConsejoSieteYMedia(const ConsejoTutor& c) {
    if (c.Cambio && (FaseJuego == FASE_SYM_APUESTA || FaseJuego == FASE_SYM_JUEGO))
        DiceFrase("Cambiar el cuatro", PARPADEOS_FRASE);
    else if (FaseJuego == FASE_SYM_APUESTA)
        DiceFrase(ConCantidad("Apostar ", c.Cantidad), PARPADEOS_FRASE);
    else if (FaseJuego == FASE_SYM_JUEGO && c.Abrir)
        DiceFrase("Abrir la jugada", PARPADEOS_FRASE);
    else if (FaseJuego == FASE_SYM_JUEGO) {
        if (c.Pulsador == 81) MuestraTapada();
        ParpadeaPulsador(c.Pulsador, VUELTAS_CONSEJO);
    }
}

void ConsejoChinchon(const ConsejoTutor& c) {
    switch (FaseJuego) {
    case FASE_CHINCHON_TOMA:
        SaltaMonton(c.Monton);
        break;
    case FASE_CHINCHON_DESCARTE:
        SenalaCarta(JugadorActual, CartaElegida, VUELTAS_CONSEJO);
        break;
    case FASE_CHINCHON_DECIDE:
        ParpadeaPulsador(c.Pulsador, VUELTAS_CONSEJO); // 96 "Cerrar" or 97 "Seguir"
        break;
    case FASE_CHINCHON_CIERRE:
        LevantaCartas(c.Cartas);
        break;
    default:
        break;
    }
}

void ConsejoMus(const ConsejoTutor& c) {
    if (FaseJuego == FASE_MUS_MUS) {
        if (c.MandaSena) DiceFrase("Mandar cortar", PARPADEOS_FRASE);
        ParpadeaPulsador(c.Pulsador, VUELTAS_CONSEJO); // 98 "Mus" or 99 "No mus"
    } else if (FaseJuego == FASE_MUS_DESCARTE) {
        if (!c.Cartas.empty()) LevantaCartas(c.Cartas);
    } else if (FaseJuego == FASE_MUS_ENVITE && c.RondaDeJuego) {
        ParpadeaPulsador(c.Pulsador, VUELTAS_CONSEJO); // 100 "Si hay" or 101 "No hay"
    } else if (FaseJuego == FASE_MUS_ENVITE) {
        DiceFrase(FraseConsejoMus(c), PARPADEOS_FRASE);
    }
}

void MuestraConsejo(const ConsejoTutor& c) {
    switch (JuegoActual) {
    case JUEGO_POKER:
        return ConsejoPoker(c);
    case JUEGO_BLACKJACK:
        return ConsejoBlackJack(c);
    case JUEGO_SIETEYMEDIA:
        return ConsejoSieteYMedia(c);
    case JUEGO_TUTE:
    case JUEGO_BRISCA:
    case JUEGO_CINQUILLO:
    case JUEGO_PUMBA:
        return SenalaCarta(JugadorActual, CartaElegida, VUELTAS_CONSEJO);
    case JUEGO_CHINCHON:
        return ConsejoChinchon(c);
    case JUEGO_MUS:
        return ConsejoMus(c);
    default:
        return;
    }
}

void AvisaSinConsejo() {
    const QString juego = JuegoActual >= 0 && JuegoActual < 60 ? NombreJuego[JuegoActual] : "";
    const QString de = juego.isEmpty() ? QStringLiteral("este juego") : juego;
    Mensaje("Tutor de juego",
            "El tutor aún no puede aconsejar en " + de +
                ": sus consejos llegarán en una próxima versión de la mesa.",
            2, 1);
}

} // namespace

QString FraseConsejoPoker(const ConsejoTutor& c) {
    if (c.Cantidad < 0) return "Tirar las cartas";
    if (c.Cantidad == 0) return "Reservarse";
    if (c.Cantidad == c.Resto) return ConCantidad("Ir con el resto de ", c.Cantidad);
    if (c.ApuestaMaxRonda == 0) return ConCantidad("Apostar ", c.Cantidad);
    const int total = c.Apostado + c.Cantidad;
    if (total > c.ApuestaMaxRonda) return ConCantidad("Subir a ", total);
    return ConCantidad("Igualar a ", c.ApuestaMaxRonda);
}

QString FraseConsejoMus(const ConsejoTutor& c) {
    constexpr int ORDAGO = 999;
    if (c.Cantidad == 0) {
        if (c.Contra == ORDAGO) return "No aceptar";
        if (c.MandaSena) return "Mandar envidar";
        return c.Pareja ? "Pasar los dos" : "Pasar";
    }
    if (c.Cantidad == ORDAGO) return c.Contra == ORDAGO ? "Aceptar órdago" : "Lanzar órdago";
    if (c.Cantidad == 2 && c.Contra == 0) return "Envidar";
    if (c.Cantidad == 4 && c.Contra == 2) return "Reenvidar";
    if (c.Contra == 0) return ConCantidad("Apostar ", c.Cantidad);
    if (c.Cantidad == c.Contra) return ConCantidad("Aceptar las ", c.Cantidad);
    return ConCantidad("Subir a ", c.Cantidad);
}

void ParpadeaPulsador(int indice, int veces) {
    if (indice < 81 || indice > 102) return;
    const CajaImagen& b = Pic_Pulsador[indice];
    const bool tumbado = b.Alto() > b.Ancho();
    for (int vuelta = 1; vuelta <= veces; ++vuelta) {
        DibujaPulsador(indice, tumbado, true);
        RefrescaMesa();
        SuenaMesa(SONIDO_ASINCRONO, SONIDO_SELECCION);
        Pausa(360);
        DibujaPulsador(indice, tumbado, false);
        RefrescaMesa();
        Pausa(420);
    }
}

void Tutor() {
    if (BotonRechazado(4)) return;
    const bool hayRutina = JuegoActual >= 0 && JuegoActual < 60 && RutinaTutor[JuegoActual];
    if (!hayRutina) {
        AvisaSinConsejo();
        JugadaHecha = false;
        return;
    }
    // Paso 1. The seat plays at full level while the tutor runs, whatever its own level.
    TutorEnCurso = true;
    Pausa(60);
    const int seat = JugadorActual;
    const int nivel = NivelJugador[seat];
    NivelJugador[seat] = NIVEL_TUTOR;
    // Paso 2. The game's computer player answers for the person.
    const ConsejoTutor consejo = RutinaTutor[JuegoActual]();
    NivelJugador[seat] = nivel;
    // Paso 3. The answer is shown; it changes nothing in the game.
    MuestraConsejo(consejo);
    // Paso 4. Whatever the routine left as a move is not the person's move.
    TutorEnCurso = false;
    JugadaHecha = false;
}
