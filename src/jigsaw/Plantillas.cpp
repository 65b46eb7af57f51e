// SPDX-License-Identifier: GPL-3.0-or-later
#include "jigsaw/Plantillas.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

constexpr Color NEGRO = 0;

// Size of the surface that holds both templates, in boxes of a piece.
constexpr double PLANTILLAS_ANCHO = 2.1, PLANTILLAS_ALTO = 1.1;

// How far a piece reaches out of its cell, in shares of the cell's other side.
constexpr double SALIENTE_CURVADOS = 0.17, SALIENTE_IRREGULARES = 0.205;

enum Plantilla { PLANTILLA_A, PLANTILLA_B };

struct Angulos {
    double inicio, fin;
};

// Curved templates by side.
// Deliberate: 191 and 79 instead of 180 and 90; the overshoot closes the outline at its corners.
constexpr Angulos CURVADOS[2][4] = {{{180, 0}, {270, 90}, {0, 191}, {90, 270}},
                                    {{0, 180}, {79, 270}, {180, 0}, {270, 90}}};

// One arc of the irregular templates. The centre lies at (x + w*enW + h*haciaX, y + h*enH +
// w*haciaY); the radius is a share of w on the level sides, of h on the upright ones; the angles
// are a constant and a part that follows PiezasPorLado.
struct ArcoIrregular {
    bool nivelado;
    double enW, haciaX, enH, haciaY;
    double radio;
    bool joroba;  // a flat hump, else a round tab
    double inicio, fin;
    double inicioN = 0, finN = 0;
};

constexpr bool NIVEL = true, PLOMO = false, JOROBA = true, LENGUETA = false;

constexpr ArcoIrregular IRREGULARES_A[] = {{NIVEL, 0.22, 0, 0, 0, 0.22, JOROBA, 180, 15},
                                           {NIVEL, 0.5, 0, 0, -0.09, 0.115, LENGUETA, 290, 250},
                                           {NIVEL, 0.78, 0, 0, 0, 0.22, JOROBA, 165, 0},
                                           {PLOMO, 0, 0, 0.22, 0, 0.22, JOROBA, 90, 350},
                                           {PLOMO, 0, 0.09, 0.5, 0, 0.115, LENGUETA, 230, 130},
                                           {PLOMO, 0, 0, 0.78, 0, 0.22, JOROBA, 10, 270},
                                           {PLOMO, 1, 0, 0.22, 0, 0.22, JOROBA, 190, 90},
                                           {PLOMO, 1, -0.09, 0.5, 0, 0.115, LENGUETA, 50, 310},
                                           {PLOMO, 1, 0, 0.78, 0, 0.22, JOROBA, 270, 170},
                                           {NIVEL, 0.22, 0, 1, 0, 0.22, JOROBA, 345, 180},
                                           {NIVEL, 0.5, 0, 1, 0.09, 0.115, LENGUETA, 110, 70},
                                           {NIVEL, 0.78, 0, 1, 0, 0.22, JOROBA, 0, 195}};

// Deliberate: the tabs of the level sides are a little larger and open with PiezasPorLado.
constexpr ArcoIrregular IRREGULARES_B[] = {
    {NIVEL, 0.22, 0, 0, 0, 0.22, JOROBA, 0, 180},
    {NIVEL, 0.5, 0, 0, 0.09, 0.12, LENGUETA, 120, 65, -1, 1},
    {NIVEL, 0.78, 0, 0, 0, 0.22, JOROBA, 0, 180},
    {PLOMO, 0, 0, 0.22, 0, 0.22, JOROBA, 250, 90},
    {PLOMO, 0, -0.09, 0.5, 0, 0.115, LENGUETA, 10, 350},
    {PLOMO, 0, 0, 0.78, 0, 0.22, JOROBA, 270, 110},
    {PLOMO, 1, 0, 0.22, 0, 0.22, JOROBA, 90, 290},
    {PLOMO, 1, 0.09, 0.5, 0, 0.115, LENGUETA, 190, 170},
    {PLOMO, 1, 0, 0.78, 0, 0.22, JOROBA, 70, 270},
    {NIVEL, 0.22, 0, 1, 0, 0.22, JOROBA, 180, 0},
    {NIVEL, 0.5, 0, 1, -0.09, 0.12, LENGUETA, 300, 245, -1, 1},
    {NIVEL, 0.78, 0, 1, 0, 0.22, JOROBA, 180, 0}};

// The ends of a tab lie inside the piece, past the humps that close the outline. They stop so many
// pixels short: else the pixels at the two ends would shut the neck of a small tab.
constexpr double HOLGURA_CUELLO = 0.75;

Arco ArcoDe(const ArcoIrregular& a, double x, double y) {
    const double w = Gbl.AnchoCelda, h = Gbl.AltoCelda, n = Gbl.PiezasPorLado;
    const double radio = (a.nivelado ? w : h) * a.radio;
    const double holgura = a.joroba ? 0 : HOLGURA_CUELLO / radio / GRADO;
    Arco arco{x + w * a.enW + h * a.haciaX, y + h * a.enH + w * a.haciaY, radio, 0, 0, 0};
    arco.inicio = a.inicio + a.inicioN * n + holgura;
    arco.fin = a.fin + a.finN * n - holgura;
    if (a.joroba) arco.aspecto = a.nivelado ? IRREGULAR_ASPECTO : IRREGULAR_ASPECTO2;
    return arco;
}

