// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Muestra.h"

#include "core/Numeros.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "pieces/Composicion.h"

namespace tessario {

namespace {

// The rubber box: one pixel outside the sample on every side. Drawn twice at one place it is gone.
void CajaElastica(i32 x, i32 y) {
    Pic_Trabajo.Line(pluma::Desde | pluma::Caja | pluma::ConColor, x - 1, y - 1,
                     x + Pic_Muestra.Width(), y + Pic_Muestra.Height(), Gbl.ColorContraste);
}

// A place that lies outside the visible table keeps the last legal one.
i32 DentroDe(i32 nuevo, i32 minimo, i32 maximo, i32 anterior) {
    return nuevo < minimo || nuevo > maximo ? anterior : nuevo;
}

}  // namespace

void EnmarcaMuestra() {
    Pic_Muestra.Line(pluma::Desde | pluma::Caja | pluma::ConColor, 0, 0, Pic_Muestra.Width() - 1,
                     Pic_Muestra.Height() - 1, Gbl.ColorContraste);
}

void Pic_Muestra_MouseDown(i16 Button, i16, float X, float Y) {
    if (Button != BOTON_IZQUIERDO) return;
    Gbl.AgarreX = EnteroLargo(static_cast<double>(X));
    Gbl.AgarreY = EnteroLargo(static_cast<double>(Y));
    Gbl.MuestraX = Pic_Muestra.Left;
    Gbl.MuestraY = Pic_Muestra.Top;
    Pic_Trabajo.DrawMode = MODO_INVIERTE;
    PonCursor(Pic_Muestra, cursor::CRUZ_FLECHAS);
}

void Pic_Muestra_MouseMove(i16 Button, i16, float X, float Y) {
    if (Button == 0) {
        if (Pic_Muestra.MousePointer == PUNTERO_NORMAL)
            PonCursor(Pic_Muestra, cursor::MANO_ABIERTA);
        return;
    }
    if (Button != BOTON_IZQUIERDO) return;
    const i32 nx = Pic_Muestra.Left + EnteroLargo(static_cast<double>(X)) - Gbl.AgarreX;
    const i32 ny = Pic_Muestra.Top + EnteroLargo(static_cast<double>(Y)) - Gbl.AgarreY;
    const i32 x = DentroDe(nx, BarraHor.Value, BarraVer.Left - Pic_Muestra.Width() + BarraHor.Value,
                           Gbl.MuestraX);
    const i32 y = DentroDe(ny, BarraVer.Value, BarraHor.Top - Pic_Muestra.Height() + BarraVer.Value,
                           Gbl.MuestraY);
    // Deliberate: the first step draws the box at the sample's own place too, where it marks what
    // is being moved until the release repaints the table.
    CajaElastica(Gbl.MuestraX, Gbl.MuestraY);
    CajaElastica(x, y);
    Gbl.MuestraX = x;
    Gbl.MuestraY = y;
}

void Pic_Muestra_MouseUp(i16 Button, i16, float, float) {
    if (Button != BOTON_IZQUIERDO) return;
    Pic_Trabajo.DrawMode = MODO_COPIA;
    i32 limite = BarraVer.Left - Pic_Muestra.Width() + BarraHor.Value;
    const bool junto = BarraVer.Value + Pic_Botonera.Height() >= Gbl.MuestraY;
    if (junto) limite -= Pic_Botonera.Width();
    if (Gbl.MuestraX > limite) Gbl.MuestraX = limite;
    Pic_Muestra.Mueve(Gbl.MuestraX, Gbl.MuestraY);
    PonPuntero(Pic_Muestra, PUNTERO_NORMAL);
    Pic_Trabajo_Paint();
}

}  // namespace tessario
