// SPDX-License-Identifier: GPL-3.0-or-later
// Large surfaces, whose pixels are made on demand: what they show is what any other shows.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "platform/Superficie.h"

namespace tessario {

namespace {

constexpr i32 ANCHO = 1200, ALTO = 900;
static_assert(std::size_t{ANCHO} * ALTO >= PIXELES_A_DEMANDA);

Imagen Dibujo(i32 ancho, i32 alto, Pixel semilla) {
    auto m = std::make_shared<Mapa>(ancho, alto);
    Pixel p = semilla;
    for (Pixel& q : m->Pixeles) q = (p = p * 1664525U + 1013904223U) >> 8;
    return m;
}

TEST(SuperficieGrande, HasNoPixelsWhileItShowsItsGround) {
    Superficie s(ANCHO, ALTO);
    EXPECT_TRUE(s.SoloSuelo());
    s.PonBackColor(0x123456);
    EXPECT_EQ(s.Point(ANCHO - 1, ALTO - 1), 0x123456U);
    s.PonPicture(Dibujo(40, 30, 7));
    EXPECT_EQ(PixelDe(s.Point(39, 29)), s.Picture()->Fila(29)[39]);
    EXPECT_EQ(s.Point(40, 29), 0x123456U);
    EXPECT_TRUE(s.SoloSuelo());
    s.Line(pluma::Desde, 0, 0, 10, 0);
    EXPECT_FALSE(s.SoloSuelo());
    EXPECT_EQ(s.Point(10, 0), 0U);
    EXPECT_EQ(PixelDe(s.Point(11, 0)), s.Picture()->Fila(0)[11]);
    s.Cls();
    EXPECT_TRUE(s.SoloSuelo());
    EXPECT_EQ(PixelDe(s.Point(10, 0)), s.Picture()->Fila(0)[10]);
}

TEST(SuperficieGrande, ASourceWithoutPixelsStillHasNoneAfterACopy) {
    Superficie origen(ANCHO, ALTO), destino(60, 50);
    origen.PonBackColor(0x0000FF);
    origen.PonPicture(Dibujo(100, 100, 3));
    BitBlt(destino, 0, 0, 60, 50, origen, 70, 80, SRCCOPY);
    EXPECT_TRUE(origen.SoloSuelo());
    for (i32 y = 0; y < 50; ++y)
        for (i32 x = 0; x < 60; ++x)
            ASSERT_EQ(destino.Point(x, y), origen.Point(x + 70, y + 80)) << x << " " << y;
    // Its last row and column, and what lies beyond.
    BitBlt(destino, 0, 0, 60, 50, origen, ANCHO - 5, ALTO - 5, NOTSRCCOPY);
    EXPECT_EQ(destino.Point(4, 4), 0xFFFF00U);
    EXPECT_EQ(destino.Point(5, 4), origen.Point(75, 84));
}

TEST(SuperficieGrande, TheLeastPictureShowsTheSame) {
    Superficie s(ANCHO, ALTO);
    s.PonBackColor(0x305070);
    EXPECT_EQ(s.ImageJusta(), nullptr);
    s.Line(pluma::Desde | pluma::ConColor, 5, 5, 5, 5, 0x305070);  // drawn, and yet all ground
    EXPECT_EQ(s.ImageJusta(), nullptr);
    s.PSet(300, 20, 0xFFFFFF);
    s.PSet(10, 400, 0xFFFFFF);
    s.PSet(0, 0, 0xFFFFFF);
    const Imagen justa = s.ImageJusta();
    ASSERT_TRUE(justa);
    EXPECT_EQ(justa->Ancho, 301);
    EXPECT_EQ(justa->Alto, 401);
    const Imagen antes = s.Image();
    s.PonPicture(justa);
    EXPECT_EQ(s.Image()->Pixeles, antes->Pixeles);
    s.Cls();
    EXPECT_EQ(s.ImageJusta(), justa);
    // To the very edge.
    s.PSet(ANCHO - 1, ALTO - 1, 1);
    EXPECT_EQ(s.ImageJusta()->Ancho, ANCHO);
    EXPECT_EQ(s.ImageJusta()->Alto, ALTO);
}

// The same operations on two surfaces; one of them always has its pixels.
class Gemelas {
public:
    explicit Gemelas(unsigned semilla) : azar_(semilla) {
        for (Superficie& s : s_) s.Tamano(ANCHO, ALTO);
    }
    void Paso() {
        const auto haz = Operacion();
        for (Superficie& s : s_) haz(s);
        static_cast<void>(s_[1].Fila(0));
        aDemanda_ += s_[0].SoloSuelo();
    }
    bool Iguales() const {
        Superficie copia = s_[0];  // asking it makes its pixels: the original stays as it is
        return s_[0].Width() == s_[1].Width() && s_[0].Height() == s_[1].Height() &&
               copia.Dibujo().Pixeles == s_[1].Dibujo().Pixeles;
    }
    int ADemanda() const { return aDemanda_; }

private:
    i32 Hasta(i32 n) { return static_cast<i32>(azar_() % static_cast<unsigned>(n)); }
    std::function<void(Superficie&)> Operacion() {
        const i32 x = Hasta(ANCHO), y = Hasta(ALTO), w = Hasta(300), h = Hasta(300);
        const auto color = static_cast<Color>(Hasta(0xFFFFFF));
        switch (Hasta(9)) {
            case 0:
                return [=](Superficie& s) { s.PonBackColor(color); };
            case 1:
                return [=](Superficie& s) { s.PonPicture(Dibujo(w + 1, h + 1, color)); };
            case 2:
                return [](Superficie& s) { s.PonPicture(nullptr); };
            case 3:
                return [=](Superficie& s) { s.Tamano(ANCHO + x % 7, ALTO + y % 5); };
            case 4:
                return [=](Superficie& s) { s.Tamano(w, h); };
            case 5:
                return [=](Superficie& s) {
                    s.Line(pluma::Desde | pluma::ConColor, x, y, w, h, color);
                };
            case 6:
                return [](Superficie& s) { s.Cls(); };
            case 7:
                return [=](Superficie& s) { BitBlt(s, x, y, w, h, s, h, w, SRCINVERT); };
            default:
                return [=](Superficie& s) {
                    Superficie otra(ANCHO, ALTO);
                    otra.PonBackColor(color);
                    otra.CambiaDibujo(s);
                    s.PonPicture(s.Image());
                };
        }
    }

    std::mt19937 azar_;
    Superficie s_[2];
    int aDemanda_ = 0;
};

TEST(SuperficieGrande, WhateverIsDoneItShowsWhatOneWithPixelsShows) {
    int aDemanda = 0;
    for (unsigned semilla = 1; semilla <= 12; ++semilla) {
        Gemelas g(semilla);
        for (int i = 0; i < 25; ++i) {
            g.Paso();
            ASSERT_TRUE(g.Iguales()) << semilla << " " << i;
        }
        aDemanda += g.ADemanda();
    }
    EXPECT_GT(aDemanda, 30) << "the case is met";
}

}  // namespace
}  // namespace tessario
