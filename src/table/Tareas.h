// SPDX-License-Identifier: GPL-3.0-or-later
// What the player does while a handler of the table is still at work. Solver, shuffle, side
// arrangement, replay and turning piece let events through between their steps; an event that
// comes in there finds the table in the middle of that work, and starts nothing of its own.
//
// - What is asked for (a command, an option of the panel, the recorder's switch, closing the
//   window) ends the work under way and is kept.
// - While the player turns a piece, everything else that happens on the table is kept too, keys
//   and wheel included. In the other kinds of work the table is deaf.
//
// What is kept waits in one queue and is handled in the order in which it came in, when the handler
// that is at work has returned, so that nothing ever runs inside another.
#pragma once

#include <optional>

#include "core/PuzzGbl.h"
#include "platform/Tipos.h"

namespace tessario {

// Did the event that is being handled come in from inside another handler's work?
bool DentroDeTarea();
// Is an automatic replay of the recorder at work? Its flags alone end it.
bool DentroDeAvance();
// Ends the work under way at its next step: solver, arrangement, replay, turning piece. A shuffle
// goes on to its end, since half of one is no puzzle, but without its pauses.
void TerminaTareas();
// Keeps a request. One that waits already is not asked for twice.
void Aplaza(Suceso que, i16 numero = 0);
// Keeps an event of the table that comes in while a piece is turned. True: it was kept.
bool GuardaEntrada(const EntradaTabla& entrada);
// The release of the button that turns a piece, if it has come in: taken out of what is kept. Only
// a look from its point stays there, for the pointer.
bool TomaSueltaDelGiro();
// Does a release of this button wait?
bool EsperaSuelta(i16 boton);

// A handler at work. Handlers press buttons on the player's behalf, so one may run in another.
class ManejadorEnCurso {
public:
    ManejadorEnCurso();
    ~ManejadorEnCurso();
    ManejadorEnCurso(const ManejadorEnCurso&) = delete;
    ManejadorEnCurso& operator=(const ManejadorEnCurso&) = delete;
    // The oldest that was kept, taken; none while work is under way around this handler.
    std::optional<EntradaTabla> TomaEntrada() const;
};

// A turn by the player's hand at work.
class GiroAMano {
public:
    GiroAMano() { Gbl.GiroEnCurso = Gbl.PulsoGiro = true; }
    ~GiroAMano() { Gbl.GiroEnCurso = Gbl.GirandoPieza = false; }
    GiroAMano(const GiroAMano&) = delete;
    GiroAMano& operator=(const GiroAMano&) = delete;
};

}  // namespace tessario
