// SPDX-License-Identifier: GPL-3.0-or-later
#include "Ajuste.h"

#include <algorithm>
#include <array>

#include "core/PuzzGbl.h"
#include "pieces/Formas.h"

namespace tessario::modelos {

namespace {

constexpr i32 CONTACTO = 3;        // pixels between pieces that count as touching
constexpr i32 MENOR_HUECO = 400;   // enclosed ground, pixels
constexpr i32 MAYOR_RENDIJA = 12;  // narrow ground; the sharpest notch between two sides has less
constexpr i32 VUELTAS = 6;         // rounds of the adjustment

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
Sombra Mascara(const Colocada& c) {
    const auto v = Vertices({c.pieza, c.giro, c.volteo, 0, 0});
    const Rect caja = CajaDe(c);
    Sombra s(caja.Ancho(), caja.Alto());
    for (i32 y = 0; y < s.alto; ++y)
        for (i32 x = 0; x < s.ancho; ++x) {
            i32 mas = 0, menos = 0;
            for (std::size_t i = 0; i < v.size(); ++i) {
                const Punto a = v[i], b = v[(i + 1) % v.size()];
                const i32 cruz = (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
                mas += cruz > 0;
                menos += cruz < 0;
            }
            s.Fila(y)[x] = mas == 0 || menos == 0;
        }
    return s;
}

void PintaPieza(Sombra& s, const Sombra& mascara, i32 izq, i32 arr) {
    for (i32 y = 0; y < mascara.alto; ++y) {
        const u8* desde = mascara.Fila(y);
        u8* hasta = s.Fila(y + arr) + izq;
        for (i32 x = 0; x < mascara.ancho; ++x) hasta[x] |= desde[x];
    }
}

// Ground with the figure on two opposite sides of it, close by: one pixel of a row, 1 or 0.
static_assert(Sombra::BORDE == 2, "as far as the sum looks");
u8 Estrecho(const u8* p, i32 paso) {
    const auto lado = [p](i32 d) { return p[d] | p[2 * d]; };
    const auto entre = [&lado](i32 d) { return lado(d) & lado(-d); };
    return static_cast<u8>((p[0] ^ 1) &
                           (entre(1) | entre(paso) | entre(paso + 1) | entre(paso - 1)));
}

i32 Rendija(const Sombra& s) {
    i32 n = 0;
    for (i32 y = 0; y < s.alto; ++y) {
        const u8* fila = s.Fila(y);
        for (i32 x = 0; x < s.ancho; ++x) n += Estrecho(fila + x, s.Paso());
    }
    return n;
}

i32 Comun(const Region& a, const Region& b) {
    Region comun;
    CombineRgn(comun, a, b, RGN_AND);
    return comun.Area();
}

i32 Solape(const Reparto& reparto) {
    i32 area = 0;
    for (std::size_t i = 0; i < reparto.size(); ++i)
        for (std::size_t j = i + 1; j < reparto.size(); ++j)
            area += Comun(RegionDe(reparto[i]), RegionDe(reparto[j]));
    return area;
}

// A patch of the picture: how many pixels, how long its box is, whether it reaches the rim.
struct Mancha {
    i32 pixeles = 0;
    Rect caja;
    bool orilla = false;
};

// The patches, joined in eight directions, of the pixels marked 1.
std::vector<Mancha> Manchas(Sombra marcas) {
    std::vector<Mancha> manchas;
    std::vector<Punto> cola;
    const auto toma = [&](i32 x, i32 y, Mancha& m) {
        if (marcas.Fila(y)[x] == 0) return;
        marcas.Fila(y)[x] = 0;
        cola.push_back({x, y});
        ++m.pixeles;
        m.caja = Union(m.caja, RectDe(x, y, 1, 1));
        m.orilla = m.orilla || x == 0 || y == 0 || x == marcas.ancho - 1 || y == marcas.alto - 1;
    };
    for (i32 y = 0; y < marcas.alto; ++y)
        for (i32 x = 0; x < marcas.ancho; ++x) {
            Mancha m;
            toma(x, y, m);
            while (!cola.empty()) {
                const Punto p = cola.back();
                cola.pop_back();
                for (i32 dy = -1; dy <= 1; ++dy)
                    for (i32 dx = -1; dx <= 1; ++dx) toma(p.x + dx, p.y + dy, m);
            }
            if (m.pixeles > 0) manchas.push_back(m);
        }
    return manchas;
}

std::string ReparoDeFondo(const Reparto& reparto) {
    const Sombra s = PintaSombra(reparto);
    Sombra fondo(s.ancho, s.alto), estrechos(s.ancho, s.alto);
    for (i32 y = 0; y < s.alto; ++y)
        for (i32 x = 0; x < s.ancho; ++x) {
            fondo.Fila(y)[x] = s.Fila(y)[x] ^ 1;
            estrechos.Fila(y)[x] = Estrecho(s.Fila(y) + x, s.Paso());
        }
    for (const Mancha& m : Manchas(fondo))
        if (!m.orilla && m.pixeles < MENOR_HUECO)
            return "a hole of " + std::to_string(m.pixeles) + " pixels";
    for (const Mancha& m : Manchas(estrechos)) {
        const i32 largo = std::max(m.caja.Ancho(), m.caja.Alto());
        if (largo > MAYOR_RENDIJA) return "a seam of " + std::to_string(largo) + " pixels";
    }
    return "";
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

Reparto EnPixeles(const Plan& plan) {
    Reparto reparto;
    for (const Sitio& s : plan)
        reparto.push_back(
            {s.pieza, s.giro, s.volteo, s.esquina.x.Pixeles(), s.esquina.y.Pixeles()});
    return reparto;
}

Sombra PintaSombra(const Reparto& reparto) {
    const Rect caja = CajaDe(reparto);
    Sombra s(caja.Ancho(), caja.Alto());
    for (const Colocada& c : reparto) PintaPieza(s, Mascara(c), c.x - caja.Izq, c.y - caja.Arr);
    return s;
}

namespace {

// The pieces while they are nudged. What does not move is measured and painted once.
class Ajustador {
public:
    explicit Ajustador(Reparto& reparto) : reparto_(reparto) {
        for (const Colocada& c : reparto) mascaras_.push_back(Mascara(c));
        const Rect caja = CajaDe(reparto);
        // Room for pieces to be nudged outwards.
        constexpr i32 HOLGURA = VUELTAS + 1;
        origen_ = {caja.Izq - HOLGURA, caja.Arr - HOLGURA};
        ancho_ = caja.Ancho() + 2 * HOLGURA;
        alto_ = caja.Alto() + 2 * HOLGURA;
    }

    Defectos Haz() {
        Defectos mejor = Todos();
        for (i32 vuelta = 0; vuelta < VUELTAS && mejor.Peso() > 0; ++vuelta) {
            const i32 antes = mejor.Peso();
            for (std::size_t i = 0; i < reparto_.size(); ++i) Mueve(i, mejor);
            if (mejor.Peso() == antes) break;
        }
        return mejor;
    }

private:
    void Pinta(Sombra& s, std::size_t i) const {
        PintaPieza(s, mascaras_[i], reparto_[i].x - origen_.x, reparto_[i].y - origen_.y);
    }
    Defectos Todos() const {
        Sombra s(ancho_, alto_);
        for (std::size_t i = 0; i < reparto_.size(); ++i) Pinta(s, i);
        return {Solape(reparto_), Rendija(s)};
    }

    // The best of the nine places around.
    void Mueve(std::size_t i, Defectos& mejor) {
        Sombra resto(ancho_, alto_);
        std::vector<Region> otras;
        i32 solapeAjeno = Solape(reparto_);
        const Region mia = RegionDe(reparto_[i]);
        for (std::size_t j = 0; j < reparto_.size(); ++j) {
            if (j == i) continue;
            Pinta(resto, j);
            otras.push_back(RegionDe(reparto_[j]));
            solapeAjeno -= Comun(mia, otras.back());
        }
        const Colocada inicio = reparto_[i];
        Colocada elegida = inicio;
        for (i32 dy = -1; dy <= 1; ++dy)
            for (i32 dx = -1; dx <= 1; ++dx) {
                reparto_[i].x = inicio.x + dx;
                reparto_[i].y = inicio.y + dy;
                Defectos d{solapeAjeno, 0};
                const Region aqui = RegionDe(reparto_[i]);
                for (const Region& otra : otras) d.solape += Comun(aqui, otra);
                // Seams are looked for only where the overlap alone is not already as bad.
                if (d.Peso() >= mejor.Peso()) continue;
                Sombra s = resto;
                Pinta(s, i);
                d.rendija = Rendija(s);
                if (d.Peso() >= mejor.Peso()) continue;
                mejor = d;
                elegida = reparto_[i];
            }
        reparto_[i] = elegida;
    }

    Reparto& reparto_;
    std::vector<Sombra> mascaras_;
    Punto origen_;
    i32 ancho_ = 0, alto_ = 0;
};

}  // namespace

Defectos Ajusta(Reparto& reparto) {
    return Ajustador(reparto).Haz();
}

std::string Reparo(const Reparto& reparto) {
    if (Solape(reparto) != 0) return "pieces overlap";
    if (!TodasUnidas(reparto)) return "pieces are not in contact";
    const Rect caja = CajaDe(reparto);
    if (caja.Ancho() > ANCHO_UTIL || caja.Alto() > ALTO_UTIL) return "too large for the table";
    return ReparoDeFondo(reparto);
}

void LlevaAlMargen(Reparto& reparto) {
    const Rect caja = CajaDe(reparto);
    for (Colocada& c : reparto) {
        c.x += MARGEN - caja.Izq;
        c.y += MARGEN - caja.Arr;
    }
}

}  // namespace tessario::modelos
