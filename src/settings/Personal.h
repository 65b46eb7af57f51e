// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window: everything about the game in play, changed directly in the state. Leaving it
// does as much as was changed: nothing, a redraw, or, after a question, a new puzzle; command 2
// carries that out. What a cancelled change goes back to is kept from the opening.
#pragma once

namespace tessario {

// Puts the window's records and events in place; once, at start.
void ConectaPersonal();

void Form_Load();
void Pic_BotSalir_Click();
void Pic_BotAyuda_Click();

}  // namespace tessario
