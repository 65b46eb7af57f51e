// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/CursorMesa.h"

#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"

namespace tessario {

namespace {

// Ids that have a drawing of their own; the others are the system's pointers.
const struct {
    i16 id;
    const char* nombre;
} CURSORES[] = {{cursor::PROHIBIDO, cursor::SENAL_PROHIBIDO},
                {cursor::CRUZ, cursor::CRUZ_FLECHAS},
                {cursor::DISENO, cursor::MANO_ABIERTA},
                {cursor::BIEN, cursor::MANO_VERDE},
                {cursor::MAL, cursor::MANO_ROJA},
                {cursor::TUTOR, cursor::PUNTERO_TUTOR},
                {cursor::NORTE, cursor::FLECHA_NORTE},
                {cursor::ESTE, cursor::FLECHA_ESTE},
                {cursor::SUR, cursor::FLECHA_SUR},
                {cursor::OESTE, cursor::FLECHA_OESTE}};

}  // namespace

void AplicaCursor(i16 id) {
    Gbl.CursorActual = id;
    for (const auto& c : CURSORES)
        if (c.id == id) {
            PonCursor(Pic_Trabajo, c.nombre);
            return;
        }
    PonPuntero(Pic_Trabajo, id);
}

}  // namespace tessario
