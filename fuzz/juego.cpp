// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: the file of a game, read by a start of the program; the first byte chooses the game.
// The same file is then read by the exit's and the next start's road.
#include "Mesa.h"
#include "core/PuzzGbl.h"
#include "session/Configuracion.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    if (n == 0) return 0;
    MesaDeFuzz mesa;
    const std::string juego = std::to_string(21 + bytes[0] % 3);
    mesa.Escribe("TsR33.ini", "\"" + juego + "-1100-1" + std::string(116, ' ') + "\"\r\n");
    mesa.Escribe("TsR" + juego + "33.ini", Texto(bytes + 1, n - 1));
    Exige(Main(), "the start was refused");
    CompruebaEstado();
    GuardaAjustesJuego();
    LeeAjustesJuego(FicheroDelJuego());
    CompruebaEstado();
    return 0;
}
