// SPDX-License-Identifier: GPL-3.0-or-later
// What the heaviest records are counted for. The work that is counted bounds the time that a file
// can take: a record that costs more time than it is charged would let a file go on without end.
#include <bit>
#include <functional>

#include "apoyo/Metaficheros.h"

namespace tessario {

namespace {

using Campos = std::vector<long long>;

constexpr long long NULA = 0x80000008;
constexpr long long ANCHO = 96, ALTO = 48;

Campos Une(Campos a, const Campos& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

class CosteMetaficheros : public Paseo {
protected:
    // Is the file counted for at least so much, and for no more than ten times that?
    void Cuesta(long long minimo, Emf& e) {
        const Cadena b = e.Fin();
        const auto con = [&](long long esfuerzo) {
            PintorRaster r(letras);
            return PintaMetafichero(b, r, esfuerzo);
        };
        EXPECT_EQ(con(minimo), Lectura::Imposible);
        EXPECT_EQ(con(10 * minimo), Lectura::Bien);
    }
};

// A polygon of so many corners that go from one row to another and back.
Campos Zigzag(int n, int arr, int aba) {
    Campos c{0, 0, 0, 0, n};
    for (int i = 0; i < n; ++i) c.push_back(i * 7 % ANCHO | (i % 2 ? aba : arr) << 16);
    return c;
}

// A region of boxes of one point, or the choice of it as the clip.
Campos Damero(int n, const Campos& antes) {
    Campos c = Une(antes, {32, 1, n, n * 16, 0, 0, 0, 0});
    for (int i = 0; i < n; ++i) {
        const long long x = i % 40 * 2, y = i / 40 * 2;
        c.insert(c.end(), {x, y, x + 1, y + 1});
    }
    return c;
}
constexpr int CAJAS = 400;
constexpr long long BYTES_DAMERO = 32 + CAJAS * 16;

TEST_F(CosteMetaficheros, SidesThatAreCrossedArePutInOrderInEachRow) {
    Emf e;
    Cuesta(2000 * (ALTO - 1) * 70, e.R(37, {NULA}).R(86, Zigzag(2000, 0, ALTO)));
}

TEST_F(CosteMetaficheros, SidesArePutInOrderOnce) {
    Emf e;
    Cuesta(20000 * (120 + 100), e.R(37, {NULA}).R(86, Zigzag(20000, 10, 11)));
}

TEST_F(CosteMetaficheros, ManyDashesAreLookedUpForEachPixel) {
    Emf e;
    e.R(95, Une({1, 0, 0, 0, 0, 7, 1, 0, 0, 0, 64}, Campos(64, 1))).R(37, {1});
    for (int i = 0; i < 250; ++i) e.R(54, {ANCHO - 1, 0}).R(54, {0, 0});
    Cuesta(500 * (ANCHO - 1) * (40 + 4 * 64), e);
}

TEST_F(CosteMetaficheros, ClipsThatSavedStatesKeepAreMemory) {
    const Campos elige = Damero(CAJAS, {BYTES_DAMERO, 5});
    for (const u32 tipo : {26U, 30U}) {
        Emf e;
        e.R(75, elige);
        for (int i = 0; i < 200; ++i) e.R(33, {}).R(tipo, {0, 0, ANCHO, ALTO});
        Cuesta(200 * CAJAS * 150, e);
    }
    Emf e;
    for (int i = 0; i < 50; ++i) e.R(75, elige).R(28, {}).R(33, {});
    Cuesta(50 * CAJAS * (150 + 150), e);
}

TEST_F(CosteMetaficheros, PalettesThatGrowAreMemory) {
    Emf e;
    for (int i = 1; i <= 100; ++i) e.R(49, {i, 0x300}).R(51, {i, 1024});
    Cuesta(100 * 1024 * 40, e);
}

TEST_F(CosteMetaficheros, CurvesOfOneFigureDoNotBecomeTooManyPoints) {
    constexpr int CURVAS = 3000;
    Campos c{0, 0, 0, 0, 4 * CURVAS};
    for (int i = 0; i < 4 * CURVAS; ++i)
        c.insert(c.end(), {i % 2 * 1'000'000, i % 4 / 2 * 1'000'000});
    c.insert(c.end(), CURVAS, 0x04040406);  // a beginning and three points of a curve
    Emf e;
    EXPECT_EQ(Lee(e.R(56, c).Fin()), Lectura::Imposible);
}

TEST_F(CosteMetaficheros, WhatIsPaintedCountsByItsPixels) {
    constexpr long long LIENZO = ANCHO * ALTO, VECES = 100;
    const Campos caja{0, 0, ANCHO + 1, ALTO + 1};
    const auto repite = [&](Emf& e, u32 tipo, const Campos& c) {
        for (int i = 0; i < VECES; ++i) e.R(tipo, c);
    };
    {
        Emf lisa;
        repite(lisa.R(37, {NULA}), 43, caja);
        Cuesta(VECES * LIENZO, lisa);
    }
    {
        Emf trama;
        repite(trama.R(39, {1, 2, 0, 5}).R(37, {1}).R(37, {NULA}), 43, caja);
        Cuesta(VECES * LIENZO * 8, trama);
    }
    {
        Emf modo;
        repite(modo.R(20, {7}).R(37, {NULA}), 43, caja);
        Cuesta(VECES * LIENZO * 8, modo);
    }
    constexpr long long UNO = 0x3F800000;
    const Campos sitio{0, 0, 0, 0, 0, 0, ANCHO, ALTO};
    const Campos lejos{0, 0, UNO, 0, 0, UNO, 0, 0, 0, 0, 108, 40, 148, 4, 1, 1};
    const Campos dib{40, 1, 1, 0x200001, 0, 0, 0, 0, 0, 0, 0x12345678};
    for (const u32 tipo : {77U, 114U, 116U}) {
        Emf copia;
        const long long codigo = tipo == 77 ? 0xB8074A : 0x1800000;
        repite(copia, tipo, Une(Une(Une(sitio, {codigo}), lejos), dib));
        Cuesta(VECES * LIENZO * 11, copia);
    }
    {
        Emf color;
        repite(color, 118,
               {0, 0, 0, 0, 3, 1, 2, 0, 0, 0, 0, 2 * ANCHO, 0, 0, 0, 0, 2 * ALTO, 0, 0, 0, 1, 2});
        Cuesta(VECES * LIENZO * 10, color);
    }
    {
        Emf region;
        repite(region.R(39, {1, 2, 0, 5}).R(37, {1}), 74,
               {0, 0, 0, 0, 48, 32, 1, 1, 16, 0, 0, 0, 0, 0, 0, ANCHO, ALTO});
        Cuesta(VECES * LIENZO * 8, region);
    }
    {
        Emf inunda;
        repite(inunda, 53, {5, 5, 0x777777, 0});
        Cuesta(VECES * LIENZO * 21, inunda);
    }
}

TEST_F(CosteMetaficheros, LettersAndFontsCountBeforeTheyAreFetched) {
    constexpr long long LETRA = 2000, TEXTO = 20000, FUENTE = 3'000'000;
    Emf e;
    e.R(18, {1}).R(82, {1, -1, 0, 0, 0, 400, 0, 0, 0, 0}).R(37, {1});
    Campos c{0, 0, 0, 0, 1, 0, 0, 5, 6, 10000, 76, 0, 0, 0, 0, 0, 0};
    c.insert(c.end(), 5000, 0x00410041);
    Cuesta(FUENTE + TEXTO + 10000 * LETRA, e.R(84, c));
    Emf distintas;
    Campos d{0, 0, 0, 0, 1, 0, 0, 5, 6, 200, 76, 0, 0, 0, 0, 0, 0};
    for (int i = 0; i < 200; i += 2) d.push_back((0x100 + i) | (0x101 + i) << 16);
    Cuesta(FUENTE + 200 * (30'000 + LETRA), distintas.R(18, {1}).R(84, d));
    Emf otras;
    for (int i = 0; i < 20; ++i)
        otras.R(82, {1, -2, 0, 0, 0, 400, 0, 0, 'A' + i, 0})
            .R(37, {1})
            .R(108, {5, 6, 1, 0x300, 1, 0, 0, 'x'});
    Cuesta(20 * (FUENTE + TEXTO + LETRA), otras);
}

TEST_F(CosteMetaficheros, RecordsThatAreLeftOutCountMoreThanOthers) {
    Emf e;
    for (int i = 0; i < 1000; ++i) e.R(15, {});
    Cuesta(1000 * 2000, e);
}

}  // namespace

}  // namespace tessario
