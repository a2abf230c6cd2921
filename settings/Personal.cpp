// The seats window. Four panels lie in a cross as the seats sit, the direction of play shows in
// its hollow, and the settings of the table stand in the corners. The voice panel of a seat
// floats over the rest.
#include "settings/Personal.h"

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "platform/Ayuda.h"
#include "platform/Sonido.h"
#include "settings/Dibujos.h"
#include "table/Botonera.h"
#include "table/Dibujo.h"
#include "table/Mensajes.h"
#include "table/Voces.h"

#include <QDesktopServices>
#include <QLinearGradient>
#include <algorithm>

namespace {

constexpr int ANCHO_PERSONAL = 799, ALTO_PERSONAL = 580;
constexpr int ANCHO_PANEL = 312, ALTO_PANEL = 154;
const QPoint ORIGEN_PANEL[5] = {{}, {19, 192}, {245, 33}, {468, 192}, {245, 351}};
const QRect CAJA_SENTIDO(338, 208, 123, 123);
constexpr int ANCHO_MODIVOZ = 147, ALTO_MODIVOZ = 188;
constexpr int DESPLAZA_MODIVOZ = 108; // the voice panel stands this far left of its button
const QRect MARCO_REVERSO(580, 366, 200, 110);
const QRect CAJA_REVERSO(596, 383, 60, 84);

constexpr int TEMA_PERSONAL = 2110, TEMA_JUGADORES = 2113, TEMA_CONTROL = 2114, TEMA_CARTAS = 2117,
              TEMA_VOZ = 2126, TEMA_VOCES = 7010;

// Indices of the controls of the window.
constexpr int SELECTOR_SENTIDO = 8, SELECTOR_INFORMACION = 9, SELECTOR_SEXO = 10;
constexpr int LAMPARA_SONIDO = 44, LAMPARA_PAUSA = 45, LAMPARA_VOCES = 47;
constexpr int POTENCIOMETRO_VELOCIDAD = 65, POTENCIOMETRO_TONO = 66,
              POTENCIOMETRO_VELOCIDAD_VOZ = 67;
constexpr int PULSADOR_REVERSO = 89, PULSADOR_PRUEBA_VOZ = 90;

Formulario Personal;
int EstadoCopia[5] = {};
int ReversoCopia = 1;
bool PanelVozVisible = false;
QPoint OrigenModiVoz;
int Arrastre = -1; // the knob being dragged, by its position

bool EsPanelVoz(const ControlPintado& c) {
    return c.Tipo == TipoControl::Cerrar || c.Indice == SELECTOR_SEXO ||
           c.Indice == POTENCIOMETRO_TONO || c.Indice == POTENCIOMETRO_VELOCIDAD_VOZ ||
           (c.Tipo == TipoControl::Pulsador && c.Indice == PULSADOR_PRUEBA_VOZ);
}

int PosicionDe(TipoControl tipo, int indice) {
    for (int i = 0; i < int(Personal.Controles.size()); ++i)
        if (Personal.Controles[i].Tipo == tipo && Personal.Controles[i].Indice == indice) return i;
    return -1;
}

void Anade(TipoControl tipo, int indice, QRect zona) {
    ControlPintado c;
    c.Tipo = tipo;
    c.Indice = indice;
    c.Zona = zona;
    Personal.Controles.push_back(c);
}

bool EsBanca(int seat) {
    return JuegoActual == JUEGO_BLACKJACK && seat == 2;
}

// Which controls show: those of a seat that plays, not those of the bank; the voices with the
// sound; the voice panel when it is open.
void ActualizaVisibles() {
    for (ControlPintado& c : Personal.Controles) {
        if (EsPanelVoz(c)) {
            c.Visible = PanelVozVisible;
            continue;
        }
        int seat = 0;
        if (c.Tipo == TipoControl::Nombre) {
            c.SoloLectura = EsBanca(c.Indice);
            continue;
        }
        if (c.Tipo == TipoControl::Selector) {
            if (c.Indice >= 21 && c.Indice <= 24) seat = c.Indice - 20;
            if (c.Indice >= 25 && c.Indice <= 28) seat = c.Indice - 24;
            if (c.Indice >= 31 && c.Indice <= 34) seat = c.Indice - 30;
        }
        if (c.Tipo == TipoControl::Potenciometro && c.Indice >= 61 && c.Indice <= 64)
            seat = c.Indice - 60;
        if (c.Tipo == TipoControl::Pulsador && c.Indice >= 91 && c.Indice <= 94)
            seat = c.Indice - 90;
        if (seat != 0) {
            c.Visible = EstadoJugador[seat] == ESTADO_ACTIVADO && !EsBanca(seat);
            if (c.Tipo == TipoControl::Pulsador)
                c.Visible = c.Visible && SonidoActivado && VocesActivadas;
        }
        if (c.Tipo == TipoControl::Buleano && c.Indice == LAMPARA_VOCES) c.Visible = SonidoActivado;
    }
}

void DibujaPersonal() {
    ActualizaVisibles();
    RepintaFormulario();
}

void OcultaPanelVoz() {
    if (!PanelVozVisible) return;
    PanelVozVisible = false;
    if (Personal.Foco >= 0 && EsPanelVoz(Personal.Controles[Personal.Foco]))
        PonFoco(Personal, PosicionDe(TipoControl::Pulsador, 90 + JugadorModiVoz));
    DibujaPersonal();
}

void ColocaPanelVoz() {
    const QPoint o = OrigenModiVoz;
    for (ControlPintado& c : Personal.Controles) {
        if (c.Tipo == TipoControl::Cerrar) c.Zona = QRect(o.x() + 129, o.y() + 4, 14, 14);
        if (c.Tipo == TipoControl::Selector && c.Indice == SELECTOR_SEXO)
            c.Zona = QRect(o.x() + 5, o.y() + 22, 137, ALTO_SELECTOR);
        if (c.Indice == POTENCIOMETRO_TONO) c.Zona = QRect(o.x() + 3, o.y() + 66, 141, 44);
        if (c.Indice == POTENCIOMETRO_VELOCIDAD_VOZ)
            c.Zona = QRect(o.x() + 3, o.y() + 112, 141, 44);
        if (c.Tipo == TipoControl::Pulsador && c.Indice == PULSADOR_PRUEBA_VOZ)
            c.Zona = QRect(o.x() + 16, o.y() + 160, 115, ALTO_PULSADOR);
    }
}

// The voice panel of JugadorModiVoz, beside its button.
void DibujaPanelModiVoz() {
    const int boton = PosicionDe(TipoControl::Pulsador, 90 + JugadorModiVoz);
    const QRect b = Personal.Controles[boton].Zona;
    const int x = std::clamp(b.x() - DESPLAZA_MODIVOZ, 4, ANCHO_PERSONAL - ANCHO_MODIVOZ - 4);
    const int y = std::clamp(b.bottom() + 1 - ALTO_MODIVOZ, 4, ALTO_PERSONAL - ALTO_MODIVOZ - 4);
    OrigenModiVoz = QPoint(x, y);
    ColocaPanelVoz();
    PanelVozVisible = true;
    DibujaPersonal();
}

// ---- Drawing ----

void PintaPanelVoz(QPainter& p) {
    const QRectF r(OrigenModiVoz.x(), OrigenModiVoz.y(), ANCHO_MODIVOZ, ALTO_MODIVOZ);
    p.fillRect(r.translated(3, 3), QColor(0, 0, 0, 80));
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, QColor(0, 84, 30));
    g.setColorAt(1, QColor(0, 60, 20));
    p.fillRect(r, g);
    p.setPen(QPen(QColor(240, 196, 88), 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(0.75, 0.75, -0.75, -0.75));
    p.setFont(LetraAjustes(11, true));
    p.setPen(QColor(255, 255, 190));
    p.drawText(QRectF(r.x() + 6, r.y() + 3, 120, 16), Qt::AlignLeft | Qt::AlignVCenter,
               "Voz de " + NombreJugador[JugadorModiVoz]);
}

void PintaPersonal(QPainter& p) {
    DibujaFondoAjustes(p, Personal.Ancho, Personal.Alto);
    for (int s = 1; s <= 4; ++s)
        DibujaMarco(p, QRect(ORIGEN_PANEL[s] + QPoint(0, 8), QSize(ANCHO_PANEL, ALTO_PANEL - 8)),
                    QStringLiteral(" Jugador  "));
    DibujaSentido(p, SentidoJuego, CAJA_SENTIDO);
    DibujaMarco(p, MARCO_REVERSO, QStringLiteral("  Reverso de las cartas  "));
    DibujaMuestraReverso(p, std::clamp(ReversoCartas, 1, 8), CAJA_REVERSO);
    bool panel = false;
    for (int i = 0; i < int(Personal.Controles.size()); ++i) {
        const ControlPintado& c = Personal.Controles[i];
        if (EsPanelVoz(c) && c.Visible && !panel) {
            PintaPanelVoz(p);
            panel = true;
        }
        PintaControl(p, Personal, i, ValorControl(c));
    }
    // The open voice panel hides the frame of a focused control that lies under it.
    const bool tapado = PanelVozVisible && Personal.Foco >= 0 &&
                        !EsPanelVoz(Personal.Controles[Personal.Foco]) &&
                        Personal.Controles[Personal.Foco].Zona.intersects(
                            QRect(OrigenModiVoz, QSize(ANCHO_MODIVOZ, ALTO_MODIVOZ)));
    if (!tapado) PintaFoco(p, Personal);
}

// ---- The seats' selectors ----

void PasaSelector(int posicion, int direccion);

void PulsaSelectorDe(int indice) {
    const int posicion = PosicionDe(TipoControl::Selector, indice);
    if (posicion >= 0) PasaSelector(posicion, 1);
}

// Every card in hand shows its face or its back as its seat's cards are set; in Siete y media
// hidden cards only cover the card that is dealt covered.
void CarasDeLasCartas() {
    for (int s = 1; s <= 4; ++s)
        for (int e = 1; e <= 4; ++e)
            for (int p = 1; p <= std::min(NumCartas[s][e], MAX_MANO); ++p) {
                auto& carta = CartasJugador[s][e][p];
                if (carta[CAMPO_PALO] == 0) continue;
                if (JuegoActual == JUEGO_SIETEYMEDIA && CartasVisibles[s] == 1) {
                    if (carta[CAMPO_MARCA] == 1) carta[CAMPO_CARA] = CARA_OCULTA;
                } else {
                    carta[CAMPO_CARA] = CartasVisibles[s];
                }
            }
    if (!PartidaViva) return;
    for (int s = 1; s <= 4; ++s)
        if (EstadoJugador[s] == ESTADO_ACTIVADO) DibujaJugador(s);
    RefrescaMesa();
}

void SelectorDesactivado(const QString& texto, int lineas, int ayuda) {
    Mensaje("Selector desactivado", texto, lineas, 1, ayuda);
}

void PasaEstado(int posicion, int direccion, int seat) {
    if (JuegoActual == JUEGO_BLACKJACK && seat == 2) {
        SelectorDesactivado("En el juego del Black Jack este  es  el  jugador banca o 'croupier' y "
                            "no lo puede desactivar, por tanto,  no  se  le permite modificar el "
                            "valor de este selector.",
                            4, TEMA_JUGADORES);
        return;
    }
    if (JuegoActual == JUEGO_CINQUILLO) {
        SelectorDesactivado("El Cinquillo se juega entre cuatro jugadores, por lo tanto,  no "
                            "puede desactivar ninguno y no se le permite modificar el valor de "
                            "este selector.",
                            3, TEMA_JUGADORES);
        return;
    }
    if (JuegoActual == JUEGO_MUS) {
        SelectorDesactivado("El juego del  Mus  solo contempla  la opción de jugarlo  a  "
                            "compañeros,  por lo tanto, no puede desactivar ninguno y no se le "
                            "permite modificar el valor de este selector.",
                            4, TEMA_JUGADORES);
        return;
    }
    CambiaSelector(Personal, posicion, EstadoJugador[seat], direccion);
    DibujaPersonal();
}

void PasaCartas(int posicion, int direccion, int seat) {
    if (JuegoActual == JUEGO_BLACKJACK) {
        SelectorDesactivado("En el juego del  Black Jack  las cartas  de  los jugadores siempre "
                            "permanecen boca arriba, por lo que no puede modificar el valor de "
                            "este selector.",
                            3, TEMA_CARTAS);
        return;
    }
    CambiaSelector(Personal, posicion, CartasVisibles[seat], direccion);
    if (PartidaViva) DibujaJugador(seat);
    if (CartasVisibles[seat] == 1 && ControlJugador[seat] == CONTROL_MANUAL) {
        Mensaje("Selecciones incompatibles",
                "Si elige 'Ocultas'  en  'Cartas del jugador' no podrá seguir  con  el  'Control "
                "del juego'  del jugador seleccionado a 'Manual'.  Si  pulsa  el botón  Aceptar  "
                "se actualizará  el 'Control del juego' a 'Automático'.  Si pulsa Cancelar no se "
                "modificará ningún valor.",
                6, 2, TEMA_CARTAS);
        if (RespuestaMensaje)
            PulsaSelectorDe(24 + seat);
        else
            PasaSelector(posicion, 1);
    }
    CarasDeLasCartas();
}

void PasaControl(int posicion, int direccion, int seat) {
    CambiaSelector(Personal, posicion, ControlJugador[seat], direccion);
    if (ControlJugador[seat] == CONTROL_MANUAL && CartasVisibles[seat] == 1) {
        Mensaje("Selecciones incompatibles",
                "Para que pueda pasar a 'Manual' el  'Control del juego' de este jugador, las "
                "'Cartas del jugador' deben estar 'Visibles'. Si pulsa el botón Aceptar se "
                "seleccionará dicho valor de forma automática. Si pulsa Cancelar no cambiará "
                "ningún valor.",
                5, 2, TEMA_CONTROL);
        if (RespuestaMensaje)
            PulsaSelectorDe(20 + seat);
        else
            PasaSelector(posicion, 1);
    }
    PersonaJugando = ControlJugador[JugadorActual] == CONTROL_MANUAL;
}

void PasaSexo(int posicion, int direccion) {
    int& sexo = VozSexo[JugadorModiVoz];
    CambiaSelector(Personal, posicion, sexo, direccion);
    const int motor = sexo == VOZ_MUJER ? MotorVozMujer : MotorVozHombre;
    if (motor == 0)
        Mensaje("Voz del jugador",
                "No tiene instalado en su ordenador ningún motor de voz del sexo  requerido,  por "
                "tanto,  se  ha activado la voz del sexo contrario.",
                3, 1, TEMA_VOZ);
}

void PasaSelector(int posicion, int direccion) {
    const int indice = Personal.Controles[posicion].Indice;
    if (indice >= 11 && indice <= 14) {
        PasaEstado(posicion, direccion, indice - 10);
    } else if (indice >= 21 && indice <= 24) {
        PasaCartas(posicion, direccion, indice - 20);
    } else if (indice >= 25 && indice <= 28) {
        PasaControl(posicion, direccion, indice - 24);
    } else if (indice == SELECTOR_SEXO) {
        PasaSexo(posicion, direccion);
    } else if (int* ajuste = AjusteDeSelector(indice)) {
        CambiaSelector(Personal, posicion, *ajuste, direccion);
        if (indice == SELECTOR_SENTIDO) {
            PasoSentido = SentidoJuego == 1 ? 1 : -1;
            RepintaFormulario();
        }
    }
}

// ---- Lamps and buttons ----

bool AbrePaginaVoces() {
    const QUrl pagina(PAGINA_VOCES);
    return AbrePaginaWeb ? AbrePaginaWeb(pagina) : QDesktopServices::openUrl(pagina);
}

void PulsaVoces() {
    if (MotorVozMujer != 0 || MotorVozHombre != 0) {
        VocesActivadas = !VocesActivadas;
        DibujaPersonal();
        return;
    }
    Mensaje("Voces de los jugadores",
            "No tiene instalado en su ordenador ningún motor de voz, por tanto, no puede activar "
            "el apartado de voces de jugadores.  Si  quiere  instalar un motor de voz,  pulse el "
            "botón  Aceptar. En caso contrario pulse Cancelar.",
            5, 2, TEMA_VOCES);
    if (!RespuestaMensaje) return;
    if (AbrePaginaVoces()) {
        // The voices are counted when the program starts: it closes, to be opened again
        // once they are installed.
        CierraFormulario(Personal);
        TerminaPrograma();
        return;
    }
    Mensaje("Voces de los jugadores",
            "No se ha podido abrir el navegador para mostrar cómo se instalan las voces. Para "
            "instalar las voces en español del sintetizador eSpeak NG, escriba en una terminal "
            "«sudo apt install espeak-ng espeak-ng-data» y vuelva a abrir el programa.",
            4, 1, TEMA_VOCES);
}

void PulsaLampara(int indice) {
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_SELECCION);
    switch (indice) {
    case LAMPARA_SONIDO:
        SonidoActivado = !SonidoActivado;
        DibujaPersonal();
        break;
    case LAMPARA_VOCES:
        PulsaVoces();
        break;
    case LAMPARA_PAUSA:
        ContinuarManual = !ContinuarManual;
        RepintaFormulario();
        break;
    default:
        break;
    }
}

