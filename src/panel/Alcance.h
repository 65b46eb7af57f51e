// SPDX-License-Identifier: GPL-3.0-or-later
// Where a loose piece can be taken: its centre in the view, and clear of the strip and the hints.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Moves the piece so far that its centre lies in the visible table that the strip and the hint
// panel leave free. Changes its record only. True: it was moved.
bool LlevaALaVista(i16 piece);
// Brings in the loose pieces that no scrolling can reach, as a game has them that was kept on a
// larger screen, and lays the table anew if there was one; the log of moves leads to their new
// places. To be called when a kept game has been laid; games 21 and 23, the others are left alone.
void TraeLoInalcanzable();

}  // namespace tessario
