// SPDX-License-Identifier: GPL-3.0-or-later
// What a record that contradicts itself is mended to before a table is built on it: it is laid all
// the same and does no harm. The player is told of none of this; only a board that cannot be
// solved, which session/Montaje deals anew, has a message. docs/repairs.md lists every repair.
#pragma once

namespace tessario {

// The fields that have a range of their own. Before the sizes, which follow from them.
void ReparaAjustes();
// What the pieces and the log say: orientations, the cells of a sliding board, moves that cannot
// have been made. After the sizes.
void ReparaPiezas();
// Ends the finished state of a puzzle whose pieces are not all in their places.
void ReparaTerminado();

}  // namespace tessario
