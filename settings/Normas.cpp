// The rules window. The list of games stands on the left, each with its lamp and its picture;
// the options of the game in play stand in one column, or two in Póker and Mus.
#include "settings/Normas.h"

#include "frame/Baraja.h"
#include "frame/Ciclo.h"
#include "frame/Ficheros.h"
#include "frame/TrufalGbl.h"
#include "platform/Ayuda.h"
#include "platform/Sonido.h"
#include "settings/Dibujos.h"
#include "table/Mensajes.h"

namespace {

constexpr int ANCHO_NORMAS = 447, ANCHO_NORMAS_DOBLE = 653, ALTO_NORMAS = 410;
constexpr int TEMA_NORMAS = 2140, TEMA_LISTA_JUEGOS = 2159, TEMA_TIPO_BARAJA = 2151,
              TEMA_TIPO_MUS = 2160;

// The list of games, in its order, and where it stands.
constexpr int ORDEN_JUEGOS[9] = {JUEGO_BLACKJACK, JUEGO_BRISCA,      JUEGO_CHINCHON,
                                 JUEGO_CINQUILLO, JUEGO_MUS,         JUEGO_POKER,
                                 JUEGO_PUMBA,     JUEGO_SIETEYMEDIA, JUEGO_TUTE};
const QRect PANEL_JUEGOS(10, 18, 180, 326);
constexpr int FILA_JUEGO = 34, MARGEN_NOMBRE_JUEGO = 70;
constexpr int X_OPCIONES = 198, Y_OPCIONES = 18, ALTO_OPCIONES = 326;
constexpr int SEPARACION = 10;

Formulario Normas;
int JuegoEncendido = 0; // the lamp of the list that is on: the game in play, or the one asked for
int TipoBarajaCopia = 1, TipoMusCopia = 2;

bool EsSelector(int indice) {
    return indice >= 1 && indice <= 40;
}
bool EsSpin(int indice) {
    return indice >= 71 && indice <= 76;
}
bool EsJuego(int indice) {
    return indice >= JUEGO_POKER && indice <= JUEGO_PUMBA;
}

int AnchoDeNormas() {
    const ColumnasNormas c = ControlesDeNormas(JuegoActual);
    return c.Segunda.empty() ? ANCHO_NORMAS : ANCHO_NORMAS_DOBLE;
}

QRect PanelOpciones() {
    return QRect(X_OPCIONES, Y_OPCIONES, AnchoDeNormas() - X_OPCIONES - 10, ALTO_OPCIONES);
}

void ColocaColumna(const std::vector<int>& indices, int x, int ancho) {
    int y = Y_OPCIONES + 16;
    for (int indice : indices) {
        ControlPintado c;
        int alto = ALTO_BULEANO;
        if (EsSelector(indice)) {
            c.Tipo = TipoControl::Selector;
            alto = ALTO_SELECTOR;
        } else if (EsSpin(indice)) {
            c.Tipo = TipoControl::Spin;
            alto = ALTO_SPIN;
        } else {
            c.Tipo = TipoControl::Buleano;
        }
        c.Indice = indice;
        c.Zona = QRect(x, y, ancho, alto);
        Normas.Controles.push_back(c);
        y += alto + SEPARACION;
    }
}

int ValorEnNormas(const ControlPintado& c) {
    if (c.Tipo == TipoControl::Buleano && EsJuego(c.Indice)) return JuegoEncendido == c.Indice;
    return ValorControl(c);
}

void PintaNormas(QPainter& p) {
    DibujaFondoAjustes(p, Normas.Ancho, Normas.Alto);
    DibujaMarco(p, PANEL_JUEGOS, QStringLiteral("  Juego Activado  "));
    DibujaMarco(p, PanelOpciones(), "  " + NombreJuego[JuegoActual] + "  ");
    for (int i = 0; i < int(Normas.Controles.size()); ++i) {
        const ControlPintado& c = Normas.Controles[i];
        if (c.Tipo == TipoControl::Buleano && EsJuego(c.Indice)) {
            DibujaBuleano(p, c, JuegoEncendido == c.Indice, MARGEN_NOMBRE_JUEGO);
            DibujaJuego(p, c.Indice, QRectF(c.Zona.x() + 22, c.Zona.y() + 1, 44, 30));
        } else {
            PintaControl(p, Normas, i, ValorEnNormas(c));
        }
    }
    PintaFoco(p, Normas);
}

// ---- The options ----

void DespuesDeSelector(int indice) {
    // The deck tables follow the options that shape the deck, while the window is open.
    if (indice == 5 && LeyApertura < CartaMinimaPoker) {
        LeyApertura = CartaMinimaPoker - 1;
        RepintaFormulario();
    }
    if (indice == 19 || indice == 29 || indice == 5 || indice == 3) ParametrosJuego();
}

void PasaSelector(int posicion, int direccion) {
    const int indice = Normas.Controles[posicion].Indice;
    int* ajuste = AjusteDeSelector(indice);
    if (!ajuste) return;
    CambiaSelector(Normas, posicion, *ajuste, direccion);
    DespuesDeSelector(indice);
}

void PulsaLampara(int indice) {
    if (EsJuego(indice)) {
        if (indice == JuegoAlAbrir) return;
        SuenaAjustes(SONIDO_SINCRONO, SONIDO_SELECCION);
        JuegoEncendido = indice;
        RepintaFormulario();
        Mensaje("Lista 'Juego Activado'",
                "Cuando modifica el valor de esta lista, finaliza el juego actual y comienza la "
                "modalidad de juego seleccionada. Si pulsa el botón Aceptar iniciará el nuevo "
                "juego. Si pulsa el botón Cancelar no se cambiará este valor y continuará el "
                "juego actual.",
                5, 2, TEMA_LISTA_JUEGOS);
        if (!RespuestaMensaje) {
            JuegoEncendido = JuegoAlAbrir;
            RepintaFormulario();
            return;
        }
        // The old game keeps its match in its file, with the money as the hand began.
        PonFoco(Normas, -1);
        PreparaPosponer();
        if (JuegoAlAbrir == JUEGO_PUMBA) Pic_Pulsador[PULSADOR_PUMBA].Visible = false;
        GrabaJuego();
        JuegoActual = indice;
        GrabaConfiguracion();
        CierraFormulario(Normas);
        return;
    }
    bool* ajuste = AjusteDeBuleano(indice);
    if (!ajuste) return;
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_SELECCION);
    *ajuste = !*ajuste;
    RepintaFormulario();
}

