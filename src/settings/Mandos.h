// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the settings window as records, and where each stands in each game. Of the four
// closed controls the window needs no more than this: switch, selector, knob and spinner have a
// caption, a value and a Change event, and sound their own click when the player uses them.
#pragma once

#include "platform/Controles.h"

namespace tessario {

extern Ventana Personal;

namespace personal {

// The panels, each with its frame and title.
extern Cuadro Pic_JuegoActual, Pic_ImagenPuzz, Pic_ZoomImagen, Pic_TiposPuz, Pic_NroPiezas;
extern Cuadro Pic_Colorfon, Pic_Colorpza, Pic_FactorPegado;

// Picture or model.
extern ListaUnidades Drive1;
extern ListaCarpetas Dir1;
extern ListaFicheros File1;
extern Lista Lis_Modelos;
extern Cuadro Pic_MostrarImagen;    // preview
extern Cuadro Pic_BotPortapapeles;  // takes the clipboard's picture
extern Spin Spin1;                  // ZoomImagen
extern Cuadro Pic_InfoTamBmp;       // the zoomed size
extern Cuadro Pic_TamRelIma;        // it against the screen

// Pieces.
extern Cuadro Pic_TipPuzSel;  // holds the eight shapes
extern Cuadro Pic_TipPuzMarco;
extern Cuadro Pic_TipPuz[8];
extern Lista Lis_NroPiezas;

// A field of 216 colours, the mark on the one in force, and a sample of it.
struct CampoColor {
    Cuadro Seleccion, Marca, Muestra;
};
extern CampoColor ColFon, ColPza;

// Attraction test: a table in small and a piece on it.
extern Cuadro Pic_Prueba, Pic_PruebaPeq, Pic_BotPrueba;

extern Cuadro Pic_BotAyuda, Pic_BotSalir;

// The closed controls by their numbers.
inline constexpr i16 BUL_SONIDO = 1, BUL_GIRO = 2, BUL_BORDE = 3, BUL_ATRACCION = 4,
                     BUL_INFORMACION = 5;
inline constexpr i16 OPCIONES[] = {BUL_SONIDO, BUL_GIRO, BUL_BORDE, BUL_ATRACCION, BUL_INFORMACION};
inline constexpr i16 JUEGOS[] = {21, 22, 23};
Buleano& Bul(i16 indice);  // 1 to 5, and 21 to 23: one for each game
inline constexpr i16 SEL_MODO = 1, SEL_FONDO = 2;
Selector& Sel(i16 indice);  // 1 and 2
inline constexpr i16 POT_VELOCIDAD = 1, POT_FACTOR = 2;
Potenciometro& Pot(i16 indice);  // 1 and 2

// The zoom, percent.
inline constexpr i16 ZOOM_MINIMO = 5, ZOOM_MAXIMO = 995, ZOOM_PASO = 5;

inline constexpr const char* PATRON_IMAGENES = "*.bmp;*.rle;*.wmf;*.emf;*.jpg";

// All records as in a program just started, without events.
void Reinicia();
// Has the puzzle in play, as set up in the window, a picture?
bool UsaImagen();
// Paints the eight shapes and moves the frame to the chosen one.
void PintaFormas();
// Paints the field of colours, its mark on a colour and the sample.
void PintaColores(CampoColor& campo, Color color);
// The colour's red, green and blue, as the player reads them.
std::string TextoColor(Color color);
// Lays out the panels for the game in play, with their titles, values and enabled parts.
void ColocaPaneles();
// The choices of the sliding board's ground, for its number of pieces. Letters that do not suffice
// give way to numbers.
void PonTextosDeFondo();
// The hand over those lists from which something can be chosen.
void PonPunterosDeListas();

}  // namespace personal

}  // namespace tessario
