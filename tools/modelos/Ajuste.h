// From a lattice to pixels: pieces are nudged so that they touch, leave no seam and do not overlap.
#pragma once

#include <string>

#include "Reparto.h"
#include "platform/Region.h"

namespace tessario::modelos {

// How far a figure is from being a good model, in pixels.
struct Defectos {
    i32 solape = 0;   // common to two pieces' regions
    i32 rendija = 0;  // of the ground, between two pieces that nearly touch
    i32 Peso() const { return 1000 * solape + rendija; }
};

// Moves pieces by single pixels while that lessens the defects.
Defectos Ajusta(Reparto& reparto);

// What is wrong with a model, or nothing: pieces that overlap, pieces without contact with the
// rest, a figure too large for the smallest table.
std::string Reparo(const Reparto& reparto);

// Puts the figure's box at the margins of the smallest table.
void LlevaAlMargen(Reparto& reparto);

// The figure as the table paints it, one byte a pixel, 1 inside.
struct Sombra {
    i32 ancho = 0, alto = 0;
    std::vector<u8> pixeles;
    u8 En(i32 x, i32 y) const {
        if (x < 0 || y < 0 || x >= ancho || y >= alto) return 0;
        return pixeles[static_cast<std::size_t>(y * ancho + x)];
    }
};
Sombra PintaSombra(const Reparto& reparto);

}  // namespace tessario::modelos
