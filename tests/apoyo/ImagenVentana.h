// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window over a jigsaw of the picture "a.bmp" of 640 x 480.
#pragma once

#include <string>

#include "apoyo/PersonalMontada.h"
#include "settings/Mandos.h"

namespace tessario {

class ImagenVentana : public PersonalMontada {
protected:
    void SetUp() override {
        PersonalMontada::SetUp();
        MovilesDe("a.bmp", 640, 480);
    }
    // Chooses a new picture of this size; the window stays open.
    void Elige(i32 ancho, i32 alto) {
        const std::string nombre = "n" + std::to_string(++cuenta_) + ".bmp";
        PonImagen(nombre, ancho, alto);
        personal::File1.Relee();
        P().avisos.clear();
        P().sonidos.clear();
        EligeFichero(nombre);
    }
    std::string Aviso() { return P().avisos.empty() ? "" : P().avisos.back().texto; }

private:
    int cuenta_ = 0;
};

}  // namespace tessario
