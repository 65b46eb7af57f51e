// SPDX-License-Identifier: GPL-3.0-or-later
// The monkey in a window of the program: it presses, types, chooses in lists and turns knobs as
// chance has it, for a while, and leaves in one of the ways that there are.
#pragma once

#include <functional>

#include "platform/Controles.h"

namespace tessario {

// `hasta(n)` gives a number from 0 to n - 1. The window is closed when this returns.
void VisitaVentana(Ventana& v, const std::function<i32(i32)>& hasta);

}  // namespace tessario
