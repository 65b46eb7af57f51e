// The masks of PreparaPieza, one routine for each game, and the outline that the Tangram's painters
// share. Pic_PiezaMascara comes out sized to the piece's unturned box, black inside, white outside.
#pragma once

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

void MascaraMoviles(i16 piece);
void MascaraDeslizantes();
// Measures the piece and fills its corners for PiezaAux's orientation.
void MascaraTangram(i16 piece);

// Corners of a Tangram piece: 3 for the triangles, else 4.
i16 VerticesDePieza(i16 piece);
// Closed outline through the corners in TVerticeX, TVerticeY, moved by (x, y), in ForeColor.
void TrazaContorno(Superficie& s, i16 piece, i32 x, i32 y);

}  // namespace tessario
