// SPDX-License-Identifier: GPL-3.0-or-later
// Lines, boxes, single pixels and text.
#include <cmath>
#include <cstdint>

#include "platform/Superficie.h"
#include "platform/SuperficieTrazo.h"
#include "platform/Tipografia.h"

namespace tessario {

namespace {

using i64 = std::int64_t;

i64 CocienteAbajo(i64 n, i64 d) {
    return n / d - (n % d < 0);
}

// The pixels of the line from a to b of which the major coordinate lies in [desde, hasta): one for
// each step of it, the other coordinate rounded, halves upwards. a comes first along the major
// axis, so that a line is the same in both directions.
template <bool porFilas>
std::vector<Punto> PuntosDeLinea(const Punto& a, const Punto& b, i32 desde, i32 hasta) {
    const i32 mayor = porFilas ? a.y : a.x;
    const i32 menor = porFilas ? a.x : a.y;
    const i64 largo = (porFilas ? b.y : b.x) - mayor;
    const i64 desvio = (porFilas ? b.x : b.y) - menor;
    desde = std::max(desde, mayor);
    hasta = std::min(hasta, static_cast<i32>(mayor + largo + 1));
    std::vector<Punto> puntos;
    if (desde >= hasta) return puntos;
    puntos.reserve(static_cast<std::size_t>(hasta - desde));
    for (i32 m = desde; m < hasta; ++m) {
        const i64 paso = static_cast<i64>(m) - mayor;
        const i64 d = largo == 0 ? 0 : CocienteAbajo(2 * paso * desvio + largo, 2 * largo);
        const auto n = static_cast<i32>(menor + d);
        puntos.push_back(porFilas ? Punto{n, m} : Punto{m, n});
    }
    return puntos;
}

void PintaLinea(Trazo& trazo, const Punta& punta, Punto a, Punto b) {
    const Rect zona = punta.Alcance(trazo.Zona());
    const bool porFilas = std::abs(b.y - a.y) > std::abs(b.x - a.x);
    if (porFilas ? b.y < a.y : b.x < a.x) std::swap(a, b);
    auto puntos = porFilas ? PuntosDeLinea<true>(a, b, zona.Arr, zona.Aba)
                           : PuntosDeLinea<false>(a, b, zona.Izq, zona.Der);
    // Far off to the side a pixel matters no more, and a pen around it might leave i32.
    std::erase_if(puntos, [&](const Punto& p) { return !zona.Contiene(p.x, p.y); });
    PintaPuntos(trazo, punta, puntos);
}

// The frame between two rectangles, in four strips that have no pixel in common.
void PintaMarco(Trazo& trazo, const Rect& fuera, const Rect& dentro) {
    trazo.Caja({fuera.Izq, fuera.Arr, fuera.Der, dentro.Arr});
    trazo.Caja({fuera.Izq, dentro.Arr, dentro.Izq, dentro.Aba});
    trazo.Caja({dentro.Der, dentro.Arr, fuera.Der, dentro.Aba});
    trazo.Caja({fuera.Izq, dentro.Aba, fuera.Der, fuera.Aba});
}

// A box with its border, square at the corners, and its ground if that has a colour.
void PintaCaja(Trazo& trazo, const Punta& punta, const Punto& a, const Punto& b,
               std::optional<Color> relleno) {
    const Rect esquinas{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                        std::max(a.y, b.y)};
    const i32 antes = punta.Antes(), despues = punta.Despues();
    const Rect fuera{esquinas.Izq - antes, esquinas.Arr - antes, esquinas.Der + despues + 1,
                     esquinas.Aba + despues + 1};
    const Rect dentro{esquinas.Izq + despues + 1, esquinas.Arr + despues + 1, esquinas.Der - antes,
                      esquinas.Aba - antes};
    if (dentro.Vacio()) {
        trazo.Caja(fuera);
        return;
    }
    PintaMarco(trazo, fuera, dentro);
    if (!relleno) return;
    trazo.PonColor(*relleno);
    trazo.Caja(dentro);
}

}  // namespace

void Superficie::Line(int flags, double x1, double y1, double x2, double y2, Color color) {
    if (!(flags & pluma::Desde)) {
        x1 = CurrentX;
        y1 = CurrentY;
    }
    if (flags & pluma::Relativo) {
        x2 += x1;
        y2 += y1;
    }
    const auto ax = PixelCercano(x1), ay = PixelCercano(y1);
    const auto bx = PixelCercano(x2), by = PixelCercano(y2);
    if (!ax || !ay || !bx || !by) return;
    CurrentX = x2;
    CurrentY = y2;

    const Color linea = flags & pluma::ConColor ? color : ForeColor;
    const Punta punta(DrawWidth);
    Trazo trazo(*this, linea);
    if (!(flags & pluma::Caja)) {
        PintaLinea(trazo, punta, {*ax, *ay}, {*bx, *by});
        return;
    }
    std::optional<Color> relleno;
    if (flags & pluma::Llena)
        relleno = linea;
    else if (FillSolido)
        relleno = FillColor;
    PintaCaja(trazo, punta, {*ax, *ay}, {*bx, *by}, relleno);
}

void Superficie::PSet(double x, double y) {
    PSet(x, y, ForeColor);
}

void Superficie::PSet(double x, double y, Color color) {
    const auto px = PixelCercano(x), py = PixelCercano(y);
    if (!px || !py) return;
    CurrentX = x;
    CurrentY = y;
    const Punta punta(DrawWidth);
    Trazo trazo(*this, color);
    std::vector<Punto> puntos{{*px, *py}};
    PintaPuntos(trazo, punta, puntos);
}

Color Superficie::Point(i32 x, i32 y) const {
    if (!Limites().Contiene(x, y)) return 0xFFFFFFFFU;
    if (!aDemanda_) return ColorDe(dibujo_.Fila(y)[x]);
    Pixel suelo = 0;
    CopiaSuelo(y, x, x + 1, &suelo);
    return ColorDe(suelo);
}

void Superficie::Print(std::string_view texto) {
    const auto x = PixelCercano(CurrentX), y = PixelCercano(CurrentY);
    if (!x || !y) return;
    const i32 alto = TextHeight(texto);
    if (!FontTransparent) {
        Trazo suelo(*this, BackColor());
        suelo.Caja({*x, *y, *x + TextWidth(texto), *y + alto});
    }
    TipografiaEnUso().PintaTexto(*this, *x, *y, texto, Font, ForeColor);
    CurrentX = 0;
    CurrentY += alto;
}

i32 Superficie::TextWidth(std::string_view texto) const {
    return TipografiaEnUso().AnchoTexto(Font, texto);
}

i32 Superficie::TextHeight(std::string_view) const {
    return TipografiaEnUso().AltoTexto(Font);
}

}  // namespace tessario
