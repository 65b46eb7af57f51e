// The automatic solver of the sliding board: staged best-first search.
#pragma once

namespace tessario {

// Searches the moves that bring the first piece not yet placed home without losing those before:
// RutaSolucion and LongitudRuta. The table does not change. False when there are none.
bool BuscaSolucion();
// Solves the board before the player's eyes.
void ResuelveDeslizantes();

}  // namespace tessario
