// The picture of a jigsaw that has none yet, chosen without the player.
#pragma once

namespace tessario {

// Takes the place of the settings window until there is one: the first picture of CarpetaImagenes
// in name order that loads and can be zoomed into the limits becomes the puzzle's, and the puzzle
// is dealt afresh. With none, the player is told and the table goes on with an empty picture.
void EligeImagenProvisional();

}  // namespace tessario
