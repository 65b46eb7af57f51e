// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "apoyo/Azar.h"

namespace tessario {

namespace {

constexpr Color BORDE = 0x0000FF;  // red

// Which pixels can be reached in four directions without a pixel of the border's colour.
std::vector<bool> Alcanzados(const Superficie& s, i32 x0, i32 y0) {
    const auto indice = [&](i32 x, i32 y) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(s.Width()) +
               static_cast<std::size_t>(x);
    };
    std::vector<bool> visto(static_cast<std::size_t>(s.Width()) *
                            static_cast<std::size_t>(s.Height()));
    std::vector<Punto> cola{{x0, y0}};
    while (!cola.empty()) {
        const auto [x, y] = cola.back();
        cola.pop_back();
        if (!s.Limites().Contiene(x, y) || visto[indice(x, y)]) continue;
        if (s.Recorte() && !s.Recorte()->Contiene(x, y)) continue;
        if (s.Point(x, y) == BORDE) continue;
        visto[indice(x, y)] = true;
        for (const Punto& p : {Punto{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}})
            cola.push_back(p);
    }
    return visto;
}

}  // namespace

TEST(Relleno, ReachesWhatFourDirectionsReachAndNothingElse) {
    PorCasos(300, [](Azar& azar) {
        Superficie s(azar.Entre(1, 50), azar.Entre(1, 50));
        Marca(s);
        const i32 densidad = azar.Entre(2, 8);
        for (i32 y = 0; y < s.Height(); ++y)
            for (i32 x = 0; x < s.Width(); ++x)
                if (azar.Entre(0, densidad) == 0) s.Fila(y)[x] = PixelDe(BORDE);
        Region recorte;
        if (azar.Entre(0, 2) == 0) {
            recorte = RegionAlAzar(azar, 50, 6);
            s.PonRecorte(&recorte);
        }
        s.FillColor = azar.Moneda() ? BORDE : 0x123456;
        const i32 x0 = azar.Entre(-1, s.Width()), y0 = azar.Entre(-1, s.Height());
        const auto esperado = Alcanzados(s, x0, y0);
        ComparaDibujo(
            s, [&] { ExtFloodFill(s, x0, y0, BORDE, 0); },
            [&](i32 x, i32 y) {
                return esperado[static_cast<std::size_t>(y) * static_cast<std::size_t>(s.Width()) +
                                static_cast<std::size_t>(x)];
            },
            [&](i32, i32, Pixel) { return PixelDe(s.FillColor); });
    });
}

TEST(Relleno, StartOnTheBorderColourPaintsNothing) {
    Superficie s(5, 5);
    s.PSet(2, 2, BORDE);
    s.FillColor = 0x00FF00;
    s.TomaSucio();
    ExtFloodFill(s, 2, 2, BORDE, 0);
    EXPECT_TRUE(s.Sucio().Vacio());
    EXPECT_EQ(s.Point(2, 2), BORDE);
    EXPECT_EQ(s.Point(0, 0), 0xFFFFFFU);
}

TEST(Relleno, DoesNotPassADiagonalLine) {
    Superficie s(20, 20);
    s.FillColor = 0;
    s.Line(pluma::Desde | pluma::ConColor, 0, 19, 19, 0, BORDE);
    ExtFloodFill(s, 0, 0, BORDE, 0);
    EXPECT_EQ(s.Point(0, 18), 0U);
    EXPECT_EQ(s.Point(19, 19), 0xFFFFFFU);
    EXPECT_EQ(s.Point(19, 1), 0xFFFFFFU);
}

TEST(Relleno, WholeScreenAndWorstCombAreFilledWithoutRecursion) {
    Superficie s(1920, 1080);
    s.FillColor = BORDE;
    for (i32 x = 1; x < s.Width(); x += 2)
        s.Line(pluma::Desde | pluma::ConColor, x, x % 4 == 1 ? 0 : 1, x,
               x % 4 == 1 ? s.Height() - 2 : s.Height() - 1, BORDE);
    ExtFloodFill(s, 0, 0, BORDE, 0);
    for (i32 y = 0; y < s.Height(); y += 97)
        for (i32 x = 0; x < s.Width(); ++x) ASSERT_EQ(s.Point(x, y), BORDE) << x << ", " << y;
    EXPECT_EQ(s.Sucio(), s.Limites());
}

TEST(Relleno, OutsideAndOtherTypesPaintNothing) {
    Superficie s(5, 5), vacia;
    s.TomaSucio();
    constexpr i32 mayor = std::numeric_limits<i32>::max();
    for (const Punto& p : {Punto{-1, 0}, {0, -1}, {5, 0}, {0, 5}, {mayor, mayor}, {-mayor, 2}})
        ExtFloodFill(s, p.x, p.y, BORDE, 0);
    ExtFloodFill(s, 2, 2, BORDE, 1);
    ExtFloodFill(vacia, 0, 0, BORDE, 0);
    EXPECT_TRUE(s.Sucio().Vacio());
}

}  // namespace tessario
