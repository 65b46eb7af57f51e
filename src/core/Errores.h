// SPDX-License-Identifier: GPL-3.0-or-later
// The pending error, and the written-out form of "errors suppressed statement by statement".
#pragma once

#include "core/Fallos.h"
#include "platform/Tipos.h"

namespace tessario {

// The number of the last error that Sigue swallowed since it was last cleared, 0 for none.
i16 ErrorPendiente();
void BorraError();
void PonErrorPendiente(i16 numero);

// Runs one statement; a run-time error in it becomes the pending one and execution goes on.
template <class F>
void Sigue(F&& sentencia) {
    try {
        sentencia();
    } catch (const ErrorEjecucion& e) {
        PonErrorPendiente(e.Numero);
    }
}

// Runs a routine that looks after its own errors: what it swallows inside leaves no trace here,
// what it throws becomes the pending error.
template <class F>
void Llama(F&& rutina) {
    const i16 antes = ErrorPendiente();
    i16 lanzado = 0;
    try {
        rutina();
    } catch (const ErrorEjecucion& e) {
        lanzado = e.Numero;
    }
    PonErrorPendiente(lanzado != 0 ? lanzado : antes);
}

}  // namespace tessario
