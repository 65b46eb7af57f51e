// SPDX-License-Identifier: GPL-3.0-or-later
// What pulls a dropped piece to its place.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// The place test at a drop: the piece on top of the stack goes to its exact place when it lies near
// enough and is rightly turned; it may take the place of its like. True when the piece went home.
bool AtraeASuSitio();

}  // namespace tessario
