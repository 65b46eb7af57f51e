// SPDX-License-Identifier: GPL-3.0-or-later
#include "Estudio.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessario::modelos {

namespace {

constexpr double POCO = 1e-6;
// Of the pieces by number, in square pieces.
constexpr std::array<double, PIEZAS + 1> AREAS = {0, 2, 2, 1, 0.5, 0.5, 1, 1};
// A gap narrower than this, in sides of the square piece, would look like a seam.
constexpr double RENDIJA = 0.15;

// Eighths of a turn that the figure fills in one stretch around a point.
struct Tramo {
    i32 desde = 0, cuantos = 0;
};

std::vector<Tramo> Tramos(const Figura& figura, Vertice p) {
    u32 lleno = 0;
    for (const Puesta& puesta : figura) lleno |= Octavos(puesta, p.x, p.y);
    const auto en = [lleno](i32 k) { return (lleno >> ((k + 8) % 8) & 1) != 0; };
    std::vector<Tramo> tramos;
    for (i32 k = 0; k < 8; ++k) {
        if (!en(k) || en(k - 1)) continue;
        Tramo t{k, 0};
        while (en(k + t.cuantos)) ++t.cuantos;
        tramos.push_back(t);
    }
    return tramos;
}

std::vector<Vertice> Vertices(const Figura& figura) {
    std::vector<Vertice> vertices;
    for (const Puesta& p : figura)
        for (const Lado& l : p.figurin->lados) {
            const Vertice v{p.x + l.x, p.y + l.y};
            const auto mismo = [v](Vertice o) {
                return std::abs(v.x - o.x) + std::abs(v.y - o.y) < POCO;
            };
            if (std::none_of(vertices.begin(), vertices.end(), mismo)) vertices.push_back(v);
        }
    return vertices;
}

bool Cubre(const Figura& figura, double x, double y) {
    return std::any_of(figura.begin(), figura.end(),
                       [&](const Puesta& p) { return Cubre(p, x, y); });
}

bool CabeEn(const Figura& figura, const Figurin& f, double x, double y) {
    return std::all_of(f.muestras.begin(), f.muestras.end(),
                       [&](Vertice m) { return Cubre(figura, x + m.x, y + m.y); });
}

// A way to lay a kind of piece.
struct Postura {
    i16 pieza = 0;
    const Figurin* figurin = nullptr;
    double x = 0, y = 0;
    bool Misma(const Postura& o) const {
        return figurin == o.figurin && std::abs(x - o.x) + std::abs(y - o.y) < POCO;
    }
};

// All that fit into a corner along its first side, or along its last.
std::vector<Postura> QueCaben(const Figura& figura, Vertice p, Tramo t, bool primero) {
    std::vector<Postura> caben;
    for (const i16 pieza : std::initializer_list<i16>{1, 3, 4, 6, 7})
        for (const Figurin& f : Figurines(pieza))
            for (const Lado& l : f.lados) {
                if (l.angulo > t.cuantos) continue;
                const i32 desde = t.desde + (primero ? 0 : t.cuantos - l.angulo);
                if (l.rumbo != desde % 8) continue;
                if (CabeEn(figura, f, p.x - l.x, p.y - l.y))
                    caben.push_back({pieza, &f, p.x - l.x, p.y - l.y});
            }
    return caben;
}

bool Unidas(const Figura& figura) {
    std::vector<std::size_t> cola = {0};
    std::vector<bool> vista(figura.size());
    vista[0] = true;
    for (std::size_t n = 0; n < cola.size(); ++n)
        for (std::size_t j = 0; j < figura.size(); ++j)
            if (!vista[j] && Separacion(figura[cola[n]], figura[j]) == 0) {
                vista[j] = true;
                cola.push_back(j);
            }
    return cola.size() == figura.size();
}

}  // namespace

Figura EnSuSitio(const Plan& plan) {
    Figura figura;
    for (const Sitio& s : plan) figura.push_back(Pon(s));
    return figura;
}

std::string ReparoExacto(const Figura& figura) {
    if (figura.size() != PIEZAS) return "not seven pieces";
    for (std::size_t i = 0; i < PIEZAS; ++i)
        if (figura[i].figurin->pieza != static_cast<i16>(i + 1)) return "pieces out of order";
    for (std::size_t i = 0; i < PIEZAS; ++i)
        for (std::size_t j = i + 1; j < PIEZAS; ++j) {
            const double s = Separacion(figura[i], figura[j]);
            const auto dos = std::to_string(i + 1) + " and " + std::to_string(j + 1);
            if (s < 0) return "overlap of " + dos;
            if (s > 0 && s < RENDIJA) return "a seam between " + dos;
        }
    return Unidas(figura) ? "" : "pieces are not in contact";
}

i32 PiezasDadas(const Figura& figura) {
    std::vector<Postura> dadas;
    for (const Vertice v : Vertices(figura))
        for (const Tramo t : Tramos(figura, v)) {
            if (t.cuantos >= 4) continue;
            for (const bool primero : {true, false}) {
                const auto caben = QueCaben(figura, v, t, primero);
                if (caben.size() != 1) continue;
                const auto misma = [&](const Postura& p) { return p.Misma(caben[0]); };
                if (std::none_of(dadas.begin(), dadas.end(), misma)) dadas.push_back(caben[0]);
            }
        }
    return static_cast<i32>(std::min(dadas.size(), PIEZAS));
}

i32 Esquinas(const Figura& figura) {
    i32 n = 0;
    for (const Vertice v : Vertices(figura))
        for (const Tramo t : Tramos(figura, v)) n += t.cuantos != 4 && t.cuantos != 8;
    return n;
}

// The pieces' own spread is the same in every figure, so that of their middles tells figures apart.
Semejanza::Semejanza(const Figura& figura) : figura_(figura) {
    const auto centro = [](const Puesta& p) {
        return Vertice{p.x + p.figurin->centro[0], p.y + p.figurin->centro[1]};
    };
    double area = 0;
    for (const Puesta& p : figura) {
        const double a = AREAS[static_cast<std::size_t>(p.figurin->pieza)];
        x_ += a * centro(p).x;
        y_ += a * centro(p).y;
        area += a;
    }
    x_ /= area;
    y_ /= area;
    for (const Puesta& p : figura)
        dispersion_ += AREAS[static_cast<std::size_t>(p.figurin->pieza)] *
                       (std::pow(centro(p).x - x_, 2) + std::pow(centro(p).y - y_, 2));
}

bool Semejanza::Igual(const Semejanza& otra) const {
    constexpr double PASO = 0.11, ALCANCE = 6, DISTINTO = 0.025;
    if (std::abs(dispersion_ - otra.dispersion_) > 1000 * POCO) return false;
    for (i32 giro = 0; giro < 16; ++giro) {
        const double c = std::cos(giro * M_PI / 4), s = std::sin(giro * M_PI / 4);
        i32 area = 0, distintos = 0;
        for (double y = -ALCANCE; y < ALCANCE; y += PASO)
            for (double x = -ALCANCE; x < ALCANCE; x += PASO) {
                const bool en = Cubre(figura_, x_ + x, y_ + y);
                const double gx = c * x - s * y, gy = s * x + c * y;
                area += en;
                distintos +=
                    en != Cubre(otra.figura_, otra.x_ + gx, otra.y_ + (giro < 8 ? gy : -gy));
            }
        if (distintos < 2 * DISTINTO * area) return true;
    }
    return false;
}

}  // namespace tessario::modelos
