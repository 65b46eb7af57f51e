// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Opciones.h"

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/Numeros.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/PuzzBas.h"
#include "table/Ordenes.h"
#include "table/Raton.h"
#include "table/Tareas.h"
#include "table/VentanasOrdenes.h"

namespace tessario {

namespace {

constexpr i32 ANCHO_PANEL = 150, ALTO_FILA = 18, BORDE = 4;
constexpr i32 TEXTO_X = 14;
using paleta::GRIS, paleta::BLANCO;
constexpr Color FONDO_PANEL = paleta::tinta::OPCION.Fondo;
const Fuente LETRA{Familia::Sans, 13, false, false};

// What the window of saved puzzles opens for, by option.
constexpr i16 MODO_DE_OPCION[] = {0, CARGUA_GUARDAR, CARGUA_CARGAR, CARGUA_BORRAR, CARGUA_MODELO};

i32 OpcionesEnPanel() {
    i32 n = 0;
    for (i32 i = 1; i <= 10; ++i) n += Gbl.OpcionesActivas[i] ? 1 : 0;
    return n;
}

// The option in a row of the panel, rows from 1; 0 when there is none.
i16 OpcionDeFila(i16 fila) {
    for (i16 i = 1; i <= 10; ++i)
        if (Gbl.OpcionesActivas[i] && --fila == 0) return i;
    return 0;
}

void LineaPanel(i32 x1, i32 y1, i32 x2, i32 y2, Color color, int forma = 0) {
    Pic_SelOpciones.Line(pluma::Desde | pluma::ConColor | forma, x1, y1, x2, y2, color);
}

void PintaFila(i16 opcion, i32 j) {
    const i32 w = Pic_SelOpciones.Width();
    const i32 y = j * ALTO_FILA + BORDE;
    if (opcion == opcion::MODELO) {  // stands apart
        LineaPanel(0, y - 3, w - 1, y - 3, GRIS);
        LineaPanel(0, y - 2, w - 1, y - 2, BLANCO);
    }
    const bool resaltada = j + 1 == Gbl.OpcionResaltada;
    const paleta::Tinta& tinta = resaltada ? paleta::tinta::OPCION_ELEGIDA : paleta::tinta::OPCION;
    if (resaltada) LineaPanel(2, y - 2, w - 3, y + 15, tinta.Fondo, pluma::Caja | pluma::Llena);
    Pic_SelOpciones.ForeColor = tinta.Texto;
    Pic_SelOpciones.CurrentX = TEXTO_X;
    Pic_SelOpciones.CurrentY = y;
    Pic_SelOpciones.Print(Gbl.TextosOpciones[opcion]);
}

void PintaMarco() {
    const i32 w = Pic_SelOpciones.Width();
    const i32 h = Pic_SelOpciones.Height();
    for (i32 i = 0; i < 2; ++i) LineaPanel(i, i, w - 1 - i, h - 1 - i, GRIS, pluma::Caja);
    for (i32 i = 0; i < 2; ++i) {
        LineaPanel(i, i, w - 1 - i, i, BLANCO);
        LineaPanel(i, i, i, h - 1 - i, BLANCO);
    }
}

// At the press, but neither under the strip nor below the visible table.
void ColocaPanel() {
    const i32 derecha = Pic_Botonera.Left + BarraHor.Value;
    const i32 abajo = BarraHor.Top + BarraVer.Value;
    i32 x = Gbl.XPulsado;
    i32 y = Gbl.YPulsado;
    if (x + Pic_SelOpciones.Width() > derecha) x = derecha - Pic_SelOpciones.Width();
    if (y + Pic_SelOpciones.Height() > abajo) y = abajo - Pic_SelOpciones.Height();
    Pic_SelOpciones.Mueve(x, y);
}

// Everything around the window of saved puzzles: the clock stands while it is open, and is then
// as it was, whatever a load has opened in between.
void AbreCargua(i16 modo) {
    Gbl.ModoCargua = modo;
    DetieneCrono();
    const Booleano antes = Gbl.CronoAntes;
    if (VentanasOrdenes.Cargua) Sigue([] { Sistema().MuestraModal(*VentanasOrdenes.Cargua); });
    Gbl.CronoAntes = antes;
    ReponeCrono();
}

}  // namespace

void MuestraOpcionesSelec() {
    const i32 activas = OpcionesEnPanel();
    Pic_SelOpciones.Tamano(ANCHO_PANEL, activas * ALTO_FILA + BORDE);
    Pic_SelOpciones.PonBackColor(FONDO_PANEL);
    Pic_SelOpciones.Font = LETRA;
    i32 j = 0;
    for (i16 i = 1; i <= 10; ++i)
        if (Gbl.OpcionesActivas[i]) PintaFila(i, j++);
    PintaMarco();
    ColocaPanel();
    PonCursor(Pic_SelOpciones, cursor::MANO_INDICE);
    if (activas > 0) Pic_SelOpciones.Visible = true;
}

std::vector<Rect> ZonasOpciones() {
    std::vector<Rect> filas;
    filas.reserve(static_cast<std::size_t>(OpcionesEnPanel()));
    for (i32 j = 0; j < OpcionesEnPanel(); ++j)
        filas.push_back(
            RectDe(2, j * ALTO_FILA + BORDE - 2, Pic_SelOpciones.Width() - 4, ALTO_FILA));
    return filas;
}

void AbreOpcionesConTeclado() {
    if (Gbl.GrabadoraEncendida || Gbl.ArrastrandoPieza) return;
    Gbl.XPulsado = Corto(BarraHor.Value + (Pic_Botonera.Left - ANCHO_PANEL) / 2);
    Gbl.YPulsado = Corto(BarraVer.Value + BarraHor.Top / 3);
    Gbl.OpcionResaltada = 1;
    ActivaOpciones();
    Sistema().PonFoco(Pic_SelOpciones);
}

void Pic_SelOpciones_MouseMove(i16, i16, float, float Y) {
    const i16 fila = Corto((EnteroLargo(static_cast<double>(Y)) + 16) / ALTO_FILA);
    if (fila == Gbl.OpcionResaltada) return;
    Gbl.OpcionResaltada = fila;
    MuestraOpcionesSelec();
}

void Pic_SelOpciones_MouseUp(i16, i16, float, float) {
    if (Gbl.OpcionResaltada == 0) return;
    Pic_SelOpciones.Visible = false;
    const i16 opcion = OpcionDeFila(Gbl.OpcionResaltada);
    if (opcion < 1 || opcion > opcion::MODELO) return;
    if (!DentroDeTarea()) {
        CumpleOpcion(opcion);
        return;
    }
    TerminaTareas();
    Aplaza(Suceso::Opcion, opcion);
}

void CumpleOpcion(i16 opcion) {
    // Deliberate: only loading and saving wait for the recorder; deleting and saving a model do
    // not.
    if (opcion <= opcion::CARGAR && Gbl.GrabadoraEncendida) {
        Avisa(aviso::ARCHIVO_GRABADORA);
        return;
    }
    if (PreparaOrden(orden::OPCION)) AbreCargua(MODO_DE_OPCION[opcion]);
}

}  // namespace tessario
