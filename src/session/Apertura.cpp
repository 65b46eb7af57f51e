// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Apertura.h"

#include "core/Superficies.h"

namespace tessario {

void AbrePersonal() {
    constexpr i32 personalizar = 2;
    Pulsa(Pic_Boton(personalizar));
}

}  // namespace tessario
