// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Despacho.h"

#include "core/PuzzGbl.h"
#include "rules/Juego.h"
#include "rules/Medidas.h"

namespace tessario {

void PreparaJuego(bool Barajar) {
    CalculaTamanos();     // leaves the sizes alone outside the three games
    Gbl.PiezaActual = 0;  // what the pointer found lay on the table that was
    JuegoEnCurso().Crea(Barajar);
}

}  // namespace tessario
