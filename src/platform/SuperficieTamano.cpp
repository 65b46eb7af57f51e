// SPDX-License-Identifier: GPL-3.0-or-later
// Sizing for surfaces that are drawn anew each time, as a piece's are: nothing of the old drawing
// is kept, and the buffer is used again.
#include <algorithm>
#include <utility>

#include "platform/Superficie.h"

namespace tessario {

void Superficie::TamanoLibre(i32 ancho, i32 alto) {
    aDemanda_ = false;
    ancho_ = dibujo_.Ancho = std::max(ancho, 0);
    alto_ = dibujo_.Alto = std::max(alto, 0);
    dibujo_.Pixeles.resize(static_cast<std::size_t>(ancho_) * static_cast<std::size_t>(alto_));
    picture_ = nullptr;
    Marca(Limites());
}

void Superficie::TamanoLimpio(i32 ancho, i32 alto) {
    TamanoLibre(ancho, alto);
    std::fill(dibujo_.Pixeles.begin(), dibujo_.Pixeles.end(), PixelDe(fondo_));
    CurrentX = CurrentY = 0;
}

void Superficie::CambiaDibujo(Superficie& otra) {
    for (const Superficie* s : {this, &otra})
        if (s->aDemanda_) s->HazDibujo();
    std::swap(dibujo_, otra.dibujo_);
    for (Superficie* s : {this, &otra}) {
        s->ancho_ = s->dibujo_.Ancho;
        s->alto_ = s->dibujo_.Alto;
        s->picture_ = nullptr;
        s->Marca(s->Limites());
    }
}

}  // namespace tessario
