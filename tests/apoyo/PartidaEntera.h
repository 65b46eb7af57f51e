// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run of the program on the test platform, from its start to its end, in a folder such as a
// player has: the first games, the models, pictures, a history, a saved puzzle. A test changes what
// lies around, then has the run, or parts of it, done.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "apoyo/MesaMontada.h"

namespace tessario {

class PartidaEntera : public MesaMontada {
protected:
    void SetUp() override;

    // --- The steps of a run. Each does what the player does, and answers every question with yes.
    void Empieza();                          // until the welcome has been closed
    void Personaliza();                      // opens the settings and leaves
    void Pega();                             // takes the clipboard's picture there, and leaves
    void Guarda(const std::string& nombre);  // the puzzle on the table
    void Carga(const std::string& nombre);   // through its window
    void Borra(const std::string& nombre);
    void GuardaModelo(const std::string& nombre);
    void MiraHistorico();
    void MiraEstadistica();
    void Resuelve();          // the puzzle is finished, and enters the history
    void CambiaA(i16 juego);  // in the settings
    void Mueve();             // the top piece, for one move of the log
    void Copia();             // the safety copy, at its time
    void Sale();
    // All of them in a row, in each game.
    void Recorrido();

    // Titles of the messages so far, and whether one has this text.
    std::set<std::string> Titulos();
    bool SeDijo(const std::string& texto);
    // What stands in the file that keeps this game.
    std::string FicheroDe(i16 juego);

    std::string visto_;  // rows of the list of the window that was opened last, one a line

private:
    // The player is in the window and does this; every question is answered with yes.
    void En(const std::string& ventana, const std::function<void()>& hace,
            const std::function<void()>& abre);
    void EnCargua(i16 modo, const std::string& nombre);
};

}  // namespace tessario
