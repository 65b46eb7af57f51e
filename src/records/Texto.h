// Text files with fixed columns: quoting, encoding, case-blind names, and writing whole or not at
// all. In memory text is UTF-8; on disk one byte is one character, Windows-1252.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Tipos.h"

namespace tessario {

std::string A1252(std::string_view utf8);  // a character that has no code becomes "?"
std::string De1252(std::string_view bytes);
// What the player sees of bytes of the file system: UTF-8, or else taken as Windows-1252; on one
// line.
std::string TextoDeRuta(std::string_view bytes);

// A quoted line: the text in double quotes, quotes inside doubled. `De` gives back the text of
// the first quoted item, or the line itself when it has no quotes. A line feed, which the name of a
// file or folder may hold, would split the line: it is written as a byte 0, which no name holds.
std::string Entrecomilla(std::string_view texto);
std::string DeComillas(std::string_view linea);

// The file under this path whatever the letter case of its last parts and whichever slashes; the
// path itself when there is none.
std::string BuscaRuta(const std::string& ruta);

// Reads a whole file. 0, or the error number: 53, 75, 76, 7 above `maximo` bytes.
i16 LeeFichero(const std::string& ruta, std::string& bytes, std::size_t maximo = 64U << 20);
// Replaces the file whole or leaves it as it was. 0, or the error number.
i16 EscribeFichero(const std::string& ruta, std::string_view bytes);
// Appends one line, CR LF at its end, whole or not at all; makes the file if it is missing, and
// ends a last line that had no end. Programs that append at once wait for each other. 0, or the
// error number.
i16 AnadeLinea(const std::string& ruta, std::string_view linea);
// Is there a file that can be opened for reading?
bool SeAbre(const std::string& ruta);
// 0, or the error number.
i16 BorraFichero(const std::string& ruta);

// Lines of a file, without their ends; CR LF, LF and a missing last end are all taken.
std::vector<std::string> Lineas(std::string_view bytes);

}  // namespace tessario
