// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window as the records need it: a puzzle that wants a picture asks the player for
// one.
#pragma once

namespace tessario {

// Presses the command button of the settings.
void AbrePersonal();

}  // namespace tessario
