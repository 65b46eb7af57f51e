// SPDX-License-Identifier: GPL-3.0-or-later
// The hint panel.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// The hints, by what they speak of.
namespace sugerencia {
enum Sugerencia : i16 {
    CIERRE = 0,  // how the panel is switched on again
    JUEGO = 10,  // another game
    AJUSTES = 15,
    MOVILES = 21,  // the three that introduce the games
    DESLIZANTES = 22,
    TANGRAM = 23,
    ATRACCION = 25,
    OCULTAS = 30,
    COLOCADAS = 32,
    ORDENAR = 34,
    ORDENAR_A_MANO = 36,
    MUESTRA = 40,
    QUITAR_BORDE = 42,
    PONER_BORDE = 43,
    RESOLVER = 45,
    GIRO = 47,
    TUTOR = 50,
    TUTOR_ESPERA = 52,  // click on a piece
    TUTOR_INDICA = 55,  // has no text
    FONDO = 60,
    MODOS = 63,
    FORMAS = 65,
    ENTRE_PIEZAS = 67,  // pieces attract each other
    GRABADORA = 75,
    GUARDAR = 77,
    MODELO = 78,
    HISTORICO = 80
};
}  // namespace sugerencia

inline constexpr u32 ESPERA_SUGERENCIA = 15000;                     // ms between two hints
inline constexpr i32 SUGERENCIA_ANCHO = 423, SUGERENCIA_ALTO = 64;  // the panel, pixels

// Fills the table of hints; once, at start.
void CargaSugerencias();
// Shows hint n, if the panel is enabled.
void Sugerencia(i16 n);
void Pic_SugeMasAyuda_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_SugeBotCerrar_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Sugerencia_MouseMove(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
