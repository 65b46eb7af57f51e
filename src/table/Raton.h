// SPDX-License-Identifier: GPL-3.0-or-later
// The mouse machine of Pic_Trabajo: hover, pick-up, drag, drop, rotation, the end of a game. The
// state is a set of flags tested in fixed orders.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

void Pic_Trabajo_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Trabajo_MouseMove(i16 Button, i16 Shift, float X, float Y);
void Pic_Trabajo_MouseUp(i16 Button, i16 Shift, float X, float Y);
// Turns the piece under the pointer, in hand or not, one step for each notch. False: there is none
// that could be turned.
bool Pic_Trabajo_MouseWheel(i16 Pasos, float X, float Y);
// The options that the game offers now become active, and their panel opens at the last press.
void ActivaOpciones();
void Pic_Trabajo_Click();
void Pic_Trabajo_KeyPress(i16 KeyAscii);
// Drops the piece in hand, if there is one, with the pointer at this point: whatever begins anew
// begins with empty hands.
void SueltaLoQueHaya(i16 X, i16 Y);

}  // namespace tessario
