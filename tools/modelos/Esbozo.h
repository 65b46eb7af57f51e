// SPDX-License-Identifier: GPL-3.0-or-later
// A sketch of a figure, for the search. A file of sketches holds
//
//     = Name of the sketch
//     P 0,0 4,0 4,3          polygon
//     L 1.5 0,0 3,3 5,3      line of that thickness
//     C 2 5,5                disc of that radius
//     D 2 5,5                square standing on its corner, from the middle to a corner
//     2 P 0,0 1,0 1,1        counts twice: a part that matters more than its size
//     M 10                   all that stands above is mirrored at x = 10
//     K 6 1 5,5              the piece 6, turned 1, is wanted with its middle there (-1: any turn)
//
// in units of one's choice, y downwards. The size is brought to that of the seven pieces.
#pragma once

#include <string>
#include <vector>

#include "platform/Tipos.h"

namespace tessario::modelos {

struct Real {
    double x = 0, y = 0;
};

struct Trozo {
    double peso = 1;
    double radio = 0;          // of a disc or half the thickness of a line; 0 for a polygon
    std::vector<Real> puntos;  // one of a disc, two of a line, the corners of a polygon
};

struct Deseo {
    i16 pieza = 0, giro = -1;
    Real centro;
};

struct Esbozo {
    std::string nombre;
    std::vector<Trozo> trozos;
    std::vector<Deseo> deseos;
};

std::vector<Esbozo> LeeEsbozos(const std::string& ruta);

// The sketch as a chart of worth: positive inside, falling off with the distance outside. A cell is
// 1 / FINURA of the square piece's side.
struct Carta {
    static constexpr i32 FINURA = 10;
    i32 ancho = 0, alto = 0;
    std::vector<float> valor;
    std::vector<Deseo> deseos;  // in sides of the square piece
    float En(double x, double y) const {
        const auto i = static_cast<i32>(x * FINURA), j = static_cast<i32>(y * FINURA);
        if (x < 0 || y < 0 || i >= ancho || j >= alto) return FUERA;
        return valor[static_cast<std::size_t>(j * ancho + i)];
    }
    static constexpr float FUERA = -3;
};
Carta Traza(const Esbozo& esbozo);

}  // namespace tessario::modelos
