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
} CURSORES[] = {{12, "Prohibido"}, {15, "CruzFlechas"}, {20, "ManoAbierta"}, {21, "ManoVerde"},
                {22, "ManoRoja"},  {24, "PunTutor"},    {25, "FlechaNor"},   {26, "FlechaEst"},
                {27, "FlechaSur"}, {28, "FlechaOes"}};

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
