// SPDX-License-Identifier: GPL-3.0-or-later
// What an X server keeps for this process, asked over a connection of its own (extension
// X-Resource).
#pragma once

namespace tessario {

struct RecursosX {
    // By number, without those of the asking connection.
    long ventanas = 0, punteros = 0, otros = 0;
    long pixmaps = 0;  // bytes
};

// All zero without a server in DISPLAY, or when it is not a local one without keys.
RecursosX PideRecursosX();

}  // namespace tessario
