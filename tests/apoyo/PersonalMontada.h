// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window over a table ready for play: the player's visit is a routine that the test
// gives, which runs while the window is open.
#pragma once

#include <functional>
#include <string>

#include "apoyo/MesaMontada.h"
#include "settings/Mandos.h"

namespace tessario {

class PersonalMontada : public MesaMontada {
protected:
    void SetUp() override;

    // The jigsaw of a picture of the program's folder, freshly dealt, as a record would bring it.
    void MovilesDe(const std::string& nombre, i32 ancho, i32 alto, i16 lado = 5, i16 forma = 0);
    // The Tangram solving model 1 of a file with the given names; every model is another figure.
    void TangramDe(const std::vector<std::string>& modelos, i16 modo = MODO_RESOLVER);
    // Command 2; `visita` is what the player does in the window, which closes when it ends.
    void Visita(const std::function<void()>& visita);
    // The player leaves by the exit button; the next questions are answered so.
    void Sal(std::initializer_list<bool> respuestas = {});
    // The player presses the middle of a control.
    void Pulsa(Control& c);
    // Chooses the file of the list that has this name.
    void EligeFichero(const std::string& nombre);
    std::string FicheroElegido();

    PunteroPrueba Raton{Personal};
};

}  // namespace tessario
