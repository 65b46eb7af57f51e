// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Numeros.h"

#include <limits>

namespace tessario {

namespace {

// To the nearest, halves to even, whatever rounding mode the process has.
double Redondea(double x) {
    const double abajo = std::floor(x);
    const double resto = x - abajo;
    if (resto < 0.5) return abajo;
    if (resto > 0.5) return abajo + 1;
    return std::fmod(abajo, 2.0) == 0.0 ? abajo : abajo + 1;
}

template <class T>
T Comprobado(double x) {
    const double r = Redondea(x);
    if (!(r >= std::numeric_limits<T>::min() && r <= std::numeric_limits<T>::max()))
        throw ErrorEjecucion(ERROR_DESBORDE);
    return static_cast<T>(r);
}

}  // namespace

i16 Entero(double x) {
    return Comprobado<i16>(x);
}
i32 EnteroLargo(double x) {
    return Comprobado<i32>(x);
}

i16 Corto(i32 x) {
    if (x < std::numeric_limits<i16>::min() || x > std::numeric_limits<i16>::max())
        throw ErrorEjecucion(ERROR_DESBORDE);
    return static_cast<i16>(x);
}

}  // namespace tessario
