// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Medidas.h"

#include "rules/Juego.h"

namespace tessario {

void CalculaTamanos() {
    JuegoEnCurso().Mide();
}

}  // namespace tessario
