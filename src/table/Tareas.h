// What the player asks for while a handler of the table is still at work. Solver, shuffle, side
// arrangement, replay and turning piece let events through between their steps; an event that
// comes in there finds the table in the middle of that work. Such an event starts nothing of its
// own: a press on the table is ignored, and a command ends the work under way and is carried out
// when the handler that is at work has returned, so that no command ever runs inside another.
// While a shuffle runs, commands are dead.
#pragma once

#include <optional>

#include "core/PuzzGbl.h"
#include "platform/Tipos.h"

namespace tessario {

// Values of Gbl.OrdenAplazada: 1 to 12 are commands, an option of the panel stands this far above.
inline constexpr i16 APLAZADA_OPCION = 12;

// Did the event that is being handled come in from inside another handler's work?
bool DentroDeTarea();
// Ends the work under way at its next step: solver, arrangement, replay, turning piece.
void TerminaTareas();
// Notes what is to be done when that work has ended; the last request counts.
void Aplaza(i16 orden);

// A mouse event of the table that comes in behind the release that ended a turn, while the turn's
// handler is still at work, is kept to be handled after it. True: it was kept.
bool GuardaEntrada(const EntradaTabla& entrada);

// A handler at work. Handlers press buttons on the player's behalf, so one may run in another.
class ManejadorEnCurso {
public:
    ManejadorEnCurso();
    ~ManejadorEnCurso();
    ManejadorEnCurso(const ManejadorEnCurso&) = delete;
    ManejadorEnCurso& operator=(const ManejadorEnCurso&) = delete;
    // The request that waits, taken; 0 when there is none or work is under way around this handler.
    i16 TomaAplazada() const;
    // The oldest mouse event that was kept, likewise.
    std::optional<EntradaTabla> TomaEntrada() const;
};

}  // namespace tessario
