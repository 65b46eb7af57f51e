// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>

#include "apoyo/Azar.h"

namespace tessario {

namespace {

constexpr i32 LADO = 40;  // the random sets lie within [-4, LADO + LADO / 2)
constexpr i32 DESDE = -6, HASTA = LADO + LADO / 2 + 2;

bool EnModo(int modo, bool a, bool b) {
    switch (modo) {
        case RGN_AND:
            return a && b;
        case RGN_OR:
            return a || b;
        case RGN_XOR:
            return a != b;
        case RGN_DIFF:
            return a && !b;
        default:
            return a;
    }
}

void ComparaPuntos(const Region& r, const std::function<bool(i32, i32)>& dentro) {
    EXPECT_TRUE(r.Valida());
    i32 area = 0;
    Rect caja;
    for (i32 y = DESDE; y < HASTA; ++y)
        for (i32 x = DESDE; x < HASTA; ++x) {
            EXPECT_EQ(r.Contiene(x, y), dentro(x, y)) << x << ", " << y;
            if (!dentro(x, y)) continue;
            ++area;
            caja = Union(caja, RectDe(x, y, 1, 1));
        }
    EXPECT_EQ(r.Area(), area);
    EXPECT_EQ(r.Caja(), caja);
    EXPECT_EQ(r.Vacia(), area == 0);
}

// The winding number of the outline around a point, as the turns of the edges that pass at or left
// of it.
bool DentroDelPoligono(const std::vector<Punto>& p, i32 x, i32 y) {
    int vueltas = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        Punto a = p[i], b = p[(i + 1) % p.size()];
        const int sentido = a.y < b.y ? 1 : -1;
        if (sentido < 0) std::swap(a, b);
        if (y < a.y || y >= b.y) continue;
        if (static_cast<long long>(x - a.x) * (b.y - a.y) >=
            static_cast<long long>(y - a.y) * (b.x - a.x))
            vueltas += sentido;
    }
    return vueltas != 0;
}

}  // namespace

TEST(Region, CombinationsMatchTheirPointsAndKeepTheInvariants) {
    PorCasos(300, [](Azar& azar) {
        const Region a = RegionAlAzar(azar, LADO, azar.Entre(0, 12));
        const Region b = RegionAlAzar(azar, LADO, azar.Entre(0, 12));
        for (const int modo : {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY}) {
            Region r;
            const int codigo = CombineRgn(r, a, b, modo);
            ComparaPuntos(
                r, [&](i32 x, i32 y) { return EnModo(modo, a.Contiene(x, y), b.Contiene(x, y)); });
            EXPECT_EQ(codigo, std::min<int>(3, 1 + static_cast<int>(r.Rectangulos().size())));
            EXPECT_EQ(codigo, r.Codigo());
        }
    });
}

TEST(Region, ResultMayBeOneOfTheOperands) {
    PorCasos(200, [](Azar& azar) {
        const Region a = RegionAlAzar(azar, LADO, 6), b = RegionAlAzar(azar, LADO, 6);
        for (const int modo : {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY}) {
            Region r, primera = a, segunda = b, ambas = a;
            CombineRgn(r, a, b, modo);
            CombineRgn(primera, primera, b, modo);
            CombineRgn(segunda, a, segunda, modo);
            EXPECT_EQ(primera, r);
            EXPECT_EQ(segunda, r);
            CombineRgn(ambas, ambas, ambas, modo);
            EXPECT_EQ(ambas, modo == RGN_XOR || modo == RGN_DIFF ? Region() : a);
        }
    });
}

TEST(Region, EqualSetsHaveEqualListsHoweverTheyWereMade) {
    PorCasos(200, [](Azar& azar) {
        std::vector<Rect> rects;
        for (i32 i = 0; i < 8; ++i)
            rects.push_back(RectDe(azar.Entre(0, LADO), azar.Entre(0, LADO), azar.Entre(1, 15),
                                   azar.Entre(1, 15)));
        Region adelante, atras;
        for (std::size_t i = 0; i < rects.size(); ++i) {
            CombineRgn(adelante, adelante, Region(rects[i]), RGN_OR);
            CombineRgn(atras, atras, Region(rects[rects.size() - 1 - i]), RGN_OR);
        }
        EXPECT_EQ(adelante, atras);
    });
}

