// The writer of the history of solved puzzles: one line of 23 comma-separated items for each, texts
// in double quotes, numbers plain. Texts are in Windows-1252, except the picture's file and folder,
// which are the file system's own bytes.
#pragma once

#include <string>

#include "platform/Tipos.h"

namespace tessario {

// Path of the history file.
std::string FicheroHistorico();
// The line of the puzzle as it stands, without a line end.
std::string LineaHistorico();
// Appends that line, making the file if it is missing. 0, or the error number; the file is then as
// it was.
i16 EntraEnHistorico();

}  // namespace tessario
