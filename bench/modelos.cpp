// SPDX-License-Identifier: GPL-3.0-or-later
// The list of Tangram models: that of the settings, with the marks of the solved ones, of the
// supplied models and 2,000 of a player's own as a part of the time of one frame (60 a second), and
// a file of 10,000 as a part of the tenth of a second that a window may take to open.
#include "records/Modelos.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <set>
#include <string>

#include "apoyo/PlataformaPrueba.h"
#include "bench/Razon.h"
#include "core/PuzzGbl.h"
#include "platform/Controles.h"
#include "settings/Cambios.h"
#include "settings/Mandos.h"
#include "start/Arranque.h"

namespace tessario::bench {

namespace {

constexpr double FOTOGRAMA = 1.0 / 60, APERTURA = 0.1;  // seconds
constexpr int REPETICIONES = 5;  // the fastest counts, the rest is the machine

// A file of so many models whose names come in no order.
std::string EscribeFichero(int cuantos) {
    const auto carpeta = std::filesystem::temp_directory_path() /
                         ("tessario-bench-modelos-" + std::to_string(cuantos));
    std::filesystem::create_directories(carpeta);
    std::ofstream salida(carpeta / "Modelos.tpu", std::ios::binary);
    std::mt19937 azar(7);
    for (int i = 0; i < cuantos; ++i) {
        std::string nombre = "Figura " + std::to_string(azar());
        nombre.resize(25, ' ');
        salida << nombre << std::string(99, '0') << "\r\n";
    }
    return carpeta.string() + "/";
}

// Measures a routine that fills a list from the file.
void Registra(const std::string& nombre, int cuantos, double plazo, const Lista& lista,
              const std::function<void()>& llena) {
    const auto corre = [=, &lista](benchmark::State& estado) {
        static PlataformaPrueba plataforma;
        PonSistema(&plataforma);
        Gbl = Bloque{};
        Inicializa();
        Gbl.CarpetaArchivo = EscribeFichero(cuantos);
        double mejor = 1e9;
        for (auto _ : estado) {
            for (int i = 0; i < REPETICIONES; ++i) {
                const auto inicio = std::chrono::steady_clock::now();
                llena();
                const std::chrono::duration<double> d = std::chrono::steady_clock::now() - inicio;
                mejor = std::min(mejor, d.count());
            }
            estado.SetIterationTime(mejor);
        }
        if (lista.ListCount() != cuantos) estado.SkipWithError("models missing from the list");
        std::filesystem::remove_all(Gbl.CarpetaArchivo);
        estado.counters[RAZON] = mejor / plazo;
        estado.counters[LIMITE] = 1;
        estado.counters[REFERENCIA] = plazo * 1e9;
    };
    benchmark::RegisterBenchmark(nombre.c_str(), corre)->UseManualTime()->Iterations(1);
}

// Names of solved figures, some of them in the file.
const std::set<std::string>& Resueltos() {
    static const std::set<std::string> nombres = [] {
        std::set<std::string> n;
        std::mt19937 azar(7);
        for (int i = 0; i < 1200; ++i) n.insert("Figura " + std::to_string(azar()));
        return n;
    }();
    return nombres;
}

bool RegistraTodo() {
    Registra("modelos/settings_list_of_2400", 2400, FOTOGRAMA, personal::Lis_Modelos,
             [] { LlenaModelos(Resueltos()); });
    static Lista lista;
    Registra("modelos/list_of_10000", 10000, APERTURA, lista, [] { CargaListaModelos(lista); });
    return true;
}

[[maybe_unused]] const bool registrado = RegistraTodo();

}  // namespace

}  // namespace tessario::bench
