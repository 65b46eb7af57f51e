// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the table's picture right while one piece moves, repainting only what changed.
#pragma once

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Composites the prepared piece on a surface, blended with Pic_Imagen.
void PintaPieza(Superficie& destino, i16 piece);
// Prepares a piece and composites it into Pic_Imagen, above what lies there.
void PonPieza(i16 piece);
// Removes a piece from Pic_Imagen. The prepared piece is then another one.
void BorraPieza(i16 piece);
// Picks a piece up; it stays visible on Pic_Trabajo and is prepared.
void TomaPieza(i16 x, i16 y, i16 piece);
// One step of a drag to the pointer position.
void MuevePieza(i16 x, i16 y, i16 piece);
// Animated straight move in steps of 14 pixels; leaves ArrastrandoPieza true.
void DeslizaPieza(i16 x0, i16 y0, i16 x1, i16 y1, i16 piece);
// Index of the piece in OrdenPiezas, or 0.
i16 PosicionEnOrden(i16 piece);
// Brings the piece at the index to index 1.
void SubePieza(i16 index);
// Box of a piece on the table, with its overhang.
Rect CajaDePieza(i16 piece);
// Shows what has been composed in a box: Pic_Imagen onto Pic_Trabajo.
void MuestraCaja(const Rect& caja);
// Shows all that has been composed.
void Pic_Trabajo_Paint();
// The empty table, so many pixels, on all its surfaces: the table's colour with this picture on it.
// They keep no pixels of their own until something is drawn.
void TiendeMesa(i32 ancho, i32 alto, const Imagen& suelo);

}  // namespace tessario
