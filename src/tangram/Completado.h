// SPDX-License-Identifier: GPL-3.0-or-later
// Twin pieces may take each other's place.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Swaps XBien, YBien, GiroBien and VolteoBien of a piece with those of its twin. A piece without a
// twin, and a number that is no Tangram piece, change nothing.
void TCambiaGemela(i16 piece);

}  // namespace tessario
