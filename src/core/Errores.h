// Run-time errors by number, and the written-out form of "suppressed statement by statement".
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

// The number of the last error that Sigue swallowed since it was last cleared, 0 for none.
i16 ErrorPendiente();
void BorraError();
void PonErrorPendiente(i16 numero);

// Runs one statement; a run-time error in it becomes the pending one and execution goes on.
template <class F>
void Sigue(F&& sentencia) {
    try {
        sentencia();
    } catch (const ErrorEjecucion& e) {
        PonErrorPendiente(e.Numero);
    }
}

// Runs a routine that looks after its own errors: what it swallows inside leaves no trace here,
// what it throws becomes the pending error.
template <class F>
void Llama(F&& rutina) {
    const i16 antes = ErrorPendiente();
    i16 lanzado = 0;
    try {
        rutina();
    } catch (const ErrorEjecucion& e) {
        lanzado = e.Numero;
    }
    PonErrorPendiente(lanzado != 0 ? lanzado : antes);
}

}  // namespace tessario
