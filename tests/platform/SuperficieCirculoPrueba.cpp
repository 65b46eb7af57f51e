// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "apoyo/Azar.h"

namespace tessario {

namespace {

using namespace pluma;

constexpr double GRADOS = 0.017453294444444444;
constexpr int ARCO = AnguloIni | AnguloFin | ConAspecto;
const double ASPECTOS[] = {1, 0.3, 3.0, 0.35, 2.85, 0.5, 2, 0.05, 20};

using Conjunto = std::set<std::pair<i32, i32>>;

Conjunto Negros(const Superficie& s) {
    Conjunto c;
    for (i32 y = 0; y < s.Height(); ++y)
        for (i32 x = 0; x < s.Width(); ++x)
            if (s.Fila(y)[x] == 0) c.emplace(x, y);
    return c;
}

Conjunto Arco(double cx, double cy, double r, double ini, double fin, double aspecto,
              i32 lado = 160) {
    Superficie s(lado, lado);
    s.Circle(ARCO, cx, cy, r, 0, ini * GRADOS, fin * GRADOS, aspecto);
    return Negros(s);
}

Conjunto Entera(double cx, double cy, double r, double aspecto, i32 lado = 160) {
    Superficie s(lado, lado);
    s.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto);
    return Negros(s);
}

// How many parts do the pixels make, when those that touch at a side or a corner belong together?
int Partes(Conjunto c) {
    int partes = 0;
    while (!c.empty()) {
        ++partes;
        std::vector<std::pair<i32, i32>> cola{*c.begin()};
        c.erase(c.begin());
        while (!cola.empty()) {
            const auto [x, y] = cola.back();
            cola.pop_back();
            for (i32 v = y - 1; v <= y + 1; ++v)
                for (i32 u = x - 1; u <= x + 1; ++u)
                    if (c.erase({u, v})) cola.emplace_back(u, v);
        }
    }
    return partes;
}

// Does paint from the point stay within the lines, away from the surface's rim?
bool Cierra(Superficie& s, i32 x, i32 y) {
    s.FillColor = 0;
    ExtFloodFill(s, x, y, 0, 0);
    return s.Fila(0)[0] != 0;
}

std::pair<double, double> Semiejes(double r, double aspecto) {
    return aspecto < 1 ? std::pair{r, r * aspecto} : std::pair{r / aspecto, r};
}

// How far the curve is from the pixel along its row or its column, whichever is less.
double Lejania(double cx, double cy, double r, double aspecto, i32 x, i32 y) {
    const auto [a, b] = Semiejes(r, aspecto);
    const auto hasta = [](double centro, double semieje, double otro, double enEl, double v) {
        const double u = (enEl - otro) / semieje;
        if (std::abs(u) > 1) return std::numeric_limits<double>::infinity();
        const double d = v * std::sqrt(1 - u * u);
        return std::min(std::abs(centro + d), std::abs(centro - d));
    };
    return std::min(hasta(cy - y, a, cx, x, b), hasta(cx - x, b, cy, y, a));
}

}  // namespace

TEST(Circulo, IsTheSetOfPixelsWithinHalfAPixelOfTheCurve) {
    PorCasos(150, [](Azar& azar) {
        const double cx = azar.Entre(200000, 400000) / 4096.0;
        const double cy = azar.Entre(200000, 400000) / 4096.0;
        const double r = azar.Real(0.6, 60), aspecto = ASPECTOS[azar.Entre(0, 8)];
        Superficie s(160, 160);
        s.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto);
        for (i32 y = 0; y < 160; ++y)
            for (i32 x = 0; x < 160; ++x) {
                const double d = Lejania(cx, cy, r, aspecto, x, y);
                if (std::abs(d - 0.5) < 1e-9) continue;  // as near to the next pixel
                EXPECT_EQ(s.Fila(y)[x] == 0, d < 0.5) << x << ", " << y << " at " << d;
            }
    });
}

TEST(Circulo, RadiusIsTheLongerSemiaxis) {
    const auto ancha = Entera(80, 80, 50, 0.5);
    EXPECT_TRUE(ancha.contains({30, 80}) && ancha.contains({130, 80}));
    EXPECT_TRUE(ancha.contains({80, 55}) && ancha.contains({80, 105}));
    const auto alta = Entera(80, 80, 50, 2);
    EXPECT_TRUE(alta.contains({80, 30}) && alta.contains({80, 130}));
    EXPECT_TRUE(alta.contains({55, 80}) && alta.contains({105, 80}));
}

