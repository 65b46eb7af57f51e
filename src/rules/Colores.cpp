// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Colores.h"

#include <algorithm>

#include "core/Paleta.h"
#include "core/PuzzGbl.h"

namespace tessario {

namespace {

constexpr i32 PASO_RELIEVE = 40;
constexpr i16 LUZ_CLARA = 129;  // from here on a table is light

struct Canales {
    i32 azul, verde, rojo;
};

Canales Separa(Color c) {
    const i32 valor = static_cast<i32>(c);
    const i32 resto = valor % 65536;
    return {valor / 65536, resto / 256, resto % 256};
}

Color Sombra(Color c, i32 paso) {
    const Canales k = Separa(c);
    const auto canal = [paso](i32 v) { return static_cast<Color>(std::clamp(v + paso, 0, 255)); };
    return canal(k.azul) * 65536 + canal(k.verde) * 256 + canal(k.rojo);
}

Color Contraste() {
    constexpr Color negro = paleta::NEGRO, blanco = paleta::BLANCO, gris = paleta::GRIS_CLARO;
    // Black or white would vanish against the table or against the pieces.
    if ((Gbl.ColorFondo == negro && Gbl.ColorPiezas == blanco) ||
        (Gbl.ColorFondo == blanco && Gbl.ColorPiezas == negro))
        return gris;
    // Deliberate: these weights are the game's own and not those of a published luma rule.
    const Canales k = Separa(Gbl.ColorFondo);
    const i16 luz = Entero((0.8 * k.rojo + 2.0 * k.verde + 0.2 * k.azul) / 3.0);
    return luz >= LUZ_CLARA ? negro : blanco;
}

}  // namespace

void CalculaColores() {
    Gbl.ColorContraste = Contraste();
    Gbl.ColorFondoClaro = Sombra(Gbl.ColorFondo, PASO_RELIEVE);
    Gbl.ColorFondoOscuro = Sombra(Gbl.ColorFondo, -PASO_RELIEVE);
    Gbl.ColorPiezasClaro = Sombra(Gbl.ColorPiezas, PASO_RELIEVE);
    Gbl.ColorPiezasOscuro = Sombra(Gbl.ColorPiezas, -PASO_RELIEVE);
}

}  // namespace tessario
