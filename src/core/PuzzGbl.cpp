// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/PuzzGbl.h"

namespace tessario {

Bloque Gbl;

}  // namespace tessario
