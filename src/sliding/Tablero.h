// The sliding board: cells, neighbours of the hole, solvability, instant shuffle and the table.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

i16 CeldaDePosicion(i16 x, i16 y);
i16 DistanciaCeldas(i16 x1, i16 y1, i16 x2, i16 y2);
// Answer in LadoHueco: 1 north, 2 east, 3 south, 4 west, 0 not next to the hole.
void LadoDelHueco(i16 piece);
// Fills VecinosHueco and NumVecinos, by piece number.
void BuscaVecinos();
bool TieneSolucion();
// Swaps pieces at random until the position is solvable; the hole stays.
void BarajaDeslizantes();
// Builds the table of game 22; non-zero lays out and shuffles a new board.
void CreaDeslizantes(i16 nuevo);
// The count of a new puzzle, in all three games: empty log, time 0, chronometer running.
void ReiniciaPartida();

}  // namespace tessario
