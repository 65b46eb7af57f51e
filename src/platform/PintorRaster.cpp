// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PintorRaster.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

namespace tessario {

namespace {

constexpr double APENAS = 1e-7;  // what counts as on the line
constexpr Pixel BLANCO = 0xFFFFFF;

// Rows of the hatches' cells, from the left bit on.
constexpr std::array<std::array<u8, 8>, 6> TRAMAS{{
    {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00},
    {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},
    {0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08, 0x08},
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},
}};

// The sixteen ways in which a pen's colour meets the one that is there, by bits of the number.
Pixel Rop2(int modo, Pixel p, Pixel d) {
    const auto bits = static_cast<unsigned>(modo - 1);
    Pixel r = 0;
    if (bits & 1U) r |= ~p & ~d;
    if (bits & 2U) r |= ~p & d;
    if (bits & 4U) r |= p & ~d;
    if (bits & 8U) r |= p & d;
    return r & BLANCO;
}

i32 Resto(i32 a, i32 n) {
    const i32 r = a % n;
    return r < 0 ? r + n : r;
}

struct Lado {
    i32 arr = 0, aba = 0;  // rows, the last one excluded
    double x = 0, y = 0, pendiente = 0;
    int sentido = 1;
    double En(i32 fila) const { return x + (fila - y) * pendiente; }
};

// Work for so many things that each cost something and are put in order.
long long CosteDeOrdenar(std::size_t n, long long cadaUna) {
    constexpr long long GASTO_NIVEL = 6;
    return static_cast<long long>(n) * (cadaUna + GASTO_NIVEL * std::bit_width(n));
}

i32 Techo(double v, i32 menos, i32 mas) {
    const double t = std::ceil(v - APENAS);
    if (t <= menos) return menos;
    return t >= mas ? mas : static_cast<i32>(t);
}

void PonLado(PuntoD a, PuntoD b, const Rect& caja, std::vector<Lado>& lados) {
    Lado l;
    if (b.y < a.y) {
        std::swap(a, b);
        l.sentido = -1;
    }
    l.arr = Techo(a.y, caja.Arr, caja.Aba);
    l.aba = Techo(b.y, caja.Arr, caja.Aba);
    if (l.arr >= l.aba) return;
    l.x = a.x;
    l.y = a.y;
    l.pendiente = (b.x - a.x) / (b.y - a.y);
    lados.push_back(l);
}

}  // namespace

void PintorRaster::Abre(i32 ancho, i32 alto, Esfuerzo& esfuerzo) {
    esfuerzo_ = &esfuerzo;
    m_ = Mapa(ancho, alto, BLANCO);
}

// --- Filling.

// Calls for each run of pixels that the figure covers within the box, rows from the top.
void PintorRaster::Barre(const Trazado& t, bool alterno, const Rect& caja, const Tramo& tramo) {
    if (caja.Vacio()) return;
    std::vector<Lado> lados;
    for (const Contorno& c : t) {
        const std::size_t n = c.Puntos.size();
        for (std::size_t i = 0; i < n; ++i)
            PonLado(c.Puntos[i], c.Puntos[i + 1 < n ? i + 1 : 0], caja, lados);
    }
    esfuerzo_->Gasta(CosteDeOrdenar(lados.size(), 40));
    std::sort(lados.begin(), lados.end(),
              [](const Lado& a, const Lado& b) { return a.arr < b.arr; });
    std::vector<const Lado*> vivos;
    std::vector<std::pair<double, int>> cruces;
    std::size_t siguiente = 0;
    for (i32 y = lados.empty() ? caja.Aba : lados[0].arr; y < caja.Aba; ++y) {
        std::erase_if(vivos, [y](const Lado* l) { return l->aba <= y; });
        for (; siguiente < lados.size() && lados[siguiente].arr <= y; ++siguiente)
            vivos.push_back(&lados[siguiente]);
        if (vivos.empty()) {
            if (siguiente == lados.size()) return;
            y = lados[siguiente].arr - 1;
            continue;
        }
        esfuerzo_->Gasta(CosteDeOrdenar(vivos.size(), 12));
        cruces.clear();
        for (const Lado* l : vivos) cruces.emplace_back(l->En(y), l->sentido);
        std::sort(cruces.begin(), cruces.end());
        int vueltas = 0;
        i32 hasta = caja.Izq;
        for (std::size_t i = 0; i + 1 < cruces.size(); ++i) {
            vueltas += alterno ? 1 : cruces[i].second;
            if (alterno ? (vueltas & 1) == 0 : vueltas == 0) continue;
            const i32 izq = std::max(hasta, Techo(cruces[i].first, caja.Izq, caja.Der));
            const i32 der = Techo(cruces[i + 1].first, caja.Izq, caja.Der);
            if (der > izq) {
                tramo(y, izq, der);
                hasta = der;
            }
        }
    }
}