void SalirNormas() {
    SuenaAjustes(SONIDO_SINCRONO, SONIDO_BOTON);
    PonFoco(Normas, -1);
    const bool enJuego = PartidaViva && NumeroMano >= 1;
    if (TipoBarajaEspanola != TipoBarajaCopia && enJuego) {
        Mensaje("Tipo de baraja",
                "Ha modificado el tipo de baraja  que  se  va  a utilizar en  el  juego,  por lo "
                "que se dará por finalizada  la partida actual  y  comenzará una nueva partida "
                "con la baraja que ha seleccionado. Pulse Aceptar para comenzar la nueva "
                "partida. Si pulsa el botón Cancelar no se modificará el tipo de baraja y "
                "continuará la partida en juego.",
                7, 2, TEMA_TIPO_BARAJA);
        if (!RespuestaMensaje) {
            TipoBarajaEspanola = TipoBarajaCopia;
            ParametrosJuego();
        }
    }
    if (TipoMus != TipoMusCopia && enJuego) {
        Mensaje("Tipo de mus",
                "Ha modificado el tipo de mus al que desea jugar, por  lo  que  se  dará por "
                "finalizada la partida actual  y  comenzará  una  nueva  partida con la baraja "
                "actualmente seleccionada.  Pulse el botón Aceptar para comenzar la nueva "
                "partida. Si pulsa Cancelar no se modificará el  tipo  de  baraja y continuará "
                "la partida en juego.",
                7, 2, TEMA_TIPO_MUS);
        if (!RespuestaMensaje) {
            TipoMus = TipoMusCopia;
            ParametrosJuego();
        }
    }
    CierraFormulario(Normas);
}

void Acciona(int posicion, int direccion) {
    const ControlPintado& c = Normas.Controles[posicion];
    switch (c.Tipo) {
    case TipoControl::Selector:
        PasaSelector(posicion, direccion);
        break;
    case TipoControl::Buleano:
        PulsaLampara(c.Indice);
        break;
    case TipoControl::Spin:
        PulsaSpin(Normas, posicion, direccion > 0 ? 1 : -1, true);
        break;
    case TipoControl::Ayuda:
        SuenaAjustes(SONIDO_SINCRONO, SONIDO_BOTON);
        AbreAyuda(TEMA_NORMAS);
        break;
    case TipoControl::Salir:
        SalirNormas();
        break;
    default:
        break;
    }
}

// ---- The mouse ----

void PulsaEnNormas(int x, int y) {
    const int posicion = ControlEn(Normas, x, y);
    if (posicion < 0) return;
    const ControlPintado c = Normas.Controles[posicion];
    const int rx = x - c.Zona.x(), ry = y - c.Zona.y();
    switch (c.Tipo) {
    case TipoControl::Selector:
        if (!EnFlechaSelector(rx, ry)) return;
        PonFoco(Normas, posicion);
        PasaSelector(posicion, 1);
        break;
    case TipoControl::Spin: {
        if (const int sentido = FlechaSpinEn(c, rx, ry); sentido != 0) {
            // What was typed in the box counts before the arrow steps from it.
            if (Normas.Foco == posicion && Normas.TextoSpin) Normas.TextoSpin(posicion);
            PonFoco(Normas, posicion);
            PulsaSpin(Normas, posicion, sentido);
            RecargaEdicion(Normas);
            RepintaFormulario();
        } else if (EnCajaSpin(c, rx, ry)) {
            PonFoco(Normas, posicion);
            Normas.Cursor = CursorEnCaja(CajaDeSpin(c), Normas.Edicion, x, true);
            RepintaFormulario();
        }
        break;
    }
    default:
        PonFoco(Normas, posicion);
        Acciona(posicion, 1);
        break;
    }
}

