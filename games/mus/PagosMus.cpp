// The stones of the Mus: the showdown and what each lance pays, the flight of the stones from the
// heap, amarracos, going inside, the report of the hand, and the end of a game and of the match.
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/MesaMus.h"
#include "games/mus/Mus.h"
#include "platform/Sonido.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"
#include "table/Mensajes.h"
#include "table/Voces.h"

#include <QPainter>

namespace {

constexpr int DENOMINACION_PIEDRA = 7;
constexpr int PIEDRAS_AMARRACO = 5;
constexpr int ANCHO_PAGO = 180;
constexpr int ALTO_PAGO[5] = {25, 25, 41, 56, 72};
constexpr int ORIGEN_SIN_PILA = -1; // a stone leaves the heap: no stack stays under it

QImage FondoPago;
QRect CajaPagoVista;

// The box of a payment lies by the pair that is paid: pair 1 by seat 1, pair 2 by seat 2.
QRect CajaPago(int pareja, int lineas) {
    const int alto = ALTO_PAGO[std::clamp(lineas, 1, 4)];
    if (pareja == 1) return QRect(ZonaDerecha[1] + 12, CentroMesaY - 150, ANCHO_PAGO, alto);
    return QRect(CentroMesaX - ANCHO_PAGO / 2, ZonaAbajo[2] + 12, ANCHO_PAGO, alto);
}

void MuestraTextoPago() {
    if (Pic_Mesa.Imagen.isNull()) return;
    CajaPagoVista = CajaPago(ParejaCobra, LineasPago);
    FondoPago = CopiaLogica(Pic_Mesa.Imagen, CajaPagoVista.x(), CajaPagoVista.y(),
                            CajaPagoVista.width(), CajaPagoVista.height());
    AvisaEscritura(Pic_Mesa.Imagen, CajaPagoVista);
    QPainter p(&Pic_Mesa.Imagen);
    p.fillRect(CajaPagoVista, QColor(255, 255, 225));
    p.setPen(QColor(60, 40, 0));
    p.drawRect(CajaPagoVista.adjusted(0, 0, -1, -1));
    p.setFont(LetraMesa(12));
    p.setPen(QColor(0, 0, 128));
    // The partner's item takes two lines of the box: it wraps where it runs out of width.
    p.drawText(CajaPagoVista.adjusted(6, 3, -4, -2),
               Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
               QString(TextoPago).replace(SaltoLinea, "\n"));
    p.end();
    RefrescaMesa();
}

void BorraTextoPago() {
    if (Pic_Mesa.Imagen.isNull() || FondoPago.isNull()) return;
    AvisaEscritura(Pic_Mesa.Imagen, CajaPagoVista);
    QPainter p(&Pic_Mesa.Imagen);
    p.drawImage(CajaPagoVista.topLeft(), FondoPago);
    p.end();
    FondoPago = QImage();
    RefrescaMesa();
}

// Where the i-th of n stones of a tally lies: along the frame, zigzagging across it.
QPoint PosicionPiedra(int slot, int i, int n) {
    const int paso = DivEntera(108, std::max(n, 1));
    const bool aLoLargo = slot == 1 || slot == 3;
    const int avance = i * paso, zigzag = i % 2 == 1 ? 8 : 0;
    return {PilaX[slot + 20][1] + (aLoLargo ? avance : zigzag),
            PilaY[slot + 20][1] + (aLoLargo ? zigzag : avance)};
}

QPoint PosicionMonton(int i) {
    const int k = std::clamp(i, 1, PIEDRAS_MONTON);
    return {PiedraMontonX[k], PiedraMontonY[k]};
}

// One stone from the heap to a tally, or back.
void DelMontonA(int slot) {
    const QPoint desde = PosicionMonton(Piedras[0]);
    --Piedras[0];
    ++Piedras[slot];
    DibujaMonton();
    const QPoint hasta = PosicionPiedra(slot, Piedras[slot], Piedras[slot]);
    MueveFicha(DENOMINACION_PIEDRA, desde.x(), desde.y(), hasta.x(), hasta.y(), ORIGEN_SIN_PILA,
               slot);
    DibujaPiedrasSeat(slot);
    RefrescaMesa();
}

void AlMontonDesde(int slot) {
    const QPoint desde = PosicionPiedra(slot, Piedras[slot], Piedras[slot]);
    --Piedras[slot];
    ++Piedras[0];
    DibujaPiedrasSeat(slot);
    const QPoint hasta = PosicionMonton(Piedras[0]);
    MueveFicha(DENOMINACION_PIEDRA, desde.x(), desde.y(), hasta.x(), hasta.y(), ORIGEN_SIN_PILA, 0);
    DibujaMonton();
    RefrescaMesa();
}

// Five loose stones make an amarraco: four go back to the heap, the fifth to the tally.
void HaceAmarraco(int pareja) {
    DiceMus(pareja, QStringLiteral("¡Un amarraco!"));
    for (int k = 0; k < PIEDRAS_AMARRACO - 1; ++k) AlMontonDesde(pareja);
    --Piedras[pareja];
    ++Piedras[pareja + 2];
    DibujaPiedrasSeat(pareja);
    DibujaPiedrasSeat(pareja + 2);
    RefrescaMesa();
    DiceMus(pareja, QString());
}

// ---- The showdown ----

// Items of a payment joined the way a player says them.
struct Cuenta {
    QString Texto;
    int Total = 0, Lineas = 0, Items = 0;
    void Anade(const QString& item, int piedras, int lineas) {
        if (Items > 0) {
            QString resto = item;
            if (resto.startsWith("Una")) resto[0] = 'u';
            Texto += "," + SaltoLinea + "mas " + resto;
        } else {
            Texto = item;
        }
        Total += piedras;
        Lineas += lineas;
        ++Items;
    }
    void Cierra(bool conTotal) {
        if (conTotal) Texto += (AzarFrase < 0.5 ? ", son " : ", ") + QString::number(Total);
    }
};

bool Paga(int pareja, const Cuenta& cuenta, int lance) {
    if (cuenta.Total <= 0) return false;
    ParejaCobra = pareja;
    PiedrasPago = cuenta.Total;
    TextoPago = cuenta.Texto;
    LineasPago = std::max(cuenta.Lineas, 1);
    LancePago = lance;
    PagaPiedras();
    return GanaJuego != 0;
}

QString Envite(int lance) {
    return QString::number(LanceMus[lance].Envite) + " de envite a " + NombreLance[lance];
}

void NombraLance(int lance) {
    if (!DetallarPasos) return;
    CallanTodos();
    DiceMus(JugadorMano, NombreLance[lance]);
    Pausa(300);
}

// Grandes and Chicas: one stone en paso, the envite when it was taken.
bool CobraGrandeOChica(int lance) {
    const LanceDeMus& l = LanceMus[lance];
    if (l.Estado != ESTADO_EN_PASO && l.Estado != ESTADO_ACEPTADO) return false;
    NombraLance(lance);
    const int ganador = GanadorLance(lance);
    Cuenta cuenta;
    if (l.Estado == ESTADO_EN_PASO)
        cuenta.Anade("Una de " + NombreLance[lance], 1, 1);
    else
        cuenta.Anade(Envite(lance), l.Envite, 1);
    return Paga(ParejaDe[ganador], cuenta, lance);
}

QString ClasePares(int clase) {
    static const char* const Nombres[4] = {"", "Pares", "Medias", "Duples"};
    return NumeroPiedras(clase, true) + " de " + Nombres[clase];
}

// Pares and Juego: the envite if it was taken, then what each hand of the winning pair is worth,
// counted from the seat that speaks for the pair.
bool CobraParesOJuego(int lance) {
    const LanceDeMus& l = LanceMus[lance];
    if (l.Estado == ESTADO_NADIE || l.Estado == 0) return false;
    NombraLance(lance);
    const int ganador = GanadorLance(lance);
    if (ganador == 0) return false;
    const int pareja = ParejaDe[ganador];
    auto valeMano = [&](int seat) {
        const ValorMano& v = ValoresMus[seat];
        if (lance == LANCE_PARES) return v.ClasePares;
        if (v.TotalJuego == 0) return 0;
        return v.TotalJuego == 31 ? 3 : 2;
    };
    auto texto = [&](int seat) {
        if (lance == LANCE_PARES) return ClasePares(valeMano(seat));
        return valeMano(seat) == 3 ? QStringLiteral("3 de 31") : QStringLiteral("2 de Juego");
    };
    Cuenta cuenta;
    if (l.Estado == ESTADO_ACEPTADO) cuenta.Anade(Envite(lance), l.Envite, 1);
    const int portavoz = pareja, companero = pareja + 2;
    if (valeMano(portavoz) > 0) cuenta.Anade(texto(portavoz), valeMano(portavoz), 1);
    if (valeMano(companero) > 0)
        cuenta.Anade(texto(companero) + " de mi compañero", valeMano(companero), 2);
    cuenta.Cierra(valeMano(CompaneroDe[ganador]) > 0 || l.Estado == ESTADO_ACEPTADO);
    return Paga(pareja, cuenta, lance);
}

bool CobraPunto() {
    const LanceDeMus& l = LanceMus[LANCE_PUNTO];
    if (l.Estado == 0) return false;
    NombraLance(LANCE_PUNTO);
    const int ganador = GanadorLance(LANCE_PUNTO);
    Cuenta cuenta;
    if (l.Estado == ESTADO_ACEPTADO) {
        cuenta.Anade(Envite(LANCE_PUNTO), l.Envite, 1);
        cuenta.Texto += " y" + SaltoLinea + "una de Punto";
        cuenta.Total += 1;
        cuenta.Lineas += 1;
    } else {
        cuenta.Anade("Una de Punto", 1, 1);
    }
    cuenta.Cierra(l.Estado == ESTADO_ACEPTADO);
    return Paga(ParejaDe[ganador], cuenta, LANCE_PUNTO);
}

void DescubreCartas() {
    CallanTodos();
    for (int s = 1; s <= 4; ++s) {
        SenasVisibles[s] = false;
        for (int p = 1; p <= NumCartas[s][1]; ++p)
            CartasJugador[s][1][p][CAMPO_CARA] = CARA_VISIBLE;
        DibujaJugador(s);
    }
    RefrescaMesa();
}

// ---- The report of the hand ----

QString Cifra(int n) {
    return n == 0 ? QStringLiteral("  ") : FormatoTexto(n, "@@");
}

const char* TextoEstado(int estado) {
    static const char* const Textos[9] = {"",
                                          "En paso",
                                          "Envite aceptado",
                                          "Órdago aceptado",
                                          "Envite no querido",
                                          "Reenvite no querido",
                                          "Órdago no querido",
                                          "No hay envites",
                                          "Nadie tiene"};
    return estado >= 0 && estado <= 8 ? Textos[estado] : "";
}

QString FilaLance(int lance) {
    const LanceDeMus& l = LanceMus[lance];
    QString fila(48, ' ');
    PonColumna(fila, 1, 7, NombreLance[lance]);
    PonColumna(fila, 8, 1, ":");
    PonColumna(fila, 14, 2, Cifra(l.Cobrado[2]));
    PonColumna(fila, 24, 2, Cifra(l.Cobrado[1]));
    if (lance == LanceOrdago) {
        const int ganadora = GanaJuego == 2 ? 13 : 23;
        PonColumna(fila, ganadora, 5, "Juego");
    }
    PonColumna(fila, 30, 19, QString::fromUtf8(TextoEstado(l.Estado)));
    return fila.trimmed().isEmpty() ? fila : fila.left(48);
}

QString InformeMano() {
    LanceDeMus& suma = LanceMus[0];
    suma.Cobrado[1] = suma.Cobrado[2] = 0;
    QStringList filas{"          Nosotros    Ellos", "           --------  --------"};
    for (int l = LANCE_GRANDE; l <= LANCE_PUNTO; ++l) {
        if (LanceMus[l].Estado == 0) continue;
        filas << FilaLance(l);
        for (int p = 1; p <= 2; ++p) suma.Cobrado[p] += LanceMus[l].Cobrado[p];
    }
    filas << "           ========  ========";
    QString total(48, ' ');
    PonColumna(total, 13, 3, FormatoTexto(suma.Cobrado[2], "@@@"));
    PonColumna(total, 23, 3, FormatoTexto(suma.Cobrado[1], "@@@"));
    filas << total;
    for (QString& f : filas) {
        while (f.endsWith(' ')) f.chop(1);
    }
    return filas.join(SaltoLinea);
}

QString TextoCartas(int seat) {
    QString texto;
    for (int p = 1; p <= 4; ++p) {
        const auto& c = CartasJugador[seat][1][p];
        texto += LetraValor(c[CAMPO_VALOR]) + NombrePalo(c[CAMPO_PALO]).left(1);
    }
    return texto;
}

// The cards of a pair: first the seat nearer the mano, then its partner.
QString CartasPareja(int pareja) {
    int primero = JugadorMano;
    while (ParejaDe[primero] != pareja) SiguienteJugador(primero);
    return TextoCartas(primero) + "/ " + TextoCartas(CompaneroDe[primero]);
}

void AnotaRegistro() {
    RegistroMano& r = RegistroManos[NumeroMano];
    r.Sale = NombreJugador[JugadorMano];
    for (int p = 1; p <= 2; ++p) {
        r.Gana[p][1] = GanadorMano == p ? 1 : 0;
        r.Resultado[p] = QString::number(LanceMus[0].Cobrado[p]);
        r.Detalle[p] = CartasPareja(p);
    }
}

QString NombresPareja(int pareja) {
    return NombreJugador[pareja] + " y " + NombreJugador[pareja + 2];
}

int JuegosParaPartida() {
    static constexpr int Juegos[4] = {1, 1, 3, 9};
    return Juegos[std::clamp(JuegosPartidaMus, 1, 3)];
}

} // namespace

