// SPDX-License-Identifier: GPL-3.0-or-later
// The global settings file and the per-game files.
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

}  // namespace tessario
