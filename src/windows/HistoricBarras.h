// SPDX-License-Identifier: GPL-3.0-or-later
// The two drawings of the history window: one bar for each listed record, and the travel buttons.
#pragma once

#include "platform/Controles.h"
#include "platform/Tipos.h"

namespace tessario {

// One bar for each record in the order of the list, its height by the difficulty, the one on show
// marked; where there are more records than columns, a column shows the hardest of its share. The
// tooltip tells the best time for the picture and the pieces of the record on show.
void DibujaBarras(Cuadro& cuadro);
// Place in the list of the bar at x, the first of its share; -1 for none.
i32 BarraEn(const Cuadro& cuadro, float x);

// The four travel buttons; `pulsado` 1 to 4 is shown pressed, 0 none.
void DibujaAdeAtr(Cuadro& cuadro, i16 pulsado);
// The button at a point, 1 to 4; 0 for none.
i16 BotonAdeAtrEn(float x, float y);

}  // namespace tessario
