// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <numeric>
#include <random>

#include "apoyo/PlataformaPrueba.h"
#include "apoyo/SolucionLiteral.h"
#include "apoyo/TableroDeslizante.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "rules/PuzzBas.h"
#include "sliding/Busqueda.h"
#include "sliding/Solucion.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

class Solucion : public PruebaBase {};

// Plays the moves found, by exchange with the hole alone.
void JuegaRuta() {
    for (i32 i = Gbl.LongitudRuta; i >= 1; --i) IntercambiaConHueco(Gbl.RutaSolucion[i]);
}

std::vector<i16> RutaHallada() {
    std::vector<i16> ruta;
    for (i32 i = 1; i <= Gbl.LongitudRuta; ++i) ruta.push_back(Gbl.RutaSolucion[i]);
    return ruta;
}

// All stages of the board on the table, each held against the literal reading. Returns the number
// of stages.
int ComparaEtapas() {
    int etapas = 0;
    SolucionLiteral literal;
    while (CuentaColocadas() < Gbl.NumPiezas) {
        const bool esperada = literal.Busca();
        EXPECT_EQ(esperada, BuscaSolucion());
        EXPECT_EQ(literal.Ruta, RutaHallada());
        if (!esperada || testing::Test::HasFailure()) return -1;
        JuegaRuta();
        ++etapas;
    }
    return etapas;
}

// The first piece not in its place.
i16 PrimeraSuelta() {
    i16 k = 1;
    while (k <= Gbl.NumPiezas && PiezaEnSuSitio(k)) ++k;
    return k;
}

}  // namespace

TEST_F(Solucion, MovesAreThoseOfTheLiteralRulesOnEveryStageOfRandomBoards) {
    const std::array<int, 4> tablerosPorLado = {60, 30, 8, 3};
    std::mt19937 azar(20261120);
    for (i16 lado = 3; lado <= 6; ++lado) {
        for (int n = 0; n < tablerosPorLado[static_cast<std::size_t>(lado - 3)]; ++n) {
            PreparaTablero(lado);
            PonTablero(TableroSoluble(lado, azar, n % 2 == 0));
            SCOPED_TRACE(testing::Message() << lado << " a side, board " << n);
            ASSERT_GT(ComparaEtapas(), 0);
        }
    }
}

TEST_F(Solucion, SearcherThatHasServedOtherBoardsFindsTheSameMoves) {
    std::mt19937 azar(21);
    Busqueda usada(DejaPasarEventos);
    // Sides in turn, so that each board follows one of another size.
    for (const i16 lado : std::initializer_list<i16>{7, 3, 9, 4, 5, 5, 8, 6}) {
        PreparaTablero(lado);
        PonTablero(TableroSoluble(lado, azar, false));
        while (CuentaColocadas() < Gbl.NumPiezas) {
            ASSERT_TRUE(BuscaSolucion());
            const std::vector<i16> nueva = RutaHallada();
            ASSERT_TRUE(BuscaSolucion(usada));
            ASSERT_EQ(RutaHallada(), nueva) << lado;
            JuegaRuta();
        }
    }
}

TEST_F(Solucion, OneMoveFromSolvedIsOneStageOfOneMove) {
    PreparaTablero(3);
    PonTablero({1, 2, 3, 4, 5, 6, 7, 0, 8});
    ASSERT_TRUE(BuscaSolucion());
    ASSERT_EQ(Gbl.LongitudRuta, 1);
    EXPECT_EQ(Gbl.RutaSolucion[1], 8);
}

TEST_F(Solucion, EarliestOfThePiecesOutOfPlaceIsTheOneThatIsBroughtHome) {
    // 5 and 6 are out of place; bringing 5 home by one move is the whole first stage.
    PreparaTablero(3);
    PonTablero({1, 2, 3, 4, 0, 5, 7, 8, 6});
    ASSERT_TRUE(BuscaSolucion());
    EXPECT_EQ(RutaHallada(), (std::vector<i16>{5}));
    JuegaRuta();
    ASSERT_TRUE(BuscaSolucion());
    EXPECT_EQ(RutaHallada(), (std::vector<i16>{6}));
}

TEST_F(Solucion, EveryStagePlacesOneMorePieceAndLosesNone) {
    std::mt19937 azar(5);
    for (i16 lado = 3; lado <= 9; ++lado) {
        PreparaTablero(lado);
        PonTablero(TableroSoluble(lado, azar, true));
        int etapas = 0;
        while (CuentaColocadas() < Gbl.NumPiezas) {
            const i16 k = PrimeraSuelta();
            ASSERT_TRUE(BuscaSolucion()) << lado << " a side, piece " << k;
            JuegaRuta();
            EXPECT_GT(PrimeraSuelta(), k);
            ASSERT_LE(++etapas, Gbl.NumPiezas);
        }
    }
}