void PintorRaster::Recorta(i32 y, i32 izq, i32 der, const ModosMeta& m, const Tramo& tramo) {
    const auto banda = m.Recorte->Banda(y);
    auto i = std::upper_bound(banda.begin(), banda.end(), izq,
                              [](i32 x, const Rect& r) { return x < r.Der; });
    for (; i != banda.end() && i->Izq < der; ++i)
        tramo(y, std::max(izq, i->Izq), std::min(der, i->Der));
}

// The brush's colour at a pixel. False: the brush leaves it as it is.
bool PintorRaster::Tinta(i32 x, i32 y, const BrochaMeta& b, const ModosMeta& m, Pixel& p) const {
    switch (b.Tipo) {
        case BrochaMeta::Clase::Nula:
            return false;
        case BrochaMeta::Clase::Lisa:
            p = b.Tinta;
            return true;
        case BrochaMeta::Clase::Trama: {
            if (b.Trama < 0 || b.Trama >= static_cast<int>(TRAMAS.size())) {
                p = b.Tinta;
                return true;
            }
            const auto fila = static_cast<std::size_t>((y - m.OrigenBrocha.y) & 7);
            const bool linea = (TRAMAS[static_cast<std::size_t>(b.Trama)][fila] >>
                                (7 - ((x - m.OrigenBrocha.x) & 7))) &
                               1;
            p = linea ? b.Tinta : m.Fondo;
            return linea || m.Opaco;
        }
        case BrochaMeta::Clase::Dibujo:
            p = b.Dibujo->Fila(Resto(y - m.OrigenBrocha.y,
                                     b.Dibujo->Alto))[Resto(x - m.OrigenBrocha.x, b.Dibujo->Ancho)];
            if (b.UnBit) p = p ? m.Fondo : m.Texto;
            return true;
    }
    return false;
}

// A run of pixels of the picture that the clip lets through.
void PintorRaster::Pinta(i32 y, i32 izq, i32 der, const BrochaMeta& b, const ModosMeta& m) {
    const bool lisa = b.Tipo == BrochaMeta::Clase::Lisa && m.Rop2 == MODO_COPIA;
    esfuerzo_->Gasta(10 + (der - izq) * (lisa ? 1LL : 8LL));
    Pixel* const fila = m_.Fila(y);
    if (lisa) {
        std::fill(fila + izq, fila + der, b.Tinta);
        return;
    }
    for (i32 x = izq; x < der; ++x)
        if (Pixel p = 0; Tinta(x, y, b, m, p)) fila[x] = Rop2(m.Rop2, p, fila[x]);
}

void PintorRaster::Rellena(const Trazado& t, bool alterno, const BrochaMeta& b,
                           const ModosMeta& m) {
    if (b.Tipo == BrochaMeta::Clase::Nula) return;
    Barre(t, alterno, m.Caja, [&](i32 y, i32 izq, i32 der) {
        Recorta(y, izq, der, m, [&](i32 fila, i32 a, i32 z) { Pinta(fila, a, z, b, m); });
    });
}

void PintorRaster::RellenaRegion(const Region& r, const BrochaMeta& b, const ModosMeta& m) {
    Region visible;
    CombinaConTino(visible, r, *m.Recorte, RGN_AND, *esfuerzo_);
    for (const Rect& q : visible.Rectangulos())
        for (i32 y = q.Arr; y < q.Aba; ++y) Pinta(y, q.Izq, q.Der, b, m);
}

Region PintorRaster::RegionDe(const Trazado& t, bool alterno) {
    std::vector<Rect> tramos;
    Barre(t, alterno, {0, 0, m_.Ancho, m_.Alto}, [&](i32 y, i32 izq, i32 der) {
        esfuerzo_->Gasta(20);
        if (tramos.size() >= TRAMOS_MAXIMOS) throw MetaficheroAgotado{};
        tramos.push_back({izq, y, der, y + 1});
    });
    return RegionDeTramos(tramos);
}

