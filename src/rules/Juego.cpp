// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Juego.h"

#include "core/PuzzGbl.h"

namespace tessario {

namespace {

std::span<const Juego* const> tablaDeJuegos;

}  // namespace

std::span<const Juego* const> Juegos() {
    return tablaDeJuegos;
}

void PonJuegos(std::span<const Juego* const> tabla) {
    tablaDeJuegos = tabla;
}

bool EsJuego(i16 numero) {
    return JuegoDe(numero).Numero != 0;
}

const Juego& JuegoDe(i16 numero) {
    static constexpr Juego NINGUNO;
    for (const Juego* juego : tablaDeJuegos)
        if (juego->Numero == numero) return *juego;
    return NINGUNO;
}

const Juego& JuegoEnCurso() {
    return JuegoDe(Gbl.JuegoActual);
}

}  // namespace tessario
