// The table's sounds, synthesised from a few plain building blocks: decaying tones for the
// clicks and chimes, filtered noise for the card swishes and the riffle. Everything is computed
// in doubles and rounded once, with fixed seeds, so two runs give the same bytes.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace gensonidos {

constexpr int FRECUENCIA_MUESTREO = 44100;
constexpr int IdsSonidos[] = {4, 6, 7, 9, 10, 11, 12, 14, 20, 22, 24, 25, 26};
constexpr double PI = 3.14159265358979323846;

using Senal = std::vector<double>;

// Small xorshift generator: the noise must be the same on every machine and every run.
struct Azar {
    uint32_t Estado;
    double Siguiente() { // uniform in [-1, 1)
        Estado ^= Estado << 13;
        Estado ^= Estado >> 17;
        Estado ^= Estado << 5;
        return Estado / 2147483648.0 - 1.0;
    }
    double Entre(double a, double b) { return a + (b - a) * (Siguiente() + 1.0) / 2.0; }
};

inline int Muestras(double segundos) {
    return static_cast<int>(segundos * FRECUENCIA_MUESTREO);
}

inline Senal Silencio(double segundos) {
    return Senal(Muestras(segundos), 0.0);
}

// Adds fuente into destino from a time on, growing destino if needed.
inline void Mezcla(Senal& destino, const Senal& fuente, double inicio, double ganancia) {
    const size_t desde = Muestras(inicio);
    if (destino.size() < desde + fuente.size()) destino.resize(desde + fuente.size(), 0.0);
    for (size_t i = 0; i < fuente.size(); ++i) destino[desde + i] += ganancia * fuente[i];
}

// A quick rise (half a sine) and an exponential fall: the shape of anything struck.
inline double Golpe(double t, double ataque, double caida) {
    if (t < ataque) return std::sin(PI / 2 * t / ataque);
    return std::exp(-(t - ataque) / caida);
}

struct Parcial {
    double Razon, Nivel, Caida;
};

// A struck tone: partials at ratios of the fundamental, each dying at its own pace.
inline Senal Tono(double frecuencia, double segundos, std::initializer_list<Parcial> parciales) {
    Senal s = Silencio(segundos);
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / FRECUENCIA_MUESTREO;
        for (const Parcial& p : parciales)
            s[i] +=
                p.Nivel * Golpe(t, 0.0015, p.Caida) * std::sin(2 * PI * frecuencia * p.Razon * t);
    }
    return s;
}

// Noise through a state-variable band-pass whose centre slides exponentially; the envelope is
// a Golpe. Width is the filter's damping: higher is a wider, airier band.
inline Senal RuidoBanda(Azar& azar, double segundos, double centroInicial, double centroFinal,
                        double anchura, double ataque, double caida) {
    Senal s = Silencio(segundos);
    double bajo = 0, banda = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / FRECUENCIA_MUESTREO;
        const double centro = centroInicial * std::pow(centroFinal / centroInicial, t / segundos);
        const double f = 2 * std::sin(PI * centro / FRECUENCIA_MUESTREO);
        const double alto = azar.Siguiente() - bajo - anchura * banda;
        banda += f * alto;
        bajo += f * banda;
        s[i] = banda * Golpe(t, ataque, caida);
    }
    return s;
}

// Noise through a one-pole low-pass: the dull part of a tap or a thud.
inline Senal RuidoSordo(Azar& azar, double segundos, double corte, double caida) {
    Senal s = Silencio(segundos);
    const double a = 1 - std::exp(-2 * PI * corte / FRECUENCIA_MUESTREO);
    double y = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        y += a * (azar.Siguiente() - y);
        s[i] = y * Golpe(double(i) / FRECUENCIA_MUESTREO, 0.001, caida);
    }
    return s;
}

// A low tone whose pitch falls, softly saturated so small speakers still hear its overtones.
inline Senal Golpe_Grave(double desde, double hasta, double segundos, double caida) {
    Senal s = Silencio(segundos);
    double fase = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / FRECUENCIA_MUESTREO;
        fase += 2 * PI * (hasta + (desde - hasta) * std::exp(-t / 0.05)) / FRECUENCIA_MUESTREO;
        s[i] = std::tanh(2.2 * std::sin(fase)) * Golpe(t, 0.003, caida);
    }
    return s;
}

