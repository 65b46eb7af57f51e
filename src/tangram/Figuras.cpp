// SPDX-License-Identifier: GPL-3.0-or-later
#include "tangram/Figuras.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Barajado.h"
#include "panel/Botonera.h"
#include "panel/Desplazamiento.h"
#include "pieces/Composicion.h"
#include "pieces/Raster.h"
#include "platform/Plataforma.h"

namespace tessario {

namespace {

// The empty ground of a surface: the table's size, one colour, no picture.
void Despeja(Superficie& s, Color fondo) {
    s.Tamano(Gbl.AnchoPantalla, Gbl.AltoPantalla);
    s.PonPicture(nullptr);
    s.PonBackColor(fondo);
}

// The Tangram's table never scrolls and has no sample view.
void QuitaLoQueSobra() {
    QuitaBarras();
    Pic_Cuadrito.Visible = false;
    Pic_Muestra.Visible = false;
    Sistema().Presenta();
}

// The table's own picture: plain when creating, with the figure to be covered when solving.
void PintaMesa() {
    Despeja(Pic_Imagen, Gbl.ColorFondo);
    if (Gbl.ModoJuego == MODO_RESOLVER) TPintaFigura(Pic_Imagen);
    TiendeMesa(Gbl.AnchoPantalla, Gbl.AltoPantalla, Pic_Imagen.ImageJusta());
}

// When creating, no piece has a place of its own.
void PiezasSinSitio() {
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
    Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
}

}  // namespace

void CreaTangram(i16 nuevo) {
    Despeja(Pic_Bitmap, Gbl.ColorPiezas);  // every piece cut from it has that colour
    QuitaLoQueSobra();
    PintaMesa();
    Pic_PiezaImagen.ForeColor = Gbl.ColorContraste;
    Gbl.SalienteX = Gbl.SalienteY = 0;
    Gbl.PasoOrdenar = Gbl.TAncho[1];
    CargaBotonera();
    if (nuevo == 0) return;
    if (Gbl.ModoJuego == MODO_CREAR) PiezasSinSitio();
    BarajaPiezas();
}

}  // namespace tessario
