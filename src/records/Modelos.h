// The Tangram's models: fixed records of 126 characters.
#pragma once

#include <string>

#include "platform/Controles.h"

namespace tessario {

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
