// SPDX-License-Identifier: GPL-3.0-or-later
#include "sliding/Tablero.h"

#include <cstdlib>
#include <utility>
#include <vector>

#include "core/PuzzGbl.h"
#include "panel/Barajado.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i16 NORTE = 1, ESTE = 2, SUR = 3, OESTE = 4, NINGUNO = 0;
constexpr i16 MAX_VECINOS = 4;
constexpr i16 MARCA_HUECO = 999;      // greater than every piece number in the count of inversions
constexpr i32 CAMBIOS_POR_PIEZA = 3;  // swaps of the instant shuffle before its first test

// Column and row, from 0.
struct Casilla {
    i32 columna, fila;
};

double Cociente(i32 dividendo, i16 divisor) {
    if (divisor == 0) throw ErrorEjecucion(ERROR_DIVISION);
    return static_cast<double>(dividendo) / divisor;
}

Casilla CasillaDe(i16 x, i16 y) {
    return {EnteroLargo(Cociente(x - Gbl.MargenX, Gbl.AnchoCelda)),
            EnteroLargo(Cociente(y - Gbl.MargenY, Gbl.AltoCelda))};
}

Casilla CasillaDe(const Pieza& p) {
    return CasillaDe(p.X, p.Y);
}

// The cell's number whatever its size: at most (65535 + 1) * 32767, which fits.
i32 NumeroDe(const Casilla& c) {
    return c.fila * Gbl.PiezasPorLado + c.columna + 1;
}

// Have the fields on which every rule of the board rests a meaning at all?
bool MedidasPosibles() {
    return Gbl.AnchoCelda > 0 && Gbl.AltoCelda > 0 && Gbl.NumPiezas > 0 &&
           Gbl.NumPiezas == Gbl.PiezasPorLado * Gbl.PiezasPorLado - 1 &&
           Gbl.Piezas.Superior() >= Gbl.NumPiezas;
}

// The corner of a cell of the board, by its number.
void PonEnCelda(i32 celda, i16& x, i16& y) {
    x = Corto(Gbl.MargenX + (celda - 1) % Gbl.PiezasPorLado * Gbl.AnchoCelda);
    y = Corto(Gbl.MargenY + (celda - 1) / Gbl.PiezasPorLado * Gbl.AltoCelda);
}

// What stands in each cell, from 1: the piece number or MARCA_HUECO. False when two share a cell
// or one stands off the board.
bool LlenaCeldas(Arreglo<i16>& T) {
    T.Redimensiona(Gbl.NumPiezas + 1);
    const auto pon = [&T](i16 x, i16 y, i16 valor) {
        const i32 celda = NumeroDe(CasillaDe(x, y));
        if (celda < 1 || celda > T.Superior() || T[celda] != 0) return false;
        T[celda] = valor;
        return true;
    };
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        if (!pon(Gbl.Piezas[i].X, Gbl.Piezas[i].Y, static_cast<i16>(i))) return false;
    return pon(Gbl.HuecoX, Gbl.HuecoY, MARCA_HUECO);
}

// Pairs of cells whose contents stand in the wrong order. The hole is never the first of a pair,
// and as the second it is larger than any piece. The last cell has none after it.
i32 CuentaInversiones(const Arreglo<i16>& T) {
    i32 total = 0;
    for (i32 a = 1; a <= Gbl.NumPiezas; ++a) {
        const i16 valor = T[a];
        if (valor == MARCA_HUECO) continue;
        for (auto b = T.begin() + a + 1; b != T.end(); ++b) total += *b < valor;
    }
    return total;
}

// Does piece i, or the hole as number NumPiezas + 1, stand exactly on the home of the cell in which
// it is? The last cell has no home to compare with: it is where the hole goes.
bool SobreUnSitio(i16 x, i16 y) {
    const i32 celda = NumeroDe(CasillaDe(x, y));
    if (celda > Gbl.NumPiezas) return true;
    return Gbl.Piezas[celda].XBien == x && Gbl.Piezas[celda].YBien == y;
}

}  // namespace

i16 CeldaDePosicion(i16 x, i16 y) {
    return Corto(NumeroDe(CasillaDe(x, y)));
}

i16 DistanciaCeldas(i16 x1, i16 y1, i16 x2, i16 y2) {
    const Casilla a = CasillaDe(x1, y1);
    const Casilla b = CasillaDe(x2, y2);
    return Corto(std::abs(a.columna - b.columna) + std::abs(a.fila - b.fila));
}

