// SPDX-License-Identifier: GPL-3.0-or-later
// The screen has another size than before: the table is laid anew on it.
#pragma once

namespace tessario {

// Gives the window the size of the screen, Gbl.AnchoPantalla by Gbl.AltoPantalla, without bars.
void DimensionaMesa();
// Takes the size that the screen has now. What is in hand is dropped, the recorder switched off, a
// display in two colours ended; the game goes on as if it had been saved on the old screen and
// loaded on the new one. To be called when no work is under way.
void CambiaResolucion();

}  // namespace tessario
