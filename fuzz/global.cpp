// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: the global settings, read by a start of the program.
#include "Mesa.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    MesaDeFuzz mesa;
    mesa.Escribe("TsR33.ini", Texto(bytes, n));
    Exige(Main(), "the start was refused");
    CompruebaEstado();
    return 0;
}