int PiedrasPareja(int pareja) {
    if (pareja < 1 || pareja > 2) return 0;
    const int amarracos = PiedrasCompletas[pareja + 2] ? PiedrasJuego / 5 - 1 : Piedras[pareja + 2];
    return Piedras[pareja] + PIEDRAS_AMARRACO * amarracos;
}

void PagaPiedras() {
    const int pareja = ParejaCobra;
    MuestraTextoPago();
    if (FraseSeHabla(1)) Habla(pareja, QString(TextoPago).replace(SaltoLinea, " "));
    for (int k = 0; k < PiedrasPago; ++k) {
        DelMontonA(pareja);
        if (GanaJuego == 0 && PiedrasPareja(pareja) >= PiedrasJuego) GanaJuego = pareja;
        if (Piedras[pareja] == PIEDRAS_AMARRACO && GanaJuego == 0) HaceAmarraco(pareja);
    }
    LanceMus[LancePago].Cobrado[pareja] += PiedrasPago;
    Pausa(600);
    BorraTextoPago();
    CompruebaMesa();
}

void EntradaDentro() {
    for (int pareja = 1; pareja <= 2; ++pareja) {
        if (PiedrasPareja(pareja) <= PiedrasJuego - PIEDRAS_AMARRACO) continue;
        const int seat = pareja + 2;
        const double r = Rnd();
        DiceMus(seat, r < 0.5 ? QStringLiteral("¡Adentro!")
                              : (r < 0.75 ? QStringLiteral("Nos metemos")
                                          : QStringLiteral("Estamos dentro")));
        PiedrasCompletas[seat] = true;
        while (Piedras[seat] > 0) AlMontonDesde(seat);
        Pausa(400);
        DiceMus(seat, QString());
    }
}

