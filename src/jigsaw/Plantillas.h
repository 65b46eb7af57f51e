// SPDX-License-Identifier: GPL-3.0-or-later
// The two cutting templates of the interlocking shapes, side by side on Pic_Temporal: A for cells
// of even row + column, B for the odd ones. PreparaPieza copies a piece's mask from them.
#pragma once

#include "platform/Superficie.h"

namespace tessario {

// Ellipses of the interlocking shapes: height over width on the level and on the upright sides.
inline constexpr double CURVADO_ASPECTO = 0.3, CURVADO_ASPECTO2 = 3.0;
inline constexpr double IRREGULAR_ASPECTO = 0.35, IRREGULAR_ASPECTO2 = 2.85;

// Shapes 1 and 2: margins, box, templates and, for shape 2, the seam repair.
void CreaPlantillas();

// An arc of an outline in ForeColor. Centre and radius in pixels, angles in degrees,
// counter-clockwise; aspect 0 stands for a circle.
struct Arco {
    double x, y, radio, inicio, fin, aspecto;
};
void TrazaArco(Superficie& s, const Arco& a);

// Sides of a curved cell, in drawing order.
enum LadoCurvado { CURVADO_ARRIBA, CURVADO_DERECHA, CURVADO_ABAJO, CURVADO_IZQUIERDA };
// The arc of one side of the curved cell at (x, y), from one angle to the other.
Arco ArcoCurvado(LadoCurvado lado, double x, double y, double inicio, double fin);

}  // namespace tessario
