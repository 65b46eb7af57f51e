// SPDX-License-Identifier: GPL-3.0-or-later
// From process start to a table ready for play, and the orderly end.
#pragma once

#include <string>

namespace tessario {

// The whole start-up. Returns when the window loop takes over; false if the player refused.
bool Main();
// Tests whether the program's folder can be written; if not, moves the settings to a working one.
void PreparaCarpetas();
// The user's data folder, with a trailing "/".
std::string CarpetaSistema();
// One-time filling of constants.
void Inicializa();
// Writes the global settings and the current game's record, closes Mesa and ends the program.
void TerminaPrograma();

}  // namespace tessario
