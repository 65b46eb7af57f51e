// SPDX-License-Identifier: GPL-3.0-or-later
// The Tangram's table.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Builds the table of game 23; non-zero deals the pieces.
void CreaTangram(i16 nuevo);

}  // namespace tessario
