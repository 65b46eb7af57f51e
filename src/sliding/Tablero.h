// SPDX-License-Identifier: GPL-3.0-or-later
// The sliding board: cells, neighbours of the hole, solvability, instant shuffle and the table.
// There is no board array: the pieces' X and Y and the hole are the board, and cells are computed
// when a rule asks for them. Cells count from 1, row by row; piece i belongs in cell i.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Sides of a board that the game offers. Records can hold any other; nothing may rest on it.
inline constexpr i16 LADO_MINIMO = 3, LADO_MAXIMO = 9;

// Cell whose top left is nearest to the table pixel (x, y). Error 11 while there is no cell size,
// 6 for a cell beyond 16 bits.
i16 CeldaDePosicion(i16 x, i16 y);
// Columns plus rows between the cells of two positions.
i16 DistanciaCeldas(i16 x1, i16 y1, i16 x2, i16 y2);
// Answer in LadoHueco: 1 north, 2 east, 3 south, 4 west, 0 not next to the hole. It names the
// direction in which the piece would travel.
void LadoDelHueco(i16 piece);
// Fills VecinosHueco and NumVecinos, by piece number.
void BuscaVecinos();
// Can the position be brought home by moves? No for a board whose pieces and hole do not take one
// cell each.
bool TieneSolucion();
// Do the pieces and the hole take one cell each, and does each piece belong in its own cell?
// Without that no exchange of pieces could ever make the position solvable.
bool CeldasEnRegla();
// Do the pieces and the hole stand on the homes, one each, and each home in its own cell? Only a
// damaged record gives a board of which this is not true.
bool TableroEntero();
// Pieces that a letter can name; a board of more has numbers instead.
inline constexpr i16 PIEZAS_CON_LETRA = 24;
// Gives every piece its own cell as its home, and, when pieces and hole stand on one cell each,
// moves them exactly onto those. For boards from a record; a whole board is left as it is.
void AsientaTablero();
// A new board: the pieces at home, the hole in the last cell, the stacking order by number.
void DisponeTablero();
// Swaps pieces at random until the position is solvable; the hole stays. A damaged board is laid
// out anew first, since no swap could mend it.
void BarajaDeslizantes();
// Paints the solved board on Pic_Bitmap, from where each piece's face is taken. PintaFondoCaras is
// the ground or the picture and the choice of the font, PintaRotulos the labels of the pieces.
void PintaFondoCaras();
void PintaRotulos();
// How hard the board is as it stands, before the bounds.
double DificultadDeslizantes();
// Builds the table of game 22; non-zero lays out and shuffles a new board.
void CreaDeslizantes(i16 nuevo);

}  // namespace tessario
