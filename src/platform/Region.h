// SPDX-License-Identifier: GPL-3.0-or-later
// Regions: sets of lattice points kept as rectangles, built from boxes and polygons and combined.
// Used for clipping and for the exact overlap test of pieces.
#pragma once

#include <span>
#include <vector>

#include "platform/Tipos.h"

namespace tessario {

// Result codes of the combining operations.
inline constexpr int REGION_VACIA = 1;     // no point
inline constexpr int REGION_SIMPLE = 2;    // one rectangle
inline constexpr int REGION_COMPLEJA = 3;  // several rectangles

// Modes of CombineRgn.
inline constexpr int RGN_AND = 1;
inline constexpr int RGN_OR = 2;
inline constexpr int RGN_XOR = 3;
inline constexpr int RGN_DIFF = 4;
inline constexpr int RGN_COPY = 5;

// Invariants: the rectangles are not empty and do not overlap; they stand in bands, every rectangle
// of a band having the same top and bottom; bands go down, rectangles within a band go right; two
// rectangles of a band never touch, and two adjacent bands never have the same columns (they would
// have been one band). So equal sets have equal lists.
class Region {
public:
    Region() = default;
    explicit Region(const Rect& r);

    const std::vector<Rect>& Rectangulos() const { return rects_; }
    bool Vacia() const { return rects_.empty(); }
    int Codigo() const;  // REGION_VACIA, REGION_SIMPLE or REGION_COMPLEJA
    Rect Caja() const;   // smallest rectangle around all; empty for an empty region
    bool Contiene(i32 x, i32 y) const;
    // The rectangles of the band that holds the row, from left to right; none if no band does.
    std::span<const Rect> Banda(i32 y) const;
    // The rectangles from the first band that reaches below the row, to the end.
    std::span<const Rect> Desde(i32 y) const;
    i32 Area() const;  // number of points; the largest i32 when there are more
    // Shifts all points; those that would leave the range of i32 are dropped.
    void Desplaza(i32 dx, i32 dy);
    bool Valida() const;  // do the invariants hold? For debug builds and tests.

    friend bool operator==(const Region&, const Region&) = default;

private:
    friend int CombineRgn(Region&, const Region&, const Region&, int);
    friend Region CreatePolygonRgn(std::span<const Punto>);
    friend Region RegionDeTramos(std::span<const Rect>);
    std::vector<Rect> rects_;
};

// The region of a rectangle; its corners may be given in any order. Right and bottom are exclusive.
Region CreateRectRgn(i32 izq, i32 arr, i32 der, i32 aba);
void SetRectRgn(Region& r, i32 izq, i32 arr, i32 der, i32 aba);

// The region of a closed polygon by the winding rule. A lattice point is inside by half-open edges:
// rows from the smallest y up to but not including the largest; in a row, x from the first
// crossing, included, to the second, excluded. Fewer than three corners give the empty region.
// Corners are first brought within LIMITE_POLIGONO of the origin, several times what an i16 holds.
inline constexpr i32 LIMITE_POLIGONO = 1 << 17;
Region CreatePolygonRgn(std::span<const Punto> vertices);

// The region of runs of pixels: one row high, in order of rows and columns, none over another.
Region RegionDeTramos(std::span<const Rect> tramos);

// destino := a (mode) b, and its result code. destino may be one of the operands. Difference is
// a without b; a copy takes a alone. Any other mode empties destino.
int CombineRgn(Region& destino, const Region& a, const Region& b, int modo);

// Do the two regions have a point in common? The answer of an intersection without building it.
bool SeCortan(const Region& a, const Region& b);

}  // namespace tessario
