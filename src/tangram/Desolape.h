// SPDX-License-Identifier: GPL-3.0-or-later
// Tangram pieces never lie on each other: a piece that overlaps others is pushed off them.
#pragma once

#include "platform/Region.h"
#include "platform/Tipos.h"

namespace tessario {

// After this many pushes without an end, a drop takes the nearest free place instead: the pushes
// follow a rule that a tight ring of pieces can lead round and round. Real drops need a handful.
inline constexpr i16 MAX_EMPUJES = 200;

// Pushes PiezaActual off the pieces it overlaps, each time by the shortest of the eight ways that
// keeps it on the table, and draws it anew. Only that piece moves. TEmpujes counts the pushes,
// TCaminoPilas holds the directions of the first twenty. Without a current piece nothing happens
// but that TEmpujes is 0.
void TDesolapaPieza();

// The region of a piece's polygon where the piece stands now, from its corners in TVerticeX and
// TVerticeY.
Region TRegionPieza(i16 piece, i32 dx = 0, i32 dy = 0);

}  // namespace tessario
