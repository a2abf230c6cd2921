// The match of Mus: hand after hand, each through rounds of mus and discards until a seat cuts,
// then the four lances, the showdown and the stones; games until a pair has the vacas asked for.
#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Coherencia.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/MesaMus.h"
#include "games/mus/JugadorMus.h"
#include "games/mus/Mus.h"
#include "table/Botonera.h"
#include "table/GblMesa.h"

#include <QTimer>
#include "platform/Bomba.h"
#include "table/Dibujo.h"
#include "table/Pulsadores.h"
#include "table/Raton.h"
#include "table/Sugerencia.h"
#include "table/Tutor.h"

namespace {

constexpr int SERIE = 1;
constexpr int PAUSA_FRASE_DESCARTE = 700; // "Dame dos cartas" stays this long on the table

// The information pane on the person's turn, by the turn's draw.
int TextoRondaMus() {
    if (AzarJugada < 0.1) return 17;
    if (AzarJugada < 0.45) return 51;
    if (AzarJugada < 0.75) return 52;
    return 53;
}

int TextoDescarte() {
    if (AzarJugada < 0.15) return 54;
    if (AzarJugada < 0.3) return 55;
    if (AzarJugada < 0.45) return 17;
    if (AzarJugada < 0.8) return 15;
    return 10;
}

void OcultaPulsador(int indice) {
    Pic_Pulsador[indice].Visible = false;
}

int AnadeRonda(int fase) {
    RondaDeMus fila;
    fila.Fase = fase;
    RondasMus.push_back(fila);
    NumeroBaza = static_cast<int>(RondasMus.size());
    RondasMus.back().Ronda = NumeroBaza;
    return NumeroBaza - 1;
}

// What the tutor shows on the person's turn: the computer player's answer for the seat.
ConsejoTutor ConsejoMusTutor() {
    const int seat = JugadorActual;
    PiensaMus(seat);
    ConsejoTutor c;
    if (FaseJuego == FASE_MUS_MUS) {
        c.Pulsador = QuiereCortar ? PULSADOR_NO_MUS : PULSADOR_MUS;
        c.MandaSena = MandaCortar;
    } else if (FaseJuego == FASE_MUS_DESCARTE) {
        for (int p = 1; p <= 4; ++p)
            if (MarcaDescarte[p]) c.Cartas.push_back(p);
    } else if (RondaDeclaracion) {
        c.RondaDeJuego = true;
        c.Pulsador = LanceMus[LanceActual].Tiene[seat] ? PULSADOR_SI_HAY : PULSADOR_NO_HAY;
    } else {
        c.Cantidad = ApuestaOrdenador;
        c.Contra = ApuestaMaxRonda;
        c.Pareja = HablaPorDosOrdenador;
        c.MandaSena = MandaEnvidar;
    }
    return c;
}

const bool Registrado = [] {
    RutinaTutor[JUEGO_MUS] = ConsejoMusTutor;
    return true;
}();

// ---- The round of mus ----

QString FraseCorte(double r) {
    return UnaDe({"No hay mus", "No mus", "Corto mus", "Lo corto", "A jugar"}, r);
}

// Returns the seat that cut, 0 when all four said mus, -1 when the match was left.
int RondaDeMus() {
    FaseJuego = FASE_MUS_MUS;
    for (bool& orden : OrdenCortar) orden = false;
    LimpiaSenas(); // what was seen before a discard does not survive it
    AzarJugada = Rnd();
    JugadorActual = JugadorMano;
    PreparaSenas();
    GestosSenas();
    DibujaCaras();
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        if (vuelta > 0) SiguienteJugador(JugadorActual);
        const int seat = JugadorActual;
        const bool manual = EsManual(seat);
        AzarFrase = Rnd();
        if (manual) MuestraInformacion(TextoRondaMus());
        PulsoMus = PulsoCorte = false;
        SenalaTurno(seat);
        Pausa(300);
        EsperaTurno();
        if (!PartidaViva) return -1;
        if (!PulsoMus && !PulsoCorte) {
            Pausa(200);
            PulsoCorte = QuiereCortar;
            PulsoMus = !PulsoCorte;
            if (manual) {
                ParpadeaPulsador(PulsoCorte ? PULSADOR_NO_MUS : PULSADOR_MUS, 1);
            } else {
                DiceMus(seat, PulsoCorte ? FraseCorte(AzarFrase) : QStringLiteral("Mus"));
                Pausa(300);
            }
        }
        FraseJugador[seat][SERIE].clear();
        for (int i : {PULSADOR_MUS, PULSADOR_NO_MUS, PULSADOR_MANDO}) OcultaPulsador(i);
        DibujaJugador(seat);
        if (PulsoCorte) {
            const int fila = AnadeRonda(FASE_MUS_MUS);
            RondasMus[fila].Valor[seat] = SEAT_CORTA;
            return seat;
        }
    }
    return 0;
}

