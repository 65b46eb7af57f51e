// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's picture surfaces and controls, by their own names. Those that the player sees
// are picture boxes; the rest are bitmaps that are only drawn on. table/Mesa.cpp puts the visible
// ones into the window and connects their events.
#pragma once

#include <array>
#include <vector>

#include "platform/Controles.h"

namespace tessario {

// ---------------------------------------------------------------- moulds

// Everything that the drawing of a mask reads, the game first. Masks of equal keys are equal pixel
// by pixel; the empty key is nobody's.
using ClaveMolde = std::array<double, 16>;

// A pixel of a piece's drawn border: its index in the box, row by row, and its colour.
struct PixelBorde {
    i32 Donde;
    Pixel Valor;
};

// A mask, black inside and white outside, the border that lies on it, and what they were drawn for.
struct Molde {
    ClaveMolde Clave{};
    Superficie Mascara;
    std::vector<PixelBorde> Borde;
};

// As many as the Tangram has: five kinds of pieces in eight turns on two faces. Of these the
// interlocking shapes use 32 (two templates, each with its edges), the other shapes at most 4, the
// sliding pieces 1.
inline constexpr std::size_t MOLDES = 5 * 8 * 2;

// ---------------------------------------------------------------- surfaces and controls

// The window.
extern Ventana Mesa;

// The table's picture, from the ground up. All three are of one size.
extern Superficie Pic_Fondo;   // the empty table
extern Superficie Pic_Imagen;  // the table with all pieces at rest
extern Cuadro Pic_Trabajo;     // what the player sees: with the piece in hand

// The current piece.
extern Superficie Pic_PiezaMascara;           // black inside, white outside
extern Superficie Pic_PiezaImagen;            // its picture inside, black outside
extern Superficie Pic_PiezaFinal;             // scratch: the piece blended with the table under it
extern std::array<Molde, MOLDES> Pic_Moldes;  // masks that are drawn already
extern Superficie Pic_PiezaColor;             // flat colour that takes the picture's place

// The picture and the cut.
extern Superficie Pic_Bitmap;      // the picture with its cut lines, or the solved board
extern Superficie Pic_Temporal;    // cutting templates
extern Superficie Pic_FonTamReal;  // the image at its stored size
extern Superficie Pic_FonTamModi;  // the image at its zoomed size

// Tiles of the buttons and of the small controls, from the program's resources.
extern Superficie Pic_BmpBoton, Pic_BmpVario;

// On the table.
extern Cuadro Pic_Muestra;     // sample view
extern Cuadro Pic_Sugerencia;  // hint panel
extern Cuadro Pic_SugeMasAyuda, Pic_SugeBotCerrar;
extern Cuadro Pic_SelOpciones;  // options panel
extern BarraDesplazamiento BarraHor, BarraVer;
extern Cuadro Pic_Cuadrito;  // corner between the bars
extern Cruz CruzMesa;        // what the keyboard points with

// The strip.
extern Cuadro Pic_Botonera;
extern Cuadro Pic_Boton_[12];
inline Cuadro& Pic_Boton(i32 indice) {
    return Pic_Boton_[indice - 1];
}  // 1 to 12
extern Cuadro Pic_Cronome, Pic_CroTime, Pic_InfoColo, Pic_Grabadora;

extern Temporizador Timer1;

// Puts every surface and control above back to what it is in a program just started.
void ReiniciaSuperficies();

}  // namespace tessario
