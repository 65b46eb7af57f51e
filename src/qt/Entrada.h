// Window-system input in the game's codes: button and shift masks, key codes, characters.
#pragma once

#include <QKeyEvent>

#include "platform/Tipos.h"

namespace tessario {

i16 BotonDe(Qt::MouseButton boton);       // 1, 2, 4; 0 for buttons the game does not know
i16 BotonesDe(Qt::MouseButtons botones);  // their sum
i16 ShiftDe(Qt::KeyboardModifiers m);     // 1 shift, 2 control, 4 alt
i16 KeyCodeDe(const QKeyEvent& e);        // 0: a key that the game does not know
i16 KeyAsciiDe(const QKeyEvent& e);       // 0: the key writes nothing

}  // namespace tessario