void MueveEnNormas(int x, int y, bool) {
    const int posicion = ControlEn(Normas, x, y);
    int forma = CURSOR_FLECHA;
    if (posicion >= 0) {
        const ControlPintado& c = Normas.Controles[posicion];
        forma = PunteroDeControl(c, x - c.Zona.x(), y - c.Zona.y());
    }
    if (forma != CursorAjustes) PonCursorFormulario(forma);
}

void SueltaEnNormas(int, int) {
    SpinPulsado = false;
}

void TextoSpinNormas(int posicion) {
    const int indice = Normas.Controles[posicion].Indice;
    const int valor = ValorTecleado(indice, Normas.Edicion);
    GuardaSpin(indice, valor);
    Normas.Edicion = FormatoSpin(indice, valor).trimmed();
    Normas.Cursor = int(Normas.Edicion.size());
}

} // namespace

ColumnasNormas ControlesDeNormas(int juego) {
    const bool cuatro = NumJugadores == 4;
    switch (juego) {
    case JUEGO_POKER:
        return {{1, 6, 5, 3, 2}, {71, 72, 75, 73}};
    case JUEGO_BLACKJACK:
        return {{71, 73}, {}};
    case JUEGO_TUTE:
        if (cuatro) return {{1, 6, 4, 7, 46, 74}, {}};
        return {{1, 6, 7, 46, 74}, {}};
    case JUEGO_BRISCA:
        if (cuatro) return {{1, 6, 4, 74}, {}};
        return {{1, 6, 74}, {}};
    case JUEGO_SIETEYMEDIA:
        return {{1, 6, 71, 73}, {}};
    case JUEGO_MUS:
        return {{1, 6, 29, 20, 35}, {30, 76, 50}};
    case JUEGO_CHINCHON:
        return {{1, 6, 19, 49, 48, 74}, {}};
    case JUEGO_CINQUILLO:
    case JUEGO_PUMBA:
    default:
        return {{1, 6, 74}, {}};
    }
}

void ColocaNormas() {
    Normas = Formulario{};
    Normas.Titulo = QStringLiteral("Normas de juego");
    Normas.Ancho = AnchoDeNormas();
    Normas.Alto = ALTO_NORMAS;
    for (int i = 0; i < 9; ++i) {
        ControlPintado c;
        c.Tipo = TipoControl::Buleano;
        c.Indice = ORDEN_JUEGOS[i];
        c.Zona = QRect(PANEL_JUEGOS.x() + 6, PANEL_JUEGOS.y() + 14 + i * FILA_JUEGO,
                       PANEL_JUEGOS.width() - 12, FILA_JUEGO - 2);
        Normas.Controles.push_back(c);
    }
    const ColumnasNormas columnas = ControlesDeNormas(JuegoActual);
    const QRect panel = PanelOpciones();
    const int dentro = panel.width() - 16;
    if (columnas.Segunda.empty()) {
        ColocaColumna(columnas.Primera, panel.x() + 8, dentro);
    } else {
        const int ancho = (dentro - 10) / 2;
        ColocaColumna(columnas.Primera, panel.x() + 8, ancho);
        ColocaColumna(columnas.Segunda, panel.x() + 8 + ancho + 10, ancho);
    }
    const int yBotones = ALTO_NORMAS - LADO_BOTON - 10;
    Normas.Controles.push_back(
        {TipoControl::Ayuda, 0, QRect(10, yBotones, LADO_BOTON, LADO_BOTON)});
    Normas.Controles.push_back(
        {TipoControl::Salir, 0,
         QRect(Normas.Ancho - 10 - LADO_BOTON, yBotones, LADO_BOTON, LADO_BOTON)});
    Normas.Pinta = PintaNormas;
    Normas.Pulsa = PulsaEnNormas;
    Normas.Mueve = MueveEnNormas;
    Normas.Suelta = SueltaEnNormas;
    Normas.Paso = Acciona;
    Normas.TextoSpin = TextoSpinNormas;
    Normas.Salir = SalirNormas;
    // The keys start on the first option of the game, after the list of games.
    Normas.Foco = 9;
    JuegoEncendido = JuegoActual;
}

Formulario& FormularioNormas() {
    return Normas;
}

void MuestraNormas() {
    LlenaTextosAjustes();
    TipoBarajaCopia = TipoBarajaEspanola;
    TipoMusCopia = TipoMus;
    ColocaNormas();
    MuestraFormulario(Normas);
}

void PulsaNormas() {
    JuegoAlAbrir = JuegoActual;
    const int baraja = TipoBarajaEspanola, mus = TipoMus;
    MensajeSobreVentana = true;
    MuestraNormas();
    MensajeSobreVentana = false;
    if (JuegoActual != JuegoAlAbrir) {
        AbreJuego();
        return;
    }
    if (TipoBarajaEspanola != baraja || TipoMus != mus) {
        ParametrosJuego();
        NuevaPartida();
    }
}
