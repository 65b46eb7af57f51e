// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: BMP files.
#include <cstdlib>

#include "platform/Dib.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    constexpr long long PIXELES = 1 << 22;
    const Bytes fichero(bytes, n);
    i32 ancho = 0, alto = 0;
    if (MideBmp(fichero, ancho, alto) != Lectura::Bien) return 0;
    if (static_cast<long long>(ancho) * alto > PIXELES) return 0;
    Mapa m;
    if (LeeBmp(fichero, m) != Lectura::Bien) return 0;
    if (m.Ancho != ancho || m.Alto != alto) std::abort();
    for (const Pixel p : m.Pixeles)
        if (p >> 24) std::abort();
    return 0;
}
