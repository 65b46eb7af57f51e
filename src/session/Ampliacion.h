// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of the puzzle at its zoomed size, and the limits of that size.
#pragma once

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Limits of the jigsaw's image as zoomed, pixels, both included.
inline constexpr i32 IMAGEN_ANCHO_MIN = 320, IMAGEN_ANCHO_MAX = 1024;
inline constexpr i32 IMAGEN_ALTO_MIN = 240, IMAGEN_ALTO_MAX = 768;

// Size of Pic_FonTamModi for the current image, zoom and margins.
Punto TamanoConZoom();
// Stretches the whole of Pic_FonTamReal into Pic_FonTamModi at its zoomed size, margins left free.
// Error 7 for a size that no picture has.
void AmpliaImagen();
// Makes Pic_FonTamModi an empty picture of the smallest size.
void VaciaImagen();
// Sizes a surface for a picture, but never by numbers that no screen or image has: error 7.
void TamanoRazonable(Superficie& s, double ancho, double alto);

}  // namespace tessario
