// The signs between partners. Each seat keeps a queue of gestures that tell its cards; its gaze
// wanders (down, aside, up, at the partner), and when both partners look at each other the seat
// makes the next gesture. The partner always sees it; each rival may catch it, more often the
// better it plays against the one signalling. What a seat has seen is what its decisions may use.
// The faces of seats 1 to 3 are drawn where their cards lie, so the person can read them too.
#include "frame/Ciclo.h"
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/JugadorMus.h"
#include "games/mus/Mus.h"
#include "platform/Bomba.h"
#include "platform/CajaImagen.h"
#include "table/Dibujo.h"
#include "table/GblMesa.h"

#include <QFile>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <map>
#include <tuple>

namespace {

// ---- How long a gaze stays, by level: a good player looks up soon and holds the look ----
constexpr double QUEDA_ABAJO_BASE = 100, QUEDA_ABAJO_POR_NIVEL = 0.9;
constexpr double QUEDA_LADO_POR_NIVEL = 0.2, QUEDA_ARRIBA_POR_NIVEL = 0.2;
constexpr double QUEDA_COMPANERO_POR_NIVEL = 0.5;
constexpr int PAUSA_MIRA_COMPANERO = 250, PAUSA_GESTO = 600;

// ---- The sheet of faces: cells of 170 by 141, ten to a row, numbered from 1 ----
constexpr int ANCHO_CARA = 170, ALTO_CARA = 141, CELDAS_POR_FILA = 10;
constexpr int CELDA_CABEZA = 51, CELDA_SEAT_1 = 52, CELDA_SEAT_3 = 53;
constexpr int CELDA_MELENA_1 = 54, CELDA_MELENA_2 = 55, CELDA_MARCO = 70;
constexpr int LADO_VERTICAL = 141, RECORTE_VERTICAL = 14;

CajaImagen Pic_BmpSenas;
bool HojaBuscada = false;

// The sheet keeps its clear ground: the head and its overlays are laid one over the other.
const QImage& HojaSenas() {
    if (!HojaBuscada) {
        HojaBuscada = true;
        const QString ruta = QStringLiteral(":/assets/Senas.png");
        const QString doble = QStringLiteral(":/assets/Senas@2x.png");
        QImage hoja(EscalaMesa > 1 && QFile::exists(doble) ? doble : ruta);
        if (!hoja.isNull()) {
            hoja = hoja.convertToFormat(QImage::Format_ARGB32_Premultiplied);
            hoja.setDevicePixelRatio(double(hoja.width()) / (ANCHO_CARA * CELDAS_POR_FILA));
        }
        Pic_BmpSenas.Imagen = hoja;
    }
    return Pic_BmpSenas.Imagen;
}

bool EsMujer(int seat) {
    return VozSexo[seat] == VOZ_MUJER;
}

// The cell of the sheet that draws a gesture or a gaze on the head; 0 for none.
int CeldaDeSena(int seat, int codigo) {
    switch (codigo) {
    case SENA_PAR:
        return EsMujer(seat) ? 22 : 21;
    case SENA_PUNTO_29:
        return 10 + std::clamp(seat, 1, 3);
    case SENA_PUNTO_30:
        return 13 + std::clamp(seat, 1, 3);
    case SENA_MANDO_CORTAR:
        return EsMujer(seat) ? 18 : 17;
    case SENA_MANDO_ENVIDAR:
        return EsMujer(seat) ? 20 : 19;
    case SENA_MIRADA + MIRADA_COMPANERO:
        return 0;
    default:
        return codigo;
    }
}

void PonCelda(QPainter& p, const QImage& hoja, int celda) {
    if (celda <= 0) return;
    const double e = hoja.devicePixelRatio();
    const int col = (celda - 1) % CELDAS_POR_FILA, fila = (celda - 1) / CELDAS_POR_FILA;
    const QRectF origen(col * ANCHO_CARA * e, fila * ALTO_CARA * e, ANCHO_CARA * e, ALTO_CARA * e);
    p.drawImage(QRectF(0, 0, ANCHO_CARA, ALTO_CARA), hoja, origen);
}

// The face of the seat, upright, 170 by 141 table pixels.
QImage ComponeCara(int seat, int codigo) {
    const QImage& hoja = HojaSenas();
    const double e = EscalaMesa;
    QImage cara(int(ANCHO_CARA * e), int(ALTO_CARA * e), QImage::Format_ARGB32_Premultiplied);
    cara.setDevicePixelRatio(e);
    cara.fill(Qt::transparent);
    QPainter p(&cara);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const bool melena = EsMujer(seat) && codigo != SENA_PAR && codigo != SENA_MANDO_CORTAR &&
                        codigo != SENA_MANDO_ENVIDAR;
    if (melena) PonCelda(p, hoja, CELDA_MELENA_1); // the hair falls behind the head
    PonCelda(p, hoja, CELDA_CABEZA);
    if (seat == 1) PonCelda(p, hoja, CELDA_SEAT_1);
    if (seat == 3) PonCelda(p, hoja, CELDA_SEAT_3);
    if (melena) PonCelda(p, hoja, CELDA_MELENA_2);
    PonCelda(p, hoja, CeldaDeSena(seat, codigo));
    PonCelda(p, hoja, CELDA_MARCO);
    return cara;
}

// The face as it lies on the table: upright for seat 2, cut or turned for the sides. A face is
// drawn every time a gaze moves, so each is composed once and kept.
const QImage& CaraALaMesa(int seat, int codigo) {
    struct Clave {
        int Seat, Codigo, Sexo, Imagen;
        int Escala;
        bool operator<(const Clave& o) const {
            return std::tie(Seat, Codigo, Sexo, Imagen, Escala) <
                   std::tie(o.Seat, o.Codigo, o.Sexo, o.Imagen, o.Escala);
        }
    };
    static std::map<Clave, QImage> Caras;
    const Clave clave{seat, codigo, VozSexo[seat], seat == 2 ? 0 : ImagenContrarios, EscalaMesa};
    if (const auto hecha = Caras.find(clave); hecha != Caras.end()) return hecha->second;
    QImage cara = ComponeCara(seat, codigo);
    if (seat != 2) {
        if (ImagenContrarios == 1) {
            cara = cara.copy(int(RECORTE_VERTICAL * EscalaMesa), 0, int(LADO_VERTICAL * EscalaMesa),
                             int(ALTO_CARA * EscalaMesa));
        } else {
            // Turned a quarter to face the table; the seat on the left is the mirror of the right.
            cara = cara.transformed(QTransform().rotate(90));
            if (seat == 1) cara = cara.mirrored(true, false);
        }
        cara.setDevicePixelRatio(EscalaMesa);
    }
    return Caras.emplace(clave, cara).first->second;
}

QRect LugarCara(int seat) {
    if (seat == 2) return QRect(CentroMesaX - ANCHO_CARA / 2, 0, ANCHO_CARA, ALTO_CARA);
    const int x = seat == 1 ? 0 : AnchoMesa - LADO_VERTICAL;
    if (ImagenContrarios == 1)
        return QRect(x, CentroVentanaY - LADO_VERTICAL / 2, LADO_VERTICAL, LADO_VERTICAL);
    return QRect(x, CentroVentanaY - ANCHO_CARA / 2, ALTO_CARA, ANCHO_CARA);
}

// What lies under the face: its own place and the cards of the seat, which it hides.
void BorraBajoCara(int seat, const QRect& lugar) {
    QRect zona = lugar;
    const bool tumbada = OrientacionSeat[seat] == 2 || OrientacionSeat[seat] == 4;
    const int total = NumCartas[seat][1];
    for (int pos = 1; pos <= total; ++pos) {
        PosicionCarta(seat, pos, total);
        zona = zona.united(QRect(CartaX, CartaY, tumbada ? ALTO_CARTA : ANCHO_CARTA,
                                 tumbada ? ANCHO_CARTA : ALTO_CARTA));
    }
    BorraZona(zona.x(), zona.y(), zona.width(), zona.height());
}

// ---- The queue of each seat ----

int CodigoPares(const ValorMano& v) {
    int codigo = 0;
    if (v.Pares == 0 && v.RangoJuego == 0) codigo = SENA_NADA;
    if (v.Pares >= 2021 && v.Pares <= 2987) codigo = SENA_PAR;
    if (v.Pares >= 2021 && v.Pares <= 2098) codigo = SENA_PAR_ASES;
    if (v.Pares >= 2910 && v.Pares <= 2987) codigo = SENA_PAR_REYES;
    // Plain medias are told only in the lances, from Chicas on.
    if (v.Pares >= 3010 && v.Pares <= 3980 && FaseJuego == FASE_MUS_ENVITE &&
        LanceActual >= LANCE_CHICA)
        codigo = SENA_MEDIAS;
    if (v.Pares >= 3010 && v.Pares <= 3090) codigo = SENA_MEDIAS_ASES;
    if (v.Pares >= 3900 && v.Pares <= 3980) codigo = SENA_MEDIAS_REYES;
    if (v.Pares >= 4000 && v.Pares <= 4990) codigo = SENA_DUPLES;
    return codigo;
}

// After duples: which duples. Four kings count as kings, four aces as aces.
int CodigoDuples(const ValorMano& v) {
    int codigo = 0;
    if (v.Pares >= 4910 && v.Pares <= 4990) codigo = SENA_PAR_REYES;
    if (v.Pares % 100 == 0 && v.Pares != 4900) codigo = SENA_PAR_ASES;
    return codigo;
}

int CodigoJuego(const ValorMano& v) {
    int codigo = 0;
    if (v.TotalJuego > 31) codigo = SENA_JUEGO;
    if (v.TotalJuego == 31) codigo = SENA_31;
    if (v.Punto == 29) codigo = SENA_PUNTO_29;
    if (v.Punto == 30) codigo = SENA_PUNTO_30;
    return codigo;
}

void LlenaCola(int seat) {
    SenasDeJugador& s = SenasJugador[seat];
    const ValorMano v = ValoresMusActual;
    int n = 0;
    auto anade = [&s, &n](int codigo) {
        if (codigo != 0 && n < 4) s.Cola[++n] = codigo;
    };
    for (int& c : s.Cola) c = 0;
    const int pares = CodigoPares(v);
    anade(pares);
    if (pares == SENA_DUPLES) anade(CodigoDuples(v));
    anade(CodigoJuego(v));
    if (FaseJuego == FASE_MUS_MUS && MandaCortar) anade(SENA_MANDO_CORTAR);
    if (FaseJuego == FASE_MUS_ENVITE && MandaEnvidar) anade(SENA_MANDO_ENVIDAR);
    if (n == 0)
        s.Cursor = 0;
    else if (s.Cursor == 0 || s.Cursor > n)
        s.Cursor = 1;
}

// What PiensaMus leaves for the seat on turn, kept while the other seats are thought for.
struct Resultados {
    bool Cortar, MandaC, MandaE, Marca[5];
    int Apuesta;
    bool PorDos, Sube, Hay, Yo, Pareja, NoDos, Sigo;
    ValorMano Valores;
    float Porcentajes[6];
    int Conteo[4][6];
    int TotCJ, TotCP;
    PensamientoMus Pens;
};

Resultados Guarda() {
    Resultados r{QuiereCortar,
                 MandaCortar,
                 MandaEnvidar,
                 {},
                 ApuestaOrdenador,
                 HablaPorDosOrdenador,
                 PuedeSubir,
                 HayEnvite,
                 SoloYo,
                 SoloPareja,
                 NoPorDos,
                 SigoCompanero,
                 ValoresMusActual,
                 {},
                 {},
                 TotalConJuego,
                 TotalConPunto,
                 Pensado};
    std::copy(MarcaDescarte, MarcaDescarte + 5, r.Marca);
    std::copy(PorcentajeMejores, PorcentajeMejores + 6, r.Porcentajes);
    for (int i = 0; i < 4; ++i)
        std::copy(ConteoCombinaciones[i], ConteoCombinaciones[i] + 6, r.Conteo[i]);
    return r;
}

void Restaura(const Resultados& r) {
    QuiereCortar = r.Cortar;
    MandaCortar = r.MandaC;
    MandaEnvidar = r.MandaE;
    std::copy(r.Marca, r.Marca + 5, MarcaDescarte);
    ApuestaOrdenador = r.Apuesta;
    HablaPorDosOrdenador = r.PorDos;
    PuedeSubir = r.Sube;
    HayEnvite = r.Hay;
    SoloYo = r.Yo;
    SoloPareja = r.Pareja;
    NoPorDos = r.NoDos;
    SigoCompanero = r.Sigo;
    ValoresMusActual = r.Valores;
    std::copy(r.Porcentajes, r.Porcentajes + 6, PorcentajeMejores);
    for (int i = 0; i < 4; ++i) std::copy(r.Conteo[i], r.Conteo[i] + 6, ConteoCombinaciones[i]);
    TotalConJuego = r.TotCJ;
    TotalConPunto = r.TotCP;
    Pensado = r.Pens;
}

} // namespace

