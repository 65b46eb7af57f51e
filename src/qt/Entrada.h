// SPDX-License-Identifier: GPL-3.0-or-later
// Window-system input in the game's codes: button and shift masks, key codes, characters; and what
// comes from other programs, dropped or copied there.
#pragma once

#include <QKeyEvent>
#include <string>
#include <vector>

#include "platform/Controles.h"

class QMimeData;

namespace tessario {

i16 BotonDe(Qt::MouseButton boton);       // 1, 2, 4; 0 for buttons the game does not know
i16 BotonesDe(Qt::MouseButtons botones);  // their sum
i16 ShiftDe(Qt::KeyboardModifiers m);     // 1 shift, 2 control, 4 alt
i16 ShiftDe(const QKeyEvent& e);          // with TECLA_REPETIDA for a key that is held
i16 KeyCodeDe(const QKeyEvent& e);        // 0: a key that only modifies others
i16 KeyAsciiDe(const QKeyEvent& e);       // 0: the key writes nothing

// The files of this machine that are named there, by their paths.
std::vector<std::string> FicherosDe(const QMimeData& datos);
Traido TraidoDe(const QMimeData& datos);

}  // namespace tessario
