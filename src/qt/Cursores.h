// SPDX-License-Identifier: GPL-3.0-or-later
// Mouse pointers: the standard ones by number, the program's own by name from its resources.
#pragma once

#include <QCursor>
#include <QPoint>
#include <QString>
#include <map>
#include <string>

#include "platform/Tipos.h"

namespace tessario {

class Cursores {
public:
    // The cursor of MousePointer and MouseIcon. An unknown number or name is the default pointer.
    QCursor De(i16 puntero, const std::string& nombre);

private:
    void LeePuntos();
    std::map<QString, QCursor> propios_;
    std::map<QString, QPoint> puntos_;  // hot spots by lower-case name
    bool leidos_ = false;
};

}  // namespace tessario
