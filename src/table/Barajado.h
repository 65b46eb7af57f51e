// Dealing the pieces, and lining the loose ones up along the sides.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Deals the pieces of the current game for a new puzzle.
void BarajaPiezas();
// Games 21 and 23: moves the pieces not yet placed away from the centre, with animation.
void OrdenaLaterales();
// FormaPiezas 3: the half of its box that a triangle fills, in TriX, TriY, TriAncho, TriAlto.
void MideTriangulo(i16 piece);

}  // namespace tessario
