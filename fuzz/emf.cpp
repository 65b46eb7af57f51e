// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: EMF files.
#include "Metaficheros.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    return tessario::PruebaMetafichero(bytes, n);
}
