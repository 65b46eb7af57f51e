// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Idiomas.h"

#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <locale>

namespace tessario {

namespace fs = std::filesystem;

Idiomas::Idiomas(const std::vector<std::string>& pedidos)
    : carpeta_(
          (fs::temp_directory_path() / ("tessario-idiomas-" + std::to_string(getpid()))).string()) {
    fs::create_directories(carpeta_);
    setenv("LOCPATH", carpeta_.c_str(), 1);
    for (const std::string& pedido : pedidos) {
        const std::size_t punto = pedido.find('.');
        const std::string orden = "localedef -c -i " + pedido.substr(0, punto) + " -f " +
                                  pedido.substr(punto + 1) + " '" + carpeta_ + "/" + pedido +
                                  "' >/dev/null 2>&1";
        if (std::system(orden.c_str()) == 0 && std::setlocale(LC_ALL, pedido.c_str()))
            disponibles_.push_back(pedido);
    }
    std::setlocale(LC_ALL, "C");
}

Idiomas::~Idiomas() {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
    std::error_code e;
    fs::remove_all(carpeta_, e);
}

}  // namespace tessario
