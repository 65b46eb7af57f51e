// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures that the player brings from other programs: dropped on a window, or pasted.
#pragma once

#include "platform/Controles.h"

namespace tessario {

// Takes the first picture of what was dropped, or of the clipboard, into Gbl.ImagenTraida. False:
// there is none, and the player has been told.
bool TomaTraido(const Traido& traido);
bool TomaPegado();

}  // namespace tessario
