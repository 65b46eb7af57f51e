// SPDX-License-Identifier: GPL-3.0-or-later
// Runs everything that is registered and prints one table. The exit status is 1 when a bound is
// exceeded.
#include <cstdio>

#include "bench/Razon.h"

namespace {

using tessario::bench::LIMITE;
using tessario::bench::RAZON;
using tessario::bench::REFERENCIA;

class TablaUnica : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override {
        std::printf("%-44s %14s %14s %8s %8s  %s\n", "benchmark", "ours (us)", "other (us)",
                    "ratio", "bound", "ok?");
        return true;
    }

    void ReportRuns(const std::vector<Run>& corridas) override {
        for (const Run& c : corridas) {
            if (c.error_occurred) {
                fallo_ = true;
                std::printf("%-44s %s\n", c.run_name.function_name.c_str(),
                            c.error_message.c_str());
                continue;
            }
            Linea(c);
        }
        std::fflush(stdout);
    }

    bool Fallo() const { return fallo_; }

private:
    static double Contador(const Run& c, const char* nombre) {
        const auto i = c.counters.find(nombre);
        return i == c.counters.end() ? 0 : i->second.value;
    }

    void Linea(const Run& c) {
        const double us = c.real_accumulated_time / static_cast<double>(c.iterations) * 1e6;
        std::printf("%-44s %14.3f", c.run_name.function_name.c_str(), us);
        const double razon = Contador(c, RAZON), limite = Contador(c, LIMITE);
        if (razon > 0) {
            std::printf(" %14.3f %8.2f", Contador(c, REFERENCIA) / 1000, razon);
            if (limite > 0) {
                const bool bien = razon <= limite;
                fallo_ |= !bien;
                std::printf(" %8.2f  %s", limite, bien ? "ok" : "TOO SLOW");
            }
        }
        std::printf("\n");
    }

    bool fallo_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    TablaUnica tabla;
    benchmark::RunSpecifiedBenchmarks(&tabla);
    return tabla.Fallo() ? 1 : 0;
}
