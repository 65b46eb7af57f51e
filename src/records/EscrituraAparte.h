// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a file whole or not at all without keeping the player waiting: the disk is waited for in a
// thread of its own. It only ever sees the bytes that it was given.
#pragma once

#include <string>
#include <thread>

namespace tessario {

class EscrituraAparte {
public:
    EscrituraAparte() = default;
    ~EscrituraAparte() { Espera(); }
    EscrituraAparte(const EscrituraAparte&) = delete;
    EscrituraAparte& operator=(const EscrituraAparte&) = delete;

    // Replaces the file with the bytes, after the file that may still be under way.
    void Empieza(const std::string& ruta, const std::string& bytes);
    // Returns when what was begun is on the disk, or has failed.
    void Espera();

private:
    std::thread hilo_;
};

}  // namespace tessario