TEST(Region, SharedPointIsFoundWithoutBuildingTheIntersection) {
    int cortan = 0;
    PorCasos(400, [&](Azar& azar) {
        Region a = RegionAlAzar(azar, LADO, azar.Entre(0, 6)), r;
        const Region b = RegionAlAzar(azar, LADO, azar.Entre(0, 6));
        a.Desplaza(azar.Entre(-15, 15), azar.Entre(-15, 15));
        const bool esperado = CombineRgn(r, a, b, RGN_AND) > REGION_VACIA;
        EXPECT_EQ(SeCortan(a, b), esperado);
        EXPECT_EQ(SeCortan(b, a), esperado);
        cortan += esperado;
    });
    EXPECT_GT(cortan, 50);
    EXPECT_LT(cortan, 350);
}

TEST(Region, BoxesThatMerelyTouchHaveNoPointInCommon) {
    const Region a = CreateRectRgn(0, 0, 10, 10);
    Region r;
    EXPECT_EQ(CombineRgn(r, a, CreateRectRgn(10, 10, 20, 20), RGN_AND), REGION_VACIA);
    EXPECT_EQ(CombineRgn(r, a, CreateRectRgn(10, 0, 20, 10), RGN_AND), REGION_VACIA);
    EXPECT_EQ(CombineRgn(r, a, CreateRectRgn(9, 9, 20, 20), RGN_AND), REGION_SIMPLE);
    EXPECT_EQ(r.Caja(), (Rect{9, 9, 10, 10}));
    EXPECT_EQ(CombineRgn(r, a, CreateRectRgn(10, 0, 20, 10), RGN_OR), REGION_SIMPLE);
    EXPECT_EQ(CombineRgn(r, a, CreateRectRgn(10, 1, 20, 10), RGN_OR), REGION_COMPLEJA);
    EXPECT_EQ(CombineRgn(r, a, CreateRectRgn(3, 3, 5, 5), RGN_DIFF), REGION_COMPLEJA);
}

TEST(Region, UnknownModeGivesTheEmptyRegion) {
    Region r = CreateRectRgn(0, 0, 4, 4);
    EXPECT_EQ(CombineRgn(r, r, r, 9), REGION_VACIA);
    EXPECT_TRUE(r.Vacia());
}

TEST(Region, CornersOfABoxComeInAnyOrderAndAnEmptyBoxIsEmpty) {
    EXPECT_EQ(CreateRectRgn(7, 9, 2, 3).Caja(), (Rect{2, 3, 7, 9}));
    EXPECT_TRUE(CreateRectRgn(5, 0, 5, 10).Vacia());
    Region r = CreateRectRgn(0, 0, 3, 3);
    SetRectRgn(r, 4, 4, 8, 2);
    EXPECT_EQ(r.Caja(), (Rect{4, 2, 8, 4}));
}

TEST(Region, BandAndRestAreThoseOfTheRow) {
    PorCasos(200, [](Azar& azar) {
        const Region r = RegionAlAzar(azar, LADO, 8);
        for (i32 y = DESDE; y < HASTA; ++y) {
            std::vector<Rect> banda, resto;
            for (const Rect& q : r.Rectangulos()) {
                if (q.Arr <= y && y < q.Aba) banda.push_back(q);
                if (q.Aba > y) resto.push_back(q);
            }
            const auto b = r.Banda(y), d = r.Desde(y);
            EXPECT_EQ(std::vector<Rect>(b.begin(), b.end()), banda);
            EXPECT_EQ(std::vector<Rect>(d.begin(), d.end()), resto);
        }
    });
}

