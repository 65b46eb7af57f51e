// SPDX-License-Identifier: GPL-3.0-or-later
// What the programs of this folder share: the game's tables set for the smallest table, and a
// picture of a figure.
#pragma once

#include <filesystem>

#include "Ajuste.h"

namespace tessario::modelos {

// Sizes of the pieces, as on a table of 800 x 600.
void PreparaTablas();

// The figure as a grey picture (PGM).
void Dibuja(const Reparto& reparto, const std::filesystem::path& ruta);

}  // namespace tessario::modelos
