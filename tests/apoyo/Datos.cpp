// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Datos.h"

namespace tessario {

const char* const DATOS = TESSARIO_DATOS;
const char* const CARPETA_MODELOS = TESSARIO_DATOS "../../resources/modelos/";
const char* const CARPETA_ESTRENO = TESSARIO_DATOS "../../resources/estreno/";
const char* const FICHERO_SURTIDO = TESSARIO_DATOS "../../resources/modelos/Modelos.tpu";

}  // namespace tessario
