// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMontada.h"
#include "panel/Botonera.h"
#include "panel/Desplazamiento.h"
#include "panel/Sugerencias.h"
#include "rules/Despacho.h"

namespace tessario {

class Desplazamiento : public MesaMontada {
protected:
    void Imagen(i32 ancho, i32 alto) {
        Pic_Bitmap.Tamano(ancho, alto);
        AjustaBarras();
    }
};

TEST_F(Desplazamiento, PictureSmallOnBothSidesHasNoBars) {
    Imagen(519, 389);  // below 0.65 of 800 and of 600
    EXPECT_FALSE(BarraHor.Visible);
    EXPECT_FALSE(BarraVer.Visible);
    EXPECT_FALSE(Pic_Cuadrito.Visible);
    EXPECT_EQ(BarraVer.Left, 800);
    EXPECT_EQ(BarraHor.Top, 600);
}

TEST_F(Desplazamiento, HeightAloneOverTheLimitShowsBothBars) {
    Imagen(300, 391);
    EXPECT_TRUE(BarraHor.Visible);
    EXPECT_TRUE(BarraVer.Visible);
    EXPECT_TRUE(Pic_Cuadrito.Visible);
}

TEST_F(Desplazamiento, WidthAloneOverTheLimitShowsBothBars) {
    Imagen(521, 100);
    EXPECT_TRUE(BarraHor.Visible);
    EXPECT_TRUE(BarraVer.Visible);
}

TEST_F(Desplazamiento, BarsLieAtTheEdgesSeventeenThickWithTheSquareBetween) {
    Imagen(1024, 768);
    EXPECT_EQ(BarraVer.Left, 783);
    EXPECT_EQ(BarraVer.Top, 0);
    EXPECT_EQ(BarraVer.Width(), 17);
    EXPECT_EQ(BarraVer.Height(), 583);
    EXPECT_EQ(BarraHor.Left, 0);
    EXPECT_EQ(BarraHor.Top, 583);
    EXPECT_EQ(BarraHor.Width(), 783);
    EXPECT_EQ(BarraHor.Height(), 17);
    EXPECT_EQ(Pic_Cuadrito.Left, 783);
    EXPECT_EQ(Pic_Cuadrito.Top, 583);
}

TEST_F(Desplazamiento, RangeIsTheOverhangPlusTwoHundredAndTheLongStepATenth) {
    Imagen(1024, 768);
    EXPECT_EQ(BarraHor.Max, 441);  // 1024 + 200 - 783
    EXPECT_EQ(BarraVer.Max, 385);  // 768 + 200 - 583
    EXPECT_EQ(BarraHor.LargeChange, 44);
    EXPECT_EQ(BarraVer.LargeChange, 38);
    EXPECT_EQ(BarraHor.SmallChange, 16);
}

TEST_F(Desplazamiento, NoOverhangGivesRangeZeroAndLongStepOne) {
    Imagen(200, 391);
    EXPECT_EQ(BarraHor.Max, 0);  // 200 + 200 fits in 783
    EXPECT_EQ(BarraHor.LargeChange, 1);
}

TEST_F(Desplazamiento, TableMovesAgainstTheBars) {
    Imagen(1024, 768);
    BarraHor.Pon(100);
    BarraVer.Pon(60);
    EXPECT_EQ(Pic_Trabajo.Left, -100);
    EXPECT_EQ(Pic_Trabajo.Top, -60);
}

TEST_F(Desplazamiento, SmallerPictureBringsTheViewBackWithinTheRange) {
    Imagen(1024, 768);
    BarraHor.Pon(441);
    Imagen(700, 500);
    EXPECT_EQ(BarraHor.Value, 117);  // 700 + 200 - 783
    EXPECT_EQ(Pic_Trabajo.Left, -117);
}

TEST_F(Desplazamiento, WithoutBarsTheTableStandsAtTheOrigin) {
    Imagen(1024, 768);
    BarraHor.Pon(100);
    BarraVer.Pon(60);
    QuitaBarras();
    EXPECT_EQ(BarraHor.Value, 0);
    EXPECT_EQ(BarraVer.Value, 0);
    EXPECT_EQ(Pic_Trabajo.Left, 0);
    EXPECT_EQ(Pic_Trabajo.Top, 0);
}

TEST_F(Desplazamiento, VerticalScrollKeepsTheHintAtTheBottomOfTheView) {
    Gbl.VentanaInformacion = true;
    Imagen(1024, 768);
    Sugerencia(10);
    EXPECT_EQ(Pic_Sugerencia.Top, 519);  // 583 - 64
    BarraVer.Pon(60);
    EXPECT_EQ(Pic_Sugerencia.Top, 579);
    EXPECT_EQ(Gbl.SugerenciaActual, 10);
    BarraHor.Pon(100);
    EXPECT_EQ(Pic_Sugerencia.Left, 0);  // it is not moved back along the horizontal scroll
}

TEST_F(Desplazamiento, WithHintsOffTheScrollShowsNone) {
    Imagen(1024, 768);
    BarraVer.Pon(60);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
}

TEST_F(Desplazamiento, LargeJigsawGetsBarsAndTheStripStandsLeftOfThem) {
    Moviles(4, 640, 480);
    EXPECT_TRUE(BarraVer.Visible);
    EXPECT_EQ(Pic_Botonera.Left, 642);  // 783 - 141
    EXPECT_EQ(Pic_Trabajo.Width(), 840);
    EXPECT_EQ(Pic_Trabajo.Height(), 680);
    EXPECT_EQ(BarraHor.Max, 57);  // 640 + 200 - 783
}

}  // namespace tessario
