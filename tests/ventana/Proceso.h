// SPDX-License-Identifier: GPL-3.0-or-later
// Programs that a window test starts, none of which outlives it.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "ventana/Escritorio.h"

namespace tessario::ventana {

// Starts a program with its output thrown away, or its errors in a file; `descriptor` stays open in
// it.
struct Lanzamiento {
    std::vector<std::string> orden;
    std::string pantalla;
    int descriptor = -1;
    Entorno entorno = {};
    std::string errores = "/dev/null";
    unsigned usuario = 0;  // 0: ourselves; another one only where we may choose
};

pid_t Lanza(const Lanzamiento& l);
// Asks it to end, then makes it.
void Termina(pid_t pid);

}  // namespace tessario::ventana
