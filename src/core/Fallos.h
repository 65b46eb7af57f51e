// SPDX-License-Identifier: GPL-3.0-or-later
// Run-time errors: their numbers, and what is thrown when one happens.
#pragma once

#include <exception>

#include "platform/Tipos.h"

namespace tessario {

inline constexpr i16 ERROR_MEMORIA = 7;
inline constexpr i16 ERROR_DESBORDE = 6;
inline constexpr i16 ERROR_INDICE = 9;
inline constexpr i16 ERROR_DIVISION = 11;
inline constexpr i16 ERROR_TIPO = 13;
inline constexpr i16 ERROR_FICHERO = 53;      // file not found
inline constexpr i16 ERROR_ES = 57;           // device input or output
inline constexpr i16 ERROR_LLENO = 61;        // disk full
inline constexpr i16 ERROR_FIN_FICHERO = 62;  // read past the end
inline constexpr i16 ERROR_NOMBRE = 64;       // bad file name
inline constexpr i16 ERROR_PERMISO = 70;
inline constexpr i16 ERROR_ACCESO = 75;   // path or file access
inline constexpr i16 ERROR_RUTA = 76;     // path not found
inline constexpr i16 ERROR_IMAGEN = 481;  // not a picture

class ErrorEjecucion : public std::exception {
public:
    explicit ErrorEjecucion(i16 numero) : Numero(numero) {}
    const char* what() const noexcept override { return "run-time error"; }
    i16 Numero;
};

}  // namespace tessario
