// SPDX-License-Identifier: GPL-3.0-or-later
// What the lines of the text files are made of: encoding, quoting, fixed columns both ways, and
// names without regard to case. In memory text is UTF-8; on disk one byte is one character,
// Windows-1252. Whole files are read and written by records/Archivo.
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

// Fixed columns of a line that has one byte for a character, counted from 1.
struct Columnas {
    i32 desde, ancho;
};
// What stands there; what is missing is missing.
std::string_view DeColumnas(std::string_view linea, Columnas c);
// Puts a value into a line that is long enough; one that is too wide is cut on the right, one too
// short leaves what was behind it.
void PonColumnas(std::string& linea, Columnas c, std::string_view valor);
// The same of a number with zeros in front.
void PonColumnas(std::string& linea, Columnas c, i32 numero);
const char* TextoLogico(bool b);  // "-1" or "0 "
// What a field holds. Error 13 when it is no number.
i32 NumeroDeCampo(std::string_view campo);
double RealDeCampo(std::string_view campo);
bool LogicoDeCampo(std::string_view campo);

// A number that a record of a list keeps in columns of its own.
template <class T>
struct CampoDe {
    Columnas donde;
    i16 T::*dato;
};
template <class T, std::size_t N>
void PonCampos(std::string& entrada, const CampoDe<T> (&campos)[N], const T& de) {
    for (const CampoDe<T>& c : campos) PonColumnas(entrada, c.donde, de.*c.dato);
}

// The quoted item at the front, which begins with its quote, taken off with its closing one.
std::string TomaEntrecomillado(std::string_view& resto);
// The next line, taken off the front without its end; CR LF, LF and a missing last end are all
// taken.
std::string_view TomaLinea(std::string_view& bytes);
// All lines of a file.
std::vector<std::string> Lineas(std::string_view bytes);

}  // namespace tessario
