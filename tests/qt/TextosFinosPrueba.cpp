// SPDX-License-Identifier: GPL-3.0-or-later
// Texts on a surface in the fine pixels of a dense screen, beside the plain ones.
#include <QImage>

#include "PruebaQt.h"

namespace tessario {

namespace {

constexpr int ANCHO = 120, ALTO = 60, F = 2;

class TextosFinos : public PruebaQt {
protected:
    void SetUp() override {
        PruebaQt::SetUp();
        P().textos().Escala = F;
        c.Tamano(ANCHO, ALTO);
        c.PonBackColor(0xD2E9F4);
        c.Font = Fuente{Familia::Sans, 13, false, false};
        c.ForeColor = 0;
        Abre(mesa, {&c});
    }
    void Escribe(i32 x, i32 y, const char* texto) {
        c.CurrentX = x;
        c.CurrentY = y;
        c.Print(texto);
    }
    // What a screen of twice the density shows of the control.
    QImage Mira() {
        QImage im(F * ANCHO, F * ALTO, QImage::Format_RGB32);
        im.setDevicePixelRatio(F);
        Eventos();
        DeControl(mesa, c).render(&im);
        return im;
    }
    // Pixels of the surface in a box that the screen does not show as a square of their colour.
    int Finos(const QImage& im, QRect caja) {
        int n = 0;
        for (int y = caja.top(); y <= caja.bottom(); ++y)
            for (int x = caja.left(); x <= caja.right(); ++x) {
                bool cuadrado = true;
                for (int j = 0; j < F; ++j)
                    for (int i = 0; i < F; ++i)
                        cuadrado = cuadrado &&
                                   (im.pixel(F * x + i, F * y + j) & 0xFFFFFFU) == c.Fila(y)[x];
                n += !cuadrado;
            }
        return n;
    }

    Ventana mesa;
    Cuadro c;
};

const QRect ENTERA(0, 0, ANCHO, ALTO);

TEST_F(TextosFinos, ATextHasThePixelsOfTheScreenAndThePlainOnesStay) {
    Escribe(10, 20, "Tiempo 0:12");
    const QImage doble = Mira();
    EXPECT_GT(Finos(doble, QRect(10, 20, 80, 16)), 60);
    EXPECT_EQ(Finos(doble, QRect(0, 0, ANCHO, 16)), 0) << "beside it, squares";
    EXPECT_EQ(Finos(doble, QRect(0, 42, ANCHO, ALTO - 42)), 0);
    // The plain pixels are those of a plain screen.
    Cuadro llano;
    llano.Tamano(ANCHO, ALTO);
    llano.PonBackColor(0xD2E9F4);
    llano.Font = c.Font;
    P().textos().Escala = 1;
    llano.CurrentX = 10;
    llano.CurrentY = 20;
    llano.Print("Tiempo 0:12");
    EXPECT_TRUE(llano.Finos().empty());
    EXPECT_EQ(llano.Dibujo().Pixeles, c.Dibujo().Pixeles);
}

TEST_F(TextosFinos, AFineTextIsTheTextAndNotAnother) {
    Escribe(10, 20, "Tiempo 0:12");
    const QImage doble = Mira();
    // The mean of each square differs little from the plain pixel, all over the text.
    long suma = 0;
    int tinta = 0;
    for (int y = 16; y < 42; ++y)
        for (int x = 4; x < 110; ++x) {
            int gris = 0;
            for (int j = 0; j < F; ++j)
                for (int i = 0; i < F; ++i) gris += qGray(doble.pixel(F * x + i, F * y + j));
            suma += std::abs(gris / (F * F) - qGray(c.Fila(y)[x]));
            tinta += qGray(c.Fila(y)[x]) < 128;
        }
    ASSERT_GT(tinta, 50);
    EXPECT_LT(suma, 255L * tinta * 3 / 4);
}

TEST_F(TextosFinos, WhatIsDrawnOverItTakesItsPlace) {
    Escribe(10, 20, "Tiempo 0:12");
    c.Line(pluma::Desde | pluma::Caja | pluma::Llena | pluma::ConColor, 40, 10, 60, 50, 0x0000FF);
    const QImage doble = Mira();
    EXPECT_EQ(Finos(doble, QRect(40, 10, 21, 41)), 0);
    EXPECT_GT(Finos(doble, QRect(10, 20, 30, 16)), 20);
    EXPECT_GT(Finos(doble, QRect(61, 20, 30, 16)), 10);
    c.Cls();
    EXPECT_TRUE(c.Finos().empty());
    EXPECT_EQ(Finos(Mira(), ENTERA), 0);
}

TEST_F(TextosFinos, AFrameTakesNoMoreThanItsLines) {
    Escribe(10, 20, "Tiempo 0:12");
    const int antes = Finos(Mira(), ENTERA);
    const auto marco = [&](i32 x, i32 y) {
        c.Line(pluma::Desde | pluma::Caja | pluma::ConColor, x, y, ANCHO - 1, ALTO - 1, 0x808080);
    };
    marco(0, 0);
    EXPECT_EQ(Finos(Mira(), ENTERA), antes);
    // One side goes through the letters.
    marco(0, 28);
    const QImage doble = Mira();
    EXPECT_EQ(Finos(doble, QRect(0, 28, ANCHO, 1)), 0);
    EXPECT_GT(Finos(doble, QRect(0, 20, ANCHO, 8)), 20);
    EXPECT_GT(Finos(doble, QRect(0, 29, ANCHO, 8)), 20);
}

TEST_F(TextosFinos, TwoTextsThatOverlapAreBothFine) {
    Escribe(10, 20, "Tiempo");
    const int uno = Finos(Mira(), QRect(10, 20, 50, 14));
    // The next line's box begins above its own letters.
    Escribe(10, 33, "Piezas");
    const QImage doble = Mira();
    EXPECT_GT(uno, 20);
    EXPECT_GE(Finos(doble, QRect(10, 20, 50, 14)), uno);
    EXPECT_GT(Finos(doble, QRect(10, 36, 50, 12)), 20);
}

TEST_F(TextosFinos, TheClipHoldsForThemToo) {
    const Region media(Rect{0, 0, 40, ALTO});
    SelectClipRgn(c, &media);
    Escribe(10, 20, "Tiempo 0:12");
    SelectClipRgn(c, nullptr);
    const QImage doble = Mira();
    EXPECT_GT(Finos(doble, QRect(10, 20, 30, 16)), 20);
    EXPECT_EQ(Finos(doble, QRect(40, 0, ANCHO - 40, ALTO)), 0);
}

TEST_F(TextosFinos, ASurfaceThatIsNeverShownHasNone) {
    c.Auxiliar = true;
    Escribe(10, 20, "99");
    EXPECT_TRUE(c.Finos().empty());
}

TEST_F(TextosFinos, AnotherSizeTakesThemAway) {
    Escribe(10, 20, "Tiempo 0:12");
    c.Tamano(ANCHO + 1, ALTO);
    EXPECT_TRUE(c.Finos().empty());
}

TEST_F(TextosFinos, AScreenOfAnotherDensityShowsThePlainText) {
    Escribe(10, 20, "Tiempo 0:12");
    QImage im(ANCHO, ALTO, QImage::Format_RGB32);
    DeControl(mesa, c).render(&im);
    for (int y = 0; y < ALTO; ++y)
        for (int x = 0; x < ANCHO; ++x)
            ASSERT_EQ(im.pixel(x, y) & 0xFFFFFFU, c.Fila(y)[x]) << x << "," << y;
}

}  // namespace

}  // namespace tessario