bool MuestraYCobra() {
    // A refusal already gave a pair the game: nothing else is shown or paid.
    if (GanaJuego != 0) return true;
    FaseJuego = FASE_MUS_RESUELVE;
    OrdagoEnJuego = LanceOrdago != 0;
    if (DetallarPasos) {
        EsperaBotonera();
        if (!PartidaViva) return false;
    }
    DescubreCartas();
    Pausa(500);
    for (int s = 1; s <= 4; ++s) {
        EvaluaManoMus(s);
        ValoresMus[s] = ValoresMusActual;
    }
    // An órdago taken: its lance alone decides the game, and no stone moves.
    if (LanceOrdago != 0) {
        GanaJuego = ParejaDe[GanadorLance(LanceOrdago)];
        return true;
    }
    if (CobraGrandeOChica(LANCE_GRANDE) || CobraGrandeOChica(LANCE_CHICA) ||
        CobraParesOJuego(LANCE_PARES) || CobraParesOJuego(LANCE_JUEGO) || CobraPunto())
        return true;
    EntradaDentro();
    CallanTodos();
    return PartidaViva;
}

bool FinalManoMus() {
    FaseJuego = FASE_FIN_MANO;
    ManoViva = false;
    CallanTodos(); // a payment that won the game leaves the lance named in the mano's balloon
    Pausa(500);
    TextoMensaje = InformeMano();
    // The pair that took more stones wins the hand; on equal stones, the mano's pair; an órdago
    // goes to the pair that won it.
    if (LanceOrdago != 0)
        GanadorMano = GanaJuego;
    else if (LanceMus[0].Cobrado[1] != LanceMus[0].Cobrado[2])
        GanadorMano = LanceMus[0].Cobrado[1] > LanceMus[0].Cobrado[2] ? 1 : 2;
    else
        GanadorMano = ParejaDe[JugadorMano];
    MensajeEnColumnas = true;
    Mensaje("Final de la mano", TextoMensaje, static_cast<int>(TextoMensaje.count(SaltoLinea)) + 1,
            1);
    AnotaRegistro();
    EsperaBotonera();
    return PartidaViva;
}

void FinDeJuegoMus() {
    const int pareja = GanaJuego;
    QString texto = SaltoLinea;
    if (pareja == 1)
        texto += "Han ganado este juego " + NombresPareja(1);
    else
        texto += NombresPareja(2) + ", habéis ganado este juego. ";
    int lineas = 2;
    if (LanceOrdago != 0) {
        const bool ellos = ParejaDe[LanceMus[LanceOrdago].Envidador] == 1;
        texto += SaltoLinea + (pareja == 1 ? "porque el órdago a " : "El órdago a ") +
                 NombreLance[LanceOrdago] + " que " + (ellos ? "han" : "habéis") +
                 (pareja == 1 ? " lanzado se ha resuelto a su favor."
                              : " lanzado se ha resuelto a vuestro favor.");
        ++lineas;
    }
    Mensaje("Final de Juego", texto, lineas, 1);
    ++JuegosGanados[pareja];
    GanaJuego = 0;
    if (JuegosGanados[pareja] < JuegosParaPartida()) {
        NumeroMano = 0;
        PreparaPartidaMus();
        return;
    }
    GanadorPartida = pareja;
    FinPartida();
}
