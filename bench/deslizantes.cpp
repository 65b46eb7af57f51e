// SPDX-License-Identifier: GPL-3.0-or-later
// The sliding solver: whole boards searched to the end, against the same rules read literally at 5
// to 7 a side, and alone at 8 and 9. Only the searching counts, not the playing of the moves.
#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "apoyo/SolucionLiteral.h"
#include "apoyo/TableroDeslizante.h"
#include "bench/Razon.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "rules/PuzzBas.h"
#include "sliding/Busqueda.h"
#include "sliding/Solucion.h"

namespace tessario::bench {

namespace {

using Tableros = std::vector<std::vector<i16>>;

Tableros Sortea(i16 lado, int cuantos) {
    std::mt19937 azar(static_cast<unsigned>(lado));
    Tableros tableros;
    for (int i = 0; i < cuantos; ++i) tableros.push_back(TableroSoluble(lado, azar, true));
    return tableros;
}

// Plays the stage that the last search found.
void JuegaRuta() {
    for (i32 i = Gbl.LongitudRuta; i >= 1; --i) IntercambiaConHueco(Gbl.RutaSolucion[i]);
}

// Seconds that a search takes over all stages of all boards; 0 when one of them fails.
template <class Busca>
double Segundos(const Tableros& tableros, Busca&& busca) {
    std::chrono::steady_clock::duration suma{};
    for (const auto& tablero : tableros) {
        PonTablero(tablero);
        while (CuentaColocadas() < Gbl.NumPiezas) {
            const auto inicio = std::chrono::steady_clock::now();
            const bool hallada = busca();
            suma += std::chrono::steady_clock::now() - inicio;
            // Both searches find the same moves; those of the real one are at hand in the state.
            if (!hallada || !BuscaSolucion()) return 0;
            JuegaRuta();
        }
    }
    return std::chrono::duration<double>(suma).count();
}

void Prepara(i16 lado) {
    static PlataformaPrueba plataforma;
    PonSistema(&plataforma);
    Gbl = Bloque{};
    PreparaTablero(lado);
}

// Median seconds for one board, of several passes over all of them: a pass that the machine
// interrupts does not count.
template <class Busca>
double MedianaDe(const Tableros& tableros, int pasadas, Busca&& busca) {
    std::vector<double> segundos;
    for (int i = 0; i < pasadas; ++i) segundos.push_back(Segundos(tableros, busca));
    return Mediana(segundos) / static_cast<double>(tableros.size());
}

// The real search's time, and the literal one's and their ratio when it is asked for.
void Registra(i16 lado, int cuantos, double limite) {
    constexpr int pasadas = 11, pasadasLiterales = 3;
    const std::string nombre = "sliding/solve_" + std::to_string(lado) + "x" + std::to_string(lado);
    const auto corre = [=](benchmark::State& estado) {
        Prepara(lado);
        const Tableros tableros = Sortea(lado, cuantos);
        double nuestra = 0;
        for (auto _ : estado) {
            Busqueda busqueda(DejaPasarEventos);  // one for all stages, as in play
            nuestra = MedianaDe(tableros, pasadas, [&] { return BuscaSolucion(busqueda); });
            estado.SetIterationTime(nuestra);
        }
        if (nuestra <= 0) estado.SkipWithError("a board was not solved");
        if (limite <= 0) return;
        SolucionLiteral literal;
        const double otra = MedianaDe(tableros, pasadasLiterales, [&] { return literal.Busca(); });
        estado.counters[RAZON] = nuestra / otra;
        estado.counters[LIMITE] = limite;
        estado.counters[REFERENCIA] = otra * 1e9;
    };
    benchmark::RegisterBenchmark(nombre.c_str(), corre)->UseManualTime()->Iterations(1);
}

bool RegistraTodo() {
    Registra(5, 6, 0.05);
    Registra(6, 3, 0.02);
    Registra(7, 2, 0.01);
    Registra(8, 20, 0);
    Registra(9, 20, 0);
    return true;
}

[[maybe_unused]] const bool registrado = RegistraTodo();

}  // namespace

}  // namespace tessario::bench