TEST(Region, ShiftMovesAllPointsAndDropsThoseThatLeaveTheRange) {
    constexpr i32 mayor = std::numeric_limits<i32>::max(), menor = std::numeric_limits<i32>::min();
    Region r;
    CombineRgn(r, CreateRectRgn(0, 0, 10, 10), CreateRectRgn(20, 5, 30, 8), RGN_OR);
    Region movida = r;
    movida.Desplaza(-7, 100);
    EXPECT_EQ(movida.Area(), r.Area());
    EXPECT_TRUE(movida.Contiene(13, 105));
    EXPECT_EQ(movida.Caja(), (Rect{-7, 100, 23, 110}));
    movida = r;
    movida.Desplaza(mayor - 25, 0);
    EXPECT_TRUE(movida.Valida());
    EXPECT_EQ(movida.Caja().Der, mayor);
    EXPECT_EQ(movida.Area(), 100 + 5 * 3);
    movida = r;
    movida.Desplaza(mayor, menor);
    EXPECT_TRUE(movida.Valida());
    EXPECT_EQ(movida.Rectangulos().size(), 0U);
    movida.Desplaza(menor, mayor);
    EXPECT_TRUE(movida.Vacia());
}

TEST(Region, WholeRangeIsHandledWithoutOverflow) {
    constexpr i32 mayor = std::numeric_limits<i32>::max(), menor = std::numeric_limits<i32>::min();
    const Region todo = CreateRectRgn(menor, menor, mayor, mayor);
    EXPECT_EQ(todo.Area(), mayor);
    EXPECT_TRUE(todo.Contiene(menor, 0));
    Region r;
    EXPECT_EQ(CombineRgn(r, todo, CreateRectRgn(0, 0, 5, 5), RGN_DIFF), REGION_COMPLEJA);
    EXPECT_TRUE(r.Valida());
    EXPECT_EQ(CombineRgn(r, r, CreateRectRgn(0, 0, 5, 5), RGN_XOR), REGION_SIMPLE);
    EXPECT_EQ(r, todo);
    EXPECT_TRUE(SeCortan(todo, todo));
}

TEST(RegionPoligono, IsTheSetOfPointsThatTheOutlineGoesAround) {
    PorCasos(200, [](Azar& azar) {
        std::vector<Punto> p(static_cast<std::size_t>(azar.Entre(3, 9)));
        for (Punto& v : p) v = {azar.Entre(DESDE, HASTA), azar.Entre(DESDE, HASTA)};
        ComparaPuntos(CreatePolygonRgn(p),
                      [&](i32 x, i32 y) { return DentroDelPoligono(p, x, y); });
    });
}

TEST(RegionPoligono, DirectionAndFirstCornerDoNotMatter) {
    PorCasos(100, [](Azar& azar) {
        std::vector<Punto> p(static_cast<std::size_t>(azar.Entre(3, 6)));
        for (Punto& v : p) v = {azar.Entre(-90, 90), azar.Entre(-90, 90)};
        const Region r = CreatePolygonRgn(p);
        std::rotate(p.begin(), p.begin() + 1, p.end());
        EXPECT_EQ(CreatePolygonRgn(p), r);
        std::reverse(p.begin(), p.end());
        EXPECT_EQ(CreatePolygonRgn(p), r);
    });
}

TEST(RegionPoligono, TooFewCornersOrNoHeightGiveTheEmptyRegion) {
    const std::vector<Punto> dos{{0, 0}, {10, 10}}, llano{{0, 5}, {10, 5}, {20, 5}};
    EXPECT_TRUE(CreatePolygonRgn({}).Vacia());
    EXPECT_TRUE(CreatePolygonRgn(dos).Vacia());
    EXPECT_TRUE(CreatePolygonRgn(llano).Vacia());
}

TEST(RegionPoligono, WildCornersAreBroughtWithinTheLimit) {
    constexpr i32 mayor = std::numeric_limits<i32>::max(), menor = std::numeric_limits<i32>::min();
    const std::vector<Punto> cuadro{{menor, menor}, {mayor, menor}, {mayor, mayor}, {menor, mayor}};
    EXPECT_EQ(CreatePolygonRgn(cuadro).Rectangulos(),
              (std::vector<Rect>{
                  {-LIMITE_POLIGONO, -LIMITE_POLIGONO, LIMITE_POLIGONO, LIMITE_POLIGONO}}));
    const std::vector<Punto> cruzado{{menor, menor}, {mayor, mayor}, {mayor, menor}, {menor, 7}};
    EXPECT_TRUE(CreatePolygonRgn(cruzado).Valida());
}

}  // namespace tessario