// Brings the peak to a level and fades both ends, so no sound starts or stops with a click.
inline void Termina(Senal& s, double pico) {
    double maximo = 0;
    for (double x : s) maximo = std::max(maximo, std::abs(x));
    if (maximo > 0)
        for (double& x : s) x *= pico / maximo;
    const int entrada = Muestras(0.001), salida = std::min<int>(Muestras(0.012), s.size() / 2);
    for (int i = 0; i < entrada && i < int(s.size()); ++i) s[i] *= double(i) / entrada;
    for (int i = 0; i < salida; ++i) s[s.size() - 1 - i] *= double(i) / salida;
}

inline Senal Campanilla(double frecuencia, double segundos, double caida) {
    return Tono(
        frecuencia, segundos,
        {{1, 1, caida}, {2, 0.28, caida / 2}, {3, 0.08, caida / 3}, {4.2, 0.04, caida / 5}});
}

// ---- The sounds, one a routine ----

inline Senal SonidoPasoSpin() { // 4: a tiny high tick
    Azar azar{0x0404};
    Senal s = Tono(2600, 0.03, {{1, 1, 0.005}, {2.4, 0.3, 0.003}});
    Mezcla(s, RuidoBanda(azar, 0.006, 5000, 5000, 1.0, 0.0005, 0.0015), 0, 0.3);
    Termina(s, 0.35);
    return s;
}

inline Senal SonidoSeleccion() { // 6: a crisp click
    Azar azar{0x0606};
    Senal s = Tono(1800, 0.05, {{1, 1, 0.009}, {2.7, 0.3, 0.004}});
    Mezcla(s, RuidoBanda(azar, 0.008, 4500, 4500, 1.2, 0.0005, 0.002), 0, 0.5);
    Termina(s, 0.5);
    return s;
}

inline Senal SonidoSuelta() { // 7: the same click, lower
    Azar azar{0x0707};
    Senal s = Tono(1100, 0.05, {{1, 1, 0.01}, {2.6, 0.25, 0.004}});
    Mezcla(s, RuidoBanda(azar, 0.008, 3000, 3000, 1.2, 0.0005, 0.002), 0, 0.4);
    Termina(s, 0.45);
    return s;
}

inline Senal SonidoBoton() { // 9: a soft woody tick
    Azar azar{0x0909};
    Senal s = Tono(700, 0.08, {{1, 1, 0.015}, {2.5, 0.45, 0.007}, {4.1, 0.12, 0.004}});
    Mezcla(s, RuidoSordo(azar, 0.01, 2500, 0.002), 0, 0.6);
    Termina(s, 0.5);
    return s;
}

inline Senal SonidoPestana() { // 10: a paper tab flicked
    Azar azar{0x1010};
    Senal s = RuidoBanda(azar, 0.11, 2600, 1700, 0.9, 0.005, 0.025);
    Termina(s, 0.5);
    return s;
}

inline Senal SonidoPaso() { // 11: a soft low thud
    Azar azar{0x1111};
    Senal s = Golpe_Grave(150, 65, 0.26, 0.07);
    Mezcla(s, RuidoSordo(azar, 0.06, 400, 0.02), 0, 0.8);
    Termina(s, 0.8);
    return s;
}

inline Senal SonidoTutor() { // 12: two gentle bell notes going up
    Senal s = Campanilla(880, 0.42, 0.12);
    Mezcla(s, Campanilla(1318.51, 0.33, 0.12), 0.09, 0.8);
    Termina(s, 0.5);
    return s;
}

inline Senal SonidoVictoria() { // 14: a rising major arpeggio that rings out
    const double notas[] = {523.25, 659.26, 783.99, 1046.5};
    Senal s = Silencio(1.3);
    for (int i = 0; i < 4; ++i)
        Mezcla(s, Campanilla(notas[i], 1.3 - 0.09 * i, 0.35), 0.09 * i, i == 3 ? 0.9 : 0.7);
    s.resize(Muestras(1.3));
    Termina(s, 0.6);
    return s;
}

inline Senal SonidoBarajar() { // 20: a riffle of flicking cards, then the bridge and a tap
    Azar azar{0x2020};
    Senal s = Silencio(1.35);
    double t = 0.02;
    while (t < 0.9) {
        const double centro = azar.Entre(2300, 3800);
        const double nivel = azar.Entre(0.6, 1.0) * std::sin(PI * (0.1 + 0.85 * t / 0.9));
        Mezcla(s, RuidoBanda(azar, 0.012, centro, centro, 0.8, 0.0008, 0.003), t, nivel);
        t += 0.022 * azar.Entre(0.7, 1.3);
    }
    Mezcla(s, RuidoBanda(azar, 0.22, 1200, 3000, 0.9, 0.1, 0.05), 0.95, 0.5);
    Mezcla(s, RuidoSordo(azar, 0.08, 2000, 0.012), 1.22, 0.8);
    s.resize(Muestras(1.35));
    Termina(s, 0.6);
    return s;
}

