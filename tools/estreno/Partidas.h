// SPDX-License-Identifier: GPL-3.0-or-later
// The games that a new player finds laid: one for each of the three, dealt by the game's own
// routines on the smallest screen, and the global settings that go with them.
#pragma once

#include <string>

#include "platform/Tipos.h"

namespace tessario::estreno {

// A sample picture, by its name among the program's pictures, with its size in pixels.
struct Lamina {
    const char* fichero;
    i32 ancho, alto;
};
extern const Lamina LAMINA_MOVILES, LAMINA_DESLIZANTES;

// The part of the table where the loose pieces of the jigsaw lie, whatever the screen.
inline constexpr i32 ANCHO_SUELTAS = 640, ALTO_SUELTAS = 580;
// The model that the Tangram begins with, by its name in the file of models.
extern const char* const MODELO;

// The files' names and bytes. `modelos` is the path of the file of models. The platform in use and
// the whole state change; the program must not be running.
std::string Global();
std::string Moviles();
std::string Deslizantes();
std::string Tangram(const std::string& modelos);

}  // namespace tessario::estreno
