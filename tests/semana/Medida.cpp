// SPDX-License-Identifier: GPL-3.0-or-later
#include "semana/Medida.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "semana/RecursosX.h"

namespace tessario {

namespace fs = std::filesystem;

namespace {

constexpr long KIB = 1024;

// A figure, and how far it may lie above that of the first day.
struct Cifra {
    const char* nombre;
    long Medida::*valor;
    long margen;
};
// A pointer is made when it is first shown, and there are so many.
constexpr long PUNTEROS = 16;
// The sound device has a thread, which ends some seconds after the last sound.
constexpr long HILO_DE_SONIDO = 1;
// Handles, threads, files and what the server keeps may not grow by one. The heap and the pages of
// the process breathe: a scratch surface keeps the size of the last piece that was on it, a table
// doubles when it fills, a store of text widths is emptied when it is full. A megabyte, once, is a
// hundred bytes for each window of a week and half a byte for each move.
#if defined(__SANITIZE_ADDRESS__)
// The sanitizer keeps what was freed, and has a count of its own for what never was.
constexpr long MARGEN_RESIDENTE = 1L << 40, MARGEN_EN_USO = 1L << 40;
#else
constexpr long MARGEN_RESIDENTE = 4096, MARGEN_EN_USO = 1024;
#endif
constexpr Cifra CIFRAS[] = {
    {"resident memory, KiB", &Medida::residente, MARGEN_RESIDENTE},
    {"heap in use, KiB", &Medida::enUso, MARGEN_EN_USO},
    {"open descriptors", &Medida::descriptores, 0},
    {"threads", &Medida::hilos, HILO_DE_SONIDO},
    {"files in the folder", &Medida::ficheros, 0},
    {"X windows", &Medida::ventanasX, 0},
    {"X cursors", &Medida::punterosX, PUNTEROS},
    {"other X resources", &Medida::recursosX, 0},
    {"X pixmaps, KiB", &Medida::pixmapsX, 0},
};

long Entradas(const char* carpeta) {
    return std::distance(fs::directory_iterator(carpeta), fs::directory_iterator{});
}

long Residente() {
    std::ifstream f("/proc/self/statm");
    long todo = 0, residente = 0;
    f >> todo >> residente;
    return residente * sysconf(_SC_PAGESIZE) / KIB;
}

}  // namespace

Medida Mide(const std::string& carpeta) {
    Medida m;
    malloc_trim(0);
    m.residente = Residente();
    const struct mallinfo2 monton = mallinfo2();
    m.enUso = static_cast<long>(monton.uordblks + monton.hblkhd) / KIB;
    // The listing holds one itself.
    m.descriptores = Entradas("/proc/self/fd") - 1;
    m.hilos = Entradas("/proc/self/task");
    for (const auto& f : fs::recursive_directory_iterator(carpeta)) m.ficheros += !f.is_directory();
    const RecursosX x = PideRecursosX();
    m.ventanasX = x.ventanas;
    m.punterosX = x.punteros;
    m.recursosX = x.otros;
    m.pixmapsX = x.pixmaps / KIB;
    return m;
}

std::string Crecido(const Medida& antes, const Medida& ahora) {
    std::string falta;
    for (const Cifra& c : CIFRAS)
        if (ahora.*c.valor > antes.*c.valor + c.margen)
            falta += std::string(c.nombre) + ": " + std::to_string(antes.*c.valor) + " -> " +
                     std::to_string(ahora.*c.valor) + "\n";
    return falta;
}

const char* const CABECERA_MEDIDA =
    "  resident  heap KiB  handles  threads  files  windows  cursors  X-other  pixmaps KiB";

std::string Renglon(const Medida& m) {
    char b[128];
    std::snprintf(b, sizeof b, "%10ld%10ld%9ld%9ld%7ld%9ld%9ld%9ld%13ld", m.residente, m.enUso,
                  m.descriptores, m.hilos, m.ficheros, m.ventanasX, m.punterosX, m.recursosX,
                  m.pixmapsX);
    return b;
}

}  // namespace tessario
