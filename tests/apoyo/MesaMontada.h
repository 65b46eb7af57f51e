// SPDX-License-Identifier: GPL-3.0-or-later
// A table ready for play on the test platform: 800 x 600, sounds on and logged, no delays, the
// window connected. Each routine below puts one game on it.
#pragma once

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"

namespace tessario {

class MesaMontada : public PruebaBase {
protected:
    void SetUp() override;
    void TearDown() override;

    // The jigsaw, freshly dealt, of a picture of this size in which every pixel is another.
    void Moviles(i16 lado, i32 ancho, i32 alto, i16 forma = 0);
    // The sliding puzzle with numbers, shuffled. HuecoResuelto puts it back as solved.
    void Deslizantes(i16 lado);
    void TableroResuelto();
    // The Tangram, freshly dealt. Solving: the seven places stand apart from each other, upright.
    void Tangram(i16 modo);

    // Where a press hits a piece, in table pixels: the first point of its own shape near the
    // middle.
    Punto PuntoDe(i16 piece);
    // The player drags a piece by that point so that its record ends at (x, y).
    void Arrastra(i16 piece, i32 x, i32 y);
    // Puts a piece somewhere and shows the table as it then is.
    void Pon(i16 piece, i32 x, i32 y, i32 giro = 0);
    // Numbers of the sounds played since the last call.
    std::vector<int> Sonidos();
    void PulsaOrden(i16 indice);  // moves over a command button and presses it

    PunteroPrueba Puntero{Mesa};
};

}  // namespace tessario
