// SPDX-License-Identifier: GPL-3.0-or-later
// The two small windows of the core: the modal message and the splash.
#pragma once

#include <string>

#include "platform/Controles.h"

namespace tessario {

// Shows a message and waits until it is closed; Gbl.RespuestaMensaje then holds the answer.
// ModoMensaje: height in text lines. BotonesMensaje: 1 closing button, 2 yes and no. Ayuda: help
// topic, 0 for none.
void Mensaje(const std::string& Titulo, const std::string& Texto, i16 ModoMensaje,
             i16 BotonesMensaje, i16 Ayuda = 0);

extern Ventana Mensajes;
extern Etiqueta Tex_Titulo, Tex_Mensaje;  // of Mensajes
extern Cuadro Pic_Si, Pic_No, Pic_BotSalirMensaje, Pic_BotAyudaMensaje;

extern Ventana Careta;

// Puts their events in place; once, at start.
void ConectaMensajes();
void ConectaCareta();
void ReiniciaVentanas();  // both windows as in a program just started

// Gives a surface a picture of the program's resources, and its size. False when there is none.
bool PonRecurso(Superficie& destino, const std::string& nombre);
// Takes the pictures of the buttons into Pic_BmpBoton and Pic_BmpVario, once: at start, or earlier
// for a message that comes before.
void CargaTeselas();

}  // namespace tessario
