// SPDX-License-Identifier: GPL-3.0-or-later
// What always holds of the state block: one table for the monkey, the fuzzers and the tests. Each
// rule has a name, which a failure prints, and the reason why the program leans on it.
#pragma once

#include <span>
#include <string>

namespace tessario {

struct Invariante {
    const char* Nombre;
    const char* Porque;
    bool (*Vale)();
};

// Between any two events, also those inside an automatic run, and after a record was laid.
std::span<const Invariante> InvariantesSiempre();
// Between two events of the outermost level: no handler is at work.
std::span<const Invariante> InvariantesEntreSucesos();
// The same with nothing in hand.
std::span<const Invariante> InvariantesEnReposo();

// Name and reason of the first one that does not hold; empty when all do.
std::string Incumplido(std::span<const Invariante> cuales);

}  // namespace tessario
