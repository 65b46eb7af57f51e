// SPDX-License-Identifier: GPL-3.0-or-later
// Text helpers that count characters, not bytes (text in memory is UTF-8), and numbers in text, the
// same in every locale.
#pragma once

#include <string>
#include <string_view>

#include "platform/Tipos.h"

namespace tessario {

i32 Len(std::string_view texto);
// `largo` characters from position `inicio`, counted from 1; what is missing is missing.
std::string Mid(std::string_view texto, i32 inicio, i32 largo);
std::string Left(std::string_view texto, i32 largo);
std::string Trim(std::string_view texto);
std::string RTrim(std::string_view texto);
// Cut or blank padded to exactly `ancho` characters.
std::string Ajusta(std::string_view texto, i32 ancho);
// The number with at least `digitos` digits, zeros in front; a minus sign comes on top.
std::string Ceros(i32 n, i32 digitos);
// Right-aligned in `ancho` columns with blanks in front; a longer number stands whole.
std::string Derecha(i32 n, i32 ancho);
std::string Minusculas(std::string_view texto);  // ASCII letters only

// Val-like readings. `ok` false when the text (blanks trimmed) is no whole number in the range.
bool LeeEntero(std::string_view texto, i32& valor);
bool LeeReal(std::string_view texto, double& valor);  // point or comma as separator

// The last part of a path, with slashes of either kind; the path itself when it has none.
std::string NombreDeRuta(std::string_view ruta);

}  // namespace tessario