TEST(Circulo, OutlineIsOnePieceAndHoldsPaint) {
    PorCasos(200, [](Azar& azar) {
        const double cx = azar.Real(70, 90), cy = azar.Real(70, 90), r = azar.Real(4, 60);
        const double aspecto = ASPECTOS[azar.Entre(0, 6)];
        EXPECT_EQ(Partes(Entera(cx, cy, r, aspecto)), 1);
        Superficie s(160, 160);
        s.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto);
        EXPECT_TRUE(
            Cierra(s, static_cast<i32>(std::lround(cx)), static_cast<i32>(std::lround(cy))));
    });
}

TEST(Circulo, ArcRunsCounterClockwiseAlsoThroughZero) {
    const auto arriba = Arco(80, 80, 40, 0, 180, 1);
    EXPECT_TRUE(arriba.contains({120, 80}) && arriba.contains({40, 80}));
    EXPECT_TRUE(arriba.contains({80, 40}));
    for (const auto& [x, y] : arriba) EXPECT_LE(y, 80);
    const auto derecha = Arco(80, 80, 40, 270, 90, 1);
    EXPECT_TRUE(derecha.contains({80, 120}) && derecha.contains({80, 40}));
    EXPECT_TRUE(derecha.contains({120, 80}));
    for (const auto& [x, y] : derecha) EXPECT_GE(x, 80);
}

TEST(Circulo, ArcIsAPartOfTheWholeInOnePieceThatReachesItsEnds) {
    PorCasos(400, [](Azar& azar) {
        const double cx = azar.Real(60, 100), cy = azar.Real(60, 100), r = azar.Real(2, 55);
        const double aspecto = ASPECTOS[azar.Entre(0, 6)];
        const double ini = azar.Entre(0, 360), fin = azar.Entre(0, 360);
        const auto arco = Arco(cx, cy, r, ini, fin, aspecto);
        const auto entera = Entera(cx, cy, r, aspecto);
        EXPECT_TRUE(std::includes(entera.begin(), entera.end(), arco.begin(), arco.end()));
        EXPECT_EQ(Partes(arco), 1) << ini << " to " << fin;
        const auto [a, b] = Semiejes(r, aspecto);
        for (const double angulo : {ini, fin}) {
            // A corner of the lattice cell that holds the end point is painted.
            const double x = cx + a * std::cos(angulo * GRADOS);
            const double y = cy - b * std::sin(angulo * GRADOS);
            bool llega = false;
            for (const auto& [u, v] : arco)
                llega |= std::abs(u - x) <= 1.001 && std::abs(v - y) <= 1.001;
            EXPECT_TRUE(llega) << angulo;
        }
    });
}

TEST(Circulo, ArcAndTheRestOfTheTurnAreTheWhole) {
    PorCasos(300, [](Azar& azar) {
        const double cx = azar.Real(60, 100), cy = azar.Real(60, 100), r = azar.Real(1, 55);
        const double aspecto = ASPECTOS[azar.Entre(0, 8)];
        const double ini = 90 * azar.Entre(0, 3),
                     fin = azar.Moneda() ? ini + 180 : azar.Entre(0, 360);
        auto unidos = Arco(cx, cy, r, ini, fin, aspecto);
        unidos.merge(Arco(cx, cy, r, fin, ini, aspecto));
        if (ini == fin) return;
        EXPECT_EQ(unidos, Entera(cx, cy, r, aspecto)) << ini << " to " << fin;
    });
}

TEST(Circulo, HalvesOfACircleOnWholePixelsShareNothingButTheirEnds) {
    auto arriba = Arco(80, 80, 40, 0, 180, 1);
    const auto abajo = Arco(80, 80, 40, 180, 0, 1);
    Conjunto comunes;
    for (const auto& p : abajo)
        if (arriba.contains(p)) comunes.insert(p);
    EXPECT_EQ(comunes, (Conjunto{{40, 80}, {120, 80}}));
}

