// SPDX-License-Identifier: GPL-3.0-or-later
// The difficulty figure of a puzzle.
#pragma once

namespace tessario {

// Sets Dificultad, 0.1 to 99.9, for the current game.
void CalculaDificultad();

}  // namespace tessario
