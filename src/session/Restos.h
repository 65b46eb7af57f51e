// SPDX-License-Identifier: GPL-3.0-or-later
// What a run that was cut short, by a power failure or a kill, left in the game's folders.
#pragma once

#include <string>
#include <vector>

namespace tessario {

// The puzzle as it was when the settings window was opened, while that window is open.
std::string FicheroAlEntrar();

// Called before anything is read: half-written files go, and so does the copy of an open settings
// window; a picture that a pasted one was about to replace in one of the folders (each with its
// trailing "/") comes back, for the paste was never accepted.
void RecogeRestos(const std::vector<std::string>& carpetas);

}  // namespace tessario
