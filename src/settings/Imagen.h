// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of the puzzle in the settings window: the lists that it is chosen from, its preview,
// the zoom that brings it within the limits, the pieces that it can be cut into, the clipboard, and
// pictures brought from elsewhere.
#pragma once

#include <string>

#include "platform/Controles.h"

namespace tessario {

// The zoomed picture of the puzzle in play, as it was when the window opened.
extern Superficie Pic_FonTamModiMem;

// The picture of the chosen file, or the model's figure, into Pic_FonTamReal and the preview.
void CargaMostrarImagen();
// The same after the sizes; then the zoomed picture and what tells of its size.
void ImagenCambia();
// The grids that the picture can be cut into, and the one nearest to PiezasPorLado chosen.
void CargaLisNroPiezas();

void File1_Click();
void File1_DblClick();
void Dir1_Change();
void Drive1_Change();
void Spin1_Change();
void Lis_NroPiezas_Click();
void Pic_BotPortapapeles_MouseDown();

// The pictures that the player has brought into the game: among the program's own, or, where those
// cannot be written, in a folder of the player's working folder.
std::string CarpetaDelJugador();
// The lists at the folder of the puzzle's picture, without a choice being made.
void AbreListas();
// Lists a folder, without a choice being made.
void ListaCarpeta(const std::string& carpeta);
// The puzzle's own file chosen and shown without a click. Where the list has none: the picture in
// use stays, or, when there is none in use, the first of the list is taken with a click.
void EligePropia();
// Shows the button when the clipboard holds a picture that the puzzle could have.
void MuestraBotonPortapapeles();
// Makes Gbl.ImagenTraida a file among the program's pictures, or in its working folder, and
// chooses it.
void ImportaImagenTraida();
// Empties Pic_FonTamReal.
void OlvidaImagen();

// The zoom that brings a picture of this size within the limits, in steps of 5.
i32 ZoomPara(i32 ancho, i32 alto);
bool ZoomValido(i32 ancho, i32 alto, i32 zoom);

}  // namespace tessario
