// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <random>
#include <sstream>

#include "apoyo/MesaTangram.h"
#include "core/Superficies.h"
#include "panel/Botonera.h"
#include "panel/Colocadas.h"
#include "pieces/Composicion.h"
#include "tangram/Desolape.h"

namespace tessario {

class Desolape : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        AbreTangram(MODO_CREAR);
        ApartaPiezas();
    }
};

namespace {

// The rule as it is told, with nothing saved: every polygon built anew at every step, and the list
// of ways sorted by its text. For comparison; it gives up where the real routine does.
struct Literal {
    static constexpr i32 PX[8] = {0, 1, 1, 1, 0, -1, -1, -1}, PY[8] = {-1, -1, 0, 1, 1, 1, 0, -1};
    i16 p;
    i32 X, Y;
    i32 empujes = 0;
    std::vector<i32> camino = std::vector<i32>(21, 99);
    bool agotada = false;

    bool Choca(i16 k, i32 x, i32 y) const {
        const Pieza antes = Gbl.Piezas[p];
        Gbl.Piezas[p].X = static_cast<i16>(x);
        Gbl.Piezas[p].Y = static_cast<i16>(y);
        Region comun;
        const int codigo = CombineRgn(comun, RegionEnMesa(p), RegionEnMesa(k), RGN_AND);
        Gbl.Piezas[p] = antes;
        return codigo > 1;
    }
    bool Empuja() {
        i16 k = 1;
        while (k <= 7 && (k == p || !Choca(k, X, Y))) ++k;
        if (k > 7) return false;
        if (empujes == MAX_EMPUJES) return !(agotada = true);
        ++empujes;
        std::vector<std::pair<std::string, i32>> lista;
        for (i32 d = 0; d < 8; ++d) {
            i32 tx = 0, ty = 0;
            do {
                tx += PX[d];
                ty += PY[d];
            } while (Choca(k, X + tx, Y + ty));
            char texto[16];
            std::snprintf(texto, sizeof texto, "%03d", std::abs(tx) + std::abs(ty) + 1);
            lista.emplace_back(texto, d);
        }
        std::stable_sort(lista.begin(), lista.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        return Elige(lista);
    }
    bool Elige(const std::vector<std::pair<std::string, i32>>& lista) {
        const i32 w = AnchoDePieza(p, Gbl.Piezas[p].Giro, Gbl.Piezas[p].Volteo);
        const i32 h = AltoDePieza(p, Gbl.Piezas[p].Giro, Gbl.Piezas[p].Volteo);
        std::size_t i = 0;
        for (int intento = 0; intento < 9; ++intento) {
            i32 d = lista[i].second;
            const i32 o = d < 4 ? d + 4 : d - 4;
            if (empujes - 1 <= 20 && camino[static_cast<std::size_t>(empujes - 1)] == o) ++i;
            if (empujes > 5) {
                i += static_cast<std::size_t>(empujes % 7);
                if (i > 7) i -= 8;
            }
            if (i > 7) i = 0;
            d = lista[i].second;
            const i32 n = std::stoi(lista[i].first);
            const i32 dxs[8] = {0, n / 2, n, n / 2, 0, -n / 2, -n, -n / 2};
            const i32 dx = dxs[d], a = std::abs(dx);
            const i32 dys[8] = {-n, -(n - dx), 0, n - dx, n, n - a, 0, -(n - a)};
            const i32 cx = X + dx, cy = Y + dys[d];
            if (!((cx > Pic_Botonera.Left - w && cy < Pic_Botonera.Height()) || cy < 0 ||
                  cy > Gbl.AltoPantalla - h || cx < 0 || cy > Gbl.AnchoPantalla - w)) {
                X = cx;
                Y = cy;
                if (empujes <= 20) camino[static_cast<std::size_t>(empujes)] = d;
                return true;
            }
            i = i == 7 ? 0 : i + 1;
        }
        return !(agotada = true);
    }
};

// A small triangle exactly on its twin. By hand: every way but those along the long side (1 and 5)
// costs 63, so that they come in the order 0, 2, 3, 4, 6, 7.
void PonGemelas(i32 x, i32 y) {
    PonPieza(4, x, y, 7);
    PonPieza(5, x, y, 7);
}

std::mt19937 Sorteo(unsigned semilla) {
    return std::mt19937(semilla);
}

i32 Entre(std::mt19937& g, i32 a, i32 b) {
    return a + static_cast<i32>(g() % static_cast<unsigned>(b - a + 1));
}

// A drop such as a player makes: some piece, some turn, its box on the visible table.
i16 CaidaAlAzar(std::mt19937& g, i32 izq, i32 arr, i32 der, i32 aba) {
    const auto p = static_cast<i16>(Entre(g, 1, 7));
    PonPieza(p, Entre(g, izq, der), Entre(g, arr, aba), static_cast<i16>(Entre(g, 0, 7)),
             static_cast<i16>(p == 7 ? Entre(g, 0, 1) : 0));
    return p;
}

}  // namespace

TEST_F(Desolape, FreePieceIsNotMovedButDrawnAnew) {
    PonPieza(6, 300, 200, 0);
    Pic_Imagen.Cls();
    Suelta(6);
    EXPECT_EQ(Gbl.TEmpujes, 0);
    EXPECT_EQ(Gbl.Piezas[6].X, 300);
    EXPECT_EQ(Gbl.Piezas[6].Y, 200);
    EXPECT_EQ(Pic_Imagen.Point(330, 230), Gbl.ColorPiezas);
    EXPECT_EQ(Pic_Trabajo.Point(330, 230), Gbl.ColorPiezas);
    for (i32 i = 0; i <= 20; ++i) EXPECT_EQ(Gbl.TCaminoPilas[i], 99);
}

TEST_F(Desolape, TouchingEdgesDoNotOverlap) {
    PonPieza(1, 300, 200, 7);  // its left side stands at x = 300
    PonPieza(6, 300 - 62, 220, 0);
    Suelta(6);
    EXPECT_EQ(Gbl.TEmpujes, 0);
    EXPECT_EQ(Gbl.Piezas[6].X, 238);
}

TEST_F(Desolape, SquareFivePixelsInsideGoesSixPixelsBack) {
    PonPieza(1, 300, 200, 7);
    PonPieza(6, 243, 220, 0);  // covers the columns 243 to 304
    Suelta(6);
    EXPECT_EQ(Gbl.TEmpujes, 1);
    EXPECT_EQ(Gbl.TCaminoPilas[0], 99);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 6);
    EXPECT_EQ(Gbl.TCaminoPilas[2], 99);
    EXPECT_EQ(Gbl.Piezas[6].X, 237);
    EXPECT_EQ(Gbl.Piezas[6].Y, 220);
}

