// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics of the puzzle on the table; the player's name is written here.
#pragma once

#include "platform/Controles.h"

namespace tessario {

extern Ventana Estadis;
extern Cuadro Tex_Estadis;           // the panel `Texto` with the lines
extern CajaTexto Tex_NombreJugador;  // `Tex_Nombre`, in the last of them
extern Cuadro Pic_BotAyudaEstadis, Pic_BotSalirEstadis;

// Prints the lines. Returns the top of the last one, pixels of the panel.
i32 Estadisticas();

// Puts the window together; once, at start.
void ConectaEstadis();

}  // namespace tessario
