// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PintorMetafichero.h"

#include <algorithm>
#include <cmath>

namespace tessario {

namespace {

// Bands of a region, and rectangles in the one that has most.
struct Bandas {
    std::size_t Cuantas = 0, Tramos = 0;
};

Bandas BandasDe(const Region& r) {
    Bandas b;
    std::size_t tramos = 0;
    const std::vector<Rect>& v = r.Rectangulos();
    for (std::size_t i = 0; i < v.size(); ++i) {
        const bool otra = i == 0 || v[i].Arr != v[i - 1].Arr;
        b.Cuantas += otra ? 1 : 0;
        tramos = otra ? 1 : tramos + 1;
        b.Tramos = std::max(b.Tramos, tramos);
    }
    return b;
}

}  // namespace

Matriz Matriz::Luego(const Matriz& m) const {
    const PuntoD o = m.De({e, f});
    return {m.a * a + m.c * b, m.b * a + m.d * b, m.a * c + m.c * d, m.b * c + m.d * d, o.x, o.y};
}

bool Matriz::Inversa(Matriz& m) const {
    const double det = a * d - b * c;
    if (!std::isfinite(det) || std::abs(det) < 1e-12) return false;
    m = {d / det, -b / det, -c / det, a / det, (c * f - d * e) / det, (b * e - a * f) / det};
    return true;
}

void CombinaConTino(Region& destino, const Region& a, const Region& b, int modo, Esfuerzo& e) {
    constexpr long long GASTO_RECTANGULO = 40;
    e.Gasta(static_cast<long long>(a.Rectangulos().size() + b.Rectangulos().size() + 1) *
            GASTO_RECTANGULO);
    const Bandas x = BandasDe(a), y = BandasDe(b);
    // Each band may be cut by the other's, and holds at most the spans of both.
    const std::size_t bandas = 2 * (x.Cuantas + y.Cuantas), tramos = x.Tramos + y.Tramos;
    if (tramos > 0 && bandas > TRAMOS_MAXIMOS / tramos) throw MetaficheroAgotado{};
    CombineRgn(destino, a, b, modo);
}

}  // namespace tessario
