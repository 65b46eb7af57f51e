// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Deshacer.h"

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "panel/CursorMesa.h"
#include "panel/Grabadora.h"
#include "rules/Catalogo.h"
#include "table/Tareas.h"

namespace tessario {

namespace {

constexpr i16 ATRAS = 1;

bool SePuedeDeshacer() {
    return !DentroDeTarea() && !Gbl.GrabadoraEncendida && PuedeEncenderGrabadora();
}

}  // namespace

void Deshaz() {
    Pic_SelOpciones.Visible = false;
    if (!SePuedeDeshacer()) {
        SonidoJuego(1, sonido::RECHAZO);
        return;
    }
    // Moves are replayed in the pieces' own looks.
    if (Gbl.MostrandoColocadas) Pulsa(Pic_Boton(orden::COLOCADAS));
    DetieneCrono();
    SonidoJuego(1, sonido::TECLA);
    // Deliberate: unlike one step back of the recorder, the first move goes back too.
    Sigue([] { ReproduceMovimiento(ATRAS); });
    ReponeCrono();
    // What the pointer found may have gone from under it; whoever knows where it stands looks
    // again.
    Gbl.PiezaActual = 0;
    AplicaCursor(cursor::NORMAL);
}

}  // namespace tessario
