// The saved puzzle: seven lines that hold a whole game in progress.
#pragma once

#include <string>

#include "platform/Tipos.h"

namespace tessario {

// The seven lines of the state as it stands, ready to write.
std::string EscribePuzzle();
// Takes the state from the bytes of a file and rebuilds the table. Errors stay pending.
void LeePuzzle(const std::string& bytes);
// Writes the whole state, replacing what is there. 0, or the error number.
i16 GuardaPuzzle(const std::string& Ruta);
// Reads a record; CargaCorrecta says whether it could be opened.
void CargaPuzzle(const std::string& Ruta);

// Limits of the jigsaw's image as zoomed, pixels, both included.
inline constexpr i32 IMAGEN_ANCHO_MIN = 320, IMAGEN_ANCHO_MAX = 1024;
inline constexpr i32 IMAGEN_ALTO_MIN = 240, IMAGEN_ALTO_MAX = 768;

// Size of Pic_FonTamModi for the current image, zoom and margins.
Punto TamanoConZoom();
// Stretches the whole of Pic_FonTamReal into Pic_FonTamModi at its zoomed size, margins left free.
// Error 7 for a size that no picture has.
void AmpliaImagen();
// Makes Pic_FonTamModi an empty picture of the smallest size.
void VaciaImagen();

}  // namespace tessario
