// SPDX-License-Identifier: GPL-3.0-or-later
// Where the table's commands lead: windows of other rooms, and the end of the program.
#pragma once

#include "platform/Controles.h"

namespace tessario {

// The windows that commands 2, 4 and 5 and the options panel open. They are put here once, at
// start; a command whose window is not here does all that surrounds it.
struct VentanasDeOrdenes {
    Ventana* Personal = nullptr;
    Ventana* Estadis = nullptr;
    Ventana* Historic = nullptr;
    Ventana* Cargua = nullptr;  // of the options panel
};
extern VentanasDeOrdenes VentanasOrdenes;
// What command 7 does when the player has agreed; put here at start.
extern void (*SalidaDelPrograma)();

}  // namespace tessario
