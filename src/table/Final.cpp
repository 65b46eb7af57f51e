// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Final.h"

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "records/Historial.h"
#include "table/CruzTeclado.h"

namespace tessario {

namespace {

// The given pause, in two parts: the last piece in its place, then the finished picture on its own.
constexpr i16 PAUSA_FINAL = 500, PAUSA_PIEZA = 150, PAUSA_ENTERO = PAUSA_FINAL - PAUSA_PIEZA;

// What the pieces cover, on the screen.
Rect PuzzleEnPantalla() {
    Rect r;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) r = Union(r, CajaDePieza(i));
    const i32 x = Pic_Trabajo.Left, y = Pic_Trabajo.Top;
    r = {r.Izq + Gbl.SalienteX + x, r.Arr + Gbl.SalienteY + y, r.Der - Gbl.SalienteX + x,
         r.Aba - Gbl.SalienteY + y};
    return Interseccion(r, {0, 0, Gbl.AnchoPantalla, Gbl.AltoPantalla});
}

// A result that was helped along is not offered: the question would promise what cannot be.
void OfreceAlHistorico() {
    if (!Gbl.PuzzleArchivable) return;
    Avisa(aviso::AL_HISTORICO);
    if (!Gbl.RespuestaMensaje) return;
    const i16 error = EntraEnHistorico();
    if (error != 0) Avisa(aviso::ERROR_HISTORICO, {std::to_string(error)});
}

}  // namespace

void FinDeJuego() {
    CambiaCrono(CRONO_PARO);
    EscondeCruz();  // nothing lies over the finished picture
    Pausa(PAUSA_PIEZA);
    Sigue([] { EntraEnCompleto(); });
    Pausa(PAUSA_ENTERO);
    SonidoJuego(1, sonido::RESUELTO);
    Sigue([] { Gbl.LibreDeMensajes = PuzzleEnPantalla(); });
    Avisa(aviso::RESUELTO);
    Sigue([] { OfreceAlHistorico(); });
    Gbl.LibreDeMensajes = {};
    Gbl.PuzzleArchivable = false;
}

}  // namespace tessario
