// SPDX-License-Identifier: GPL-3.0-or-later
// The sliding puzzle in the real program: solved by real clicks, a refused click, and the solver
// run to the end.
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1280, ALTO = 1024;

// The board as the program lays it on this screen.
struct Rejilla {
    int n, celda, margenX, margenY;
    // Centre of a cell, numbered from 1 row by row.
    int X(int c) const { return margenX + (c - 1) % n * celda; }
    int Y(int c) const { return margenY + (c - 1) / n * celda; }
};
// (1024 - 65) / 5 = 191.8 -> 192; 576 wide; margins (959 - 576) / 2 and (1139 - 576) / 2.
constexpr Rejilla TRES{3, 192, 281, 191};
// (1024 - 65) / 7 = 137; 685 wide.
constexpr Rejilla CINCO{5, 137, 227, 137};

// A board from the piece in each cell, 0 for the hole.
PartidaGuardada Tablero(const Rejilla& r, const std::vector<int>& celdas) {
    PartidaGuardada p;
    p.juego = 22;
    p.porLado = r.n;
    p.piezas.resize(celdas.size() - 1);
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        const int c = static_cast<int>(i) + 1;
        if (celdas[i] == 0) {
            p.huecoX = r.X(c);
            p.huecoY = r.Y(c);
            continue;
        }
        auto& q = p.piezas[static_cast<std::size_t>(celdas[i] - 1)];
        q.x = r.X(c);
        q.y = r.Y(c);
        q.xBien = r.X(celdas[i]);
        q.yBien = r.Y(celdas[i]);
    }
    return p;
}

TEST(DeslizantesVentana, ThreeByThreeIsSolvedByRealClicksAndARefusedClickMovesNothing) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeGlobal(22, 100);
    programa.EscribePartida(Tablero(TRES, {1, 2, 3, 4, 0, 6, 7, 5, 8}));
    ASSERT_TRUE(programa.Arranca());
    const auto pulsaCelda = [&](int c) {
        e.Pulsa(TRES.X(c) + TRES.celda / 2, TRES.Y(c) + TRES.celda / 2);
        e.EsperaQuieto(150);
    };
    const Foto antes = e.Mira();
    pulsaCelda(1);  // diagonal to the hole
    e.Mueve(20, 1000);
    e.EsperaQuieto(120);
    EXPECT_EQ(e.Mira().Diferencia(antes, TRES.margenX, TRES.margenY, 576, 576), 0);
    pulsaCelda(8);  // piece 5 goes north
    pulsaCelda(9);  // piece 8 goes west
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("TESSARIO"); }));
    e.Mira().Guarda("deslizantes-fin");
    e.Tecla("Return");
    e.EsperaQuieto();
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(22);
    EXPECT_TRUE(leida.terminado);
    EXPECT_EQ(leida.movimientos, 2);
    for (const auto& q : leida.piezas) {
        EXPECT_EQ(q.x, q.xBien);
        EXPECT_EQ(q.y, q.yBien);
    }
}

TEST(DeslizantesVentana, SolverPlaysAShuffledFiveByFiveToTheEnd) {
    // Real moves from the solved board, so that it can be solved.
    std::vector<int> celdas(25);
    for (int i = 0; i < 24; ++i) celdas[static_cast<std::size_t>(i)] = i + 1;
    unsigned azar = 12345;
    int hueco = 24;
    for (int i = 0; i < 400; ++i) {
        azar = azar * 1664525U + 1013904223U;
        static constexpr int DX[] = {0, 1, 0, -1}, DY[] = {-1, 0, 1, 0};
        const unsigned d = azar >> 30;
        const int x = hueco % 5 + DX[d], y = hueco / 5 + DY[d];
        if (x < 0 || x > 4 || y < 0 || y > 4) continue;
        std::swap(celdas[static_cast<std::size_t>(hueco)],
                  celdas[static_cast<std::size_t>(y * 5 + x)]);
        hueco = y * 5 + x;
    }
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeGlobal(22, 100);
    programa.EscribePartida(Tablero(CINCO, celdas));
    ASSERT_TRUE(programa.Arranca());
    const Foto antes = e.Mira();
    antes.Guarda("solucion-antes");
    const Programa::Lugar boton = programa.Boton(12);
    e.Mueve(boton.x, boton.y);
    e.EsperaQuieto(100);
    e.Aprieta();
    e.Suelta();
    ASSERT_TRUE(e.Espera([&] { return e.Mira().Diferencia(antes, 227, 137, 685, 685) > 2000; }));
    e.Mira().Guarda("solucion-durante");
    e.EsperaQuieto(900, 90000);
    e.Mira().Guarda("solucion-despues");
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(22);
    EXPECT_TRUE(leida.terminado);
    EXPECT_GT(leida.movimientos, 20);
    for (const auto& q : leida.piezas) {
        EXPECT_EQ(q.x, q.xBien);
        EXPECT_EQ(q.y, q.yBien);
    }
}

TEST(DeslizantesVentana, DamagedFileGivesTheDefaultBoard) {
    Escritorio e(800, 600);
    Programa programa(e);
    programa.EscribeGlobal(22, 100);
    programa.EscribeBytes("TsR2233.ini", std::string("\"/\"\r\n\0\xFF\"\r\n\r\n\"999\"\r\n", 19));
    ASSERT_TRUE(programa.Arranca());
    e.Mira().Guarda("deslizantes-defecto");
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeePartida(22).piezas.size(), 24U);
}

}  // namespace
}  // namespace tessario::ventana
