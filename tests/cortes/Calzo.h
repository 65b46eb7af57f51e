// SPDX-License-Identifier: GPL-3.0-or-later
// A wedge between the program and the system: the calls that open or change files are counted, and
// one of them can be the last thing that the process does, or can fail.
#pragma once

namespace tessario::calzo {

enum class Modo {
    Cuenta,  // all calls are carried out
    Mata,    // the process ends in place of the call
    Falla,   // the call fails with the error given
    Corta,   // a write writes half of what it was given; another call is carried out
    Llena,   // the same, and whatever is written afterwards fails with the error given
};

// From now on, until Quita: the n-th call, from 1, gets the treatment.
void Pon(Modo modo, int n, int error = 0);
void Quita();
// Calls since Pon.
int Llamadas();

inline constexpr int SALIDA_MATADO = 77;  // exit status of a process that was ended

}  // namespace tessario::calzo
