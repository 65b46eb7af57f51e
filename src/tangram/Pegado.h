// SPDX-License-Identifier: GPL-3.0-or-later
// Tangram pieces attract each other.
#pragma once

namespace tessario {

// Pushes the piece in hand up against the nearest one, by at most 5 pixels.
void PegaDosPiezas();
// The alternative search over the same state. No path of the game calls it.
void PegaDosPiezasNuevoConError();

}  // namespace tessario
