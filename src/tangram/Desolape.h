// Tangram pieces never lie on each other.
#pragma once

namespace tessario {

// Pushes PiezaActual off the pieces it overlaps, by the shortest free way; counts in TEmpujes.
void TDesolapaPieza();

}  // namespace tessario
