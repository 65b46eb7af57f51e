// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "apoyo/Azar.h"

namespace tessario {

namespace {

Imagen ImagenDe(i32 ancho, i32 alto, Pixel p) {
    return std::make_shared<const Mapa>(ancho, alto, p);
}

}  // namespace

TEST(SuperficieCapas, NewSurfaceIsWhiteAndANegativeSizeIsNone) {
    Superficie s(4, 3);
    for (i32 y = 0; y < 3; ++y)
        for (i32 x = 0; x < 4; ++x) EXPECT_EQ(s.Point(x, y), 0xFFFFFFU);
    s.Tamano(-5, 10);
    EXPECT_EQ(s.Width(), 0);
    EXPECT_EQ(s.Height(), 10);
    s.PSet(0, 0);
    EXPECT_EQ(s.Point(0, 0), 0xFFFFFFFFU);
}

TEST(SuperficieCapas, ClsGoesDownToThePictureOverTheGroundAndSendsThePenHome) {
    Superficie s(6, 6);
    s.PonBackColor(0x0000FF);  // red
    s.PonPicture(ImagenDe(3, 2, 0x00FF00));
    s.Line(pluma::Desde | pluma::Caja | pluma::Llena, 0, 0, 5, 5, 0);
    s.CurrentX = s.CurrentY = 4;
    s.TomaSucio();
    s.Cls();
    for (i32 y = 0; y < 6; ++y)
        for (i32 x = 0; x < 6; ++x)
            EXPECT_EQ(s.Fila(y)[x], x < 3 && y < 2 ? 0x00FF00U : 0xFF0000U) << x << ", " << y;
    EXPECT_EQ(s.CurrentX, 0);
    EXPECT_EQ(s.CurrentY, 0);
    EXPECT_EQ(s.TomaSucio(), s.Limites());
}

TEST(SuperficieCapas, SettingGroundOrPictureClearsTheDrawing) {
    Superficie s(2, 2);
    s.PSet(1, 1, 0x0000FF);
    s.PonPicture(ImagenDe(1, 1, 0x123456));
    EXPECT_EQ(s.Point(1, 1), 0xFFFFFFU);
    s.PSet(1, 1, 0x0000FF);
    s.PonBackColor(0x00FF00);
    EXPECT_EQ(s.Point(1, 1), 0x00FF00U);
    EXPECT_EQ(s.Fila(0)[0], 0x123456U);
    s.PonPicture(nullptr);
    EXPECT_EQ(s.Point(0, 0), 0x00FF00U);
}

TEST(SuperficieCapas, FrozenImageBecomesThePictureAndStaysWhatItWas) {
    Superficie s(3, 1);
    s.PSet(1, 0, 0x0000FF);
    const Imagen helada = s.Image();
    s.PSet(2, 0, 0x0000FF);
    EXPECT_EQ(helada->Fila(0)[2], 0xFFFFFFU);
    s.PonPicture(helada);
    s.Cls();
    EXPECT_EQ(s.Point(1, 0), 0x0000FFU);
    EXPECT_EQ(s.Point(2, 0), 0xFFFFFFU);
}

TEST(SuperficieCapas, NewSizeKeepsWhatFitsAndShowsPictureOverGroundElsewhere) {
    PorCasos(100, [](Azar& azar) {
        Superficie s(azar.Entre(0, 20), azar.Entre(0, 20));
        s.PonBackColor(0x0000FF);
        s.PonPicture(ImagenDe(azar.Entre(0, 25), azar.Entre(0, 25), 0x00FF00));
        Marca(s);
        const Mapa antes = s.Dibujo();
        s.Tamano(azar.Entre(0, 25), azar.Entre(0, 25));
        for (i32 y = 0; y < s.Height(); ++y)
            for (i32 x = 0; x < s.Width(); ++x) {
                Pixel esperado = 0xFF0000;
                if (x < s.Picture()->Ancho && y < s.Picture()->Alto) esperado = 0x00FF00;
                if (x < antes.Ancho && y < antes.Alto) esperado = antes.Fila(y)[x];
                EXPECT_EQ(s.Fila(y)[x], esperado) << x << ", " << y;
            }
    });
}

TEST(SuperficieCapas, BothReadersSeeAllChangesOnceAndOnlyWithinTheSurface) {
    Superficie s(10, 10);
    s.TomaSucio();
    s.TomaTocado();
    s.Marca({2, 2, 4, 4});
    s.Marca({-5, 6, 3, 50});
    EXPECT_EQ(s.Sucio(), (Rect{0, 2, 4, 10}));
    EXPECT_EQ(s.TomaSucio(), (Rect{0, 2, 4, 10}));
    EXPECT_TRUE(s.TomaSucio().Vacio());
    s.Marca({9, 9, 12, 12});
    EXPECT_EQ(s.TomaTocado(), (Rect{0, 2, 10, 10}));
    EXPECT_EQ(s.TomaSucio(), (Rect{9, 9, 10, 10}));
    s.Marca({20, 20, 30, 30});
    EXPECT_TRUE(s.Sucio().Vacio());
}

TEST(SuperficieCapas, SmallerSizeLeavesNoReportOutside) {
    Superficie s(50, 50);
    s.Tamano(10, 10);
    EXPECT_EQ(s.TomaSucio(), (Rect{0, 0, 10, 10}));
    s.Tamano(10, 10);
    EXPECT_TRUE(s.Sucio().Vacio());
}

TEST(SuperficieCapas, ClipIsACopyAndNullRemovesIt) {
    Superficie s(4, 4);
    Region r = CreateRectRgn(1, 1, 2, 2);
    SelectClipRgn(s, &r);
    SetRectRgn(r, 0, 0, 4, 4);
    s.Line(pluma::Desde | pluma::Caja | pluma::Llena, 0, 0, 3, 3, 0);
    EXPECT_EQ(s.Point(1, 1), 0U);
    EXPECT_EQ(s.Point(0, 0), 0xFFFFFFU);
    EXPECT_EQ(s.Point(2, 1), 0xFFFFFFU);
    SelectClipRgn(s, nullptr);
    s.PSet(0, 0);
    EXPECT_EQ(s.Point(0, 0), 0U);
    const Region nada;
    SelectClipRgn(s, &nada);
    s.PSet(3, 3, 0x0000FF);
    EXPECT_EQ(s.Point(3, 3), 0xFFFFFFU);
}

}  // namespace tessario
