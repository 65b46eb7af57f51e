// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMoviles.h"
#include "table/Giro.h"

namespace tessario {

class Giro : public MesaMoviles {
protected:
    void Gira(i16 piece) {
        Gbl.PiezaActual = piece;
        GiraPieza();
    }
    void Tangram() {
        MontaTangram(1024, 768);
        for (i16 p = 1; p <= 7; ++p)
            Coloca(p, static_cast<i16>(100 + (p - 1) % 4 * 220),
                   static_cast<i16>(p > 4 ? 450 : 100));
    }
};

TEST_F(Giro, TheBoxTurnsAboutItsCentreAndWrapsAfterThreeQuarters) {
    Monta(0, 3, 300, 240);  // cells of 100 by 80
    Coloca(1, 350, 250, 0);
    const struct {
        i16 x, y, giro;
    } pasos[] = {{360, 240, 1}, {350, 250, 2}, {360, 240, 3}, {350, 250, 0}};
    for (const auto& p : pasos) {
        Gira(1);
        EXPECT_EQ(Gbl.Piezas[1].X, p.x);
        EXPECT_EQ(Gbl.Piezas[1].Y, p.y);
        EXPECT_EQ(Gbl.Piezas[1].Giro, p.giro);
    }
}

TEST_F(Giro, TheTurnedPieceIsOnTopAndPainted) {
    Monta(0, 3, 300, 240);
    Coloca(5, 350, 250, 0);
    PintaTodo();
    Gbl.ArrastrandoPieza = true;
    Gira(5);
    EXPECT_EQ(Gbl.OrdenPiezas[1], 5);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    // The cell's top left corner is now at the top right of an 80 by 100 box at (360, 240).
    EXPECT_EQ(Pic_Trabajo.Fila(240)[360 + 79], PixelDeMuestra(100, 80));
    EXPECT_EQ(Pic_Trabajo.Fila(290)[352], PixelDe(Gbl.ColorFondo)) << "the old place is empty";
}

TEST_F(Giro, ASquareBoxDoesNotMove) {
    Monta(2, 3, 300, 300);
    Coloca(5, 350, 250, 0);
    Gira(5);
    EXPECT_EQ(Gbl.Piezas[5].X, 350);
    EXPECT_EQ(Gbl.Piezas[5].Y, 250);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
}

TEST_F(Giro, ATriangleKeepsToItsQuarterOfTheCell) {
    Monta(3, 5, 400, 300);  // cells of 79 by 60
    // Piece 4 is the top one: L = 60, step (-15, -15). Then it lies on the right side of a box of
    // 60 by 79: L = 60 again, step (15, -15); then on the bottom, (15, 15) by 60; then left.
    Coloca(4, 500, 300, 0);
    const struct { i16 x, y; } pasos[] = {{485, 285}, {500, 270}, {515, 285}, {500, 300}};
    for (const auto& p : pasos) {
        EXPECT_EQ(AnchoDePieza(4, Gbl.Piezas[4].Giro, 0), Gbl.Piezas[4].Giro % 2 ? 60 : 79);
        Gira(4);
        EXPECT_EQ(Gbl.Piezas[4].X, p.x);
        EXPECT_EQ(Gbl.Piezas[4].Y, p.y);
    }
    EXPECT_EQ(Gbl.Piezas[4].Giro, 0);
}

TEST_F(Giro, WhileSolvingTheFirstTurnIsTheRightOne) {
    Monta(0, 3, 300, 240);
    Coloca(5, 350, 250, 1);
    Gbl.Piezas[5].GiroBien = 0;
    Gbl.ResolviendoPuzzle = true;
    Gira(5);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 0);
}

TEST_F(Giro, TangramTrianglesFollowTheirTables) {
    Tangram();
    Coloca(1, 300, 300, 7);
    Gira(1);  // to 0: -0.4 and -0.1 of 125
    EXPECT_EQ(Gbl.Piezas[1].Giro, 0);
    EXPECT_EQ(Gbl.Piezas[1].X, 250);
    EXPECT_EQ(Gbl.Piezas[1].Y, 288);  // -12.5, halves to even
    Gira(1);                          // to 1: 0 and 0.1
    EXPECT_EQ(Gbl.Piezas[1].X, 250);
    EXPECT_EQ(Gbl.Piezas[1].Y, 300);
}

TEST_F(Giro, EveryEighthOfATriangleHasItsOwnShift) {
    Tangram();
    // 89 wide: four tenths are 35.6, one tenth 8.9. By the new giro, from 0 on.
    const struct {
        i16 x, y;
    } pasos[] = {{-36, -9}, {0, 9}, {36, -36}, {-36, 0}, {0, 36}, {36, -36}, {-9, 0}, {9, 36}};
    for (i16 nuevo = 0; nuevo < 8; ++nuevo) {
        Coloca(3, 500, 300, static_cast<i16>((nuevo + 7) % 8));
        Gira(3);
        EXPECT_EQ(Gbl.Piezas[3].Giro, nuevo);
        EXPECT_EQ(Gbl.Piezas[3].X, 500 + pasos[nuevo].x) << nuevo;
        EXPECT_EQ(Gbl.Piezas[3].Y, 300 + pasos[nuevo].y) << nuevo;
    }
}

TEST_F(Giro, TangramPieceTurnedOntoAnotherIsPushedOff) {
    Tangram();
    Coloca(3, 500, 300, 0);
    Coloca(6, 515, 320, 0);  // within the triangle however that lies
    Gira(3);
    EXPECT_GT(Gbl.TEmpujes, 0);
    EXPECT_EQ(Gbl.Piezas[6].X, 515) << "only the turned one moves";
}

TEST_F(Giro, TheSquareAndTheParallelogramTurnAboutTheirBoxes) {
    Tangram();
    Coloca(6, 300, 300, 0);
    Gira(6);  // 63 to 89: (63 - 89) / 2
    EXPECT_EQ(Gbl.Piezas[6].X, 287);
    EXPECT_EQ(Gbl.Piezas[6].Y, 287);
    Coloca(7, 300, 500, 0);
    Gira(7);  // 132 by 44 to 63 by 126: 34.5 to 34, -41
    EXPECT_EQ(Gbl.Piezas[7].X, 334);
    EXPECT_EQ(Gbl.Piezas[7].Y, 459);
    EXPECT_EQ(Gbl.Piezas[7].Giro, 1);
}

}  // namespace tessario
