// The services that every room of the game calls: sound, pacing delay, cursor, help, and the
// points at which pending events may run.
#pragma once

#include <string>

#include "platform/Controles.h"
#include "platform/Tipos.h"

namespace tessario {

// Plays sound resource Id if sounds are on: Asincrono 1 returns at once, anything else waits for
// the end.
void SonidoJuego(i16 Asincrono, i16 Id);

// The factor by which VelocidadJuego stretches delays: 8 at 0, 1 at 50, 0 at 100 and above.
double FactorPausa(i16 velocidad);

// Waits; milliseconds at speed 50. No event passes; what was painted is on the screen first.
void Pausa(i16 Milisegundos);

// Gives a control or a window the named cursor, and back one of the standard pointers.
void PonCursor(Control& objeto, const std::string& Nombre);
void PonCursor(Ventana& objeto, const std::string& Nombre);
void PonPuntero(Control& objeto, i16 puntero);
void PonPuntero(Ventana& objeto, i16 puntero);

// Lets pending window events run; Gbl.EventosAnidados tells them that they come in so.
void DejaPasarEventos();

// Help topic; 0 is the start page.
void Ayuda(i32 tema);

}  // namespace tessario
