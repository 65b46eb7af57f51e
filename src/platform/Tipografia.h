// SPDX-License-Identifier: GPL-3.0-or-later
// Tipografia: what a surface asks to print and to measure text. The platform is one; a surface
// knows no more of it.
#pragma once

#include <string_view>

#include "platform/Tipos.h"

namespace tessario {

class Superficie;
struct Fuente;

class Tipografia {
public:
    virtual ~Tipografia() = default;
    // Widths and heights in pixels; PintaTexto clips to the surface and its clip.
    virtual i32 AnchoTexto(const Fuente& f, std::string_view texto) = 0;
    virtual i32 AltoTexto(const Fuente& f) = 0;
    virtual void PintaTexto(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f,
                            Color color) = 0;
};

// The letters in use; PonSistema puts the platform's.
Tipografia& TipografiaEnUso();
void PonTipografia(Tipografia* letras);

}  // namespace tessario