TEST(Circulo, ShiftOfTheCentreByWholePixelsShiftsThePixels) {
    for (i32 w = 20; w <= 300; ++w) {
        // The same place in cells of one grid, by sums that differ in their last bits.
        for (const double parte : {0.22, 0.5, 0.78, 0.09}) {
            const double r = w * 0.22;
            const auto en = [&](i32 columna) {
                Superficie s(200, 200);
                s.Circle(ARCO, columna * w + w * parte - columna * w + 40, 80 + w * 0.09, r, 0,
                         180 * GRADOS, 15 * GRADOS, 0.35);
                return Negros(s);
            };
            EXPECT_EQ(en(0), en(7)) << w << " * " << parte;
        }
    }
    PorCasos(100, [](Azar& azar) {
        const double cx = azar.Real(60, 80), cy = azar.Real(60, 80), r = azar.Real(1, 50);
        const double aspecto = ASPECTOS[azar.Entre(0, 8)];
        const i32 dx = azar.Entre(0, 25), dy = azar.Entre(0, 25);
        Conjunto movida;
        for (const auto& [x, y] : Arco(cx, cy, r, 30, 250, aspecto)) movida.emplace(x + dx, y + dy);
        EXPECT_EQ(Arco(cx + dx, cy + dy, r, 30, 250, aspecto), movida);
    });
}

TEST(Circulo, CircleOnWholeOrHalfPixelsIsSymmetric) {
    for (const double c : {80.0, 79.5})
        for (double r = 0; r <= 60; r += 0.25)
            for (const double aspecto : {1.0, 0.3, 3.0, 0.35, 2.85, 0.5, 2.0}) {
                const auto entera = Entera(c, c, r, aspecto);
                const i32 doble = static_cast<i32>(2 * c);
                const auto [a, b] = Semiejes(r, aspecto);
                if (std::min(a, b) < 1) continue;  // between two lines of pixels
                for (const auto& [x, y] : entera)
                    ASSERT_TRUE(entera.contains({doble - x, y}) && entera.contains({x, doble - y}))
                        << "radius " << r << ", aspect " << aspecto;
            }
}

TEST(Circulo, OutlineOfFourArcsThatShareTheirEndsHoldsPaint) {
    // The sides of a square cell bulging in and out: horizontal ones of aspect 0.3, vertical ones
    // of 3.0, in all sizes of cell.
    for (i32 w = 12; w <= 140; ++w) {
        const i32 h = 12 + (w * 7) % 120;
        Superficie s(220, 220);
        const double x = 35, y = 35, rx = (w - 1) * 0.5, ry = (h - 1) * 0.5;
        const auto lado = [&](double cx, double cy, double r, double a, double ini, double fin) {
            s.Circle(ARCO, cx, cy, r, 0, ini * GRADOS, fin * GRADOS, a);
        };
        lado(x + rx, y, rx, 0.3, 180, 0);
        lado(x + w - 1, y + ry, ry, 3.0, 270, 90);
        lado(x + rx, y + h - 1, rx, 0.3, 0, 180);
        lado(x, y + ry, ry, 3.0, 90, 270);
        EXPECT_EQ(Partes(Negros(s)), 1) << w << " x " << h;
        EXPECT_TRUE(Cierra(s, 35 + w / 2, 35 + h / 2)) << w << " x " << h;
    }
}

TEST(Circulo, WholeIsFilledWithTheFillColourUpToItsOutline) {
    PorCasos(200, [](Azar& azar) {
        const double cx = azar.Real(40, 60), cy = azar.Real(40, 60), r = azar.Real(0, 30);
        const double aspecto = ASPECTOS[azar.Entre(0, 8)];
        Superficie vacia(100, 100), llena(100, 100);
        vacia.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto);
        llena.FillSolido = true;
        llena.FillColor = 0x00FF00;
        llena.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto);
        for (i32 y = 0; y < 100; ++y) {
            i32 primero = 100, ultimo = -1;
            for (i32 x = 0; x < 100; ++x)
                if (vacia.Fila(y)[x] == 0) {
                    primero = std::min(primero, x);
                    ultimo = x;
                }
            for (i32 x = 0; x < 100; ++x) {
                const Pixel fondo = x > primero && x < ultimo ? 0x00FF00U : 0xFFFFFFU;
                EXPECT_EQ(llena.Fila(y)[x], vacia.Fila(y)[x] == 0 ? 0U : fondo) << x << ", " << y;
            }
        }
    });
}

