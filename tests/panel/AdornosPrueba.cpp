// SPDX-License-Identifier: GPL-3.0-or-later
// The chrome that the windows share.
#include <gtest/gtest.h>

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "panel/Adornos.h"

using namespace tessario;

namespace {

class Adornos : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        CargaTeselas();
    }
    // Where in Pic_BmpVario the pixel at (x, y) of a surface was taken from.
    static Punto Origen(const Superficie& s, i32 x, i32 y) {
        const Pixel p = PixelDe(s.Point(x, y));
        return {static_cast<i32>((p >> 8) & 0xFFFU), static_cast<i32>(p & 0xFFU)};
    }
};

constexpr Color BLANCO = 0xFFFFFF, GRIS = 0x808080, FONDO = 0xC0C0C0, AZUL = 0xFF0000;

TEST_F(Adornos, ALongButtonWiderThanItsTileRepeatsOneColumn) {
    Superficie boton(171, 23);
    DibujaBotonLargo(boton, false);
    EXPECT_EQ(Origen(boton, 0, 0), (Punto{102, 30}));
    EXPECT_EQ(Origen(boton, 128, 22), (Punto{230, 52}));
    for (i32 x = 129; x <= 168; ++x) EXPECT_EQ(Origen(boton, x, 5), (Punto{229, 35})) << x;
    EXPECT_EQ(Origen(boton, 169, 5), (Punto{231, 35}));
    EXPECT_EQ(Origen(boton, 170, 22), (Punto{232, 52}));
}

TEST_F(Adornos, ALongButtonNarrowerThanItsTileKeepsItsRightEdge) {
    Superficie boton(98, 23);
    DibujaBotonLargo(boton, true);
    EXPECT_EQ(Origen(boton, 0, 0), (Punto{102, 54}));
    EXPECT_EQ(Origen(boton, 95, 22), (Punto{197, 76}));
    EXPECT_EQ(Origen(boton, 96, 0), (Punto{231, 54}));
    EXPECT_EQ(Origen(boton, 97, 22), (Punto{232, 76}));
}

TEST_F(Adornos, TheWidthOfTheTileItselfIsNotStretched) {
    Superficie boton(131, 23);
    DibujaBotonLargo(boton, false);
    EXPECT_EQ(Origen(boton, 128, 0), (Punto{230, 30}));
    EXPECT_EQ(Origen(boton, 129, 0), (Punto{231, 30}));
    Superficie mayor(132, 23);
    DibujaBotonLargo(mayor, false);
    EXPECT_EQ(Origen(mayor, 129, 0), (Punto{229, 30}));
    EXPECT_EQ(Origen(mayor, 130, 0), (Punto{231, 30}));
}

TEST_F(Adornos, ALongButtonIsAsHighAsItsTileOnASurfaceOfAnyHeight) {
    Superficie boton(98, 30);
    boton.PonBackColor(FONDO);
    DibujaBotonLargo(boton, false);
    EXPECT_EQ(Origen(boton, 0, 22), (Punto{102, 52}));
    EXPECT_EQ(boton.Point(0, 23), FONDO);
    EXPECT_EQ(boton.Point(97, 23), FONDO);
}

TEST_F(Adornos, TheCaptionOfALongButtonSinksWithIt) {
    Superficie boton(98, 23);
    PintaBotonLargo(boton, "X", false);
    EXPECT_EQ(Origen(boton, 0, 0), (Punto{102, 30}));
    EXPECT_EQ(boton.Point(9, 5), BLANCO);
    EXPECT_EQ(boton.Point(10, 6), AZUL);
    EXPECT_NE(boton.Point(9, 4), BLANCO);
    EXPECT_NE(boton.Point(8, 10), BLANCO);
    PintaBotonLargo(boton, "X", true);
    EXPECT_EQ(Origen(boton, 0, 0), (Punto{102, 54}));
    EXPECT_NE(boton.Point(9, 5), BLANCO);
    EXPECT_EQ(boton.Point(9, 6), BLANCO);
    EXPECT_EQ(boton.Point(10, 7), AZUL);
}

