// SPDX-License-Identifier: GPL-3.0-or-later
// What a piece is geometrically: boxes, corners and seed points. Integer arithmetic on the state
// block; no drawing.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// PiezasPorCelda of a shape: 1, 1, 1, 4, 2, 2, 2, 2 for 0 to 7.
i16 PiezasDeCelda(i16 forma);

// Width and height of a piece's box as it stands. Game 23 overwrites AnchoPieza and AltoPieza.
i16 AnchoDePieza(i16 piece, i16 giro, i16 volteo);
i16 AltoDePieza(i16 piece, i16 giro, i16 volteo);

// Tangram: sets AnchoPieza and AltoPieza. Error 9 for a piece above 7.
void TMidePieza(i16 piece, i16 giro, i16 volteo);
// Tangram: corners of the piece in TVerticeX and TVerticeY; needs TMidePieza for the same three.
void TVertices(i16 piece, i16 giro, i16 volteo);
// Tangram: a point strictly inside the piece in XInterior, YInterior, relative to the box.
void TPuntoInterior(i16 piece, i16 giro, i16 volteo);
// Bounding box of the seven pieces in CajaIzq, CajaArr, CajaDer, CajaAba: where they stand for
// mode 1, where they belong otherwise.
void TCajaFigura(i16 mode);

}  // namespace tessario
