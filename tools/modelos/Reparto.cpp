// SPDX-License-Identifier: GPL-3.0-or-later
#include "Reparto.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <map>
#include <optional>
#include <tuple>

#include "Exacto.h"
#include "core/PuzzGbl.h"
#include "pieces/Formas.h"

namespace tessario::modelos {

namespace {

constexpr i32 HOLGURA = 2;  // pixels by which a corner may miss the lattice
// Area of a piece in quarters of a u cell; a v cell is half as large.
constexpr std::array<std::size_t, PIEZAS + 1> CUARTOS = {0, 8, 8, 4, 2, 2, 4, 4};

// One orientation of a piece on one lattice: the quarters that it covers.
struct Postura {
    i16 pieza = 0, giro = 0, volteo = 0;
    std::vector<Cuarto> cuartos;
};

std::optional<i32> EnRejilla(i32 pixeles, i32 lado) {
    const auto n = static_cast<i32>(std::lround(static_cast<double>(pixeles) / lado));
    if (std::abs(n * lado - pixeles) > HOLGURA) return std::nullopt;
    return n;
}

// Corners in cells of the lattice; empty when the orientation does not belong to it.
std::vector<Vertice> VerticesEnRejilla(i16 pieza, i16 giro, i16 volteo, i32 lado) {
    TMidePieza(pieza, giro, volteo);
    TVertices(pieza, giro, volteo);
    const auto fila = static_cast<std::size_t>(pieza);
    std::vector<Vertice> v;
    for (i32 k = 1; k <= (pieza <= 5 ? 3 : 4); ++k) {
        const auto x = EnRejilla(Gbl.TVerticeX[fila][k], lado);
        const auto y = EnRejilla(Gbl.TVerticeY[fila][k], lado);
        if (!x || !y) return {};
        v.push_back({static_cast<double>(*x), static_cast<double>(*y)});
    }
    return v;
}

bool Dentro(const std::vector<Vertice>& v, double x, double y) {
    i32 izquierda = 0, derecha = 0;
    for (std::size_t i = 0; i < v.size(); ++i) {
        const Vertice& a = v[i];
        const Vertice& b = v[(i + 1) % v.size()];
        const double cruz = (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
        ++(cruz > 0 ? izquierda : derecha);
    }
    return izquierda == 0 || derecha == 0;
}

// Centre of gravity of a quarter, in cells from the cell's corner.
constexpr std::array<Vertice, 4> CENTROS = {
    {{0.5, 1.0 / 6}, {5.0 / 6, 0.5}, {0.5, 5.0 / 6}, {1.0 / 6, 0.5}}};

std::vector<Cuarto> CuartosDe(const std::vector<Vertice>& v) {
    std::vector<Cuarto> cuartos;
    for (i32 y = 0; y < 4; ++y)
        for (i32 x = 0; x < 4; ++x)
            for (i32 lado = 0; lado < 4; ++lado) {
                const Vertice c = CENTROS[static_cast<std::size_t>(lado)];
                if (Dentro(v, x + c.x, y + c.y)) cuartos.push_back({x, y, lado});
            }
    return cuartos;
}

std::vector<Postura> PosturasDe(bool girada) {
    std::vector<Postura> posturas;
    for (i16 pieza = 1; pieza <= i16{PIEZAS}; ++pieza)
        for (i16 volteo = 0; volteo < Caras(pieza); ++volteo)
            for (i16 giro = 0; giro < GIROS[static_cast<std::size_t>(pieza)]; ++giro) {
                const auto v = VerticesEnRejilla(pieza, giro, volteo, girada ? LADO_V : LADO_U);
                Postura p{pieza, giro, volteo, CuartosDe(v)};
                const auto area = CUARTOS[static_cast<std::size_t>(pieza)] * (girada ? 2U : 1U);
                if (!v.empty() && p.cuartos.size() == area) posturas.push_back(p);
            }
    return posturas;
}

using Clave = std::tuple<std::size_t, i32, i32, i32>;  // silhouette, x, y, quarter

// The search: the first free quarter must be covered by some piece, in some way.
class Buscador {
public:
    Buscador(const Descripcion& figura, const std::function<bool(const Plan&)>& visita)
        : figura_(figura), visita_(visita) {
        for (std::size_t s = 0; s < figura.siluetas.size(); ++s)
            for (const Cuarto& c : figura.siluetas[s].cuartos) libre_[{s, c.x, c.y, c.lado}] = true;
        plan_.resize(PIEZAS);
    }

    bool Busca() {
        const auto primero =
            std::find_if(libre_.begin(), libre_.end(), [](const auto& par) { return par.second; });
        if (primero == libre_.end())
            return !std::all_of(usada_.begin() + 1, usada_.end(), [](bool b) { return b; }) ||
                   visita_(plan_);
        const auto [s, x, y, lado] = primero->first;
        for (const Postura& p : posturas_[figura_.siluetas[s].girada])
            for (const Cuarto& c : p.cuartos)
                if (c.lado == lado && !Prueba(p, s, x - c.x, y - c.y)) return false;
        return true;
    }

private:
    // Puts a piece, goes on, takes it back. False ends the whole search.
    bool Prueba(const Postura& p, std::size_t s, i32 dx, i32 dy) {
        const auto n = static_cast<std::size_t>(p.pieza);
        if (usada_[n] || !Cabe(p, s, dx, dy)) return true;
        if ((n == 2 || n == 5) && !usada_[n - 1]) return true;  // twins in order
        const Silueta& silueta = figura_.siluetas[s];
        Marca(p, s, dx, dy, false);
        plan_[n - 1] = {
            p.pieza,
            p.giro,
            p.volteo,
            {silueta.esquina.x + silueta.Celdas(dx), silueta.esquina.y + silueta.Celdas(dy)}};
        const bool sigue = Busca();
        Marca(p, s, dx, dy, true);
        return sigue;
    }

    bool Cabe(const Postura& p, std::size_t s, i32 dx, i32 dy) const {
        return std::all_of(p.cuartos.begin(), p.cuartos.end(), [&](const Cuarto& c) {
            const auto lugar = libre_.find({s, c.x + dx, c.y + dy, c.lado});
            return lugar != libre_.end() && lugar->second;
        });
    }

    void Marca(const Postura& p, std::size_t s, i32 dx, i32 dy, bool libre) {
        for (const Cuarto& c : p.cuartos) libre_[{s, c.x + dx, c.y + dy, c.lado}] = libre;
        usada_[static_cast<std::size_t>(p.pieza)] = !libre;
    }

    const Descripcion& figura_;
    const std::function<bool(const Plan&)>& visita_;
    const std::array<std::vector<Postura>, 2> posturas_ = {PosturasDe(false), PosturasDe(true)};
    std::map<Clave, bool> libre_;
    std::array<bool, PIEZAS + 1> usada_{};
    Plan plan_;
};

}  // namespace

double Area(const Descripcion& figura) {
    double area = 0;
    for (const Silueta& s : figura.siluetas)
        area += static_cast<double>(s.cuartos.size()) / (s.girada ? 4 : 2);
    return area;
}

void Reparte(const Descripcion& figura, const std::function<bool(const Plan&)>& visita) {
    Buscador(figura, visita).Busca();
}

}  // namespace tessario::modelos