void PulsaBoton(int posicion) {
    const int indice = Personal.Controles[posicion].Indice;
    HundePulsador(Personal, posicion);
    if (indice == PULSADOR_REVERSO) {
        ReversoCartas = ReversoCartas % 8 + 1;
        RepintaFormulario();
    } else if (indice >= 91 && indice <= 94) {
        JugadorModiVoz = indice - 90;
        DibujaPanelModiVoz();
    } else if (indice == PULSADOR_PRUEBA_VOZ) {
        Habla(JugadorModiVoz, "Esta es una prueba de la voz de " + NombreJugador[JugadorModiVoz]);
    }
}

// ---- Closing ----

void DibujaMesaAlCerrar() {
    if (PartidaViva && ManoViva) {
        const int serie = SerieActual;
        for (int s = 1; s <= 4; ++s) {
            if (EstadoJugador[s] != ESTADO_ACTIVADO) continue;
            const bool porSeries =
                JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_SIETEYMEDIA;
            SerieActual = porSeries ? std::max(SeriesJugador[s], 1) : 1;
            if (s == JugadorActual) SerieActual = std::max(NumSeries, 1);
            DibujaJugador(s);
        }
        SerieActual = serie;
        if (ContinuarManual && !AnularReparto) RefrescaBotonera();
    }
    if (PartidaViva && !EsperandoPersona) DibujaNombres();
    if (VentanaInformacion == 2) Pic_Sugerencia.Visible = false;
    if (ReversoCartas != ReversoCopia) {
        // The small backs of the won tricks follow the new design.
        ReversosReducidos();
        const bool bazas = JuegoActual == JUEGO_BLACKJACK || JuegoActual == JUEGO_TUTE ||
                           JuegoActual == JUEGO_BRISCA;
        if (PartidaViva && !AnularReparto) {
            if (bazas)
                for (int s = 1; s <= 4; ++s)
                    if (EstadoJugador[s] == ESTADO_ACTIVADO) DibujaBazas(s);
            if (CartasEnMazo > 0) DibujaMazo(MazoX, MazoY, CartasEnMazo);
            if (CartasEnPozo > 0) DibujaMazo(PozoX, PozoY, CartasEnPozo);
        }
    }
    RefrescaMesa();
}

