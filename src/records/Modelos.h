// SPDX-License-Identifier: GPL-3.0-or-later
// The Tangram's models: fixed records of 126 characters.
#pragma once

#include <string>
#include <string_view>

#include "platform/Controles.h"

namespace tessario {

// One record: columns 1 to 25 the name, 26 to 95 the pieces, 125 and 126 the end of the record. One
// byte is one character.
inline constexpr std::size_t LARGO_MODELO = 126;
std::string RegistroModeloLibre();
std::string_view NombreModelo(std::string_view registro);
// How the seven pieces lie, as it is written.
std::string_view PiezasModelo(std::string_view registro);
// Free: a name of blanks, or of the zero bytes of a file that was extended without being written.
bool ModeloLibre(std::string_view registro);

// Fills a list with the names, the record number as each item's data.
void CargaListaModelos(Lista& lista);
// Record ModeloActual into XBien, YBien, GiroBien, VolteoBien of the seven pieces.
void LeeModelo();
// Stores the arrangement on the table under a name in the first free record.
void GuardaModelo(const std::string& nombre);
// Frees record ModeloActual, without a question.
void BorraModelo();
// Path of the model file.
std::string FicheroModelos();

}  // namespace tessario
