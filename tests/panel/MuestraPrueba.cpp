// SPDX-License-Identifier: GPL-3.0-or-later
// The sample view: its rubber box, its limits, and where it comes to rest.
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "panel/Muestra.h"

namespace tessario {
namespace {

class VistaMuestra : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Pic_Trabajo.PonBackColor(0x203040);
        for (Superficie* s : {static_cast<Superficie*>(&Pic_Trabajo), &Pic_Imagen, &Pic_Fondo}) {
            s->PonBackColor(0x203040);
            s->Tamano(800, 600);
        }
        BarraHor.Top = 600;
        BarraVer.Left = 800;
        Pic_Botonera.Tamano(141, 463);
        Pic_Botonera.Mueve(659, 0);
        Pic_Muestra.Tamano(160, 120);
        Pic_Muestra.Mueve(400, 480);
        Pic_Muestra.Visible = true;
    }
    void Lleva(float dx, float dy) { Pic_Muestra_MouseMove(1, 0, 10 + dx, 10 + dy); }
};

TEST_F(VistaMuestra, PressGrabsAndMovesNothing) {
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    EXPECT_EQ(Gbl.MuestraX, 400);
    EXPECT_EQ(Gbl.MuestraY, 480);
    EXPECT_EQ(Pic_Muestra.MouseIcon, "CruzFlechas");
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_INVIERTE);
    EXPECT_EQ(Pic_Muestra.Left, 400);
}

TEST_F(VistaMuestra, RubberBoxStandsOnePixelOutsideAndIsErasedAtTheNextStep) {
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(-100, -200);
    const Color invertido = 0x203040 ^ 0xFFFFFFU;
    EXPECT_EQ(Pic_Trabajo.Point(299, 279), invertido);
    EXPECT_EQ(Pic_Trabajo.Point(300 + 160, 280 + 120), invertido);
    EXPECT_EQ(Pic_Trabajo.Point(300, 280), 0x203040U);
    EXPECT_EQ(Pic_Muestra.Left, 400) << "the sample itself waits for the release";
    // That box, the one at the sample's own place, and nothing else.
    const auto enMarco = [](i32 x, i32 y, i32 izq, i32 arr) {
        const Rect fuera = RectDe(izq - 1, arr - 1, 162, 122), dentro = RectDe(izq, arr, 160, 120);
        return fuera.Contiene(x, y) && !dentro.Contiene(x, y);
    };
    for (i32 y = 0; y < 600; ++y)
        for (i32 x = 0; x < 800; ++x) {
            const bool caja = enMarco(x, y, 300, 280) || enMarco(x, y, 400, 480);
            ASSERT_EQ(Pic_Trabajo.Point(x, y), caja ? invertido : 0x203040U) << x << ", " << y;
        }
    Lleva(-150, -200);
    EXPECT_EQ(Pic_Trabajo.Point(299 + 161, 300), 0x203040U);
    EXPECT_EQ(Pic_Trabajo.Point(249, 300), invertido);
}

TEST_F(VistaMuestra, AnAxisOutOfRangeStaysWhileTheOtherMoves) {
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(-401, -100);
    EXPECT_EQ(Gbl.MuestraX, 400) << "left of the table";
    EXPECT_EQ(Gbl.MuestraY, 380);
    Lleva(-400, 1);
    EXPECT_EQ(Gbl.MuestraX, 0);
    EXPECT_EQ(Gbl.MuestraY, 380) << "below the table";
    Lleva(240, -480);
    EXPECT_EQ(Gbl.MuestraX, 640) << "the right edge is legal during the drag";
    EXPECT_EQ(Gbl.MuestraY, 0);
    Lleva(241, -481);
    EXPECT_EQ(Gbl.MuestraX, 640);
    EXPECT_EQ(Gbl.MuestraY, 0);
}

TEST_F(VistaMuestra, ReleaseMovesItAndCleansTheTable) {
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(-100, -200);
    Lleva(-120, -200);
    Pic_Muestra_MouseUp(1, 0, -110, -190);
    EXPECT_EQ(Pic_Muestra.Left, 280);
    EXPECT_EQ(Pic_Muestra.Top, 280);
    EXPECT_EQ(Pic_Muestra.MousePointer, PUNTERO_NORMAL);
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_COPIA);
    for (i32 y = 0; y < 600; ++y)
        for (i32 x = 0; x < 800; ++x) ASSERT_EQ(Pic_Trabajo.Point(x, y), 0x203040U);
}

