// SPDX-License-Identifier: GPL-3.0-or-later
// The Tangram: the record of game 23, its sizes, its deal, and what is its own in the routines that
// all games share.
#pragma once

#include "rules/Juego.h"

namespace tessario {

extern const Juego JUEGO_TANGRAM;

}  // namespace tessario
