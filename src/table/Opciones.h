// The options panel that a right click on the table opens.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

void MuestraOpcionesSelec();
void Pic_SelOpciones_MouseMove(i16 Button, i16 Shift, float X, float Y);
// What the choice of an option does; 1 to 4.
void CumpleOpcion(i16 opcion);
void Pic_SelOpciones_MouseUp(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
