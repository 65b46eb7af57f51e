// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "apoyo/Datos.h"
#include "platform/Region.h"

namespace tessario {

namespace {

Punto LeePunto(std::istream& linea) {
    Punto p;
    char coma;
    linea >> p.x >> coma >> p.y;
    return p;
}

Rect LeeRect(std::istream& linea) {
    Rect r;
    char coma;
    linea >> r.Izq >> coma >> r.Arr >> coma >> r.Der >> coma >> r.Aba;
    return r;
}

template <class T>
std::vector<T> LeeLista(std::istream& linea, T (*lee)(std::istream&)) {
    std::size_t n = 0;
    linea >> n;
    std::vector<T> lista(n);
    for (T& e : lista) e = lee(linea);
    return lista;
}

// Calls the function with the first word and the rest of each line of a table.
int PorLineas(const std::string& fichero,
              const std::function<void(const std::string&, std::istream&)>& ve) {
    std::ifstream entrada(DATOS + fichero);
    std::string texto;
    int lineas = 0;
    while (std::getline(entrada, texto)) {
        if (texto.empty() || texto[0] == '#') continue;
        SCOPED_TRACE(texto.substr(0, 90));
        std::istringstream linea(texto);
        std::string palabra;
        linea >> palabra;
        ve(palabra, linea);
        EXPECT_FALSE(linea.fail());
        ++lineas;
    }
    return lineas;
}

// All the points of the rectangles, by rows. The tables list two spans that touch as two.
std::vector<std::pair<i32, i32>> Puntos(const std::vector<Rect>& rects) {
    std::vector<std::pair<i32, i32>> puntos;
    for (const Rect& r : rects)
        for (i32 y = r.Arr; y < r.Aba; ++y)
            for (i32 x = r.Izq; x < r.Der; ++x) puntos.emplace_back(y, x);
    std::sort(puntos.begin(), puntos.end());
    return puntos;
}

std::string Salta(std::istream& linea) {
    std::string palabra;
    linea >> palabra;
    return palabra;
}

}  // namespace

TEST(RegionPoligono, RandomPolygonsHaveThePointsOfTheTable) {
    int vistos = 0;
    PorLineas("polygon_regions.txt", [&](const std::string& clase, std::istream& linea) {
        if (clase != "poly") return;
        const Region r = CreatePolygonRgn(LeeLista(linea, LeePunto));
        EXPECT_EQ(Puntos(r.Rectangulos()), Puntos(LeeLista(linea, LeeRect)));
        EXPECT_TRUE(r.Valida());
        ++vistos;
    });
    EXPECT_EQ(vistos, 60);
}

TEST(RegionPoligono, IntersectionAndDifferenceOfPolygonsHaveTheCodesOfTheTable) {
    int vistos = 0;
    PorLineas("polygon_regions.txt", [&](const std::string& clase, std::istream& linea) {
        if (clase != "and") return;
        const Region a = CreatePolygonRgn(LeeLista(linea, LeePunto));
        const Region b = CreatePolygonRgn(LeeLista(linea, LeePunto));
        Salta(linea);  // the arrow
        int codigoY = 0, codigoResta = 0;
        linea >> codigoY >> codigoResta;
        Salta(linea);  // the word box
        const Rect caja = LeeRect(linea);
        Region comun, resto;
        EXPECT_EQ(CombineRgn(comun, a, b, RGN_AND), codigoY);
        EXPECT_EQ(CombineRgn(resto, a, b, RGN_DIFF), codigoResta);
        EXPECT_EQ(comun.Caja(), caja);
        EXPECT_EQ(SeCortan(a, b), codigoY > REGION_VACIA);
        ++vistos;
    });
    EXPECT_EQ(vistos, 60);
}

TEST(RegionPoligono, TangramPiecesCoverThePointsOfTheTable) {
    const int lineas =
        PorLineas("tangram_regions.txt", [](const std::string&, std::istream& linea) {
            i32 giro = 0, volteo = 0, ancho = 0, alto = 0, area = 0;
            linea >> giro >> volteo;
            Salta(linea);
            linea >> ancho >> alto;
            Salta(linea);
            const Region r = CreatePolygonRgn(LeeLista(linea, LeePunto));
            Salta(linea);
            linea >> area;
            Salta(linea);
            EXPECT_EQ(r.Area(), area);
            EXPECT_EQ(Puntos(r.Rectangulos()), Puntos(LeeLista(linea, LeeRect)));
            EXPECT_TRUE(r.Valida());
            EXPECT_EQ(Interseccion(r.Caja(), {0, 0, ancho, alto}), r.Caja());
        });
    EXPECT_EQ(lineas, 64);
}

}  // namespace tessario
