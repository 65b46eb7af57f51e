// SPDX-License-Identifier: GPL-3.0-or-later
// The strip at the right: lay-out and painting.
#pragma once

#include "platform/Superficie.h"

namespace tessario {

inline constexpr i32 BOTONERA_ANCHO = 141, BOTONERA_ALTO = 463;

// Clears, places and paints the strip and what stands on it; at the start of every game.
void CargaBotonera();

}  // namespace tessario
