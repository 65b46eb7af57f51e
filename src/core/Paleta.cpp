// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Paleta.h"

#include <algorithm>
#include <cmath>

namespace tessario::paleta {

namespace {

// A channel of the standard colour space, 0 to 255, as a share of light.
double Luz(u32 canal) {
    const double c = canal / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminancia(Color c) {
    return 0.2126 * Luz(c & 0xFFU) + 0.7152 * Luz(c >> 8 & 0xFFU) + 0.0722 * Luz(c >> 16 & 0xFFU);
}

}  // namespace

double Contraste(Color a, Color b) {
    constexpr double VELO = 0.05;  // stray light that every surface returns
    const auto [oscuro, claro] = std::minmax({Luminancia(a), Luminancia(b)});
    return (claro + VELO) / (oscuro + VELO);
}

Color Contrario(Color c) {
    return Contraste(c, NEGRO) >= Contraste(c, BLANCO) ? NEGRO : BLANCO;
}

}  // namespace tessario::paleta
