// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <deque>
#include <random>
#include <set>

#include "apoyo/PlataformaPrueba.h"
#include "apoyo/TableroDeslizante.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "panel/Barajado.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

class Tablero : public PruebaBase {};

void PonSitio(i16 piece, i16 x, i16 y) {
    (piece == 0 ? Gbl.HuecoX : Gbl.Piezas[piece].X) = x;
    (piece == 0 ? Gbl.HuecoY : Gbl.Piezas[piece].Y) = y;
}

std::vector<i16> Vecinos() {
    std::vector<i16> v;
    for (i32 i = 1; i <= Gbl.NumVecinos; ++i) v.push_back(Gbl.VecinosHueco[i]);
    return v;
}

i16 Lado(i16 piece) {
    LadoDelHueco(piece);
    return Gbl.LadoHueco;
}

// A board of three a side as nine digits, the hole being 0.
using Codigo = std::array<char, 9>;

// Every board that moves reach from the solved one.
std::set<Codigo> Alcanzables() {
    const Codigo resuelto = {1, 2, 3, 4, 5, 6, 7, 8, 0};
    std::set<Codigo> vistos = {resuelto};
    std::deque<Codigo> cola = {resuelto};
    const std::array<std::pair<int, int>, 4> pasos = {{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};
    while (!cola.empty()) {
        const Codigo c = cola.front();
        cola.pop_front();
        const int h = static_cast<int>(std::find(c.begin(), c.end(), 0) - c.begin());
        for (const auto& [dx, dy] : pasos) {
            const int x = h % 3 + dx;
            const int y = h / 3 + dy;
            if (x < 0 || x > 2 || y < 0 || y > 2) continue;
            Codigo d = c;
            std::swap(d[static_cast<std::size_t>(h)], d[static_cast<std::size_t>(y * 3 + x)]);
            if (vistos.insert(d).second) cola.push_back(d);
        }
    }
    return vistos;
}

}  // namespace

// ---------------------------------------------------------------- cells

TEST_F(Tablero, CellIsTheNearestOneRowByRow) {
    // Four a side at 600 lines: cells of 89, margins 151 and 89.
    PreparaTablero(4);
    EXPECT_EQ(CeldaDePosicion(151, 89), 1);
    EXPECT_EQ(CeldaDePosicion(240, 89), 2);
    EXPECT_EQ(CeldaDePosicion(151, 178), 5);
    EXPECT_EQ(CeldaDePosicion(418, 356), 16);
    EXPECT_EQ(CeldaDePosicion(195, 89), 1);  // 44 of 89 pixels
    EXPECT_EQ(CeldaDePosicion(196, 89), 2);  // 45 of 89
}

TEST_F(Tablero, CellHalfwayGoesToTheEvenColumn) {
    // Five a side: cells of 76, margins 139 and 77.
    PreparaTablero(5);
    EXPECT_EQ(CeldaDePosicion(139 + 38, 77), 1);
    EXPECT_EQ(CeldaDePosicion(139 + 114, 77), 3);
    EXPECT_EQ(CeldaDePosicion(139, 77 + 114), 11);
}

TEST_F(Tablero, DistanceIsColumnsPlusRows) {
    PreparaTablero(4);
    EXPECT_EQ(DistanciaCeldas(151, 89, 151, 89), 0);
    EXPECT_EQ(DistanciaCeldas(151, 89, 418, 356), 6);
    EXPECT_EQ(DistanciaCeldas(418, 89, 151, 178), 4);
    EXPECT_EQ(DistanciaCeldas(151, 178, 418, 89), 4);
}

TEST_F(Tablero, SideNamesTheDirectionInWhichThePieceWouldTravel) {
    PreparaTablero(3);
    PonTablero({1, 2, 3, 4, 0, 5, 6, 7, 8});
    EXPECT_EQ(Lado(7), 1);  // below the hole: north
    EXPECT_EQ(Lado(4), 2);  // at its left: east
    EXPECT_EQ(Lado(2), 3);  // above: south
    EXPECT_EQ(Lado(5), 4);  // at its right: west
}

