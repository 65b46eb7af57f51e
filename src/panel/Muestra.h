// The sample view and its dragging.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

void Pic_Muestra_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Muestra_MouseMove(i16 Button, i16 Shift, float X, float Y);
void Pic_Muestra_MouseUp(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
