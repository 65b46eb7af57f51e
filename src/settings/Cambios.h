// SPDX-License-Identifier: GPL-3.0-or-later
// What each control of the settings window changes while the window is open: options, mode, ground,
// models, shapes, colours; and the keys of the window.
#pragma once

#include <set>
#include <string>

#include "platform/Tipos.h"

namespace tessario {

// Puts the change events in place.
void ConectaCambios();

// The lay-out for the game in play, painted anew.
void PintaPersonal();
// What the Tangram's mode allows: list of models, preview, attraction.
void TActSegunModo();
// The list of models from the file; none is chosen.
// Those named are marked as solved.
void LlenaModelos(const std::set<std::string>& resueltos);

void Lis_Modelos_Click();
// "D" asks, and deletes the chosen model.
void Lis_Modelos_KeyPress(i16 KeyAscii);
void Pic_TipPuz_MouseDown(i16 forma);

}  // namespace tessario