TEST_F(VistaMuestra, LevelWithTheStripItStopsAtTheStrip) {
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(240, -100);  // y 380, level with the strip of 463
    Pic_Muestra_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Pic_Muestra.Left, 800 - 160 - 141);
    EXPECT_EQ(Pic_Muestra.Top, 380);
}

TEST_F(VistaMuestra, BelowTheStripItMayGoToTheEdge) {
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(240, 0);  // y 480
    Pic_Muestra_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Pic_Muestra.Left, 640);
}

TEST_F(VistaMuestra, LimitsFollowTheScroll) {
    BarraHor.Value = 50;
    BarraVer.Value = 30;
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(-351, -451);
    EXPECT_EQ(Gbl.MuestraX, 400);
    EXPECT_EQ(Gbl.MuestraY, 480);
    Lleva(-350, -450);
    EXPECT_EQ(Gbl.MuestraX, 50);
    EXPECT_EQ(Gbl.MuestraY, 30);
}

TEST_F(VistaMuestra, OnAScrolledTableEachLimitIsReachedAndNotPassed) {
    BarraHor.Top = 583;
    BarraVer.Left = 783;
    Pic_Botonera.Mueve(642, 0);
    BarraHor.Value = 90;
    BarraVer.Value = 70;
    // The view reaches from (90, 70) to (873, 653): the sample, 160 by 120, to (713, 533).
    const struct {
        i32 x, y, quedaX, quedaY;
    } casos[] = {{90, 70, 90, 70},     {89, 70, 400, 70},    {90, 69, 90, 480},
                 {713, 533, 713, 533}, {714, 533, 400, 533}, {713, 534, 713, 480}};
    for (const auto& c : casos) {
        Pic_Muestra.Mueve(400, 480);
        Pic_Muestra_MouseDown(1, 0, 10, 10);
        Lleva(static_cast<float>(c.x - 400), static_cast<float>(c.y - 480));
        EXPECT_EQ(Gbl.MuestraX, c.quedaX) << c.x;
        EXPECT_EQ(Gbl.MuestraY, c.quedaY) << c.y;
        Pic_Muestra_MouseUp(1, 0, 0, 0);
    }
}

TEST_F(VistaMuestra, OnAScrolledTableTheStripHoldsItBackWhereItIsLevelWithIt) {
    BarraHor.Top = 583;
    BarraVer.Left = 783;
    BarraHor.Value = 90;
    BarraVer.Value = 70;
    // The strip, 463 high, ends at 533 of the table; left of it the sample ends at 572.
    const struct {
        i32 x, y, izq;
    } casos[] = {{713, 533, 572}, {573, 300, 572}, {572, 300, 572}, {500, 533, 500}};
    for (const auto& c : casos) {
        Pic_Muestra.Mueve(400, 480);
        Pic_Muestra_MouseDown(1, 0, 10, 10);
        Lleva(static_cast<float>(c.x - 400), static_cast<float>(c.y - 480));
        Pic_Muestra_MouseUp(1, 0, 0, 0);
        EXPECT_EQ(Pic_Muestra.Left, c.izq) << c.x;
        EXPECT_EQ(Pic_Muestra.Top, c.y);
    }
    // A taller view: one pixel below the strip the whole width is free.
    BarraHor.Top = 700;
    Pic_Muestra.Mueve(400, 480);
    Pic_Muestra_MouseDown(1, 0, 10, 10);
    Lleva(313, 54);
    Pic_Muestra_MouseUp(1, 0, 0, 0);
    EXPECT_EQ(Pic_Muestra.Left, 713);
    EXPECT_EQ(Pic_Muestra.Top, 534);
}

TEST_F(VistaMuestra, HoverShowsTheOpenHandOverTheDefaultPointer) {
    Pic_Muestra_MouseMove(0, 0, 20, 20);
    EXPECT_EQ(Pic_Muestra.MouseIcon, "ManoAbierta");
    EXPECT_EQ(Pic_Muestra.MousePointer, PUNTERO_PROPIO);
}

TEST_F(VistaMuestra, RightButtonDoesNotGrab) {
    Pic_Muestra_MouseDown(2, 0, 10, 10);
    const auto antes = Pic_Trabajo.Dibujo().Pixeles;
    Pic_Muestra_MouseMove(2, 0, 60, 10);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, antes);
    Pic_Muestra_MouseUp(2, 0, 60, 10);
    EXPECT_EQ(Pic_Muestra.Left, 400);
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_COPIA);
}

}  // namespace
}  // namespace tessario