// ---- The discards ----

QString FraseDescarte(int n, double r) {
    const QString numero = n == 1 ? QStringLiteral("una") : QString::number(n);
    const QString cartas = n == 1 ? QStringLiteral(" carta") : QStringLiteral(" cartas");
    QString frase;
    if (r < 0.25)
        frase = "Descarto " + numero;
    else if (r < 0.5)
        frase = "Quiero " + numero;
    else if (r < 0.75)
        frase = "Dame " + numero + cartas;
    else
        frase = numero + cartas;
    if (frase.startsWith('u')) frase[0] = 'U';
    return frase;
}

// The raised cards leave the hand for the pile, one flight each; returns how many.
int TiraDescartes(int seat) {
    auto& mano = CartasJugador[seat][SERIE];
    int n = 0;
    for (int p = 1; p <= 4; ++p) {
        if (mano[p][CAMPO_ESTADO] != 1 || mano[p][CAMPO_PALO] == 0) continue;
        PosicionCarta(seat, p, 4);
        const int x = CartaX, y = CartaY;
        const int palo = mano[p][CAMPO_PALO], valor = mano[p][CAMPO_VALOR],
                  cara = mano[p][CAMPO_CARA];
        ++CartasEnPozo;
        Pozo[CartasEnPozo][CAMPO_PALO] = palo;
        Pozo[CartasEnPozo][CAMPO_VALOR] = valor;
        for (int f = 1; f <= 5; ++f) mano[p][f] = 0;
        --NumCartas[seat][SERIE];
        ++n;
        DibujaJugador(seat);
        MueveCarta(palo, valor, x, y, OrientacionSeat[seat], cara, PozoX, PozoY, 1, CARA_OCULTA);
        DibujaMazo(PozoX, PozoY, CartasEnPozo);
    }
    return n;
}

// One seat changes its cards. False when the match was left.
bool DescartaSeat(int seat, int fila) {
    const bool manual = EsManual(seat);
    AzarFrase = Rnd();
    SenalaTurno(seat);
    PiensaMus(seat);
    if (manual) MuestraInformacion(TextoDescarte());
    PersonaJugando = manual;
    EsperaJugada();
    PersonaJugando = false;
    if (!PartidaViva) return false;
    OcultaPulsador(PULSADOR_DESCARTO);
    PiensaMus(seat);
    auto& mano = CartasJugador[seat][SERIE];
    if (!JugadaHecha) {
        for (int p = 1; p <= 4; ++p) mano[p][CAMPO_ESTADO] = MarcaDescarte[p] ? 1 : 2;
        DibujaJugador(seat);
    }
    Pausa(600);
    const int n = TiraDescartes(seat);
    RondasMus[fila].Valor[seat] = n;
    CompactaMano(seat);
    for (int p = 1; p <= 4; ++p) mano[p][CAMPO_ESTADO] = 2;
    // The seat asks for its cards aloud; without a voice the words stay a moment to be read.
    if (DetallarPasos && n > 0) {
        DiceMus(seat, FraseDescarte(n, AzarFrase));
        Pausa(PAUSA_FRASE_DESCARTE);
        DiceMus(seat, QString());
    }
    if (n > 0) RobaCartas(seat, n, 0);
    for (int p = 1; p <= 4; ++p) mano[p][CAMPO_ESTADO] = 2;
    DibujaJugador(seat);
    if (SenasVisibles[seat]) DibujaSena(seat, SENA_MIRADA + SenasJugador[seat].Mirada);
    CompruebaMesa();
    Pic_Sugerencia.Visible = false;
    Pausa(1200);
    return PartidaViva;
}

bool Descartes() {
    FaseJuego = FASE_MUS_DESCARTE;
    for (int s = 1; s <= 4; ++s) DibujaJugador(s);
    RefrescaMesa();
    Pausa(1000);
    const int fila = AnadeRonda(FASE_MUS_DESCARTE);
    JugadorActual = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta) {
        if (vuelta > 0) SiguienteJugador(JugadorActual);
        if (!DescartaSeat(JugadorActual, fila)) return false;
    }
    return true;
}