TEST_F(Desolape, PushedPieceLeavesNothingWhereItLay) {
    PonPieza(1, 300, 200, 7);
    PonPieza(6, 243, 170, 0);  // five columns inside, but its upper rows lie free
    ColocaPiezas(1);
    ASSERT_EQ(Pic_Imagen.Point(302, 185), Gbl.ColorPiezas);
    Suelta(6);
    ASSERT_EQ(Gbl.Piezas[6].X, 237);
    EXPECT_EQ(Pic_Imagen.Point(302, 185), Gbl.ColorFondo);
    EXPECT_EQ(Pic_Trabajo.Point(302, 185), Gbl.ColorFondo);
    EXPECT_EQ(Pic_Imagen.Point(239, 185), Gbl.ColorPiezas);
}

TEST_F(Desolape, SmallTriangleInTheMiddleOfABigOneGoesOutByTheShortestWay) {
    PonPieza(1, 300, 200, 0);  // long side at the bottom, y = 288
    PonPieza(4, 360, 240, 0);  // its own long side at y = 284: the way down ends last
    std::vector<i32> costes;
    for (i32 d = 0; d < 8; ++d) {
        i32 n = 0;
        Region a = RegionEnMesa(4);
        const Region b = RegionEnMesa(1);
        Region comun;
        do {
            ++n;
            a.Desplaza(Literal::PX[d], Literal::PY[d]);
        } while (CombineRgn(comun, a, b, RGN_AND) > 1);
        costes.push_back(n * (d % 2 + 1) + 1);
    }
    const auto menor = std::min_element(costes.begin(), costes.end());
    const i32 d = static_cast<i32>(menor - costes.begin());
    Suelta(4);
    EXPECT_EQ(Gbl.TEmpujes, 1);
    EXPECT_EQ(Gbl.TCaminoPilas[1], d);
    EXPECT_EQ(std::abs(Gbl.Piezas[4].X - 360) + std::abs(Gbl.Piezas[4].Y - 240), *menor);
    EXPECT_EQ(Solapada(4), 0);
}

