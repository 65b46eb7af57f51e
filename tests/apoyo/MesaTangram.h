// SPDX-License-Identifier: GPL-3.0-or-later
// A Tangram table for tests: pieces laid where the test wants them, the overlap test, and the
// folder of the supplied models.
#pragma once

#include <string>

#include "apoyo/Datos.h"
#include "apoyo/Juegos.h"
#include "apoyo/PlataformaPrueba.h"
#include "pieces/Formas.h"
#include "platform/Region.h"
#include "rules/Catalogo.h"
#include "rules/Despacho.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"
#include "start/Arranque.h"
#include "tangram/Desolape.h"

namespace tessario {

// A new game 23 on a screen of the platform's size.
inline void AbreTangram(i16 modo) {
    Inicializa();
    PonTangram(modo);
    Gbl.ColorFondo = 0x800000;
    Gbl.ColorPiezas = 0x008000;
    Gbl.ColorContraste = 0xFFFFFF;
    PreparaJuego(true);
}

inline void PonPieza(i16 pieza, i32 x, i32 y, i16 giro, i16 volteo = 0) {
    Pieza& p = Gbl.Piezas[pieza];
    p.X = Corto(x);
    p.Y = Corto(y);
    p.Giro = giro;
    p.Volteo = volteo;
}

// All seven far below the table, where they are in nobody's way.
inline void ApartaPiezas() {
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) PonPieza(i, 300 * i, 5000, 0);
}

inline Region RegionEnMesa(i16 pieza) {
    const Pieza& p = Gbl.Piezas[pieza];
    TMidePieza(pieza, p.Giro, p.Volteo);
    TVertices(pieza, p.Giro, p.Volteo);
    return TRegionPieza(pieza);
}

// Number of the first piece that the given one overlaps, 0 for none.
inline i16 Solapada(i16 pieza) {
    const Region mia = RegionEnMesa(pieza);
    for (i16 k = 1; k <= PIEZAS_TANGRAM; ++k) {
        Region comun;
        if (k != pieza && CombineRgn(comun, mia, RegionEnMesa(k), RGN_AND) > REGION_VACIA) return k;
    }
    return 0;
}

// The piece on top of the stack, in hand and let go.
inline void Suelta(i16 pieza) {
    i32 indice = 1;
    while (Gbl.OrdenPiezas[indice] != pieza) ++indice;
    for (; indice > 1; --indice) Gbl.OrdenPiezas[indice] = Gbl.OrdenPiezas[indice - 1];
    Gbl.OrdenPiezas[1] = pieza;
    Gbl.PiezaActual = pieza;
    TDesolapaPieza();
}

}  // namespace tessario
