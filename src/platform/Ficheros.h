// SPDX-License-Identifier: GPL-3.0-or-later
// What the lists through which a file is chosen have as rows: drives, folders, files. The same for
// the shell and for a test. Nothing here fails: what cannot be read has no rows.
#pragma once

#include <string>
#include <vector>

namespace tessario {

struct Unidad {
    std::string Nombre;  // what the player reads
    std::string Ruta;    // with a trailing "/"
};

// The player's own folder, that of the player's pictures, the root, and the media that are mounted.
std::vector<Unidad> Unidades();
// Names of the folders in a folder, in text order without regard to case; hidden ones are left out.
std::vector<std::string> CarpetasDe(const std::string& ruta);
// Names of the files that match one of the patterns ("*.bmp;*.jpg"), in the same order.
std::vector<std::string> FicherosDe(const std::string& ruta, const std::string& patron);

}  // namespace tessario