TEST_F(Desolape, WaysOfEqualCostAreTakenInOrderOfDirection) {
    PonGemelas(300, 200);
    Suelta(5);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 0);
    EXPECT_EQ(Gbl.Piezas[5].X, 300);
    EXPECT_EQ(Gbl.Piezas[5].Y, 200 - 63);
}

TEST_F(Desolape, TopOfTheTableIsNeverPassed) {
    PonGemelas(300, 62);  // north would end at -1
    Suelta(5);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 2);
    EXPECT_EQ(Gbl.Piezas[5].X, 363);
    EXPECT_EQ(Gbl.Piezas[5].Y, 62);
}

TEST_F(Desolape, PieceEndsExactlyAtTheTopWhenThatIsFree) {
    PonGemelas(300, 63);
    Suelta(5);
    EXPECT_EQ(Gbl.Piezas[5].Y, 0);
}

TEST_F(Desolape, LeftEdgeAndBottomAreNotPassed) {
    PonGemelas(0, 600 - 63);  // north is free, as ever
    PonPieza(6, 0, 600 - 63 - 62, 0);
    Suelta(5);
    EXPECT_GE(Gbl.Piezas[5].X, 0);
    EXPECT_LE(Gbl.Piezas[5].Y, 600 - 63);
    EXPECT_EQ(Solapada(5), 0);
}

TEST_F(Desolape, LeftEdgeIsReachedAndNotPassed) {
    for (const i32 sobra : {0, 1}) {
        ApartaPiezas();
        PonPieza(1, 63 - sobra, 200, 7);
        PonPieza(6, 6 - sobra, 220, 0);  // five columns inside: west costs 6
        Suelta(6);
        if (sobra == 0) {
            EXPECT_EQ(Gbl.TCaminoPilas[1], 6);
            EXPECT_EQ(Gbl.Piezas[6].X, 0);
        } else {
            EXPECT_NE(Gbl.TCaminoPilas[1], 6);
            EXPECT_GE(Gbl.Piezas[6].X, 0);
        }
    }
}

TEST_F(Desolape, BottomIsReachedAndNotPassed) {
    for (const i32 sobra : {0, 1}) {
        ApartaPiezas();
        PonPieza(1, 100, 412 + sobra, 3);  // lower side 124 further down
        PonPieza(6, 150, 512 + sobra, 0);  // south costs 25
        Suelta(6);
        if (sobra == 0) {
            EXPECT_EQ(Gbl.TCaminoPilas[1], 4);
            EXPECT_EQ(Gbl.Piezas[6].Y, 600 - 63);
        } else {
            EXPECT_NE(Gbl.TCaminoPilas[1], 4);
            EXPECT_LE(Gbl.Piezas[6].Y, 600 - 63);
        }
    }
}

TEST_F(Desolape, PanelIsNotGoneUnder) {
    // The panel's left edge is at 659: 596 is the last place for a box of 63.
    ASSERT_EQ(Pic_Botonera.Left, 659);
    PonGemelas(596, 30);  // north is refused by the top, east by the panel
    Suelta(5);
    // South-east costs 63 too: 31 to the right is under the panel; south is the next.
    EXPECT_EQ(Gbl.TCaminoPilas[1], 4);
    EXPECT_EQ(Gbl.Piezas[5].X, 596);
    EXPECT_EQ(Gbl.Piezas[5].Y, 93);
}

TEST_F(Desolape, DiagonalPushSplitsTheCostAndTheHeightTakesTheOddPixel) {
    PonGemelas(565, 30);  // north and east are refused, south-east just reaches 596
    Suelta(5);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 3);
    EXPECT_EQ(Gbl.Piezas[5].X, 565 + 31);
    EXPECT_EQ(Gbl.Piezas[5].Y, 30 + 32);
}