void SalirPersonal() {
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_BOTON);
    PonFoco(Personal, -1);
    int activos = 0;
    for (int s = 1; s <= 4; ++s) {
        if (EstadoJugador[s] == ESTADO_ACTIVADO) ++activos;
        if (JuegoActual == JUEGO_MUS && CartasVisibles[s] == 2) SenasVisibles[s] = false;
    }
    if (activos < 2) {
        Mensaje("Número de Jugadores",
                "Ha modificado los jugadores activados, pero debe haber como mínimo dos "
                "jugadores  activados  para poder jugar una partida.",
                3, 1, TEMA_JUGADORES);
        return;
    }
    bool cambiados = false;
    for (int s = 1; s <= 4; ++s) cambiados = cambiados || EstadoJugador[s] != EstadoCopia[s];
    if (cambiados) {
        bool acepta = true;
        if (PartidaViva && NumeroMano > 1) {
            Mensaje("Jugadores Activados",
                    "Ha modificado los jugadores  activados,  por  lo  que finalizará la partida "
                    "actual y comenzará una nueva  partida  con  los jugadores seleccionados "
                    "actualmente. Pulse el botón Aceptar para empezar la nueva partida. Si pulsa "
                    "el botón  Cancelar no se modificarán los jugadores activados  y  podrá "
                    "continuar la partida en juego.",
                    7, 2, TEMA_JUGADORES);
            acepta = RespuestaMensaje;
        }
        if (acepta) {
            NumJugadores = activos;
            for (int s = 1; s <= 4; ++s)
                if (EstadoJugador[s] != ESTADO_ACTIVADO)
                    for (int e = 0; e <= 4; ++e) NumCartas[s][e] = 0;
            JugadoresCambiados = true;
            ColocaTriunfo();
        } else {
            for (int s = 1; s <= 4; ++s) EstadoJugador[s] = EstadoCopia[s];
        }
    }
    if (NumJugadores != 4) ModalidadPareja = 1;
    for (int s = 1; s <= 4; ++s) NombreJugador[s] = NombreJugador[s].trimmed();
    DibujaMesaAlCerrar();
    CierraFormulario(Personal);
}

