// SPDX-License-Identifier: GPL-3.0-or-later
// Laying the pieces on the table and counting those that stand in their place.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Draws every piece in stacking order on a cleared Pic_Imagen and recounts. Modo 0 repaints the
// table after every piece, 1 once at the end; with any other the caller repaints.
void ColocaPiezas(i16 Modo);
// Recounts the pieces in their place and shows the count.
void MuestraColocadas();
// The counter's display, without a recount.
void PintaColocadas();

}  // namespace tessario
