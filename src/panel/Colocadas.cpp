// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Colocadas.h"

#include <string>

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

void DibujaPiezaEnMesa(i32 indice, i16 Modo) {
    const i16 piece = Gbl.OrdenPiezas[indice];
    PonPieza(piece);
    if (Modo != 0) return;
    Pic_Trabajo_Paint();
    Sistema().Presenta();
}

}  // namespace

void ColocaPiezas(i16 Modo) {
    Pic_Imagen.Cls();
    // A table that has no piece above another is laid from its first piece on, the other tables
    // from the bottom of the stack up.
    const bool apila = JuegoEnCurso().Apila;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        const i32 indice = apila ? Gbl.NumPiezas + 1 - i : i;
        Sigue([&] { DibujaPiezaEnMesa(indice, Modo); });
    }
    if (Modo == 1) Pic_Trabajo_Paint();
    Sigue([] { MuestraColocadas(); });
}

void MuestraColocadas() {
    Gbl.PiezasColocadas = CuentaColocadas();
    if (!CreandoFiguras()) PintaColocadas();
}

void PintaColocadas() {
    DibujaVisor(Pic_InfoColo,
                std::to_string(Gbl.PiezasColocadas) + " / " + std::to_string(Gbl.NumPiezas),
                VISOR_CONTADOR);
}

}  // namespace tessario
