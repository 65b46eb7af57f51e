// SPDX-License-Identifier: GPL-3.0-or-later
// The saved puzzle: seven lines that hold a whole game in progress.
#pragma once

#include <string>

#include "platform/Tipos.h"

namespace tessario {

// The seven lines of the state as it stands, ready to write.
std::string EscribePuzzle();
// Takes the state from the bytes of a file and rebuilds the table. Errors stay pending.
void LeePuzzle(const std::string& bytes);
// Lays the game in play again, its pieces where they are, on a screen whose size has changed.
void RehazMesa();
// Writes the whole state, replacing what is there. 0, or the error number.
i16 GuardaPuzzle(const std::string& Ruta);
// Reads a record; CargaCorrecta says whether it could be opened.
void CargaPuzzle(const std::string& Ruta);
// The settings of a record, and nothing of the puzzle on the table; the sizes follow. CargaCorrecta
// says whether the record was there and whole.
void CargaAjustes(const std::string& Ruta);

}  // namespace tessario
