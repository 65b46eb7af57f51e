// SPDX-License-Identifier: GPL-3.0-or-later
// How a piece of the sliding game moves: by the player's press, by the animated shuffle, and by
// hand in the manual ordering.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Hover of game 22 for a piece whose box holds the pointer: PiezaActual and CursorDeseado. True
// ends the walk.
bool CursorDeslizante(i16 piece);
// The piece that goes into the hole on this way: 1 north, 2 east, 3 south, 4 west; 0 none.
i16 DeslizanteQueVa(i16 lado);
// The press on PiezaActual: the complete move into the hole. The release closes and logs it.
void PulsaDeslizante();
// Shuffle by real moves, without its frame (busy cursor and so on, BarajaPiezas).
void BarajaConMovimientos();
// Command 11 in game 22: enters or leaves the manual ordering, with its questions. The caller
// pauses the clock around it.
void OrdenManualDeslizantes();

// One move: the piece goes to the top of the stack and slides into the hole with its sound, for
// whose end it waits or not. XOrigen, YOrigen are where it was; ArrastrandoPieza is left true and
// the hole not yet exchanged, since what comes between is the caller's.
void JuegaPieza(i16 piece, bool espera);
// The hole takes XOrigen, YOrigen: the end of a move.
void HuecoAlOrigen();

}  // namespace tessario
