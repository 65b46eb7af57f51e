// SPDX-License-Identifier: GPL-3.0-or-later
#include "jigsaw/Corte.h"

#include <algorithm>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "jigsaw/Plantillas.h"
#include "panel/Barajado.h"
#include "panel/Botonera.h"
#include "panel/Desplazamiento.h"
#include "panel/Muestra.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

void PreparaBitmap() {
    Pic_Bitmap.Tamano(Gbl.AnchoPuzzle, Gbl.AltoPuzzle);
    Pic_Bitmap.PonPicture(Pic_FonTamModi.Picture());
    Pic_Bitmap.ForeColor = Gbl.ColorContraste;
}

// The sample view: the picture at half its size, at the lower right of what is seen of the table; a
// sample that comes level with the strip stands beside it.
void PreparaMuestra() {
    Pic_Muestra.Visible = false;
    Pic_Muestra.PonPicture(Pic_FonTamModi.Picture());
    Pic_Muestra.Tamano(Pic_Bitmap.Width() / 2, Pic_Bitmap.Height() / 2);
    StretchBlt(Pic_Muestra, 0, 0, Pic_Muestra.Width(), Pic_Muestra.Height(), Pic_Bitmap, 0, 0,
               Pic_Bitmap.Width(), Pic_Bitmap.Height(), SRCCOPY);
    EnmarcaMuestra();
    const i32 arriba = BarraHor.Top - Pic_Muestra.Height() - MUESTRA_AL_BORDE;
    const i32 derecha = BarraVer.Left - (arriba < BOTONERA_ALTO ? BOTONERA_ANCHO : 0);
    Pic_Muestra.Mueve(derecha - Pic_Muestra.Width() - MUESTRA_AL_BORDE + BarraHor.Value,
                      arriba + BarraVer.Value);
    Pic_Muestra.Visible = Gbl.MostrarMuestra;
}

// The empty table with the picture's frame. Deliberate: of this only the right and the bottom side
// are drawn; the others lie on the table's own edge.
void PreparaMesa() {
    const i32 ancho = std::max(Pic_Bitmap.Width() + MESA_LIBRE, BarraVer.Left);
    const i32 alto = std::max(Pic_Bitmap.Height() + MESA_LIBRE, BarraHor.Top);
    const i32 x = Gbl.AnchoPuzzle, y = Gbl.AltoPuzzle;
    // Drawn on a sheet as large as the frame, so that the table keeps no pixels yet.
    Superficie marco(std::min(x + 1, ancho), std::min(y + 1, alto));
    marco.PonBackColor(Gbl.ColorFondo);
    const int flags = pluma::Desde | pluma::ConColor;
    marco.Line(flags, x, -1, x, y, Gbl.ColorContraste);
    marco.Line(flags, -1, y, x, y, Gbl.ColorContraste);
    TiendeMesa(ancho, alto, marco.ImageJusta());
}

// The box of a piece is its cell; the interlocking shapes widen it.
void PreparaCaja() {
    Gbl.AnchoPieza = Gbl.AnchoCelda;
    Gbl.AltoPieza = Gbl.AltoCelda;
    Gbl.SalienteX = Gbl.SalienteY = 0;
    if (SeCortaConPlantillas()) CreaPlantillas();
    Gbl.PasoOrdenar = std::max(Gbl.AnchoPieza, Gbl.AltoPieza);
}

void ReparteNumeros() {
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
    Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
    for (i32 fila = 0; fila < Gbl.PiezasPorLado; ++fila)
        for (i32 columna = 0; columna < Gbl.PiezasPorLado; ++columna)
            for (i32 k = 1; k <= Gbl.PiezasPorCelda; ++k) {
                const i16 numero =
                    Corto((fila * Gbl.PiezasPorLado + columna) * Gbl.PiezasPorCelda + k);
                Gbl.Piezas[numero].XBien = Corto(columna * Gbl.AnchoCelda);
                Gbl.Piezas[numero].YBien = Corto(fila * Gbl.AltoCelda);
                Gbl.OrdenPiezas[numero] = numero;
            }
}

}  // namespace

void CreaMoviles(bool nuevo) {
    PreparaBitmap();
    AjustaBarras();
    Sugerencia(Gbl.SugerenciaActual);  // its place follows the bars
    PreparaMuestra();
    PreparaMesa();
    PreparaCaja();
    CargaBotonera();
    // The shape parameters come from here, so the lines are drawn even when they are not wanted.
    TrazaCortes(Pic_Bitmap);
    if (!Gbl.DibujarBorde) Pic_Bitmap.Cls();
    if (!nuevo) return;
    ReparteNumeros();
    BarajaPiezas();
}

}  // namespace tessario
