// SPDX-License-Identifier: GPL-3.0-or-later
// Lines: of one pixel, dashed, and wide ones as figures to be filled.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/PintorRaster.h"

namespace tessario {

namespace {

constexpr std::size_t PIEZAS_MAXIMAS = 400'000;
constexpr std::size_t PUNTOS_MAXIMOS = 1'500'000;  // of all pieces
constexpr double JUNTO = 1e-6;                     // points nearer than this are one

PuntoD Entre(PuntoD a, PuntoD b, double t) {
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

// How a line's dash stands after so many pixels from its beginning. True: drawn.
bool EnTrazo(const std::vector<double>& trazos, double donde) {
    double vuelta = 0;
    for (const double t : trazos) vuelta += t;
    // An odd number of lengths takes two rounds.
    const double periodo = trazos.size() % 2 ? vuelta * 2 : vuelta;
    double resto = std::fmod(donde, periodo);
    for (std::size_t i = 0; i < trazos.size() * 2; ++i) {
        resto -= trazos[i % trazos.size()];
        if (resto < 0) return i % 2 == 0;
    }
    return true;
}

// A convex piece, always turned the same way, so that pieces add up by the winding rule.
void Pieza(std::vector<PuntoD> p, Piezas& t) {
    double area = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const PuntoD &a = p[i], &b = p[i + 1 < p.size() ? i + 1 : 0];
        area += a.x * b.y - b.x * a.y;
    }
    if (area < 0) std::reverse(p.begin(), p.end());
    t.Puntos += p.size();
    if (t.Lista.size() >= PIEZAS_MAXIMAS || t.Puntos > PUNTOS_MAXIMOS) throw MetaficheroAgotado{};
    t.Lista.push_back({std::move(p), true});
}

void Disco(PuntoD centro, double radio, Piezas& t) {
    const int n = std::clamp(static_cast<int>(radio * 2) + 6, 8, 64);
    std::vector<PuntoD> p;
    for (int i = 0; i < n; ++i) {
        const double a = 2 * std::numbers::pi * i / n;
        p.push_back({centro.x + radio * std::cos(a), centro.y + radio * std::sin(a)});
    }
    Pieza(std::move(p), t);
}

// Along a segment and to its left, half a pen long.
struct Ejes {
    PuntoD u, n;
};
Ejes EjesDe(PuntoD a, PuntoD b, double mitad) {
    const double largo = std::hypot(b.x - a.x, b.y - a.y);
    const PuntoD u{(b.x - a.x) / largo * mitad, (b.y - a.y) / largo * mitad};
    return {u, {-u.y, u.x}};
}

void Esquina(PuntoD antes, PuntoD p, PuntoD luego, const PlumaMeta& pluma, Piezas& t) {
    constexpr double SUAVE = 0.35;  // radians: a corner of a curve, which needs no disc
    const double mitad = pluma.Ancho / 2;
    const Ejes a = EjesDe(antes, p, mitad), b = EjesDe(p, luego, mitad);
    const double cruz = (a.u.x * b.u.y - a.u.y * b.u.x) / (mitad * mitad);
    const double punto = (a.u.x * b.u.x + a.u.y * b.u.y) / (mitad * mitad);
    const double giro = std::atan2(cruz, punto);
    if (std::abs(giro) < 1e-4) return;
    if (pluma.Esquina == Junta::Redonda && std::abs(giro) > SUAVE) {
        Disco(p, mitad, t);
        return;
    }
    // The outer side is the one that the line turns away from.
    const double lado = giro > 0 ? -1 : 1;
    const PuntoD q{p.x + a.n.x * lado, p.y + a.n.y * lado};
    const PuntoD r{p.x + b.n.x * lado, p.y + b.n.y * lado};
    std::vector<PuntoD> v{p, q};
    const double seno = std::cos(giro / 2);  // of half the angle between the lines
    if (pluma.Esquina == Junta::Inglete && seno > 1e-3 && 1 / seno <= pluma.Inglete) {
        const PuntoD medio{(q.x + r.x) / 2 - p.x, (q.y + r.y) / 2 - p.y};
        const double alarga = 1 / (seno * seno);
        v.push_back({p.x + medio.x * alarga, p.y + medio.y * alarga});
    }
    v.push_back(r);
    Pieza(std::move(v), t);
}

void Tapa(PuntoD desde, PuntoD extremo, const PlumaMeta& pluma, Piezas& t) {
    const double mitad = pluma.Ancho / 2;
    if (pluma.Final == Extremo::Redondo) Disco(extremo, mitad, t);
    if (pluma.Final != Extremo::Cuadrado) return;
    const Ejes e = EjesDe(desde, extremo, mitad);
    Pieza({{extremo.x + e.n.x, extremo.y + e.n.y},
           {extremo.x + e.n.x + e.u.x, extremo.y + e.n.y + e.u.y},
           {extremo.x - e.n.x + e.u.x, extremo.y - e.n.y + e.u.y},
           {extremo.x - e.n.x, extremo.y - e.n.y}},
          t);
}

// Without points that repeat the one before.
std::vector<PuntoD> Limpia(const Contorno& c) {
    std::vector<PuntoD> p;
    for (const PuntoD& q : c.Puntos)
        if (p.empty() || std::hypot(q.x - p.back().x, q.y - p.back().y) > JUNTO) p.push_back(q);
    while (c.Cerrado && p.size() > 1 &&
           std::hypot(p[0].x - p.back().x, p[0].y - p.back().y) <= JUNTO)
        p.pop_back();
    return p;
}

}  // namespace

// --- Wide lines.

void PintorRaster::Contornea(const Contorno& c, const PlumaMeta& p, Piezas& t) {
    const std::vector<PuntoD> v = Limpia(c);
    esfuerzo_->Gasta(static_cast<long long>(v.size()) * 400 + 100);
    if (v.empty()) return;
    const double mitad = p.Ancho / 2;
    if (v.size() == 1) {
        if (p.Final == Extremo::Redondo) Disco(v[0], mitad, t);
        return;
    }
    const bool cerrado = c.Cerrado && v.size() > 2;
    const std::size_t lados = cerrado ? v.size() : v.size() - 1;
    const auto en = [&](std::size_t i) { return v[i % v.size()]; };
    for (std::size_t i = 0; i < lados; ++i) {
        const PuntoD a = en(i), b = en(i + 1);
        const Ejes e = EjesDe(a, b, mitad);
        Pieza({{a.x + e.n.x, a.y + e.n.y},
               {b.x + e.n.x, b.y + e.n.y},
               {b.x - e.n.x, b.y - e.n.y},
               {a.x - e.n.x, a.y - e.n.y}},
              t);
        if (i + 1 < lados || cerrado) Esquina(a, b, en(i + 2), p, t);
    }
    if (!cerrado) {
        Tapa(v[1], v[0], p, t);
        Tapa(v[v.size() - 2], v.back(), p, t);
    }
}

// A line's dashes as lines of their own.
Trazado PintorRaster::Trocea(const Contorno& c, const PlumaMeta& p) {
    Trazado t;
    std::vector<PuntoD> v = Limpia(c);
    if (v.size() < 2) return {c};
    if (c.Cerrado) v.push_back(v[0]);
    std::size_t cual = 0;
    double queda = p.Trazos[0];
    Contorno actual{{v[0]}, false};
    for (std::size_t i = 0; i + 1 < v.size(); ++i) {
        const double largo = std::hypot(v[i + 1].x - v[i].x, v[i + 1].y - v[i].y);
        double hecho = 0;
        while (largo - hecho > queda) {
            esfuerzo_->Gasta(200);
            hecho += queda;
            const PuntoD aqui = Entre(v[i], v[i + 1], hecho / largo);
            if (cual % 2 == 0) {
                actual.Puntos.push_back(aqui);
                if (t.size() >= PIEZAS_MAXIMAS) throw MetaficheroAgotado{};
                t.push_back(std::move(actual));
            }
            ++cual;
            queda = std::max(p.Trazos[cual % p.Trazos.size()], 1e-3);
            actual = {{aqui}, false};
        }
        queda -= largo - hecho;
        if (cual % 2 == 0) actual.Puntos.push_back(v[i + 1]);
    }
    if (cual % 2 == 0 && actual.Puntos.size() > 1) t.push_back(std::move(actual));
    return t;
}

Trazado PintorRaster::Ensancha(const Trazado& t, const PlumaMeta& p) {
    Piezas r;
    for (const Contorno& c : t) {
        if (p.Trazos.empty()) {
            Contornea(c, p, r);
            continue;
        }
        for (const Contorno& trozo : Trocea(c, p)) Contornea(trozo, p, r);
    }
    return std::move(r.Lista);
}

// --- Lines of one pixel.

// From a to b without b. `fase`: pixels since the line's beginning, for its dashes.
void PintorRaster::Linea(Punto a, Punto b, const PlumaMeta& p, const ModosMeta& m,
                         long long& fase) {
    const long long dx = static_cast<long long>(b.x) - a.x, dy = static_cast<long long>(b.y) - a.y;
    const long long pasos = std::max(std::abs(dx), std::abs(dy));
    const long long inicio = fase;
    fase += pasos;
    if (pasos == 0) return;
    const Rect caja = m.Caja;
    // The steps of which a pixel can lie in the box, along the longer axis.
    const bool ancha = std::abs(dx) >= std::abs(dy);
    const long long principal = ancha ? dx : dy, desde = ancha ? a.x : a.y;
    const long long menos = ancha ? caja.Izq : caja.Arr, mas = (ancha ? caja.Der : caja.Aba) - 1;
    const long long i0 = std::max(0LL, principal > 0 ? menos - desde : desde - mas);
    const long long i1 = std::min(pasos - 1, principal > 0 ? mas - desde : desde - menos);
    if (i0 > i1) return;
    const auto trazos = static_cast<long long>(p.Trazos.size());
    esfuerzo_->Gasta((i1 - i0 + 1) * (trazos == 0 ? 12 : 40 + 4 * trazos));
    const bool simple = m.Recorte->Rectangulos().size() == 1;
    for (long long i = i0; i <= i1; ++i) {
        // The shorter axis, rounded to the nearest.
        const long long corto = ancha ? dy : dx;
        const long long lado = (2 * std::abs(corto) * i + pasos) / (2 * pasos);
        const long long k = corto < 0 ? -lado : lado;
        const long long x = ancha ? a.x + (dx > 0 ? i : -i) : a.x + k;
        const long long y = ancha ? a.y + k : a.y + (dy > 0 ? i : -i);
        if (x < caja.Izq || x >= caja.Der || y < caja.Arr || y >= caja.Aba) continue;
        const auto px = static_cast<i32>(x), py = static_cast<i32>(y);
        if (!simple && !m.Recorte->Contiene(px, py)) continue;
        if (p.Trazos.empty() || EnTrazo(p.Trazos, static_cast<double>(inicio + i))) {
            Pinta(py, px, px + 1, p.Brocha, m);
        } else if (p.HuecosConFondo && m.Opaco) {
            BrochaMeta fondo;
            fondo.Tinta = m.Fondo;
            Pinta(py, px, px + 1, fondo, m);
        }
    }
}

void PintorRaster::Traza(const Trazado& t, const PlumaMeta& p, const ModosMeta& m) {
    if (!p.Fina) {
        Rellena(Ensancha(t, p), false, p.Brocha, m);
        return;
    }
    const auto redondo = [](PuntoD q) {
        return Punto{static_cast<i32>(std::floor(q.x + 0.5)),
                     static_cast<i32>(std::floor(q.y + 0.5))};
    };
    for (const Contorno& c : t) {
        long long fase = 0;
        const std::size_t n = c.Puntos.size();
        esfuerzo_->Gasta(static_cast<long long>(n) * 20);
        for (std::size_t i = 0; i + 1 < n + (c.Cerrado ? 1 : 0); ++i)
            Linea(redondo(c.Puntos[i]), redondo(c.Puntos[i + 1 < n ? i + 1 : 0]), p, m, fase);
        // What is all on one pixel is that pixel.
        if (fase == 0 && n > 0 && c.Cerrado) {
            const Punto q = redondo(c.Puntos[0]);
            if (m.Recorte->Contiene(q.x, q.y)) Pinta(q.y, q.x, q.x + 1, p.Brocha, m);
        }
    }
}

// Where the pen's colour meets what is there, it must not meet the brush's: the pen's pixels are
// found on a sheet of their own and put back before it draws.
void PintorRaster::Figura(const Trazado& t, bool alterno, const BrochaMeta& b, const PlumaMeta& p,
                          const ModosMeta& m) {
    const bool rellena = b.Tipo != BrochaMeta::Clase::Nula;
    if (p.Nula || !rellena || m.Rop2 == MODO_COPIA) {
        if (rellena) Rellena(t, alterno, b, m);
        if (!p.Nula) Traza(t, p, m);
        return;
    }
    const Rect caja = m.Caja;
    if (caja.Vacio()) return;
    double arr = caja.Aba, aba = caja.Arr;
    for (const Contorno& c : t)
        for (const PuntoD& q : c.Puntos) {
            arr = std::min(arr, q.y);
            aba = std::max(aba, q.y);
        }
    const double margen = p.Ancho * std::max(p.Inglete, 1.0) + 2;
    const auto desde =
        static_cast<i32>(std::clamp(arr - margen, double(caja.Arr), double(caja.Aba)));
    const auto hasta =
        static_cast<i32>(std::clamp(aba + margen, double(caja.Arr), double(caja.Aba)));
    if (desde >= hasta) return;
    esfuerzo_->Gasta((hasta - desde) * 4LL * m_.Ancho);
    const std::vector<Pixel> antes(m_.Fila(desde),
                                   m_.Fila(desde) + std::ptrdiff_t{hasta - desde} * m_.Ancho);
    Rellena(t, alterno, b, m);
    const std::vector<Pixel> relleno(m_.Fila(desde),
                                     m_.Fila(desde) + std::ptrdiff_t{hasta - desde} * m_.Ancho);
    constexpr Pixel MARCA = 0x1000000;  // a colour that no picture has
    PlumaMeta marca = p;
    marca.Brocha = BrochaMeta{};
    marca.Brocha.Tinta = MARCA;
    ModosMeta modos = m;
    modos.Rop2 = MODO_COPIA;
    modos.Fondo = MARCA;
    Traza(t, marca, modos);
    Pixel* const fila = m_.Fila(desde);
    for (std::size_t i = 0; i < antes.size(); ++i)
        fila[i] = fila[i] == MARCA ? antes[i] : relleno[i];
    Traza(t, p, m);
}

}  // namespace tessario
