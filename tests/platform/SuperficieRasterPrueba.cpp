// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>

#include "apoyo/Azar.h"

namespace tessario {

namespace {

const u32 OPERACIONES[] = {SRCCOPY, SRCAND, SRCINVERT, NOTSRCCOPY, DSNA, 0x123456};

Pixel Formula(u32 operacion, Pixel d, Pixel s) {
    switch (operacion) {
        case 0x8800C6:
            return d & s;
        case 0x660046:
            return d ^ s;
        case 0x330008:
            return s ^ 0xFFFFFF;
        case 0x220B24:
            return d & (s ^ 0xFFFFFF);
        default:
            return s;
    }
}

void PonRecorteAlAzar(Azar& azar, Superficie& s) {
    if (azar.Moneda()) return;
    const Region r = RegionAlAzar(azar, 50, 5);
    s.PonRecorte(&r);
}

struct Estirado {
    i32 xd, yd, anchoD, altoD, xo, yo, anchoO, altoO;
};

// The blit's result pixel by pixel, from the source as it was.
void ComparaEstirado(Superficie& destino, const Superficie& origen, const Estirado& e,
                     u32 operacion, const std::function<void()>& dibuja) {
    const Mapa fuente = origen.Dibujo();
    const auto fx = [&](i32 x) { return e.xo + (2 * (x - e.xd) + 1) * e.anchoO / (2 * e.anchoD); };
    const auto fy = [&](i32 y) { return e.yo + (2 * (y - e.yd) + 1) * e.altoO / (2 * e.altoD); };
    ComparaDibujo(
        destino, dibuja,
        [&](i32 x, i32 y) {
            return x >= e.xd && x < e.xd + e.anchoD && y >= e.yd && y < e.yd + e.altoD &&
                   fx(x) >= 0 && fx(x) < fuente.Ancho && fy(y) >= 0 && fy(y) < fuente.Alto;
        },
        [&](i32 x, i32 y, Pixel d) { return Formula(operacion, d, fuente.Fila(fy(y))[fx(x)]); });
}

}  // namespace

TEST(OperacionesRaster, BlitsMatchTheFormulaPixelByPixel) {
    PorCasos(400, [](Azar& azar) {
        Superficie destino(azar.Entre(0, 60), azar.Entre(0, 60));
        Superficie origen(azar.Entre(0, 60), azar.Entre(0, 60));
        Marca(destino);
        Marca(origen, 2);
        PonRecorteAlAzar(azar, destino);
        const i32 w = azar.Entre(1, 50), h = azar.Entre(1, 50);
        const Estirado e{azar.Entre(-30, 60), azar.Entre(-30, 60), w, h,
                         azar.Entre(-30, 60), azar.Entre(-30, 60), w, h};
        const u32 operacion = OPERACIONES[azar.Entre(0, 5)];
        ComparaEstirado(destino, origen, e, operacion,
                        [&] { BitBlt(destino, e.xd, e.yd, w, h, origen, e.xo, e.yo, operacion); });
    });
}

TEST(OperacionesRaster, BlitsWithinOneSurfaceReadWhatWasThereBefore) {
    PorCasos(400, [](Azar& azar) {
        Superficie s(azar.Entre(20, 60), azar.Entre(20, 60));
        Marca(s);
        PonRecorteAlAzar(azar, s);
        const i32 w = azar.Entre(1, 50), h = azar.Entre(1, 50);
        const i32 x = azar.Entre(-5, 30), y = azar.Entre(-5, 30);
        const Estirado e{x, y, w, h, x + azar.Entre(-4, 4), y + azar.Entre(-4, 4), w, h};
        const u32 operacion = OPERACIONES[azar.Entre(0, 5)];
        ComparaEstirado(s, s, e, operacion,
                        [&] { BitBlt(s, e.xd, e.yd, w, h, s, e.xo, e.yo, operacion); });
    });
}

TEST(OperacionesRaster, StretchingTakesThePixelUnderTheCentre) {
    PorCasos(400, [](Azar& azar) {
        const bool misma = azar.Entre(0, 4) == 0;
        Superficie destino(azar.Entre(0, 60), azar.Entre(0, 60));
        Superficie otra(azar.Entre(0, 60), azar.Entre(0, 60));
        Marca(destino);
        Marca(otra, 2);
        PonRecorteAlAzar(azar, destino);
        Superficie& origen = misma ? destino : otra;
        const Estirado e{azar.Entre(-30, 50), azar.Entre(-30, 50), azar.Entre(1, 70),
                         azar.Entre(1, 70),   azar.Entre(-30, 50), azar.Entre(-30, 50),
                         azar.Entre(1, 70),   azar.Entre(1, 70)};
        const u32 operacion = OPERACIONES[azar.Entre(0, 5)];
        ComparaEstirado(destino, origen, e, operacion, [&] {
            StretchBlt(destino, e.xd, e.yd, e.anchoD, e.altoD, origen, e.xo, e.yo, e.anchoO,
                       e.altoO, operacion);
        });
    });
}

TEST(OperacionesRaster, StretchingTwoPixelsToFiveChangesAtTheMiddle) {
    Superficie origen(2, 1), destino(5, 1);
    origen.Fila(0)[0] = 1;
    origen.Fila(0)[1] = 2;
    StretchBlt(destino, 0, 0, 5, 1, origen, 0, 0, 2, 1, SRCCOPY);
    // Centres at 0.2, 0.6, 1.0, 1.4 and 1.8 of the source.
    const Pixel esperado[] = {1, 1, 2, 2, 2};
    for (i32 x = 0; x < 5; ++x) EXPECT_EQ(destino.Fila(0)[x], esperado[x]) << x;
}

TEST(OperacionesRaster, EveryOtherCodeCopies) {
    Superficie origen(1, 1), destino(1, 1);
    origen.Fila(0)[0] = 0x123456;
    destino.Fila(0)[0] = 0xABCDEF;
    BitBlt(destino, 0, 0, 1, 1, origen, 0, 0, 0x42);
    EXPECT_EQ(destino.Fila(0)[0], 0x123456U);
}

TEST(OperacionesRaster, InvertingTwiceOntoItselfChangesNothingAndKeepsTheUpperByteClear) {
    Superficie s(9, 7);
    Marca(s);
    const Mapa antes = s.Dibujo();
    BitBlt(s, 0, 0, 9, 7, s, 0, 0, NOTSRCCOPY);
    EXPECT_EQ(s.Fila(3)[4], antes.Fila(3)[4] ^ 0xFFFFFFU);
    BitBlt(s, 0, 0, 9, 7, s, 0, 0, NOTSRCCOPY);
    EXPECT_EQ(s.Dibujo().Pixeles, antes.Pixeles);
}

TEST(OperacionesRaster, EmptyOrHugeRectanglesAreHarmless) {
    constexpr i32 menor = std::numeric_limits<i32>::min(), mayor = std::numeric_limits<i32>::max();
    const i32 valores[] = {menor, menor + 1, -40000, -1, 0, 1, 40000, mayor - 1, mayor};
    Superficie destino(8, 8), origen(8, 8), vacia;
    Marca(destino);
    Marca(origen, 2);
    for (const i32 a : valores)
        for (const i32 b : valores)
            for (const i32 c : valores) {
                BitBlt(destino, a, b, c, c, origen, b, a, SRCCOPY);
                BitBlt(destino, a, a, b, b, destino, c, c, SRCAND);
                StretchBlt(destino, a, b, c, c, origen, b, a, b, c, SRCCOPY);
                StretchBlt(destino, a, a, c, b, vacia, 0, 0, b, c, SRCCOPY);
                BitBlt(vacia, a, b, c, c, origen, 0, 0, SRCCOPY);
            }
    Marca(destino);
    const Mapa antes = destino.Dibujo();
    BitBlt(destino, 0, 0, 0, 5, origen, 0, 0, SRCCOPY);
    BitBlt(destino, 0, 0, 5, -1, origen, 0, 0, SRCCOPY);
    StretchBlt(destino, 0, 0, 5, 5, vacia, 0, 0, 0, 0, SRCCOPY);
    EXPECT_EQ(destino.Dibujo().Pixeles, antes.Pixeles);
    EXPECT_TRUE(destino.Sucio().Vacio());
}

}  // namespace tessario
