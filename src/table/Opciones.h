// SPDX-License-Identifier: GPL-3.0-or-later
// The options panel that a right click on the table opens.
#pragma once

#include <vector>

#include "platform/Tipos.h"

namespace tessario {

void MuestraOpcionesSelec();
// Makes the options active and opens the panel without a mouse: in the middle of the view, the
// first row lit and the keyboard on it.
void AbreOpcionesConTeclado();
std::vector<Rect> ZonasOpciones();  // its rows
void Pic_SelOpciones_MouseMove(i16 Button, i16 Shift, float X, float Y);
// What the choice of an option does; 1 to 4.
void CumpleOpcion(i16 opcion);
void Pic_SelOpciones_MouseUp(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
