// SPDX-License-Identifier: GPL-3.0-or-later
// The system's locales for a test: those that the machine lacks are made in a folder of the test's.
#pragma once

#include <string>
#include <vector>

namespace tessario {

class Idiomas {
public:
    // Each as setlocale has it: language, dot, code. To make one takes about a second.
    explicit Idiomas(const std::vector<std::string>& pedidos);
    ~Idiomas();  // back to the plain one
    Idiomas(const Idiomas&) = delete;
    Idiomas& operator=(const Idiomas&) = delete;

    // Those of them that can be set.
    const std::vector<std::string>& Disponibles() const { return disponibles_; }
    // Where those that were made lie, as LOCPATH wants it.
    const std::string& Carpeta() const { return carpeta_; }

private:
    std::string carpeta_;
    std::vector<std::string> disponibles_;
};

}  // namespace tessario
