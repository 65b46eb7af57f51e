// PuzzBas: routines common to the three games: the placement rules, the laying of the table, the
// stacking order and the random numbers.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Has the piece the right orientation? Game 22: always; 21 and Tangram 1 to 5: Giro = GiroBien;
// the square: modulo 2; the parallelogram: modulo 4 and the same face.
bool GiroCorrecto(i16 piece);
// GiroCorrecto and exactly at XBien, YBien.
bool PiezaEnSuSitio(i16 piece);
// Pieces in their place, counted in full.
i16 CuentaColocadas();

// The two modes of the Tangram; false in the other games.
bool CreandoFiguras();
bool ResolviendoModelo();

// Draws every piece in stacking order on a cleared Pic_Imagen and recounts. Modo 0 repaints the
// table after every piece, 1 once at the end; with any other the caller repaints.
void ColocaPiezas(i16 Modo);

// Uniform in [0, 1).
double Rnd();
// Starts the generator from a number, usually the time of day.
void Randomize(double semilla);

}  // namespace tessario
