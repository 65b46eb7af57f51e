// SPDX-License-Identifier: GPL-3.0-or-later
// Finds which of the seven pieces lies where in a figure's silhouettes.
#pragma once

#include <functional>
#include <vector>

#include "Silueta.h"

namespace tessario::modelos {

// Area of the silhouettes in small triangles; the seven pieces make 16.
double Area(const Descripcion& figura);

// Calls `visita` with every way to fill the silhouettes, until it answers false.
void Reparte(const Descripcion& figura, const std::function<bool(const Plan&)>& visita);

}  // namespace tessario::modelos
