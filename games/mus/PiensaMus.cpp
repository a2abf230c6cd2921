// The computer player of the Mus: what a seat would do in each phase, for a computer seat, for the
// tutor and for the turn of the person left to the program. It changes no cards; its answer
// stays in QuiereCortar, MarcaDescarte, ApuestaOrdenador and their sisters.
//
// It reads four kinds of knowledge and keeps them apart: its own cards, how they stand against
// every hand of the deck, the signs it has seen, and the true hands of the four seats. The last
// enter a decision only behind a gate of level and chance, so a strong seat plays as if it read
// the table well and a weak one as if it guessed.
#include "frame/TrufalBas.h"
#include "frame/TrufalGbl.h"
#include "games/mus/JugadorMus.h"
#include "games/mus/Mus.h"

#include <algorithm>

namespace {

// ---- What a hand is worth aiming at (by character: conservador, medio, agresivo) ----
constexpr int GRANDE_DE_INTERES[4] = {0, 9900, 9930, 9960}; // a Grande worth playing for
constexpr int NIVEL_SIN_PAREJA = 55;  // below it a seat that speaks first counts its partner less
constexpr int NIVEL_LEE_RIVALES = 90; // above it a seat reads the rivals' juego signs

// ---- Cutting the mus ----
constexpr int CORTA_CON_PORCENTAJE[4] = {0, 35, 25, 15}; // cut when fewer hands beat the aim
constexpr int CORTA_POR_RONDA = 5;       // each round of discards makes a seat readier to cut
constexpr int DESESPERADO_LE_FALTAN = 6; // the rivals are this (+ character) stones from the game
constexpr int DESESPERADO_VENTAJA = 10;  // ...and lead by more than this
// A bluff on a middling par: between these values of Pares.
constexpr int FAROL_PARES_DESDE[4] = {0, 2400, 2200, 2000};
constexpr int FAROL_PARES_HASTA[4] = {0, 3900, 3800, 3700};
constexpr int FAROL_VENTAJA = 35; // a bluff only when the true hands are this close

// ---- Discards: the counts the aim at Juego would leave the other three cards on ----
constexpr int OBJETIVOS_JUEGO_4_REYES[] = {21, 30, 29, 28, 27, 26, 25, 24};
constexpr int OBJETIVOS_JUEGO_8_REYES[] = {30, 21, 24, 25, 26, 27};

int PorCaracter(const int (&tabla)[4], int c) {
    return tabla[std::clamp(c, 1, 3)];
}

int MiPareja(int seat) {
    return ParejaDe[seat];
}

int Rivales(int seat) {
    return 3 - ParejaDe[seat];
}

bool ParejaVio(int seat, int codigo) {
    return VioSena(seat, codigo, CompaneroDe[seat]);
}

// ---- Every call: Paso 3 to 6 ----

void Posiciones(PensamientoMus& p) {
    const int seat = p.Seat;
    int orden[5] = {}, s = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta, SiguienteJugador(s)) orden[s] = vuelta;
    p.ManoPareja = orden[seat] < orden[CompaneroDe[seat]];
    p.Anterior = seat;
    AnteriorJugador(p.Anterior);
    p.Siguiente = seat;
    SiguienteJugador(p.Siguiente);
}

