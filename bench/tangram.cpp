// SPDX-License-Identifier: GPL-3.0-or-later
// The Tangram at a drop: the pushes off other pieces and the search for the nearest one, in the
// worst of many random drops, as a part of the time of one frame (60 a second). The pushes include
// erasing the piece and drawing it anew.
#include <algorithm>
#include <chrono>
#include <functional>
#include <random>
#include <string>

#include "apoyo/PlataformaPrueba.h"
#include "bench/Razon.h"
#include "core/PuzzGbl.h"
#include "rules/Despacho.h"
#include "start/Arranque.h"
#include "table/Atraccion.h"
#include "tangram/Desolape.h"
#include "tangram/Pegado.h"

namespace tessario::bench {

namespace {

constexpr double FOTOGRAMA = 1.0 / 60;  // seconds
constexpr int CAIDAS = 400;
constexpr int REPETICIONES = 5;  // of one drop; the fastest counts, the rest is the machine

void AbreMesa() {
    static PlataformaPrueba plataforma;
    PonSistema(&plataforma);
    Gbl = Bloque{};
    Inicializa();
    Gbl.JuegoActual = JuegoTangram;
    Gbl.ModoJuego = MODO_CREAR;
    Gbl.Piezas.Redimensiona(7);
    Gbl.OrdenPiezas.Redimensiona(7);
    PreparaJuego(true);
}

// One of the pieces falls somewhere in the middle of the table, among the others.
void Cae(std::mt19937& azar) {
    const auto entre = [&](i32 a, i32 b) {
        return static_cast<i16>(a + static_cast<i32>(azar() % static_cast<unsigned>(b - a)));
    };
    Gbl.PiezaActual = entre(1, 8);
    Pieza& p = Gbl.Piezas[Gbl.PiezaActual];
    p.X = entre(100, 400);
    p.Y = entre(80, 380);
    p.Giro = entre(0, 8);
    p.Volteo = Gbl.PiezaActual == 7 ? entre(0, 2) : i16{0};
}

// Seconds of one call with the pieces as they stand, the fastest of some.
template <class Rutina>
double Mide(Rutina&& rutina) {
    const Arreglo<Pieza> antes = Gbl.Piezas;
    double mejor = 1e9;
    for (int i = 0; i < REPETICIONES; ++i) {
        Gbl.Piezas = antes;
        const auto inicio = std::chrono::steady_clock::now();
        rutina();
        const std::chrono::duration<double> d = std::chrono::steady_clock::now() - inicio;
        mejor = std::min(mejor, d.count());
    }
    return mejor;
}

// The worst of all drops; what is measured gets the table with the piece just fallen.
void Registra(const std::string& nombre, double limite, const std::function<double()>& mide) {
    const auto corre = [=](benchmark::State& estado) {
        AbreMesa();
        std::mt19937 azar(23);
        double peor = 0;
        for (auto _ : estado) {
            for (int i = 0; i < CAIDAS; ++i) {
                Cae(azar);
                peor = std::max(peor, mide());
            }
            estado.SetIterationTime(peor);
        }
        estado.counters[RAZON] = peor / FOTOGRAMA;
        estado.counters[LIMITE] = limite;
        estado.counters[REFERENCIA] = FOTOGRAMA * 1e9;
    };
    benchmark::RegisterBenchmark(nombre.c_str(), corre)->UseManualTime()->Iterations(1);
}

bool RegistraTodo() {
    Registra("tangram/push_worst_drop", 0.25, [] { return Mide(TDesolapaPieza); });
    Registra("tangram/cling_worst_drop", 0.25, [] {
        TDesolapaPieza();
        return Mide(PegaDosPiezas);
    });
    return true;
}

[[maybe_unused]] const bool registrado = RegistraTodo();

}  // namespace

}  // namespace tessario::bench
