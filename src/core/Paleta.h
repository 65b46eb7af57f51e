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

// How much two colours differ in lightness, 1 to 21: (L + 0.05) / (l + 0.05) of their relative
// luminances. Text wants 4.5 at least.
double Contraste(Color a, Color b);
inline constexpr double CONTRASTE_DE_LECTURA = 4.5;
// Black or white, whichever a text of this colour reads better on; one of them always suffices.
Color Contrario(Color c);

}  // namespace tessario::paleta
