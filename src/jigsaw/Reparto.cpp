// SPDX-License-Identifier: GPL-3.0-or-later
#include "jigsaw/Reparto.h"

#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Barajado.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i32 PASADAS_ORDEN = 4;         // shuffles of the stacking order
constexpr i32 RECHAZOS_MAXIMOS = 10000;  // places refused to one piece of the jigsaw

// ---------------------------------------------------------------- deal
// The tests for one axis: a piece lies wholly beyond the puzzle's far side or wholly before it.
bool NoCruza(i32 pos, i32 celda, i32 saliente, i32 puzzle) {
    return pos - saliente > puzzle || pos + celda + saliente < puzzle;
}

// Would the piece's centre be hidden by the strip, or by the hint panel while hints are on?
bool QuedaTapada(i32 x, i32 y) {
    const double mediaX = Gbl.AnchoCelda / 2.0;
    const double mediaY = Gbl.AltoCelda / 2.0;
    if (Pic_Trabajo.Width() - Pic_Botonera.Width() - mediaX < x &&
        BarraVer.Value + Pic_Botonera.Height() - mediaY > y)
        return true;
    return Gbl.VentanaInformacion && Pic_Sugerencia.Width() - mediaX > x &&
           Pic_Sugerencia.Top + BarraVer.Value - mediaY < y;
}

// Draws a free place. A record can describe a table that has none: then the place drawn last is
// taken.
void ReparteMoviles(Pieza& p) {
    for (i32 rechazos = 0;; ++rechazos) {
        const i32 x = static_cast<i32>(Int(Rnd() * (Pic_Trabajo.Width() - Gbl.AnchoCelda) + 1));
        const i32 y = static_cast<i32>(Int(Rnd() * (Pic_Trabajo.Height() - Gbl.AltoCelda) + 1));
        const i16 giro = Gbl.PermitirGiro ? static_cast<i16>(Int(Rnd() * 4)) : i16{0};
        const bool libre = NoCruza(x, Gbl.AnchoCelda, Gbl.SalienteX, Gbl.AnchoPuzzle) &&
                           NoCruza(y, Gbl.AltoCelda, Gbl.SalienteY, Gbl.AltoPuzzle) &&
                           !QuedaTapada(x, y);
        if (!libre && rechazos < RECHAZOS_MAXIMOS) continue;
        p.X = Corto(x);
        p.Y = Corto(y);
        p.Giro = giro;
        return;
    }
}

// ---------------------------------------------------------------- side arrangement
// The place that wanders down a column beside the strip, left along a row at the bottom, down the
// next column further in, and so on around the free table.
struct LineaLateral {
    i32 cx, cy = 0;   // corner of the next place
    i32 columna = 0;  // x of the column last filled
    i32 limite;       // where columns end
    double f = 0;     // spacing, in piece sizes
    bool vertical = true;

    LineaLateral();
    // Moves on for a piece of this size; how far the next one of the column lies below it.
    i32 Avanza(i32 ancho, i32 alto);
};

i32 FondoLibre() {
    return Gbl.VentanaInformacion ? Pic_Sugerencia.Top : Pic_Trabajo.Height();
}

LineaLateral::LineaLateral()
    : cx(BarraHor.Value + Pic_Botonera.Left - Gbl.PasoOrdenar), limite(FondoLibre()) {
    constexpr double ESPACIO_MAXIMO = 1.1;
    const i32 sueltas = Gbl.NumPiezas - Gbl.PiezasColocadas;
    const i16 porLado = Entero(std::sqrt(std::max(sueltas, 0)) + 3);
    if (Gbl.PasoOrdenar == 0) throw ErrorEjecucion(ERROR_DIVISION);
    f = std::min(static_cast<double>(Pic_Botonera.Left) / porLado / Gbl.PasoOrdenar,
                 ESPACIO_MAXIMO);
}

