// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the recorder that every game writes to, panel or no panel: the log itself and the
// finished look. Declared in Grabadora.h.
#include "core/PuzzGbl.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

constexpr i32 AMPLIACION_REGISTRO = 100;  // entries by which a full log grows

}  // namespace

void RegistraMovimiento(i16 XAntes, i16 YAntes, i16 GiroAntes, i16 VolteoAntes, i16 XDespues,
                        i16 YDespues, i16 GiroDespues, i16 VolteoDespues) {
    const i16 piece = Gbl.OrdenPiezas[1];
    Gbl.NumMovimientos = Corto(Gbl.NumMovimientos + 1);
    if (Gbl.NumMovimientos >= Gbl.Movimientos.Superior())
        Gbl.Movimientos.Amplia(Gbl.Movimientos.Superior() + AMPLIACION_REGISTRO);
    Movimiento m{piece,    XAntes,   YAntes,      GiroAntes,    VolteoAntes,
                 XDespues, YDespues, GiroDespues, VolteoDespues};
    if (JuegoEnCurso().Giros == 1)  // pieces that do not turn have no orientation to remember
        m.GiroAntes = m.VolteoAntes = m.GiroDespues = m.VolteoDespues = 0;
    Gbl.Movimientos[Gbl.NumMovimientos] = m;
    Gbl.MovidoSinCopia = true;
}

void RegistraMovimiento(const Pieza& antes, const Pieza& despues) {
    RegistraMovimiento(antes.X, antes.Y, antes.Giro, antes.Volteo, despues.X, despues.Y,
                       despues.Giro, despues.Volteo);
}

Pieza PiezaEnOrigen(i16 piece) {
    Pieza p = Gbl.Piezas[piece];
    p.X = Gbl.XOrigen;
    p.Y = Gbl.YOrigen;
    return p;
}

void EntraEnCompleto() {
    Gbl.PuzzleTerminado = true;
    JuegoEnCurso().EntraEnCompleto();
    Pic_Trabajo_Paint();
}

void SaleDeCompleto() {
    Gbl.PuzzleTerminado = false;
    JuegoEnCurso().SaleDeCompleto();
}

}  // namespace tessario
