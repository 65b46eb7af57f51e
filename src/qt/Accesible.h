// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive programs are told of the views: role, name, state, value, and that they can be
// pressed.
#pragma once

namespace tessario {

// Once, after the application object is made.
void InstalaAccesibilidad();

}  // namespace tessario
