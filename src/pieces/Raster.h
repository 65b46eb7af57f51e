// SPDX-License-Identifier: GPL-3.0-or-later
// A piece's pixels, rebuilt on demand: PreparaPieza makes Pic_PiezaMascara and Pic_PiezaImagen,
// which hold one piece at a time. Whoever prepared a piece and then called anything that prepares
// another must prepare its own again.
#pragma once

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Fills both surfaces; PiezaAux is left as a copy of the piece. The image is 0 wherever the mask
// is white.
void PreparaPieza(i16 piece);
// Turns a surface's image by 1, 2 or 3 quarter turns clockwise.
void GiraSuperficie(Superficie& surface, i16 giro);
// The Tangram silhouette: all seven pieces, or the one given (0: all).
void TPintaFigura(Superficie& surface, i16 piece = 0);
// Takes one piece's part from the silhouette on Pic_Imagen.
void TBorraFigura(i16 piece);

}  // namespace tessario
