// SPDX-License-Identifier: GPL-3.0-or-later
// The twelve commands of the strip: when each is allowed and what it does.
#pragma once

#include "platform/Tipos.h"
#include "table/VentanasOrdenes.h"

namespace tessario {

inline constexpr i16 BOTON_USABLE = 23, BOTON_PROHIBIDO = 12;  // values of BotonEstado

// Any mouse button runs the command.
void Pic_Boton_MouseDown(i16 Index, i16 Button, i16 Shift, float X, float Y);
// What the press does once it has been accepted: ends the other commands and carries this one out.
void CumpleOrden(i16 Index);
// Ends what the other commands have left on the table, as each command does first. False: the
// board that is being set up has no solution, and the arranging command ran in this one's place.
bool PreparaOrden(i16 Index);
// Applies the enabling rule.
void Pic_Boton_MouseMove(i16 Index, i16 Button, i16 Shift, float X, float Y);
// Is the command forbidden now?
bool OrdenProhibida(i16 Index);
// Is the mode or the work that the command begins going on?
bool OrdenEnMarcha(i16 Index);

}  // namespace tessario
