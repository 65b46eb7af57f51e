// SPDX-License-Identifier: GPL-3.0-or-later
// The clipboard's picture has one file, which each paste overwrites. While the player may still go
// back to the puzzle in play, that puzzle's own picture lies beside it under another name; whatever
// ends the program in between, the next load of the puzzle finds it there.
#pragma once

#include <string>

namespace tessario {

// Whether a path is that of the clipboard's picture, in whatever folder.
bool EsPegada(const std::string& ruta);
// Before the file `nueva` is written: when it is the picture `propia` of the puzzle in play, that
// one is put aside. False: it could not be, and the file must not be written.
bool ApartaPegada(const std::string& nueva, const std::string& propia);
bool HayApartada(const std::string& propia);
// Brings it back to its place, if one is aside.
void DevuelvePegada(const std::string& propia);
// The new one stays.
void OlvidaApartada(const std::string& propia);

}  // namespace tessario