void CalculaInteres(PensamientoMus& p) {
    const ValorMano& v = ValoresMusActual;
    const int L = p.Nivel, C = p.Caracter, seat = p.Seat;
    p.Interes[LANCE_GRANDE] = p.Interes[LANCE_CHICA] = 1;
    p.Interes[LANCE_PARES] = v.ClasePares;
    p.Interes[LANCE_JUEGO] = v.TotalJuego == 31 ? 3 : 2;
    const int Z = p.ManoPareja && L < NIVEL_SIN_PAREJA ? 1 : 2;
    auto muestra = [seat](int codigo) { return ParejaVio(seat, codigo); };
    int& grandes = p.Interes[LANCE_GRANDE];
    if (v.Grande >= PorCaracter(GRANDE_DE_INTERES, C)) ++grandes;
    if (muestra(SENA_PAR_ASES) && !muestra(SENA_DUPLES)) grandes += Z;
    if (muestra(SENA_MEDIAS_ASES)) grandes += 2 * Z;
    if (muestra(SENA_PAR_ASES) && muestra(SENA_DUPLES)) grandes += 3 * Z;
    int& chicas = p.Interes[LANCE_CHICA];
    if (v.Chica >= PorCaracter(GRANDE_DE_INTERES, C) && !p.ManoPareja) ++chicas;
    if (muestra(SENA_PAR_REYES) && !muestra(SENA_DUPLES)) chicas += Z;
    if (muestra(SENA_MEDIAS_REYES)) chicas += 2 * Z;
    if (muestra(SENA_PAR_REYES) && muestra(SENA_DUPLES)) chicas += 3 * Z;
    // The partner's pares: a seat after its partner leaves the lance to it.
    int P = 0;
    if (muestra(SENA_PAR) || muestra(SENA_PAR_ASES) || muestra(SENA_PAR_REYES)) P = 1;
    if (muestra(SENA_MEDIAS) || muestra(SENA_MEDIAS_ASES) || muestra(SENA_MEDIAS_REYES)) P = 2;
    if (muestra(SENA_DUPLES)) P = 3;
    int& pares = p.Interes[LANCE_PARES];
    if (!p.ManoPareja) pares -= P;
    if (P < 2) pares += v.ClasePares;
    int& juego = p.Interes[LANCE_JUEGO];
    if (v.TotalJuego == 0 && muestra(SENA_JUEGO)) juego -= Z;
    if (v.TotalJuego > 31) {
        if (muestra(SENA_JUEGO)) juego -= Z;
        if (muestra(SENA_31)) juego -= 2 * Z;
    }
    if (L > NIVEL_LEE_RIVALES) {
        if (VioSena(seat, SENA_JUEGO, p.Anterior) || VioSena(seat, SENA_JUEGO, p.Siguiente))
            juego += 1;
        if (VioSena(seat, SENA_31, p.Anterior) || VioSena(seat, SENA_31, p.Siguiente)) juego += 2;
    }
}

// The key the aims are ordered by: interest first, then how few hands beat this one.
int ClaveObjetivo(const PensamientoMus& p, int lance) {
    return p.Interes[lance] * 1000 + (100 - Redondea(PorcentajeMejores[lance]));
}

void EligeObjetivos(PensamientoMus& p) {
    const ValorMano& v = ValoresMusActual;
    int fuerte = LANCE_GRANDE;
    for (int l = LANCE_GRANDE; l <= LANCE_JUEGO; ++l) {
        p.Elegido[l] = p.Interes[l] > 1;
        if (l == LANCE_JUEGO && v.TotalJuego == 0) continue;
        if (Redondea(PorcentajeMejores[l]) < Redondea(PorcentajeMejores[fuerte])) fuerte = l;
    }
    p.Elegido[0] = false;
    if (!std::any_of(p.Elegido + 1, p.Elegido + 5, [](bool e) { return e; }))
        p.Elegido[fuerte] = true;
    if (p.Elegido[LANCE_GRANDE] && p.Elegido[LANCE_CHICA]) {
        const int g = p.Interes[LANCE_GRANDE], c = p.Interes[LANCE_CHICA];
        const bool quedaGrande =
            g > c || (g == c && PorcentajeMejores[LANCE_GRANDE] <= PorcentajeMejores[LANCE_CHICA]);
        p.Elegido[quedaGrande ? LANCE_CHICA : LANCE_GRANDE] = false;
    }
    if (p.Elegido[LANCE_CHICA] && p.Elegido[LANCE_JUEGO]) {
        if (p.Interes[LANCE_CHICA] >= p.Interes[LANCE_JUEGO])
            p.Elegido[LANCE_JUEGO] = false;
        else
            p.Elegido[LANCE_CHICA] = false;
    }
    // The aims from the best: a stable order by the key, the last being the best.
    int lista[4], n = 0;
    for (int l = LANCE_GRANDE; l <= LANCE_JUEGO; ++l)
        if (p.Elegido[l]) lista[n++] = l;
    std::stable_sort(lista, lista + n,
                     [&p](int a, int b) { return ClaveObjetivo(p, a) < ClaveObjetivo(p, b); });
    p.NumObjetivos = n;
    for (int i = 0; i < n; ++i) p.Objetivos[i + 1] = lista[n - 1 - i];
}