TEST_F(Solucion, TableDoesNotChangeWhileTheSearchRuns) {
    PreparaTablero(4);
    std::mt19937 azar(11);
    PonTablero(TableroSoluble(4, azar, false));
    const Arreglo<Pieza> antes = Gbl.Piezas;
    const i16 x = Gbl.HuecoX;
    const i16 y = Gbl.HuecoY;
    int vistas = 0;
    P().alDejarPasar = [&] {
        ++vistas;
        ASSERT_TRUE(std::equal(antes.begin(), antes.end(), Gbl.Piezas.begin()));
        ASSERT_EQ(Gbl.HuecoX, x);
        ASSERT_EQ(Gbl.HuecoY, y);
    };
    ASSERT_TRUE(BuscaSolucion());
    EXPECT_GT(vistas, 0);
    EXPECT_TRUE(std::equal(antes.begin(), antes.end(), Gbl.Piezas.begin()));
    EXPECT_EQ(Gbl.HuecoX, x);
    EXPECT_EQ(Gbl.HuecoY, y);
}

TEST_F(Solucion, WindowEventsRunOnceForEachNeighbourTried) {
    // The hole in the middle of the bottom row has three neighbours, by number 5, 7 and 8; 8 is
    // the one that ends the stage, so that two tries before it let events run.
    PreparaTablero(3);
    PonTablero({1, 2, 3, 4, 5, 6, 7, 0, 8});
    ASSERT_TRUE(BuscaSolucion());
    EXPECT_EQ(P().pasosDeEventos, 2);
}

TEST_F(Solucion, SolvedBoardHasNoMovesToFind) {
    PreparaTablero(4);
    PonTablero(TableroResuelto(4));
    Gbl.LongitudRuta = 7;
    EXPECT_FALSE(BuscaSolucion());
    EXPECT_EQ(Gbl.LongitudRuta, 0);
}

TEST_F(Solucion, UnsolvableBoardsEndWithoutMoves) {
    for (i16 lado = 3; lado <= 9; ++lado) {
        PreparaTablero(lado);
        std::vector<i16> celdas = TableroResuelto(lado);
        std::swap(celdas[celdas.size() - 2], celdas[celdas.size() - 3]);
        PonTablero(celdas);
        EXPECT_FALSE(BuscaSolucion()) << lado;
        EXPECT_EQ(Gbl.LongitudRuta, 0);
    }
}

TEST_F(Solucion, BoardChangedByEventsDuringTheSearchGivesNoMoves) {
    PreparaTablero(3);
    PonTablero({1, 2, 3, 4, 5, 6, 7, 0, 8});
    int veces = 0;
    P().alDejarPasar = [&veces] {
        if (++veces == 1) std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    };
    EXPECT_FALSE(BuscaSolucion());
    EXPECT_EQ(Gbl.LongitudRuta, 0);
}

TEST_F(Solucion, DamagedBoardsEndTheSearchInOrder) {
    const auto tablero = [] {
        PreparaTablero(3);
        PonTablero({1, 2, 3, 4, 5, 6, 7, 0, 8});
        ASSERT_TRUE(BuscaSolucion());
    };
    const auto noHay = [] {
        EXPECT_FALSE(BuscaSolucion());
        EXPECT_EQ(Gbl.LongitudRuta, 0);
    };
    tablero();
    Gbl.Piezas[1] = Gbl.Piezas[2];  // two pieces on one cell
    noHay();
    tablero();
    Gbl.Piezas[8].X = static_cast<i16>(Gbl.Piezas[8].X + 5);  // in the last cell, free to stand so
    EXPECT_TRUE(BuscaSolucion());
    Gbl.Piezas[1].X = static_cast<i16>(Gbl.Piezas[1].X + 5);  // off its place
    noHay();
    tablero();
    Gbl.HuecoX = -32768;
    Gbl.HuecoY = 32767;
    noHay();
    tablero();
    Gbl.Piezas[3].Y = 32767;
    noHay();
    tablero();
    Gbl.Piezas[3].XBien = -5000;
    noHay();
    tablero();
    Gbl.AnchoCelda = 0;
    noHay();
    tablero();
    Gbl.Piezas.Redimensiona(4);
    noHay();
    for (const i16 lado :
         std::initializer_list<i16>{-32768, -3, -1, 0, 1, 2, 10, 181, 999, 32767}) {
        tablero();
        Gbl.PiezasPorLado = lado;
        noHay();
        tablero();
        Gbl.PiezasPorLado = lado;
        Gbl.NumPiezas = static_cast<i16>(lado * lado - 1);
        noHay();
    }
}

// ---------------------------------------------------------------- before the player's eyes

namespace {

// A table as it is in play, with its first count.
void MesaCon(i16 lado, const std::vector<i16>& celdas) {
    PreparaMesa(lado);
    PonTablero(celdas);
    ColocaPiezas(1);
}

}  // namespace

