// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: events on the whole table and in the program's windows. The first byte chooses the
// game, the others make the monkey's decisions.
#include <algorithm>

#include "Mesa.h"
#include "mono/Mono.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    constexpr std::size_t BYTES = 4096;  // a run stays short
    constexpr long SUCESOS = 2000;
    if (n == 0) return 0;
    NumerosDeBytes numeros(bytes + 1, std::min(n - 1, BYTES));
    Mono mono(static_cast<i16>(JuegoMoviles + bytes[0] % 3), numeros);
    try {
        mono.Corre(SUCESOS);
    } catch (const Queja& e) {
        std::fprintf(stderr, "event %ld (%s)\n", mono.Numero(), mono.Ultimo().c_str());
        Exige(false, e.what());
    }
    return 0;
}
