// SPDX-License-Identifier: GPL-3.0-or-later
// What the three windows of the records have alike: their place on the screen, their title, and
// the square buttons along their lower edge.
#pragma once

#include <string>

#include "core/Paleta.h"
#include "platform/Controles.h"

namespace tessario {

// Tiles of the second row of Pic_BmpBoton.
enum Tesela : i16 { TeselaCargar = 2, TeselaGuardar, TeselaBorrar, TeselaAyuda = 6, TeselaSalir };

inline constexpr i32 LADO_BOTON = 48;  // of a square button, pixels
inline constexpr i32 ENTRE_BOTONES = 15;
inline constexpr i32 PIE_VENTANA = 17;  // below the buttons

inline constexpr Color CREMA_VENTANA = paleta::tinta::TITULO.Fondo;  // the ground, as in messages

// Gives the window its size, the middle of the screen, and its ground with its frame.
void PreparaVentana(Ventana& v, i32 ancho, i32 alto);
// The frame alone, on a window that has been cleared.
void EnmarcaVentana(Ventana& v);
// The title, its middle at x.
void TitulaVentana(Ventana& v, i32 x, const std::string& titulo);
// A groove round a part of the window, for a control that lies there.
void HundeEn(Ventana& v, const Control& c);

// A square button as it is at start; it is reached with Tab.
void ReiniciaBoton(Cuadro& boton, const char* nombre, const char* accesible);
// Paints it and puts it in its place on the lower edge, by its right end.
void ColocaBoton(Cuadro& boton, Tesela tesela, const Ventana& v, i32 derecha);

// The face of a long button, stretched over the whole of a surface of any height.
void PintaTeselaLarga(Superficie& boton, bool pulsada);

// The ordinary way out of a window: sound and close. The Escape key does the same.
void SaleDe(Ventana& v);
void SaleConEscape(Ventana& v, i16 caracter);
// A help topic, behind the sound of a button; the window stays.
void AyudaDesdeVentana(i32 tema);

}  // namespace tessario
