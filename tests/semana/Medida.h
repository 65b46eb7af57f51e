// SPDX-License-Identifier: GPL-3.0-or-later
// What a running program holds: memory, handles, threads, files in the player's folder, and, where
// it shows its windows on an X server, what that keeps for it.
#pragma once

#include <string>

namespace tessario {

struct Medida {
    long residente = 0;     // KiB of the process in memory, after what is free went back
    long enUso = 0;         // KiB of the heap handed out
    long descriptores = 0;  // open files, sockets, pipes
    long hilos = 0;
    long ficheros = 0;   // in the folder and below
    long ventanasX = 0;  // 0 without an X server, as the three below
    long punterosX = 0;
    long recursosX = 0;  // all others: pixmaps, pens, ...
    long pixmapsX = 0;   // KiB that the server holds in pixmaps
};

Medida Mide(const std::string& carpeta);

// How much `ahora` may lie above `antes`, figure by figure, and still count as flat; with the
// figures that lie above it named, one a line. Empty: flat.
std::string Crecido(const Medida& antes, const Medida& ahora);

// The figures in one line, for a table.
std::string Renglon(const Medida& m);
extern const char* const CABECERA_MEDIDA;

}  // namespace tessario
