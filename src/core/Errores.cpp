// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Errores.h"

#include "core/PuzzGbl.h"

namespace tessario {

i16 ErrorPendiente() {
    return Gbl.ErrorPendiente;
}
void BorraError() {
    Gbl.ErrorPendiente = 0;
}
void PonErrorPendiente(i16 numero) {
    Gbl.ErrorPendiente = numero;
}

}  // namespace tessario
