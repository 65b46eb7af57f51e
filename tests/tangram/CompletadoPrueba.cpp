// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaTangram.h"
#include "core/Superficies.h"
#include "table/Atraccion.h"
#include "tangram/Completado.h"

namespace tessario {

class Completado : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        AbreTangram(MODO_CREAR);
        Gbl.ModoJuego = MODO_RESOLVER;
        constexpr Pieza sitios[] = {{},
                                    {0, 0, 0, 0, 20, 20, 7, 0},
                                    {0, 0, 0, 0, 200, 20, 3, 0},
                                    {0, 0, 0, 0, 20, 200, 5, 0},
                                    {0, 0, 0, 0, 200, 200, 1, 0},
                                    {0, 0, 0, 0, 300, 200, 2, 0},
                                    {0, 0, 0, 0, 20, 350, 1, 0},
                                    {0, 0, 0, 0, 200, 350, 2, 1}};
        for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) Gbl.Piezas[i] = sitios[i];
        PreparaJuego(true);
        ApartaPiezas();
    }

    // Lays a piece off its place, on top of the others, and runs the test of the drop.
    bool Cae(i16 pieza, i32 dx, i32 dy, i16 giro, i16 volteo = 0) {
        return CaeEn(pieza, Gbl.Piezas[pieza].XBien + dx, Gbl.Piezas[pieza].YBien + dy, giro,
                     volteo);
    }
    bool CaeEn(i16 pieza, i32 x, i32 y, i16 giro, i16 volteo = 0) {
        PonPieza(pieza, x, y, giro, volteo);
        Suelta(pieza);
        return AtraeASuSitio();
    }
};

TEST_F(Completado, TwinsExchangeTheirPlaces) {
    Gbl.Piezas[2].YBien = 90;
    const Pieza una = Gbl.Piezas[1], otra = Gbl.Piezas[2];
    TCambiaGemela(2);
    EXPECT_EQ(Gbl.Piezas[1].XBien, otra.XBien);
    EXPECT_EQ(Gbl.Piezas[1].YBien, otra.YBien);
    EXPECT_EQ(Gbl.Piezas[1].GiroBien, 3);
    EXPECT_EQ(Gbl.Piezas[2].XBien, una.XBien);
    EXPECT_EQ(Gbl.Piezas[2].GiroBien, 7);
    EXPECT_EQ(Gbl.Piezas[1].X, una.X) << "where a piece stands is not exchanged";
    TCambiaGemela(1);
    EXPECT_EQ(Gbl.Piezas[1], una);
    EXPECT_EQ(Gbl.Piezas[2], otra);
}

TEST_F(Completado, TheFaceIsExchangedToo) {
    Gbl.Piezas[4].VolteoBien = 1;
    TCambiaGemela(5);
    EXPECT_EQ(Gbl.Piezas[5].VolteoBien, 1);
    EXPECT_EQ(Gbl.Piezas[4].VolteoBien, 0);
    EXPECT_EQ(Gbl.Piezas[4].XBien, 300);
}

TEST_F(Completado, PiecesWithoutATwinAndOtherNumbersChangeNothing) {
    const Arreglo<Pieza> antes = Gbl.Piezas;
    for (const i16 p : {i16{3}, i16{6}, i16{7}, i16{0}, i16{8}, i16{-5}}) TCambiaGemela(p);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]);
}

TEST_F(Completado, FullAttractionTakesAnyOverlapOfTheBoxes) {
    Gbl.FactorAtraccion = 100;
    EXPECT_FALSE(Cae(3, 89, 0, 5)) << "boxes of 89 side by side";
    EXPECT_TRUE(Cae(3, 88, 0, 5));
    EXPECT_EQ(Gbl.Piezas[3].X, 20);
    EXPECT_EQ(Gbl.Piezas[3].Y, 200);
}

TEST_F(Completado, NoAttractionWantsThePieceNearlyOnItsPlace) {
    // Half of 89 is cut at each side, 44 as an integer: one column is left.
    Gbl.FactorAtraccion = 0;
    EXPECT_FALSE(Cae(3, 1, 0, 5));
    EXPECT_EQ(Gbl.Piezas[3].X, 21);
    EXPECT_FALSE(Cae(3, 0, -1, 5));
    EXPECT_TRUE(Cae(3, 0, 0, 5));
}

TEST_F(Completado, DefaultAttractionCutsFortyPercentAtEachSide) {
    // Int(40 * 0.89) = 35 at each side of 89 leaves 19 columns.
    Gbl.FactorAtraccion = 20;
    EXPECT_FALSE(Cae(3, 19, 0, 5));
    EXPECT_TRUE(Cae(3, 18, 0, 5));
    EXPECT_EQ(Gbl.Piezas[3].X, 20);
}

TEST_F(Completado, TriangleTurnedWrongStaysWhereItFell) {
    for (const i16 giro : {i16{1}, i16{3}, i16{7}, i16{4}}) {
        EXPECT_FALSE(Cae(3, 4, 4, giro)) << giro;
        EXPECT_EQ(Gbl.Piezas[3].X, 24);
        EXPECT_EQ(Gbl.Piezas[3].Y, 204);
        EXPECT_EQ(Gbl.Piezas[3].Giro, giro);
    }
}

