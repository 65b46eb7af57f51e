// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/EscrituraAparte.h"

#include <system_error>

#include "records/Archivo.h"

namespace tessario {

void EscrituraAparte::Empieza(const std::string& ruta, const std::string& bytes) {
    Espera();
    try {
        hilo_ = std::thread([ruta, bytes] { EscribeFichero(ruta, bytes); });
    } catch (const std::system_error&) {
        EscribeFichero(ruta, bytes);  // a system that gives no thread: the player waits
    }
}

void EscrituraAparte::Espera() {
    if (hilo_.joinable()) hilo_.join();
}

}  // namespace tessario
