// The end of a hand of Chinchón: the close and its message, the round in which every seat lays
// its loose cards on the melds of the others, and the score of the hand with its record.
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/GblChinchon.h"
#include "frame/OrdenaMano.h"
#include "frame/Ordenar.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/chinchon/Eleccion.h"
#include "games/chinchon/Motor.h"
#include "games/chinchon/Partida.h"
#include "platform/Bomba.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Sugerencia.h"

#include <cstdlib>

namespace {

constexpr int SERIE = 1;
constexpr int TEMA_COMBINAR = 3130;
constexpr int INFO_TUTOR = 17, INFO_SOBRANTES = 50;
constexpr unsigned COLOR_RECIBIENDO = 0xFFFF00; // written, not spoken

void BorraRotulo() {
    BorraZona(CentroMesaX - 150, RotuloMesaY(), 301, 61);
    RefrescaMesa();
}

void RotuloBreve(const QString& texto) {
    RotuloMesa(texto);
    Pausa(2500);
    BorraRotulo();
}

QString TextoDelCierre() {
    if (FinMano == FIN_MAZO_AGOTADO)
        return "Ha finalizado el juego porque  el  mazo  se  ha quedado sin cartas por segunda "
               "vez.";
    const QString nombre = NombreJugador[GanadorMano];
    if (GanadorMano == 4) {
        static const char* const Final[4] = {".", ". Te descuentas 10 puntos.",
                                             ". Te descuentas 25 puntos.",
                                             " y ganas la partida porque has cantado Chinchón."};
        return nombre + ", has cerrado la mano actual" + QString::fromUtf8(Final[CierreChinchon]);
    }
    static const char* const Final[4] = {".", ". Se descuenta 10 puntos.",
                                         ". Se descuenta 25 puntos.",
                                         " y gana la partida porque ha cantado Chinchón."};
    return "Ha cerrado la mano actual " + nombre + QString::fromUtf8(Final[CierreChinchon]);
}

// The cards of each seat as the record keeps them: value, the first letter of the suit, a blank.
void PreparaDetalles() {
    RegistroMano& registro = RegistroManos[NumeroMano];
    for (int s = 1; s <= 4; ++s) {
        registro.Detalle[s].clear();
        if (!JuegaMano[s]) continue;
        for (int p = 1; p <= NumCartas[s][SERIE]; ++p) {
            const auto& c = CartasJugador[s][SERIE][p];
            registro.Detalle[s] +=
                LetraValor(c[CAMPO_VALOR]) + NombrePalo(c[CAMPO_PALO]).left(1) + " ";
        }
    }
}

void BorraMarcasDePaso(int salvo) {
    for (int s = 1; s <= 4; ++s)
        if (s != salvo) BorraPila(s + 10);
}

// The receiver's plate: "Recibiendo cartas", a blink and then steady.
void RotulaReceptor(int receptor, bool visible) {
    QString& frase = FraseJugador[receptor][SERIE];
    ColorFrase[receptor][SERIE] = COLOR_RECIBIENDO;
    ParpadeoFrase[receptor][SERIE] = 0;
    frase = visible ? QStringLiteral("Recibiendo cartas") : QString();
    DibujaJugador(receptor);
    RefrescaMesa();
    if (!visible) return;
    Pausa(150);
    frase.clear();
    DibujaJugador(receptor);
    RefrescaMesa();
    frase = QStringLiteral("Recibiendo cartas");
    DibujaJugador(receptor);
    RefrescaMesa();
}

// The card flies, face up, from the seat's hand to the end of the receiver's, and is recorded.
void PasaCarta(int seat, int receptor, int id) {
    const int pos = PosicionDeId(seat, id);
    if (pos == 0) return;
    auto& carta = CartasJugador[seat][SERIE][pos];
    const int palo = carta[CAMPO_PALO], valor = carta[CAMPO_VALOR];
    carta[CAMPO_CARA] = CARA_VISIBLE;
    carta[CAMPO_ESTADO] = 1;
    DibujaJugador(seat);
    RefrescaMesa();
    Pausa(500);
    PosicionCarta(seat, pos, NumCartas[seat][SERIE]);
    const int x = CartaX, y = CartaY;
    for (int f = 1; f <= 5; ++f) carta[f] = 0;
    DibujaJugador(seat);
    const int destino = NumCartas[receptor][SERIE] + 1;
    PosicionCarta(receptor, destino, destino);
    MueveCarta(palo, valor, x, y, OrientacionSeat[seat], CARA_VISIBLE, CartaX, CartaY,
               OrientacionSeat[receptor], CARA_VISIBLE);
    auto& nueva = CartasJugador[receptor][SERIE][destino];
    nueva[CAMPO_PALO] = palo;
    nueva[CAMPO_VALOR] = valor;
    nueva[CAMPO_CARA] = CARA_VISIBLE;
    nueva[CAMPO_ESTADO] = 2;
    nueva[CAMPO_MARCA] = 0;
    NumCartas[receptor][SERIE] = destino;
    --NumCartas[seat][SERIE];
    CompactaMano(seat);
    EntradaDescarte& entrada = NuevaEntradaDescarte();
    entrada.Seat = seat;
    entrada.Descartada = id;
    entrada.Receptor = receptor;
    OrdenaMano(receptor);
    RefrescaMesa();
    CompruebaMesa();
    Pausa(200);
}

// The seat on turn lays its cards on the receiver, one after another while it has some.
// Returns false when the match was left meanwhile.
bool DaCartas(int receptor) {
    const int seat = JugadorActual;
    const bool persona = ControlJugador[seat] == CONTROL_MANUAL;
    BorraMarcasDePaso(receptor);
    SenalaJugador();
    for (bool primera = true; NumCombinables > 0; primera = false) {
        int id = CartasCombinables[1];
        if (persona || primera) {
            if (persona) MuestraInformacion(AzarJugada < 0.2 ? INFO_TUTOR : INFO_SOBRANTES);
            PersonaJugando = persona;
            EsperaJugada();
            PersonaJugando = false;
            if (!PartidaViva) return false;
            if (JugadaHecha && CartaElegida >= 1 && CartaElegida <= NumCartas[seat][SERIE]) {
                const auto& c = CartasJugador[seat][SERIE][CartaElegida];
                id = IdCarta(c[CAMPO_PALO], c[CAMPO_VALOR]);
            }
        }
        PasaCarta(seat, receptor, id);
        EligeChinchon();
    }
    return true;
}

// One receiver: every other seat in turn lays what fits its melds, until a lap goes by with none.
bool Recibe(int receptor) {
    ReceptorCartas = receptor;
    const QString nombre = NombreJugador[receptor];
    // Paso 1.
    OrdenaMano(receptor);
    MuestraMano(receptor, SERIE);
    // Paso 2. A closer with no loose points keeps its melds to itself.
    if (FinMano == FIN_CERRADA && receptor == GanadorMano && CierreChinchon != CIERRE_CON_PUNTOS) {
        RotuloBreve(nombre + " ha cerrado y no tiene jugadas para combinar");
        return true;
    }
    // Paso 3.
    EvaluaManoDelSeat(receptor);
    if (CartasCombinadas() == 0 || Salidas == 0) {
        RotuloBreve(nombre + " no tiene jugadas donde combinar cartas");
        return true;
    }
    // Paso 4.
    RotulaReceptor(receptor, true);
    // Paso 5. Round the table from the receiver, until a whole lap lays nothing.
    JugadorActual = receptor;
    int paso = 0;
    for (;;) {
        SiguienteJugador(JugadorActual);
        if (JugadorActual == receptor) SiguienteJugador(JugadorActual);
        BombeaEventos();
        if (!PartidaViva) return false;
        if (JugadorActual == paso || JugadorActual == receptor) break;
        AzarJugada = Rnd();
        EligeChinchon();
        if (NumCombinables == 0) {
            MarcaPaso(JugadorActual);
            if (paso == 0) paso = JugadorActual;
            continue;
        }
        paso = 0;
        if (!DaCartas(receptor)) return false;
    }
    // Paso 6.
    RotulaReceptor(receptor, false);
    BorraMarcasDePaso(0);
    for (int s = 1; s <= 4; ++s)
        if (JuegaMano[s]) DibujaJugador(s);
    RefrescaMesa();
    return true;
}

} // namespace

