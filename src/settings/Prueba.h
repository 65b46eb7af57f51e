// SPDX-License-Identifier: GPL-3.0-or-later
// The attraction test: a small piece that is pushed towards its hole and, from the distance that
// the chosen factor allows, flies into it.
#pragma once

namespace tessario {

// The table in small with its hole, the piece at its start, the button.
void PintaPrueba();
// Runs the test.
void Pic_BotPrueba_MouseDown();

}  // namespace tessario
