// SPDX-License-Identifier: GPL-3.0-or-later
// What is to be known and settled about the display before the window library is started.
#pragma once

#include <string>
#include <string_view>

namespace tessario {

// Is there a display to open windows on? Without one the library would end the program the hard
// way.
bool HayPantalla();
// Whole scale factors only, also where the desktop asks the library for others: a pixel of the
// table is a square of the screen's pixels.
void PideEscalaEntera();
// The value of a variable that gives the library scale factors, "1.5" or "DP-1=1.5;DP-2=2", with
// each factor rounded down, to 1 at least. What is no number stays.
std::string EscalasEnteras(std::string_view valor);

}  // namespace tessario
