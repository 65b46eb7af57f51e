// SPDX-License-Identifier: GPL-3.0-or-later
// The history of solved puzzles: the current game's records one at a time, in one of four orders,
// with a small drawing of them all.
#pragma once

#include "platform/Controles.h"
#include "platform/Tipos.h"

namespace tessario {

inline constexpr i16 ORDENES_HISTORICO = 4;

extern Ventana Historic;
extern Cuadro Tex_Historic;                            // the panel `Texto` with the record's lines
extern Cuadro Pic_OrdenHistorico_[ORDENES_HISTORICO];  // the order selectors
inline Cuadro& Pic_OrdenHistorico(i32 indice) {
    return Pic_OrdenHistorico_[indice - 1];
}  // 1 to 4
extern Cuadro Pic_BotAdeAtr;  // the four travel buttons
extern Cuadro Pic_Barras;     // one bar for each record
extern Cuadro Pic_BotAyudaHistoric, Pic_BotSalirHistoric;

// Realises the orders: a text key for each record, the record's index as the item's data. It is
// never shown.
extern Lista Lis_Ordenar;

// Reads the file and fills Lis_Ordenar for the current order. A file that cannot be read is told
// of, and there is then no record.
void CargaLisOrdenar();
// The selectors, the current one highlighted, and the title.
void DibujaTeclas();
// Prints the record at PosicionActual into the panel.
void MuestraRegistro();

// Puts the window together; once, at start.
void ConectaHistoric();

}  // namespace tessario
