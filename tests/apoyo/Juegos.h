// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of each game as a test wants them, in one place. Nothing is measured, dealt or
// painted by these.
#pragma once

#include "core/PuzzGbl.h"
#include "pieces/Formas.h"

namespace tessario {

inline void PonMoviles(i16 forma, i16 lado, i32 ancho, i32 alto, i16 zoom = 100) {
    Gbl.JuegoActual = JuegoMoviles;
    Gbl.FormaPiezas = forma;
    Gbl.PiezasPorLado = lado;
    Gbl.PiezasPorCelda = PiezasDeCelda(forma);
    Gbl.AnchoImagen = ancho;
    Gbl.AltoImagen = alto;
    Gbl.ZoomImagen = zoom;
}

inline void PonDeslizantes(i16 lado, i16 fondo = FONDO_NUMEROS) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Gbl.PiezasPorLado = lado;
    Gbl.TipoFondo = fondo;
}

// The seven pieces, in the order of their numbers.
inline void PonTangram(i16 modo) {
    Gbl.JuegoActual = JuegoTangram;
    Gbl.ModoJuego = modo;
    Gbl.NumPiezas = 7;
    Gbl.Piezas.Redimensiona(7);
    Gbl.OrdenPiezas.Redimensiona(7);
    for (i16 p = 1; p <= 7; ++p) Gbl.OrdenPiezas[p] = p;
}

}  // namespace tessario