// ---- The true hands ----

// Who takes the lance by the values alone, going round from the mano (the real 31 plays no part
// here). 0 when nobody holds it.
int GanadorPorValores(int lance) {
    int mejor = 0, seat = JugadorMano;
    for (int vuelta = 0; vuelta < 4; ++vuelta, SiguienteJugador(seat)) {
        const int valor = ValorEnLance(ValoresMus[seat], lance);
        if ((lance == LANCE_JUEGO || lance == LANCE_PUNTO || lance == LANCE_PARES) && valor == 0)
            continue;
        if (mejor == 0) {
            mejor = seat;
            continue;
        }
        const int suyo = ValorEnLance(ValoresMus[mejor], lance);
        if (lance == LANCE_JUEGO ? valor < suyo : valor > suyo) mejor = seat;
    }
    return mejor;
}

int PiedrasJuegoDe(const ValorMano& v) {
    if (v.TotalJuego == 0) return 0;
    return v.TotalJuego == 31 ? 3 : 2;
}

void ManosReales(PensamientoMus& p) {
    for (int s = 1; s <= 4; ++s) {
        EvaluaManoMus(s);
        ValoresMus[s] = ValoresMusActual;
    }
    EvaluaManoMus(p.Seat);
    bool hayJuego = false;
    for (int s = 1; s <= 4; ++s) hayJuego = hayJuego || ValoresMus[s].TotalJuego != 0;
    p.PiedrasReal[1] = p.PiedrasReal[2] = 0;
    for (int l = LANCE_GRANDE; l <= LANCE_PUNTO; ++l) {
        p.GanadorReal[l] = 0;
        if (l == LANCE_PUNTO && hayJuego) continue;
        const int ganador = GanadorPorValores(l);
        if (ganador == 0) continue;
        const int pareja = ParejaDe[ganador];
        const ValorMano &a = ValoresMus[ganador], &b = ValoresMus[CompaneroDe[ganador]];
        int piedras = 1;
        if (l == LANCE_PARES) piedras = a.ClasePares + b.ClasePares;
        if (l == LANCE_JUEGO) piedras = PiedrasJuegoDe(a) + PiedrasJuegoDe(b);
        p.GanadorReal[l] = pareja;
        p.PiedrasReal[pareja] += piedras;
    }
    const int mias = p.PiedrasReal[MiPareja(p.Seat)], suyas = p.PiedrasReal[Rivales(p.Seat)];
    const int total = std::max(1, mias + suyas);
    p.VentajaReal = Redondea(100.0 * mias / total) - Redondea(100.0 * suyas / total);
    p.RivalesNoLlegan = PiedrasPareja(Rivales(p.Seat)) + suyas < PiedrasJuego;
}

// ---- Deciding the mus ----

