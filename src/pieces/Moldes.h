// Moulds: the masks that a cut needs, each drawn once and then copied for every piece of its kind.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Everything that the drawing of a mask reads, the game first. Masks of equal keys are equal pixel
// by pixel; the empty key is nobody's.
using ClaveMolde = std::array<double, 16>;

// A pixel of a piece's drawn border: its index in the box, row by row, and its colour.
struct PixelBorde {
    i32 Donde;
    Pixel Valor;
};

// A mask, black inside and white outside, the border that lies on it, and what they were drawn for.
struct Molde {
    ClaveMolde Clave{};
    Superficie Mascara;
    std::vector<PixelBorde> Borde;
};

// As many as the Tangram has: five kinds of pieces in eight turns on two faces. Of these the
// interlocking shapes use 32 (two templates, each with its edges), the other shapes at most 4, the
// sliding pieces 1.
inline constexpr std::size_t MOLDES = 5 * 8 * 2;

// Where a mask stands on a surface, and the border over it.
struct VistaMascara {
    const Superficie* Origen;
    i32 X, Y, Ancho, Alto;
    std::span<const PixelBorde> Borde;
};

// The mask of PiezaAux, which is the piece of this number, before its turn. Error 9 outside the
// games.
VistaMascara MascaraDePieza(i16 piece);
// The same in each game. The Tangram's measures the piece and fills its corners and its inner
// point.
VistaMascara MascaraMovil(i16 piece);
VistaMascara MascaraDeslizante(i16 piece);
VistaMascara MascaraTangram(i16 piece);

}  // namespace tessario
