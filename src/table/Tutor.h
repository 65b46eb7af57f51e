// SPDX-License-Identifier: GPL-3.0-or-later
// The tutor shows where a chosen piece belongs.
#pragma once

namespace tessario {

// Flashes the place of PiezaActual three times.
void TutorIndicando();

}  // namespace tessario
