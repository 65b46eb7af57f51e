// SPDX-License-Identifier: GPL-3.0-or-later
// A table of 3840 x 2160: what it keeps in memory, its start, a drag, a shuffle. And what a table
// costs on which nothing happens.
#include <chrono>
#include <cstdio>
#include <thread>

#include "Medidas.h"
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 3840, ALTO = 2160;
constexpr int POR_LADO = 20, ANCHO_CELDA = 51, ALTO_CELDA = 38;  // of 1024 x 768
constexpr int CELDAS = POR_LADO * POR_LADO;
constexpr double BYTES_MESA = 4.0 * ANCHO * ALTO, MEGA = 1024 * 1024;
constexpr double LIMITE_MEGAS = 55, LIMITE_SEGUNDOS = 0.15, LIMITE_BARAJADO = 1;
constexpr double LIMITE_ARRASTRE = 5, LIMITE_OCIO = 0.5;  // percent of a core
constexpr int MOVIMIENTOS = 500, PASO_MS = 8;             // 125 a second
constexpr int OCIO_S = 30;

using Reloj = std::chrono::steady_clock;

double Desde(Reloj::time_point antes) {
    return std::chrono::duration<double>(Reloj::now() - antes).count();
}

// Two shapes of the jigsaw: by pieces in a cell, 400 or 800 pieces.
constexpr int FORMA_IRREGULARES = 2, FORMA_CIRCULOS = 4;

PartidaGuardada Partida(int porCelda) {
    PartidaGuardada p;
    p.imagen = "cuadros.bmp";
    p.anchoImagen = 1024;
    p.altoImagen = 768;
    p.porLado = POR_LADO;
    p.forma = porCelda == 1 ? FORMA_IRREGULARES : FORMA_CIRCULOS;
    for (int i = 0; i < CELDAS * porCelda; ++i) {
        const int celda = i / porCelda;
        PiezaGuardada q;
        q.xBien = celda % POR_LADO * ANCHO_CELDA;
        q.yBien = celda / POR_LADO * ALTO_CELDA;
        q.x = 1100 + i % 40 * 60;
        q.y = 40 + i / 40 * 90;
        p.piezas.push_back(q);
    }
    return p;
}

bool MideArrastre(Escritorio& e, const Programa& programa) {
    // The frame of the first cell by its corner: its middle is another piece's.
    const PiezaGuardada q = programa.LeePartida(21).piezas[1];
    e.Mueve(q.x + 3, q.y + 3);
    e.EsperaAtendido();
    e.Aprieta();
    e.EsperaAtendido();
    const double antes = Procesador(programa.Pid());
    const auto inicio = Reloj::now();
    for (int i = 0; i < MOVIMIENTOS; ++i) {
        const int vaiven = i % 200 < 100 ? i % 100 : 100 - i % 100;
        e.Mueve(q.x + 3 + 9 * vaiven, q.y + 3 + 6 * vaiven, 0);
        std::this_thread::sleep_until(inicio + std::chrono::milliseconds(PASO_MS * (i + 1)));
    }
    e.EsperaAtendido();
    const double trabajo = Procesador(programa.Pid()) - antes, tiempo = Desde(inicio);
    e.Suelta();
    e.EsperaAtendido();
    // A move changes the piece's old place and its new one, on the table and on the screen.
    const double copia = Copia(4.0 * 4 * ANCHO_CELDA * ALTO_CELDA);
    return Linea("grande/drag at 125 moves a second", "% ", 100 * trabajo / tiempo, LIMITE_ARRASTRE,
                 trabajo / MOVIMIENTOS / copia);
}

bool MideBarajado(Escritorio& e, Programa& programa) {
    const Foto mesa = e.Mira();
    const double antes = Procesador(programa.Pid());
    programa.PulsaBoton(1);
    e.EsperaQuieto(400);
    const double trabajo = Procesador(programa.Pid()) - antes;
    if (e.Mira().Diferencia(mesa, 0, 0, ANCHO, ALTO) < CELDAS * ANCHO_CELDA * ALTO_CELDA) {
        std::printf("nothing was shuffled\n");
        return false;
    }
    const double copia = Copia(4.0 * 2 * 2 * CELDAS * ANCHO_CELDA * ALTO_CELDA);
    return Linea("grande/shuffle of 800 pieces", "s ", trabajo, LIMITE_BARAJADO, trabajo / copia);
}

// The program with its table laid and the welcome open.
bool Empieza(Programa& programa, int porCelda) {
    programa.EscribeImagenDeCuadros("cuadros.bmp", 1024, 768, POR_LADO);
    programa.EscribeGlobal(21, 100);
    programa.EscribePartida(Partida(porCelda));
    if (programa.Arranca(false)) return true;
    std::printf("the program did not start\n");
    return false;
}

bool MideComienzo(Escritorio& e) {
    Programa programa(e);
    if (!Empieza(programa, 1)) return false;
    const double segundos = Procesador(programa.Pid());
    const double megas = Memoria(programa.Pid()) - 3 * BYTES_MESA / MEGA;
    const bool memoria = Linea("grande/memory beside three tables", "MB", megas, LIMITE_MEGAS,
                               megas * MEGA / BYTES_MESA);
    return Linea("grande/own work to 400 laid pieces", "s ", segundos, LIMITE_SEGUNDOS,
                 segundos / Copia(BYTES_MESA)) &&
           memoria;
}

}  // namespace

bool MideGrande() {
    Escritorio e(ANCHO, ALTO);
    bool bien = MideComienzo(e);
    Programa programa(e);
    if (!Empieza(programa, 2)) return false;
    e.Tecla("Return");
    e.EsperaQuieto();
    bien = MideArrastre(e, programa) && bien;
    return MideBarajado(e, programa) && bien;
}

bool MideOcio() {
    constexpr int CALMA_S = 6;  // the sound device is given back by then
    Escritorio e(1280, 1024);
    Programa programa(e);
    if (!programa.Arranca()) {
        std::printf("the program did not start\n");
        return false;
    }
    std::this_thread::sleep_for(std::chrono::seconds(CALMA_S));
    const double antes = Procesador(programa.Pid());
    std::this_thread::sleep_for(std::chrono::seconds(OCIO_S));
    const double parte = 100 * (Procesador(programa.Pid()) - antes) / OCIO_S;
    return Linea("ocio/clock running, nothing done", "% ", parte, LIMITE_OCIO);
}

}  // namespace tessario::ventana