TEST_F(Desolape, WayBackOfTheLastPushIsSkipped) {
    PonPieza(1, 200, 200, 1);  // upright side at x = 324, the piece to its left
    PonPieza(6, 319, 210, 0);  // five columns inside: east costs 6
    PonPieza(2, 377, 150, 5);  // upright side at x = 377, the piece to its right
    Suelta(6);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 2);
    // West out of piece 2 would cost 11 and be the cheapest; the two slants to the west cost 21.
    EXPECT_EQ(Gbl.TCaminoPilas[2], 5);
    EXPECT_GT(Gbl.TEmpujes, 2);
    EXPECT_EQ(Solapada(6), 0);
}

TEST_F(Desolape, BelowThePanelAPieceCanLeaveTheTableToTheRight) {
    PonPieza(1, 700, 450, 1);  // upright side at x = 824
    PonPieza(6, 800, 480, 0);  // covers 800 to 861: 24 columns inside
    Suelta(6);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 2);
    EXPECT_EQ(Gbl.Piezas[6].X, 825);
    EXPECT_EQ(Gbl.Piezas[6].Y, 480);
}

TEST_F(Desolape, OnATallScreenTheHeightIsComparedWithTheWidth) {
    Gbl.AnchoPantalla = 400;
    Gbl.AltoPantalla = 900;
    Pic_Botonera.Mueve(1000, 0);  // out of the way
    PonPieza(1, 100, 300, 3);     // lower side at y = 424
    PonPieza(6, 150, 400, 0);     // south would cost 25 and end at 425: past 400 - 63
    Suelta(6);
    EXPECT_NE(Gbl.TCaminoPilas[1], 4);
    EXPECT_LE(Gbl.Piezas[6].Y, 400 - 63);
    Gbl.AnchoPantalla = 800;  // the same on a screen wide enough goes south
    PonPieza(6, 150, 400, 0);
    Suelta(6);
    EXPECT_EQ(Gbl.TCaminoPilas[1], 4);
    EXPECT_EQ(Gbl.Piezas[6].Y, 425);
}

TEST_F(Desolape, ComparisonOfTheHeightWithTheWidthIsExact) {
    Gbl.AltoPantalla = 900;
    Pic_Botonera.Mueve(2000, 0);
    for (const i16 ancho : {i16{425 + 63}, i16{425 + 62}}) {
        Gbl.AnchoPantalla = ancho;
        ApartaPiezas();
        PonPieza(1, 100, 300, 3);
        PonPieza(6, 150, 400, 0);  // south would end at 425
        Suelta(6);
        EXPECT_EQ(Gbl.TCaminoPilas[1] == 4, ancho == 425 + 63) << ancho;
    }
}

TEST_F(Desolape, PieceEndsExactlyAtThePanelAndNotUnderIt) {
    for (const i32 sobra : {0, 1}) {
        ApartaPiezas();
        PonGemelas(596 - 63 + sobra, 30);  // north is refused by the top
        Suelta(5);
        EXPECT_EQ(Gbl.TCaminoPilas[1], sobra == 0 ? 2 : 3);
        EXPECT_EQ(Gbl.Piezas[5].X, sobra == 0 ? 596 : 534 + 31);
    }
}

TEST_F(Desolape, JustBelowThePanelIsFree) {
    ASSERT_EQ(Pic_Botonera.Height(), 463);
    for (const i32 sobra : {0, 1}) {
        ApartaPiezas();
        PonGemelas(600, 463 + 63 - sobra);  // right of the panel's edge; north would end there
        Suelta(5);
        EXPECT_EQ(Gbl.TCaminoPilas[1], sobra == 0 ? 0 : 2);
        EXPECT_EQ(Gbl.Piezas[5].Y, sobra == 0 ? 463 : 463 + 62);
    }
}

TEST_F(Desolape, LowestNumberedPieceIsDealtWithFirst) {
    PonPieza(6, 300, 200, 0);
    PonPieza(3, 300 - 60, 200, 1);  // upright side at x = 328
    PonPieza(4, 300 + 52, 200, 7);  // upright side at x = 352
    Suelta(6);
    // Piece 3 reaches 28 columns in, piece 4 ten: out of piece 3 first, to the east.
    EXPECT_EQ(Gbl.TCaminoPilas[1], 2);
    EXPECT_EQ(Solapada(6), 0);
}

