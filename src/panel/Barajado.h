// SPDX-License-Identifier: GPL-3.0-or-later
// The frame around dealing the pieces and around lining the loose ones up along the sides; what
// lies in between is each game's own.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Deals the pieces of the current game for a new puzzle.
void BarajaPiezas();
// The count of a new puzzle, in all games: empty log, time 0, chronometer running.
void ReiniciaPartida();
// Moves the pieces not yet placed away from the centre, with animation.
void OrdenaLaterales();

// For the games' own side arrangement. Runs a piece to its place at the side, logged, with its
// sound.
void ApartaPieza(i16 piece, i32 x, i32 y);
// Lets events run between two pieces. False: the arrangement was called off.
bool SigueOrdenando();

}  // namespace tessario