TEST_F(Solucion, SolverPlaysTheWholeBoardLogsItAndForfeitsTheHistory) {
    std::mt19937 azar(3);
    const std::vector<i16> inicio = TableroSoluble(3, azar, true);
    MesaCon(3, inicio);
    ReiniciaPartida();
    Gbl.Sonido = true;
    Gbl.ResolviendoPuzzle = true;
    P().sonidos.clear();
    ResuelveDeslizantes();
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_FALSE(Gbl.TareaAutomatica);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.SoltandoPieza);
    EXPECT_TRUE(P().avisos.empty());  // the player who had it solved is not congratulated
    // One waiting sound 53 for each move of the log.
    ASSERT_GT(Gbl.NumMovimientos, 0);
    EXPECT_EQ(P().sonidos.size(), static_cast<std::size_t>(Gbl.NumMovimientos));
    for (const auto& s : P().sonidos) EXPECT_EQ(s, (std::pair<i16, bool>{53, false}));
    // Taking the log back move by move gives the board of the beginning.
    for (i32 i = Gbl.NumMovimientos; i >= 1; --i) {
        const Movimiento& m = Gbl.Movimientos[i];
        EXPECT_EQ(Gbl.Piezas[m.Pieza].X, m.XDespues);
        EXPECT_EQ(Gbl.Piezas[m.Pieza].Y, m.YDespues);
        EXPECT_EQ(m.GiroAntes, 0);
        EXPECT_EQ(m.GiroDespues, 0);
        EXPECT_EQ(m.VolteoAntes, 0);
        EXPECT_EQ(m.VolteoDespues, 0);
        EXPECT_EQ(Gbl.HuecoX, m.XAntes);
        EXPECT_EQ(Gbl.HuecoY, m.YAntes);
        IntercambiaConHueco(m.Pieza);
    }
    EXPECT_EQ(CeldasDelTablero(), inicio);
}

TEST_F(Solucion, OnePassOnlyWhenTheButtonIsNotDown) {
    MesaCon(3, {1, 2, 3, 4, 0, 5, 7, 8, 6});
    ReiniciaPartida();
    ResuelveDeslizantes();
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{1, 2, 3, 4, 5, 0, 7, 8, 6}));
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

TEST_F(Solucion, StageInHandIsPlayedOutAfterTheButtonIsPressedAgain) {
    std::mt19937 azar(8);
    MesaCon(4, TableroSoluble(4, azar, true));
    ASSERT_TRUE(BuscaSolucion());
    const i16 primera = Gbl.LongitudRuta;
    ASSERT_GT(primera, 1);
    ReiniciaPartida();
    Gbl.ResolviendoPuzzle = true;
    // The button goes up during the first move.
    P().alDormir = [] { Gbl.ResolviendoPuzzle = false; };
    ResuelveDeslizantes();
    EXPECT_EQ(Gbl.NumMovimientos, primera);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
}

TEST_F(Solucion, RunOnABoardThatCannotBeSolvedEndsWithItsFlagsCleared) {
    MesaCon(3, {1, 2, 3, 4, 5, 6, 8, 7, 0});
    Gbl.ResolviendoPuzzle = true;
    Gbl.ArrastrandoPieza = true;
    Gbl.SoltandoPieza = true;
    ResuelveDeslizantes();
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_FALSE(Gbl.TareaAutomatica);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.SoltandoPieza);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
}

TEST_F(Solucion, BusyCursorFlagIsOnDuringTheRun) {
    MesaCon(3, {1, 2, 3, 4, 5, 6, 7, 0, 8});
    bool vista = false;
    P().alDejarPasar = [&vista] { vista = vista || Gbl.TareaAutomatica; };
    ResuelveDeslizantes();
    EXPECT_TRUE(vista);
    EXPECT_FALSE(Gbl.TareaAutomatica);
}

TEST_F(Solucion, BetweenTwoMovesNoPieceIsInHandAndTheLastMovedIsTheCurrentOne) {
    std::mt19937 azar(12);
    MesaCon(3, TableroSoluble(3, azar, true));
    ReiniciaPartida();
    Gbl.ResolviendoPuzzle = true;
    i16 vistas = 0;
    P().alDejarPasar = [&vistas] {
        EXPECT_FALSE(Gbl.ArrastrandoPieza);
        if (Gbl.NumMovimientos == vistas) return;
        vistas = Gbl.NumMovimientos;
        EXPECT_EQ(Gbl.PiezaActual, Gbl.Movimientos[vistas].Pieza);
    };
    ResuelveDeslizantes();
    EXPECT_GT(vistas, 1);
}

TEST_F(Solucion, RunStopsWhenEventsTakeThePiecesAwayBetweenMoves) {
    std::mt19937 azar(8);
    MesaCon(4, TableroSoluble(4, azar, true));
    Gbl.ResolviendoPuzzle = true;
    bool cambiado = false;
    P().alDejarPasar = [&cambiado] {
        if (cambiado || Gbl.NumMovimientos == 0) return;
        cambiado = true;
        Gbl.JuegoActual = JuegoMoviles;
    };
    ResuelveDeslizantes();
    EXPECT_TRUE(cambiado);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
}

}  // namespace tessario