TEST_F(Adornos, TheShadowOfATextIsWhiteAndLiesUpAndToTheLeft) {
    // The block font: 7 x 15 pixels a character, its box from (0, 1) to (5, 13).
    Superficie s(40, 30);
    s.PonBackColor(FONDO);
    s.FillSolido = true;
    TextoConSombra(s, 9, 4, "X", true);
    for (const Punto p : {Punto{9, 5}, {9, 17}, {14, 5}}) EXPECT_EQ(s.Point(p.x, p.y), BLANCO);
    for (const Punto p : {Punto{10, 6}, {15, 6}, {10, 18}, {15, 18}})
        EXPECT_EQ(s.Point(p.x, p.y), AZUL);
    for (const Punto p : {Punto{9, 18}, {15, 5}, {8, 10}, {16, 10}, {12, 4}, {12, 19}})
        EXPECT_EQ(s.Point(p.x, p.y), FONDO);
    EXPECT_FALSE(s.FillSolido);
    EXPECT_TRUE(s.FontTransparent);
    EXPECT_EQ(s.ForeColor, AZUL);
}

TEST_F(Adornos, APanelHasAnEtchedFrameUnderItsTitle) {
    Superficie panel(194, 85);
    panel.FillSolido = true;
    panel.FillColor = 0x123456;
    MarcoPanel(panel, "  AB ");
    EXPECT_EQ(panel.BackColor(), FONDO);
    EXPECT_EQ(panel.Point(0, 7), BLANCO);
    EXPECT_EQ(panel.Point(192, 7), BLANCO);
    EXPECT_EQ(panel.Point(0, 83), BLANCO);
    EXPECT_EQ(panel.Point(192, 40), BLANCO);
    EXPECT_EQ(panel.Point(1, 8), GRIS);
    EXPECT_EQ(panel.Point(193, 84), GRIS);
    EXPECT_EQ(panel.Point(193, 8), GRIS);
    EXPECT_EQ(panel.Point(1, 84), GRIS);
    EXPECT_EQ(panel.Point(0, 6), FONDO);
    EXPECT_EQ(panel.Point(0, 84), FONDO);
    EXPECT_EQ(panel.Point(193, 7), FONDO);
    EXPECT_EQ(panel.Point(100, 50), FONDO);
    // " AB  " is 5 characters of 7 pixels: it begins at (194 - 35) \ 2 and cuts the frame.
    EXPECT_EQ(panel.Point(78, 7), BLANCO);
    EXPECT_EQ(panel.Point(79, 7), FONDO);
    EXPECT_EQ(panel.Point(113, 7), FONDO);
    EXPECT_EQ(panel.Point(114, 7), BLANCO);
    EXPECT_EQ(panel.Point(79 + 7, 1), BLANCO);
    EXPECT_EQ(panel.Point(79 + 8, 2), AZUL);
}

TEST_F(Adornos, AWindowIsLitFromTheUpperLeft) {
    Superficie v(656, 552);
    v.PonBackColor(FONDO);  // not the white of a fresh one, on which half the frame is lost
    MarcoVentana(v);
    EXPECT_EQ(v.Point(0, 0), BLANCO);
    EXPECT_EQ(v.Point(654, 0), BLANCO);
    EXPECT_EQ(v.Point(0, 550), BLANCO);
    EXPECT_EQ(v.Point(655, 0), GRIS);
    EXPECT_EQ(v.Point(655, 300), GRIS);
    EXPECT_EQ(v.Point(0, 551), GRIS);
    EXPECT_EQ(v.Point(655, 551), GRIS);
    EXPECT_EQ(v.Point(1, 1), FONDO);
    EXPECT_EQ(v.Point(654, 550), FONDO);
}

}  // namespace
