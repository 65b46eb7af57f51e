// SPDX-License-Identifier: GPL-3.0-or-later
#include "tangram/Completado.h"

#include <utility>

#include "core/PuzzGbl.h"

namespace tessario {

void TCambiaGemela(i16 piece) {
    if (piece < Gbl.TGemela.Primero() || piece > Gbl.TGemela.Ultimo()) return;
    const i16 gemela = Gbl.TGemela[piece];
    if (gemela == 0) return;
    Pieza& una = Gbl.Piezas[piece];
    Pieza& otra = Gbl.Piezas[gemela];
    std::swap(una.XBien, otra.XBien);
    std::swap(una.YBien, otra.YBien);
    std::swap(una.GiroBien, otra.GiroBien);
    std::swap(una.VolteoBien, otra.VolteoBien);
}

}  // namespace tessario
