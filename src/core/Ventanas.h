// The two small windows of the core: the modal message and the splash.
#pragma once

#include "platform/Controles.h"

namespace tessario {

extern Ventana Mensajes;
extern Etiqueta Tex_Titulo, Tex_Mensaje;          // of Mensajes
extern Cuadro Pic_Si, Pic_No, Pic_BotSalirMensaje, Pic_BotAyudaMensaje;

extern Ventana Careta;

// Puts their events in place; once, at start.
void ConectaMensajes();
void ConectaCareta();
void ReiniciaVentanas();   // both windows as in a program just started

}  // namespace tessario
