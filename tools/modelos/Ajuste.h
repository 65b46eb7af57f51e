// SPDX-License-Identifier: GPL-3.0-or-later
// From a lattice to pixels: pieces are nudged so that they touch, leave no seam and do not overlap.
#pragma once

#include <string>

#include "Silueta.h"
#include "platform/Region.h"

namespace tessario::modelos {

// A piece on the table; x and y are the corner of its box in pixels.
struct Colocada {
    i16 pieza = 0, giro = 0, volteo = 0;
    i32 x = 0, y = 0;
};
// The seven pieces, in number order.
using Reparto = std::vector<Colocada>;
Reparto EnPixeles(const Plan& plan);

// How far a figure is from being a good model, in pixels.
struct Defectos {
    i32 solape = 0;   // common to two pieces' regions
    i32 rendija = 0;  // of the ground, between two pieces that nearly touch
    i32 Peso() const { return 1000 * solape + rendija; }
};

// Moves pieces by single pixels while that lessens the defects.
Defectos Ajusta(Reparto& reparto);

// What is wrong with a model, or nothing: pieces that overlap, pieces without contact with the
// rest, a figure too large for the smallest table, a small hole, a hairline of ground (three pixels
// or less between two sides).
std::string Reparo(const Reparto& reparto);

// Puts the figure's box at the margins of the smallest table.
void LlevaAlMargen(Reparto& reparto);

// The figure as the table paints it, one byte a pixel, 1 inside, with a border of ground around it.
struct Sombra {
    static constexpr i32 BORDE = 2;
    i32 ancho, alto;
    std::vector<u8> pixeles;
    Sombra(i32 ancho_, i32 alto_) : ancho(ancho_), alto(alto_) {
        pixeles.resize(static_cast<std::size_t>(Paso() * (alto + 2 * BORDE)));
    }
    i32 Paso() const { return ancho + 2 * BORDE; }
    // May be indexed from -BORDE to ancho + BORDE - 1.
    u8* Fila(i32 y) { return &pixeles[static_cast<std::size_t>((y + BORDE) * Paso() + BORDE)]; }
    const u8* Fila(i32 y) const {
        return &pixeles[static_cast<std::size_t>((y + BORDE) * Paso() + BORDE)];
    }
};
Sombra PintaSombra(const Reparto& reparto);

}  // namespace tessario::modelos