bool VioSena(int observador, int codigo, int observado) {
    if (observador < 1 || observador > 4 || observado < 1 || observado > 4) return false;
    const int* visto = SenasJugador[observador].Visto[observado];
    for (int slot = 1; slot <= 4; ++slot)
        if (visto[slot] == codigo) return true;
    return false;
}

void LimpiaSenas() {
    for (auto& s : SenasJugador) s = SenasDeJugador{};
}

void PreparaSenas() {
    if (JugadorActual < 1 || JugadorActual > 4) return;
    const Resultados antes = Guarda();
    int seat = JugadorActual;
    for (int vuelta = 0; vuelta < 4; ++vuelta, SiguienteJugador(seat)) {
        PiensaMus(seat);
        LlenaCola(seat);
    }
    Restaura(antes);
}

void GestosSenas() {
    bool antes[5];
    for (int s = 1; s <= 4; ++s) {
        antes[s] = SenasVisibles[s];
        SenasVisibles[s] =
            CartasVisibles[s] == 1 && FaseJuego <= FASE_MUS_ENVITE && s != 4 && ManoViva;
    }
    for (int s = 1; s <= 4; ++s)
        if (SenasVisibles[s] && !antes[s]) DibujaSena(s, SENA_MIRADA + SenasJugador[s].Mirada);
    for (int seat = 1; seat <= 4; ++seat) {
        SenasDeJugador& s = SenasJugador[seat];
        const int L = std::clamp(NivelJugador[seat], 0, 100);
        // Paso 1 and 2. The gaze moves on unless it stays, and a seat in the middle of its
        // queue goes on looking at its partner.
        const int queda[5] = {0, Redondea(QUEDA_ABAJO_BASE - QUEDA_ABAJO_POR_NIVEL * L),
                              Redondea(QUEDA_LADO_POR_NIVEL * L),
                              Redondea(QUEDA_ARRIBA_POR_NIVEL * L),
                              Redondea(QUEDA_COMPANERO_POR_NIVEL * L)};
        const int tirada = Ent(Rnd() * 100);
        if (tirada > queda[s.Mirada] && !(s.Mirada == MIRADA_COMPANERO && s.Cursor > 1)) {
            s.Mirada = s.Mirada % 4 + 1;
            // Paso 3. The face shows the new gaze.
            if (seat != 4) {
                DibujaSena(seat, SENA_MIRADA + s.Mirada);
                if (s.Mirada == MIRADA_COMPANERO) Pausa(PAUSA_MIRA_COMPANERO);
            }
        }
        // Paso 4. Partners looking at each other: the next gesture of the queue.
        const int companero = CompaneroDe[seat];
        if (s.Mirada == MIRADA_COMPANERO && SenasJugador[companero].Mirada == MIRADA_COMPANERO &&
            s.Cursor != 0) {
            const int c = s.Cola[s.Cursor];
            if (seat != 4) {
                DibujaSena(seat, c);
                Pausa(PAUSA_GESTO);
                DibujaSena(seat, SENA_MIRADA + MIRADA_COMPANERO);
            }
            for (int r = 1; r <= 4; ++r) {
                if (ParejaDe[r] == ParejaDe[seat]) continue;
                const int tirada1a100 = 1 + Ent(Rnd() * 100);
                if (tirada1a100 < DivEntera(NivelJugador[r] - L + 100, 2))
                    SenasJugador[r].Visto[seat][s.Cursor] = c;
            }
            SenasJugador[companero].Visto[seat][s.Cursor] = c;
            s.Cursor = s.Cursor == 4 || s.Cola[s.Cursor + 1] == 0 ? 1 : s.Cursor + 1;
        }
        if (!PausasACero) BombeaEventos();
        if (!PartidaViva) return;
    }
}

void DibujaCaras() {
    for (int s = 1; s <= 3; ++s) DibujaSena(s, SENA_MIRADA + SenasJugador[s].Mirada);
}

void DibujaSena(int seat, int codigo) {
    if (seat < 1 || seat > 3 || !SenasVisibles[seat] || Pic_Mesa.Imagen.isNull()) return;
    if (HojaSenas().isNull()) return;
    const QImage& cara = CaraALaMesa(seat, codigo);
    const QRect lugar = LugarCara(seat);
    BorraBajoCara(seat, lugar);
    AvisaEscritura(
        Pic_Mesa.Imagen,
        QRect(lugar.topLeft(), QSize(qRound(cara.width() / cara.devicePixelRatio()) + 1,
                                     qRound(cara.height() / cara.devicePixelRatio()) + 1)));
    QPainter p(&Pic_Mesa.Imagen);
    p.drawImage(lugar.topLeft(), cara);
    p.end();
    RefrescaMesa();
}
