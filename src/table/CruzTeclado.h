// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard's pointer on the main window: a cross that the arrows move. It presses and moves by
// the same events of the same records as the mouse, so that all that follows is one road. Where
// pieces move by themselves an arrow presses the piece that goes that way.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Puts the cross into the window; once, at start, after its controls.
void ConectaCruz();
// A key of the window. False: it is none of the cross's.
bool TeclaDeCruz(i16 KeyCode, i16 Shift);
// The pointer, be it the mouse or the cross, is at this point of the table: there the cross will
// appear.
void AnotaPuntero(float X, float Y);
// Lets go of what the cross holds, where it is.
void SueltaCruz();
// Takes the cross off the window until a key brings it back; what it holds stays in hand.
void EscondeCruz();

}  // namespace tessario
