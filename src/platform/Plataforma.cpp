// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Plataforma.h"

#include <cassert>

namespace tessario {

namespace {
Plataforma* enUso = nullptr;
}

Plataforma& Sistema() {
    assert(enUso && "PonSistema comes first");
    return *enUso;
}

void PonSistema(Plataforma* p) {
    enUso = p;
    PonTipografia(p);
}

}  // namespace tessario
