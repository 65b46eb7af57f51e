// SPDX-License-Identifier: GPL-3.0-or-later
// Right and wrong pieces in two colours, and the automatic placing.
#pragma once

namespace tessario {

// Repaints the table with green for pieces in their place and red for the others while
// MostrandoColocadas is on; otherwise with the pieces as they are.
void MostrarPiezasBienoMal();
// Places the pieces one after the other before the player's eyes. Game 22: the sliding solver.
void ResuelvePuzzle();

}  // namespace tessario
