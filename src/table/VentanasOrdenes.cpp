// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/VentanasOrdenes.h"

namespace tessario {

VentanasDeOrdenes VentanasOrdenes;
void (*SalidaDelPrograma)() = nullptr;

}  // namespace tessario
