// SPDX-License-Identifier: GPL-3.0-or-later
// The exact-width integers, the 16-bit Boolean and the plain geometry that every layer shares.
// Nothing here knows of puzzles or of a window system.
#pragma once

#include <algorithm>
#include <cstdint>

namespace tessario {

using i16 = std::int16_t;
using i32 = std::int32_t;
using u8 = std::uint8_t;
using u32 = std::uint32_t;

// A colour as the game speaks of it: blue * 65536 + green * 256 + red.
using Color = u32;

// A pixel as surfaces hold it: 0x00RRGGBB, the upper byte always 0.
using Pixel = u32;

// The two orders differ by an exchange of red and blue, so one routine serves both ways.
constexpr u32 CambiaRojoAzul(u32 v) {
    return ((v & 0xFFU) << 16) | (v & 0xFF00U) | ((v >> 16) & 0xFFU);
}
constexpr Pixel PixelDe(Color c) {
    return CambiaRojoAzul(c);
}
constexpr Color ColorDe(Pixel p) {
    return CambiaRojoAzul(p);
}

// A Boolean of 16 bits, -1 or 0, as the records on disk have it. Converts from and to bool.
class Booleano {
public:
    constexpr Booleano() = default;
    constexpr Booleano(bool b) : valor_(b ? i16{-1} : i16{0}) {}
    constexpr operator bool() const { return valor_ != 0; }
    constexpr i16 Valor() const { return valor_; }

private:
    i16 valor_ = 0;
};

// A rectangle of lattice points: left and top inside, right and bottom outside.
struct Rect {
    i32 Izq = 0, Arr = 0, Der = 0, Aba = 0;

    constexpr bool Vacio() const { return Der <= Izq || Aba <= Arr; }
    constexpr i32 Ancho() const { return Der - Izq; }
    constexpr i32 Alto() const { return Aba - Arr; }
    constexpr bool Contiene(i32 x, i32 y) const {
        return x >= Izq && x < Der && y >= Arr && y < Aba;
    }
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

constexpr Rect RectDe(i32 x, i32 y, i32 ancho, i32 alto) {
    return {x, y, x + ancho, y + alto};
}

constexpr Rect Interseccion(const Rect& a, const Rect& b) {
    return {std::max(a.Izq, b.Izq), std::max(a.Arr, b.Arr), std::min(a.Der, b.Der),
            std::min(a.Aba, b.Aba)};
}

// The smallest rectangle that holds both; an empty one adds nothing.
constexpr Rect Union(const Rect& a, const Rect& b) {
    if (a.Vacio()) return b;
    if (b.Vacio()) return a;
    return {std::min(a.Izq, b.Izq), std::min(a.Arr, b.Arr), std::max(a.Der, b.Der),
            std::max(a.Aba, b.Aba)};
}

struct Punto {
    i32 x = 0, y = 0;
    friend constexpr bool operator==(const Punto&, const Punto&) = default;
};

}  // namespace tessario
