// SPDX-License-Identifier: GPL-3.0-or-later
// Undo: the last move is taken back as the recorder does it, without the recorder's own pauses.
#pragma once

namespace tessario {

// Takes the last move of the log back; the game goes on from there. Refused, with the sound of a
// refusal, where the recorder cannot be switched on or has nothing to go back to.
void Deshaz();

}  // namespace tessario
