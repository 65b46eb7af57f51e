// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>

#include "platform/Region.h"
#include "platform/RegionBandas.h"

namespace tessario {

namespace {

using i64 = std::int64_t;

// An edge that goes down the rows, with the direction in which the outline runs along it.
struct Lado {
    i32 Arr, Aba;  // rows Arr up to but not including Aba
    i32 XArr;      // column at row Arr
    i32 dx, dy;    // to the lower end; dy > 0
    int Sentido;   // 1 downwards, -1 upwards
    i32 X = 0;     // first column at or right of the edge, in the row at hand
};

i32 Acota(i32 v) {
    return std::clamp(v, -LIMITE_POLIGONO, LIMITE_POLIGONO);
}

i32 CocienteArriba(i64 n, i64 d) {
    const i64 q = n / d;
    return static_cast<i32>(q + (n % d > 0));
}

void PonFila(Lado& l, i32 y) {
    l.X = l.XArr + CocienteArriba(static_cast<i64>(y - l.Arr) * l.dx, l.dy);
}

std::vector<Lado> Lados(std::span<const Punto> vertices) {
    std::vector<Lado> lados;
    lados.reserve(vertices.size());
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const Punto& p = vertices[i];
        const Punto& q = vertices[i + 1 == vertices.size() ? 0 : i + 1];
        const i32 py = Acota(p.y), qy = Acota(q.y);
        if (py == qy) continue;
        const i32 px = Acota(p.x), qx = Acota(q.x);
        if (py < qy)
            lados.push_back({py, qy, px, qx - px, qy - py, 1});
        else
            lados.push_back({qy, py, qx, px - qx, py - qy, -1});
    }
    std::sort(lados.begin(), lados.end(),
              [](const Lado& a, const Lado& b) { return a.Arr < b.Arr; });
    return lados;
}

// Keeps the edges in order of column; from row to row hardly any of them change places.
void Ordena(std::vector<Lado>& activos) {
    for (std::size_t i = 1; i < activos.size(); ++i)
        for (std::size_t j = i; j > 0 && activos[j].X < activos[j - 1].X; --j)
            std::swap(activos[j], activos[j - 1]);
}

void EscribeFila(const std::vector<Lado>& activos, i32 y, BandasRegion& salida) {
    salida.Abre(y, y + 1);
    int vueltas = 0;
    i32 inicio = 0;
    for (const Lado& l : activos) {
        if (vueltas == 0) inicio = l.X;
        vueltas += l.Sentido;
        if (vueltas == 0) salida.Tramo(inicio, l.X);
    }
    salida.Cierra();
}

}  // namespace

Region CreatePolygonRgn(std::span<const Punto> vertices) {
    Region region;
    if (vertices.size() < 3) return region;
    const std::vector<Lado> lados = Lados(vertices);
    if (lados.empty()) return region;

    BandasRegion salida(region.rects_);
    std::vector<Lado> activos;
    std::size_t proximo = 0;
    i32 y = lados.front().Arr;
    while (proximo < lados.size() || !activos.empty()) {
        while (proximo < lados.size() && lados[proximo].Arr == y)
            activos.push_back(lados[proximo++]);
        for (Lado& l : activos) PonFila(l, y);
        Ordena(activos);
        EscribeFila(activos, y, salida);
        ++y;
        std::erase_if(activos, [y](const Lado& l) { return l.Aba <= y; });
    }
    return region;
}

Region RegionDeTramos(std::span<const Rect> tramos) {
    Region region;
    BandasRegion salida(region.rects_);
    for (std::size_t i = 0; i < tramos.size();) {
        const i32 y = tramos[i].Arr;
        salida.Abre(y, y + 1);
        for (; i < tramos.size() && tramos[i].Arr == y; ++i)
            salida.Tramo(tramos[i].Izq, tramos[i].Der);
        salida.Cierra();
    }
    return region;
}

}  // namespace tessario
