// SPDX-License-Identifier: GPL-3.0-or-later
#include "Medidas.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

namespace tessario::ventana {

double Procesador(pid_t pid) {
    clockid_t reloj{};
    timespec t{};
    if (clock_getcpuclockid(pid, &reloj) != 0 || clock_gettime(reloj, &t) != 0) return 0;
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

double Memoria(pid_t pid) {
    std::ifstream f("/proc/" + std::to_string(pid) + "/status");
    for (std::string linea; std::getline(f, linea);)
        if (linea.rfind("VmRSS:", 0) == 0) return std::stod(linea.substr(6)) / 1024;
    return 0;
}

double Copia(double bytes) {
    constexpr int VECES = 9;
    const auto n = static_cast<std::size_t>(bytes);
    const std::vector<char> origen(n, 1);
    std::vector<char> destino(n, 2);
    std::vector<double> tiempos;
    for (int i = 0; i < VECES; ++i) {
        const auto antes = std::chrono::steady_clock::now();
        std::memcpy(destino.data(), origen.data(), n);
        asm volatile("" : : "r"(destino.data()) : "memory");
        tiempos.push_back(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count());
    }
    std::nth_element(tiempos.begin(), tiempos.begin() + VECES / 2, tiempos.end());
    return tiempos[VECES / 2];
}

bool Linea(const char* nombre, const char* unidad, double valor, double limite, double copias) {
    const bool bien = valor <= limite;
    const std::string razon =
        copias > 0 ? "= " + std::to_string(static_cast<long>(copias + 0.5)) + " copies" : "";
    std::printf("%-44s %11.2f %s %20s %11.2f  %s\n", nombre, valor, unidad, razon.c_str(), limite,
                bien ? "ok" : "TOO MUCH");
    std::fflush(stdout);  // the programs that are started next inherit what is not out yet
    return bien;
}

}  // namespace tessario::ventana
