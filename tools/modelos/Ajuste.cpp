#include "Ajuste.h"

#include <algorithm>
#include <array>
#include <climits>

#include "core/PuzzGbl.h"
#include "pieces/Formas.h"

namespace tessario::modelos {

namespace {

constexpr i32 CONTACTO = 3;  // pixels between pieces that count as touching
constexpr i32 ALCANCE_RENDIJA = 2;
constexpr i32 VUELTAS = 6;  // rounds of the adjustment

// The smallest table: 800 x 600, the strip at the right kept free, margins of a fortieth of the
// width all around.
constexpr i32 MARGEN = 800 / 40;
constexpr i32 ANCHO_UTIL = 800 - 141 - 2 * MARGEN, ALTO_UTIL = 600 - 2 * MARGEN;

std::vector<Punto> Vertices(const Colocada& c) {
    TMidePieza(c.pieza, c.giro, c.volteo);
    TVertices(c.pieza, c.giro, c.volteo);
    const auto fila = static_cast<std::size_t>(c.pieza);
    std::vector<Punto> v;
    for (i32 k = 1; k <= (c.pieza <= 5 ? 3 : 4); ++k)
        v.push_back({c.x + Gbl.TVerticeX[fila][k], c.y + Gbl.TVerticeY[fila][k]});
    return v;
}

Region RegionDe(const Colocada& c) {
    return CreatePolygonRgn(Vertices(c));
}

Rect CajaDe(const Colocada& c) {
    return RectDe(c.x, c.y, AnchoDePieza(c.pieza, c.giro, c.volteo),
                  AltoDePieza(c.pieza, c.giro, c.volteo));
}

Rect CajaDe(const Reparto& reparto) {
    Rect caja;
    for (const Colocada& c : reparto) caja = Union(caja, CajaDe(c));
    return caja;
}

// Points of a closed polygon, edges included: what its outline and its fill paint.
void PintaPieza(Sombra& s, const Colocada& c, Punto origen) {
    const auto v = Vertices(c);
    const Rect caja = CajaDe(c);
    for (i32 y = caja.Arr; y < caja.Aba; ++y)
        for (i32 x = caja.Izq; x < caja.Der; ++x) {
            i32 mas = 0, menos = 0;
            for (std::size_t i = 0; i < v.size(); ++i) {
                const Punto a = v[i], b = v[(i + 1) % v.size()];
                const i32 cruz = (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
                mas += cruz > 0;
                menos += cruz < 0;
            }
            if (mas == 0 || menos == 0)
                s.pixeles[static_cast<std::size_t>((y - origen.y) * s.ancho + x - origen.x)] = 1;
        }
}

i32 Solape(const Reparto& reparto) {
    std::vector<Region> regiones;
    for (const Colocada& c : reparto) regiones.push_back(RegionDe(c));
    i32 area = 0;
    for (std::size_t i = 0; i < regiones.size(); ++i)
        for (std::size_t j = i + 1; j < regiones.size(); ++j) {
            Region comun;
            CombineRgn(comun, regiones[i], regiones[j], RGN_AND);
            area += comun.Area();
        }
    return area;
}

// Is there something painted within reach in this direction?
bool Cerca(const Sombra& s, i32 x, i32 y, i32 dx, i32 dy) {
    for (i32 n = 1; n <= ALCANCE_RENDIJA; ++n)
        if (s.En(x + n * dx, y + n * dy) != 0) return true;
    return false;
}

i32 Rendija(const Reparto& reparto) {
    const Sombra s = PintaSombra(reparto);
    i32 n = 0;
    for (i32 y = 0; y < s.alto; ++y)
        for (i32 x = 0; x < s.ancho; ++x) {
            if (s.En(x, y) != 0) continue;
            const bool cerrada = (Cerca(s, x, y, -1, 0) && Cerca(s, x, y, 1, 0)) ||
                                 (Cerca(s, x, y, 0, -1) && Cerca(s, x, y, 0, 1)) ||
                                 (Cerca(s, x, y, -1, -1) && Cerca(s, x, y, 1, 1)) ||
                                 (Cerca(s, x, y, 1, -1) && Cerca(s, x, y, -1, 1));
            n += cerrada;
        }
    return n;
}

// The seams are looked for only where the overlap alone is not already as bad as the limit.
Defectos Mide(const Reparto& reparto, i32 limite) {
    Defectos d{Solape(reparto), 0};
    if (d.Peso() < limite) d.rendija = Rendija(reparto);
    return d;
}

bool SeTocan(const Colocada& una, const Colocada& otra) {
    const Region b = RegionDe(otra);
    for (i32 dy = -CONTACTO; dy <= CONTACTO; ++dy)
        for (i32 dx = -CONTACTO; dx <= CONTACTO; ++dx) {
            Region a = RegionDe(una);
            a.Desplaza(dx, dy);
            if (SeCortan(a, b)) return true;
        }
    return false;
}

bool TodasUnidas(const Reparto& reparto) {
    std::vector<bool> vista(reparto.size());
    std::vector<std::size_t> pendientes = {0};
    vista[0] = true;
    while (!pendientes.empty()) {
        const std::size_t i = pendientes.back();
        pendientes.pop_back();
        for (std::size_t j = 0; j < reparto.size(); ++j)
            if (!vista[j] && SeTocan(reparto[i], reparto[j])) {
                vista[j] = true;
                pendientes.push_back(j);
            }
    }
    return std::all_of(vista.begin(), vista.end(), [](bool b) { return b; });
}

}  // namespace

Sombra PintaSombra(const Reparto& reparto) {
    const Rect caja = CajaDe(reparto);
    Sombra s{caja.Ancho(), caja.Alto(), {}};
    s.pixeles.resize(static_cast<std::size_t>(s.ancho * s.alto));
    for (const Colocada& c : reparto) PintaPieza(s, c, {caja.Izq, caja.Arr});
    return s;
}

Defectos Ajusta(Reparto& reparto) {
    Defectos mejor = Mide(reparto, INT_MAX);
    for (i32 vuelta = 0; vuelta < VUELTAS && mejor.Peso() > 0; ++vuelta) {
        const i32 antes = mejor.Peso();
        for (Colocada& c : reparto) {
            const Colocada inicio = c;
            Colocada elegida = c;
            for (i32 dy = -1; dy <= 1; ++dy)
                for (i32 dx = -1; dx <= 1; ++dx) {
                    c.x = inicio.x + dx;
                    c.y = inicio.y + dy;
                    const Defectos d = Mide(reparto, mejor.Peso());
                    if (d.Peso() >= mejor.Peso()) continue;
                    mejor = d;
                    elegida = c;
                }
            c = elegida;
        }
        if (mejor.Peso() == antes) break;
    }
    return mejor;
}

std::string Reparo(const Reparto& reparto) {
    if (Solape(reparto) != 0) return "pieces overlap";
    if (!TodasUnidas(reparto)) return "pieces are not in contact";
    const Rect caja = CajaDe(reparto);
    if (caja.Ancho() > ANCHO_UTIL || caja.Alto() > ALTO_UTIL) return "too large for the table";
    return "";
}

void LlevaAlMargen(Reparto& reparto) {
    const Rect caja = CajaDe(reparto);
    for (Colocada& c : reparto) {
        c.x += MARGEN - caja.Izq;
        c.y += MARGEN - caja.Arr;
    }
}

}  // namespace tessario::modelos