TEST_F(Completado, SquareTwoEighthsOffSnapsAndTakesTheStoredTurn) {
    EXPECT_TRUE(Cae(6, 3, -3, 3));
    EXPECT_EQ(Gbl.Piezas[6].Giro, 1);
    EXPECT_EQ(Gbl.Piezas[6].X, 20);
    EXPECT_EQ(Gbl.Piezas[6].Y, 350);
    EXPECT_FALSE(Cae(6, 3, -3, 2));
}

TEST_F(Completado, RhomboidSnapsHalfATurnOffButNeverOnTheWrongFace) {
    EXPECT_FALSE(Cae(7, 0, 0, 2, 0));
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 0);
    EXPECT_FALSE(Cae(7, 2, 2, 6, 0));
    EXPECT_TRUE(Cae(7, 2, 2, 6, 1));
    EXPECT_EQ(Gbl.Piezas[7].Giro, 2);
}

TEST_F(Completado, PieceTakesTheFaceOfItsPlaceToo) {
    Gbl.Piezas[4].VolteoBien = 1;  // no matter for a triangle
    EXPECT_TRUE(Cae(4, 2, 2, 1));
    EXPECT_EQ(Gbl.Piezas[4].Volteo, 1);
}

TEST_F(Completado, SnappedPieceLeavesNothingWhereItFell) {
    Gbl.FactorAtraccion = 100;
    const auto sin = [](const Superficie& s) { return s.Point(20 + 70 + 44, 350 + 44); };
    const Color suelo = sin(Pic_Fondo);
    ASSERT_NE(suelo, Gbl.ColorPiezas);
    PonPieza(6, 20 + 70, 350, 1);
    Suelta(6);
    ASSERT_EQ(sin(Pic_Imagen), Gbl.ColorPiezas) << "the push apart lays it where it fell";
    EXPECT_TRUE(AtraeASuSitio());
    EXPECT_EQ(sin(Pic_Imagen), suelo);
    EXPECT_EQ(sin(Pic_Trabajo), suelo);
}

TEST_F(Completado, BigTriangleOnItsTwinsPlaceSnapsAndTheExchangeStays) {
    EXPECT_EQ(CuentaColocadas(), 0);
    EXPECT_TRUE(CaeEn(1, 203, 18, 3));  // the place of piece 2
    EXPECT_EQ(Gbl.Piezas[1].X, 200);
    EXPECT_EQ(Gbl.Piezas[1].XBien, 200);
    EXPECT_EQ(Gbl.Piezas[2].XBien, 20);
    EXPECT_EQ(Gbl.Piezas[2].GiroBien, 7);
    EXPECT_EQ(CuentaColocadas(), 1);
    EXPECT_TRUE(CaeEn(2, 25, 25, 7));  // and piece 2 fills the place left free
    EXPECT_EQ(CuentaColocadas(), 2);
}

TEST_F(Completado, EitherTwinTakesThePlaceOfTheOther) {
    for (const auto& [una, otra] :
         std::initializer_list<std::pair<i16, i16>>{{1, 2}, {2, 1}, {4, 5}, {5, 4}}) {
        const Pieza sitio = Gbl.Piezas[otra];
        EXPECT_TRUE(CaeEn(una, sitio.XBien + 2, sitio.YBien - 2, sitio.GiroBien)) << una;
        EXPECT_EQ((Punto{Gbl.Piezas[una].X, Gbl.Piezas[una].Y}), (Punto{sitio.XBien, sitio.YBien}));
        ApartaPiezas();
    }
}

TEST_F(Completado, FailedExchangeIsTakenBack) {
    const Pieza una = Gbl.Piezas[1], otra = Gbl.Piezas[2];
    EXPECT_FALSE(CaeEn(1, 400, 400, 7));
    EXPECT_EQ(Gbl.Piezas[1].XBien, una.XBien);
    EXPECT_EQ(Gbl.Piezas[1].GiroBien, una.GiroBien);
    EXPECT_EQ(Gbl.Piezas[2].XBien, otra.XBien);
}

TEST_F(Completado, TwinThatStoodInThePlaceGivenAwayIsNoLongerCounted) {
    PonPieza(2, 200, 20, 3);
    EXPECT_EQ(CuentaColocadas(), 1);
    TCambiaGemela(1);
    EXPECT_EQ(CuentaColocadas(), 0);
}

TEST_F(Completado, WhenCreatingNoTwinIsTried) {
    Gbl.ModoJuego = MODO_CREAR;
    const Pieza una = Gbl.Piezas[1];
    EXPECT_FALSE(CaeEn(1, 203, 18, 3));
    EXPECT_EQ(Gbl.Piezas[1].XBien, una.XBien);
    EXPECT_EQ(Gbl.Piezas[1].X, 203);
}

}  // namespace tessario
