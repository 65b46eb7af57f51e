// SPDX-License-Identifier: GPL-3.0-or-later
// Moulds: the masks that a cut needs, each drawn once and then copied for every piece of its kind.
#pragma once

#include <span>

#include "core/Superficies.h"
#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Where a mask stands on a surface, and the border over it.
struct VistaMascara {
    const Superficie* Origen;
    i32 X, Y, Ancho, Alto;
    std::span<const PixelBorde> Borde;
};

// The mask of PiezaAux, which is the piece of this number, before its turn. Error 9 outside the
// games.
VistaMascara MascaraDePieza(i16 piece);
// The same in each game. The Tangram's measures the piece and fills its corners and its inner
// point.
VistaMascara MascaraMovil(i16 piece);
VistaMascara MascaraDeslizante(i16 piece);
VistaMascara MascaraTangram(i16 piece);

}  // namespace tessario
