// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMoviles.h"
#include "core/Errores.h"
#include "rules/PuzzBas.h"
#include "table/Atraccion.h"
#include "tangram/Pegado.h"

namespace tessario {

class Atraccion : public MesaMoviles {
protected:
    void Tangram(i16 modo) {
        Gbl.ModoJuego = MODO_CREAR;
        Gbl.FactorAtraccion = 20;
        MontaTangram(1024, 768);
        Gbl.ModoJuego = modo;
        const i16 gemelas[] = {2, 1, 0, 5, 4, 0, 0};
        for (i16 p = 1; p <= 7; ++p) {
            Gbl.TGemela[p] = gemelas[p - 1];
            Coloca(p, static_cast<i16>(10 + (p - 1) * 140), 600);
        }
    }
    void Destino(i16 piece, i16 x, i16 y, i16 giro = 0, i16 volteo = 0) {
        Pieza& z = Gbl.Piezas[piece];
        z.XBien = x;
        z.YBien = y;
        z.GiroBien = giro;
        z.VolteoBien = volteo;
    }
    // Drops the piece at the place; it becomes the top one.
    bool Suelta(i16 piece, i16 x, i16 y, i16 giro = 0) {
        Coloca(piece, x, y, giro);
        SubePieza(PosicionEnOrden(piece));
        return AtraeASuSitio();
    }
};

TEST_F(Atraccion, At20PercentAFifthOfTheBoxIsTheReach) {
    Monta(0, 3, 300, 240);  // cells of 100 by 80: insets of 40 and 32, so 20 by 16 are left
    Gbl.FactorAtraccion = 20;
    EXPECT_FALSE(Suelta(5, 120, 80));
    EXPECT_EQ(Gbl.Piezas[5].X, 120);
    EXPECT_TRUE(Suelta(5, 119, 95));
    EXPECT_EQ(Gbl.Piezas[5].X, 100);
    EXPECT_EQ(Gbl.Piezas[5].Y, 80);
    EXPECT_FALSE(Suelta(5, 100, 96));
    EXPECT_TRUE(Suelta(5, 81, 65));
}

TEST_F(Atraccion, AHundredPercentAttractsAtAnyOverlapOfTheBoxes) {
    Monta(0, 3, 300, 240);
    Gbl.FactorAtraccion = 100;
    EXPECT_FALSE(Suelta(5, 200, 80));
    EXPECT_TRUE(Suelta(5, 199, 159));
}

TEST_F(Atraccion, ZeroPercentWantsAnOddBoxExactlyInPlaceAndAnEvenOneNever) {
    Monta(1, 4, 400, 300);  // boxes of 125 by 109: one pixel is left
    Gbl.FactorAtraccion = 0;
    EXPECT_FALSE(Suelta(6, 98, 75));
    EXPECT_TRUE(Suelta(6, 99, 75));
    Monta(0, 3, 300, 240);  // 100 by 80: nothing is left
    Gbl.FactorAtraccion = 0;
    EXPECT_FALSE(Suelta(5, 100, 80));
}

TEST_F(Atraccion, AWronglyTurnedJigsawPieceNeverSnaps) {
    Monta(0, 3, 300, 240);
    Gbl.FactorAtraccion = 100;
    EXPECT_FALSE(Suelta(5, 100, 80, 2));
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
}

TEST_F(Atraccion, ASnappedPieceLeavesItsOldPlaceOnTheScreen) {
    Monta(0, 3, 300, 240);
    Gbl.FactorAtraccion = 100;
    PintaTodo();
    Coloca(9, 290, 230);
    SubePieza(9);
    PreparaPieza(9);
    PintaPieza(Pic_Trabajo, 9);
    EXPECT_TRUE(AtraeASuSitio());
    EXPECT_EQ(Pic_Trabajo.Fila(300)[385], PixelDe(Gbl.ColorFondo));
}

TEST_F(Atraccion, ABigTriangleTakesItsTwinsPlaceAndKeepsIt) {
    Tangram(MODO_RESOLVER);
    Destino(1, 100, 100, 2);
    Destino(2, 400, 100, 0);
    EXPECT_TRUE(Suelta(1, 405, 103, 0));
    EXPECT_EQ(Gbl.Piezas[1].X, 400);
    EXPECT_EQ(Gbl.Piezas[1].Y, 100);
    EXPECT_EQ(Gbl.Piezas[2].XBien, 100);
    EXPECT_EQ(Gbl.Piezas[2].GiroBien, 2);
    EXPECT_TRUE(PiezaEnSuSitio(1));
}

TEST_F(Atraccion, ATriangleThatFitsNeitherPlaceLeavesBothAsTheyWere) {
    Tangram(MODO_RESOLVER);
    Destino(1, 100, 100, 2);
    Destino(2, 400, 100, 0);
    EXPECT_FALSE(Suelta(1, 400, 100, 5));
    EXPECT_EQ(Gbl.Piezas[1].XBien, 100);
    EXPECT_EQ(Gbl.Piezas[1].GiroBien, 2);
    EXPECT_EQ(Gbl.Piezas[2].XBien, 400);
    EXPECT_EQ(Gbl.Piezas[1].X, 400);
}

TEST_F(Atraccion, TheSquareTakesTheStoredTurn) {
    Tangram(MODO_RESOLVER);
    Destino(6, 300, 300, 1);
    EXPECT_TRUE(Suelta(6, 303, 297, 3));
    EXPECT_EQ(Gbl.Piezas[6].Giro, 1);
}

TEST_F(Atraccion, TheParallelogramOnTheWrongFaceStays) {
    Tangram(MODO_RESOLVER);
    Destino(7, 300, 300, 0, 1);
    EXPECT_FALSE(Suelta(7, 300, 300, 0));
    Gbl.Piezas[7].Volteo = 1;
    EXPECT_TRUE(AtraeASuSitio());
}

TEST_F(Atraccion, APieceNearAnotherIsPulledUntilTheyJustDoNotOverlap) {
    Tangram(MODO_CREAR);
    // The square's region ends before x = 362, the triangle's begins at 367: a pull of 6 is the
    // first that overlaps, and 2 pixels of it are taken back.
    Coloca(6, 300, 300, 0);
    Coloca(3, 367, 300, 7);  // corners (0,0) (88,0) (0,88): its left side stands at x = 367
    Gbl.PiezaActual = 6;
    PegaDosPiezas();
    EXPECT_EQ(Gbl.Piezas[6].X, 304);
    EXPECT_EQ(Gbl.Piezas[6].Y, 300);
}

TEST_F(Atraccion, APieceFurtherThan7PixelsFromAllOthersStays) {
    Tangram(MODO_CREAR);
    Coloca(6, 300, 300, 0);
    Coloca(3, 370, 300, 7);  // 8 pixels from the square's region
    Gbl.PiezaActual = 6;
    PegaDosPiezas();
    EXPECT_EQ(Gbl.Piezas[6].X, 300);
    EXPECT_EQ(Gbl.Piezas[6].Y, 300);
    EXPECT_EQ(Pic_Trabajo.Fila(330)[330], PixelDe(Pic_Bitmap.BackColor())) << "it is painted";
}

TEST_F(Atraccion, CoincidingCentresEndTheSearchWithError11) {
    Tangram(MODO_CREAR);
    Coloca(2, 300, 300, 0);
    Coloca(1, 300, 300, 0);  // piece 1, the first tried, has its centre on that of piece 2
    Gbl.PiezaActual = 2;
    BorraError();
    PegaDosPiezas();
    EXPECT_EQ(ErrorPendiente(), ERROR_DIVISION);
    EXPECT_EQ(Gbl.Piezas[2].X, 300);
    EXPECT_EQ(Gbl.Piezas[2].Y, 300);
}

TEST_F(Atraccion, TheAlternativeSearchAlsoTriesTheOtherDirections) {
    Tangram(MODO_CREAR);
    // The triangle's centre lies at 45 degrees from the square's, 3 pixels below its lower side.
    Coloca(6, 300, 300, 0);
    Coloca(1, 240, 365, 1);  // corners (0,0) (124,0) (124,124): its top side at y = 365
    Gbl.PiezaActual = 6;
    PegaDosPiezasNuevoConError();
    EXPECT_NE(Gbl.Piezas[6].Y, 300);
    EXPECT_LE(Gbl.Piezas[6].Y, 300 + 4);
}

}  // namespace tessario
