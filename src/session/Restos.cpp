// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Restos.h"

#include "core/PuzzGbl.h"
#include "records/Archivo.h"
#include "records/Historial.h"
#include "session/Pegada.h"

namespace tessario {

std::string FicheroAlEntrar() {
    return Gbl.CarpetaArchivo + "TESSA33.CSE";
}

void RecogeRestos(const std::vector<std::string>& carpetas) {
    BorraFichero(FicheroAlEntrar());
    for (const std::string& carpeta : carpetas) {
        BorraTemporales(carpeta);
        DevuelvePegada(carpeta + std::string(IMAGEN_PORTAPAPELES));
    }
}

}  // namespace tessario