// ---- The mouse and the keys ----

void Acciona(int posicion, int direccion) {
    const ControlPintado c = Personal.Controles[posicion];
    if (!EsPanelVoz(c)) OcultaPanelVoz();
    switch (c.Tipo) {
    case TipoControl::Selector:
        PasaSelector(posicion, direccion);
        break;
    case TipoControl::Buleano:
        PulsaLampara(c.Indice);
        break;
    case TipoControl::Potenciometro:
        if (int* valor = AjusteDePotenciometro(c.Indice)) {
            *valor = std::clamp(*valor + direccion, 0, 100);
            RepintaFormulario();
        }
        break;
    case TipoControl::Pulsador:
        PulsaBoton(posicion);
        break;
    case TipoControl::Ayuda:
        SuenaAjustes(SONIDO_SINCRONO, SONIDO_BOTON);
        AbreAyuda(TEMA_PERSONAL);
        break;
    case TipoControl::Salir:
        SalirPersonal();
        break;
    case TipoControl::Cerrar:
        SuenaAjustes(SONIDO_SINCRONO, SONIDO_BOTON);
        OcultaPanelVoz();
        break;
    default:
        break;
    }
}

void PulsaEnPersonal(int x, int y) {
    const int posicion = ControlEn(Personal, x, y);
    if (posicion < 0 || !EsPanelVoz(Personal.Controles[posicion])) OcultaPanelVoz();
    if (posicion < 0) return;
    const ControlPintado c = Personal.Controles[posicion];
    const int rx = x - c.Zona.x(), ry = y - c.Zona.y();
    switch (c.Tipo) {
    case TipoControl::Selector:
        if (!EnFlechaSelector(rx, ry)) return;
        PonFoco(Personal, posicion);
        PasaSelector(posicion, 1);
        break;
    case TipoControl::Potenciometro:
        if (!EnPomo(ValorControl(c), rx, ry)) return;
        PonFoco(Personal, posicion);
        Arrastre = posicion;
        AnclaPotenciometro = rx;
        PonCursorFormulario(CURSOR_ARRASTRE);
        break;
    case TipoControl::Nombre:
        if (c.SoloLectura) return;
        PonFoco(Personal, posicion);
        Personal.Cursor = CursorEnCaja(c.Zona, Personal.Edicion, x, false);
        RepintaFormulario();
        break;
    default:
        PonFoco(Personal, posicion);
        Acciona(posicion, 1);
        break;
    }
}

