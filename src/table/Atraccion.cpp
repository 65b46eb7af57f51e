// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Atraccion.h"

#include "core/PuzzGbl.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

// What is cut off a side of the box at each end: nothing at a factor of 100, half of it at 0.
i16 Margen(i32 lado) {
    return Entero(Int(((100 - Gbl.FactorAtraccion) / 2.0) * (lado / 100.0)));
}

// Do the reduced boxes of the piece, here and where it belongs, have a point in common? The box of
// the place is the one of the current giro.
bool CercaDeSuSitio(i16 piece) {
    const Pieza& z = Gbl.Piezas[piece];
    const i32 w = AnchoDePieza(piece, z.Giro, z.Volteo);
    const i32 h = AltoDePieza(piece, z.Giro, z.Volteo);
    const i32 mx = Margen(w), my = Margen(h);
    SetRectRgn(Gbl.RegionAux4, z.XBien + mx, z.YBien + my, z.XBien + w - mx, z.YBien + h - my);
    SetRectRgn(Gbl.RegionAux6, z.X + mx, z.Y + my, z.X + w - mx, z.Y + h - my);
    return CombineRgn(Gbl.RegionAux3, Gbl.RegionAux4, Gbl.RegionAux6, RGN_AND) != REGION_VACIA;
}

void LlevaASuSitio(i16 piece) {
    const Rect caja = CajaDePieza(piece);
    BorraPieza(piece);
    MuestraCaja(caja);
    Pieza& z = Gbl.Piezas[piece];
    z.X = z.XBien;
    z.Y = z.YBien;
    z.Giro = z.GiroBien;
    z.Volteo = z.VolteoBien;
}

}  // namespace

bool AtraeASuSitio() {
    const i16 piece = Gbl.OrdenPiezas[1];
    for (i32 intento = 1; intento <= 2; ++intento) {
        if (CercaDeSuSitio(piece) && GiroCorrecto(piece)) {
            LlevaASuSitio(piece);
            return true;
        }
        // After the first failure the twin's place is tried, after the second it is given back.
        if (!JuegoEnCurso().CambiaGemela(piece)) return false;
    }
    return false;
}

}  // namespace tessario
