// SPDX-License-Identifier: GPL-3.0-or-later
// The services that every room of the game calls: sound, pacing delay, cursor, help, and the
// points at which pending events may run.
#pragma once

#include <string>

#include "platform/Controles.h"
#include "platform/Tipos.h"

namespace tessario {

// The sounds, by resource number.
namespace sonido {
enum Sonido : i16 {
    TECLA = 6,      // a light tick: a list's line, a control, a key of the recorder or a traveller
    SUELTA = 7,     // a second tick: a control released, a step done, an order chosen
    BOTON = 9,      // a command or a window's button
    RECHAZO = 11,   // something is refused
    RESUELTO = 14,  // the puzzle is solved
    TOMA = 50,      // a piece is picked up
    EN_SITIO = 51,  // a piece lands in its place
    CAE = 52,       // a piece is dropped elsewhere, or arranged at the side
    DESLIZA = 53,   // a sliding piece moves
    TUTOR = 55      // the tutor points
};
}  // namespace sonido

namespace cursor {
// Cursor ids of the table: what CursorDeseado and CursorActual hold.
enum Cursor : i16 {
    NORMAL = PUNTERO_NORMAL,
    RELOJ = PUNTERO_RELOJ,          // an automatic run is at work
    PROHIBIDO = PUNTERO_PROHIBIDO,  // a sliding piece that cannot move
    CRUZ = 15,                      // a sliding piece while the player forms a position
    DISENO = 20,                    // a piece of a figure that is being created
    BIEN = 21,                      // a piece in its place
    MAL = 22,                       // a piece anywhere else
    TUTOR = 24,                     // a piece that the tutor would tell the place of
    NORTE = 25,                     // a sliding piece whose hole lies north of it, and so on
    ESTE = 26,
    SUR = 27,
    OESTE = 28
};

// The drawn cursors, by the names that PonCursor asks for.
inline constexpr const char* CRUZ_FLECHAS = "CruzFlechas";
inline constexpr const char* FLECHA_ESTE = "FlechaEst";
inline constexpr const char* FLECHA_NORTE = "FlechaNor";
inline constexpr const char* FLECHA_OESTE = "FlechaOes";
inline constexpr const char* FLECHA_SUR = "FlechaSur";
inline constexpr const char* MANO_ABIERTA = "ManoAbierta";
inline constexpr const char* MANO_CERRADA = "ManoCerrada";
inline constexpr const char* MANO_INDICE = "ManoIndice";
inline constexpr const char* MANO_ROJA = "ManoRoja";
inline constexpr const char* MANO_VERDE = "ManoVerde";
inline constexpr const char* SENAL_PROHIBIDO = "Prohibido";
inline constexpr const char* PUNTERO_TUTOR = "PunTutor";
}  // namespace cursor

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
