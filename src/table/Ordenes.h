// The twelve commands of the strip: when each is allowed and what it does.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Any mouse button runs the command.
void Pic_Boton_MouseDown(i16 Index, i16 Button, i16 Shift, float X, float Y);
// Applies the enabling rule.
void Pic_Boton_MouseMove(i16 Index, i16 Button, i16 Shift, float X, float Y);
// Is the command forbidden now?
bool OrdenProhibida(i16 Index);

}  // namespace tessario