// Margins and box of a piece, and the empty surface for the templates.
void PreparaPlantillas(double saliente) {
    // Deliberate: crossed, the one to the sides from the cell's height, the other from its width.
    Gbl.SalienteX = Entero(Gbl.AltoCelda * saliente);
    Gbl.SalienteY = Entero(Gbl.AnchoCelda * saliente);
    Gbl.AnchoPieza = Corto(Gbl.AnchoCelda + 2 * Gbl.SalienteX);
    Gbl.AltoPieza = Corto(Gbl.AltoCelda + 2 * Gbl.SalienteY);
    Pic_Temporal.Tamano(Entero(PLANTILLAS_ANCHO * Gbl.AnchoPieza),
                        Entero(PLANTILLAS_ALTO * Gbl.AltoPieza));
    Pic_Temporal.PonPicture(nullptr);
}

void PonPluma(Plantilla p) {
    Gbl.PosDibujoX = Gbl.SalienteX + (p == PLANTILLA_B ? Gbl.AnchoPieza : 0);
    Gbl.PosDibujoY = Gbl.SalienteY;
}

void RellenaPlantilla() {
    ExtFloodFill(Pic_Temporal, Entero(Gbl.PosDibujoX + Gbl.AnchoCelda / 2.0),
                 Entero(Gbl.PosDibujoY + Gbl.AltoCelda / 2.0), NEGRO, 0);
}

void PlantillaCurvada(Plantilla p) {
    PonPluma(p);
    for (int lado = CURVADO_ARRIBA; lado <= CURVADO_IZQUIERDA; ++lado)
        TrazaArco(Pic_Temporal,
                  ArcoCurvado(static_cast<LadoCurvado>(lado), Gbl.PosDibujoX, Gbl.PosDibujoY,
                              CURVADOS[p][lado].inicio, CURVADOS[p][lado].fin));
    RellenaPlantilla();
}

void PlantillaIrregular(Plantilla p) {
    PonPluma(p);
    const double x = Gbl.PosDibujoX, y = Gbl.PosDibujoY;
    for (const double px : {x, x + Gbl.AnchoCelda})
        for (const double py : {y, y + Gbl.AltoCelda}) Pic_Temporal.PSet(px, py, NEGRO);
    for (const ArcoIrregular& a : p == PLANTILLA_A ? IRREGULARES_A : IRREGULARES_B)
        TrazaArco(Pic_Temporal, ArcoDe(a, x, y));
    RellenaPlantilla();
}

void Desplaza(i32 xd, i32 yd, i32 ancho, i32 alto, i32 xo, i32 yo) {
    BitBlt(Pic_Temporal, xd, yd, ancho, alto, Pic_Temporal, xo, yo, SRCCOPY);
}

// Tabs that come out one pixel too far are drawn in: the lower half of both templates goes up one
// row, or their right halves go left one column; the seams on the picture follow.
void ReparaCosturas() {
    const i32 w = Gbl.AnchoPieza, h = Gbl.AltoPieza;
    const i32 ancho = Pic_Temporal.Width(), alto = Pic_Temporal.Height();
    Gbl.AjusteX = Gbl.AjusteY = 0;
    if (Pic_Temporal.Point(w / 2, h) == NEGRO) {
        Desplaza(0, h / 2, ancho, h / 2 + 2, 0, h / 2 + 1);
        Gbl.AjusteY = 1;
    }
    if (Pic_Temporal.Point(w * 2, h / 2) == NEGRO) {
        const i32 mitadB = w * 3 / 2, mitadA = w / 2;
        Desplaza(mitadB, 0, w / 2 + 2, alto, mitadB + 1, 0);
        Desplaza(mitadA, 0, w / 2 - 1, alto, mitadA + 1, 0);
        Gbl.AjusteX = 1;
    }
}

}  // namespace

void TrazaArco(Superficie& s, const Arco& a) {
    const int flags = pluma::AnguloIni | pluma::AnguloFin;
    if (a.aspecto == 0)
        s.Circle(flags, a.x, a.y, a.radio, 0, a.inicio * GRADO, a.fin * GRADO);
    else
        s.Circle(flags | pluma::ConAspecto, a.x, a.y, a.radio, 0, a.inicio * GRADO, a.fin * GRADO,
                 a.aspecto);
}

Arco ArcoCurvado(LadoCurvado lado, double x, double y, double inicio, double fin) {
    const double rw = (Gbl.AnchoCelda - 1) * 0.5, rh = (Gbl.AltoCelda - 1) * 0.5;
    switch (lado) {
        case CURVADO_ARRIBA:
            return {x + rw, y, rw, inicio, fin, Gbl.Aspecto};
        case CURVADO_DERECHA:
            return {x + Gbl.AnchoCelda - 1, y + rh, rh, inicio, fin, Gbl.Aspecto2};
        case CURVADO_ABAJO:
            return {x + rw, y + Gbl.AltoCelda - 1, rw, inicio, fin, Gbl.Aspecto};
        default:
            return {x, y + rh, rh, inicio, fin, Gbl.Aspecto2};
    }
}

void CreaPlantillas() {
    const bool curvados = Gbl.FormaPiezas == forma::CURVADOS;
    PreparaPlantillas(curvados ? SALIENTE_CURVADOS : SALIENTE_IRREGULARES);
    if (curvados) {
        Gbl.Aspecto = CURVADO_ASPECTO;
        Gbl.Aspecto2 = CURVADO_ASPECTO2;
        PlantillaCurvada(PLANTILLA_A);
        PlantillaCurvada(PLANTILLA_B);
    } else {
        PlantillaIrregular(PLANTILLA_A);
        PlantillaIrregular(PLANTILLA_B);
        ReparaCosturas();
    }
}

}  // namespace tessario
