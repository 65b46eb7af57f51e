// SPDX-License-Identifier: GPL-3.0-or-later
// The sample view and its dragging.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// From the sample view, where it is first put, to the edges of the work area, pixels.
inline constexpr i32 MUESTRA_AL_BORDE = 15;

// The thin frame of the sample view, drawn when its picture is new: without it the sample's edge
// reads as loose pieces.
void EnmarcaMuestra();

void Pic_Muestra_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Muestra_MouseMove(i16 Button, i16 Shift, float X, float Y);
void Pic_Muestra_MouseUp(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
