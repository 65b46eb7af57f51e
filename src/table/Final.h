// SPDX-License-Identifier: GPL-3.0-or-later
// The end of a game that the player has solved.
#pragma once

namespace tessario {

// Stops the clock, gives the table its finished look, congratulates, and offers a result that
// qualifies to the history.
void FinDeJuego();

}  // namespace tessario
