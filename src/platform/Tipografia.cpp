// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Tipografia.h"

#include <cassert>

namespace tessario {

namespace {
Tipografia* enUso = nullptr;
}

Tipografia& TipografiaEnUso() {
    assert(enUso && "PonSistema comes first");
    return *enUso;
}

void PonTipografia(Tipografia* letras) {
    enUso = letras;
}

}  // namespace tessario
