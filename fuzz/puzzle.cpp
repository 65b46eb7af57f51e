// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: a saved puzzle that the player loads over a game in play; the first byte chooses
// which game that is.
#include "Mesa.h"
#include "core/PuzzGbl.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    if (n == 0) return 0;
    MesaDeFuzz mesa;
    const char* const global[] = {"\"21-1100-1", "\"22-1100-1", "\"23-1100-1"};
    mesa.Escribe("TsR33.ini", global[bytes[0] % 3] + std::string(116, ' ') + "\"\r\n");
    Exige(Main(), "the start was refused");
    const std::string fichero = mesa.Escribe("Archivo/uno.puz", Texto(bytes + 1, n - 1));
    LeeAjustesJuego(fichero);
    CompruebaEstado();
    // What was laid is saved and laid again as the same.
    const std::string una = EscribePuzzle();
    LeePuzzle(una);
    CompruebaEstado();
    return 0;
}
