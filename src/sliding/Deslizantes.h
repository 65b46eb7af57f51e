// SPDX-License-Identifier: GPL-3.0-or-later
// The puzzle of sliding pieces: the record of game 22, its sizes, and what is its own in the
// routines that all games share.
#pragma once

#include "rules/Juego.h"

namespace tessario {

extern const Juego JUEGO_DESLIZANTES;

}  // namespace tessario