TEST_F(Tablero, DiagonalAndDistantPiecesAreNotNextToTheHole) {
    PreparaTablero(4);
    PonTablero({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
    EXPECT_EQ(Lado(5), 0);  // diagonal
    EXPECT_EQ(Lado(2), 0);  // two columns away
    EXPECT_EQ(Lado(8), 0);  // two rows away
    EXPECT_EQ(Lado(3), 0);  // end of the row
    EXPECT_EQ(Lado(1), 4);
    EXPECT_EQ(Lado(4), 1);
}

TEST_F(Tablero, PieceAtTheEndOfTheRowAboveIsNotANeighbourAcrossTheEdge) {
    PreparaTablero(3);
    PonTablero({1, 2, 3, 0, 4, 5, 6, 7, 8});
    EXPECT_EQ(Lado(3), 0);
}

TEST_F(Tablero, HoleHasTwoNeighboursInACornerThreeAtAnEdgeFourInside) {
    PreparaTablero(3);
    PonTablero({0, 1, 2, 3, 4, 5, 6, 7, 8});
    BuscaVecinos();
    EXPECT_EQ(Vecinos(), (std::vector<i16>{1, 3}));
    PonTablero({1, 0, 2, 3, 4, 5, 6, 7, 8});
    BuscaVecinos();
    EXPECT_EQ(Vecinos(), (std::vector<i16>{1, 2, 4}));
    PonTablero({1, 2, 3, 4, 0, 5, 6, 7, 8});
    BuscaVecinos();
    EXPECT_EQ(Vecinos(), (std::vector<i16>{2, 4, 5, 7}));
    EXPECT_EQ(Gbl.VecinosHueco.Superior(), 4);
}

TEST_F(Tablero, NeighboursAreListedByPieceNumberNotByDirection) {
    PreparaTablero(3);
    PonTablero({1, 8, 3, 7, 0, 2, 5, 4, 6});
    BuscaVecinos();
    EXPECT_EQ(Vecinos(), (std::vector<i16>{2, 4, 7, 8}));
}

// ---------------------------------------------------------------- solvability

TEST_F(Tablero, ExactlyTheReachableBoardsOfThreeASideAreSolvable) {
    const std::set<Codigo> alcanzables = Alcanzables();
    ASSERT_EQ(alcanzables.size(), 181440U);
    PreparaTablero(3);
    PonTablero(TableroResuelto(3));
    Codigo c = {0, 1, 2, 3, 4, 5, 6, 7, 8};
    i32 solubles = 0;
    i32 insolubles = 0;
    i32 errores = 0;
    do {
        for (std::size_t k = 0; k < c.size(); ++k)
            PonSitio(c[k], static_cast<i16>(Gbl.MargenX + static_cast<i32>(k % 3) * Gbl.AnchoCelda),
                     static_cast<i16>(Gbl.MargenY + static_cast<i32>(k / 3) * Gbl.AltoCelda));
        const bool soluble = TieneSolucion();
        ++(soluble ? solubles : insolubles);
        errores += soluble != (alcanzables.count(c) == 1);
    } while (std::next_permutation(c.begin(), c.end()));
    EXPECT_EQ(solubles, 181440);
    EXPECT_EQ(insolubles, 181440);
    EXPECT_EQ(errores, 0);
}

TEST_F(Tablero, SolvabilityAgreesWithTheParityOfCyclesOnOtherSizes) {
    std::mt19937 azar(4);
    for (const i16 lado : std::initializer_list<i16>{2, 4, 5, 6, 7, 8, 9}) {
        PreparaTablero(lado);
        i32 solubles = 0;
        for (int n = 0; n < 1000; ++n) {
            std::vector<i16> celdas = TableroResuelto(lado);
            std::shuffle(celdas.begin(), celdas.end(), azar);
            PonTablero(celdas);
            const bool soluble = SolublePorCiclos(lado, celdas);
            ASSERT_EQ(TieneSolucion(), soluble) << lado << " a side, board " << n;
            solubles += soluble;
        }
        EXPECT_GT(solubles, 300) << lado;
        EXPECT_LT(solubles, 700) << lado;
    }
}

TEST_F(Tablero, BoardJustLaidOutIsSolvableOnEverySize) {
    for (i16 lado = 3; lado <= 9; ++lado) {
        PreparaTablero(lado);
        DisponeTablero();
        EXPECT_TRUE(TieneSolucion()) << lado;
    }
}

TEST_F(Tablero, SwappedPairOnWidth4IsUnsolvable) {
    // One inversion and the hole in row 4: the sum is 5.
    PreparaTablero(4);
    PonTablero({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 14, 0});
    EXPECT_FALSE(TieneSolucion());
}

TEST_F(Tablero, HoleMovedUpARowOnAnEvenBoardKeepsTheAnswer) {
    PreparaTablero(4);
    PonTablero({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0, 13, 14, 15, 12});
    EXPECT_TRUE(TieneSolucion());
    PonTablero({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0, 13, 15, 14, 12});
    EXPECT_FALSE(TieneSolucion());
}

TEST_F(Tablero, BoardThatIsNoneIsUnsolvable) {
    const auto nuevo = [] {
        PreparaTablero(3);
        PonTablero(TableroResuelto(3));
        ASSERT_TRUE(TieneSolucion());
    };
    nuevo();
    Gbl.Piezas[1] = Gbl.Piezas[2];
    EXPECT_FALSE(TieneSolucion());
    nuevo();
    Gbl.HuecoX = Gbl.Piezas[4].X;
    Gbl.HuecoY = Gbl.Piezas[4].Y;
    EXPECT_FALSE(TieneSolucion());
    nuevo();
    Gbl.Piezas[5].X = 32767;
    EXPECT_FALSE(TieneSolucion());
    nuevo();
    Gbl.Piezas[5].Y = -32768;
    EXPECT_FALSE(TieneSolucion());
    nuevo();
    Gbl.Piezas.Redimensiona(3);
    EXPECT_FALSE(TieneSolucion());
    nuevo();
    Gbl.AnchoCelda = Gbl.AltoCelda = 0;
    EXPECT_FALSE(TieneSolucion());
}

// ---------------------------------------------------------------- instant shuffle

TEST_F(Tablero, InstantShuffleSwapsThreeTimesAPieceAndThenUntilSolvable) {
    for (int semilla = 1; semilla <= 30; ++semilla) {
        const auto lado = static_cast<i16>(3 + semilla % 7);
        PreparaTablero(lado);
        PonTablero(TableroResuelto(lado));
        // The same draws, made here: two for each swap, i before j.
        Randomize(semilla);
        std::vector<i16> esperado = TableroResuelto(lado);
        const i32 n = Gbl.NumPiezas;
        std::vector<std::size_t> lugar(static_cast<std::size_t>(n) + 1);
        for (std::size_t i = 1; i < lugar.size(); ++i) lugar[i] = i - 1;
        for (i32 cambio = 1;; ++cambio) {
            const auto i = static_cast<std::size_t>(n * Rnd()) + 1;
            const auto j = static_cast<std::size_t>(n * Rnd()) + 1;
            std::swap(lugar[i], lugar[j]);
            for (std::size_t k = 1; k < lugar.size(); ++k) esperado[lugar[k]] = static_cast<i16>(k);
            if (cambio >= 3 * n && SolublePorCiclos(lado, esperado)) break;
        }
        Randomize(semilla);
        BarajaDeslizantes();
        EXPECT_EQ(CeldasDelTablero(), esperado) << semilla;
    }
}

TEST_F(Tablero, InstantShuffleMovesNeitherTheHoleNorTheHomesNorTheStack) {
    PreparaTablero(5);
    PonTablero(TableroResuelto(5));
    BarajaDeslizantes();
    EXPECT_EQ(Gbl.HuecoX, 139 + 4 * 76);
    EXPECT_EQ(Gbl.HuecoY, 77 + 4 * 76);
    EXPECT_TRUE(TieneSolucion());
    for (i16 i = 1; i <= 24; ++i) {
        EXPECT_EQ(Gbl.OrdenPiezas[i], i);
        EXPECT_EQ(Gbl.Piezas[i].XBien, 139 + (i - 1) % 5 * 76);
        EXPECT_EQ(Gbl.Piezas[i].YBien, 77 + (i - 1) / 5 * 76);
    }
}

TEST_F(Tablero, InstantShuffleStartsTheCountAndFiguresTheDifficulty) {
    PreparaTablero(3);
    PonTablero(TableroResuelto(3));
    Gbl.PuzzleTerminado = true;
    Gbl.SegundosJuego = 77;
    Gbl.NumMovimientos = 5;
    Gbl.Dificultad = 0;
    BarajaDeslizantes();
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_GT(Gbl.Dificultad, 6.6F);  // numbers at 3 a side alone give 20 / 3
}

TEST_F(Tablero, InstantShuffleMendsADamagedBoard) {
    const auto dana = [](int modo) {
        switch (modo) {
            case 0:
                Gbl.Piezas[1] = Gbl.Piezas[2];
                break;
            case 1:
                Gbl.Piezas[1].X = static_cast<i16>(Gbl.Piezas[1].X + 7);
                break;
            case 2:
                Gbl.HuecoX = -30000;
                break;
            case 3:
                Gbl.Piezas[7].YBien = 31000;
                break;
            default:
                Gbl.Piezas.Redimensiona(2);
                break;
        }
    };
    for (int modo = 0; modo < 5; ++modo) {
        PreparaTablero(4);
        PonTablero(TableroResuelto(4));
        dana(modo);
        BarajaDeslizantes();
        EXPECT_TRUE(TableroEntero()) << modo;
        EXPECT_TRUE(TieneSolucion()) << modo;
    }
}

TEST_F(Tablero, SidesThatTheGameDoesNotOfferDoNoHarm) {
    for (const i16 lado : std::initializer_list<i16>{-32768, -182, -10, -3, -2, -1, 0, 1, 2, 10, 11,
                                                     40, 181, 182, 999, 32767}) {
        PreparaTablero(4);
        PonTablero(TableroResuelto(4));
        Gbl.PiezasPorLado = lado;
        Sigue([] { CalculaTamanos(); });
        Sigue([] { TieneSolucion(); });
        Sigue([] { BuscaVecinos(); });
        Sigue([] { LadoDelHueco(1); });
        Sigue([] { CeldaDePosicion(32767, -32768); });
        Sigue([] { DistanciaCeldas(32767, -32768, -32768, 32767); });
        if (lado < 100) {
            Sigue([] { BarajaDeslizantes(); });
            Sigue([] { CreaDeslizantes(0); });
            Sigue([] { CreaDeslizantes(1); });
        }
    }
    PreparaTablero(3);
    PonTablero(TableroResuelto(3));
    EXPECT_TRUE(TieneSolucion());
}

// ---------------------------------------------------------------- count of a new puzzle

TEST_F(Tablero, NewCountHasAnEmptyLogOfAHundredAndARunningClock) {
    Gbl.PuzzleTerminado = true;
    Gbl.PuzzleArchivable = false;
    Gbl.SegundosJuego = 3600;
    Gbl.NumMovimientos = 1;
    Gbl.Movimientos.Redimensiona(1);
    Gbl.Movimientos[1].Pieza = 4;
    ReiniciaPartida();
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.Movimientos.Superior(), 100);
    EXPECT_EQ(Gbl.Movimientos[1].Pieza, 0);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

}  // namespace tessario
