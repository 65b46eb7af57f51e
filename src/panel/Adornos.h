// SPDX-License-Identifier: GPL-3.0-or-later
// The chrome that the windows share: frame of a window, framed group with its title, text with a
// shadow, long button.
#pragma once

#include <string>

#include "core/Paleta.h"
#include "platform/Controles.h"
#include "platform/Superficie.h"

namespace tessario {

// The ground of the windows and of their groups.
inline constexpr Color FONDO_VENTANA = paleta::tinta::GRUPO.Fondo;
inline constexpr i32 ALTO_BOTON_LARGO = 23;  // pixels; its width is the surface's own

// A raised edge one pixel wide round the whole window.
void MarcoVentana(Superficie& ventana);
// Clears a panel to the ground and draws an etched frame round it, the title in the middle of its
// upper side.
void MarcoPanel(Superficie& destino, const std::string& titulo);
// Blue text at (x + 1, y + 1) over the same in white at (x, y). Not transparent: the white one
// stands on a box of the surface's BackColor. Leaves the surface's text transparent and blue.
void TextoConSombra(Superficie& destino, double x, double y, const std::string& texto,
                    bool transparente);
// The face of a long button over the whole width of the surface.
void DibujaBotonLargo(Superficie& boton, bool pulsado);
// The face and its caption, which sinks by a pixel with the button.
void PintaBotonLargo(Superficie& boton, const std::string& rotulo, bool pulsado);

}  // namespace tessario
