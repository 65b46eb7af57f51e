// How a piece of the sliding game moves: by the player's press, by the animated shuffle, and by
// hand in the manual ordering.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Hover of game 22 for a piece whose box holds the pointer: sets CursorDeseado. True ends the walk.
bool CursorDeslizante(i16 piece);
// The press on PiezaActual: the complete move into the hole.
void PulsaDeslizante();
// Shuffle by real moves, without its frame (busy cursor and so on, BarajaPiezas).
void BarajaConMovimientos();
// Command 11 in game 22: enters or leaves the manual ordering, with its questions.
void OrdenManualDeslizantes();

}  // namespace tessario
