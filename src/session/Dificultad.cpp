// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Dificultad.h"

#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

void CalculaDificultad() {
    AnotaDificultad(JuegoEnCurso().Dificultad);
}

}  // namespace tessario
