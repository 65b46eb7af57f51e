// A figure as it is described: one or more silhouettes drawn in cells. A description file holds
//
//     = Name of the figure
//     u 0 0
//     █◣
//     ◥█
//     v 2u+1v -1u
//     ◢◣
//
// `u` opens a silhouette whose cells are as large as the square piece, `v` one whose cells are half
// the square's diagonal; the two numbers place its corner. A cell is full (█), empty (. or blank)
// or one half of a square (◤ ◥ ◢ ◣, the right angle where the glyph has it). All silhouettes of a
// figure together hold exactly the seven pieces; which piece lies where is found by the tool.
#pragma once

#include <string>
#include <vector>

#include "platform/Tipos.h"

namespace tessario::modelos {

// Side of a cell in pixels, by kind. The pieces' corners lie on these lattices.
inline constexpr i32 LADO_U = 62, LADO_V = 44;

// Quarters of a cell: north, east, south, west, cut by its two diagonals.
struct Cuarto {
    i32 x = 0, y = 0, lado = 0;
    friend bool operator==(const Cuarto&, const Cuarto&) = default;
};

struct Silueta {
    bool girada = false;   // v, not u
    i32 izq = 0, arr = 0;  // corner, pixels
    std::vector<Cuarto> cuartos;
    i32 Lado() const { return girada ? LADO_V : LADO_U; }
};

struct Descripcion {
    std::string nombre;
    std::string origen;  // file and line, for messages
    std::vector<Silueta> siluetas;
};

// Reads one description file. Throws std::runtime_error with file and line on a bad one.
std::vector<Descripcion> LeeDescripciones(const std::string& ruta);

}  // namespace tessario::modelos
