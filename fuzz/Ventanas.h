// SPDX-License-Identifier: GPL-3.0-or-later
// What the targets share that need the window library: one application, without a display, for all
// inputs of a run.
#pragma once

#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "qt/Estilo.h"

// What the system's library of fonts keeps to itself until the end of the program.
extern "C" const char* __lsan_default_suppressions();
extern "C" [[gnu::used]] inline const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}

namespace tessario {

inline QApplication& AplicacionDeFuzz() {
    static int n = 1;
    static char nombre[] = "fuzz", *argumentos[] = {nombre, nullptr};
    static QApplication& a = *[] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        auto* nueva = new QApplication(n, argumentos);
        VisteAplicacion();
        return nueva;
    }();
    return a;
}

inline void Exige(bool vale, const char* texto) {
    if (vale) return;
    std::fprintf(stderr, "does not hold: %s\n", texto);
    std::abort();
}

}  // namespace tessario