// Rows of the last table of the decision: each ends it when it matches.
bool DecisionEspecial(const PensamientoMus& p, bool& corta) {
    const ValorMano& v = ValoresMusActual;
    const int seat = p.Seat, L = p.Nivel, C = p.Caracter;
    const double R = p.R;
    // A seat with medias of kings asks to play the mus, to envite when the lances come.
    if (p.ManoPareja && v.Pares >= 3910 && v.Pares <= 3960 &&
        !VioSena(CompaneroDe[seat], SENA_MEDIAS_REYES, seat) && R > 0.5 && L > 70) {
        corta = false;
        PlanMus[seat] = 2;
        return true;
    }
    // Good pares with juego, or a 31 alone: the partner cuts for it, so the rivals can't change.
    if (p.ManoPareja && R > 0.65 && L > 60 &&
        ((v.Pares > 2900 && v.TotalJuego != 0) || (v.Pares == 0 && v.TotalJuego == 31))) {
        bool manoFuerte = false;
        if (p.Anterior == JugadorMano)
            for (int codigo : {SENA_31, SENA_PAR_REYES, SENA_MEDIAS_REYES, SENA_DUPLES})
                manoFuerte = manoFuerte || VioSena(seat, codigo, p.Anterior);
        if (!manoFuerte) {
            corta = false;
            MandaCortar = true;
            PlanMus[seat] = 3;
        }
        return true;
    }
    if (ParejaVio(seat, SENA_MANDO_CORTAR)) {
        corta = true;
        PlanMus[seat] = 4;
        return true;
    }
    if (!p.ManoPareja && v.Pares >= 3900 && v.TotalJuego == 31 &&
        !VioSena(seat, SENA_31, p.Anterior) && R > 0.25 && L > 90 && C >= 2) {
        if (ValoresMus[p.Anterior].TotalJuego != 31) {
            corta = true;
            PlanMus[seat] = 5;
        }
        return true;
    }
    return false;
}

bool DecideCorte(PensamientoMus& p) {
    const ValorMano& v = ValoresMusActual;
    const int seat = p.Seat, L = p.Nivel, C = p.Caracter;
    const double R = p.R;
    PlanMus[seat] = 0;
    bool corta = true;
    // Paso 1 and 2. The best aim: a weak hand asks for cards, and less so every round.
    const int B = p.Objetivos[1];
    if (PorcentajeMejores[B] > PorCaracter(CORTA_CON_PORCENTAJE, C) + CORTA_POR_RONDA * NumeroBaza)
        corta = false;
    // Paso 3. Aiming at a juego it hasn't got.
    if (B == LANCE_JUEGO && v.TotalJuego == 0) corta = false;
    // Paso 4. The rivals are about to win: an all-or-nothing hand cuts to go for órdago.
    const int suyas = PiedrasPareja(Rivales(seat)), mias = PiedrasPareja(MiPareja(seat));
    if (PiedrasJuego - suyas < C + DESESPERADO_LE_FALTAN && suyas - mias > DESESPERADO_VENTAJA) {
        if (L > 100 - 10 * C && v.Pares > 2100 && v.TotalJuego != 0 && v.TotalJuego != 33 &&
            ((p.ManoPareja && v.TotalJuego != 31) || (!p.ManoPareja && v.TotalJuego == 31))) {
            corta = true;
            PlanMus[seat] = 1;
            if (p.VentajaReal > 20 && p.RivalesNoLlegan && L > 95 && C == 3 && R > 0.2)
                PlanMus[seat] = 0;
        }
        return corta;
    }
    // Paso 5. The particular hands.
    if (DecisionEspecial(p, corta)) return corta;
    // Paso 6. A middling par cuts to bluff, when the true hands are close.
    if (v.Pares > PorCaracter(FAROL_PARES_DESDE, C) &&
        v.Pares < PorCaracter(FAROL_PARES_HASTA, C) && v.TotalJuego != 31 && p.FarolPosible &&
        p.VentajaReal > -FAROL_VENTAJA && p.VentajaReal < FAROL_VENTAJA) {
        if (R > 0.25 - L / 500.0 && p.VentajaReal > 0) {
            corta = true;
            PlanMus[seat] = 6;
        } else if (R > 0.55 + L / 500.0 && p.VentajaReal <= 0) {
            corta = true;
            PlanMus[seat] = 7;
        }
        return corta;
    }
    // Paso 7. The true hands give this pair Pares and Juego by a wide margin.
    const int U = Redondea((100 - L) * 0.4 + 30) - (p.ManoPareja ? 10 : 0);
    bool G = p.GanadorReal[LANCE_PARES] == MiPareja(seat) &&
             p.GanadorReal[LANCE_JUEGO] == MiPareja(seat);
    if (p.ManoPareja && (v.Pares == 0 || v.TotalJuego == 0)) G = false;
    if (G && p.VentajaReal > U) {
        if (p.ManoPareja && p.VentajaReal > 70 && R > 0.27) {
            corta = false;
            MandaCortar = true;
            PlanMus[seat] = 8;
        } else {
            corta = true;
            PlanMus[seat] = 9;
        }
    }
    return corta;
}

