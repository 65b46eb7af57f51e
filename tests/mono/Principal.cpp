// SPDX-License-Identifier: GPL-3.0-or-later
// The monkey's program.
//
//   tessario_mono [events for each game] [seed] [game 21, 22, 23 or 0 for all]
//
// The seed is printed; a run with the same seed and game does the same.
#include <cstdio>
#include <cstdlib>
#include <random>

#include "mono/Mono.h"

namespace tessario {
namespace {

constexpr const char* NOMBRES_TAREA[Tareas] = {"shuffle", "solver", "arrangement", "replay",
                                               "turn"};

bool Suelta(i16 juego, long eventos, unsigned semilla) {
    NumerosAlAzar numeros(semilla);
    Mono mono(juego, numeros);
    try {
        mono.Corre(eventos);
    } catch (const std::exception& e) {
        std::printf("game %d, seed %u, event %ld (%s): %s\n", juego, semilla, mono.Numero(),
                    mono.Ultimo().c_str(), e.what());
        return false;
    }
    std::printf(
        "game %d: %ld events, %ld presses, %ld windows visited, %ld pictures compared, %ld moves "
        "logged, %ld puzzles finished; events inside",
        juego, eventos, mono.Pulsos(), mono.Visitas(), mono.Fotos(), mono.Jugadas(),
        mono.Acabados());
    for (std::size_t t = 0; t < Tareas; ++t)
        std::printf("%s %s %ld", t == 0 ? "" : ",", NOMBRES_TAREA[t], mono.Anidados(t));
    std::printf(": nothing to complain of\n");
    return true;
}

}  // namespace
}  // namespace tessario

int main(int argc, char** argv) {
    const long eventos = argc > 1 ? std::atol(argv[1]) : 20000;
    // Seed 0, or none: a new one each time.
    unsigned semilla = argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : 0;
    if (semilla == 0) semilla = std::random_device{}();
    const int solo = argc > 3 ? std::atoi(argv[3]) : 0;
    std::printf("seed %u\n", semilla);
    bool bien = true;
    for (const tessario::i16 juego : {tessario::i16{21}, tessario::i16{22}, tessario::i16{23}})
        if (solo == 0 || solo == juego) bien = tessario::Suelta(juego, eventos, semilla) && bien;
    return bien ? 0 : 1;
}
