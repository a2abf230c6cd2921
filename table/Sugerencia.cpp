// The information pane: its sixty-odd texts, its drawing and its two controls.
#include "table/Sugerencia.h"

#include "frame/TrufalGbl.h"
#include "platform/Ayuda.h"
#include "table/Dibujo.h"
#include "table/DibujoComun.h"

#include <QPainter>

namespace {

struct EntradaInformacion {
    int Numero;
    int Tema;
    const char* Texto; // without the blanks that fill it up to 145 characters
};

// The blanks inside the texts are deliberate: with them every word falls on its own line of 29.
// clang-format off
const EntradaInformacion ENTRADAS[] = {
    {0, 2121, "Si cierra esta ventana puede reactivarla  en  el selector 'Ventana de información'  de la opción Personalizar."},
    {1, 2300, "En esta fase,  cada  jugador realiza su apuesta según  la carta recibida. Pulse en las fichas de apuestas hasta que complete la apuesta deseada."},
    {2, 2500, "Este jugador tiene que subir su apuesta para  igualar  la máxima  apuesta  que,  hasta ahora, se ha realizado en la ronda actual."},
    {3, 2300, "Vaya pulsando  en las fichas de  apuestas hasta completar la cantidad que va a apostar en base a la  jugada  que ha ligado tras el descarte."},
    {4, 2300, "Vaya pulsando  en las fichas de  apuestas hasta completar la cantidad que va a apostar en base a la  jugada  que ha ligado tras el descarte."},
    {5, 2500, "Cuando  haya  finalizado  su apuesta debe pulsar el botón de la apostadora  'Finalizar apuesta'  para que  el juego continúe."},
    {6, 2195, "Si  desea  que  el  programa realice la apuesta por Usted puede   pulsar    el   botón 'Apuesta automática'  en  la parte inferior derecha."},
    {7, 3160, "Se van  a  efectuar apuestas en base a la jugada que cada jugador va a  intentar hacer creer que ha ligado tras los descartes."},
    {8, 3160, "Esta es la fase de descartes donde los jugadores desechan las cartas que no ligan, que serán  sustituidas  por  las que le repartirá el mano."},
    {9, 2400, "Marque  con  el  puntero las cartas a descartar  y  pulse 'Descartar  elegidas'   para finalizar.  Pulse  'Servido' si no va a descartar ninguna."},
    {10, 2198, "Si  desea  que  el  programa realice su descarte de forma automática  pulse  el  botón verde  situado  en  la parte inferior derecha."},
    {11, 2153, "Para modificar el máximo  de cartas que puede descartar,  entre en la ventana  'Normas de juego'  para  cambiar  el selector 'Límite descartes'."},
    {15, 3100, "Para ampliar la  información sobre las reglas y  mecánica de este juego,pulse el botón 'más  ayuda'   en  la  parte superior de esta ventana."},
    {16, 2179, "Si duda sobre la apuesta que debe realizar,pulse el botón Tutor de juego para  que  el programa le aconseje."},
    {17, 2179, "Si duda sobre la  decisión a tomar, pulse el botón 'Tutor de juego'  y  el programa le aconsejará cual es la que él considera la mejor jugada."},
    {20, 2300, "Antes del reparto de cartas, cada  jugador  debe realizar su apuesta. Pulse las fichas de apuestas hasta  completar la cantidad que va a apostar"},
    {21, 2300, "Antes del reparto de cartas, cada  jugador  debe realizar su apuesta. Pulse las fichas de apuestas hasta  completar la cantidad que va a apostar"},
    {22, 3110, "Cuando el crupier  tiene  un As, puede asegurarse  contra la posibilidad de que  tenga Black Jack.   El  coste será la mitad la apuesta inicial."},
    {23, 2710, "Si  sus  dos primeras cartas son iguales,  puede abrir su juego en 2 series distintas. Para ello coloque el  cursor sobre sus cartas y haga clic."},
    {24, 3110, "Si sus dos cartas  iniciales suman   9 , 10 u 11  tantos, puede doblar la suma  de  su apuesta. En ese caso sólo se puede pedir una nueva carta."},
    {25, 3110, "Debe decidir si está servido o desea pedir  carta.  Tenga en cuenta que no puede pasar de 21 puntos."},
    {27, 2720, "Puede cambiar  su  siete por la carta que pinta.  Si va a cambiarla  ponga  el  cursor sobre el mazo de  reparto  y haga clic."},
    {28, 2720, "Puede cambiar la  carta  que pinta por la más baja de ese palo.  Para hacerlo ponga el cursor en el mazo de reparto y haga clic."},
    {30, 2300, "En esta fase,  cada  jugador realiza su apuesta según  la carta recibida. Pulse en las fichas de apuestas hasta que complete la apuesta deseada."},
    {31, 2300, "En esta fase,  cada  jugador realiza su apuesta según  la carta recibida. Pulse en las fichas de apuestas hasta que complete la apuesta deseada."},
    {32, 2720, "Cuando su primera  carta  es un  Cuatro  puede  cambiarla por otra. Para ello ponga el cursor sobre  sus  cartas  y haga clic."},
    {33, 3180, "Si  sus  dos primeras cartas son  medias,  puede abrirlas en 2 series distintas.  Para ello coloque el cursor sobre sus cartas y haga clic."},
    {34, 2750, "Solo puede tener  una  carta tapada.  Para que la próxima la reciba bocabajo vuelva la tapada colocando sobre  ella el cursor y haciendo clic."},
    {35, 2400, "Debe decidir si está servido o  desea pedir carta.  Tenga en cuenta que perderá  si se pasa de 7 y media."},
    {36, 2750, "Cuando se consigue  siete  y media, para cantarla, cobrar doble la apuesta y conseguir la banca,  tiene que enseñar la carta tapada."},
    {40, 3170, "Cuando se va a quedar con la última carta, debe pulsar el botón 'Pumba' antes de echar la penúltima carta a la mesa para no ser penalizado."},
    {41, 3170, "Los  Doses y las  Sotas  son cartas comodines y se pueden jugar cuando no disponga  de cartas del valor o palo  que pinta."},
    {42, 3170, "Los Doses, además de que son cartas comodines, obligan al jugador siguiente a que robe dos cartas del mazo."},
    {43, 3170, "Las Sotas, además de que son cartas comodines, le  van  a permitir elegir el palo  que pinta de entre los cuatro de la baraja."},
    {44, 3170, "Cuando se juega un As, puede volver a jugar  otra  carta, siempre  que  esta  sea  del mismo palo que el As."},
    {45, 3130, "En esta fase del juego  debe intentar combinar  el  mayor número de cartas posibles en jugadas de cartas iguales  o de escaleras del mismo palo."},
    {46, 3130, "Puede tomar  una  carta  del mazo o, si le interesa,coger la carta  que permanece boca arriba  en el pozo de cartas descartadas."},
    {47, 3130, "Tiene que descartarse de una de las ocho cartas que tiene en la mano  y  dejarla  boca arriba en el pozo de  cartas descartadas."},
    {48, 3130, "Como las cartas sobrantes de su jugada suman  5  o  menos tantos,puede cerrar el juego o seguir jugando la mano por si logra mejorar su jugada."},
    {50, 3130, "En esta fase del juego puede intentar ligar cada  una  de las cartas que no ha  podido combinar, con las jugadas de los demás jugadores."},
    {51, 3150, "En esta fase del juego puede decidir  si  desea  que haya una ronda de descartes (Mus) o si prefiere  que  comience la fase de envites (No mus)"},
    {52, 2400, "Al pulsar el  botón  'Mandar cortar' le está  enviando  a su compañero la seña de  que corte el mus en su turno."},
    {53, 2198, "Si  desea  que  el  programa decida por Usted si se va  a cortar el  mus, puede pulsar el botón verde que se  sitúa en la parte inferior derecha."},
    {54, 2400, "Seleccione  con  el  puntero las carta o cartas que desea descartar y pulse 'Descarto' para finalizar y recibir las que las sustituyen."},
    {55, 3150, "En  esta fase  de  descartes puede  desechar  las  cartas que no le interesan para  su juego y sustituirlas por las que le repartirá el mano."},
    {56, 3150, "Se van a efectuar envites en función de la jugada que las parejas van a intentar hacer creer que han ligado en cada uno de los lances."},
    {57, 2500, "Seleccione en la  apostadora con los botones  +  y  -  la cantidad que va a envidar, y luego pulse el botón  Envido o  Envidamos."},
    {58, 2500, "Si no quiere envidar en esta ronda, pulse el botón  Paso. Saltará el turno al  próximo jugador y podrá incorporarse posteriormente a los envites."},
    {59, 2500, "Si no quiere envidar nada en el lance actual,puede pulsar los botones Paso  o  Pasamos para que salte el  turno  al siguiente jugador."},
    {60, 2400, "Al pulsar el  botón  'Mandar envidar' le está  enviando a su compañero la seña de  que envide cuande le  llegue  su turno de juego."},
    {61, 3150, "En esta ronda  debe anunciar a  los  demás  jugadores  si tiene cartas para envidar al lance actual (sólo en  Pares y Juego)"},
};
// clang-format on

constexpr unsigned COLOR_FONDO_SUGERENCIA = 0xFFFFFF;

bool Dentro(int x, int y, int x0, int y0, int ancho, int alto) {
    return x >= x0 && y >= y0 && x < x0 + ancho && y < y0 + alto;
}

void DibujaMasAyuda(QPainter& p) {
    const QRect caja(MAS_AYUDA_X, MAS_AYUDA_Y, ANCHO_MAS_AYUDA, ALTO_MAS_AYUDA);
    p.fillRect(caja, QColor(0xE0, 0xE0, 0xE0));
    p.setPen(QColor(0x80, 0x80, 0x80));
    p.drawRect(caja.adjusted(0, 0, -1, -1));
    p.setPen(Qt::black);
    p.setFont(LetraMesa(9, true));
    p.drawText(caja, Qt::AlignCenter, QStringLiteral("más ayuda"));
}

void DibujaCerrarSuge(QPainter& p) {
    const QRect caja(CERRAR_SUGE_X, CERRAR_SUGE_Y, LADO_CERRAR_SUGE, LADO_CERRAR_SUGE);
    p.fillRect(caja, QColor(0xE0, 0xE0, 0xE0));
    p.setPen(QColor(0x80, 0x80, 0x80));
    p.drawRect(caja.adjusted(0, 0, -1, -1));
    p.setPen(QPen(Qt::black, 1.5));
    p.setRenderHint(QPainter::Antialiasing);
    p.drawLine(QPointF(caja.left() + 4, caja.top() + 4),
               QPointF(caja.right() - 3, caja.bottom() - 3));
    p.drawLine(QPointF(caja.right() - 3, caja.top() + 4),
               QPointF(caja.left() + 4, caja.bottom() - 3));
}

// Line k is written from y = k * 10 + 10, at x = 3; the letter is narrow enough for 29
// characters to fit the pane.
void DibujaLineas(QPainter& p, const QString& texto) {
    QFont letra = LetraMesa(10, false);
    p.setFont(letra);
    p.setPen(ColorWindows(COLOR_TEXTO_INFORMACION));
    const QStringList lineas = LineasInformacion(texto);
    for (int k = 1; k <= LINEAS_INFORMACION; ++k)
        p.drawText(QRect(3, k * 10 + 10, ANCHO_SUGERENCIA - 4, 10),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, lineas[k - 1]);
}

} // namespace