TEST(Circulo, ArcsAreNotFilled) {
    Superficie s(40, 40);
    s.FillSolido = true;
    s.Circle(AnguloIni | AnguloFin, 20, 20, 15, 0, 0, 6.0);
    EXPECT_EQ(s.Point(20, 20), 0xFFFFFFU);
    // Also when they make a whole turn.
    s.Circle(AnguloIni | AnguloFin, 20, 20, 15, 0, 0, 360 * GRADOS);
    EXPECT_EQ(s.Point(20, 20), 0xFFFFFFU);
    EXPECT_EQ(Negros(s), Entera(20, 20, 15, 1, 40));
}

TEST(Circulo, ClippingLeavesThePixelsThatAreInside) {
    PorCasos(300, [](Azar& azar) {
        Superficie grande(200, 200), chica(50, 40);
        Region recorte;
        const bool conRecorte = azar.Moneda();
        if (conRecorte) {
            recorte = RegionAlAzar(azar, 50, 6);
            chica.PonRecorte(&recorte);
        }
        const double cx = azar.Real(-40, 90), cy = azar.Real(-40, 90), r = azar.Real(1, 60);
        const double aspecto = ASPECTOS[azar.Entre(0, 8)];
        const double ini = azar.Real(0, 7), fin = azar.Real(0, 7);
        const int flags = (azar.Moneda() ? ARCO : ConAspecto) | ConColor;
        for (Superficie* s : {&grande, &chica}) {
            s->DrawWidth = conRecorte ? 3 : 1;
            s->FillSolido = true;
            s->FillColor = 0x00FF00;
        }
        grande.Circle(flags, cx + 70, cy + 70, r, 0x445566, ini, fin, aspecto);
        ComparaDibujo(
            chica, [&] { chica.Circle(flags, cx, cy, r, 0x445566, ini, fin, aspecto); },
            [&](i32 x, i32 y) { return grande.Fila(y + 70)[x + 70] != 0xFFFFFF; },
            [&](i32 x, i32 y, Pixel) { return grande.Fila(y + 70)[x + 70]; });
    });
}

TEST(Circulo, InvertingPenInvertsEachPixelOnce) {
    PorCasos(150, [](Azar& azar) {
        Superficie s(60, 60), copia(60, 60);
        Marca(s);
        s.DrawMode = MODO_INVIERTE;
        for (Superficie* p : {&s, &copia}) {
            p->DrawWidth = 1;
            p->FillColor = 0;
        }
        s.FillSolido = copia.FillSolido = azar.Moneda();
        s.DrawWidth = copia.DrawWidth = static_cast<i16>(azar.Entre(1, 5));
        const double cx = azar.Real(0, 60), cy = azar.Real(0, 60), r = azar.Real(0, 40);
        const double aspecto = ASPECTOS[azar.Entre(0, 8)];
        copia.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto);
        ComparaDibujo(
            s, [&] { s.Circle(ConAspecto, cx, cy, r, 0, 0, 0, aspecto); },
            [&](i32 x, i32 y) { return copia.Fila(y)[x] == 0; },
            [](i32, i32, Pixel p) { return p ^ 0xFFFFFFU; });
    });
}

TEST(Circulo, PointlessOrWildArgumentsAreHarmless) {
    constexpr double nada = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinito = std::numeric_limits<double>::infinity();
    const double valores[] = {-infinito, -1e9, -3, 0, 1e-9, 0.4, 40000, 1e9, 1e300, infinito, nada};
    Superficie s(30, 20), vacia;
    for (Superficie* d : {&s, &vacia})
        for (const i16 ancho : {i16{1}, i16{32767}}) {
            d->DrawWidth = ancho;
            for (const double a : valores)
                for (const double b : valores)
                    for (const double c : valores) {
                        d->Circle(ConAspecto, a, b, c, 0, 0, 0, b);
                        d->Circle(ARCO, a, a, b, 0, b, c, c);
                        d->Circle(ARCO, 5, 5, 400, 0, b, c, a);
                    }
        }
    // Radius 0 is the centre.
    s.DrawWidth = 1;
    s.Cls();
    s.Circle(0, 7, 8, 0);
    EXPECT_EQ(Negros(s), (Conjunto{{7, 8}}));
    EXPECT_EQ(s.CurrentX, 7);
    EXPECT_EQ(s.CurrentY, 8);
}

}  // namespace tessario
