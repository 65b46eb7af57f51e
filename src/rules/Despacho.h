// SPDX-License-Identifier: GPL-3.0-or-later
// From settings to a table: sends a new or restored puzzle to the game that builds it.
#pragma once

namespace tessario {

// CalculaTamanos, then the builder of the current game. True deals the pieces afresh; false
// rebuilds the table around the piece table as it stands. A JuegoActual outside 21 to 23 does
// nothing.
void PreparaJuego(bool Barajar);

}  // namespace tessario