// ---- Choosing the discards ----

void EligeDescartes(const PensamientoMus& p) {
    const ValorMano& v = ValoresMusActual;
    const auto& mano = CartasJugador[p.Seat][1];
    // The cards by grade, lowest first.
    int orden[4] = {1, 2, 3, 4};
    auto grado = [&mano](int pos) { return OrdenMus(mano[pos][CAMPO_VALOR]); };
    auto puntos = [&mano](int pos) { return int(PuntosValor[mano[pos][CAMPO_VALOR]]); };
    std::stable_sort(orden, orden + 4, [&](int a, int b) { return grado(a) < grado(b); });
    int tirar[5] = {}, cuantas[5] = {};
    auto primeraDeGrado = [&](int g) {
        for (int pos : orden)
            if (grado(pos) == g) return pos;
        return 0;
    };
    for (int i = 1; i <= p.NumObjetivos; ++i) {
        const int objetivo = p.Objetivos[i], extra = i == 1 ? 1 : 0;
        switch (objetivo) {
        case LANCE_GRANDE:
            for (int k = 0; k < 4; ++k) {
                tirar[orden[k]] += 4 - k + extra;
                if (grado(orden[k]) < 10) ++cuantas[LANCE_GRANDE];
            }
            break;
        case LANCE_CHICA:
            for (int k = 0; k < 4; ++k) {
                tirar[orden[k]] += k + 1 + extra;
                if (grado(orden[k]) > 1) ++cuantas[LANCE_CHICA];
            }
            break;
        case LANCE_PARES: {
            // The digits of Pares name the odd cards: the third (and for a par the fourth).
            const int tercera = v.Pares / 10 % 10 + 1, cuarta = v.Pares % 10 + 1;
            if (v.ClasePares >= 2) {
                if (const int pos = primeraDeGrado(tercera)) tirar[pos] += 4 + extra;
                cuantas[LANCE_PARES] += 1;
            } else if (v.ClasePares == 1) {
                if (const int pos = primeraDeGrado(tercera)) tirar[pos] += 3 + extra;
                if (const int pos = primeraDeGrado(cuarta)) tirar[pos] += 4 + extra;
                cuantas[LANCE_PARES] += 2;
            }
            break;
        }
        case LANCE_JUEGO: {
            int total = 0;
            for (int pos = 1; pos <= 4; ++pos) total += puntos(pos);
            bool hecho = false;
            auto prueba = [&](int meta) {
                for (int pos : orden)
                    if (total - puntos(pos) == meta) {
                        tirar[pos] += 4;
                        cuantas[LANCE_JUEGO] = 1;
                        return true;
                    }
                return false;
            };
            if (TipoMus == 2) {
                for (int meta : OBJETIVOS_JUEGO_8_REYES)
                    if ((hecho = prueba(meta))) break;
            } else {
                for (int meta : OBJETIVOS_JUEGO_4_REYES)
                    if ((hecho = prueba(meta))) break;
            }
            if (hecho) break;
            int S = v.TotalJuego != 0 ? v.TotalJuego : v.Punto, n = 0;
            for (int k = 0; k < 4; ++k) {
                tirar[orden[k]] += 4 - k + extra;
                ++n;
                S -= grado(orden[k]);
                if (S >= 31 - 10 * n) break;
            }
            cuantas[LANCE_JUEGO] = n;
            break;
        }
        default:
            break;
        }
    }
    // The first aim says how many; all of them say which.
    int porDeseo[4] = {orden[0], orden[1], orden[2], orden[3]};
    std::stable_sort(porDeseo, porDeseo + 4, [&](int a, int b) { return tirar[a] > tirar[b]; });
    for (bool& marca : MarcaDescarte) marca = false;
    const int n = std::clamp(cuantas[p.Objetivos[1]], 0, 4);
    for (int k = 0; k < n; ++k) MarcaDescarte[porDeseo[k]] = true;
}

} // namespace

