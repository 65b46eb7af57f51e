// SPDX-License-Identifier: GPL-3.0-or-later
// How the masks are drawn, and the outline that the Tangram's painters share. A surface that takes
// a mask comes sized to the piece's unturned box and white, with pen and fill black.
#pragma once

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

struct Pieza;

// The sides of a jigsaw piece that lie on the picture's edge.
struct BordesPieza {
    bool Izq, Der, Arr, Aba;
    bool Alguno() const { return Izq || Der || Arr || Aba; }
};
BordesPieza BordesDe(const Pieza& z);

// Shapes 1 and 2: the template at column x of Pic_Temporal, cut off and straightened on the
// picture's edges.
void DibujaDePlantilla(Superficie& s, i32 x, const BordesPieza& b);
// The other shapes. Class of the piece in its cell: shape 3, its number modulo 4; shapes 4 to 7,
// 0 the figure and 1 the frame.
void DibujaFigura(Superficie& s, i32 clase);
void DibujaDeslizante(Superficie& s);
// The bevel of a sliding piece. The pen is two pixels wide, so it also paints outside the mask.
void TrazaRelieve(Superficie& s);
// Needs the piece's measure, corners and inner point.
void DibujaTangram(Superficie& s, i16 piece);

// Corners of a Tangram piece: 3 for the triangles, else 4.
i16 VerticesDePieza(i16 piece);
// Closed outline through the corners in TVerticeX, TVerticeY, moved by (x, y), in ForeColor.
void TrazaContorno(Superficie& s, i16 piece, i32 x, i32 y);

}  // namespace tessario
