// SPDX-License-Identifier: GPL-3.0-or-later
// The silhouette of a Tangram model: the seven places that the pieces must cover.
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "pieces/RasterMascara.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

// One piece's place: outline and filled interior, in the surface's pen and fill colour.
void PintaSitio(Superficie& s, i16 piece, Color borde) {
    const Pieza& z = Gbl.Piezas[piece];
    TMidePieza(piece, z.GiroBien, z.VolteoBien);
    TVertices(piece, z.GiroBien, z.VolteoBien);
    TrazaContorno(s, piece, z.XBien, z.YBien);
    TPuntoInterior(piece, z.GiroBien, z.VolteoBien);
    ExtFloodFill(s, z.XBien + Gbl.XInterior, z.YBien + Gbl.YInterior, borde, 0);
}

}  // namespace

void TPintaFigura(Superficie& surface, i16 piece) {
    if (piece == 0) surface.PonBackColor(Gbl.ColorFondo);
    surface.ForeColor = surface.FillColor = Gbl.ColorContraste;
    const i16 desde = piece == 0 ? i16{1} : piece;
    const i16 hasta = piece == 0 ? PIEZAS_TANGRAM : piece;
    for (i16 p = desde; p <= hasta; ++p) PintaSitio(surface, p, Gbl.ColorContraste);
}

void TBorraFigura(i16 piece) {
    Pic_Imagen.ForeColor = Pic_Imagen.FillColor = Gbl.ColorFondo;
    PintaSitio(Pic_Imagen, piece, Gbl.ColorFondo);
}

}  // namespace tessario
