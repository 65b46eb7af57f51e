// SPDX-License-Identifier: GPL-3.0-or-later
// The window of saved puzzles: load, save and delete one, or save the Tangram's design as a model,
// by Gbl.ModoCargua. Saved puzzles are the ".puz" files of CarpetaArchivo.
#pragma once

#include <string>

#include "platform/Controles.h"
#include "platform/Tipos.h"
#include "rules/Catalogo.h"

namespace tessario {

extern Ventana Cargua;
extern Etiqueta Tex_TituloCargua, Tex_MensajeCargua;  // `Tex_Titulo`, `Tex_Mensaje`
extern Lista Lis_CarGua;
extern ListaFicheros Fil_CarGua;  // never shown
extern CajaTexto Tex_NombreCargua;
extern Cuadro Pic_BotCargar, Pic_BotGuardar, Pic_BotBorrar;
extern Cuadro Pic_BotAyudaCargua, Pic_BotSalirCargua;

// Names of the saved puzzles, without their ".puz".
void RellenaListaPuzzles();
// The file of a saved puzzle by its name, whatever its letter case; empty for a name that no file
// can have.
std::string FicheroPuzzle(const std::string& nombre);

// Puts the window together; once, at start.
void ConectaCargua();

}  // namespace tessario
