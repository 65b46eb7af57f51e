// SPDX-License-Identifier: GPL-3.0-or-later
// The jigsaw's deal, and the lining up of its loose pieces along the sides.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Shuffles the stacking order and throws every piece on the free table.
void BarajaMoviles();
// Moves the pieces not yet placed to the sides, one after the other.
void OrdenaMoviles();
// FormaPiezas 3: the half of its box that a triangle fills, in TriX, TriY, TriAncho, TriAlto.
void MideTriangulo(i16 piece);

}  // namespace tessario