void MueveEnPersonal(int x, int y, bool) {
    if (Arrastre >= 0) {
        const ControlPintado& c = Personal.Controles[Arrastre];
        if (int* valor = AjusteDePotenciometro(c.Indice)) {
            const int nuevo = ArrastraPotenciometro(*valor, x - c.Zona.x());
            if (nuevo != *valor) {
                *valor = nuevo;
                RepintaFormulario();
            }
        }
        return;
    }
    const int posicion = ControlEn(Personal, x, y);
    int forma = CURSOR_FLECHA;
    if (posicion >= 0) {
        const ControlPintado& c = Personal.Controles[posicion];
        forma = PunteroDeControl(c, x - c.Zona.x(), y - c.Zona.y());
    }
    if (forma != CursorAjustes) PonCursorFormulario(forma);
}

void SueltaEnPersonal(int x, int y) {
    if (Arrastre < 0) return;
    Arrastre = -1;
    MueveEnPersonal(x, y, false);
}

void TextoNombrePersonal(int posicion) {
    const int seat = Personal.Controles[posicion].Indice;
    QString texto = Personal.Edicion;
    int blancos = 0;
    while (blancos < texto.size() && texto[blancos] == ' ') ++blancos;
    // Each word starts with a capital and goes on in small letters, whatever the keys.
    texto = NormalizaNombre(texto.mid(blancos));
    NombreJugador[seat] = texto;
    Personal.Edicion = texto;
    Personal.Cursor = std::clamp(Personal.Cursor - blancos, 0, int(texto.size()));
}

} // namespace

