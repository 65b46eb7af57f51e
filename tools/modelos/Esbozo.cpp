// SPDX-License-Identifier: GPL-3.0-or-later
#include "Esbozo.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tessario::modelos {

namespace {

constexpr double AREA = 8;  // of the seven pieces, in square pieces
constexpr double ORLA = 2;  // free ground around the sketch
constexpr float CUESTA = 1.2F / Carta::FINURA, ESCALON = 0.4F;

Real LeePunto(std::istringstream& s) {
    Real p;
    char coma = 0;
    if (!(s >> p.x >> coma >> p.y) || coma != ',') throw std::runtime_error("bad point");
    return p;
}

std::vector<Real> LeePuntos(std::istringstream& s) {
    std::vector<Real> puntos;
    while (s >> std::ws && !s.eof()) puntos.push_back(LeePunto(s));
    return puntos;
}

void Refleja(Esbozo& e, double eje) {
    const std::size_t n = e.trozos.size();
    for (std::size_t i = 0; i < n; ++i) {
        Trozo t = e.trozos[i];
        for (Real& p : t.puntos) p.x = 2 * eje - p.x;
        e.trozos.push_back(t);
    }
}

void LeeLinea(Esbozo& e, const std::string& linea) {
    std::istringstream s(linea);
    Trozo t;
    if (s >> std::ws && s.peek() >= '0' && s.peek() <= '9') s >> t.peso;
    char clase = 0;
    s >> clase;
    if (clase == 'M') {
        double eje = 0;
        s >> eje;
        return Refleja(e, eje);
    }
    if (clase == 'K') {
        Deseo d;
        s >> d.pieza >> d.giro;
        d.centro = LeePunto(s);
        e.deseos.push_back(d);
        return;
    }
    if (clase == 'L' || clase == 'C' || clase == 'D') s >> t.radio;
    t.puntos = LeePuntos(s);
    if (t.puntos.empty()) throw std::runtime_error("a part without points");
    if (clase == 'D') {
        const Real c = t.puntos[0];
        const double r = t.radio;
        t.puntos = {{c.x - r, c.y}, {c.x, c.y - r}, {c.x + r, c.y}, {c.x, c.y + r}};
        t.radio = 0;
    }
    if (clase != 'L') return e.trozos.push_back(t);
    t.radio /= 2;
    for (std::size_t i = 1; i < t.puntos.size(); ++i)
        e.trozos.push_back({t.peso, t.radio, {t.puntos[i - 1], t.puntos[i]}});
}

double AlSegmento(Real p, Real a, Real b) {
    const double dx = b.x - a.x, dy = b.y - a.y, largo = dx * dx + dy * dy;
    const double t =
        largo == 0 ? 0 : std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / largo, 0.0, 1.0);
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

bool DentroDe(const Trozo& t, Real p) {
    if (t.puntos.size() <= 2) return AlSegmento(p, t.puntos.front(), t.puntos.back()) <= t.radio;
    bool dentro = false;
    for (std::size_t i = 0, j = t.puntos.size() - 1; i < t.puntos.size(); j = i++) {
        const Real a = t.puntos[i], b = t.puntos[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            dentro = !dentro;
    }
    return dentro;
}

double PesoEn(const Esbozo& e, Real p) {
    double peso = 0;
    for (const Trozo& t : e.trozos)
        if (t.peso > peso && DentroDe(t, p)) peso = t.peso;
    return peso;
}

// Distance to the sketch, in cells, spread by two sweeps.
std::vector<float> Distancias(const std::vector<float>& pesos, i32 ancho, i32 alto) {
    constexpr float LEJOS = 1e6F, RECTO = 1, SESGO = 1.414F;
    std::vector<float> d(pesos.size());
    for (std::size_t i = 0; i < d.size(); ++i) d[i] = pesos[i] > 0 ? 0 : LEJOS;
    const auto baja = [&](i32 x, i32 y, i32 dx, i32 dy, float paso) {
        if (x + dx < 0 || y + dy < 0 || x + dx >= ancho || y + dy >= alto) return;
        float& aqui = d[static_cast<std::size_t>(y * ancho + x)];
        aqui = std::min(aqui, d[static_cast<std::size_t>((y + dy) * ancho + x + dx)] + paso);
    };
    const auto barre = [&](i32 x, i32 y, i32 s) {
        baja(x, y, -s, 0, RECTO);
        baja(x, y, 0, -s, RECTO);
        baja(x, y, -s, -s, SESGO);
        baja(x, y, s, -s, SESGO);
    };
    for (i32 y = 0; y < alto; ++y)
        for (i32 x = 0; x < ancho; ++x) barre(x, y, 1);
    for (i32 y = alto; y-- > 0;)
        for (i32 x = ancho; x-- > 0;) barre(x, y, -1);
    return d;
}

struct Extension {
    double izq = 1e9, arr = 1e9, der = -1e9, aba = -1e9;
};

Extension ExtensionDe(const Esbozo& e) {
    Extension c;
    for (const Trozo& t : e.trozos)
        for (const Real p : t.puntos) {
            c.izq = std::min(c.izq, p.x - t.radio);
            c.arr = std::min(c.arr, p.y - t.radio);
            c.der = std::max(c.der, p.x + t.radio);
            c.aba = std::max(c.aba, p.y + t.radio);
        }
    return c;
}

double AreaDe(const Esbozo& e, const Extension& c) {
    constexpr i32 MUESTRAS = 300;
    const double paso = std::max(c.der - c.izq, c.aba - c.arr) / MUESTRAS;
    i32 n = 0;
    for (double y = c.arr + paso / 2; y < c.aba; y += paso)
        for (double x = c.izq + paso / 2; x < c.der; x += paso) n += PesoEn(e, {x, y}) > 0;
    return n * paso * paso;
}

}  // namespace

std::vector<Esbozo> LeeEsbozos(const std::string& ruta) {
    std::ifstream entrada(ruta);
    if (!entrada) throw std::runtime_error("cannot read " + ruta);
    std::vector<Esbozo> esbozos;
    std::string linea;
    for (i32 numero = 1; std::getline(entrada, linea); ++numero) {
        if (linea.empty() || linea.starts_with("//")) continue;
        try {
            if (linea.starts_with("= "))
                esbozos.push_back({linea.substr(2), {}, {}});
            else
                LeeLinea(esbozos.at(esbozos.size() - 1), linea);
        } catch (const std::exception& e) {
            throw std::runtime_error(ruta + ":" + std::to_string(numero) + ": " + e.what());
        }
    }
    return esbozos;
}

Carta Traza(const Esbozo& esbozo) {
    const Extension c = ExtensionDe(esbozo);
    const double escala = std::sqrt(AREA / AreaDe(esbozo, c));
    Carta carta;
    carta.ancho = static_cast<i32>(((c.der - c.izq) * escala + 2 * ORLA) * Carta::FINURA) + 1;
    carta.alto = static_cast<i32>(((c.aba - c.arr) * escala + 2 * ORLA) * Carta::FINURA) + 1;
    for (i32 j = 0; j < carta.alto; ++j)
        for (i32 i = 0; i < carta.ancho; ++i) {
            const double x = (i + 0.5) / Carta::FINURA - ORLA, y = (j + 0.5) / Carta::FINURA - ORLA;
            carta.valor.push_back(
                static_cast<float>(PesoEn(esbozo, {x / escala + c.izq, y / escala + c.arr})));
        }
    const auto lejos = Distancias(carta.valor, carta.ancho, carta.alto);
    for (std::size_t i = 0; i < lejos.size(); ++i)
        if (lejos[i] > 0) carta.valor[i] = std::max(Carta::FUERA, -ESCALON - CUESTA * lejos[i]);
    for (Deseo d : esbozo.deseos) {
        d.centro = {(d.centro.x - c.izq) * escala + ORLA, (d.centro.y - c.arr) * escala + ORLA};
        carta.deseos.push_back(d);
    }
    return carta;
}

}  // namespace tessario::modelos
