// SPDX-License-Identifier: GPL-3.0-or-later
// The palette: the colours of the program's own drawing. What the player chooses stands in Gbl.
#pragma once

#include "platform/Tipos.h"

namespace tessario::paleta {

inline constexpr Color NEGRO = 0, BLANCO = 0xFFFFFF;
inline constexpr Color GRIS = 0x808080,
                       GRIS_CLARO = 0xC0C0C0;  // shade of frames, ground of windows
inline constexpr Color AZUL = 0xFF0000, VERDE = 0x00FF00, ROJO = 0x0000FF;
inline constexpr Color CREMA = 0xD2E9F4;  // the tiles' glazes: ground, blue, and the warm red
inline constexpr Color COBALTO = 0x9A3F1F;
inline constexpr Color TERRACOTA = 0x3C51B2;
inline constexpr Color TEJA = 0x4060C0;  // frame of a table in small, ground beside a preview

// The table of a player who has not chosen yet.
inline constexpr Color FONDO_MESA = 0x800000, PIEZAS_MESA = 0x008000, CONTRASTE_MESA = BLANCO;

// A text and the ground that it stands on. Whoever paints text in colours of the program takes them
// from here; the test of the palette measures every row of TODAS.
struct Tinta {
    Color Texto, Fondo;
};
namespace tinta {
inline constexpr Tinta TITULO{COBALTO, CREMA}, MENSAJE{NEGRO, CREMA};         // of windows on cream
inline constexpr Tinta GRUPO{AZUL, GRIS_CLARO};                               // title of a group
inline constexpr Tinta ETIQUETA{NEGRO, 0xF4FAFD}, VALOR{0x800080, 0xF4FAFD};  // lines of figures
inline constexpr Tinta SUGERENCIA{AZUL, 0xD8EEF8};
inline constexpr Tinta OPCION{NEGRO, CREMA}, OPCION_ELEGIDA{BLANCO, COBALTO};
inline constexpr Tinta VISOR{0x323C32, 0xA0C3A0};  // of the clock and the counters
inline constexpr const Tinta* TODAS[] = {&TITULO,     &MENSAJE, &GRUPO,          &ETIQUETA, &VALOR,
                                         &SUGERENCIA, &OPCION,  &OPCION_ELEGIDA, &VISOR};
}  // namespace tinta

// How much two colours differ in lightness, 1 to 21: (L + 0.05) / (l + 0.05) of their relative
// luminances. Text wants 4.5 at least.
double Contraste(Color a, Color b);
inline constexpr double CONTRASTE_DE_LECTURA = 4.5;
// Black or white, whichever a text of this colour reads better on; one of them always suffices.
Color Contrario(Color c);

}  // namespace tessario::paleta
