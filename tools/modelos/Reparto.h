// Finds which of the seven pieces lies where in a figure's silhouettes.
#pragma once

#include <functional>
#include <vector>

#include "Silueta.h"

namespace tessario::modelos {

// A piece on the table; x and y are the corner of its box in pixels.
struct Colocada {
    i16 pieza = 0, giro = 0, volteo = 0;
    i32 x = 0, y = 0;
};

// The seven pieces, in number order.
using Reparto = std::vector<Colocada>;

// Area of the silhouettes in small triangles; the seven pieces make 16.
double Area(const Descripcion& figura);

// Calls `visita` with every way to fill the silhouettes, until it answers false.
void Reparte(const Descripcion& figura, const std::function<bool(const Reparto&)>& visita);

}  // namespace tessario::modelos
