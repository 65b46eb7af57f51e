// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Desplazamiento.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Sugerencias.h"

namespace tessario {

namespace {

constexpr i32 GROSOR_BARRA = 17;         // pixels
constexpr i32 PASO_CORTO = 16;           // pixels of one click on a bar's arrow
constexpr i32 RECORRIDO_MINIMO = 10;     // the long step is a tenth of the range, of this at least
constexpr Color COLOR_CANAL = 0xC2DDEC;  // that of the tracks, in which the corner joins the bars
// A picture smaller than this part of the screen on both sides leaves room enough without bars.
constexpr float PARTE_SIN_BARRAS = 0.65F;

// Gives a bar its range for a picture of `lado` pixels seen through `visible` pixels of table.
void PonRecorrido(BarraDesplazamiento& barra, i32 lado, i32 visible) {
    barra.Min = 0;
    barra.Max = std::max(0, lado + MESA_LIBRE - visible);
    barra.LargeChange = std::max(barra.Max, RECORRIDO_MINIMO) / 10;
    barra.SmallChange = PASO_CORTO;
    barra.Tramo = visible;
    barra.Value = std::clamp(barra.Value, barra.Min, barra.Max);
}

void ColocaMesa() {
    Pic_Trabajo.Mueve(-BarraHor.Value, -BarraVer.Value);
}

}  // namespace

void AjustaBarras() {
    const i32 ancho = Gbl.AnchoPantalla;
    const i32 alto = Gbl.AltoPantalla;
    const bool cabe =
        static_cast<float>(ancho) * PARTE_SIN_BARRAS > static_cast<float>(Pic_Bitmap.Width()) &&
        static_cast<float>(alto) * PARTE_SIN_BARRAS > static_cast<float>(Pic_Bitmap.Height());
    if (cabe) {
        QuitaBarras();
        return;
    }
    const i32 anchoVisible = ancho - GROSOR_BARRA;
    const i32 altoVisible = alto - GROSOR_BARRA;
    BarraHor.Mueve(0, altoVisible);
    BarraHor.Tamano(anchoVisible, GROSOR_BARRA);
    BarraVer.Mueve(anchoVisible, 0);
    BarraVer.Tamano(GROSOR_BARRA, altoVisible);
    Pic_Cuadrito.Mueve(anchoVisible, altoVisible);
    Pic_Cuadrito.Tamano(GROSOR_BARRA, GROSOR_BARRA);
    Pic_Cuadrito.PonBackColor(COLOR_CANAL);
    PonRecorrido(BarraHor, Pic_Bitmap.Width(), anchoVisible);
    PonRecorrido(BarraVer, Pic_Bitmap.Height(), altoVisible);
    BarraHor.Visible = BarraVer.Visible = Pic_Cuadrito.Visible = true;
    ColocaMesa();
}

void QuitaBarras() {
    // They keep marking the edges of the visible table: other routines read their Left and Top.
    BarraHor.Mueve(0, Gbl.AltoPantalla);
    BarraVer.Mueve(Gbl.AnchoPantalla, 0);
    BarraHor.Value = BarraVer.Value = 0;
    BarraHor.Visible = BarraVer.Visible = Pic_Cuadrito.Visible = false;
    ColocaMesa();
}

// The new place is shown at the next presentation only, when the handler has returned: what is
// drawn in between never shows half moved.
void BarraHor_Change() {
    Pic_Trabajo.Left = -BarraHor.Value;
}

void BarraVer_Change() {
    Pic_Trabajo.Top = -BarraVer.Value;
    // The hint lies on the table; shown anew, it keeps its place on the screen.
    if (Gbl.VentanaInformacion) Sugerencia(Gbl.SugerenciaActual);
}

}  // namespace tessario
