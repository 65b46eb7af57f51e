// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/Juegos.h"

#include "jigsaw/Moviles.h"
#include "rules/Juego.h"
#include "sliding/Deslizantes.h"
#include "tangram/Tangram.h"

namespace tessario {

namespace {

constexpr const Juego* JUEGOS[] = {&JUEGO_MOVILES, &JUEGO_DESLIZANTES, &JUEGO_TANGRAM};

}  // namespace

void InstalaJuegos() {
    PonJuegos(JUEGOS);
}

}  // namespace tessario