inline Senal SonidoFicha() { // 22: a clay chip lands and settles
    Senal s = Silencio(0.14);
    const double golpes[][2] = {{0, 1.0}, {0.045, 0.5}, {0.075, 0.25}};
    for (const auto& g : golpes)
        Mezcla(s,
               Tono(2900 + 200 * g[0] / 0.045, 0.06,
                    {{1, 1, 0.006}, {1.48, 0.7, 0.005}, {2.1, 0.4, 0.003}}),
               g[0], g[1]);
    s.resize(Muestras(0.14));
    Termina(s, 0.55);
    return s;
}

inline Senal SonidoVuelo() { // 24: a card swishes off
    Azar azar{0x2424};
    Senal s = RuidoBanda(azar, 0.16, 1200, 4500, 1.1, 0.06, 0.035);
    Termina(s, 0.45);
    return s;
}

inline Senal SonidoAterriza() { // 25: a card lands on the cloth
    Azar azar{0x2525};
    Senal s = RuidoSordo(azar, 0.1, 1400, 0.012);
    Mezcla(s, Tono(220, 0.1, {{1, 1, 0.025}}), 0, 0.15);
    Termina(s, 0.6);
    return s;
}

inline Senal SonidoLevanta() { // 26: a card is lifted, a light tick
    Azar azar{0x2626};
    Senal s = RuidoBanda(azar, 0.06, 3000, 5000, 1.0, 0.002, 0.01);
    Mezcla(s, Tono(2400, 0.06, {{1, 1, 0.008}}), 0, 0.3);
    Termina(s, 0.4);
    return s;
}

// The samples of a sound id, or nothing for an id the table doesn't use.
inline Senal SintetizaSonido(int id) {
    switch (id) {
    case 4:
        return SonidoPasoSpin();
    case 6:
        return SonidoSeleccion();
    case 7:
        return SonidoSuelta();
    case 9:
        return SonidoBoton();
    case 10:
        return SonidoPestana();
    case 11:
        return SonidoPaso();
    case 12:
        return SonidoTutor();
    case 14:
        return SonidoVictoria();
    case 20:
        return SonidoBarajar();
    case 22:
        return SonidoFicha();
    case 24:
        return SonidoVuelo();
    case 25:
        return SonidoAterriza();
    case 26:
        return SonidoLevanta();
    default:
        return {};
    }
}

inline void EscribeEntero(std::vector<uint8_t>& b, uint32_t valor, int bytes) {
    for (int i = 0; i < bytes; ++i) b.push_back(uint8_t(valor >> (8 * i)));
}

// A RIFF WAVE file, 16-bit PCM mono.
inline std::vector<uint8_t> CodificaWav(const Senal& s) {
    const uint32_t datos = uint32_t(s.size() * 2);
    std::vector<uint8_t> b;
    for (char c : {'R', 'I', 'F', 'F'}) b.push_back(uint8_t(c));
    EscribeEntero(b, 36 + datos, 4);
    for (char c : {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '}) b.push_back(uint8_t(c));
    EscribeEntero(b, 16, 4);
    EscribeEntero(b, 1, 2); // integer PCM
    EscribeEntero(b, 1, 2); // mono
    EscribeEntero(b, FRECUENCIA_MUESTREO, 4);
    EscribeEntero(b, FRECUENCIA_MUESTREO * 2, 4);
    EscribeEntero(b, 2, 2);
    EscribeEntero(b, 16, 2);
    for (char c : {'d', 'a', 't', 'a'}) b.push_back(uint8_t(c));
    EscribeEntero(b, datos, 4);
    for (double x : s) {
        const long v = std::clamp(std::lround(x * 32767.0), -32767L, 32767L);
        EscribeEntero(b, uint32_t(int16_t(v)) & 0xFFFF, 2);
    }
    return b;
}

inline std::vector<uint8_t> GeneraWav(int id) {
    return CodificaWav(SintetizaSonido(id));
}

} // namespace gensonidos
