// SPDX-License-Identifier: GPL-3.0-or-later
// TrazaCortes: the cut lines of the eight shapes on the picture, and the parameters from which
// PreparaPieza makes the masks of the inner figures.
#include <algorithm>

#include "core/PuzzGbl.h"
#include "jigsaw/Corte.h"
#include "jigsaw/Plantillas.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

constexpr double RADIO_FIGURA = 0.35;   // of the inner circle, ellipse and star, share of a side
constexpr double RECORTE_FIGURA = 0.2;  // inset of the inner rectangle, share of a side

// Calls dibuja(x, y, fila, columna) for each cell, row by row.
template <class F>
void PorCeldas(F&& dibuja) {
    for (i32 fila = 0; fila < Gbl.PiezasPorLado; ++fila)
        for (i32 columna = 0; columna < Gbl.PiezasPorLado; ++columna)
            dibuja(columna * Gbl.AnchoCelda, fila * Gbl.AltoCelda, fila, columna);
}

void Caja(Superficie& s, i32 izq, i32 arr, i32 der, i32 aba) {
    s.Line(pluma::Desde | pluma::Caja, izq, arr, der, aba);
}

void CajaCelda(Superficie& s, i32 x, i32 y) {
    Caja(s, x, y, x + Gbl.AnchoCelda - 1, y + Gbl.AltoCelda - 1);
}

void CajaPuzzle(Superficie& s) {
    Caja(s, 0, 0, Gbl.AnchoPuzzle - 1, Gbl.AltoPuzzle - 1);
}

void TrazaRectangulos(Superficie& s) {
    PorCeldas([&](i32 x, i32 y, i32, i32) { CajaCelda(s, x, y); });
}

// Angles of the curved sides on the picture, by parity of row + column: without the overshoot that
// the templates have.
constexpr double CURVADOS[2][4][2] = {{{180, 0}, {270, 90}, {0, 180}, {90, 270}},
                                      {{0, 180}, {90, 270}, {180, 0}, {270, 90}}};

void TrazaCurvados(Superficie& s) {
    Gbl.Aspecto = CURVADO_ASPECTO;
    Gbl.Aspecto2 = CURVADO_ASPECTO2;
    CajaPuzzle(s);
    const i32 ultima = Gbl.PiezasPorLado - 1;
    PorCeldas([&](i32 x, i32 y, i32 fila, i32 columna) {
        const bool hay[4] = {fila > 0, columna < ultima, fila<ultima, columna> 0};
        for (int lado = CURVADO_ARRIBA; lado <= CURVADO_IZQUIERDA; ++lado) {
            if (!hay[lado]) continue;
            const double* a = CURVADOS[(fila + columna) % 2][lado];
            TrazaArco(s, ArcoCurvado(static_cast<LadoCurvado>(lado), x, y, a[0], a[1]));
        }
    });
}

// Hump, tab and hump of one horizontal seam of the irregular shape; s alternates the tabs.
void CosturaHorizontal(Superficie& sup, i32 x, i32 y, i32 s) {
    const double w = Gbl.AnchoCelda;
    const double inicio = 89 * s + 90, fin = 89 * s + 270;
    TrazaArco(sup,
              {x + w * 0.22, static_cast<double>(y), w * 0.22, inicio, fin, IRREGULAR_ASPECTO});
    TrazaArco(sup, {x + w * 0.5, y - w * 0.09 * s, w * 0.115, 90.0 * s + 210, 95.0 * s + 150, 0});
    TrazaArco(sup, {x + w * 0.78 - Gbl.AjusteX, static_cast<double>(y), w * 0.22, inicio, fin,
                    IRREGULAR_ASPECTO});
}

void CosturaVertical(Superficie& sup, i32 x, i32 y, i32 s) {
    const double h = Gbl.AltoCelda;
    const double inicio = 180 - 90 * s, fin = 90 * s + 180;
    TrazaArco(sup,
              {static_cast<double>(x), y + h * 0.22, h * 0.22, inicio, fin, IRREGULAR_ASPECTO2});
    TrazaArco(sup, {x + h * 0.09 * s, y + h * 0.5, h * 0.115, 90.0 * s + 130, 240 - 90.0 * s, 0});
    TrazaArco(sup, {static_cast<double>(x), y + h * 0.78 - Gbl.AjusteY, h * 0.22, inicio, fin,
                    IRREGULAR_ASPECTO2});
}

