#include "core/PuzzGbl.h"

namespace tessario {

Bloque Gbl;

}  // namespace tessario
