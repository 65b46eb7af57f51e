// SPDX-License-Identifier: GPL-3.0-or-later
// Sliding boards for tests and benchmarks, written as lists: what stands in each cell, row by row
// from the top left, 0 for the hole.
#pragma once

#include <algorithm>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "rules/Colores.h"
#include "rules/Medidas.h"
#include "session/Configuracion.h"
#include "sliding/Tablero.h"

namespace tessario {

// Sizes of game 22 on a screen of 800 x 600 with the strip at its right edge.
inline void PreparaTablero(i16 lado) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Gbl.PiezasPorLado = lado;
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    Gbl.LetrasPiezas = "ABCDEFGHIJKLMNÑOPQRSTUVW";
    Pic_Botonera.Left = 659;
    CalculaTamanos();
}

inline std::vector<i16> TableroResuelto(i16 lado) {
    std::vector<i16> celdas(static_cast<std::size_t>(lado * lado), 0);
    std::iota(celdas.begin(), celdas.end() - 1, i16{1});
    return celdas;
}

// Puts the pieces and the hole on the table, and the stacking order by number.
inline void PonTablero(const std::vector<i16>& celdas) {
    DisponeTablero();
    for (std::size_t c = 0; c < celdas.size(); ++c) {
        const auto fila = static_cast<i16>(static_cast<i32>(c) / Gbl.PiezasPorLado);
        const auto columna = static_cast<i16>(static_cast<i32>(c) % Gbl.PiezasPorLado);
        const auto x = static_cast<i16>(Gbl.MargenX + columna * Gbl.AnchoCelda);
        const auto y = static_cast<i16>(Gbl.MargenY + fila * Gbl.AltoCelda);
        (celdas[c] == 0 ? Gbl.HuecoX : Gbl.Piezas[celdas[c]].X) = x;
        (celdas[c] == 0 ? Gbl.HuecoY : Gbl.Piezas[celdas[c]].Y) = y;
    }
}

// What stands in each cell of the table now.
inline std::vector<i16> CeldasDelTablero() {
    std::vector<i16> celdas(static_cast<std::size_t>(Gbl.NumPiezas + 1), -1);
    const auto pon = [&celdas](i16 x, i16 y, i16 n) {
        const i32 columna = (x - Gbl.MargenX) / Gbl.AnchoCelda;
        const i32 fila = (y - Gbl.MargenY) / Gbl.AltoCelda;
        celdas.at(static_cast<std::size_t>(fila * Gbl.PiezasPorLado + columna)) = n;
    };
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) pon(Gbl.Piezas[i].X, Gbl.Piezas[i].Y, i);
    pon(Gbl.HuecoX, Gbl.HuecoY, 0);
    return celdas;
}

inline void IntercambiaConHueco(i16 piece) {
    std::swap(Gbl.Piezas[piece].X, Gbl.HuecoX);
    std::swap(Gbl.Piezas[piece].Y, Gbl.HuecoY);
}

// Solvability by another road than the inversions: a move is an exchange of the hole with a
// neighbour, so the permutation's parity, counted by its cycles with the hole as last number, and
// the parity of the hole's way home must be the same.
inline bool SolublePorCiclos(i16 lado, const std::vector<i16>& celdas) {
    const std::size_t n = celdas.size();
    const auto destino = [&](std::size_t c) {
        return celdas[c] == 0 ? n - 1 : static_cast<std::size_t>(celdas[c] - 1);
    };
    std::vector<bool> visto(n, false);
    std::size_t ciclos = 0;
    std::size_t hueco = 0;
    for (std::size_t c = 0; c < n; ++c) {
        if (celdas[c] == 0) hueco = c;
        if (visto[c]) continue;
        ++ciclos;
        for (std::size_t k = c; !visto[k]; k = destino(k)) visto[k] = true;
    }
    const auto l = static_cast<std::size_t>(lado);
    const std::size_t camino = (l - 1 - hueco / l) + (l - 1 - hueco % l);
    return (n - ciclos) % 2 == camino % 2;
}

// A random board that can be solved, the hole in the last cell or anywhere.
inline std::vector<i16> TableroSoluble(i16 lado, std::mt19937& azar, bool huecoAlFinal) {
    std::vector<i16> celdas = TableroResuelto(lado);
    std::shuffle(celdas.begin(), celdas.end() - (huecoAlFinal ? 1 : 0), azar);
    if (SolublePorCiclos(lado, celdas)) return celdas;
    // An exchange of two pieces turns the parity round.
    const auto a = std::find_if(celdas.begin(), celdas.end(), [](i16 p) { return p != 0; });
    const auto b = std::find_if(a + 1, celdas.end(), [](i16 p) { return p != 0; });
    std::iter_swap(a, b);
    return celdas;
}

// The whole table of game 22 around the solved board: surfaces, frame, faces.
inline void PreparaMesa(i16 lado) {
    PreparaTablero(lado);
    CalculaColores();
    PonTablero(TableroResuelto(lado));
    CreaDeslizantes(0);
}

}  // namespace tessario
