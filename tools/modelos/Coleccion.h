// SPDX-License-Identifier: GPL-3.0-or-later
// The collection that is delivered: every description built, checked and compared with the others.
#pragma once

#include <string>
#include <vector>

#include "Ajuste.h"
#include "Estudio.h"

namespace tessario::modelos {

struct Modelo {
    std::string nombre;
    Reparto reparto;  // its box at the margins of the smallest table
    Figura figura;
    i32 dadas = 0;  // pieces that the silhouette gives away
};

struct Coleccion {
    std::vector<Modelo> modelos;       // those that are good, in the order of the descriptions
    std::vector<std::string> reparos;  // why the others are not: "file:line: name: fault"
};

// Refused is what does not fill its silhouettes with the seven pieces, what has a fault (Estudio.h,
// Ajuste.h), what gives away another number of pieces than it says, what is another figure turned
// or mirrored (save for paradoxes), and a name that is too long, used before or outside the file's
// characters. Wants PreparaTablas.
Coleccion Reune(const std::vector<Descripcion>& figuras);

// By the first word of the title, and within one from easy to hard: what gives away the most pieces
// first, of equals what has the most corners. The two of a paradox stay together.
void Ordena(std::vector<Modelo>& modelos);

}  // namespace tessario::modelos