void PintorRaster::PonPunto(PuntoD p, Pixel color, const ModosMeta& m) {
    if (p.x < 0 || p.y < 0 || p.x >= m_.Ancho || p.y >= m_.Alto) return;
    const auto x = static_cast<i32>(p.x), y = static_cast<i32>(p.y);
    if (m.Recorte->Contiene(x, y)) m_.Fila(y)[x] = color;
}

// Rows of the same figure, one seed for each run that is found above or below another.
void PintorRaster::Inunda(PuntoD p, Pixel color, bool hastaBorde, const BrochaMeta& b,
                          const ModosMeta& m) {
    const auto [izq, arr, der, aba] = m.Caja;
    if (p.x < izq || p.y < arr || p.x >= der || p.y >= aba) return;
    const auto ancho = static_cast<std::size_t>(m_.Ancho);
    esfuerzo_->Gasta(static_cast<long long>(ancho) * m_.Alto);
    std::vector<bool> vista(ancho * static_cast<std::size_t>(m_.Alto));
    const auto libre = [&](i32 x, i32 y) {
        if (vista[static_cast<std::size_t>(y) * ancho + static_cast<std::size_t>(x)]) return false;
        return (m_.Fila(y)[x] == color) != hastaBorde && m.Recorte->Contiene(x, y);
    };
    std::vector<Punto> semillas{{static_cast<i32>(p.x), static_cast<i32>(p.y)}};
    std::vector<Rect> tramos;
    while (!semillas.empty()) {
        const Punto s = semillas.back();
        semillas.pop_back();
        if (!libre(s.x, s.y)) continue;
        i32 a = s.x, z = s.x + 1;
        while (a > izq && libre(a - 1, s.y)) --a;
        while (z < der && libre(z, s.y)) ++z;
        esfuerzo_->Gasta(40 + (z - a) * 20LL);
        if (tramos.size() >= TRAMOS_MAXIMOS) throw MetaficheroAgotado{};
        tramos.push_back({a, s.y, z, s.y + 1});
        const auto inicio = static_cast<std::ptrdiff_t>(static_cast<std::size_t>(s.y) * ancho);
        std::fill(vista.begin() + inicio + a, vista.begin() + inicio + z, true);
        for (const i32 y : {s.y - 1, s.y + 1}) {
            if (y < arr || y >= aba) continue;
            bool antes = false;
            for (i32 x = a; x < z; ++x) {
                const bool ahora = libre(x, y);
                if (ahora && !antes) semillas.push_back({x, y});
                antes = ahora;
            }
        }
    }
    for (const Rect& t : tramos) Pinta(t.Arr, t.Izq, t.Der, b, m);
}

void PintorRaster::Degrada(const PuntoD (&p)[3], const Pixel (&color)[3], const ModosMeta& m) {
    const Matriz plano{p[1].x - p[0].x, p[1].y - p[0].y, p[2].x - p[0].x,
                       p[2].y - p[0].y, p[0].x,          p[0].y};
    Matriz vuelve;
    if (!plano.Inversa(vuelve)) return;
    const Trazado t{{{p[0], p[1], p[2]}, true}};
    Barre(t, true, m.Caja, [&](i32 fila, i32 desde, i32 hasta) {
        Recorta(fila, desde, hasta, m, [&](i32 y, i32 izq, i32 der) {
            esfuerzo_->Gasta((der - izq) * 10LL);
            for (i32 x = izq; x < der; ++x) {
                const PuntoD k = vuelve.De({double(x), double(y)});
                Pixel r = 0;
                for (unsigned d = 0; d < 24; d += 8) {
                    const auto parte = [&](int i) {
                        return static_cast<double>((color[i] >> d) & 0xFFU);
                    };
                    const double v = parte(0) * (1 - k.x - k.y) + parte(1) * k.x + parte(2) * k.y;
                    r |= static_cast<Pixel>(std::clamp(v + 0.5, 0.0, 255.0)) << d;
                }
                m_.Fila(y)[x] = r;
            }
        });
    });
}

}  // namespace tessario
