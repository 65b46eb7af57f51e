// SPDX-License-Identifier: GPL-3.0-or-later
// The seven pieces in exact geometry: which sides two of them share, how far they stand apart.
#pragma once

#include <array>
#include <vector>

#include "Silueta.h"

namespace tessario::modelos {

// In how many of its eight turns each piece looks different; the last one alone has two faces.
inline constexpr std::size_t PIEZAS = 7;
inline constexpr std::array<i16, PIEZAS + 1> GIROS = {0, 8, 8, 8, 8, 8, 2, 4};
constexpr i16 Caras(i16 pieza) {
    return pieza == PIEZAS ? 2 : 1;
}

struct Vertice {
    double x = 0, y = 0;
};

// A side of a piece: where it begins, in which of the eight directions it runs (0 right, 2 down)
// and how long it is.
struct Lado {
    double x = 0, y = 0;
    i32 rumbo = 0;
    double largo = 0;
    i32 angulo = 0;  // inside, where it begins, in eighths of a turn
};

// Shadow of a piece on the axes x, y, x + y and x - y: with these four, two pieces overlap when all
// four shadows do.
struct Sombras {
    std::array<double, 4> desde{}, hasta{};
};

// One orientation of a piece, its first corner at the origin.
struct Figurin {
    i16 pieza = 0, giro = 0, volteo = 0;
    std::vector<PuntoExacto> vertices;
    std::vector<PuntoExacto> asideros;  // corners and middles of the sides: where another may join
    std::vector<Lado> lados;
    Sombras sombras;
    std::array<double, 2> centro{};
    std::vector<Vertice> muestras;  // points spread evenly over it
    PuntoExacto esquina;            // of its box
};

// All orientations that look different, of one piece.
const std::vector<Figurin>& Figurines(i16 pieza);

// A piece in its place: the first corner at `origen`.
struct Puesta {
    const Figurin* figurin = nullptr;
    PuntoExacto origen;
    double x = 0, y = 0;  // of the origin
};
Puesta Pon(const Figurin& figurin, PuntoExacto origen);

// How far two pieces stand apart along the axis that parts them most: negative when they overlap,
// 0 when they touch.
double Separacion(const Puesta& a, const Puesta& b);
// Length along which they lie side by side.
double LadoComun(const Puesta& a, const Puesta& b);

// The eighths of a turn around a point that a piece fills, one bit each; 0 when it does not reach
// it.
u32 Octavos(const Puesta& p, double x, double y);

// Is the point in it, its edge included?
bool Cubre(const Puesta& p, double x, double y);

// From and to the corner of the box.
Puesta Pon(const Sitio& sitio);
Sitio SitioDe(const Puesta& p);

}  // namespace tessario::modelos
