// SPDX-License-Identifier: GPL-3.0-or-later
// All sizes of the puzzle on the table, derived from the settings.
#pragma once

namespace tessario {

// Reads the settings of the current game and writes NumPiezas, the cell, the puzzle area, the
// margins and, in the Tangram, its size tables.
void CalculaTamanos();

}  // namespace tessario
