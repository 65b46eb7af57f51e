// What pulls a dropped piece into position.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// The place test at a drop, games 21 and 23: the piece on top of the stack goes to its exact place
// when it lies near enough and is rightly turned; a Tangram twin may take its twin's place. True
// when the piece went home.
bool AtraeASuSitio();
// Tangram: pushes the piece in hand up against the nearest one, by at most 5 pixels.
void PegaDosPiezas();
// The alternative search over the same state. No path of the game calls it.
void PegaDosPiezasNuevoConError();

}  // namespace tessario
