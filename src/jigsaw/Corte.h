// SPDX-License-Identifier: GPL-3.0-or-later
// The cut of the jigsaw: the table's surfaces, the templates of the interlocking shapes, the cut
// lines on the picture.
#pragma once

#include "platform/Superficie.h"

namespace tessario {

// Builds the table of game 21. True creates and shuffles the pieces; false keeps them.
void CreaMoviles(bool nuevo);
// Draws the cut lines of FormaPiezas and sets the shape parameters. Above 7 draws nothing.
void TrazaCortes(Superficie& surface);

}  // namespace tessario
