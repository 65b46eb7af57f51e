// SPDX-License-Identifier: GPL-3.0-or-later
// Where the tests' data and the supplied models lie. One source knows the path, so that the others
// build to the same bytes wherever the tree stands.
#pragma once

namespace tessario {

extern const char* const DATOS;            // tests/datos/
extern const char* const CARPETA_MODELOS;  // resources/modelos/
extern const char* const CARPETA_ESTRENO;  // resources/estreno/
extern const char* const FICHERO_SURTIDO;  // the supplied models

}  // namespace tessario
