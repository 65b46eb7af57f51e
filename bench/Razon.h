// SPDX-License-Identifier: GPL-3.0-or-later
// Ratios between two callables, measured in one run, side by side, and reported in one table with
// the bound that they must keep.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace tessario::bench {

// Names of the counters that carry a ratio to the table.
inline constexpr const char* RAZON = "razon";
inline constexpr const char* LIMITE = "limite";
inline constexpr const char* REFERENCIA = "referencia_ns";

struct Medida {
    double Nuestra;     // nanoseconds for one call, median
    double Referencia;  // likewise
    double Razon;       // median of the ratios of neighbouring samples
};

template <class Funcion>
double Nanosegundos(Funcion& f, long veces) {
    const auto inicio = std::chrono::steady_clock::now();
    for (long i = 0; i < veces; ++i) f();
    const std::chrono::duration<double, std::nano> d = std::chrono::steady_clock::now() - inicio;
    return d.count() / static_cast<double>(veces);
}

inline double Mediana(std::vector<double> v) {
    const auto medio = v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2);
    std::nth_element(v.begin(), medio, v.end());
    return *medio;
}

// Samples of about a third of a millisecond, one of each in turn: what disturbs the machine
// disturbs both.
template <class Nuestra, class Referencia>
Medida MideRazon(Nuestra& nuestra, Referencia& referencia) {
    constexpr double muestra = 3e5;
    constexpr int rondas = 201;
    const auto veces = [](auto& f) {
        Nanosegundos(f, 1);  // warms up
        return std::max(1L, static_cast<long>(muestra / std::max(1.0, Nanosegundos(f, 3))));
    };
    const long vecesN = veces(nuestra), vecesR = veces(referencia);
    std::vector<double> n, r, razones;
    for (int i = 0; i < rondas; ++i) {
        n.push_back(Nanosegundos(nuestra, vecesN));
        r.push_back(Nanosegundos(referencia, vecesR));
        razones.push_back(n.back() / r.back());
    }
    return {Mediana(n), Mediana(r), Mediana(razones)};
}

// Puts a line in the table: nuestra must cost at most limite times referencia. A limit of 0 only
// reports. To be called from a static initialiser:
//   const auto& a = RegistraRazon("blit/copy", 1.5, [] { ... }, [] { ... });
template <class Nuestra, class Referencia>
benchmark::internal::Benchmark* RegistraRazon(const std::string& nombre, double limite,
                                              Nuestra nuestra, Referencia referencia) {
    const auto corre = [=](benchmark::State& estado) mutable {
        Medida m{};
        for (auto _ : estado) {
            m = MideRazon(nuestra, referencia);
            estado.SetIterationTime(m.Nuestra * 1e-9);
        }
        estado.counters[RAZON] = m.Razon;
        estado.counters[LIMITE] = limite;
        estado.counters[REFERENCIA] = m.Referencia;
    };
    return benchmark::RegisterBenchmark(nombre.c_str(), corre)->UseManualTime()->Iterations(1);
}

}  // namespace tessario::bench
