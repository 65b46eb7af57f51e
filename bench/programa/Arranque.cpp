// SPDX-License-Identifier: GPL-3.0-or-later
// What the real program costs to start: its own work, and what it then keeps in memory, with a
// 1024 x 768 picture in 400 pieces on a 1280 x 1024 screen. Prints its lines in the table's format.
//
// The processor time of the process is taken when the welcome stands on the laid table, so that the
// splash, which only waits, does not count.
#include <cstdio>
#include <set>
#include <string>
#include <utility>

#include "Medidas.h"
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int POR_LADO = 20, ANCHO_CELDA = 51, ALTO_CELDA = 38;
constexpr double LIMITE_SEGUNDOS = 0.25, LIMITE_MEGAS = 100;

PartidaGuardada Cuatrocientas() {
    PartidaGuardada p;
    p.imagen = "cuadros.bmp";
    p.anchoImagen = 1024;
    p.altoImagen = 768;
    p.porLado = POR_LADO;
    p.forma = 2;
    for (int i = 0; i < POR_LADO * POR_LADO; ++i) {
        PiezaGuardada q;
        q.xBien = i % POR_LADO * ANCHO_CELDA;
        q.yBien = i / POR_LADO * ALTO_CELDA;
        q.x = (i * 397) % 1000;
        q.y = (i * 211) % 850;
        p.piezas.push_back(q);
    }
    return p;
}

}  // namespace

bool MideArranque() {
    Escritorio e(1280, 1024);
    Programa programa(e);
    programa.EscribeImagenDeCuadros("cuadros.bmp", 1024, 768, POR_LADO);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(Cuatrocientas());
    if (!programa.Arranca(false)) {
        std::printf("the program did not start\n");
        return false;
    }
    const double segundos = Procesador(programa.Pid()), megas = Memoria(programa.Pid());
    const bool tiempo = Linea("start/own work to the laid table", "s ", segundos, LIMITE_SEGUNDOS);
    const bool memoria = Linea("start/resident memory", "MB", megas, LIMITE_MEGAS);
    return tiempo && memoria;
}

}  // namespace tessario::ventana

// Arguments name the parts to measure; none: all.
int main(int argc, char** argv) {
    using namespace tessario::ventana;
    constexpr std::pair<const char*, bool (*)()> PARTES[] = {
        {"start", MideArranque}, {"grande", MideGrande}, {"fin", MideFin}, {"ocio", MideOcio}};
    const std::set<std::string> pedidas(argv + 1, argv + argc);
    bool bien = true;
    for (const auto& [nombre, mide] : PARTES)
        if (pedidas.empty() || pedidas.count(nombre)) bien = mide() && bien;
    return bien ? 0 : 1;
}