void LadoDelHueco(i16 piece) {
    Gbl.LadoHueco = NINGUNO;
    const Casilla pieza = CasillaDe(Gbl.Piezas[piece]);
    const Casilla hueco = CasillaDe(Gbl.HuecoX, Gbl.HuecoY);
    const i32 filas = pieza.fila - hueco.fila;
    const i32 columnas = pieza.columna - hueco.columna;
    if (columnas == 0 && std::abs(filas) == 1)
        Gbl.LadoHueco = filas == 1 ? NORTE : SUR;
    else if (filas == 0 && std::abs(columnas) == 1)
        Gbl.LadoHueco = columnas == 1 ? OESTE : ESTE;
}

void BuscaVecinos() {
    Gbl.NumVecinos = 0;
    Gbl.VecinosHueco.Redimensiona(MAX_VECINOS);
    for (i32 i = 1; i <= Gbl.NumPiezas && Gbl.NumVecinos < MAX_VECINOS; ++i) {
        const auto piece = static_cast<i16>(i);
        LadoDelHueco(piece);
        if (Gbl.LadoHueco != NINGUNO) Gbl.VecinosHueco[++Gbl.NumVecinos] = piece;
    }
}

bool TieneSolucion() {
    Arreglo<i16> T;
    if (!MedidasPosibles() || !LlenaCeldas(T)) return false;
    const i32 total = CuentaInversiones(T);
    // On an even width a move up or down changes the inversions by an odd number: the row of the
    // hole makes up for it.
    const i32 fila = EnteroLargo(Cociente(Gbl.HuecoY - Gbl.MargenY, Gbl.AltoCelda) + 1);
    const i32 suma = Gbl.PiezasPorLado % 2 == 0 ? total + fila : total;
    return suma % 2 == 0;
}

bool CeldasEnRegla() {
    Arreglo<i16> T;
    if (!MedidasPosibles() || !LlenaCeldas(T)) return false;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        if (NumeroDe(CasillaDe(Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien)) != i) return false;
    return true;
}

bool TableroEntero() {
    if (!CeldasEnRegla()) return false;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        if (!SobreUnSitio(Gbl.Piezas[i].X, Gbl.Piezas[i].Y)) return false;
    return SobreUnSitio(Gbl.HuecoX, Gbl.HuecoY);
}

void AsientaTablero() {
    if (Gbl.TipoFondo == FONDO_LETRAS && Gbl.NumPiezas > PIEZAS_CON_LETRA)
        Gbl.TipoFondo = FONDO_NUMEROS;
    if (!MedidasPosibles()) return;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        Pieza& p = Gbl.Piezas[i];
        PonEnCelda(i, p.XBien, p.YBien);
    }
    if (!CeldasEnRegla()) return;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        Pieza& p = Gbl.Piezas[i];
        PonEnCelda(NumeroDe(CasillaDe(p)), p.X, p.Y);
    }
    PonEnCelda(NumeroDe(CasillaDe(Gbl.HuecoX, Gbl.HuecoY)), Gbl.HuecoX, Gbl.HuecoY);
}

void DisponeTablero() {
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
    Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
    const i32 lado = Gbl.PiezasPorLado;
    for (i32 fila = 0; fila < lado; ++fila) {
        for (i32 columna = 0; columna < lado; ++columna) {
            const i32 i = fila * lado + columna + 1;
            const i16 x = Corto(Gbl.MargenX + columna * Gbl.AnchoCelda);
            const i16 y = Corto(Gbl.MargenY + fila * Gbl.AltoCelda);
            if (i > Gbl.NumPiezas) {
                Gbl.HuecoX = x;
                Gbl.HuecoY = y;
                continue;
            }
            Pieza& p = Gbl.Piezas[i];
            p.XBien = p.X = x;
            p.YBien = p.Y = y;
            Gbl.OrdenPiezas[i] = static_cast<i16>(i);
        }
    }
}

void BarajaDeslizantes() {
    if (!TableroEntero()) {
        DisponeTablero();
        PintaFondoCaras();
        PintaRotulos();
    }
    // Fewer than two pieces, or sizes that make no board even when laid out anew, would never leave
    // the loop.
    const bool barajable = Gbl.NumPiezas > 1 && TableroEntero();
    for (i32 cuenta = 1; barajable; ++cuenta) {
        const auto i = static_cast<i32>(Int(Gbl.NumPiezas * Rnd())) + 1;
        const auto j = static_cast<i32>(Int(Gbl.NumPiezas * Rnd())) + 1;
        std::swap(Gbl.Piezas[i].X, Gbl.Piezas[j].X);
        std::swap(Gbl.Piezas[i].Y, Gbl.Piezas[j].Y);
        if (cuenta >= Gbl.NumPiezas * CAMBIOS_POR_PIEZA && TieneSolucion()) break;
    }
    ReiniciaPartida();
    AnotaDificultad(DificultadDeslizantes);
}

}  // namespace tessario
