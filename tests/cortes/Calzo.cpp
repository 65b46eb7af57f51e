// SPDX-License-Identifier: GPL-3.0-or-later
#include "cortes/Calzo.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>

namespace tessario::calzo {
namespace {

std::atomic<bool> puesto{false};
std::atomic<int> llamadas{0};
Modo modo = Modo::Cuenta;
int elegida = 0, elError = 0;

// Is it this call's turn? Ends the process when that is what was asked for.
bool LeToca() {
    if (!puesto || ++llamadas != elegida) return false;
    if (modo == Modo::Mata) _exit(SALIDA_MATADO);
    return true;
}

bool Fracasa() {
    if (!LeToca() || modo != Modo::Falla) return false;
    errno = elError;
    return true;
}

// The system's own routine of that name.
template <class Rutina>
Rutina* Propia(const char* nombre) {
    return reinterpret_cast<Rutina*>(dlsym(RTLD_NEXT, nombre));
}

int Abre(int carpeta, const char* ruta, int banderas, mode_t permisos) {
    if (Fracasa()) return -1;
    return static_cast<int>(syscall(SYS_openat, carpeta, ruta, banderas, permisos));
}

mode_t PermisosDe(int banderas, va_list resto) {
    return (banderas & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(resto, mode_t) : 0;
}

}  // namespace

void Pon(Modo m, int n, int error) {
    modo = m;
    elegida = n;
    elError = error;
    llamadas = 0;
    puesto = true;
}

void Quita() {
    puesto = false;
}

int Llamadas() {
    return llamadas;
}

}  // namespace tessario::calzo

// The linker gives these names to the program and to the libraries that it loads.
extern "C" {

using namespace tessario::calzo;

int open(const char* ruta, int banderas, ...) {
    va_list resto;
    va_start(resto, banderas);
    const mode_t permisos = PermisosDe(banderas, resto);
    va_end(resto);
    return Abre(AT_FDCWD, ruta, banderas, permisos);
}

int open64(const char* ruta, int banderas, ...) {
    va_list resto;
    va_start(resto, banderas);
    const mode_t permisos = PermisosDe(banderas, resto);
    va_end(resto);
    return Abre(AT_FDCWD, ruta, banderas, permisos);
}

FILE* fopen(const char* ruta, const char* como) {
    return Fracasa() ? nullptr : Propia<decltype(fopen)>("fopen")(ruta, como);
}

FILE* fopen64(const char* ruta, const char* como) {
    return Fracasa() ? nullptr : Propia<decltype(fopen64)>("fopen64")(ruta, como);
}

int mkostemp(char* plantilla, int banderas) {
    return Fracasa() ? -1 : Propia<decltype(mkostemp)>("mkostemp")(plantilla, banderas);
}

ssize_t write(int fd, const void* bytes, size_t cuantos) {
    const bool toca = LeToca();
    const bool lleno = puesto && modo == Modo::Llena && llamadas > elegida;
    if (lleno || (toca && modo == Modo::Falla)) {
        errno = elError;
        return -1;
    }
    if (toca && modo != Modo::Cuenta) cuantos = (cuantos + 1) / 2;
    return syscall(SYS_write, fd, bytes, cuantos);
}

int rename(const char* desde, const char* hasta) {
    return Fracasa() ? -1 : static_cast<int>(syscall(SYS_rename, desde, hasta));
}

int unlink(const char* ruta) {
    return Fracasa() ? -1 : static_cast<int>(syscall(SYS_unlink, ruta));
}

int remove(const char* ruta) {
    return Fracasa() ? -1 : Propia<decltype(remove)>("remove")(ruta);
}

int mkdir(const char* ruta, mode_t permisos) {
    return Fracasa() ? -1 : static_cast<int>(syscall(SYS_mkdir, ruta, permisos));
}

int fsync(int fd) {
    return Fracasa() ? -1 : static_cast<int>(syscall(SYS_fsync, fd));
}

int ftruncate(int fd, off_t largo) noexcept {
    return Fracasa() ? -1 : static_cast<int>(syscall(SYS_ftruncate, fd, largo));
}

int fchmod(int fd, mode_t permisos) noexcept {
    return Fracasa() ? -1 : static_cast<int>(syscall(SYS_fchmod, fd, permisos));
}

int close(int fd) {
    // A descriptor is gone even when closing it fails.
    const bool fracasa = Fracasa();
    const int error = errno;
    const int resultado = static_cast<int>(syscall(SYS_close, fd));
    if (!fracasa) return resultado;
    errno = error;
    return -1;
}

}  // extern "C"
