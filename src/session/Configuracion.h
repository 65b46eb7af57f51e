// The global settings file, the per-game files, and the colours that follow from a record.
#pragma once

#include <string>

namespace tessario {

void LeeConfiguracion();
void EscribeConfiguracion();
// Loads a per-game file (full path), or falls back to the defaults and creates it.
void LeeAjustesJuego(const std::string& Fichero);
// Writes the current record to the current game's per-game file.
void GuardaAjustesJuego();
// CarpetaPrograma + "TsR" + game + "33.ini".
std::string FicheroDelJuego();
// Takes the place of the settings window until there is one: the first picture of CarpetaImagenes
// in name order that loads and can be zoomed into the limits becomes the puzzle's, and the puzzle
// is dealt afresh. With none, the player is told and the table goes on with an empty picture.
void EligeImagenProvisional();
// ColorContraste and the four shades, from ColorFondo and ColorPiezas.
void CalculaColores();

}  // namespace tessario
