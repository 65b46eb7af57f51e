// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Tutor.h"

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

constexpr i32 DESTELLOS = 3;
constexpr i16 PAUSA_ANTES = 80;

}  // namespace

void TutorIndicando() {
    const i16 id = Gbl.PiezaActual;
    Pausa(PAUSA_ANTES);
    for (i32 i = 0; i < DESTELLOS; ++i) Sigue([&] { JuegoEnCurso().SenalaSitio(id); });
    Gbl.PuzzleArchivable = false;
    Gbl.TutorEsperando = false;
}

}  // namespace tessario
