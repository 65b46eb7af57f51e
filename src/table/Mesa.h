// SPDX-License-Identifier: GPL-3.0-or-later
// Mesa, the main window: the one place where its controls' events are connected.
#pragma once

namespace tessario {

// Puts the controls into the window and connects their events; once, at start.
void ConectaMesa();

}  // namespace tessario