i32 LineaLateral::Avanza(i32 ancho, i32 alto) {
    i32 dh = static_cast<i32>(Int(f * alto));
    const i32 dw = static_cast<i32>(Int(f * ancho));
    if (vertical && cy + dh > limite) {
        columna = cx;
        cy = EnteroLargo(limite - Gbl.PasoOrdenar * f);
        const i32 tope = FondoLibre();
        if (cy + Gbl.PasoOrdenar > tope) cy = tope - Gbl.PasoOrdenar;
        limite = cy;
        dh = 0;
        vertical = false;
    }
    if (vertical) return dh;
    if (cx - dw >= 0) {
        cx -= dw;
        return 0;
    }
    cx = EnteroLargo(columna - Gbl.PasoOrdenar * f);
    limite = cy;
    cy = 0;
    vertical = true;
    return dh;
}

void OrdenaMovil(LineaLateral& linea, i16 q) {
    i32 ancho = AnchoDePieza(q, Gbl.Piezas[q].Giro, Gbl.Piezas[q].Volteo);
    i32 alto = AltoDePieza(q, Gbl.Piezas[q].Giro, Gbl.Piezas[q].Volteo);
    const bool triangulo = Gbl.FormaPiezas == forma::TRIANGULOS;
    if (triangulo) {
        MideTriangulo(q);
        ancho = Gbl.TriAncho;
        alto = Gbl.TriAlto;
    }
    const i32 dh = linea.Avanza(ancho, alto);
    i32 x = linea.cx;
    i32 y = linea.cy;
    // What is to stand at the place is the half that shows, not the empty half of the box.
    if (triangulo && Gbl.TriX != Gbl.Piezas[q].X) x -= ancho;
    if (triangulo && Gbl.TriY != Gbl.Piezas[q].Y) y -= alto;
    ApartaPieza(q, x, y);
    linea.cy += dh;
}

// ---------------------------------------------------------------- triangles
// Does the line of the mask meet the piece, that is, a pixel that is not white?
using paleta::BLANCO;
bool FilaTocada(i32 y) {
    for (i32 x = 0; x < Pic_PiezaMascara.Width(); ++x)
        if (Pic_PiezaMascara.Point(x, y) != BLANCO) return true;
    return false;
}
bool ColumnaTocada(i32 x) {
    for (i32 y = 0; y < Pic_PiezaMascara.Height(); ++y)
        if (Pic_PiezaMascara.Point(x, y) != BLANCO) return true;
    return false;
}

}  // namespace

void BarajaMoviles() {
    Randomize(Sistema().Timer());
    for (i32 pasada = 0; pasada < PASADAS_ORDEN; ++pasada)
        for (i32 n = 0; n < Gbl.NumPiezas; ++n)
            SubePieza(static_cast<i16>(Int(Gbl.NumPiezas * Rnd()) + 1));
    for (i32 i = Gbl.NumPiezas; i >= 1; --i) ReparteMoviles(Gbl.Piezas[Gbl.OrdenPiezas[i]]);
}

void OrdenaMoviles() {
    LineaLateral linea;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        const i16 q = Gbl.OrdenPiezas[i];
        if (!PiezaEnSuSitio(q)) {
            SubePieza(i);
            OrdenaMovil(linea, q);
        }
        if (!SigueOrdenando()) return;
    }
}

void MideTriangulo(i16 piece) {
    const Pieza p = Gbl.Piezas[piece];
    Gbl.TriX = p.X;
    Gbl.TriY = p.Y;
    Gbl.TriAlto = AltoDePieza(piece, p.Giro, p.Volteo);
    Gbl.TriAncho = AnchoDePieza(piece, p.Giro, p.Volteo);
    PreparaPieza(piece);
    const bool arriba = FilaTocada(1);
    const bool abajo = FilaTocada(Pic_PiezaMascara.Height() - 2);
    const bool izquierda = ColumnaTocada(1);
    const bool derecha = ColumnaTocada(Pic_PiezaMascara.Width() - 2);
    if (arriba && abajo) {
        Gbl.TriAncho = EnteroLargo(Gbl.TriAncho / 2.0);
        if (derecha) Gbl.TriX += Gbl.TriAncho;
    }
    if (izquierda && derecha) {
        Gbl.TriAlto = EnteroLargo(Gbl.TriAlto / 2.0);
        if (abajo) Gbl.TriY += Gbl.TriAlto;
    }
}

}  // namespace tessario
