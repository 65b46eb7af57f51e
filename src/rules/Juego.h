// SPDX-License-Identifier: GPL-3.0-or-later
// Juego: what a game is, as one record of facts and routines. Each game's folder fills one, and
// start/Juegos puts them into one table. What is common to the games asks the record of the game
// in play and never which game that is: a further game is a further record.
#pragma once

#include <span>
#include <vector>

#include "platform/Tipos.h"

namespace tessario {

struct VistaMascara;  // of pieces/Moldes.h

// What a picture is to a game.
enum class UsoDeImagen {
    Ninguno,   // it has none: zoom 100, no sample view
    Posible,   // a ground that the player may choose; of any size
    Necesario  // it is made from one, whose size as zoomed stands within limits
};

struct Juego {
    // ------------------------------------------------------------ facts
    i16 Numero = 0;           // value of JuegoActual
    const char* Nombre = "";  // as the player reads it
    i16 Sugerencia = 0;       // the hint that introduces the game
    i16 PiezasPorDefecto = 0;
    UsoDeImagen Imagen = UsoDeImagen::Ninguno;
    bool MuestraPorDefecto = false;  // a new settings file shows the sample view
    i16 Giros = 1;                   // orientations of a piece; 1: pieces do not turn
    bool GiraImagen = false;         // its pixels are prepared upright and turned by quarters
    bool Apila = true;               // pieces may lie on each other
    bool SeArrastra = true;          // pieces are lifted and dragged; else they move by themselves
    bool SeDesplaza = false;         // a piece held at the view's edge scrolls the table
    bool TieneHueco = false;         // a moved piece leaves the hole behind
    bool TieneFormas = false;        // the pieces' shape can be chosen
    bool TieneModos = false;         // ModoJuego: create figures, solve models
    bool GuardaModelos = false;      // its table can be kept as a model; NombrePuzzle names one
    bool PiezasConNombre = false;    // no two pieces alike: each has its name and its own size
    bool EligeFondo = false;         // TipoFondo: image, numbers, letters
    bool SeAtraen = false;           // AtraccionPiezas: pieces pull each other
    bool OrdenOcultas = false;       // the strip has the command that brings up hidden pieces
    bool TutorResuelve = false;      // the tutor makes moves instead of showing a place
    // Shuffling plays moves on the table as it is; a new puzzle is dealt at once and its pieces
    // are still to be laid. Otherwise a shuffle builds a new puzzle and lays it.
    bool BarajaJugando = false;
    i16 PiezaQueVoltea = 0;  // the piece that can be turned over; 0 none

    // ------------------------------------------------------------ a puzzle of this game
    // Writes NumPiezas, the cell, the puzzle's area and the margins.
    void (*Mide)() = [] {};
    // Builds the table; true deals the pieces afresh.
    void (*Crea)(bool nuevo) = [](bool) {};
    // Deals the pieces of a new puzzle, or shuffles them by moves; the frame is BarajaPiezas.
    void (*Baraja)() = [] {};
    // Moves loose pieces away from the centre until called off; null: the game has no such thing.
    void (*OrdenaLaterales)() = nullptr;
    // The player forms a starting position, or has formed it; null: the game has no such thing.
    void (*OrdenaAMano)() = nullptr;
    // Solves before the player's eyes; null: the pieces are brought home one by one.
    void (*Resuelve)() = nullptr;
    // How hard the puzzle is; what is above 0 and below 100 counts as it is.
    double (*Dificultad)() = [] { return 0.0; };

    // ------------------------------------------------------------ its pieces
    // Width and height of a piece's box in an orientation, pixels.
    i16 (*Ancho)(i16 piece, i16 giro, i16 volteo) = nullptr;
    i16 (*Alto)(i16 piece, i16 giro, i16 volteo) = nullptr;
    // The mask of PiezaAux, which is the piece of this number, before its turn.
    VistaMascara (*Mascara)(i16 piece) = nullptr;
    // Does the piece lie as it belongs?
    bool (*GiroCorrecto)(i16 piece) = [](i16) { return true; };
    // How far the piece's corner moves when it turns from where it is to `giro`.
    Punto (*SaltoDeGiro)(i16 piece, i16 giro) = [](i16, i16) { return Punto{}; };
    // The order in which the two-colour display repaints the pieces.
    std::vector<i16> (*OrdenDePintado)() = nullptr;

    // ------------------------------------------------------------ what the player does
    // Hover over a piece whose box holds the pointer: PiezaActual and CursorDeseado; true ends the
    // walk down the stack. Null: the piece's own shape is tested.
    bool (*CursorDePieza)(i16 piece) = nullptr;
    // The piece that goes north, east, south or west (1 to 4) when it is pressed; 0 none. Null:
    // pieces are dragged.
    i16 (*PiezaQueVa)(i16 lado) = nullptr;
    // The press on PiezaActual where pieces are not dragged.
    void (*PulsaPieza)() = [] {};
    // PiezaActual came to lie anew by a turn: what lies on others moves off them.
    void (*SeparaPieza)() = [] {};
    // The same at a drop, with what pulls pieces to each other; before the place test.
    void (*SueltaPieza)() = [] {};
    // Is there a place that pulls a dropped piece?
    bool (*AtraeASuSitio)() = [] { return false; };
    // Exchanges the places of a piece and of its like; false when it has none.
    bool (*CambiaGemela)(i16 piece) = [](i16) { return false; };
    // One flash of the tutor at the place of a piece.
    void (*SenalaSitio)(i16 piece) = [](i16) {};
    // The finished look of the table, on and off, without the flag.
    void (*EntraEnCompleto)() = [] {};
    void (*SaleDeCompleto)() = [] {};

    // ------------------------------------------------------------ its instruments
    // Has the puzzle a sample view? Where it stands when it is switched on.
    bool (*HayMuestra)() = [] { return false; };
    void (*ColocaMuestra)() = [] {};
    // Is the hint that tells how pieces are turned of use?
    bool (*SugiereGiro)() = [] { return false; };

    // ------------------------------------------------------------ its records
    // Can PiezasPorLado be that of a puzzle?
    bool (*LadoPosible)() = [] { return false; };
    // NumPiezas as it follows from the other fields.
    i32 (*PiezasQueTocan)() = [] { return i32{0}; };
    // Moves a board that was saved on a screen of another size to the grid of this one.
    void (*AdaptaTablero)() = [] {};
    // Puts pieces of a record that stand beside their places of the board onto them.
    void (*AsientaTablero)() = [] {};
    // Can the moves of a log that names pieces have been made?
    bool (*DiarioPosible)() = [] { return true; };
    // Puts right what a loaded position must not be, when its table stands.
    void (*TrasMontar)() = [] {};
};

// The record of the game in play. A JuegoActual that is no game's has one that does nothing.
const Juego& JuegoEnCurso();
// The same of any number.
const Juego& JuegoDe(i16 numero);
bool EsJuego(i16 numero);
// All games, in the order of their numbers.
std::span<const Juego* const> Juegos();
// Puts the table in use; comes before anything else of the game.
void PonJuegos(std::span<const Juego* const> tabla);

}  // namespace tessario
