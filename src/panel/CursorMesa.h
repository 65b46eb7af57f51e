// SPDX-License-Identifier: GPL-3.0-or-later
// The pointer over the table.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Applies a cursor id to the table and notes it in CursorActual.
void AplicaCursor(i16 id);

}  // namespace tessario
