// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the files of the first games: tessario_estreno <file of models> <folder>.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "Partidas.h"

namespace {

bool Escribe(const std::string& ruta, const std::string& bytes) {
    std::ofstream f(ruta, std::ios::binary);
    f << bytes;
    f.close();
    if (!f) std::fprintf(stderr, "cannot write %s\n", ruta.c_str());
    return static_cast<bool>(f);
}

}  // namespace

int main(int argc, char** argv) {
    namespace estreno = tessario::estreno;
    if (argc != 3) {
        std::fprintf(stderr, "usage: tessario_estreno <models> <folder>\n");
        return EXIT_FAILURE;
    }
    const std::string carpeta = std::string(argv[2]) + "/";
    const bool bien = Escribe(carpeta + "TsR33.ini", estreno::Global()) &&
                      Escribe(carpeta + "TsR2133.ini", estreno::Moviles()) &&
                      Escribe(carpeta + "TsR2233.ini", estreno::Deslizantes()) &&
                      Escribe(carpeta + "TsR2333.ini", estreno::Tangram(argv[1]));
    return bien ? EXIT_SUCCESS : EXIT_FAILURE;
}
