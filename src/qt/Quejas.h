// SPDX-License-Identifier: GPL-3.0-or-later
// What the window library has to complain of is no business of the player's terminal: a runtime
// folder that is not set, a clipboard that has gone, a damaged picture. The game tells what matters
// in its own words.
#pragma once

namespace tessario {

// From now on only what ends the program is written. To be called before the application is made.
void CallaQuejas();

}  // namespace tessario