void IniciaTextosInformacion() {
    for (int n = 0; n < NUM_TEXTOS_INFORMACION; ++n) {
        TextoInformacion[n].clear();
        TemaInformacion[n] = 0;
    }
    for (const EntradaInformacion& e : ENTRADAS) {
        TextoInformacion[e.Numero] =
            QString::fromUtf8(e.Texto).leftJustified(LARGO_TEXTO_INFORMACION, ' ', true);
        TemaInformacion[e.Numero] = e.Tema;
    }
}

QStringList LineasInformacion(const QString& texto) {
    QStringList lineas;
    for (int k = 1; k <= LINEAS_INFORMACION; ++k)
        lineas << texto.mid((k - 1) * LARGO_LINEA_INFORMACION, LARGO_LINEA_INFORMACION);
    return lineas;
}

void MuestraInformacion(int n) {
    if (VentanaInformacion != 1) return;
    if (n < 0 || n >= NUM_TEXTOS_INFORMACION) return;
    if (TextoInformacion[ENTRADA_AVISO_CIERRE].isEmpty()) IniciaTextosInformacion();
    Pic_Sugerencia.Imagen = NuevaImagen(ANCHO_SUGERENCIA, ALTO_SUGERENCIA, COLOR_FONDO_SUGERENCIA);
    Pic_Sugerencia.X = 0;
    Pic_Sugerencia.Y = AltoVentana - ALTO_SUGERENCIA;
    {
        QPainter p(&Pic_Sugerencia.Imagen);
        p.setPen(QColor(0x80, 0x80, 0x80));
        p.drawRect(0, 0, ANCHO_SUGERENCIA - 1, ALTO_SUGERENCIA - 1);
        DibujaMasAyuda(p);
        DibujaCerrarSuge(p);
        DibujaLineas(p, TextoInformacion[n]);
    }
    TemaAyuda = TemaInformacion[n];
    TextoActual = n;
    Pic_Sugerencia.Visible = true;
    RefrescaMesa();
}

void CierraSugerencia() {
    if (TemaAyuda == TEMA_AVISO_CIERRE) {
        VentanaInformacion = 2;
        Pic_Sugerencia.Visible = false;
        RefrescaMesa();
        return;
    }
    MuestraInformacion(ENTRADA_AVISO_CIERRE);
}

bool PulsaSugerencia(int x, int y) {
    const CajaImagen& c = Pic_Sugerencia;
    if (!c.Visible || !Dentro(x, y, c.X, c.Y, c.Ancho(), c.Alto())) return false;
    const int px = x - c.X, py = y - c.Y;
    if (Dentro(px, py, CERRAR_SUGE_X, CERRAR_SUGE_Y, LADO_CERRAR_SUGE, LADO_CERRAR_SUGE))
        CierraSugerencia();
    else if (Dentro(px, py, MAS_AYUDA_X, MAS_AYUDA_Y, ANCHO_MAS_AYUDA, ALTO_MAS_AYUDA))
        AbreAyuda(TemaAyuda);
    return true;
}
