// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a record: its fixed columns written and read. Bytes are Windows-1252; columns count
// from 1. Reading touches the state block only; session/Montaje rebuilds the table from it.
#pragma once

#include <string>

#include "platform/Tipos.h"

namespace tessario {

// The fixed record and the two lists, without quotes.
std::string EscribeRegistro();
std::string EscribePiezas();
std::string EscribeMovimientos();

// Take the fields by column. A field that does not convert keeps its value and leaves an error
// pending; what a list lacks stays zero.
void LeeRegistro(const std::string& linea);
void LeePiezas(const std::string& linea);
void LeeMovimientos(const std::string& linea);

}  // namespace tessario
