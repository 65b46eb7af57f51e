// SPDX-License-Identifier: GPL-3.0-or-later
// Scrolling of a table larger than the screen.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Free table to the right of the picture and below it, pixels.
inline constexpr i32 MESA_LIBRE = 200;

// Shows or hides the bars for the current Pic_Bitmap, with their ranges and steps.
void AjustaBarras();
// Off the visible table, hidden, value 0: games 22 and 23.
void QuitaBarras();
void BarraHor_Change();
void BarraVer_Change();

}  // namespace tessario