void ColocaPersonal() {
    Personal = Formulario{};
    Personal.Titulo = QStringLiteral("Personalizar");
    Personal.Ancho = ANCHO_PERSONAL;
    Personal.Alto = ALTO_PERSONAL;
    for (int s = 1; s <= 4; ++s) {
        const int x = ORIGEN_PANEL[s].x(), y = ORIGEN_PANEL[s].y();
        Anade(TipoControl::Nombre, s, QRect(x + 80, y - 1, 118, ALTO_NOMBRE));
        Anade(TipoControl::Selector, 10 + s, QRect(x + 8, y + 22, 146, ALTO_SELECTOR));
        Anade(TipoControl::Selector, 24 + s, QRect(x + 8, y + 64, 146, ALTO_SELECTOR));
        Anade(TipoControl::Selector, 20 + s, QRect(x + 8, y + 106, 146, ALTO_SELECTOR));
        Anade(TipoControl::Selector, 30 + s, QRect(x + 160, y + 22, 144, ALTO_SELECTOR));
        Anade(TipoControl::Potenciometro, 60 + s, QRect(x + 160, y + 64, 144, 44));
        Anade(TipoControl::Pulsador, 90 + s, QRect(x + 244, y + 120, 60, ALTO_PULSADOR));
    }
    Anade(TipoControl::Selector, SELECTOR_SENTIDO, QRect(19, 44, 206, ALTO_SELECTOR));
    Anade(TipoControl::Selector, SELECTOR_INFORMACION, QRect(19, 100, 206, ALTO_SELECTOR));
    Anade(TipoControl::Buleano, LAMPARA_PAUSA, QRect(580, 50, 200, ALTO_BULEANO));
    Anade(TipoControl::Buleano, LAMPARA_SONIDO, QRect(580, 80, 200, ALTO_BULEANO));
    Anade(TipoControl::Buleano, LAMPARA_VOCES, QRect(580, 110, 200, ALTO_BULEANO));
    Anade(TipoControl::Potenciometro, POTENCIOMETRO_VELOCIDAD, QRect(19, 380, 206, 44));
    Anade(TipoControl::Pulsador, PULSADOR_REVERSO, QRect(670, 414, 96, ALTO_PULSADOR));
    Anade(TipoControl::Ayuda, 0, QRect(19, 520, LADO_BOTON, LADO_BOTON));
    Anade(TipoControl::Salir, 0,
          QRect(ANCHO_PERSONAL - 19 - LADO_BOTON, 520, LADO_BOTON, LADO_BOTON));
    // The voice panel, over everything else.
    Anade(TipoControl::Selector, SELECTOR_SEXO, QRect());
    Anade(TipoControl::Potenciometro, POTENCIOMETRO_TONO, QRect());
    Anade(TipoControl::Potenciometro, POTENCIOMETRO_VELOCIDAD_VOZ, QRect());
    Anade(TipoControl::Pulsador, PULSADOR_PRUEBA_VOZ, QRect());
    Anade(TipoControl::Cerrar, 0, QRect());
    PanelVozVisible = false;
    Arrastre = -1;
    ActualizaVisibles();
    Personal.Pinta = PintaPersonal;
    Personal.Pulsa = PulsaEnPersonal;
    Personal.Mueve = MueveEnPersonal;
    Personal.Suelta = SueltaEnPersonal;
    Personal.Paso = Acciona;
    Personal.TextoNombre = TextoNombrePersonal;
    Personal.Salir = SalirPersonal;
    Personal.Foco = PosicionDe(TipoControl::Nombre, 4); // the person's own seat first
}

Formulario& FormularioPersonal() {
    return Personal;
}

void MuestraPersonal() {
    LlenaTextosAjustes();
    for (int s = 1; s <= 4; ++s) EstadoCopia[s] = EstadoJugador[s];
    ReversoCopia = ReversoCartas;
    ColocaPersonal();
    MuestraFormulario(Personal);
}

void PulsaPersonalizar() {
    JugadoresCambiados = false;
    MensajeSobreVentana = true;
    EnPersonal = true;
    MuestraPersonal();
    EnPersonal = false;
    MensajeSobreVentana = false;
    DibujaNombres();
    RefrescaMesa();
    if (JugadoresCambiados) {
        ParametrosJuego();
        NuevaPartida();
    }
}
