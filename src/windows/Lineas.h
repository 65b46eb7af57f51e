// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that the history and the statistics share: one table of labels and values with the
// condition of each line beside it, printed by one routine.
#pragma once

#include <string>

#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "platform/Controles.h"

namespace tessario {

inline constexpr i32 LINEAS_VALOR_X = 178;  // left edge of the values, pixels
inline constexpr Color PAPEL_LINEAS = paleta::tinta::VALOR.Fondo;  // ground of the panel

// Which window asks, and what it asks about.
struct Ficha {
    enum Pregunta { DelHistorico = 1, DeEstadisticas = 2 };
    Pregunta Ventana = DelHistorico;
    RegistroHistorico Datos;  // the record on show, or the puzzle on the table
    i32 Orden = 0;            // history: place in the list, from 1
};

// Clears the panel, gives it the height that the lines need, and prints those that are shown. The
// game's conditions go by the current game, not by the record. Returns the top of the last line.
i32 ImprimeLineas(Cuadro& panel, const Ficha& ficha);

// Seconds as a time of day; whole days are dropped.
std::string TextoDuracion(double segundos);

}  // namespace tessario
