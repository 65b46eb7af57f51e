// The colours that follow from those that the player has chosen.
#pragma once

namespace tessario {

// ColorContraste and the four shades, from ColorFondo and ColorPiezas.
void CalculaColores();

}  // namespace tessario
