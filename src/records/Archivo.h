// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files: read with a bound, replaced whole or not at all, lengthened by a line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Tipos.h"

namespace tessario {

// Reads a whole file. 0, or the error number: 53, 75, 76, 7 above `maximo` bytes.
i16 LeeFichero(const std::string& ruta, std::string& bytes, std::size_t maximo = 64U << 20);
// Replaces the file whole or leaves it as it was. 0, or the error number.
i16 EscribeFichero(const std::string& ruta, std::string_view bytes);
// Appends one line, CR LF at its end, whole or not at all; makes the file if it is missing, and
// ends a last line that had no end. Programs that append at once wait for each other, but not for
// one that hangs. What is no file is not written to. 0, or the error number.
i16 AnadeLinea(const std::string& ruta, std::string_view linea);
// Makes the folder of a file, and those above it, where they are gone.
void AseguraCarpetaDe(const std::string& ruta);
// Is there a file that can be opened for reading?
bool SeAbre(const std::string& ruta);
// 0, or the error number.
i16 BorraFichero(const std::string& ruta);
// Deletes what replacements that were cut short left in a folder, with its trailing "/"; files of
// another owner and whatever else lies there stay.
void BorraTemporales(const std::string& carpeta);

}  // namespace tessario
