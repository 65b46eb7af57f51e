// SPDX-License-Identifier: GPL-3.0-or-later
// The fixed messages of the game, with the room that each was given, in one table:
// what the player reads is found here, and the tests of the window measure every text against its
// number of lines.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "platform/Tipos.h"

namespace tessario {

// %1 and %2 in a text stand for values that are only known when it is shown.
struct Aviso {
    std::string_view titulo;
    std::string_view texto;
    i16 modo;                          // height in text lines
    i16 botones;                       // 1 closing button, 2 yes and no
    i16 ayuda;                         // help topic, 0 none
    std::string_view muestra[2] = {};  // values of ordinary length, to measure by
};

namespace aviso {
extern const Aviso RESOLUCION, MODO_NO_CAMBIA, MODO_CAMBIADO, MODO_REINICIO, MODO_FALLIDO;
extern const Aviso BIENVENIDA;
extern const Aviso SIN_CONFIGURACION, SIN_AJUSTES, ERROR_CONFIGURACION, ERROR_AJUSTES;
extern const Aviso IMAGEN_NO_VALIDA, IMAGEN_PERDIDA, IMAGEN_RECHAZADA, IMAGEN_ADAPTADA,
    ZOOM_EXCESIVO;
extern const Aviso NO_ES_IMAGEN, IMAGEN_SIN_USO, IMAGEN_SIN_GUARDAR;
extern const Aviso CAMBIO_JUEGO, CAMBIO_PARAMETROS, CAMBIO_MODELO, BORRA_MODELO;
extern const Aviso SIN_SOLUCION;
extern const Aviso YA_RESUELTO, RESUELTO, AL_HISTORICO, ERROR_HISTORICO;
extern const Aviso HISTORICO_AUSENTE, HISTORICO_SIN_RUTA, HISTORICO_ILEGIBLE;
extern const Aviso MEZCLA_TANGRAM, ORDEN_A_MANO, ORDEN_INSOLUBLE;
extern const Aviso SALIR, SALIR_GRABADORA, ARCHIVO_GRABADORA;
}  // namespace aviso

// All of the above.
std::span<const Aviso* const> Avisos();

// The text with its values in place.
std::string TextoDe(const Aviso& a, std::initializer_list<std::string_view> valores = {});
// Shows it; the answer is in Gbl.RespuestaMensaje.
void Avisa(const Aviso& a, std::initializer_list<std::string_view> valores = {});

}  // namespace tessario
