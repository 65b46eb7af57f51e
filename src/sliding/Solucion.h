// SPDX-License-Identifier: GPL-3.0-or-later
// The automatic solver of the sliding board: staged best-first search. The order in which states
// are expanded is laid down to the last tie, so the board alone determines the moves.
#pragma once

namespace tessario {

class Busqueda;

// Searches the moves that bring the first piece not yet placed home without losing those before:
// RutaSolucion and LongitudRuta. The table does not change. False when there are none: a board
// that is solved, that cannot be solved, or that is no board at all; LongitudRuta is then 0.
bool BuscaSolucion();
// The same with a searcher that serves many stages and keeps its memory between them.
bool BuscaSolucion(Busqueda& busqueda);
// Solves the board before the player's eyes.
void ResuelveDeslizantes();

}  // namespace tessario