void AnunciaCierre() {
    FaseJuego = FASE_CHINCHON_CIERRE;
    Pic_Pulsador[PULSADOR_CERRAR].Visible = Pic_Pulsador[PULSADOR_SEGUIR].Visible = false;
    CierreChinchon = CIERRE_CON_PUNTOS;
    if (FinMano == FIN_CERRADA) {
        GanadorMano = JugadorActual;
        EvaluaManoDelSeat(GanadorMano);
        if (PuntosSobrantes > 0)
            CierreChinchon = CIERRE_CON_PUNTOS;
        else if (CartasEnEscaleras < 7)
            CierreChinchon = CIERRE_MENOS_DIEZ;
        else
            CierreChinchon = EsChinchon ? CIERRE_CHINCHON : CIERRE_MENOS_VEINTICINCO;
        MuestraMano(GanadorMano, SERIE);
    }
    QString texto = TextoDelCierre();
    if (CierreChinchon != CIERRE_CHINCHON)
        texto +=
            SaltoLinea + SaltoLinea + "Comienza  el  proceso  de  combinar  las cartas sobrantes.";
    const QString titulo = CierreChinchon == CIERRE_CHINCHON
                               ? QStringLiteral("Final de la partida")
                               : QStringLiteral("Combinar cartas sobrantes");
    Mensaje(titulo, texto, 4, 1, TEMA_COMBINAR); // the box grows to a longer text
    PreparaDetalles();
    DibujaMazo(MazoX, MazoY, 0);
    DibujaMazo(PozoX, PozoY, 0);
    RefrescaMesa();
}

