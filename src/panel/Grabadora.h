// SPDX-License-Identifier: GPL-3.0-or-later
// The move recorder: the log of every move, its panel, and the walk back and forth.
#pragma once

#include <vector>

#include "platform/Tipos.h"

namespace tessario {

struct Cara;   // of platform/Controles.h
struct Pieza;  // of core/PuzzGbl.h

// Appends a move of the piece on top of the stack: as it was, and as it is.
void RegistraMovimiento(const Pieza& antes, const Pieza& despues);
// The same where one of the two is no piece's state.
void RegistraMovimiento(i16 XAntes, i16 YAntes, i16 GiroAntes, i16 VolteoAntes, i16 XDespues,
                        i16 YDespues, i16 GiroDespues, i16 VolteoDespues);
// A piece as it is now, at the place it was taken from (XOrigen, YOrigen).
Pieza PiezaEnOrigen(i16 piece);
// 0 forward, 1 back.
void ReproduceMovimiento(i16 sentido);
// Can the recorder be switched on and go back? It is on show, no work is under way, and there is a
// move in the log.
bool PuedeEncenderGrabadora();
void EnciendeGrabadora();
void ApagaGrabadora();
// The finished look on and off.
void EntraEnCompleto();
void SaleDeCompleto();
// Is this point of the panel on its switch?
bool EsMandoGrabadora(float X, float Y);
// The switch thrown.
void PulsaMandoGrabadora();
// The keys that can be pressed now, in the panel's pixels.
std::vector<Rect> ZonasGrabadora();
// All keys with their states: those that cannot be pressed, the switch that is on, the automatic
// run that is at work.
void CarasGrabadora(std::vector<Cara>& caras);
void Pic_Grabadora_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Grabadora_MouseMove(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
