// SPDX-License-Identifier: GPL-3.0-or-later
// The models that come with the program, brought into the player's own file after an upgrade. What
// the player has made, changed or deleted stays as it is.
#pragma once

#include <string>
#include <string_view>

namespace tessario {

// All three are the bytes of model files: the player's, the supply as it was when the two were last
// brought together (empty: never), and the supply as it is now. The result is the player's file
// with
// - models that are new in the supply added at the end, unless he has that figure already,
// - models that were renamed in the supply (the same pieces in the same places) or mended (the same
//   name) changed at their number, if the player's is the old one,
// and nothing else touched: what the player deleted was in the old supply and does not come back,
// and record numbers, by which games in progress know their model, stay.
std::string MezclaSurtido(std::string_view jugador, std::string_view visto, std::string_view nuevo);

// The same on the files: `surtido` is the path of the present supply, `carpeta` the player's folder
// of models with a trailing "/". A supply that is missing or the same as last time costs one or two
// reads. A file that cannot be written leaves everything for the next start.
void ActualizaSurtido(const std::string& surtido, const std::string& carpeta);

}  // namespace tessario
