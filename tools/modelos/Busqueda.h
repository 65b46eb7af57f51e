// SPDX-License-Identifier: GPL-3.0-or-later
// Finds arrangements of the seven pieces, joined edge to edge, that come near to a sketch.
#pragma once

#include <array>
#include <random>

#include "Esbozo.h"
#include "Exacto.h"

namespace tessario::modelos {

struct Hallazgo {
    double nota = 0;  // the higher the nearer
    std::array<Puesta, 7> puestas;
};

// The best different arrangements found in so many attempts, best first.
std::vector<Hallazgo> Busca(const Carta& carta, i32 intentos, std::size_t cuantos, u32 semilla);

}  // namespace tessario::modelos