TEST_F(Desolape, OnlyTheCurrentPieceMoves) {
    PonPieza(1, 300, 200, 7);
    PonPieza(2, 420, 200, 3);
    PonPieza(6, 330, 230, 0);
    const Arreglo<Pieza> antes = Gbl.Piezas;
    Suelta(6);
    for (i16 i = 1; i <= 7; ++i) {
        if (i == 6) continue;
        EXPECT_EQ(Gbl.Piezas[i], antes[i]) << i;
    }
}

TEST_F(Desolape, NoCurrentPieceOrOneOutOfRangeDoesNothing) {
    PonGemelas(300, 200);
    const Arreglo<Pieza> antes = Gbl.Piezas;
    for (const i16 actual : {i16{0}, i16{-1}, i16{8}, i16{32767}}) {
        Gbl.PiezaActual = actual;
        Gbl.TEmpujes = 7;
        TDesolapaPieza();
        EXPECT_EQ(Gbl.TEmpujes, 0);
        for (i16 i = 1; i <= 7; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]);
    }
}

TEST_F(Desolape, TableWithNoFreePlaceEndsWithThePieceWhereItFell) {
    Gbl.AnchoPantalla = 100;
    Gbl.AltoPantalla = 100;
    Pic_Botonera.Mueve(0, 0);  // the panel over all of it
    PonPieza(1, 0, 0, 7);
    PonPieza(2, 0, 0, 3);
    PonPieza(6, 20, 20, 0);
    Suelta(6);
    EXPECT_EQ(Gbl.Piezas[6].X, 20);
    EXPECT_EQ(Gbl.Piezas[6].Y, 20);
}

TEST_F(Desolape, CoordinatesAtTheEndsOfTheirRangeDoNotHang) {
    PonPieza(4, 32767, 32767, 7);
    PonPieza(5, 32767, 32767, 7);
    Suelta(5);
    PonPieza(4, -32768, -32768, 7);
    PonPieza(5, -32768, -32768, 7);
    Suelta(5);
    EXPECT_EQ(Solapada(5), 0);
    EXPECT_GE(Gbl.Piezas[5].X, 0);
}

TEST_F(Desolape, PushesAreThoseOfTheRuleToldStepByStep) {
    auto g = Sorteo(20261120);
    for (int caso = 0; caso < 250; ++caso) {
        const i16 p = CaidaAlAzar(g, 150, 100, 400, 350);
        Literal l{p, Gbl.Piezas[p].X, Gbl.Piezas[p].Y};
        while (l.Empuja()) {
        }
        Suelta(p);
        if (l.agotada) continue;
        ASSERT_EQ(Gbl.TEmpujes, l.empujes) << "case " << caso << " piece " << p;
        ASSERT_EQ(Gbl.Piezas[p].X, l.X) << "case " << caso;
        ASSERT_EQ(Gbl.Piezas[p].Y, l.Y) << "case " << caso;
        for (i32 i = 1; i <= 20; ++i)
            ASSERT_EQ(Gbl.TCaminoPilas[i], l.camino[static_cast<std::size_t>(i)])
                << "case " << caso;
    }
}

TEST_F(Desolape, RandomDropsAllOverTheTableEndFree) {
    auto g = Sorteo(1);
    i32 mayor = 0;
    for (int caso = 0; caso < 3000; ++caso) {
        const i16 p = CaidaAlAzar(g, 0, 0, 600, 470);
        Suelta(p);
        ASSERT_EQ(Solapada(p), 0) << "case " << caso << " piece " << p;
        mayor = std::max<i32>(mayor, Gbl.TEmpujes);
    }
    RecordProperty("most_pushes", mayor);
    EXPECT_LT(mayor, MAX_EMPUJES) << "no drop needed the way out";
}

TEST_F(Desolape, PushesPastTwentyAreCountedThoughNotRemembered) {
    auto g = Sorteo(5);
    bool vista = false;
    for (int caso = 0; caso < 20000 && !vista; ++caso) {
        // All seven crowded into a corner of the table.
        const i16 p = CaidaAlAzar(g, 250, 150, 330, 230);
        Suelta(p);
        ASSERT_EQ(Solapada(p), 0) << "case " << caso;
        if (Gbl.TEmpujes <= 20) continue;
        vista = true;
        EXPECT_NE(Gbl.TCaminoPilas[20], 99);
    }
    EXPECT_TRUE(vista);
}

}  // namespace tessario
