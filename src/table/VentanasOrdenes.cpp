#include "table/VentanasOrdenes.h"

namespace tessario {

VentanasDeOrdenes VentanasOrdenes;

}  // namespace tessario
