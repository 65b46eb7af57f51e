// SPDX-License-Identifier: GPL-3.0-or-later
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
//
// A figure that fits no lattice names its pieces instead, seven lines of
//
//     p <piece> <turn> <turned over> <x> <y>
//
// with the corner of the piece's box. A line `d <n>` records how many of the seven pieces the
// silhouette gives away (Estudio.h).
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "platform/Tipos.h"

namespace tessario::modelos {

// Side of a cell in pixels, by kind. The pieces' corners lie on these lattices.
inline constexpr i32 LADO_U = 62, LADO_V = 44;

// A coordinate in halves of cells: u/2 + v * sqrt(2)/4, where 1 is the side of the square piece.
// Every corner of pieces joined edge to edge has such coordinates.
struct Medio {
    i32 u = 0, v = 0;
    double Valor() const { return u * 0.5 + v * (std::sqrt(2.0) / 4); }
    i32 Pixeles() const { return u * (LADO_U / 2) + v * (LADO_V / 2); }
    friend Medio operator+(Medio a, Medio b) { return {a.u + b.u, a.v + b.v}; }
    friend Medio operator-(Medio a, Medio b) { return {a.u - b.u, a.v - b.v}; }
    friend bool operator==(const Medio&, const Medio&) = default;
};

struct PuntoExacto {
    Medio x, y;
    friend PuntoExacto operator+(PuntoExacto a, PuntoExacto b) { return {a.x + b.x, a.y + b.y}; }
    friend PuntoExacto operator-(PuntoExacto a, PuntoExacto b) { return {a.x - b.x, a.y - b.y}; }
    friend bool operator==(const PuntoExacto&, const PuntoExacto&) = default;
};

// A piece and the corner of its box.
struct Sitio {
    i16 pieza = 0, giro = 0, volteo = 0;
    PuntoExacto esquina;
};
// The seven pieces, in number order.
using Plan = std::vector<Sitio>;

// Quarters of a cell: north, east, south, west, cut by its two diagonals.
struct Cuarto {
    i32 x = 0, y = 0, lado = 0;
    friend bool operator==(const Cuarto&, const Cuarto&) = default;
};

struct Silueta {
    bool girada = false;  // v, not u
    PuntoExacto esquina;
    std::vector<Cuarto> cuartos;
    i32 filas = 0;  // read so far
    // So many whole cells.
    Medio Celdas(i32 n) const { return girada ? Medio{0, 2 * n} : Medio{2 * n, 0}; }
};

struct Descripcion {
    std::string nombre;
    std::string origen;  // file and line, for messages
    i32 dadas = -1;      // recorded number of pieces given away, -1 when there is none
    std::vector<Silueta> siluetas;
    Plan plan;  // empty when the figure is drawn in cells
};

// Reads one description file. Throws std::runtime_error with file and line on a bad one.
std::vector<Descripcion> LeeDescripciones(const std::string& ruta);

}  // namespace tessario::modelos
