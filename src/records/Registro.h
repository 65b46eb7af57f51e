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

// A sliding board that was saved on a screen of another size takes the grid of this one: pieces,
// hole and log. Needs the sizes.
void AdaptaTablero();

// Does the state that was read hold together: the counts agree with the settings, the stacking
// order is a permutation? Needs the sizes.
bool RegistroCoherente();

}  // namespace tessario
