// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "apoyo/Azar.h"
#include "apoyo/PlataformaPrueba.h"

namespace tessario {

namespace {

class Pluma : public PruebaBase {};

using namespace pluma;

// Is (x, y) a pixel of the line? For each step along the longer side the nearest pixel, the one
// further down or right when two are equally near.
bool EnLinea(i32 x, i32 y, Punto a, Punto b) {
    if (std::abs(b.y - a.y) > std::abs(b.x - a.x)) {
        std::swap(x, y);
        std::swap(a.x, a.y);
        std::swap(b.x, b.y);
    }
    if (b.x < a.x) std::swap(a, b);
    if (x < a.x || x > b.x) return false;
    if (a.x == b.x) return y == a.y;
    const long long largo = b.x - a.x;
    const long long exceso =
        2 * (x - a.x) * static_cast<long long>(b.y - a.y) - 2 * (y - a.y) * largo;
    return -largo <= exceso && exceso < largo;
}

// Does a pen of width n at c cover p? The disc of its width, centred in its square.
bool Cubre(i32 n, const Punto& c, i32 x, i32 y) {
    const i32 i = x - c.x + n / 2, j = y - c.y + n / 2;
    if (i < 0 || j < 0 || i >= n || j >= n) return false;
    const i32 dx = 2 * i + 1 - n, dy = 2 * j + 1 - n;
    return dx * dx + dy * dy <= n * n;
}

bool EnLineaGruesa(i32 x, i32 y, i32 n, const Punto& a, const Punto& b) {
    for (i32 v = y - n; v <= y + n; ++v)
        for (i32 u = x - n; u <= x + n; ++u)
            if (Cubre(n, {u, v}, x, y) && EnLinea(u, v, a, b)) return true;
    return false;
}

void PreparaAlAzar(Azar& azar, Superficie& s) {
    Marca(s);
    s.DrawMode = azar.Moneda() ? MODO_INVIERTE : MODO_COPIA;
    if (azar.Entre(0, 2) == 0) {
        const Region r = RegionAlAzar(azar, 40, 5);
        s.PonRecorte(&r);
    }
}

Pixel Trazado(const Superficie& s, Pixel antes, Color color) {
    return s.DrawMode == MODO_INVIERTE ? antes ^ 0xFFFFFFU : PixelDe(color);
}

}  // namespace

TEST_F(Pluma, LinesMatchTheSlowOnesInAllDirectionsWidthsAndModes) {
    PorCasos(500, [](Azar& azar) {
        Superficie s(azar.Entre(1, 40), azar.Entre(1, 40));
        PreparaAlAzar(azar, s);
        const i32 n = azar.Moneda() ? 1 : azar.Entre(2, 7);
        s.DrawWidth = static_cast<i16>(n);
        const i32 lejos = azar.Moneda() ? 60 : 3000;
        const Punto a{azar.Entre(-20, lejos), azar.Entre(-20, lejos)};
        const Punto b{azar.Entre(-lejos, 60), azar.Entre(-lejos, 60)};
        ComparaDibujo(
            s, [&] { s.Line(Desde | ConColor, a.x, a.y, b.x, b.y, 0x112233); },
            [&](i32 x, i32 y) { return EnLineaGruesa(x, y, n, a, b); },
            [&](i32, i32, Pixel p) { return Trazado(s, p, 0x112233); });
    });
}

TEST_F(Pluma, BoxesIncludeBothCornersAndAreFilledAsAsked) {
    PorCasos(400, [](Azar& azar) {
        Superficie s(azar.Entre(1, 40), azar.Entre(1, 40));
        PreparaAlAzar(azar, s);
        const i32 n = azar.Entre(1, 4);
        s.DrawWidth = static_cast<i16>(n);
        s.FillColor = 0x00FF00;
        s.FillSolido = azar.Moneda();
        const int flags = Desde | Caja | ConColor | (azar.Moneda() ? Llena : 0);
        const Punto a{azar.Entre(-10, 50), azar.Entre(-10, 50)};
        const Punto b{azar.Entre(-10, 50), azar.Entre(-10, 50)};
        const i32 izq = std::min(a.x, b.x), der = std::max(a.x, b.x);
        const i32 arr = std::min(a.y, b.y), aba = std::max(a.y, b.y);
        // The pen's square around each of the four sides.
        const auto enMarco = [&](i32 x, i32 y) {
            for (i32 v = y - (n - 1) / 2; v <= y + n / 2; ++v)
                for (i32 u = x - (n - 1) / 2; u <= x + n / 2; ++u)
                    if (u >= izq && u <= der && v >= arr && v <= aba &&
                        (u == izq || u == der || v == arr || v == aba))
                        return true;
            return false;
        };
        const auto dentro = [&](i32 x, i32 y) { return x > izq && x < der && y > arr && y < aba; };
        const bool lleno = s.FillSolido || (flags & Llena);
        ComparaDibujo(
            s, [&] { s.Line(flags, a.x, a.y, b.x, b.y, 0x112233); },
            [&](i32 x, i32 y) { return enMarco(x, y) || (lleno && dentro(x, y)); },
            [&](i32 x, i32 y, Pixel p) {
                const bool linea = enMarco(x, y) || (flags & Llena);
                return Trazado(s, p, linea ? 0x112233 : s.FillColor);
            });
    });
}

TEST_F(Pluma, PointsOfAnyWidthAreDiscs) {
    PorCasos(200, [](Azar& azar) {
        Superficie s(azar.Entre(1, 40), azar.Entre(1, 40));
        PreparaAlAzar(azar, s);
        const i32 n = azar.Entre(1, 20);
        s.DrawWidth = static_cast<i16>(n);
        const Punto p{azar.Entre(-10, 50), azar.Entre(-10, 50)};
        ComparaDibujo(
            s, [&] { s.PSet(p.x, p.y, 0x445566); }, [&](i32 x, i32 y) { return Cubre(n, p, x, y); },
            [&](i32, i32, Pixel antes) { return Trazado(s, antes, 0x445566); });
    });
}

TEST_F(Pluma, PathFollowsThePenAndItsFlags) {
    Superficie s(20, 20);
    s.ForeColor = 0x0000FF;
    s.Line(Desde | Relativo, 2, 3, 5, 0);  // (2, 3) to (7, 3)
    EXPECT_EQ(s.CurrentX, 7);
    EXPECT_EQ(s.CurrentY, 3);
    s.Line(0, 99, 99, 7, 9);  // on to (7, 9); the start given is not used
    EXPECT_EQ(s.Point(7, 6), 0x0000FFU);
    EXPECT_EQ(s.Point(19, 19), 0xFFFFFFU);
    s.Line(Relativo | ConColor, 0, 0, -3, 2, 0x00FF00);
    EXPECT_EQ(s.CurrentX, 4);
    EXPECT_EQ(s.CurrentY, 11);
    EXPECT_EQ(s.Point(4, 11), 0x00FF00U);
    s.PSet(15, 16);
    EXPECT_EQ(s.CurrentX, 15);
    EXPECT_EQ(s.Point(15, 16), 0x0000FFU);
}

TEST_F(Pluma, CoordinatesRoundToTheNearestHalvesToEven) {
    Superficie s(10, 10);
    s.PSet(2.5, 3.5);
    s.PSet(6.4, 6.6);
    EXPECT_EQ(s.Point(2, 4), 0U);
    EXPECT_EQ(s.Point(6, 7), 0U);
    // A step is added before rounding: 0.4 + 0.4 is nearer to 1.
    s.Line(Desde | Relativo, 0.4, 9, 0.4, 0);
    EXPECT_EQ(s.Point(0, 9), 0U);
    EXPECT_EQ(s.Point(1, 9), 0U);
    EXPECT_EQ(s.Point(2, 9), 0xFFFFFFU);
}

TEST_F(Pluma, LinesFromFarAwayAreClippedAndPassThroughTheRightPixels) {
    Superficie s(100, 100);
    s.Line(Desde, -30000, -30000, 30000, 30000);
    for (i32 i = 0; i < 100; ++i) EXPECT_EQ(s.Point(i, i), 0U);
    EXPECT_EQ(s.Point(10, 11), 0xFFFFFFU);
    s.Cls();
    s.Line(Desde, -1e9, 50, 1e9, 50);
    EXPECT_EQ(s.Point(0, 50), 0U);
    EXPECT_EQ(s.Point(99, 50), 0U);
    s.Line(Desde, 7, 1e300, 7, -std::numeric_limits<double>::infinity());
    EXPECT_EQ(s.Point(7, 0), 0U);
    EXPECT_EQ(s.Point(7, 99), 0U);
}

TEST_F(Pluma, WidestPenAndWildestCoordinatesAreHarmless) {
    constexpr double nada = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinito = std::numeric_limits<double>::infinity();
    const double valores[] = {-infinito, -1e300, -40000.5, 0, 3.5, 40000, 1e9, infinito, nada};
    Superficie s(30, 20), vacia;
    for (Superficie* d : {&s, &vacia})
        for (const i16 ancho : {i16{-32768}, i16{0}, i16{1}, i16{3}, i16{32767}}) {
            d->DrawWidth = ancho;
            for (const double a : valores)
                for (const double b : valores) {
                    d->Line(Desde, a, b, b, a);
                    d->Line(Desde | Caja | Llena, a, a, b, b);
                    d->Line(Desde | Relativo, a, b, a, b);
                    d->PSet(a, b);
                }
        }
    s.DrawWidth = 1;
    s.CurrentX = 4;
    s.Cls();
    s.CurrentX = 4;
    s.TomaSucio();
    s.Line(Desde, nada, 0, 10, 10);
    s.PSet(3, nada);
    EXPECT_TRUE(s.Sucio().Vacio());
    EXPECT_EQ(s.CurrentX, 4);
}

TEST_F(Pluma, PointReadsColoursAndTellsTheOutside) {
    Superficie s(3, 2);
    s.PSet(2, 1, 0x0000FF);  // red
    EXPECT_EQ(s.Fila(1)[2], 0xFF0000U);
    EXPECT_EQ(s.Point(2, 1), 0x0000FFU);
    for (const Punto& p : {Punto{-1, 0}, {3, 0}, {0, -1}, {0, 2}})
        EXPECT_EQ(s.Point(p.x, p.y), 0xFFFFFFFFU);
}

TEST_F(Pluma, PrintMovesToTheNextLineAndPaintsItsGroundWhenOpaque) {
    Superficie s(60, 40);
    s.Font.Tamano = 13;
    s.ForeColor = 0x0000FF;
    s.PonBackColor(0x00FF00);
    s.Line(Desde | Caja | Llena | ConColor, 0, 0, 59, 39, 0x123456);
    s.CurrentX = 5;
    s.CurrentY = 4;
    s.Print("a b");
    EXPECT_EQ(s.TextWidth("a b"), 21);
    EXPECT_EQ(s.TextHeight("a b"), 15);
    EXPECT_EQ(s.CurrentX, 0);
    EXPECT_EQ(s.CurrentY, 19);
    EXPECT_EQ(s.Point(6, 8), 0x0000FFU);   // a letter
    EXPECT_EQ(s.Point(14, 8), 0x123456U);  // the blank
    s.FontTransparent = false;
    s.CurrentX = 5;
    s.Print("a b");
    EXPECT_EQ(s.Point(6, 23), 0x0000FFU);
    EXPECT_EQ(s.Point(14, 23), 0x00FF00U);
    EXPECT_EQ(s.Point(26, 23), 0x123456U);  // beyond the text
    EXPECT_EQ(s.CurrentY, 34);
}

}  // namespace tessario
