#include "table/VentanasOrdenes.h"

namespace tessario {

VentanasDeOrdenes VentanasOrdenes;
void (*SalidaDelPrograma)() = nullptr;

}  // namespace tessario