// Every seam is drawn twice, side by side, so that it is two pixels thick.
void TrazaIrregulares(Superficie& s) {
    CajaPuzzle(s);
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, n = Gbl.PiezasPorLado;
    for (i32 fila = 1; fila < n; ++fila)
        for (i32 columna = 0; columna < n; ++columna) {
            const i32 signo = (fila + columna) % 2 == 0 ? 1 : -1;
            CosturaHorizontal(s, columna * w, fila * h, signo);
            CosturaHorizontal(s, columna * w, fila * h - 1, signo);
        }
    for (i32 columna = 1; columna < n; ++columna)
        for (i32 fila = 0; fila < n; ++fila) {
            const i32 signo = (fila + columna) % 2 == 0 ? 1 : -1;
            CosturaVertical(s, columna * w, fila * h, signo);
            CosturaVertical(s, columna * w - 1, fila * h, signo);
        }
}

void TrazaTriangulos(Superficie& s) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    PorCeldas([&](i32 x, i32 y, i32, i32) {
        CajaCelda(s, x, y);
        s.Line(pluma::Desde, x, y, x + w - 1, y + h - 1);
        s.Line(pluma::Desde, x + 1, y, x + w, y + h - 1);
        s.Line(pluma::Desde, x + w - 1, y, x, y + h - 1);
        s.Line(pluma::Desde, x + w - 2, y, x, y + h - 2);
    });
}

// Whole ellipse around a cell's centre, which is not rounded, and another a pixel outside it.
void AnilloDoble(Superficie& s, i32 x, i32 y, double aspecto) {
    for (const i32 mas : {0, 1})
        s.Circle(pluma::ConAspecto, x + Gbl.AnchoCelda / 2.0, y + Gbl.AltoCelda / 2.0,
                 Gbl.RadioForma + mas, 0, 0, 0, aspecto);
}

void TrazaCirculos(Superficie& s) {
    Gbl.RadioForma = Entero(Int(RADIO_FIGURA * std::min(Gbl.AnchoCelda, Gbl.AltoCelda)));
    PorCeldas([&](i32 x, i32 y, i32, i32) {
        CajaCelda(s, x, y);
        AnilloDoble(s, x, y, 1);
    });
}

void TrazaRectangulosDobles(Superficie& s) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    Gbl.RecorteY = Entero(h * RECORTE_FIGURA);
    Gbl.RecorteX = Entero(w * RECORTE_FIGURA);
    const i32 rx = Gbl.RecorteX, ry = Gbl.RecorteY;
    PorCeldas([&](i32 x, i32 y, i32, i32) {
        CajaCelda(s, x, y);
        Caja(s, x + rx, y + ry, x + w - rx - 1, y + h - ry - 1);
        Caja(s, x + rx - 1, y + ry - 1, x + w - rx, y + h - ry);
    });
}

void TrazaElipses(Superficie& s) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    Gbl.RadioForma = Entero(RADIO_FIGURA * std::max(w, h));
    Gbl.Aspecto = w < h ? Gbl.RadioForma / (w * RADIO_FIGURA) : h * RADIO_FIGURA / Gbl.RadioForma;
    PorCeldas([&](i32 x, i32 y, i32, i32) {
        CajaCelda(s, x, y);
        AnilloDoble(s, x, y, Gbl.Aspecto);
    });
}

// The outline of a tall and a wide ellipse that cross at the cell's centre.
void TrazaEstrellas(Superficie& s) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    Gbl.RadioForma = Entero(h * RADIO_FIGURA);
    Gbl.RadioForma2 = Entero(w * RADIO_FIGURA);
    Gbl.Aspecto = Gbl.RadioForma / (Gbl.RadioForma2 * 0.5);
    Gbl.Aspecto2 = Gbl.RadioForma * 0.5 / Gbl.RadioForma2;
    PorCeldas([&](i32 x, i32 y, i32, i32) {
        CajaCelda(s, x, y);
        const double cx = x + w / 2.0, cy = y + h / 2.0;
        for (const i32 mas : {0, 1}) {
            const double alta = Gbl.RadioForma + mas, ancha = Gbl.RadioForma2 + mas;
            TrazaArco(s, {cx, cy, alta, 30, 150, Gbl.Aspecto});
            TrazaArco(s, {cx, cy, alta, 210, 330, Gbl.Aspecto});
            TrazaArco(s, {cx, cy, ancha, 120, 240, Gbl.Aspecto2});
            TrazaArco(s, {cx, cy, ancha, 300, 60, Gbl.Aspecto2});
        }
    });
}

using Trazado = void (*)(Superficie&);
constexpr Trazado TRAZADOS[FORMAS_DE_PIEZA] = {
    TrazaRectangulos, TrazaCurvados,          TrazaIrregulares, TrazaTriangulos,
    TrazaCirculos,    TrazaRectangulosDobles, TrazaElipses,     TrazaEstrellas};

}  // namespace

void TrazaCortes(Superficie& surface) {
    if (!EsForma(Gbl.FormaPiezas)) return;
    TRAZADOS[Gbl.FormaPiezas](surface);
}

}  // namespace tessario
