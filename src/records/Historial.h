// SPDX-License-Identifier: GPL-3.0-or-later
// The history of solved puzzles: one line of 23 comma-separated items for each, texts in double
// quotes, numbers plain. Texts are in Windows-1252, except the picture's file and folder, which
// are the file system's own bytes. Writer and reader; the window is windows/Historic.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "core/PuzzGbl.h"
#include "platform/Tipos.h"

namespace tessario {

// Name under which a picture from the clipboard is kept.
inline constexpr std::string_view IMAGEN_PORTAPAPELES = "tsportap.bmp";

// Path of the history file.
std::string FicheroHistorico();

// The puzzle as it stands, without date and time.
RegistroHistorico FichaDelPuzzle();
// The line of the puzzle solved now, without a line end.
std::string LineaHistorico();
// Appends that line, making the file if it is missing. 0, or the error number; the file is then as
// it was. What another program has appended meanwhile stays.
i16 EntraEnHistorico();

// One line into a record. An item that is missing or does not convert is blank or 0; false when
// the game itself cannot be read.
bool LeeLineaHistorico(std::string_view linea, RegistroHistorico& r);
// Reads the file: the current game's records into Gbl.Historico in the order of the file, the last
// one's index into UltimoHistorico. 0, or the error number; there is then no record.
i16 LeeHistorico();
// Names of the models that the file holds as solved; none when it cannot be read.
std::set<std::string> ModelosResueltos();

}  // namespace tessario
