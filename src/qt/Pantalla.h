// Is there a display to open windows on? Asked before the window library is started, which would
// end the program the hard way.
#pragma once

namespace tessario {

bool HayPantalla();

}  // namespace tessario