// One hand, from the deal to the wait after its report. False when the match was left.
bool JuegaManoMus() {
    // Paso 1. The stones as they stand, for a match put off in the middle of the hand.
    for (int s = 0; s <= 4; ++s) PiedrasCopia[s] = Piedras[s];
    NuevaMano();
    if (!PartidaViva) return false;
    CompruebaMesa();
    RegistroManos[NumeroMano].Sale = NombreJugador[JugadorMano];
    // Paso 2. Rounds of mus and discards until a seat cuts.
    for (;;) {
        const int corta = RondaDeMus();
        if (corta < 0) return false;
        if (corta > 0) break;
        if (!Descartes()) return false;
    }
    // Paso 3. The lances, then the cards shown and the stones paid.
    if (!JuegaLances()) return false;
    if (!MuestraYCobra()) return false;
    // Paso 4. The report, the record and the wait for the next hand.
    return FinalManoMus();
}

// A match taken up again after a game was won but before its end was told.
bool JuegoYaGanado() {
    for (int pareja = 1; pareja <= 2; ++pareja)
        if (PiedrasPareja(pareja) >= PiedrasJuego) {
            GanaJuego = pareja;
            LanceOrdago = 0;
            return true;
        }
    return false;
}

// The wait of the person's turn: while it thinks, the computer seats go on looking at each other
// and signalling, once every 1 - VelocidadJuego / 100 seconds.
void EsperaConSenas() {
    OrdenManual = JugadaHecha = HablaPorDos = false;
    DibujaContinuar(false);
    EsperandoPersona = true;
    bool toca = false;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, [&toca] { toca = true; });
    reloj.start(std::max(50, Redondea(1000 * (1 - VelocidadJuego / 100.0))));
    while (EsperandoPersona) {
        SolicitaRepintado();
        if (PersonaGuionada)
            PersonaGuionada();
        else
            EsperaEventos();
        if (!PartidaViva) return;
        if (toca && EsperandoPersona) {
            toca = false;
            PreparaSenas();
            GestosSenas();
        }
    }
    OcultaContinuar();
    PersonaJugando = false;
}

} // namespace

bool EsManual(int seat) {
    return ControlJugador[seat] == CONTROL_MANUAL;
}

void DiceMus(int seat, const QString& frase) {
    FraseJugador[seat][SERIE] = frase;
    ColorFrase[seat][SERIE] = COLOR_FRASE_MUS;
    DibujaJugador(seat);
    RefrescaMesa();
}

void SenalaTurno(int seat) {
    if (!SenasVisibles[seat])
        SenalaJugador();
    else
        DibujaJugador(seat);
}

void CallanTodos() {
    for (int s = 1; s <= 4; ++s)
        if (!FraseJugador[s][SERIE].isEmpty()) DiceMus(s, QString());
}

void EsperaTurno() {
    JugadaHecha = false;
    if (!EsManual(JugadorActual) && !ContinuarManual) {
        PreparaSenas();
        GestosSenas();
    } else {
        EsperaConSenas();
    }
    if (!PartidaViva) return;
    PiensaMus(JugadorActual);
}

QString UnaDe(std::initializer_list<const char*> frases, double r) {
    const int n = static_cast<int>(frases.size());
    const int i = std::min(n - 1, Ent(r * n));
    return QString::fromUtf8(*(frases.begin() + i));
}

QString NumeroPiedras(int n, bool mayuscula) {
    if (n == 1) return mayuscula ? QStringLiteral("Una") : QStringLiteral("una");
    return QString::number(n);
}

void PreparaPartidaMus() {
    Piedras[0] = PIEDRAS_MONTON;
    for (int s = 1; s <= 4; ++s) {
        Piedras[s] = 0;
        PiedrasCompletas[s] = false;
        OrdenCortar[s] = OrdenEnvidar[s] = false;
        PlanMus[s] = 0;
        SenasVisibles[s] = false;
    }
    LimpiaSenas();
    ColocaMonton();
    DibujaMonton();
}

void PreparaManoMus() {
    for (auto& lance : LanceMus) lance = LanceDeMus{};
    RondasMus.clear();
    RondasMus.reserve(41);
    NumeroBaza = 0;
    LanceActual = 0;
    LanceOrdago = GanaJuego = 0;
    OrdagoEnJuego = false;
    RondaDeclaracion = false;
    for (int s = 1; s <= 4; ++s) OrdenCortar[s] = OrdenEnvidar[s] = false;
    LimpiaSenas();
    DibujaMonton();
    for (int s = 1; s <= 4; ++s) DibujaPiedrasSeat(s);
}

void JuegaMus() {
    (void)Registrado;
    // A match taken up again from its file has its stones but not yet where the heap lies.
    if (PiedraMontonX[1] == 0 && PiedraMontonY[1] == 0) ColocaMonton();
    DibujaMonton();
    for (int s = 1; s <= 4; ++s) DibujaPiedrasSeat(s);
    if (JuegoYaGanado()) FinDeJuegoMus();
    while (PartidaViva) {
        if (!JuegaManoMus()) return;
        if (GanaJuego != 0) FinDeJuegoMus();
    }
}
