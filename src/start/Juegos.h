// SPDX-License-Identifier: GPL-3.0-or-later
// The games of the program, put together in one table.
#pragma once

namespace tessario {

// Puts the table of games in use; first of all at start, and in whatever else runs the games.
void InstalaJuegos();

}  // namespace tessario