int ValorEnLance(const ValorMano& v, int lance) {
    switch (lance) {
    case LANCE_GRANDE:
        return v.Grande;
    case LANCE_CHICA:
        return v.Chica;
    case LANCE_PARES:
        return v.Pares;
    case LANCE_JUEGO:
        return v.RangoJuego;
    default:
        return v.Punto;
    }
}

int CaracterRivales(int seat) {
    const int a = seat == 0 ? 1 : (seat % 4) + 1, b = CompaneroDe[a];
    return std::max(1, Redondea((CaracterJugador[a] + CaracterJugador[b]) / 2.0));
}

void PiensaMus(int seat) {
    if (seat < 1 || seat > 4) return;
    // Paso 1. The tutor advises as the best player would.
    const int nivelAntes = NivelJugador[seat];
    if (TutorEnCurso) NivelJugador[seat] = 100;
    PensamientoMus& p = Pensado;
    p = PensamientoMus{};
    p.Seat = seat;
    p.Nivel = std::clamp(NivelJugador[seat], 0, 100);
    p.Caracter = std::clamp(CaracterJugador[seat], 1, 3);
    p.R = AzarFrase;
    // Paso 2. The hand against every hand of the deck.
    MandaCortar = MandaEnvidar = false;
    EvaluaManoMus(seat);
    ComparaManoMus();
    // Paso 3 to 6. Who speaks when, whether a bluff is on, and what the hand aims at.
    Posiciones(p);
    const int F = Redondea(p.Nivel * p.Caracter / 5.0) + 40 - 10 * CaracterRivales(seat);
    p.FarolPosible = 1 + Ent(p.R * 100) < F;
    CalculaInteres(p);
    EligeObjetivos(p);
    // The true hands, for the decisions that may use them.
    ManosReales(p);
    switch (FaseJuego) {
    case FASE_MUS_MUS:
        QuiereCortar = DecideCorte(p);
        if (OrdenCortar[seat]) MandaCortar = true;
        break;
    case FASE_MUS_DESCARTE:
        EligeDescartes(p);
        break;
    case FASE_MUS_ENVITE:
        if (LanceActual >= LANCE_GRANDE && LanceActual <= LANCE_PUNTO) {
            PermisosEnvite(seat);
            DecideEnviteOrdenador(seat);
        }
        break;
    default:
        break;
    }
    NivelJugador[seat] = nivelAntes;
}

void PermisosEnvite(int seat) {
    const LanceDeMus& lance = LanceMus[LanceActual];
    const int companero = CompaneroDe[seat];
    const bool declarado = LanceActual == LANCE_PARES || LanceActual == LANCE_JUEGO;
    const bool companeroSinLance = declarado && !lance.Tiene[companero];
    const bool companeroHablo = lance.Voz[companero] != VOZ_CALLA;
    PuedeSubir =
        !(JugadorMaxApuesta == companero && !lance.Acepta[seat]) && ApuestaMaxRonda != ORDAGO;
    HayEnvite = ApuestaMaxRonda > 0 && ApuestaPersona == ApuestaMaxRonda;
    SoloYo = (companeroHablo && lance.Acepta[companero] && HayEnvite) || companeroSinLance;
    SoloPareja = seat == JugadorMaxApuesta && HayEnvite && lance.Tiene[companero] &&
                 !lance.Acepta[companero];
    NoPorDos =
        TurnosDesdeSubida == 1 || (companeroHablo && !lance.Acepta[companero]) || companeroSinLance;
    SigoCompanero = lance.Acepta[companero] && TurnosDesdeSubida >= 3;
}
