// SPDX-License-Identifier: GPL-3.0-or-later
// The colours that follow from those that the player has chosen.
#pragma once

namespace tessario {

// ColorContraste and the four shades, from ColorFondo and ColorPiezas.
void CalculaColores();

}  // namespace tessario
