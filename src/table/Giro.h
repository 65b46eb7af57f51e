// SPDX-License-Identifier: GPL-3.0-or-later
// One step of rotation.
#pragma once

namespace tessario {

// Turns PiezaActual one step clockwise, its visual centre kept.
void GiraPieza();

}  // namespace tessario
