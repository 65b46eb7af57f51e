// SPDX-License-Identifier: GPL-3.0-or-later
// PuzzBas: rules common to the games: when a piece is where it belongs, how many are, the two modes
// of play, and the random numbers.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Has the piece the right orientation? Each game has its own answer.
bool GiroCorrecto(i16 piece);
// GiroCorrecto and exactly at XBien, YBien.
bool PiezaEnSuSitio(i16 piece);
// Pieces in their place, counted in full.
i16 CuentaColocadas();

// The two modes of a game that has them; false in the other games.
bool CreandoFiguras();
bool ResolviendoModelo();

// Puts a difficulty into Gbl.Dificultad, kept between 0.1 and 99.9; one that cannot be worked out
// is the smallest.
void AnotaDificultad(double (*valor)());

// Uniform in [0, 1).
double Rnd();
// Starts the generator from a number, usually the time of day.
void Randomize(double semilla);

}  // namespace tessario