bool CombinaSobrantes() {
    int receptor = JugadorActual;
    RecibeDesde = NumeroDescarte + 1;
    for (int k = 0; k < JugadoresMano; ++k) {
        if (!Recibe(receptor)) return false;
        SiguienteJugador(receptor);
    }
    return true;
}

bool FinalManoChinchon() {
    FaseJuego = FASE_FIN_MANO;
    OcultaContinuar();
    ManoViva = false;
    Pausa(500);
    for (int s = 0; s <= 4; ++s) PuntosMano[s] = 0;
    for (int s = 1; s <= 4; ++s) {
        if (!JuegaMano[s]) continue;
        MuestraMano(s, SERIE);
        EvaluaManoDelSeat(s);
        PuntosMano[s] = PuntosSobrantes;
    }
    if (FinMano == FIN_CERRADA && CierreChinchon == CIERRE_MENOS_DIEZ)
        PuntosMano[GanadorMano] = -10;
    if (FinMano == FIN_CERRADA && CierreChinchon == CIERRE_MENOS_VEINTICINCO)
        PuntosMano[GanadorMano] = -25;

    if (CierreChinchon != CIERRE_CHINCHON) {
        // The seats from the lowest score up; on equal scores, in seat order.
        Lis_Ordenar.Limpia();
        for (int s = 1; s <= 4; ++s)
            if (JuegaMano[s]) Lis_Ordenar.Agrega(Formato(PuntosMano[s] + 100, "000"), s);
        if (FinMano == FIN_MAZO_AGOTADO) GanadorMano = Lis_Ordenar.Dato(0);
        QString texto;
        for (int i = 0; i < Lis_Ordenar.Cuenta(); ++i) {
            const int s = Lis_Ordenar.Dato(i), puntos = PuntosMano[s];
            texto += NombreJugador[s] + " : " + (puntos < 0 ? "Descuenta " : "") +
                     Formato(std::abs(puntos), "##0") +
                     (std::abs(puntos) == 1 ? " punto." : " puntos.") + SaltoLinea;
        }
        Mensaje("Final de la mano", texto, Lis_Ordenar.Cuenta() + 1, 1);
    }

    RegistroMano& registro = RegistroManos[NumeroMano];
    registro.Sale = NombreJugador[JugadorMano];
    for (int s = 1; s <= 4; ++s) {
        registro.Gana[s][1] = s == GanadorMano ? 1 : 0;
        registro.Resultado[s] = QString::number(PuntosMano[s]);
    }
    if (CierreChinchon == CIERRE_CHINCHON) registro.Resultado[GanadorMano] = QStringLiteral("-99");

    EsperaBotonera();
    if (!PartidaViva) return false;
    OcultaContinuar();
    return true;
}
